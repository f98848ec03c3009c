#pragma once
// "ATRACTORES" (Form16): twelve strange attractors drawn point by point over the world window
// of the drawing window. Each attractor has its options frame (parameters, "Imagem para
// copiar", and for some big points, "Ver ponto", a speed bar or a spinner of ready-made sets).

#include "app/PaginaBase.h"
#include "dynamics/Atractores.h"
#include "dynamics/PredefinicoesAtractores.h"
#include "frame/Controlos.h"

#include <optional>
#include <vector>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QScrollBar;
class QSpinBox;

namespace lumerina {

class JanelaDesenho;

enum class TipoAtractor {
    Lorenz, Rossler, Duffing, Henon, Kam, Hopalong, DeJong, Clifford, Tinkerbell, Estranhos,
    Borboleta, Caotico
};

class PaginaAtractores : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaAtractores(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    JanelaDesenho* Janela() const { return janela_; }

private:
    // What the page knows of one attractor's frame; absent controls are null.
    struct QuadroAtractor {
        QGroupBox* quadro = nullptr;
        std::vector<QLineEdit*> parametros;  // in the order of the formulas' letters
        QCheckBox* copiar = nullptr;         // "Imagem para copiar"
        QCheckBox* grandes = nullptr;        // "Pontos grandes"
        QCheckBox* verPonto = nullptr;       // "Ver ponto"
        QScrollBar* velocidade = nullptr;    // the frame's own speed bar
        QSpinBox* predefinidos = nullptr;
    };

    void ConstruirQuadros(QWidget* area, QRect onde);
    QGroupBox* QuadroParametros(QWidget* area, QRect onde, TipoAtractor tipo, const char* nome,
                                const char* titulo,
                                std::initializer_list<std::pair<const char*, const char*>> campos,
                                int colunas = 3);
    QLineEdit* CampoRotulado(QWidget* quadro, const char* nome, const char* rotulo, QPoint canto,
                             int celula);
    void Fluxo(TipoAtractor tipo, const char* normal, const char* grandes, const char* verPonto,
               const char* barra, int y);
    void Copiar(TipoAtractor tipo, const char* nome, QPoint onde);
    void Predefinidos(TipoAtractor tipo, const char* nome, ConjuntoPredefinido conjunto,
                      int inicial, QPoint onde);

    // Clicking an attractor option: its frame, window and iteration count.
    void EscolherTipo(TipoAtractor tipo);
    void EscreverPredefinicao(TipoAtractor tipo, ConjuntoPredefinido conjunto, int n);

    void CarregarDesenhar();
    // The page's checks in their order; on success the world window and N are read.
    bool ValidarAtractores();
    // The common frame of every drawing: checks, then the points of `atractor`.
    void DesenharAtractor(TipoAtractor tipo);
    Atractor CriarAtractor(TipoAtractor tipo) const;
    double Parametro(TipoAtractor tipo, int i) const;
    // The next n points, into lote_ and plotted in the persistent image or the screen layer.
    void Plotar(Atractor& atractor, int n, bool persistente, int tamanho);
    // "Ver ponto": an inverted box round the current point, on the screen layer only.
    void MarcarPonto(std::optional<Ponto> ponto);

    QuadroAtractor& De(TipoAtractor tipo) { return quadros_[static_cast<int>(tipo)]; }
    const QuadroAtractor& De(TipoAtractor tipo) const { return quadros_[static_cast<int>(tipo)]; }

    JanelaDesenho* janela_ = nullptr;
    GrupoOpcoes<TipoAtractor> tipo_;
    GrupoOpcoes<int> varianteEstranhos_;
    QLineEdit* iteracoes_ = nullptr;
    QCheckBox* lorenz3D_ = nullptr;
    QScrollBar* velocidadeLorenz_ = nullptr;  // HScroll2, which Hénon reads too
    QuadroAtractor quadros_[12];
    std::optional<Ponto> marca_;  // where "Ver ponto" has its box now

    int N_ = 20000;
    std::vector<Ponto> lote_;
};

}  // namespace lumerina
