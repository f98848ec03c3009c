#pragma once
// The vector builds a kernel test can run here: SSE2 always, AVX2 where the processor has it.

#include "complex/TempoFuga.h"

#include <vector>

namespace lumerina {

inline std::vector<InstrucoesVectoriais> Instrucoes()
{
    std::vector<InstrucoesVectoriais> todas{InstrucoesVectoriais::Sse2};
    if (MelhoresInstrucoes() == InstrucoesVectoriais::Avx2)
        todas.push_back(InstrucoesVectoriais::Avx2);
    return todas;
}

}  // namespace lumerina
