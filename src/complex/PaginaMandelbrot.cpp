#include "complex/PaginaMandelbrot.h"

#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "frame/Plataforma.h"
#include "interp/LerValor.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lumerina {

namespace {

const QString kTitulo = QStringLiteral("Conjunto de Mandelbrot");
constexpr int kPainelX = 668;
constexpr int kPainelLargura = 336;

QRadioButton* Opcao(QWidget* pai, const char* nome, const char* texto, QRect onde)
{
    auto* botao = new QRadioButton(QString::fromUtf8(texto), pai);
    botao->setObjectName(QString::fromUtf8(nome));
    botao->setGeometry(onde);
    return botao;
}

QPushButton* Botao(QWidget* pai, const char* nome, const char* texto, QRect onde)
{
    auto* botao = new QPushButton(QString::fromUtf8(texto), pai);
    botao->setObjectName(QString::fromUtf8(nome));
    botao->setGeometry(onde);
    return botao;
}

void MostrarAmostra(QLabel* amostra, const QColor& cor)
{
    amostra->setStyleSheet(
        QStringLiteral("background: %1; border: 1px solid #808080;").arg(cor.name()));
}

}  // namespace

PaginaMandelbrot::PaginaMandelbrot(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    QFont letra = Titulo()->font();
    letra.setPointSize(14);
    Titulo()->setFont(letra);
    Titulo()->setGeometry(kPainelX, 2, kPainelLargura, 28);

    janela_ = new JanelaDesenho(this, area, QPoint(8, 8));

    auto* conjunto = new QGroupBox(QStringLiteral("Conjunto"), area);
    conjunto->setGeometry(kPainelX, 32, kPainelLargura, 150);
    mandelNormal_ = Opcao(conjunto, "MandelNormal", "Mandelbrot", {10, 20, 300, 21});
    mandelCubo_ = Opcao(conjunto, "MandelCubo", "Mandelbrot ao cubo", {10, 41, 300, 21});
    mandelQuarta_ = Opcao(conjunto, "MandelQuarta", "Mandelbrot à quarta", {10, 62, 300, 21});
    mandelConj_ = Opcao(conjunto, "MandelConj", "Mandel conjugado", {10, 83, 300, 21});
    mandelConjCubo_ = Opcao(conjunto, "MandelConjCubo", "Mandel conjugado ao cubo", {10, 104, 300, 21});
    mandelConjQuarta_ =
        Opcao(conjunto, "MandelConjQuarta", "Mandel conjugado à quarta", {10, 125, 300, 21});
    mandelNormal_->setChecked(true);

    janela_->QuadroArea()->setGeometry(kPainelX, 186, kPainelLargura, 78);
    janela_->Xminimo()->setText(QStringLiteral("-1.6"));
    janela_->Xmaximo()->setText(QStringLiteral("0.6"));
    janela_->Yminimo()->setText(QStringLiteral("-1.3"));
    janela_->Ymaximo()->setText(QStringLiteral("1.3"));

    auto* iteracoes = new QGroupBox(QStringLiteral("Iterações"), area);
    iteracoes->setGeometry(kPainelX, 268, kPainelLargura, 50);
    auto* rotuloN = new QLabel(QStringLiteral("Número de iterações:"), iteracoes);
    rotuloN->setGeometry(10, 22, 150, 22);
    maxIteracoes_ = new QLineEdit(QStringLiteral("150"), iteracoes);
    maxIteracoes_->setObjectName(QStringLiteral("MaxIterações"));
    maxIteracoes_->setGeometry(165, 20, 80, 24);

    auto* cores = new QGroupBox(QStringLiteral("Cores"), area);
    cores->setGeometry(kPainelX, 322, kPainelLargura, 180);
    corVermelho_ = Opcao(cores, "CorVermelho", "Vermelho", {10, 20, 150, 22});
    corAzul_ = Opcao(cores, "CorAzul", "Azul", {162, 20, 150, 22});
    corFogo_ = Opcao(cores, "CorFogo", "Fogo", {10, 44, 150, 22});
    corMulticor_ = Opcao(cores, "CorMulticor", "Multicor", {162, 44, 150, 22});
    semLinhas_ = Opcao(cores, "SemLinhas", "Sem linhas equipotenciais (escolha as cores)",
                       {10, 72, 320, 22});
    linhasTipo1_ = Opcao(cores, "LinhasTipo1", "Com cores em tempo de escape tipo 1", {10, 96, 320, 22});
    linhasTipo2_ = Opcao(cores, "LinhasTipo2", "Com cores em tempo de escape tipo 2", {10, 120, 320, 22});
    corVermelho_->setChecked(true);
    QPushButton* corInterior = Botao(cores, "Command8", "Cor interior", {10, 144, 100, 28});
    amostraInterior_ = new QLabel(cores);
    amostraInterior_->setObjectName(QStringLiteral("Label5"));
    amostraInterior_->setGeometry(116, 148, 36, 20);
    QPushButton* corExterior = Botao(cores, "Command9", "Cor exterior", {172, 144, 100, 28});
    amostraExterior_ = new QLabel(cores);
    amostraExterior_->setObjectName(QStringLiteral("Label6"));
    amostraExterior_->setGeometry(278, 148, 36, 20);
    MostrarAmostra(amostraInterior_, corInterior_);
    MostrarAmostra(amostraExterior_, corExterior_);
    connect(corInterior, &QPushButton::clicked, this, &PaginaMandelbrot::EscolherCorInterior);
    connect(corExterior, &QPushButton::clicked, this, &PaginaMandelbrot::EscolherCorExterior);

    // Two exclusive groups: the set, and the seven colourings.
    auto* grupoConjunto = new QButtonGroup(this);
    for (QRadioButton* b : {mandelNormal_, mandelCubo_, mandelQuarta_, mandelConj_,
                            mandelConjCubo_, mandelConjQuarta_})
        grupoConjunto->addButton(b);
    auto* grupoCores = new QButtonGroup(this);
    for (QRadioButton* b : {corVermelho_, corAzul_, corFogo_, corMulticor_, semLinhas_,
                            linhasTipo1_, linhasTipo2_})
        grupoCores->addButton(b);

    janela_->QuadroDimensao()->setGeometry(kPainelX, 506, kPainelLargura, 46);

    QGroupBox* opcoes = janela_->QuadroOpcoes();
    opcoes->setGeometry(kPainelX, 556, kPainelLargura, 62);
    for (QPushButton* b : {janela_->Guardar(), janela_->Copiar(), janela_->Apagar()})
        b->resize(76, 28);
    janela_->Guardar()->move(8, 24);
    janela_->Copiar()->move(88, 24);
    janela_->Apagar()->move(168, 24);
    desenhar_ = Botao(opcoes, "DesenharMandelbrot", " Desenhar", {248, 24, 80, 28});
    janela_->RegistarBotaoDesenho(desenhar_);
    connect(desenhar_, &QPushButton::clicked, this, &PaginaMandelbrot::CarregarDesenhar);

    // On load the rectangle is read as plain numbers, so that it exists before any drawing.
    janela_->LerLimitesSimples();
}

