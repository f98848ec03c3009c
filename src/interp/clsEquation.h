#pragma once

#include "interp/Aleatorio.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lumerina {

// An error of the interpreter: a number, the source "Interpretador" and a description (what()).
//   1100 "Número de parênteses incorrecto."
//   1101 "Função não definida: " + function + ")"
//   1102 "Variável não definida: " + name
//   1104 "Argumento inválido na expressão: " + operator, function + ")" or token
//   11   "Divisão por zero."                          (/, \, %, mod by zero)
//   6    "Excesso de capacidade."                     (infinite result, integer outside 32 bits)
//   5    "Argumento ou chamada de função inválida."   (a result that is not a number)
class ErroInterpretador : public std::runtime_error {
public:
    ErroInterpretador(int numero, const std::string& descricao);
    int numero() const { return numero_; }
    const std::string& origem() const;

private:
    int numero_;
};

// clsEquation: a real expression typed by the user ("-2*pi", "sen(x)*2+x^3-1"), evaluated with
// variables bound by the caller. Functions: abs sin/sen cos tg/tan sec cosec cotan/cotg arctg/atn
// arcsin/arcsen arccos arcsec arccosec arccotg/arccotan sinh/senh cosh tgh/tanh sech cosech
// cotgh/cotanh arcsinh/arcsenh arccosh arctgh/arctanh arcsech arccosech arccotgh/arccotanh exp
// log/ln log10 log2 logn(a,b) sqr int fix mant sgn rnd rand random(a,b) min(a,b) max(a,b)
// mod(a,b) graus rad; constants pi = 3.14159265358979, e = 2.718281828 (ten digits on purpose),
// rnd. Angles in radians.
//
// "rnd" (the constant) draws from the program's generator (interp/Aleatorio.h). "rnd(",
// "rand(" and "random(" draw too, after the first of them in an evaluation has taken the
// clock into the generator's state: once per evaluation, and never a restart, so that many
// evaluations within one tick of the clock still draw different numbers.
//
// No syntax tree. The text is tokenised once: every token gets a priority 7d+k from its class and
// its parenthesis depth d (k: "+"/"-" 1, "%" 2, "*" "/" "\" 3, unary "-" 4, "^" 5, name 6,
// "(" and function call 7; ")" gets 7d at its inner depth). Evaluation copies the tokens into a
// flat array of slots, puts the numbers and the bound variables in, and applies the tokens by
// decreasing priority, ties left to right. An operator takes the nearest non-empty slots on its
// two sides and empties what it consumed. Hence 2^3^2 = 64, -2^2 = -4, 10-4-3 = 3, 2x = 2*x,
// 2(x+1) = 2*(x+1), x(2) is a call of an unknown function x.
//
// Decisions on malformed text (all raise 1104 unless said otherwise):
// - An operator whose nearest slot on either side is not a value (nothing there, a ",", a
//   bracket, another operator not applied yet) reports the operator: "3*", "*3", "-", "2+",
//   "3+*4" ("*"). Unary minus reports "-". Since "^" binds more strongly than the unary minus,
//   "2^-3" reports "^" (write 2^(-3)), and "--3" reports "-".
// - A function's arguments are the slots between its "(" and the matching ")", split by the
//   commas of that level. A one-argument function needs one part, a two-argument function two,
//   each part exactly one value; otherwise the function and ")" are reported: "sin()", "min(1)",
//   "min(1,2,3)", "sin(1,2)" all give "sin()"/"min()". So the second argument is the value
//   after the function's own comma. An unknown function gives 1101 before its arguments are
//   checked. A plain group "(...)" must hold exactly one value: "()" and "(1,2)" report "()".
// - At the end exactly one value must be left. A surplus value ("(1)(2)": no product between
//   two groups) reports the token where it stands ("2"); a "," outside a function reports ",";
//   a bracket never applied (")(" keeps the depth at 0, so no 1100) reports itself.
// - A malformed number ("1.2.3", ".") reports the number as stored (with "," for "."); a number
//   too large for a double raises 6. An empty (or blank) expression is worth 0.
// - Names are resolved when the tokens are copied into the slots, left to right, before any
//   token is applied: "foo(1)+y" with y unbound raises 1102, not 1101.
// - Priorities are 16-bit: more than 4681 nested brackets raise 6 while tokenising.
// - Variable names are compared without regard to case ("X" binds x), like the expression.
//   GetVariable of an unbound name raises 1102.
// Arithmetic faults are checked at every step of a formula, so exp overflowing inside tanh(1000)
// raises 6, and arcsin(1) = atn(1/√0) raises 11 as its formula says. Any division by zero, 0/0
// included, raises 11; 0^(-1) is an infinite power (6). "\", "%" and mod round both operands to
// nearest (ties to even); an operand outside 32 bits, or -2147483648 \ -1, raises 6.
// arcsec and arccosec are arccos(1/x) and arcsin(1/x).
// A message quotes at most 40 characters of the offending token, then "…".
// After any error the value keeps its last result and stays stale: the next Value evaluates again.
//
// Per point, SetVariable on an existing binding overwrites it in place and Value evaluates on
// preallocated slots: no heap allocation once the expression is tokenised and its names bound.
//
// Cost in the number n of tokens: tokenising and ordering O(n log n) (a stable sort), once per
// expression; each evaluation O(n). The non-empty slots are kept in a doubly linked list, so
// an operator finds its operands in one step however many slots were emptied around it (a
// flat "1+1+...+1" would otherwise walk back over all the consumed terms at every "+"), and a
// group checks only the few slots still standing between its brackets.
class clsEquation {
public:
    void Switch(bool on);
    bool Switch() const { return switch_; }
    void ClearVariables();
    void Expression(std::string_view text);
    const std::string& Expression() const { return expressao_; }
    void RemoveVariable(std::string_view name);
    double Value();
    void Evaluate();
    double GetVariable(std::string_view name) const;
    void SetVariable(std::string_view name, double value);

private:
    enum class Tipo : std::uint8_t {
        Numero, Nome, Funcao, Abre, Fecha, Virgula,
        Mais, Menos, Resto, Vezes, Divide, DivideInteiro, Simetrico, Potencia
    };
    // What a name or a number token puts into its slot.
    enum class Fonte : std::uint8_t { Rnd, Variavel, NumeroInvalido, NumeroGrande };
    enum class Estado : std::uint8_t { Vazio, Valor, Pendente, Separador };

