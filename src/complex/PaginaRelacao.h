#pragma once
// "RELAÇÃO MANDELBROT / JULIA" (Form4): a click on a small Mandelbrot picture picks c, and
// two small pictures show the Julia set of z² + c, by escape time and by inverse iteration.

#include "app/PaginaBase.h"
#include "frame/SessaoDesenho.h"

#include <vector>

class QLabel;
class QPushButton;

namespace lumerina {

class ControloImagem;
class SeletorCor;

class PaginaRelacao : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaRelacao(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    // The fixed rectangle of the Mandelbrot picture, and of both Julia pictures.
    static constexpr double kXminM = -1.6, kXmaxM = 0.6, kYminM = -1.3, kYmaxM = 1.3;
    static constexpr int kIteracoesM = 50;
    static constexpr double kLadoJulia = 1.7;  // -1.7 .. 1.7 on both axes
    static constexpr int kIteracoesJulia = 150;
    static constexpr double kPontosInversa = 50000;  // as the Julia page's default

    // Picks c at a point of the Mandelbrot picture, in the rectangle's coordinates (what a
    // mouse button pressed there does).
    void MarcarPonto(double x, double y);

private:
    void DesenharMandelbrot();
    void DesenharJuliaNormal();
    void DesenharJuliaInversa();
    // The two checks of both Julia buttons; false (after the message) when one fails.
    bool PodeDesenharJulia();
    // c = Label4 + i·Label5, read leniently.
    void LerC(double& cx, double& cy) const;
    // Picture1's coordinates: the rectangle, laid over the pixels exactly as the drawing maps
    // them (pixel i at column i's point).
    void EscalaRectangulo();
    SessaoDesenho Sessao(ControloImagem* imagem);

    ControloImagem* picture1_ = nullptr;  // Mandelbrot, with the marker
    ControloImagem* picture4_ = nullptr;  // its copy for the clipboard
    ControloImagem* picture7_ = nullptr;  // its clean copy, without the marker
    ControloImagem* picture2_ = nullptr;  // Julia, normal iteration
    ControloImagem* picture5_ = nullptr;  // its copy for the clipboard
    ControloImagem* picture3_ = nullptr;  // Julia, inverse iteration
    QPushButton* desenharMandelbrot_ = nullptr;
    QPushButton* desenharInversa_ = nullptr;
    QPushButton* desenharNormal_ = nullptr;
    QPushButton* copiar_[3] = {};
    SeletorCor* corIntM_ = nullptr;
    SeletorCor* corExtM_ = nullptr;
    SeletorCor* corIntJ_ = nullptr;
    SeletorCor* corExtJ_ = nullptr;
    QLabel* label4_ = nullptr;
    QLabel* label5_ = nullptr;

    bool mandelbrotDesenhado_ = false;
    std::vector<int> contagens_;
};

}  // namespace lumerina
