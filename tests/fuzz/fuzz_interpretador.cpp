// Any text gives a finite value or an interpreter error with one of its numbers; never a crash,
// another exception, an infinity or a NaN. The same for the lenient number reading.
#include "interp/LerValor.h"
#include "interp/clsEquation.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

std::uint64_t RelogioFixo() { return 1; }

bool NumeroConhecido(int n)
{
    switch (n) {
    case 5: case 6: case 11: case 1100: case 1101: case 1102: case 1104:
        return true;
    default:
        return false;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dados, std::size_t tamanho)
{
    using namespace lumerina;
    DefinirRelogioAleatorio(RelogioFixo);   // reproducible runs
    const std::string_view texto(reinterpret_cast<const char*>(dados), tamanho);

    if (!std::isfinite(LerValor(texto)))
        __builtin_trap();

    clsEquation eq;
    eq.Expression(texto);
    eq.SetVariable("x", 0.5);
    eq.SetVariable("y", -3);
    for (int vez = 0; vez < 2; ++vez) {   // the second time on the kept tokens
        try {
            if (!std::isfinite(eq.Value()))
                __builtin_trap();
        } catch (const ErroInterpretador& erro) {
            if (!NumeroConhecido(erro.numero()) || erro.origem() != "Interpretador")
                __builtin_trap();
        }
        eq.SetVariable("x", 2);
        eq.RemoveVariable("y");
    }
    return 0;
}
