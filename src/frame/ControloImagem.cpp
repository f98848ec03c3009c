#include "frame/ControloImagem.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lumerina {

namespace {
constexpr int kIntervaloPintura = 16;  // ms: about 60 repaints a second

// Cohen-Sutherland against [-1, xmax] x [-1, ymax]. Each cut puts the moved end exactly on
// the edge and interpolates only the other coordinate, so that even ends at 1e300 give the
// visible piece to the pixel. False when nothing of the segment is inside.
bool Recortar(double& x1, double& y1, double& x2, double& y2, double xmax, double ymax)
{
    const auto codigo = [&](double x, double y) {
        return (x < -1 ? 1 : 0) | (x > xmax ? 2 : 0) | (y < -1 ? 4 : 0) | (y > ymax ? 8 : 0);
    };
    int c1 = codigo(x1, y1), c2 = codigo(x2, y2);
    for (int passo = 0; passo < 8; ++passo) {
        if ((c1 | c2) == 0)
            return true;
        if (c1 & c2)
            return false;
        const bool primeiro = c1 != 0;
        double& x = primeiro ? x1 : x2;
        double& y = primeiro ? y1 : y2;
        const double ox = primeiro ? x2 : x1, oy = primeiro ? y2 : y1;
        const int c = primeiro ? c1 : c2;
        if (c & 1) { y = y + (oy - y) * ((-1 - x) / (ox - x)); x = -1; }
        else if (c & 2) { y = y + (oy - y) * ((xmax - x) / (ox - x)); x = xmax; }
        else if (c & 4) { x = x + (ox - x) * ((-1 - y) / (oy - y)); y = -1; }
        else { x = x + (ox - x) * ((ymax - y) / (oy - y)); y = ymax; }
        (primeiro ? c1 : c2) = codigo(x, y);
    }
    return (c1 | c2) == 0;
}

int Arredondar(double v)
{
    // Coordinates far outside the picture (or not numbers at all) are sent well off it
    // before the conversion to int.
    if (std::isnan(v))
        return -10'000'000;
    v = std::clamp(v, -1.0e7, 1.0e7);
    return static_cast<int>(std::floor(v + 0.5));
}
}  // namespace

ControloImagem::ControloImagem(QWidget* pai, int largura, int altura) : QFrame(pai)
{
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setLineWidth(1);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    pintarDepois_.setSingleShot(true);
    connect(&pintarDepois_, &QTimer::timeout, this, [this] { Mostrar(false); });
    desdeUltimaPintura_.start();
    persistente_ = QImage(1, 1, QImage::Format_RGB32);
    Redimensionar(largura, altura);
    Limpar();
}

void ControloImagem::Limpar()
{
    persistente_.fill(corFundo_);
    ecraSeparado_ = false;
    ecra_ = QImage();
    Agendar(persistente_.rect());
}

void ControloImagem::Refrescar()
{
    ecraSeparado_ = false;
    ecra_ = QImage();
    Agendar(persistente_.rect());
}

void ControloImagem::ReporCaneta()
{
    espessura_ = 1;
    estilo_ = EstiloTraco::Continuo;
    modo_ = ModoDesenho::Copiar;
    persistenteLigado_ = true;
}

void ControloImagem::EscalaPixeis()
{
    emPixeis_ = true;
    esquerda_ = 0;
    topo_ = 0;
    larguraEscala_ = persistente_.width();
    alturaEscala_ = persistente_.height();
}

void ControloImagem::Escala(double esquerda, double topo, double direita, double fundo)
{
    emPixeis_ = false;
    esquerda_ = esquerda;
    topo_ = topo;
    larguraEscala_ = direita - esquerda;
    alturaEscala_ = fundo - topo;
    // A degenerate scale would divide by zero in every conversion; keep the last usable one.
    if (larguraEscala_ == 0 || !std::isfinite(larguraEscala_))
        larguraEscala_ = persistente_.width();
    if (alturaEscala_ == 0 || !std::isfinite(alturaEscala_))
        alturaEscala_ = persistente_.height();
}

void ControloImagem::Redimensionar(int largura, int altura)
{
    largura = std::max(largura, 1);
    altura = std::max(altura, 1);
    if (largura != persistente_.width() || altura != persistente_.height()) {
        QImage nova(largura, altura, QImage::Format_RGB32);
        nova.fill(corFundo_);
        QPainter p(&nova);
        p.drawImage(0, 0, persistente_);
        p.end();
        persistente_ = std::move(nova);
        if (ecraSeparado_) {
            QImage novoEcra = persistente_.copy();
            QPainter q(&novoEcra);
            q.drawImage(0, 0, ecra_);
            q.end();
            ecra_ = std::move(novoEcra);
        }
    }
    if (emPixeis_)
        EscalaPixeis();
    const int borda = frameWidth();
    setFixedSize(largura + 2 * borda, altura + 2 * borda);
    update();
}