void PaginaMandelbrot::CarregarDesenhar()
{
    ControloImagem* imagem = janela_->Imagem();
    imagem->Limpar();
    imagem->EscalaPixeis();
    W_ = imagem->LarguraEscala();
    H_ = static_cast<int>(imagem->AlturaEscala());
    // Tested in this order; only one can be selected.
    const std::pair<QRadioButton*, void (PaginaMandelbrot::*)()> variantes[] = {
        {mandelCubo_, &PaginaMandelbrot::DesenharMandelCubo},
        {mandelNormal_, &PaginaMandelbrot::DesenharMandelNormal},
        {mandelQuarta_, &PaginaMandelbrot::DesenharMandelQuarta},
        {mandelConj_, &PaginaMandelbrot::DesenharMandelConj},
        {mandelConjCubo_, &PaginaMandelbrot::DesenharMandelConjCubo},
        {mandelConjQuarta_, &PaginaMandelbrot::DesenharMandelConjQuarta},
    };
    for (const auto& [botao, desenhar] : variantes) {
        if (Sistema().ATerminar())
            return;
        if (botao->isChecked())
            (this->*desenhar)();
    }
}

bool PaginaMandelbrot::ValidarMandelbrot()
{
    if (!janela_->ValidarLimites(kTitulo, false))
        return false;
    const auto recusar = [this](const char* texto) {
        Sistema().Mensagem(this, kTitulo, QString::fromUtf8(texto), IconeMensagem::Informacao);
        return false;
    };
    bool numerico = false;
    const double n = maxIteracoes_->text().toDouble(&numerico);  // "." whatever the locale
    if (!numerico)
        return recusar("O número de iterações deve ser um número inteiro.");
    if (std::floor(n) != n)
        return recusar("O número de iterações deve ser um número inteiro.");
    if (n <= 0 || n > 256)
        return recusar("O número de iterações deve estar compreendido entre 1 e 256.");
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

OpcoesCor PaginaMandelbrot::ColoracaoActual() const
{
    // A palette scheme first; then the three options without a table, in this order.
    Coloracao modo = Coloracao::SemLinhas;
    if (corFogo_->isChecked() || corAzul_->isChecked() || corVermelho_->isChecked() ||
        corMulticor_->isChecked())
        modo = Coloracao::Paleta;
    else if (linhasTipo1_->isChecked())
        modo = Coloracao::LinhasTipo1;
    else if (linhasTipo2_->isChecked())
        modo = Coloracao::LinhasTipo2;
    return {modo, &paleta_, corInterior_.rgb(), corExterior_.rgb()};
}

void PaginaMandelbrot::Desenhar(VarianteMandel variante)
{
    if (!ValidarMandelbrot())
        return;
    // The table is filled once, from the option in force as the drawing starts.
    if (corAzul_->isChecked())
        PreencherAzul(paleta_);
    else if (corFogo_->isChecked())
        PreencherFogo(paleta_);
    else if (corVermelho_->isChecked())
        PreencherVermelho(paleta_);
    else if (corMulticor_->isChecked())
        PreencherMulticor(paleta_);

    janela_->IniciarDesenho();
    const VistaMundo vista{janela_->xmin, janela_->xmax, janela_->ymin, janela_->ymax, W_, H_};
    const std::size_t linhas = static_cast<std::size_t>(H_) + 1;
    contagens_.assign(linhas, 0);
    cores_.assign(linhas * kBloco, 0);
    const int ultimaVisivel = std::min(static_cast<int>(W_), janela_->Imagem()->LarguraPixeis() - 1);
    int N = N_;
    // Columns 0..W and rows 0..H inclusive, row j drawn at picture row H - j; the column
    // and row past the picture's edge are computed and fall outside it.
    for (int i = 0; i <= W_; ++i) {
        ColunaMandelbrot(variante, vista, i, N, contagens_.data());
        if (i <= ultimaVisivel) {
            // The colouring option is read once per column: it can only change in a yield.
            Cor* coluna = &cores_[static_cast<std::size_t>(i % kBloco) * linhas];
            CoresColuna(ColoracaoActual(), contagens_.data(), N, i, H_, coluna);
            if (i % kBloco == kBloco - 1 || i == ultimaVisivel)
                EscreverColunas(i - i % kBloco, i);
        }
        if (!Sistema().Ceder())
            return;  // the program is ending
        N = ReLerIteracoes(N);
    }
    janela_->TerminarDesenho();
}

// Columns are computed one at a time but written a block at a time, row by row: writing a
// single column touches one cache line per row, a block fills them. The scroll bars stay live
// during a drawing, so the picture may have been resized since the drawing began: what falls
// outside it now is dropped.
void PaginaMandelbrot::EscreverColunas(int primeira, int ultima)
{
    ControloImagem* imagem = janela_->Imagem();
    const std::size_t linhas = static_cast<std::size_t>(H_) + 1;
    const int altura = imagem->AlturaPixeis();
    const int colunas = std::min(ultima, imagem->LarguraPixeis() - 1) - primeira + 1;
    if (colunas <= 0)
        return;
    for (int y = 0; y < altura && y <= H_; ++y) {
        const std::size_t j = static_cast<std::size_t>(H_ - y);
        QRgb* destino = imagem->Linha(y) + primeira;
        for (int c = 0; c < colunas; ++c)
            destino[c] = cores_[static_cast<std::size_t>(c) * linhas + j];
    }
    imagem->Sujar(QRect(primeira, 0, colunas, altura));
}

void PaginaMandelbrot::EscolherCorInterior()
{
    corInterior_ = Sistema().EscolherCor(this, corInterior_);
    MostrarAmostra(amostraInterior_, corInterior_);
}

void PaginaMandelbrot::EscolherCorExterior()
{
    corExterior_ = Sistema().EscolherCor(this, corExterior_);
    MostrarAmostra(amostraExterior_, corExterior_);
}

}  // namespace lumerina
