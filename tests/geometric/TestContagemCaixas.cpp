// Box counting and the self-similar figures: counts worked out from the grid, exact
// dimensions where the sizes are powers of two, and the classic figures against
// log N / log(1/r).

#include "geometric/ContagemCaixas.h"
#include "geometric/FigurasAutoSemelhantes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace lumerina {
namespace {

Mascara Preencher(int l, int a, const std::function<bool(int, int)>& dentro)
{
    Mascara m(l, a);
    for (int y = 0; y < a; ++y)
        for (int x = 0; x < l; ++x)
            m(x, y) = dentro(x, y);
    return m;
}

long Acima(long a, long b) { return (a + b - 1) / b; }

TEST(ContagemCaixas, ContagensDaGrelhaPresaAoCantoSuperiorEsquerdo)
{
    for (int lado : {512, 627, 300}) {
        const Mascara cheia = Preencher(lado, lado, [](int, int) { return true; });
        const Mascara linha = Preencher(lado, lado, [&](int, int y) { return y == lado / 2; });
        const Mascara diagonal = Preencher(lado, lado, [](int x, int y) { return x == y; });
        const auto cc = ContarCaixas(cheia), cl = ContarCaixas(linha), cd = ContarCaixas(diagonal);
        ASSERT_EQ(cc.size(), 7u);
        for (std::size_t k = 0; k < 7; ++k) {
            const long s = 2L << k, n = Acima(lado, s);  // boxes at the edges overhang
            EXPECT_EQ(cc[k].lado, s);
            EXPECT_EQ(cc[k].contagem, n * n) << lado << " s = " << s;
            EXPECT_EQ(cl[k].contagem, n) << lado << " s = " << s;
            EXPECT_EQ(cd[k].contagem, n) << lado << " s = " << s;
        }
    }
    // Boxes start at multiples of s: pixels 1 and 2 part at s = 2 and meet at s = 4;
    // pixels 3 and 4 meet only at s = 8, pixels 7 and 8 only at s = 16.
    struct Caso { int xa, xb; long n2, n4, n8; };
    const Caso pares[] = {{1, 2, 2, 1, 1}, {3, 4, 2, 2, 1}, {0, 1, 1, 1, 1}, {7, 8, 2, 2, 2}};
    for (const Caso& p : pares) {
        Mascara m(64, 3);
        m(p.xa, 2) = 1;
        m(p.xb, 2) = 1;
        const auto c = ContarCaixas(m);
        EXPECT_EQ(c[0].contagem, p.n2) << p.xa << "," << p.xb;
        EXPECT_EQ(c[1].contagem, p.n4) << p.xa << "," << p.xb;
        EXPECT_EQ(c[2].contagem, p.n8) << p.xa << "," << p.xb;
    }
    // Any nonzero byte is a figure pixel, and a box counts once however many it holds.
    Mascara bytes(5, 5);
    bytes(0, 0) = 255;
    bytes(1, 1) = 7;
    bytes(4, 4) = 2;
    EXPECT_EQ(ContarCaixas(bytes)[0].contagem, 2);
    EXPECT_EQ(ContarCaixas(bytes)[1].contagem, 2);
    EXPECT_EQ(ContarCaixas(bytes)[2].contagem, 1);
    // The same along y: a column in a tall, thin mask.
    const Mascara coluna = Preencher(3, 1000, [](int x, int) { return x == 2; });
    EXPECT_EQ(ContarCaixas(coluna)[0].contagem, 500);
    EXPECT_EQ(ContarCaixas(coluna)[6].contagem, Acima(1000, 128));
}

TEST(ContagemCaixas, DimensoesExactasEProximas)
{
    struct Caso {
        const char* nome;
        int lado;
        std::function<bool(int, int)> dentro;
        double D, tolerancia;
    };
    const Caso casos[] = {
        // At 512 = 4·128 every grid fits: N(s) = (512/s)^D exactly.
        {"square 512", 512, [](int, int) { return true; }, 2, 1e-12},
        {"row 512", 512, [](int, int y) { return y == 100; }, 1, 1e-12},
        {"column 512", 512, [](int x, int) { return x == 511; }, 1, 1e-12},
        {"diagonal 512", 512, [](int x, int y) { return x + y == 511; }, 1, 1e-12},
        // At 627 the last box of each row overhangs: N = ceil(627/s)^D.
        {"square 627", 627, [](int, int) { return true; }, 2, 0.02},
        {"row 627", 627, [](int, int y) { return y == 0; }, 1, 0.02},
        {"diagonal 627", 627, [](int x, int y) { return x == y; }, 1, 0.02},
        {"slope 1/2 627", 627, [](int x, int y) { return y == x / 2; }, 1, 0.02},
        // A single point: N(s) = 1 at every size, a flat fit.
        {"one pixel", 627, [](int x, int y) { return x == 300 && y == 17; }, 0, 1e-12},
    };
    for (const Caso& c : casos) {
        const Dimensao d = MedirDimensao(Preencher(c.lado, c.lado, c.dentro));
        ASSERT_TRUE(d.valida) << c.nome;
        EXPECT_NEAR(d.ajuste.declive, c.D, c.tolerancia) << c.nome;
        EXPECT_GT(d.ajuste.r2, 0.999) << c.nome;
        ASSERT_EQ(d.u.size(), 7u);
        EXPECT_DOUBLE_EQ(d.u[0], -std::log10(2.0)) << c.nome << ": u = log(1/s)";
    }
}

TEST(ContagemCaixas, MascaraVaziaNaoTemDimensao)
{
    for (const Mascara& m : {Mascara(627, 627), Mascara(0, 0), Mascara(1, 1)}) {
        const Dimensao d = MedirDimensao(m);
        EXPECT_FALSE(d.valida);
        EXPECT_TRUE(d.v.empty());
    }
}

TEST(ContagemCaixas, ConjuntoDeCantor)
{
    // The middle-thirds set at stage 7 over 3^7 = 2187 pixels: 128 pieces of one pixel.
    // Boxes of side 2^k do not follow the thirds, which costs a few hundredths.
    Mascara m(2187, 1);
    for (int x = 0; x < 2187; ++x) {
        bool dentro = true;
        for (int t = x; t > 0 && dentro; t /= 3)
            dentro = t % 3 != 1;
        m(x, 0) = dentro;
    }
    const Dimensao d = MedirDimensao(m);
    EXPECT_EQ(d.caixas[0].contagem, 128);  // the pieces are 2 px or more apart
    EXPECT_NEAR(d.ajuste.declive, std::log(2.0) / std::log(3.0), 0.05);
}

TEST(ContagemCaixas, MinimosQuadrados)
{
    struct Caso {
        std::vector<double> u, v;
        double declive, ordenada, r2;
    };
    const Caso casos[] = {
        {{0, 1, 2, 3}, {1, 4, 7, 10}, 3, 1, 1},
        {{-1, 1}, {5, 5}, 0, 5, 1},
        // ū = 1, v̄ = 4/3; Σ(u−ū)(v−v̄) = 3, Σ(u−ū)² = 2, Σ(v−v̄)² = 42/9.
        {{0, 1, 2}, {0, 1, 3}, 1.5, 4.0 / 3 - 1.5, 9.0 / (2 * 42.0 / 9)},
    };
    for (const Caso& c : casos) {
        const Ajuste a = MinimosQuadrados(c.u, c.v);
        EXPECT_NEAR(a.declive, c.declive, 1e-12);
        EXPECT_NEAR(a.ordenada, c.ordenada, 1e-12);
        EXPECT_NEAR(a.r2, c.r2, 1e-12);
    }
    // All u equal: no line; nothing is divided by zero.
    const Ajuste a = MinimosQuadrados({2, 2, 2}, {1, 2, 3});
    EXPECT_EQ(a.declive, 0);
    EXPECT_EQ(a.r2, 0);
}

TEST(FigurasAutoSemelhantes, DimensaoLogNSobreLogUmSobreR)
{
    // Each figure's N and D, to four decimals, are the page's table (its own test); here the
    // integer cases: a segment of 2 halves, a square of 9 thirds, a cube of 27.
    EXPECT_NEAR(DimensaoAutoSemelhanca(2, 0.5), 1, 1e-15);
    EXPECT_NEAR(DimensaoAutoSemelhanca(9, 1.0 / 3), 2, 1e-15);
    EXPECT_NEAR(DimensaoAutoSemelhanca(27, 1.0 / 3), 3, 1e-15);
}

TEST(FigurasAutoSemelhantes, ContagemDeCaixasDasFigurasDesenhadas)
{
    // Drawn at the picture's size, down to about a pixel, the box-counting estimate comes
    // near the similarity dimension (the grain of the picture costs a few hundredths).
    struct Caso { Figura f; int lado; double tolerancia; };
    const Caso casos[] = {
        {Figura::TrianguloSierpinski, 627, 0.04},
        {Figura::TrianguloSierpinski, 628, 0.04},
        {Figura::CarpeteSierpinski, 627, 0.05},
        {Figura::FlocoKoch, 627, 0.05},
    };
    for (const Caso& c : casos) {
        const Mascara m = DesenharFigura(c.f, c.lado, c.lado);
        const Dimensao d = MedirDimensao(m);
        const DadosFigura& dados = Dados(c.f);
        EXPECT_NEAR(d.ajuste.declive, DimensaoAutoSemelhanca(dados.copias, dados.razao), c.tolerancia)
            << dados.nome << " at " << c.lado;
    }
}

TEST(FigurasAutoSemelhantes, CadaFiguraCabeNaImagemComMargem)
{
    // Every figure is drawn, in a picture wider than tall too, and keeps off the edges.
    for (const DadosFigura& dados : Figuras()) {
        for (auto [l, a] : {std::pair{628, 628}, std::pair{400, 250}}) {
            const Mascara m = DesenharFigura(dados.figura, l, a);
            long pontos = 0, naBorda = 0;
            for (int y = 0; y < a; ++y)
                for (int x = 0; x < l; ++x)
                    if (m(x, y)) {
                        ++pontos;
                        naBorda += x == 0 || y == 0 || x == l - 1 || y == a - 1;
                    }
            EXPECT_GT(pontos, 0) << dados.nome;
            EXPECT_EQ(naBorda, 0) << dados.nome;
        }
    }
}

}  // namespace
}  // namespace lumerina
