// The L-systems page: the example buttons (whose names do not follow their captions), what
// Desenhar shows in the picture, in Resultado and in Label8, the growth limit, and the text box
// that holds the whole string.

#include "app/Paginas.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "geometric/CaixaTextoLongo.h"
#include "geometric/PaginaLSistemas.h"
#include "support/TestePagina.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace lumerina::teste {
namespace {

const QRgb kAzulClaro = qRgb(0, 0, 255);  // colour 9 of the 16-colour palette

class LSistemas : public TestePagina<PaginaLSistemas, Form::LSistemas> {
protected:
    void SetUp() override
    {
        TestePagina::SetUp();
        if (!HasFatalFailure())
            resultado = Achar<CaixaTextoLongo>(pagina, "Resultado");
    }
    // The fields of a drawing: axiom, rule, passes, start, angles, initial step, reduction.
    void Definir(const char* axioma, const char* regra, const char* repete, const char* x = "100",
                 const char* y = "100", const char* mais = "90", const char* menos = "-90",
                 const char* inicio = "-10", const char* reducao = "1")
    {
        Texto("Axioma", axioma);
        Texto("Substituição", regra);
        Texto("Repete", repete);
        Texto("xbox", x);
        Texto("ybox", y);
        Texto("AngPos", mais);
        Texto("AngNeg", menos);
        Texto("Início", inicio);
        Texto("Redução", reducao);
    }
    void Desenhar() { Premir("Desenhar"); }
    QString Comprimento() { return Achar<QLabel>(pagina, "Label8")->text(); }
    bool Azul(int x, int y) const { return Pixel(x, y) == kAzulClaro; }
    int PixeisAzuis() const
    {
        int n = 0;
        const QImage& img = imagem->Imagem();
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                n += img.pixel(x, y) == kAzulClaro;
        return n;
    }

