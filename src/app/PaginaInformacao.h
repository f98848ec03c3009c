#pragma once
// The information pages "INSTRUÇÕES" (Form6, 26 pages), "COMENTÁRIOS" (Form8, 73 pages)
// and "SUGESTÕES" (Form13, 3 pages): prepared pages shown one at a time as pictures and
// turned with two arrows. The pages are text resources, rendered into their pictures the
// first time they are shown.

#include <QWidget>

#include <vector>

class QLabel;
class QToolButton;
class QPushButton;

namespace lumerina {

struct LivroInformacao {
    int numero;             // n of "Formn"
    const char* titulo;     // "INSTRUÇÕES", ...
    const char* pasta;      // resource folder of the pages, ":/info/<pasta>/NN.html"
    int paginas;            // P
};

const LivroInformacao& LivroInstrucoes();
const LivroInformacao& LivroComentarios();
const LivroInformacao& LivroSugestoes();

// The text of page k (1..P) of a book, from the resources; empty if it is missing.
QString TextoPaginaInformacao(const LivroInformacao& livro, int k);
// Page k rendered into a picture of the given size in device-independent pixels. A page
// too long for it is set smaller; `pontos`, when given, receives the type size used, or 0
// when even the smallest size does not fit.
QImage DesenharPaginaInformacao(const QString& html, QSize tamanho, qreal escala,
                                qreal* pontos = nullptr);

class PaginaInformacao : public QWidget {
    Q_OBJECT
public:
    static constexpr int kLarguraPagina = 800;
    static constexpr int kAlturaPagina = 580;

    PaginaInformacao(const LivroInformacao& livro, int inicio, QWidget* pai = nullptr);

    int PaginaActual() const { return k_; }

    void PaginaSeguinte();   // SetaD
    void PaginaAnterior();   // SetaE
    void Fechar();           // Command1 "Fechar"

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void MostrarImagem(int indice);
    void EsconderImagem(int indice);

    const LivroInformacao& livro_;
    std::vector<QLabel*> imagens_;  // Image1(1..P) at [0..P-1]
    // The pages that hold a picture, most recently shown last. A page's picture is a couple
    // of megabytes (more at high density): only the last few shown are kept.
    std::vector<int> desenhadas_;
    QToolButton* setaE_ = nullptr;
    QToolButton* setaD_ = nullptr;
    QLabel* label2_ = nullptr;
    int k_ = 1;
};

}  // namespace lumerina
