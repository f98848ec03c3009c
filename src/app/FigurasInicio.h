#pragma once
// The small pictures beside the topics of the main page, computed at start-up (one function
// each) at the screen's pixel ratio, so that they are crisp on any screen and nothing has to
// be shipped. Each returns an image of `tamanho` device-independent pixels.
//
// The Mandelbrot set comes from the escape-time kernel of its page, the fern from the IFS
// page's catalogue and iteration, Sierpinski's triangle from the shared constructions, the
// attractor from the attractors page's Lorenz stepper and the plant from the L-systems'
// rewriting and turtle; the Julia set and Newton's basins iterate their few lines of maths
// in their own function.

#include <QImage>
#include <QSize>

namespace lumerina {

// What every picture starts from: the background, at the given size and ratio; and the thin
// frame drawn round it at the end.
QImage NovaFigura(QSize tamanho, qreal escala);
void Emoldurar(QImage& imagem);

QImage FiguraMandelbrot(QSize tamanho, qreal escala);
QImage FiguraJulia(QSize tamanho, qreal escala);
QImage FiguraFeto(QSize tamanho, qreal escala);
QImage FiguraNewton(QSize tamanho, qreal escala);
QImage FiguraSierpinski(QSize tamanho, qreal escala);
QImage FiguraAtractor(QSize tamanho, qreal escala);
QImage FiguraPlanta(QSize tamanho, qreal escala);

}  // namespace lumerina
