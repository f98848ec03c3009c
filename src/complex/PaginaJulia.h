#pragma once
// "CONJUNTOS DE JULIA" (Form1): the filled Julia set of z <- z² + k by escape time, the Julia
// set by inverse iteration, and the escape-time pictures of k·sin z, k·cos z and k·exp z.

#include "app/PaginaBase.h"
#include "complex/Julia.h"
#include "frame/Controlos.h"

#include <vector>

class QComboBox;
class QLineEdit;

namespace lumerina {

class JanelaDesenho;

class PaginaJulia : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaJulia(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    JanelaDesenho* Janela() const { return janela_; }

private:
    void CarregarDesenhar();
    // The page's checks; false when the drawing must not go on (the valid flag, or an
    // expression the interpreter refused).
    bool ValidarJulia();
    // The five drawings: DesenharJuliaNormal, DesenharKapaSeno, DesenharKapaCoseno and
    // DesenharKapaExp by escape time, a column at a time; DesenharJuliaInversa.
    void DesenharTempoFuga(FamiliaJulia familia);
    void DesenharJuliaInversa();
    // C and D as their fields say; the drawing's world rectangle handed to the window.
    void LerK();

    // The family options: what each writes into the page.
    enum class Funcao { Normal, Inversa, Seno, Coseno, Exp };
    void EscolherFuncao(Funcao funcao);
    void EscolherValor(int primeiroSlot, int posicao);

    JanelaDesenho* janela_ = nullptr;
    GrupoOpcoes<Funcao> funcao_;
    GrupoOpcoes<ColoracaoJulia> coloracao_;
    QLineEdit* valorDeC_ = nullptr;
    QLineEdit* valorDeD_ = nullptr;
    QComboBox* combos_[4] = {};
    QLineEdit* numIteracoes_ = nullptr;
    SeletorCor* corA_ = nullptr;  // dialog A, "Cor interior"
    SeletorCor* corB_ = nullptr;  // dialog B, "Cor exterior"

    // Page state between events: the limits and N after the checks (all double precision),
    // k = C + D·i, the valid flag.
    double xmin_ = -1.5, xmax_ = 1.5, ymin_ = -1.5, ymax_ = 1.5;
    double N_ = 150;
    double C_ = 0, D_ = 0;
    bool valido_ = false;
    std::vector<int> contagens_;
};

}  // namespace lumerina
