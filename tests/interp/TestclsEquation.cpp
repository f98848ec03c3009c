#include "interp/clsEquation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace lumerina {
namespace {

const double kPi = 3.14159265358979;

double Avaliar(const std::string& texto, double x = 0)
{
    clsEquation eq;
    eq.Expression(texto);
    eq.SetVariable("x", x);
    eq.Evaluate();
    return eq.Value();
}

// Near in the relative sense, with a floor for results close to 0.
::testing::AssertionResult Perto(double obtido, double esperado)
{
    if (std::fabs(obtido - esperado) <= 1e-12 * std::max(1.0, std::fabs(esperado)))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << obtido << " != " << esperado;
}

TEST(clsEquation, ValoresExemplares)
{
    const struct {
        const char* texto;
        double x;
        double esperado;
    } casos[] = {
        {"2x", 3, 6},
        {"2(x+1)", 3, 8},
        {"min(3,5)", 0, 3},
        {"3.5", 0, 3.5},
        {"-2^2", 0, -4},
        {"2^3^2", 0, 64},
        {"10-4-3", 0, 3},
        {"7%3", 0, 1},
        {"-7%3", 0, -1},
        {"7.5\\2", 0, 4},    // 7.5 rounds to 8
        {"6.5\\1", 0, 6},    // ties go to the even neighbour
        {"-7\\2", 0, -3},    // truncated toward zero
        {"mod(7,3)", 0, 1},
        {"mod(-7,3)", 0, -1},
        {"mod(7,-3)", 0, 1},
        {"mod(6.5,4)", 0, 2},
        {"graus(pi)", 0, 180.00000000005537},
        {"rad(180)", 0, 3.1415926535909997},
        {"e", 0, 2.718281828},
        {"pi", 0, 3.14159265358979},
        {"SIN(X)", 2, std::sin(2.0)},
        {"si n(x)", 2, std::sin(2.0)},
        {"2 3", 0, 23},
        {"1+7%3*2", 0, 2},       // % binds more weakly than *
        {"2*-3", 0, -6},
        {"2--3", 0, 5},
        {"-x^2", 3, -9},
        {"2*-3^2", 0, -18},
        {"8/2/2", 0, 2},
        {"2^(-1)", 0, 0.5},
        {"(2+3)*(4-1)", 0, 15},
        {"((x))", 7, 7},
        {"min(max(1,2),3)", 0, 2},
        {"max(3-4,-2*3)", 0, -1},
        {"2sin(x)", 0.5, 2 * std::sin(0.5)},
        {"sen(x)*2+x^3-1", 0.5, std::sin(0.5) * 2 + 0.125 - 1},
        {"3x2", 0, 21},          // digits after a letter continue the name: 3*x2
        {"0^0", 0, 1},
        {"5.", 0, 5},
        {".5", 0, 0.5},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.texto);
        clsEquation eq;
        eq.Expression(c.texto);
        eq.SetVariable("x", c.x);
        eq.SetVariable("x2", 7);
        EXPECT_EQ(eq.Value(), c.esperado);
    }
}

struct Funcao1 {
    const char* nomes;   // synonyms, separated by blanks
    std::function<double(double)> f;
    std::vector<double> pontos;
};

