// The Julia page: validation order and the double message, presets, family options, the
// crossed colours, the row of the exponential family and the inverse iteration's points.

#include "app/Paginas.h"
#include "complex/PaginaJulia.h"
#include "frame/ControloImagem.h"
#include "frame/EsquemaCores.h"
#include "frame/JanelaDesenho.h"
#include "interp/LerValor.h"
#include "support/TestePagina.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include <cmath>

namespace lumerina::teste {
namespace {

const QRgb kBranco = qRgb(255, 255, 255);

class PaginaJuliaTeste : public TestePagina<PaginaJulia, Form::Julia> {
protected:
    void Desenhar() { Premir("Desenhar"); }
    int NaoBrancos() const
    {
        int n = 0;
        const QImage& img = imagem->Imagem();
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                n += img.pixel(x, y) != kBranco;
        return n;
    }
};

TEST_F(PaginaJuliaTeste, ValidacaoPelaOrdemEMensagemDupla)
{
    Lado(12);
    const char* vazio = "É necessário indicar todas as dimensões da janela de desenho.";
    const char* ordemY = "O valor de Ymáx deve ser maior que o de Ymín.";
    const char* ordemX = "O valor de Xmáx deve ser maior que o de Xmín.";
    const char* inteiro = "O número de iterações deve ser um número inteiro.";
    const char* negativo = "O número de iterações não pode ser negativo.";
    const char* gama = "O número de iterações deve estar compreendido entre 1 e 256.";
    const char* inteiroSemPonto = "O número de iterações deve ser um número inteiro";
    // `antes`: a successful drawing just before. Checks 1, 6, 7 and 8 keep the valid flag, so
    // after a success their message comes twice (button, then drawing) and the drawing runs.
    struct Caso { bool antes; const char* campo; const char* valor; const char* texto; int vezes; bool desenha; };
    const Caso casos[] = {
        {false, "NumIterações", "150", nullptr, 0, true},
        {false, "NumIterações", "0", nullptr, 0, true},
        {false, "NumIterações", "256", nullptr, 0, true},
        {false, "NumIterações", " 12 ", nullptr, 0, true},
        {false, "Xmínimo", " ", vazio, 1, false},
        {false, "Ymáximo", "", vazio, 1, false},
        {false, "Ymáximo", "-2", ordemY, 1, false},
        {false, "Xmáximo", "-2", ordemX, 1, false},
        {false, "NumIterações", "abc", inteiro, 1, false},
        {false, "NumIterações", "", inteiro, 1, false},
        {false, "NumIterações", "-3", negativo, 1, false},
        {false, "NumIterações", "257", gama, 1, false},
        {false, "NumIterações", "2.5", inteiroSemPonto, 1, false},
        {true, "Xmínimo", "", vazio, 2, true},
        {true, "NumIterações", "-3", negativo, 2, true},
        {true, "NumIterações", "300", gama, 2, true},
        {true, "NumIterações", "2.5", inteiroSemPonto, 2, true},
        {true, "Ymínimo", "2", ordemY, 1, false},
        {true, "Xmínimo", "2", ordemX, 1, false},
        {true, "NumIterações", "x", inteiro, 1, false},
    };
    for (const Caso& c : casos) {
        Vista("-1.5", "1.5", "-1.5", "1.5");
        Texto("NumIterações", "20");
        if (!c.antes) {  // a failure of check 3 clears the valid flag
            Texto("Ymínimo", "2");
            Desenhar();
            Texto("Ymínimo", "-1.5");
        } else {
            Desenhar();
            ASSERT_TRUE(janela->desenhado);
        }
        Texto(c.campo, c.valor);
        sistema->mensagens.clear();
        janela->desenhado = false;
        Desenhar();
        SCOPED_TRACE(std::string(c.campo) + " = \"" + c.valor + "\"" + (c.antes ? " after a drawing" : ""));
        ASSERT_EQ(int(sistema->mensagens.size()), c.vezes);
        for (const MensagemGravada& m : sistema->mensagens) {
            EXPECT_EQ(m.titulo, "Conjuntos de Julia");
            EXPECT_EQ(m.texto, QString::fromUtf8(c.texto));
            EXPECT_EQ(m.icone, IconeMensagem::Informacao);
        }
        EXPECT_EQ(janela->desenhado, c.desenha);
        // A failure that clears the flag: the next failure of check 1 is no longer drawn.
        if (!c.desenha) {
            Vista("", "1.5", "-1.5", "1.5");
            sistema->mensagens.clear();
            Desenhar();
            EXPECT_EQ(sistema->mensagens.size(), 1u);
            EXPECT_FALSE(janela->desenhado);
        }
    }
}

TEST_F(PaginaJuliaTeste, SoAIteracaoInversaPassaDe256)
{
    Lado(40);
    Escolher("IteraçãoInversa");
    Texto("NumIterações", "300");
    Desenhar();
    EXPECT_TRUE(sistema->mensagens.empty());
    EXPECT_TRUE(janela->desenhado);
    EXPECT_EQ(sistema->cedencias, 0);  // the inverse iteration does not yield
    const int pontos = NaoBrancos();
    EXPECT_GT(pontos, 0);
    EXPECT_LE(pontos, 250);  // 300 - 50 points, some may share a pixel
}

// The points take dialog B's colour, whatever the colouring option.
TEST_F(PaginaJuliaTeste, IteracaoInversaNaCorB)
{
    Lado(60);
    Escolher("IteraçãoInversa");
    sistema->coresEscolhidas = {QColor(200, 0, 0)};
    Achar<QPushButton>(pagina, "Command9")->click();
    Escolher("LinhasTipo2");
    Texto("NumIterações", "2000");
    Desenhar();
    const QImage& img = imagem->Imagem();
    for (int y = 0; y < img.height(); ++y) {
        for (int x = 0; x < img.width(); ++x) {
            if (img.pixel(x, y) != kBranco) {
                ASSERT_EQ(img.pixel(x, y), qRgb(200, 0, 0)) << x << "," << y;
            }
        }
    }
}

// Nothing bounds the number of points: a count in the trillions must still give way to
// "Abandonar" (a yield every 65 536 points), and the picture is then not taken as drawn.
TEST_F(PaginaJuliaTeste, IteracaoInversaEnormeCedeEPodeSerAbandonada)
{
    Lado(60);
    Escolher("IteraçãoInversa");
    Texto("NumIterações", "1e12");
    int ultima = 0;
    sistema->aoCeder = [&](int vez) {
        ultima = vez;
        if (vez == 3)
            Sistema().PedirFim();
    };
    Desenhar();
    EXPECT_EQ(ultima, 3);
    EXPECT_FALSE(janela->desenhado);
    EXPECT_TRUE(Achar<QPushButton>(pagina, "Desenhar")->isEnabled());
}

TEST_F(PaginaJuliaTeste, ValoresPreDefinidosEscrevemCeDSemDesenhar)
{
    struct Caso { const char* lista; int posicao; const char* nome; const char* c; const char* d; double k, kd; };
    const Caso casos[] = {
        {"Combo1", 0, "k = - 0.48 - 0.53 i", "-0.480", "-0.530", -0.48, -0.53},
        {"Combo1", 5, "k = - 0.873 + 0.218 i", "-0.873", "0.218)", -0.873, 0.218},
        {"Combo1", 20, "k = - 0.818 + 0.254 i", "-0.818", "0.254", -0.818, 0.254},
        {"Combo2", 6, "k = 1 + 0.3i", " 1", " 0.3", 1, 0.3},
        {"Combo3", 5, "k =1+ 0.6 i", " 1", " 0.6", 1, 0.6},
        {"Combo4", 2, "k = - 1.370", " - 1.310", " 0", -1.31, 0},
        {"Combo4", 6, "k = 0.745 + 0.3 i", " 0.745", " 0.3", 0.745, 0.3},
    };
    for (const Caso& c : casos) {
        emit Achar<QComboBox>(pagina, c.lista)->activated(c.posicao);
        EXPECT_EQ(Campo("ValorDeC"), QString::fromUtf8(c.c)) << c.nome;
        EXPECT_EQ(Campo("ValorDeD"), QString::fromUtf8(c.d)) << c.nome;
        EXPECT_EQ(LerValor(Campo("ValorDeC").toStdString()), c.k) << c.nome;
        EXPECT_EQ(LerValor(Campo("ValorDeD").toStdString()), c.kd) << c.nome;
    }
    EXPECT_EQ(sistema->cedencias, 0);
    EXPECT_FALSE(janela->desenhado);
}

TEST_F(PaginaJuliaTeste, ParenteseDoSlot6LeSeComoONumero)
{
    Lado(50);
    emit Achar<QComboBox>(pagina, "Combo1")->activated(5);
    Desenhar();
    const QImage comParentese = imagem->Imagem().copy();
    Texto("ValorDeD", "0.218");
    Desenhar();
    EXPECT_EQ(imagem->Imagem(), comParentese);
    Texto("ValorDeD", "0");
    Desenhar();
    EXPECT_NE(imagem->Imagem(), comParentese);
}

TEST_F(PaginaJuliaTeste, OpcoesDeFamilia)
{
    struct Caso {
        const char* opcao; const char* lista;
        const char *xmin, *xmax, *ymin, *ymax, *c, *d, *n, *semLinhas;
    };
    const char* colorido = "Com o conjunto colorido (escolha as cores)";
    const Caso casos[] = {
        {"KapaSenoZ", "Combo2", "-6.28", "6.28", "-4.75", "4.75", "1", "0.2", "50", colorido},
        {"IteraçãoNormal", "Combo1", "-1.5", "1.5", "-1.5", "1.5", nullptr, nullptr, "50", colorido},
        {"KapaExpZ", "Combo4", "-4", "4", "-4", "3", "3", "3", "50", "Com cores em tempo de escape 2"},
        {"IteraçãoInversa", "Combo1", "-2", "2", "-2", "2", nullptr, nullptr, "50000", colorido},
        {"KapaCosenoZ", "Combo3", "-6.28", "6.28", "-4.75", "4.75", "0.9876", "0.9876", "50", colorido},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.opcao);
        Texto("ValorDeC", "0.1");
        Texto("ValorDeD", "0.2");
        Achar<QLineEdit>(pagina, "ValorDeC")->setEnabled(false);
        Escolher(c.opcao);
        for (const char* lista : {"Combo1", "Combo2", "Combo3", "Combo4"})
            EXPECT_EQ(!Achar<QComboBox>(pagina, lista)->isHidden(), std::string(lista) == c.lista) << lista;
        const std::pair<const char*, const char*> campos[] = {
            {"Xmínimo", c.xmin}, {"Xmáximo", c.xmax}, {"Ymínimo", c.ymin}, {"Ymáximo", c.ymax},
            {"ValorDeC", c.c ? c.c : "0.1"}, {"ValorDeD", c.d ? c.d : "0.2"}, {"NumIterações", c.n},
        };
        for (const auto& [campo, texto] : campos)
            EXPECT_EQ(LerValor(Campo(campo).toStdString()), LerValor(texto)) << campo;
        EXPECT_TRUE(Achar<QLineEdit>(pagina, "ValorDeC")->isEnabled());
        EXPECT_EQ(Achar<QRadioButton>(pagina, "SemLinhas")->text(), QString::fromUtf8(c.semLinhas));
    }
}

TEST_F(PaginaJuliaTeste, CoresCruzadasNaIteracaoNormal)
{
    Lado(41);
    // The centre, z0 = 0, is in the filled set of k = -0.48 - 0.53i (k is in the main
    // cardioid); the corner -1.5 - 1.5i starts outside the circle of radius 2 (n = 0).
    Escolher("IteraçãoNormal");
    Texto("ValorDeC", "-0.48");
    Texto("ValorDeD", "-0.53");
    Texto("NumIterações", "150");
    Desenhar();
    // Column i and row counter j at picture row 41 - j; x0 = -1.5 + 3i/40.
    EXPECT_EQ(Pixel(20, 21), Paleta16[9]);  // i = 20, j = 20: z0 = 0, bounded
    EXPECT_EQ(Pixel(0, 40), Paleta16[0]);   // j = 1: -1.5 - 1.425i, n = 0
    Escolher("SemLinhas");
    sistema->coresEscolhidas = {QColor(255, 0, 0), QColor(0, 255, 0)};
    Achar<QPushButton>(pagina, "Command8")->click();
    Achar<QPushButton>(pagina, "Command9")->click();
    EXPECT_TRUE(Achar<QLabel>(pagina, "Label5")->styleSheet().contains("#ff0000"));
    EXPECT_TRUE(Achar<QLabel>(pagina, "Label9")->styleSheet().contains("#00ff00"));
    Desenhar();
    EXPECT_EQ(Pixel(20, 21), qRgb(0, 255, 0));  // bounded: "Cor exterior"
    EXPECT_EQ(Pixel(0, 40), qRgb(255, 0, 0));   // escaping: "Cor interior"
    // N = 0: every point counts as bounded.
    Texto("NumIterações", "0");
    Desenhar();
    EXPECT_EQ(Pixel(0, 40), qRgb(0, 255, 0));
}

// k·exp z with k = 1 and N = 1 near x0 = 3.5: a point escapes at step 1 exactly when
// e^3.5 · cos y0 > 20, a band of rows around y0 = 0. Its rows are drawn one higher than the
// other families draw them; the rest keeps the background.
TEST_F(PaginaJuliaTeste, ExponencialUmaLinhaAcimaEFundoPorDesenhar)
{
    constexpr int H = 30;
    Lado(10, H);
    Escolher("KapaExpZ");
    Vista("3.5", "3.5001", "-3", "3");
    Texto("ValorDeC", "1");
    Texto("ValorDeD", "0");
    Texto("NumIterações", "1");
    for (const char* coloracao : {"SemLinhas", "LinhasTipo2"}) {
        Escolher(coloracao);
        Desenhar();
        for (int j = 0; j <= H; ++j) {
            const double y0 = -3 + j * 6.0 / (H - 1);
            const bool foge = std::exp(3.5) * std::cos(y0) > 20;
            const int linha = H - 1 - j;
            if (linha < 0)
                continue;
            for (int i : {0, 4, 9}) {
                const QRgb esperada = !foge ? kBranco
                                     : std::string(coloracao) == "SemLinhas"
                                         ? Paleta16[1]  // step 1 mod 15
                                         : qRgb(std::abs(i - j) % 255, std::abs(j - 18) % 255, (i + j) % 255);
                EXPECT_EQ(Pixel(i, linha), esperada) << coloracao << ": i " << i << ", j " << j;
            }
        }
    }
    // N = 0: no step, nothing escapes, nothing drawn.
    Texto("NumIterações", "0");
    Desenhar();
    EXPECT_EQ(NaoBrancos(), 0);
}

TEST_F(PaginaJuliaTeste, DesenhoCedePorColunaEDesactivaBotoes)
{
    Lado(30, 20);
    struct Caso { const char* opcao; const char* n; };
    for (const Caso& c : {Caso{"IteraçãoNormal", "20"}, Caso{"KapaSenoZ", "10"},
                          Caso{"KapaCosenoZ", "10"}, Caso{"KapaExpZ", "10"}}) {
        Escolher(c.opcao);
        Texto("NumIterações", c.n);
        int vezes = 0;
        sistema->aoCeder = [&](int vez) {
            vezes = vez;
            EXPECT_TRUE(sistema->cursorEspera);
            for (const char* b : {"Desenhar", "ApagarGráfico", "CopiarGráfico", "GuardarGráfico"})
                EXPECT_FALSE(Achar<QPushButton>(pagina, b)->isEnabled()) << b;
        };
        Desenhar();
        SCOPED_TRACE(c.opcao);
        EXPECT_EQ(vezes, 31);  // columns 0..W
        EXPECT_FALSE(sistema->cursorEspera);
        EXPECT_TRUE(Achar<QPushButton>(pagina, "Desenhar")->isEnabled());
        EXPECT_TRUE(janela->desenhado);
        // World coordinates at the end: upper-left (Xmin, Ymax).
        EXPECT_DOUBLE_EQ(imagem->EscalaX(0), LerValor(Campo("Xmínimo").toStdString()));
        EXPECT_DOUBLE_EQ(imagem->EscalaY(0), double(float(LerValor(Campo("Ymáximo").toStdString()))));
    }
    sistema->aoCeder = nullptr;
    // k.sen (z) turns C, D and the first list back on at its end.
    Escolher("KapaSenoZ");
    for (const char* nome : {"ValorDeC", "ValorDeD"})
        Achar<QWidget>(pagina, nome)->setEnabled(false);
    Achar<QWidget>(pagina, "Combo1")->setEnabled(false);
    Desenhar();
    for (const char* nome : {"ValorDeC", "ValorDeD", "Combo1"})
        EXPECT_TRUE(Achar<QWidget>(pagina, nome)->isEnabled()) << nome;
}

// Whatever is typed, a press of "Desenhar" draws, refuses, or (after a success, with a check
// that keeps the valid flag) says its message twice and draws: never more, never a crash.
TEST_F(PaginaJuliaTeste, EntradasEstranhasNaoRebentam)
{
    Lado(12);
    const char* valores[] = {
        "", " ", "abc", "(", "1,2", "x", "-", "1.5.5", "1e308", "-1e308", "10^300", "1/0",
        "sqr(-1)", "0", "-0", "2147483648", "257", "1e-320", "0.218)", " - 1.310",
    };
    for (const char* familia : {"IteraçãoNormal", "KapaSenoZ", "KapaCosenoZ", "KapaExpZ"}) {
        Escolher(familia);
        for (const char* campo : {"Xmínimo", "Ymáximo", "NumIterações", "ValorDeC", "ValorDeD"}) {
            for (const char* valor : valores) {
                // A huge count that a kept valid flag lets through would draw for ages.
                if (std::string(campo) == "NumIterações" && LerValor(valor) > 1000)
                    continue;
                Vista("-2", "2", "-2", "2");
                Texto("NumIterações", "20");
                Texto("ValorDeC", "0.3");
                Texto("ValorDeD", "0.5");
                Texto(campo, valor);
                sistema->mensagens.clear();
                janela->desenhado = false;
                Desenhar();
                SCOPED_TRACE(std::string(familia) + ", " + campo + " = \"" + valor + "\"");
                EXPECT_LE(sistema->mensagens.size(), 2u);
                if (sistema->mensagens.size() == 2u) {
                    EXPECT_TRUE(janela->desenhado);
                }
            }
        }
    }
}

TEST_F(PaginaJuliaTeste, SairFechaAPagina)
{
    pagina->show();
    Achar<QPushButton>(pagina, "Sair")->click();
    EXPECT_FALSE(pagina->isVisible());
    EXPECT_EQ(Pagina(1), pagina);  // kept, not rebuilt
}

}  // namespace
}  // namespace lumerina::teste
