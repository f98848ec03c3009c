// Per-point evaluation of a user formula, as the pages that iterate one do: the expression is
// set once, then every point binds "x" and reads the value. Compared with the same formula
// written in C++. The counter "alocacoes" is heap allocations per evaluation (must be 0).
#include "interp/clsEquation.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdlib>
#include <new>

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

}  // namespace
