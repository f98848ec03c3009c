// What every drawing page gets from the shared frame: the drawing session, one drawing at a
// time in the program, Enter pressing the draw button, and a pen that a zoom box never leaves
// dotted.

#include "app/Paginas.h"
#include "frame/Controlos.h"
#include "frame/ControloImagem.h"
#include "frame/DesenhoColunas.h"
#include "frame/JanelaDesenho.h"
#include "frame/SessaoDesenho.h"
#include "support/TestePagina.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

namespace lumerina::teste {
namespace {

// A bare drawing page: a drawing window and a draw button that fills the picture column by
// column with the recorder's yields in between.
class Kit : public TesteUi {
protected:
    void SetUp() override
    {
        TesteUi::SetUp();
        pagina = std::make_unique<QWidget>();
        janela = new JanelaDesenho(pagina.get(), pagina.get(), QPoint(8, 8));
        janela->Xminimo()->setText("0");
        janela->Xmaximo()->setText("1");
        janela->Yminimo()->setText("0");
        janela->Ymaximo()->setText("1");
        desenhar = Botao(janela->QuadroOpcoes(), "Desenhar", "Desenhar", {230, 22, 60, 28});
        janela->LigarDesenho(desenhar, [this] {
            ++desenhos;
            janela->PrepararDesenho();
            if (janela->ValidarLimites("Teste", true))
                janela->DesenharPorColunas([](int, Cor* cores) { cores[0] = 0xFF0000FF; });
        });
        imagem = janela->Imagem();
    }
    void TearDown() override
    {
        pagina.reset();
        TesteUi::TearDown();
    }
    void Rato(QEvent::Type tipo, QPoint p, Qt::MouseButton botao, Qt::MouseButtons botoes)
    {
        teste::Rato(imagem, tipo, p, botao, botoes);
    }
    int Acesos(int y) const
    {
        int n = 0;
        for (int x = 0; x < imagem->LarguraPixeis(); ++x)
            n += imagem->Imagem().pixel(x, y) == qRgb(255, 0, 0);
        return n;
    }

    std::unique_ptr<QWidget> pagina;
    JanelaDesenho* janela = nullptr;
    ControloImagem* imagem = nullptr;
    QPushButton* desenhar = nullptr;
    int desenhos = 0;
};

TEST_F(Kit, DepoisDeUmaCaixaDeZoomAsLinhasSaoContinuas)
{
    desenhar->click();
    ASSERT_TRUE(janela->desenhado);
    Rato(QEvent::MouseButtonPress, {100, 100}, Qt::LeftButton, Qt::LeftButton);
    Rato(QEvent::MouseMove, {300, 300}, Qt::NoButton, Qt::LeftButton);
    Rato(QEvent::MouseButtonRelease, {300, 300}, Qt::LeftButton, Qt::NoButton);
    imagem->EscalaPixeis();
    imagem->DefinirPersistente(true);
    imagem->Linha(0, 500, 627, 500, qRgb(255, 0, 0));
    EXPECT_EQ(Acesos(500), 628);
}

TEST_F(Kit, CadaDesenhoComecaComACanetaPredefinida)
{
    imagem->DefinirEstilo(EstiloTraco::Pontilhado);
    imagem->DefinirModo(ModoDesenho::Inverter);
    imagem->DefinirPersistente(false);
    imagem->DefinirEspessura(5);
    {
        SessaoDesenho sessao(*janela);
        imagem->EscalaPixeis();
        imagem->Linha(0, 500, 627, 500, qRgb(255, 0, 0));
    }
    EXPECT_EQ(Acesos(500), 628);  // solid, copied, into the saved image
    EXPECT_EQ(Acesos(497), 0);    // and one pixel wide
}

// A drawing that ends early (a refusal after it began, the program ending) gives every
// button back and leaves the picture undrawn, without the world scale.
TEST_F(Kit, SessaoSemConclusaoDevolveTudoESemMundo)
{
    {
        SessaoDesenho sessao(*janela);
        EXPECT_TRUE(SessaoDesenho::EmCurso());
        EXPECT_TRUE(sistema->cursorEspera);
        for (QPushButton* b : janela->BotoesDesactivados())
            EXPECT_FALSE(b->isEnabled()) << b->objectName().toStdString();
    }
    EXPECT_FALSE(SessaoDesenho::EmCurso());
    EXPECT_FALSE(sistema->cursorEspera);
    for (QPushButton* b : janela->BotoesDesactivados())
        EXPECT_TRUE(b->isEnabled()) << b->objectName().toStdString();
    EXPECT_FALSE(janela->desenhado);
    EXPECT_TRUE(imagem->EmPixeis());
}

// A page whose buttons stay live while it draws: the hourglass and the one-drawing rule
// still hold, and a completed drawing still gives the picture its world.
TEST_F(Kit, SessaoComBotoesActivos)
{
    {
        SessaoDesenho sessao(*janela, SessaoDesenho::Botoes::Activos);
        EXPECT_TRUE(SessaoDesenho::EmCurso());
        EXPECT_TRUE(sistema->cursorEspera);
        for (QPushButton* b : janela->BotoesDesactivados())
            EXPECT_TRUE(b->isEnabled()) << b->objectName().toStdString();
        sessao.Concluir();
    }
    EXPECT_FALSE(sistema->cursorEspera);
    EXPECT_TRUE(janela->desenhado);
    EXPECT_FALSE(imagem->EmPixeis());
}

// Drawings yield to the event loop. A draw button of another page pressed in that yield
// (by click or by Enter) must not run a second drawing inside the first.
TEST_F(Kit, UmSoDesenhoDeCadaVezNoPrograma)
{
    QWidget outra;
    auto* campo = Campo(&outra, "Campo", "1", {0, 0, 80, 24});
    auto* botao = Botao(&outra, "Desenhar", "Desenhar", {0, 30, 80, 24});
    int outros = 0;
    LigarDesenho(botao, [&] { ++outros; });
    outra.show();
    campo->setFocus();
    sistema->aoCeder = [&](int vez) {
        if (vez == 3) {
            botao->click();
            QTest::keyClick(campo, Qt::Key_Return);
        }
    };
    desenhar->click();
    EXPECT_EQ(desenhos, 1);
    EXPECT_EQ(outros, 0);
    botao->click();
    EXPECT_EQ(outros, 1);
}

TEST_F(Kit, EnterNumCampoCarregaNoBotaoDeDesenhoMaisProximo)
{
    QGroupBox* quadro = Quadro(pagina.get(), "Outro", {700, 300, 200, 100});
    auto* proprio = Botao(quadro, "Proprio", "Desenhar", {10, 60, 80, 24});
    auto* campoProprio = Campo(quadro, "CampoProprio", "", {10, 20, 80, 24});
    int proprios = 0;
    LigarDesenho(proprio, [&] { ++proprios; });
    pagina->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(pagina.get()));

