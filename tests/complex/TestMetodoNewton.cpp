// Newton's method for zⁿ − 1: the complex helpers and their guard worked out by hand, step
// counts of points whose orbits are known, the grid's loops, the inversion, the colourings,
// and the vector column against the plain loop, pixel for pixel.

#include "complex/MetodoNewton.h"
#include "support/Instrucoes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace lumerina {
namespace {

TEST(MetodoNewton, DivisaoComplexaDesviaCadaParteNulaDoDivisor)
{
    struct Caso { const char* nome; double a, b, c, d, re, im; };
    const Caso casos[] = {
        {"(1 + 2i)/(3 + 4i) = (11 + 2i)/25", 1, 2, 3, 4, 0.44, 0.08},
        // 1/(0.001 + 0.001i) = (0.001 − 0.001i)/(2·10⁻⁶)
        {"zero divisor", 1, 0, 0, 0, 500, -500},
        {"negative zeros are zeros", 1, 0, -0.0, -0.0, 500, -500},
        // 2/(2i) would be −i; the real part 0 becomes 0.001.
        {"c = 0 only", 2, 0, 0, 2, 0.002 / 4.000001, -4 / 4.000001},
        // 3/3 would be 1; the imaginary part 0 becomes 0.001.
        {"d = 0 only", 3, 0, 3, 0, 9 / 9.000001, -0.003 / 9.000001},
        {"zero over zero", 0, 0, 0, 0, 0, 0},
    };
    for (const Caso& c : casos) {
        const Complexo r = DivisaoComplexa(c.a, c.b, c.c, c.d);
        EXPECT_DOUBLE_EQ(r.re, c.re) << c.nome;
        EXPECT_DOUBLE_EQ(r.im, c.im) << c.nome;
    }
}

TEST(MetodoNewton, PotenciaComplexaPorProdutosRepetidos)
{
    struct Caso { double x, y; int p; double re, im; };
    const Caso casos[] = {
        {1, 1, 1, 1, 1},   {1, 1, 2, 0, 2},     {1, 1, 3, -2, 2},  {0, 1, 4, 1, 0},
        {2, 0, 10, 1024, 0}, {0.5, 0, 3, 0.125, 0}, {-1, 1, 8, 16, 0}, {3, -2, 0, 3, -2},
    };
    for (const Caso& c : casos) {
        const Complexo r = PotenciaComplexa(c.x, c.y, c.p);
        EXPECT_EQ(r.re, c.re) << c.x << "+" << c.y << "i to the " << c.p;
        EXPECT_EQ(r.im, c.im) << c.x << "+" << c.y << "i to the " << c.p;
    }
}

TEST(MetodoNewton, PassoNewtonComAGuarda)
{
    struct Caso { const char* nome; double x, y; int n; double re, im; };
    const Caso casos[] = {
        // z/2 + 1/(2z) at 1 + i: (1 + i)/2 + (1 − i)/4
        {"z^2 at 1+i", 1, 1, 2, 0.75, 0.25},
        // (2·(−2 + 2i) + 1)/(3·2i) = (−3 + 4i)/(6i) would be 2/3 + i/2, but the divisor's
        // real part 0 becomes 0.001: (−3 + 4i)/(0.001 + 6i).
        {"z^3 at 1+i", 1, 1, 3, 23.997 / 36.000001, 18.004 / 36.000001},
        // A real point meets the guard: 3/(3 + 0.001i), so the root 1 itself moves a little.
        {"z^3 at the root 1", 1, 0, 3, 9 / 9.000001, -0.003 / 9.000001},
        // i² = −1, so the numerator (−1 + 1, 0) is 0: the step lands exactly on 0 ...
        {"z^2 at i", 0, 1, 2, 0, 0},
        // ... and from 0 the zero divisor 0 + 0i becomes 0.001 + 0.001i: 1/(0.001 + 0.001i).
        {"z^2 at 0", 0, 0, 2, 500, -500},
        {"z^7 at 0", 0, 0, 7, 500, -500},
    };
    for (const Caso& c : casos) {
        const Complexo r = PassoNewton(c.x, c.y, c.n);
        EXPECT_DOUBLE_EQ(r.re, c.re) << c.nome;
        EXPECT_DOUBLE_EQ(r.im, c.im) << c.nome;
    }
}

TEST(MetodoNewton, UmPontoQueCaiEmZeroSegueAteUmaRaiz)
{
    // From i the first step lands on 0 and the second is thrown to 500 − 500i; from there
    // z <- (z + 1/z)/2 halves the distance to 1 until it settles on the root 1.
    double x = 0, y = 1;
    for (int s = 0; s < 40; ++s) {
        const Complexo z = PassoNewton(x, y, 2);
        x = z.re;
        y = z.im;
        ASSERT_TRUE(std::isfinite(x) && std::isfinite(y)) << "step " << s + 1;
    }
    // Near the root the guard keeps nudging the iterate by about 10⁻⁷ whenever a part of the
    // divisor comes out exactly 0.
    EXPECT_NEAR(x, 1, 1e-6);
    EXPECT_NEAR(y, 0, 1e-6);
    const int s = PassosNewton(0, 1, 2);
    EXPECT_GT(s, 10);  // 707 from the root after two steps: at least 9 halvings
    EXPECT_LT(s, kPassosNewton);
}

TEST(MetodoNewton, PassosDePontosConhecidos)
{
    struct Caso { const char* nome; double x, y; int n, s; };
    const double enorme = 3e38;  // about the largest limit a field can hold
    const Caso casos[] = {
        // 0.99999989 − 0.00033i: both parts moved by less than 0.001.
        {"the root 1 of z^3", 1, 0, 3, 1},
        // 2 -> 1.25 -> 1.025 -> 1.0003049 -> 1.00000005: the last move is 0.0003.
        {"2 under z^2", 2, 0, 2, 4},
        // z <- (z + 1/z)/2 about halves a large z: after 50 steps 1e20 is still near 9e4.
        {"1e20 under z^2", 1e20, 0, 2, kPassosNewton},
        // z <- 11z/12 + 1/(12 z¹¹): after 50 steps 100 is still about 1.3, moving by 0.1.
        {"100 under z^12", 100, 0, 12, kPassosNewton},
        // z¹² overflows; the iterate is then not a number, and never settles.
        {"3e38 under z^12", enorme, enorme, 12, kPassosNewton},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(PassosNewton(c.x, c.y, c.n), c.s) << c.nome;
}

TEST(MetodoNewton, InversaoSemSomarOCentro)
{
    struct Caso { const char* nome; InversaoNewton inv; double x, y; bool usado; double re, im; };
    const Caso casos[] = {
        // 2/conj((2 + 3i) − (1 + i)) = 2/(1 − 2i) = 2(1 + 2i)/5
        {"k = 2 about 1 + i", {2, 1, 1}, 2, 3, true, 0.4, 0.8},
        // 1/conj(2i) = 1/(−2i) = i/2: the inversion in the unit circle keeps the angle.
        {"unit circle", {1, 0, 0}, 0, 2, true, 0, 0.5},
        {"k = -1 about -1", {-1, -1, 0}, 1, 0, true, -0.5, 0},
        {"on the centre", {3, 0.25, -0.5}, 0.25, -0.5, false, 0, 0},
    };
    for (const Caso& c : casos) {
        Complexo z{-7, -7};
        EXPECT_EQ(InicioInvertido(c.inv, c.x, c.y, z), c.usado) << c.nome;
        if (c.usado) {
            EXPECT_DOUBLE_EQ(z.re, c.re) << c.nome;
            EXPECT_DOUBLE_EQ(z.im, c.im) << c.nome;
        }
    }
}

TEST(MetodoNewton, EixoAteOndeOsPassosChegam)
{
    const double inf = std::numeric_limits<double>::infinity();
    struct Caso { const char* nome; double inicio, fim, passo; std::vector<double> valores; };
    const Caso casos[] = {
        {"both ends", 0, 1, 0.25, {0, 0.25, 0.5, 0.75, 1}},
        {"stops short of the end", 0, 1, 0.375, {0, 0.375, 0.75}},
        {"counts down", 1, 0, -0.25, {1, 0.75, 0.5, 0.25, 0}},
        {"a single value", 2, 2, 0.5, {2}},
        {"start past the end", 1, 0, 0.25, {}},
        {"zero step", 2, 2, 0, {}},
        {"a step that does not move", 1e20, 2e20, 1, {}},
        {"end beyond single precision", 0, inf, inf, {}},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(EixoNewton(c.inicio, c.fim, c.passo, 100), c.valores) << c.nome;
    EXPECT_EQ(EixoNewton(0, 10, 1, 4), (std::vector<double>{0, 1, 2, 3}));
}

TEST(MetodoNewton, GrelhaCaiNosPixeisPelaEscalaDoMundo)
{
    // The default view: x and y from −3 to 3 in steps of 6/628, on a 628 x 628 picture whose
    // scale runs from (Xmin, Ymax) at the top left to (Xmax, Ymin) at the bottom right.
    const GrelhaNewton g = CriarGrelhaNewton(-3, 3, -3, 3, 628, 628);
    ASSERT_GE(g.xs.size(), 628u);
    ASSERT_LE(g.xs.size(), 629u);
    EXPECT_EQ(g.xs.front(), -3.0);
    EXPECT_LE(g.xs.back(), 3.0);
    for (std::size_t i = 0; i < g.xs.size(); ++i)
        EXPECT_EQ(std::lround((g.xs[i] + 3) * (628 / 6.0)), long(i)) << "column " << i;
    for (std::size_t j = 0; j < g.ys.size(); ++j)
        EXPECT_EQ(std::lround((3 - g.ys[j]) * (628 / 6.0)), 628 - long(j)) << "row " << j;

    // Single-precision limits: 0.1 is 0.100000001490116…, and the step is a tenth of it.
    const GrelhaNewton decimo = CriarGrelhaNewton(0, 0.1f, 0, 1, 10, 4);
    EXPECT_EQ(decimo.xs[1], double(0.1f) / 10);
    EXPECT_EQ(decimo.ys, (std::vector<double>{0, 0.25, 0.5, 0.75, 1}));
}

// Every point of a few views for degrees 2, 3, 5 and 8, plain and inverted, with both lane
// widths, against the plain loop: start point (x, y), or k·(x − a)/q, k·(y − b)/q.
TEST(MetodoNewton, CaminhoRapidoIgualAoCicloSimples)
{
    struct Vista { const char* nome; float xmin, xmax, ymin, ymax; double W, H; };
    const Vista vistas[] = {
        {"default", -3, 3, -3, 3, 96, 96},
        {"grid through 0 and the axes", -3, 3, -3, 3, 6, 12},
        {"basin boundary", -0.62f, -0.58f, 0.33f, 0.37f, 70, 61},
        {"far out", -1e6f, 1e6f, -1e6f, 1e6f, 40, 40},
    };
    const struct { const char* nome; InversaoNewton inv; } inversoes[] = {
        {"unit circle", {1, 0, 0}},
        {"k = 2.5 about 0.5 - 0.25i", {2.5, 0.5, -0.25}},
    };
    const std::vector<InstrucoesVectoriais> instrucoes = Instrucoes();
    for (const Vista& v : vistas) {
        const GrelhaNewton g = CriarGrelhaNewton(v.xmin, v.xmax, v.ymin, v.ymax, v.W, v.H);
        for (const int n : {2, 3, 5, 8}) {
            for (int modo = -1; modo < 2; ++modo) {
                const InversaoNewton* inv = modo < 0 ? nullptr : &inversoes[modo].inv;
                std::vector<int> diferentes(instrucoes.size());
                for (const double x : g.xs) {
                    std::vector<int> referencia(g.ys.size());
                    for (std::size_t j = 0; j < g.ys.size(); ++j) {
                        double sx = x, sy = g.ys[j];
                        if (inv) {
                            const double q = (x - inv->a) * (x - inv->a) +
                                             (g.ys[j] - inv->b) * (g.ys[j] - inv->b);
                            if (q == 0)
                                continue;
                            sx = inv->k * (x - inv->a) / q;
                            sy = inv->k * (g.ys[j] - inv->b) / q;
                        }
                        referencia[j] = PassosNewton(sx, sy, n);
                    }
                    for (std::size_t k = 0; k < instrucoes.size(); ++k) {
                        std::vector<int> rapida(g.ys.size(), -1);
                        ColunaNewton(x, g.ys.data(), int(g.ys.size()), n, inv, rapida.data(),
                                     instrucoes[k]);
                        for (std::size_t j = 0; j < g.ys.size(); ++j)
                            diferentes[k] += rapida[j] != referencia[j];
                    }
                }
                for (std::size_t k = 0; k < instrucoes.size(); ++k)
                    EXPECT_EQ(diferentes[k], 0)
                        << v.nome << ", degree " << n << ", "
                        << (inv ? inversoes[modo].nome : "plain") << ", lanes "
                        << int(instrucoes[k]);
            }
        }
    }
}

// Large degrees: most powers overflow to no number or fall to 0 long before the last product,
// and the vector path stops multiplying once all its running lanes are there.
TEST(MetodoNewton, GrausAltosIguaisAoCicloSimples)
{
    struct Vista { float xmin, xmax, ymin, ymax; double lado; };
    const Vista vistas[] = {{-3, 3, -3, 3, 12}, {0.9f, 1.1f, -0.1f, 0.1f, 12}, {-1, 1, -1, 1, 9}};
    for (const Vista& v : vistas) {
        const GrelhaNewton g = CriarGrelhaNewton(v.xmin, v.xmax, v.ymin, v.ymax, v.lado, v.lado);
        for (const int n : {40, 300}) {
            for (const InstrucoesVectoriais instrucoes : Instrucoes()) {
                int diferentes = 0;
                for (const double x : g.xs) {
                    std::vector<int> rapida(g.ys.size());
                    ColunaNewton(x, g.ys.data(), int(g.ys.size()), n, nullptr, rapida.data(),
                                 instrucoes);
                    for (std::size_t j = 0; j < g.ys.size(); ++j)
                        diferentes += rapida[j] != PassosNewton(x, g.ys[j], n);
                }
                EXPECT_EQ(diferentes, 0) << "view from " << v.xmin << ", degree " << n
                                         << ", lanes " << int(instrucoes);
            }
        }
    }
}

TEST(MetodoNewton, VinteColoracoes)
{
    using enum CorNewton;
    struct Caso { CorNewton cor; int s, r, g, b; const char* porque; };
    const Caso casos[] = {
        // Palettes: entry s, s + 20 or s + 40, here always on one of the table's key rows.
        {Fogo, 32, 252, 0, 0, "Fogo entry 32"},
        {Fogo1, 12, 252, 0, 0, "Fogo entry 12 + 20"},
        {Fogo2, 24, 252, 252, 0, "Fogo entry 24 + 40 = 64"},
        {Azul, 32, 0, 0, 200, "Azul entry 32"},
        {Azul1, 28, 0, 100, 224, "Azul entry 48"},
        {Azul2, 22, 0, 200, 252, "Azul entry 62"},
        {Vermelho, 20, 199, 0, 183, "Vermelho entry 20"},
        {Vermelho1, 22, 243, 23, 116, "Vermelho entry 42"},
        {Vermelho2, 23, 255, 73, 54, "Vermelho entry 63"},
        {Multicor, 12, 91, 255, 255, "Multicor entry 12"},
        {Multicolor1, 18, 128, 255, 0, "Multicor entry 38"},
        {Multicolor2, 11, 255, 0, 0, "Multicor entry 51"},
        {Roxo, 9, 126, 0, 157, "Roxo entry 9"},
        {Roxo1, 6, 103, 0, 255, "Roxo entry 26"},
        {Roxo2, 30, 0, 252, 255, "Roxo entry 70"},
        {Roxo2, 50, 0, 0, 0, "Roxo entry 90 is not a key row: checked below"},
        // Arithmetic colourings, modulo 255 (not 256).
        {Cor1, 1, 30, 10, 50, "30, 10, 50"},
        {Cor1, 50, 225, 245, 205, "1500, 500, 2500 mod 255"},
        {Cor2, 13, 5, 5, 5, "260 mod 255"},
        {Cor2, 50, 235, 235, 235, "1000 mod 255"},
        {Cor3, 3, 45, 195, 90, "300, 450, 600 mod 255"},
        {Cor3, 51, 0, 0, 0, "5100, 7650, 10200 are multiples of 255"},
        {Cor4, 5, 250, 245, 240, "250, 500, 750 mod 255"},
        {Cor4, 17, 85, 170, 0, "850, 1700, 2550 mod 255"},
        // The 16 colours: entry s mod 16.
        {Cor5, 1, 0, 0, 128, "blue"},
        {Cor5, 14, 255, 255, 0, "yellow"},
        {Cor5, 16, 0, 0, 0, "black"},
        {Cor5, 50, 0, 128, 0, "entry 2, green: the colour of a point that never settles"},
    };
    for (const Caso& c : casos) {
        EsquemaCores esquema{};
        PreencherTabelaNewton(TabelaDaCor(c.cor), esquema);
        if (c.cor == Roxo2 && c.s == 50) {
            // Entry 90 lies between Roxo's key rows 85 (19, 255, 0) and 98 (105, 255, 0).
            const Cor cor = CorDosPassos(c.cor, c.s, esquema);
            EXPECT_NEAR(double((cor >> 16) & 255), 19 + (105 - 19) * 5 / 13.0, 4.5);
            EXPECT_EQ(cor & 0xFFFF, 0xFF00u);
            continue;
        }
        EXPECT_EQ(CorDosPassos(c.cor, c.s, esquema), CorRGB(c.r, c.g, c.b)) << c.porque;
    }
}

}  // namespace
}  // namespace lumerina
