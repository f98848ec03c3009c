#include "frame/DesenhoColunas.h"

#include "frame/ControloImagem.h"
#include "frame/Plataforma.h"

#include <algorithm>
#include <vector>

namespace lumerina {

namespace {

constexpr int kBloco = 16;  // columns written to the picture together

// Columns primeira..ultima of the block, held column after column in `cores`.
void EscreverBloco(ControloImagem& imagem, const std::vector<Cor>& cores, int H, int primeira,
                   int ultima, EscritaColunas escrita)
{
    const std::size_t linhas = static_cast<std::size_t>(H) + 1;
    const int altura = imagem.AlturaPixeis();
    const int colunas = std::min(ultima, imagem.LarguraPixeis() - 1) - primeira + 1;
    if (colunas <= 0)
        return;
    for (int y = 0; y < altura && y <= H - escrita.subir; ++y) {
        const std::size_t j = static_cast<std::size_t>(H - escrita.subir - y);
        QRgb* destino = imagem.Linha(y) + primeira;
        if (escrita.manterFundo) {
            for (int c = 0; c < colunas; ++c)
                if (const Cor cor = cores[static_cast<std::size_t>(c) * linhas + j]; cor != kSemCor)
                    destino[c] = cor;
        } else {
            for (int c = 0; c < colunas; ++c)
                destino[c] = cores[static_cast<std::size_t>(c) * linhas + j];
        }
    }
    imagem.Sujar(QRect(primeira, 0, colunas, altura));
}

}  // namespace

bool DesenharColunas(ControloImagem& imagem, double W, int H, const ColunaCores& colorir,
                     const std::function<void()>& aposCeder, EscritaColunas escrita)
{
    const std::size_t linhas = static_cast<std::size_t>(H) + 1;
    std::vector<Cor> cores(linhas * kBloco);
    const int ultimaVisivel = std::min(static_cast<int>(W), imagem.LarguraPixeis() - 1);
    for (int i = 0; i <= W; ++i) {
        if (i <= ultimaVisivel) {
            colorir(i, &cores[static_cast<std::size_t>(i % kBloco) * linhas]);
            if (i % kBloco == kBloco - 1 || i == ultimaVisivel)
                EscreverBloco(imagem, cores, H, i - i % kBloco, i, escrita);
        }
        if (!Sistema().Ceder())
            return false;
        if (aposCeder)
            aposCeder();
    }
    return true;
}

}  // namespace lumerina