TEST(clsEquation, FuncoesDeUmArgumento)
{
    const Funcao1 tabela[] = {
        {"abs", [](double x) { return std::fabs(x); }, {-2.5, 0, 3}},
        {"sin sen", [](double x) { return std::sin(x); }, {-1, 0.5, 3}},
        {"cos", [](double x) { return std::cos(x); }, {-1, 0, 3}},
        {"tg tan", [](double x) { return std::tan(x); }, {-1, 0, 1.2}},
        {"sec", [](double x) { return 1 / std::cos(x); }, {-1, 0, 3}},
        {"cosec", [](double x) { return 1 / std::sin(x); }, {-1, 0.5, 3}},
        {"cotan cotg", [](double x) { return 1 / std::tan(x); }, {-1, 0.5, 3}},
        {"arctg atn", [](double x) { return std::atan(x); }, {-5, 0, 0.5}},
        {"arcsin arcsen", [](double x) { return std::asin(x); }, {-0.9, 0, 0.5}},
        {"arccos", [](double x) { return std::acos(x); }, {-0.9, 0, 0.5}},
        {"arcsec", [](double x) { return std::acos(1 / x); }, {-3, 1, 2}},
        {"arccosec", [](double x) { return std::asin(1 / x); }, {-3, 1, 2}},
        {"arccotg arccotan", [](double x) { return kPi / 2 - std::atan(x); }, {-2, 0, 4}},
        {"sinh senh", [](double x) { return std::sinh(x); }, {-2, 0.5, 3}},
        {"cosh", [](double x) { return std::cosh(x); }, {-2, 0, 3}},
        {"tgh tanh", [](double x) { return std::tanh(x); }, {-2, 0, 3}},
        {"sech", [](double x) { return 1 / std::cosh(x); }, {-2, 0, 3}},
        {"cosech", [](double x) { return 1 / std::sinh(x); }, {-2, 0.5, 3}},
        {"cotgh cotanh", [](double x) { return 1 / std::tanh(x); }, {-2, 0.5, 3}},
        {"arcsinh arcsenh", [](double x) { return std::asinh(x); }, {-2, 0, 3}},
        {"arccosh", [](double x) { return std::acosh(x); }, {1, 2, 10}},
        {"arctgh arctanh", [](double x) { return std::atanh(x); }, {-0.5, 0, 0.9}},
        {"arcsech", [](double x) { return std::acosh(1 / x); }, {0.2, 0.5, 1}},
        {"arccosech", [](double x) { return std::asinh(1 / x); }, {-2, 0.5, 3}},
        {"arccotgh arccotanh", [](double x) { return std::atanh(1 / x); }, {-3, 1.5, 4}},
        {"exp", [](double x) { return std::exp(x); }, {-2, 0, 3}},
        {"log ln", [](double x) { return std::log(x); }, {0.5, 1, 10}},
        {"log10", [](double x) { return std::log10(x); }, {0.5, 1, 1000}},
        {"log2", [](double x) { return std::log2(x); }, {0.5, 1, 1024}},
        {"sqr", [](double x) { return std::sqrt(x); }, {0, 2, 9}},
        {"int", [](double x) { return std::floor(x); }, {-2.5, -2, 2.7}},
        {"fix", [](double x) { return std::trunc(x); }, {-2.5, -2, 2.7}},
        {"mant", [](double x) { return x - std::floor(x); }, {-2.25, 0, 3.75}},
        {"sgn", [](double x) { return double((x > 0) - (x < 0)); }, {-2.5, 0, 0.1}},
        {"graus", [](double x) { return x * 180 / M_PI; }, {-1, 0, 2}},
        {"rad", [](double x) { return x * M_PI / 180; }, {-90, 0, 45}},
    };
    for (const Funcao1& linha : tabela) {
        std::istringstream nomes(linha.nomes);
        for (std::string nome; nomes >> nome;) {
            for (const double x : linha.pontos) {
                SCOPED_TRACE(nome + "(" + std::to_string(x) + ")");
                EXPECT_TRUE(Perto(Avaliar(nome + "(x)", x), linha.f(x)));
            }
        }
    }
}

TEST(clsEquation, FuncoesDeDoisArgumentos)
{
    const struct {
        const char* texto;
        double esperado;
    } casos[] = {
        {"logn(8,2)", 3},       {"logn(0.01,10)", -2},   {"min(-1,2)", -1},
        {"max(-1,2)", 2},       {"max(2,-1)", 2},        {"min((1),2+3)", 1},
        {"mod(2147483647,10)", 7},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.texto);
        EXPECT_TRUE(Perto(Avaliar(c.texto), c.esperado));
    }
}

