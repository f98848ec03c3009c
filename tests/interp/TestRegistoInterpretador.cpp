// Every recorded value and error of the interpreter, reproduced: about 20 000 expressions of
// the fuzzer's kind, from a grammar, from the fuzzer's corpus, and long ones, each evaluated
// twice (the second time on the kept tokens). The record and its protocol are described in
// tests/support/RegistoInterpretador.h.
#include "support/RegistoInterpretador.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

using namespace lumerina::registo;

struct Linha {
    int numero;              // in the file, for the failure message
    std::string texto;       // empty for a generated expression
    bool gerada;
    std::string primeiro, segundo;
};

std::vector<std::string> Campos(const std::string& linha)
{
    std::vector<std::string> r;
    std::istringstream in(linha);
    for (std::string campo; std::getline(in, campo, '\t');)
        r.push_back(campo);
    return r;
}

std::vector<Linha> LerRegisto()
{
    std::ifstream in(LUMERINA_DADOS_TESTES "/interpretador.txt", std::ios::binary);
    std::vector<Linha> r;
    int numero = 0;
    for (std::string linha; std::getline(in, linha);) {
        ++numero;
        if (linha.empty() || linha[0] == '#')
            continue;
        const auto c = Campos(linha);
        if (c.size() == 3 && c[0] == "g")
            r.push_back({numero, {}, true, c[1], c[2]});
        else if (c.size() == 4 && c[0] == "t")
            r.push_back({numero, Desescapar(c[1]), false, c[2], c[3]});
        else
            ADD_FAILURE() << "line " << numero << " is malformed";
    }
    return r;
}

TEST(RegistoInterpretador, CadaValorECadaErroComoRegistados)
{
    const std::vector<Linha> registo = LerRegisto();
    const std::vector<std::string> geradas = ExpressoesGeradas();
    ASSERT_GE(registo.size(), 19000u);

    std::size_t proxima = 0;
    int falhas = 0;
    for (const Linha& l : registo) {
        std::string texto = l.texto;
        if (l.gerada) {
            ASSERT_LT(proxima, geradas.size()) << "more generated lines than expressions";
            texto = geradas[proxima++];
        }
        const auto [a, b] = Avaliar(texto);
        const std::string esperadoSegundo = l.segundo == "=" ? l.primeiro : l.segundo;
        if (a != l.primeiro || b != esperadoSegundo) {
            ADD_FAILURE() << "line " << l.numero << ": \"" << Escapar(texto.substr(0, 200))
                          << "\" gives " << a << " | " << b << ", recorded " << l.primeiro
                          << " | " << esperadoSegundo;
            if (++falhas == 20)
                return;
        }
    }
    EXPECT_EQ(proxima, geradas.size()) << "fewer generated lines than expressions";
}

}  // namespace
