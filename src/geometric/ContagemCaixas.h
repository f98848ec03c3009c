#pragma once
// Box counting: the fractal dimension of what a picture shows.
//
// The picture, as a mask of figure pixels, is covered by grids of square boxes of side
// s = 2, 4, ..., 128 pixels, anchored at the top-left corner (boxes at the right and bottom
// edges overhang the picture when s does not divide its size). N(s) is the number of boxes
// holding at least one figure pixel. For a figure of dimension D, N(s) ≈ k·(1/s)^D, so the
// points (log(1/s), log N(s)) lie near a line of slope D; the least-squares line gives the
// estimate, and its r² says how straight the points are.

#include <cstdint>
#include <vector>

namespace lumerina {

// A plain pixel mask, row by row: nonzero is a figure pixel.
struct Mascara {
    int largura = 0, altura = 0;
    std::vector<std::uint8_t> pixeis;

    Mascara() = default;
    Mascara(int l, int a) : largura(l), altura(a), pixeis(static_cast<std::size_t>(l) * a, 0) {}
    std::uint8_t& operator()(int x, int y) { return pixeis[static_cast<std::size_t>(y) * largura + x]; }
    std::uint8_t operator()(int x, int y) const { return pixeis[static_cast<std::size_t>(y) * largura + x]; }
    // Sets (x, y) when it lies inside.
    void Marcar(int x, int y)
    {
        if (x >= 0 && y >= 0 && x < largura && y < altura)
            (*this)(x, y) = 1;
    }
};

struct LinhaCaixas {
    int lado;        // s, in pixels
    long contagem;   // N(s)
};

// The box sides, smallest first: 2, 4, 8, 16, 32, 64, 128.
constexpr int kLadosCaixas[] = {2, 4, 8, 16, 32, 64, 128};

// N(s) for every side of kLadosCaixas. Each grid is the one before it merged 2 x 2, so the
// mask is read once.
std::vector<LinhaCaixas> ContarCaixas(const Mascara& mascara);

struct Ajuste {
    double declive = 0;   // the slope: the dimension estimate
    double ordenada = 0;  // the intercept
    double r2 = 0;        // coefficient of determination; 1 when every v is equal (a point)
};

// Least squares of v on u: slope Σ(u−ū)(v−v̄) / Σ(u−ū)². Needs two distinct u.
Ajuste MinimosQuadrados(const std::vector<double>& u, const std::vector<double>& v);

struct Dimensao {
    bool valida = false;  // false when the mask has no figure pixel
    std::vector<LinhaCaixas> caixas;
    std::vector<double> u, v;  // log(1/s) and log N(s), logarithms to base 10
    Ajuste ajuste;
};

Dimensao MedirDimensao(const Mascara& mascara);

}  // namespace lumerina
