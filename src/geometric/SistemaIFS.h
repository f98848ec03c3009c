#pragma once
// Iterated function systems and their drawing by random iteration.
//
// A system is 2 to 10 affine maps, each picked when the random integer r = int(U·100),
// U uniform in [0, 1), falls in its range of 0..99. The ranges are tested in order with the
// same r, so at most one map applies per step; a value of r outside every range applies no
// map and the unchanged point is drawn again (Heighway's dragon leaves r = 51 idle, on
// purpose). A map listed in several ranges is picked with the sum of their probabilities.
//
// Each step computes both new coordinates from the old point. The first 100 points are a
// transient and are never drawn; every later point is shown at (k·x − ox, k·y − oy), taken
// to single precision, in the system's scale rectangle (upper-left and lower-right corners,
// y growing upwards).

#include "geometric/MapaAfim.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <span>
#include <stdexcept>
#include <string_view>

namespace lumerina {

inline constexpr int kMaxMapas = 10;
// Points 1..kTransitorio are computed but never drawn.
inline constexpr long long kTransitorio = 100;

// The values of r, inclusive, that pick a map.
struct Faixa {
    int de = 0, ate = -1;
};

// The maps' ranges, in testing order.
struct Probabilidades {
    int n = 0;
    std::array<Faixa, kMaxMapas> faixas{};
};

// Cumulative upper bounds t1 < t2 < … < 100: map k takes t(k−1) < r ≤ tk (map 1: r ≤ t1).
constexpr Probabilidades Limites(std::initializer_list<int> limites)
{
    Probabilidades p;
    int anterior = -1;
    for (int t : limites) {
        p.faixas[p.n++] = {anterior + 1, t};
        anterior = t;
    }
    return p;
}

// Explicit ranges, for the systems that leave a value of r to no map.
constexpr Probabilidades Faixas(std::initializer_list<Faixa> faixas)
{
    Probabilidades p;
    for (Faixa f : faixas)
        p.faixas[p.n++] = f;
    return p;
}

// Scale of the picture: its upper-left and lower-right corners.
struct EscalaIFS {
    double esquerda = 0, topo = 1, direita = 1, fundo = 0;
};

// How a system is shown: the picture's scale, the display factor and offsets, and the point
// the iteration starts from.
struct Moldura {
    EscalaIFS escala;
    double k = 1, ox = 0, oy = 0;
    Ponto inicio;
};

struct SistemaIFS {
    const char* nome = "";  // the caption of the button that draws it
    int numMapas = 0;
    std::array<MapaAfim, kMaxMapas> mapas{};
    std::array<Faixa, kMaxMapas> faixas{};
    Moldura moldura;

    constexpr SistemaIFS() = default;
    // One range per map, in the maps' order.
    constexpr SistemaIFS(const char* nome_, std::initializer_list<MapaAfim> mapas_,
                         const Probabilidades& p, const Moldura& m)
        : nome(nome_), numMapas(p.n), faixas(p.faixas), moldura(m)
    {
        // A catalogue entry is built while compiling: a count of maps that does not match
        // its ranges, or more than kMaxMapas, stops the build here.
        if (mapas_.size() != std::size_t(p.n) || mapas_.size() > std::size_t(kMaxMapas))
            throw std::invalid_argument("one range per map, at most kMaxMapas");
        int i = 0;
        for (const MapaAfim& mapa : mapas_)
            mapas[i++] = mapa;
    }

    std::span<const MapaAfim> Mapas() const { return {mapas.data(), std::size_t(numMapas)}; }
    std::span<const Faixa> Faixas() const { return {faixas.data(), std::size_t(numMapas)}; }
};

// The catalogue of the IFS page, one entry per distinct drawing, in the order of the buttons.
std::span<const SistemaIFS> CatalogoIFS();
// The entry of that name (a button's caption), or nullptr.
const SistemaIFS* SistemaIFSPorNome(std::string_view nome);
// Sierpinski's triangle: three maps of factor 1/2 towards (0, 0), (1, 0) and (0, 1).
const SistemaIFS& TrianguloSierpinski();

// Which map each r = 0..100 picks (−1: none), exactly as the ranges are tested in order. r is
// at most 99; the entry for 100, the last cumulative bound, is kept so that no r can index
// past the table.
using TabelaMapas = std::array<std::int8_t, 101>;
TabelaMapas TabelaEscolha(const SistemaIFS& sistema);

// The uniform source of one drawing: Knuth's 64-bit linear congruential generator (MMIX
// constants, modulus 2⁶⁴), whose top 24 bits give U in [0, 1) in steps of 2⁻²⁴, as the
// program's shared generator does. It runs inline in the loop, several times faster than a
// call per step; a drawing seeds it once from the shared generator, itself reseeded from the
// clock.
class UniformeIFS {
public:
    explicit UniformeIFS(std::uint64_t semente) : motor_(semente) {}
    double operator()() { return static_cast<double>(motor_() >> 40) * 0x1p-24; }

private:
    std::linear_congruential_engine<std::uint64_t, 6364136223846793005u, 1442695040888963407u, 0>
        motor_;
};

// Pixels of a picture: `largura` x `altura` 32-bit values, `passo` values per row.
struct Tela {
    std::uint32_t* pixeis = nullptr;
    int largura = 0, altura = 0;
    std::ptrdiff_t passo = 0;
};

// Where a point of the scale lands in a picture: pixel = ⌊(v − corner)·(pixels / extent) + ½⌋,
// as the picture control places a point.
struct GrelhaPixeis {
    double esquerda, topo, fx, fy;
    int largura, altura;

