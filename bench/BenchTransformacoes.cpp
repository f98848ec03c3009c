// Level 8 of the three Sierpinski maps on the letter F (6561 copies, 19 683 segments) on the
// transformations page: one press of "Aplicar novamente" from level 7, which makes level 8
// and draws the picture again (the original, levels 1 to 7 in grey, level 8 in red). Against
// the plain loop of the same work: the 3 maps over level 7's points into a reserved array,
// and the same segments by a bare Bresenham into a plain pixel array.

#include "app/Aplicacao.h"
#include "app/Paginas.h"
#include "geometric/SistemaIFS.h"
#include "geometric/Transformacoes.h"

#include <QPushButton>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

void PaginaTransformacoesNivel8(benchmark::State& estado)
{
    QWidget* pagina = lumerina::Pagina(lumerina::Form::Transformacoes);
    pagina->show();
    auto* exemplo = pagina->findChild<QPushButton*>(QStringLiteral("ExemploSierpinski"));
    auto* aplicar = pagina->findChild<QPushButton*>(QStringLiteral("AplicarNovamente"));
    for (auto _ : estado) {
        estado.PauseTiming();
        exemplo->click();
        for (int n = 2; n <= 7; ++n)
            aplicar->click();
        estado.ResumeTiming();
        aplicar->click();
    }
    estado.SetItemsProcessed(estado.iterations() * 6561);
    lumerina::FecharLumerina();
}
BENCHMARK(PaginaTransformacoesNivel8)->Unit(benchmark::kMillisecond);

void CicloSimplesNivel8(benchmark::State& estado)
{
    using lumerina::Ponto;
    const auto m = lumerina::TrianguloSierpinski().Mapas();
    const std::vector<lumerina::MapaAfim> mapas(m.begin(), m.end());
    lumerina::ImagensIteradas imagens(lumerina::Figura(lumerina::FiguraBase::LetraF));
    for (int n = 1; n <= 7; ++n)
        imagens.Aplicar(mapas);
    const lumerina::FiguraPlana& f = imagens.Original();
    constexpr int kLado = 628;
    std::vector<std::uint32_t> pixeis(kLado * kLado);
    std::vector<Ponto> nivel8;
    nivel8.reserve(imagens.Pontos(7).size() * 3);
    // (−0.5…1.5)² onto the picture.
    const auto px = [](double x) { return int(std::lround((x + 0.5) * 314)); };
    const auto py = [](double y) { return int(std::lround((1.5 - y) * 314)); };
    const auto linha = [&](Ponto p, Ponto q, std::uint32_t cor) {
        int x1 = px(p.x), y1 = py(p.y);
        const int x2 = px(q.x), y2 = py(q.y);
        const int dx = std::abs(x2 - x1), sx = x1 < x2 ? 1 : -1;
        const int dy = -std::abs(y2 - y1), sy = y1 < y2 ? 1 : -1;
        int erro = dx + dy;
        for (;;) {
            if (unsigned(x1) < kLado && unsigned(y1) < kLado)
                pixeis[y1 * kLado + x1] = cor;
            if (x1 == x2 && y1 == y2)
                break;
            const int e2 = 2 * erro;
            if (e2 >= dy) { erro += dy; x1 += sx; }
            if (e2 <= dx) { erro += dx; y1 += sy; }
        }
    };
    for (auto _ : estado) {
        nivel8.clear();
        for (const lumerina::MapaAfim& t : mapas)
            for (const Ponto& p : imagens.Pontos(7))
                nivel8.push_back(t(p));
        std::fill(pixeis.begin(), pixeis.end(), 0xFFFFFFFFu);
        for (int n = 1; n <= 7; ++n)
            lumerina::PercorrerSegmentos(f, imagens.Pontos(n), [&](Ponto p, Ponto q) { linha(p, q, 0xFFC0C0C0u); });
        lumerina::PercorrerSegmentos(f, imagens.Pontos(0), [&](Ponto p, Ponto q) { linha(p, q, 0xFF0000FFu); });
        lumerina::PercorrerSegmentos(f, nivel8, [&](Ponto p, Ponto q) { linha(p, q, 0xFFFF0000u); });
        benchmark::DoNotOptimize(pixeis.data());
    }
    estado.SetItemsProcessed(estado.iterations() * 6561);
}
BENCHMARK(CicloSimplesNivel8)->Unit(benchmark::kMillisecond);

}  // namespace
