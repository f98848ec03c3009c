#pragma once
// Julia sets of z <- z² + k and of the transcendental families k·sin z, k·cos z, k·exp z, by
// escape time one picture column at a time, and the Julia set of z² + k by inverse iteration.
//
// k = C + D·i. Column i and row counter j (counted from the bottom) stand for the start point
//     x0 = xmin + i·(xmax − xmin)/(W − 1),   y0 = ymin + j·(ymax − ymin)/(H − 1),
// with i = 0..W and j = 0..H inclusive (one column and one row beyond the picture, as on the
// Mandelbrot page). Here all four limits are double precision.

#include "complex/TempoFuga.h"
#include "frame/EsquemaCores.h"

#include <vector>

#include <type_traits>

namespace lumerina {

struct VistaJulia {
    double xmin, xmax, ymin, ymax;
    double W;  // picture width in pixels (floating)
    int H;     // picture height in pixels
};

double ColunaX(const VistaJulia& vista, int i);
double LinhaY(const VistaJulia& vista, int j);

// The iteration limit as the loops use it. N is whatever the field held when the drawing
// started; it is normally a whole number 0..256, but an earlier successful check lets a
// drawing run with a value the checks refused (2.5, -3, 1000). "n < N" for whole n is
// "n < Limite(N)"; "step = 1 to N" runs Passos(N) steps; "n = N" is Atingiu(n, N).
int LimiteContagem(double N);  // ceil(N), at least 0, at most INT_MAX
int LimitePassos(double N);    // floor(N), at least 0, at most INT_MAX
inline bool Atingiu(int n, double N) { return double(n) == N; }

// z <- z² + k, with the escape test one step late: the squares tested are those of the point
// before the last step,
//     sx = x², sy = y², n = 0
//     while sx + sy < 4 and n < N: sx = x², sy = y²; y = 2·x·y + D; x = sx − sy + C; n = n + 1
// so a start point outside the circle of radius 2 counts 0, and any other point counts one
// step more than the test on the new point would give (capped by N).
// contagens[j] for j = 0..H; `limite` is LimiteContagem(N). The points run side by side in
// vector lanes that make exactly the scalar loop's IEEE operations.
void ColunaJulia(const VistaJulia& vista, int i, double C, double D, int limite, int* contagens);
void ColunaJulia(const VistaJulia& vista, int i, double C, double D, int limite, int* contagens,
                 InstrucoesVectoriais instrucoes);

// The counts of one whole picture of z² + k, a column at a time, the same counts as
// ColunaJulia's. z and −z have the same orbit from the first step on (the step squares x and
// y, and 2·x·y keeps its sign, exactly, in floating point too), so a start point that is
// exactly the negative of one already counted takes its count: in a window symmetric about 0,
// much of the right half. Columns come in increasing order, as a picture is drawn.
class ImagemJulia {
public:
    ImagemJulia(const VistaJulia& vista, double C, double D, int limite,
                InstrucoesVectoriais instrucoes = MelhoresInstrucoes());
    void Coluna(int i, int* contagens);  // contagens[j] for j = 0..H

private:
    VistaJulia vista_;
    double C_, D_;
    int limite_;
    InstrucoesVectoriais instrucoes_;
    std::vector<double> ys_;     // the rows' start points
    std::vector<int> espelho_;   // the row whose y is exactly -y, or -1
    std::vector<int> guardadas_; // the counts of the columns drawn so far
    std::vector<int> filaJ_, filaN_;
    std::vector<double> filaY_;
};

enum class FamiliaTranscendente { Seno, Coseno, Exp };

// k·sin z and k·cos z: for step = 1 to N, one step, n = n + 1, and leave once |y| > 10.
//     sin z = sin x·cosh y + i·cos x·sinh y,   cos z = cos x·cosh y − i·sin x·sinh y,
// with cosh and sinh as (e^−y + e^y)/2 and (e^y − e^−y)/2.
// contagens[j] is n (0..Passos(N)).
// k·exp z: for step = 1 to N, z = k·e^x·(cos y + i·sin y), and leave once the new x > 20.
// contagens[j] is the step at which the point escaped, or 0 when it never did.
// `passos` is LimitePassos(N).
void ColunaTranscendente(FamiliaTranscendente familia, const VistaJulia& vista, int i, double C,
                         double D, int passos, int* contagens);

// How a column of counts becomes colours. A pixel that is not drawn gets kSemCor (it keeps
// the picture's background).
enum class ColoracaoJulia {
    Nenhuma,      // neither option selected: nothing is drawn
    LinhasTipo2,  // "Com cores em tempo de escape"
    SemLinhas,    // "Com o conjunto colorido" / "Com cores em tempo de escape 2"
};
enum class FamiliaJulia { Normal, Seno, Coseno, Exp };

// corA is the colour chosen with "Cor interior", corB with "Cor exterior". The page's own
// convention is crossed: bounded points (n = N) take B and escaping points take A.
// - Normal: LinhasTipo2 gives palette entry 9 to bounded points, entry n mod 16 to the others.
// - Seno, Coseno: LinhasTipo2 gives entry n mod 16 to every point.
// - Exp: only escaped points (count s > 0) are drawn, LinhasTipo2 by position
//   RGB(|i − j| mod 255, |j − 18| mod 255, (i + j) mod 255), SemLinhas entry s mod 15.
// cores[j] for j = 0..H.
void CoresColunaJulia(FamiliaJulia familia, ColoracaoJulia coloracao, const int* contagens,
                      double N, int i, int H, Cor corA, Cor corB, Cor* cores);

// Picture row of row counter j: H − j, but one higher, (H − 1) − j, for k·exp z.
inline int LinhaImagem(FamiliaJulia familia, int H, int j)
{
    return (familia == FamiliaJulia::Exp ? H - 1 : H) - j;
}

// One backward step of z² + k: z <- ±√(z − k), the square root through the angle of z − k
// halved, the sign chosen at random with Aleatorio(). The angle uses p = 3.14159, not pi, and
// an arctangent that gives p/2 whenever the real part is 0, whatever the sign of the
// imaginary part.
void PassoInverso(double& x, double& y, double C, double D);

// The inverse iteration of the Julia page: from z = 1 + i, steps t = 0..N (both ends), and
// each point after step t > 50 is handed to ponto(x, y): N − 50 points when N > 50, none
// otherwise. A ponto that returns bool stops the iteration by returning false.
constexpr int kPontosIgnorados = 51;
template <class F>
void IteracaoInversa(double C, double D, double N, F&& ponto)
{
    double x = 1, y = 1;
    for (long long t = 0; double(t) <= N; ++t) {
        PassoInverso(x, y, C, D);
        if (t >= kPontosIgnorados) {
            if constexpr (std::is_same_v<decltype(ponto(x, y)), bool>) {
                if (!ponto(x, y))
                    return;
            } else {
                ponto(x, y);
            }
        }
    }
}

}  // namespace lumerina
