// The chaos game's choices and the random copy machine: which vertex and which map a random
// number picks, the rounding before each map, the vertex frequencies with a clock that moves
// slower than the steps, and a figure gathered onto the Sierpinski triangle after 6 levels.

#include "geometric/JogoCaos.h"
#include "interp/Aleatorio.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace lumerina {
namespace {

TEST(JogoCaos, VerticeEMapaDeCadaNumeroAleatorio)
{
    // k = int(3u + 1): thirds of [0, 1).
    struct CasoVertice { double u; int k; };
    const CasoVertice vertices[] = {
        {0, 1}, {0.3333333, 1}, {1.0 / 3, 2}, {0.5, 2}, {0.6666666, 2}, {2.0 / 3, 3},
        {1 - 0x1p-24, 3},  // the generator's largest value
    };
    for (const CasoVertice& c : vertices)
        EXPECT_EQ(VerticeDe(c.u), c.k) << c.u;

    // r < 34, 34..66, 67 and above: the bounds 33/34 and 66/67.
    struct CasoMapa { int r; int mapa; };
    const CasoMapa mapas[] = {{0, 0}, {33, 0}, {34, 1}, {50, 1}, {66, 1}, {67, 2}, {99, 2}, {100, 2}};
    for (const CasoMapa& c : mapas)
        EXPECT_EQ(MapaCopiadora(c.r), c.mapa) << c.r;
}

TEST(JogoCaos, UmNivelArredondaEDepoisAplicaOMapaSorteado)
{
    struct Caso { double u; Ponto antes; Ponto depois; };
    const Caso casos[] = {
        // r = 33 → (x/2, y/2); r = 34 and 66 → (x/2 + 1/2, y/2); r = 67 → (x/2, y/2 + 1/2).
        {0.335, {0.4, 0.2}, {0.2, 0.1}},
        {0.345, {0.4, 0.2}, {0.7, 0.1}},
        {0.665, {0.4, 0.2}, {0.7, 0.1}},
        {0.675, {0.4, 0.2}, {0.2, 0.6}},
        // Rounded to 2 decimals first: (0.12, 0.46) and (−0.46, 0.99) are what is halved.
        {0.0, {0.123, 0.456}, {0.06, 0.23}},
        {0.0, {-0.4561, 0.987}, {-0.23, 0.495}},
    };
    for (const Caso& c : casos) {
        FiguraCaos f;
        f.n = 1;
        f.x[0] = c.antes.x;
        f.y[0] = c.antes.y;
        TransformarFigura(f, 1, [&] { return c.u; });
        EXPECT_NEAR(f.x[0], c.depois.x, 1e-12) << c.u << " " << c.antes.x;
        EXPECT_NEAR(f.y[0], c.depois.y, 1e-12) << c.u << " " << c.antes.y;
    }
}

// Distance from p to the triangle (0, 0), (1, 0), (0, 1).
double DistanciaTriangulo(Ponto p)
{
    const double dentroX = std::max(0.0, -p.x), dentroY = std::max(0.0, -p.y);
    const double hipotenusa = std::max(0.0, (p.x + p.y - 1) / std::sqrt(2.0));
    if (p.x >= 0 && p.y >= 0)
        return hipotenusa;
    if (p.x + p.y <= 1)
        return std::hypot(dentroX, dentroY);
    // Beyond the hypotenuse and off one axis: nearest is the corner (1, 0) or (0, 1).
    return std::min(std::hypot(p.x - 1, p.y), std::hypot(p.x, p.y - 1));
}

// Within `d` of one of the 3ⁿ triangles of level n (the images of the big one by n maps):
// p is within d of T_i(cell) exactly when T_i⁻¹(p) is within 2d of the cell.
bool PertoDoNivel(Ponto p, int n, double d)
{
    if (DistanciaTriangulo(p) > d)
        return false;
    if (n == 0)
        return true;
    const Ponto inversos[3] = {{2 * p.x, 2 * p.y}, {2 * p.x - 1, 2 * p.y}, {2 * p.x, 2 * p.y - 1}};
    for (const Ponto& q : inversos)
        if (PertoDoNivel(q, n - 1, 2 * d))
            return true;
    return false;
}

// Whatever the figure and whatever the draws, each level halves every point's distance to
// the attractor, plus the rounding (at most 0.005·√2) taken before the map. After 6 levels the
// figure lies within that distance of the 729 triangles of the sixth level.
TEST(JogoCaos, SeisNiveisJuntamAFiguraNoTrianguloDeSierpinski)
{
    void (*const figuras[])(FiguraCaos&) = {FiguraLetras, FiguraCirculo, FiguraQuadrado};
    for (auto figura : figuras) {
        FiguraCaos f;
        figura(f);
        ASSERT_GE(f.n, 200);
        ASSERT_LE(f.n, 1000);
        double d = 0;
        for (int i = 0; i < f.n; ++i)
            d = std::max(d, DistanciaTriangulo(f[i]));
        for (int l = 0; l < 6; ++l)
            d = (d + 0.005 * std::sqrt(2.0)) / 2;
        SemearAleatorio(12);
        TransformarFigura(f, 6, [] { return Aleatorio(); });
        int fora = 0;
        for (int i = 0; i < f.n; ++i)
            fora += !PertoDoNivel(f[i], 6, d + 1e-12);
        EXPECT_EQ(fora, 0);
    }
}

// The fixed clock is the worst case: the game reseeds before every step, far faster than a
// millisecond clock moves. Each vertex comes about a third of the time, and no vertex repeats
// in a run longer than chance allows (a run of 20 among 10 000 steps has odds about 1 in 10⁵).
std::uint64_t RelogioParado() { return 1234567; }
std::uint64_t relogioLento = 0;
std::uint64_t RelogioLento() { return relogioLento++ / 7; }  // one tick per 7 steps

TEST(JogoCaos, FrequenciaDosVerticesComRelogioLento)
{
    for (auto relogio : {RelogioParado, RelogioLento}) {
        DefinirRelogioAleatorio(relogio);
        SemearAleatorio(99);
        std::array<int, 4> contagem{};
        int corrida = 0, maiorCorrida = 0, anterior = 0;
        for (int i = 0; i < 10000; ++i) {
            const int k = SortearVertice();
            ASSERT_TRUE(k >= 1 && k <= 3) << k;
            ++contagem[k];
            corrida = k == anterior ? corrida + 1 : 1;
            maiorCorrida = std::max(maiorCorrida, corrida);
            anterior = k;
        }
        DefinirRelogioAleatorio(nullptr);
        // σ = √(10 000 · 1/3 · 2/3) ≈ 47: 250 is more than five σ.
        for (int k = 1; k <= 3; ++k)
            EXPECT_NEAR(contagem[k], 3333, 250) << "vertex " << k;
        EXPECT_LT(maiorCorrida, 20);
    }
}

}  // namespace
}  // namespace lumerina
