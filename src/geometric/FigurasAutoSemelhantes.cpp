#include "geometric/FigurasAutoSemelhantes.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace lumerina {

namespace {

const std::array<DadosFigura, 7> kFiguras = {{
    {Figura::Cantor, "Conjunto de Cantor", 2, 1.0 / 3, "1/3"},
    {Figura::Koch, "Curva de Koch", 4, 1.0 / 3, "1/3"},
    {Figura::FlocoKoch, "Floco de neve de Koch (o contorno)", 4, 1.0 / 3, "1/3"},
    {Figura::TrianguloSierpinski, "Triângulo de Sierpinski", 3, 0.5, "1/2"},
    {Figura::CarpeteSierpinski, "Carpete de Sierpinski", 8, 1.0 / 3, "1/3"},
    {Figura::QuadradoFractal, "Quadrado fractal", 5, 1.0 / 3, "1/3"},
    {Figura::DragaoHeighway, "Dragão de Heighway", 2, 1 / std::sqrt(2.0), "1/√2"},
}};

struct Ponto {
    double x, y;
};

// Fills the triangle: every pixel whose centre lies inside, and its three corners, so that
// a triangle smaller than a pixel still shows.
void PreencherTriangulo(Mascara& m, Ponto a, Ponto b, Ponto c)
{
    const double ymin = std::min({a.y, b.y, c.y}), ymax = std::max({a.y, b.y, c.y});
    const Ponto lados[3][2] = {{a, b}, {b, c}, {c, a}};
    for (int y = std::max(0, int(std::floor(ymin))); y <= std::min(m.altura - 1, int(ymax)); ++y) {
        const double yc = y + 0.5;
        double x0 = 1e300, x1 = -1e300;
        for (const auto& [p, q] : lados) {
            if ((p.y <= yc && q.y > yc) || (q.y <= yc && p.y > yc)) {
                const double x = p.x + (yc - p.y) * (q.x - p.x) / (q.y - p.y);
                x0 = std::min(x0, x);
                x1 = std::max(x1, x);
            }
        }
        for (int x = std::max(0, int(std::ceil(x0 - 0.5))); x <= std::min(m.largura - 1, int(std::floor(x1 - 0.5))); ++x)
            m(x, y) = 1;
    }
    for (Ponto p : {a, b, c})
        m.Marcar(int(std::floor(p.x)), int(std::floor(p.y)));
}

void Sierpinski(Mascara& m, Ponto a, Ponto b, Ponto c, int nivel)
{
    if (nivel == 0) {
        PreencherTriangulo(m, a, b, c);
        return;
    }
    const Ponto ab{(a.x + b.x) / 2, (a.y + b.y) / 2}, bc{(b.x + c.x) / 2, (b.y + c.y) / 2},
                ca{(c.x + a.x) / 2, (c.y + a.y) / 2};
    Sierpinski(m, a, ab, ca, nivel - 1);
    Sierpinski(m, ab, b, bc, nivel - 1);
    Sierpinski(m, ca, bc, c, nivel - 1);
}

// The Koch curve from p to q, bending to the left of the direction p -> q (in a picture whose
// y grows downwards, "left" is drawn upwards for p left of q).
void Koch(std::vector<Ponto>& pontos, Ponto p, Ponto q, int nivel)
{
    if (nivel == 0) {
        pontos.push_back(q);
        return;
    }
    const double dx = (q.x - p.x) / 3, dy = (q.y - p.y) / 3;
    const Ponto a{p.x + dx, p.y + dy}, b{p.x + 2 * dx, p.y + 2 * dy};
    // The apex: the middle third turned by 60°.
    const double c60 = 0.5, s60 = std::sqrt(3.0) / 2;
    const Ponto v{a.x + dx * c60 + dy * s60, a.y - dx * s60 + dy * c60};
    Koch(pontos, p, a, nivel - 1);
    Koch(pontos, a, v, nivel - 1);
    Koch(pontos, v, b, nivel - 1);
    Koch(pontos, b, q, nivel - 1);
}

void Polilinha(Mascara& m, const std::vector<Ponto>& pontos)
{
    for (std::size_t i = 1; i < pontos.size(); ++i)
        TracarLinha(m, pontos[i - 1].x, pontos[i - 1].y, pontos[i].x, pontos[i].y);
}

// A pixel of the square [0, lado)² kept by a figure built on the 3 x 3 grid: at every stage,
// its cell (dx, dy) must be one the figure keeps.
template <class Fica>
void QuadradosTernarios(Mascara& m, double x0, double y0, double lado, int nivel, Fica fica)
{
    const int n = static_cast<int>(std::pow(3, nivel));
    for (int y = std::max(0, int(y0)); y < std::min(m.altura, int(std::ceil(y0 + lado))); ++y)
        for (int x = std::max(0, int(x0)); x < std::min(m.largura, int(std::ceil(x0 + lado))); ++x) {
            const double u = (x + 0.5 - x0) / lado, v = (y + 0.5 - y0) / lado;
            if (u < 0 || v < 0 || u >= 1 || v >= 1)
                continue;
            int i = int(u * n), j = int(v * n);
            bool dentro = true;
            for (int k = 0; k < nivel && dentro; ++k, i /= 3, j /= 3)
                dentro = fica(i % 3, j % 3);
            if (dentro)
                m(x, y) = 1;
        }
}

}  // namespace

