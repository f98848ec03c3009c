#pragma once

#include <string_view>

namespace lumerina {

// The lenient reading of a number, for the parameter fields that are not limit fields.
// Blanks anywhere are skipped; the longest leading number is taken (sign, digits, ".",
// exponent); whatever follows is ignored; a text without a leading number gives 0.
// " - 1.310" -> -1.31, "0.218)" -> 0.218, "abc" -> 0, "1e3x" -> 1000, "1,5" -> 1.
// "." is the decimal point whatever the locale. A number beyond the range of a double gives
// the largest double of its sign, one too small for it gives 0: never an infinity.
double LerValor(std::string_view text);

}  // namespace lumerina