    struct Token {
        Tipo tipo;
        std::int16_t prioridade;
        int par = -1;              // "(" and function call: index of the matching ")"
        std::uint8_t funcao = 0;   // function call: entry of the function table
        std::string texto;         // as stored: lower case, "." written ","
    };
    struct Origem {   // a slot filled at evaluation, in slot order
        int slot;
        Fonte fonte;
        int variavel = -1;   // Fonte::Variavel: binding index, valid for geracaoNomes_
    };
    struct Variavel {
        std::string nome;   // lower case
        double valor;
    };

    void Tokenise();
    void Aplicar(int i);
    void AplicarGrupo(int i);
    // The nearest non-empty slot after / before slot i, which must itself be non-empty; -1 if
    // there is none.
    int NextOperand(int i) const;
    int PreviousOperand(int i) const;
    void Esvaziar(int j);
    [[noreturn]] void ArgumentoInvalido(int i) const;
    std::string TextoToken(int i) const;
    int ProcurarVariavel(std::string_view nome) const;

    bool switch_ = false;
    std::string expressao_;
    std::vector<Variavel> variaveis_;
    std::uint32_t geracaoVariaveis_ = 0;   // bumped when a binding is added or removed
    std::uint32_t geracaoNomes_ = 0;       // generation the cached binding indices belong to
    bool nomesLigados_ = false;

    std::vector<Token> tokens_;
    std::vector<int> ordem_;                  // tokens to apply, strongest first
    std::vector<Origem> origens_;
    std::vector<double> valoresIniciais_;     // slot template: numbers and constants
    std::vector<Estado> estadosIniciais_;
    std::vector<double> valores_;             // working slots
    std::vector<Estado> estados_;
    std::vector<int> anterior_, seguinte_;    // the non-empty slots, linked in order
    int primeiro_ = -1;

    bool relogioMisturado_ = false;   // this evaluation has taken the clock in
    bool tokenizado_ = true;
    bool desactualizado_ = false;
    double valor_ = 0;
};

}  // namespace lumerina
