#pragma once
// The drawing window shared by the graphing pages: the picture, the limit fields of
// "Área de desenho", the scroll bars that resize the picture, the Guardar/Copiar/Apagar
// buttons, the world rectangle, the drawn flag and the zoom rectangle.
//
// The page owns it and places its frames; the page's own draw buttons are registered so
// that a drawing can disable and enable them with the others.

#include "frame/DesenhoColunas.h"

#include <QObject>
#include <QPoint>
#include <QString>

#include <functional>
#include <vector>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QWidget;

namespace lumerina {

class ControloImagem;

// A limit field's text as the interpreter reads it: the typographic minus, times and
// division signs become "-", "*" and "/"; anything else is left as typed.
QString TextoParaInterpretar(QString texto);

// Evaluates a limit field the way every page does: a new interpreter, "x" bound to 0.
// Throws the interpreter's error.
double AvaliarLimite(const QString& texto);

// A number written for a limit field: rounded to `casas` decimals (ties to even), with no
// trailing zeros and "." as the decimal point.
QString TextoLimite(double valor, int casas = 4);

class JanelaDesenho : public QObject {
    Q_OBJECT
public:
    struct Opcoes {
        int largura = 628;
        int altura = 628;
        bool limites = true;      // the frame "Área de desenho"
        bool barras = true;       // HScroll1 / VScroll1 and "Dimensão da janela"
        // Captions of Xmínimo, Xmáximo, Ymínimo, Ymáximo; a longer one narrows its field.
        const char* rotulosLimites[4] = {"Xmín", "Xmáx", "Ymín", "Ymáx"};
    };

    // `pagina` is the top-level page (dialog owner, hourglass); the controls are created as
    // children of `area` with the picture's top-left corner at `origem`.
    JanelaDesenho(QWidget* pagina, QWidget* area, QPoint origem, Opcoes opcoes);
    JanelaDesenho(QWidget* pagina, QWidget* area, QPoint origem)
        : JanelaDesenho(pagina, area, origem, Opcoes{}) {}

    ControloImagem* Imagem() const { return imagem_; }
    QGroupBox* QuadroArea() const { return quadroArea_; }
    QGroupBox* QuadroDimensao() const { return quadroDimensao_; }
    QGroupBox* QuadroOpcoes() const { return quadroOpcoes_; }
    QLineEdit* Xminimo() const { return xmin_; }
    QLineEdit* Xmaximo() const { return xmax_; }
    QLineEdit* Yminimo() const { return ymin_; }
    QLineEdit* Ymaximo() const { return ymax_; }
    QPushButton* Guardar() const { return guardar_; }
    QPushButton* Copiar() const { return copiar_; }
    QPushButton* Apagar() const { return apagar_; }

    QWidget* Pagina() const { return pagina_; }

    // Guardar, Copiar and Apagar in a row in "Opções", `largura` wide, one every `passo`
    // pixels from `x`; returns where a fourth button (the page's draw button) goes.
    int DisporBotoes(int x, int largura, int passo);

    // A draw button of the page: a click (or Enter in a field) runs `desenhar` unless a
    // drawing is running anywhere, and a drawing disables it with Guardar/Copiar/Apagar.
    void LigarDesenho(QPushButton* botao, std::function<void()> desenhar);
    // The buttons a drawing in this window disables.
    std::vector<QPushButton*> BotoesDesactivados() const;

    // World rectangle. Ymax is held in single precision on purpose.
    double xmin = 0, xmax = 1, ymin = 0;
    float ymax = 1;
    bool desenhado = false;

    // Reads the four limit fields as plain numbers (on load).
    void LerLimitesSimples();
    // The limit checks shared by the escape-time pages, in their order: fields present
    // (title "Lumerina"; Ymáximo is tested only when `testarYmaximo`), each field through
    // the interpreter, then Ymáx > Ymín and Xmáx > Xmín with the page's title. The first
    // failure is shown and false returned.
    bool ValidarLimites(const QString& titulo, bool testarYmaximo);

    // What a draw button does before its checks: clears the picture, sets its scale to
    // pixels and reads W and H. The drawn flag goes too: the cleared picture has no world
    // for the zoom box to measure until a drawing completes.
    void PrepararDesenho();
    // The picture's inner width (floating, as the loops use it) and height in pixels, as
    // PrepararDesenho read them.
    double W() const { return W_; }
    int H() const { return H_; }

    // A whole escape-time drawing over W and H: the drawing session, the column loop
    // (DesenharColunas) and, when it completes, the world scale and the drawn flag. False
    // when the program ended during it.
    bool DesenharPorColunas(const ColunaCores& colorir, const std::function<void()>& aposCeder = {},
                            EscritaColunas escrita = {});
    // Upper-left (Xmin, Ymax), lower-right (Xmax, Ymin): mouse positions become world points.
    void DefinirEscalaMundo();

    // The three buttons.
    void ApagarGrafico();
    void CopiarGrafico();
    void GuardarGrafico();

    // The scroll bars' handlers.
    void MudarLargura(int largura);
    void MudarAltura(int altura);

private:
    void RatoPremido(Qt::MouseButton botao, double x, double y);
    void RatoMovido(Qt::MouseButtons botoes, double x, double y);
    void RatoLargado(Qt::MouseButton botao, double x, double y);
    void ActualizarDimensao();

    QWidget* pagina_;
    QPoint origem_;
    ControloImagem* imagem_ = nullptr;
    QScrollBar* hscroll_ = nullptr;
    QScrollBar* vscroll_ = nullptr;
    QGroupBox* quadroArea_ = nullptr;
    QGroupBox* quadroDimensao_ = nullptr;
    QGroupBox* quadroOpcoes_ = nullptr;
    QLabel* labelDimensao_ = nullptr;
    QLineEdit* xmin_ = nullptr;
    QLineEdit* xmax_ = nullptr;
    QLineEdit* ymin_ = nullptr;
    QLineEdit* ymax_ = nullptr;
    QPushButton* guardar_ = nullptr;
    QPushButton* copiar_ = nullptr;
    QPushButton* apagar_ = nullptr;
    std::vector<QPushButton*> botoesDesenho_;
    double W_ = 628;
    int H_ = 628;

    // Zoom rectangle: where the left button went down, and the corner last drawn.
    double x0_ = 0, y0_ = 0, x1_ = 0, y1_ = 0;
};

}  // namespace lumerina
