// The shared generator: reproducible from a seed, and a good sequence however often the clock
// is taken in, whatever the clock does meanwhile.
#include "interp/Aleatorio.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <vector>

namespace lumerina {
namespace {

std::uint64_t tique = 0;
std::uint64_t Parado() { return 1000; }
std::uint64_t AvancaUm() { return ++tique; }
std::uint64_t VaiEVolta() { return 1000 + (++tique & 1); }
std::uint64_t Alternadamente7() { return (++tique / 7) & 1; }   // 7 calls a tick, two values

struct RelogioRestaurado {
    ~RelogioRestaurado() { DefinirRelogioAleatorio(nullptr); }
};

// A page that reseeds before every step, as the IFS and chaos game pages do.
std::vector<double> SementeACadaPasso(std::uint64_t (*relogio)(), int passos)
{
    DefinirRelogioAleatorio(relogio);
    tique = 0;
    SemearAleatorio(99);
    std::vector<double> r;
    for (int i = 0; i < passos; ++i) {
        SemearAleatorioDoRelogio();
        r.push_back(Aleatorio());
    }
    return r;
}

TEST(Aleatorio, BoaSequenciaComSementeACadaPasso)
{
    const RelogioRestaurado restaurar;
    const struct {
        const char* nome;
        std::uint64_t (*relogio)();
    } casos[] = {
        {"stopped", Parado},
        {"a new tick at every call", AvancaUm},
        {"back and forth between two readings", VaiEVolta},
        {"two readings, seven calls each", Alternadamente7},
    };
    constexpr int n = 10000;
    for (const auto& c : casos) {
        SCOPED_TRACE(c.nome);
        const std::vector<double> v = SementeACadaPasso(c.relogio, n);

        // Of 10 000 draws among 2^24 values, about 10000^2 / 2^25 = 3 repeat.
        EXPECT_GT(std::set<double>(v.begin(), v.end()).size(), 9950u);

        // Chi-square over 100 equal bins: 99 degrees of freedom, mean 99, deviation 14.
        std::vector<int> caixas(100, 0);
        for (const double x : v) {
            ASSERT_TRUE(x >= 0 && x < 1) << x;
            ++caixas[static_cast<int>(x * 100)];
        }
        double qui2 = 0;
        for (const int k : caixas)
            qui2 += (k - n / 100.0) * (k - n / 100.0) / (n / 100.0);
        EXPECT_LT(qui2, 160);

        // Successive draws uncorrelated: the deviation of the estimate is 1/sqrt(n) = 0.01.
        double media = 0;
        for (const double x : v)
            media += x / n;
        double cov = 0, var = 0;
        for (int i = 0; i + 1 < n; ++i)
            cov += (v[i] - media) * (v[i + 1] - media);
        for (const double x : v)
            var += (x - media) * (x - media);
        EXPECT_LT(std::fabs(cov / var), 0.045);
    }
}

// The clock moves the state on; it never replaces it. From two states the same clock leads to
// two sequences, and from one state two clocks do too.
TEST(Aleatorio, ORelogioMisturaSeSemRecomecar)
{
    const RelogioRestaurado restaurar;
    auto depois = [](std::uint64_t semente, std::uint64_t (*relogio)()) {
        DefinirRelogioAleatorio(relogio);
        tique = 0;
        SemearAleatorio(semente);
        SemearAleatorioDoRelogio();
        return Aleatorio();
    };
    EXPECT_EQ(depois(5, Parado), depois(5, Parado));
    EXPECT_NE(depois(5, Parado), depois(6, Parado));
    EXPECT_NE(depois(5, Parado), depois(5, AvancaUm));

    // A seed restarts the sequence exactly.
    SemearAleatorio(5);
    const double a = Aleatorio(), b = Aleatorio();
    SemearAleatorio(5);
    EXPECT_EQ(Aleatorio(), a);
    EXPECT_EQ(Aleatorio(), b);
}

}  // namespace
}  // namespace lumerina
