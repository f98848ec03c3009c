// The dimension page: each figure with its similarity dimension, box counting of this page's
// picture and of another page's, and a picture with nothing to measure.

#include "app/Paginas.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "geometric/PaginaDimensao.h"
#include "support/PlataformaGravadora.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include <cmath>

namespace lumerina::teste {
namespace {

class Dimensao : public TesteUi {
protected:
    void SetUp() override
    {
        TesteUi::SetUp();
        pagina = qobject_cast<PaginaDimensao*>(Pagina(Form::Dimensao));
        ASSERT_NE(pagina, nullptr);
        pagina->show();
    }
    void Desenhar(int figura)
    {
        Achar<QRadioButton>(pagina, "AutoSemelhanca")->click();
        Achar<QComboBox>(pagina, "Figura")->setCurrentIndex(figura);
        Achar<QPushButton>(pagina, "Desenhar")->click();
    }
    void Medir(const char* origem)
    {
        Achar<QRadioButton>(pagina, "ContagemCaixas")->click();
        auto* lista = Achar<QComboBox>(pagina, "Origem");
        lista->setCurrentIndex(lista->findText(QString::fromUtf8(origem)));
        ASSERT_GE(lista->currentIndex(), 0) << origem;
        Achar<QPushButton>(pagina, "Medir")->click();
    }
    // The estimate shown, "D ≈ 1,58", as a number; NaN when the label does not read so.
    double D()
    {
        QString t = Achar<QLabel>(pagina, "Dimensao")->text();
        if (!t.startsWith(QString::fromUtf8("D ≈ ")))
            return std::nan("");
        return t.mid(4).replace(',', '.').toDouble();
    }

