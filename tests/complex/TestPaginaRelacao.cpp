// The Mandelbrot–Julia relation page: the two "Órbitas" messages, the single marker, the
// picked c to three decimals, and its Julia pictures against the Julia page's.

#include "app/Paginas.h"
#include "complex/PaginaJulia.h"
#include "complex/PaginaRelacao.h"
#include "frame/ControloImagem.h"
#include "frame/EsquemaCores.h"
#include "frame/JanelaDesenho.h"
#include "support/TestePagina.h"

#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace lumerina::teste {
namespace {

const QRgb kBranco = qRgb(255, 255, 255);
const QRgb kMarcador = qRgb(255, 0, 0);  // colour 12 of the 16-colour palette

int Contar(const QImage& imagem, QRgb cor, bool igual = true)
{
    int n = 0;
    for (int y = 0; y < imagem.height(); ++y)
        for (int x = 0; x < imagem.width(); ++x)
            n += (imagem.pixel(x, y) == cor) == igual;
    return n;
}

class Relacao : public TesteUi {
protected:
    void SetUp() override
    {
        TesteUi::SetUp();
        pagina = qobject_cast<PaginaRelacao*>(Pagina(Form::Relacao));
        ASSERT_NE(pagina, nullptr);
    }
    void Carregar(const char* botao)
    {
        sistema->cedencias = 0;
        Achar<QPushButton>(pagina, botao)->click();
    }
    ControloImagem* Imagem(const char* nome) { return Achar<ControloImagem>(pagina, nome); }
    QString Rotulo(const char* nome) { return Achar<QLabel>(pagina, nome)->text(); }
    // A mouse button pressed on a pixel of the Mandelbrot picture.
    void Clicar(QPoint p)
    {
        Rato(Imagem("Picture1"), QEvent::MouseButtonPress, p, Qt::LeftButton, Qt::LeftButton);
    }

