// Attractor steppers: first points worked out by hand from the start points, fixed points
// that must stay put, the vector path against the formulas, every preset visible in its own
// window, and the plotting of points into a raster.

#include "dynamics/Atractores.h"
#include "dynamics/PredefinicoesAtractores.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace lumerina {
namespace {

std::vector<Ponto> Primeiros(Atractor a, int n)
{
    std::vector<Ponto> p(static_cast<std::size_t>(n));
    Pontos(a, p.data(), n);
    return p;
}

struct CasoPrimeiros {
    std::string nome;
    Atractor atractor;
    std::vector<Ponto> esperados;
    double tolerancia;
};

std::vector<CasoPrimeiros> CasosPrimeiros()
{
    const double r2 = std::sqrt(2.0) / 4;  // the recession of the x axis in the oblique view
    const double t1 = std::tan(1.0), s1 = std::sin(1.0);
    // Kam, α = 60°: c = 1/2, s = √3/2; line 1 starts at (0.098 + 0.04, 0.061 + 0.03).
    const double c60 = 0.5, s60 = std::sqrt(3.0) / 2;
    const double u1 = 0.091 - 0.138 * 0.138;
    const double kx1 = 0.138 * c60 - u1 * s60, ky1 = 0.138 * s60 + u1 * c60;
    // Line 2 starts at (0.098 + 2·0.04, 0.061 + 2·0.03).
    const double u2 = 0.121 - 0.178 * 0.178;
    const double kx2 = 0.178 * c60 - u2 * s60, ky2 = 0.178 * s60 + u2 * c60;
    // Duffing's second step uses t = dt and the old x.
    const double duffY2 = 0.015 + 0.05 * (1 - 1 - 0.25 * 0.015 + 0.3 * std::cos(0.05));
    // Peter de Jong and Clifford from (0, 0): the first point is (−1, −1) and (C, D).
    const double jx2 = std::sin(-0.52 * -1) - std::cos(-2.083 * -1);
    const double jy2 = std::sin(0.718 * -1) - std::cos(-2.403 * -1);
    const double cx2 = std::sin(-1.4 * 0.7) + 1 * std::cos(-1.4 * 1);
    const double cy2 = std::sin(1.6 * 1) + 0.7 * std::cos(1.6 * 0.7);
    // Tinkerbell from (−0.72, −0.64).
    const double tx = 0.72 * 0.72 - 0.64 * 0.64 + 0.3 * -0.72 - 0.7 * -0.64;
    const double ty = 2 * 0.72 * 0.64 + 2.3 * -0.72 + 0.6 * -0.64;
    Quadratico q;
    q.a = {0.6, 0.1, -1, 0.6, 0.2, -1.1, -0.3, -0.7, -1.2, -0.7, -0.8, 0.7};
    const double qx = 0.6 + 0.1 * 0.6 - 0.36 + 0.6 * 0.6 * -0.3 + 0.2 * -0.3 - 1.1 * 0.09;
    const double qy = -0.3 - 0.7 * 0.6 - 1.2 * 0.36 - 0.7 * 0.6 * -0.3 - 0.8 * -0.3 + 0.7 * 0.09;
    return {
        {"Lorenz: only y moves at (1, 1, 1); (x/2, z/2)", Lorenz{}, {{0.5, 0.5}}, 1e-15},
        {"Lorenz in three dimensions", Lorenz{.tresDimensoes = true},
         {{(1.015 - r2) / 2, (1 - r2) / 2}}, 1e-15},
        {"Rossler: every derivative at the old point", Rossler{}, {{0.99, 1.012}}, 1e-15},
        {"Duffing: forcing at t = 0, then at t = dt", Duffing{}, {{1, 0.015}, {1.00075, duffY2}},
         1e-15},
        {"Henon", Henon{}, {{1, 0}, {-0.4, 0.3}, {1 + 0.3 - 1.4 * 0.16, -0.12}}, 1e-15},
        {"Kam: two points on line 1, then line 2 from its own start",
         Kam(0.098, 0.061, 0.04, 0.03, 16, 60, 2),
         {{kx1, ky1},
          {kx1 * c60 - (ky1 - kx1 * kx1) * s60, kx1 * s60 + (ky1 - kx1 * kx1) * c60},
          {kx2, ky2}},
         1e-14},
        {"Hopalong: sgn(0) is 0", Hopalong{}, {{0, 1}, {1, 1}, {1 - std::sqrt(2.0), 0}}, 1e-15},
        {"Peter de Jong", DeJong{}, {{-1, -1}, {jx2, jy2}}, 1e-14},
        {"Clifford", Clifford{}, {{1, 0.7}, {cx2, cy2}}, 1e-14},
        {"Tinkerbell from (-0.72, -0.64)", Tinkerbell{}, {{tx, ty}}, 1e-15},
        {"quadratic map from (0, 0): (a1, a7) first", q, {{0.6, -0.3}, {qx, qy}}, 1e-15},
        {"Estranhos 2 from (1, 1)", Estranhos2{},
         {{t1 * t1 - s1 * s1 + 0.45, 0.61 + 0.5 + 2 * t1 * s1}}, 1e-14},
        {"butterfly at t = 0: r = e - 2", Borboleta{}, {{0, 0.5 * (std::exp(1.0) - 2)}}, 1e-15},
        {"Caotico from (-0.1, 0)", Caotico{}, {{1.1, -0.1}, {2.2, 1.1}, {2.1, 2.2}}, 1e-15},
    };
}

TEST(Atractores, PrimeirosPontosPelasFormulas)
{
    for (const CasoPrimeiros& c : CasosPrimeiros()) {
        SCOPED_TRACE(c.nome);
        const int n = static_cast<int>(c.esperados.size());
        const std::vector<Ponto> p = Primeiros(c.atractor, n);
        for (int k = 0; k < n; ++k) {
            EXPECT_NEAR(p[k].x, c.esperados[k].x, c.tolerancia) << "point " << k + 1;
            EXPECT_NEAR(p[k].y, c.esperados[k].y, c.tolerancia) << "point " << k + 1;
        }
    }
}

// Points that the maps or the Euler step must leave where they are (for a few steps: the
// Hénon point is a saddle, which doubles any rounding error at each step).
TEST(Atractores, PontosFixosFicam)
{
    struct Caso {
        const char* nome;
        Atractor atractor;
        Ponto fixo;
    };
    // Hénon: x = 1 + B·x − A·x², the positive root.
    const double hx = (-(1 - 0.3) + std::sqrt(0.49 + 4 * 1.4)) / (2 * 1.4);
    const Caso casos[] = {
        // C+ = (√(C(B−1)), √(C(B−1)), B − 1) = (4, 4, 16): every derivative is exactly 0.
        {"Lorenz C+", Lorenz{.x = 4, .y = 4, .z = 16}, {2, 8}},
        {"Henon", Henon{.x = hx, .y = 0.3 * hx}, {hx, 0.3 * hx}},
        {"Kam: the origin", Kam(0, 0, 0, 0, 1, 73, 10), {0, 0}},
        {"Tinkerbell: the origin", Tinkerbell{.x = 0, .y = 0}, {0, 0}},
        {"Caotico: (1, 1)", Caotico{.x = 1, .y = 1}, {1, 1}},
        {"Duffing unforced at the bottom of a well", Duffing{.b = 0}, {1, 0}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        for (const Ponto& p : Primeiros(c.atractor, 10)) {
            EXPECT_NEAR(p.x, c.fixo.x, 1e-12);
            EXPECT_NEAR(p.y, c.fixo.y, 1e-12);
        }
    }
}

TEST(Atractores, CaoticoVoltaAoFimDeSeisPassosNoHexagono)
{
    // (0, 0) lies on the period-6 orbit around the fixed point (1, 1).
    const std::vector<Ponto> p = Primeiros(Caotico{.x = 0, .y = 0}, 6);
    const Ponto esperados[] = {{1, 0}, {2, 1}, {2, 2}, {1, 2}, {0, 1}, {0, 0}};
    for (int k = 0; k < 6; ++k) {
        EXPECT_EQ(p[k].x, esperados[k].x);
        EXPECT_EQ(p[k].y, esperados[k].y);
    }
}

TEST(Atractores, BorboletaFechaACurvaEmVinteEQuatroPi)
{
    const Atractor b = Borboleta{};
    ASSERT_EQ(TotalPontos(b, 123), 100001);
    std::vector<Ponto> p = Primeiros(b, 100001);
    // t = 6π at i = 25000: sin(t/12) = 1, so r = e − 2 + 1.
    EXPECT_NEAR(p[25000].x, 0, 1e-12);
    EXPECT_NEAR(p[25000].y, 0.5 * (std::exp(1.0) - 1), 1e-12);
    // The last sample is t = 24π, where the curve meets its start.
    EXPECT_NEAR(p[100000].x, p[0].x, 1e-12);
    EXPECT_NEAR(p[100000].y, p[0].y, 1e-12);
}

TEST(Atractores, KamDesenhaTodasAsLinhas)
{
    const Atractor kam = Kam(0.098, 0.061, 0.04, 0.03, 16, 60, 500);
    EXPECT_EQ(TotalPontos(kam, 500), 16 * 500);
    EXPECT_EQ(TotalPontos(Henon{}, 500), 500);
}

// The vector sines against the formula, step by step from the same point: each step agrees
// to rounding, on four lanes and on two.
TEST(Atractores, SenosVectoriaisConcordamComAFormula)
{
    for (const bool duasVias : {false, true}) {
        SCOPED_TRACE(duasVias ? "two lanes" : "best lanes");
        DeJong j;
        Clifford c{.a = 1.7, .b = 1.7, .c = 0.06, .d = 1.2};
        for (int k = 0; k < 2000; ++k) {
            DeJong jv = j;
            Clifford cv = c;
            Ponto pv;
            duasVias ? jv.PontosDuasVias(&pv, 1) : jv.Pontos(&pv, 1);
            const Ponto pj = j.Passo();
            ASSERT_NEAR(pv.x, pj.x, 4e-15) << k;
            ASSERT_NEAR(pv.y, pj.y, 4e-15) << k;
            duasVias ? cv.PontosDuasVias(&pv, 1) : cv.Pontos(&pv, 1);
            const Ponto pc = c.Passo();
            ASSERT_NEAR(pv.x, pc.x, 4e-15) << k;
            ASSERT_NEAR(pv.y, pc.y, 4e-15) << k;
        }
    }
}

// Every preset draws an attractor that can be seen in its window: its points light many pixels
// of a 628 x 628 picture (an orbit caught by a fixed point or a short cycle lights a handful,
// one that runs away none). The sets chosen here also keep nearly every point inside their
// window; some of the given Lorenz and Peter de Jong windows cut their attractor on purpose
// (the Lorenz spirals of B = 17 turn round z/2 = 8, the top edge).
TEST(Atractores, PredefinicoesVisiveisNaSuaJanela)
{
    struct Conjunto {
        ConjuntoPredefinido qual;
        const char* nome;
        std::function<Atractor(const Predefinicao&)> criar;
        int minimoPixeis;
        int percentagemDentro;
    };
    const auto p = [](const Predefinicao& d, int i) { return d.parametros[static_cast<std::size_t>(i)]; };
    const Conjunto conjuntos[] = {
        {ConjuntoPredefinido::Lorenz, "Lorenz",
         [&](const Predefinicao& d) {
             return Lorenz{.a = p(d, 0), .b = p(d, 1), .c = p(d, 2)};
         }, 1000, 0},
        {ConjuntoPredefinido::Rossler, "Rossler",
         [&](const Predefinicao& d) {
             return Rossler{.a = p(d, 0), .b = p(d, 1), .c = p(d, 2)};
         }, 1000, 95},
        {ConjuntoPredefinido::Duffing, "Duffing",
         [&](const Predefinicao& d) {
             return Duffing{.a = p(d, 0), .b = p(d, 1), .c = p(d, 2)};
         }, 1000, 95},
        {ConjuntoPredefinido::DeJong, "Peter de Jong",
         [&](const Predefinicao& d) {
             return DeJong{.a = p(d, 0), .b = p(d, 1), .c = p(d, 2), .d = p(d, 3)};
         }, 3000, 0},
        {ConjuntoPredefinido::Clifford, "Clifford",
         [&](const Predefinicao& d) {
             return Clifford{.a = p(d, 0), .b = p(d, 1), .c = p(d, 2), .d = p(d, 3)};
         }, 3000, 95},
        {ConjuntoPredefinido::Tinkerbell, "Tinkerbell",
         [&](const Predefinicao& d) {
             // Set 3 keeps D: here the D of set 1, the box's default.
             const double dd = Mantem(p(d, 3)) ? 0.6 : p(d, 3);
             return Tinkerbell{.a = p(d, 0), .b = p(d, 1), .c = p(d, 2), .d = dd};
         }, 3000, 95},
        {ConjuntoPredefinido::Estranhos, "Estranhos",
         [&](const Predefinicao& d) {
             Quadratico q;
             for (std::size_t i = 0; i < 12; ++i)
                 q.a[i] = d.parametros[i];
             return q;
         }, 3000, 95},
    };
    for (const Conjunto& c : conjuntos) {
        const auto tabela = Predefinicoes(c.qual);
        for (std::size_t n = 0; n < tabela.size(); ++n) {
            const Predefinicao& d = tabela[n];
            SCOPED_TRACE(std::string(c.nome) + " " + std::to_string(n + 1));
            ASSERT_LT(d.xmin, d.xmax);
            ASSERT_LT(d.ymin, d.ymax);
            std::vector<Ponto> pontos = Primeiros(c.criar(d), d.iteracoes);
            int dentro = 0, contados = 0;
            std::set<std::pair<int, int>> pixeis;
            for (std::size_t k = pontos.size() / 10; k < pontos.size(); ++k, ++contados) {
                const Ponto q = pontos[k];
                ASSERT_TRUE(std::isfinite(q.x) && std::isfinite(q.y)) << "point " << k;
                if (q.x >= d.xmin && q.x < d.xmax && q.y > d.ymin && q.y <= d.ymax) {
                    ++dentro;
                    pixeis.insert({int((q.x - d.xmin) / (d.xmax - d.xmin) * 628),
                                   int((d.ymax - q.y) / (d.ymax - d.ymin) * 628)});
                }
            }
            EXPECT_GE(dentro, contados * c.percentagemDentro / 100);
            EXPECT_GE(static_cast<int>(pixeis.size()), c.minimoPixeis);
        }
    }
}

// A 5 x 4 raster over the world [-1, 4] x [0, 4]: the top row is y = 4, the points round to
// the nearest pixel, and what falls off the raster draws nothing.
TEST(Atractores, PlotarPontosNoRaster)
{
    constexpr std::uint32_t kCor = 0xFF000080u, kFundo = 0xFFFFFFFFu;
    struct Caso {
        const char* nome;
        std::vector<Ponto> pontos;
        int tamanho;
        std::vector<std::pair<int, int>> acesos;  // (column, row)
        Retangulo tocado;
    };
    const double nan = std::nan("");
    const Caso casos[] = {
        {"upper-left corner is pixel (0, 0)", {{-1, 4}}, 1, {{0, 0}}, {0, 0, 0, 0}},
        {"y grows upwards", {{0, 1}}, 1, {{1, 3}}, {1, 3, 1, 3}},
        {"rounded to the nearest pixel", {{0.49, 2.51}}, 1, {{1, 1}}, {1, 1, 1, 1}},
        {"the right and bottom edges are off the raster", {{4, 0}, {4, 2}, {1, 0}}, 1, {}, {}},
        {"off the picture and not a number draw nothing", {{-3, 2}, {nan, 1}, {0, nan}}, 1, {}, {}},
        {"a big point is 3 x 3", {{1, 2}}, 3,
         {{1, 1}, {2, 1}, {3, 1}, {1, 2}, {2, 2}, {3, 2}, {1, 3}, {2, 3}, {3, 3}}, {1, 1, 3, 3}},
        {"a big point just off the corner shows its inner pixel", {{-2, 5}}, 3, {{0, 0}}, {0, 0, 0, 0}},
        {"the rectangle covers the batch", {{-1, 4}, {3, 1}}, 1, {{0, 0}, {4, 3}}, {0, 0, 4, 3}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        std::vector<std::uint32_t> pixeis(5 * 4, kFundo);
        const Raster r{pixeis.data(), 5, 5, 4, -1.0, 4.0, 5.0 / 5.0, 4.0 / -4.0};
        const Retangulo t =
            PlotarPontos(r, c.pontos.data(), static_cast<int>(c.pontos.size()), kCor, c.tamanho);
        std::set<std::pair<int, int>> esperados(c.acesos.begin(), c.acesos.end());
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 5; ++x)
                EXPECT_EQ(pixeis[std::size_t(y * 5 + x)], esperados.count({x, y}) ? kCor : kFundo)
                    << "pixel " << x << "," << y;
        EXPECT_EQ(t.Vazio(), c.tocado.Vazio());
        if (!c.tocado.Vazio()) {
            EXPECT_EQ(t.x0, c.tocado.x0);
            EXPECT_EQ(t.y0, c.tocado.y0);
            EXPECT_EQ(t.x1, c.tocado.x1);
            EXPECT_EQ(t.y1, c.tocado.y1);
        }
    }
}

// Plotting while stepping gives the points and pixels of stepping, then plotting: the fused
// loops of Peter de Jong and Clifford as much as the others, big points included.
TEST(Atractores, PontosPlotadosComoPontosEDepoisPlotar)
{
    struct Caso {
        const char* nome;
        Atractor atractor;
        int tamanho;
    };
    const Caso casos[] = {
        {"Peter de Jong", DeJong{}, 1},
        {"Clifford", Clifford{}, 1},
        {"Peter de Jong, big points", DeJong{}, 3},
        {"Henon", Henon{}, 1},
    };
    constexpr int kLado = 97, kN = 3000;
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        std::vector<std::uint32_t> a(kLado * kLado, 0), b(kLado * kLado, 0);
        // The window -2.5 … 2 x -2.2 … 2.7, so that some points fall off the picture.
        const auto raster = [](std::vector<std::uint32_t>& px) {
            return Raster{px.data(), kLado, kLado, kLado, -2.5, 2.7, kLado / 4.5, kLado / -4.9};
        };
        Atractor juntos = c.atractor, separados = c.atractor;
        std::vector<Ponto> la(kN), lb(kN);
        for (int lote = 0; lote < 3; ++lote) {
            const Retangulo ra = PontosPlotados(juntos, la.data(), kN, raster(a), 7u, c.tamanho);
            Pontos(separados, lb.data(), kN);
            const Retangulo rb = PlotarPontos(raster(b), lb.data(), kN, 7u, c.tamanho);
            ASSERT_EQ(la[kN - 1].x, lb[kN - 1].x);
            ASSERT_EQ(la[kN - 1].y, lb[kN - 1].y);
            EXPECT_EQ(ra.x0, rb.x0);
            EXPECT_EQ(ra.y0, rb.y0);
            EXPECT_EQ(ra.x1, rb.x1);
            EXPECT_EQ(ra.y1, rb.y1);
        }
        EXPECT_EQ(a, b);
    }
}

}  // namespace
}  // namespace lumerina
