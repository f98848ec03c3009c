#pragma once
// "ÓRBITAS" (Form3): the orbit of a point under z <- z² + c, drawn point by point over a faint
// Mandelbrot set, and the cobwebs of the real iterations x <- cos x and x <- x² + c. A step at
// a time ("Passo") or by the page's timer ("Automático") at the speed bar's pace; each step
// adds a row n, z_n, |z_n| to the table.

#include "app/PaginaBase.h"
#include "complex/Orbitas.h"
#include "frame/Controlos.h"

#include <QRgb>

#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QTableWidget;
class QTimer;

namespace lumerina {

class JanelaDesenho;

class PaginaOrbitas : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaOrbitas(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    JanelaDesenho* Janela() const { return janela_; }
    // The orbit on show (none after Apagar, until the next step).
    const Orbita* OrbitaActual() const { return orbita_ ? &*orbita_ : nullptr; }

protected:
    void hideEvent(QHideEvent* evento) override;

private:
    // What an orbit is started from: the mode, c and the start.
    struct Parametros {
        Iteracao iteracao;
        double cx, cy;
        PontoOrbita z0;
        bool operator==(const Parametros&) const = default;
    };
    Parametros ParametrosActuais() const;

    void Passo();
    void Automatico();
    void Parar();
    void Recomecar();
    void MudarModo();
    void Apagado();
    void EscolherPonto(Qt::MouseButton botao, double x, double y);
    void MudarVelocidade(int passosPorSegundo);
    // A fresh orbit from `p`: the picture's world, its background, the table's row 0.
    void Iniciar(const Parametros& p);
    void DesenharFundo();
    void DesenharPonto(PontoOrbita z, QRgb cor);
    void AcrescentarLinha(int n);
    void MostrarSituacao(ResultadoPasso resultado);

    JanelaDesenho* janela_ = nullptr;
    GrupoOpcoes<Iteracao> modo_;
    QLineEdit* valorC_ = nullptr;
    QLineEdit* valorD_ = nullptr;
    QLineEdit* valorX0_ = nullptr;
    QPushButton* automatico_ = nullptr;
    QPushButton* parar_ = nullptr;
    QScrollBar* velocidade_ = nullptr;
    QTableWidget* tabela_ = nullptr;
    QLabel* labelFuga_ = nullptr;
    QTimer* relogio_ = nullptr;

    std::optional<Orbita> orbita_;
    Parametros parametros_{};
    PontoOrbita z0Complexo_{0, 0};  // chosen with a click; 0 until then
    double xmin_ = -2.2, xmax_ = 2.2, ymin_ = -2.2, ymax_ = 2.2;  // the picture's world
};

}  // namespace lumerina