TEST(clsEquation, Erros)
{
    const struct {
        const char* texto;
        int numero;
        const char* descricao;
    } casos[] = {
        {"sin(x", 1100, "Número de parênteses incorrecto."},
        {"x)", 1100, "Número de parênteses incorrecto."},
        {"foo(1)", 1101, "Função não definida: foo()"},
        {"x(2)", 1101, "Função não definida: x()"},
        {"foo()", 1101, "Função não definida: foo()"},
        {"y+1", 1102, "Variável não definida: y"},
        {"foo(1)+y", 1102, "Variável não definida: y"},   // names are bound before calls
        {"3*", 1104, "Argumento inválido na expressão: *"},
        {"*3", 1104, "Argumento inválido na expressão: *"},
        {"-", 1104, "Argumento inválido na expressão: -"},
        {"2+", 1104, "Argumento inválido na expressão: +"},
        {"3+*4", 1104, "Argumento inválido na expressão: *"},
        {"2^-3", 1104, "Argumento inválido na expressão: ^"},
        {"--3", 1104, "Argumento inválido na expressão: -"},
        {"(3-)+1", 1104, "Argumento inválido na expressão: -"},
        {"min(3-,5)", 1104, "Argumento inválido na expressão: -"},
        {"sin()", 1104, "Argumento inválido na expressão: sin()"},
        {"sin(1,2)", 1104, "Argumento inválido na expressão: sin()"},
        {"min(1)", 1104, "Argumento inválido na expressão: min()"},
        {"min(1,2,3)", 1104, "Argumento inválido na expressão: min()"},
        {"min(1,,2)", 1104, "Argumento inválido na expressão: min()"},
        {"rnd()", 1104, "Argumento inválido na expressão: rnd()"},
        {"()", 1104, "Argumento inválido na expressão: ()"},
        {"(1,2)", 1104, "Argumento inválido na expressão: ()"},
        {"(1)(2)", 1104, "Argumento inválido na expressão: 2"},
        {"3,4", 1104, "Argumento inválido na expressão: ,"},
        {")(", 1104, "Argumento inválido na expressão: )"},
        {"1.2.3", 1104, "Argumento inválido na expressão: 1,2,3"},
        {"1/0", 11, "Divisão por zero."},
        {"1/(x-x)", 11, "Divisão por zero."},
        {"5\\0.4", 11, "Divisão por zero."},
        {"7%0", 11, "Divisão por zero."},
        {"mod(1,0)", 11, "Divisão por zero."},
        {"cosec(0)", 11, "Divisão por zero."},
        {"arcsin(1)", 11, "Divisão por zero."},   // atn(x/√(1-x²)) at x = 1
        {"logn(2,1)", 11, "Divisão por zero."},
        {"exp(1000)", 6, "Excesso de capacidade."},
        {"tanh(1000)", 6, "Excesso de capacidade."},
        {"10^400", 6, "Excesso de capacidade."},
        {"10^308*10", 6, "Excesso de capacidade."},
        {"0^(-1)", 6, "Excesso de capacidade."},
        {"3000000000\\1", 6, "Excesso de capacidade."},
        {"mod(1,2147483647.5)", 6, "Excesso de capacidade."},
        {"(0-2147483648)\\(-1)", 6, "Excesso de capacidade."},
        {"log(0)", 5, "Argumento ou chamada de função inválida."},
        {"ln(-1)", 5, "Argumento ou chamada de função inválida."},
        {"sqr(-1)", 5, "Argumento ou chamada de função inválida."},
        {"arcsin(2)", 5, "Argumento ou chamada de função inválida."},
        {"arcsec(0.5)", 5, "Argumento ou chamada de função inválida."},
        {"(-8)^(1/3)", 5, "Argumento ou chamada de função inválida."},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.texto);
        clsEquation eq;
        eq.Expression(c.texto);
        eq.SetVariable("x", 0);
        try {
            eq.Evaluate();
            ADD_FAILURE() << "no error, value " << eq.Value();
        } catch (const ErroInterpretador& erro) {
            EXPECT_EQ(erro.numero(), c.numero);
            EXPECT_STREQ(erro.what(), c.descricao);
            EXPECT_EQ(erro.origem(), "Interpretador");
        }
    }
}

