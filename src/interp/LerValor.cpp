#include "interp/LerValor.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>

namespace lumerina {

namespace {
bool Digito(char c) { return c >= '0' && c <= '9'; }
}  // namespace

double LerValor(std::string_view text)
{
    std::string s;
    s.reserve(text.size());
    for (const char c : text)
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n')
            s += c;

    // The longest leading number: [sign] digits [. digits] [e [sign] digits].
    std::size_t i = 0;
    const bool negativo = i < s.size() && s[i] == '-';
    if (i < s.size() && (s[i] == '-' || s[i] == '+'))
        ++i;
    const std::size_t inicio = i;
    std::size_t digitos = 0;
    for (; i < s.size() && Digito(s[i]); ++i)
        ++digitos;
    if (i < s.size() && s[i] == '.')
        for (++i; i < s.size() && Digito(s[i]); ++i)
            ++digitos;
    if (digitos == 0)
        return 0;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < s.size() && (s[j] == '-' || s[j] == '+'))
            ++j;
        if (j < s.size() && Digito(s[j])) {
            while (j < s.size() && Digito(s[j]))
                ++j;
            i = j;
        }
    }

    // from_chars reads no sign "+" and ignores the locale.
    double v = 0;
    if (std::from_chars(s.data() + inicio, s.data() + i, v).ec == std::errc::result_out_of_range) {
        // Too large or too small: the decimal order of the first significant digit tells.
        const std::string_view numero(s.data() + inicio, i - inicio);
        const std::size_t fimMantissa = std::min(numero.find_first_of("eE"), numero.size());
        const std::string_view mantissa = numero.substr(0, fimMantissa);
        const std::size_t ponto = std::min(mantissa.find('.'), mantissa.size());
        const std::size_t primeiro = mantissa.find_first_not_of("0.");   // exists: not all zeros
        long ordem = primeiro < ponto ? static_cast<long>(ponto - primeiro)
                                      : -static_cast<long>(primeiro - ponto - 1);
        if (fimMantissa < numero.size()) {
            std::string_view e = numero.substr(fimMantissa + 1);
            if (e.front() == '+')
                e.remove_prefix(1);
            long expoente = 0;
            if (std::from_chars(e.data(), e.data() + e.size(), expoente).ec != std::errc())
                expoente = e.front() == '-' ? -1000000 : 1000000;
            ordem += expoente;
        }
        v = ordem > 0 ? std::numeric_limits<double>::max() : 0.0;
    }
    return negativo ? -v : v;
}

}  // namespace lumerina
