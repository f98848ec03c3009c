#include "complex/PaginaJulia.h"

#include "app/Aplicacao.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "frame/Plataforma.h"
#include "frame/SessaoDesenho.h"
#include "interp/LerValor.h"
#include "interp/clsEquation.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace lumerina {

namespace {

const QString kTitulo = QStringLiteral("Conjuntos de Julia");

// TabelaValoresK: the named values of k in slots 1..60, the texts kept as they are (the ")"
// of slot 6 and the name of slot 52, which does not match its real part, included).
struct ValorK {
    int slot;
    const char* nome;
    const char* parteReal;
    const char* parteImag;
};
constexpr ValorK kValoresK[] = {
    {1, "k = - 0.48 - 0.53 i", "-0.480", "-0.530"},
    {2, "k = 0.36 + 0.1 i", "0.360", "0.100"},
    {3, "k = 0.745 + 0.1 i", "0.745", "0.100"},
    {4, "k = 0.288 + 0.484 i", "0.288", "0.484"},
    {5, "k = - 1.327", "-1.327", "0"},
    {6, "k = - 0.873 + 0.218 i", "-0.873", "0.218)"},
    {7, "k = - 0.618 + 0.436 i", "-0.618", "0.436"},
    {8, "k = - 0.290 + 0.654 i", "-0.290", "0.654"},
    {9, "k = - 0.127 + 0.927 i", "-0.127", "0.927"},
    {10, "k = 0.109 + 0.655 i", "0.109", "0.655"},
    {11, "k = 0.29 + 0.455 i", "0.290", "0.455"},
    {12, "k = - 1.31 + 0.036 i", "-1.310", "0.036"},
    {13, "k = 0.255 + 0.51 i", "0.255", "0.510"},
    {14, "k = - 0.127 - 0.745 i", "-0.127", "-0.745"},
    {15, "k = - 0.363 - 0.618 i", "-0.363", "-0.618"},
    {16, "k = - 0.636 - 0.509 i", "-0.636", "-0.509"},
    {17, "k = - 0.836 - 0.109 i", "-0.836", "-0.109"},
    {18, "k = 0.145 - 0.673 i", "0.145", "-0.673"},
    {19, "k = - 0.527 - 0.672 i", "-0.527", "-0.672"},
    {20, "k = - 0.782 - 0.145 i", "-0.782", "-0.145"},
    {21, "k = - 0.818 + 0.254 i", "-0.818", "0.254"},
    {30, "k = 1", " 1", " 0"},
    {31, "k = 1 + 0.036 i", " 1", " 0.036"},
    {32, "k = 1 + 0.1 i", " 1", " 0.1"},
    {33, "k = 1 + 0.15 i", " 1", " 0.15"},
    {34, "k = 1 + 0.2 i", " 1", " 0.2"},
    {35, "k = 1 + 0.25 i", " 1", " 0.25"},
    {36, "k = 1 + 0.3i", " 1", " 0.3"},
    {37, "k = 1 + 0.35 i", " 1", " 0.35"},
    {40, "k = 1", " 1", " 0"},
    {41, "k =0.5 + 0.98 i", " 0.5", " 0.98"},
    {42, "k =0.7 + 0.45 i", " 0.7", " 0.45"},
    {43, "k =1 + 0.2 i", " 1", " 0.2"},
    {44, "k =1 + i", " 1", " 1"},
    {45, "k =1+ 0.6 i", " 1", " 0.6"},
    {50, "k = 1", " 1", " 0"},
    {51, "k = 0.987 + 0.987 i", " 0.987", " 0.987"},
    {52, "k = - 1.370", " - 1.310", " 0"},
    {53, "k = - 1.310 + 0.036 i", " -1.310", " 0.036"},
    {54, "k = 0.745 + 0.1 i", " 0.745", " 0.1"},
    {55, "k = 0.980 + 0.980 i", " 0.980", " 0.980"},
    {56, "k = 0.745 + 0.3 i", " 0.745", " 0.3"},
};

const ValorK* Slot(int slot)
{
    for (const ValorK& v : kValoresK)
        if (v.slot == slot)
            return &v;
    return nullptr;
}

// The first slot of each list, Combo1..Combo4; a list holds the slots up to the next one.
constexpr int kPrimeiroSlot[4] = {1, 30, 40, 50};

// What a family option writes into the page: its list, limits, k, N and the caption of the
// second colouring (nullptr: the field is left as it is). In the order of the options:
// "Iteração normal", "Iteração inversa", "k.sen (z)", "k.cos (z)", "k.exp (z)".
struct Familia {
    int lista;
    const char *xmin, *xmax, *ymin, *ymax, *c, *d, *n, *semLinhas;
};
const char* const kConjuntoColorido = "Com o conjunto colorido (escolha as cores)";
const Familia kFamilias[] = {
    {0, "-1.5", "1.5", "-1.5", "1.5", nullptr, nullptr, "50", kConjuntoColorido},
    {0, "-2", "2", "-2", "2", nullptr, nullptr, "50000", kConjuntoColorido},
    {1, "-6.28", "6.28", "-4.75", "4.75", "1", "0.2", "50", kConjuntoColorido},
    {2, "-6.28", "6.28", "-4.75", "4.75", "0.9876", "0.9876", "50", kConjuntoColorido},
    {3, "-4", "4", "-4", "3", "3", "3", "50", "Com cores em tempo de escape 2"},
};

}  // namespace