const std::array<DadosFigura, 7>& Figuras()
{
    return kFiguras;
}

const DadosFigura& Dados(Figura figura)
{
    return kFiguras[static_cast<std::size_t>(figura)];
}

double DimensaoAutoSemelhanca(int copias, double razao)
{
    return std::log(static_cast<double>(copias)) / std::log(1 / razao);
}

void TracarLinha(Mascara& m, double x1, double y1, double x2, double y2)
{
    // Steps of at most half a pixel along the longer axis reach every pixel the line crosses
    // between its ends.
    const double passos = std::ceil(2 * std::max(std::abs(x2 - x1), std::abs(y2 - y1)));
    const int n = std::max(1, static_cast<int>(std::min(passos, 1e7)));
    for (int i = 0; i <= n; ++i) {
        const double t = static_cast<double>(i) / n;
        m.Marcar(int(std::floor(x1 + t * (x2 - x1))), int(std::floor(y1 + t * (y2 - y1))));
    }
}

int NivelFigura(Figura figura, int lado)
{
    // The piece of stage k, for a figure about `lado` pixels across.
    const double razao = Dados(figura).razao;
    double peca = lado;
    int nivel = 0;
    const int maximo = figura == Figura::DragaoHeighway ? 18 : 10;
    while (nivel < maximo && peca * razao >= 1) {
        peca *= razao;
        ++nivel;
    }
    return nivel;
}