void ControloImagem::SepararEcra()
{
    if (!ecraSeparado_) {
        ecra_ = persistente_.copy();
        ecraSeparado_ = true;
    }
}

template <class F> void ControloImagem::NasCamadas(F&& desenhar)
{
    if (persistenteLigado_) {
        desenhar(persistente_);
        if (ecraSeparado_)
            desenhar(ecra_);
    } else {
        SepararEcra();
        desenhar(ecra_);
    }
}

void ControloImagem::PontoNaImagem(QImage& img, int x, int y, QRgb cor)
{
    if (x < 0 || y < 0 || x >= img.width() || y >= img.height())
        return;
    QRgb& p = reinterpret_cast<QRgb*>(img.scanLine(y))[x];
    p = modo_ == ModoDesenho::Inverter ? (p ^ 0x00FFFFFFu) : (cor | 0xFF000000u);
}

// Bresenham. A dotted pen lights every other pixel; `fase` carries the pattern from one
// segment to the next, so that a box's dots run on round its corners.
void ControloImagem::LinhaNaImagem(QImage& img, int x1, int y1, int x2, int y2, QRgb cor,
                                   int& fase)
{
    const int dx = std::abs(x2 - x1), sx = x1 < x2 ? 1 : -1;
    const int dy = -std::abs(y2 - y1), sy = y1 < y2 ? 1 : -1;
    int erro = dx + dy;
    for (;;) {
        if (estilo_ == EstiloTraco::Continuo || (fase & 1) == 0)
            PontoNaImagem(img, x1, y1, cor);
        ++fase;
        if (x1 == x2 && y1 == y2)
            break;
        const int e2 = 2 * erro;
        if (e2 >= dy) { erro += dy; x1 += sx; }
        if (e2 <= dx) { erro += dx; y1 += sy; }
    }
}

// The outline visits every pixel once, so that in invert mode a second identical box
// restores the picture exactly.
void ControloImagem::CaixaNaImagem(QImage& img, int x1, int y1, int x2, int y2, QRgb cor)
{
    if (x1 > x2) std::swap(x1, x2);
    if (y1 > y2) std::swap(y1, y2);
    int fase = 0;
    LinhaNaImagem(img, x1, y1, x2, y1, cor, fase);
    if (y2 > y1)
        LinhaNaImagem(img, x2, y1 + 1, x2, y2, cor, fase);
    if (y2 > y1 && x2 > x1)
        LinhaNaImagem(img, x2 - 1, y2, x1, y2, cor, fase);
    if (y2 > y1 + 1 && x2 > x1)
        LinhaNaImagem(img, x1, y2 - 1, x1, y1 + 1, cor, fase);
}

void ControloImagem::CanetaLarga(QImage& img, const QRect* caixa, QLineF linha, QRgb cor)
{
    QPainter p(&img);
    QPen caneta{QColor::fromRgb(cor)};
    caneta.setWidth(espessura_);
    caneta.setStyle(estilo_ == EstiloTraco::Pontilhado ? Qt::DotLine : Qt::SolidLine);
    p.setPen(caneta);
    if (modo_ == ModoDesenho::Inverter)
        p.setCompositionMode(QPainter::RasterOp_NotDestination);
    if (caixa)
        p.drawRect(*caixa);
    else
        p.drawLine(linha);
}

void ControloImagem::Pixel(double x, double y, QRgb cor)
{
    const int px = Arredondar(PixelX(x)), py = Arredondar(PixelY(y));
    // A wide pen sets a square dot of its width centred on the point.
    const int r = (espessura_ - 1) / 2;
    const QRect ponto(px - r, py - r, espessura_, espessura_);
    NasCamadas([&](QImage& img) {
        for (int v = ponto.top(); v <= ponto.bottom(); ++v)
            for (int u = ponto.left(); u <= ponto.right(); ++u)
                PontoNaImagem(img, u, v, cor);
    });
    Agendar(ponto);
}

void ControloImagem::Linha(double x1, double y1, double x2, double y2, QRgb cor)
{
    double pa = PixelX(x1), pb = PixelY(y1), pc = PixelX(x2), pd = PixelY(y2);
    const double w = persistente_.width(), h = persistente_.height();
    const auto fora = [&](double x, double y) { return !(x >= -1 && x <= w && y >= -1 && y <= h); };
    if (std::isnan(pa + pb + pc + pd))
        return;
    // Only a segment that leaves the picture is clipped, so lines inside keep their exact ends.
    if ((fora(pa, pb) || fora(pc, pd)) && !Recortar(pa, pb, pc, pd, w, h))
        return;
    const int a = Arredondar(pa), b = Arredondar(pb);
    const int c = Arredondar(pc), d = Arredondar(pd);
    NasCamadas([&](QImage& img) {
        if (espessura_ == 1) {
            int fase = 0;
            LinhaNaImagem(img, a, b, c, d, cor, fase);
        } else {
            CanetaLarga(img, nullptr, QLineF(a, b, c, d), cor);
        }
    });
    Agendar(QRect(QPoint(std::min(a, c), std::min(b, d)), QPoint(std::max(a, c), std::max(b, d)))
                .adjusted(-espessura_, -espessura_, espessura_, espessura_));
}

