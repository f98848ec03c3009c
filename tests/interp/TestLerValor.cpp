#include "interp/LerValor.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumerina {
namespace {

TEST(LerValor, NumeroInicialMaisLongo)
{
    const double maximo = std::numeric_limits<double>::max();
    const struct {
        const char* texto;
        double esperado;
    } casos[] = {
        {" - 1.310", -1.31}, {"0.218)", 0.218}, {"abc", 0},       {"1e3x", 1000},
        {"", 0},             {"  ", 0},         {"1 000", 1000},  {"1,5", 1},
        {"-.5", -0.5},       {"+2", 2},         {"5.", 5},        {".", 0},
        {"-", 0},            {"--1", 0},        {"e5", 0},        {"1e", 1},
        {"1e+", 1},          {"2.5E-2", 0.025}, {"1e+2", 100},    {"1.5.3", 1.5},
        {"7\t8", 78},        {"1e999", maximo}, {"-1e999", -maximo}, {"1e-999", 0},
        {"1e99999999999999999999", maximo},     {"0.5e-99999999999999999999", 0},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.texto);
        EXPECT_EQ(LerValor(c.texto), c.esperado);
    }
}

}  // namespace
}  // namespace lumerina
