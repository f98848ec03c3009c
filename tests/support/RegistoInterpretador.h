#pragma once
// The interpreter's record: a fixed set of about 20 000 expressions, each evaluated twice by
// one protocol, with the outcome written as one short line. tools/RegistarInterpretador.cpp
// wrote tests/interp/dados/interpretador.txt with this code; TestRegistoInterpretador checks
// that the interpreter still gives every recorded value and error.
//
// The generated expressions are not stored: they come back from a fixed seed, by integer
// arithmetic on the raw output of std::mt19937, whose sequence the C++ standard fixes.
// Only the literal ones (the fuzzer's corpus) are stored, escaped.

#include "interp/clsEquation.h"

#include <charconv>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace lumerina::registo {

// ---------------------------------------------------------------------------------------------
// Generating expressions

class Gerador {
public:
    explicit Gerador(std::uint32_t semente) : motor_(semente) {}

    // 0 .. n-1, by a multiply-shift on 32 raw bits (no distribution object: those are not
    // the same on every standard library).
    unsigned Abaixo(unsigned n)
    {
        return static_cast<unsigned>((static_cast<std::uint64_t>(motor_()) * n) >> 32);
    }
    bool Moeda(unsigned em) { return Abaixo(em) == 0; }   // true once in `em`

    template <std::size_t N>
    std::string_view Um(const std::string_view (&lista)[N])
    {
        return lista[Abaixo(N)];
    }

    std::string Numero()
    {
        switch (Abaixo(8)) {
        case 0: return std::to_string(Abaixo(10));
        case 1: return std::to_string(Abaixo(100000));
        case 2: return Cola({std::to_string(Abaixo(1000)), ".", std::to_string(Abaixo(1000))});
        case 3: return std::to_string(Abaixo(100)).insert(0, 1, '.');
        case 4: return std::to_string(Abaixo(4)) + ".5";   // ties of "\", "%", mod
        case 5: return std::to_string(2147483640u + Abaixo(16));   // 32-bit edges
        case 6: return std::string(1 + Abaixo(330), '9');          // up to past DBL_MAX
        default: return std::to_string(Abaixo(3));
        }
    }

    // Well formed (mostly) expressions, by a small grammar; `fundo` limits the nesting.
    std::string Formula(int fundo)
    {
        static constexpr std::string_view kUmArgumento[] = {
            "abs(", "sin(", "sen(", "cos(", "tg(", "tan(", "sec(", "cosec(", "cotan(", "cotg(",
            "arctg(", "atn(", "arcsin(", "arcsen(", "arccos(", "arcsec(", "arccosec(",
            "arccotg(", "arccotan(", "sinh(", "senh(", "cosh(", "tgh(", "tanh(", "sech(",
            "cosech(", "cotgh(", "cotanh(", "arcsinh(", "arcsenh(", "arccosh(", "arctgh(",
            "arctanh(", "arcsech(", "arccosech(", "arccotgh(", "arccotanh(", "exp(", "log(",
            "ln(", "log10(", "log2(", "sqr(", "int(", "fix(", "mant(", "sgn(", "graus(",
            "rad(", "rnd(", "rand(", "Sin(", "EXP(", "foo(", "x("};
        static constexpr std::string_view kDoisArgumentos[] = {
            "logn(", "random(", "min(", "max(", "mod(", "MAX("};
        static constexpr std::string_view kNomes[] = {"x", "y", "pi", "e", "rnd", "X", "Pi"};
        static constexpr std::string_view kNomesRaros[] = {"z", "x1", "_", "Y"};
        static constexpr std::string_view kOperadores[] = {
            "+", "-", "*", "/", "\\", "^", "%", "+", "-", "*", "/", "^"};
        if (fundo <= 0 || Moeda(3))
            return Moeda(2) ? Numero() : std::string(Moeda(40) ? Um(kNomesRaros) : Um(kNomes));
        switch (Abaixo(10)) {
        case 0: return Cola({"(", Formula(fundo - 1), ")"});
        case 1: return Cola({"-", Formula(fundo - 1)});
        case 2: return Cola({Um(kUmArgumento), Formula(fundo - 1), ")"});
        case 3:
            return Cola({Um(kDoisArgumentos), Formula(fundo - 1), ",", Formula(fundo - 1), ")"});
        case 4: return Cola({Numero(), Formula(fundo - 1)});   // 2x, 2(x+1), 2sin(x)
        default: return Cola({Formula(fundo - 1), Um(kOperadores), Formula(fundo - 1)});
        }
    }

