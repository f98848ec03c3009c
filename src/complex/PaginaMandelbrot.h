#pragma once
// "CONJUNTO DE MANDELBROT" (Form2): six escape-time sets z <- z^d + c and z <- conj(z)^d + c,
// d = 2, 3, 4, over the world rectangle of the drawing window, in seven colourings.

#include "app/PaginaBase.h"
#include "complex/TempoFuga.h"
#include "frame/Controlos.h"
#include "frame/EsquemaCores.h"

#include <vector>

class QLineEdit;

namespace lumerina {

class JanelaDesenho;

class PaginaMandelbrot : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaMandelbrot(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    JanelaDesenho* Janela() const { return janela_; }

private:
    // A colouring option: how a count becomes a colour, and the table it fills (palettes).
    struct Coloracao_ {
        Coloracao modo;
        void (*preencher)(EsquemaCores&);
    };

    void CarregarDesenhar();
    // The one drawing procedure; the variants differ only in their step.
    void Desenhar(VarianteMandel variante);
    // The page's checks in their order; true when the drawing may go on (the valid flag).
    bool ValidarMandelbrot();
    // N as the field says now, when it is a usable count; otherwise the one in force.
    int ReLerIteracoes(int emVigor) const;

    JanelaDesenho* janela_ = nullptr;
    GrupoOpcoes<VarianteMandel> conjunto_;
    GrupoOpcoes<Coloracao_> cores_;
    QLineEdit* maxIteracoes_ = nullptr;
    SeletorCor* corInterior_ = nullptr;
    SeletorCor* corExterior_ = nullptr;

    int N_ = 150;
    EsquemaCores paleta_{};
    std::vector<int> contagens_;
};

}  // namespace lumerina
