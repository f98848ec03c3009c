#pragma once
// Orbits, one step at a time: z <- z² + c in the complex plane, and the real iterations
// x <- cos x and x <- x² + c, whose steps are drawn as a cobweb.
//
// An orbit escapes at the first step n with |z_n| > R, R = max(2, |c|): past that radius
// |z² + c| ≥ |z|² − |c| > |z|, and the distance to infinity grows at every step. (With |c| ≤ 2
// this is the familiar "|z| passes 2".) The cosine never escapes: |cos x| ≤ 1.

#include <array>
#include <vector>

namespace lumerina {

enum class Iteracao { Complexa, Coseno, QuadraticaReal };

struct PontoOrbita {
    double x = 0, y = 0;  // y is 0 in the real iterations
    bool operator==(const PontoOrbita&) const = default;
};

// One step of the iteration (c = cx + i·cy; the real ones use cx only).
PontoOrbita PassoOrbita(Iteracao iteracao, PontoOrbita z, double cx, double cy);

// f(x) of a real iteration, for its graph.
double MapaReal(Iteracao iteracao, double x, double c);

// The cobweb of one real step x_n -> x_{n+1} = f(x_n): the vertical segment from the diagonal
// to the graph, (x_n, x_n) -> (x_n, x_{n+1}), and the horizontal one back to the diagonal,
// (x_n, x_{n+1}) -> (x_{n+1}, x_{n+1}).
struct SegmentoTeia {
    double x1, y1, x2, y2;
};
std::array<SegmentoTeia, 2> SegmentosTeia(double xn, double xn1);

// What one call of Orbita::Avancar did.
enum class ResultadoPasso {
    Avancou,      // a new point, still within the radius (or after the escape step)
    Fugiu,        // a new point, the first beyond the radius: the orbit escapes here
    Transbordou,  // the next point is not a finite number: nothing added, the orbit ends
    Limite,       // the orbit already has kMaxPassos steps: nothing added
};

class Orbita {
public:
    // Long enough for any cycle or slow approach one wants to watch, short enough for the
    // page's table.
    static constexpr int kMaxPassos = 2000;

    Orbita(Iteracao iteracao, PontoOrbita z0, double cx, double cy);

    ResultadoPasso Avancar();

    Iteracao Tipo() const { return iteracao_; }
    const std::vector<PontoOrbita>& Pontos() const { return pontos_; }  // z_0 .. z_n
    int Passos() const { return static_cast<int>(pontos_.size()) - 1;  }
    double Raio() const { return raio_; }
    // The step at which the orbit escaped (z_0 itself may be beyond the radius), or -1.
    int PassoFuga() const { return passoFuga_; }
    bool Terminada() const { return terminada_; }

    // The smallest period p ≤ kPeriodoMaximo such that the last two points each repeat the
    // point p steps before them, within 1e-9 (relative beyond 1): a fixed point is period 1. 0 when
    // there is none yet (or the orbit has escaped).
    static constexpr int kPeriodoMaximo = 32;
    int Periodo() const;

private:
    Iteracao iteracao_;
    double cx_, cy_, raio_;
    std::vector<PontoOrbita> pontos_;
    int passoFuga_ = -1;
    bool terminada_ = false;
};

// |z| without overflow for large finite parts.
double Modulo(PontoOrbita z);

}  // namespace lumerina
