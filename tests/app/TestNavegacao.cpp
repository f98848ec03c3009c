// The shell: single pages, the menu bar, moving between pages, closing and leaving.

#include "app/Aplicacao.h"
#include "app/Paginas.h"
#include "interp/clsEquation.h"
#include "support/PlataformaGravadora.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>

namespace lumerina::teste {
namespace {

class Navegacao : public TesteUi {
protected:
    QAction* Item(QWidget* pagina, const char* nome)
    {
        return Achar<QAction>(pagina, nome);
    }
};

// Topic item (as named on the main page) and the page it opens.
struct Destino { const char* item; int pagina; };
const Destino kDestinosInicial[] = {
    {"InícioMandelbrot", 2}, {"Julia", 1}, {"Órbitas", 3}, {"Relação", 4},
    {"MétodoNewton", 7}, {"Sistemas", 10}, {"JogoCaos", 11}, {"Transformações", 12},
    {"IrAtractores", 16}, {"IrLSistemas", 9}, {"IrSucessões", 14}, {"DimensãoFractal", 15},
};

TEST_F(Navegacao, CadaPaginaEUmaSoInstanciaComOSeuNome)
{
    for (int n = 1; n <= kNumeroPaginas; ++n) {
        QWidget* primeira = Pagina(n);
        ASSERT_NE(primeira, nullptr);
        EXPECT_EQ(primeira->objectName(), QStringLiteral("Form%1").arg(n));
        EXPECT_EQ(Pagina(n), primeira);
    }
    EXPECT_EQ(Pagina(0), nullptr);
    EXPECT_EQ(Pagina(17), nullptr);
}

TEST_F(Navegacao, BarraDeMenusNaOrdemEComOsNomesDaPagina)
{
    const QStringList menus = {"Ficheiro", "Mandelbrot", "Newton", "IFS", "Atractores",
                               "L-Sistemas", "Sucessões", "Dimensão", "Instruções",
                               "Comentários", "Sugestões"};
    for (int n : {5, 2}) {
        auto* pagina = qobject_cast<QMainWindow*>(Pagina(n));
        QStringList vistos;
        for (QAction* a : pagina->menuBar()->actions())
            vistos << a->text();
        EXPECT_EQ(vistos, menus) << "Form" << n;
    }
    QWidget* inicial = AbrirLumerina();
    QWidget* topico = Pagina(2);
    // Names that differ between the main page and the topic pages.
    EXPECT_EQ(inicial->findChild<QAction*>("FecharPágina"), nullptr);
    EXPECT_NE(topico->findChild<QAction*>("FecharPágina"), nullptr);
    for (const char* nome : {"InícioMandelbrot", "Sistemas", "DimensãoFractal"}) {
        EXPECT_NE(inicial->findChild<QAction*>(nome), nullptr) << nome;
        EXPECT_EQ(topico->findChild<QAction*>(nome), nullptr) << nome;
    }
    for (const char* nome : {"IrIFS", "IrDimensão"}) {
        EXPECT_EQ(inicial->findChild<QAction*>(nome), nullptr) << nome;
        EXPECT_NE(topico->findChild<QAction*>(nome), nullptr) << nome;
    }
}

TEST_F(Navegacao, FecharCadaPaginaDeixaAPaginaInicial)
{
    QWidget* inicial = AbrirLumerina();
    for (const Destino& d : kDestinosInicial) {
        Item(inicial, d.item)->trigger();
        QWidget* pagina = Pagina(d.pagina);
        EXPECT_TRUE(pagina->isVisible()) << d.item;
        EXPECT_TRUE(inicial->isVisible());
    }
    for (const Destino& d : kDestinosInicial)
        Item(Pagina(d.pagina), "FecharPágina")->trigger();
    for (int n = 1; n <= kNumeroPaginas; ++n) {
        if (n != 5 && PaginaExistente(n)) {
            EXPECT_FALSE(PaginaExistente(n)->isVisible()) << "Form" << n;
        }
    }
    EXPECT_TRUE(inicial->isVisible());
    // The window's own close button on a topic page closes just that page.
    Item(inicial, "Julia")->trigger();
    Pagina(1)->close();
    EXPECT_FALSE(Pagina(1)->isVisible());
    EXPECT_TRUE(inicial->isVisible());
    EXPECT_FALSE(sistema->ATerminar());
}

TEST_F(Navegacao, DeUmaPaginaDeTopicoParaOutraEscondeAPrimeira)
{
    QWidget* inicial = AbrirLumerina();
    Item(inicial, "InícioMandelbrot")->trigger();
    Item(Pagina(2), "Julia")->trigger();
    EXPECT_FALSE(Pagina(2)->isVisible());
    EXPECT_TRUE(Pagina(1)->isVisible());
    // Choosing the page one is on leaves it shown.
    Item(Pagina(1), "Julia")->trigger();
    EXPECT_TRUE(Pagina(1)->isVisible());
}

TEST_F(Navegacao, InstrucoesEComentariosAbremNaPaginaDoTopico)
{
    struct Caso { int pagina, instrucoes, comentarios; };
    const Caso casos[] = {
        {5, 1, 1},   {3, 4, 8},    {2, 6, 11},  {1, 9, 18},   {4, 11, 22},
        {7, 12, 23}, {10, 15, 33}, {11, 16, 38}, {12, 18, 40}, {16, 19, 41},
        {9, 23, 53}, {14, 24, 58}, {15, 25, 69},
    };
    for (const Caso& c : casos) {
        QWidget* origem = Pagina(c.pagina);
        PaginaInstrucoes = PaginaComentarios = -1;
        Item(origem, "Instruções")->trigger();
        EXPECT_EQ(PaginaInstrucoes, c.instrucoes) << "Form" << c.pagina;
        Item(origem, "Comentários")->trigger();
        EXPECT_EQ(PaginaComentarios, c.comentarios) << "Form" << c.pagina;
        // Shown over the page, which stays visible.
        EXPECT_TRUE(Pagina(6)->isVisible());
        EXPECT_TRUE(Pagina(8)->isVisible());
        LibertarPagina(6);
        LibertarPagina(8);
    }
    QWidget* mandel = Pagina(2);
    mandel->show();
    Item(mandel, "Sugestões")->trigger();
    EXPECT_TRUE(Pagina(13)->isVisible());
    EXPECT_TRUE(mandel->isVisible());
}

// The interpreter's "rnd(" takes the platform's clock into the generator: from one state, the
// same reading gives the same number and another reading another number.
TEST_F(Navegacao, AleatoriosMisturamORelogioDaPlataforma)
{
    AbrirLumerina();
    auto rnd = [&](std::uint32_t leitura) {
        sistema->semente = leitura;
        SemearAleatorio(3);
        clsEquation eq;
        eq.Expression("rnd(1)");
        return eq.Value();
    };
    const double a = rnd(20261123);
    EXPECT_EQ(rnd(20261123), a);
    EXPECT_NE(rnd(20261124), a);
}

// "Abandonar" in the middle of a loop that yields: the yield answers false at once, the
// loop returns, and the main loop ends with code 0.
TEST_F(Navegacao, AbandonarDuranteUmLacoQueCede)
{
    QPointer<QWidget> inicial = AbrirLumerina();
    sistema->aoCeder = [&](int vez) {
        if (vez == 10)
            Item(inicial, "Abandonar")->trigger();
    };
    int colunas = -1;
    QTimer::singleShot(0, [&] {
        for (colunas = 0; colunas < 629; ++colunas)
            if (!Sistema().Ceder())
                break;
    });
    const int codigo = QCoreApplication::exec();
    EXPECT_EQ(codigo, 0);
    EXPECT_EQ(colunas, 9);
    // Once the main loop has ended, the pages are released.
    EXPECT_TRUE(inicial.isNull());
}

}  // namespace
}  // namespace lumerina::teste
