#pragma once
// Affine maps applied to a figure, level by level: the deterministic copy machine.
//
// A figure is a few polylines. Applying maps T1..Tm to an image made of copies of the figure
// gives m images of each copy: level n holds m1·m2·…·mn copies (mⁿ when the same m maps are
// used every time). With one contraction the copies shrink onto its fixed point; with the
// three Sierpinski maps they become 3, 9, 27 … copies gathering onto the triangle.

#include "geometric/MapaAfim.h"

#include <span>
#include <vector>

namespace lumerina {

// Polylines: the points of all strokes one after the other, and the number of points of
// each stroke.
struct FiguraPlana {
    std::vector<Ponto> pontos;
    std::vector<int> tracos;

    long long Segmentos() const;
};

enum class FiguraBase { LetraF, Quadrado, Triangulo };

// The asymmetric F (stem from (0, 0) to (0, 1), top bar to x = 0.6, middle bar to x = 0.4 at
// y = 0.5), the unit square, and a scalene triangle (0, 0), (1, 0), (0.3, 0.8): every one in
// the unit square, so that a turn, a mirror or a shear shows.
FiguraPlana Figura(FiguraBase base);

// The basic maps, with the coefficients of the comments' table.
MapaAfim Translacao(double p, double q);       // 1 0 0 1 p q
MapaAfim Rotacao(double graus);                // cos −sen sen cos 0 0, to 12 decimals
MapaAfim Escala(double r, double s);           // r 0 0 s 0 0
MapaAfim ReflexaoEixoX();                      // 1 0 0 −1 0 0
MapaAfim CisalhamentoHorizontal(double k);     // 1 k 0 1 0 0

// Whether a map contracts every distance: its largest singular value is below 1, by more
// than the rounding of its coefficients. A rotation built from cos θ and sin θ to 12 decimals
// is an isometry even when its computed singular value falls just under 1.
bool Contrai(const MapaAfim& mapa);

// No level may hold more segments than this: the figure would take too long to draw and
// too much memory to keep.
inline constexpr long long kMaxSegmentos = 2'000'000;

// The images of a figure level by level; level 0 is the figure itself.
class ImagensIteradas {
public:
    explicit ImagensIteradas(FiguraPlana figura);

    const FiguraPlana& Original() const { return figura_; }
    int Nivel() const { return static_cast<int>(niveis_.size()) - 1; }
    // The points of level `nivel`: Copias(nivel) copies of the figure's points, one after
    // the other; copy j of level n + 1 is map j / c(n) applied to copy j mod c(n).
    const std::vector<Ponto>& Pontos(int nivel) const { return niveis_[nivel]; }
    long long Copias(int nivel) const;
    long long Segmentos(int nivel) const { return Copias(nivel) * figura_.Segmentos(); }
    // Segments of the next level with `mapas` maps.
    long long SegmentosSeguinte(int mapas) const { return Segmentos(Nivel()) * mapas; }

    // The next level: every map applied to the last image. False, and nothing changed, when
    // there is no map or that level would pass kMaxSegmentos.
    bool Aplicar(std::span<const MapaAfim> mapas);
    // Back to level 0.
    void Recomecar();

private:
    FiguraPlana figura_;
    std::vector<std::vector<Ponto>> niveis_;
};

// Calls linha(p, q) for every segment of every copy of a level.
template <class Linha>
void PercorrerSegmentos(const FiguraPlana& figura, std::span<const Ponto> pontos, Linha&& linha)
{
    const std::size_t porCopia = figura.pontos.size();
    if (porCopia == 0)
        return;
    for (std::size_t base = 0; base + porCopia <= pontos.size(); base += porCopia) {
        std::size_t i = base;
        for (int n : figura.tracos) {
            for (int k = 1; k < n; ++k)
                linha(pontos[i + k - 1], pontos[i + k]);
            i += n;
        }
    }
}

}  // namespace lumerina
