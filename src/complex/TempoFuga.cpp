#include "complex/TempoFuga.h"
#include "complex/Vectores.h"

#include <bit>
#include <cstdint>
#include <cstring>


namespace lumerina {
namespace {

using vectores::V2d;
using vectores::V4d;
using vectores::Testar;

// One step z <- f(z) + c of each variant: the only place the six formulas are written.
// x2 = zx·zx and y2 = zy·zy come from the escape test just made. T is double or a vector of
// doubles: every operation is one IEEE operation (no fused multiply-add, the build forbids
// contraction), in the order the formulas are written, so a vector lane computes exactly what
// the plain scalar loop computes.
// Powers are products: x² = x·x (the correctly rounded square, the same value a floating
// power gives), x³ = (x·x)·x, x⁴ = (x·x)·(x·x). Products rather than pow() because they
// vectorise and do not depend on how a maths library rounds the last bit of a power.
template <VarianteMandel V, class T>
[[gnu::always_inline]] inline void Passo(T& zx, T& zy, const T& x2, const T& y2, const T& cx,
                                         const T& cy)
{
    using enum VarianteMandel;
    const T x = zx, y = zy;  // the old zx is needed for the new zy
    if constexpr (V == Normal || V == Conj) {
        zx = x2 - y2 + cx;
        zy = V == Normal ? 2.0 * x * y + cy : -2.0 * x * y + cy;
    } else if constexpr (V == Cubo || V == ConjCubo) {
        const T x3 = x2 * x, y3 = y2 * y;
        zx = x3 - 3.0 * x * y2 + cx;
        zy = V == Cubo ? 3.0 * x2 * y - y3 + cy : y3 - 3.0 * x2 * y + cy;
    } else {
        const T x3 = x2 * x, y3 = y2 * y, x4 = x2 * x2, y4 = y2 * y2;
        zx = x4 - 6.0 * x2 * y2 + y4 + cx;
        zy = V == Quarta ? 4.0 * x3 * y - 4.0 * x * y3 + cy : 4.0 * x * y3 - 4.0 * x3 * y + cy;
    }
}

// Main cardioid and period-2 bulb of z² + c. Their points are drawn to an attracting fixed
// point or 2-cycle and never escape, so their count is N: the loop would run all N steps.
// The test is shrunk by 1e-9, far beyond its own rounding error (terms of order 1, error of
// order 1e-16), so a point on or near either boundary always goes through the loop.
[[gnu::always_inline]] inline bool NuncaFoge(double x, double y)
{
    const double y2 = y * y;
    const double xq = x - 0.25;
    const double q = xq * xq + y2;
    if (q * (q + xq) < 0.25 * y2 - 1e-9)
        return true;
    const double x1 = x + 1.0;
    return x1 * x1 + y2 < 0.0625 - 1e-9;
}


// Escape counts of up to G·E points of one column at once, one per lane, all started
// together: after step t every running lane has n = t, so "n < N" is the bound of the loop
// and each lane needs only its own escape test, which once failed stays failed (a stopped lane
// goes on stepping, unseen). Lanes from `quantos` on are idle: they never run.
// GCC cannot see that the lanes below are all written before use, and says they may not be.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
template <VarianteMandel V, class Vd, int G>
[[gnu::always_inline]] inline void Bloco(double px, const double* pys, int quantos, int N,
                                         double* ns)
{
    constexpr int E = sizeof(Vd) / sizeof(double);
    const double todosUns = std::bit_cast<double>(~std::uint64_t{0});
    Vd zx[G], zy[G], x2[G], y2[G], cx[G], cy[G], n[G], vivo[G], quatro, um;
    for (int e = 0; e < E; ++e)
        quatro[e] = 4.0, um[e] = 1.0;
    for (int g = 0; g < G; ++g) {
        for (int e = 0; e < E; ++e) {
            const int k = g * E + e;
            cx[g][e] = px;
            cy[g][e] = k < quantos ? pys[k] : 0.0;
            vivo[g][e] = k < quantos ? todosUns : 0.0;
        }
        zx[g] = zy[g] = x2[g] = y2[g] = n[g] = Vd{};
    }
    for (int t = 0; t < N; ++t) {
        int correm = 0;
#pragma GCC unroll 4
        for (int g = 0; g < G; ++g)
            correm |= Testar(x2[g] + y2[g], vivo[g], n[g], quatro, um);
        if (correm == 0)
            break;
#pragma GCC unroll 4
        for (int g = 0; g < G; ++g) {
            Passo<V>(zx[g], zy[g], x2[g], y2[g], cx[g], cy[g]);
            x2[g] = zx[g] * zx[g];
            y2[g] = zy[g] * zy[g];
        }
    }
    std::memcpy(ns, n, sizeof n);
}
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic pop
#endif

// One column: the rows that need the loop are gathered in turn (for z² + c the points of the
// main cardioid and of the period-2 bulb are set to N at once), then run G·E at a time.
template <VarianteMandel V, class Vd, int G>
[[gnu::always_inline]] inline void Coluna(double px, const VistaMundo& vista, int N, int* contagens)
{
    constexpr int L = G * sizeof(Vd) / sizeof(double);
    constexpr int kFila = 256;
    const double dy = double(vista.ymax) - vista.ymin;
    int j = 0;
    while (j <= vista.H) {
        int filaJ[kFila];
        alignas(64) double filaY[kFila], ns[L];
        int quantos = 0;
        for (; j <= vista.H && quantos < kFila; ++j) {
            const double py = vista.ymin + j * dy / (vista.H - 1);
            if (V == VarianteMandel::Normal && NuncaFoge(px, py)) {
                contagens[j] = N;
            } else {
                filaJ[quantos] = j;
                filaY[quantos++] = py;
            }
        }
        for (int k = 0; k < quantos; k += L) {
            Bloco<V, Vd, G>(px, filaY + k, quantos - k, N, ns);
            for (int e = 0; e < L && k + e < quantos; ++e)
                contagens[filaJ[k + e]] = int(ns[e]);
        }
    }
}

template <class Vd, int G>
[[gnu::always_inline]] inline void PorVariante(VarianteMandel v, double cx, const VistaMundo& vista,
                                               int N, int* contagens)
{
    using enum VarianteMandel;
    switch (v) {
    case Normal: return Coluna<Normal, Vd, G>(cx, vista, N, contagens);
    case Cubo: return Coluna<Cubo, Vd, G>(cx, vista, N, contagens);
    case Quarta: return Coluna<Quarta, Vd, G>(cx, vista, N, contagens);
    case Conj: return Coluna<Conj, Vd, G>(cx, vista, N, contagens);
    case ConjCubo: return Coluna<ConjCubo, Vd, G>(cx, vista, N, contagens);
    case ConjQuarta: return Coluna<ConjQuarta, Vd, G>(cx, vista, N, contagens);
    }
}

void ColunaSse2(VarianteMandel v, double cx, const VistaMundo& vista, int N, int* contagens)
{
    PorVariante<V2d, 2>(v, cx, vista, N, contagens);
}

#ifdef LUMERINA_X86
[[gnu::target("avx2")]] void ColunaAvx2(VarianteMandel v, double cx, const VistaMundo& vista, int N,
                                        int* contagens)
{
    PorVariante<V4d, 2>(v, cx, vista, N, contagens);
}
#endif

}  // namespace

double ColunaX(const VistaMundo& vista, int i)
{
    return vista.xmin + i * (vista.xmax - vista.xmin) / (vista.W - 1);
}

double LinhaY(const VistaMundo& vista, int j)
{
    return vista.ymin + j * (double(vista.ymax) - vista.ymin) / (vista.H - 1);
}

InstrucoesVectoriais MelhoresInstrucoes()
{
#ifdef LUMERINA_X86
    static const InstrucoesVectoriais melhores = [] {
        __builtin_cpu_init();
        return __builtin_cpu_supports("avx2") ? InstrucoesVectoriais::Avx2
                                              : InstrucoesVectoriais::Sse2;
    }();
    return melhores;
#else
    return InstrucoesVectoriais::Sse2;
#endif
}

void ColunaMandelbrot(VarianteMandel v, const VistaMundo& vista, int i, int N, int* contagens,
                      InstrucoesVectoriais instrucoes)
{
    if (N <= 0) {  // the loop test fails at once: every count is 0
        for (int j = 0; j <= vista.H; ++j)
            contagens[j] = 0;
        return;
    }
    const double cx = ColunaX(vista, i);
#ifdef LUMERINA_X86
    if (instrucoes == InstrucoesVectoriais::Avx2)
        return ColunaAvx2(v, cx, vista, N, contagens);
#endif
    ColunaSse2(v, cx, vista, N, contagens);
}

void ColunaMandelbrot(VarianteMandel v, const VistaMundo& vista, int i, int N, int* contagens)
{
    ColunaMandelbrot(v, vista, i, N, contagens, MelhoresInstrucoes());
}

}  // namespace lumerina
