// The bare escape-time kernel over a whole picture (629 x 629 points, as the page's loops run
// to W and H inclusive), against the plain scalar loop at the same views: the time reported
// is per picture.

#include "complex/TempoFuga.h"
#include "frame/EsquemaCores.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace lumerina {
namespace {

struct Caso {
    const char* nome;
    VistaMundo vista;
    int N;
};

const VistaMundo kInicial{-1.6, 0.6, -1.3, 1.3f, 628, 628};
const Caso kCasos[] = {
    {"inicial/N150", kInicial, 150},
    {"inicial/N256", kInicial, 256},
    {"interior/N256", {-0.2, 0.1, -0.1, 0.1f, 628, 628}, 256},
};

// The loop as written for z² + c, one point at a time, no shortcut.
void ColunaSimples(const VistaMundo& v, int i, int N, int* contagens)
{
    const double cx = v.xmin + i * (v.xmax - v.xmin) / (v.W - 1);
    for (int j = 0; j <= v.H; ++j) {
        const double cy = v.ymin + j * (double(v.ymax) - v.ymin) / (v.H - 1);
        double zx = 0, zy = 0;
        int n = 0;
        while (zx * zx + zy * zy < 4 && n < N) {
            const double x = zx;
            zx = zx * zx - zy * zy + cx;
            zy = 2 * x * zy + cy;
            ++n;
        }
        contagens[j] = n;
    }
}

template <class FazerColuna>
void Imagem(benchmark::State& estado, const VistaMundo& vista, int N, FazerColuna coluna)
{
    std::vector<int> contagens(vista.H + 1);
    for (auto _ : estado) {
        for (int i = 0; i <= int(vista.W); ++i) {
            coluna(vista, i, N, contagens.data());
            benchmark::DoNotOptimize(contagens.data());
        }
        benchmark::ClobberMemory();
    }
}

const bool kRegistados = [] {
    const auto registar = [](const std::string& nome, auto funcao) {
        benchmark::RegisterBenchmark(nome.c_str(), funcao)->Unit(benchmark::kMillisecond);
    };
    for (const Caso& c : kCasos) {
        registar(std::string("TempoFuga/") + c.nome, [&c](benchmark::State& s) {
            Imagem(s, c.vista, c.N, [](const VistaMundo& v, int i, int N, int* contagens) {
                ColunaMandelbrot(VarianteMandel::Normal, v, i, N, contagens);
            });
        });
        registar(std::string("TempoFugaSse2/") + c.nome, [&c](benchmark::State& s) {
            Imagem(s, c.vista, c.N, [](const VistaMundo& v, int i, int N, int* contagens) {
                ColunaMandelbrot(VarianteMandel::Normal, v, i, N, contagens,
                                 InstrucoesVectoriais::Sse2);
            });
        });
        registar(std::string("CicloSimples/") + c.nome,
                 [&c](benchmark::State& s) { Imagem(s, c.vista, c.N, ColunaSimples); });
    }

    // The other sets at the initial view (no shortcut there: vector lanes only).
    const struct { const char* nome; VarianteMandel v; } variantes[] = {
        {"Cubo", VarianteMandel::Cubo},         {"Quarta", VarianteMandel::Quarta},
        {"Conj", VarianteMandel::Conj},         {"ConjCubo", VarianteMandel::ConjCubo},
        {"ConjQuarta", VarianteMandel::ConjQuarta},
    };
    for (const auto& variante : variantes) {
        registar(std::string("TempoFuga") + variante.nome + "/inicial/N256",
                 [v = variante.v](benchmark::State& s) {
                     Imagem(s, kInicial, 256, [v](const VistaMundo& vista, int i, int N, int* c) {
                         ColunaMandelbrot(v, vista, i, N, c);
                     });
                 });
    }

    // Turning the counts of a whole picture (the initial view) into colours, on top of the
    // kernel: a column at a time, and pixel by pixel.
    for (const bool porColuna : {true, false}) {
        registar(porColuna ? "CoresColuna/inicial/N256/Fogo" : "CorMandelbrot/inicial/N256/Fogo",
                 [porColuna](benchmark::State& s) {
            EsquemaCores fogo;
            PreencherFogo(fogo);
            const OpcoesCor opcoes{Coloracao::Paleta, &fogo, 0, 0};
            const int colunas = int(kInicial.W) + 1, linhas = kInicial.H + 1;
            std::vector<int> contagens(std::size_t(colunas) * linhas);
            for (int i = 0; i < colunas; ++i)
                ColunaMandelbrot(VarianteMandel::Normal, kInicial, i, 256, &contagens[i * linhas]);
            std::vector<Cor> cores(linhas);
            for (auto _ : s) {
                for (int i = 0; i < colunas; ++i) {
                    const int* coluna = &contagens[i * linhas];
                    if (porColuna) {
                        CoresColuna(opcoes, coluna, 256, i, kInicial.H, cores.data());
                    } else {
                        for (int j = 0; j < linhas; ++j)
                            cores[j] = CorMandelbrot(opcoes, coluna[j], 256, i, j);
                    }
                    benchmark::DoNotOptimize(cores.data());
                }
            }
        });
    }
    return true;
}();

}  // namespace
}  // namespace lumerina