    GrelhaPixeis(const EscalaIFS& e, int largura_, int altura_)
        : esquerda(e.esquerda), topo(e.topo), fx(largura_ / (e.direita - e.esquerda)),
          fy(altura_ / (e.fundo - e.topo)), largura(largura_), altura(altura_) {}

    // False for a point outside the picture (not visible, and nothing else happens).
    bool Pixel(float x, float y, int& px, int& py) const
    {
        const double u = (double(x) - esquerda) * fx + 0.5;
        const double v = (double(y) - topo) * fy + 0.5;
        if (!(u >= 0 && u < largura && v >= 0 && v < altura))
            return false;
        px = int(u);  // u ≥ 0: truncation is the floor
        py = int(v);
        return true;
    }
};

// Every pixel of `origem` in the colour `cor` is set in `destino` too (pictures of one size).
inline void CopiarCor(const Tela& origem, const Tela& destino, std::uint32_t cor)
{
    for (int y = 0; y < origem.altura; ++y) {
        const std::uint32_t* de = origem.pixeis + y * origem.passo;
        std::uint32_t* para = destino.pixeis + y * destino.passo;
        for (int x = 0; x < origem.largura; ++x)
            if (de[x] == cor)
                para[x] = cor;
    }
}

// The random iteration of one system. `Avancar` may be called in slices (the page repaints
// between them); the point and the step count carry over.
class IteracaoIFS {
public:
    explicit IteracaoIFS(const SistemaIFS& sistema)
        : sistema_(sistema), escolha_(TabelaEscolha(sistema)), p_(sistema.moldura.inicio) {}

    // Runs `passos` more steps. `uniforme()` gives U in [0, 1); `ponto(X, Y)` receives each
    // point from step 101 on, in the scale's units and single precision.
    template <class Uniforme, class Desenhar>
    void Avancar(long long passos, Uniforme&& uniforme, Desenhar&& ponto)
    {
        // Everything the loop reads lives in locals, so that no pixel written by `ponto`
        // can be taken for one of them by the compiler.
        const MapaAfim* mapas = sistema_.mapas.data();
        const double k = sistema_.moldura.k, ox = sistema_.moldura.ox, oy = sistema_.moldura.oy;
        const TabelaMapas escolha = escolha_;
        Ponto p = p_;
        long long n = n_;
        for (long long i = 0; i < passos; ++i) {
            const int r = int(uniforme() * 100);
            const int m = escolha[r];
            if (m >= 0)
                p = mapas[m](p);
            if (++n > kTransitorio)
                ponto(float(k * p.x - ox), float(k * p.y - oy));
        }
        p_ = p;
        n_ = n;
    }

    Ponto Actual() const { return p_; }
    long long Passos() const { return n_; }

private:
    const SistemaIFS& sistema_;
    TabelaMapas escolha_;
    Ponto p_;
    long long n_ = 0;
};

// Draws `passos` steps of `sistema` in the colour `cor`: every point lands at the same pixel
// of each of the `telas` (pictures of one size in the system's scale). `aoFimDeBloco()` is
// called after every slice of `bloco` steps and at the end, for the caller to show progress.
template <class Uniforme, class Progresso>
void DesenharIFS(const SistemaIFS& sistema, long long passos, std::span<const Tela> telas,
                 std::uint32_t cor, Uniforme&& uniforme, Progresso&& aoFimDeBloco,
                 long long bloco = 1 << 14)
{
    if (telas.empty())
        return;
    const GrelhaPixeis grelha(sistema.moldura.escala, telas[0].largura, telas[0].altura);
    IteracaoIFS iteracao(sistema);
    // The first two pictures are copied into the loop (the page draws on one or two; any
    // further ones are reached through the list).
    std::uint32_t* const p0 = telas[0].pixeis;
    const std::ptrdiff_t passo0 = telas[0].passo;
    std::uint32_t* const p1 = telas.size() > 1 ? telas[1].pixeis : nullptr;
    const std::ptrdiff_t passo1 = telas.size() > 1 ? telas[1].passo : 0;
    const std::span<const Tela> outras = telas.size() > 2 ? telas.subspan(2) : std::span<const Tela>();
    const auto desenhar = [grelha, p0, passo0, p1, passo1, outras, cor](float x, float y) {
        int px, py;
        if (!grelha.Pixel(x, y, px, py))
            return;
        p0[py * passo0 + px] = cor;
        if (p1)
            p1[py * passo1 + px] = cor;
        for (const Tela& t : outras)
            t.pixeis[py * t.passo + px] = cor;
    };
    for (long long feitos = 0; feitos < passos;) {
        const long long agora = passos - feitos < bloco ? passos - feitos : bloco;
        iteracao.Avancar(agora, uniforme, desenhar);
        feitos += agora;
        aoFimDeBloco();
    }
}

}  // namespace lumerina
