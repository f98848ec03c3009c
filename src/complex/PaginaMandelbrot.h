#pragma once
// "CONJUNTO DE MANDELBROT" (Form2): six escape-time sets z <- z^d + c and z <- conj(z)^d + c,
// d = 2, 3, 4, over the world rectangle of the drawing window, in seven colourings.

#include "app/PaginaBase.h"
#include "complex/TempoFuga.h"
#include "frame/EsquemaCores.h"

#include <QColor>

#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace lumerina {

class JanelaDesenho;

class PaginaMandelbrot : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaMandelbrot(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    JanelaDesenho* Janela() const { return janela_; }

private:
    void CarregarDesenhar();
    void DesenharMandelNormal() { Desenhar(VarianteMandel::Normal); }
    void DesenharMandelCubo() { Desenhar(VarianteMandel::Cubo); }
    void DesenharMandelQuarta() { Desenhar(VarianteMandel::Quarta); }
    void DesenharMandelConj() { Desenhar(VarianteMandel::Conj); }
    void DesenharMandelConjCubo() { Desenhar(VarianteMandel::ConjCubo); }
    void DesenharMandelConjQuarta() { Desenhar(VarianteMandel::ConjQuarta); }
    // The one drawing procedure; the variants differ only in their step.
    void Desenhar(VarianteMandel variante);
    // The page's checks in their order; true when the drawing may go on (the valid flag).
    bool ValidarMandelbrot();
    // N as the field says now, when it is a usable count; otherwise the one in force.
    int ReLerIteracoes(int emVigor) const;
    OpcoesCor ColoracaoActual() const;
    void EscreverColunas(int primeira, int ultima);
    void EscolherCorInterior();
    void EscolherCorExterior();

    JanelaDesenho* janela_ = nullptr;
    QRadioButton* mandelNormal_ = nullptr;
    QRadioButton* mandelCubo_ = nullptr;
    QRadioButton* mandelQuarta_ = nullptr;
    QRadioButton* mandelConj_ = nullptr;
    QRadioButton* mandelConjCubo_ = nullptr;
    QRadioButton* mandelConjQuarta_ = nullptr;
    QRadioButton* corVermelho_ = nullptr;
    QRadioButton* corAzul_ = nullptr;
    QRadioButton* corFogo_ = nullptr;
    QRadioButton* corMulticor_ = nullptr;
    QRadioButton* semLinhas_ = nullptr;
    QRadioButton* linhasTipo1_ = nullptr;
    QRadioButton* linhasTipo2_ = nullptr;
    QLineEdit* maxIteracoes_ = nullptr;
    QLabel* amostraInterior_ = nullptr;
    QLabel* amostraExterior_ = nullptr;
    QPushButton* desenhar_ = nullptr;

    // Page state between events.
    double W_ = 628;        // picture's inner width in pixels (floating, as the loops use it)
    int H_ = 628;
    int N_ = 150;
    QColor corInterior_ = Qt::black;
    QColor corExterior_ = Qt::black;
    EsquemaCores paleta_{};
    static constexpr int kBloco = 16;  // columns written to the picture together
    std::vector<int> contagens_;
    std::vector<Cor> cores_;           // kBloco columns of H + 1 colours
};

}  // namespace lumerina
