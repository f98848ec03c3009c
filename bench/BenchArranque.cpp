// Start-up on the offscreen platform: the main page with its seven pictures, against the same
// page shell without them and against the pictures alone, in the same run. The sequences
// page: choosing an example (stages drawn, explanation rendered) against the stage drawing.

#include "app/Aplicacao.h"
#include "app/FigurasInicio.h"
#include "app/PaginaBase.h"
#include "app/PaginaInicial.h"
#include "app/Paginas.h"
#include "dynamics/PaginaSucessoes.h"

#include <QCoreApplication>
#include <QWidget>

#include <benchmark/benchmark.h>

namespace {

void Arranque(benchmark::State& estado)
{
    for (auto _ : estado) {
        QWidget* inicial = AbrirLumerina();
        QCoreApplication::processEvents();
        benchmark::DoNotOptimize(inicial);
        lumerina::FecharLumerina();
    }
}
BENCHMARK(Arranque)->Unit(benchmark::kMillisecond);

// The same window, menu bar and title, without the topics and their pictures.
void ArranqueSemFiguras(benchmark::State& estado)
{
    for (auto _ : estado) {
        auto* pagina = new lumerina::PaginaBase(lumerina::Descricao(lumerina::Form::Inicial));
        pagina->show();
        QCoreApplication::processEvents();
        delete pagina;
    }
}
BENCHMARK(ArranqueSemFiguras)->Unit(benchmark::kMillisecond);

void SoFiguras(benchmark::State& estado)
{
    const QSize tamanho(lumerina::PaginaInicial::kLarguraFigura,
                        lumerina::PaginaInicial::kAlturaFigura);
    const qreal escala = qreal(estado.range(0));
    for (auto _ : estado) {
        for (auto figura : {lumerina::FiguraMandelbrot, lumerina::FiguraJulia,
                            lumerina::FiguraFeto, lumerina::FiguraNewton,
                            lumerina::FiguraSierpinski, lumerina::FiguraAtractor,
                            lumerina::FiguraPlanta})
            benchmark::DoNotOptimize(figura(tamanho, escala));
    }
}
BENCHMARK(SoFiguras)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void EscolherExemplo(benchmark::State& estado)
{
    auto* pagina =
        static_cast<lumerina::PaginaSucessoes*>(lumerina::Pagina(lumerina::Form::Sucessoes));
    const int exemplo = int(estado.range(0));
    for (auto _ : estado)
        pagina->EscolherExemplo(exemplo);
    lumerina::FecharLumerina();
}
BENCHMARK(EscolherExemplo)->Arg(3)->Arg(8)->Unit(benchmark::kMillisecond);

void SoEtapas(benchmark::State& estado)
{
    const int lado = lumerina::PaginaSucessoes::kLadoImagem;
    for (auto _ : estado)
        benchmark::DoNotOptimize(lumerina::DesenharEtapas(int(estado.range(0)), {lado, lado}));
}
BENCHMARK(SoEtapas)->Arg(3)->Arg(8)->Unit(benchmark::kMillisecond);

}  // namespace
