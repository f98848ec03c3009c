#pragma once
// L-systems: an axiom rewritten with one rule for the symbol F, then read by a turtle.
//
// Rewriting. One pass replaces every "F" (upper case only) by the rule, left to right, and
// copies every other character. After n passes each F of the axiom has become E(n), where
// E(0) = "F" and E(k) = the rule with each of its F's replaced by E(k − 1). With L the length of
// the axiom, a its number of F's, r the length of the rule and f its number of F's:
//     F's after n passes      a·fⁿ
//     length after n passes   L + a·(r − 1)·(1 + f + … + fⁿ⁻¹)
// so the length is known before anything is built, and a result that would not fit is refused
// without touching memory. Strings are UTF-16, as the text boxes hold them: a length counts the
// characters the user sees in the box.
//
// The turtle. Position x, y in 16-bit integers, step dx, dy in doubles:
//     F   segment (x, y) -> (x + dx, y + dy); x, y take the end rounded to the nearest integer,
//         ties to even (a coordinate outside −32768…32767 keeps its old value); then the step is
//         multiplied by the reduction
//     +   dx, dy rotated by θ = 2·AngPos·π/360, π = 3.14159265358979:
//         dx' = dx·cos θ − dy·sin θ, dy' = dx·sin θ + dy·cos θ
//     -   the same with AngNeg (its own signed angle, not −AngPos)
//     [   push x, y, dx, dy; the stack holds 3000 states, a push beyond that is lost
//     ]   pop; nothing happens on an empty stack
//     anything else: nothing.
// y grows downwards on the picture, so a positive angle turns clockwise on the screen.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumerina {

// The longest string the page builds (characters). Beyond it the rewriting is refused.
inline constexpr std::uint64_t kComprimentoMaximoLSistema = 20'000'000;

// Length of `axioma` after `passes` rewrites of every F by `regra`, saturating at UINT64_MAX.
// Negative passes count as none.
std::uint64_t ComprimentoReescrito(std::u16string_view axioma, std::u16string_view regra,
                                   std::int64_t passes);

// The rewritten string, built at its final size in one go; same result as `passes` one-pass
// rewrites. The caller checks the length first (ComprimentoReescrito): here it must fit memory.
std::u16string Reescrever(std::u16string_view axioma, std::u16string_view regra,
                          std::int64_t passes);

// Leading and trailing blanks (spaces only) removed.
std::u16string_view AparaEspacos(std::u16string_view texto);

// A field's text as a number, or nothing when the text is not one: blanks around, a sign,
// digits with at most one ".", an optional exponent; the value must be finite. The typographic
// minus "−" stands for "-".
std::optional<double> LerNumeroEstrito(std::u16string_view texto);

// A value as a 16-bit integer, rounded to the nearest, ties to even; nothing when the
// rounded value lies outside −32768…32767 (or is not a number).
std::optional<std::int16_t> ArredondarInteiro16(double valor);

// One F's line: from the turtle's integer position to the unrounded end.
struct Segmento {
    double x1, y1, x2, y2;
};

struct EstadoTartaruga {
    std::int16_t x = 0, y = 0;
    double dx = 0, dy = 0;
};

// The values a drawing reads from the fields. A field that is not a number is `nullopt`:
// the statement that uses it is skipped (no reduction, no turn, the start value kept).
struct CamposTartaruga {
    std::optional<double> x, y, inicio;
    std::optional<double> angPos, angNeg, reducao;
};

class Tartaruga {
public:
    static constexpr int kCapacidadePilha = 3000;

    // Start of a drawing: x, y from their fields (rounded to 16 bits), dx = 0, dy = Início, and
    // the angles and reduction for the whole string. A field that is not a number, or a start
    // outside the 16-bit range, leaves that part of the state as the last drawing left it.
    // The stack is not emptied: it belongs to the page, so a "[" left open by one drawing is
    // closed by the first "]" of the next.
    void Partida(const CamposTartaruga& campos);

    // Reads `programa` from `posicao`, writing a segment per F into `saida`, and stops after
    // the end or after `capacidade` segments. Returns the number written; `posicao` is left on
    // the next symbol to read.
    std::size_t Percorrer(std::u16string_view programa, std::size_t& posicao, Segmento* saida,
                          std::size_t capacidade);

    const EstadoTartaruga& Estado() const { return estado_; }
    // Open "[" not yet closed, those lost beyond the capacity included.
    int Profundidade() const { return profundidade_; }

private:
    struct Rotacao {
        bool activa = false;
        double cosseno = 1, seno = 0;
    };
    static Rotacao RotacaoDe(std::optional<double> graus);

    EstadoTartaruga estado_;
    Rotacao mais_, menos_;
    std::optional<double> reducao_;
    std::vector<EstadoTartaruga> pilha_ = std::vector<EstadoTartaruga>(kCapacidadePilha);
    int profundidade_ = 0;
};

}  // namespace lumerina
