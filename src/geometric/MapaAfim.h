#pragma once
// An affine map of the plane, the building block of every iterated function system:
//     x' = a·x + b·y + e
//     y' = c·x + d·y + f
// in double precision. Both new coordinates are computed from the old point.

#include "frame/Ponto.h"

#include <cmath>

namespace lumerina {

struct MapaAfim {
    double a = 0, b = 0, c = 0, d = 0, e = 0, f = 0;

    friend constexpr bool operator==(const MapaAfim&, const MapaAfim&) = default;

    constexpr Ponto operator()(Ponto p) const
    {
        return {a * p.x + b * p.y + e, c * p.x + d * p.y + f};
    }

    // The determinant ad − bc of the linear part: the factor by which the map scales areas
    // (negative when it reverses orientation).
    constexpr double Determinante() const { return a * d - b * c; }

    // The largest singular value of the linear part: the most any distance is stretched.
    // The map is a contraction exactly when this is below 1.
    double MaiorValorSingular() const
    {
        // σ² are the eigenvalues of AᵀA; with s = |A|²_F and q = det², σ²max = (s + √(s² − 4q))/2.
        const double s = a * a + b * b + c * c + d * d;
        const double q = Determinante() * Determinante();
        return std::sqrt((s + std::sqrt(std::fmax(s * s - 4 * q, 0.0))) / 2);
    }
    bool Contractivo() const { return MaiorValorSingular() < 1; }

    // The point the map leaves in place, when the linear part has no eigenvalue 1 (the
    // system (I − A)p = (e, f), by Cramer's rule). `ok` is false when it has none or many.
    constexpr Ponto PontoFixo(bool* ok = nullptr) const
    {
        const double det = (1 - a) * (1 - d) - b * c;
        if (ok)
            *ok = det != 0;
        if (det == 0)
            return {};
        return {(e * (1 - d) + b * f) / det, ((1 - a) * f + c * e) / det};
    }
};

// The composite segundo ∘ primeiro: first `primeiro`, then `segundo`.
constexpr MapaAfim Compor(const MapaAfim& segundo, const MapaAfim& primeiro)
{
    const MapaAfim& s = segundo;
    const MapaAfim& p = primeiro;
    return {s.a * p.a + s.b * p.c, s.a * p.b + s.b * p.d,
            s.c * p.a + s.d * p.c, s.c * p.b + s.d * p.d,
            s.a * p.e + s.b * p.f + s.e, s.c * p.e + s.d * p.f + s.f};
}

}  // namespace lumerina
