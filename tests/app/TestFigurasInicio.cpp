// The main page's pictures: one beside each topic, drawn at the screen's density, with
// something to see in each, and no action of their own.

#include "app/Aplicacao.h"
#include "app/FigurasInicio.h"
#include "app/PaginaInicial.h"
#include "app/Paginas.h"
#include "support/PlataformaGravadora.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>

#include <set>

namespace lumerina::teste {
namespace {

struct Figura {
    const char* nome;
    QImage (*desenhar)(QSize, qreal);
};
const Figura kFiguras[] = {
    {"Mandelbrot", FiguraMandelbrot}, {"Julia", FiguraJulia},
    {"Feto", FiguraFeto},             {"Newton", FiguraNewton},
    {"Sierpinski", FiguraSierpinski}, {"Atractor", FiguraAtractor},
    {"Planta", FiguraPlanta},
};

// At twice the density a picture has twice the pixels each way, not the same ones stretched:
// more distinct colours, and the figure covers a like share of it.
TEST(FigurasInicio, DesenhadasADensidadeDoEcra)
{
    const QSize tamanho(PaginaInicial::kLarguraFigura, PaginaInicial::kAlturaFigura);
    for (const Figura& f : kFiguras) {
        double parte[2] = {};
        for (int k = 0; k < 2; ++k) {
            const qreal escala = k + 1;
            const QImage img = f.desenhar(tamanho, escala);
            EXPECT_EQ(img.size(), tamanho * escala) << f.nome;
            EXPECT_EQ(img.devicePixelRatio(), escala) << f.nome;
            // The colour just inside the frame's corner: the background, or the figure where
            // it fills the picture.
            const QRgb fundo = img.pixel(2 * int(escala), 2 * int(escala));
            std::set<QRgb> cores;
            long figura = 0;
            for (int y = 0; y < img.height(); ++y)
                for (int x = 0; x < img.width(); ++x) {
                    cores.insert(img.pixel(x, y));
                    figura += img.pixel(x, y) != fundo;
                }
            EXPECT_GE(cores.size(), 8u) << f.nome << " at " << escala;
            parte[k] = double(figura) / (img.width() * img.height());
            EXPECT_GT(parte[k], 0.04) << f.nome << " at " << escala << ": nearly empty";
        }
        EXPECT_NEAR(parte[1], parte[0], 0.12) << f.nome;
    }
}

class PaginaInicialFiguras : public TesteUi {};

// Image2 … Image8 sit at the right of the topic labels, in this order, each on its label's
// row, and a click on one opens nothing.
TEST_F(PaginaInicialFiguras, UmaFiguraAoLadoDeCadaTopico)
{
    QWidget* inicial = AbrirLumerina();
    const char* topicos[] = {"LabelMandelbrot", "LabelJulia",      "LabelIFS",      "LabelNewton",
                             "LabelDimensão",   "LabelAtractores", "LabelLSistemas"};
    const qreal escala = QGuiApplication::primaryScreen()->devicePixelRatio();
    int numero = 2;
    for (const char* topico : topicos) {
        const QString nome = QStringLiteral("Image%1").arg(numero++);
        auto* imagem = inicial->findChild<QLabel*>(nome);
        ASSERT_NE(imagem, nullptr) << qPrintable(nome);
        const QRect r = Achar<QLabel>(inicial, topico)->geometry();
        EXPECT_GT(imagem->geometry().left(), r.right()) << qPrintable(nome);
        EXPECT_TRUE(imagem->geometry().contains(imagem->geometry().left() + 1, r.center().y()))
            << qPrintable(nome) << " is not on the row of " << topico;
        EXPECT_FALSE(imagem->pixmap().isNull()) << qPrintable(nome);
        EXPECT_EQ(imagem->pixmap().devicePixelRatio(), escala) << qPrintable(nome);
        QTest::mouseClick(imagem, Qt::LeftButton);
    }
    EXPECT_EQ(inicial->findChild<QLabel*>("Image9"), nullptr);
    for (int n = 1; n <= kNumeroPaginas; ++n) {
        if (n != Form::Inicial) {
            EXPECT_EQ(PaginaExistente(n), nullptr) << "page " << n << " opened by a picture";
        }
    }
}

}  // namespace
}  // namespace lumerina::teste