    PaginaDimensao* pagina = nullptr;
};

TEST_F(Dimensao, CadaFiguraComASuaDimensaoDeSemelhanca)
{
    // Page 25's table, in the order of the list.
    struct Caso { const char* nome; const char* N; const char* D; };
    const Caso casos[] = {
        {"Conjunto de Cantor", "N = 2", "0,6309"},
        {"Curva de Koch", "N = 4", "1,2619"},
        {"Floco de neve de Koch", "N = 4", "1,2619"},
        {"Triângulo de Sierpinski", "N = 3", "1,5850"},
        {"Carpete de Sierpinski", "N = 8", "1,8928"},
        {"Quadrado fractal", "N = 5", "1,4650"},
        {"Dragão de Heighway", "N = 2", "2,0000"},
    };
    auto* lista = Achar<QComboBox>(pagina, "Figura");
    ASSERT_EQ(lista->count(), 7);
    for (int k = 0; k < 7; ++k) {
        EXPECT_TRUE(lista->itemText(k).startsWith(QString::fromUtf8(casos[k].nome))) << k;
        Desenhar(k);
        const QString texto = Achar<QLabel>(pagina, "Semelhanca")->text();
        EXPECT_TRUE(texto.contains(QString::fromUtf8(casos[k].N))) << qPrintable(texto);
        EXPECT_TRUE(texto.contains(QString::fromUtf8(casos[k].D))) << qPrintable(texto);
        EXPECT_TRUE(pagina->Janela()->desenhado);
    }
}

TEST_F(Dimensao, ContagemDeCaixasDoTrianguloDeSierpinski)
{
    Desenhar(3);
    Medir("Esta página");
    EXPECT_TRUE(sistema->mensagens.empty());
    EXPECT_NEAR(D(), std::log(3.0) / std::log(2.0), 0.04);
    EXPECT_TRUE(Achar<QLabel>(pagina, "Ajuste")->text().startsWith(QString::fromUtf8("r² = 0,99")));
    auto* tabela = Achar<QTableWidget>(pagina, "TabelaCaixas");
    ASSERT_EQ(tabela->rowCount(), 7);
    long antes = 0;
    for (int k = 0; k < 7; ++k) {
        EXPECT_EQ(tabela->item(k, 0)->text(), QString::number(2 << k));
        const long n = tabela->item(k, 1)->text().toLong();
        if (k > 0) {
            // Halving the box multiplies the count by about 3 (between 2 and 4).
            EXPECT_GT(antes, 2 * n) << "s = " << (2 << k);
            EXPECT_LT(antes, 4 * n) << "s = " << (2 << k);
        }
        antes = n;
    }
    // log(1/s) of s = 2, to four decimals: -0.30103.
    EXPECT_EQ(tabela->item(0, 2)->text(), "-0,3010");
}

TEST_F(Dimensao, SemDesenhoDizOComUmaMensagem)
{
    // Nothing drawn here yet; the other pages not even opened, or (Mandelbrot) opened and
    // never drawn, or drawn and then cleared.
    struct Caso { const char* origem; const char* parte; };
    const Caso casos[] = {
        {"Esta página", "Esta página"},
        {"Conjuntos de Julia", "«Conjuntos de Julia»"},
        {"IFS", "«IFS»"},
        {"L-Sistemas", "«L-Sistemas»"},
        {"Atractores", "«Atractores»"},
        {"Conjunto de Mandelbrot", "«Conjunto de Mandelbrot»"},
    };
    Pagina(Form::Mandelbrot);
    for (const Caso& c : casos) {
        sistema->mensagens.clear();
        Medir(c.origem);
        ASSERT_EQ(sistema->mensagens.size(), 1u) << c.origem;
        EXPECT_EQ(sistema->mensagens[0].titulo, QString::fromUtf8("Dimensão fractal"));
        EXPECT_EQ(sistema->mensagens[0].icone, IconeMensagem::Informacao);
        EXPECT_TRUE(sistema->mensagens[0].texto.contains(QString::fromUtf8(c.parte)))
            << qPrintable(sistema->mensagens[0].texto);
        EXPECT_TRUE(Achar<QLabel>(pagina, "Dimensao")->text().isEmpty());
    }
    // Drawn, then cleared with "Apagar".
    Desenhar(3);
    Achar<QPushButton>(pagina, "ApagarGráfico")->click();
    sistema->mensagens.clear();
    Medir("Esta página");
    EXPECT_EQ(sistema->mensagens.size(), 1u);
}

TEST_F(Dimensao, MedeOQuadroDeOutraPagina)
{
    // The Mandelbrot page paints every pixel: no background is left, and a picture covered
    // everywhere has dimension 2 (ceil(628/s)² boxes: within 0.02).
    QWidget* mandel = Pagina(Form::Mandelbrot);
    mandel->findChild<QLineEdit*>(QStringLiteral("MaxIterações"))->setText("20");
    mandel->findChild<QPushButton*>(QStringLiteral("DesenharMandelbrot"))->click();
    Medir("Conjunto de Mandelbrot");
    EXPECT_TRUE(sistema->mensagens.empty());
    EXPECT_NEAR(D(), 2, 0.02);
    // Only the figure pixels of a picture count: a line in another colour on the background.
    ControloImagem* imagem = mandel->findChild<ControloImagem*>(QStringLiteral("Picture1"));
    imagem->Limpar();
    imagem->EscalaPixeis();
    imagem->Linha(0, 300, 627, 300, qRgb(0, 0, 255));
    Medir("Conjunto de Mandelbrot");
    EXPECT_NEAR(D(), 1, 0.02);
}

TEST_F(Dimensao, MedeAIlhaDeKochDasLSistemas)
{
    // Example "12" of the L-systems page: the quadratic Koch island, whose coastline is made of
    // 8 copies of itself at a quarter of the size, D = log 8 / log 4 = 1.5. Its last stage is
    // drawn with steps of a pixel, so the smallest boxes see the grain: a tenth or two.
    QWidget* lsistemas = Pagina(Form::LSistemas);
    lsistemas->show();
    lsistemas->findChild<QRadioButton*>(QStringLiteral("Option12"))->click();
    lsistemas->findChild<QPushButton*>(QStringLiteral("Desenhar"))->click();
    Medir("L-Sistemas");
    EXPECT_TRUE(sistema->mensagens.empty());
    EXPECT_NEAR(D(), 1.5, 0.15);
}

TEST_F(Dimensao, MedeOTrianguloDeSierpinskiDoIFS)
{
    // The IFS page's Sierpinski triangle: three maps of ratio 1/2, D = log 3 / log 2.
    QWidget* ifs = Pagina(Form::IFS);
    ifs->show();
    ifs->findChild<QPushButton*>(QString::fromUtf8("TriânguloSpier"))->click();
    Medir("IFS");
    EXPECT_TRUE(sistema->mensagens.empty());
    EXPECT_NEAR(D(), std::log(3.0) / std::log(2.0), 0.04);
}

}  // namespace
}  // namespace lumerina::teste
