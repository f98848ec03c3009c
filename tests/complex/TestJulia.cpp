// Julia kernels: the lagged escape count worked out by hand, the vector path against the plain
// loop, the transcendental families, the colour rules and the inverse iteration.

#include "complex/Julia.h"
#include "support/Instrucoes.h"
#include "interp/clsEquation.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <vector>

namespace lumerina {
namespace {

// The count of the single start point x0 + i·y0: column 0, row 0 of a view starting there.
int Contagem(double x0, double y0, double C, double D, int N,
             InstrucoesVectoriais instrucoes = MelhoresInstrucoes())
{
    const VistaJulia vista{x0, x0 + 1, y0, y0 + 1, 2, 2};
    std::vector<int> n(3, -1);
    ColunaJulia(vista, 0, C, D, N, n.data(), instrucoes);
    return n[0];
}

int Transcendente(FamiliaTranscendente f, double x0, double y0, double C, double D, int passos)
{
    const VistaJulia vista{x0, x0 + 1, y0, y0 + 1, 2, 2};
    std::vector<int> n(3, -1);
    ColunaTranscendente(f, vista, 0, C, D, passos, n.data());
    return n[0];
}

TEST(Julia, ContagemAtrasadaUmPasso)
{
    // Orbits worked by hand. "m" is the first k with |z_k|² ≥ 4; the lagged count is 0 when
    // m = 0 and m + 1 otherwise, capped by N.
    struct Caso { double x0, y0, C, D; int N, n; const char* orbita; };
    const Caso casos[] = {
        {0, 0, 0, 0, 150, 150, "0 stays 0"},
        {3, 0, 0, 0, 150, 0, "|z0|² = 9: m = 0"},
        {2, 0, 0, 0, 150, 0, "|z0|² = 4 is not below 4"},
        {0, -2, 0, 0, 150, 0, "|z0|² = 4 on the imaginary axis"},
        {1.5, 0, 0, 0, 150, 2, "1.5 -> 2.25: m = 1"},
        {0, 1.5, 0, 0, 150, 2, "1.5i -> -2.25: m = 1"},
        {0, 0, 1, 0, 150, 3, "0 -> 1 -> 2: m = 2"},
        {0, 0, 1, 0, 2, 2, "the same, capped by N = 2"},
        {0, 0, 1, 0, 3, 3, "capped at N = 3: an escaping point counts as bounded"},
        {0, 0, 1, 0, 4, 3, "N = 4 shows the escape"},
        {1, 1, 0, 0, 150, 2, "1+i -> 2i (the new y from the old x): m = 1"},
        {0, 0, 0, 1, 150, 150, "0 -> i -> -1+i -> -i -> -1+i"},
        {0, 0, -2, 0, 150, 2, "0 -> -2, on the set, but |-2|² = 4 is not below 4: m = 1"},
        {0.5, 0.5, 0, 0, 150, 150, "|z| < 1 falls to 0"},
        {5, 5, 1, 1, 0, 0, "N = 0: no step"},
        {0, 0, 0, 0, 0, 0, "N = 0: no step, inside"},
    };
    for (const InstrucoesVectoriais ins : Instrucoes())
        for (const Caso& c : casos)
            EXPECT_EQ(Contagem(c.x0, c.y0, c.C, c.D, c.N, ins), c.n)
                << c.orbita << ", instruction set " << int(ins);
}

TEST(Julia, LimitesDoCiclo)
{
    // "n < N" and "step = 1 to N" for an N the checks would refuse but a drawing may still use.
    struct Caso { double N; int contagem, passos; };
    const Caso casos[] = {
        {150, 150, 150}, {0, 0, 0}, {2.5, 3, 2}, {-3, 0, 0}, {-0.5, 0, 0}, {1e12, INT_MAX, INT_MAX},
    };
    for (const Caso& c : casos) {
        EXPECT_EQ(LimiteContagem(c.N), c.contagem) << c.N;
        EXPECT_EQ(LimitePassos(c.N), c.passos) << c.N;
    }
    EXPECT_FALSE(Atingiu(3, 2.5));
    EXPECT_TRUE(Atingiu(0, 0.0));
}

TEST(Julia, PixeisDeXminAteWInclusiveComYmaxDuplo)
{
    const VistaJulia vista{-1.5, 1.5, -1.5, 1.5, 628, 628};
    EXPECT_EQ(ColunaX(vista, 0), -1.5);
    EXPECT_EQ(ColunaX(vista, 627), 1.5);  // column W − 1 is Xmax
    EXPECT_GT(ColunaX(vista, 628), 1.5);  // column W lies beyond
    EXPECT_EQ(LinhaY(vista, 627), 1.5);
    // Ymax stays a double here: 0.1 is not widened from a float.
    const VistaJulia decimo{0, 1, 0, 0.1, 2, 2};
    EXPECT_EQ(LinhaY(decimo, 1), 0.1);

    // Rows 0..H of the column x = 0, k = 0, at H = 4: y0 = 0, 1, 2, 3, 4 (larger j higher).
    const VistaJulia coluna{0, 1, 0, 3, 2, 4};
    std::vector<int> n(5);
    ColunaJulia(coluna, 0, 0, 0, 100, n.data());
    EXPECT_EQ(n, (std::vector<int>{100, 100, 0, 0, 0}));
}

// The loop as written, point by point, with its own mapping.
int Referencia(const VistaJulia& v, int i, int j, double C, double D, int N)
{
    double x = v.xmin + i * (v.xmax - v.xmin) / (v.W - 1);
    double y = v.ymin + j * (v.ymax - v.ymin) / (v.H - 1);
    double sx = x * x, sy = y * y;
    int n = 0;
    while (sx + sy < 4 && n < N) {
        sx = x * x;
        sy = y * y;
        y = 2 * x * y + D;
        x = sx - sy + C;
        ++n;
    }
    return n;
}

TEST(Julia, CaminhoRapidoIgualAoCicloSimples)
{
    struct Vista { const char* nome; VistaJulia vista; double C, D; int N; };
    const Vista vistas[] = {
        {"default", {-1.5, 1.5, -1.5, 1.5, 157, 157}, -0.48, -0.53, 150},
        {"dendrite", {-1.5, 1.5, -1.5, 1.5, 120, 99}, 0, 1, 256},
        {"boundary zoom", {0.3012, 0.3022, 0.5561, 0.5571, 80, 80}, -0.48, -0.53, 256},
        {"Douady rabbit rim", {-0.1, 0.1, 0.75, 0.95, 90, 61}, -0.123, 0.745, 200},
        {"San Marco", {-2, 2, -2, 2, 101, 103}, -0.75, 0, 256},
        {"dust", {-2, 2, -2, 2, 70, 70}, 0.36, 0.1, 150},
        {"N = 1", {-2, 2, -2, 2, 40, 40}, -0.48, -0.53, 1},
        {"relation page", {-1.7, 1.7, -1.7, 1.7, 111, 111}, 0.333, -0.5, 150},
        // Symmetric windows where rounding leaves only some columns and rows exact mirrors.
        {"default, even side", {-1.5, 1.5, -1.5, 1.5, 200, 200}, -0.48, -0.53, 150},
        {"odd side, x = 0 column", {-2, 2, -2, 2, 101, 101}, 0.285, 0.01, 256},
        {"symmetric in x only", {-1.5, 1.5, -1, 1.3, 90, 77}, -0.8, 0.156, 200},
    };
    for (const Vista& v : vistas) {
        for (const InstrucoesVectoriais ins : Instrucoes()) {
            // Column by column, and as a whole picture that reuses mirrored points.
            int diferentes = 0, diferentesImagem = 0;
            std::vector<int> rapida(v.vista.H + 1), imagem(v.vista.H + 1);
            ImagemJulia toda(v.vista, v.C, v.D, v.N, ins);
            for (int i = 0; i <= int(v.vista.W); ++i) {
                ColunaJulia(v.vista, i, v.C, v.D, v.N, rapida.data(), ins);
                toda.Coluna(i, imagem.data());
                for (int j = 0; j <= v.vista.H; ++j) {
                    const int n = Referencia(v.vista, i, j, v.C, v.D, v.N);
                    diferentes += rapida[j] != n;
                    diferentesImagem += imagem[j] != n;
                }
            }
            EXPECT_EQ(diferentes, 0) << v.nome << ", instruction set " << int(ins);
            EXPECT_EQ(diferentesImagem, 0) << v.nome << ", instruction set " << int(ins);
        }
    }
}

TEST(Julia, FamiliasTranscendentes)
{
    using enum FamiliaTranscendente;
    struct Caso { FamiliaTranscendente f; double x0, y0, C, D; int passos, n; const char* porque; };
    const Caso casos[] = {
        {Seno, 0, 0, 1, 0.2, 50, 50, "sin 0 = 0: never escapes, n = N"},
        {Seno, 0, 3, 1, 0, 50, 1, "k sin(3i) = i sinh 3 = 10.018i"},
        {Seno, 0, 2.99, 1, 0, 50, 2, "sinh 2.99 = 9.92, then sinh 9.92 is huge"},
        {Seno, 0, 3, 0, 1, 50, 50, "k = i turns i sinh 3 into a real number"},
        {Seno, 0, 3, 1, 0, 0, 0, "N = 0: no step"},
        {Coseno, 0, 0, 0, 1, 50, 5, "0 -> i -> i cosh 1 -> 2.45i -> 5.82i -> 168i"},
        {Coseno, 0, 0, 0, 1, 4, 4, "the same, stopped by N = 4"},
        {Coseno, 0, 40, 1, 0, 50, 50, "cos(40i) = cosh 40 is real: |y| stays 0"},
        {Coseno, 2, 0, 1, 0, 50, 50, "real start, real k: stays on the real axis"},
        {Exp, 0, 0, 3, 0, 50, 2, "0 -> 3 -> 3e^3 = 60.3"},
        {Exp, 0, 0, 1, 0, 50, 4, "0 -> 1 -> e -> e^e = 15.15 -> e^15.15"},
        {Exp, 0, 0, 1, 0, 3, 0, "the same, stopped before it escapes: 0"},
        {Exp, 0, 0, 0.3, 0, 50, 0, "0.3 e^x has an attracting fixed point: never escapes"},
        {Exp, 25, 0, -1, 0, 50, 0, "x -> -e^25 and then near 0: a large negative x is not an escape"},
        {Exp, 0, 3.14159265358979, 3, 0, 50, 4, "3e^(i pi) = -3 -> 3e^-3 = 0.149 -> 3.48 -> 97.5"},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(Transcendente(c.f, c.x0, c.y0, c.C, c.D, c.passos), c.n) << c.porque;
}

TEST(Julia, CoresCruzadasEFamilias)
{
    using enum FamiliaJulia;
    using enum ColoracaoJulia;
    const Cor A = CorRGB(255, 255, 0), B = CorRGB(0, 0, 255);
    struct Caso { FamiliaJulia f; ColoracaoJulia c; int n; double N; int i, j; Cor cor; const char* porque; };
    const Caso casos[] = {
        {Normal, SemLinhas, 150, 150, 0, 0, B, "bounded: colour B, chosen with \"Cor exterior\""},
        {Normal, SemLinhas, 7, 150, 0, 0, A, "escaping: colour A, chosen with \"Cor interior\""},
        {Normal, SemLinhas, 3, 2.5, 0, 0, A, "N = 2.5 is never reached"},
        {Normal, LinhasTipo2, 150, 150, 0, 0, Paleta16[9], "bounded: light blue, not 150 mod 16"},
        {Normal, LinhasTipo2, 17, 150, 0, 0, Paleta16[1], "17 mod 16"},
        {Normal, LinhasTipo2, 0, 150, 0, 0, Paleta16[0], "outside radius 2 at once"},
        {Normal, LinhasTipo2, 0, 0, 0, 0, Paleta16[9], "N = 0: every point bounded"},
        {Normal, Nenhuma, 5, 150, 0, 0, kSemCor, "no option: nothing drawn"},
        {Seno, LinhasTipo2, 48, 48, 0, 0, Paleta16[0], "bounded too by n mod 16"},
        {Coseno, LinhasTipo2, 21, 50, 0, 0, Paleta16[5], "21 mod 16"},
        {Coseno, SemLinhas, 50, 50, 0, 0, B, "bounded: B"},
        {Seno, SemLinhas, 0, 0, 0, 0, B, "N = 0: bounded"},
        {Exp, LinhasTipo2, 0, 50, 3, 4, kSemCor, "never escaped: not drawn"},
        {Exp, SemLinhas, 0, 0, 3, 4, kSemCor, "N = 0: not drawn"},
        {Exp, SemLinhas, 16, 50, 3, 4, Paleta16[1], "step 16 mod 15"},
        {Exp, SemLinhas, 15, 50, 3, 4, Paleta16[0], "step 15 mod 15"},
        {Exp, LinhasTipo2, 1, 50, 5, 20, CorRGB(15, 2, 25), "|5-20|, |20-18|, 25"},
        {Exp, LinhasTipo2, 9, 50, 300, 10, CorRGB(35, 8, 55), "290, |10-18|, 310 mod 255"},
        {Exp, LinhasTipo2, 9, 50, 0, 0, CorRGB(0, 18, 0), "|0-18|"},
        {Exp, Nenhuma, 9, 50, 0, 0, kSemCor, "no option: nothing drawn"},
    };
    for (const Caso& c : casos) {
        // Row j of a column of H = j: only the wanted count matters.
        std::vector<int> n(c.j + 1, c.n);
        std::vector<Cor> cores(c.j + 1);
        CoresColunaJulia(c.f, c.c, n.data(), c.N, c.i, c.j, A, B, cores.data());
        EXPECT_EQ(cores[c.j], c.cor) << c.porque;
    }
    EXPECT_EQ(LinhaImagem(Normal, 628, 0), 628);
    EXPECT_EQ(LinhaImagem(Seno, 628, 628), 0);
    EXPECT_EQ(LinhaImagem(Exp, 628, 0), 627);
    EXPECT_EQ(LinhaImagem(Exp, 628, 628), -1);
}

int Pontos(double N)
{
    int quantos = 0;
    IteracaoInversa(-0.48, -0.53, N, [&](double, double) { ++quantos; });
    return quantos;
}

TEST(Julia, IteracaoInversaSaltaOs51Primeiros)
{
    SemearAleatorio(7);
    const struct { double N; int pontos; } casos[] = {
        {-1, 0}, {0, 0}, {50, 0}, {51, 1}, {52, 2}, {1000, 950}, {50000, 49950},
    };
    for (const auto& c : casos)
        EXPECT_EQ(Pontos(c.N), c.pontos) << "N = " << c.N;
}

TEST(Julia, IteracaoInversaCaiNoConjunto)
{
    // k = 0: the Julia set is the unit circle (a root's modulus does not depend on its angle).
    // k = -2: the segment [-2, 2].
    SemearAleatorio(11);
    double pior = 0;
    IteracaoInversa(0, 0, 2000, [&](double x, double y) {
        pior = std::max(pior, std::fabs(std::hypot(x, y) - 1));
    });
    EXPECT_LT(pior, 1e-9);
    double piorY = 0, piorX = 0;
    IteracaoInversa(-2, 0, 2000, [&](double x, double y) {
        piorY = std::max(piorY, std::fabs(y));
        piorX = std::max(piorX, std::fabs(x));
    });
    // p = 3.14159 turns each root by a few millionths of a radian; near -2 the square root
    // magnifies such an offset δ to about √δ, a few thousandths.
    EXPECT_LT(piorY, 1e-2);
    EXPECT_LE(piorX, 2 + 1e-2);
}

TEST(Julia, PassoInversoComP5DecimaisERamoAleatorio)
{
    SemearAleatorio(3);
    // From 1 with k = 0: the angle is 0, then p·m with p = 3.14159. So the imaginary part is
    // sin 3.14159 or sin 6.28318 (a few millionths), never the 1e-16 that pi would give.
    int ramos[3] = {0, 0, 0};
    for (int t = 0; t < 4000; ++t) {
        double x = 1, y = 0;
        PassoInverso(x, y, 0, 0);
        if (std::fabs(y - std::sin(3.14159)) < 1e-15 && std::fabs(x - std::cos(3.14159)) < 1e-15)
            ++ramos[1];
        else if (std::fabs(y - std::sin(6.28318)) < 1e-15 && std::fabs(x - std::cos(6.28318)) < 1e-15)
            ++ramos[2];
        else
            ++ramos[0];
    }
    EXPECT_EQ(ramos[0], 0);
    // Each branch with probability 1/2: 4000 draws stay within 2000 ± 200 (over 6 sigma).
    EXPECT_NEAR(ramos[1], 2000, 200);
    EXPECT_NEAR(ramos[2], 2000, 200);

    // A real part of 0 gives the angle p/2 even below the axis: -4i has the "roots" at
    // p/4 + p·m, that is ±(√2 + √2 i), not ±(√2 − √2 i).
    for (int t = 0; t < 20; ++t) {
        double x = 0, y = -4;
        PassoInverso(x, y, 0, 0);
        EXPECT_NEAR(x, y, 1e-4);
        EXPECT_NEAR(std::fabs(x), std::sqrt(2.0), 1e-4);
    }
    // A negative real part adds p to the arctangent: -4 (angle p) gives ±2i.
    double x = -4, y = 0;
    PassoInverso(x, y, 0, 0);
    EXPECT_NEAR(x, 0, 1e-4);
    EXPECT_NEAR(std::fabs(y), 2, 1e-9);
}

}  // namespace
}  // namespace lumerina
