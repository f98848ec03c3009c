#pragma once
// Many line segments straight into a 32-bit image's scan lines, with the picture control's own
// pixel rules: ends rounded half up, both ends lit, Bresenham between them; a segment that
// leaves the picture is first cut at one pixel beyond its edges, so that ends far away (even
// at 1e300) give the visible piece to the pixel; a segment with a coordinate that is not a
// number is not drawn.

#include "geometric/LSistema.h"

#include <cstddef>
#include <cstdint>

namespace lumerina {

struct ImagemCrua {
    std::uint32_t* pixeis;     // first pixel of the top scan line
    std::ptrdiff_t porLinha;   // pixels from one scan line to the next
    int largura, altura;
};

// Pixels touched, as an inclusive rectangle; empty when x1 > x2.
struct Rectangulo {
    int x1 = 0, y1 = 0, x2 = -1, y2 = -1;
    bool Vazio() const { return x1 > x2 || y1 > y2; }
};

// Draws `n` segments in colour `cor` (copy mode) and returns the rectangle they touched.
Rectangulo TracarSegmentos(const ImagemCrua& imagem, const Segmento* segmentos, std::size_t n,
                           std::uint32_t cor);

}  // namespace lumerina
