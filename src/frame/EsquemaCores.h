#pragma once
// Colour tables of the escape-time pictures and the colourings of the Mandelbrot page.
//
// An escape count n becomes a colour in one of three ways: through a 256-entry table
// (EsquemaCores, entry 0 being the interior colour), through the standard 16-colour palette
// (n AND 15), or through two user colours. No Qt here: a colour is a 0xFFRRGGBB word, the
// layout of QRgb and QImage::Format_RGB32, so the page can store it straight into a scan line.

#include <cstdint>

namespace lumerina {

// 256 entries by channel (all reds, then all greens, then all blues), each a whole number
// 0..255 held as a double.
struct EsquemaCores {
    double vermelho[256], verde[256], azul[256];
};

// Each fills all 768 values from a constant table.
void PreencherVermelho(EsquemaCores& esquema);  // black interior, colour cycle from violet
void PreencherAzul(EsquemaCores& esquema);      // black, blue, white, cyan, blue, black
void PreencherFogo(EsquemaCores& esquema);      // black interior, grey, red, yellow, white, back
void PreencherMulticor(EsquemaCores& esquema);  // green interior, bands of strong colours
void PreencherRoxo(EsquemaCores& esquema);      // purple interior, violet to dark red

using Cor = std::uint32_t;  // 0xFFRRGGBB
// Not a colour (its alpha is 0): a pixel that is not drawn.
constexpr Cor kSemCor = 0;

// Channels outside 0..255 are clamped.
Cor CorRGB(int r, int g, int b);
// RGB of entry `indice` (0..255), each channel rounded to the nearest integer, ties to even.
Cor CorEntrada(const EsquemaCores& esquema, int indice);

// The standard 16-colour palette: black, blue, green, cyan, red, magenta, brown, light grey,
// grey and the bright forms of blue … white.
extern const Cor Paleta16[16];

enum class Coloracao {
    Paleta,       // table entry n; the interior takes entry 0
    LinhasTipo1,  // interior colour; outside RGB(i mod 255, j mod 255, (i + j) mod 255)
    LinhasTipo2,  // Paleta16[n AND 15] for every pixel, the interior included
    SemLinhas,    // interior colour; outside the exterior colour
};

struct OpcoesCor {
    Coloracao modo;
    const EsquemaCores* paleta;  // used by Coloracao::Paleta only
    Cor interior;
    Cor exterior;
};

// Colour of the pixel of column counter i and row counter j whose point needed n iterations
// under the limit N (interior: n == N). With a palette, n must be below 256 unless interior.
Cor CorMandelbrot(const OpcoesCor& opcoes, int n, int N, int i, int j);

// The same for a whole column: cores[j] = CorMandelbrot(opcoes, contagens[j], N, i, j) for
// j = 0..H inclusive (the shape ColunaMandelbrot fills). Several times faster than a call per
// pixel: the mode is tested once and each table entry is rounded once per column.
void CoresColuna(const OpcoesCor& opcoes, const int* contagens, int N, int i, int H, Cor* cores);

}  // namespace lumerina
