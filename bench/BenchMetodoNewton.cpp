// The Newton column kernel over a whole picture (the default view, 628 x 628 pixels, the grid
// as the page's loops visit it), and the page's whole drawing (checks, palette, kernel,
// colouring, picture, a yield per column), against the plain scalar loop of the same steps in
// the same run: the time reported is per picture.

#include "app/Paginas.h"
#include "app/Aplicacao.h"
#include "complex/MetodoNewton.h"

#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <vector>

namespace lumerina {
namespace {

const GrelhaNewton& Grelha()
{
    static const GrelhaNewton grelha = CriarGrelhaNewton(-3, 3, -3, 3, 628, 628);
    return grelha;
}

// One point at a time, the step written out: zⁿ⁻¹ and zⁿ by repeated products, the guarded
// division, the stopping rule.
void ColunaSimples(double x, const double* ys, int linhas, int n, const InversaoNewton* inv,
                   int* passos)
{
    for (int j = 0; j < linhas; ++j) {
        double zx = x, zy = ys[j];
        if (inv) {
            const double u = x - inv->a, v = ys[j] - inv->b, q = u * u + v * v;
            if (q == 0) {
                passos[j] = 0;
                continue;
            }
            zx = inv->k * u / q;
            zy = inv->k * v / q;
        }
        int s = 0;
        for (;;) {
            double px = zx, py = zy, qx = zx, qy = zy;
            for (int k = 1; k < n; ++k) {
                const double re = px * zx - py * zy;
                py = px * zy + py * zx;
                px = re;
            }
            for (int k = 1; k < n - 1; ++k) {
                const double re = qx * zx - qy * zy;
                qy = qx * zy + qy * zx;
                qx = re;
            }
            const double a = (n - 1.0) * px + 1, b = (n - 1.0) * py;
            double c = n * qx, d = n * qy;
            if (c == 0)
                c = 0.001;
            if (d == 0)
                d = 0.001;
            const double den = c * c + d * d;
            const double nx = (a * c + b * d) / den, ny = (b * c - a * d) / den;
            const double dx = zx - nx, dy = zy - ny;
            zx = nx;
            zy = ny;
            ++s;
            if ((std::fabs(dx) <= 0.001 && std::fabs(dy) <= 0.001) || s == 50)
                break;
        }
        passos[j] = s;
    }
}

template <class FazerColuna>
void Imagem(benchmark::State& estado, int n, const InversaoNewton* inv, FazerColuna coluna)
{
    const GrelhaNewton& g = Grelha();
    std::vector<int> passos(g.ys.size());
    for (auto _ : estado) {
        for (const double x : g.xs) {
            coluna(x, g.ys.data(), int(g.ys.size()), n, inv, passos.data());
            benchmark::DoNotOptimize(passos.data());
        }
        benchmark::ClobberMemory();
    }
}

const InversaoNewton kInversao{1, 0, 0};

const bool kRegistados = [] {
    const auto registar = [](const std::string& nome, auto funcao) {
        benchmark::RegisterBenchmark(nome.c_str(), funcao)->Unit(benchmark::kMillisecond);
    };
    for (const int n : {3, 8}) {
        for (const bool invertido : {false, true}) {
            const std::string caso =
                std::string(invertido ? "/inversao" : "/normal") + "/grau" + std::to_string(n);
            const InversaoNewton* inv = invertido ? &kInversao : nullptr;
            registar("ColunaNewton" + caso, [n, inv](benchmark::State& s) {
                Imagem(s, n, inv, [](double x, const double* ys, int l, int n, auto* i, int* p) {
                    ColunaNewton(x, ys, l, n, i, p);
                });
            });
            registar("ColunaNewtonSse2" + caso, [n, inv](benchmark::State& s) {
                Imagem(s, n, inv, [](double x, const double* ys, int l, int n, auto* i, int* p) {
                    ColunaNewton(x, ys, l, n, i, p, InstrucoesVectoriais::Sse2);
                });
            });
            registar("PaginaNewton" + caso, [n, invertido](benchmark::State& s) {
                QWidget* pagina = Pagina(Form::Newton);
                pagina->show();
                pagina->findChild<QLineEdit*>(QStringLiteral("Expoente"))->setText(QString::number(n));
                auto* botao = pagina->findChild<QPushButton*>(invertido ? QStringLiteral("Inversa")
                                                                        : QStringLiteral("Newton"));
                for (auto _ : s)
                    botao->click();
                FecharLumerina();
            });
            registar("NewtonSimples" + caso,
                     [n, inv](benchmark::State& s) { Imagem(s, n, inv, ColunaSimples); });
        }
    }
    return true;
}();

}  // namespace
}  // namespace lumerina
