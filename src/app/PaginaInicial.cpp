#include "app/PaginaInicial.h"

#include "app/FigurasInicio.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>

namespace lumerina {

namespace {

QLabel* Rotulo(QWidget* pai, const char* nome, const char* texto, int tamanho, bool negrito,
               const char* cor)
{
    auto* rotulo = new QLabel(QString::fromUtf8(texto), pai);
    rotulo->setObjectName(QString::fromUtf8(nome));
    QFont letra = rotulo->font();
    letra.setPointSize(tamanho);
    letra.setBold(negrito);
    rotulo->setFont(letra);
    rotulo->setStyleSheet(QStringLiteral("color: %1; background: transparent;").arg(cor));
    return rotulo;
}

}  // namespace

PaginaInicial::PaginaInicial(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    Area()->setObjectName(QStringLiteral("AreaInicial"));
    Area()->setAttribute(Qt::WA_StyledBackground, true);
    Area()->setStyleSheet(QStringLiteral(
        "#AreaInicial { background: qlineargradient(x1:0, y1:0, x2:0, y2:1,"
        " stop:0 #0b1630, stop:1 #1d3a66); }"));

    QLabel* titulo = Titulo();
    titulo->setObjectName(QStringLiteral("Label1"));
    QFont letra = titulo->font();
    letra.setPointSize(44);
    letra.setBold(true);
    letra.setLetterSpacing(QFont::AbsoluteSpacing, 8);
    titulo->setFont(letra);
    titulo->setStyleSheet(QStringLiteral("color: #f3c969; background: transparent;"));
    titulo->setGeometry(0, 40, kLargura, 80);

    QLabel* versao = Rotulo(Area(), "LabelVersão", "Versão 1.7", 12, false, "#d8e1f0");
    versao->setAlignment(Qt::AlignCenter);
    versao->setGeometry(0, 122, kLargura, 24);
    QLabel* resolucao =
        Rotulo(Area(), "LabelResolução", "Resolução: 1024 x 768", 10, false, "#9fb0cc");
    resolucao->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    resolucao->setGeometry(kLargura - 260, kAltura - 34, 240, 22);

    // The topics in two columns, each with a small picture of its topic at its right,
    // computed now: Image2 to Image8, decorations without actions.
    using Figura = QImage (*)(QSize, qreal);
    struct Topico { const char* nome; const char* texto; int coluna, linha; Figura figura; };
    const Topico topicos[] = {
        {"LabelMandelbrot", "Mandelbrot", 0, 0, FiguraMandelbrot},
        {"LabelJulia", "Julia", 0, 1, FiguraJulia},
        {"LabelIFS", "IFS", 0, 2, FiguraFeto},
        {"LabelNewton", "Newton", 0, 3, FiguraNewton},
        {"LabelDimensão", "Dimensão", 1, 0, FiguraSierpinski},
        {"LabelAtractores", "Atractores", 1, 1, FiguraAtractor},
        {"LabelLSistemas", "L-Sistemas", 1, 2, FiguraPlanta},
    };
    const qreal escala = QGuiApplication::primaryScreen()
                             ? QGuiApplication::primaryScreen()->devicePixelRatio()
                             : 1.0;
    int numero = 2;
    for (const Topico& t : topicos) {
        const int x = 90 + t.coluna * 470, y = 200 + t.linha * 100;
        QLabel* r = Rotulo(Area(), t.nome, t.texto, 16, true, "#ffffff");
        r->setGeometry(x, y, 170, 40);
        auto* imagem = new QLabel(Area());
        imagem->setObjectName(QStringLiteral("Image%1").arg(numero++));
        imagem->setGeometry(x + 180, y - 25, kLarguraFigura, kAlturaFigura);
        imagem->setPixmap(QPixmap::fromImage(t.figura({kLarguraFigura, kAlturaFigura}, escala)));
    }
}

}  // namespace lumerina
