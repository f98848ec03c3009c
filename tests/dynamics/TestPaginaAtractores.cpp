// The attractors page: the windows and counts its options write, the preset spinners, the
// validation order, which speed bar each drawing waits on, where the points go (picture row,
// persistent image or screen only), "Ver ponto", and leaving in the middle of a slow drawing.

#include "app/Paginas.h"
#include "dynamics/PaginaAtractores.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "support/TestePagina.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>

#include <string>
#include <vector>

namespace lumerina::teste {
namespace {

const QRgb kBranco = qRgb(255, 255, 255);
const QRgb kAzul = qRgb(0, 0, 128);

class FormAtractores : public TestePagina<PaginaAtractores, Form::Atractores> {
protected:
    void Clicar(const char* nome) { Achar<QAbstractButton>(pagina, nome)->click(); }
    void Marcar(const char* nome, bool ligado)
    {
        Achar<QCheckBox>(pagina, nome)->setChecked(ligado);
    }
    void Barra(const char* nome, int valor) { Achar<QScrollBar>(pagina, nome)->setValue(valor); }
    void Desenhar() { Clicar("Desenhar"); }
    // The pixels of a layer that are not white.
    static int Pontos(const QImage& img)
    {
        int n = 0;
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                n += (img.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF;
        return n;
    }
};

TEST_F(FormAtractores, OpcaoEscreveJanelaEIteracoesDaTabela)
{
    struct Caso {
        const char* opcao;
        const char* frame;  // the options frame shown, or null
        std::vector<const char*> janela;  // empty: unchanged
        const char* iteracoes;            // null: unchanged
    };
    const Caso casos[] = {
        {"Henon", "OpçõesHenon", {"-2", "2", "-1", "1"}, "10000"},
        {"Duffing", "OpçõesDuffing", {"-2", "2", "-2", "2"}, "20000"},
        {"DeJong", "OpçõesDeJong", {"-3", "3", "-3", "3"}, "20000"},
        {"Caótico", "OpçõesCaótico", {"-4", "9", "-4", "9"}, "20000"},
        {"Kam", "OpçõesKam", {"-1", "1", "-1", "1"}, "10000"},
        {"Clifford", "OpçõesClifford", {"-3", "3", "-3", "3"}, nullptr},
        {"Hopalong", "OpçõesHopalong", {"-8", "10", "-8", "8"}, nullptr},
        {"Estranhos", "OpçõesEstranhos", {"-1", "1", "-1", "1"}, "20000"},
        {"Lorenz", "OpçõesLorenz", {"-8", "8", "-8", "8"}, nullptr},
        {"Rossler", "OpçõesRossler", {}, "20000"},
        {"Tinkerbell", "OpçõesTinkerbell", {"-1.1", "0.6", "-2.5", "1.6"}, "30000"},
        {"Borboleta", nullptr, {}, nullptr},
    };
    const char* quadros[] = {"OpçõesLorenz", "OpçõesRossler", "OpçõesDuffing", "OpçõesHenon",
                             "OpçõesKam", "OpçõesHopalong", "OpçõesDeJong", "OpçõesClifford",
                             "OpçõesTinkerbell", "OpçõesEstranhos", "OpçõesCaótico"};
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.opcao);
        Vista("7", "77", "-7", "-0.7");
        Texto("Iterações", "1234");
        Clicar(c.opcao);
        const QStringList esperada =
            c.janela.empty() ? QStringList{"7", "77", "-7", "-0.7"}
                             : QStringList{c.janela[0], c.janela[1], c.janela[2], c.janela[3]};
        EXPECT_EQ(Limites(), esperada);
        EXPECT_EQ(Campo("Iterações"), c.iteracoes ? QString(c.iteracoes) : QStringLiteral("1234"));
        for (const char* q : quadros)
            EXPECT_EQ(Achar<QGroupBox>(pagina, q)->isVisibleTo(pagina), c.frame && QString(q) == c.frame) << q;
    }
    // "Estranhos" with its second variant chosen writes the wider window.
    Clicar("OpçãoEstranhos2");
    Clicar("Estranhos");
    EXPECT_EQ(Limites(), (QStringList{"-2", "2", "-2", "2"}));
}

// The preset tables, row by row as the spinners write them (both directions write set n).
TEST_F(FormAtractores, SpinnersEscrevemOsValoresPredefinidos)
{
    struct Linha {
        std::vector<const char*> parametros;  // null: the box keeps its text
        const char* iteracoes;
        std::vector<const char*> janela;
    };
    struct Spinner {
        const char* opcao;
        const char* nome;
        std::vector<const char*> caixas;
        std::vector<Linha> linhas;
    };
    const std::vector<const char*> tink = {"-1.1", "0.6", "-2.5", "1.6"};
    const std::vector<const char*> tres = {"-3", "3", "-3", "3"};
    const std::vector<const char*> oito = {"-8", "8", "-8", "8"};
    const Spinner spinners[] = {
        {"Lorenz", "UpDown1", {"LorenzA", "LorenzB", "LorenzC"},
         {{{"10", "12", "2.666"}, "10000", oito},
          {{"10", "17", "2.666"}, "20000", oito},
          {{"10", "17", "4"}, "10000", oito},
          {{"10", "17", "2"}, "20000", oito},
          {{"10", "25", "2.666"}, "50000", {"-10", "12", "-8", "18"}},
          {{"10", "28", "2.666"}, "50000", {"-10", "11", "-8", "20"}},
          {{"10", "17", "1"}, "50000", oito},
          {{"10", "25", "2"}, "50000", {"-10", "12", "-8", "18"}}}},
        {"Clifford", "UpDown5", {"CliffordA", "CliffordB", "CliffordC", "CliffordD"},
         {{{"-1.4", "1.6", "1", "0.7"}, "20000", tres},
          {{"1.1", "-1", "1", "1.5"}, "20000", tres},
          {{"1.6", "-0.6", "-1.2", "1.6"}, "20000", {"-3", "3", "-2", "4"}},
          {{"1.7", "1.7", "0.06", "1.2"}, "20000", tres},
          {{"1.3", "1.7", "0.5", "1.4"}, "20000", tres},
          {{"1.5", "-1.8", "1.6", "0.9"}, "20000", tres}}},
        {"DeJong", "UpDown9", {"DeJongA", "DeJongB", "DeJongC", "DeJongD"},
         {{{"-2.83", "1.96", "1.7", "1.74"}, "20000", tres},
          {{"-1.25", "-0.57", "-2.88", "-2.83"}, "20000", {"-1", "3", "-3", "2"}},
          {{"-1.3", "-2.05", "-1.76", "-1.47"}, "20000", {"-1", "3", "-3", "2"}},
          {{"-2", "-2", "-1.2", "2"}, "20000", tres},
          {{"-0.52", "-2.083", "0.718", "-2.403"}, "20000", tres}}},
        {"Tinkerbell", "UpDown7", {"TinkerbellA", "TinkerbellB", "TinkerbellC", "TinkerbellD"},
         {{{"0.3", "-0.7", "2.3", "0.6"}, "20000", tink},
          {{"0.3", "-0.69", "2.3", "0.35"}, "20000", tink},
          {{"0.3", "-0.69", "2.3", nullptr}, "20000", tink},
          {{"0.32", "-0.69", "2.3", "0.38"}, "20000", tink}}},
    };
    for (const Spinner& s : spinners) {
        Clicar(s.opcao);
        auto* spinner = Achar<QSpinBox>(pagina, s.nome);
        ASSERT_EQ(spinner->maximum() - spinner->minimum() + 1, static_cast<int>(s.linhas.size()));
        // Down from the last set to the first, then up again: each step writes its own set.
        for (int volta = 0; volta < 2; ++volta) {
            for (int k = 0; k < static_cast<int>(s.linhas.size()); ++k) {
                const int n = volta == 0 ? static_cast<int>(s.linhas.size()) - k : k + 1;
                SCOPED_TRACE(std::string(s.nome) + " set " + std::to_string(n));
                for (const char* caixa : s.caixas)
                    Texto(caixa, "kept");
                Texto("Iterações", "1");
                Vista("", "", "", "");
                if (spinner->value() == n)
                    spinner->setValue(n == 1 ? 2 : 1);
                spinner->setValue(n);
                const Linha& l = s.linhas[static_cast<std::size_t>(n - 1)];
                for (std::size_t i = 0; i < s.caixas.size(); ++i)
                    EXPECT_EQ(Campo(s.caixas[i]), l.parametros[i] ? l.parametros[i] : "kept")
                        << s.caixas[i];
                EXPECT_EQ(Campo("Iterações"), l.iteracoes);
                EXPECT_EQ(Limites(), (QStringList{l.janela[0], l.janela[1], l.janela[2],
                                                           l.janela[3]}));
            }
        }
    }
}

TEST_F(FormAtractores, SpinnersDaVoltaEOsDeEstranhosEscolhemAVarianteQuadratica)
{
    Clicar("Clifford");
    auto* spinner = Achar<QSpinBox>(pagina, "UpDown5");
    spinner->setValue(6);
    spinner->stepBy(1);  // past the last set: the first again
    EXPECT_EQ(spinner->value(), 1);
    EXPECT_EQ(Campo("CliffordA"), "-1.4");

    Clicar("Estranhos");
    Clicar("OpçãoEstranhos2");
    Achar<QSpinBox>(pagina, "UpDown4")->setValue(6);
    EXPECT_TRUE(Achar<QRadioButton>(pagina, "OpçãoEstranhos1")->isChecked());
    // Set 6 as given: a5 = 0.9, a6 = 0.3, a9 = 1, a11 = 0.5, a12 = 0.5, Xmáx 0.4, Ymáx 0.6.
    EXPECT_EQ(Campo("EstranhoA5"), "0.9");
    EXPECT_EQ(Campo("EstranhoA6"), "0.3");
    EXPECT_EQ(Campo("EstranhoA9"), "1");
    EXPECT_EQ(Campo("EstranhoA11"), "0.5");
    EXPECT_EQ(Campo("EstranhoA12"), "0.5");
    EXPECT_EQ(Campo("Xmáximo"), "0.4");
    EXPECT_EQ(Campo("Ymáximo"), "0.6");
    Achar<QSpinBox>(pagina, "UpDown4")->setValue(1);
    // Set 1: a2 = 0.1, a3 = -1, a4 = 0.6 in -1 … 1 x -1 … 1.
    EXPECT_EQ(Campo("EstranhoA2"), "0.1");
    EXPECT_EQ(Campo("EstranhoA3"), "-1");
    EXPECT_EQ(Campo("EstranhoA4"), "0.6");
    EXPECT_EQ(Limites(), (QStringList{"-1", "1", "-1", "1"}));
}

TEST_F(FormAtractores, ValidacaoPelaOrdemComAsMensagensDaPagina)
{
    imagem->Redimensionar(40, 40);
    Clicar("Henon");
    const char* inteiro = "O número de iterações deve ser um número inteiro.";
    struct Caso {
        std::vector<const char*> janela;
        const char* iteracoes;
        const char* titulo;  // null: it draws
        const char* texto;
    };
    const char* todos = "São necessários todos os limites da janela de desenho.";
    const char* xs = "O valor de Xmáx deve ser maior que o de Xmín.";
    const char* ys = "O valor de Ymáx deve ser maior que o de Ymín.";
    const Caso casos[] = {
        {{"-2", "2", "-1", "1"}, "10", nullptr, nullptr},
        {{"-2*pi/3", "sqr(4)", "-1", "1"}, "10", nullptr, nullptr},
        {{"-2", "2", "-1", " "}, "2.5", "Atractores", todos},
        {{"", "2", "-1", "1"}, "10", "Atractores", todos},
        // An empty box anywhere comes before an expression error in another.
        {{"2*", "2", "-1", ""}, "10", "Atractores", todos},
        {{"-2", "2*", "-1", "1"}, "10", "Interpretador", nullptr},
        {{"2", "-2", "1", "-1"}, "10", "Atractores", xs},  // x is checked first
        {{"-2", "2", "1", "1"}, "10", "Atractores", ys},
        {{"2", "-2", "-1", "1"}, "2.5", "Atractores", xs},  // the window before the count
        {{"-2", "2", "-1", "1"}, "2.5", "Atractores", inteiro},
        {{"-2", "2", "-1", "1"}, "abc", "Atractores", inteiro},
        {{"-2", "2", "-1", "1"}, "", "Atractores", inteiro},
        {{"-2", "2", "-1", "1"}, "0", "Atractores", "O número de iterações deve ser positivo."},
        {{"-2", "2", "-1", "1"}, "-5", "Atractores", "O número de iterações deve ser positivo."},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(std::string(c.janela[0]) + " " + c.janela[1] + " " + c.iteracoes);
        sistema->mensagens.clear();
        Vista(c.janela[0], c.janela[1], c.janela[2], c.janela[3]);
        Texto("Iterações", c.iteracoes);
        Desenhar();
        if (!c.titulo) {
            EXPECT_TRUE(sistema->mensagens.empty());
            EXPECT_TRUE(janela->desenhado);
            continue;
        }
        ASSERT_EQ(sistema->mensagens.size(), 1u);
        EXPECT_EQ(sistema->mensagens[0].titulo, c.titulo);
        if (c.texto) {
            EXPECT_EQ(sistema->mensagens[0].texto, QString::fromUtf8(c.texto));
        }
        EXPECT_FALSE(janela->desenhado);
        EXPECT_EQ(Pontos(imagem->ImagemEcra()), 0);
    }
}

// Each animated attractor waits on its bar after every point; Hénon waits on the Lorenz bar
// and ignores its own; the others never wait.
TEST_F(FormAtractores, CadaDesenhoEsperaPelaSuaBarra)
{
    Barra("HScroll1", 3);   // Rössler
    Barra("HScroll2", 7);   // Lorenz
    Barra("HScroll3", 11);  // Duffing
    Barra("HScroll4", 33);  // Hénon's own bar
    struct Caso {
        const char* opcao;
        int espera;  // 0: no wait at all
    };
    const Caso casos[] = {{"Lorenz", 7}, {"Rossler", 3}, {"Duffing", 11}, {"Henon", 7},
                          {"DeJong", 0}, {"Caótico", 0}, {"Kam", 0}};
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.opcao);
        Clicar(c.opcao);
        Texto("Iterações", "5");
        Texto("KamLinhas", "1");
        sistema->sonos.clear();
        Desenhar();
        EXPECT_TRUE(janela->desenhado);
        EXPECT_EQ(sistema->sonos, std::vector<int>(c.espera ? 5 : 0, c.espera));
    }
    // A bar moved back to 0 during the drawing: no more waits from the next point.
    Clicar("Lorenz");
    Texto("Iterações", "6");
    sistema->sonos.clear();
    sistema->aoDormir = [&](int vez) {
        if (vez == 2)
            Barra("HScroll2", 0);
    };
    Desenhar();
    EXPECT_EQ(sistema->sonos, (std::vector<int>{7, 7}));
}

