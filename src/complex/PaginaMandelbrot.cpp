#include "complex/PaginaMandelbrot.h"

#include "frame/JanelaDesenho.h"
#include "frame/Plataforma.h"
#include "interp/LerValor.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <cmath>

namespace lumerina {

namespace {

const QString kTitulo = QStringLiteral("Conjunto de Mandelbrot");

}  // namespace

PaginaMandelbrot::PaginaMandelbrot(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    ColocarTitulo();

    janela_ = new JanelaDesenho(this, area, QPoint(8, 8));

    QGroupBox* conjunto = Quadro(area, "Conjunto", {kPainelX, 32, kPainelLargura, 150});
    conjunto_.Adicionar(conjunto, {
        {"MandelNormal", "Mandelbrot", {10, 20, 300, 21}, VarianteMandel::Normal},
        {"MandelCubo", "Mandelbrot ao cubo", {10, 41, 300, 21}, VarianteMandel::Cubo},
        {"MandelQuarta", "Mandelbrot à quarta", {10, 62, 300, 21}, VarianteMandel::Quarta},
        {"MandelConj", "Mandel conjugado", {10, 83, 300, 21}, VarianteMandel::Conj},
        {"MandelConjCubo", "Mandel conjugado ao cubo", {10, 104, 300, 21}, VarianteMandel::ConjCubo},
        {"MandelConjQuarta", "Mandel conjugado à quarta", {10, 125, 300, 21}, VarianteMandel::ConjQuarta},
    });

    janela_->QuadroArea()->setGeometry(kPainelX, 186, kPainelLargura, 78);
    janela_->Xminimo()->setText(QStringLiteral("-1.6"));
    janela_->Xmaximo()->setText(QStringLiteral("0.6"));
    janela_->Yminimo()->setText(QStringLiteral("-1.3"));
    janela_->Ymaximo()->setText(QStringLiteral("1.3"));

    QGroupBox* iteracoes = Quadro(area, "Iterações", {kPainelX, 268, kPainelLargura, 50});
    Rotulo(iteracoes, "Número de iterações:", {10, 22, 150, 22});
    maxIteracoes_ = Campo(iteracoes, "MaxIterações", "150", {165, 20, 80, 24});

    // The seven colourings are one exclusive group: a palette scheme, or one of the three
    // options without a table.
    QGroupBox* cores = Quadro(area, "Cores", {kPainelX, 322, kPainelLargura, 180});
    cores_.Adicionar(cores, {
        {"CorVermelho", "Vermelho", {10, 20, 150, 22}, {Coloracao::Paleta, PreencherVermelho}},
        {"CorAzul", "Azul", {162, 20, 150, 22}, {Coloracao::Paleta, PreencherAzul}},
        {"CorFogo", "Fogo", {10, 44, 150, 22}, {Coloracao::Paleta, PreencherFogo}},
        {"CorMulticor", "Multicor", {162, 44, 150, 22}, {Coloracao::Paleta, PreencherMulticor}},
        {"SemLinhas", "Sem linhas equipotenciais (escolha as cores)", {10, 72, 320, 22},
         {Coloracao::SemLinhas, nullptr}},
        {"LinhasTipo1", "Com cores em tempo de escape tipo 1", {10, 96, 320, 22},
         {Coloracao::LinhasTipo1, nullptr}},
        {"LinhasTipo2", "Com cores em tempo de escape tipo 2", {10, 120, 320, 22},
         {Coloracao::LinhasTipo2, nullptr}},
    });
    corInterior_ = new SeletorCor(cores, "Command8", "Cor interior", {10, 144, 100, 28}, "Label5",
                                  {116, 148, 36, 20});
    corExterior_ = new SeletorCor(cores, "Command9", "Cor exterior", {172, 144, 100, 28}, "Label6",
                                  {278, 148, 36, 20});

    janela_->QuadroDimensao()->setGeometry(kPainelX, 506, kPainelLargura, 46);

    QGroupBox* opcoes = janela_->QuadroOpcoes();
    opcoes->setGeometry(kPainelX, 556, kPainelLargura, 62);
    janela_->DisporBotoes(8, 76, 80);
    janela_->LigarDesenho(Botao(opcoes, "DesenharMandelbrot", " Desenhar", {248, 24, 80, 28}),
                          [this] { CarregarDesenhar(); });

    // On load the rectangle is read as plain numbers, so that it exists before any drawing.
    janela_->LerLimitesSimples();
}

void PaginaMandelbrot::CarregarDesenhar()
{
    janela_->PrepararDesenho();
    // Each selected variant draws, tested in this order (only one can be selected, but one
    // chosen during a drawing that comes later in the order is drawn next).
    for (VarianteMandel v : {VarianteMandel::Cubo, VarianteMandel::Normal, VarianteMandel::Quarta,
                             VarianteMandel::Conj, VarianteMandel::ConjCubo,
                             VarianteMandel::ConjQuarta}) {
        if (Sistema().ATerminar())
            return;
        if (conjunto_.Valor() == v)
            Desenhar(v);
    }
}

bool PaginaMandelbrot::ValidarMandelbrot()
{
    if (!janela_->ValidarLimites(kTitulo, false))
        return false;
    bool numerico = false;
    const double n = maxIteracoes_->text().toDouble(&numerico);  // "." whatever the locale
    if (!numerico || std::floor(n) != n)
        return Recusar(this, kTitulo, "O número de iterações deve ser um número inteiro.");
    if (n <= 0 || n > 256)
        return Recusar(this, kTitulo, "O número de iterações deve estar compreendido entre 1 e 256.");
    N_ = static_cast<int>(n);
    return true;
}

int PaginaMandelbrot::ReLerIteracoes(int emVigor) const
{
    // The field can only change while the drawing yields, so reading it once per column,
    // right after the yield, is reading it at every test of the loop. A value the
    // validation would refuse (the user is halfway through typing) leaves N as it was:
    // it could only index past the colour table.
    const double n = LerValor(maxIteracoes_->text().toStdString());
    if (n >= 1 && n <= 256 && std::floor(n) == n)
        return static_cast<int>(n);
    return emVigor;
}

void PaginaMandelbrot::Desenhar(VarianteMandel variante)
{
    if (!ValidarMandelbrot())
        return;
    // The table is filled once, from the option in force as the drawing starts.
    if (const auto preencher = cores_.Valor().preencher)
        preencher(paleta_);

    const double W = janela_->W();
    const int H = janela_->H();
    const VistaMundo vista{janela_->xmin, janela_->xmax, janela_->ymin, janela_->ymax, W, H};
    contagens_.assign(static_cast<std::size_t>(H) + 1, 0);
    int N = N_;
    janela_->DesenharPorColunas(
        [&](int i, Cor* cores) {
            ColunaMandelbrot(variante, vista, i, N, contagens_.data());
            // The colouring option is read once per column: it can only change in a yield.
            const OpcoesCor opcoes{cores_.Valor().modo, &paleta_, corInterior_->Cor().rgb(),
                                   corExterior_->Cor().rgb()};
            CoresColuna(opcoes, contagens_.data(), N, i, H, cores);
        },
        [&] { N = ReLerIteracoes(N); });
}

}  // namespace lumerina
