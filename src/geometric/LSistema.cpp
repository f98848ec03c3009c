#include "geometric/LSistema.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace lumerina {

namespace {

constexpr std::uint64_t kSaturado = std::numeric_limits<std::uint64_t>::max();
constexpr double kPi = 3.14159265358979;

std::uint64_t SomaSat(std::uint64_t a, std::uint64_t b)
{
    return a > kSaturado - b ? kSaturado : a + b;
}

std::uint64_t ProdutoSat(std::uint64_t a, std::uint64_t b)
{
    return b != 0 && a > kSaturado / b ? kSaturado : a * b;
}

std::uint64_t ContarF(std::u16string_view texto)
{
    return std::uint64_t(std::count(texto.begin(), texto.end(), u'F'));
}

// Appends `texto` with every F replaced by `f`.
void SubstituirF(std::u16string& saida, std::u16string_view texto, std::u16string_view f)
{
    std::size_t desde = 0;
    for (std::size_t i = texto.find(u'F'); i != std::u16string_view::npos;
         i = texto.find(u'F', desde)) {
        saida.append(texto.substr(desde, i - desde));
        saida.append(f);
        desde = i + 1;
    }
    saida.append(texto.substr(desde));
}

// Appends `parte` n times: once, then by doubling what is already there.
void Repetir(std::u16string& saida, std::u16string_view parte, std::int64_t n)
{
    if (parte.empty() || n <= 0)
        return;
    const std::size_t inicio = saida.size(), total = parte.size() * std::size_t(n);
    saida.append(parte);
    while (saida.size() - inicio < total) {
        const std::size_t feito = saida.size() - inicio;
        saida.append(saida, inicio, std::min(feito, total - feito));
    }
}

// E(n) for n ≥ 1: what one F becomes after n passes.
std::u16string ExpansaoDeF(std::u16string_view regra, std::uint64_t fRegra, std::int64_t passes)
{
    if (fRegra == 0)
        return std::u16string(regra);
    if (fRegra == 1) {
        // E(n) = Pⁿ F Sⁿ for the rule P F S: the length grows by r − 1 a pass, so a long run of
        // passes is built directly rather than pass by pass.
        const std::size_t f = regra.find(u'F');
        const std::u16string_view prefixo = regra.substr(0, f), sufixo = regra.substr(f + 1);
        std::u16string e;
        e.reserve(std::size_t(passes) * (regra.size() - 1) + 1);
        Repetir(e, prefixo, passes);
        e.push_back(u'F');
        Repetir(e, sufixo, passes);
        return e;
    }
    // Two F's or more: the length at least doubles a pass, so there are few passes (the caller
    // has checked the final length) and the work is dominated by the last one.
    std::u16string e(regra), proxima;
    for (std::int64_t k = 1; k < passes; ++k) {
        proxima.clear();
        proxima.reserve(std::size_t(ComprimentoReescrito(e, regra, 1)));
        SubstituirF(proxima, regra, e);
        std::swap(e, proxima);
    }
    return e;
}

}  // namespace

std::uint64_t ComprimentoReescrito(std::u16string_view axioma, std::u16string_view regra,
                                   std::int64_t passes)
{
    std::uint64_t comprimento = axioma.size();
    std::uint64_t f = ContarF(axioma);
    if (passes <= 0 || f == 0)
        return comprimento;
    const std::uint64_t r = regra.size(), fRegra = ContarF(regra);
    if (fRegra == 0)  // one pass removes every F; later passes find none
        return SomaSat(comprimento - f, ProdutoSat(f, r));
    if (fRegra == 1)  // r ≥ 1: every pass adds a·(r − 1)
        return SomaSat(comprimento, ProdutoSat(ProdutoSat(f, r - 1), std::uint64_t(passes)));
    for (std::int64_t k = 0; k < passes && comprimento != kSaturado; ++k) {
        comprimento = SomaSat(comprimento, ProdutoSat(f, r - 1));
        f = ProdutoSat(f, fRegra);
    }
    return comprimento;
}

std::u16string Reescrever(std::u16string_view axioma, std::u16string_view regra,
                          std::int64_t passes)
{
    if (passes <= 0 || axioma.find(u'F') == std::u16string_view::npos)
        return std::u16string(axioma);
    const std::u16string e = ExpansaoDeF(regra, ContarF(regra), passes);
    std::u16string saida;
    saida.reserve(std::size_t(ComprimentoReescrito(axioma, regra, passes)));
    SubstituirF(saida, axioma, e);
    return saida;
}

std::u16string_view AparaEspacos(std::u16string_view texto)
{
    const std::size_t inicio = texto.find_first_not_of(u' ');
    if (inicio == std::u16string_view::npos)
        return {};
    return texto.substr(inicio, texto.find_last_not_of(u' ') - inicio + 1);
}