void ControloImagem::Caixa(double x1, double y1, double x2, double y2, QRgb cor)
{
    // Sides beyond the picture are invisible: pulling them in to just outside changes nothing
    // on screen and keeps the outline short.
    const int w = persistente_.width(), h = persistente_.height();
    const int a = std::clamp(Arredondar(PixelX(x1)), -1, w), b = std::clamp(Arredondar(PixelY(y1)), -1, h);
    const int c = std::clamp(Arredondar(PixelX(x2)), -1, w), d = std::clamp(Arredondar(PixelY(y2)), -1, h);
    const QRect caixa(QPoint(std::min(a, c), std::min(b, d)), QPoint(std::max(a, c), std::max(b, d)));
    NasCamadas([&](QImage& img) {
        if (espessura_ == 1)
            CaixaNaImagem(img, a, b, c, d, cor);
        else
            CanetaLarga(img, &caixa, {}, cor);
    });
    Agendar(caixa.adjusted(-espessura_, -espessura_, espessura_, espessura_));
}

void ControloImagem::Texto(double x, double y, const QString& texto, QRgb cor)
{
    const QPointF canto = ParaPixel(x, y);
    QRect tocado;
    NasCamadas([&](QImage& img) {
        QPainter p(&img);
        p.setFont(font());
        p.setPen(QColor::fromRgb(cor));
        if (modo_ == ModoDesenho::Inverter)
            p.setCompositionMode(QPainter::RasterOp_NotDestination);
        const QRectF area(canto, QSizeF(img.width(), img.height()));
        QRectF usada;
        p.drawText(area, Qt::AlignLeft | Qt::AlignTop, texto, &usada);
        tocado = usada.toAlignedRect();
    });
    Agendar(tocado);
}

void ControloImagem::Sujar(const QRect& rect, bool agora)
{
    const QRect util = rect.intersected(persistente_.rect());
    if (util.isEmpty())
        return;
    if (ecraSeparado_) {
        // The persistent image changed under something drawn on screen only (a zoom box
        // dragged during a drawing, say): the screen shows the new pixels, as a repaint from
        // the persistent image would.
        QPainter p(&ecra_);
        p.setCompositionMode(QPainter::CompositionMode_Source);
        p.drawImage(util.topLeft(), persistente_, util);
    }
    Agendar(util, agora);
}

QRgb* ControloImagem::LinhaEcra(int y)
{
    SepararEcra();
    return reinterpret_cast<QRgb*>(ecra_.scanLine(y));
}

void ControloImagem::Agendar(const QRect& rect, bool agora)
{
    const QRect util = rect.intersected(persistente_.rect());
    if (util.isEmpty())
        return;
    sujo_ |= util;
    // A repaint is already due: it will show this too. (Drawings that never yield cannot
    // wait for the timer, so they look at the clock every time.)
    if (!agora && pintarDepois_.isActive())
        return;
    if (desdeUltimaPintura_.elapsed() >= kIntervaloPintura)
        Mostrar(agora);
    else if (!pintarDepois_.isActive())
        pintarDepois_.start(kIntervaloPintura);
}

void ControloImagem::MostrarPendente()
{
    if (!sujo_.isEmpty())
        Mostrar(false);
}

void ControloImagem::Mostrar(bool agora)
{
    pintarDepois_.stop();
    const QRect alvo = sujo_.translated(contentsRect().topLeft());
    sujo_ = QRect();
    desdeUltimaPintura_.restart();
    if (agora)
        repaint(alvo);
    else
        update(alvo);
}

void ControloImagem::paintEvent(QPaintEvent* evento)
{
    QPainter p(this);
    const QRect interior = contentsRect();
    const QRect alvo = evento->rect().intersected(interior);
    if (!alvo.isEmpty())
        p.drawImage(alvo.topLeft(), ImagemEcra(), alvo.translated(-interior.topLeft()));
    drawFrame(&p);  // QFrame's own border
}

QPointF ControloImagem::PosicaoRato(const QMouseEvent* evento) const
{
    const QPointF px = evento->position() - contentsRect().topLeft();
    return {EscalaX(std::floor(px.x())), EscalaY(std::floor(px.y()))};
}

void ControloImagem::mousePressEvent(QMouseEvent* evento)
{
    const QPointF p = PosicaoRato(evento);
    emit RatoPremido(evento->button(), p.x(), p.y());
}

void ControloImagem::mouseMoveEvent(QMouseEvent* evento)
{
    const QPointF p = PosicaoRato(evento);
    emit RatoMovido(evento->buttons(), p.x(), p.y());
}

void ControloImagem::mouseReleaseEvent(QMouseEvent* evento)
{
    const QPointF p = PosicaoRato(evento);
    emit RatoLargado(evento->button(), p.x(), p.y());
}

}  // namespace lumerina
