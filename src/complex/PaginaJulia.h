#pragma once
// "CONJUNTOS DE JULIA" (Form1): the filled Julia set of z <- z² + k by escape time, the Julia
// set by inverse iteration, and the escape-time pictures of k·sin z, k·cos z and k·exp z.

#include "app/PaginaBase.h"
#include "complex/Julia.h"

#include <QColor>
#include <QString>

#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

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
    void DesenharJuliaNormal() { DesenharTempoFuga(FamiliaJulia::Normal); }
    void DesenharJuliaInversa();
    void DesenharKapaSeno() { DesenharTempoFuga(FamiliaJulia::Seno); }
    void DesenharKapaCoseno() { DesenharTempoFuga(FamiliaJulia::Coseno); }
    void DesenharKapaExp() { DesenharTempoFuga(FamiliaJulia::Exp); }
    void DesenharTempoFuga(FamiliaJulia familia);
    ColoracaoJulia ColoracaoActual() const;

    // Family options and lists.
    struct Familia;
    void EscolherFamilia(const Familia& familia);
    void EscolherValor(int primeiroSlot, int posicao);
    void EscolherCorA();
    void EscolherCorB();

    JanelaDesenho* janela_ = nullptr;
    QRadioButton* iteracaoNormal_ = nullptr;
    QRadioButton* iteracaoInversa_ = nullptr;
    QRadioButton* kapaSenoZ_ = nullptr;
    QRadioButton* kapaCosenoZ_ = nullptr;
    QRadioButton* kapaExpZ_ = nullptr;
    QLineEdit* valorDeC_ = nullptr;
    QLineEdit* valorDeD_ = nullptr;
    QComboBox* combos_[4] = {};
    QLineEdit* numIteracoes_ = nullptr;
    QRadioButton* linhasTipo2_ = nullptr;
    QRadioButton* semLinhas_ = nullptr;
    QLabel* amostraA_ = nullptr;
    QLabel* amostraB_ = nullptr;
    QPushButton* desenhar_ = nullptr;

    // Page state between events.
    double xmin_ = -1.5, xmax_ = 1.5, ymin_ = -1.5, ymax_ = 1.5;
    double N_ = 150;
    double C_ = 0, D_ = 0;
    double W_ = 628;
    int H_ = 628;
    bool valido_ = false;
    QColor corA_;  // dialog A, "Cor interior"
    QColor corB_;  // dialog B, "Cor exterior"
};

}  // namespace lumerina
