#include "interp/Aleatorio.h"

#include <chrono>
#include <iterator>
#include <optional>
#include <random>

namespace lumerina {

namespace {

std::uint64_t RelogioSistema()
{
    return static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::system_clock::now().time_since_epoch())
            .count());
}

struct Estado {
    std::mt19937 gerador;
    std::uint64_t (*relogio)() = RelogioSistema;
    std::optional<std::uint64_t> ultimoRelogio;   // the clock reading last taken in
};

Estado& Global()
{
    static Estado estado;
    return estado;
}

}  // namespace

double Aleatorio()
{
    // 24 random bits: a single-precision number in [0, 1), exactly.
    return static_cast<double>(Global().gerador() >> 8) * 0x1p-24;
}

void SemearAleatorio(std::uint64_t semente)
{
    Estado& e = Global();
    std::seed_seq sementes{static_cast<std::uint32_t>(semente),
                           static_cast<std::uint32_t>(semente >> 32)};
    e.gerador.seed(sementes);
    e.ultimoRelogio.reset();
}

// Why mix rather than restart: restarting from the clock ties the sequence to the clock's
// value, so every call within one tick (a millisecond, while a page draws thousands of points
// a second) starts the same sequence again and draws the same number: 20 000 evaluations of
// "rand(1)" once gave 273 distinct values. Mixed in, the clock only moves an ongoing sequence
// to another point of the state space; calls within one tick go on along the sequence, and two
// runs of the program still differ.
//
// The new state is seeded from 256 bits drawn from the old one together with the clock, so a
// clock that comes back to an earlier value never brings an earlier state back. A reading
// equal to the one taken last brings nothing new and is skipped, which keeps a call before
// every step of a drawing cheap: at most one reseeding a millisecond.
void SemearAleatorioDoRelogio()
{
    Estado& e = Global();
    const std::uint64_t agora = e.relogio();
    if (e.ultimoRelogio == agora)
        return;
    e.ultimoRelogio = agora;
    std::uint32_t mistura[10];
    for (int i = 0; i < 8; ++i)
        mistura[i] = static_cast<std::uint32_t>(e.gerador());
    mistura[8] = static_cast<std::uint32_t>(agora);
    mistura[9] = static_cast<std::uint32_t>(agora >> 32);
    std::seed_seq sementes(std::begin(mistura), std::end(mistura));
    e.gerador.seed(sementes);
}

void DefinirRelogioAleatorio(std::uint64_t (*relogio)())
{
    Global().relogio = relogio ? relogio : RelogioSistema;
}

}  // namespace lumerina
