#include "complex/Orbitas.h"

#include <algorithm>
#include <cmath>

namespace lumerina {

double Modulo(PontoOrbita z)
{
    return std::hypot(z.x, z.y);
}

PontoOrbita PassoOrbita(Iteracao iteracao, PontoOrbita z, double cx, double cy)
{
    switch (iteracao) {
    case Iteracao::Complexa:
        return {z.x * z.x - z.y * z.y + cx, 2 * z.x * z.y + cy};
    case Iteracao::Coseno:
        return {std::cos(z.x), 0};
    case Iteracao::QuadraticaReal:
        return {z.x * z.x + cx, 0};
    }
    return z;
}

double MapaReal(Iteracao iteracao, double x, double c)
{
    return PassoOrbita(iteracao, {x, 0}, c, 0).x;
}

std::array<SegmentoTeia, 2> SegmentosTeia(double xn, double xn1)
{
    return {SegmentoTeia{xn, xn, xn, xn1}, SegmentoTeia{xn, xn1, xn1, xn1}};
}

Orbita::Orbita(Iteracao iteracao, PontoOrbita z0, double cx, double cy)
    : iteracao_(iteracao), cx_(cx), cy_(iteracao == Iteracao::Complexa ? cy : 0)
{
    if (iteracao != Iteracao::Complexa)
        z0.y = 0;
    raio_ = std::max(2.0, Modulo({cx_, cy_}));
    pontos_.reserve(64);
    pontos_.push_back(z0);
    // The cosine's orbit is bounded whatever the radius says of x_0.
    if (iteracao_ != Iteracao::Coseno && Modulo(z0) > raio_)
        passoFuga_ = 0;
    if (!std::isfinite(z0.x) || !std::isfinite(z0.y))
        terminada_ = true;
}

ResultadoPasso Orbita::Avancar()
{
    if (terminada_)
        return ResultadoPasso::Transbordou;
    if (Passos() >= kMaxPassos)
        return ResultadoPasso::Limite;
    const PontoOrbita z = PassoOrbita(iteracao_, pontos_.back(), cx_, cy_);
    if (!std::isfinite(z.x) || !std::isfinite(z.y) || !std::isfinite(Modulo(z))) {
        terminada_ = true;
        return ResultadoPasso::Transbordou;
    }
    pontos_.push_back(z);
    if (passoFuga_ < 0 && iteracao_ != Iteracao::Coseno && Modulo(z) > raio_) {
        passoFuga_ = Passos();
        return ResultadoPasso::Fugiu;
    }
    return ResultadoPasso::Avancou;
}

int Orbita::Periodo() const
{
    if (passoFuga_ >= 0)
        return 0;
    const auto perto = [](PontoOrbita a, PontoOrbita b, double tolerancia) {
        const double escala = std::max({1.0, Modulo(a), Modulo(b)});
        return Modulo({a.x - b.x, a.y - b.y}) <= tolerancia * escala;
    };
    const int n = Passos();
    for (int p = 1; p <= kPeriodoMaximo && n - 1 - p >= 0; ++p) {
        if (!perto(pontos_[n], pontos_[n - p], 1e-9) || !perto(pontos_[n - 1], pontos_[n - 1 - p], 1e-9))
            continue;
        // An orbit spiralling into a fixed point (f' < 0) comes back near itself every
        // second step sooner than every step: a divisor of p whose points are still close
        // is the true period. The points of a real cycle of period p are far apart.
        for (int d = 1; d < p; ++d)
            if (p % d == 0 && perto(pontos_[n], pontos_[n - d], 1e-5))
                return d;
        return p;
    }
    return 0;
}

}  // namespace lumerina
