// Colour tables against their key rows, the rounding of a table entry, the 16-colour palette
// and the colourings of the Mandelbrot page.

#include "frame/EsquemaCores.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace lumerina {
namespace {

struct Linha { int indice, r, g, b; };
struct Tabela {
    const char* nome;
    void (*preencher)(EsquemaCores&);
    std::vector<Linha> chave;
};

// The key rows of each table: between two of them every channel follows the straight line to
// within 4 units; at them it is exact.
const Tabela kTabelas[] = {
    {"Fogo", PreencherFogo,
     {{0, 0, 0, 0}, {1, 60, 60, 60}, {32, 252, 0, 0}, {64, 252, 252, 0}, {96, 252, 252, 252},
      {161, 252, 120, 0}, {193, 252, 0, 0}, {227, 152, 4, 4}, {255, 60, 60, 60}}},
    {"Vermelho", PreencherVermelho,
     {{0, 0, 0, 0}, {1, 144, 10, 229}, {20, 199, 0, 183}, {42, 243, 23, 116}, {63, 255, 73, 54},
      {85, 231, 141, 11}, {105, 183, 199, 0}, {127, 116, 243, 23}, {148, 54, 255, 73},
      {170, 11, 231, 141}, {189, 0, 186, 197}, {210, 20, 122, 241}, {230, 65, 62, 255},
      {231, 68, 60, 235}, {232, 71, 57, 255}, {253, 135, 14, 234}, {255, 141, 11, 230}}},
    {"Azul", PreencherAzul,
     {{0, 0, 0, 0}, {4, 0, 0, 16}, {32, 0, 0, 200}, {48, 0, 100, 224}, {55, 0, 156, 240},
      {62, 0, 200, 252}, {81, 156, 232, 252}, {83, 180, 236, 252}, {85, 196, 240, 252},
      {87, 220, 244, 252}, {91, 252, 252, 252}, {139, 0, 252, 252}, {164, 0, 124, 252},
      {165, 0, 104, 252}, {166, 0, 116, 252}, {182, 0, 32, 252}, {187, 0, 0, 252}, {250, 0, 0, 0},
      {251, 0, 0, 52}, {255, 0, 0, 60}}},
    {"Multicor", PreencherMulticor,
     {{0, 29, 133, 41}, {11, 82, 238, 225}, {12, 91, 255, 255}, {25, 0, 0, 255}, {38, 128, 255, 0},
      {51, 255, 0, 0}, {75, 255, 237, 0}, {76, 255, 255, 0}, {89, 255, 128, 0}, {102, 128, 64, 0},
      {115, 196, 196, 0}, {128, 255, 255, 128}, {139, 146, 36, 237}, {140, 128, 0, 255},
      {153, 255, 0, 128}, {166, 255, 128, 192}, {179, 0, 128, 0}, {192, 0, 255, 255},
      {203, 219, 36, 36}, {204, 255, 0, 0}, {217, 128, 128, 192}, {230, 0, 128, 255},
      {243, 255, 0, 0}, {254, 255, 219, 110}, {255, 255, 255, 128}}},
    {"Roxo", PreencherRoxo,
     {{0, 97, 0, 97}, {9, 126, 0, 157}, {18, 127, 0, 211}, {26, 103, 0, 255}, {37, 18, 0, 255},
      {38, 6, 0, 255}, {42, 0, 44, 255}, {56, 0, 158, 255}, {70, 0, 252, 255}, {73, 0, 255, 212},
      {80, 0, 255, 84}, {83, 0, 255, 9}, {85, 19, 255, 0}, {98, 105, 255, 0}, {128, 255, 255, 0},
      {157, 255, 98, 0}, {168, 255, 18, 0}, {170, 255, 0, 0}, {206, 251, 0, 0}, {254, 104, 0, 0},
      {255, 100, 0, 0}}},
};

TEST(EsquemaCores, CadaTabelaNaSuaFaixaEExactaNasLinhasChave)
{
    for (const Tabela& t : kTabelas) {
        EsquemaCores e;
        t.preencher(e);
        const double* canais[3] = {e.vermelho, e.verde, e.azul};
        for (std::size_t k = 0; k + 1 < t.chave.size(); ++k) {
            const Linha& a = t.chave[k];
            const Linha& b = t.chave[k + 1];
            const int chaveA[3] = {a.r, a.g, a.b}, chaveB[3] = {b.r, b.g, b.b};
            for (int c = 0; c < 3; ++c) {
                EXPECT_EQ(canais[c][a.indice], chaveA[c]) << t.nome << " key row " << a.indice;
                EXPECT_EQ(canais[c][b.indice], chaveB[c]) << t.nome << " key row " << b.indice;
                const double inclinacao = double(chaveB[c] - chaveA[c]) / (b.indice - a.indice);
                for (int i = a.indice; i <= b.indice; ++i) {
                    const double v = canais[c][i];
                    const double recta = chaveA[c] + inclinacao * (i - a.indice);
                    EXPECT_TRUE(v == std::floor(v) && v >= 0 && v <= 255) << t.nome << " " << i;
                    EXPECT_LE(std::abs(v - recta), 4.0) << t.nome << " " << i << " channel " << c;
                }
            }
        }
    }
    EsquemaCores azul;
    PreencherAzul(azul);
    for (const Linha& l : {Linha{1, 0, 0, 0}, Linha{2, 0, 0, 4}, Linha{3, 0, 0, 12}})
        EXPECT_EQ(CorEntrada(azul, l.indice), CorRGB(l.r, l.g, l.b)) << "Azul " << l.indice;
}

TEST(EsquemaCores, EntradaArredondadaAoParMaisProximo)
{
    EsquemaCores e{};
    const struct { double v; int esperado; } casos[] = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {3.5, 4}, {254.5, 254}, {3.49999, 3}, {3.50001, 4}, {7.0, 7},
        {255.0, 255}, {-0.5, 0}, {300.0, 255}, {-20.0, 0},
    };
    for (const auto& c : casos) {
        e.vermelho[9] = c.v, e.verde[9] = 1.0, e.azul[9] = c.v;
        EXPECT_EQ(CorEntrada(e, 9), CorRGB(c.esperado, 1, c.esperado)) << c.v;
    }
    e.vermelho[0] = 0x12, e.verde[0] = 0x34, e.azul[0] = 0x56;
    EXPECT_EQ(CorEntrada(e, 0), 0xFF123456u);  // the layout of QRgb
}

