// The picture control: two layers, invert mode, scales and mouse positions.

#include "frame/ControloImagem.h"
#include "support/TestePagina.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace lumerina {
namespace {

// Something to draw over: every pixel different.
void Pintar(ControloImagem& imagem)
{
    for (int y = 0; y < imagem.AlturaPixeis(); ++y) {
        QRgb* linha = imagem.Linha(y);
        for (int x = 0; x < imagem.LarguraPixeis(); ++x)
            linha[x] = qRgb(x & 255, y & 255, (x * 7 + y * 3) & 255);
    }
    imagem.Sujar(QRect(0, 0, imagem.LarguraPixeis(), imagem.AlturaPixeis()));
}

TEST(ControloImagem, CaixaInvertidaDuasVezesApagaSe)
{
    ControloImagem imagem(nullptr, 120, 90);
    Pintar(imagem);
    const QImage antes = imagem.Imagem().copy();
    imagem.DefinirPersistente(false);
    imagem.DefinirModo(ModoDesenho::Inverter);
    struct Caixa { int x1, y1, x2, y2; EstiloTraco estilo; };
    const Caixa caixas[] = {
        {10, 10, 60, 40, EstiloTraco::Pontilhado}, {60, 40, 10, 10, EstiloTraco::Continuo},
        {5, 20, 80, 20, EstiloTraco::Pontilhado},  {30, 5, 30, 70, EstiloTraco::Continuo},
        {7, 7, 7, 7, EstiloTraco::Continuo},       {100, 80, 140, 120, EstiloTraco::Pontilhado},
        {11, 12, 12, 13, EstiloTraco::Continuo},
    };
    for (const Caixa& c : caixas) {
        imagem.DefinirEstilo(c.estilo);
        imagem.Caixa(c.x1, c.y1, c.x2, c.y2, 0);
        EXPECT_NE(imagem.ImagemEcra(), antes) << c.x1 << "," << c.y1;
        imagem.Caixa(c.x1, c.y1, c.x2, c.y2, 0);
        EXPECT_EQ(imagem.ImagemEcra(), antes) << c.x1 << "," << c.y1;
    }
    // Drawn on the screen only: the persistent image never changed.
    EXPECT_EQ(imagem.Imagem(), antes);
}

TEST(ControloImagem, CaixaNaoPersistenteSoNoEcra)
{
    ControloImagem imagem(nullptr, 50, 50);
    imagem.DefinirPersistente(false);
    imagem.DefinirModo(ModoDesenho::Inverter);
    imagem.Caixa(5, 5, 20, 20, 0);
    EXPECT_EQ(imagem.ImagemEcra().pixel(5, 5), qRgb(0, 0, 0));  // white inverted
    EXPECT_EQ(imagem.Imagem().pixel(5, 5), qRgb(255, 255, 255));
    // Persistent drawing shows on the screen too, under the box.
    imagem.DefinirPersistente(true);
    imagem.DefinirModo(ModoDesenho::Copiar);
    imagem.Pixel(30, 30, qRgb(1, 2, 3));
    EXPECT_EQ(imagem.Imagem().pixel(30, 30), qRgb(1, 2, 3));
    EXPECT_EQ(imagem.ImagemEcra().pixel(30, 30), qRgb(1, 2, 3));
    EXPECT_EQ(imagem.ImagemEcra().pixel(5, 5), qRgb(0, 0, 0));
    imagem.Limpar();
    EXPECT_EQ(imagem.ImagemEcra(), imagem.Imagem());
}

TEST(ControloImagem, EscalaDoUtilizadorComYParaCima)
{
    ControloImagem imagem(nullptr, 628, 628);
    imagem.Escala(-2, 1, 1, -1);  // upper-left, lower-right
    EXPECT_DOUBLE_EQ(imagem.LarguraEscala(), 3);
    EXPECT_DOUBLE_EQ(imagem.AlturaEscala(), -2);
    imagem.Pixel(-2, 1, qRgb(9, 9, 9));
    EXPECT_EQ(imagem.Imagem().pixel(0, 0), qRgb(9, 9, 9));
    imagem.Pixel(-0.5, 0, qRgb(8, 8, 8));
    EXPECT_EQ(imagem.Imagem().pixel(314, 314), qRgb(8, 8, 8));
    imagem.Pixel(-2, -0.9, qRgb(7, 7, 7));  // lower y, lower on the picture
    EXPECT_EQ(imagem.Imagem().pixel(0, 597), qRgb(7, 7, 7));

    QSignalSpy premido(&imagem, &ControloImagem::RatoPremido);
    teste::Rato(&imagem, QEvent::MouseButtonPress, {314, 157}, Qt::LeftButton, Qt::LeftButton);
    ASSERT_EQ(premido.count(), 1);
    EXPECT_DOUBLE_EQ(premido[0][1].toDouble(), -2 + 314 * 3.0 / 628);
    EXPECT_DOUBLE_EQ(premido[0][2].toDouble(), 1 - 157 * 2.0 / 628);
    EXPECT_GT(premido[0][2].toDouble(), 0);

    imagem.EscalaPixeis();
    EXPECT_DOUBLE_EQ(imagem.LarguraEscala(), 628);
}

TEST(ControloImagem, RedimensionarGuardaODesenho)
{
    ControloImagem imagem(nullptr, 100, 100);
    imagem.Pixel(10, 20, qRgb(1, 2, 3));
    imagem.Redimensionar(60, 150);
    EXPECT_EQ(imagem.LarguraPixeis(), 60);
    EXPECT_EQ(imagem.AlturaPixeis(), 150);
    EXPECT_EQ(imagem.Imagem().pixel(10, 20), qRgb(1, 2, 3));
    EXPECT_EQ(imagem.Imagem().pixel(50, 140), qRgb(255, 255, 255));
    EXPECT_DOUBLE_EQ(imagem.LarguraEscala(), 60);
    // Coordinates far off the picture draw nothing and do not fault.
    imagem.Linha(-1e300, 5, 1e300, 5, qRgb(4, 4, 4));
    imagem.Pixel(1e9, -1e9, qRgb(4, 4, 4));
    EXPECT_EQ(imagem.Imagem().pixel(30, 5), qRgb(4, 4, 4));
}

// A point set with a wide pen is a square of the pen's width around it, cut by the edges.
TEST(ControloImagem, PontoComCanetaLarga)
{
    struct Caso { int espessura, x, y, acesos; };
    const Caso casos[] = {
        {1, 5, 5, 1}, {3, 5, 5, 9}, {3, 0, 0, 4}, {3, 9, 9, 4}, {2, 5, 5, 4}, {5, 5, 5, 25},
    };
    for (const Caso& c : casos) {
        ControloImagem imagem(nullptr, 10, 10);
        imagem.DefinirEspessura(c.espessura);
        imagem.Pixel(c.x, c.y, qRgb(255, 0, 0));
        int acesos = 0;
        for (int y = 0; y < 10; ++y)
            for (int x = 0; x < 10; ++x)
                acesos += imagem.Imagem().pixel(x, y) == qRgb(255, 0, 0);
        EXPECT_EQ(acesos, c.acesos) << "width " << c.espessura << " at " << c.x << "," << c.y;
        EXPECT_EQ(imagem.Imagem().pixel(c.x, c.y), qRgb(255, 0, 0));
    }
}

}  // namespace
}  // namespace lumerina
