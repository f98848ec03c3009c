#pragma once
// Newton's method for zⁿ − 1 = 0: the step, the number of steps a point needs to settle, a
// picture column of those counts, and the twenty colourings of a count.
//
// The step is z <- ((n − 1)·zⁿ + 1)/(n·zⁿ⁻¹), written with three small complex helpers. The
// division nudges each part of a zero divisor to 0.001 on its own, so the origin and the axes
// never stop a drawing: a point that lands on 0 is thrown far out and comes back.
// From the start point the iteration runs
//     repeat: z'' = step(z'); Δ = z' − z''; z' = z''; s = s + 1
//     until (|Δx| ≤ 0.001 and |Δy| ≤ 0.001) or s = 50
// and only s colours the pixel (the root reached does not).

#include "complex/TempoFuga.h"
#include "frame/EsquemaCores.h"

#include <vector>

namespace lumerina {

struct Complexo {
    double re, im;
};

// (x + y i)^p by repeated products: z multiplied by itself p − 1 times, starting from z, each
// product (a + b i)(x + y i) = (a·x − b·y) + (a·y + b·x) i. p ≤ 1 gives z.
Complexo PotenciaComplexa(double x, double y, int p);

// (a + b i)/(c + d i) = ((a·c + b·d) + (b·c − a·d) i)/(c² + d²), where c = 0 is first replaced
// by 0.001 and d = 0 by 0.001, each on its own (0 / 0 becomes 0 / (0.001 + 0.001 i)).
Complexo DivisaoComplexa(double a, double b, double c, double d);

// One Newton step for zⁿ − 1: numerator ((n − 1)·Re zⁿ + 1, (n − 1)·Im zⁿ), denominator
// (n·Re zⁿ⁻¹, n·Im zⁿ⁻¹), divided by DivisaoComplexa.
Complexo PassoNewton(double x, double y, int n);

constexpr int kPassosNewton = 50;        // s never goes past this
constexpr double kToleranciaNewton = 0.001;

// The number of steps s (1..50) the iteration takes from (x, y), point by point.
int PassosNewton(double x, double y, int n);

// The inversion about the centre (a, b) with constant k: the start of the iteration for the
// grid point (x, y) is k/conj(z − (a + b i)), that is with q = (x − a)² + (y − b)²
//     x' = k·(x − a)/q,  y' = k·(y − b)/q,
// the centre not added back. False when q = 0: the grid point is the centre and is skipped.
struct InversaoNewton {
    double k, a, b;
};
bool InicioInvertido(const InversaoNewton& inversao, double x, double y, Complexo& inicio);

// The values a loop "from inicio to fim in steps of passo" visits, the step added to the loop
// variable each time, both ends included as far as the steps reach (a negative step counts
// down, as such a loop does). A step that cannot move the variable (zero, not a number, or
// too small to change it) would never end: such an axis is empty. No more than `maximo`
// values are kept.
std::vector<double> EixoNewton(double inicio, double fim, double passo, int maximo);

// The grid of a drawing over the rectangle read from the fields in single precision, for a
// picture of W x H pixels: x from Xmin to Xmax in steps of (Xmax − Xmin)/W, y from Ymin to
// Ymax in steps of (Ymax − Ymin)/H. Through the picture's scale (upper left (Xmin, Ymax),
// lower right (Xmax, Ymin)) the point xs[i] falls on pixel column i and ys[j] on pixel row
// H − j: the grid point on Xmax or on Ymin lies just outside the picture.
struct GrelhaNewton {
    std::vector<double> xs, ys;
};
GrelhaNewton CriarGrelhaNewton(float xmin, float xmax, float ymin, float ymax, double W, double H);

// Steps of the points (x, ys[j]) of one column, j = 0..linhas − 1, into passos[j]; with an
// inversion each point starts from its inverted image, and a point on the centre gets 0 (not
// drawn). The counts are PassosNewton's, pixel for pixel: the points run side by side in
// vector lanes doing the same IEEE operations in the same order, the guard of the division a
// lane-wise select. `instrucoes` names the lane width, as for the escape-time kernel.
void ColunaNewton(double x, const double* ys, int linhas, int n, const InversaoNewton* inversao,
                  int* passos, InstrucoesVectoriais instrucoes);
void ColunaNewton(double x, const double* ys, int linhas, int n, const InversaoNewton* inversao,
                  int* passos);

// The twenty colourings, in the order the page tests them.
enum class CorNewton {
    Fogo, Azul, Vermelho, Multicor, Roxo,                      // entry s mod 255
    Cor1, Cor2, Cor3, Cor4, Cor5,                              // no table
    Fogo1, Azul1, Vermelho1, Roxo1, Multicolor1,               // entry (s + 20) mod 255
    Fogo2, Azul2, Vermelho2, Roxo2, Multicolor2,               // entry (s + 40) mod 255
};

// The table a colouring reads (filled as a drawing starts), or none for Cor 1 … Cor 5.
enum class TabelaNewton { Nenhuma, Azul, Fogo, Vermelho, Multicor, Roxo };
TabelaNewton TabelaDaCor(CorNewton cor);
// Fills `esquema` with that table; Nenhuma leaves it as it is.
void PreencherTabelaNewton(TabelaNewton tabela, EsquemaCores& esquema);

// The colour of a point that took s steps (1..50; any s from 0 to a million is accepted).
//   Cor 1: RGB(30s mod 255, 10s mod 255, 50s mod 255)    Cor 2: grey 20s mod 255
//   Cor 3: RGB(100s, 150s, 200s) mod 255                  Cor 4: RGB(50s, 100s, 150s) mod 255
//   Cor 5: the 16-colour palette's entry s mod 16
Cor CorDosPassos(CorNewton cor, int s, const EsquemaCores& esquema);

}  // namespace lumerina
