// The Mandelbrot page: validation order, drawing state, colourings changed mid-drawing,
// orientation of the picture, zoom and redraw.

#include "app/Paginas.h"
#include "complex/PaginaMandelbrot.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "support/TestePagina.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>

namespace lumerina::teste {
namespace {

const QRgb kCastanho = qRgb(128, 128, 0);  // colour 6 of the 16-colour palette

class Mandelbrot : public TestePagina<PaginaMandelbrot, Form::Mandelbrot> {
protected:
    void Desenhar() { Premir("DesenharMandelbrot"); }
};

TEST_F(Mandelbrot, ValidacaoPelaOrdemComAsMensagensDaPagina)
{
    // On load the rectangle is already read, before any drawing.
    EXPECT_DOUBLE_EQ(janela->xmin, -1.6);
    EXPECT_EQ(janela->ymax, 1.3f);
    Lado(20);
    const char* inteiro = "O número de iterações deve ser um número inteiro.";
    const char* gama = "O número de iterações deve estar compreendido entre 1 e 256.";
    struct Caso { const char* n; const char* texto; };
    const Caso casos[] = {
        {"256", nullptr}, {"1", nullptr}, {" 12 ", nullptr},
        {"257", gama},    {"0", gama},    {"-3", gama},
        {"2.5", inteiro}, {"abc", inteiro}, {"", inteiro},
    };
    for (const Caso& c : casos) {
        sistema->mensagens.clear();
        janela->desenhado = false;
        Texto("MaxIterações", c.n);
        Desenhar();
        SCOPED_TRACE(c.n);
        if (!c.texto) {
            EXPECT_TRUE(sistema->mensagens.empty());
            EXPECT_TRUE(janela->desenhado);
        } else {
            ASSERT_EQ(sistema->mensagens.size(), 1u);
            EXPECT_EQ(sistema->mensagens[0].titulo, "Conjunto de Mandelbrot");
            EXPECT_EQ(sistema->mensagens[0].texto, QString::fromUtf8(c.texto));
            EXPECT_FALSE(janela->desenhado);
        }
    }
    // The limits are checked before the count, and an empty Ymáximo is no failure.
    sistema->mensagens.clear();
    Texto("Xmínimo", "");
    Desenhar();
    ASSERT_EQ(sistema->mensagens.size(), 1u);
    EXPECT_EQ(sistema->mensagens[0].titulo, "Lumerina");
    sistema->mensagens.clear();
    Vista("-2", "1", "-1", "");
    Texto("MaxIterações", "50");
    Desenhar();
    EXPECT_TRUE(sistema->mensagens.empty());
    EXPECT_TRUE(janela->desenhado);
    EXPECT_EQ(janela->ymax, 1.3f);
}

TEST_F(Mandelbrot, DesenhoDesactivaOsBotoesECedePorColuna)
{
    Lado(30);
    int cedencias = 0;
    sistema->aoCeder = [&](int vez) {
        cedencias = vez;
        EXPECT_TRUE(sistema->cursorEspera);
        for (const char* b : {"DesenharMandelbrot", "ApagarGráfico", "CopiarGráfico", "GuardarGráfico"})
            EXPECT_FALSE(Achar<QPushButton>(pagina, b)->isEnabled()) << b;
        EXPECT_TRUE(Achar<QRadioButton>(pagina, "LinhasTipo1")->isEnabled());
    };
    Desenhar();
    EXPECT_EQ(cedencias, 31);  // columns 0..W inclusive
    EXPECT_FALSE(sistema->cursorEspera);
    EXPECT_TRUE(Achar<QPushButton>(pagina, "DesenharMandelbrot")->isEnabled());
    EXPECT_TRUE(janela->desenhado);
    // The picture now speaks world coordinates.
    EXPECT_DOUBLE_EQ(imagem->EscalaX(0), -1.6);
    EXPECT_DOUBLE_EQ(imagem->EscalaY(0), double(1.3f));
}

TEST_F(Mandelbrot, LinhaDeBaixoEYMinimo)
{
    // Inside the main cardioid near the real axis, far outside at the top.
    Lado(40);
    Vista("-0.5", "-0.1", "-0.2", "3");
    Escolher("SemLinhas");
    sistema->coresEscolhidas = {QColor(255, 0, 0), QColor(0, 0, 255)};
    Achar<QPushButton>(pagina, "Command8")->click();
    Achar<QPushButton>(pagina, "Command9")->click();
    EXPECT_TRUE(Achar<QLabel>(pagina, "Label5")->styleSheet().contains("#ff0000"));
    Desenhar();
    // Row j = 0 (y = Ymin) is drawn at picture row H = 40, past the edge; row 39 is j = 1.
    for (int x = 0; x < 40; ++x) {
        EXPECT_EQ(Pixel(x, 39), qRgb(255, 0, 0)) << x;
        EXPECT_EQ(Pixel(x, 0), qRgb(0, 0, 255)) << x;
    }
}

TEST_F(Mandelbrot, ColoracaoMudadaAMeioValeNaColunaSeguinte)
{
    Lado(24);
    Vista("-0.2", "0.1", "-0.1", "0.1");  // every point interior
    Escolher("LinhasTipo2");
    sistema->aoCeder = [&](int vez) {
        if (vez == 8)  // after column 7
            Escolher("LinhasTipo1");
        if (vez == 16)  // after column 15: N = 16 from column 16 on
            Texto("MaxIterações", "16");
    };
    Desenhar();
    for (int y = 0; y < 24; ++y) {
        EXPECT_EQ(Pixel(7, y), kCastanho);               // 150 AND 15 = 6
        EXPECT_EQ(Pixel(8, y), qRgb(0, 0, 0));           // interior colour, black until chosen
    }
    Escolher("LinhasTipo2");
    sistema->aoCeder = [&](int vez) {
        if (vez == 16)
            Texto("MaxIterações", "16");
        if (vez == 20)
            Texto("MaxIterações", "abc");  // half typed: N stays
    };
    Texto("MaxIterações", "150");
    Desenhar();
    EXPECT_EQ(Pixel(15, 5), kCastanho);
    EXPECT_EQ(Pixel(16, 5), qRgb(0, 0, 0));  // 16 AND 15 = 0
    EXPECT_EQ(Pixel(23, 5), qRgb(0, 0, 0));
}

// The scroll bars stay live while the page draws: shrinking or growing the picture in the
// middle of a drawing must not write outside it.
TEST_F(Mandelbrot, RedimensionarAMeioDoDesenho)
{
    Lado(120);
    sistema->aoCeder = [&](int vez) {
        if (vez == 20) {
            Achar<QScrollBar>(pagina, "HScroll1")->setValue(40);
            Achar<QScrollBar>(pagina, "VScroll1")->setValue(30);
        }
        if (vez == 60)
            Achar<QScrollBar>(pagina, "HScroll1")->setValue(100);
    };
    Desenhar();
    EXPECT_TRUE(janela->desenhado);
    EXPECT_EQ(imagem->LarguraPixeis(), 100);
    EXPECT_EQ(imagem->AlturaPixeis(), 30);
}

// A zoom box dragged while the page draws (the picture still counts as drawn from before):
// the saved image is the whole picture, and the columns drawn after the box reach the screen.
TEST_F(Mandelbrot, CaixaDeZoomDuranteODesenho)
{
    Lado(80);
    Texto("MaxIterações", "30");
    Desenhar();  // drawn: the mouse may zoom
    const QImage referencia = imagem->Imagem().copy();
    sistema->aoCeder = [&](int vez) {
        if (vez == 5) {
            Rato(QEvent::MouseButtonPress, {2, 2}, Qt::LeftButton, Qt::LeftButton);
            Rato(QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::LeftButton);
        }
        if (vez == 8)
            Rato(QEvent::MouseButtonRelease, {60, 60}, Qt::LeftButton, Qt::NoButton);
    };
    Desenhar();
    EXPECT_EQ(imagem->Imagem(), referencia);
    const QImage ecra = imagem->ImagemEcra();
    for (int y = 0; y < 80; ++y) {
        for (int x = 16; x < 80; ++x) {  // the blocks of columns written after the box
            ASSERT_EQ(ecra.pixel(x, y), referencia.pixel(x, y)) << x << "," << y;
        }
    }
}

// Whatever is typed into any field, a press of "Desenhar" either draws or says one message.
TEST_F(Mandelbrot, EntradasEstranhasNaoRebentam)
{
    Lado(12);
    const char* valores[] = {
        "", " ", "abc", "(", ")", "1,2", "x", "-", "1.5.5", "1e308", "10^308", "-10^308",
        "10^300", "1/0", "sqr(-1)", "0", "-0", "2147483648", "257", "256", "1e-320", "pi*10^-300",
    };
    for (const char* campo : {"Xmínimo", "Xmáximo", "Ymínimo", "Ymáximo", "MaxIterações"}) {
        for (const char* valor : valores) {
            Vista("-2", "1", "-1.5", "1.5");
            Texto("MaxIterações", "20");
            Texto(campo, valor);
            sistema->mensagens.clear();
            janela->desenhado = false;
            Desenhar();
            EXPECT_LE(sistema->mensagens.size(), 1u) << campo << " = " << valor;
            EXPECT_EQ(sistema->mensagens.empty(), janela->desenhado) << campo << " = " << valor;
        }
    }
    // Limits so far apart that their difference overflows still draw, and zoom safely.
    Vista("-10^308", "10^308", "-1", "1");
    Texto("MaxIterações", "20");
    Desenhar();
    EXPECT_TRUE(janela->desenhado);
    Arrastar({1, 5}, {9, 9});
    sistema->mensagens.clear();
    Desenhar();  // whatever the fields now say
    EXPECT_LE(sistema->mensagens.size(), 1u);
}

TEST_F(Mandelbrot, OutraPaletaAMeioNaoMudaAsCores)
{
    Lado(32);
    Texto("MaxIterações", "40");
    Escolher("CorVermelho");
    Desenhar();
    const QImage vermelho = imagem->Imagem().copy();
    sistema->aoCeder = [&](int vez) {
        if (vez == 5)
            Escolher("CorAzul");
    };
    Escolher("CorVermelho");
    Desenhar();
    EXPECT_EQ(imagem->Imagem(), vermelho);
    sistema->aoCeder = nullptr;
    Desenhar();  // Azul now, from the start
    EXPECT_NE(imagem->Imagem(), vermelho);
}

TEST_F(Mandelbrot, ZoomEscreveOsLimitesEODesenhoSeguinteAmplia)
{
    Lado(100);
    Vista("-2", "1", "-1.5", "1.5");
    Texto("MaxIterações", "30");
    Desenhar();
    Arrastar({50, 25}, {75, 75});
    // x = -2 + px * 3/100, y = 1.5 - py * 3/100
    EXPECT_EQ(Limites(), (QStringList{"-0.5", "0.25", "-0.75", "0.75"}));
    Desenhar();
    EXPECT_DOUBLE_EQ(janela->xmin, -0.5);
    EXPECT_DOUBLE_EQ(janela->xmax, 0.25);
    EXPECT_DOUBLE_EQ(imagem->EscalaX(100), 0.25);
}

// "Abandonar o programa" chosen while the page draws: the drawing stops at that column and
// the program's main loop ends with code 0.
TEST_F(Mandelbrot, AbandonarAMeioDoDesenho)
{
    Lado(200);
    int ultima = 0;
    sistema->aoCeder = [&](int vez) {
        ultima = vez;
        if (vez == 10)
            Achar<QAction>(pagina, "Abandonar")->trigger();
    };
    QTimer::singleShot(0, [&] { Desenhar(); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(ultima, 10);
}

}  // namespace
}  // namespace lumerina::teste

namespace lumerina::teste {
namespace {

// The default drawing, pixel for pixel, against a picture kept from before the page was
// rebuilt on the shared drawing frame.
TEST_F(Mandelbrot, DesenhoPredefinidoIgualAoDeReferencia)
{
    Desenhar();
    const QImage referencia(QStringLiteral(LUMERINA_DADOS_TESTE "/mandelbrot-predefinido.png"));
    ASSERT_FALSE(referencia.isNull());
    EXPECT_EQ(imagem->Imagem().convertToFormat(QImage::Format_RGB32),
              referencia.convertToFormat(QImage::Format_RGB32));
}

// A refused drawing has already cleared the picture: the zoom box has no world to measure
// there, exactly as after Apagar.
TEST_F(Mandelbrot, DesenhoRecusadoNaoDeixaAmpliar)
{
    Lado(100);
    Desenhar();
    ASSERT_TRUE(janela->desenhado);
    Texto("Xmínimo", "1/0");
    Desenhar();
    ASSERT_EQ(sistema->UltimoTexto(), "Divisão por zero.");
    Arrastar({50, 25}, {75, 75});
    EXPECT_EQ(Limites(), (QStringList{"1/0", "0.6", "-1.3", "1.3"}));
}

}  // namespace
}  // namespace lumerina::teste
