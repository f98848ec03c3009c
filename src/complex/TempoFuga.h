#pragma once
// Escape time of the Mandelbrot family z <- z^d + c and z <- conj(z)^d + c, d = 2, 3, 4,
// one picture column at a time.
//
// Column i and row counter j (counted from the bottom) stand for the point
//     cx = xmin + i·(xmax − xmin)/(W − 1),   cy = ymin + j·(ymax − ymin)/(H − 1);
// the page's loops run i = 0..W and j = 0..H inclusive while the steps divide by W − 1 and
// H − 1, and the top limit is held in single precision: both quirks are kept on purpose.
// From z = 0 and n = 0 the iteration is
//     while zx² + zy² < 4 and n < N: step; n = n + 1
// and n is the pixel's escape count (n == N: the point stayed inside).

namespace lumerina {

enum class VarianteMandel { Normal, Cubo, Quarta, Conj, ConjCubo, ConjQuarta };

struct VistaMundo {
    double xmin, xmax, ymin;
    float ymax;  // single precision on purpose; widened to double for the arithmetic
    double W;    // picture width in pixels (floating)
    int H;       // picture height in pixels
};

// The point of column i and of row counter j, exactly as the kernel computes them.
double ColunaX(const VistaMundo& vista, int i);
double LinhaY(const VistaMundo& vista, int j);

// Escape counts of column i: contagens[j] for j = 0..H inclusive (H + 1 values). They are the
// plain loop's counts, pixel for pixel: the points run side by side in vector lanes, and for
// z² + c the points of the main cardioid and of the period-2 bulb, which never escape, get N
// without iterating.
void ColunaMandelbrot(VarianteMandel v, const VistaMundo& vista, int i, int N, int* contagens);

// The column loop comes in two builds that give the same counts: two-lane SSE2 (every x86-64
// processor) and four-lane AVX2. ColunaMandelbrot takes the best the processor offers; tests
// and benchmarks may name one (it must be available).
enum class InstrucoesVectoriais { Sse2, Avx2 };
InstrucoesVectoriais MelhoresInstrucoes();
void ColunaMandelbrot(VarianteMandel v, const VistaMundo& vista, int i, int N, int* contagens,
                      InstrucoesVectoriais instrucoes);

}  // namespace lumerina
