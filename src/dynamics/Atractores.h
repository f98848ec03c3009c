#pragma once
// The twelve strange attractors: one stepper per attractor, each holding its current point
// (and, for the flows, z; for Duffing, the time t) in double precision.
//
// Passo() computes the next point and returns the point to plot. For the maps that is the new
// point itself; for the flows it is a projection of the new state; the butterfly is a curve,
// and its Passo() returns the curve's next sample. Pontos() fills a batch with the next n
// points: the same sequence as n calls of Passo(), done the fast way where there is one.

#include "frame/Ponto.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <variant>

namespace lumerina {

// Lorenz flow by explicit Euler, dt = 0.001, from (1, 1, 1):
//   dx = A·(y − x), dy = x·(B − z) − y, dz = x·y − C·z;  x += dt·dx, y += dt·dy, z += dt·dz.
// Plotted: (x/2, z/2); in three dimensions the oblique projection
//   ((y − x·√2/4)/2, (z − x·√2/4)/2), in which the x axis recedes at 45°.
struct Lorenz {
    double a = 10, b = 17, c = 1;
    bool tresDimensoes = false;
    double x = 1, y = 1, z = 1;
    static constexpr double dt = 0.001;
    Ponto Passo();
};

// Rössler flow by explicit Euler, dt = 0.01, every derivative taken at the old point:
//   x += dt·(−y − z), y += dt·(x + A·y), z += dt·(B + z·(x − C)).  Plotted: (x, y).
struct Rossler {
    double a = 0.2, b = 0.2, c = 5.7;
    double x = 1, y = 1, z = 0;
    static constexpr double dt = 0.01;
    Ponto Passo();
};

// Forced Duffing oscillator x'' = x − x³ − A·x' + B·cos(C·t), explicit Euler, dt = 0.05, t
// from 0:  x += dt·y, y += dt·(x − x³ − A·y + B·cos(C·t)), t += dt.  Plotted: (x, y).
struct Duffing {
    double a = 0.25, b = 0.3, c = 1;
    double x = 1, y = 0, t = 0;
    static constexpr double dt = 0.05;
    Ponto Passo();
};

// Hénon map from (0, 0): x' = 1 + y − A·x², y' = B·x.
struct Henon {
    double a = 1.4, b = 0.3;
    double x = 0, y = 0;
    Ponto Passo();
};

// Hénon's area-preserving quadratic map, a rotation by α after the shear y − x²:
//   u = y − x², x' = x·c − u·s, y' = x·s + u·c,  c = cos(α·π/180), s = sin(α·π/180)
// with π = 3.14159265358979. Line k = 1 … linhas starts at (xini + k·incX, yini + k·incY)
// and runs `iteracoes` points; the stepper walks the lines one after the other.
struct Kam {
    Kam(double xini, double yini, double incX, double incY, int linhas, double anguloGraus,
        int iteracoes);
    Ponto Passo();
    long long Total() const { return static_cast<long long>(linhas_) * iteracoes_; }

