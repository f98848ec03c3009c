#pragma once
// The picture control: a drawing surface with a scale, pens and mouse events in the scale's
// units, kept in two layers.
//
// - The persistent image is what Copiar, Guardar and "persistent drawing on" use.
// - The screen image is what the user sees. While nothing non-persistent has been drawn it
//   *is* the persistent image (no second copy is made); the first non-persistent operation
//   (the XOR zoom box, say) detaches it, and Limpar or Refrescar joins the layers again.
//
// Hot loops write straight into the persistent image's scan lines through Linha(), then call
// Sujar() for the rectangle they touched: the screen is repainted at most about 60 times a
// second, and only where something changed.

#include <QElapsedTimer>
#include <QFrame>
#include <QImage>
#include <QRect>
#include <QTimer>

namespace lumerina {

enum class EstiloTraco { Continuo, Pontilhado };
enum class ModoDesenho { Copiar, Inverter };

class ControloImagem : public QFrame {
    Q_OBJECT
public:
    explicit ControloImagem(QWidget* pai = nullptr, int largura = 628, int altura = 628);

    // Clears both layers to the background colour.
    void Limpar();
    // Copies the persistent image back over the screen (drops what was drawn only on screen).
    void Refrescar();

    // Scale: pixels, or a user system given by its upper-left and lower-right corners.
    void EscalaPixeis();
    void Escala(double esquerda, double topo, double direita, double fundo);
    bool EmPixeis() const { return emPixeis_; }
    double LarguraEscala() const { return larguraEscala_; }  // ScaleWidth
    double AlturaEscala() const { return alturaEscala_; }    // ScaleHeight
    int LarguraPixeis() const { return persistente_.width(); }
    int AlturaPixeis() const { return persistente_.height(); }

    // Drawing in the current scale, pen, mode and persistence. A pixel drawn with a pen
    // wider than 1 is a round dot of the pen's width.
    void Pixel(double x, double y, QRgb cor);
    void Linha(double x1, double y1, double x2, double y2, QRgb cor);
    void Caixa(double x1, double y1, double x2, double y2, QRgb cor);
    void Texto(double x, double y, const QString& texto, QRgb cor);

    void DefinirEspessura(int pixeis) { espessura_ = pixeis < 1 ? 1 : pixeis; }
    void DefinirEstilo(EstiloTraco estilo) { estilo_ = estilo; }
    void DefinirModo(ModoDesenho modo) { modo_ = modo; }
    ModoDesenho Modo() const { return modo_; }
    void DefinirPersistente(bool ligado) { persistenteLigado_ = ligado; }
    bool Persistente() const { return persistenteLigado_; }
    // The pen every drawing starts with: width 1, solid, copy mode, persistent drawing on.
    void ReporCaneta();
    void DefinirCorFundo(QRgb cor) { corFundo_ = cor; }
    QRgb CorFundo() const { return corFundo_; }

    // New inner size in pixels; what was drawn stays at the top left.
    void Redimensionar(int largura, int altura);

    // The persistent image (what is copied and saved).
    const QImage& Imagem() const { return persistente_; }
    // What the user sees now.
    const QImage& ImagemEcra() const { return ecraSeparado_ ? ecra_ : persistente_; }

    // Direct access for hot loops: a scan line of the persistent image (Format_RGB32).
    QRgb* Linha(int y) { return reinterpret_cast<QRgb*>(persistente_.scanLine(y)); }
    // Marks a rectangle of the persistent image, written through Linha(), as changed: the
    // screen takes it too. With `agora` the screen is repainted synchronously (for drawings
    // that never yield), still at most ~60 times a second.
    void Sujar(const QRect& rect, bool agora = false);
    // The same for the screen layer alone, for points that must not reach the persistent
    // image (drawn "straight to the screen"): LinhaEcra detaches the screen layer first.
    QRgb* LinhaEcra(int y);
    void SujarEcra(const QRect& rect) { Agendar(rect); }
    // Shows whatever is still pending.
    void MostrarPendente();

    // Pixel <-> scale conversions.
    double PixelX(double x) const { return (x - esquerda_) * (persistente_.width() / larguraEscala_); }
    double PixelY(double y) const { return (y - topo_) * (persistente_.height() / alturaEscala_); }
    double EscalaX(double px) const { return esquerda_ + px * (larguraEscala_ / persistente_.width()); }
    double EscalaY(double py) const { return topo_ + py * (alturaEscala_ / persistente_.height()); }

signals:
    void RatoPremido(Qt::MouseButton botao, double x, double y);
    void RatoMovido(Qt::MouseButtons botoes, double x, double y);
    void RatoLargado(Qt::MouseButton botao, double x, double y);

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    // The layers an operation in the current persistence touches.
    template <class F> void NasCamadas(F&& desenhar);
    void SepararEcra();
    void PontoNaImagem(QImage& img, int x, int y, QRgb cor);
    void LinhaNaImagem(QImage& img, int x1, int y1, int x2, int y2, QRgb cor, int& fase);
    void CaixaNaImagem(QImage& img, int x1, int y1, int x2, int y2, QRgb cor);
    void CanetaLarga(QImage& img, const QRect* caixa, QLineF linha, QRgb cor);
    QPointF ParaPixel(double x, double y) const { return {PixelX(x), PixelY(y)}; }
    QPointF PosicaoRato(const QMouseEvent* evento) const;
    // Schedules the repaint of a rectangle already drawn on the screen layer.
    void Agendar(const QRect& rect, bool agora = false);
    void Mostrar(bool agora);

    QImage persistente_;
    QImage ecra_;
    bool ecraSeparado_ = false;

    bool emPixeis_ = true;
    double esquerda_ = 0, topo_ = 0, larguraEscala_ = 1, alturaEscala_ = 1;

    int espessura_ = 1;
    EstiloTraco estilo_ = EstiloTraco::Continuo;
    ModoDesenho modo_ = ModoDesenho::Copiar;
    bool persistenteLigado_ = true;
    QRgb corFundo_ = 0xFFFFFFFF;

    QRect sujo_;
    QElapsedTimer desdeUltimaPintura_;
    QTimer pintarDepois_;
};

}  // namespace lumerina
