#pragma once
// "SISTEMAS DE FUNÇÃO ITERADA" (Form10): each button of the two "Exemplos" frames draws one
// system of the catalogue by random iteration, over whatever is already in the picture.

#include "app/PaginaBase.h"

#include <QColor>

class QGroupBox;
class QLineEdit;

namespace lumerina {

class ControloImagem;
class JanelaDesenho;
struct SistemaIFS;

class PaginaIFS : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaIFS(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    JanelaDesenho* Janela() const { return janela_; }
    // Picture2: the surface stacked over Picture1 on which the points are seen arriving.
    ControloImagem* Imagem2() const { return imagem2_; }

private:
    void DesenharSistema(const SistemaIFS& sistema);
    // The count of NumIteraçõesIFS, or a message and false.
    bool LerIteracoes(long long& iteracoes);
    void EscolherCorImagem();
    void EscolherCorFundo();

    JanelaDesenho* janela_ = nullptr;
    ControloImagem* imagem2_ = nullptr;
    QLineEdit* numIteracoes_ = nullptr;
    QGroupBox* exemplos1_ = nullptr;
    QGroupBox* exemplos2_ = nullptr;
    QColor corImagem_ = Qt::black;
    QColor corFundo_ = Qt::white;
};

}  // namespace lumerina