PaginaJulia::PaginaJulia(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    ColocarTitulo();

    janela_ = new JanelaDesenho(this, area, QPoint(8, 8));

    QGroupBox* funcao = Quadro(area, "Função", {kPainelX, 30, kPainelLargura, 178});
    funcao_.Adicionar(funcao, {
        {"IteraçãoNormal", "Iteração normal", {10, 20, 150, 21}, Funcao::Normal},
        {"IteraçãoInversa", "Iteração inversa", {170, 20, 150, 21}, Funcao::Inversa},
        {"KapaSenoZ", "k.sen (z)", {10, 42, 100, 21}, Funcao::Seno},
        {"KapaCosenoZ", "k.cos (z)", {115, 42, 100, 21}, Funcao::Coseno},
        {"KapaExpZ", "k.exp (z)", {220, 42, 100, 21}, Funcao::Exp},
    });
    for (const auto& [botao, valor] : funcao_.Opcoes())
        connect(botao, &QRadioButton::clicked, this, [this, f = valor] { EscolherFuncao(f); });

    // z² + k, with k = C + D i, written around the two boxes.
    Rotulo(funcao, "z", {10, 72, 10, 22});
    QLabel* expoente = Rotulo(funcao, "2", {20, 66, 10, 16});
    QFont pequena = expoente->font();
    pequena.setPointSizeF(pequena.pointSizeF() * 0.75);
    expoente->setFont(pequena);
    Rotulo(funcao, "+ k ,", {31, 72, 34, 22});
    Rotulo(funcao, "com", {68, 72, 30, 22});
    Rotulo(funcao, "k =", {100, 72, 24, 22});
    valorDeC_ = Campo(funcao, "ValorDeC", "-0.48", {126, 70, 78, 24});
    Rotulo(funcao, "+", {208, 72, 10, 22});
    valorDeD_ = Campo(funcao, "ValorDeD", "-0.53", {222, 70, 78, 24});
    Rotulo(funcao, "i", {304, 72, 10, 22});

    Rotulo(funcao, "Valores pré-definidos:", {10, 104, 200, 20});
    for (int l = 0; l < 4; ++l) {
        auto* lista = new QComboBox(funcao);
        lista->setObjectName(QStringLiteral("Combo%1").arg(l + 1));
        lista->setGeometry(10, 126, 220, 26);
        const int fim = l < 3 ? kPrimeiroSlot[l + 1] : 61;
        for (int s = kPrimeiroSlot[l]; s < fim; ++s)
            if (const ValorK* v = Slot(s))
                lista->addItem(QString::fromUtf8(v->nome));
        lista->setVisible(l == 0);
        connect(lista, &QComboBox::activated, this,
                [this, l](int posicao) { EscolherValor(kPrimeiroSlot[l], posicao); });
        combos_[l] = lista;
    }

    janela_->QuadroArea()->setGeometry(kPainelX, 212, kPainelLargura, 78);
    janela_->Xminimo()->setText(QStringLiteral("-1.5"));
    janela_->Xmaximo()->setText(QStringLiteral("1.5"));
    janela_->Yminimo()->setText(QStringLiteral("-1.5"));
    janela_->Ymaximo()->setText(QStringLiteral("1.5"));

    QGroupBox* iteracoes = Quadro(area, "Iterações", {kPainelX, 294, kPainelLargura, 50});
    Rotulo(iteracoes, "Número de iterações:", {10, 22, 150, 22});
    numIteracoes_ = Campo(iteracoes, "NumIterações", "150", {165, 20, 80, 24});

    QGroupBox* cores = Quadro(area, "Cores", {kPainelX, 348, kPainelLargura, 112});
    coloracao_.Adicionar(cores, {
        {"LinhasTipo2", "Com cores em tempo de escape", {10, 20, 320, 22}, ColoracaoJulia::LinhasTipo2},
        {"SemLinhas", kConjuntoColorido, {10, 44, 320, 22}, ColoracaoJulia::SemLinhas},
    });
    corA_ = new SeletorCor(cores, "Command8", "Cor interior", {10, 74, 100, 28}, "Label5",
                           {116, 78, 36, 20}, QColor::fromRgb(Paleta16[14]));
    corB_ = new SeletorCor(cores, "Command9", "Cor exterior", {172, 74, 100, 28}, "Label9",
                           {278, 78, 36, 20}, QColor::fromRgb(Paleta16[9]));

    janela_->QuadroDimensao()->setGeometry(kPainelX, 464, kPainelLargura, 46);

    QGroupBox* opcoes = janela_->QuadroOpcoes();
    opcoes->setGeometry(kPainelX, 514, kPainelLargura, 62);
    const int x = janela_->DisporBotoes(8, 62, 64);
    janela_->LigarDesenho(Botao(opcoes, "Desenhar", "Desenhar", {x, 24, 70, 28}),
                          [this] { CarregarDesenhar(); });
    connect(Botao(opcoes, "Sair", "Sair", {x + 72, 24, 54, 28}), &QPushButton::clicked, this,
            [this] { FecharPagina(this); });

    janela_->LerLimitesSimples();
}

