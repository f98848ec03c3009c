// Orbits: the examples of the orbit and cobweb pages worked by hand, the escape radius,
// the cobweb's geometry, and an orbit that runs to overflow.

#include "complex/Orbitas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace lumerina {
namespace {

Orbita Correr(Iteracao it, PontoOrbita z0, double cx, double cy, int passos)
{
    Orbita o(it, z0, cx, cy);
    for (int i = 0; i < passos; ++i)
        o.Avancar();
    return o;
}

TEST(Orbitas, OrbitasComplexasDeZ2MaisC)
{
    struct Caso {
        const char* nome;
        double cx, cy;
        std::vector<PontoOrbita> pontos;  // z_0, z_1, ...
        int fuga;                         // step of escape, -1 for none
    };
    const Caso casos[] = {
        {"c = 1: 0, 1, 2, 5, 26; |z_2| = 2 does not pass 2", 1, 0, {{0, 0}, {1, 0}, {2, 0}, {5, 0}, {26, 0}}, 3},
        {"c = -1: period 2", -1, 0, {{0, 0}, {-1, 0}, {0, 0}, {-1, 0}, {0, 0}}, -1},
        {"c = i: 0, i, -1+i, -i, -1+i, -i", 0, 1, {{0, 0}, {0, 1}, {-1, 1}, {0, -1}, {-1, 1}, {0, -1}}, -1},
        {"c = 2: 0, 2, 6", 2, 0, {{0, 0}, {2, 0}, {6, 0}}, 2},
    };
    for (const Caso& c : casos) {
        const Orbita o = Correr(Iteracao::Complexa, c.pontos[0], c.cx, c.cy, int(c.pontos.size()) - 1);
        ASSERT_EQ(o.Pontos().size(), c.pontos.size()) << c.nome;
        for (std::size_t n = 0; n < c.pontos.size(); ++n) {
            EXPECT_EQ(o.Pontos()[n].x, c.pontos[n].x) << c.nome << ", n = " << n;
            EXPECT_EQ(o.Pontos()[n].y, c.pontos[n].y) << c.nome << ", n = " << n;
        }
        EXPECT_EQ(o.PassoFuga(), c.fuga) << c.nome;
    }
}

TEST(Orbitas, AvancarDizOPassoDaFugaUmaSoVez)
{
    Orbita o(Iteracao::Complexa, {0, 0}, 1, 0);
    const ResultadoPasso esperados[] = {ResultadoPasso::Avancou, ResultadoPasso::Avancou,
                                        ResultadoPasso::Fugiu, ResultadoPasso::Avancou};
    for (ResultadoPasso r : esperados)
        EXPECT_EQ(o.Avancar(), r);
}

TEST(Orbitas, SensibilidadeAsCondicoesIniciais)
{
    // c = 0: |z_n| = |z_0|^(2^n). 1.01^64 ≈ 1.89 < 2 < 1.01^128 ≈ 3.57: escape at step 7.
    // The angle does not matter; take z_0 off the axes.
    const double a = 1.01 / std::sqrt(2.0);
    const Orbita fora = Correr(Iteracao::Complexa, {a, a}, 0, 0, 7);
    EXPECT_EQ(fora.PassoFuga(), 7);
    EXPECT_NEAR(Modulo(fora.Pontos()[7]), std::pow(1.01, 128), 1e-9);
    // 0.99^1024 ≈ 3.4e-5: on the way to 0, never escaping.
    const double b = 0.99 / std::sqrt(2.0);
    const Orbita dentro = Correr(Iteracao::Complexa, {b, b}, 0, 0, 10);
    EXPECT_EQ(dentro.PassoFuga(), -1);
    EXPECT_NEAR(Modulo(dentro.Pontos()[10]), std::pow(0.99, 1024), 1e-12);
}

TEST(Orbitas, RaioDeFugaEMaxDe2EModuloDeC)
{
    // c = 5: z_0 = 2.2i has |z_0| > 2 but comes back, z_1 = -4.84 + 5 = 0.16; then
    // z_2 = 5.0256 passes |c| = 5.
    const Orbita o = Correr(Iteracao::Complexa, {0, 2.2}, 5, 0, 2);
    EXPECT_EQ(o.Raio(), 5);
    EXPECT_NEAR(o.Pontos()[1].x, 0.16, 1e-12);
    EXPECT_EQ(o.PassoFuga(), 2);
    // A start beyond the radius has escaped before any step.
    EXPECT_EQ(Orbita(Iteracao::Complexa, {3, 0}, -1, 0).PassoFuga(), 0);
    EXPECT_EQ(Orbita(Iteracao::QuadraticaReal, {-2.5, 0}, 0.25, 0).PassoFuga(), 0);
    // The cosine is bounded by 1 after one step: it never escapes, whatever x_0.
    EXPECT_EQ(Correr(Iteracao::Coseno, {50, 0}, 0, 0, 5).PassoFuga(), -1);
}

TEST(Orbitas, TransbordoTerminaSemPontosQueNaoSaoNumeros)
{
    struct Caso { Iteracao it; double x0, y0, cx, cy; };
    const Caso casos[] = {
        {Iteracao::Complexa, 0, 0, 1, 0},
        {Iteracao::Complexa, 0, 0, 1, 1},
        {Iteracao::Complexa, 1e200, 1e200, 0, 0},
        {Iteracao::QuadraticaReal, 0, 0, 0.3, 0},
        {Iteracao::QuadraticaReal, -1e300, 0, 0, 0},
    };
    for (const Caso& c : casos) {
        Orbita o(c.it, {c.x0, c.y0}, c.cx, c.cy);
        ResultadoPasso r = ResultadoPasso::Avancou;
        for (int i = 0; i < 100 && r != ResultadoPasso::Transbordou; ++i)
            r = o.Avancar();
        ASSERT_EQ(r, ResultadoPasso::Transbordou) << c.x0 << " " << c.cx;
        EXPECT_TRUE(o.Terminada());
        EXPECT_GE(o.PassoFuga(), 0);
        for (const PontoOrbita& z : o.Pontos())
            EXPECT_TRUE(std::isfinite(z.x) && std::isfinite(z.y) && std::isfinite(Modulo(z)));
        // The step that would overflow adds nothing, now or later.
        const std::size_t n = o.Pontos().size();
        EXPECT_EQ(o.Avancar(), ResultadoPasso::Transbordou);
        EXPECT_EQ(o.Pontos().size(), n);
    }
}

TEST(Orbitas, LimiteDePassos)
{
    Orbita o(Iteracao::QuadraticaReal, {0, 0}, -1, 0);
    for (int i = 0; i < Orbita::kMaxPassos; ++i)
        ASSERT_EQ(o.Avancar(), ResultadoPasso::Avancou);
    EXPECT_EQ(o.Avancar(), ResultadoPasso::Limite);
    EXPECT_EQ(o.Passos(), Orbita::kMaxPassos);
    EXPECT_FALSE(o.Terminada());
}

TEST(Orbitas, CosenoAproximaSeDoPontoFixoEmEspiral)
{
    // From x_0 = 1: 1; 0.5403; 0.8576; 0.6543; 0.7935; 0.7014 (radians).
    const double primeiros[] = {1, 0.5403, 0.8576, 0.6543, 0.7935, 0.7014};
    const Orbita o = Correr(Iteracao::Coseno, {1, 0}, 0, 0, 80);
    for (int n = 0; n < 6; ++n)
        EXPECT_NEAR(o.Pontos()[n].x, primeiros[n], 5e-5) << "n = " << n;
    // The fixed point cos x = x, 0.7390851332...; the error is multiplied by about
    // -sin x* ≈ -0.674 each step, so it changes sign every step: a spiral.
    constexpr double kFixo = 0.7390851332151607;
    for (int n = 10; n < 30; ++n) {
        const double razao = (o.Pontos()[n + 1].x - kFixo) / (o.Pontos()[n].x - kFixo);
        EXPECT_NEAR(razao, -std::sin(kFixo), 0.01) << "n = " << n;
    }
    // 0.674^80 ≈ 2e-14.
    EXPECT_NEAR(o.Pontos()[80].x, kFixo, 1e-12);
    EXPECT_EQ(o.Periodo(), 1);
}

TEST(Orbitas, QuadraticaRealDaFugaAoCaos)
{
    struct Caso {
        double c;
        int periodo;   // 0: none within the steps
        bool foge;
        const char* nome;
    };
    const Caso casos[] = {
        {0.3, 0, true, "no fixed point above 1/4: escape"},
        {-0.5, 1, false, "fixed point (1 - sqrt 3)/2"},
        {-1, 2, false, "0, -1, 0, -1"},
        {-1.3, 4, false, "period 4"},
        {-1.76, 3, false, "period 3, a window in the chaos"},
        {-1.9, 0, false, "chaos: bounded, no cycle"},
    };
    for (const Caso& k : casos) {
        Orbita o(Iteracao::QuadraticaReal, {0, 0}, k.c, 0);
        while (o.Periodo() == 0 && o.Avancar() == ResultadoPasso::Avancou) {
        }
        EXPECT_EQ(o.Periodo(), k.periodo) << k.nome;
        EXPECT_EQ(o.PassoFuga() >= 0, k.foge) << k.nome;
        if (k.periodo == 0 && !k.foge) {
            EXPECT_EQ(o.Passos(), Orbita::kMaxPassos) << k.nome;
        }
    }
    // The attracting fixed point for c = -0.5.
    const Orbita o = Correr(Iteracao::QuadraticaReal, {0, 0}, -0.5, 0, 100);
    EXPECT_NEAR(o.Pontos().back().x, (1 - std::sqrt(3.0)) / 2, 1e-12);
    // c = -1: exactly 0, -1, 0, -1.
    const Orbita dois = Correr(Iteracao::QuadraticaReal, {0, 0}, -1, 0, 3);
    EXPECT_EQ(dois.Periodo(), 2);
    EXPECT_EQ(dois.Pontos()[3].x, -1);
}

TEST(Orbitas, TeiaLigaGraficoEDiagonal)
{
    // Each step: up or down from the diagonal to the graph, then across back to the
    // diagonal, and the next step starts where this one ended.
    struct Caso { Iteracao it; double x0, c; };
    const Caso casos[] = {{Iteracao::Coseno, 1, 0}, {Iteracao::QuadraticaReal, 0, -1.3},
                          {Iteracao::QuadraticaReal, 0.9, 0.25}};
    for (const Caso& k : casos) {
        const Orbita o = Correr(k.it, {k.x0, 0}, k.c, 0, 12);
        double fimX = k.x0, fimY = k.x0;
        for (int n = 0; n < 12; ++n) {
            const double xn = o.Pontos()[n].x, xn1 = o.Pontos()[n + 1].x;
            EXPECT_EQ(xn1, MapaReal(k.it, xn, k.c));
            const auto s = SegmentosTeia(xn, xn1);
            EXPECT_EQ(s[0].x1, fimX);
            EXPECT_EQ(s[0].y1, fimY);
            EXPECT_EQ(s[0].x1, s[0].x2) << "vertical";
            EXPECT_EQ(s[0].y2, xn1) << "ends on the graph";
            EXPECT_EQ(s[1].y1, s[1].y2) << "horizontal";
            EXPECT_EQ(s[1].x2, s[1].y2) << "ends on y = x";
            fimX = s[1].x2;
            fimY = s[1].y2;
        }
    }
}

TEST(Orbitas, IteracoesReaisIgnoramAParteImaginaria)
{
    const Orbita o = Correr(Iteracao::QuadraticaReal, {0.5, 3}, -1, 7, 2);
    EXPECT_EQ(o.Pontos()[0].y, 0);
    EXPECT_EQ(o.Pontos()[1].x, -0.75);
    EXPECT_EQ(o.Pontos()[2].x, -0.4375);
    EXPECT_EQ(o.Raio(), 2);
}

}  // namespace
}  // namespace lumerina
