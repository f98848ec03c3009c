// The Mandelbrot page end to end (validation, palette, kernel, colouring, picture, a yield
// per column) against the bare kernel over the same 629 x 629 points, in the same run.

#include "app/Aplicacao.h"
#include "app/Paginas.h"
#include "complex/TempoFuga.h"

#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <vector>

namespace {

struct Vista {
    const char *xmin, *xmax, *ymin, *ymax;
    double x0, x1, y0;
    float y1;
    int n;
};

const Vista kVistas[] = {
    {"-1.6", "0.6", "-1.3", "1.3", -1.6, 0.6, -1.3, 1.3f, 150},
    {"-1.6", "0.6", "-1.3", "1.3", -1.6, 0.6, -1.3, 1.3f, 256},
    {"-0.2", "0.1", "-0.1", "0.1", -0.2, 0.1, -0.1, 0.1f, 256},
};

void NucleoNu(benchmark::State& estado)
{
    const Vista& v = kVistas[estado.range(0)];
    const lumerina::VistaMundo vista{v.x0, v.x1, v.y0, v.y1, 628.0, 628};
    std::vector<int> contagens(629);
    for (auto _ : estado) {
        for (int i = 0; i <= 628; ++i) {
            lumerina::ColunaMandelbrot(lumerina::VarianteMandel::Normal, vista, i, v.n,
                                       contagens.data());
            benchmark::DoNotOptimize(contagens.data());
        }
    }
}
BENCHMARK(NucleoNu)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void PaginaInteira(benchmark::State& estado)
{
    const Vista& v = kVistas[estado.range(0)];
    QWidget* pagina = lumerina::Pagina(2);
    pagina->show();
    const auto texto = [&](const char* nome, const char* valor) {
        pagina->findChild<QLineEdit*>(QString::fromUtf8(nome))->setText(QString::fromUtf8(valor));
    };
    texto("Xmínimo", v.xmin);
    texto("Xmáximo", v.xmax);
    texto("Ymínimo", v.ymin);
    texto("Ymáximo", v.ymax);
    texto("MaxIterações", QByteArray::number(v.n).constData());
    auto* desenhar = pagina->findChild<QPushButton*>(QStringLiteral("DesenharMandelbrot"));
    for (auto _ : estado)
        desenhar->click();
    lumerina::FecharLumerina();
}
BENCHMARK(PaginaInteira)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

}  // namespace
