#pragma once
// The small pictures beside the topics of the main page, computed at start-up (one function
// each) at the screen's pixel ratio, so that they are crisp on any screen and nothing has to
// be shipped. Each returns an image of `tamanho` device-independent pixels.
//
// The Mandelbrot set comes from the escape-time kernel of its page, Sierpinski's triangle
// from the shared constructions and the plant from the L-systems' rewriting and turtle; the
// Julia set, Newton's basins, the fern and the attractor iterate their few lines of maths in
// their own function.

#include <QImage>
#include <QSize>

namespace lumerina {

QImage FiguraMandelbrot(QSize tamanho, qreal escala);
QImage FiguraJulia(QSize tamanho, qreal escala);
QImage FiguraFeto(QSize tamanho, qreal escala);
QImage FiguraNewton(QSize tamanho, qreal escala);
QImage FiguraSierpinski(QSize tamanho, qreal escala);
QImage FiguraAtractor(QSize tamanho, qreal escala);
QImage FiguraPlanta(QSize tamanho, qreal escala);

}  // namespace lumerina
