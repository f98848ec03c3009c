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

// A point of one pixel: the pixel is floor(v + 0.5), and where v + 0.5 is in [0, side) the
// truncation is that floor. A point off the picture, or not a number (an orbit that ran
// away), draws nothing.
[[gnu::always_inline]] inline void PlotarUm(const Raster& r, double x, double y, std::uint32_t cor,
                                            Retangulo& tocado)
{
    const double vx = (x - r.esquerda) * r.fx + 0.5;
    const double vy = (y - r.topo) * r.fy + 0.5;
    if (!(vx >= 0 && vx < r.largura && vy >= 0 && vy < r.altura))
        return;
    const int cx = static_cast<int>(vx), cy = static_cast<int>(vy);
    r.linha0[cy * r.passo + cx] = cor;
    tocado.Juntar(cx, cy);
}

// Where a run of steps plots its points as it goes (null: it only keeps them).
struct Plotagem {
    const Raster& raster;
    std::uint32_t cor;
    Retangulo tocado;
};

#ifdef LUMERINA_MVEC
bool TemAvx2()
{
    static const bool tem = [] {
        __builtin_cpu_init();
        return __builtin_cpu_supports("avx2") != 0;
    }();
    return tem;
}

// The maps whose step is
//   (x', y') = (sin(l0·y), sin(l1·x)) + (m0, m1)·(sin(h0·x + π/2), sin(h1·y + π/2))
// with the point held as one vector (x, y): the arguments are formed with the same products
// and sums as the scalar formula, and the four sines come from one vector call.
struct SenosDoPasso {
    double l0, l1, h0, h1, m0, m1;
};

[[gnu::target("avx2")]] void CorrerAvx2(const SenosDoPasso& k, double& x, double& y, Ponto* saida,
                                        int n, Plotagem* plotagem)
{
    const __m256d coef = _mm256_set_pd(k.h1, k.h0, k.l1, k.l0);
    const __m256d desvio = _mm256_set_pd(kMeioPi, kMeioPi, 0.0, 0.0);
    const __m128d m = _mm_set_pd(k.m1, k.m0);
    __m128d xy = _mm_set_pd(y, x);
    for (int i = 0; i < n; ++i) {
        const __m128d yx = _mm_shuffle_pd(xy, xy, 1);
        const __m256d u = _mm256_add_pd(_mm256_mul_pd(_mm256_set_m128d(xy, yx), coef), desvio);
        const __m256d s = _ZGVdN4v_sin(u);
        xy = _mm_add_pd(_mm256_castpd256_pd128(s), _mm_mul_pd(m, _mm256_extractf128_pd(s, 1)));
        _mm_storeu_pd(&saida[i].x, xy);
        // Off the chain of steps: done while the next sines are computed.
        if (plotagem)
            PlotarUm(plotagem->raster, saida[i].x, saida[i].y, plotagem->cor, plotagem->tocado);
    }
    x = _mm_cvtsd_f64(xy);
    y = _mm_cvtsd_f64(_mm_unpackhi_pd(xy, xy));
}

void CorrerSse2(const SenosDoPasso& k, double& x, double& y, Ponto* saida, int n,
                Plotagem* plotagem)
{
    const __m128d l = _mm_set_pd(k.l1, k.l0), h = _mm_set_pd(k.h1, k.h0);
    const __m128d desvio = _mm_set1_pd(kMeioPi);
    const __m128d m = _mm_set_pd(k.m1, k.m0);
    __m128d xy = _mm_set_pd(y, x);
    for (int i = 0; i < n; ++i) {
        const __m128d yx = _mm_shuffle_pd(xy, xy, 1);
        const __m128d sl = _ZGVbN2v_sin(_mm_mul_pd(l, yx));
        const __m128d sh = _ZGVbN2v_sin(_mm_add_pd(_mm_mul_pd(h, xy), desvio));
        xy = _mm_add_pd(sl, _mm_mul_pd(m, sh));
        _mm_storeu_pd(&saida[i].x, xy);
        if (plotagem)
            PlotarUm(plotagem->raster, saida[i].x, saida[i].y, plotagem->cor, plotagem->tocado);
    }
    x = _mm_cvtsd_f64(xy);
    y = _mm_cvtsd_f64(_mm_unpackhi_pd(xy, xy));
}

