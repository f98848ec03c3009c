#include "dynamics/PaginaAtractores.h"

#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "frame/Plataforma.h"
#include "frame/SessaoDesenho.h"
#include "interp/LerValor.h"
#include "interp/clsEquation.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>

#include <algorithm>
#include <cmath>
#include <limits>

namespace lumerina {

namespace {

const QString kTitulo = QStringLiteral("Atractores");
constexpr QRgb kCorPontos = 0xFF000080u;  // blue, colour 1 of the 16-colour palette
constexpr int kLote = 4096;               // points computed and plotted together at full speed
constexpr int kMaximoEspera = 100;        // ms, the speed bars' right end
constexpr int kMeioMarca = 3;             // "Ver ponto": a box of 7 x 7 pixels

// The world window an option writes; a missing value leaves the box as it is.
struct JanelaMundo {
    double xmin, xmax, ymin, ymax;
};
struct Escolha {
    TipoAtractor tipo;
    std::optional<JanelaMundo> janela;
    std::optional<int> iteracoes;
};
const Escolha kEscolhas[] = {
    {TipoAtractor::Henon, JanelaMundo{-2, 2, -1, 1}, 10000},
    {TipoAtractor::Duffing, JanelaMundo{-2, 2, -2, 2}, 20000},
    {TipoAtractor::DeJong, JanelaMundo{-3, 3, -3, 3}, 20000},
    {TipoAtractor::Caotico, JanelaMundo{-4, 9, -4, 9}, 20000},
    {TipoAtractor::Kam, JanelaMundo{-1, 1, -1, 1}, 10000},
    {TipoAtractor::Clifford, JanelaMundo{-3, 3, -3, 3}, std::nullopt},
    {TipoAtractor::Hopalong, JanelaMundo{-8, 10, -8, 8}, std::nullopt},
    {TipoAtractor::Estranhos, JanelaMundo{-2, 2, -2, 2}, 20000},  // the first variant: -1 … 1
    {TipoAtractor::Lorenz, JanelaMundo{-8, 8, -8, 8}, std::nullopt},
    {TipoAtractor::Rossler, std::nullopt, 20000},
    {TipoAtractor::Tinkerbell, JanelaMundo{-1.1, 0.6, -2.5, 1.6}, 30000},
    {TipoAtractor::Borboleta, std::nullopt, std::nullopt},
};

QString TextoNumero(double v) { return TextoLimite(v, 6); }

}  // namespace

PaginaAtractores::PaginaAtractores(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    ColocarTitulo();

    janela_ = new JanelaDesenho(this, area, QPoint(8, 8));
    // On this page HScroll1 … HScroll4 are the speed bars; the picture's size bars give way.
    for (const auto& [antigo, novo] : {std::pair{"HScroll1", "HScrollImagem"},
                                       std::pair{"VScroll1", "VScrollImagem"}})
        area->findChild<QScrollBar*>(QString::fromUtf8(antigo))->setObjectName(QString::fromUtf8(novo));

    QGroupBox* tipos = lumerina::Quadro(area, "Tipo de atractor", {kPainelX, 32, kPainelLargura, 112});
    const auto onde = [](int i) { return QRect(10 + (i % 3) * 108, 20 + (i / 3) * 22, 106, 21); };
    tipo_.Adicionar(tipos, {
        {"Lorenz", "Lorenz", onde(0), TipoAtractor::Lorenz},
        {"Rossler", "Rossler", onde(1), TipoAtractor::Rossler},
        {"Duffing", "Duffing", onde(2), TipoAtractor::Duffing},
        {"Henon", "Hénon", onde(3), TipoAtractor::Henon},
        {"Kam", "Kam", onde(4), TipoAtractor::Kam},
        {"Hopalong", "Hopalong", onde(5), TipoAtractor::Hopalong},
        {"DeJong", "Peter de Jong", onde(6), TipoAtractor::DeJong},
        {"Clifford", "Clifford", onde(7), TipoAtractor::Clifford},
        {"Tinkerbell", "Tinkerbell", onde(8), TipoAtractor::Tinkerbell},
        {"Estranhos", "Estranhos", onde(9), TipoAtractor::Estranhos},
        {"Borboleta", "Borboleta", onde(10), TipoAtractor::Borboleta},
        {"Caótico", "Caótico", onde(11), TipoAtractor::Caotico},
    });
    for (const auto& [botao, tipo] : tipo_.Opcoes())
        connect(botao, &QRadioButton::clicked, this, [this, t = tipo] { EscolherTipo(t); });

    janela_->QuadroArea()->setGeometry(kPainelX, 148, kPainelLargura, 78);
    janela_->Xminimo()->setText(QStringLiteral("-8"));
    janela_->Xmaximo()->setText(QStringLiteral("8"));
    janela_->Yminimo()->setText(QStringLiteral("-8"));
    janela_->Ymaximo()->setText(QStringLiteral("8"));

    QGroupBox* iteracoes = lumerina::Quadro(area, "Iterações", {kPainelX, 230, kPainelLargura, 48});
    Rotulo(iteracoes, "Número de iterações:", {10, 20, 150, 22});
    iteracoes_ = Campo(iteracoes, "Iterações", "20000", {165, 18, 90, 24});

    ConstruirQuadros(area, {kPainelX, 282, kPainelLargura, 242});

    janela_->QuadroDimensao()->setGeometry(kPainelX, 528, kPainelLargura, 46);
    QGroupBox* opcoes = janela_->QuadroOpcoes();
    opcoes->setGeometry(kPainelX, 578, kPainelLargura, 62);
    janela_->DisporBotoes(8, 76, 80);
    janela_->LigarDesenho(Botao(opcoes, "Desenhar", "Desenhar", {248, 24, 80, 28}),
                          [this] { CarregarDesenhar(); });

    EscolherTipo(TipoAtractor::Lorenz);
    janela_->LerLimitesSimples();
}

// ---------------------------------------------------------------------------------------------
// Controls

QGroupBox* PaginaAtractores::QuadroParametros(
    QWidget* area, QRect onde, TipoAtractor tipo, const char* nome, const char* titulo,
    std::initializer_list<std::pair<const char*, const char*>> campos, int colunas)
{
    QGroupBox* quadro = lumerina::Quadro(area, titulo, onde, nome);
    QuadroAtractor& q = De(tipo);
    q.quadro = quadro;
    const int celula = (kPainelLargura - 20) / colunas;
    int i = 0;
    for (const auto& [nomeCampo, rotulo] : campos) {
        const QPoint canto(10 + (i % colunas) * celula, 22 + (i / colunas) * 28);
        q.parametros.push_back(CampoRotulado(quadro, nomeCampo, rotulo, canto, celula));
        ++i;
    }
    return quadro;
}

// A parameter box of 62 pixels at the right of a cell, its label filling the rest.
QLineEdit* PaginaAtractores::CampoRotulado(QWidget* quadro, const char* nome, const char* rotulo,
                                           QPoint canto, int celula)
{
    const int largura = celula - 66;
    Rotulo(quadro, rotulo, {canto.x(), canto.y() + 2, largura, 20});
    return Campo(quadro, nome, "", {canto.x() + largura, canto.y(), 62, 24});
}

// The rows of a flow's frame (and Hénon's): "Normal", "Pontos grandes", "Imagem para copiar",
// "Ver ponto" with its note, and the speed bar.
void PaginaAtractores::Fluxo(TipoAtractor tipo, const char* normal, const char* grandes,
                             const char* verPonto, const char* barra, int y)
{
    QuadroAtractor& q = De(tipo);
    Opcao(q.quadro, normal, "Normal", {10, y, 78, 22})->setChecked(true);
    q.grandes = Caixa(q.quadro, grandes, "Pontos grandes", {92, y, 120, 22});
    if (verPonto) {
        q.verPonto = Caixa(q.quadro, verPonto, "Ver ponto", {170, y + 24, 120, 22});
        Rotulo(q.quadro, "(ver ponto, apenas com imagem para copiar)", {10, y + 48, 316, 20});
    }
    const int yb = verPonto ? y + 74 : y + 52;
    Rotulo(q.quadro, "Velocidade:", {10, yb, 76, 20});
    q.velocidade = new QScrollBar(Qt::Horizontal, q.quadro);
    q.velocidade->setObjectName(QString::fromUtf8(barra));
    q.velocidade->setGeometry(90, yb + 2, 230, 17);
    q.velocidade->setRange(0, kMaximoEspera);
    q.velocidade->setSingleStep(1);
    q.velocidade->setPageStep(10);
}

void PaginaAtractores::Copiar(TipoAtractor tipo, const char* nome, QPoint onde)
{
    De(tipo).copiar = Caixa(De(tipo).quadro, nome, "Imagem para copiar", {onde, QSize(150, 22)});
}

void PaginaAtractores::Predefinidos(TipoAtractor tipo, const char* nome,
                                    ConjuntoPredefinido conjunto, int inicial, QPoint onde)
{
    QuadroAtractor& q = De(tipo);
    Rotulo(q.quadro, "Valores pré-definidos:", {onde, QSize(140, 22)});
    q.predefinidos = new QSpinBox(q.quadro);
    q.predefinidos->setObjectName(QString::fromUtf8(nome));
    q.predefinidos->setGeometry(onde.x() + 144, onde.y() - 1, 56, 24);
    q.predefinidos->setRange(1, static_cast<int>(Predefinicoes(conjunto).size()));
    q.predefinidos->setWrapping(true);
    q.predefinidos->setValue(inicial);  // the set the boxes start with
    // Up and down alike write set n.
    connect(q.predefinidos, &QSpinBox::valueChanged, this,
            [this, tipo, conjunto](int n) { EscreverPredefinicao(tipo, conjunto, n); });
}

void PaginaAtractores::ConstruirQuadros(QWidget* area, QRect onde)
{
    using enum TipoAtractor;
    const auto valores = [this](TipoAtractor tipo, std::initializer_list<const char*> textos) {
        int i = 0;
        for (const char* t : textos)
            De(tipo).parametros[static_cast<std::size_t>(i++)]->setText(QString::fromUtf8(t));
    };

    QuadroParametros(area, onde, Lorenz, "OpçõesLorenz", "Opções do atractor de Lorenz",
                     {{"LorenzA", "A ="}, {"LorenzB", "B ="}, {"LorenzC", "C ="}});
    valores(Lorenz, {"10", "17", "1"});
    Fluxo(Lorenz, "LorenzNormal", "LorenzPontoGrande", "PontoLorenz", "HScroll2", 52);
    lorenz3D_ = Caixa(De(Lorenz).quadro, "Lorenz3D", "3 dimensões", {214, 52, 110, 22});
    velocidadeLorenz_ = De(Lorenz).velocidade;
    Copiar(Lorenz, "CopiarLorenz", {10, 76});
    Predefinidos(Lorenz, "UpDown1", ConjuntoPredefinido::Lorenz, 7, {10, 156});

    QuadroParametros(area, onde, Rossler, "OpçõesRossler", "Opções do atractor de Rossler",
                     {{"RosslerA", "A ="}, {"RosslerB", "B ="}, {"RosslerC", "C ="}});
    valores(Rossler, {"0.2", "0.2", "5.7"});
    Fluxo(Rossler, "Option13", "RosslerPontoGrande", "PontoRossler", "HScroll1", 52);
    Copiar(Rossler, "CopiarRossler", {10, 76});
    Predefinidos(Rossler, "UpDown2", ConjuntoPredefinido::Rossler, 1, {10, 156});

    QuadroParametros(area, onde, Duffing, "OpçõesDuffing", "Opções do atractor de Duffing",
                     {{"DuffingA", "A ="}, {"DuffingB", "B ="}, {"DuffingC", "C ="}});
    valores(Duffing, {"0.25", "0.3", "1"});
    Fluxo(Duffing, "Option5", "DuffingPontoGrande", "PontoDuffing", "HScroll3", 52);
    Copiar(Duffing, "CopiarDuffing", {10, 76});
    Predefinidos(Duffing, "UpDown6", ConjuntoPredefinido::Duffing, 1, {10, 156});

    QuadroParametros(area, onde, Henon, "OpçõesHenon", "Opções do atractor de Henon",
                     {{"HenonA", "A ="}, {"HenonB", "B ="}});
    valores(Henon, {"1.4", "0.3"});
    Fluxo(Henon, nullptr, "HenonPontoGrande", nullptr, "HScroll4", 52);
    Copiar(Henon, "CopiarHenon", {10, 76});

    QuadroParametros(area, onde, Kam, "OpçõesKam", "Opções do atractor de Kam",
                     {{"KamXini", "X inicial ="}, {"KamYini", "Y inicial ="},
                      {"KamIncX", "Incremento X ="}, {"KamIncY", "Incremento Y ="},
                      {"KamLinhas", "Linhas ="}, {"Kamângulo", "Ângulo ="}},
                     2);
    valores(Kam, {"0.098", "0.061", "0.04", "0.03", "16", "60"});
    Copiar(Kam, "CopiarKam", {10, 110});
    auto* notaKam = Rotulo(De(Kam).quadro,
                           "Aqui não há valores pré- definidos porque quase todos fornecem imagem",
                           {10, 136, 316, 40});
    notaKam->setWordWrap(true);

    QuadroParametros(area, onde, Hopalong, "OpçõesHopalong", "Opções do atractor de Hopalong",
                     {{"HopalongA", "A ="}, {"HopalongB", "B ="}, {"HopalongC", "C ="}});
    valores(Hopalong, {"1", "2", "0"});
    Copiar(Hopalong, "CopiarHopalong", {10, 54});
    Rotulo(De(Hopalong).quadro, "Aqui não há valores pré definidos", {10, 82, 316, 20});
    Rotulo(De(Hopalong).quadro, "porque quase todos fornecem imagem.", {10, 102, 316, 20});

    QuadroParametros(area, onde, DeJong, "OpçõesDeJong", "Opções do atractor de Peter de Jong",
                     {{"DeJongA", "A ="}, {"DeJongB", "B ="}, {"DeJongC", "C ="}, {"DeJongD", "D ="}},
                     2);
    valores(DeJong, {"-0.52", "-2.083", "0.718", "-2.403"});
    Copiar(DeJong, "CopiarDeJong", {10, 82});
    Predefinidos(DeJong, "UpDown9", ConjuntoPredefinido::DeJong, 5, {10, 110});

    QuadroParametros(area, onde, Clifford, "OpçõesClifford", "Opções do atractor de Clifford",
                     {{"CliffordA", "A ="}, {"CliffordB", "B ="}, {"CliffordC", "C ="},
                      {"CliffordD", "D ="}},
                     2);
    valores(Clifford, {"-1.4", "1.6", "1", "0.7"});
    Copiar(Clifford, "CopiarClifford", {10, 82});
    Predefinidos(Clifford, "UpDown5", ConjuntoPredefinido::Clifford, 1, {10, 110});

    QuadroParametros(area, onde, Tinkerbell, "OpçõesTinkerbell", "Opções do atractor de Tinkerbell",
                     {{"TinkerbellA", "A ="}, {"TinkerbellB", "B ="}, {"TinkerbellC", "C ="},
                      {"TinkerbellD", "D ="}},
                     2);
    valores(Tinkerbell, {"0.3", "-0.7", "2.3", "0.6"});
    Copiar(Tinkerbell, "CopiarTinkerbell", {10, 82});
    Predefinidos(Tinkerbell, "UpDown7", ConjuntoPredefinido::Tinkerbell, 1, {10, 110});

    QGroupBox* estranhos = QuadroParametros(
        area, onde, Estranhos, "OpçõesEstranhos", "Opções dos atractores estranhos",
        {{"EstranhoA1", "a1 ="}, {"EstranhoA2", "a2 ="}, {"EstranhoA3", "a3 ="},
         {"EstranhoA4", "a4 ="}, {"EstranhoA5", "a5 ="}, {"EstranhoA6", "a6 ="},
         {"EstranhoA7", "a7 ="}, {"EstranhoA8", "a8 ="}, {"EstranhoA9", "a9 ="},
         {"Estranho10", "a10 ="}, {"EstranhoA11", "a11 ="}, {"EstranhoA12", "a12 ="}});
    varianteEstranhos_.Adicionar(estranhos, {
        {"OpçãoEstranhos1", "Quadráticos", {10, 134, 150, 22}, 1},
        {"OpçãoEstranhos2", "Trigonométricos", {170, 134, 150, 22}, 2},
    });
    // The second variant's boxes, below its button.
    const std::pair<const char*, const char*> segunda[] = {
        {"Estranhos1", "E1 ="}, {"Estranhos2", "E2 ="}, {"Estranhos3", "E3 ="}};
    for (int i = 0; i < 3; ++i)
        De(Estranhos).parametros.push_back(
            CampoRotulado(estranhos, segunda[i].first, segunda[i].second, {10 + i * 105, 160}, 105));
    const Predefinicao& primeiro = Predefinicoes(ConjuntoPredefinido::Estranhos)[0];
    for (std::size_t i = 0; i < 12; ++i)
        De(Estranhos).parametros[i]->setText(TextoNumero(primeiro.parametros[i]));
    De(Estranhos).parametros[12]->setText(QStringLiteral("0.45"));
    De(Estranhos).parametros[13]->setText(QStringLiteral("0.61"));
    De(Estranhos).parametros[14]->setText(QStringLiteral("0.5"));
    Copiar(Estranhos, "CopiarEstranhos", {10, 190});
    Predefinidos(Estranhos, "UpDown4", ConjuntoPredefinido::Estranhos, 1, {10, 214});

    QuadroParametros(area, onde, Caotico, "OpçõesCaótico", "Opções do atractor caótico",
                     {{"CaóticoX", "X ="}, {"CaóticoY", "Y ="}});
    valores(Caotico, {"-0.1", "0"});
    Copiar(Caotico, "CopiarCaótico", {10, 54});
}

void PaginaAtractores::EscolherTipo(TipoAtractor tipo)
{
    for (QuadroAtractor& q : quadros_)
        if (q.quadro)
            q.quadro->setVisible(false);
    if (De(tipo).quadro)
        De(tipo).quadro->setVisible(true);
    for (const Escolha& e : kEscolhas) {
        if (e.tipo != tipo)
            continue;
        if (e.janela) {
            JanelaMundo j = *e.janela;
            if (tipo == TipoAtractor::Estranhos && varianteEstranhos_.Valor() == 1)
                j = {-1, 1, -1, 1};
            janela_->Xminimo()->setText(TextoNumero(j.xmin));
            janela_->Xmaximo()->setText(TextoNumero(j.xmax));
            janela_->Yminimo()->setText(TextoNumero(j.ymin));
            janela_->Ymaximo()->setText(TextoNumero(j.ymax));
        }
        if (e.iteracoes)
            iteracoes_->setText(QString::number(*e.iteracoes));
    }
}

void PaginaAtractores::EscreverPredefinicao(TipoAtractor tipo, ConjuntoPredefinido conjunto, int n)
{
    const auto tabela = Predefinicoes(conjunto);
    if (n < 1 || n > static_cast<int>(tabela.size()))
        return;
    const Predefinicao& d = tabela[static_cast<std::size_t>(n - 1)];
    QuadroAtractor& q = De(tipo);
    for (std::size_t i = 0; i < q.parametros.size() && i < d.parametros.size(); ++i)
        if (!Mantem(d.parametros[i]))
            q.parametros[i]->setText(TextoNumero(d.parametros[i]));
    // The sets of "Estranhos" are quadratic maps: they are drawn by the first variant.
    if (tipo == TipoAtractor::Estranhos)
        varianteEstranhos_.Marcar(1);
    iteracoes_->setText(QString::number(d.iteracoes));
    janela_->Xminimo()->setText(TextoNumero(d.xmin));
    janela_->Xmaximo()->setText(TextoNumero(d.xmax));
    janela_->Yminimo()->setText(TextoNumero(d.ymin));
    janela_->Ymaximo()->setText(TextoNumero(d.ymax));
}

// ---------------------------------------------------------------------------------------------
// Drawing

void PaginaAtractores::CarregarDesenhar()
{
    janela_->PrepararDesenho();
    using enum TipoAtractor;
    // Tested in this order, each drawing if selected: one chosen during a drawing that comes
    // later in the order is drawn next.
    for (TipoAtractor t : {Lorenz, Rossler, Henon, Duffing, Kam, Caotico, Borboleta, Clifford,
                           Tinkerbell, DeJong, Hopalong, Estranhos}) {
        if (Sistema().ATerminar())
            return;
        if (tipo_.Valor() == t)
            DesenharAtractor(t);
    }
}

bool PaginaAtractores::ValidarAtractores()
{
    QLineEdit* const limites[] = {janela_->Xminimo(), janela_->Xmaximo(), janela_->Yminimo(),
                                  janela_->Ymaximo()};
    for (QLineEdit* campo : limites)
        if (campo->text().trimmed().isEmpty())
            return Recusar(this, kTitulo, "São necessários todos os limites da janela de desenho.");
    double v[4];
    try {
        for (int i = 0; i < 4; ++i)
            v[i] = AvaliarLimite(limites[i]->text());
        // The top is held in single precision: beyond its range the conversion overflows.
        if (std::fabs(v[3]) > std::numeric_limits<float>::max())
            throw ErroInterpretador(6, "Excesso de capacidade.");
    } catch (const ErroInterpretador& erro) {
        Sistema().Mensagem(this, QString::fromStdString(erro.origem()),
                           QString::fromStdString(erro.what()), IconeMensagem::Informacao);
        return false;
    }
    if (v[0] >= v[1])
        return Recusar(this, kTitulo, "O valor de Xmáx deve ser maior que o de Xmín.");
    if (v[2] >= v[3])
        return Recusar(this, kTitulo, "O valor de Ymáx deve ser maior que o de Ymín.");
    bool numerico = false;
    const double n = iteracoes_->text().trimmed().toDouble(&numerico);  // "." whatever the locale
    if (!numerico || std::floor(n) != n)
        return Recusar(this, kTitulo, "O número de iterações deve ser um número inteiro.");
    if (n <= 0)
        return Recusar(this, kTitulo, "O número de iterações deve ser positivo.");
    janela_->xmin = v[0];
    janela_->xmax = v[1];
    janela_->ymin = v[2];
    janela_->ymax = static_cast<float>(v[3]);
    // More points than an int holds would take days to draw; the count stops there.
    N_ = static_cast<int>(std::min(n, double(std::numeric_limits<int>::max())));
    return true;
}

double PaginaAtractores::Parametro(TipoAtractor tipo, int i) const
{
    return LerValor(De(tipo).parametros[static_cast<std::size_t>(i)]->text().toStdString());
}

Atractor PaginaAtractores::CriarAtractor(TipoAtractor tipo) const
{
    const auto p = [&](int i) { return Parametro(tipo, i); };
    switch (tipo) {
    case TipoAtractor::Lorenz:
        return lumerina::Lorenz{.a = p(0), .b = p(1), .c = p(2), .tresDimensoes = lorenz3D_->isChecked()};
    case TipoAtractor::Rossler: return lumerina::Rossler{.a = p(0), .b = p(1), .c = p(2)};
    case TipoAtractor::Duffing: return lumerina::Duffing{.a = p(0), .b = p(1), .c = p(2)};
    case TipoAtractor::Henon: return lumerina::Henon{.a = p(0), .b = p(1)};
    case TipoAtractor::Kam: {
        // "For k = 1 To linhas": a fractional count draws its whole lines.
        const double linhas = std::clamp(std::floor(p(4)), 0.0, 1e6);
        return lumerina::Kam(p(0), p(1), p(2), p(3), static_cast<int>(linhas), p(5), N_);
    }
    case TipoAtractor::Hopalong: return lumerina::Hopalong{.a = p(0), .b = p(1), .c = p(2)};
    case TipoAtractor::DeJong: return lumerina::DeJong{.a = p(0), .b = p(1), .c = p(2), .d = p(3)};
    case TipoAtractor::Clifford:
        return lumerina::Clifford{.a = p(0), .b = p(1), .c = p(2), .d = p(3)};
    case TipoAtractor::Tinkerbell:
        return lumerina::Tinkerbell{.a = p(0), .b = p(1), .c = p(2), .d = p(3)};
    case TipoAtractor::Estranhos:
        if (varianteEstranhos_.Valor() == 2)
            return Estranhos2{.e1 = p(12), .e2 = p(13), .e3 = p(14)};
        else {
            Quadratico q;
            for (int i = 0; i < 12; ++i)
                q.a[static_cast<std::size_t>(i)] = p(i);
            return q;
        }
    case TipoAtractor::Borboleta: return lumerina::Borboleta{};
    case TipoAtractor::Caotico: return lumerina::Caotico{.x = p(0), .y = p(1)};
    }
    return lumerina::Borboleta{};
}

void PaginaAtractores::DesenharAtractor(TipoAtractor tipo)
{
    if (!ValidarAtractores())
        return;
    SessaoDesenho sessao(*janela_);
    const QuadroAtractor& q = De(tipo);
    janela_->DefinirEscalaMundo();
    Atractor atractor = CriarAtractor(tipo);
    const long long total = TotalPontos(atractor, N_);
    // The animated attractors wait after every point the time their speed bar says; Hénon
    // reads the Lorenz bar, not its own (kept as it always was).
    QScrollBar* barra = tipo == TipoAtractor::Henon ? velocidadeLorenz_ : q.velocidade;
    const bool cederPorPonto = tipo == TipoAtractor::Caotico;
    lote_.resize(kLote);
    marca_.reset();

    long long feitos = 0;
    while (feitos < total) {
        // The options are live during a drawing; they are read between points, where they can
        // have changed (in a yield or a wait).
        const int espera = barra ? barra->value() : 0;
        const int n = espera > 0 || cederPorPonto
                          ? 1
                          : static_cast<int>(std::min<long long>(kLote, total - feitos));
        const bool persistente = !q.copiar || q.copiar->isChecked();
        const bool ver = persistente && q.verPonto && q.verPonto->isChecked();
        MarcarPonto(std::nullopt);  // off before the points: they may fall under it
        Plotar(atractor, n, persistente, q.grandes && q.grandes->isChecked() ? 3 : 1);
        if (ver)
            MarcarPonto(lote_[static_cast<std::size_t>(n - 1)]);
        feitos += n;
        if (espera > 0) {
            Sistema().Dormir(espera);
            if (Sistema().ATerminar())
                return;  // the program is ending
        } else if (!Sistema().Ceder()) {
            return;
        }
    }
    MarcarPonto(std::nullopt);
    sessao.Concluir();
}

void PaginaAtractores::Plotar(Atractor& atractor, int n, bool persistente, int tamanho)
{
    ControloImagem* imagem = janela_->Imagem();
    const int largura = imagem->LarguraPixeis(), altura = imagem->AlturaPixeis();
    // Fetched anew for every batch: the picture may have been resized in the last yield.
    QRgb* linha0 = persistente ? imagem->Linha(0) : imagem->LinhaEcra(0);
    // The picture's own conversion: pixel = (x − left) · (width / scale width), rounded.
    const Raster raster{linha0, imagem->Imagem().bytesPerLine() / 4, largura, altura,
                        imagem->EscalaX(0), imagem->EscalaY(0),
                        largura / imagem->LarguraEscala(), altura / imagem->AlturaEscala()};
    const Retangulo r = PontosPlotados(atractor, lote_.data(), n, raster, kCorPontos, tamanho);
    if (r.Vazio())
        return;
    const QRect tocado(QPoint(r.x0, r.y0), QPoint(r.x1, r.y1));
    if (persistente)
        imagem->Sujar(tocado);
    else
        imagem->SujarEcra(tocado);
}

void PaginaAtractores::MarcarPonto(std::optional<Ponto> ponto)
{
    ControloImagem* imagem = janela_->Imagem();
    // An inverted box drawn twice leaves the screen as it was.
    const auto caixa = [imagem](Ponto p) {
        const double dx = kMeioMarca * imagem->LarguraEscala() / imagem->LarguraPixeis();
        const double dy = kMeioMarca * imagem->AlturaEscala() / imagem->AlturaPixeis();
        imagem->DefinirPersistente(false);
        imagem->DefinirModo(ModoDesenho::Inverter);
        imagem->Caixa(p.x - dx, p.y - dy, p.x + dx, p.y + dy, kCorPontos);
        imagem->DefinirModo(ModoDesenho::Copiar);
        imagem->DefinirPersistente(true);
    };
    if (marca_)
        caixa(*marca_);
    marca_ = ponto;
    if (marca_)
        caixa(*marca_);
}

}  // namespace lumerina
