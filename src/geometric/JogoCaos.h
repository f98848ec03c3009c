#pragma once
// Two classroom roads to the Sierpinski triangle.
//
// The chaos game: a point jumps half-way to one of three vertices chosen at random; after a
// few steps it never leaves the triangle's fractal and, step by step, visits all of it.
//
// The copy machine: every point of a figure is sent through one of the three maps
// (x, y) → (x/2, y/2), (x/2 + 1/2, y/2), (x/2, y/2 + 1/2), chosen at random per point and
// per level. Each level halves the distance of every point to the attractor, so whatever the
// figure, a few levels gather it onto the triangle with vertices (0, 0), (1, 0) and (0, 1).

#include "geometric/MapaAfim.h"

#include <array>

namespace lumerina {

// The game's vertices P1, P2, P3: a right isosceles triangle.
inline constexpr std::array<Ponto, 3> kVerticesCaos{{{-0.8, -0.8}, {0.8, -0.8}, {-0.8, 0.8}}};

// Vertex number k = int(u·3 + 1), 1 to 3, for u uniform in [0, 1).
constexpr int VerticeDe(double u) { return static_cast<int>(u * 3 + 1); }

// One step's choice: the shared generator takes the clock into its state, then gives u.
// Reseeding before every step is the game's rule; the clock moves slower than the steps, and
// that is harmless only because the reseed mixes the clock in rather than restarting.
int SortearVertice();

constexpr Ponto PontoMedio(Ponto p, Ponto q) { return {(p.x + q.x) / 2, (p.y + q.y) / 2}; }

// The figure of the copy machine: room for 9000 points; a drawing by hand stops at 8500.
inline constexpr int kPontosFigura = 9000;
inline constexpr int kMaxPontosUtilizador = 8500;

struct FiguraCaos {
    std::array<double, kPontosFigura> x{};
    std::array<double, kPontosFigura> y{};
    int n = 0;

    // Adds a point drawn by hand: false, and nothing added, once 8500 are held.
    bool Acrescentar(Ponto p);
    Ponto operator[](int i) const { return {x[i], y[i]}; }
};

// The ready-made figures, a few hundred points each, in the picture's (−1, 1)–(1, −1) square:
// the program's initials "L" and "M" traced as strokes, a circle of radius 0.5 about the
// origin, and the square of side 1 about the origin.
void FiguraLetras(FiguraCaos& figura);
void FiguraCirculo(FiguraCaos& figura);
void FiguraQuadrado(FiguraCaos& figura);

// The map of the copy machine for r = int(u·100): r < 34 the first, 34..66 the second,
// 67 and above the third (the Sierpinski maps of the IFS catalogue, bounds 33/34 and 66/67).
constexpr int MapaCopiadora(int r) { return r < 34 ? 0 : r <= 66 ? 1 : 2; }

// A coordinate rounded to 2 decimals, as each point is taken before it is mapped (halves to
// even, the rounding of the machine).
double Arredondar2(double v);

// The copy machine's three maps, in order.
const std::array<MapaAfim, 3>& MapasCopiadora();

// `nivel` levels of the copy machine over the whole figure: at each level every point, rounded
// to 2 decimals, goes through the map that r = int(uniforme()·100) picks, and is stored back.
template <class Uniforme>
void TransformarFigura(FiguraCaos& figura, int nivel, Uniforme&& uniforme)
{
    const std::array<MapaAfim, 3>& mapas = MapasCopiadora();
    for (int l = 0; l < nivel; ++l) {
        for (int i = 0; i < figura.n; ++i) {
            const Ponto p{Arredondar2(figura.x[i]), Arredondar2(figura.y[i])};
            const int r = static_cast<int>(uniforme() * 100);
            const Ponto q = mapas[MapaCopiadora(r)](p);
            figura.x[i] = q.x;
            figura.y[i] = q.y;
        }
    }
}

}  // namespace lumerina