void PaginaJulia::EscolherFuncao(Funcao f)
{
    const Familia& familia = kFamilias[static_cast<int>(f)];
    if (f == Funcao::Normal)
        janela_->Imagem()->EscalaPixeis();
    for (int l = 0; l < 4; ++l)
        combos_[l]->setVisible(l == familia.lista);
    const std::pair<QLineEdit*, const char*> campos[] = {
        {janela_->Xminimo(), familia.xmin}, {janela_->Xmaximo(), familia.xmax},
        {janela_->Yminimo(), familia.ymin}, {janela_->Ymaximo(), familia.ymax},
        {valorDeC_, familia.c},             {valorDeD_, familia.d},
        {numIteracoes_, familia.n},
    };
    for (const auto& [campo, texto] : campos)
        if (texto)
            campo->setText(QString::fromUtf8(texto));
    valorDeC_->setEnabled(true);
    valorDeD_->setEnabled(true);
    coloracao_.Botao(ColoracaoJulia::SemLinhas)->setText(QString::fromUtf8(familia.semLinhas));
}

void PaginaJulia::EscolherValor(int primeiroSlot, int posicao)
{
    const ValorK* v = Slot(primeiroSlot + posicao);
    if (!v)
        return;
    valorDeC_->setText(QString::fromUtf8(v->parteReal));
    valorDeD_->setText(QString::fromUtf8(v->parteImag));
}

bool PaginaJulia::ValidarJulia()
{
    const auto dizer = [this](const char* texto) { Recusar(this, kTitulo, texto); };
    // Checks 1, 6, 7 and 8 leave the flag as it was: after a successful drawing their
    // message is followed by the drawing, with the values just read.
    for (QLineEdit* campo : {janela_->Xminimo(), janela_->Xmaximo(), janela_->Yminimo(),
                             janela_->Ymaximo()}) {
        if (campo->text().trimmed().isEmpty()) {
            dizer("É necessário indicar todas as dimensões da janela de desenho.");
            return valido_;
        }
    }
    try {
        // One after the other: a failing field leaves the limits before it read.
        xmin_ = AvaliarLimite(janela_->Xminimo()->text());
        xmax_ = AvaliarLimite(janela_->Xmaximo()->text());
        ymin_ = AvaliarLimite(janela_->Yminimo()->text());
        ymax_ = AvaliarLimite(janela_->Ymaximo()->text());
    } catch (const ErroInterpretador& erro) {
        // The interpreter's own message; nothing is drawn, the flag stays as it was.
        Sistema().Mensagem(this, QString::fromStdString(erro.origem()),
                           QString::fromStdString(erro.what()), IconeMensagem::Informacao);
        return false;
    }
    if (ymin_ >= ymax_) {
        dizer("O valor de Ymáx deve ser maior que o de Ymín.");
        Sistema().CursorEspera(this, false);
        return valido_ = false;
    }
    if (xmin_ >= xmax_) {
        dizer("O valor de Xmáx deve ser maior que o de Xmín.");
        Sistema().CursorEspera(this, false);
        return valido_ = false;
    }
    bool numerico = false;
    numIteracoes_->text().toDouble(&numerico);  // "." whatever the locale
    if (!numerico) {
        dizer("O número de iterações deve ser um número inteiro.");
        return valido_ = false;
    }
    N_ = LerValor(numIteracoes_->text().toStdString());
    if (N_ < 0) {
        dizer("O número de iterações não pode ser negativo.");
        return valido_;
    }
    if (N_ > 256 && funcao_.Valor() != Funcao::Inversa) {
        dizer("O número de iterações deve estar compreendido entre 1 e 256.");
        return valido_;
    }
    if (std::floor(N_) != N_) {
        dizer("O número de iterações deve ser um número inteiro");
        return valido_;
    }
    return valido_ = true;
}

