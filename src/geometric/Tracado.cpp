#include "geometric/Tracado.h"

#include "frame/Recorte.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace lumerina {

namespace {

int Arredondar(double v)
{
    return static_cast<int>(std::floor(v + 0.5));
}

}  // namespace

Rectangulo TracarSegmentos(const ImagemCrua& imagem, const Segmento* segmentos, std::size_t n,
                           std::uint32_t cor)
{
    const double w = imagem.largura, h = imagem.altura;
    const auto dentro = [&](double x, double y) { return x >= -1 && x <= w && y >= -1 && y <= h; };
    const unsigned largura = unsigned(imagem.largura), altura = unsigned(imagem.altura);
    cor |= 0xFF000000u;
    Rectangulo tocado{imagem.largura, imagem.altura, -1, -1};
    for (std::size_t k = 0; k < n; ++k) {
        double pa = segmentos[k].x1, pb = segmentos[k].y1;
        double pc = segmentos[k].x2, pd = segmentos[k].y2;
        if (std::isnan(pa + pb + pc + pd))
            continue;
        // Only a segment that leaves the picture is cut, so lines inside keep their exact ends.
        if (!(dentro(pa, pb) && dentro(pc, pd)) &&
            (!Recortar(pa, pb, pc, pd, w, h) || std::isnan(pa + pb + pc + pd)))
            continue;  // an infinite end leaves no direction to cut along
        int x = Arredondar(pa), y = Arredondar(pb);
        const int xf = Arredondar(pc), yf = Arredondar(pd);
        tocado.x1 = std::min({tocado.x1, x, xf});
        tocado.x2 = std::max({tocado.x2, x, xf});
        tocado.y1 = std::min({tocado.y1, y, yf});
        tocado.y2 = std::max({tocado.y2, y, yf});
        const int dx = std::abs(xf - x), sx = x < xf ? 1 : -1;
        const int dy = -std::abs(yf - y), sy = y < yf ? 1 : -1;
        int erro = dx + dy;
        for (;;) {
            // The cut ends may lie one pixel outside.
            if (unsigned(x) < largura && unsigned(y) < altura)
                imagem.pixeis[y * imagem.porLinha + x] = cor;
            if (x == xf && y == yf)
                break;
            const int e2 = 2 * erro;
            if (e2 >= dy) { erro += dy; x += sx; }
            if (e2 <= dx) { erro += dx; y += sy; }
        }
    }
    tocado.x1 = std::max(tocado.x1, 0);
    tocado.y1 = std::max(tocado.y1, 0);
    tocado.x2 = std::min(tocado.x2, imagem.largura - 1);
    tocado.y2 = std::min(tocado.y2, imagem.altura - 1);
    return tocado;
}

}  // namespace lumerina