    CaixaTextoLongo* resultado = nullptr;
};

TEST_F(LSistemas, CadaExemploPreencheOsCamposDoSeuBotao)
{
    // Button, caption, axiom, rule, AngPos, AngNeg, Repete, Redução, Início, x, y.
    struct Linha { const char* botao; const char* legenda; const char* campos[9]; };
    const Linha tabela[] = {
        {"Option1", "1", {"F", "F[+F]F[-F]F", "-25.7", "25.7", "4", "1", "-5", "316", "631"}},
        {"Option2", "2", {"F", "FF+[+F-F-F]-[-F+F+F]", "25", "-25", "4", "1", "-10", "316", "631"}},
        {"Option3", "3", {"F", "F[+F][-F]", "45", "-30", "6", "0.718", "-100", "316", "631"}},
        {"Option4", "4", {"F", "F[+FF][-F]", "30", "-45", "6", "0.718", "-100", "316", "631"}},
        {"Option11", "5", {"++--F", "F[-F]F[+F][F]", "30", "-30", "5", "1", "-9", "330", "600"}},
        {"Option6", "6", {"F-F-F-F", "FF-F-F-F-FF", "-90", "90", "4", "1", "-5", "116", "500"}},
        {"Option7", "7", {"F-F-F-F", "FF-F+F-F-FF", "-90", "90", "4", "1", "-5", "250", "380"}},
        {"Option8", "8", {"F-F-F-F", "FF-F-F-F-F-F+F", "-90", "90", "3", "1", "-10", "110", "280"}},
        {"Option9", "9", {"F-F-F-F", "F-FF--F-F", "-90", "90", "4", "1", "-8", "250", "180"}},
        {"Option10", "10", {"F++F++F++", "F+F--F+F", "-60", "60", "4", "1", "-6", "480", "560"}},
        {"Option5", "11", {"--F", "F+F--F+F", "-45", "45", "4", "1", "-3", "100", "350"}},
        {"Option12", "12", {"F+F+F+F", "F+F-F-FF+F+F-F", "90", "-90", "4", "1", "-1", "180", "440"}},
        {"Option13", "13", {"F++F++F", "F-F++F-F", "60", "-60", "4", "1", "-2", "250", "400"}},
        {"Option16", "14", {"F", "F+FF+FFF", "-60", "60", "5", "1", "-10", "316", "300"}},
        {"Option18", "15", {"F+F+F+F", "F+FF++F+F", "90", "90", "4", "1", "-10", "250", "150"}},
        {"Option20", "16", {"F+F+F+F", "FF+F++F+F", "90", "90", "3", "1", "-10", "200", "450"}},
    };
    const char* campos[9] = {"Axioma", "Substituição", "AngPos", "AngNeg", "Repete",
                             "Redução", "Início", "xbox", "ybox"};
    for (const Linha& l : tabela) {
        Definir("", "", "", "", "", "", "", "", "");
        auto* botao = Achar<QRadioButton>(pagina, l.botao);
        ASSERT_NE(botao, nullptr);
        EXPECT_EQ(botao->text(), QString::fromUtf8(l.legenda)) << l.botao;
        botao->click();
        for (int k = 0; k < 9; ++k)
            EXPECT_EQ(Campo(campos[k]), QString::fromUtf8(l.campos[k]))
                << "button " << l.botao << ", field " << campos[k];
    }
    // The buttons only fill the fields: nothing was drawn.
    EXPECT_EQ(Comprimento(), "");
    EXPECT_EQ(PixeisAzuis(), 0);
}

TEST_F(LSistemas, AbreNoExemplo1EDesenhaAPlanta)
{
    // This page's names, the clear button's included (plain "Apagar" here).
    for (const char* nome : {"Label3", "Label12", "Apagar", "CopiarGráfico", "GuardarGráfico",
                             "Picture1"})
        Achar(pagina, nome);
    EXPECT_EQ(pagina->findChild<QWidget*>(QStringLiteral("ApagarGráfico")), nullptr);
    EXPECT_EQ(Campo("Substituição"), "F[+F]F[-F]F");
    // Enter in a field draws, as Desenhar does.
    pagina->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(pagina));
    auto* repete = Achar<QLineEdit>(pagina, "Repete");
    repete->setFocus();
    QTest::keyClick(repete, Qt::Key_Return);
    EXPECT_EQ(Comprimento(), "1561");  // 1 + 10·(1 + 5 + 25 + 125)
    EXPECT_EQ(resultado->Texto().size(), 1561u);
    EXPECT_EQ(resultado->TextoQt().left(12), "F[+F]F[-F]F[");
    // The stem starts at (316, 631), just below the picture's last row (627), and goes up.
    for (int y = 615; y <= 627; ++y)
        EXPECT_TRUE(Azul(316, y)) << y;
    EXPECT_FALSE(Azul(300, 620));
    EXPECT_TRUE(sistema->mensagens.empty());
    EXPECT_FALSE(sistema->cursorEspera);
    EXPECT_TRUE(Achar<QPushButton>(pagina, "Apagar")->isEnabled());
    EXPECT_TRUE(Achar<QPushButton>(pagina, "Desenhar")->isEnabled());
}