    // What a fuzzer feeds: pieces of the language in any order, blanks, odd bytes.
    std::string Sopa()
    {
        static constexpr std::string_view kPecas[] = {
            "0", "1", "2", "3", "7", "9", ".", ".5", "1.2.3", "x", "y", "pi", "e", "rnd", "X",
            "ab", "+", "-", "-", "*", "/", "\\", "^", "%", "(", "(", ")", ")", ",", " ",
            "sin(", "logn(", "min(", "mod(", "rnd(", "random(", "foo(", "sqr(", "exp(", "int(",
            "\t", "\xC3\x81", "\xC3\xA7", "\x01", "\xFF", "_", "E", "SEN(", "()", "--", "^-"};
        const unsigned n = 1 + Abaixo(24);
        std::string r;
        for (unsigned i = 0; i < n; ++i)
            r += Um(kPecas);
        if (!Moeda(4)) {   // mostly balanced, or the soup is nearly all error 1100
            int d = 0;
            for (const char c : r)
                d += c == '(' ? 1 : (c == ')' ? -1 : 0);
            if (d > 0)
                r += std::string(static_cast<std::size_t>(d), ')');
            else if (d < 0)
                r.insert(0, static_cast<std::size_t>(-d), '(');
        }
        return r;
    }

    // Long texts: the interpreter's cost and its deep cases (16-bit priorities, long names).
    std::string Longa(unsigned k)
    {
        const unsigned n = 50 + Abaixo(4000);
        std::string r;
        switch (k % 10) {
        case 0:   // a flat sum
            for (unsigned i = 0; i < n; ++i)
                r += i ? "+1" : "1";
            break;
        case 1:   // deep nesting, around the 16-bit limit of the priorities (4681 levels)
        {
            const unsigned d = 4600 + Abaixo(160);
            r = std::string(d, '(') + "x" + std::string(d - Abaixo(2), ')');
            break;
        }
        case 2:   // a long chain of mixed operators
            r = Numero();
            for (unsigned i = 0; i < n / 4; ++i)
                r += Cola({Um(kCadeia), Numero()});
            break;
        case 3:   // many unary minus signs, or a broken tail
            r = std::string(n, '-') + (Moeda(2) ? "3" : "3*");
            break;
        case 4:   // a long unknown name, or a long unknown function
            r = Cola({"1+", std::string(n, 'a'), Moeda(2) ? "" : "(1)"});
            break;
        case 5:   // a long malformed number
            r = Cola({"2*", std::string(n, '1'), ".", std::string(Abaixo(5), '.'), "5"});
            break;
        case 6:   // nested calls
            for (unsigned i = 0; i < n / 8; ++i)
                r += Moeda(2) ? "sin(" : "min(1,";
            r += Cola({"x", std::string(n / 8, ')')});
            break;
        default:   // a long formula from the grammar
            while (r.size() < n)
                r += Cola({r.empty() ? "" : "+", Formula(8)});
            break;
        }
        return r;
    }

private:
    // Pieces are produced left to right: the order of the generator's draws is fixed.
    static std::string Cola(std::initializer_list<std::string_view> pecas)
    {
        std::string r;
        for (const std::string_view p : pecas)
            r += p;
        return r;
    }

    static constexpr std::string_view kCadeia[] = {"+", "-", "*", "/", "^", "%", "\\", "-x*",
                                                   "+sin(", ")*(", ",", "--"};
    std::mt19937 motor_;
};

// The generated part of the record: 9000 formulas, 10000 soups, 200 long texts, in this order.
inline std::vector<std::string> ExpressoesGeradas()
{
    Gerador g(20261123);
    std::vector<std::string> r;
    r.reserve(19200);
    for (int i = 0; i < 9000; ++i)
        r.push_back(g.Formula(1 + static_cast<int>(g.Abaixo(6))));
    for (int i = 0; i < 10000; ++i)
        r.push_back(g.Sopa());
    for (unsigned i = 0; i < 200; ++i)
        r.push_back(g.Longa(i));
    return r;
}

// ---------------------------------------------------------------------------------------------
// Evaluating: the protocol and the outcome's line

