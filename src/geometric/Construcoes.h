#pragma once
// Self-similar constructions, stage by stage: a rule applied to every piece of stage n gives
// stage n + 1. Each construction lives here once, in the unit square (or on [0, 1]), with y
// pointing up; pages scale the pieces to their pictures.
//
//   construction            stage 0              pieces at stage n      measure at stage n
//   equal parts of [0, 1]   [0, 1]               k parts of 1/k         length 1
//   Koch curve              [0, 1] on y = 0      4^n segments of 3^-n   length (4/3)^n
//   Sierpinski triangle     equilateral, side 1  3^n of side 2^-n       area (3/4)^n·√3/4
//   Cantor set              [0, 1]               2^n of 3^-n            length (2/3)^n
//   fractal square          unit square          5^n of side 3^-n       area (5/9)^n
//   Sierpinski carpet       unit square          8^n of side 3^-n       area (8/9)^n
//   Haferman carpet         one black square     9^n squares, black and white, of side 3^-n
//
// Stages below 0 are stage 0. The piece counts grow fast (9^n squares for Haferman's carpet),
// so callers keep n small: the pages draw stages 0 to 3.

#include "frame/Ponto.h"

#include <vector>

namespace lumerina {

// A piece [inicio, fim] of the line segment [0, 1].
struct Intervalo {
    double inicio, fim;
};

struct Triangulo {
    Ponto a, b, c;
};

// An axis-parallel square given by its lower-left corner and its side.
struct Quadrado {
    double x, y, lado;
    bool preto = true;  // Haferman's carpet has black and white squares; the others only black
};

// [0, 1] cut into `partes` equal parts, left to right (none when partes < 1).
std::vector<Intervalo> DivisaoSegmento(int partes);

// The Koch curve from (0, 0) to (1, 0), bumps upwards: the 4^n + 1 vertices of stage n, in
// order. Each segment's middle third is replaced by the two other sides of the equilateral
// triangle built on it, on the left of the direction of travel.
std::vector<Ponto> CurvaKoch(int etapa);

// Sierpinski's triangle from the equilateral triangle (0, 0), (1, 0), (1/2, √3/2): each
// triangle keeps the three corner triangles of half its side and loses the middle one.
std::vector<Triangulo> TrianguloSierpinski(int etapa);

// The Cantor set on [0, 1]: each interval keeps its outer thirds.
std::vector<Intervalo> PoeiraCantor(int etapa);

// The 3 x 3 square constructions. Each square is cut into nine of a third of its side, and
// - fractal square: the four corners and the centre are kept (they touch at their vertices);
// - Sierpinski carpet: all but the centre are kept;
// - Haferman carpet: nothing is removed; a black square gives black squares in the middles
//   of its sides and white ones at its corners and centre, a white square gives nine black.
std::vector<Quadrado> QuadradoFractal(int etapa);
std::vector<Quadrado> CarpeteSierpinski(int etapa);
std::vector<Quadrado> CarpeteHaferman(int etapa);

}  // namespace lumerina
