// The orbits page: the table and the escape message against orbits worked by hand, the
// cobweb drawn where the maths puts it, and the timer: stopped by "Parar", by hiding the page
// and by "Abandonar", and gone with the page.

#include "app/Paginas.h"
#include "complex/PaginaOrbitas.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "support/TestePagina.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTimer>

#include <cmath>
#include <functional>
#include <vector>

namespace lumerina::teste {
namespace {

constexpr QRgb kTeia = 0xFFC02020;

class PaginaDeOrbitas : public TestePagina<PaginaOrbitas, Form::Orbitas> {
protected:
    void SetUp() override
    {
        TestePagina::SetUp();
        if (HasFatalFailure())
            return;
        pagina->show();
        tabela = Achar<QTableWidget>(pagina, "TabelaOrbita");
        relogio = Achar<QTimer>(pagina, "Timer1");
    }
    void Clicar(const char* botao, int vezes = 1)
    {
        for (int k = 0; k < vezes; ++k)
            Achar<QPushButton>(pagina, botao)->click();
    }
    // One tick of the timer, as the event loop would deliver it.
    void Tique() { QMetaObject::invokeMethod(relogio, "timeout", Qt::DirectConnection); }
    QString Celula(int linha, int coluna) const
    {
        const QTableWidgetItem* item = tabela->item(linha, coluna);
        return item ? item->text() : QString();
    }
    QString Mensagem() { return Achar<QLabel>(pagina, "LabelFuga")->text(); }
    void Premir(QPoint p) { Rato(QEvent::MouseButtonPress, p, Qt::LeftButton, Qt::LeftButton); }
    // Whether the picture has colour `cor` within a pixel of (x, y).
    bool CorPerto(int x, int y, QRgb cor) const
    {
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                if (Pixel(x + dx, y + dy) == cor)
                    return true;
        return false;
    }

