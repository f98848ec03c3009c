#pragma once
// "MÉTODO DE NEWTON" (Form7): the basins of Newton's method for zⁿ − 1 = 0 over the world
// rectangle of the drawing window, each point coloured by the number of steps it needs to
// settle, in twenty colourings; plainly, or with each point's iteration started from its
// image under an inversion.

#include "app/PaginaBase.h"
#include "complex/MetodoNewton.h"
#include "frame/Controlos.h"
#include "frame/EsquemaCores.h"

#include <vector>

class QLineEdit;

namespace lumerina {

class JanelaDesenho;

class PaginaNewton : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaNewton(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    JanelaDesenho* Janela() const { return janela_; }

private:
    // The page's checks in their order; true when the drawing may go on.
    bool ValidarNewton();
    // The degree the field holds now, when the checks would take it; otherwise the one in
    // force.
    int ReLerGrau(int emVigor) const;
    // The one drawing: plain (no inversion) or with the inversion read from its fields.
    void Desenhar(bool comInversao);

    JanelaDesenho* janela_ = nullptr;
    QLineEdit* expoente_ = nullptr;
    QLineEdit* factor_ = nullptr;
    QLineEdit* xzero_ = nullptr;
    QLineEdit* yzero_ = nullptr;
    GrupoOpcoes<CorNewton> cores_;

    // Page state between events.
    int grau_ = 3;             // the degree the checks accepted
    EsquemaCores paleta_{};    // filled as a drawing starts, when the colouring has a table
    std::vector<int> passos_;  // steps of the column being drawn
};

}  // namespace lumerina
