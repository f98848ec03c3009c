#pragma once
// A read-only text box for one very long line (an L-system's rewritten string runs to millions
// of characters). The text is shown in a fixed-pitch font, broken into rows of as many
// characters as the width holds, and only the rows in view are laid out, so taking a new
// string costs nothing however long it is. It scrolls, selects with the mouse or the keyboard
// (Shift with the arrows, Ctrl+A) and copies the selection (Ctrl+C or the context menu).

#include <QAbstractScrollArea>
#include <QString>

#include <cstddef>
#include <string>

namespace lumerina {

class CaixaTextoLongo : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit CaixaTextoLongo(QWidget* pai = nullptr);

    // Takes the string over; the selection is dropped and the view goes back to the top.
    void DefinirTexto(std::u16string texto);
    const std::u16string& Texto() const { return texto_; }
    QString TextoQt() const { return QString::fromStdU16String(texto_); }

    // Selection as [inicio, fim) in characters.
    void Seleccionar(std::size_t inicio, std::size_t fim);
    void SeleccionarTudo() { Seleccionar(0, texto_.size()); }
    QString TextoSeleccionado() const;
    void CopiarSeleccao() const;

    // Characters a row holds at the present width.
    int ColunasPorLinha() const;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

private:
    std::size_t Linhas() const;
    int LinhasVisiveis() const;
    void ActualizarBarra();
    // The character boundary nearest to a point of the viewport.
    std::size_t PosicaoEm(QPoint ponto) const;
    void MoverCursor(std::size_t posicao, bool estender);
    void MostrarCursor();

    std::u16string texto_;
    std::size_t ancora_ = 0, cursor_ = 0;  // the selection runs between them
    int larguraLetra_ = 8, alturaLinha_ = 16, margem_ = 3;
};

}  // namespace lumerina