TEST(clsEquation, PrioridadesDe16Bits)
{
    // "(" at depth 4680 has priority 7*4680+7 = 32767; one level deeper no longer fits.
    const auto aninhada = [](int n) { return std::string(n, '(') + "1" + std::string(n, ')'); };
    EXPECT_EQ(Avaliar(aninhada(4681)), 1);
    try {
        Avaliar(aninhada(4682));
        ADD_FAILURE();
    } catch (const ErroInterpretador& erro) {
        EXPECT_EQ(erro.numero(), 6);
    }
}

std::string Repetir(std::string_view pedaco, int vezes)
{
    std::string r;
    for (int i = 0; i < vezes; ++i)
        r += pedaco;
    return r;
}

// As long as a field allows (32 767 characters): the value still comes from the maths.
TEST(clsEquation, ExpressoesDoTamanhoDeUmCampo)
{
    const struct {
        std::string texto;
        double esperado;
    } casos[] = {
        {"x" + Repetir("+1", 16383), 16383.5},                   // 32 767 characters
        {"1" + Repetir("-1+1", 8191), 1},
        {"x" + Repetir("*1", 16383), 0.5},
        {Repetir("1+", 8000) + "2*x" + Repetir("+1", 8000), 16001},  // "*" amid the sum
        {Repetir("abs(", 4000) + "-x" + std::string(4000, ')'), 0.5},
        {Repetir("min(9,", 3000) + "x" + std::string(3000, ')'), 0.5},
        {Repetir("(x-", 4000) + "1" + std::string(4000, ')'), 1},   // x-(x-1) = 1, 2000 times
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.texto.substr(0, 30));
        clsEquation eq;
        eq.Expression(c.texto);
        eq.SetVariable("x", 0.5);
        EXPECT_EQ(eq.Value(), c.esperado);
        eq.SetVariable("x", 0.5);   // again, on the kept tokens
        EXPECT_EQ(eq.Value(), c.esperado);
    }
}

// A message quotes at most 40 characters of the token, then "…"; characters, not bytes.
TEST(clsEquation, MensagensCitamNoMaximo40Caracteres)
{
    const std::string a40(40, 'a');
    const std::string cedilhas = Repetir("\u00e7", 40);
    const struct {
        std::string texto;
        int numero;
        std::string descricao;
    } casos[] = {
        {a40, 1102, "Variável não definida: " + a40},
        {a40 + "b", 1102, "Variável não definida: " + a40 + "\u2026"},
        {"1+" + std::string(32765, 'a'), 1102, "Variável não definida: " + a40 + "\u2026"},
        {std::string(38, 'f') + "(1)", 1101, "Função não definida: " + std::string(38, 'f') + "()"},
        {std::string(39, 'f') + "(1)", 1101,
         "Função não definida: " + std::string(39, 'f') + "(\u2026"},
        {"2*1" + Repetir(".1", 30), 1104, "Argumento inválido na expressão: 1" +
                                              Repetir(",1", 19) + ",\u2026"},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.texto.substr(0, 50));
        clsEquation eq;
        eq.Expression(c.texto);
        try {
            eq.Evaluate();
            ADD_FAILURE() << "no error, value " << eq.Value();
        } catch (const ErroInterpretador& erro) {
            EXPECT_EQ(erro.numero(), c.numero);
            EXPECT_EQ(erro.what(), c.descricao);
        }
    }
    // The caller's own name, asked for and not bound, is quoted the same way.
    try {
        clsEquation().GetVariable(Repetir("\u00c7", 41));
        ADD_FAILURE();
    } catch (const ErroInterpretador& erro) {
        EXPECT_EQ(erro.what(), "Variável não definida: " + cedilhas + "\u2026");
    }
}

