#include "complex/MetodoNewton.h"

#include <cmath>

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#define LUMERINA_X86 1
#endif

namespace lumerina {

Complexo PotenciaComplexa(double x, double y, int p)
{
    double a = x, b = y;
    for (int k = 1; k < p; ++k) {
        const double re = a * x - b * y;
        b = a * y + b * x;
        a = re;
    }
    return {a, b};
}

Complexo DivisaoComplexa(double a, double b, double c, double d)
{
    // The guard works on each part by itself: a divisor on either axis is moved off it, and
    // a zero divisor becomes 0.001 + 0.001 i. It is what lets a point land on 0 and go on.
    if (c == 0)
        c = 0.001;
    if (d == 0)
        d = 0.001;
    const double q = c * c + d * d;
    return {(a * c + b * d) / q, (b * c - a * d) / q};
}

Complexo PassoNewton(double x, double y, int n)
{
    const Complexo p = PotenciaComplexa(x, y, n);
    const Complexo q = PotenciaComplexa(x, y, n - 1);
    const double n1 = n - 1.0, nn = n;
    return DivisaoComplexa(n1 * p.re + 1, n1 * p.im, nn * q.re, nn * q.im);
}

int PassosNewton(double x, double y, int n)
{
    int s = 0;
    for (;;) {
        const Complexo z = PassoNewton(x, y, n);
        const double dx = x - z.re, dy = y - z.im;
        x = z.re;
        y = z.im;
        ++s;
        if ((std::fabs(dx) <= kToleranciaNewton && std::fabs(dy) <= kToleranciaNewton) ||
            s == kPassosNewton)
            return s;
    }
}

bool InicioInvertido(const InversaoNewton& inv, double x, double y, Complexo& inicio)
{
    const double u = x - inv.a, v = y - inv.b;
    const double q = u * u + v * v;
    if (q == 0)
        return false;
    inicio = {inv.k * u / q, inv.k * v / q};
    return true;
}

std::vector<double> EixoNewton(double inicio, double fim, double passo, int maximo)
{
    std::vector<double> valores;
    if (!std::isfinite(inicio) || !std::isfinite(fim) || !std::isfinite(passo) || passo == 0)
        return valores;
    for (double v = inicio; passo > 0 ? v <= fim : v >= fim; v += passo) {
        if (static_cast<int>(valores.size()) >= maximo)
            break;
        if (!valores.empty() && v == valores.back())  // the step no longer moves it
            return {};
        valores.push_back(v);
    }
    return valores;
}

GrelhaNewton CriarGrelhaNewton(float xmin, float xmax, float ymin, float ymax, double W, double H)
{
    const double x0 = xmin, x1 = xmax, y0 = ymin, y1 = ymax;
    // W + 1 values at most: the sum of W steps lands within rounding of the far end.
    const auto maximo = [](double lado) {
        return lado >= 0 && lado < 1e6 ? static_cast<int>(lado) + 2 : 0;
    };
    return {EixoNewton(x0, x1, (x1 - x0) / W, maximo(W)),
            EixoNewton(y0, y1, (y1 - y0) / H, maximo(H))};
}

namespace {

typedef double V2d __attribute__((vector_size(16)));
typedef double V4d __attribute__((vector_size(32)));
typedef long long V2l __attribute__((vector_size(16)));
typedef long long V4l __attribute__((vector_size(32)));

template <class Vd> using MascaraDe = decltype(Vd{} < Vd{});

template <class Vl>
[[gnu::always_inline]] inline bool AlgumLigado(const Vl& m)
{
    long long todos = 0;
    for (unsigned e = 0; e < sizeof(Vl) / sizeof(long long); ++e)
        todos |= m[e];
    return todos != 0;
}

#ifdef LUMERINA_X86
[[gnu::always_inline]] inline bool AlgumLigado(const V2l& m)
{
    return _mm_movemask_pd(reinterpret_cast<__m128d>(m)) != 0;
}
#endif

// The steps of up to G·E points at once, one per lane, all started together: after step t
// every lane still running has s = t. A lane that settles stops counting and goes on stepping
// unseen; lanes from `quantos` on never run. Each step is PassoNewton's, operation for
// operation: zⁿ⁻¹ by the same chain of products, zⁿ as one product more (the very value a
// separate chain of n − 1 products gives), the numerator and denominator, the guard as a
// lane-wise select, and the two divisions.
// GCC cannot see that the lanes below are all written before use, and says they may not be.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
template <class Vd, int G>
[[gnu::always_inline]] inline void Bloco(const double* xs, const double* ys, int quantos, int n,
                                         long long* ss)
{
    using Vl = MascaraDe<Vd>;
    constexpr int E = sizeof(Vd) / sizeof(double);
    Vd zx[G], zy[G], um, n1, nn, tol, guarda, zero;
    Vl s[G], vivo[G], semSinal;
    for (int e = 0; e < E; ++e) {
        um[e] = 1.0;
        n1[e] = n - 1.0;
        nn[e] = n;
        tol[e] = kToleranciaNewton;
        guarda[e] = 0.001;
        zero[e] = 0.0;
        semSinal[e] = 0x7FFF'FFFF'FFFF'FFFFLL;
    }
    for (int g = 0; g < G; ++g) {
        for (int e = 0; e < E; ++e) {
            const int k = g * E + e;
            zx[g][e] = k < quantos ? xs[k] : 0.0;
            zy[g][e] = k < quantos ? ys[k] : 0.0;
            vivo[g][e] = k < quantos ? -1 : 0;
        }
        s[g] = Vl{};
    }
    for (int t = 0; t < kPassosNewton; ++t) {
        // zⁿ⁻¹ of every group, a product at a time across the groups: their chains of
        // products are independent and overlap in the processor.
        Vd qx[G], qy[G];
        for (int g = 0; g < G; ++g)
            qx[g] = zx[g], qy[g] = zy[g];
        for (int k = 1; k < n - 1; ++k) {
#pragma GCC unroll 4
            for (int g = 0; g < G; ++g) {
                const Vd re = qx[g] * zx[g] - qy[g] * zy[g];
                qy[g] = qx[g] * zy[g] + qy[g] * zx[g];
                qx[g] = re;
            }
            // A power that has come to 0 + 0i (of whatever signs) or holds a part that is not
            // a number stays so under further products, and the step made from it is the
            // same: the numerator becomes 1 ± 0i or not a number, the guarded divisor 0.001 +
            // 0.001i or not a number. Once every running lane is there, the products left are
            // skipped. This keeps a huge degree from taking hours a column; below degree 18
            // the test never runs.
            if ((k & 15) == 0) {
                Vl seguir{};
                for (int g = 0; g < G; ++g)
                    seguir |= vivo[g] & ~((qx[g] == zero) & (qy[g] == zero)) & (qx[g] == qx[g]) &
                              (qy[g] == qy[g]);
                if (!AlgumLigado(seguir))
                    break;
            }
        }
#pragma GCC unroll 4
        for (int g = 0; g < G; ++g) {
            const Vd x = zx[g], y = zy[g];
            const Vd px = qx[g] * x - qy[g] * y, py = qx[g] * y + qy[g] * x;
            const Vd a = n1 * px + um, b = n1 * py;
            Vd c = nn * qx[g], d = nn * qy[g];
            c = c == zero ? guarda : c;
            d = d == zero ? guarda : d;
            const Vd q = c * c + d * d;
            const Vd nx = (a * c + b * d) / q, ny = (b * c - a * d) / q;
            const Vd dx = x - nx, dy = y - ny;
            zx[g] = nx;
            zy[g] = ny;
            // |Δ| ≤ 0.001 with the sign bit cleared: the very test fabs makes.
            const Vd ax = reinterpret_cast<Vd>(reinterpret_cast<Vl>(dx) & semSinal);
            const Vd ay = reinterpret_cast<Vd>(reinterpret_cast<Vl>(dy) & semSinal);
            const Vl assente = (ax <= tol) & (ay <= tol);
            s[g] -= vivo[g];  // a running lane's mask is -1
            vivo[g] &= ~assente;
        }
        Vl algum = vivo[0];
        for (int g = 1; g < G; ++g)
            algum |= vivo[g];
        if (!AlgumLigado(algum))
            break;
    }
    for (int g = 0; g < G; ++g)
        for (int e = 0; e < E; ++e)
            ss[g * E + e] = s[g][e];
}
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic pop
#endif

template <class Vd, int G>
[[gnu::always_inline]] inline void Coluna(double x, const double* ys, int linhas, int n,
                                          const InversaoNewton* inversao, int* passos)
{
    constexpr int L = G * sizeof(Vd) / sizeof(double);
    constexpr int kFila = 256;
    int j = 0;
    while (j < linhas) {
        int filaJ[kFila];
        alignas(64) double filaX[kFila], filaY[kFila];
        long long ss[L];
        int quantos = 0;
        for (; j < linhas && quantos < kFila; ++j) {
            Complexo inicio{x, ys[j]};
            if (inversao && !InicioInvertido(*inversao, x, ys[j], inicio)) {
                passos[j] = 0;
                continue;
            }
            filaJ[quantos] = j;
            filaX[quantos] = inicio.re;
            filaY[quantos++] = inicio.im;
        }
        for (int k = 0; k < quantos; k += L) {
            Bloco<Vd, G>(filaX + k, filaY + k, quantos - k, n, ss);
            for (int e = 0; e < L && k + e < quantos; ++e)
                passos[filaJ[k + e]] = static_cast<int>(ss[e]);
        }
    }
}

void ColunaSse2(double x, const double* ys, int linhas, int n, const InversaoNewton* inversao,
                int* passos)
{
    Coluna<V2d, 4>(x, ys, linhas, n, inversao, passos);
}

#ifdef LUMERINA_X86
[[gnu::target("avx2")]] void ColunaAvx2(double x, const double* ys, int linhas, int n,
                                        const InversaoNewton* inversao, int* passos)
{
    Coluna<V4d, 3>(x, ys, linhas, n, inversao, passos);
}
#endif

}  // namespace

void ColunaNewton(double x, const double* ys, int linhas, int n, const InversaoNewton* inversao,
                  int* passos, InstrucoesVectoriais instrucoes)
{
#ifdef LUMERINA_X86
    if (instrucoes == InstrucoesVectoriais::Avx2)
        return ColunaAvx2(x, ys, linhas, n, inversao, passos);
#endif
    (void)instrucoes;
    ColunaSse2(x, ys, linhas, n, inversao, passos);
}

void ColunaNewton(double x, const double* ys, int linhas, int n, const InversaoNewton* inversao,
                  int* passos)
{
    ColunaNewton(x, ys, linhas, n, inversao, passos, MelhoresInstrucoes());
}

TabelaNewton TabelaDaCor(CorNewton cor)
{
    using enum CorNewton;
    switch (cor) {
    case Azul: case Azul1: case Azul2: return TabelaNewton::Azul;
    case Fogo: case Fogo1: case Fogo2: return TabelaNewton::Fogo;
    case Vermelho: case Vermelho1: case Vermelho2: return TabelaNewton::Vermelho;
    case Multicor: case Multicolor1: case Multicolor2: return TabelaNewton::Multicor;
    case Roxo: case Roxo1: case Roxo2: return TabelaNewton::Roxo;
    case Cor1: case Cor2: case Cor3: case Cor4: case Cor5: return TabelaNewton::Nenhuma;
    }
    return TabelaNewton::Nenhuma;
}

void PreencherTabelaNewton(TabelaNewton tabela, EsquemaCores& esquema)
{
    switch (tabela) {
    case TabelaNewton::Nenhuma: return;
    case TabelaNewton::Azul: return PreencherAzul(esquema);
    case TabelaNewton::Fogo: return PreencherFogo(esquema);
    case TabelaNewton::Vermelho: return PreencherVermelho(esquema);
    case TabelaNewton::Multicor: return PreencherMulticor(esquema);
    case TabelaNewton::Roxo: return PreencherRoxo(esquema);
    }
}

Cor CorDosPassos(CorNewton cor, int s, const EsquemaCores& esquema)
{
    using enum CorNewton;
    switch (cor) {
    case Fogo: case Azul: case Vermelho: case Multicor: case Roxo:
        return CorEntrada(esquema, s % 255);
    case Cor1: return CorRGB(30 * s % 255, 10 * s % 255, 50 * s % 255);
    case Cor2: return CorRGB(20 * s % 255, 20 * s % 255, 20 * s % 255);
    case Cor3: return CorRGB(100 * s % 255, 150 * s % 255, 200 * s % 255);
    case Cor4: return CorRGB(50 * s % 255, 100 * s % 255, 150 * s % 255);
    case Cor5: return Paleta16[s % 16];
    case Fogo1: case Azul1: case Vermelho1: case Roxo1: case Multicolor1:
        return CorEntrada(esquema, (s + 20) % 255);
    case Fogo2: case Azul2: case Vermelho2: case Roxo2: case Multicolor2:
        return CorEntrada(esquema, (s + 40) % 255);
    }
    return 0;
}

}  // namespace lumerina
