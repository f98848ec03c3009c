#include "geometric/ContagemCaixas.h"

#include <cmath>
#include <numeric>

namespace lumerina {

std::vector<LinhaCaixas> ContarCaixas(const Mascara& mascara)
{
    std::vector<LinhaCaixas> linhas;
    // Occupancy of the boxes of side 2: box (bx, by) covers pixels 2bx..2bx+1, 2by..2by+1.
    int gl = (mascara.largura + 1) / 2, ga = (mascara.altura + 1) / 2;
    // Two rows are merged first (a loop the compiler vectorises), then pairs of columns.
    std::vector<std::uint8_t> grelha(static_cast<std::size_t>(gl) * ga, 0);
    std::vector<std::uint8_t> par(static_cast<std::size_t>(gl) * 2, 0);
    const int largura = mascara.largura;
    for (int y = 0; y < mascara.altura; y += 2) {
        const std::uint8_t* a = &mascara.pixeis[static_cast<std::size_t>(y) * largura];
        const std::uint8_t* b = y + 1 < mascara.altura ? a + largura : a;
        for (int x = 0; x < largura; ++x)
            par[static_cast<std::size_t>(x)] = a[x] | b[x];
        std::uint8_t* destino = &grelha[static_cast<std::size_t>(y / 2) * gl];
        for (int bx = 0; bx < gl; ++bx)
            destino[bx] = (par[2 * static_cast<std::size_t>(bx)] | par[2 * static_cast<std::size_t>(bx) + 1]) != 0;
    }
    for (int lado : kLadosCaixas) {
        if (lado > 2) {
            // Boxes of side 2s are exactly 2 x 2 boxes of side s, both grids starting at 0.
            const int nl = (gl + 1) / 2, na = (ga + 1) / 2;
            std::vector<std::uint8_t> maior(static_cast<std::size_t>(nl) * na, 0);
            for (int y = 0; y < ga; ++y)
                for (int x = 0; x < gl; ++x)
                    maior[static_cast<std::size_t>(y / 2) * nl + x / 2] |=
                        grelha[static_cast<std::size_t>(y) * gl + x];
            grelha.swap(maior);
            gl = nl;
            ga = na;
        }
        linhas.push_back({lado, std::accumulate(grelha.begin(), grelha.end(), 0L)});
    }
    return linhas;
}

Ajuste MinimosQuadrados(const std::vector<double>& u, const std::vector<double>& v)
{
    const std::size_t n = u.size();
    Ajuste a;
    if (n == 0 || v.size() != n)
        return a;
    double mu = 0, mv = 0;
    for (std::size_t i = 0; i < n; ++i) {
        mu += u[i];
        mv += v[i];
    }
    mu /= static_cast<double>(n);
    mv /= static_cast<double>(n);
    double suu = 0, suv = 0, svv = 0;
    for (std::size_t i = 0; i < n; ++i) {
        suu += (u[i] - mu) * (u[i] - mu);
        suv += (u[i] - mu) * (v[i] - mv);
        svv += (v[i] - mv) * (v[i] - mv);
    }
    if (suu == 0)
        return a;
    a.declive = suv / suu;
    a.ordenada = mv - a.declive * mu;
    // A horizontal row of points is fitted exactly by the horizontal line.
    a.r2 = svv == 0 ? 1.0 : (suv * suv) / (suu * svv);
    return a;
}

Dimensao MedirDimensao(const Mascara& mascara)
{
    Dimensao d;
    d.caixas = ContarCaixas(mascara);
    // Every box grid covers the whole mask, so N(s) > 0 for one side means for all.
    if (d.caixas.empty() || d.caixas.front().contagem == 0)
        return d;
    for (const LinhaCaixas& l : d.caixas) {
        d.u.push_back(-std::log10(static_cast<double>(l.lado)));
        d.v.push_back(std::log10(static_cast<double>(l.contagem)));
    }
    d.ajuste = MinimosQuadrados(d.u, d.v);
    d.valida = true;
    return d;
}

}  // namespace lumerina
