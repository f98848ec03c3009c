// Escape-time kernel: the pixel mapping and its quirks, escape counts worked out by hand, and
// the vector path against the plain loop, pixel for pixel.

#include "complex/TempoFuga.h"
#include "support/Instrucoes.h"

#include <gtest/gtest.h>

#include <vector>

namespace lumerina {
namespace {

using enum VarianteMandel;
constexpr VarianteMandel kVariantes[] = {Normal, Cubo, Quarta, Conj, ConjCubo, ConjQuarta};

std::vector<int> Coluna(VarianteMandel v, const VistaMundo& vista, int i, int N,
                        InstrucoesVectoriais instrucoes = MelhoresInstrucoes())
{
    std::vector<int> contagens(vista.H + 1, -1);
    ColunaMandelbrot(v, vista, i, N, contagens.data(), instrucoes);
    return contagens;
}

// The plain loop, point by point, with its own pixel mapping: z = 0, n = 0; while zx² + zy² < 4
// and n < N, one step of the variant, then n = n + 1. Powers are products, (x·x)·x and
// (x·x)·(x·x), as the kernel computes them.
int Referencia(VarianteMandel v, const VistaMundo& vista, int i, int j, int N)
{
    const double cx = vista.xmin + i * (vista.xmax - vista.xmin) / (vista.W - 1);
    const double cy = vista.ymin + j * (double(vista.ymax) - vista.ymin) / (vista.H - 1);
    double zx = 0, zy = 0;
    int n = 0;
    while (zx * zx + zy * zy < 4 && n < N) {
        const double x = zx, y = zy;
        const double x2 = x * x, y2 = y * y, x3 = x2 * x, y3 = y2 * y, x4 = x2 * x2, y4 = y2 * y2;
        switch (v) {
        case Normal: zx = x2 - y2 + cx, zy = 2 * x * y + cy; break;
        case Cubo: zx = x3 - 3 * x * y2 + cx, zy = 3 * x2 * y - y3 + cy; break;
        case Quarta: zx = x4 - 6 * x2 * y2 + y4 + cx, zy = 4 * x3 * y - 4 * x * y3 + cy; break;
        case Conj: zx = x2 - y2 + cx, zy = -2 * x * y + cy; break;
        case ConjCubo: zx = x3 - 3 * x * y2 + cx, zy = y3 - 3 * x2 * y + cy; break;
        case ConjQuarta: zx = x4 - 6 * x2 * y2 + y4 + cx, zy = 4 * x * y3 - 4 * x3 * y + cy; break;
        }
        ++n;
    }
    return n;
}

// The count of the single point c = cx + i·cy: column 0 and row 0 of a view starting there
// (cy + 1 must be a float).
int Contagem(VarianteMandel v, double cx, double cy, int N)
{
    const VistaMundo vista{cx, cx + 1, cy, float(cy + 1), 2, 2};
    return Coluna(v, vista, 0, N)[0];
}

TEST(TempoFuga, ContagensDePontosConhecidos)
{
    constexpr int N = 256;
    struct Caso { VarianteMandel v; double cx, cy; int n; const char* orbita; };
    const Caso casos[] = {
        {Normal, 0, 0, N, "0 -> 0"},
        {Normal, 1, 0, 2, "0 -> 1 -> 2, and |2|² = 4 is not below 4"},
        {Normal, 2, 0, 1, "0 -> 2"},
        {Normal, -2, 0, 1, "0 -> -2 stops at once, though -2 is in the set"},
        {Normal, -1, 0, N, "0 -> -1 -> 0"},
        {Normal, 0.5, 0, 5, "0 -> .5 -> .75 -> 1.0625 -> 1.62890625 -> 3.15..."},
        {Normal, 0, 1, N, "0 -> i -> -1+i -> -i -> -1+i"},
        {Conj, 0, 1, 3, "0 -> i -> -1+i -> 3i"},
        {Conj, -1, 0, N, "on the real axis the conjugate changes nothing"},
        {Cubo, 0, 1, N, "0 -> i -> 0"},
        {Cubo, -1, 0, 2, "0 -> -1 -> -2"},
        {ConjCubo, 0, 1, 2, "0 -> i -> 2i"},
        {Quarta, -1, 0, N, "0 -> -1 -> 0"},
        {Quarta, 0, 1, 3, "0 -> i -> 1+i -> -4+i"},
        {ConjQuarta, 0, 1, 3, "0 -> i -> 1+i -> -4+i"},
        {Quarta, 1, 0.5, 2, "0 -> 1+.5i -> .5625+2i"},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(Contagem(c.v, c.cx, c.cy, N), c.n) << c.orbita;

    // 1 + .5i under conj(z)^4: 0 -> 1+.5i -> .5625-i, still inside the circle of radius 2.
    EXPECT_GE(Contagem(ConjQuarta, 1, 0.5, N), 3);
    // The limit caps the count; with N = 0 the loop does not run at all.
    EXPECT_EQ(Contagem(Normal, 0.5, 0, 3), 3);
    EXPECT_EQ(Contagem(Normal, 0, 0, 1), 1);
    EXPECT_EQ(Contagem(Normal, 0, 0, 0), 0);
}

TEST(TempoFuga, ColunasDeXminComPassoSobreWMenosUm)
{
    const VistaMundo vista{-2, 1, -1, 1.0f, 628, 628};
    EXPECT_EQ(ColunaX(vista, 0), -2.0);
    EXPECT_EQ(ColunaX(vista, 209), -1.0);  // 209 · 3/627 = 1
    EXPECT_EQ(ColunaX(vista, 627), 1.0);   // column W − 1 is Xmax ...
    EXPECT_GT(ColunaX(vista, 628), 1.0);   // ... and column W, drawn too, lies beyond it

    // Columns 0..W of the row y = 0 at W = 4: c = -2, -1, 0, 1, 2.
    const VistaMundo pequena{-2, 1, 0, 1.0f, 4, 2};
    const int esperadas[] = {1, 256, 256, 2, 1};
    for (int i = 0; i <= 4; ++i)
        EXPECT_EQ(Coluna(Normal, pequena, i, 256)[0], esperadas[i]) << "column " << i;
}

TEST(TempoFuga, LinhasDeBaixoParaCimaComYmaxEmPrecisaoSimples)
{
    // Rows 0..H of the column x = 0 at H = 5: c = 0, i, 2i, 3i, 4i, 5i, larger j higher.
    const VistaMundo vista{0, 1, 0, 4.0f, 2, 5};
    EXPECT_EQ(Coluna(Normal, vista, 0, 100), (std::vector<int>{100, 100, 1, 1, 1, 1}));
    EXPECT_EQ(Coluna(Conj, vista, 0, 100), (std::vector<int>{100, 3, 1, 1, 1, 1}));

    // The top limit is a float: 0.1 arrives as 0.100000001490116119384765625.
    const VistaMundo decimo{0, 1, 0, 0.1f, 2, 2};
    EXPECT_EQ(LinhaY(decimo, 1), 0.100000001490116119384765625);
    EXPECT_EQ(LinhaY(decimo, 0), 0.0);
}

// Every pixel of every column of a few views, for all variants and both instruction sets.
TEST(TempoFuga, CaminhoRapidoIgualAoCicloSimples)
{
    struct Vista { const char* nome; VistaMundo vista; int N; };
    const Vista vistas[] = {
        {"initial", {-1.6, 0.6, -1.3, 1.3f, 120, 120}, 256},
        {"interior", {-0.2, 0.1, -0.1, 0.1f, 37, 41}, 256},
        {"cardioid cusp", {0.2499, 0.2501, -1e-4, 1e-4f, 80, 71}, 256},
        {"cardioid rim, 1/4 bulb", {0.2499, 0.2501, 0.4999, 0.5001f, 60, 60}, 200},
        {"cardioid rim, angle 1", {0.3741, 0.3743, 0.1933, 0.1935f, 60, 60}, 256},
        {"seahorse valley", {-0.7436, -0.7426, 0.131, 0.132f, 100, 77}, 150},
        {"period-2 bulb rim", {-0.8654, -0.8644, 0.2099, 0.2109f, 50, 50}, 256},
        // Boundary zooms where orbits are sensitive enough that evaluating a step in another
        // order (3·(x·y²) for (3·x)·y², say) changes some counts.
        {"z^3 boundary", {0.360527, 0.360727, 0.708446, 0.708646f, 100, 100}, 256},
        {"z^4 boundary", {0.136045, 0.136065, 0.788819, 0.788839f, 100, 100}, 256},
        {"conj z^4 boundary", {0.806765, 0.806785, 0.679528, 0.679548f, 100, 100}, 256},
        {"ymax not a float", {-2.1, 1.3, -0.7, 0.7f, 150, 149}, 40},
        {"wide", {-3, 3, -2.5, 2.5f, 140, 120}, 1},
    };
    const std::vector<InstrucoesVectoriais> instrucoes = Instrucoes();
    for (const Vista& v : vistas) {
        for (const VarianteMandel variante : kVariantes) {
            std::vector<int> diferentes(instrucoes.size());
            for (int i = 0; i <= int(v.vista.W); ++i) {
                std::vector<int> referencia(v.vista.H + 1);
                for (int j = 0; j <= v.vista.H; ++j)
                    referencia[j] = Referencia(variante, v.vista, i, j, v.N);
                for (std::size_t k = 0; k < instrucoes.size(); ++k) {
                    const std::vector<int> rapida =
                        Coluna(variante, v.vista, i, v.N, instrucoes[k]);
                    for (int j = 0; j <= v.vista.H; ++j)
                        diferentes[k] += rapida[j] != referencia[j];
                }
            }
            for (std::size_t k = 0; k < instrucoes.size(); ++k)
                EXPECT_EQ(diferentes[k], 0) << v.nome << ", variant " << int(variante)
                                            << ", instruction set " << int(instrucoes[k]);
        }
    }
}

}  // namespace
}  // namespace lumerina