TEST_F(FormAtractores, CaoticoCedeDepoisDeCadaPonto)
{
    Clicar("Caótico");
    Texto("Iterações", "300");
    sistema->cedencias = 0;
    Desenhar();
    EXPECT_EQ(sistema->cedencias, 300);
}

// Hénon from (0, 0): the first point is (1, 0). In -2 … 2 x -1 … 1 on 628 x 628 pixels it
// is pixel ((1 + 2)·628/4, (1 − 0)·628/2) = (471, 314).
TEST_F(FormAtractores, PrimeiroPontoNoPixelDaEscala)
{
    Clicar("Henon");
    Marcar("CopiarHenon", true);
    Texto("Iterações", "1");
    struct Caso {
        bool grandes;
        int pontos;
    };
    for (const Caso c : {Caso{false, 1}, Caso{true, 9}}) {
        Marcar("HenonPontoGrande", c.grandes);
        Desenhar();
        EXPECT_EQ(imagem->Imagem().pixel(471, 314), kAzul);
        EXPECT_EQ(imagem->Imagem().pixel(472, 315), c.grandes ? kAzul : kBranco);
        EXPECT_EQ(Pontos(imagem->Imagem()), c.pontos);
    }
}

// Without "Imagem para copiar" the points reach the screen only: what is copied and saved has
// none of them. With it, they are in the picture.
TEST_F(FormAtractores, ImagemParaCopiarDecideOQueSeCopiaEGuarda)
{
    QTemporaryDir pasta;
    ASSERT_TRUE(pasta.isValid());
    Clicar("DeJong");
    for (const bool copiar : {false, true}) {
        SCOPED_TRACE(copiar ? "with" : "without");
        Marcar("CopiarDeJong", copiar);
        Desenhar();
        EXPECT_GT(Pontos(imagem->ImagemEcra()), 5000);
        Clicar("CopiarGráfico");
        EXPECT_EQ(Pontos(sistema->areaTransferencia) > 5000, copiar);
        const QString ficheiro = pasta.filePath(copiar ? "com" : "sem");
        sistema->nomesEscritos.push_back(ficheiro);
        Clicar("GuardarGráfico");
        const QImage guardada(ficheiro + ".bmp");
        ASSERT_FALSE(guardada.isNull());
        EXPECT_EQ(Pontos(guardada) > 5000, copiar);
    }
}

