#include "complex/PaginaNewton.h"

#include "frame/ControloImagem.h"
#include "frame/DesenhoColunas.h"
#include "frame/JanelaDesenho.h"
#include "frame/SessaoDesenho.h"
#include "interp/LerValor.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <climits>
#include <cmath>
#include <iterator>
#include <limits>

namespace lumerina {

namespace {

const QString kTitulo = QStringLiteral("Método de Newton");

// The degree a text holds by the page's checks: a whole number above 1, or a refusal.
enum class LeituraGrau { Aceite, NaoInteiro, NaoMaiorQueUm };

LeituraGrau LerGrau(const QString& texto, int& grau)
{
    bool numerico = false;
    const double n = texto.toDouble(&numerico);  // "." whatever the locale
    if (!numerico || !std::isfinite(n) || std::floor(n) != n)
        return LeituraGrau::NaoInteiro;
    if (n <= 1)
        return LeituraGrau::NaoMaiorQueUm;
    // For a text these checks accept, the lenient reading the steps use gives this same
    // number. A degree past the range of int is held as the largest int.
    grau = n < INT_MAX ? static_cast<int>(n) : INT_MAX;
    return LeituraGrau::Aceite;
}

// A limit field read leniently, held in single precision (beyond its range, an infinity).
// The typographic minus reads as "-", as the checks read it.
float LimiteSimples(const QLineEdit* campo)
{
    const double v = LerValor(TextoParaInterpretar(campo->text().trimmed()).toStdString());
    constexpr float inf = std::numeric_limits<float>::infinity();
    if (std::fabs(v) > std::numeric_limits<float>::max())
        return v > 0 ? inf : -inf;
    return static_cast<float>(v);
}

double LerCampo(const QLineEdit* campo)
{
    return LerValor(campo->text().trimmed().toStdString());
}

}  // namespace

PaginaNewton::PaginaNewton(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    ColocarTitulo();

    janela_ = new JanelaDesenho(this, area, QPoint(8, 8),
                                {.rotulosLimites = {"Xmin =", "Xmax =", "Ymin =", "Ymax ="}});

    QGroupBox* equacao = Quadro(area, "Equação", {kPainelX, 32, 166, 58});
    Rotulo(equacao, "zⁿ − 1 = 0,  n =", {10, 26, 96, 22});
    expoente_ = Campo(equacao, "Expoente", "3", {106, 24, 50, 24});
    expoente_->setToolTip(QStringLiteral("Escreva aqui o grau da equação."));

    QGroupBox* normal = Quadro(area, "Desenhar normal", {kPainelX + 170, 32, 166, 58});
    QPushButton* desenharNormal =
        Botao(normal, "Newton", "Desenhar", {38, 22, 90, 28}, "Desenha o fractal");

    QGroupBox* inversao = Quadro(area, "Desenhar com inversão", {kPainelX, 94, kPainelLargura, 86});
    Rotulo(inversao, "Parâmetro:", {10, 24, 70, 22});
    factor_ = Campo(inversao, "Factor", "1", {82, 22, 70, 24});
    factor_->setToolTip(QStringLiteral("Escreva aqui o valor da constante para a inversão."));
    Rotulo(inversao, "Centro:", {10, 54, 70, 22});
    xzero_ = Campo(inversao, "Xzero", "0", {82, 52, 70, 24});
    yzero_ = Campo(inversao, "Yzero", "0", {158, 52, 70, 24});
    QPushButton* desenharInversa =
        Botao(inversao, "Inversa", "Desenhar", {238, 36, 90, 28}, "Desenha o fractal");

    janela_->QuadroArea()->setGeometry(kPainelX, 184, kPainelLargura, 78);
    janela_->Xminimo()->setText(QStringLiteral("-3"));
    janela_->Xmaximo()->setText(QStringLiteral("3"));
    janela_->Yminimo()->setText(QStringLiteral("-3"));
    janela_->Ymaximo()->setText(QStringLiteral("3"));

    // The twenty colourings, one exclusive group: a row for each table in its three forms,
    // then the five without a table.
    using enum CorNewton;
    QGroupBox* cores = Quadro(area, "Cores", {kPainelX, 266, kPainelLargura, 158});
    const auto onde = [](int coluna, int linha) { return QRect(10 + 106 * coluna, 20 + 22 * linha, 104, 22); };
    cores_.Adicionar(cores, {
        {"CorFogo", "Fogo", onde(0, 0), Fogo},
        {"CorFogo1", "Fogo 1", onde(1, 0), Fogo1},
        {"CorFogo2", "Fogo2", onde(2, 0), Fogo2},
        {"CorAzul", "Azul", onde(0, 1), Azul},
        {"CorAzul1", "Azul 1", onde(1, 1), Azul1},
        {"CorAzul2", "Azul 2", onde(2, 1), Azul2},
        {"CorVermelho", "Vermelho", onde(0, 2), Vermelho},
        {"CorVermelho1", "Vermelho 1", onde(1, 2), Vermelho1},
        {"CorVermelho2", "Vermelho 2", onde(2, 2), Vermelho2},
        {"CorMulticor", "Multicor", onde(0, 3), Multicor},
        {"CorMulticolor1", "Multicolor 1", onde(1, 3), Multicolor1},
        {"CorMulticolor2", "Multicolor 2", onde(2, 3), Multicolor2},
        {"CorRoxo", "Roxo", onde(0, 4), Roxo},
        {"CorRoxo1", "Roxo 1", onde(1, 4), Roxo1},
        {"CorRoxo2", "Roxo 2", onde(2, 4), Roxo2},
        {"Cor1", "Cor 1", {10, 134, 62, 22}, Cor1},
        {"Cor2", "Cor 2", {73, 134, 62, 22}, Cor2},
        {"Cor3", "Cor 3", {136, 134, 62, 22}, Cor3},
        {"Cor4", "Cor 4", {199, 134, 62, 22}, Cor4},
        {"Cor5", "Cor 5", {262, 134, 62, 22}, Cor5},
    });
    cores_.Marcar(Fogo);

    janela_->QuadroDimensao()->setGeometry(kPainelX, 428, kPainelLargura, 46);
    janela_->QuadroDimensao()
        ->findChild<QLabel*>(QStringLiteral("LabelDimensãoJanela"))
        ->setToolTip(QStringLiteral("Dimensão da janela de desenho em pixeis."));

    QGroupBox* opcoes = janela_->QuadroOpcoes();
    opcoes->setGeometry(kPainelX, 478, kPainelLargura, 62);
    janela_->DisporBotoes(10, 96, 110);

    // The buttons stay live during a drawing on this page: nothing is registered to be
    // disabled, and a click while a drawing runs starts nothing.
    LigarDesenho(desenharNormal, [this] { Desenhar(false); });
    LigarDesenho(desenharInversa, [this] { Desenhar(true); });

    janela_->LerLimitesSimples();
}

bool PaginaNewton::ValidarNewton()
{
    if (!janela_->ValidarLimites(kTitulo, true))
        return false;
    switch (LerGrau(expoente_->text(), grau_)) {
    case LeituraGrau::NaoInteiro:
        return Recusar(this, kTitulo, "O expoente deve ser um número inteiro.");
    case LeituraGrau::NaoMaiorQueUm:
        return Recusar(this, kTitulo, "O expoente deve ser um número maior que 1.");
    case LeituraGrau::Aceite:
        break;
    }
    return true;
}

int PaginaNewton::ReLerGrau(int emVigor) const
{
    // The degree is used afresh at every step, but the field can only change while the
    // drawing yields: reading it once per column, right after the yield, is the same thing.
    // A value the checks would refuse (the user is halfway through typing) keeps the degree
    // in force.
    int grau = emVigor;
    return LerGrau(expoente_->text(), grau) == LeituraGrau::Aceite ? grau : emVigor;
}

void PaginaNewton::Desenhar(bool comInversao)
{
    if (!ValidarNewton())
        return;
    ControloImagem* imagem = janela_->Imagem();
    // Hourglass and a fresh pen; the buttons stay enabled. The picture is not cleared: a
    // point left undrawn shows what was there.
    SessaoDesenho sessao(*janela_, SessaoDesenho::Botoes::Activos);
    imagem->EscalaPixeis();
    const double W = imagem->LarguraEscala();
    const int H = static_cast<int>(imagem->AlturaEscala());

    // The checks evaluated the limits as expressions; the drawing reads the fields again as
    // plain numbers, in single precision, so "2*pi" passes the checks and is drawn as 2.
    // This rectangle is the world the picture then speaks (mouse, zoom, resizing).
    const float x0 = LimiteSimples(janela_->Xminimo()), x1 = LimiteSimples(janela_->Xmaximo());
    const float y0 = LimiteSimples(janela_->Yminimo()), y1 = LimiteSimples(janela_->Ymaximo());
    janela_->xmin = x0;
    janela_->xmax = x1;
    janela_->ymin = y0;
    janela_->ymax = y1;
    janela_->DefinirEscalaMundo();
    const GrelhaNewton grelha = CriarGrelhaNewton(x0, x1, y0, y1, W, H);

    // The table is filled once, from the option in force as the drawing starts.
    PreencherTabelaNewton(TabelaDaCor(cores_.Valor()), paleta_);
    const InversaoNewton inversao{LerCampo(factor_), LerCampo(xzero_), LerCampo(yzero_)};
    const InversaoNewton* inv = comInversao ? &inversao : nullptr;

    int n = ReLerGrau(grau_);
    const int colunas = static_cast<int>(grelha.xs.size());
    const int linhas = std::min(static_cast<int>(grelha.ys.size()), H + 1);
    passos_.assign(static_cast<std::size_t>(H) + 1, 0);
    // The colour of each step count under the colouring in force, made again when it changes.
    Cor tabela[kPassosNewton + 1] = {};
    CorNewton corDaTabela = cores_.Valor();
    for (int s = 1; s <= kPassosNewton; ++s)
        tabela[s] = CorDosPassos(corDaTabela, s, paleta_);
    const auto colorir = [&](int i, Cor* cores) {
        if (i >= colunas)
            passos_.assign(passos_.size(), 0);
        else
            ColunaNewton(grelha.xs[i], grelha.ys.data(), linhas, n, inv, passos_.data());
        // The colouring option is read once per column: it can only change in a yield.
        if (const CorNewton cor = cores_.Valor(); cor != corDaTabela) {
            corDaTabela = cor;
            for (int s = 1; s <= kPassosNewton; ++s)
                tabela[s] = CorDosPassos(cor, s, paleta_);
        }
        for (int j = 0; j <= H; ++j)
            cores[j] = tabela[passos_[j]];
        // A point the loops did not reach, or the centre of the inversion, is left as it was.
        const QImage& antes = imagem->Imagem();
        for (int j = 0; j <= H; ++j) {
            const int y = H - j;
            if (passos_[j] == 0 && i < antes.width() && y < antes.height())
                cores[j] = antes.pixel(i, y);
        }
    };
    if (!DesenharColunas(*imagem, W, H, colorir, [&] { n = ReLerGrau(n); }))
        return;  // the program is ending
    sessao.Concluir();
}

}  // namespace lumerina
