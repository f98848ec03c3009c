// The Julia kernels over a whole picture (629 x 629 points: the loops run to W and H
// inclusive), and the Julia page end to end (checks, kernel, colours, picture, a yield per
// column), against plain loops of the same work in the same run; time per picture.

#include "app/Aplicacao.h"
#include "app/Paginas.h"
#include "complex/Julia.h"
#include "interp/clsEquation.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace lumerina {
namespace {

struct Caso {
    VistaJulia vista;
    double C, D;
    int N;
};

// The five families at their default windows and constants.
const Caso kNormal{{-1.5, 1.5, -1.5, 1.5, 628, 628}, -0.48, -0.53, 150};
const Caso kSeno{{-6.28, 6.28, -4.75, 4.75, 628, 628}, 1, 0.2, 50};
const Caso kCoseno{{-6.28, 6.28, -4.75, 4.75, 628, 628}, 0.9876, 0.9876, 50};
const Caso kExp{{-4, 4, -4, 3, 628, 628}, 3, 3, 50};

// The lagged loop as written, a point at a time.
void NormalSimples(const Caso& c, int i, int* n)
{
    const VistaJulia& v = c.vista;
    const double x0 = v.xmin + i * (v.xmax - v.xmin) / (v.W - 1);
    for (int j = 0; j <= v.H; ++j) {
        double x = x0, y = v.ymin + j * (v.ymax - v.ymin) / (v.H - 1);
        double sx = x * x, sy = y * y;
        int k = 0;
        while (sx + sy < 4 && k < c.N) {
            sx = x * x;
            sy = y * y;
            y = 2 * x * y + c.D;
            x = sx - sy + c.C;
            ++k;
        }
        n[j] = k;
    }
}

// k·sin z, k·cos z, k·exp z as written, calling the C library.
template <int Familia>
void TranscendenteSimples(const Caso& c, int i, int* n)
{
    const VistaJulia& v = c.vista;
    const double x0 = v.xmin + i * (v.xmax - v.xmin) / (v.W - 1);
    for (int j = 0; j <= v.H; ++j) {
        double x = x0, y = v.ymin + j * (v.ymax - v.ymin) / (v.H - 1);
        int k = 0;
        for (int passo = 1; passo <= c.N; ++passo) {
            if (Familia == 2) {
                const double e = std::exp(x), nx = e * (c.C * std::cos(y) - c.D * std::sin(y));
                y = e * (c.C * std::sin(y) + c.D * std::cos(y));
                x = nx;
                if (x > 20) {
                    k = passo;
                    break;
                }
                continue;
            }
            const double e1 = std::exp(y), e2 = std::exp(-y);
            const double a = (Familia == 0 ? std::sin(x) : std::cos(x)) * (e2 + e1) / 2;
            const double b = (Familia == 0 ? std::cos(x) : std::sin(x)) * (e1 - e2) / 2;
            x = Familia == 0 ? a * c.C - b * c.D : a * c.C + b * c.D;
            y = Familia == 0 ? b * c.C + a * c.D : a * c.D - b * c.C;
            k = passo;
            if (std::fabs(y) > 10)
                break;
        }
        n[j] = k;
    }
}

template <class F>
void Imagem(benchmark::State& estado, const Caso& c, F coluna)
{
    std::vector<int> n(c.vista.H + 1);
    for (auto _ : estado) {
        for (int i = 0; i <= int(c.vista.W); ++i) {
            coluna(c, i, n.data());
            benchmark::DoNotOptimize(n.data());
        }
        benchmark::ClobberMemory();
    }
}

void JuliaNormal(benchmark::State& s)
{
    Imagem(s, kNormal, [](const Caso& c, int i, int* n) {
        ColunaJulia(c.vista, i, c.C, c.D, c.N, n);
    });
}
void JuliaNormalSse2(benchmark::State& s)
{
    Imagem(s, kNormal, [](const Caso& c, int i, int* n) {
        ColunaJulia(c.vista, i, c.C, c.D, c.N, n, InstrucoesVectoriais::Sse2);
    });
}
void JuliaNormalCicloSimples(benchmark::State& s) { Imagem(s, kNormal, NormalSimples); }
// A whole picture, reusing the counts of mirrored start points.
void JuliaNormalImagem(benchmark::State& s)
{
    std::vector<int> n(kNormal.vista.H + 1);
    for (auto _ : s) {
        ImagemJulia imagem(kNormal.vista, kNormal.C, kNormal.D, kNormal.N);
        for (int i = 0; i <= int(kNormal.vista.W); ++i) {
            imagem.Coluna(i, n.data());
            benchmark::DoNotOptimize(n.data());
        }
        benchmark::ClobberMemory();
    }
}
BENCHMARK(JuliaNormal)->Unit(benchmark::kMillisecond);
BENCHMARK(JuliaNormalImagem)->Unit(benchmark::kMillisecond);
BENCHMARK(JuliaNormalSse2)->Unit(benchmark::kMillisecond);
BENCHMARK(JuliaNormalCicloSimples)->Unit(benchmark::kMillisecond);

template <FamiliaTranscendente F>
void Transcendente(benchmark::State& s, const Caso& caso)
{
    Imagem(s, caso, [](const Caso& c, int i, int* n) {
        ColunaTranscendente(F, c.vista, i, c.C, c.D, c.N, n);
    });
}
void JuliaSeno(benchmark::State& s) { Transcendente<FamiliaTranscendente::Seno>(s, kSeno); }
void JuliaCoseno(benchmark::State& s) { Transcendente<FamiliaTranscendente::Coseno>(s, kCoseno); }
void JuliaExp(benchmark::State& s) { Transcendente<FamiliaTranscendente::Exp>(s, kExp); }
void JuliaSenoCicloSimples(benchmark::State& s) { Imagem(s, kSeno, TranscendenteSimples<0>); }
void JuliaCosenoCicloSimples(benchmark::State& s) { Imagem(s, kCoseno, TranscendenteSimples<1>); }
void JuliaExpCicloSimples(benchmark::State& s) { Imagem(s, kExp, TranscendenteSimples<2>); }
BENCHMARK(JuliaSeno)->Unit(benchmark::kMillisecond);
BENCHMARK(JuliaSenoCicloSimples)->Unit(benchmark::kMillisecond);
BENCHMARK(JuliaCoseno)->Unit(benchmark::kMillisecond);
BENCHMARK(JuliaCosenoCicloSimples)->Unit(benchmark::kMillisecond);
BENCHMARK(JuliaExp)->Unit(benchmark::kMillisecond);
BENCHMARK(JuliaExpCicloSimples)->Unit(benchmark::kMillisecond);

// 50 000 backward steps, as the page's inverse iteration makes them.
void JuliaInversa(benchmark::State& s)
{
    SemearAleatorio(1);
    for (auto _ : s) {
        double soma = 0;
        IteracaoInversa(-0.48, -0.53, 50000, [&](double x, double y) { soma += x + y; });
        benchmark::DoNotOptimize(soma);
    }
}
BENCHMARK(JuliaInversa)->Unit(benchmark::kMillisecond);

// The page at each family's default window and k (the option writes them), N as stated.
void Pagina(benchmark::State& estado, const char* opcao, const char* n)
{
    QWidget* pagina = lumerina::Pagina(Form::Julia);
    pagina->show();
    pagina->findChild<QRadioButton*>(QString::fromUtf8(opcao))->click();
    pagina->findChild<QLineEdit*>(QStringLiteral("NumIterações"))->setText(QString::fromUtf8(n));
    if (std::string(opcao) == "IteraçãoNormal") {
        pagina->findChild<QLineEdit*>(QStringLiteral("ValorDeC"))->setText(QStringLiteral("-0.48"));
        pagina->findChild<QLineEdit*>(QStringLiteral("ValorDeD"))->setText(QStringLiteral("-0.53"));
    }
    auto* desenhar = pagina->findChild<QPushButton*>(QStringLiteral("Desenhar"));
    for (auto _ : estado)
        desenhar->click();
    FecharLumerina();
}
void PaginaJuliaNormal(benchmark::State& s) { Pagina(s, "IteraçãoNormal", "150"); }
void PaginaJuliaSeno(benchmark::State& s) { Pagina(s, "KapaSenoZ", "50"); }
void PaginaJuliaCoseno(benchmark::State& s) { Pagina(s, "KapaCosenoZ", "50"); }
void PaginaJuliaExp(benchmark::State& s) { Pagina(s, "KapaExpZ", "50"); }
void PaginaJuliaInversa(benchmark::State& s) { Pagina(s, "IteraçãoInversa", "50000"); }
BENCHMARK(PaginaJuliaNormal)->Unit(benchmark::kMillisecond);
BENCHMARK(PaginaJuliaSeno)->Unit(benchmark::kMillisecond);
BENCHMARK(PaginaJuliaCoseno)->Unit(benchmark::kMillisecond);
BENCHMARK(PaginaJuliaExp)->Unit(benchmark::kMillisecond);
BENCHMARK(PaginaJuliaInversa)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lumerina