// "Ver ponto" shows the moving point as a box on the screen only, and takes it away at the end.
TEST_F(FormAtractores, VerPontoMarcaSoNoEcra)
{
    Clicar("Lorenz");
    Marcar("CopiarLorenz", true);
    Marcar("PontoLorenz", true);
    Barra("HScroll2", 1);
    Texto("Iterações", "40");
    int diferentes = -1;
    sistema->aoDormir = [&](int vez) {
        if (vez != 20)
            return;
        const QImage ecra = imagem->ImagemEcra(), persistente = imagem->Imagem();
        diferentes = 0;
        for (int y = 0; y < ecra.height(); ++y)
            for (int x = 0; x < ecra.width(); ++x)
                diferentes += ecra.pixel(x, y) != persistente.pixel(x, y);
    };
    Desenhar();
    // The outline of a 7 x 7 box, inverted: every one of its 24 pixels differs.
    EXPECT_EQ(diferentes, 24);
    EXPECT_EQ(imagem->ImagemEcra(), imagem->Imagem());
    // Without "Imagem para copiar" there is nothing to show it on.
    Marcar("CopiarLorenz", false);
    Desenhar();
    EXPECT_EQ(Pontos(imagem->Imagem()), 0);
}

// A slow drawing keeps the draw button off (a click does not start a second drawing inside
// the first), and "Abandonar o programa" in the middle of it ends the program at once.
TEST_F(FormAtractores, AbandonarAMeioDeUmDesenhoLento)
{
    Clicar("Lorenz");
    Barra("HScroll2", 50);
    Texto("Iterações", "1000");
    sistema->aoDormir = [&](int vez) {
        if (vez == 3) {
            EXPECT_FALSE(Achar<QPushButton>(pagina, "Desenhar")->isEnabled());
            Desenhar();
        }
        if (vez == 10)
            Achar<QAction>(pagina, "Abandonar")->trigger();
    };
    QTimer::singleShot(0, [&] { Desenhar(); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(sistema->sonos.size(), 10u);
}

}  // namespace
}  // namespace lumerina::teste
