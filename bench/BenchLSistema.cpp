// Example "6" (F-F-F-F, F -> FF-F-F-F-FF) at six passes: 784 327 characters, 470 596 segments.
// The page end to end (rewriting, Resultado, Label8, turtle, lines, on-screen progress) and the
// core's parts one by one, against the plain loop of the same work in the same run:
// std::string rewriting with find/replace, one pass per repeat, a turtle that works out its
// turn at every "+" and "-", and one QPainter::drawLine per segment.

#include "app/Aplicacao.h"
#include "app/Paginas.h"
#include "geometric/CaixaTextoLongo.h"
#include "geometric/LSistema.h"
#include "geometric/Tracado.h"

#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

using namespace lumerina;
using lumerina::Pagina;

constexpr const char16_t* kAxioma = u"F-F-F-F";
constexpr const char16_t* kRegra = u"FF-F-F-F-FF";
constexpr int kPasses = 6;
const CamposTartaruga kCampos{116.0, 500.0, -5.0, -90.0, 90.0, 1.0};
constexpr std::size_t kBloco = 4096;  // segments a block: 128 KiB, kept in cache

// The core: the string sized and built at once, then read in blocks of segments.
void LSistemaNucleo(benchmark::State& estado, bool reescrever, bool percorrer)
{
    const std::u16string pronta = Reescrever(kAxioma, kRegra, kPasses);
    std::vector<Segmento> segmentos(kBloco);
    Tartaruga t;
    for (auto _ : estado) {
        std::u16string texto;
        if (reescrever) {
            benchmark::DoNotOptimize(ComprimentoReescrito(kAxioma, kRegra, kPasses));
            texto = Reescrever(kAxioma, kRegra, kPasses);
        }
        if (percorrer) {
            const std::u16string_view p = reescrever ? texto : pronta;
            t.Partida(kCampos);
            std::size_t pos = 0;
            while (pos < p.size()) {
                t.Percorrer(p, pos, segmentos.data(), segmentos.size());
                benchmark::DoNotOptimize(segmentos.data());
            }
        }
        benchmark::DoNotOptimize(texto.data());
    }
}
BENCHMARK_CAPTURE(LSistemaNucleo, ReescritaETartaruga, true, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LSistemaNucleo, SoReescrita, true, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LSistemaNucleo, SoTartaruga, false, true)->Unit(benchmark::kMillisecond);

// The plain loop.
std::string ReescritaSimples(std::string texto, const std::string& regra, int passes)
{
    for (int k = 0; k < passes; ++k) {
        std::string seguinte;
        std::size_t desde = 0;
        for (std::size_t i = texto.find('F'); i != std::string::npos; i = texto.find('F', desde)) {
            seguinte.append(texto, desde, i - desde);
            seguinte.append(regra);
            desde = i + 1;
        }
        seguinte.append(texto, desde);
        texto = std::move(seguinte);
    }
    return texto;
}

template <class Desenhar>
void TartarugaSimples(const std::string& p, double mais, double menos, double reducao,
                      Desenhar&& desenhar)
{
    constexpr double pi = 3.14159265358979;
    short x = 116, y = 500;
    double dx = 0, dy = -5;
    std::vector<double> pilha;
    const auto rodar = [&](double graus) {
        const double th = 2 * graus * pi / 360, ndx = dx * std::cos(th) - dy * std::sin(th);
        dy = dx * std::sin(th) + dy * std::cos(th);
        dx = ndx;
    };
    for (const char c : p) {
        if (c == 'F') {
            desenhar(x, y, x + dx, y + dy);
            x = short(std::nearbyint(x + dx));
            y = short(std::nearbyint(y + dy));
            dx *= reducao;
            dy *= reducao;
        } else if (c == '+') {
            rodar(mais);
        } else if (c == '-') {
            rodar(menos);
        } else if (c == '[') {
            pilha.insert(pilha.end(), {double(x), double(y), dx, dy});
        } else if (c == ']' && !pilha.empty()) {
            dy = pilha.back(), pilha.pop_back();
            dx = pilha.back(), pilha.pop_back();
            y = short(pilha.back()), pilha.pop_back();
            x = short(pilha.back()), pilha.pop_back();
        }
    }
}

