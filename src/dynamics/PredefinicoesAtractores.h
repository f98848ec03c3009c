#pragma once
// The ready-made parameter sets that the spinners of the attractors page step through. A set
// writes the attractor's parameter boxes (in the frame's order), the iteration count and the
// world window.

#include <array>
#include <cmath>
#include <limits>
#include <span>

namespace lumerina {

// A parameter that a set leaves as the user had it.
inline constexpr double kMantem = std::numeric_limits<double>::quiet_NaN();
inline bool Mantem(double valor) { return std::isnan(valor); }

struct Predefinicao {
    std::array<double, 12> parametros;  // the first as many as the frame has boxes
    int iteracoes;
    double xmin, xmax, ymin, ymax;
};

enum class ConjuntoPredefinido { Lorenz, Rossler, Duffing, DeJong, Clifford, Tinkerbell, Estranhos };

// The sets of one attractor; set n (from 1) is element n − 1.
std::span<const Predefinicao> Predefinicoes(ConjuntoPredefinido conjunto);

}  // namespace lumerina
