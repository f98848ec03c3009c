// The IFS page: the count field, what is seen during a drawing, overlay and clearing, the
// colours, a resized picture, and every example button drawing its own system.

#include "app/Paginas.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "geometric/PaginaIFS.h"
#include "geometric/SistemaIFS.h"
#include "interp/Aleatorio.h"
#include "support/TestePagina.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <functional>
#include <vector>

namespace lumerina::teste {
namespace {

std::uint64_t RelogioFixo() { return 20261123; }

class IFS : public TestePagina<PaginaIFS, Form::IFS> {
protected:
    void SetUp() override
    {
        DefinirRelogioAleatorio(RelogioFixo);
        TestePagina::SetUp();
        if (HasFatalFailure())
            return;
        pagina->show();
        imagem2 = pagina->Imagem2();
    }
    void TearDown() override
    {
        DefinirRelogioAleatorio(nullptr);
        TestePagina::TearDown();
    }
    void Iteracoes(const char* texto) { Texto("NumIteraçõesIFS", texto); }
    // The pixels of Picture1 other than its background.
    int Desenhados() const
    {
        const QImage& img = imagem->Imagem();
        int n = 0;
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                n += img.pixel(x, y) != imagem->CorFundo();
        return n;
    }

    ControloImagem* imagem2 = nullptr;
};

TEST_F(IFS, ContagemDoCampoNumIteracoes)
{
    const char* inteiro = "O número de iterações deve ser um número inteiro.";
    struct Caso { const char* n; const char* texto; int pixeis; };
    const Caso casos[] = {
        {"100", nullptr, 0},  // the first 100 points are never drawn
        {"101", nullptr, 1},
        {" 101 ", nullptr, 1},
        {"-5", nullptr, 0},
        {"0", nullptr, 0},
        {"", inteiro, 0},
        {"abc", inteiro, 0},
        {"2.5", inteiro, 0},
        {"50000x", inteiro, 0},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.n);
        sistema->mensagens.clear();
        Premir("ApagarGráfico");
        Iteracoes(c.n);
        Premir("FetoBarnsley");
        EXPECT_EQ(Desenhados(), c.pixeis);
        if (!c.texto) {
            EXPECT_TRUE(sistema->mensagens.empty());
        } else {
            ASSERT_EQ(sistema->mensagens.size(), 1u);
            EXPECT_EQ(sistema->mensagens[0].titulo, "Sistemas de função iterada");
            EXPECT_EQ(sistema->mensagens[0].texto, QString::fromUtf8(c.texto));
            EXPECT_EQ(sistema->mensagens[0].icone, IconeMensagem::Informacao);
        }
        EXPECT_TRUE(imagem->isVisible());
        EXPECT_FALSE(imagem2->isVisible());
    }
}

// Picture2 is shown, blank, and repainted while the points arrive; Picture1 is hidden; the
// page never goes through the event loop, and its buttons are off until the end.
TEST_F(IFS, PontosChegamAPicture2SemCederAoSistema)
{
    struct Pintura { bool imagem1Visivel, cursor, apagarActivo; };
    std::vector<Pintura> pinturas;
    struct Filtro : QObject {
        std::function<void()> aoPintar;
        bool eventFilter(QObject*, QEvent* e) override
        {
            if (e->type() == QEvent::Paint)
                aoPintar();
            return false;
        }
    } filtro;
    filtro.aoPintar = [&] {
        pinturas.push_back({imagem->isVisible(), sistema->cursorEspera,
                            Achar<QPushButton>(pagina, "ApagarGráfico")->isEnabled()});
    };
    ASSERT_TRUE(QTest::qWaitForWindowExposed(pagina));
    imagem2->installEventFilter(&filtro);
    Iteracoes("200000");
    sistema->cedencias = 0;
    Premir("FetoBarnsley");
    imagem2->removeEventFilter(&filtro);

    ASSERT_FALSE(pinturas.empty());
    for (const Pintura& p : pinturas) {
        EXPECT_FALSE(p.imagem1Visivel);
        EXPECT_TRUE(p.cursor);
        EXPECT_FALSE(p.apagarActivo);
    }
    EXPECT_EQ(sistema->cedencias, 0);
    EXPECT_FALSE(sistema->cursorEspera);
    EXPECT_TRUE(imagem->isVisible());
    EXPECT_FALSE(imagem2->isVisible());
    // Picture2 held this drawing's points, the same as Picture1.
    EXPECT_EQ(imagem2->Imagem(), imagem->Imagem());
}

TEST_F(IFS, SistemasSobrepostosAteApagarOuCorFundo)
{
    Iteracoes("20000");
    Premir("TriânguloSpier");
    const QImage primeiro = imagem->Imagem();
    const int n1 = Desenhados();
    Premir("ÁrvoreNatal");
    const QImage ambos = imagem->Imagem();
    // Every point of the triangle is still there, and the tree added its own.
    int perdidos = 0;
    for (int y = 0; y < primeiro.height(); ++y)
        for (int x = 0; x < primeiro.width(); ++x)
            perdidos += primeiro.pixel(x, y) != imagem->CorFundo() && ambos.pixel(x, y) != primeiro.pixel(x, y);
    EXPECT_EQ(perdidos, 0);
    EXPECT_GT(Desenhados(), n1 + 1000);
    // Picture2 showed the tree alone.
    EXPECT_NE(imagem2->Imagem(), ambos);

    Premir("ApagarGráfico");
    EXPECT_EQ(Desenhados(), 0);

    // "Cor fundo": both pictures take the colour and are cleared; a dialog closed without a
    // choice answers its last colour, which clears them again.
    const QColor verde(0, 128, 0);
    for (const bool escolhida : {true, false}) {
        SCOPED_TRACE(escolhida ? "chosen" : "cancelled");
        Premir("TriânguloSpier");
        if (escolhida)
            sistema->coresEscolhidas.push_back(verde);
        Premir("CorFundo");
        for (ControloImagem* im : {imagem, imagem2}) {
            EXPECT_EQ(im->CorFundo(), verde.rgb());
            QImage cheia(im->Imagem().size(), im->Imagem().format());
            cheia.fill(verde.rgb());
            EXPECT_EQ(im->Imagem(), cheia) << im->objectName().toStdString();
        }
    }
}

TEST_F(IFS, CorImagemNosPontosSeguintes)
{
    Iteracoes("5000");
    const QColor vermelho(255, 0, 0), azul(0, 0, 255);
    struct Passo { const char* escolha; QRgb esperada; };  // null: dialog closed without a choice
    const Passo passos[] = {
        {nullptr, qRgb(0, 0, 0)},  // black until a colour is chosen
        {"red", vermelho.rgb()},
        {nullptr, vermelho.rgb()},
        {"blue", azul.rgb()},
    };
    for (const Passo& p : passos) {
        if (p.escolha)
            sistema->coresEscolhidas.push_back(std::string(p.escolha) == "red" ? vermelho : azul);
        Premir("CorGráfico");
        Premir("ApagarGráfico");
        Premir("CavaloMarinho");
        const QImage& img = imagem->Imagem();
        int certos = 0, outros = 0;
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                if (img.pixel(x, y) != imagem->CorFundo())
                    (img.pixel(x, y) == p.esperada ? certos : outros)++;
        EXPECT_GT(certos, 1000) << (p.escolha ? p.escolha : "cancelled");
        EXPECT_EQ(outros, 0) << (p.escolha ? p.escolha : "cancelled");
    }
}

TEST_F(IFS, DuasVezesNoMesmoInstanteDesenhosDiferentes)
{
    // The clock stands still (a fixed millisecond): a drawing still reseeds into a state of
    // its own, so the same system drawn twice lands on different pixels.
    Iteracoes("400");
    Premir("FetoBarnsley");
    const QImage primeiro = imagem->Imagem();
    Premir("ApagarGráfico");
    Premir("FetoBarnsley");
    EXPECT_GT(Desenhados(), 200);
    EXPECT_NE(imagem->Imagem(), primeiro);
}

TEST_F(IFS, PontosDaCorDoFundoApagamOsAnteriores)
{
    // The triangle's corners show at pixels (11, 615), (615, 615) and (11, 11): it lies below
    // the diagonal y = x. Black lace over the whole picture, a black triangle, then a white
    // triangle: drawn in the background's colour, it rubs out the points beneath it on
    // Picture1 and nothing else.
    const auto contar = [&](bool abaixo) {
        const QImage& img = imagem->Imagem();
        int n = 0;
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                if ((abaixo ? y > x + 2 : y < x - 2) && img.pixel(x, y) != imagem->CorFundo())
                    ++n;
        return n;
    };
    Iteracoes("100000");
    Premir("QueenLace");
    Premir("TriânguloSpier");
    const int acima = contar(false), abaixo = contar(true);
    sistema->coresEscolhidas.push_back(QColor(Qt::white));
    Premir("CorGráfico");
    Premir("TriânguloSpier");
    EXPECT_EQ(contar(false), acima);
    EXPECT_LT(contar(true), abaixo - 10000);
    EXPECT_GT(contar(true), 1000);  // the lace between the triangle's points stays
}

TEST_F(IFS, PaginasDeExemplos)
{
    auto* f1 = Achar<QGroupBox>(pagina, "Frame1");
    auto* f3 = Achar<QGroupBox>(pagina, "Frame3");
    struct Passo { const char* botao; bool primeira; };
    const Passo passos[] = {{nullptr, true}, {"Command1", false}, {"Command7", true}};
    for (const Passo& p : passos) {
        if (p.botao)
            Premir(p.botao);
        EXPECT_EQ(f1->isVisible(), p.primeira) << (p.botao ? p.botao : "at load");
        EXPECT_EQ(f3->isVisible(), !p.primeira) << (p.botao ? p.botao : "at load");
    }
}

TEST_F(IFS, ImagemRedimensionadaRecebeODesenhoInteiro)
{
    // On a 300 x 200 picture the scale (-2, 2)-(2, -2) is 75 pixels a unit across and 50 down:
    // Sierpinski's corners (0, 0), (1, 0), (0, 1) show at k·corner − offset, that is
    // (−1.85, −1.85), (1.85, −1.85), (−1.85, 1.85), in pixels (11, 193), (289, 193), (11, 8).
    Achar<QScrollBar>(pagina, "HScroll1")->setValue(300);
    Achar<QScrollBar>(pagina, "VScroll1")->setValue(200);
    Iteracoes("100000");
    Premir("TriânguloSpier");
    ASSERT_EQ(imagem->Imagem().size(), QSize(300, 200));
    ASSERT_EQ(imagem2->Imagem().size(), QSize(300, 200));
    const auto aceso = [&](int x, int y) {
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                if (imagem->Imagem().pixel(x + dx, y + dy) != imagem->CorFundo())
                    return true;
        return false;
    };
    EXPECT_TRUE(aceso(11, 193));
    EXPECT_TRUE(aceso(288, 192));
    EXPECT_TRUE(aceso(11, 9));
    EXPECT_FALSE(aceso(200, 50));  // above the hypotenuse
}

// Each example button draws its own system: the points it draws lie on that system's
// attractor, drawn by the renderer alone and widened by a pixel (all but a few in a hundred,
// where the reference's 200 000 points left a sparse dust bare), and the two buttons captioned
// "Folha de pé" draw one system.
TEST_F(IFS, CadaBotaoDesenhaOSeuSistema)
{
    Iteracoes("3000");
    int botoes = 0;
    std::vector<std::uint32_t> referencia(627 * 627);
    for (const char* quadro : {"Frame1", "Frame3"}) {
        for (QPushButton* b : Achar<QGroupBox>(pagina, quadro)->findChildren<QPushButton*>()) {
            if (b->objectName() == "Command1" || b->objectName() == "Command7")
                continue;
            ++botoes;
            const SistemaIFS* s = SistemaIFSPorNome(b->text().toStdString());
            ASSERT_NE(s, nullptr) << b->objectName().toStdString();
            SCOPED_TRACE(b->objectName().toStdString());

            std::fill(referencia.begin(), referencia.end(), 0);
            const Tela tela{referencia.data(), 627, 627, 627};
            SemearAleatorio(5);
            DesenharIFS(*s, 200'000, std::span(&tela, 1), 1u, Aleatorio, [] {});
            const auto perto = [&](int x, int y) {
                for (int dy = -1; dy <= 1; ++dy)
                    for (int dx = -1; dx <= 1; ++dx) {
                        const int u = x + dx, v = y + dy;
                        if (u >= 0 && v >= 0 && u < 627 && v < 627 && referencia[v * 627 + u])
                            return true;
                    }
                return false;
            };

            Premir("ApagarGráfico");
            b->click();
            const QImage& img = imagem->Imagem();
            int dentro = 0, fora = 0;
            for (int y = 0; y < img.height(); ++y)
                for (int x = 0; x < img.width(); ++x)
                    if (img.pixel(x, y) != imagem->CorFundo())
                        (perto(x, y) ? dentro : fora)++;
            EXPECT_GT(dentro, 300);
            EXPECT_LE(fora, dentro / 20);
        }
    }
    EXPECT_EQ(botoes, 62);
}

}  // namespace
}  // namespace lumerina::teste