TEST(EsquemaCores, ColoracoesDaPaginaMandelbrot)
{
    EsquemaCores fogo, multicor;
    PreencherFogo(fogo);
    PreencherMulticor(multicor);
    const Cor dentro = CorRGB(1, 2, 3), fora = CorRGB(4, 5, 6);
    const OpcoesCor comFogo{Coloracao::Paleta, &fogo, dentro, fora};
    const OpcoesCor comMulticor{Coloracao::Paleta, &multicor, dentro, fora};
    const OpcoesCor tipo1{Coloracao::LinhasTipo1, nullptr, dentro, fora};
    const OpcoesCor tipo2{Coloracao::LinhasTipo2, nullptr, dentro, fora};
    const OpcoesCor semLinhas{Coloracao::SemLinhas, nullptr, dentro, fora};

    const struct {
        const char* caso;
        const OpcoesCor& opcoes;
        int n, N, i, j;
        Cor esperada;
    } casos[] = {
        {"palette, interior takes entry 0", comMulticor, 150, 150, 3, 4, CorRGB(29, 133, 41)},
        {"palette, escaped takes entry n", comFogo, 32, 150, 3, 4, CorRGB(252, 0, 0)},
        {"palette, N = 256, last entry", comFogo, 255, 256, 3, 4, CorRGB(60, 60, 60)},
        {"palette, entry 0 is black in Fogo", comFogo, 256, 256, 3, 4, CorRGB(0, 0, 0)},
        {"type 1, interior", tipo1, 150, 150, 300, 10, dentro},
        {"type 1, by position mod 255", tipo1, 7, 150, 300, 10, CorRGB(45, 10, 55)},
        {"type 1, 255 wraps to 0", tipo1, 7, 150, 255, 254, CorRGB(0, 254, 254)},
        {"type 1, i + j", tipo1, 7, 150, 254, 1, CorRGB(254, 1, 0)},
        {"type 2, interior at N = 150: colour 6", tipo2, 150, 150, 0, 0, CorRGB(128, 128, 0)},
        {"type 2, interior at N = 16: black", tipo2, 16, 16, 0, 0, CorRGB(0, 0, 0)},
        {"type 2, n = 17", tipo2, 17, 150, 0, 0, CorRGB(0, 0, 128)},
        {"type 2, n = 13", tipo2, 13, 150, 0, 0, CorRGB(255, 0, 255)},
        {"no lines, interior", semLinhas, 150, 150, 0, 0, dentro},
        {"no lines, outside", semLinhas, 149, 150, 0, 0, fora},
    };
    for (const auto& c : casos)
        EXPECT_EQ(CorMandelbrot(c.opcoes, c.n, c.N, c.i, c.j), c.esperada) << c.caso;

    // A whole column: row counter j runs with the counts.
    const int contagens[] = {150, 2, 150, 3};
    Cor cores[4];
    CoresColuna(tipo1, contagens, 150, 300, 3, cores);
    EXPECT_EQ(cores[0], dentro);
    EXPECT_EQ(cores[1], CorRGB(45, 1, 46));
    EXPECT_EQ(cores[2], dentro);
    EXPECT_EQ(cores[3], CorRGB(45, 3, 48));
}

}  // namespace
}  // namespace lumerina
