// The random-iteration renderer and the catalogue: how r picks a map, the transient, the
// single-precision plotting, and every system's data and picture.

#include "geometric/SistemaIFS.h"
#include "interp/Aleatorio.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace lumerina {
namespace {

// A uniform source that replays fixed values of r (U = (r + ½)/100), over and over.
struct Replay {
    std::vector<int> rs;
    std::size_t i = 0;
    double operator()() { return (rs[i++ % rs.size()] + 0.5) / 100; }
};

struct PontoF {
    float x, y;
    friend bool operator==(const PontoF&, const PontoF&) = default;
};

template <class U>
std::vector<PontoF> Pontos(const SistemaIFS& s, long long passos, U&& u)
{
    std::vector<PontoF> pontos;
    IteracaoIFS it(s);
    it.Avancar(passos, u, [&](float x, float y) { pontos.push_back({x, y}); });
    return pontos;
}

// A system of plain maps for the renderer's own tests: k = 1, no offsets.
SistemaIFS Simples(std::initializer_list<MapaAfim> mapas, const Probabilidades& p,
                   Ponto inicio = {0, 0})
{
    return SistemaIFS("teste", mapas, p, {{-1, 1, 1, -1}, 1, 0, 0, inicio});
}

TEST(MapaAfim, DeterminanteValorSingularEPontoFixo)
{
    const double phi = (1 + std::sqrt(5.0)) / 2;
    struct Caso {
        const char* nome;
        MapaAfim m;
        double det, sigma;
        bool temFixo;
        Ponto fixo;
    };
    const Caso casos[] = {
        {"x/2 + 1 on both axes (Banach's example)", {0.5, 0, 0, 0.5, 1, 1}, 0.25, 0.5, true, {2, 2}},
        {"2 across, 1/4 up: area halves, yet it stretches", {2, 0, 0, 0.25, 0, 0}, 0.5, 2, true, {0, 0}},
        {"quarter turn of factor 1/2", {0, -0.5, 0.5, 0, 1, 0}, 0.25, 0.5, true, {0.8, 0.4}},
        {"shear by 1: stretches by the golden ratio", {1, 1, 0, 1, 0, 0}, 1, phi, false, {}},
        {"reflection in the x axis", {1, 0, 0, -1, 0, 0}, -1, 1, false, {}},
        {"the fern's stalk squeezes all onto a segment", {0, 0, 0, 0.16, 0.5, 0}, 0, 0.16, true, {0.5, 0}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nome);
        EXPECT_DOUBLE_EQ(c.m.Determinante(), c.det);
        EXPECT_NEAR(c.m.MaiorValorSingular(), c.sigma, 1e-12);
        EXPECT_EQ(c.m.Contractivo(), c.sigma < 1);
        bool ok = false;
        const Ponto p = c.m.PontoFixo(&ok);
        EXPECT_EQ(ok, c.temFixo);
        if (c.temFixo) {
            EXPECT_NEAR(p.x, c.fixo.x, 1e-12);
            EXPECT_NEAR(p.y, c.fixo.y, 1e-12);
        }
    }
    // Composition: first one map, then the other, point by point.
    const MapaAfim f{0.3, -0.2, 0.1, 0.7, 1, -2}, g{-0.5, 0.4, 0.9, 0.2, 0.25, 3};
    const Ponto p{1.5, -0.75};
    const Ponto directo = g(f(p)), composto = Compor(g, f)(p);
    EXPECT_NEAR(composto.x, directo.x, 1e-12);
    EXPECT_NEAR(composto.y, directo.y, 1e-12);
}

TEST(IteracaoIFS, OsPrimeirosCemPontosNuncaSaoDesenhados)
{
    const SistemaIFS& s = *SistemaIFSPorNome("Feto de Barnsley");
    SemearAleatorio(1);
    const struct { long long passos; std::size_t pontos; } casos[] = {
        {0, 0}, {1, 0}, {100, 0}, {101, 1}, {102, 2}, {10'000, 9'900},
    };
    for (const auto& c : casos)
        EXPECT_EQ(Pontos(s, c.passos, Aleatorio).size(), c.pontos) << c.passos << " steps";

    // Run in slices, the count carries over: 60 + 60 steps draw the last 20.
    IteracaoIFS it(s);
    int desenhados = 0;
    const auto contar = [&](float, float) { ++desenhados; };
    it.Avancar(60, Aleatorio, contar);
    EXPECT_EQ(desenhados, 0);
    it.Avancar(60, Aleatorio, contar);
    EXPECT_EQ(desenhados, 20);
}

TEST(IteracaoIFS, RDeUniformeVezesCemComFaixasTestadasPorOrdem)
{
    // Map 0 halves towards the origin, map 1 halves towards (1, 0): the point after one
    // step from (1, 1) tells which map r picked.
    const MapaAfim meio{0.5, 0, 0, 0.5, 0, 0}, direita{0.5, 0, 0, 0.5, 0.5, 0};
    const SistemaIFS cumulativo = Simples({meio, direita}, Limites({50, 100}), {1, 1});
    const SistemaIFS heighway = *SistemaIFSPorNome("Dragão de Heighway");
    struct Caso { const SistemaIFS* s; double u; int mapa; const char* porque; };
    const Caso casos[] = {
        {&cumulativo, 0.0, 0, "r = 0"},
        {&cumulativo, 0.50999, 0, "r = 50 is the first bound itself"},
        {&cumulativo, 0.51, 1, "r = 51 is past the first bound"},
        {&cumulativo, 0.99999, 1, "r = 99"},
        {&heighway, 0.505, 0, "Heighway: r = 50 still the first map"},
        {&heighway, 0.515, -1, "Heighway: r = 51 moves nothing"},
        {&heighway, 0.525, 1, "Heighway: r = 52 the second map"},
        {SistemaIFSPorNome("Estrela"), 0.925, -1, "Estrela: r = 92 moves nothing"},
        {SistemaIFSPorNome("Estrela"), 0.915, 0, "Estrela: r = 91"},
        {SistemaIFSPorNome("Folha de pé"), 0.015, 0, "Folha de pé: r = 1 its stalk"},
    };
    for (const Caso& c : casos) {
        const TabelaMapas t = TabelaEscolha(*c.s);
        EXPECT_EQ(t[int(c.u * 100)], c.mapa) << c.porque;
    }
    IteracaoIFS it(cumulativo);
    it.Avancar(1, [] { return 0.51; }, [](float, float) {});
    EXPECT_EQ(it.Actual(), (Ponto{1, 0.5}));
}

TEST(IteracaoIFS, ValorOciosoDeHeighwayDeixaOPontoNoSitio)
{
    const SistemaIFS& s = *SistemaIFSPorNome("Dragão de Heighway");
    // 100 steps alternating the two maps (the point then sits at neither map's fixed
    // point), then r = 51 five times: the same point drawn five times.
    Replay u;
    for (int i = 0; i < 50; ++i)
        u.rs.insert(u.rs.end(), {0, 99});
    u.rs.insert(u.rs.end(), {51, 51, 51, 51, 51});
    const std::vector<PontoF> pontos = Pontos(s, 105, u);
    ASSERT_EQ(pontos.size(), 5u);
    for (const PontoF& p : pontos)
        EXPECT_EQ(p, pontos[0]);
    // The same steps with r = 50 and r = 52 instead of 51 move it every time.
    for (const int r : {50, 52}) {
        std::fill(u.rs.end() - 5, u.rs.end(), r);
        u.i = 0;
        const std::vector<PontoF> movidos = Pontos(s, 105, u);
        for (int i = 1; i < 5; ++i)
            EXPECT_NE(movidos[i], movidos[i - 1]) << "r = " << r << ", point " << i;
    }
}

TEST(IteracaoIFS, AmbasAsCoordenadasDoPontoAntigo)
{
    // A quarter turn (x, y) -> (−y, x): computing y from the new x would give (−y, −y).
    const SistemaIFS s = Simples({{0, -1, 1, 0, 0, 0}, {0, -1, 1, 0, 0, 0}}, Limites({50, 100}),
                                 {0.25, 0.75});
    Replay u{{0}};
    const std::vector<PontoF> pontos = Pontos(s, 104, u);
    // 100 quarter turns bring the point back; then (−0.75, 0.25), (−0.25, −0.75), …
    const PontoF esperados[] = {{-0.75f, 0.25f}, {-0.25f, -0.75f}, {0.75f, -0.25f}, {0.25f, 0.75f}};
    ASSERT_EQ(pontos.size(), 4u);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(pontos[i], esperados[i]) << "point " << i;
}

TEST(IteracaoIFS, PontoMostradoEmKXMenosOxEmPrecisaoSimples)
{
    // A map that leaves 0.1 in place: the point shown is float(k·0.1 − ox), not the double.
    MapaAfim fixo{0, 0, 0, 0, 0.1, 0.3};
    SistemaIFS s("teste", {fixo, fixo}, Limites({50, 100}), {{-2, 2, 2, -2}, 2.5, 1.3, 1.7, {0, 0}});
    const std::vector<PontoF> pontos = Pontos(s, 101, [] { return 0.0; });
    ASSERT_EQ(pontos.size(), 1u);
    EXPECT_EQ(pontos[0].x, float(2.5 * 0.1 - 1.3));
    EXPECT_EQ(pontos[0].y, float(2.5 * 0.3 - 1.7));
    EXPECT_NE(double(pontos[0].x), 2.5 * 0.1 - 1.3);  // the rounding is real
}

TEST(IteracaoIFS, PrimeiroMapaDoFetoEmCinquentaECincoPorCento)
{
    // The fern's main map stands in the ranges 0–15, 61–75 and 76–99: 16 + 15 + 24 = 55
    // values of r in 100. Over 10⁵ draws the count is binomial, σ = √(n·p·(1 − p)) ≈ 157;
    // five σ either side. Each of the other three maps takes 15 values.
    const SistemaIFS& feto = *SistemaIFSPorNome("Feto de Barnsley");
    const TabelaMapas t = TabelaEscolha(feto);
    SemearAleatorio(20261123);
    const int n = 100'000;
    int contagem[4] = {};
    for (int i = 0; i < n; ++i) {
        const int m = t[int(Aleatorio() * 100)];
        ASSERT_GE(m, 0);
        ++contagem[feto.mapas[m] == feto.mapas[0] ? 0 : m];
    }
    const double probabilidades[4] = {0.55, 0.15, 0.15, 0.15};
    for (int m = 0; m < 4; ++m) {
        const double p = probabilidades[m], sigma = std::sqrt(n * p * (1 - p));
        EXPECT_NEAR(contagem[m], n * p, 5 * sigma) << "map " << m;
    }
}

TEST(UniformeIFS, ValoresDeRIgualmenteProvaveis)
{
    // int(U·100) over 10⁵ draws for a few seeds (0 among them): Pearson's χ² with 99 degrees
    // of freedom stays below 148.2, its 99.9% quantile; and U never reaches 1.
    for (const std::uint64_t semente : {0ull, 1ull, 0x123456789ABCull, ~0ull}) {
        UniformeIFS u(semente);
        int contagem[100] = {};
        for (int i = 0; i < 100'000; ++i) {
            const double v = u();
            ASSERT_GE(v, 0.0);
            ASSERT_LT(v, 1.0);
            ++contagem[int(v * 100)];
        }
        double chi2 = 0;
        for (const int c : contagem)
            chi2 += (c - 1000.0) * (c - 1000.0) / 1000.0;
        EXPECT_LT(chi2, 148.2) << "seed " << semente;
    }
    // Different seeds, different streams.
    UniformeIFS a(1), b(2);
    int iguais = 0;
    for (int i = 0; i < 1000; ++i)
        iguais += a() == b();
    EXPECT_LT(iguais, 5);
}

// A system with a map repeated draws, step by step, what one copy with the summed range
// draws, under the same random numbers.
TEST(IteracaoIFS, MapaRepetidoIgualAUmaFaixaSomada)
{
    struct Caso { const char* nome; SistemaIFS somado; };
    const MapaAfim folha{0.3, 0.3, 0.3, -0.3, -0.15, 0.65}, haste{0.82, 0, 0, -0.82, 0.18, 0.91};
    const SistemaIFS* feto = SistemaIFSPorNome("Feto de Barnsley");
    const Caso casos[] = {
        {"Feto de Hata", SistemaIFS("Hata somado", {folha, haste}, Limites({40, 100}),
                                    SistemaIFSPorNome("Feto de Hata")->moldura)},
        {"Feto de Barnsley",
         SistemaIFS("Barnsley somado",
                    {feto->mapas[0], feto->mapas[1], feto->mapas[2], feto->mapas[3], feto->mapas[0]},
                    Limites({15, 30, 45, 60, 100}), feto->moldura)},
    };
    for (const Caso& c : casos) {
        SemearAleatorio(7);
        const std::vector<PontoF> repetido = Pontos(*SistemaIFSPorNome(c.nome), 20'000, Aleatorio);
        SemearAleatorio(7);
        const std::vector<PontoF> somado = Pontos(c.somado, 20'000, Aleatorio);
        EXPECT_EQ(repetido, somado) << c.nome;
    }
}

TEST(DesenharIFS, PixelComoOControloDeImagemOColoca)
{
    // Scale (-2, 2)-(2, -2) on 4 x 4 pixels: one unit per pixel, y upwards; a point lands at
    // ⌊(x + 2) + ½⌋, ⌊(2 − y) + ½⌋ and only inside the picture.
    const GrelhaPixeis g({-2, 2, 2, -2}, 4, 4);
    struct Caso { float x, y; bool dentro; int px, py; };
    const Caso casos[] = {
        {-2, 2, true, 0, 0},     {0, 0, true, 2, 2},       {1.49f, -1.49f, true, 3, 3},
        {-1.5f, 1.5f, true, 1, 1},  // ties round up, as ⌊v + ½⌋
        {1.5f, 0, false, 0, 0},  // column 4 is outside a 4-pixel row
        {-2.6f, 0, false, 0, 0}, {0, 2.6f, false, 0, 0},   {0, -1.6f, false, 0, 0},
        {NAN, 0, false, 0, 0},   {INFINITY, 0, false, 0, 0},
    };
    for (const Caso& c : casos) {
        int px = -1, py = -1;
        const bool dentro = g.Pixel(c.x, c.y, px, py);
        EXPECT_EQ(dentro, c.dentro) << c.x << ", " << c.y;
        if (dentro && c.dentro) {
            EXPECT_EQ((std::pair{px, py}), (std::pair{c.px, c.py})) << c.x << ", " << c.y;
        }
    }
}

TEST(DesenharIFS, CadaPontoEmTodasAsTelasEProgressoPorBloco)
{
    std::vector<std::uint32_t> a(64 * 64, 0), b(80 * 64, 0);  // b: a wider stride
    const Tela telas[] = {{a.data(), 64, 64, 64}, {b.data(), 64, 64, 80}};
    int blocos = 0;
    SemearAleatorio(3);
    DesenharIFS(TrianguloSierpinski(), 1000, telas, 0xFF0000FFu, Aleatorio, [&] { ++blocos; }, 300);
    EXPECT_EQ(blocos, 4);  // 300, 300, 300, 100
    int acesos = 0;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) {
            EXPECT_EQ(a[y * 64 + x], b[y * 80 + x]) << x << ", " << y;
            acesos += a[y * 64 + x] == 0xFF0000FFu;
        }
    for (int y = 0; y < 64; ++y)
        for (int x = 64; x < 80; ++x)
            EXPECT_EQ(b[y * 80 + x], 0u) << "outside the picture, in the stride";
    EXPECT_GT(acesos, 200);
}

TEST(DesenharIFS, CopiarCorLevaSoOsPixeisDessaCor)
{
    // 3 x 2 pictures, the source with a wider stride: only the pixels of colour 7 travel, and
    // they cover whatever the destination held.
    const std::uint32_t origem[] = {7, 1, 7, 99, 0, 7, 2, 99};
    std::uint32_t destino[] = {5, 5, 5, 5, 5, 5};
    CopiarCor({const_cast<std::uint32_t*>(origem), 3, 2, 4}, {destino, 3, 2, 3}, 7);
    const std::uint32_t esperado[] = {7, 5, 7, 5, 7, 5};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(destino[i], esperado[i]) << "pixel " << i;
}

// ---------------------------------------------------------------------------------------------
// The catalogue

// The norm of the linear part of every product of `comprimento` maps of the system.
bool ProdutosContraem(const SistemaIFS& s, int comprimento)
{
    std::vector<MapaAfim> produtos{{1, 0, 0, 1, 0, 0}};
    for (int i = 0; i < comprimento; ++i) {
        std::vector<MapaAfim> seguintes;
        for (const MapaAfim& p : produtos)
            for (const MapaAfim& m : s.Mapas())
                seguintes.push_back(Compor(m, p));
        produtos = std::move(seguintes);
    }
    return std::all_of(produtos.begin(), produtos.end(),
                       [](const MapaAfim& m) { return m.MaiorValorSingular() < 1; });
}

TEST(CatalogoIFS, SessentaEUmSistemasDeNomesUnicos)
{
    std::set<std::string> nomes;
    for (const SistemaIFS& s : CatalogoIFS())
        EXPECT_TRUE(nomes.insert(s.nome).second) << "twice: " << s.nome;
    EXPECT_EQ(nomes.size(), 61u);
    EXPECT_EQ(&TrianguloSierpinski(), SistemaIFSPorNome("Triângulo de Sierpinsky"));
    EXPECT_EQ(SistemaIFSPorNome("Folha2"), nullptr);
}

TEST(CatalogoIFS, FaixasCrescentesDisjuntasAteAoFim)
{
    // The only values of r left to no map are the idle ones the systems are known for.
    const std::map<std::string, std::set<int>> ociosos = {
        {"Dragão de Heighway", {51}}, {"Procissão dos caranguejos", {51}}, {"Estrela", {92}},
    };
    for (const SistemaIFS& s : CatalogoIFS()) {
        SCOPED_TRACE(s.nome);
        ASSERT_GE(s.numMapas, 2);
        ASSERT_LE(s.numMapas, kMaxMapas);
        EXPECT_EQ(s.faixas[0].de, 0);
        for (int m = 0; m < s.numMapas; ++m) {
            EXPECT_LE(s.faixas[m].de, s.faixas[m].ate) << "range " << m;
            if (m > 0) {
                EXPECT_GT(s.faixas[m].de, s.faixas[m - 1].ate) << "range " << m;
            }
        }
        const int fim = s.faixas[s.numMapas - 1].ate;
        EXPECT_TRUE(fim == 99 || fim == 100) << fim;
        std::set<int> livres;
        const TabelaMapas t = TabelaEscolha(s);
        for (int r = 0; r < 100; ++r)
            if (t[r] < 0)
                livres.insert(r);
        const auto o = ociosos.find(s.nome);
        EXPECT_EQ(livres, o == ociosos.end() ? std::set<int>{} : o->second);
    }
}

TEST(CatalogoIFS, OAtractorExiste)
{
    // Some maps stretch one direction and squeeze another (the Cantor castle's (0, −0.33, 1, 0)
    // keeps length along x): the attractor still exists when every product of a few maps
    // contracts.
    for (const SistemaIFS& s : CatalogoIFS()) {
        bool contrai = false;
        for (int comprimento = 1; comprimento <= (s.numMapas > 6 ? 3 : 4) && !contrai; ++comprimento)
            contrai = ProdutosContraem(s, comprimento);
        EXPECT_TRUE(contrai) << s.nome;
    }
}

// The extent of every attractor in its own coordinates, xmin, xmax, ymin, ymax (rounded
// outwards to 0.001): the bounding box of its convex hull, which is the limit of the maps
// applied over and over to a large polygon (taking the hull each time). Where the maths is
// plain it shows: Sierpinski's and Cantor's squares [0, 1]², the Weierstrass graph from
// (0, 0) to (1, 2), Heighway's dragon [−1/3, 7/6] x [−1/3, 2/3], Lévy's curve
// [−1/2, 3/2] x [−1/4, 1], the trees' tops at the fixed points of their top maps.
struct Caixa {
    const char* nome;
    double xmin, xmax, ymin, ymax;
};

const Caixa kCaixas[] = {
    {"Dragão", -6.770, 8.380, -1.201, 10.553},
    {"Estrela", -6.156, 6.102, -0.143, 10.110},
    {"Espiral", -7.036, 7.026, 0.424, 9.571},
    {"Folha1", -0.304, 0.304, -0.001, 0.790},
    {"Arbusto2", -0.311, 0.311, -0.001, 0.653},
    {"Arbusto", -0.318, 0.318, -0.001, 0.751},
    {"Árvore3", 0.070, 0.930, -0.001, 0.790},
    {"Estrela decomposta", -0.001, 1.001, -0.001, 1.001},
    {"Estrela de Cantor", -0.001, 1.001, -0.001, 1.001},
    {"Janelas de Cantor", 0.186, 0.814, 0.311, 0.689},
    {"Castelo de Cantor", -0.001, 1.001, -0.001, 1.001},
    {"Inscrições na pedra", -0.001, 1.001, -0.003, 1.001},
    {"Tijolo", -0.001, 1.001, -0.003, 1.001},
    {"Cavalo marinho", -0.001, 0.751, 0.149, 0.826},
    {"Folhas caídas", 0.097, 0.963, 0.202, 0.784},
    {"Folha de Hata", -0.054, 1.001, 0.199, 0.801},
    {"Feto de Hata", -0.001, 1.001, 0.253, 0.801},
    {"Labirinto de Cantor", -0.001, 1.001, -0.001, 1.001},
    {"Triângulo de Sierpinsky", -0.001, 1.001, -0.001, 1.001},
    {"Floresta2", -1.032, 1.032, -0.155, 1.001},
    {"Árvore na Primavera", -0.540, 0.540, -0.001, 1.091},
    {"Folha deitada", -0.534, 7.097, -2.224, 2.297},
    {"Curva de Von Kock", 0.143, 0.857, 0.247, 0.455},
    {"Árvore de Natal", -0.296, 0.296, -0.001, 1.001},
    {"Árvore de Levi", -1.001, 1.001, -0.001, 1.501},
    {"Coral", -4.932, 4.999, -0.069, 10.032},
    {"Árvore2", -0.239, 0.239, -0.001, 0.439},
    {"Toalha de renda2", 0.133, 0.867, 0.133, 0.867},
    {"Cristal simétrico", 0.022, 0.977, 0.096, 1.002},
    {"Cristal de neve2", 0.022, 0.977, 0.096, 1.002},
    {"Pentágonos centrados", -0.952, 0.952, -0.810, 1.001},
    {"Pentágono de Von Kock", 0.022, 0.977, 0.096, 1.002},
    {"Toalha de renda", 0.133, 0.867, 0.133, 0.867},
    {"Função de Weierstrass", -0.001, 1.001, -0.001, 2.001},
    {"Malha de Weieirstrass", -0.001, 1.001, -0.001, 0.667},
    {"Folha4", -19.044, 6.264, -17.167, 15.402},
    {"Árvore no Outono", 0.059, 0.941, -0.001, 0.821},
    {"Árvore de Levi2", -0.602, 0.602, -0.001, 1.052},
    {"Floresta", -0.001, 1.002, -0.001, 0.659},
    {"Cristal de neve", 0.153, 0.847, 0.203, 0.902},
    {"Folha de pé", -2.297, 2.224, -0.534, 7.097},
    {"Feto de Barnsley", 0.245, 0.850, -0.001, 1.419},
    {"Flocos de lã", 0.005, 1.006, 0.117, 0.657},
    {"Cristal", -4.421, 2.478, -0.038, 10.943},
    {"Triângulos lumerina", -0.001, 1.001, -0.001, 1.001},
    {"Papagaio de papel", -0.001, 1.001, 0.139, 0.801},
    {"Binário", -5.127, 4.874, -0.001, 10.001},
    {"ZigZag", -6.308, 6.300, -0.007, 10.026},
    {"àrvore", -0.298, 0.298, -0.001, 0.784},
    {"Twing", 0.005, 0.872, 0.264, 0.732},
    {"Fern 2", -0.315, 0.450, -0.533, 0.084},
    {"Mandel Like", -0.447, 0.750, -1.051, 0.116},
    {"Leaf 1", -0.001, 0.859, -0.001, 0.910},
    {"Leaf 2", -3.478, 3.338, -3.336, 3.307},
    {"Mandelbrot", -1.034, 0.750, -0.936, 0.936},
    {"Estrela de Julia 1", -1.022, 1.429, -0.778, 1.248},
    {"Estrela de Julia 2", -0.828, 1.429, -1.123, 1.014},
    {"Queen Anne's Lace", -1.001, 1.001, -1.001, 1.001},
    {"DragãoLevY", -0.501, 1.501, -0.251, 1.001},
    {"Dragão de Heighway", -0.334, 1.167, -0.334, 0.667},
    {"Procissão dos caranguejos", -0.334, 1.001, -0.167, 0.667},
};

TEST(CatalogoIFS, CadaSistemaEnquadradoNaImagem)
{
    constexpr int kLado = 627;
    ASSERT_EQ(std::size(kCaixas), CatalogoIFS().size());
    std::vector<std::uint32_t> pixeis(kLado * kLado);
    for (const Caixa& c : kCaixas) {
        const SistemaIFS* s = SistemaIFSPorNome(c.nome);
        ASSERT_NE(s, nullptr) << c.nome;
        SCOPED_TRACE(c.nome);

        // The box, through k, the offsets and the scale, in pixels.
        const Moldura& m = s->moldura;
        const GrelhaPixeis g(m.escala, kLado, kLado);
        const double px0 = (m.k * c.xmin - m.ox - g.esquerda) * g.fx;
        const double px1 = (m.k * c.xmax - m.ox - g.esquerda) * g.fx;
        const double py0 = (m.k * c.ymax - m.oy - g.topo) * g.fy;  // the top is ymax
        const double py1 = (m.k * c.ymin - m.oy - g.topo) * g.fy;
        // Nothing cut off, and the longer side across most of the picture.
        EXPECT_GE(px0, 0);
        EXPECT_GE(py0, 0);
        EXPECT_LT(px1, kLado - 1);
        EXPECT_LT(py1, kLado - 1);
        EXPECT_GT(std::max(px1 - px0, py1 - py0), 0.85 * kLado);

        // The drawing stays in the box and fills it.
        std::fill(pixeis.begin(), pixeis.end(), 0);
        const Tela tela{pixeis.data(), kLado, kLado, kLado};
        SemearAleatorio(11);
        DesenharIFS(*s, 300'000, std::span(&tela, 1), 1u, Aleatorio, [] {});
        int x0 = kLado, x1 = -1, y0 = kLado, y1 = -1;
        for (int y = 0; y < kLado; ++y)
            for (int x = 0; x < kLado; ++x)
                if (pixeis[y * kLado + x]) {
                    x0 = std::min(x0, x), x1 = std::max(x1, x);
                    y0 = std::min(y0, y), y1 = std::max(y1, y);
                }
        EXPECT_GE(x0, px0 - 1);
        EXPECT_LE(x1, px1 + 1);
        EXPECT_GE(y0, py0 - 1);
        EXPECT_LE(y1, py1 + 1);
        EXPECT_GE(x1 - x0, 0.85 * (px1 - px0) - 2);
        EXPECT_GE(y1 - y0, 0.85 * (py1 - py0) - 2);
    }
}

}  // namespace
}  // namespace lumerina
