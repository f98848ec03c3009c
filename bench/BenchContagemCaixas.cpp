// Box counting over a 628 x 628 picture (all seven grids) against one plain pass that only
// counts the figure pixels, the least the count could cost; and drawing the classic figures.

#include "geometric/ContagemCaixas.h"
#include "geometric/FigurasAutoSemelhantes.h"

#include <benchmark/benchmark.h>

#include <numeric>

namespace lumerina {
namespace {

const Mascara& Triangulo()
{
    static const Mascara m = DesenharFigura(Figura::TrianguloSierpinski, 628, 628);
    return m;
}

void ContagemCaixasPassagemSimples(benchmark::State& estado)
{
    const Mascara& m = Triangulo();
    for (auto _ : estado) {
        long n = 0;
        for (std::uint8_t p : m.pixeis)
            n += p != 0;
        benchmark::DoNotOptimize(n);
    }
}
BENCHMARK(ContagemCaixasPassagemSimples)->Unit(benchmark::kMicrosecond);

void ContagemCaixasSeteGrelhas(benchmark::State& estado)
{
    const Mascara& m = Triangulo();
    for (auto _ : estado)
        benchmark::DoNotOptimize(MedirDimensao(m).ajuste.declive);
}
BENCHMARK(ContagemCaixasSeteGrelhas)->Unit(benchmark::kMicrosecond);

void ContagemCaixasDesenharFigura(benchmark::State& estado)
{
    const Figura f = Figuras()[static_cast<std::size_t>(estado.range(0))].figura;
    estado.SetLabel(Dados(f).nome);
    for (auto _ : estado)
        benchmark::DoNotOptimize(DesenharFigura(f, 628, 628).pixeis.data());
}
BENCHMARK(ContagemCaixasDesenharFigura)->DenseRange(0, 6)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lumerina
