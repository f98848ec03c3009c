#pragma once
// The small pictures beside the topics of the main page, computed at start-up (one function
// each) at the screen's pixel ratio, so that they are crisp on any screen and nothing has to
// be shipped. Each returns an image of `tamanho` device-independent pixels.
//
// Each is drawn by the maths of its page: the Mandelbrot, Julia and Newton kernels, the IFS
// catalogue and iteration, the attractors' Lorenz stepper, the L-systems' rewriting and
// turtle; Sierpinski's triangle comes from the shared constructions.

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
