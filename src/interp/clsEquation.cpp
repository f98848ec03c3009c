#include "interp/clsEquation.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>

namespace lumerina {

// ---------------------------------------------------------------------------------------------
// Errors

namespace {

const std::string kOrigem = "Interpretador";

[[noreturn]] void Falhar(int numero, const std::string& descricao)
{
    throw ErroInterpretador(numero, descricao);
}

[[noreturn]] void DivisaoPorZero() { Falhar(11, "Divisão por zero."); }
[[noreturn]] void ExcessoCapacidade() { Falhar(6, "Excesso de capacidade."); }
[[noreturn]] void ArgumentoFuncao() { Falhar(5, "Argumento ou chamada de função inválida."); }
// A token as a message quotes it: at most 40 characters, then "…". A field holds 32 767
// characters, and a message box as long as a whole field helps no one.
std::string Citacao(std::string_view token)
{
    constexpr int kMaximo = 40;
    int caracteres = 0;
    for (std::size_t i = 0; i < token.size(); ++i) {
        const bool continuacao = (static_cast<unsigned char>(token[i]) & 0xC0) == 0x80;
        if (!continuacao && ++caracteres > kMaximo)
            return std::string(token.substr(0, i)) + "\u2026";
    }
    return std::string(token);
}

[[noreturn]] void Invalido(const std::string& texto)
{
    Falhar(1104, "Argumento inválido na expressão: " + Citacao(texto));
}

[[noreturn]] void NaoDefinida(std::string_view nome)
{
    Falhar(1102, "Variável não definida: " + Citacao(nome));
}

}  // namespace

ErroInterpretador::ErroInterpretador(int numero, const std::string& descricao)
    : std::runtime_error(descricao), numero_(numero)
{
}

const std::string& ErroInterpretador::origem() const { return kOrigem; }

// ---------------------------------------------------------------------------------------------
// Checked arithmetic: every step of a formula raises the platform's error instead of going on
// with an infinity or a NaN.

namespace {

double Verificado(double r)
{
    if (std::isnan(r))
        ArgumentoFuncao();
    if (std::isinf(r))
        ExcessoCapacidade();
    return r;
}

double Soma(double a, double b) { return Verificado(a + b); }
double Diferenca(double a, double b) { return Verificado(a - b); }
double Produto(double a, double b) { return Verificado(a * b); }

double Quociente(double a, double b)
{
    if (b == 0)
        DivisaoPorZero();
    return Verificado(a / b);
}

double Exp(double x) { return Verificado(std::exp(x)); }

double Log(double x)
{
    if (!(x > 0))
        ArgumentoFuncao();
    return std::log(x);
}

double Raiz(double x)
{
    if (x < 0)
        ArgumentoFuncao();
    return std::sqrt(x);
}

double Sinal(double x) { return x > 0 ? 1.0 : (x < 0 ? -1.0 : 0.0); }

// To a 32-bit integer, to nearest with ties to even.
std::int32_t Inteiro32(double x)
{
    double r = std::floor(x);
    const double resto = x - r;   // exact
    if (resto > 0.5 || (resto == 0.5 && std::fmod(r, 2.0) != 0))
        r += 1;
    if (!(r >= INT32_MIN && r <= INT32_MAX))
        ExcessoCapacidade();
    return static_cast<std::int32_t>(r);
}

double DivisaoInteira(double a, double b)
{
    const std::int32_t n = Inteiro32(a);
    const std::int32_t d = Inteiro32(b);
    if (d == 0)
        DivisaoPorZero();
    if (n == INT32_MIN && d == -1)
        ExcessoCapacidade();
    return n / d;
}

double RestoInteiro(double a, double b)
{
    const std::int32_t n = Inteiro32(a);
    const std::int32_t d = Inteiro32(b);
    if (d == 0)
        DivisaoPorZero();
    if (d == -1)
        return 0;   // also for -2147483648, whose quotient does not fit
    return n % d;
}

const double kPi = 3.14159265358979;
const double kE = 2.718281828;

// The function table. A token matches with its "(" (the name here is without it).
enum Funcao : std::uint8_t {
    FAbs, FSin, FCos, FTan, FSec, FCosec, FCotan, FArctg, FArcsin, FArccos, FArcsec, FArccosec,
    FArccotg, FSinh, FCosh, FTgh, FSech, FCosech, FCotgh, FArcsinh, FArccosh, FArctgh, FArcsech,
    FArccosech, FArccotgh, FExp, FLog, FLog10, FLog2, FLogn, FSqr, FInt, FFix, FMant, FSgn, FRnd,
    FRand, FRandom, FMin, FMax, FMod, FGraus, FRad,
    FDesconhecida
};

struct EntradaFuncao {
    std::string_view nome;
    Funcao funcao;
};

constexpr EntradaFuncao kFuncoes[] = {
    {"abs", FAbs},         {"sin", FSin},           {"sen", FSin},
    {"cos", FCos},         {"tg", FTan},            {"tan", FTan},
    {"sec", FSec},         {"cosec", FCosec},       {"cotan", FCotan},
    {"cotg", FCotan},      {"arctg", FArctg},       {"atn", FArctg},
    {"arcsin", FArcsin},   {"arcsen", FArcsin},     {"arccos", FArccos},
    {"arcsec", FArcsec},   {"arccosec", FArccosec}, {"arccotg", FArccotg},
    {"arccotan", FArccotg}, {"sinh", FSinh},        {"senh", FSinh},
    {"cosh", FCosh},       {"tgh", FTgh},           {"tanh", FTgh},
    {"sech", FSech},       {"cosech", FCosech},     {"cotgh", FCotgh},
    {"cotanh", FCotgh},    {"arcsinh", FArcsinh},   {"arcsenh", FArcsinh},
    {"arccosh", FArccosh}, {"arctgh", FArctgh},     {"arctanh", FArctgh},
    {"arcsech", FArcsech}, {"arccosech", FArccosech}, {"arccotgh", FArccotgh},
    {"arccotanh", FArccotgh}, {"exp", FExp},        {"log", FLog},
    {"ln", FLog},          {"log10", FLog10},       {"log2", FLog2},
    {"logn", FLogn},       {"sqr", FSqr},           {"int", FInt},
    {"fix", FFix},         {"mant", FMant},         {"sgn", FSgn},
    {"rnd", FRnd},         {"rand", FRand},         {"random", FRandom},
    {"min", FMin},         {"max", FMax},           {"mod", FMod},
    {"graus", FGraus},     {"rad", FRad},
};

Funcao ProcurarFuncao(std::string_view nome)
{
    for (const EntradaFuncao& e : kFuncoes)
        if (e.nome == nome)
            return e.funcao;
    return FDesconhecida;
}

int Aridade(Funcao f)
{
    switch (f) {
    case FLogn: case FRandom: case FMin: case FMax: case FMod:
        return 2;
    default:
        return 1;
    }
}

double Calcular(Funcao f, double x, double y)
{
    const double meioPi = 2 * std::atan(1.0);
    switch (f) {
    case FAbs: return std::fabs(x);
    case FSin: return std::sin(x);
    case FCos: return std::cos(x);
    case FTan: return std::tan(x);
    case FSec: return Quociente(1, std::cos(x));
    case FCosec: return Quociente(1, std::sin(x));
    case FCotan: return Quociente(1, std::tan(x));
    case FArctg: return std::atan(x);
    case FArcsin: return std::atan(Quociente(x, Raiz(Diferenca(1, Produto(x, x)))));
    case FArccos: return meioPi - std::atan(Quociente(x, Raiz(Diferenca(1, Produto(x, x)))));
    case FArcsec: return std::acos(Quociente(1, x));
    case FArccosec: return std::asin(Quociente(1, x));
    case FArccotg: return meioPi - std::atan(x);
    case FSinh: return Diferenca(Exp(x), Exp(-x)) / 2;
    case FCosh: return Soma(Exp(x), Exp(-x)) / 2;
    case FTgh: return Quociente(Diferenca(Exp(x), Exp(-x)), Soma(Exp(x), Exp(-x)));
    case FSech: return Quociente(2, Soma(Exp(x), Exp(-x)));
    case FCosech: return Quociente(2, Diferenca(Exp(x), Exp(-x)));
    case FCotgh: return Quociente(Soma(Exp(x), Exp(-x)), Diferenca(Exp(x), Exp(-x)));
    case FArcsinh: return Log(Soma(x, Raiz(Soma(Produto(x, x), 1))));
    case FArccosh: return Log(Soma(x, Raiz(Diferenca(Produto(x, x), 1))));
    case FArctgh: return Log(Quociente(1 + x, 1 - x)) / 2;
    case FArcsech: return Log(Quociente(1 + Raiz(Diferenca(1, Produto(x, x))), x));
    case FArccosech:
        return Log(Quociente(Soma(1, Sinal(x) * Raiz(Soma(1, Produto(x, x)))), x));
    case FArccotgh: return Log(Quociente(x + 1, x - 1)) / 2;
    case FExp: return Exp(x);
    case FLog: return Log(x);
    case FLog10: return Log(x) / std::log(10.0);
    case FLog2: return Log(x) / std::log(2.0);
    case FLogn: {
        const double a = Log(x);
        return Quociente(a, Log(y));
    }
    case FSqr: return Raiz(x);
    case FInt: return std::floor(x);
    case FFix: return std::trunc(x);
    case FMant: return x - std::floor(x);
    case FSgn: return Sinal(x);
    case FRnd: return Aleatorio();
    case FRand: return Aleatorio() * x;
    case FRandom: return Soma(x, Produto(Aleatorio(), Diferenca(y, x)));
    case FMin: return std::min(x, y);
    case FMax: return std::max(x, y);
    case FMod: return RestoInteiro(x, y);
    case FGraus: return Produto(x, 57.2957795131);
    case FRad: return Produto(x, 0.01745329251995);
    case FDesconhecida: break;
    }
    return 0;
}

// Lower case for ASCII and for the Latin-1 capitals written in UTF-8 (Á, Ç, É...).
std::string Minusculas(std::string_view texto)
{
    std::string r(texto);
    for (std::size_t i = 0; i < r.size(); ++i) {
        unsigned char c = static_cast<unsigned char>(r[i]);
        if (c >= 'A' && c <= 'Z') {
            r[i] = static_cast<char>(c + ('a' - 'A'));
        } else if (c == 0xC3 && i + 1 < r.size()) {
            unsigned char s = static_cast<unsigned char>(r[i + 1]);
            if (s >= 0x80 && s <= 0x9E && s != 0x97)   // U+00C0..U+00DE, not ×
                r[i + 1] = static_cast<char>(s + 0x20);
            ++i;
        }
    }
    return r;
}

bool IgualSemCaixa(std::string_view a, std::string_view minusculo)
{
    if (a.size() != minusculo.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        char c = a[i];
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c + ('a' - 'A'));
        if (c != minusculo[i])
            return false;
    }
    return true;
}

bool Letra(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
bool Algarismo(char c) { return (c >= '0' && c <= '9') || c == '.'; }

}  // namespace

// ---------------------------------------------------------------------------------------------
// Public operations

void clsEquation::Switch(bool on)
{
    if (on != switch_) {
        switch_ = on;
        desactualizado_ = true;
    }
}

void clsEquation::ClearVariables()
{
    variaveis_.clear();
    ++geracaoVariaveis_;
    desactualizado_ = true;
}

void clsEquation::Expression(std::string_view text)
{
    expressao_ = Minusculas(text);
    tokenizado_ = false;
    desactualizado_ = true;
}

void clsEquation::RemoveVariable(std::string_view name)
{
    const int i = ProcurarVariavel(name);
    if (i >= 0) {
        variaveis_.erase(variaveis_.begin() + i);
        ++geracaoVariaveis_;
    }
    desactualizado_ = true;
}

double clsEquation::Value()
{
    if (desactualizado_)
        Evaluate();
    return valor_;
}

double clsEquation::GetVariable(std::string_view name) const
{
    const int i = ProcurarVariavel(name);
    if (i < 0)
        NaoDefinida(Minusculas(name));
    return variaveis_[i].valor;
}

void clsEquation::SetVariable(std::string_view name, double value)
{
    desactualizado_ = true;
    // Removing the old binding and adding the new one is the same as overwriting it.
    const int i = ProcurarVariavel(name);
    if (i >= 0) {
        variaveis_[i].valor = value;
        return;
    }
    variaveis_.push_back({Minusculas(name), value});
    ++geracaoVariaveis_;
}

int clsEquation::ProcurarVariavel(std::string_view nome) const
{
    for (std::size_t i = 0; i < variaveis_.size(); ++i)
        if (IgualSemCaixa(nome, variaveis_[i].nome))
            return static_cast<int>(i);
    return -1;
}

// ---------------------------------------------------------------------------------------------
// Tokenising

void clsEquation::Tokenise()
{
    tokens_.clear();
    ordem_.clear();
    origens_.clear();
    // A token every two characters, as in "1+1+1": a long formula's tokens are moved at most
    // a few times while the list grows.
    tokens_.reserve(expressao_.size() / 2 + 16);

    int d = 0;
    bool operando = false;            // the last thing seen was an operand
    enum { Nada, PNome, PNumero } pendente = Nada;
    std::string texto;

    auto prioridade = [&](int k) {
        const int p = 7 * d + k;
        if (p < INT16_MIN || p > INT16_MAX)
            ExcessoCapacidade();   // priorities are 16-bit integers
        return static_cast<std::int16_t>(p);
    };
    auto juntar = [&](Tipo tipo, std::int16_t p, std::string t) {
        tokens_.push_back({tipo, p, -1, 0, std::move(t)});
    };
    auto despejar = [&] {
        if (pendente == PNome) {
            juntar(Tipo::Nome, prioridade(6), std::move(texto));
            operando = true;
        } else if (pendente == PNumero) {
            juntar(Tipo::Numero, 0, std::move(texto));
            operando = true;
        }
        texto.clear();
        pendente = Nada;
    };
    auto operador = [&](Tipo tipo, int k, std::string t) {
        despejar();
        juntar(tipo, prioridade(k), std::move(t));
        operando = false;
    };

    for (const char c : expressao_) {
        if (Letra(c)) {
            if (pendente == PNumero)
                operador(Tipo::Vezes, 3, "*");   // 2x is 2*x
            if (pendente == Nada)
                pendente = PNome;
            texto += c;
        } else if (Algarismo(c)) {
            if (pendente == Nada)
                pendente = PNumero;
            texto += c == '.' ? ',' : c;
        } else if (c == '(') {
            if (pendente == PNome) {
                juntar(Tipo::Funcao, prioridade(7), std::move(texto) + "(");
                texto.clear();
                pendente = Nada;
            } else {
                if (pendente == PNumero)
                    operador(Tipo::Vezes, 3, "*");   // 2(x+1) is 2*(x+1)
                juntar(Tipo::Abre, prioridade(7), "(");
            }
            ++d;
            operando = false;
        } else if (c == ')') {
            despejar();
            juntar(Tipo::Fecha, prioridade(0), ")");
            --d;
            operando = true;
        } else if (c == ',') {
            despejar();
            juntar(Tipo::Virgula, 0, ",");
            operando = false;
        } else if (c == '-') {
            despejar();
            if (operando)
                operador(Tipo::Menos, 1, "-");
            else
                operador(Tipo::Simetrico, 4, "~");
        } else if (c == '+') {
            operador(Tipo::Mais, 1, "+");
        } else if (c == '%') {
            operador(Tipo::Resto, 2, "%");
        } else if (c == '*') {
            operador(Tipo::Vezes, 3, "*");
        } else if (c == '/') {
            operador(Tipo::Divide, 3, "/");
        } else if (c == '\\') {
            operador(Tipo::DivideInteiro, 3, "\\");
        } else if (c == '^') {
            operador(Tipo::Potencia, 5, "^");
        }
        // Anything else, blanks included, is skipped without ending the pending token.
    }
    despejar();
    if (d != 0)
        Falhar(1100, "Número de parênteses incorrecto.");

    const int n = static_cast<int>(tokens_.size());
    valoresIniciais_.assign(n, 0.0);
    estadosIniciais_.assign(n, Estado::Pendente);
    std::vector<int> abertos;
    for (int i = 0; i < n; ++i) {
        Token& t = tokens_[i];
        switch (t.tipo) {
        case Tipo::Numero: {
            estadosIniciais_[i] = Estado::Valor;
            std::string numero = t.texto;
            std::replace(numero.begin(), numero.end(), ',', '.');
            double v = 0;
            const char* const ultimo = numero.data() + numero.size();
            const auto [fim, erro] = std::from_chars(numero.data(), ultimo, v);
            if (fim != ultimo || erro == std::errc::invalid_argument) {
                origens_.push_back({i, Fonte::NumeroInvalido});
            } else if (erro == std::errc::result_out_of_range) {
                // No exponent here: out of range with a non-zero integer part is too large,
                // otherwise it is too small and worth 0.
                if (numero.find_first_not_of("0.") < numero.find('.'))
                    origens_.push_back({i, Fonte::NumeroGrande});
            }
            valoresIniciais_[i] = v;
            break;
        }
        case Tipo::Nome:
            estadosIniciais_[i] = Estado::Valor;
            if (t.texto == "pi")
                valoresIniciais_[i] = kPi;
            else if (t.texto == "e")
                valoresIniciais_[i] = kE;
            else
                origens_.push_back({i, t.texto == "rnd" ? Fonte::Rnd : Fonte::Variavel});
            break;
        case Tipo::Virgula:
            estadosIniciais_[i] = Estado::Separador;
            break;
        case Tipo::Funcao:
            t.funcao = ProcurarFuncao(std::string_view(t.texto).substr(0, t.texto.size() - 1));
            abertos.push_back(i);
            break;
        case Tipo::Abre:
            abertos.push_back(i);
            break;
        case Tipo::Fecha:
            if (!abertos.empty()) {
                tokens_[abertos.back()].par = i;
                abertos.pop_back();
            }
            break;
        default:
            break;
        }
    }

    // Evaluation order: decreasing priority, ties left to right. Numbers, names and commas are
    // already in their slots; a matched ")" goes with its "(" (same priority, applied together).
    // Priorities below 1 are never applied.
    for (int i = 0; i < n; ++i) {
        const Token& t = tokens_[i];
        if (t.prioridade >= 1 && t.tipo != Tipo::Nome && t.tipo != Tipo::Fecha)
            ordem_.push_back(i);
    }
    std::stable_sort(ordem_.begin(), ordem_.end(), [this](int a, int b) {
        return tokens_[a].prioridade > tokens_[b].prioridade;
    });

    valores_.assign(n, 0.0);
    estados_.assign(n, Estado::Vazio);
    anterior_.assign(n, -1);
    seguinte_.assign(n, n);
    nomesLigados_ = false;
    tokenizado_ = true;
}

// ---------------------------------------------------------------------------------------------
// Evaluating

void clsEquation::Evaluate()
{
    if (!tokenizado_)
        Tokenise();
    relogioMisturado_ = false;

    const int n = static_cast<int>(tokens_.size());
    if (!nomesLigados_ || geracaoNomes_ != geracaoVariaveis_) {
        for (Origem& o : origens_)
            if (o.fonte == Fonte::Variavel)
                o.variavel = ProcurarVariavel(tokens_[o.slot].texto);
        geracaoNomes_ = geracaoVariaveis_;
        nomesLigados_ = true;
    }

    std::copy(valoresIniciais_.begin(), valoresIniciais_.end(), valores_.begin());
    std::copy(estadosIniciais_.begin(), estadosIniciais_.end(), estados_.begin());
    // No slot starts empty: every one is in the list.
    for (int j = 0; j < n; ++j) {
        anterior_[j] = j - 1;
        seguinte_[j] = j + 1;
    }
    primeiro_ = n > 0 ? 0 : -1;
    for (const Origem& o : origens_) {
        switch (o.fonte) {
        case Fonte::Rnd:
            valores_[o.slot] = Aleatorio();
            break;
        case Fonte::Variavel:
            if (o.variavel < 0)
                NaoDefinida(tokens_[o.slot].texto);
            valores_[o.slot] = variaveis_[o.variavel].valor;
            break;
        case Fonte::NumeroInvalido:
            Invalido(tokens_[o.slot].texto);
        case Fonte::NumeroGrande:
            ExcessoCapacidade();
        }
    }

    for (const int i : ordem_)
        Aplicar(i);

    // Exactly one value must be left.
    int resultado = -1;
    for (int j = primeiro_; j >= 0; j = NextOperand(j)) {
        if (resultado >= 0 || estados_[j] != Estado::Valor)
            Invalido(TextoToken(j));
        resultado = j;
    }
    // A bound variable may hold anything; the result is never an infinity or a NaN.
    valor_ = resultado >= 0 ? Verificado(valores_[resultado]) : 0.0;
    desactualizado_ = false;
}

void clsEquation::Aplicar(int i)
{
    const Tipo tipo = tokens_[i].tipo;
    if (tipo == Tipo::Abre || tipo == Tipo::Funcao) {
        AplicarGrupo(i);
        return;
    }
    if (tipo == Tipo::Simetrico) {
        const int j = NextOperand(i);
        if (j < 0 || estados_[j] != Estado::Valor)
            ArgumentoInvalido(i);
        valores_[j] = -valores_[j];
        Esvaziar(i);
        return;
    }

    const int a = PreviousOperand(i);
    const int b = NextOperand(i);
    if (a < 0 || b < 0 || estados_[a] != Estado::Valor || estados_[b] != Estado::Valor)
        ArgumentoInvalido(i);
    const double x = valores_[a];
    const double y = valores_[b];
    double r = 0;
    switch (tipo) {
    case Tipo::Mais: r = Soma(x, y); break;
    case Tipo::Menos: r = Diferenca(x, y); break;
    case Tipo::Vezes: r = Produto(x, y); break;
    case Tipo::Divide: r = Quociente(x, y); break;
    case Tipo::Potencia: r = Verificado(std::pow(x, y)); break;
    case Tipo::DivideInteiro: r = DivisaoInteira(x, y); break;
    case Tipo::Resto: r = RestoInteiro(x, y); break;
    default: ArgumentoInvalido(i);
    }
    valores_[a] = r;
    Esvaziar(i);
    Esvaziar(b);
}

// A plain group or a function call: the slots up to the matching ")" hold only values and the
// group's own commas by now, since everything inside binds more strongly.
void clsEquation::AplicarGrupo(int i)
{
    const Token& t = tokens_[i];
    const bool funcao = t.tipo == Tipo::Funcao;
    const Funcao f = static_cast<Funcao>(t.funcao);
    if (funcao && f == FDesconhecida)
        Falhar(1101, "Função não definida: " + Citacao(t.texto + ")"));
    const int k = t.par;
    if (k < 0)
        ArgumentoInvalido(i);

    int argumentos[2] = {-1, -1};
    int partes = 1;
    int valoresDaParte = 0;
    bool certo = true;
    // The ")" at k is still in the list: nothing but this group empties it.
    for (int j = NextOperand(i); j >= 0 && j < k && certo; j = NextOperand(j)) {
        switch (estados_[j]) {
        case Estado::Vazio:
            break;
        case Estado::Valor:
            if (++valoresDaParte > 1 || partes > 2)
                certo = false;
            else
                argumentos[partes - 1] = j;
            break;
        case Estado::Separador:
            certo = valoresDaParte == 1;
            ++partes;
            valoresDaParte = 0;
            break;
        case Estado::Pendente:
            certo = false;
            break;
        }
    }
    if (!certo || valoresDaParte != 1 || partes != (funcao ? Aridade(f) : 1))
        ArgumentoInvalido(i);

    if (funcao) {
        if ((f == FRnd || f == FRand || f == FRandom) && !relogioMisturado_) {
            SemearAleatorioDoRelogio();
            relogioMisturado_ = true;
        }
        const double y = argumentos[1] >= 0 ? valores_[argumentos[1]] : 0.0;
        valores_[i] = Verificado(Calcular(f, valores_[argumentos[0]], y));
        estados_[i] = Estado::Valor;
        // The arguments, their commas and the ")": a few slots, each emptied once.
        for (int j = NextOperand(i); j >= 0 && j <= k; j = NextOperand(i))
            Esvaziar(j);
    } else {
        Esvaziar(i);   // the value stays where it is
        Esvaziar(k);
    }
}

// The non-empty slots form a doubly linked list, so the nearest operand on either side of a
// slot still in it is one step away, however many slots were emptied between.
int clsEquation::NextOperand(int i) const
{
    const int j = seguinte_[i];
    return j < static_cast<int>(seguinte_.size()) ? j : -1;
}

int clsEquation::PreviousOperand(int i) const { return anterior_[i]; }

void clsEquation::Esvaziar(int j)
{
    estados_[j] = Estado::Vazio;
    const int a = anterior_[j];
    const int s = seguinte_[j];
    if (a >= 0)
        seguinte_[a] = s;
    else
        primeiro_ = s < static_cast<int>(seguinte_.size()) ? s : -1;
    if (s < static_cast<int>(anterior_.size()))
        anterior_[s] = a;
}

void clsEquation::ArgumentoInvalido(int i) const { Invalido(TextoToken(i)); }

// A token as the messages show it: a function with its ")", the unary minus as typed.
std::string clsEquation::TextoToken(int i) const
{
    const Token& t = tokens_[i];
    switch (t.tipo) {
    case Tipo::Funcao: return t.texto + ")";
    case Tipo::Abre: return t.par >= 0 ? "()" : "(";
    case Tipo::Simetrico: return "-";
    default: return t.texto;
    }
}

}  // namespace lumerina
