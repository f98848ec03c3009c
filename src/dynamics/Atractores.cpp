#include "dynamics/Atractores.h"

#include <algorithm>
#include <cmath>

#if defined(__x86_64__) && defined(__linux__)
#include <immintrin.h>
// glibc's vector maths library: sin of two (SSE2) or four (AVX2) lanes at once.
extern "C" __m128d _ZGVbN2v_sin(__m128d);
extern "C" __m256d _ZGVdN4v_sin(__m256d);
#define LUMERINA_MVEC 1
#endif

namespace lumerina {

namespace {

constexpr double kMeioPi = 1.5707963267948966;

// VB's Sgn: −1, 0 or 1.
double Sinal(double v) { return v > 0 ? 1.0 : (v < 0 ? -1.0 : 0.0); }

#ifdef LUMERINA_MVEC
bool TemAvx2()
{
    static const bool tem = [] {
        __builtin_cpu_init();
        return __builtin_cpu_supports("avx2") != 0;
    }();
    return tem;
}

// The four sines of u0 … u3, in the order given.
[[gnu::target("avx2")]] void Senos4Avx2(double u0, double u1, double u2, double u3, double* s)
{
    _mm256_storeu_pd(s, _ZGVdN4v_sin(_mm256_set_pd(u3, u2, u1, u0)));
}

void Senos4Sse2(double u0, double u1, double u2, double u3, double* s)
{
    _mm_storeu_pd(s, _ZGVbN2v_sin(_mm_set_pd(u1, u0)));
    _mm_storeu_pd(s + 2, _ZGVbN2v_sin(_mm_set_pd(u3, u2)));
}

// A run of steps of a map whose step needs sin p, sin q, cos r, cos w of the current point:
// `argumentos(x, y, u)` writes the four arguments (cosines already shifted by π/2), and
// `depois(x, y, s)` makes the next point from the four sines. The loop is instantiated for
// each instruction set, so the vector call is inlined into it.
template <class Senos, class Args, class Depois>
[[gnu::always_inline]] inline void Correr(double& x, double& y, Ponto* saida, int n, Senos senos,
                                          Args argumentos, Depois depois)
{
    for (int k = 0; k < n; ++k) {
        double u[4], s[4];
        argumentos(x, y, u);
        senos(u[0], u[1], u[2], u[3], s);
        depois(x, y, s);
        saida[k] = {x, y};
    }
}

template <class Args, class Depois>
[[gnu::target("avx2")]] void CorrerAvx2(double& x, double& y, Ponto* saida, int n, Args a, Depois d)
{
    Correr(x, y, saida, n, Senos4Avx2, a, d);
}

template <class Args, class Depois>
void CorrerSse2(double& x, double& y, Ponto* saida, int n, Args a, Depois d)
{
    Correr(x, y, saida, n, Senos4Sse2, a, d);
}
#endif

}  // namespace

Ponto Lorenz::Passo()
{
    const double dx = a * (y - x);
    const double dy = x * (b - z) - y;
    const double dz = x * y - c * z;
    x += dt * dx;
    y += dt * dy;
    z += dt * dz;
    if (tresDimensoes) {
        const double recuo = x * std::sqrt(2.0) / 4;
        return {(y - recuo) / 2, (z - recuo) / 2};
    }
    return {x / 2, z / 2};
}

Ponto Rossler::Passo()
{
    const double dx = -y - z;
    const double dy = x + a * y;
    const double dz = b + z * (x - c);
    x += dt * dx;
    y += dt * dy;
    z += dt * dz;
    return {x, y};
}

Ponto Duffing::Passo()
{
    const double dx = y;
    const double dy = x - x * x * x - a * y + b * std::cos(c * t);
    x += dt * dx;
    y += dt * dy;
    t += dt;
    return {x, y};
}

Ponto Henon::Passo()
{
    const double xn = 1 + y - a * x * x;
    y = b * x;
    x = xn;
    return {x, y};
}

Kam::Kam(double xini, double yini, double incX, double incY, int linhas, double anguloGraus,
         int iteracoes)
    : xini_(xini), yini_(yini), incX_(incX), incY_(incY), linhas_(linhas), iteracoes_(iteracoes)
{
    constexpr double kPi = 3.14159265358979;  // the program's own π, to 15 figures
    c = std::cos(anguloGraus * kPi / 180);
    s = std::sin(anguloGraus * kPi / 180);
    ComecarLinha();
}

void Kam::ComecarLinha()
{
    x = xini_ + linha_ * incX_;
    y = yini_ + linha_ * incY_;
    feitos_ = 0;
}

Ponto Kam::Passo()
{
    if (feitos_ == iteracoes_) {
        ++linha_;
        ComecarLinha();
    }
    const double u = y - x * x;
    const double xn = x * c - u * s;
    y = x * s + u * c;
    x = xn;
    ++feitos_;
    return {x, y};
}

Ponto Hopalong::Passo()
{
    const double xn = y - Sinal(x) * std::sqrt(std::fabs(b * x - c));
    y = a - x;
    x = xn;
    return {x, y};
}

Ponto DeJong::Passo()
{
    const double xn = std::sin(a * y) - std::cos(b * x);
    y = std::sin(c * x) - std::cos(d * y);
    x = xn;
    return {x, y};
}

void DeJong::Pontos(Ponto* saida, int n)
{
#ifdef LUMERINA_MVEC
    const double A = a, B = b, C = c, D = d;
    const auto argumentos = [=](double px, double py, double* u) {
        u[0] = A * py, u[1] = C * px, u[2] = B * px + kMeioPi, u[3] = D * py + kMeioPi;
    };
    const auto depois = [](double& px, double& py, const double* s) {
        px = s[0] - s[2];
        py = s[1] - s[3];
    };
    if (TemAvx2())
        CorrerAvx2(x, y, saida, n, argumentos, depois);
    else
        CorrerSse2(x, y, saida, n, argumentos, depois);
#else
    for (int k = 0; k < n; ++k)
        saida[k] = Passo();
#endif
}

Ponto Clifford::Passo()
{
    const double xn = std::sin(a * y) + c * std::cos(a * x);
    y = std::sin(b * x) + d * std::cos(b * y);
    x = xn;
    return {x, y};
}

void Clifford::Pontos(Ponto* saida, int n)
{
#ifdef LUMERINA_MVEC
    const double A = a, B = b, C = c, D = d;
    const auto argumentos = [=](double px, double py, double* u) {
        u[0] = A * py, u[1] = B * px, u[2] = A * px + kMeioPi, u[3] = B * py + kMeioPi;
    };
    const auto depois = [=](double& px, double& py, const double* s) {
        px = s[0] + C * s[2];
        py = s[1] + D * s[3];
    };
    if (TemAvx2())
        CorrerAvx2(x, y, saida, n, argumentos, depois);
    else
        CorrerSse2(x, y, saida, n, argumentos, depois);
#else
    for (int k = 0; k < n; ++k)
        saida[k] = Passo();
#endif
}

Ponto Tinkerbell::Passo()
{
    const double xn = x * x - y * y + a * x + b * y;
    y = 2 * x * y + c * x + d * y;
    x = xn;
    return {x, y};
}

Ponto Quadratico::Passo()
{
    const double xn = a[0] + a[1] * x + a[2] * x * x + a[3] * x * y + a[4] * y + a[5] * y * y;
    y = a[6] + a[7] * x + a[8] * x * x + a[9] * x * y + a[10] * y + a[11] * y * y;
    x = xn;
    return {x, y};
}

Ponto Estranhos2::Passo()
{
    const double t = std::tan(x), s = std::sin(y);
    const double xn = t * t - s * s + e1;
    y = e2 + e3 * y + 2 * t * s;
    x = xn;
    return {x, y};
}

Ponto Borboleta::Passo()
{
    constexpr double kPi = 3.141592653589793;
    const double t = 24 * kPi * i / kPassos;
    const double s12 = std::sin(t / 12);
    const double r = std::exp(std::cos(t)) - 2 * std::cos(4 * t) + s12 * s12 * s12 * s12 * s12;
    ++i;
    return {0.5 * r * std::sin(t), 0.5 * r * std::cos(t)};
}

Ponto Caotico::Passo()
{
    const double xn = 1 - y + std::fabs(x);
    y = x;
    x = xn;
    return {x, y};
}

namespace {
template <class A> void PontosDe(A& atractor, Ponto* saida, int n)
{
    if constexpr (requires { atractor.Pontos(saida, n); }) {
        atractor.Pontos(saida, n);
    } else {
        for (int k = 0; k < n; ++k)
            saida[k] = atractor.Passo();
    }
}
}  // namespace

void Pontos(Atractor& atractor, Ponto* saida, int n)
{
    std::visit([&](auto& a) { PontosDe(a, saida, n); }, atractor);
}

long long TotalPontos(const Atractor& atractor, int iteracoes)
{
    if (const Kam* kam = std::get_if<Kam>(&atractor))
        return kam->Total();
    if (std::holds_alternative<Borboleta>(atractor))
        return Borboleta::kPassos + 1;
    return iteracoes;
}

void Retangulo::Juntar(int x, int y)
{
    if (Vazio()) {
        x0 = x1 = x;
        y0 = y1 = y;
        return;
    }
    x0 = std::min(x0, x);
    x1 = std::max(x1, x);
    y0 = std::min(y0, y);
    y1 = std::max(y1, y);
}

Retangulo PlotarPontos(const Raster& r, const Ponto* pontos, int n, std::uint32_t cor,
                       int tamanho)
{
    Retangulo tocado;
    const int meio = tamanho / 2;
    for (int k = 0; k < n; ++k) {
        const double px = std::floor((pontos[k].x - r.esquerda) * r.fx + 0.5);
        const double py = std::floor((pontos[k].y - r.topo) * r.fy + 0.5);
        // A point off the picture, or not a number (an orbit that ran away), draws nothing.
        if (!(px >= -meio && px < r.largura + meio && py >= -meio && py < r.altura + meio))
            continue;
        const int cx = static_cast<int>(px), cy = static_cast<int>(py);
        const int xa = std::max(cx - meio, 0), xb = std::min(cx + meio, r.largura - 1);
        const int ya = std::max(cy - meio, 0), yb = std::min(cy + meio, r.altura - 1);
        for (int yy = ya; yy <= yb; ++yy) {
            std::uint32_t* linha = r.linha0 + yy * r.passo;
            for (int xx = xa; xx <= xb; ++xx)
                linha[xx] = cor;
        }
        tocado.Juntar(xa, ya);
        tocado.Juntar(xb, yb);
    }
    return tocado;
}

}  // namespace lumerina