// Where the segments land: y grows downwards, a positive angle turns clockwise on screen, the
// axiom is drawn as it stands with no pass, and only upper-case F is rewritten.
TEST_F(LSistemas, ResultadoComprimentoEPixeis)
{
    struct Caso {
        const char* axioma; const char* regra; const char* repete;
        const char* resultado; int azuis; QPoint dentro, fora;
        const char* porque;
    };
    const Caso casos[] = {
        {"F", "FF", "0", "F", 11, {100, 90}, {100, 101}, "no pass: the axiom, one segment up"},
        {" F ", "FF", "0.9", "F", 11, {100, 95}, {100, 89}, "Repete's integer part; trimmed"},
        {"F", "FF", "2", "FFFF", 41, {100, 60}, {100, 59}, "two passes: four segments"},
        {"F", "F", "abc", "F", 11, {100, 90}, {100, 89}, "Repete not a number: no pass"},
        {"+F", "F", "1", "+F", 11, {110, 100}, {100, 90}, "+90 turns up into right"},
        {"-F", "F", "1", "-F", 11, {90, 100}, {110, 100}, "-90 turns up into left"},
        {"fF", "FF", "2", "fFFFF", 41, {100, 60}, {100, 59}, "f is neither rewritten nor drawn"},
        {"F xé", "F", "3", "F xé", 11, {100, 90}, {100, 89}, "foreign characters counted"},
        {"F-F", "", "1", "-", 0, {0, 0}, {100, 100}, "an empty rule removes every F"},
        {"F[+F]F", "F", "1", "F[+F]F", 31, {110, 90}, {100, 79}, "] brings the turtle back"},
        {"", "FF", "3", "", 0, {0, 0}, {100, 100}, "an empty axiom: an empty result"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.porque);
        Definir(c.axioma, c.regra, c.repete);
        Desenhar();
        EXPECT_EQ(resultado->TextoQt(), QString::fromUtf8(c.resultado));
        EXPECT_EQ(Comprimento(), QString::number(QString::fromUtf8(c.resultado).size()));
        EXPECT_EQ(PixeisAzuis(), c.azuis);
        if (c.azuis > 0) {
            EXPECT_TRUE(Azul(c.dentro.x(), c.dentro.y()));
        }
        EXPECT_FALSE(Azul(c.fora.x(), c.fora.y()));
    }
    EXPECT_TRUE(sistema->mensagens.empty());
}

// Steps and angles at the edge of the doubles: the position stops where an assignment would
// overflow, steps turn infinite or not numbers, and the drawing goes on without a message.
TEST_F(LSistemas, ValoresExtremosDesenhamSemRebentar)
{
    struct Caso { const char* campos[9]; };
    const Caso casos[] = {
        {{"F", "F+F", "6", "100", "100", "45", "-45", "1e308", "1"}},
        {{"F", "FF", "5", "100", "100", "90", "-90", "-10", "1e308"}},
        {{"F", "F+F", "5", "100", "100", "1e308", "-1e308", "-10", "1"}},
        {{"F", "F[+F]F", "4", "32767", "-32768", "90", "-90", "-1e5", "-3"}},
        {{"F", "F-F", "6", "99999", "abc", "30", "", "0.5", "0"}},
        {{"[[[F", "]]]F]", "4", "600", "600", "-0", "-1e-320", "1e-320", "1e-300"}},
    };
    for (const Caso& c : casos) {
        const char* const* v = c.campos;
        Definir(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8]);
        Desenhar();
        EXPECT_EQ(Comprimento().toULongLong(), resultado->Texto().size());
    }
    EXPECT_TRUE(sistema->mensagens.empty());
}

TEST_F(LSistemas, CaracteresEstranhosDesenhamOMesmo)
{
    Definir("F", "F[+F]F[-F]F", "3", "300", "600", "-25.7", "25.7", "-7");
    Desenhar();
    const QImage limpa = imagem->Imagem().copy();
    Definir("xF", "F[+F]Fé[ -F]F", "3", "300", "600", "-25.7", "25.7", "-7");
    Desenhar();
    EXPECT_EQ(imagem->Imagem(), limpa);
    // 2 + 12·(1 + 5 + 25): the é and the blank count as one character each.
    EXPECT_EQ(Comprimento(), "374");
}

