#include "complex/Julia.h"

#include "interp/clsEquation.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <cstdlib>
#include <vector>

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#define LUMERINA_X86 1
#endif

namespace lumerina {
namespace {

typedef double V2d __attribute__((vector_size(16)));
typedef double V4d __attribute__((vector_size(32)));

// One step of z <- z² + k on the squares sx = x², sy = y² of the current point: the only place
// the step is written. T is double or a vector of doubles; each operation is one IEEE
// operation in the written order (the build forbids contraction), so a lane computes exactly
// what the scalar loop computes.
template <class T>
[[gnu::always_inline]] inline void PassoQuadratico(T& x, T& y, const T& sx, const T& sy,
                                                   const T& C, const T& D)
{
    y = 2.0 * x * y + D;
    x = sx - sy + C;
}

// The escape test of one step for a vector of lanes: a lane runs while every test so far found
// r < 4 (`vivo`, all ones or all zeros per lane); a running lane counts one step more. Returns
// the bits of the lanes still running.
template <class Vd>
[[gnu::always_inline]] inline int Testar(const Vd& r, Vd& vivo, Vd& n, const Vd& quatro,
                                         const Vd& um)
{
    using Vl = decltype(Vd{} < Vd{});
    const Vl m = reinterpret_cast<Vl>(vivo) & (r < quatro);
    vivo = reinterpret_cast<Vd>(m);
    n += reinterpret_cast<Vd>(m & reinterpret_cast<Vl>(um));
    int bits = 0;
    for (unsigned e = 0; e < sizeof(Vd) / sizeof(double); ++e)
        bits |= int(m[e] & 1) << e;
    return bits;
}

#ifdef LUMERINA_X86
// Two lanes spelt with SSE2 intrinsics: without SSE4.1, GCC lowers two-lane masks badly.
[[gnu::always_inline]] inline int Testar(const V2d& r, V2d& vivo, V2d& n, const V2d& quatro,
                                         const V2d& um)
{
    vivo = _mm_and_pd(vivo, _mm_cmplt_pd(r, quatro));
    n = _mm_add_pd(n, _mm_and_pd(vivo, um));
    return _mm_movemask_pd(vivo);
}
#endif

// Counts of up to G·E points of one column, one per lane, started together. At step t every
// running lane has n = t, so "n < N" bounds the loop; a lane whose test failed stays stopped
// and goes on stepping unseen. The test of step t is made on the squares kept from the step
// before (the lag); the squares for the next test are those of the point this step starts
// from. Lanes from `quantos` on never run.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
template <class Vd, int G>
[[gnu::always_inline]] inline void Bloco(double px, const double* pys, int quantos, double C,
                                         double D, int limite, double* ns)
{
    constexpr int E = sizeof(Vd) / sizeof(double);
    const double todosUns = std::bit_cast<double>(~std::uint64_t{0});
    Vd x[G], y[G], sx[G], sy[G], n[G], vivo[G], quatro, um, vc, vd;
    for (int e = 0; e < E; ++e)
        quatro[e] = 4.0, um[e] = 1.0, vc[e] = C, vd[e] = D;
    for (int g = 0; g < G; ++g) {
        for (int e = 0; e < E; ++e) {
            const int k = g * E + e;
            x[g][e] = px;
            y[g][e] = k < quantos ? pys[k] : 0.0;
            vivo[g][e] = k < quantos ? todosUns : 0.0;
        }
        sx[g] = x[g] * x[g];
        sy[g] = y[g] * y[g];
        n[g] = Vd{};
    }
    for (int t = 0; t < limite; ++t) {
        int correm = 0;
#pragma GCC unroll 4
        for (int g = 0; g < G; ++g)
            correm |= Testar(sx[g] + sy[g], vivo[g], n[g], quatro, um);
        if (correm == 0)
            break;
#pragma GCC unroll 4
        for (int g = 0; g < G; ++g) {
            sx[g] = x[g] * x[g];
            sy[g] = y[g] * y[g];
            PassoQuadratico(x[g], y[g], sx[g], sy[g], vc, vd);
        }
    }
    std::memcpy(ns, n, sizeof n);
}
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic pop
#endif

// The counts of `quantos` start points px + i·ys[k], L at a time.
template <class Vd, int G>
[[gnu::always_inline]] inline void Pontos(double px, const double* ys, int quantos, double C,
                                          double D, int limite, int* contagens)
{
    constexpr int L = G * sizeof(Vd) / sizeof(double);
    alignas(64) double ns[L];
    for (int k0 = 0; k0 < quantos; k0 += L) {
        const int bloco = quantos - k0 < L ? quantos - k0 : L;
        Bloco<Vd, G>(px, ys + k0, bloco, C, D, limite, ns);
        for (int k = 0; k < bloco; ++k)
            contagens[k0 + k] = int(ns[k]);
    }
}

void PontosSse2(double px, const double* ys, int quantos, double C, double D, int limite,
                int* contagens)
{
    Pontos<V2d, 2>(px, ys, quantos, C, D, limite, contagens);
}

#ifdef LUMERINA_X86
[[gnu::target("avx2")]] void PontosAvx2(double px, const double* ys, int quantos, double C,
                                        double D, int limite, int* contagens)
{
    Pontos<V4d, 2>(px, ys, quantos, C, D, limite, contagens);
}
#endif

void ContarPontos(double px, const double* ys, int quantos, double C, double D, int limite,
                  int* contagens, InstrucoesVectoriais instrucoes)
{
#ifdef LUMERINA_X86
    if (instrucoes == InstrucoesVectoriais::Avx2)
        return PontosAvx2(px, ys, quantos, C, D, limite, contagens);
#else
    (void)instrucoes;
#endif
    PontosSse2(px, ys, quantos, C, D, limite, contagens);
}

int ParaInteiro(double v)
{
    if (!(v > 0))  // negative, zero or NaN
        return 0;
    return v >= double(INT_MAX) ? INT_MAX : int(v);
}

// The three transcendental steps; each returns true when the point has escaped.
bool PassoSeno(double& x, double& y, double C, double D)
{
    const double e1 = std::exp(y), e2 = std::exp(-y);
    const double a = std::sin(x) * (e2 + e1) / 2;
    const double b = std::cos(x) * (e1 - e2) / 2;
    x = a * C - b * D;
    y = b * C + a * D;
    return std::fabs(y) > 10;
}

bool PassoCoseno(double& x, double& y, double C, double D)
{
    const double e1 = std::exp(y), e2 = std::exp(-y);
    const double a = std::cos(x) * (e2 + e1) / 2;
    const double b = std::sin(x) * (e1 - e2) / 2;
    x = a * C + b * D;
    y = a * D - b * C;
    return std::fabs(y) > 10;
}

bool PassoExp(double& x, double& y, double C, double D)
{
    const double e = std::exp(x), c = std::cos(y), s = std::sin(y);
    x = e * (C * c - D * s);
    y = e * (C * s + D * c);
    return x > 20;
}

template <bool (*Passo)(double&, double&, double, double), bool Fuga>
void ColunaPassos(const VistaJulia& vista, int i, double C, double D, int passos, int* contagens)
{
    const double px = ColunaX(vista, i);
    for (int j = 0; j <= vista.H; ++j) {
        double x = px, y = LinhaY(vista, j);
        int n = 0;
        for (int passo = 1; passo <= passos; ++passo) {
            const bool fugiu = Passo(x, y, C, D);
            if (Fuga) {
                if (fugiu) {
                    n = passo;
                    break;
                }
            } else {
                n = passo;
                if (fugiu)
                    break;
            }
        }
        contagens[j] = n;
    }
}

}  // namespace

double ColunaX(const VistaJulia& vista, int i)
{
    return vista.xmin + i * (vista.xmax - vista.xmin) / (vista.W - 1);
}

double LinhaY(const VistaJulia& vista, int j)
{
    return vista.ymin + j * (vista.ymax - vista.ymin) / (vista.H - 1);
}

int LimiteContagem(double N) { return ParaInteiro(std::ceil(N)); }
int LimitePassos(double N) { return ParaInteiro(std::floor(N)); }

void ColunaJulia(const VistaJulia& vista, int i, double C, double D, int limite, int* contagens,
                 InstrucoesVectoriais instrucoes)
{
    std::vector<double> ys(static_cast<std::size_t>(vista.H) + 1);
    for (int j = 0; j <= vista.H; ++j)
        ys[j] = LinhaY(vista, j);
    ContarPontos(ColunaX(vista, i), ys.data(), vista.H + 1, C, D, limite, contagens, instrucoes);
}

ImagemJulia::ImagemJulia(const VistaJulia& vista, double C, double D, int limite,
                         InstrucoesVectoriais instrucoes)
    : vista_(vista), C_(C), D_(D), limite_(limite), instrucoes_(instrucoes)
{
    const int linhas = vista.H + 1;
    ys_.resize(linhas);
    espelho_.assign(linhas, -1);
    for (int j = 0; j < linhas; ++j)
        ys_[j] = LinhaY(vista, j);
    for (int j = 0; j < linhas; ++j) {
        const int e = vista.H - 1 - j;  // the row that mirrors j when the window is symmetric
        if (e >= 0 && e < linhas && ys_[e] == -ys_[j])
            espelho_[j] = e;
    }
    guardadas_.resize(static_cast<std::size_t>(linhas) * (static_cast<std::size_t>(vista.W) + 1));
}

void ImagemJulia::Coluna(int i, int* contagens)
{
    const int linhas = vista_.H + 1;
    const double px = ColunaX(vista_, i);
    const int e = static_cast<int>(vista_.W) - 1 - i;  // the column that may mirror i
    const bool espelhada = e >= 0 && e < i && ColunaX(vista_, e) == -px;
    // The rows that must be counted, their start points gathered.
    filaJ_.clear();
    filaY_.clear();
    for (int j = 0; j < linhas; ++j) {
        if (espelhada && espelho_[j] >= 0) {
            contagens[j] = guardadas_[static_cast<std::size_t>(e) * linhas + espelho_[j]];
        } else {
            filaJ_.push_back(j);
            filaY_.push_back(ys_[j]);
        }
    }
    filaN_.resize(filaJ_.size());
    ContarPontos(px, filaY_.data(), static_cast<int>(filaY_.size()), C_, D_, limite_,
                 filaN_.data(), instrucoes_);
    for (std::size_t k = 0; k < filaJ_.size(); ++k)
        contagens[filaJ_[k]] = filaN_[k];
    if ((static_cast<std::size_t>(i) + 1) * linhas <= guardadas_.size())
        std::copy(contagens, contagens + linhas, &guardadas_[static_cast<std::size_t>(i) * linhas]);
}

void ColunaJulia(const VistaJulia& vista, int i, double C, double D, int limite, int* contagens)
{
    ColunaJulia(vista, i, C, D, limite, contagens, MelhoresInstrucoes());
}

void ColunaTranscendente(FamiliaTranscendente familia, const VistaJulia& vista, int i, double C,
                         double D, int passos, int* contagens)
{
    switch (familia) {
    case FamiliaTranscendente::Seno:
        return ColunaPassos<PassoSeno, false>(vista, i, C, D, passos, contagens);
    case FamiliaTranscendente::Coseno:
        return ColunaPassos<PassoCoseno, false>(vista, i, C, D, passos, contagens);
    case FamiliaTranscendente::Exp:
        return ColunaPassos<PassoExp, true>(vista, i, C, D, passos, contagens);
    }
}

void CoresColunaJulia(FamiliaJulia familia, ColoracaoJulia coloracao, const int* contagens,
                      double N, int i, int H, Cor corA, Cor corB, Cor* cores)
{
    // The choice is made once per column, not once per pixel.
    using enum ColoracaoJulia;
    const bool exp = familia == FamiliaJulia::Exp;
    if (coloracao == Nenhuma) {
        std::fill(cores, cores + H + 1, kSemCor);
    } else if (exp && coloracao == LinhasTipo2) {
        for (int j = 0; j <= H; ++j)
            cores[j] = contagens[j] > 0
                           ? CorRGB(std::abs(i - j) % 255, std::abs(j - 18) % 255, (i + j) % 255)
                           : kSemCor;
    } else if (exp) {
        for (int j = 0; j <= H; ++j)
            cores[j] = contagens[j] > 0 ? Paleta16[contagens[j] % 15] : kSemCor;
    } else if (coloracao == SemLinhas) {
        for (int j = 0; j <= H; ++j)
            cores[j] = Atingiu(contagens[j], N) ? corB : corA;
    } else if (familia == FamiliaJulia::Normal) {
        for (int j = 0; j <= H; ++j)
            cores[j] = Atingiu(contagens[j], N) ? Paleta16[9] : Paleta16[contagens[j] % 16];
    } else {
        for (int j = 0; j <= H; ++j)
            cores[j] = Paleta16[contagens[j] % 16];
    }
}

void PassoInverso(double& x, double& y, double C, double D)
{
    constexpr double p = 3.14159;
    const double u = x - C, v = y - D;
    double a;
    if (u == 0)
        a = p / 2;
    else if (u > 0)
        a = std::atan(v / u);
    else
        a = std::atan(v / u) + p;
    const double r = std::sqrt(std::sqrt(u * u + v * v));
    const int m = int(2 * Aleatorio() + 1);
    a = a / 2 + p * m;
    x = r * std::cos(a);
    y = r * std::sin(a);
}

}  // namespace lumerina