// A line of the record for one evaluation:
//   a value:                 its shortest exact decimal form ("0.1", "-0", "1e+300");
//   an error:                "!" and its number, then for 1101, 1102 and 1104 a blank and the
//                            text the message quotes (everything after its ": "), of which
//                            a message shows at most 40 characters and "…";
//   a clock-fed random:      "~" (the clock was read: "rnd(", "rand(" or "random(" ran).
inline std::string Citacao(std::string_view texto)
{
    std::size_t caracteres = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if ((static_cast<unsigned char>(texto[i]) & 0xC0) != 0x80 && ++caracteres > 40)
            return std::string(texto.substr(0, i)) + "\u2026";
    }
    return std::string(texto);
}

inline std::string Desfecho(clsEquation& eq)
{
    try {
        const double v = eq.Value();
        char texto[64];
        const auto fim = std::to_chars(texto, texto + sizeof texto, v).ptr;
        return std::string(texto, fim);
    } catch (const ErroInterpretador& erro) {
        std::string r = "!" + std::to_string(erro.numero());
        const std::string_view mensagem = erro.what();
        const auto doisPontos = mensagem.find(": ");
        if (doisPontos != std::string_view::npos)
            r += " " + Citacao(mensagem.substr(doisPontos + 2));
        return r;
    }
}

inline int& LeiturasDoRelogio()
{
    static int leituras = 0;
    return leituras;
}

inline std::uint64_t RelogioContado()
{
    ++LeiturasDoRelogio();
    return 1000;
}

// Whether the letters r, n, d stand in this order in the text, whatever lies between (the
// interpreter skips odd characters inside a name). Without them there is no "rnd", "rand" or
// "random", and the generator cannot matter.
inline bool PodeSerAleatoria(std::string_view texto)
{
    std::string_view falta = "rnd";
    for (const char c : texto)
        if (!falta.empty() && (c | 0x20) == falta.front())
            falta.remove_prefix(1);
    return falta.empty();
}

// Both evaluations of the protocol: x = 0.5 and y = -3; then, on the kept tokens, x = 2 and y
// unbound. The generator starts from the same seed for each, so "rnd" is reproducible.
inline std::pair<std::string, std::string> Avaliar(std::string_view texto)
{
    DefinirRelogioAleatorio(RelogioContado);
    const bool aleatoria = PodeSerAleatoria(texto);
    clsEquation eq;
    eq.Expression(texto);
    eq.SetVariable("x", 0.5);
    eq.SetVariable("y", -3);
    auto uma = [&] {
        if (aleatoria)
            SemearAleatorio(4242);
        LeiturasDoRelogio() = 0;
        std::string r = Desfecho(eq);
        return LeiturasDoRelogio() ? std::string("~") : r;
    };
    std::pair<std::string, std::string> r;
    r.first = uma();
    eq.SetVariable("x", 2);
    eq.RemoveVariable("y");
    r.second = uma();
    DefinirRelogioAleatorio(nullptr);
    return r;
}

// ---------------------------------------------------------------------------------------------
// Lines of the file: "g<TAB>outcome<TAB>outcome" for the next generated expression,
// "t<TAB>escaped text<TAB>outcome<TAB>outcome" for a literal one. A second outcome equal to
// the first is written "=". Bytes below 0x20, above 0x7E
// and "\" are written \xNN.

inline std::string Segundo(const std::string& primeiro, const std::string& segundo)
{
    return segundo == primeiro ? std::string("=") : segundo;
}

inline std::string Escapar(std::string_view texto)
{
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string r;
    for (const char c : texto) {
        const auto b = static_cast<unsigned char>(c);
        if (b < 0x20 || b > 0x7E || b == '\\') {
            r += "\\x";
            r += kHex[b >> 4];
            r += kHex[b & 15];
        } else {
            r += c;
        }
    }
    return r;
}

inline std::string Desescapar(std::string_view texto)
{
    auto hex = [](char c) { return c <= '9' ? c - '0' : c - 'A' + 10; };
    std::string r;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] == '\\' && i + 3 < texto.size() && texto[i + 1] == 'x') {
            r += static_cast<char>(hex(texto[i + 2]) * 16 + hex(texto[i + 3]));
            i += 3;
        } else {
            r += texto[i];
        }
    }
    return r;
}

}  // namespace lumerina::registo
