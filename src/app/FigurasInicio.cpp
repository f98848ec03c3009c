#include "app/FigurasInicio.h"

#include "complex/Julia.h"
#include "complex/MetodoNewton.h"
#include "complex/TempoFuga.h"
#include "dynamics/Atractores.h"
#include "frame/EsquemaCores.h"
#include "geometric/Construcoes.h"
#include "geometric/LSistema.h"
#include "geometric/SistemaIFS.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <vector>

namespace lumerina {

namespace {

const QColor kFundo(0x10, 0x24, 0x4a);
const QColor kMoldura(0xf3, 0xc9, 0x69, 110);

// A blank picture of `tamanho` device-independent pixels at the given ratio.
QImage NovaFigura(QSize tamanho, qreal escala)
{
    QImage imagem(tamanho * escala, QImage::Format_RGB32);
    imagem.setDevicePixelRatio(escala);
    imagem.fill(kFundo);
    return imagem;
}

void Emoldurar(QImage& imagem)
{
    QPainter pintor(&imagem);
    pintor.setPen(kMoldura);
    const QSizeF t = imagem.deviceIndependentSize();
    pintor.drawRect(QRectF(0.5, 0.5, t.width() - 1, t.height() - 1));
}

// World window [x0, x1] centred on y = yc, with the picture's own aspect.
struct Janela {
    double x0, x1, y0, y1;
};

Janela JanelaCentrada(const QImage& imagem, double x0, double x1, double yc)
{
    const double meia = (x1 - x0) * imagem.height() / imagem.width() / 2;
    return {x0, x1, yc - meia, yc + meia};
}

// Escape-time style fill: colour(x, y) for the centre of every device pixel, row by row.
template <class F>
void PintarPixeis(QImage& imagem, const Janela& j, F&& cor)
{
    const int w = imagem.width(), h = imagem.height();
    for (int y = 0; y < h; ++y) {
        auto* linha = reinterpret_cast<QRgb*>(imagem.scanLine(y));
        const double wy = j.y1 - (y + 0.5) * (j.y1 - j.y0) / h;
        for (int x = 0; x < w; ++x)
            linha[x] = cor(j.x0 + (x + 0.5) * (j.x1 - j.x0) / w, wy);
    }
}

// Plots points given in world units, each as one device pixel blended towards `cor`.
void PintarPontos(QImage& imagem, const Janela& j, const std::vector<QPointF>& pontos,
                  QColor cor, double peso)
{
    const int w = imagem.width(), h = imagem.height();
    for (const QPointF& p : pontos) {
        const int x = int((p.x() - j.x0) / (j.x1 - j.x0) * w);
        const int y = int((j.y1 - p.y()) / (j.y1 - j.y0) * h);
        if (x < 0 || y < 0 || x >= w || y >= h)
            continue;
        QRgb& px = reinterpret_cast<QRgb*>(imagem.scanLine(y))[x];
        const auto mistura = [&](int de, int para) { return int(de + (para - de) * peso); };
        px = qRgb(mistura(qRed(px), cor.red()), mistura(qGreen(px), cor.green()),
                  mistura(qBlue(px), cor.blue()));
    }
}

}  // namespace

QImage FiguraMandelbrot(QSize tamanho, qreal escala)
{
    QImage imagem = NovaFigura(tamanho, escala);
    const int w = imagem.width(), h = imagem.height();
    const Janela j = JanelaCentrada(imagem, -2.45, 0.95, 0.0);
    // The page's kernel: column i, row counter j from the bottom, steps over W − 1 and H − 1.
    const VistaMundo vista{j.x0, j.x1, j.y0, float(j.y1), double(w), h};
    const int N = 96;
    EsquemaCores fogo;
    PreencherFogo(fogo);
    std::vector<int> contagens(std::size_t(h) + 1);
    for (int i = 0; i < w; ++i) {
        ColunaMandelbrot(VarianteMandel::Normal, vista, i, N, contagens.data());
        for (int jj = 0; jj < h; ++jj) {
            const int n = contagens[std::size_t(jj)];
            reinterpret_cast<QRgb*>(imagem.scanLine(h - 1 - jj))[i] =
                n == N ? qRgb(0x05, 0x08, 0x14) : CorEntrada(fogo, std::min(255, 2 * n));
        }
    }
    Emoldurar(imagem);
    return imagem;
}

QImage FiguraJulia(QSize tamanho, qreal escala)
{
    QImage imagem = NovaFigura(tamanho, escala);
    const int w = imagem.width(), h = imagem.height();
    const Janela j = JanelaCentrada(imagem, -1.75, 1.75, 0.0);
    // The Julia page's kernel for z² + k, k = −0.7269 + 0.1889 i, coloured through the blue
    // table; the same mapping of columns and rows as the Mandelbrot picture.
    const VistaJulia vista{j.x0, j.x1, j.y0, j.y1, double(w), h};
    const int limite = LimiteContagem(160);
    EsquemaCores azul;
    PreencherAzul(azul);
    std::vector<int> contagens(std::size_t(h) + 1);
    for (int i = 0; i < w; ++i) {
        ColunaJulia(vista, i, -0.7269, 0.1889, limite, contagens.data());
        for (int jj = 0; jj < h; ++jj) {
            const int n = contagens[std::size_t(jj)];
            reinterpret_cast<QRgb*>(imagem.scanLine(h - 1 - jj))[i] =
                n >= limite ? qRgb(0, 0, 0) : CorEntrada(azul, 1 + n * 4 % 255);
        }
    }
    Emoldurar(imagem);
    return imagem;
}

QImage FiguraNewton(QSize tamanho, qreal escala)
{
    QImage imagem = NovaFigura(tamanho, escala);
    const int w = imagem.width(), h = imagem.height();
    const Janela j = JanelaCentrada(imagem, -2.0, 2.0, 0.0);
    // The Newton page's kernel for z³ − 1: the steps each point needs to settle, coloured
    // as that page's "Multicor" colouring does.
    std::vector<double> ys(static_cast<std::size_t>(h));
    for (int jj = 0; jj < h; ++jj)
        ys[std::size_t(jj)] = j.y0 + (jj + 0.5) * (j.y1 - j.y0) / h;
    EsquemaCores tabela;
    PreencherTabelaNewton(TabelaDaCor(CorNewton::Multicor), tabela);
    std::vector<int> passos(static_cast<std::size_t>(h));
    for (int i = 0; i < w; ++i) {
        const double x = j.x0 + (i + 0.5) * (j.x1 - j.x0) / w;
        ColunaNewton(x, ys.data(), h, 3, nullptr, passos.data());
        for (int jj = 0; jj < h; ++jj)
            reinterpret_cast<QRgb*>(imagem.scanLine(h - 1 - jj))[i] =
                CorDosPassos(CorNewton::Multicor, passos[std::size_t(jj)], tabela);
    }
    Emoldurar(imagem);
    return imagem;
}

QImage FiguraFeto(QSize tamanho, qreal escala)
{
    QImage imagem = NovaFigura(tamanho, escala);
    // The IFS page's own system and random iteration, from a fixed seed. Lying on its side,
    // the fern fills the wide picture: its height runs across, growing to the right.
    const SistemaIFS* feto = SistemaIFSPorNome("Feto de Barnsley");
    std::vector<QPointF> pontos;
    if (feto) {
        IteracaoIFS iteracao(*feto);
        UniformeIFS uniforme(1994);
        const long long total = (long long)(14000 * escala * escala);
        pontos.reserve(std::size_t(total));
        iteracao.Avancar(total + kTransitorio, uniforme,
                         [&](float x, float y) { pontos.emplace_back(y, -x); });
    }
    QRectF caixa;
    for (const QPointF& p : pontos)
        caixa |= QRectF(p, QSizeF(1e-9, 1e-9));
    if (!caixa.isEmpty()) {
        const double margem = 0.04 * caixa.width();
        const Janela j = JanelaCentrada(imagem, caixa.left() - margem, caixa.right() + margem,
                                        caixa.center().y());
        PintarPontos(imagem, j, pontos, QColor(0x7c, 0xe0, 0x6a), 0.55);
    }
    Emoldurar(imagem);
    return imagem;
}

QImage FiguraSierpinski(QSize tamanho, qreal escala)
{
    QImage imagem = NovaFigura(tamanho, escala);
    {
        QPainter pintor(&imagem);
        pintor.setRenderHint(QPainter::Antialiasing);
        const QSizeF t = imagem.deviceIndependentSize();
        const double margem = 6;
        const double lado = std::min(t.width() - 2 * margem,
                                     (t.height() - 2 * margem) * 2 / std::sqrt(3.0));
        const QPointF origem((t.width() - lado) / 2, t.height() - margem);
        pintor.setPen(Qt::NoPen);
        pintor.setBrush(QColor(0xf3, 0xc9, 0x69));
        for (const Triangulo& tr : TrianguloSierpinski(5)) {
            const auto p = [&](Ponto q) { return origem + QPointF(q.x * lado, -q.y * lado); };
            pintor.drawPolygon(QPolygonF({p(tr.a), p(tr.b), p(tr.c)}));
        }
    }
    Emoldurar(imagem);
    return imagem;
}

QImage FiguraAtractor(QSize tamanho, qreal escala)
{
    QImage imagem = NovaFigura(tamanho, escala);
    // The attractors page's Lorenz stepper with Lorenz's own constants (σ = 10, ρ = 28,
    // β = 8/3), plotted as that page plots it, (x/2, z/2): the two wings side by side.
    Atractor lorenz = Lorenz{.a = 10, .b = 28, .c = 8.0 / 3};
    constexpr int kTransitorio = 2000, kPontos = 40000;
    std::vector<Ponto> pontos(kTransitorio + kPontos);
    Pontos(lorenz, pontos.data(), int(pontos.size()));
    std::vector<QPointF> linha;
    linha.reserve(kPontos);
    for (std::size_t k = kTransitorio; k < pontos.size(); ++k)
        linha.emplace_back(pontos[k].x, pontos[k].y);
    {
        QPainter pintor(&imagem);
        pintor.setRenderHint(QPainter::Antialiasing);
        const QSizeF t = imagem.deviceIndependentSize();
        // x/2 in [−11, 11] and z/2 in [1, 25] fill the height; the width is centred.
        const double porUnidade = (t.height() - 8) / 24.0;
        QTransform mundo;
        mundo.translate(t.width() / 2, t.height() - 4 + 1 * porUnidade);
        mundo.scale(porUnidade, -porUnidade);
        pintor.setTransform(mundo);
        pintor.setPen(QPen(QColor(0xff, 0x9e, 0x5e, 150), 0));
        pintor.drawPolyline(linha.data(), int(linha.size()));
    }
    Emoldurar(imagem);
    return imagem;
}

QImage FiguraPlanta(QSize tamanho, qreal escala)
{
    QImage imagem = NovaFigura(tamanho, escala);
    // The L-systems page's rewriting and turtle: F -> FF-[-F+F+F]+[+F-F-F] three times,
    // turning 22.5° either way. The turtle takes long steps upwards (it rounds its position
    // to whole units), and the plant is then scaled into the picture.
    const std::u16string programa = Reescrever(u"F", u"FF-[-F+F+F]+[+F-F-F]", 3);
    Tartaruga tartaruga;
    tartaruga.Partida({.x = 0.0, .y = 0.0, .inicio = -200.0, .angPos = 22.5, .angNeg = -22.5,
                       .reducao = 1.0});
    std::vector<Segmento> tracos(std::size_t(std::count(programa.begin(), programa.end(), u'F')));
    std::size_t posicao = 0;
    tracos.resize(tartaruga.Percorrer(programa, posicao, tracos.data(), tracos.size()));
    QRectF caixa;
    for (const Segmento& t : tracos)
        caixa |= QRectF(QPointF(t.x1, t.y1), QPointF(t.x2, t.y2)).normalized();
    {
        QPainter pintor(&imagem);
        pintor.setRenderHint(QPainter::Antialiasing);
        const QSizeF tela = imagem.deviceIndependentSize();
        const double margem = 5;
        const double porUnidade = std::min((tela.width() - 2 * margem) / caixa.width(),
                                           (tela.height() - 2 * margem) / caixa.height());
        QTransform mundo;
        mundo.translate(tela.width() / 2, tela.height() - margem);
        mundo.scale(porUnidade, porUnidade);
        mundo.translate(-caixa.center().x(), -caixa.bottom());
        pintor.setTransform(mundo);
        pintor.setPen(QPen(QColor(0x9c, 0xd8, 0x6b), 0));
        for (const Segmento& t : tracos)
            pintor.drawLine(QLineF(t.x1, t.y1, t.x2, t.y2));
    }
    Emoldurar(imagem);
    return imagem;
}

}  // namespace lumerina
