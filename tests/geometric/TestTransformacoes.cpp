// Affine maps applied level by level: the basic maps' coefficients, determinant and
// contraction, the number and place of the copies, the spiral onto the fixed point, and the
// segment limit.

#include "geometric/SistemaIFS.h"
#include "geometric/Transformacoes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <utility>
#include <vector>

namespace lumerina {
namespace {

TEST(Transformacoes, DeterminanteEContraccao)
{
    struct Caso { const char* nome; MapaAfim m; double det; bool contrai; };
    const Caso casos[] = {
        // Areas halve, yet horizontal distances double.
        {"escala 2 e 0,25", {2, 0, 0, 0.25, 0, 0}, 0.5, false},
        {"escala 2 e 0,1", Escala(2, 0.1), 0.2, false},
        {"espiral", {0, -0.5, 0.5, 0, 1, 0}, 0.25, true},
        {"Sierpinski", {0.5, 0, 0, 0.5, 0.5, 0}, 0.25, true},
        {"rotação 30°", Rotacao(30), 1, false},
        {"rotação 45°", Rotacao(45), 1, false},
        {"reflexão", ReflexaoEixoX(), -1, false},
        {"cisalhamento", CisalhamentoHorizontal(0.5), 1, false},
        {"identidade", Translacao(3, 4), 1, false},
        // Rows of absolute sum 1.2 and 0.6, but σ = 0.971: a contraction.
        {"triangular", {0.6, 0.6, 0, 0.6, 0, 0}, 0.36, true},
        // A reflection shrunk to 0.9: contracts, negative determinant.
        {"reflexão reduzida", {0.9, 0, 0, -0.9, 0, 0}, -0.81, true},
        {"esmagada", {1, 1, 1, 1, 0, 0}, 0, false},  // σ = 2
    };
    for (const Caso& c : casos) {
        EXPECT_NEAR(c.m.Determinante(), c.det, 1e-11) << c.nome;
        EXPECT_EQ(Contrai(c.m), c.contrai) << c.nome;
    }
}

TEST(Transformacoes, CoeficientesDasTransformacoesBasicas)
{
    const double r3 = std::sqrt(3.0) / 2;
    struct Caso { const char* nome; MapaAfim m; MapaAfim esperado; };
    const Caso casos[] = {
        {"translação", Translacao(2, -3), {1, 0, 0, 1, 2, -3}},
        {"rotação 90°", Rotacao(90), {0, -1, 1, 0, 0, 0}},
        {"rotação 180°", Rotacao(180), {-1, 0, 0, -1, 0, 0}},
        {"rotação −90°", Rotacao(-90), {0, 1, -1, 0, 0, 0}},
        {"rotação 450°", Rotacao(450), {0, -1, 1, 0, 0, 0}},
        {"rotação 30°", Rotacao(30), {r3, -0.5, 0.5, r3, 0, 0}},
        {"escala", Escala(2, 0.5), {2, 0, 0, 0.5, 0, 0}},
        {"reflexão", ReflexaoEixoX(), {1, 0, 0, -1, 0, 0}},
        {"cisalhamento", CisalhamentoHorizontal(0.75), {1, 0.75, 0, 1, 0, 0}},
    };
    for (const Caso& c : casos) {
        const double obtido[6] = {c.m.a, c.m.b, c.m.c, c.m.d, c.m.e, c.m.f};
        const double esperado[6] = {c.esperado.a, c.esperado.b, c.esperado.c,
                                    c.esperado.d, c.esperado.e, c.esperado.f};
        for (int k = 0; k < 6; ++k)
            EXPECT_NEAR(obtido[k], esperado[k], 5e-13) << c.nome << " coefficient " << "abcdef"[k];
    }
    // sin 30° is one half exactly, as the table would print it.
    EXPECT_EQ(Rotacao(30).c, 0.5);
    EXPECT_EQ(Rotacao(150).b, -0.5);
    // The rotation turns the F's top (0, 1) a quarter to the left, to (−1, 0).
    EXPECT_EQ(Rotacao(90)(Ponto{0, 1}), (Ponto{-1, 0}));
}

// With the Sierpinski maps, the images of the origin at level n are the points (i, j)/2ⁿ
// whose binary digits never share a 1 (i AND j = 0): Pascal's triangle modulo 2. There are 3ⁿ
// of them, all distinct, and every one is a copy.
TEST(Transformacoes, NivelNTemMapasElevadoANCopias)
{
    const auto m = TrianguloSierpinski().Mapas();
    const std::vector<MapaAfim> tres(m.begin(), m.end());
    ImagensIteradas origem(FiguraPlana{{{0, 0}}, {1}});
    long long copias = 1;
    for (int n = 1; n <= 7; ++n) {
        ASSERT_TRUE(origem.Aplicar(tres));
        copias *= 3;
        EXPECT_EQ(origem.Copias(n), copias);
        std::set<std::pair<long long, long long>> vistos;
        const double escala = std::ldexp(1.0, n);
        for (const Ponto& p : origem.Pontos(n)) {
            const double i = p.x * escala, j = p.y * escala;
            ASSERT_EQ(i, std::floor(i));
            ASSERT_EQ(j, std::floor(j));
            EXPECT_EQ(static_cast<long long>(i) & static_cast<long long>(j), 0) << i << "," << j;
            vistos.insert({static_cast<long long>(i), static_cast<long long>(j)});
        }
        EXPECT_EQ(static_cast<long long>(vistos.size()), copias) << "level " << n;
    }

    // Any m maps: mⁿ copies of the figure, m·(segments) per level; a change of maps between
    // levels multiplies by the new count.
    for (int mapas = 1; mapas <= 3; ++mapas) {
        ImagensIteradas f(Figura(FiguraBase::LetraF));
        const std::vector<MapaAfim> usados(tres.begin(), tres.begin() + mapas);
        long long esperado = 1;
        for (int n = 1; n <= 5; ++n) {
            ASSERT_TRUE(f.Aplicar(usados));
            esperado *= mapas;
            EXPECT_EQ(f.Copias(n), esperado);
            EXPECT_EQ(f.Segmentos(n), 3 * esperado);
            EXPECT_EQ(f.Pontos(n).size(), 5u * esperado);
        }
        ASSERT_TRUE(f.Aplicar(std::vector<MapaAfim>{tres[0], tres[1]}));
        EXPECT_EQ(f.Copias(6), esperado * 2);
        EXPECT_FALSE(f.Aplicar({}));  // no map, no level
        EXPECT_EQ(f.Nivel(), 6);
        f.Recomecar();
        EXPECT_EQ(f.Nivel(), 0);
        EXPECT_EQ(f.Copias(0), 1);
    }
}

// x' = −0.5y + 1, y' = 0.5x turns 90°, halves and moves: every point approaches the fixed
// point (0.8, 0.4) by a factor of 2 per level.
TEST(Transformacoes, EspiralParaOPontoFixo)
{
    const MapaAfim espiral{0, -0.5, 0.5, 0, 1, 0};
    ImagensIteradas f(Figura(FiguraBase::LetraF));
    const std::vector<MapaAfim> mapas{espiral};
    ASSERT_TRUE(f.Aplicar(mapas));
    // The F's top-left corner (0, 1) goes to (0.5, 0), its foot (0, 0) to (1, 0).
    EXPECT_EQ(f.Pontos(1)[1], (Ponto{0.5, 0}));
    EXPECT_EQ(f.Pontos(1)[2], (Ponto{1, 0}));
    double anterior = 2;
    for (int n = 2; n <= 30; ++n) {
        ASSERT_TRUE(f.Aplicar(mapas));
        double maior = 0;
        for (const Ponto& p : f.Pontos(n))
            maior = std::max(maior, std::hypot(p.x - 0.8, p.y - 0.4));
        EXPECT_LE(maior, anterior / 2 * (1 + 1e-9) + 1e-15) << "level " << n;
        anterior = maior;
    }
    EXPECT_LT(anterior, 2 * std::ldexp(1.0, -30));
}

// The last level under 2 000 000 segments is made; the next is refused and nothing changes.
// The square has 4 segments: 4·3¹¹ = 708 588, 4·3¹² = 2 125 764.
TEST(Transformacoes, LimiteDeSegmentos)
{
    const auto m = TrianguloSierpinski().Mapas();
    const std::vector<MapaAfim> tres(m.begin(), m.end());
    ImagensIteradas f(Figura(FiguraBase::Quadrado));
    EXPECT_EQ(f.Original().Segmentos(), 4);
    for (int n = 1; n <= 11; ++n)
        ASSERT_TRUE(f.Aplicar(tres)) << n;
    EXPECT_EQ(f.Segmentos(11), 708588);
    EXPECT_EQ(f.SegmentosSeguinte(3), 2125764);
    EXPECT_FALSE(f.Aplicar(tres));
    EXPECT_EQ(f.Nivel(), 11);
    EXPECT_EQ(f.Pontos(11).size(), 5u * 177147);
    // Two maps give 1 417 176 segments: the limit is on segments, not on levels.
    EXPECT_TRUE(f.Aplicar(std::vector<MapaAfim>{tres[0], tres[1]}));
    EXPECT_EQ(f.Nivel(), 12);
}

TEST(Transformacoes, PercorrerSegmentosDeCadaCopia)
{
    // The F's two strokes: 2 segments, then 1; two copies give 6, in order, none joining
    // the end of one stroke or copy to the start of the next.
    const FiguraPlana f = Figura(FiguraBase::LetraF);
    std::vector<Ponto> pontos = f.pontos;
    for (const Ponto& p : f.pontos)
        pontos.push_back({p.x + 10, p.y});
    std::vector<std::pair<Ponto, Ponto>> segmentos;
    PercorrerSegmentos(f, pontos, [&](Ponto p, Ponto q) { segmentos.push_back({p, q}); });
    ASSERT_EQ(segmentos.size(), 6u);
    EXPECT_EQ(segmentos[1].second, (Ponto{0, 0}));
    EXPECT_EQ(segmentos[2].first, (Ponto{0, 0.5}));
    EXPECT_EQ(segmentos[3].first, (Ponto{10.6, 1}));
    for (const auto& [p, q] : segmentos)
        EXPECT_LT(std::hypot(p.x - q.x, p.y - q.y), 1.01);
}

}  // namespace
}  // namespace lumerina