    double c, s;
    double x = 0, y = 0;

private:
    void ComecarLinha();
    double xini_, yini_, incX_, incY_;
    int linhas_, iteracoes_;
    int linha_ = 1, feitos_ = 0;
};

// Hopalong (Martin) from (0, 0): x' = y − sgn(x)·√|B·x − C|, y' = A − x, with sgn(0) = 0.
struct Hopalong {
    double a = 1, b = 2, c = 0;
    double x = 0, y = 0;
    Ponto Passo();
};

// Peter de Jong from (0, 0): x' = sin(A·y) − cos(B·x), y' = sin(C·x) − cos(D·y).
// Pontos() takes a step's four sines and cosines in one vector call (cos u = sin(u + π/2));
// its points agree with Passo()'s to a few units in the last place per step, and the orbit,
// being chaotic, then goes its own way over the same attractor.
struct DeJong {
    double a = -0.52, b = -2.083, c = 0.718, d = -2.403;
    double x = 0, y = 0;
    Ponto Passo();
    void Pontos(Ponto* saida, int n);
    // The same with two-lane (SSE2) vectors whatever the processor offers, for tests.
    void PontosDuasVias(Ponto* saida, int n);
};

// Clifford from (0, 0): x' = sin(A·y) + C·cos(A·x), y' = sin(B·x) + D·cos(B·y).
// Pontos() as for Peter de Jong.
struct Clifford {
    double a = -1.4, b = 1.6, c = 1, d = 0.7;
    double x = 0, y = 0;
    Ponto Passo();
    void Pontos(Ponto* saida, int n);
    void PontosDuasVias(Ponto* saida, int n);
};

// Tinkerbell: x' = x² − y² + A·x + B·y, y' = 2·x·y + C·x + D·y.
struct Tinkerbell {
    double a = 0.3, b = -0.7, c = 2.3, d = 0.6;
    double x = kXInicial, y = kYInicial;
    static constexpr double kXInicial = -0.72, kYInicial = -0.64;
    Ponto Passo();
};

// The general quadratic map of the plane, coefficients a1 … a12 (a[0] … a[11]), from (0, 0):
//   x' = a1 + a2·x + a3·x² + a4·x·y + a5·y + a6·y²
//   y' = a7 + a8·x + a9·x² + a10·x·y + a11·y + a12·y².
struct Quadratico {
    std::array<double, 12> a{};
    double x = 0, y = 0;
    Ponto Passo();
};

// The second "Estranhos" map, from (1, 1): z ↦ z² + E1 + i·E2 written for z = tan x + i·sin y,
// with a feedback E3·y of the old y added to the imaginary part:
//   x' = tan²(x) − sin²(y) + E1,  y' = E2 + E3·y + 2·tan(x)·sin(y).
struct Estranhos2 {
    double e1 = 0.45, e2 = 0.61, e3 = 0.5;
    double x = 1, y = 1;
    Ponto Passo();
};

// The butterfly curve (a parametric curve, not a map): sample i = 0 … 100000 is at
//   t = 24π·i/100000, r = e^(cos t) − 2·cos 4t + sin⁵(t/12), point 0.5·(r·sin t, r·cos t).
struct Borboleta {
    static constexpr int kPassos = 100000;  // t runs over [0, 24π] in this many steps
    int i = 0;
    Ponto Passo();
};

// The "gingerbread man" from (x0, y0): x' = 1 − y + |x|, y' = x.
struct Caotico {
    double x = -0.1, y = 0;
    Ponto Passo();
};

using Atractor = std::variant<Lorenz, Rossler, Duffing, Henon, Kam, Hopalong, DeJong, Clifford,
                              Tinkerbell, Quadratico, Estranhos2, Borboleta, Caotico>;

// The next n points of any attractor.
void Pontos(Atractor& atractor, Ponto* saida, int n);
// How many points a drawing of `iteracoes` iterations plots: one per iteration, every line's
// for Kam, the whole curve (kPassos + 1 samples) for the butterfly.
long long TotalPontos(const Atractor& atractor, int iteracoes);

// Plotting into a raster of 32-bit pixels through a user scale: the pixel of a point is
// ((x − esquerda)·fx, (y − topo)·fy) rounded to the nearest, as the picture control does.
struct Raster {
    std::uint32_t* linha0;   // scan line 0
    std::ptrdiff_t passo;    // pixels from one scan line to the next
    int largura, altura;
    double esquerda, topo, fx, fy;
};

// The pixel rectangle touched by a batch (empty when nothing fell inside).
struct Retangulo {
    int x0 = 1, y0 = 1, x1 = 0, y1 = 0;  // inclusive corners; x0 > x1 when empty
    bool Vazio() const { return x0 > x1; }
    void Juntar(int x, int y)
    {
        if (Vazio()) {
            x0 = x1 = x;
            y0 = y1 = y;
            return;
        }
        x0 = std::min(x0, x);
        x1 = std::max(x1, x);
        y0 = std::min(y0, y);
        y1 = std::max(y1, y);
    }
};

// Sets every point of the batch that falls inside the raster to `cor`, as a square of
// `tamanho` pixels centred on it (1 or 3). Returns the rectangle touched.
Retangulo PlotarPontos(const Raster& raster, const Ponto* pontos, int n, std::uint32_t cor,
                       int tamanho);

// Pontos() followed by PlotarPontos(), the same points and pixels; the points are left in
// `lote`. For Peter de Jong and Clifford in small points each point is plotted as soon as it
// is made, while the vector sines of the next step are under way.
Retangulo PontosPlotados(Atractor& atractor, Ponto* lote, int n, const Raster& raster,
                         std::uint32_t cor, int tamanho);

}  // namespace lumerina