void PaginaJulia::CarregarDesenhar()
{
    if (!ValidarJulia())
        return;
    janela_->PrepararDesenho();
    // Each selected family is drawn, tested in this order (only one can be selected, but one
    // chosen during a drawing that comes later in the order is drawn next).
    for (Funcao f : {Funcao::Normal, Funcao::Inversa, Funcao::Seno, Funcao::Coseno, Funcao::Exp}) {
        if (Sistema().ATerminar())
            return;
        if (funcao_.Valor() != f)
            continue;
        switch (f) {
        case Funcao::Normal: DesenharTempoFuga(FamiliaJulia::Normal); break;
        case Funcao::Inversa: DesenharJuliaInversa(); break;
        case Funcao::Seno: DesenharTempoFuga(FamiliaJulia::Seno); break;
        case Funcao::Coseno: DesenharTempoFuga(FamiliaJulia::Coseno); break;
        case Funcao::Exp: DesenharTempoFuga(FamiliaJulia::Exp); break;
        }
    }
}

void PaginaJulia::LerK()
{
    C_ = LerValor(valorDeC_->text().toStdString());
    D_ = LerValor(valorDeD_->text().toStdString());
    janela_->xmin = xmin_;
    janela_->xmax = xmax_;
    janela_->ymin = ymin_;
    // The window keeps its top in single precision, for the mouse; ours stays double.
    janela_->ymax = static_cast<float>(std::clamp(ymax_, -double(std::numeric_limits<float>::max()),
                                                  double(std::numeric_limits<float>::max())));
}

void PaginaJulia::DesenharTempoFuga(FamiliaJulia familia)
{
    if (!ValidarJulia())
        return;
    LerK();
    const VistaJulia vista{xmin_, xmax_, ymin_, ymax_, janela_->W(), janela_->H()};
    contagens_.assign(static_cast<std::size_t>(vista.H) + 1, 0);
    const double N = N_;
    std::optional<ImagemJulia> normal;
    if (familia == FamiliaJulia::Normal)
        normal.emplace(vista, C_, D_, LimiteContagem(N));
    janela_->DesenharPorColunas(
        [&](int i, Cor* cores) {
            if (familia == FamiliaJulia::Normal)
                normal->Coluna(i, contagens_.data());
            else
                ColunaTranscendente(familia == FamiliaJulia::Seno     ? FamiliaTranscendente::Seno
                                    : familia == FamiliaJulia::Coseno ? FamiliaTranscendente::Coseno
                                                                      : FamiliaTranscendente::Exp,
                                    vista, i, C_, D_, LimitePassos(N), contagens_.data());
            // The colouring option is read once per column: it can only change in a yield.
            CoresColunaJulia(familia, coloracao_.Valor(), contagens_.data(), N, i, vista.H,
                             corA_->Cor().rgb(), corB_->Cor().rgb(), cores);
        },
        {}, {vista.H - LinhaImagem(familia, vista.H, 0), familia == FamiliaJulia::Exp});
    if (familia == FamiliaJulia::Seno) {
        valorDeC_->setEnabled(true);
        valorDeD_->setEnabled(true);
        combos_[0]->setEnabled(true);
    }
}

void PaginaJulia::DesenharJuliaInversa()
{
    if (!ValidarJulia())
        return;
    SessaoDesenho sessao(*janela_);
    LerK();
    ControloImagem* imagem = janela_->Imagem();
    imagem->Escala(xmin_, ymax_, xmax_, ymin_);
    const QRgb cor = corB_->Cor().rgb();
    SemearAleatorioDoRelogio();
    // The points come in a blink, but nothing bounds N: a yield every 2^16 points lets a
    // count in the billions be watched and abandoned ("Abandonar" ends it at once).
    long long pontos = 0;
    bool terminou = false;
    IteracaoInversa(C_, D_, N_, [&](double x, double y) {
        imagem->Pixel(x, y, cor);
        if ((++pontos & 0xFFFF) == 0 && !Sistema().Ceder()) {
            terminou = true;
            return false;
        }
        return true;
    });
    if (!terminou)
        sessao.Concluir();
}

}  // namespace lumerina
