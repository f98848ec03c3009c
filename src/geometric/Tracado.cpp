#include "geometric/Tracado.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace lumerina {

namespace {

// Cohen-Sutherland against [-1, xmax] x [-1, ymax]. Each cut puts the moved end exactly on the
// edge and interpolates only the other coordinate. False when nothing of the segment is inside.
bool Recortar(double& x1, double& y1, double& x2, double& y2, double xmax, double ymax)
{
    const auto codigo = [&](double x, double y) {
        return (x < -1 ? 1 : 0) | (x > xmax ? 2 : 0) | (y < -1 ? 4 : 0) | (y > ymax ? 8 : 0);
    };
    int c1 = codigo(x1, y1), c2 = codigo(x2, y2);
    for (int passo = 0; passo < 8; ++passo) {
        if ((c1 | c2) == 0)
            return true;
        if (c1 & c2)
            return false;
        const bool primeiro = c1 != 0;
        double& x = primeiro ? x1 : x2;
        double& y = primeiro ? y1 : y2;
        const double ox = primeiro ? x2 : x1, oy = primeiro ? y2 : y1;
        const int c = primeiro ? c1 : c2;
        if (c & 1) { y = y + (oy - y) * ((-1 - x) / (ox - x)); x = -1; }
        else if (c & 2) { y = y + (oy - y) * ((xmax - x) / (ox - x)); x = xmax; }
        else if (c & 4) { x = x + (ox - x) * ((-1 - y) / (oy - y)); y = -1; }
        else { x = x + (ox - x) * ((ymax - y) / (oy - y)); y = ymax; }
        (primeiro ? c1 : c2) = codigo(x, y);
    }
    return (c1 | c2) == 0;
}

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
