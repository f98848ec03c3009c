#pragma once
// A point of the plane in world coordinates, shared by the maps of the geometric pages and the
// attractors' steppers: one type of this name in the whole program.

namespace lumerina {

struct Ponto {
    double x = 0, y = 0;
    friend constexpr bool operator==(const Ponto&, const Ponto&) = default;
};

}  // namespace lumerina
