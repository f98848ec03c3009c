#include "geometric/Construcoes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace lumerina {

namespace {

const double kRaiz3 = std::sqrt(3.0);

// One 3 x 3 substitution step. The child in column i and row j (from the lower left) of a
// square of colour c takes the colour regra[c][3·j + i]: 1 black, 0 white, -1 removed.
using RegraNove = std::array<std::array<int, 9>, 2>;

std::vector<Quadrado> Substituir(int etapa, const RegraNove& regra)
{
    std::vector<Quadrado> quadrados{{0.0, 0.0, 1.0, true}};
    for (int n = 0; n < etapa; ++n) {
        std::vector<Quadrado> seguintes;
        seguintes.reserve(quadrados.size() * 9);
        for (const Quadrado& q : quadrados) {
            const double terco = q.lado / 3;
            const std::array<int, 9>& filhos = regra[q.preto ? 1 : 0];
            for (int j = 0; j < 3; ++j)
                for (int i = 0; i < 3; ++i) {
                    const int cor = filhos[static_cast<std::size_t>(3 * j + i)];
                    if (cor >= 0)
                        seguintes.push_back({q.x + i * terco, q.y + j * terco, terco, cor == 1});
                }
        }
        quadrados = std::move(seguintes);
    }
    return quadrados;
}

}  // namespace

std::vector<Intervalo> DivisaoSegmento(int partes)
{
    std::vector<Intervalo> partesIguais;
    for (int k = 0; k < partes; ++k)
        partesIguais.push_back({double(k) / partes, double(k + 1) / partes});
    return partesIguais;
}

std::vector<Ponto> CurvaKoch(int etapa)
{
    std::vector<Ponto> pontos{{0.0, 0.0}, {1.0, 0.0}};
    for (int n = 0; n < etapa; ++n) {
        std::vector<Ponto> seguintes;
        seguintes.reserve(4 * pontos.size());
        for (std::size_t k = 0; k + 1 < pontos.size(); ++k) {
            const Ponto p = pontos[k], q = pontos[k + 1];
            const double dx = (q.x - p.x) / 3, dy = (q.y - p.y) / 3;
            const Ponto a{p.x + dx, p.y + dy};
            const Ponto b{p.x + 2 * dx, p.y + 2 * dy};
            // The apex: the middle third turned 60° to the left about its first end.
            const Ponto apice{a.x + dx / 2 - dy * kRaiz3 / 2, a.y + dy / 2 + dx * kRaiz3 / 2};
            seguintes.insert(seguintes.end(), {p, a, apice, b});
        }
        seguintes.push_back(pontos.back());
        pontos = std::move(seguintes);
    }
    return pontos;
}

std::vector<Triangulo> TrianguloSierpinski(int etapa)
{
    std::vector<Triangulo> triangulos{{{0.0, 0.0}, {1.0, 0.0}, {0.5, kRaiz3 / 2}}};
    const auto meio = [](Ponto p, Ponto q) { return Ponto{(p.x + q.x) / 2, (p.y + q.y) / 2}; };
    for (int n = 0; n < etapa; ++n) {
        std::vector<Triangulo> seguintes;
        seguintes.reserve(3 * triangulos.size());
        for (const Triangulo& t : triangulos) {
            const Ponto ab = meio(t.a, t.b), bc = meio(t.b, t.c), ca = meio(t.c, t.a);
            seguintes.push_back({t.a, ab, ca});
            seguintes.push_back({ab, t.b, bc});
            seguintes.push_back({ca, bc, t.c});
        }
        triangulos = std::move(seguintes);
    }
    return triangulos;
}

std::vector<Intervalo> PoeiraCantor(int etapa)
{
    std::vector<Intervalo> intervalos{{0.0, 1.0}};
    for (int n = 0; n < etapa; ++n) {
        std::vector<Intervalo> seguintes;
        seguintes.reserve(2 * intervalos.size());
        for (const Intervalo& i : intervalos) {
            const double terco = (i.fim - i.inicio) / 3;
            seguintes.push_back({i.inicio, i.inicio + terco});
            seguintes.push_back({i.fim - terco, i.fim});
        }
        intervalos = std::move(seguintes);
    }
    return intervalos;
}

std::vector<Quadrado> QuadradoFractal(int etapa)
{
    static const RegraNove regra{{{-1, -1, -1, -1, -1, -1, -1, -1, -1},
                                  {1, -1, 1, -1, 1, -1, 1, -1, 1}}};
    return Substituir(etapa, regra);
}

std::vector<Quadrado> CarpeteSierpinski(int etapa)
{
    static const RegraNove regra{{{-1, -1, -1, -1, -1, -1, -1, -1, -1},
                                  {1, 1, 1, 1, -1, 1, 1, 1, 1}}};
    return Substituir(etapa, regra);
}

std::vector<Quadrado> CarpeteHaferman(int etapa)
{
    static const RegraNove regra{{{1, 1, 1, 1, 1, 1, 1, 1, 1},
                                  {0, 1, 0, 1, 0, 1, 0, 1, 0}}};
    return Substituir(etapa, regra);
}

}  // namespace lumerina