TEST(clsEquation, NumerosForaDoAlcanceDeUmDouble)
{
    EXPECT_EQ(Avaliar("0." + std::string(400, '0') + "1"), 0);
    try {
        Avaliar("1" + std::string(400, '0'));
        ADD_FAILURE();
    } catch (const ErroInterpretador& erro) {
        EXPECT_EQ(erro.numero(), 6);
    }
}

TEST(clsEquation, EstadoDoValor)
{
    clsEquation eq;
    EXPECT_EQ(eq.Value(), 0);   // nothing to evaluate yet

    // Reading twice evaluates once: "rnd" keeps its value until something changes.
    eq.Expression("RND");
    EXPECT_EQ(eq.Expression(), "rnd");
    const double r = eq.Value();
    EXPECT_EQ(eq.Value(), r);
    eq.Switch(false);           // unchanged flag: still fresh
    EXPECT_EQ(eq.Value(), r);
    eq.Switch(true);
    EXPECT_NE(eq.Value(), r);

    // Variables survive a new expression, are matched without case, and can be removed.
    eq.SetVariable("X", 2);
    eq.Expression("1/(x-2)");
    EXPECT_THROW(eq.Value(), ErroInterpretador);
    EXPECT_THROW(eq.Value(), ErroInterpretador);   // stays stale: evaluates (and fails) again
    eq.SetVariable("x", 3);
    EXPECT_EQ(eq.Value(), 1);
    EXPECT_EQ(eq.GetVariable("x"), 3);
    eq.RemoveVariable("x");
    eq.RemoveVariable("nada");
    EXPECT_THROW(eq.Value(), ErroInterpretador);
    EXPECT_THROW(eq.GetVariable("x"), ErroInterpretador);
    eq.SetVariable("x", 1.5);
    eq.SetVariable("y", 0);
    EXPECT_EQ(eq.Value(), -2);
    eq.ClearVariables();
    EXPECT_THROW(eq.Value(), ErroInterpretador);

    // "pi" and "e" are constants even when bound as variables.
    eq.SetVariable("e", 5);
    eq.Expression("e");
    EXPECT_EQ(eq.Value(), 2.718281828);
}

TEST(clsEquation, ValoresNaoFinitosDasVariaveis)
{
    clsEquation eq;
    eq.Expression("x");
    eq.SetVariable("x", INFINITY);
    EXPECT_THROW(eq.Value(), ErroInterpretador);
    eq.SetVariable("x", NAN);
    EXPECT_THROW(eq.Value(), ErroInterpretador);
}

std::uint64_t RelogioParado() { return 42; }

int leiturasDoRelogio = 0;
std::uint64_t RelogioContado()
{
    ++leiturasDoRelogio;
    return 42;
}

TEST(clsEquation, Aleatorios)
{
    SemearAleatorio(7);
    const double a = Avaliar("rnd");
    SemearAleatorio(7);
    EXPECT_EQ(Avaliar("rnd"), a);
    EXPECT_GE(a, 0);
    EXPECT_LT(a, 1);

    // From one state and one clock reading, the "(" forms draw the same r, each by its formula.
    DefinirRelogioAleatorio(RelogioParado);
    SemearAleatorio(7);
    SemearAleatorioDoRelogio();
    const double r = Aleatorio();
    const double r2 = Aleatorio();
    const struct {
        const char* texto;
        double esperado;
    } casos[] = {
        {"rnd(0)", r},
        {"rnd(5)", r},
        {"rand(10)", 10 * r},
        {"random(5,7)", 5 + r * 2},
        {"rnd(0)+rnd(0)", r + r2},   // the clock is taken in once, then the sequence goes on
        {"rand(1)*0+rnd(1)", r2},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.texto);
        SemearAleatorio(7);
        EXPECT_EQ(Avaliar(c.texto), c.esperado);
    }
    DefinirRelogioAleatorio(nullptr);

    for (int i = 0; i < 100; ++i) {
        const double v = Avaliar("random(-3,-1)");
        EXPECT_TRUE(v >= -3 && v < -1) << v;
    }
}