TEST_F(LSistemas, CrescimentoAlemDoLimiteRecusadoComMensagem)
{
    // A first drawing, which a refused one leaves in place.
    Desenhar();
    const QImage antes = imagem->Imagem().copy();

    struct Caso { const char* axioma; const char* regra; const char* repete; const char* parte; };
    const Caso casos[] = {
        // 7 + 40·(7⁸ − 1)/6
        {"F-F-F-F", "FF-F-F-F-FF", "8", "38 432 007 caracteres"},
        // one more character a pass: 20 000 001 is one too many
        {"F", "F+", "20000000", "20 000 001 caracteres"},
        // 5^(10⁹) F's: far beyond what 64 bits can count
        {"F", "F[+F]F[-F]F", "1000000000", "mais de 18 446 744 073 709 551 615 caracteres"},
        {"F", "F[+F]F[-F]F", "1e300", "mais de 18 446 744 073 709 551 615 caracteres"},
    };
    for (const Caso& c : casos) {
        sistema->mensagens.clear();
        Definir(c.axioma, c.regra, c.repete);
        Desenhar();
        ASSERT_EQ(sistema->mensagens.size(), 1u) << c.repete;
        EXPECT_EQ(sistema->mensagens[0].titulo, "L-Sistemas");
        EXPECT_EQ(sistema->mensagens[0].icone, IconeMensagem::Informacao);
        EXPECT_TRUE(sistema->mensagens[0].texto.contains(QString::fromUtf8(c.parte)))
            << sistema->mensagens[0].texto.toStdString();
        EXPECT_TRUE(sistema->mensagens[0].texto.contains("20 000 000"));
        EXPECT_EQ(imagem->Imagem(), antes) << "nothing is drawn";
        EXPECT_EQ(Comprimento(), "1561") << "the last result stays";
        EXPECT_FALSE(sistema->cursorEspera);
        EXPECT_TRUE(Achar<QPushButton>(pagina, "Desenhar")->isEnabled());
    }

    // Exactly at the limit the string is built and read; huge counts that change nothing
    // draw at once.
    sistema->mensagens.clear();
    Definir("F", "F+", "19999999");
    Desenhar();
    EXPECT_TRUE(sistema->mensagens.empty());
    EXPECT_EQ(Comprimento(), "20000000");
    Definir("F+F", "F", "1e18");
    Desenhar();
    EXPECT_EQ(Comprimento(), "3");
    EXPECT_TRUE(sistema->mensagens.empty());
}

TEST_F(LSistemas, CaixaDoResultadoSeleccionaECopia)
{
    pagina->show();
    Definir("F", "F[+F]F[-F]F", "4");
    Desenhar();
    const std::u16string& texto = resultado->Texto();
    const int colunas = resultado->ColunasPorLinha();
    ASSERT_GT(colunas, 10);

    // Ctrl+A, Ctrl+C: the whole string.
    resultado->setFocus();
    QTest::keyClick(resultado, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(resultado, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QString::fromStdU16String(texto));

    // A drag from the start of the second row to the middle of the fourth.
    QWidget* vista = resultado->viewport();
    const QFontMetrics m(resultado->font());
    const auto ponto = [&](int linha, int coluna) {
        return QPoint(3 + coluna * m.horizontalAdvance(QLatin1Char('M')),
                      3 + linha * m.lineSpacing() + m.lineSpacing() / 2);
    };
    QTest::mousePress(vista, Qt::LeftButton, Qt::NoModifier, ponto(1, 0));
    QMouseEvent mover(QEvent::MouseMove, ponto(3, 5), vista->mapToGlobal(ponto(3, 5)), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(vista, &mover);
    QTest::mouseRelease(vista, Qt::LeftButton, Qt::NoModifier, ponto(3, 5));
    EXPECT_EQ(resultado->TextoSeleccionado(),
              QString::fromStdU16String(texto.substr(std::size_t(colunas), 2 * colunas + 5)));

    // Shift+Right extends it by one; Ctrl+End then Shift+Home takes the last row.
    QTest::keyClick(resultado, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(resultado->TextoSeleccionado().size(), 2 * colunas + 6);
    QTest::keyClick(resultado, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(resultado, Qt::Key_Home, Qt::ShiftModifier);
    const std::size_t ultimaLinha = texto.size() - texto.size() % std::size_t(colunas);
    EXPECT_EQ(resultado->TextoSeleccionado(), QString::fromStdU16String(texto.substr(ultimaLinha)));

    // A new drawing drops the selection.
    Desenhar();
    EXPECT_TRUE(resultado->TextoSeleccionado().isEmpty());
}

}  // namespace
}  // namespace lumerina::teste
