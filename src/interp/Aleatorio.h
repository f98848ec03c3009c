#pragma once
// The program's one uniform generator, shared by the interpreter ("rnd", "rnd(", "rand(",
// "random(") and by the pages that draw at random (IFS, chaos game, inverse iteration).

#include <cstdint>

namespace lumerina {

// A number in [0, 1), in single precision (24 random bits).
double Aleatorio();

// Restarts the generator from a seed: the same seed, the same sequence. For tests.
void SemearAleatorio(std::uint64_t semente);

// Takes the clock into the generator's state without restarting it: the new state depends on
// the old one and on the clock. Cheap enough to call before every step of a drawing, and the
// sequence stays as good as the generator's own however often it is called.
void SemearAleatorioDoRelogio();

// Replaces the clock (a count of milliseconds, say); nullptr restores the system clock.
void DefinirRelogioAleatorio(std::uint64_t (*relogio)());

}  // namespace lumerina