    PaginaRelacao* pagina = nullptr;
};

TEST_F(Relacao, MensagensDeOrbitasAntesDoDesenhoEDoClique)
{
    const char* primeiro =
        "Desenhe primeiro o conjunto de Mandelbrot.\nSeguidamente marque um ponto sobre o conjunto.     ";
    const char* clique =
        "Faça click sobre o conjunto de Mandelbrt para ser indicado o número complexo.     ";
    // For each Julia button, from a fresh page: 0 nothing done; 1 a click but no drawing (the
    // drawing is checked first); 2 a fresh page with the drawing but no click; 3 then a click.
    for (const char* botao : {"DesenharJuliaIteraçãoNormal", "DesenharJuliaIteraçãoInversa"}) {
        FecharLumerina();
        pagina = qobject_cast<PaginaRelacao*>(Pagina(Form::Relacao));
        const struct { int passo; const char* mensagem; } casos[] = {
            {0, primeiro}, {1, primeiro}, {2, clique}, {3, nullptr},
        };
        for (const auto& c : casos) {
            if (c.passo == 1)
                pagina->MarcarPonto(-0.5, 0);       // a click, but nothing drawn yet
            if (c.passo == 2) {
                FecharLumerina();                   // drawn, but no click
                pagina = qobject_cast<PaginaRelacao*>(Pagina(Form::Relacao));
                Carregar("DesenharMandelbrot");
            }
            if (c.passo == 3)
                pagina->MarcarPonto(-0.5, 0);
            sistema->mensagens.clear();
            Carregar(botao);
            SCOPED_TRACE(std::string(botao) + ", step " + std::to_string(c.passo));
            const char* imagem = std::string(botao) == "DesenharJuliaIteraçãoNormal" ? "Picture2" : "Picture3";
            if (c.mensagem) {
                ASSERT_EQ(sistema->mensagens.size(), 1u);
                EXPECT_EQ(sistema->mensagens[0].titulo, "Órbitas");
                EXPECT_EQ(sistema->mensagens[0].texto, QString::fromUtf8(c.mensagem));
                EXPECT_EQ(sistema->mensagens[0].icone, IconeMensagem::Informacao);
                EXPECT_EQ(Contar(Imagem(imagem)->Imagem(), kBranco, false), 0);
            } else {
                EXPECT_TRUE(sistema->mensagens.empty());
                EXPECT_GT(Contar(Imagem(imagem)->Imagem(), kBranco, false), 0);
            }
        }
    }
}

TEST_F(Relacao, UmSoMarcadorEFicaForaDaCopia)
{
    sistema->coresEscolhidas = {QColor(0, 0, 128), QColor(255, 255, 0)};
    Carregar("Command8");
    Carregar("Command9");
    Carregar("DesenharMandelbrot");
    EXPECT_EQ(sistema->cedencias, 334);  // columns 0..W, a yield after each
    const QImage limpa = Imagem("Picture1")->Imagem().copy();
    EXPECT_EQ(Contar(limpa, kMarcador), 0);
    Clicar({100, 100});
    Clicar({200, 250});
    const QImage marcada = Imagem("Picture1")->Imagem();
    EXPECT_EQ(Contar(marcada, kMarcador), 9);  // one 3 x 3 dot
    for (int y = 249; y <= 251; ++y)
        for (int x = 199; x <= 201; ++x)
            EXPECT_EQ(marcada.pixel(x, y), kMarcador) << x << "," << y;
    EXPECT_EQ(marcada.pixel(100, 100), limpa.pixel(100, 100));
    // The companions never see the marker; Copiar takes the copy.
    EXPECT_EQ(Imagem("Picture4")->Imagem(), limpa);
    EXPECT_EQ(Imagem("Picture7")->Imagem(), limpa);
    Carregar("CopiarMandelbrot");
    EXPECT_EQ(sistema->areaTransferencia, limpa);
    // Drawing again paints the picture over: the marker goes.
    Carregar("DesenharMandelbrot");
    EXPECT_EQ(Imagem("Picture1")->Imagem(), limpa);
}

TEST_F(Relacao, CliqueDaCAtresCasasDecimais)
{
    // A pixel click: column i stands for x = -1.6 + i·2.2/332, picture row r for
    // y = -1.3 + (333 - r)·2.6/332.
    struct Pixel { QPoint p; const char *x, *y; };
    const Pixel pixeis[] = {
        {{166, 166}, "-0.5", "0.008"},  // y = -1.3 + 167·2.6/332 = 0.00783
        {{0, 0}, "-1.6", "1.308"},      // row 0 is j = 333, past Ymax
        {{332, 333 - 166}, "0.6", "0"},  // j = 166: y = -1.3 + 1.3
    };
    for (const Pixel& p : pixeis) {
        Clicar(p.p);
        EXPECT_EQ(Rotulo("Label4"), p.x) << p.p.x() << "," << p.p.y();
        EXPECT_EQ(Rotulo("Label5"), p.y) << p.p.x() << "," << p.p.y();
    }
    struct Ponto { double x, y; const char *tx, *ty; };
    const Ponto pontos[] = {
        {1.0 / 3, 2.0 / 3, "0.333", "0.667"},
        {-0.12345, 0.74449, "-0.123", "0.744"},
        {-0.0004, 0.0004, "0", "0"},
        {-1.6, 1.3, "-1.6", "1.3"},
    };
    for (const Ponto& p : pontos) {
        pagina->MarcarPonto(p.x, p.y);
        EXPECT_EQ(Rotulo("Label4"), p.tx) << p.x;
        EXPECT_EQ(Rotulo("Label5"), p.ty) << p.y;
    }
}

// The normal Julia picture of c = 0.333 + 0.5i (a click at x = 1/3) is the Julia page's
// picture of k = 0.333 + 0.5i over -1.7 .. 1.7 at N = 150, pixel for pixel, once the Julia
// page's crossed colours are undone: its "Cor interior" colours what escapes.
TEST_F(Relacao, JuliaNormalIgualAPaginaDeJulia)
{
    const QColor dentro(0, 128, 0), fora(200, 0, 0);
    sistema->coresEscolhidas = {dentro, fora};
    Carregar("Command1");
    Carregar("Command2");
    Carregar("DesenharMandelbrot");
    pagina->MarcarPonto(1.0 / 3, 0.5);
    Carregar("DesenharJuliaIteraçãoNormal");
    const QImage relacao = Imagem("Picture2")->Imagem().copy();
    EXPECT_EQ(Imagem("Picture5")->Imagem(), relacao);
    Carregar("CopiarJuliaNormal");
    EXPECT_EQ(sistema->areaTransferencia, relacao);
    EXPECT_GT(Contar(relacao, dentro.rgb()), 0);
    EXPECT_GT(Contar(relacao, fora.rgb()), 0);

    auto* julia = qobject_cast<PaginaJulia*>(Pagina(Form::Julia));
    Achar<QScrollBar>(julia, "HScroll1")->setValue(333);
    Achar<QScrollBar>(julia, "VScroll1")->setValue(333);
    const std::pair<const char*, const char*> campos[] = {
        {"Xmínimo", "-1.7"}, {"Xmáximo", "1.7"}, {"Ymínimo", "-1.7"}, {"Ymáximo", "1.7"},
        {"ValorDeC", "0.333"}, {"ValorDeD", "0.5"}, {"NumIterações", "150"},
    };
    for (const auto& [campo, texto] : campos)
        Achar<QLineEdit>(julia, campo)->setText(texto);
    Achar<QRadioButton>(julia, "SemLinhas")->click();
    sistema->coresEscolhidas = {fora, dentro};
    Achar<QPushButton>(julia, "Command8")->click();
    Achar<QPushButton>(julia, "Command9")->click();
    Achar<QPushButton>(julia, "Desenhar")->click();
    EXPECT_EQ(julia->Janela()->Imagem()->Imagem(), relacao);
}

TEST_F(Relacao, JuliaInversaSemCederNaSuaCor)
{
    Carregar("DesenharMandelbrot");
    pagina->MarcarPonto(-1, 0);
    Carregar("DesenharJuliaIteraçãoInversa");
    EXPECT_EQ(sistema->cedencias, 0);
    const QImage pontos = Imagem("Picture3")->Imagem().copy();
    const int desenhados = Contar(pontos, kBranco, false);
    EXPECT_EQ(Contar(pontos, Paleta16[9]), desenhados);
    EXPECT_GT(desenhados, 500);     // 49 950 points on the basilica's boundary
    EXPECT_LE(desenhados, 49950);
    // The basilica z² - 1 is symmetric about 0 and lies within |x| ≤ 1.62 (-1.7..1.7 here):
    // nothing near the picture's left and right edges.
    for (int y = 0; y < pontos.height(); ++y)
        for (int x : {0, 1, 2, 330, 331, 332})
            EXPECT_EQ(pontos.pixel(x, y), kBranco) << x << "," << y;
    Carregar("CopiarJuliaInversa");
    EXPECT_EQ(sistema->areaTransferencia, pontos);
}

}  // namespace
}  // namespace lumerina::teste
