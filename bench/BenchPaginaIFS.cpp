// Barnsley's fern at 10⁷ steps end to end through the IFS page (the two pictures, the
// repaints of Picture2 as the points arrive), against the loop one would write first: the
// standard Mersenne twister through std::uniform_real_distribution, the bounds tested one
// after the other, and QImage::setPixel for every point. Same steps, same picture size.

#include "app/Aplicacao.h"
#include "app/Paginas.h"
#include "geometric/SistemaIFS.h"

#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <random>

namespace {

constexpr long long kPassos = 10'000'000;

void PaginaIFSFeto(benchmark::State& estado)
{
    QWidget* pagina = lumerina::Pagina(lumerina::Form::IFS);
    pagina->show();
    pagina->findChild<QLineEdit*>(QStringLiteral("NumIteraçõesIFS"))
        ->setText(QString::number(kPassos));
    auto* feto = pagina->findChild<QPushButton*>(QStringLiteral("FetoBarnsley"));
    for (auto _ : estado)
        feto->click();
    estado.SetItemsProcessed(estado.iterations() * kPassos);
    lumerina::FecharLumerina();
}
BENCHMARK(PaginaIFSFeto)->Unit(benchmark::kMillisecond);

void CicloMt19937SetPixel(benchmark::State& estado)
{
    const lumerina::SistemaIFS& s = *lumerina::SistemaIFSPorNome("Feto de Barnsley");
    QImage imagem(627, 627, QImage::Format_RGB32);
    imagem.fill(Qt::white);
    std::mt19937 gerador(1);
    std::uniform_real_distribution<double> uniforme(0, 1);
    const lumerina::EscalaIFS& e = s.moldura.escala;
    const double fx = 627 / (e.direita - e.esquerda), fy = 627 / (e.fundo - e.topo);
    for (auto _ : estado) {
        double x = s.moldura.inicio.x, y = s.moldura.inicio.y;
        for (long long n = 1; n <= kPassos; ++n) {
            const int r = int(uniforme(gerador) * 100);
            for (int m = 0; m < s.numMapas; ++m) {
                if (r >= s.faixas[m].de && r <= s.faixas[m].ate) {
                    const lumerina::MapaAfim& t = s.mapas[m];
                    const double nx = t.a * x + t.b * y + t.e;
                    y = t.c * x + t.d * y + t.f;
                    x = nx;
                    break;
                }
            }
            if (n > lumerina::kTransitorio) {
                const float X = float(s.moldura.k * x - s.moldura.ox);
                const float Y = float(s.moldura.k * y - s.moldura.oy);
                imagem.setPixel(int((X - e.esquerda) * fx + 0.5), int((Y - e.topo) * fy + 0.5),
                                0xFF000000u);
            }
        }
        benchmark::DoNotOptimize(imagem.constBits());
    }
    estado.SetItemsProcessed(estado.iterations() * kPassos);
}
BENCHMARK(CicloMt19937SetPixel)->Unit(benchmark::kMillisecond);

}  // namespace
