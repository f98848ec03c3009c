// The Newton page: its checks in order, a drawing that leaves the buttons live, the limits read
// again leniently, the twenty colourings at points whose step counts are worked out by hand,
// the inversion, and the degree and colouring changed during a drawing.
//
// The views below have steps of 1/8, exact in binary, so that grid points fall exactly on
// chosen numbers: x and y from −1 to 3 on a 32 x 32 picture put x = −1 + i/8 in column i and
// y = −1 + j/8 on picture row 32 − j. Step counts used (see the kernel's tests):
//   n = 3: z = 1 settles in s = 1 step; z = 2 in s = 5 (1.4167, 1.1105, 1.0106, 1.0001, ...)
//   n = 2: z = 2 settles in s = 4 (1.25, 1.025, 1.0003, 1.00000005)
//          z = 3 in s = 5 (1.6667, 1.1333, 1.0078, 1.00003, 1 + 5e-10)

#include "app/Paginas.h"
#include "complex/PaginaNewton.h"
#include "frame/ControloImagem.h"
#include "frame/EsquemaCores.h"
#include "frame/JanelaDesenho.h"
#include "support/TestePagina.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

namespace lumerina::teste {
namespace {

constexpr int kLado = 32;
// Pixels of grid points on the real axis (y = 0 is row 32 − 8).
constexpr int kLinhaEixo = 24;
constexpr int kColuna1 = 16, kColuna1e5 = 20, kColuna2 = 24;

QRgb Cinzento(int v) { return qRgb(v, v, v); }

class Newton : public TestePagina<PaginaNewton, Form::Newton> {
protected:
    void SetUp() override
    {
        TestePagina::SetUp();
        if (HasFatalFailure())
            return;
        Lado(kLado);
        Vista("-1", "3", "-1", "3");
    }
    void Desenhar(const char* botao = "Newton") { Premir(botao); }
    void Enter(const char* campo)
    {
        auto* c = Achar<QLineEdit>(pagina, campo);
        c->setFocus();
        QTest::keyClick(c, Qt::Key_Return);
    }
};

TEST_F(Newton, ValidacaoPelaOrdemComOsTitulosDaPagina)
{
    const char* lumerina = "Lumerina";
    const char* newton = "Método de Newton";
    const char* limites = "São necessários todos os limites da janela de desenho.";
    const char* ys = "O valor de Ymáx deve ser maior que o de Ymín.";
    const char* xs = "O valor de Xmáx deve ser maior que o de Xmín.";
    const char* inteiro = "O expoente deve ser um número inteiro.";
    const char* maior = "O expoente deve ser um número maior que 1.";
    struct Caso {
        const char *xmin, *xmax, *ymin, *ymax, *grau;
        const char *titulo, *texto;  // null: the drawing goes on
    };
    const Caso casos[] = {
        {"-1", "3", "-1", "3", "3", nullptr, nullptr},
        {"-1", "3", "-1", "3", " 12 ", nullptr, nullptr},
        {"-1", "3*1", "-1", "2+1", "2", nullptr, nullptr},
        {"", "3", "-1", "3", "3", lumerina, limites},
        {"-1", "3", "-1", " ", "3", lumerina, limites},  // the top limit is tested too
        {"", "3", "3", "-1", "1", lumerina, limites},
        {"-1", "3", "-1", "2*", "3", "Interpretador", nullptr},
        {"-1", "3", "3", "-1", "3", newton, ys},
        {"3", "-1", "3", "-1", "1", newton, ys},  // Y before X, both before the degree
        {"3", "-1", "-1", "3", "abc", newton, xs},
        {"-1", "3", "-1", "3", "abc", newton, inteiro},
        {"-1", "3", "-1", "3", "2.5", newton, inteiro},
        {"-1", "3", "-1", "3", "-2.5", newton, inteiro},  // whole number before "above 1"
        {"-1", "3", "-1", "3", "", newton, inteiro},
        {"-1", "3", "-1", "3", "3x", newton, inteiro},
        {"-1", "3", "-1", "3", "inf", newton, inteiro},
        {"-1", "3", "-1", "3", "1", newton, maior},
        {"-1", "3", "-1", "3", "0", newton, maior},
        {"-1", "3", "-1", "3", "-3", newton, maior},
    };
    for (const char* botao : {"Newton", "Inversa"}) {
        for (const Caso& c : casos) {
            SCOPED_TRACE(std::string(botao) + ": " + c.xmin + " " + c.xmax + " " + c.ymin + " " +
                         c.ymax + " degree '" + c.grau + "'");
            sistema->mensagens.clear();
            janela->desenhado = false;
            Vista(c.xmin, c.xmax, c.ymin, c.ymax);
            Texto("Expoente", c.grau);
            Desenhar(botao);
            if (!c.titulo) {
                EXPECT_TRUE(sistema->mensagens.empty());
                EXPECT_TRUE(janela->desenhado);
                continue;
            }
            ASSERT_EQ(sistema->mensagens.size(), 1u);
            EXPECT_EQ(sistema->mensagens[0].titulo, QString::fromUtf8(c.titulo));
            if (c.texto) {
                EXPECT_EQ(sistema->mensagens[0].texto, QString::fromUtf8(c.texto));
            }
            EXPECT_EQ(sistema->mensagens[0].icone, IconeMensagem::Informacao);
            EXPECT_FALSE(janela->desenhado);
            EXPECT_EQ(sistema->cedencias, 0);
        }
    }
}

TEST_F(Newton, OsBotoesFicamActivosEHaUmaCedenciaPorColuna)
{
    int cedencias = 0;
    sistema->aoCeder = [&](int vez) {
        cedencias = vez;
        EXPECT_TRUE(sistema->cursorEspera);
        for (const char* b : {"Newton", "Inversa", "ApagarGráfico", "CopiarGráfico", "GuardarGráfico"})
            EXPECT_TRUE(Achar<QPushButton>(pagina, b)->isEnabled()) << b;
    };
    Desenhar();
    EXPECT_EQ(cedencias, kLado + 1);  // columns 0..W, the last one past the edge
    EXPECT_FALSE(sistema->cursorEspera);
    EXPECT_TRUE(janela->desenhado);
    // The picture speaks world coordinates: (Xmin, Ymax) at the top left.
    EXPECT_DOUBLE_EQ(imagem->EscalaX(0), -1);
    EXPECT_DOUBLE_EQ(imagem->EscalaY(0), 3);
    EXPECT_DOUBLE_EQ(imagem->EscalaX(kLado), 3);
}

TEST_F(Newton, LimitesRelidosComoNumerosSimples)
{
    // "2*pi" passes the checks as 6.283…, but the drawing reads the field as the number 2.
    Escolher("Cor2");
    Texto("Xmáximo", "2");
    Desenhar();
    const QImage comDois = imagem->Imagem().copy();
    janela->ApagarGrafico();
    Texto("Xmáximo", "2*pi");
    Desenhar();
    EXPECT_TRUE(sistema->mensagens.empty());
    EXPECT_EQ(imagem->Imagem(), comDois);
    EXPECT_DOUBLE_EQ(janela->xmax, 2);
    // The zoom box measures what was drawn: pixel 16 is −1 + 16·3/32, not −1 + 16·7.28…/32.
    Arrastar({16, 16}, {0, 0});
    EXPECT_EQ(Limites(), (QStringList{"-1", "0.5", "1", "3"}));
    Vista("-1", "2*pi", "-1", "3");

    janela->ApagarGrafico();
    Texto("Xmáximo", "6.2832");
    Desenhar();
    EXPECT_NE(imagem->Imagem(), comDois);

    // The typographic minus is a minus here too.
    Texto("Xmáximo", "2");
    Texto("Xmínimo", "\u22121");
    Desenhar();
    EXPECT_DOUBLE_EQ(janela->xmin, -1);

    // The top limit is read in single precision.
    Texto("Ymáximo", "3.1");
    Desenhar();
    EXPECT_EQ(janela->ymax, 3.1f);
}

// Every colouring at two points of the real axis, for degree 3: z = 1 (s = 1) and z = 2
// (s = 5), each from the colouring's own rule.
TEST_F(Newton, VinteColoracoesNosPontosConhecidos)
{
    struct Opcao {
        const char* nome;
        void (*tabela)(EsquemaCores&);  // null: no table
        int desvio;                     // entry (s + desvio) mod 255
        int r = 0, g = 0, b = 0;        // without a table: (r·s, g·s, b·s) mod 255
    };
    const Opcao opcoes[] = {
        {"CorFogo", PreencherFogo, 0},       {"CorFogo1", PreencherFogo, 20},
        {"CorFogo2", PreencherFogo, 40},     {"CorAzul", PreencherAzul, 0},
        {"CorAzul1", PreencherAzul, 20},     {"CorAzul2", PreencherAzul, 40},
        {"CorVermelho", PreencherVermelho, 0}, {"CorVermelho1", PreencherVermelho, 20},
        {"CorVermelho2", PreencherVermelho, 40}, {"CorMulticor", PreencherMulticor, 0},
        {"CorMulticolor1", PreencherMulticor, 20}, {"CorMulticolor2", PreencherMulticor, 40},
        {"CorRoxo", PreencherRoxo, 0},       {"CorRoxo1", PreencherRoxo, 20},
        {"CorRoxo2", PreencherRoxo, 40},
        {"Cor1", nullptr, 0, 30, 10, 50},    {"Cor2", nullptr, 0, 20, 20, 20},
        {"Cor3", nullptr, 0, 100, 150, 200}, {"Cor4", nullptr, 0, 50, 100, 150},
    };
    const auto esperada = [](const Opcao& o, int s) {
        if (!o.tabela)
            return QRgb(qRgb(o.r * s % 255, o.g * s % 255, o.b * s % 255));
        EsquemaCores e;
        o.tabela(e);
        return QRgb(CorEntrada(e, (s + o.desvio) % 255));
    };
    // A fresh page draws z = 1 (s = 1) in Fogo's entry 1, grey 60.
    Desenhar();
    EXPECT_EQ(Pixel(kColuna1, kLinhaEixo), Cinzento(60));
    for (const Opcao& o : opcoes) {
        Escolher(o.nome);
        Desenhar();
        EXPECT_EQ(Pixel(kColuna1, kLinhaEixo), esperada(o, 1)) << o.nome;
        EXPECT_EQ(Pixel(kColuna2, kLinhaEixo), esperada(o, 5)) << o.nome;
    }
    // The 16 colours: entry s mod 16, blue for 1, magenta for 5.
    Escolher("Cor5");
    Desenhar();
    EXPECT_EQ(Pixel(kColuna1, kLinhaEixo), qRgb(0, 0, 128));
    EXPECT_EQ(Pixel(kColuna2, kLinhaEixo), qRgb(128, 0, 128));
}

TEST_F(Newton, InversaoSemSomarOCentroESaltandoOCentro)
{
    // Degree 2 in greys of 20s. About the centre 1 with k = 1, the grid point 1.5 starts
    // from 1/conj(0.5) = 2 (s = 4, grey 80); with the centre added back it would start from 3
    // (s = 5, grey 100). The grid point 2 starts from 1 itself (s = 1, grey 20).
    Escolher("Cor2");
    Texto("Expoente", "2");
    Texto("Xzero", "1");
    janela->ApagarGrafico();  // white
    Desenhar("Inversa");
    EXPECT_EQ(Pixel(kColuna1e5, kLinhaEixo), Cinzento(80));
    EXPECT_EQ(Pixel(kColuna2, kLinhaEixo), Cinzento(20));
    // The grid point on the centre is skipped: it keeps what the picture had there.
    EXPECT_EQ(Pixel(kColuna1, kLinhaEixo), qRgb(255, 255, 255));
    EXPECT_NE(Pixel(kColuna1 - 1, kLinhaEixo), qRgb(255, 255, 255));

    // k = 2 about 0: the grid point 1 starts from 2 (s = 4); the plain drawing there has s = 1.
    // Enter in a field of the inversion's frame draws with inversion; elsewhere, plainly.
    Texto("Xzero", "0");
    Texto("Factor", "2");
    pagina->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(pagina));
    Enter("Factor");
    EXPECT_EQ(Pixel(kColuna1, kLinhaEixo), Cinzento(80));
    Enter("Expoente");
    EXPECT_EQ(Pixel(kColuna1, kLinhaEixo), Cinzento(20));
    Desenhar("Inversa");
    EXPECT_EQ(Pixel(kColuna1, kLinhaEixo), Cinzento(80));
    Enter("Ymáximo");
    EXPECT_EQ(Pixel(kColuna1, kLinhaEixo), Cinzento(20));
}

// The degree is read again after every column; a value the checks would refuse keeps the
// one in force. The field changes in the yield after column 9, before column 24 (z = 2) is
// drawn: degree 2 gives s = 4 there (grey 80), degree 3 s = 5 (grey 100).
TEST_F(Newton, GrauRelidoDepoisDeCadaColuna)
{
    struct Caso { const char* novo; int cinzento; };
    const Caso casos[] = {{"2", 80}, {" 2 ", 80}, {"abc", 100}, {"", 100},
                          {"1", 100}, {"2.5", 100}, {"2x", 100}, {"3", 100}};
    Escolher("Cor2");
    for (const Caso& c : casos) {
        Texto("Expoente", "3");
        sistema->aoCeder = [&](int vez) {
            if (vez == 10)
                Texto("Expoente", c.novo);
        };
        Desenhar();
        EXPECT_EQ(Pixel(kColuna2, kLinhaEixo), Cinzento(c.cinzento)) << "'" << c.novo << "'";
    }
    // Column 8 (z = 0 … ) was drawn before the change: the same as a drawing in degree 3.
    sistema->aoCeder = nullptr;
    Texto("Expoente", "3");
    Desenhar();
    const QImage grau3 = imagem->Imagem().copy();
    sistema->aoCeder = [&](int vez) {
        if (vez == 10)
            Texto("Expoente", "2");
    };
    Desenhar();
    for (int y = 0; y < kLado; ++y)
        EXPECT_EQ(Pixel(8, y), grau3.pixel(8, y)) << "row " << y;
}

TEST_F(Newton, ColoracaoMudadaAMeioValeNaColunaSeguinteComATabelaDoInicio)
{
    // From Cor 2 to Cor 4: z = 2 (s = 5) takes (250, 500, 750) mod 255.
    Escolher("Cor2");
    sistema->aoCeder = [&](int vez) {
        if (vez == 10)
            Escolher("Cor4");
    };
    Desenhar();
    EXPECT_EQ(Pixel(kColuna2, kLinhaEixo), qRgb(250, 245, 240));
    const QRgb antes = Pixel(8, kLinhaEixo);  // column 8, drawn before the change: a grey
    EXPECT_TRUE(qRed(antes) == qGreen(antes) && qGreen(antes) == qBlue(antes));

    // From Azul to Fogo 1: the table stays the one filled as the drawing began.
    Escolher("CorAzul");
    sistema->aoCeder = [&](int vez) {
        if (vez == 10)
            Escolher("CorFogo1");
    };
    Desenhar();
    EsquemaCores azul;
    PreencherAzul(azul);
    EXPECT_EQ(Pixel(kColuna2, kLinhaEixo), QRgb(CorEntrada(azul, 25)));
}

TEST_F(Newton, UmCliqueDuranteODesenhoNaoComecaOutro)
{
    int cedencias = 0;
    sistema->aoCeder = [&](int vez) {
        cedencias = std::max(cedencias, vez);
        if (vez == 5) {
            Achar<QPushButton>(pagina, "Newton")->click();
            Achar<QPushButton>(pagina, "Inversa")->click();
        }
    };
    Desenhar();
    EXPECT_EQ(cedencias, kLado + 1);
    EXPECT_TRUE(janela->desenhado);
}

TEST_F(Newton, EntradasEstranhasNaoRebentam)
{
    // Limits the lenient reading turns into an empty, reversed or overflowing rectangle, and
    // degrees far from the usual: each draws or says one message.
    struct Caso { const char *xmin, *xmax, *ymin, *ymax, *grau, *k, *a, *b; };
    const Caso casos[] = {
        {"0*1", "0+1", "-1", "3", "3", "1", "0", "0"},        // drawn from 0 to 0
        {"-0.5*pi", "-1", "-1", "3", "3", "1", "0", "0"},    // drawn from -0.5 down to -1
        {"-1", "1e39", "-1", "3", "3", "1", "0", "0"},        // beyond single precision
        {"-1e38", "1e38", "-3e38", "3e38", "12", "1", "0", "0"},
        {"-1", "3", "-1", "3", "40", "1e300", "1", "1"},
        {"-1", "3", "-1", "3", "3", "0", "0", "0"},
        {"-1", "3", "-1", "3", "2", "-1e-300", "-1", "3"},
    };
    for (const Caso& c : casos) {
        for (const char* botao : {"Newton", "Inversa"}) {
            sistema->mensagens.clear();
            Vista(c.xmin, c.xmax, c.ymin, c.ymax);
            Texto("Expoente", c.grau);
            Texto("Factor", c.k);
            Texto("Xzero", c.a);
            Texto("Yzero", c.b);
            Desenhar(botao);
            EXPECT_LE(sistema->mensagens.size(), 1u) << c.xmin << " " << c.xmax << " " << botao;
        }
    }
}

}  // namespace
}  // namespace lumerina::teste