// x' = sin(A·y) − sin(B·x + π/2), y' = sin(C·x) − sin(D·y + π/2).
SenosDoPasso Senos(const DeJong& j) { return {j.a, j.c, j.b, j.d, -1, -1}; }
// x' = sin(A·y) + C·sin(A·x + π/2), y' = sin(B·x) + D·sin(B·y + π/2).
SenosDoPasso Senos(const Clifford& c) { return {c.a, c.b, c.a, c.b, c.c, c.d}; }

void Correr(const SenosDoPasso& k, double& x, double& y, Ponto* saida, int n,
            bool quatroVias = true, Plotagem* plotagem = nullptr)
{
    if (quatroVias && TemAvx2())
        CorrerAvx2(k, x, y, saida, n, plotagem);
    else
        CorrerSse2(k, x, y, saida, n, plotagem);
}
#endif

// The points of Peter de Jong or Clifford: by the vector sines where the C library has them
// (four lanes when `quatroVias` and the processor allow), otherwise step by step.
template <class A>
void PontosPorSenos(A& atractor, Ponto* saida, int n, bool quatroVias)
{
#ifdef LUMERINA_MVEC
    Correr(Senos(atractor), atractor.x, atractor.y, saida, n, quatroVias);
#else
    (void)quatroVias;
    for (int k = 0; k < n; ++k)
        saida[k] = atractor.Passo();
#endif
}

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

void DeJong::Pontos(Ponto* saida, int n) { PontosPorSenos(*this, saida, n, true); }

void DeJong::PontosDuasVias(Ponto* saida, int n) { PontosPorSenos(*this, saida, n, false); }

Ponto Clifford::Passo()
{
    const double xn = std::sin(a * y) + c * std::cos(a * x);
    y = std::sin(b * x) + d * std::cos(b * y);
    x = xn;
    return {x, y};
}

void Clifford::Pontos(Ponto* saida, int n) { PontosPorSenos(*this, saida, n, true); }

void Clifford::PontosDuasVias(Ponto* saida, int n) { PontosPorSenos(*this, saida, n, false); }

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

Retangulo PlotarPontos(const Raster& r, const Ponto* pontos, int n, std::uint32_t cor,
                       int tamanho)
{
    Retangulo tocado;
    if (tamanho <= 1) {
        for (int k = 0; k < n; ++k)
            PlotarUm(r, pontos[k].x, pontos[k].y, cor, tocado);
        return tocado;
    }
    // A square of `tamanho` pixels: shifted by `meio`, every pixel it may touch has
    // v + 0.5 + meio in [0, side + 2·meio), where truncation is the floor.
    const int meio = tamanho / 2;
    const double limX = r.largura + 2 * meio, limY = r.altura + 2 * meio;
    const double desvio = 0.5 + meio;
    for (int k = 0; k < n; ++k) {
        const double vx = (pontos[k].x - r.esquerda) * r.fx + desvio;
        const double vy = (pontos[k].y - r.topo) * r.fy + desvio;
        if (!(vx >= 0 && vx < limX && vy >= 0 && vy < limY))
            continue;
        const int cx = static_cast<int>(vx) - meio, cy = static_cast<int>(vy) - meio;
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

Retangulo PontosPlotados(Atractor& atractor, Ponto* lote, int n, const Raster& raster,
                         std::uint32_t cor, int tamanho)
{
#ifdef LUMERINA_MVEC
    if (tamanho == 1) {
        Plotagem plotagem{raster, cor, {}};
        if (DeJong* j = std::get_if<DeJong>(&atractor)) {
            Correr(Senos(*j), j->x, j->y, lote, n, true, &plotagem);
            return plotagem.tocado;
        }
        if (Clifford* c = std::get_if<Clifford>(&atractor)) {
            Correr(Senos(*c), c->x, c->y, lote, n, true, &plotagem);
            return plotagem.tocado;
        }
    }
#endif
    Pontos(atractor, lote, n);
    return PlotarPontos(raster, lote, n, cor, tamanho);
}

}  // namespace lumerina