// The clock is read once per evaluation that calls a random function, and only then.
TEST(clsEquation, RelogioLidoUmaVezPorAvaliacao)
{
    const struct {
        const char* texto;
        int leituras;
    } casos[] = {
        {"rnd(1)", 1},
        {"rnd(1)+rand(2)+random(1,2)+rnd(x)", 1},
        {"rnd+x", 0},          // the constant draws without the clock
        {"sin(x)*2", 0},
        {"rnd(1/0)", 0},       // the argument fails before the call
        {"rnd(1)+1/0", 1},
    };
    DefinirRelogioAleatorio(RelogioContado);
    for (const auto& c : casos) {
        SCOPED_TRACE(c.texto);
        clsEquation eq;
        eq.Expression(c.texto);
        for (const double x : {0.0, 1.0}) {   // the second time on the kept tokens
            eq.SetVariable("x", x);
            leiturasDoRelogio = 0;
            try {
                eq.Evaluate();
            } catch (const ErroInterpretador&) {
            }
            EXPECT_EQ(leiturasDoRelogio, c.leituras);
        }
    }
    DefinirRelogioAleatorio(nullptr);
}

// Many evaluations within one tick of the clock: 20 000 values of "rand(1)" are nearly all
// different. Of 20 000 draws among 2^24 values, about 20000^2 / 2^25 = 12 repeat.
TEST(clsEquation, MuitasAvaliacoesNoMesmoInstante)
{
    DefinirRelogioAleatorio(RelogioParado);
    SemearAleatorio(1);
    std::set<double> valores;
    double soma = 0;
    for (int i = 0; i < 20000; ++i) {
        const double v = Avaliar("rand(1)");
        valores.insert(v);
        soma += v;
    }
    DefinirRelogioAleatorio(nullptr);
    EXPECT_GT(valores.size(), 19900u);
    EXPECT_NEAR(soma / 20000, 0.5, 0.01);   // 5 standard deviations of the mean
}

// Every prefix and suffix of awkward expressions gives a value or an interpreter error.
TEST(clsEquation, PrefixosESufixosNaoRebentam)
{
    const char* const expressoes[] = {
        "sin(x",         "min(3,5)",           "2^-3",        "((1+2)*(3-4))/5",
        "logn(8,2)",     "random(1,2)*rand(x)", "-(-(-x))",    "2x(x+1)",
        "x)(x",          "1.2.3+pi",           "mod(7.5,-2)", "3,4,(5,,6)",
        "arcsin(1)*cosec(0)", "10^400/0",      "rnd(rnd)+rnd", "sqr(-1)^0",
        "foo(bar(x))",   "--+-*/\\^%",         "((((((((x))))))))", ")))(((",
        "e^e^e^e^e^e",   "int(-0.5)+fix(-0.5)+mant(-0.5)", "2 3 . 4", "max(,)",
        "log(ln(log10(log2(0.5))))", "Ação(x)*é", "arccosech(0)+arccotgh(1)+arctgh(-1)",
        "tanh(x)^cotgh(x)%sech(x)\\cosech(x)", "2(3)(4)x(5)",
    };
    const std::set<int> numeros = {5, 6, 11, 1100, 1101, 1102, 1104};
    for (const std::string s : expressoes) {
        for (std::size_t k = 0; k <= s.size(); ++k) {
            for (const std::string& parte : {s.substr(0, k), s.substr(k)}) {
                SCOPED_TRACE(parte);
                clsEquation eq;
                eq.Expression(parte);
                eq.SetVariable("x", 0.5);
                try {
                    EXPECT_TRUE(std::isfinite(eq.Value()));
                } catch (const ErroInterpretador& erro) {
                    EXPECT_EQ(numeros.count(erro.numero()), 1u) << erro.numero();
                } catch (...) {
                    ADD_FAILURE() << "unexpected exception";
                }
            }
        }
    }
}

}  // namespace
}  // namespace lumerina
