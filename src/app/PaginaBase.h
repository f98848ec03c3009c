#pragma once
// A page of the program: a top-level window with the common menu bar, a title label and a
// fixed-size area laid out for a 1024 x 768 screen. Topic pages derive from it.

#include <QMainWindow>

class QLabel;

namespace lumerina {

struct DescricaoPagina {
    int numero;                // n of "Formn"
    const char* titulo;        // the big title label, e.g. "CONJUNTO DE MANDELBROT"
    const char* tituloJanela;  // the window's caption
    int paginaInstrucoes;      // where "Instruções" opens from this page
    int paginaComentarios;     // where "Comentários" opens from this page
};

class PaginaBase : public QMainWindow {
    Q_OBJECT
public:
    // Content area of every page, in pixels: what fits a 1024 x 768 screen under the
    // window's caption and the menu bar.
    static constexpr int kLargura = 1012;
    static constexpr int kAltura = 672;
    // The drawing pages: the picture on the left, the controls in a panel on the right.
    static constexpr int kPainelX = 668;
    static constexpr int kPainelLargura = 336;

    explicit PaginaBase(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    int Numero() const { return descricao_.numero; }
    bool Inicial() const;
    int PaginaInstrucoesPropria() const { return descricao_.paginaInstrucoes; }
    int PaginaComentariosPropria() const { return descricao_.paginaComentarios; }
    QWidget* Area() const { return area_; }
    QLabel* Titulo() const { return titulo_; }
    // The title in 14-point type over a column (by default the drawing pages' panel).
    void ColocarTitulo(int x = kPainelX, int largura = kPainelLargura, int altura = 28);

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    DescricaoPagina descricao_;
    QWidget* area_;
    QLabel* titulo_;
};

}  // namespace lumerina
