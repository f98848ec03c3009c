// The attractor beside "Atractores", in a file of its own: the attractors' header brings a
// point type of its own, which the other pictures' headers would meet.

#include "app/FigurasInicio.h"

#include "dynamics/Atractores.h"

#include <QPainter>
#include <QPointF>

#include <vector>

namespace lumerina {

QImage FiguraAtractor(QSize tamanho, qreal escala)
{
    QImage imagem = NovaFigura(tamanho, escala);
    // The attractors page's Lorenz stepper with Lorenz's own constants (σ = 10, ρ = 28,
    // β = 8/3), plotted as that page plots it, (x/2, z/2): the two wings side by side.
    Atractor lorenz = Lorenz{.a = 10, .b = 28, .c = 8.0 / 3};
    constexpr int kTransitorio = 2000, kPontos = 40000;
    std::vector<Ponto> pontos(kTransitorio + kPontos);
    Pontos(lorenz, pontos.data(), int(pontos.size()));
    std::vector<QPointF> linha;
    linha.reserve(kPontos);
    for (std::size_t k = kTransitorio; k < pontos.size(); ++k)
        linha.emplace_back(pontos[k].x, pontos[k].y);
    {
        QPainter pintor(&imagem);
        pintor.setRenderHint(QPainter::Antialiasing);
        const QSizeF t = imagem.deviceIndependentSize();
        // x/2 in [−11, 11] and z/2 in [1, 25] fill the height; the width is centred.
        const double porUnidade = (t.height() - 8) / 24.0;
        QTransform mundo;
        mundo.translate(t.width() / 2, t.height() - 4 + 1 * porUnidade);
        mundo.scale(porUnidade, -porUnidade);
        pintor.setTransform(mundo);
        pintor.setPen(QPen(QColor(0xff, 0x9e, 0x5e, 150), 0));
        pintor.drawPolyline(linha.data(), int(linha.size()));
    }
    Emoldurar(imagem);
    return imagem;
}

}  // namespace lumerina