Mascara DesenharFigura(Figura figura, int largura, int altura)
{
    Mascara m(largura, altura);
    const double lado = std::min(largura, altura) * 0.94;
    const double x0 = (largura - lado) / 2, y0 = (altura - lado) / 2;
    const int nivel = NivelFigura(figura, int(lado));
    switch (figura) {
    case Figura::Cantor: {
        // Stage k: 2^k bars of length lado/3^k, in a row of its own.
        const int etapas = std::min(nivel, 6) + 1;
        const double passo = lado / etapas, grossura = std::max(2.0, passo * 0.35);
        std::vector<double> inicios{x0}, novos;
        double comprimento = lado;
        for (int k = 0; k < etapas; ++k) {
            const double y = y0 + k * passo + (passo - grossura) / 2;
            for (double a : inicios)
                for (int yy = int(y); yy < int(y + grossura); ++yy)
                    for (int x = int(std::floor(a)); x <= int(std::floor(a + comprimento - 1e-9)); ++x)
                        m.Marcar(x, yy);
            novos.clear();
            for (double a : inicios) {
                novos.push_back(a);
                novos.push_back(a + 2 * comprimento / 3);
            }
            inicios.swap(novos);
            comprimento /= 3;
        }
        break;
    }
    case Figura::Koch: {
        std::vector<Ponto> pontos{{x0, y0 + lado * 0.62}};
        Koch(pontos, pontos[0], {x0 + lado, y0 + lado * 0.62}, nivel);
        Polilinha(m, pontos);
        break;
    }
    case Figura::FlocoKoch: {
        // A triangle of side s has circumradius s/√3; the snowflake reaches 4/3 of the
        // inradius beyond each side: fit it by its width.
        const double s = lado * 0.86, cx = x0 + lado / 2, cy = y0 + lado / 2;
        const double rc = s / std::sqrt(3.0);
        const Ponto a{cx - s / 2, cy + rc / 2}, b{cx, cy - rc}, c{cx + s / 2, cy + rc / 2};
        std::vector<Ponto> pontos{a};
        // Clockwise on the screen (a -> b -> c), so each curve bends outwards.
        Koch(pontos, a, b, NivelFigura(figura, int(s)));
        Koch(pontos, b, c, NivelFigura(figura, int(s)));
        Koch(pontos, c, a, NivelFigura(figura, int(s)));
        Polilinha(m, pontos);
        break;
    }
    case Figura::TrianguloSierpinski: {
        const double h = lado * std::sqrt(3.0) / 2, topo = y0 + (lado - h) / 2;
        Sierpinski(m, {x0, topo + h}, {x0 + lado / 2, topo}, {x0 + lado, topo + h}, nivel);
        break;
    }
    case Figura::CarpeteSierpinski:
        QuadradosTernarios(m, x0, y0, lado, nivel, [](int i, int j) { return i != 1 || j != 1; });
        break;
    case Figura::QuadradoFractal:
        QuadradosTernarios(m, x0, y0, lado, nivel, [](int i, int j) { return (i == 1) == (j == 1); });
        break;
    case Figura::DragaoHeighway: {
        // A strip folded in half k times and opened at right angles: turn n (n = 1, 2, ...)
        // is to the left when the odd part of n is 1 modulo 4, to the right when it is 3.
        const int segmentos = 1 << nivel;
        std::vector<Ponto> pontos{{0, 0}};
        int direccao = 0;  // multiples of 90°, unit steps
        constexpr int dx[] = {1, 0, -1, 0}, dy[] = {0, -1, 0, 1};
        for (int n = 1; n <= segmentos; ++n) {
            pontos.push_back({pontos.back().x + dx[direccao], pontos.back().y + dy[direccao]});
            const int impar = n / (n & -n);
            direccao = (direccao + (impar % 4 == 1 ? 1 : 3)) % 4;
        }
        // The stages turn the chord by 45° each: turn it back to the horizontal, then fit
        // the figure to the square.
        const double angulo = std::atan2(pontos.back().y, pontos.back().x);
        const double co = std::cos(-angulo), se = std::sin(-angulo);
        double xmin = 1e300, xmax = -1e300, ymin = 1e300, ymax = -1e300;
        for (Ponto& p : pontos) {
            p = {p.x * co - p.y * se, p.x * se + p.y * co};
            xmin = std::min(xmin, p.x), xmax = std::max(xmax, p.x);
            ymin = std::min(ymin, p.y), ymax = std::max(ymax, p.y);
        }
        const double escala = lado / std::max(xmax - xmin, ymax - ymin);
        const double mx = x0 + (lado - (xmax - xmin) * escala) / 2;
        const double my = y0 + (lado - (ymax - ymin) * escala) / 2;
        for (Ponto& p : pontos)
            p = {mx + (p.x - xmin) * escala, my + (p.y - ymin) * escala};
        Polilinha(m, pontos);
        break;
    }
    }
    return m;
}

}  // namespace lumerina