std::optional<double> LerNumeroEstrito(std::u16string_view texto)
{
    texto = AparaEspacos(texto);
    // Only ASCII (and "−") can make a number: narrow, refusing anything else.
    std::string s;
    s.reserve(texto.size());
    for (const char16_t c : texto) {
        if (c == u'\u2212')  // the typographic minus, as the limit fields take it
            s.push_back('-');
        else if (c > 0x7F)
            return std::nullopt;
        else
            s.push_back(char(c));
    }
    // from_chars takes no "+", no hexadecimal here, and no "inf"/"nan" once the first
    // character must be a digit or ".".
    std::size_t i = 0;
    bool negativo = false;
    if (i < s.size() && (s[i] == '+' || s[i] == '-'))
        negativo = s[i++] == '-';
    if (i >= s.size() || !(std::isdigit(static_cast<unsigned char>(s[i])) || s[i] == '.'))
        return std::nullopt;
    double valor = 0;
    const auto [fim, erro] =
        std::from_chars(s.data() + i, s.data() + s.size(), valor, std::chars_format::general);
    if (erro != std::errc() || fim != s.data() + s.size() || !std::isfinite(valor))
        return std::nullopt;
    return negativo ? -valor : valor;
}

std::optional<std::int16_t> ArredondarInteiro16(double valor)
{
    // Adding and taking away 1.5·2⁵² leaves no fraction bits: the sum is rounded by the
    // processor's default rule, to nearest with ties to even (a library call to nearbyint costs
    // more than the rest of a turtle step). Exact for |valor| < 2⁵¹; NaN fails the first test.
    if (!(std::abs(valor) < 65536.0))
        return std::nullopt;
    constexpr double kDesvio = 6755399441055744.0;
    const double r = (valor + kDesvio) - kDesvio;  // never folded: addition is not associative
    if (r >= -32768.0 && r <= 32767.0)
        return std::int16_t(r);
    return std::nullopt;
}

Tartaruga::Rotacao Tartaruga::RotacaoDe(std::optional<double> graus)
{
    if (!graus)
        return {};
    const double theta = 2 * *graus * kPi / 360;
    return {true, std::cos(theta), std::sin(theta)};
}

void Tartaruga::Partida(const CamposTartaruga& campos)
{
    if (campos.x)
        if (const auto x = ArredondarInteiro16(*campos.x))
            estado_.x = *x;
    if (campos.y)
        if (const auto y = ArredondarInteiro16(*campos.y))
            estado_.y = *y;
    estado_.dx = 0;
    if (campos.inicio)
        estado_.dy = *campos.inicio;
    // Read once: the fields cannot change while a drawing that never yields is running.
    mais_ = RotacaoDe(campos.angPos);
    menos_ = RotacaoDe(campos.angNeg);
    reducao_ = campos.reducao;
}

std::size_t Tartaruga::Percorrer(std::u16string_view programa, std::size_t& posicao,
                                 Segmento* saida, std::size_t capacidade)
{
    EstadoTartaruga t = estado_;
    std::size_t n = 0, i = posicao;
    // Local copies, which the stores into `saida` cannot be taken to overwrite. No reduction is
    // the same as a factor of 1: x·1 = x for every double, infinities and NaN included.
    const Rotacao mais = mais_, menos = menos_;
    const double reducao = reducao_.value_or(1.0);
    const auto rodar = [&t](const Rotacao& r) {
        if (!r.activa)
            return;
        const double dx = t.dx, dy = t.dy;
        t.dx = dx * r.cosseno - dy * r.seno;
        t.dy = dx * r.seno + dy * r.cosseno;
    };
    for (; i < programa.size() && n < capacidade; ++i) {
        switch (programa[i]) {
        case u'F': {
            const double x2 = t.x + t.dx, y2 = t.y + t.dy;
            saida[n++] = {double(t.x), double(t.y), x2, y2};
            if (const auto x = ArredondarInteiro16(x2))
                t.x = *x;
            if (const auto y = ArredondarInteiro16(y2))
                t.y = *y;
            t.dx = t.dx * reducao;
            t.dy = t.dy * reducao;
            break;
        }
        case u'[':
            if (profundidade_ < kCapacidadePilha)
                pilha_[std::size_t(profundidade_)] = t;
            ++profundidade_;
            break;
        case u']':
            if (profundidade_ == 0)
                break;
            --profundidade_;
            if (profundidade_ < kCapacidadePilha)
                t = pilha_[std::size_t(profundidade_)];
            break;
        case u'+': rodar(mais); break;
        case u'-': rodar(menos); break;
        default: break;
        }
    }
    posicao = i;
    estado_ = t;
    return n;
}

}  // namespace lumerina
