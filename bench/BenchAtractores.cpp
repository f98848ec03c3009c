// Peter de Jong at 10⁶ iterations: the plain loop (libm sines and cosines, one
// QImage::setPixel per point) against the stepper's batches plotted into scan lines, and
// against the whole page (checks, drawing session, yields, picture) with its speed bar at 0,
// in the same run.

#include "app/Aplicacao.h"
#include "app/Paginas.h"
#include "dynamics/Atractores.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace lumerina {
namespace {

constexpr int kIteracoes = 1'000'000;
constexpr int kLado = 628;
const QRgb kAzul = qRgb(0, 0, 128);

// The window -3 … 3 on both axes, y upwards.
int PixelX(double x) { return static_cast<int>(std::floor((x + 3) * (kLado / 6.0) + 0.5)); }
int PixelY(double y) { return static_cast<int>(std::floor((y - 3) * (kLado / -6.0) + 0.5)); }

void DeJongSimples(benchmark::State& estado)
{
    QImage imagem(kLado, kLado, QImage::Format_RGB32);
    for (auto _ : estado) {
        imagem.fill(Qt::white);
        const double a = -0.52, b = -2.083, c = 0.718, d = -2.403;
        double x = 0, y = 0;
        for (int k = 0; k < kIteracoes; ++k) {
            const double xn = std::sin(a * y) - std::cos(b * x);
            y = std::sin(c * x) - std::cos(d * y);
            x = xn;
            const int px = PixelX(x), py = PixelY(y);
            if (px >= 0 && px < kLado && py >= 0 && py < kLado)
                imagem.setPixel(px, py, kAzul);
        }
        benchmark::DoNotOptimize(imagem.constBits());
    }
}
BENCHMARK(DeJongSimples)->Unit(benchmark::kMillisecond);

void DeJongEmLotes(benchmark::State& estado)
{
    QImage imagem(kLado, kLado, QImage::Format_RGB32);
    std::vector<Ponto> lote(4096);
    for (auto _ : estado) {
        imagem.fill(Qt::white);
        const Raster r{reinterpret_cast<std::uint32_t*>(imagem.bits()), imagem.bytesPerLine() / 4,
                       kLado, kLado, -3, 3, kLado / 6.0, kLado / -6.0};
        Atractor atractor = DeJong{};
        for (int feitos = 0; feitos < kIteracoes;) {
            const int n = std::min<int>(static_cast<int>(lote.size()), kIteracoes - feitos);
            PontosPlotados(atractor, lote.data(), n, r, kAzul, 1);
            feitos += n;
        }
        benchmark::DoNotOptimize(imagem.constBits());
    }
}
BENCHMARK(DeJongEmLotes)->Unit(benchmark::kMillisecond);

// The stepper alone, for the share of the plotting.
void DeJongSoPassos(benchmark::State& estado)
{
    std::vector<Ponto> lote(4096);
    for (auto _ : estado) {
        Atractor atractor = DeJong{};
        for (int feitos = 0; feitos < kIteracoes; feitos += 4096) {
            Pontos(atractor, lote.data(), std::min(4096, kIteracoes - feitos));
            benchmark::DoNotOptimize(lote.data());
        }
    }
}
BENCHMARK(DeJongSoPassos)->Unit(benchmark::kMillisecond);

// Both ways the page can draw: to the screen only, and into the picture to copy.
void DeJongPagina(benchmark::State& estado)
{
    QWidget* pagina = Pagina(Form::Atractores);
    pagina->show();
    pagina->findChild<QAbstractButton*>(QStringLiteral("DeJong"))->click();
    pagina->findChild<QCheckBox*>(QStringLiteral("CopiarDeJong"))->setChecked(estado.range(0) != 0);
    pagina->findChild<QLineEdit*>(QStringLiteral("Iterações"))->setText(QString::number(kIteracoes));
    auto* desenhar = pagina->findChild<QAbstractButton*>(QStringLiteral("Desenhar"));
    for (auto _ : estado)
        desenhar->click();
    FecharLumerina();
}
BENCHMARK(DeJongPagina)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lumerina
