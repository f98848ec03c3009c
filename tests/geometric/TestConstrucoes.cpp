// The self-similar constructions against their closed forms: pieces and total length or area
// at every stage the pages draw, and the shape of each piece (where it sits, that none is
// doubled, which one is removed).

#include "geometric/Construcoes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>
#include <string>
#include <utility>

namespace lumerina {
namespace {

const double kRaiz3 = std::sqrt(3.0);

double Comprimento(Ponto p, Ponto q) { return std::hypot(q.x - p.x, q.y - p.y); }

double Comprimento(const std::vector<Intervalo>& intervalos)
{
    double total = 0;
    for (const Intervalo& i : intervalos)
        total += i.fim - i.inicio;
    return total;
}

double Area(const Triangulo& t)
{
    return std::abs((t.b.x - t.a.x) * (t.c.y - t.a.y) - (t.c.x - t.a.x) * (t.b.y - t.a.y)) / 2;
}

double AreaPreta(const std::vector<Quadrado>& quadrados)
{
    double total = 0;
    for (const Quadrado& q : quadrados)
        total += q.preto ? q.lado * q.lado : 0;
    return total;
}

int Pretos(const std::vector<Quadrado>& quadrados)
{
    int n = 0;
    for (const Quadrado& q : quadrados)
        n += q.preto;
    return n;
}

// What the tests measure of a stage: its pieces, and its total length or area.
struct Medida {
    long pecas;
    double total;
};

struct Construcao {
    const char* nome;
    std::function<Medida(int)> medir;           // through the construction
    std::function<Medida(int)> formaFechada;    // from the maths
};

const Construcao kConstrucoes[] = {
    {"partes n+1",
     [](int n) { auto s = DivisaoSegmento(n + 1); return Medida{long(s.size()), Comprimento(s)}; },
     [](int n) { return Medida{n + 1, 1.0}; }},
    {"partes 2^n",
     [](int n) {
         auto s = DivisaoSegmento(1 << n);
         return Medida{long(s.size()), Comprimento(s)};
     },
     [](int n) { return Medida{1L << n, 1.0}; }},
    {"Koch",
     [](int n) {
         auto p = CurvaKoch(n);
         double total = 0;
         for (std::size_t k = 0; k + 1 < p.size(); ++k)
             total += Comprimento(p[k], p[k + 1]);
         return Medida{long(p.size()) - 1, total};
     },
     [](int n) { return Medida{std::lround(std::pow(4, n)), std::pow(4.0 / 3, n)}; }},
    {"Sierpinski",
     [](int n) {
         double total = 0;
         auto t = TrianguloSierpinski(n);
         for (const Triangulo& x : t)
             total += Area(x);
         return Medida{long(t.size()), total};
     },
     [](int n) { return Medida{std::lround(std::pow(3, n)), std::pow(0.75, n) * kRaiz3 / 4}; }},
    {"Cantor",
     [](int n) { auto s = PoeiraCantor(n); return Medida{long(s.size()), Comprimento(s)}; },
     [](int n) { return Medida{1L << n, std::pow(2.0 / 3, n)}; }},
    {"quadrado fractal",
     [](int n) { auto q = QuadradoFractal(n); return Medida{long(q.size()), AreaPreta(q)}; },
     [](int n) { return Medida{std::lround(std::pow(5, n)), std::pow(5.0 / 9, n)}; }},
    {"carpete Sierpinski",
     [](int n) { auto q = CarpeteSierpinski(n); return Medida{long(q.size()), AreaPreta(q)}; },
     [](int n) { return Medida{std::lround(std::pow(8, n)), std::pow(8.0 / 9, n)}; }},
    // Black squares: p(n+1) = 4·p(n) + 9·b(n), b(n+1) = 5·p(n), p(0) = 1, solved:
    // p(n) = (9^(n+1) + 5·(−5)^n) / 14, and the black area p(n)/9^n.
    {"carpete Haferman",
     [](int n) { auto q = CarpeteHaferman(n); return Medida{Pretos(q), AreaPreta(q)}; },
     [](int n) {
         const long p = (std::lround(std::pow(9, n + 1)) + 5 * std::lround(std::pow(-5, n))) / 14;
         return Medida{p, p / std::pow(9, n)};
     }},
};

TEST(Construcoes, PecasEMedidaPorEtapa)
{
    for (const Construcao& c : kConstrucoes)
        for (int n = 0; n <= 4; ++n) {
            const Medida obtida = c.medir(n), esperada = c.formaFechada(n);
            EXPECT_EQ(obtida.pecas, esperada.pecas) << c.nome << " etapa " << n;
            EXPECT_NEAR(obtida.total, esperada.total, 1e-12) << c.nome << " etapa " << n;
        }
    // Negative stages are stage 0.
    EXPECT_EQ(CurvaKoch(-2).size(), 2u);
    EXPECT_EQ(CarpeteHaferman(-1).size(), 1u);
    EXPECT_TRUE(DivisaoSegmento(0).empty());
}

// The numbers the exercises quote: Haferman's blacks 1, 4, 61, 424, 4441 and whites
// 0, 5, 20, 305, 2120.
TEST(Construcoes, HafermanContagemDoExercicio)
{
    const int pretos[] = {1, 4, 61, 424, 4441};
    const int brancos[] = {0, 5, 20, 305, 2120};
    for (int n = 0; n <= 4; ++n) {
        const auto q = CarpeteHaferman(n);
        EXPECT_EQ(Pretos(q), pretos[n]) << n;
        EXPECT_EQ(long(q.size()) - Pretos(q), brancos[n]) << n;
    }
}

// Squares of a stage sit on the 3^-n grid inside the unit square, one to a cell, and stage 1
// keeps exactly the cells its rule names (column, row from the lower left).
TEST(Construcoes, QuadradosNaGrelhaECelulasDaRegra)
{
    struct Caso {
        const char* nome;
        std::vector<Quadrado> (*construir)(int);
        std::set<std::pair<int, int>> pretosEtapa1;
        std::set<std::pair<int, int>> brancosEtapa1;
    };
    const Caso casos[] = {
        {"quadrado fractal", QuadradoFractal, {{0, 0}, {2, 0}, {1, 1}, {0, 2}, {2, 2}}, {}},
        {"carpete Sierpinski", CarpeteSierpinski,
         {{0, 0}, {1, 0}, {2, 0}, {0, 1}, {2, 1}, {0, 2}, {1, 2}, {2, 2}}, {}},
        {"carpete Haferman", CarpeteHaferman, {{1, 0}, {0, 1}, {2, 1}, {1, 2}},
         {{0, 0}, {2, 0}, {1, 1}, {0, 2}, {2, 2}}},
    };
    for (const Caso& c : casos) {
        for (int n = 0; n <= 3; ++n) {
            const double lado = std::pow(3.0, -n);
            std::set<std::pair<int, int>> celulas;
            for (const Quadrado& q : c.construir(n)) {
                EXPECT_NEAR(q.lado, lado, 1e-15) << c.nome;
                const double i = q.x / lado, j = q.y / lado;
                EXPECT_NEAR(i, std::round(i), 1e-9) << c.nome;
                EXPECT_NEAR(j, std::round(j), 1e-9) << c.nome;
                EXPECT_GE(q.x, -1e-12);
                EXPECT_LE(q.x + q.lado, 1 + 1e-12);
                EXPECT_GE(q.y, -1e-12);
                EXPECT_LE(q.y + q.lado, 1 + 1e-12);
                EXPECT_TRUE(celulas.insert({int(std::lround(i)), int(std::lround(j))}).second)
                    << c.nome << ": two squares in one cell at stage " << n;
            }
        }
        std::set<std::pair<int, int>> pretos, brancos;
        for (const Quadrado& q : c.construir(1))
            (q.preto ? pretos : brancos).insert({int(std::lround(3 * q.x)), int(std::lround(3 * q.y))});
        EXPECT_EQ(pretos, c.pretosEtapa1) << c.nome;
        EXPECT_EQ(brancos, c.brancosEtapa1) << c.nome;
    }
}

// The Koch curve: joined end to end from (0,0) to (1,0), equal segments of 3^-n, every
// vertex of a stage kept in the next, bumps upwards under the height √3/6, and the area
// between curve and base (√3/20)·(1 − (4/9)^n) by the shoelace formula.
TEST(Construcoes, CurvaKochForma)
{
    for (int n = 0; n <= 4; ++n) {
        const auto p = CurvaKoch(n);
        ASSERT_EQ(p.size(), std::size_t(std::lround(std::pow(4, n))) + 1);
        EXPECT_EQ(p.front().x, 0.0);
        EXPECT_EQ(p.front().y, 0.0);
        EXPECT_NEAR(p.back().x, 1.0, 1e-15);
        EXPECT_NEAR(p.back().y, 0.0, 1e-15);
        double area = 0;
        for (std::size_t k = 0; k + 1 < p.size(); ++k) {
            EXPECT_NEAR(Comprimento(p[k], p[k + 1]), std::pow(3.0, -n), 1e-12) << n << " " << k;
            EXPECT_GE(p[k].y, -1e-12);
            EXPECT_LE(p[k].y, kRaiz3 / 6 + 1e-12);
            area += p[k].x * p[k + 1].y - p[k + 1].x * p[k].y;
        }
        // Walking the curve left to right and back along the base is clockwise.
        EXPECT_NEAR(-area / 2, kRaiz3 / 20 * (1 - std::pow(4.0 / 9, n)), 1e-12) << n;
        if (n > 0) {
            const auto anterior = CurvaKoch(n - 1);
            for (std::size_t k = 0; k < anterior.size(); ++k) {
                EXPECT_NEAR(p[4 * k].x, anterior[k].x, 1e-12);
                EXPECT_NEAR(p[4 * k].y, anterior[k].y, 1e-12);
            }
        }
    }
    const auto um = CurvaKoch(1);
    EXPECT_NEAR(um[2].x, 0.5, 1e-15);
    EXPECT_NEAR(um[2].y, kRaiz3 / 6, 1e-15);
}

// Sierpinski: equilateral triangles of side 2^-n pointing up, all different, the perimeters
// summing to 3·(3/2)^n, and none covering the centre of the triangle, removed at stage 1.
TEST(Construcoes, TrianguloSierpinskiForma)
{
    for (int n = 0; n <= 4; ++n) {
        const double lado = std::pow(0.5, n);
        std::set<std::pair<long, long>> vertices;
        double perimetro = 0;
        for (const Triangulo& t : TrianguloSierpinski(n)) {
            perimetro += Comprimento(t.a, t.b) + Comprimento(t.b, t.c) + Comprimento(t.c, t.a);
            EXPECT_NEAR(t.b.x - t.a.x, lado, 1e-12);
            EXPECT_NEAR(t.b.y, t.a.y, 1e-12);
            EXPECT_NEAR(t.c.x, t.a.x + lado / 2, 1e-12);
            EXPECT_NEAR(t.c.y, t.a.y + lado * kRaiz3 / 2, 1e-12);
            EXPECT_TRUE(vertices.insert({std::lround(t.a.x / lado * 2), std::lround(t.a.y * 1e9)})
                            .second)
                << "a triangle twice at stage " << n;
            if (n > 0) {
                // The centre (1/2, √3/6) lies above every kept triangle's base or outside it.
                const double cx = 0.5, cy = kRaiz3 / 6;
                const bool dentro = cy >= t.a.y && cy <= t.c.y &&
                                    std::abs(cx - t.c.x) <= (t.c.y - cy) / kRaiz3;
                EXPECT_FALSE(dentro) << "stage " << n;
            }
        }
        EXPECT_NEAR(perimetro, 3 * std::pow(1.5, n), 1e-12) << n;
    }
}

// Cantor: the left ends of stage n, times 3^n, are the integers written in base 3 with the
// digits 0 and 2 only; divisions into equal parts join end to end.
TEST(Construcoes, SegmentosCantorEPartesIguais)
{
    for (int n = 0; n <= 4; ++n) {
        const double escala = std::pow(3.0, n);
        for (const Intervalo& i : PoeiraCantor(n)) {
            EXPECT_NEAR(i.fim - i.inicio, 1 / escala, 1e-12);
            long inteiro = std::lround(i.inicio * escala);
            EXPECT_NEAR(i.inicio * escala, double(inteiro), 1e-9);
            for (int d = 0; d < n; ++d, inteiro /= 3)
                EXPECT_NE(inteiro % 3, 1) << "left end " << i.inicio << " at stage " << n;
        }
    }
    for (int partes : {1, 3, 7, 8}) {
        const auto s = DivisaoSegmento(partes);
        EXPECT_EQ(s.front().inicio, 0.0);
        EXPECT_EQ(s.back().fim, 1.0);
        for (std::size_t k = 0; k + 1 < s.size(); ++k)
            EXPECT_EQ(s[k].fim, s[k + 1].inicio) << partes;
    }
}

}  // namespace
}  // namespace lumerina
