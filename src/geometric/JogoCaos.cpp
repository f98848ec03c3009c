#include "geometric/JogoCaos.h"

#include "geometric/SistemaIFS.h"
#include "interp/Aleatorio.h"

#include <cmath>
#include <initializer_list>

namespace lumerina {

namespace {

// Points every `passo` along a polyline, its last corner included.
void Tracar(FiguraCaos& figura, std::initializer_list<Ponto> cantos, double passo)
{
    const Ponto* anterior = nullptr;
    for (const Ponto& p : cantos) {
        if (anterior) {
            const double comprimento = std::hypot(p.x - anterior->x, p.y - anterior->y);
            const int partes = static_cast<int>(std::ceil(comprimento / passo));
            for (int k = 0; k < partes && figura.n < kPontosFigura; ++k) {
                const double t = double(k) / partes;
                figura.x[figura.n] = anterior->x + t * (p.x - anterior->x);
                figura.y[figura.n] = anterior->y + t * (p.y - anterior->y);
                ++figura.n;
            }
        }
        anterior = &p;
    }
    if (anterior && figura.n < kPontosFigura) {
        figura.x[figura.n] = anterior->x;
        figura.y[figura.n] = anterior->y;
        ++figura.n;
    }
}

constexpr double kPasso = 0.01;

}  // namespace

int SortearVertice()
{
    SemearAleatorioDoRelogio();
    return VerticeDe(Aleatorio());
}

bool FiguraCaos::Acrescentar(Ponto p)
{
    if (n >= kMaxPontosUtilizador)
        return false;
    x[n] = p.x;
    y[n] = p.y;
    ++n;
    return true;
}

void FiguraLetras(FiguraCaos& figura)
{
    figura.n = 0;
    Tracar(figura, {{-0.7, 0.5}, {-0.7, -0.5}, {-0.2, -0.5}}, kPasso);               // L
    Tracar(figura, {{0.1, -0.5}, {0.1, 0.5}, {0.4, 0}, {0.7, 0.5}, {0.7, -0.5}}, kPasso);  // M
}

void FiguraCirculo(FiguraCaos& figura)
{
    constexpr int kPontos = 400;
    constexpr double kDoisPi = 6.283185307179586;
    for (int k = 0; k < kPontos; ++k) {
        figura.x[k] = 0.5 * std::cos(kDoisPi * k / kPontos);
        figura.y[k] = 0.5 * std::sin(kDoisPi * k / kPontos);
    }
    figura.n = kPontos;
}

void FiguraQuadrado(FiguraCaos& figura)
{
    figura.n = 0;
    Tracar(figura, {{-0.5, -0.5}, {0.5, -0.5}, {0.5, 0.5}, {-0.5, 0.5}, {-0.5, -0.5}}, kPasso);
    --figura.n;  // the closing corner is the first point again
}

double Arredondar2(double v) { return std::nearbyint(v * 100) / 100; }

const std::array<MapaAfim, 3>& MapasCopiadora()
{
    static const std::array<MapaAfim, 3> mapas = [] {
        const auto m = TrianguloSierpinski().Mapas();
        return std::array<MapaAfim, 3>{m[0], m[1], m[2]};
    }();
    return mapas;
}

}  // namespace lumerina
