// Per-point evaluation of a user formula, as the pages that iterate one do: the expression is
// set once, then every point binds "x" and reads the value. Compared with the same formula
// written in C++. The counter "alocacoes" is heap allocations per evaluation (must be 0).
//
// The cost in the expression's length: a flat sum "x+1+1+...+1" of 10^4 to 3*10^5 characters
// (a field holds up to 32 767), read once from its text, and evaluated again on its kept
// tokens; against a C++ loop that adds as many checked terms.
#include "interp/clsEquation.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdlib>
#include <new>
#include <string>

namespace {

long alocacoes = 0;

}  // namespace

// Counting replacements of the global allocation functions. Weak, so that another benchmark of
// this program may bring its own; the self-test below then reports -1 instead of a count.
__attribute__((weak)) void* operator new(std::size_t n)
{
    ++alocacoes;
    if (void* p = std::malloc(n ? n : 1))
        return p;
    throw std::bad_alloc();
}
__attribute__((weak)) void operator delete(void* p) noexcept { std::free(p); }
__attribute__((weak)) void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace {

bool ContagemFunciona()
{
    const long antes = alocacoes;
    delete new volatile int(0);
    return alocacoes != antes;
}

// Sweeps [-2, 2) so that x^3 stays small.
double Seguinte(double x) { return x < 2 ? x + 1e-3 : -2; }

void BM_InterpretadorPorPonto(benchmark::State& state)
{
    lumerina::clsEquation eq;
    eq.Expression("sen(x)*2+x^3-1");
    eq.SetVariable("x", 0);
    eq.Evaluate();
    double x = -2;
    const long antes = alocacoes;
    for (auto _ : state) {
        eq.SetVariable("x", x);
        benchmark::DoNotOptimize(eq.Value());
        x = Seguinte(x);
    }
    const long feitas = alocacoes - antes;
    state.SetItemsProcessed(state.iterations());
    state.counters["alocacoes"] =
        ContagemFunciona() ? static_cast<double>(feitas) / state.iterations() : -1;
}
BENCHMARK(BM_InterpretadorPorPonto);

void BM_FormulaEmCpp(benchmark::State& state)
{
    double x = -2;
    for (auto _ : state) {
        benchmark::DoNotOptimize(x);
        benchmark::DoNotOptimize(std::sin(x) * 2 + std::pow(x, 3) - 1);
        x = Seguinte(x);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FormulaEmCpp);

std::string SomaPlana(long caracteres)
{
    std::string r = "x";
    while (static_cast<long>(r.size()) + 2 <= caracteres)
        r += "+1";
    return r;
}

void TamanhosDaSoma(benchmark::internal::Benchmark* b)
{
    b->Arg(10'000)->Arg(100'000)->Arg(300'000)->Unit(benchmark::kMillisecond);
}

void BM_SomaPlanaPrimeiraVez(benchmark::State& state)
{
    const std::string texto = SomaPlana(state.range(0));
    for (auto _ : state) {
        lumerina::clsEquation eq;
        eq.Expression(texto);
        eq.SetVariable("x", 1);
        benchmark::DoNotOptimize(eq.Value());
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_SomaPlanaPrimeiraVez)->Apply(TamanhosDaSoma);

void BM_SomaPlanaDeNovo(benchmark::State& state)
{
    lumerina::clsEquation eq;
    eq.Expression(SomaPlana(state.range(0)));
    eq.SetVariable("x", 1);
    eq.Evaluate();
    double x = 0;
    for (auto _ : state) {
        eq.SetVariable("x", x);
        benchmark::DoNotOptimize(eq.Value());
        x = Seguinte(x);
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_SomaPlanaDeNovo)->Apply(TamanhosDaSoma);

void BM_SomaPlanaEmCpp(benchmark::State& state)
{
    const long termos = state.range(0) / 2;
    for (auto _ : state) {
        double s = 1;
        for (long i = 0; i < termos; ++i) {
            benchmark::DoNotOptimize(s += 1);
            if (!std::isfinite(s))
                std::abort();
        }
        benchmark::DoNotOptimize(s);
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_SomaPlanaEmCpp)->Apply(TamanhosDaSoma);

}  // namespace
