// Writes the interpreter's record: the outcome of both evaluations of every generated
// expression and of every file of a fuzzer corpus, one line each (see
// tests/support/RegistoInterpretador.h). Run it when the interpreter's behaviour is meant to
// be frozen; the test TestRegistoInterpretador then holds every later version to it.
//
//   lumerina_registo <corpus directory> > tests/interp/dados/interpretador.txt
#include "support/RegistoInterpretador.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

int main(int argc, char** argv)
{
    using namespace lumerina::registo;
    std::vector<std::string> corpus;
    if (argc > 1) {
        std::vector<std::filesystem::path> ficheiros;
        for (const auto& entrada : std::filesystem::directory_iterator(argv[1]))
            if (entrada.is_regular_file())
                ficheiros.push_back(entrada.path());
        std::sort(ficheiros.begin(), ficheiros.end());
        for (const auto& f : ficheiros) {
            std::ifstream in(f, std::ios::binary);
            corpus.emplace_back(std::istreambuf_iterator<char>(in),
                                std::istreambuf_iterator<char>());
        }
    }

    std::cout << "# Outcomes of the expression interpreter, two evaluations an expression.\n"
                 "# Written by tools/RegistarInterpretador.cpp; read by "
                 "tests/interp/TestRegistoInterpretador.cpp.\n";
    for (const std::string& texto : ExpressoesGeradas()) {
        const auto [a, b] = Avaliar(texto);
        std::cout << "g\t" << a << '\t' << Segundo(a, b) << '\n';
    }
    for (const std::string& texto : corpus) {
        const auto [a, b] = Avaliar(texto);
        std::cout << "t\t" << Escapar(texto) << '\t' << a << '\t' << Segundo(a, b) << '\n';
    }
    return 0;
}
