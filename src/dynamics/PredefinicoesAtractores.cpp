#include "dynamics/PredefinicoesAtractores.h"

namespace lumerina {

namespace {

// A (σ), B (ρ), C (β).
constexpr Predefinicao kLorenz[] = {
    {{10, 12, 2.666}, 10000, -8, 8, -8, 8},
    {{10, 17, 2.666}, 20000, -8, 8, -8, 8},
    {{10, 17, 4}, 10000, -8, 8, -8, 8},
    {{10, 17, 2}, 20000, -8, 8, -8, 8},
    {{10, 25, 2.666}, 50000, -10, 12, -8, 18},
    {{10, 28, 2.666}, 50000, -10, 11, -8, 20},
    {{10, 17, 1}, 50000, -8, 8, -8, 8},
    {{10, 25, 2}, 50000, -10, 12, -8, 18},
};

// A, B, C of ẋ = −y − z, ẏ = x + A·y, ż = B + z·(x − C): the classic chaotic band, a
// period-doubled loop before it, a wider band, and the funnel of a large C.
constexpr Predefinicao kRossler[] = {
    {{0.2, 0.2, 5.7}, 20000, -12, 14, -13, 10},
    {{0.2, 0.2, 3}, 20000, -7, 8, -7, 6},
    {{0.2, 0.2, 4}, 20000, -8, 10, -9, 7},
    {{0.1, 0.1, 14}, 30000, -25, 28, -26, 22},
};

// A (damping), B (forcing), C (frequency) of x'' = x − x³ − A·x' + B·cos(C·t).
constexpr Predefinicao kDuffing[] = {
    {{0.25, 0.3, 1}, 20000, -2, 2, -2, 2},
    {{0.3, 0.5, 1.2}, 20000, -2, 2, -2, 2},
    {{0.1, 0.35, 1.4}, 20000, -2.5, 2.5, -2.5, 2.5},
    {{0.15, 0.3, 1}, 20000, -2.5, 2.5, -2.5, 2.5},
};

constexpr Predefinicao kDeJong[] = {
    {{-2.83, 1.96, 1.7, 1.74}, 20000, -3, 3, -3, 3},
    {{-1.25, -0.57, -2.88, -2.83}, 20000, -1, 3, -3, 2},
    {{-1.3, -2.05, -1.76, -1.47}, 20000, -1, 3, -3, 2},
    {{-2, -2, -1.2, 2}, 20000, -3, 3, -3, 3},
    {{-0.52, -2.083, 0.718, -2.403}, 20000, -3, 3, -3, 3},
};

constexpr Predefinicao kClifford[] = {
    {{-1.4, 1.6, 1, 0.7}, 20000, -3, 3, -3, 3},
    {{1.1, -1, 1, 1.5}, 20000, -3, 3, -3, 3},
    {{1.6, -0.6, -1.2, 1.6}, 20000, -3, 3, -2, 4},
    {{1.7, 1.7, 0.06, 1.2}, 20000, -3, 3, -3, 3},
    {{1.3, 1.7, 0.5, 1.4}, 20000, -3, 3, -3, 3},
    {{1.5, -1.8, 1.6, 0.9}, 20000, -3, 3, -3, 3},
};

constexpr Predefinicao kTinkerbell[] = {
    {{0.3, -0.7, 2.3, 0.6}, 20000, -1.1, 0.6, -2.5, 1.6},
    {{0.3, -0.69, 2.3, 0.35}, 20000, -1.1, 0.6, -2.5, 1.6},
    {{0.3, -0.69, 2.3, kMantem}, 20000, -1.1, 0.6, -2.5, 1.6},
    {{0.32, -0.69, 2.3, 0.38}, 20000, -1.1, 0.6, -2.5, 1.6},
};

// a1 … a12 of the general quadratic map. Each set is a chaotic attractor (its largest
// Lyapunov exponent is positive) that fills a good part of its window.
constexpr Predefinicao kEstranhos[] = {
    {{0.6, 0.1, -1, 0.6, 0.2, -1.1, -0.3, -0.7, -1.2, -0.7, -0.8, 0.7}, 20000, -1, 1, -1, 1},
    {{0.5, 0, -1, 0.9, 0, 0.6, 0, 0.7, 0.6, 0.1, 0, -1.1}, 20000, -1, 1, -1.2, 1},
    {{0, -0.9, 0, -0.2, -0.7, -0.8, 0.9, 0.4, -0.8, 0, 0, -1.1}, 20000, -1.4, 1.2, -1.1, 1},
    {{-0.1, -1.2, 0.7, 0.7, -1, 0, 1.1, 0, -1.2, 0, 0, -0.2}, 20000, -1.3, 0.9, -0.9, 1.2},
    {{-0.6, 0.5, 0.1, -0.2, 0.7, 1.2, -1, -1, 0.7, 0, -0.3, 0}, 20000, -1.2, 1.4, -1.5, 1},
    {{-0.6, -1, 0.9, -0.4, 0.9, 0.3, -0.6, 0.2, 1, 1.2, 0.5, 0.5}, 20000, -1, 0.4, -1, 0.6},
};

}  // namespace

std::span<const Predefinicao> Predefinicoes(ConjuntoPredefinido conjunto)
{
    switch (conjunto) {
    case ConjuntoPredefinido::Lorenz: return kLorenz;
    case ConjuntoPredefinido::Rossler: return kRossler;
    case ConjuntoPredefinido::Duffing: return kDuffing;
    case ConjuntoPredefinido::DeJong: return kDeJong;
    case ConjuntoPredefinido::Clifford: return kClifford;
    case ConjuntoPredefinido::Tinkerbell: return kTinkerbell;
    case ConjuntoPredefinido::Estranhos: return kEstranhos;
    }
    return {};
}

}  // namespace lumerina
