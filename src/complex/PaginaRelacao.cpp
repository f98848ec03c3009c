#include "complex/PaginaRelacao.h"

#include "complex/Julia.h"
#include "complex/TempoFuga.h"
#include "frame/ControloImagem.h"
#include "frame/Controlos.h"
#include "frame/DesenhoColunas.h"
#include "frame/EsquemaCores.h"
#include "frame/JanelaDesenho.h"
#include "frame/Plataforma.h"
#include "frame/SessaoDesenho.h"
#include "interp/LerValor.h"
#include "interp/clsEquation.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <cstring>

namespace lumerina {

namespace {

// The orbits page's title, which these messages have always carried.
const QString kTituloMensagens = QStringLiteral("Órbitas");

constexpr int kLado = 333;     // 5000 twips
constexpr int kTopo = 54;      // top of the three pictures
constexpr int kPasso = 337;    // from one picture to the next
constexpr int kQuadros = 398;  // top of the frames under them

ControloImagem* Imagem(QWidget* pai, const char* nome, int x, bool visivel)
{
    auto* imagem = new ControloImagem(pai, kLado, kLado);
    imagem->setObjectName(QString::fromUtf8(nome));
    imagem->move(x, kTopo);
    imagem->setVisible(visivel);
    return imagem;
}

// A column written straight into a companion picture (rows H − j, as the column loop writes
// the picture on screen).
void EscreverColuna(ControloImagem& imagem, int i, int H, const Cor* cores)
{
    if (i >= imagem.LarguraPixeis())
        return;
    for (int y = 0; y < imagem.AlturaPixeis() && y <= H; ++y)
        imagem.Linha(y)[i] = cores[H - y];
}

}  // namespace

PaginaRelacao::PaginaRelacao(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    Titulo()->setGeometry(0, 2, kLargura, 28);

    // Three pictures side by side: the Mandelbrot set, the Julia set by normal iteration and
    // by inverse iteration. The companions lie hidden under their pictures.
    const char* legendas[] = {"Conjunto de Mandelbrot", "Conjunto de Julia - iteração normal",
                              "Conjunto de Julia - iteração inversa"};
    for (int k = 0; k < 3; ++k) {
        QLabel* legenda = Rotulo(area, legendas[k], {1 + k * kPasso, kTopo - 20, kLado + 2, 18});
        legenda->setAlignment(Qt::AlignCenter);
    }
    picture4_ = Imagem(area, "Picture4", 1, false);
    picture7_ = Imagem(area, "Picture7", 1, false);
    picture1_ = Imagem(area, "Picture1", 1, true);
    picture5_ = Imagem(area, "Picture5", 1 + kPasso, false);
    picture2_ = Imagem(area, "Picture2", 1 + kPasso, true);
    picture3_ = Imagem(area, "Picture3", 1 + 2 * kPasso, true);
    EscalaRectangulo();
    connect(picture1_, &ControloImagem::RatoPremido, this,
            [this](Qt::MouseButton, double x, double y) { MarcarPonto(x, y); });

    const char* dicaCopiar = "Copiar o gráfico da segunda derivada.";
    const int largura = kLado + 2;

    QGroupBox* frame1 = Quadro(area, "Conjunto de Mandelbrot", {1, kQuadros, largura, 96}, "Frame1");
    desenharMandelbrot_ = Botao(frame1, "DesenharMandelbrot", "Desenhar", {10, 22, 90, 28});
    copiar_[0] = Botao(frame1, "CopiarMandelbrot", "Copiar", {106, 22, 90, 28}, dicaCopiar);
    corIntM_ = new SeletorCor(frame1, "Command8", "Cor int", {10, 58, 70, 28}, "Label6", {86, 62, 30, 20});
    corExtM_ = new SeletorCor(frame1, "Command9", "Cor ext", {140, 58, 70, 28}, "Label8", {216, 62, 30, 20});

    QGroupBox* frame3 = Quadro(area, "Número complexo", {1, kQuadros + 102, largura, 56}, "Frame3");
    Rotulo(frame3, "z =", {10, 24, 28, 22});
    label4_ = Rotulo(frame3, "", {42, 24, 64, 22}, "Label4");
    label5_ = Rotulo(frame3, "", {110, 24, 64, 22}, "Label5");
    Rotulo(frame3, "i", {176, 24, 12, 22});

    QGroupBox* frame5 =
        Quadro(area, "Conjunto de Julia (N)", {1 + kPasso, kQuadros, largura, 96}, "Frame5");
    desenharNormal_ = Botao(frame5, "DesenharJuliaIteraçãoNormal", "Desenhar", {10, 22, 90, 28});
    copiar_[1] = Botao(frame5, "CopiarJuliaNormal", "Copiar", {106, 22, 90, 28}, dicaCopiar);
    corIntJ_ = new SeletorCor(frame5, "Command1", "Cor int", {10, 58, 70, 28}, "Label11", {86, 62, 30, 20});
    corExtJ_ = new SeletorCor(frame5, "Command2", "Cor ext", {140, 58, 70, 28}, "Label12", {216, 62, 30, 20});

    QGroupBox* frame4 =
        Quadro(area, "Conjunto de Julia (I)", {1 + 2 * kPasso, kQuadros, largura, 60}, "Frame4");
    desenharInversa_ = Botao(frame4, "DesenharJuliaIteraçãoInversa", "Desenhar", {10, 22, 90, 28});
    copiar_[2] = Botao(frame4, "CopiarJuliaInversa", "Copiar", {106, 22, 90, 28}, dicaCopiar);

    LigarDesenho(desenharMandelbrot_, [this] { DesenharMandelbrot(); });
    LigarDesenho(desenharNormal_, [this] { DesenharJuliaNormal(); });
    LigarDesenho(desenharInversa_, [this] { DesenharJuliaInversa(); });
    // Each Copiar puts its picture's companion on the clipboard; the inverse iteration's
    // picture has none and is copied itself.
    const std::pair<QPushButton*, ControloImagem*> copias[] = {
        {copiar_[0], picture4_}, {copiar_[1], picture5_}, {copiar_[2], picture3_}};
    for (const auto& [botao, imagem] : copias)
        connect(botao, &QPushButton::clicked, this,
                [imagem] { Sistema().CopiarImagem(imagem->Imagem()); });
}

void PaginaRelacao::EscalaRectangulo()
{
    // Column i stands for x = Xmin + i·(Xmax − Xmin)/(W − 1) and picture row H − j for
    // y = Ymin + j·(Ymax − Ymin)/(H − 1): the scale puts exactly these points at the pixels'
    // corners, so a click gives the c that was drawn under it.
    const double W = picture1_->LarguraPixeis(), H = picture1_->AlturaPixeis();
    const double topo = kYminM + H * (double(float(kYmaxM)) - kYminM) / (H - 1);
    picture1_->Escala(kXminM, topo, kXminM + W * (kXmaxM - kXminM) / (W - 1), kYminM);
}

SessaoDesenho PaginaRelacao::Sessao(ControloImagem* imagem)
{
    // The three draw buttons and the three Copiar buttons rest while any picture draws.
    return SessaoDesenho(this, imagem, {desenharMandelbrot_, desenharNormal_, desenharInversa_,
                                        copiar_[0], copiar_[1], copiar_[2]});
}

void PaginaRelacao::DesenharMandelbrot()
{
    // The picture is not cleared: the new drawing paints over the old one. Picture1 keeps the
    // rectangle's scale throughout, so a click during the drawing still picks a point.
    const int W = picture1_->LarguraPixeis(), H = picture1_->AlturaPixeis();
    const VistaMundo vista{kXminM, kXmaxM, kYminM, float(kYmaxM), double(W), H};
    contagens_.assign(static_cast<std::size_t>(H) + 1, 0);
    SessaoDesenho sessao = Sessao(picture1_);
    const bool completo = DesenharColunas(*picture1_, W, H, [&](int i, Cor* cores) {
        ColunaMandelbrot(VarianteMandel::Normal, vista, i, kIteracoesM, contagens_.data());
        // n = 50: inside, "Cor int"; otherwise "Cor ext".
        const OpcoesCor opcoes{Coloracao::SemLinhas, nullptr, corIntM_->Cor().rgb(),
                               corExtM_->Cor().rgb()};
        CoresColuna(opcoes, contagens_.data(), kIteracoesM, i, H, cores);
        EscreverColuna(*picture4_, i, H, cores);
        EscreverColuna(*picture7_, i, H, cores);
    });
    if (!completo)
        return;  // the program is ending
    sessao.Concluir();
    mandelbrotDesenhado_ = true;
}

void PaginaRelacao::MarcarPonto(double x, double y)
{
    // The clean copy first: only the newest marker is ever seen.
    const QImage& limpa = picture7_->Imagem();
    const int linhas = std::min(limpa.height(), picture1_->AlturaPixeis());
    const int bytes = std::min(limpa.width(), picture1_->LarguraPixeis()) * 4;
    for (int v = 0; v < linhas; ++v)
        std::memcpy(picture1_->Linha(v), limpa.constScanLine(v), static_cast<std::size_t>(bytes));
    picture1_->Sujar(QRect(0, 0, picture1_->LarguraPixeis(), picture1_->AlturaPixeis()));
    picture1_->DefinirEspessura(3);
    picture1_->Pixel(x, y, Paleta16[12]);
    picture1_->DefinirEspessura(1);
    label4_->setText(TextoLimite(x, 3));
    label5_->setText(TextoLimite(y, 3));
}

bool PaginaRelacao::PodeDesenharJulia()
{
    if (!mandelbrotDesenhado_)
        return Recusar(this, kTituloMensagens,
                       "Desenhe primeiro o conjunto de Mandelbrot.\n"
                       "Seguidamente marque um ponto sobre o conjunto.     ");
    if (label4_->text().trimmed().isEmpty())
        return Recusar(this, kTituloMensagens,
                       "Faça click sobre o conjunto de Mandelbrt para ser indicado o número "
                       "complexo.     ");
    return true;
}

void PaginaRelacao::LerC(double& cx, double& cy) const
{
    // The labels carry c, rounded to three decimals.
    cx = LerValor(label4_->text().toStdString());
    cy = LerValor(label5_->text().toStdString());
}

void PaginaRelacao::DesenharJuliaNormal()
{
    if (!PodeDesenharJulia())
        return;
    picture2_->Limpar();
    picture5_->Limpar();
    const int W = picture2_->LarguraPixeis(), H = picture2_->AlturaPixeis();
    double cx, cy;
    LerC(cx, cy);
    const VistaJulia vista{-kLadoJulia, kLadoJulia, -kLadoJulia, kLadoJulia, double(W), H};
    contagens_.assign(static_cast<std::size_t>(H) + 1, 0);
    SessaoDesenho sessao = Sessao(picture2_);
    ImagemJulia julia(vista, cx, cy, kIteracoesJulia);
    const bool completo = DesenharColunas(*picture2_, W, H, [&](int i, Cor* cores) {
        julia.Coluna(i, contagens_.data());
        // Below 150: the exterior colour of the Julia frame; 150: its interior colour.
        const OpcoesCor opcoes{Coloracao::SemLinhas, nullptr, corIntJ_->Cor().rgb(),
                               corExtJ_->Cor().rgb()};
        CoresColuna(opcoes, contagens_.data(), kIteracoesJulia, i, H, cores);
        EscreverColuna(*picture5_, i, H, cores);
    });
    if (completo)
        sessao.Concluir();
}

void PaginaRelacao::DesenharJuliaInversa()
{
    if (!PodeDesenharJulia())
        return;
    picture3_->Limpar();
    picture3_->Escala(-kLadoJulia, kLadoJulia, kLadoJulia, -kLadoJulia);
    double cx, cy;
    LerC(cx, cy);
    SessaoDesenho sessao = Sessao(picture3_);
    SemearAleatorioDoRelogio();
    IteracaoInversa(cx, cy, kPontosInversa,
                    [&](double x, double y) { picture3_->Pixel(x, y, Paleta16[9]); });
    sessao.Concluir();
}

}  // namespace lumerina
