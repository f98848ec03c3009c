// The shared generator: a draw, and a draw after taking the clock in, as a page that reseeds
// before every step does. With the clock still in the same tick the reading is skipped; with a
// new tick at every call each step reseeds (the dearest case; the platform's clock ticks once
// a millisecond, so at most a thousand times a second).
#include "interp/Aleatorio.h"

#include <benchmark/benchmark.h>

namespace {

std::uint64_t tique = 0;
std::uint64_t Parado() { return 1; }
std::uint64_t AvancaUm() { return ++tique; }

void BM_AleatorioSo(benchmark::State& state)
{
    lumerina::SemearAleatorio(1);
    for (auto _ : state)
        benchmark::DoNotOptimize(lumerina::Aleatorio());
}
BENCHMARK(BM_AleatorioSo);

void BM_AleatorioComRelogioNoMesmoTique(benchmark::State& state)
{
    lumerina::DefinirRelogioAleatorio(Parado);
    lumerina::SemearAleatorio(1);
    for (auto _ : state) {
        lumerina::SemearAleatorioDoRelogio();
        benchmark::DoNotOptimize(lumerina::Aleatorio());
    }
    lumerina::DefinirRelogioAleatorio(nullptr);
}
BENCHMARK(BM_AleatorioComRelogioNoMesmoTique);

void BM_AleatorioComRelogioSempreNovo(benchmark::State& state)
{
    lumerina::DefinirRelogioAleatorio(AvancaUm);
    lumerina::SemearAleatorio(1);
    for (auto _ : state) {
        lumerina::SemearAleatorioDoRelogio();
        benchmark::DoNotOptimize(lumerina::Aleatorio());
    }
    lumerina::DefinirRelogioAleatorio(nullptr);
}
BENCHMARK(BM_AleatorioComRelogioSempreNovo);

}  // namespace
