// The IFS renderer over a million steps into a 627 x 627 picture, against a plain loop of the
// same maps written out by hand (the same generator, the bounds tested one after the other,
// the same pixel arithmetic), in the same run; and the renderer fed by a call per step to the
// program's shared generator instead of its inline one. Two systems: the fern (six ranges, one map
// three times) and Queen Anne's Lace (nine maps).

#include "geometric/SistemaIFS.h"
#include "interp/Aleatorio.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace lumerina {
namespace {

constexpr int kLado = 627;
constexpr long long kPassos = 1'000'000;

const char* const kSistemas[] = {"Feto de Barnsley", "Queen Anne's Lace"};

void IFSRenderizador(benchmark::State& estado)
{
    const SistemaIFS& s = *SistemaIFSPorNome(kSistemas[estado.range(0)]);
    std::vector<std::uint32_t> pixeis(kLado * kLado);
    const Tela tela{pixeis.data(), kLado, kLado, kLado};
    UniformeIFS uniforme(1);
    for (auto _ : estado) {
        DesenharIFS(s, kPassos, std::span(&tela, 1), 0xFF000000u, uniforme, [] {});
        benchmark::DoNotOptimize(pixeis.data());
    }
    estado.SetItemsProcessed(estado.iterations() * kPassos);
}
BENCHMARK(IFSRenderizador)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);

void IFSRenderizadorAleatorio(benchmark::State& estado)
{
    const SistemaIFS& s = *SistemaIFSPorNome(kSistemas[estado.range(0)]);
    std::vector<std::uint32_t> pixeis(kLado * kLado);
    const Tela tela{pixeis.data(), kLado, kLado, kLado};
    SemearAleatorio(1);
    for (auto _ : estado) {
        DesenharIFS(s, kPassos, std::span(&tela, 1), 0xFF000000u, Aleatorio, [] {});
        benchmark::DoNotOptimize(pixeis.data());
    }
    estado.SetItemsProcessed(estado.iterations() * kPassos);
}
BENCHMARK(IFSRenderizadorAleatorio)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);

void IFSCicloSimples(benchmark::State& estado)
{
    const SistemaIFS& s = *SistemaIFSPorNome(kSistemas[estado.range(0)]);
    std::vector<std::uint32_t> pixeis(kLado * kLado);
    const EscalaIFS& e = s.moldura.escala;
    const double fx = kLado / (e.direita - e.esquerda), fy = kLado / (e.fundo - e.topo);
    UniformeIFS uniforme(1);
    for (auto _ : estado) {
        double x = s.moldura.inicio.x, y = s.moldura.inicio.y;
        for (long long n = 1; n <= kPassos; ++n) {
            const int r = int(uniforme() * 100);
            for (int m = 0; m < s.numMapas; ++m) {
                if (r >= s.faixas[m].de && r <= s.faixas[m].ate) {
                    const MapaAfim& t = s.mapas[m];
                    const double nx = t.a * x + t.b * y + t.e;
                    y = t.c * x + t.d * y + t.f;
                    x = nx;
                    break;
                }
            }
            if (n > kTransitorio) {
                const float X = float(s.moldura.k * x - s.moldura.ox);
                const float Y = float(s.moldura.k * y - s.moldura.oy);
                const double u = (X - e.esquerda) * fx + 0.5, v = (Y - e.topo) * fy + 0.5;
                if (u >= 0 && u < kLado && v >= 0 && v < kLado)
                    pixeis[int(v) * kLado + int(u)] = 0xFF000000u;
            }
        }
        benchmark::DoNotOptimize(pixeis.data());
    }
    estado.SetItemsProcessed(estado.iterations() * kPassos);
}
BENCHMARK(IFSCicloSimples)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lumerina
