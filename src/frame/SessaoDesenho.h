#pragma once
// The frame of one drawing, from its first pixel to its end, as a scope: while it lives the
// page shows the hourglass, its draw buttons and Apagar/Copiar/Guardar are disabled and the
// picture draws persistently with a fresh pen. However the drawing ends (finished, abandoned
// because the program is ending, or returned from early) everything is given back. Only a
// drawing that reaches Concluir() sets the world scale and the drawn flag.
//
// One drawing runs at a time in the whole program: a drawing yields to the event loop, and
// a draw button of another page pressed inside that yield must not start a second drawing
// nested inside the first. LigarDesenho (frame/Controlos.h) asks EmCurso() before it draws.

#include <QPointer>

#include <initializer_list>
#include <vector>

class QPushButton;
class QWidget;

namespace lumerina {

class ControloImagem;
class JanelaDesenho;

class SessaoDesenho {
public:
    // A drawing in a page's drawing window: its picture, its registered draw buttons and
    // Apagar/Copiar/Guardar; or, on a page whose buttons stay live while it draws, none.
    enum class Botoes { Desactivados, Activos };
    explicit SessaoDesenho(JanelaDesenho& janela, Botoes botoes = Botoes::Desactivados);
    // A drawing in a bare picture (a page without a drawing window): the buttons given.
    SessaoDesenho(QWidget* pagina, ControloImagem* imagem, std::initializer_list<QPushButton*> botoes);
    ~SessaoDesenho();
    SessaoDesenho(const SessaoDesenho&) = delete;
    SessaoDesenho& operator=(const SessaoDesenho&) = delete;

    // The drawing is complete: in a drawing window, the picture takes the world scale (mouse
    // positions become world points) and the drawn flag is set.
    void Concluir();

    static bool EmCurso();

private:
    void Iniciar(ControloImagem* imagem);

    QPointer<JanelaDesenho> janela_;
    QPointer<QWidget> pagina_;
    QPointer<ControloImagem> imagem_;
    std::vector<QPointer<QPushButton>> botoes_;
};

}  // namespace lumerina