    janela->Xminimo()->setFocus();
    QTest::keyClick(janela->Xminimo(), Qt::Key_Return);
    EXPECT_EQ(desenhos, 1);   // the limit fields share no frame with either: the first made
    campoProprio->setFocus();
    QTest::keyClick(campoProprio, Qt::Key_Enter);
    EXPECT_EQ(proprios, 1);   // the button of its own frame
    proprio->setEnabled(false);
    QTest::keyClick(campoProprio, Qt::Key_Return);
    EXPECT_EQ(proprios, 1);
    EXPECT_EQ(desenhos, 2);   // a disabled button is passed over
}

// A picture 3 pixels high, H = 3: row counter j is drawn at row H − subir − j; with
// manterFundo a kSemCor leaves the background.
TEST_F(Kit, ColunasSubidasEFundoMantido)
{
    constexpr QRgb F = 0xFF808080, A = 0xFF0000FF, B = 0xFF00FF00;
    constexpr QRgb K = 0xFF000000;  // kSemCor written as it is: black
    const Cor coluna[4] = {A, kSemCor, B, A};  // j = 0..3
    const struct { EscritaColunas escrita; QRgb linhas[3]; } casos[] = {
        {{0, false}, {A, B, K}},  // rows 0, 1, 2 show j = 3, 2, 1
        {{0, true}, {A, B, F}},
        {{1, false}, {B, K, A}},  // j = 2, 1, 0
        {{1, true}, {B, F, A}},
        {{2, true}, {F, A, F}},   // j = 1, 0, and nothing below j = 0
    };
    for (const auto& c : casos) {
        imagem->Redimensionar(2, 3);
        imagem->DefinirCorFundo(F);
        imagem->Limpar();
        DesenharColunas(*imagem, 1, 3, [&](int, Cor* cores) { std::copy(coluna, coluna + 4, cores); },
                        {}, c.escrita);
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 2; ++x)
                EXPECT_EQ(imagem->Imagem().pixel(x, y), c.linhas[y])
                    << "subir " << c.escrita.subir << ", manterFundo " << c.escrita.manterFundo
                    << ", row " << y << ", column " << x;
    }
}

}  // namespace
}  // namespace lumerina::teste