    QTableWidget* tabela = nullptr;
    QTimer* relogio = nullptr;
};

TEST_F(PaginaDeOrbitas, TabelaEMensagemDasOrbitasDaPagina4)
{
    struct Caso {
        const char* c;
        const char* d;
        std::vector<const char*> z;  // column z_n, from row 0
        const char* mensagem;        // a piece of LabelFuga
        const char* modulo2;         // |z_2|
    };
    const Caso casos[] = {
        {"1", "0", {"0", "1", "2", "5", "26"}, "fugiu no passo 3", "2"},
        {"-1", "0", {"0", "-1", "0", "-1", "0"}, "período 2", "0"},
        {"0", "1", {"0", "i", "-1 + i", "-i", "-1 + i", "-i"}, "período 2", "1,414214"},
        {"0.25", "0", {"0", "0,25", "0,3125", "0,347656"}, "", "0,3125"},
    };
    for (const Caso& c : casos) {
        Texto("ValorDeC", c.c);
        Texto("ValorDeD", c.d);
        Clicar("Recomeçar");
        const int passos = static_cast<int>(c.z.size()) - 1;
        Clicar("Passo", passos);
        ASSERT_EQ(tabela->rowCount(), passos + 1) << c.c;
        for (int n = 0; n <= passos; ++n) {
            EXPECT_EQ(Celula(n, 0), QString::number(n));
            EXPECT_EQ(Celula(n, 1), QString::fromUtf8(c.z[static_cast<std::size_t>(n)]))
                << "c = " << c.c << ", n = " << n;
        }
        EXPECT_EQ(Celula(2, 2), QString::fromUtf8(c.modulo2)) << "c = " << c.c;
        EXPECT_TRUE(Mensagem().contains(QString::fromUtf8(c.mensagem))) << qPrintable(Mensagem());
    }
}

TEST_F(PaginaDeOrbitas, UmCampoMudadoComecaOutraOrbita)
{
    Texto("ValorDeC", "1");
    Clicar("Passo", 3);
    Texto("ValorDeC", "-1");
    Clicar("Passo");
    ASSERT_EQ(tabela->rowCount(), 2);
    EXPECT_EQ(Celula(1, 1), "-1");
    EXPECT_TRUE(Mensagem().isEmpty());
}

TEST_F(PaginaDeOrbitas, TransbordoParaSemLinhasQueNaoSaoNumeros)
{
    // 0, 1, 2, 5, 26, ...: x_{n+1} = x_n² + 1 doubles the exponent each step; x_11 ≈ 1.4e181
    // and x_12 is beyond the largest double. The automatic steps stop there.
    Texto("ValorDeC", "1");
    Clicar("Recomeçar");
    Clicar("Automatico");
    ASSERT_TRUE(relogio->isActive());
    for (int k = 0; k < 40 && relogio->isActive(); ++k)
        Tique();
    EXPECT_FALSE(relogio->isActive());
    EXPECT_EQ(tabela->rowCount(), 12);
    for (int n = 0; n < tabela->rowCount(); ++n)
        for (int coluna = 1; coluna <= 2; ++coluna) {
            const QString t = Celula(n, coluna).toLower();
            EXPECT_FALSE(t.contains("nan") || t.contains("inf")) << n << ": " << qPrintable(t);
        }
    EXPECT_TRUE(Mensagem().contains("capacidade")) << qPrintable(Mensagem());
    // "Passo" adds nothing more.
    Clicar("Passo");
    EXPECT_EQ(tabela->rowCount(), 12);
}

TEST_F(PaginaDeOrbitas, TeiaDesenhadaOndeAMatematicaAPoe)
{
    // x <- x² - 1 from 0: the view is [-2.1, 2.1]² (1.05 times the larger of 2 and
    // (1 + sqrt 5)/2). World (x, y) is at pixel ((x + 2.1)/4.2·628, (2.1 - y)/4.2·628).
    Achar<QRadioButton>(pagina, "ModoQuadratica")->click();
    Texto("ValorDeC", "-1");
    Texto("ValorX0", "0");
    const auto px = [](double x) { return static_cast<int>(std::floor((x + 2.1) / 4.2 * 628)); };
    const auto py = [](double y) { return static_cast<int>(std::floor((2.1 - y) / 4.2 * 628)); };
    EXPECT_FALSE(CorPerto(px(0), py(-0.5), kTeia));
    Clicar("Passo");
    // Down from (0, 0) to the graph at (0, -1), then across to the diagonal at (-1, -1).
    EXPECT_TRUE(CorPerto(px(0), py(-0.5), kTeia));
    EXPECT_TRUE(CorPerto(px(-0.5), py(-1), kTeia));
    EXPECT_FALSE(CorPerto(px(-0.5), py(1), kTeia)) << "drawn upside down";
    EXPECT_FALSE(CorPerto(px(-1), py(-0.5), kTeia)) << "not yet the second step";
    Clicar("Passo");
    // Up from (-1, -1) to (-1, 0), across to (0, 0).
    EXPECT_TRUE(CorPerto(px(-1), py(-0.5), kTeia));
    EXPECT_EQ(Celula(2, 1), "0");
}

TEST_F(PaginaDeOrbitas, CliqueEscolheOPontoInicial)
{
    // The complex view is [-2.2, 2.2]²: pixel (471, 157) is 1.1 + 1.1i.
    Texto("ValorDeC", "0");
    Texto("ValorDeD", "0");
    Premir({471, 157});
    ASSERT_EQ(tabela->rowCount(), 1);
    EXPECT_EQ(Celula(0, 1), "1,1 + 1,1i");
    // A corner, -2.2 + 2.2i, is already beyond |z| = 2.
    Premir({0, 0});
    EXPECT_TRUE(Mensagem().contains("passo 0")) << qPrintable(Mensagem());
    // In a cobweb the click is x_0, written in its field. For x <- x² - 1 from 0 the view is
    // [-2.1, 2.1]: pixel 471 is x = -2.1 + 471·4.2/628 = 1.05.
    Achar<QRadioButton>(pagina, "ModoQuadratica")->click();
    Texto("ValorDeC", "-1");
    Texto("ValorX0", "0");
    Clicar("Recomeçar");
    Premir({471, 100});
    EXPECT_EQ(Achar<QLineEdit>(pagina, "ValorX0")->text(), "1.05");
    EXPECT_EQ(Celula(0, 1), "1,05");
}

TEST_F(PaginaDeOrbitas, CosenoChegaAoPontoFixoEOAutomaticoPara)
{
    Achar<QRadioButton>(pagina, "ModoCoseno")->click();
    Texto("ValorX0", "1");
    Clicar("Recomeçar");
    EXPECT_EQ(tabela->horizontalHeaderItem(1)->text(), "xₙ");
    Clicar("Automatico");
    for (int k = 0; k < 200 && relogio->isActive(); ++k)
        Tique();
    EXPECT_FALSE(relogio->isActive());
    EXPECT_TRUE(Mensagem().contains("ponto fixo")) << qPrintable(Mensagem());
    EXPECT_EQ(Celula(tabela->rowCount() - 1, 1), "0,739085");
}

TEST_F(PaginaDeOrbitas, PararEEsconderParamORelogio)
{
    struct Caso {
        const char* nome;
        std::function<void()> parar;
    };
    const Caso casos[] = {
        {"Parar", [&] { Clicar("Parar"); }},
        {"hide", [&] { pagina->hide(); }},
        {"Fechar esta página", [&] { Achar<QAction>(pagina, "FecharPágina")->trigger(); }},
        {"another topic", [&] { Achar<QAction>(pagina, "Julia")->trigger(); }},
        {"Apagar", [&] { Clicar("ApagarGráfico"); }},
    };
    for (const Caso& c : casos) {
        pagina->show();
        Texto("ValorDeC", "-1");
        Clicar("Recomeçar");
        Clicar("Automatico");
        ASSERT_TRUE(relogio->isActive()) << c.nome;
        EXPECT_FALSE(Achar<QPushButton>(pagina, "Automatico")->isEnabled());
        Tique();
        EXPECT_EQ(tabela->rowCount(), 2) << c.nome;
        c.parar();
        EXPECT_FALSE(relogio->isActive()) << c.nome;
        EXPECT_TRUE(Achar<QPushButton>(pagina, "Automatico")->isEnabled()) << c.nome;
    }
}

TEST_F(PaginaDeOrbitas, AbandonarParaORelogioENenhumPassoDepois)
{
    Clicar("Automatico");
    Achar<QAction>(pagina, "Abandonar")->trigger();
    EXPECT_FALSE(relogio->isActive());
    const int linhas = tabela->rowCount();
    Tique();  // a tick already queued when the program began to end
    EXPECT_EQ(tabela->rowCount(), linhas);
}

TEST_F(PaginaDeOrbitas, RelogioVaiComAPagina)
{
    Clicar("Automatico");
    QPointer<QTimer> vigia = relogio;
    LibertarPagina(Form::Orbitas);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(vigia.isNull());
}

TEST_F(PaginaDeOrbitas, VelocidadeEmPassosPorSegundo)
{
    auto* barra = Achar<QScrollBar>(pagina, "Velocidade");
    struct Caso { int passos, intervalo; };
    for (const Caso& c : {Caso{1, 1000}, Caso{4, 250}, Caso{50, 20}}) {
        barra->setValue(c.passos);
        EXPECT_EQ(relogio->interval(), c.intervalo);
    }
}

}  // namespace
}  // namespace lumerina::teste
