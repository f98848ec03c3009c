#pragma once
// "JOGO DO CAOS" (Form11): the chaos game, a step a press or 100 000 steps at once, and the
// copy machine, which sends a figure through the three Sierpinski maps level by level.

#include "app/PaginaBase.h"
#include "geometric/JogoCaos.h"

#include <QColor>

#include <array>

class QLabel;

namespace lumerina {

class JanelaDesenho;

class PaginaJogoCaos : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaJogoCaos(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    JanelaDesenho* Janela() const { return janela_; }
    // The copy machine's current figure.
    const FiguraCaos& Figura() const { return figura_; }
    Ponto PontoActual() const { return ponto_; }

    enum Tipo { Letras, Circulo, Quadrado, Utilizador, kTipos };

private:
    void Iniciar();
    void Continuar();
    void Automatico();
    void DesenharFigura(Tipo tipo);
    void Transformar(Tipo tipo, int nivel);
    void RatoPremido(Qt::MouseButton botao, double x, double y);
    void RatoMovido(Qt::MouseButtons botoes, double x, double y);
    void AcrescentarPonto(double x, double y);
    // Cleared picture in the (−1, 1)–(1, −1) scale.
    void PrepararImagem();
    void MostrarFigura();
    void EscolherCorImagem();
    void EscolherCorFundo();

    JanelaDesenho* janela_ = nullptr;
    QLabel* vertice_ = nullptr;
    QLabel* iteracoes_ = nullptr;
    QLabel* pontos_ = nullptr;

    bool iniciado_ = false;
    Ponto ponto_;
    FiguraCaos figura_;
    std::array<bool, kTipos> desenhada_{};
    // Mouse positions go into the figure from DesenharUtilizador until the figure is full or
    // another button of the copy machine is pressed.
    bool aDesenhar_ = false;
    QColor corImagem_ = Qt::black;
    QColor corFundo_ = Qt::white;
};

}  // namespace lumerina