void LSistemaCicloSimplesComDrawLine(benchmark::State& estado)
{
    QImage imagem(628, 628, QImage::Format_RGB32);
    for (auto _ : estado) {
        imagem.fill(Qt::white);
        const std::string p = ReescritaSimples("F-F-F-F", "FF-F-F-F-FF", kPasses);
        QPainter q(&imagem);
        q.setPen(QColor(0, 0, 255));
        TartarugaSimples(p, -90, 90, 1, [&](double a, double b, double c, double d) {
            q.drawLine(QLineF(a, b, c, d));
        });
        q.end();
        benchmark::DoNotOptimize(imagem.bits());
    }
}
BENCHMARK(LSistemaCicloSimplesComDrawLine)->Unit(benchmark::kMillisecond);

void LSistemaPagina(benchmark::State& estado)
{
    QWidget* pagina = Pagina(Form::LSistemas);
    pagina->show();
    pagina->findChild<QRadioButton*>(QStringLiteral("Option6"))->click();
    pagina->findChild<QLineEdit*>(QStringLiteral("Repete"))->setText(QStringLiteral("6"));
    auto* desenhar = pagina->findChild<QPushButton*>(QStringLiteral("Desenhar"));
    for (auto _ : estado)
        desenhar->click();
    FecharLumerina();
}
BENCHMARK(LSistemaPagina)->Unit(benchmark::kMillisecond);

// Resultado taking the string and showing its first rows; a stock QPlainTextEdit taking
// 112 000 characters, for scale.
void LSistemaCaixaTexto(benchmark::State& estado)
{
    const std::u16string texto = Reescrever(kAxioma, kRegra, kPasses);
    CaixaTextoLongo caixa;
    caixa.resize(336, 146);
    caixa.show();
    for (auto _ : estado) {
        caixa.DefinirTexto(texto);
        caixa.viewport()->repaint();
    }
}
BENCHMARK(LSistemaCaixaTexto)->Unit(benchmark::kMillisecond);

void LSistemaQPlainTextEdit112k(benchmark::State& estado)
{
    const QString texto = QString::fromStdU16String(Reescrever(kAxioma, kRegra, kPasses)).left(112'000);
    QPlainTextEdit caixa;
    caixa.setReadOnly(true);
    caixa.resize(336, 146);
    caixa.show();
    for (auto _ : estado) {
        caixa.setPlainText(texto);
        caixa.viewport()->repaint();
    }
}
BENCHMARK(LSistemaQPlainTextEdit112k)->Unit(benchmark::kMillisecond);

void LSistemaCicloSimples(benchmark::State& estado)
{
    std::vector<Segmento> segmentos;
    segmentos.reserve(470'596);
    for (auto _ : estado) {
        const std::string p = ReescritaSimples("F-F-F-F", "FF-F-F-F-FF", kPasses);
        segmentos.clear();
        TartarugaSimples(p, -90, 90, 1, [&](double a, double b, double c, double d) {
            segmentos.push_back({a, b, c, d});
        });
        benchmark::DoNotOptimize(segmentos.data());
    }
}
BENCHMARK(LSistemaCicloSimples)->Unit(benchmark::kMillisecond);

// The lines of the whole figure on a 628 x 628 picture: through scan lines, and with one
// QPainter::drawLine each.
void LSistemaLinhas(benchmark::State& estado, bool proprias)
{
    Tartaruga t;
    t.Partida(kCampos);
    const std::u16string p = Reescrever(kAxioma, kRegra, kPasses);
    std::vector<Segmento> segmentos(470'596);
    std::size_t pos = 0;
    segmentos.resize(t.Percorrer(p, pos, segmentos.data(), segmentos.size()));
    QImage imagem(628, 628, QImage::Format_RGB32);
    for (auto _ : estado) {
        imagem.fill(Qt::white);
        if (proprias) {
            const ImagemCrua crua{reinterpret_cast<std::uint32_t*>(imagem.bits()),
                                  imagem.bytesPerLine() / 4, 628, 628};
            benchmark::DoNotOptimize(TracarSegmentos(crua, segmentos.data(), segmentos.size(),
                                                     0xFF0000FFu));
        } else {
            QPainter q(&imagem);
            q.setPen(QColor(0, 0, 255));
            for (const Segmento& s : segmentos)
                q.drawLine(QLineF(s.x1, s.y1, s.x2, s.y2));
        }
        benchmark::DoNotOptimize(imagem.bits());
    }
}
BENCHMARK_CAPTURE(LSistemaLinhas, PorLinhasDeVarrimento, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LSistemaLinhas, DrawLinePorSegmento, false)->Unit(benchmark::kMillisecond);

}  // namespace
