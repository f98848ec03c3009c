// Plotting a whole 628 x 628 picture column by column through the picture control, with a
// yield after every column, against the same pixels written into a bare QImage.

#include "frame/ControloImagem.h"
#include "frame/Plataforma.h"

#include <QImage>

#include <benchmark/benchmark.h>

namespace {

constexpr int kLado = 628;

inline QRgb Cor(int i, int j) { return 0xFF000000u | static_cast<QRgb>((i * 2654435761u) ^ (j * 40503u)); }

void ImagemNua(benchmark::State& estado)
{
    QImage imagem(kLado, kLado, QImage::Format_RGB32);
    for (auto _ : estado) {
        for (int i = 0; i <= kLado; ++i) {
            if (i >= kLado)
                continue;
            for (int j = 0; j <= kLado; ++j) {
                const int y = kLado - j;
                if (y >= 0 && y < kLado)
                    reinterpret_cast<QRgb*>(imagem.scanLine(y))[i] = Cor(i, j);
            }
        }
        benchmark::DoNotOptimize(imagem.constBits());
    }
}
BENCHMARK(ImagemNua)->Unit(benchmark::kMillisecond);

void ControloImagemComCedencias(benchmark::State& estado)
{
    lumerina::ControloImagem imagem(nullptr, kLado, kLado);
    imagem.show();
    for (auto _ : estado) {
        for (int i = 0; i <= kLado; ++i) {
            if (i < kLado) {
                for (int j = 0; j <= kLado; ++j) {
                    const int y = kLado - j;
                    if (y >= 0 && y < kLado)
                        imagem.Linha(y)[i] = Cor(i, j);
                }
                imagem.Sujar(QRect(i, 0, 1, kLado));
            }
            lumerina::Sistema().Ceder();
        }
        imagem.MostrarPendente();
        benchmark::DoNotOptimize(imagem.Imagem().constBits());
    }
}
BENCHMARK(ControloImagemComCedencias)->Unit(benchmark::kMillisecond);

// 10^6 single points through Pixel(), a yield after every 629.
void PixeisAUmEUm(benchmark::State& estado)
{
    lumerina::ControloImagem imagem(nullptr, kLado, kLado);
    imagem.show();
    for (auto _ : estado) {
        for (int k = 0; k < 1'000'000; ++k) {
            imagem.Pixel(k % kLado, (k / kLado) % kLado, Cor(k, 0));
            if (k % 629 == 628)
                lumerina::Sistema().Ceder();
        }
        imagem.MostrarPendente();
    }
}
BENCHMARK(PixeisAUmEUm)->Unit(benchmark::kMillisecond);

}  // namespace
