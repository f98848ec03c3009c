#pragma once
// "DIMENSÃO FRACTAL" (Form15): the classic self-similar figures with N, r and
// D = log N / log(1/r); and the box-counting dimension of the picture on this page or of the
// current picture of another drawing page, with its table, log-log plot and least-squares line.

#include "app/PaginaBase.h"
#include "frame/Controlos.h"
#include "geometric/ContagemCaixas.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace lumerina {

class ControloImagem;
class JanelaDesenho;

class PaginaDimensao : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaDimensao(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    JanelaDesenho* Janela() const { return janela_; }

private:
    enum class Metodo { AutoSemelhanca, ContagemCaixas };

    void MudarMetodo();
    void DesenharFigura();
    void Medir();
    void MostrarMedicao(const Dimensao& d);
    void DesenharGrafico(const Dimensao& d);

    JanelaDesenho* janela_ = nullptr;
    GrupoOpcoes<Metodo> metodo_;
    QGroupBox* quadroFiguras_ = nullptr;
    QGroupBox* quadroCaixas_ = nullptr;
    QComboBox* figura_ = nullptr;
    QComboBox* origem_ = nullptr;
    QLabel* semelhanca_ = nullptr;
    QTableWidget* tabela_ = nullptr;
    QLabel* dimensao_ = nullptr;
    QLabel* ajuste_ = nullptr;
    ControloImagem* grafico_ = nullptr;
};

// The figure pixels of a picture: those whose colour differs from its background colour.
Mascara MascaraDaImagem(const ControloImagem& imagem);

}  // namespace lumerina
