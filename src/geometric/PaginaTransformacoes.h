#pragma once
// "TRANSFORMAÇÕES" (Form12): up to three affine maps, typed or built from a translation, a
// rotation, a scale, a reflection or a shear, applied to an asymmetric figure. The page draws
// the original with its image, shows each map's matrix, determinant and whether it contracts,
// and applies the maps again to the last image, level after level: the deterministic copy
// machine.

#include "app/PaginaBase.h"
#include "frame/Controlos.h"
#include "geometric/Transformacoes.h"

#include <array>
#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace lumerina {

class JanelaDesenho;

class PaginaTransformacoes : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaTransformacoes(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    JanelaDesenho* Janela() const { return janela_; }
    // The figure and its images as last drawn (none before the first drawing).
    const ImagensIteradas* Imagens() const { return imagens_ ? &*imagens_ : nullptr; }

    enum class Construcao { Translacao, Rotacao, Escala, Reflexao, Cisalhamento };

private:
    struct CamposMapa {
        std::array<QLineEdit*, 6> coeficientes{};  // a b c d e f
        QCheckBox* usar = nullptr;
        QLabel* matriz = nullptr;
        QLabel* determinante = nullptr;
        QLabel* contrai = nullptr;
    };

    void CriarMapa(QWidget* area, int i, int y);
    MapaAfim LerMapa(int i) const;
    void EscreverMapa(int i, const MapaAfim& mapa, bool usar);
    void ActualizarMapa(int i);
    std::vector<MapaAfim> MapasEmUso() const;
    void Construir(int i);
    void ActualizarConstrucao();

    void Desenhar();
    void AplicarNovamente();
    void Recomecar();
    // With `aplicar`, the next level (refused with a message when no map is in use or it
    // would hold too many segments); then the limits are checked and every level drawn.
    void Mostrar(bool aplicar);
    void Exemplo(std::initializer_list<MapaAfim> mapas);

    JanelaDesenho* janela_ = nullptr;
    GrupoOpcoes<FiguraBase> figura_;
    std::array<CamposMapa, 3> mapas_{};
    QComboBox* construcao_ = nullptr;
    QLineEdit* parametro1_ = nullptr;
    QLineEdit* parametro2_ = nullptr;
    QLabel* rotulo1_ = nullptr;
    QLabel* rotulo2_ = nullptr;
    QLabel* nivel_ = nullptr;
    std::optional<ImagensIteradas> imagens_;
};

}  // namespace lumerina
