#pragma once
// The classic self-similar figures: how many copies of itself each is made of (N), the
// ratio of each copy (r), the similarity dimension D = log N / log(1/r), and a drawing of
// each, fine down to about a pixel, as a pixel mask.

#include "geometric/ContagemCaixas.h"

#include <array>

namespace lumerina {

enum class Figura {
    Cantor,
    Koch,
    FlocoKoch,
    TrianguloSierpinski,
    CarpeteSierpinski,
    QuadradoFractal,
    DragaoHeighway,
};

struct DadosFigura {
    Figura figura;
    const char* nome;    // as the page lists it (UTF-8)
    int copias;          // N
    double razao;        // r
    const char* razaoTexto;
};

const std::array<DadosFigura, 7>& Figuras();
const DadosFigura& Dados(Figura figura);

// log N / log(1/r); the base of the logarithms cancels.
double DimensaoAutoSemelhanca(int copias, double razao);

// The figure centred in a largura x altura mask, within a square margin. The Cantor set is
// shown as its construction, one row of bars per stage; the others as their last stage.
Mascara DesenharFigura(Figura figura, int largura, int altura);

// The stage drawn: the deepest whose pieces are still about a pixel across.
int NivelFigura(Figura figura, int lado);

// Straight line between two points, every pixel it crosses (inside the mask) set.
void TracarLinha(Mascara& mascara, double x1, double y1, double x2, double y2);

}  // namespace lumerina
