#include "geometric/PaginaTransformacoes.h"

#include "frame/ControloImagem.h"
#include "frame/EsquemaCores.h"
#include "frame/JanelaDesenho.h"
#include "frame/SessaoDesenho.h"
#include "geometric/SistemaIFS.h"
#include "interp/LerValor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

namespace lumerina {

namespace {

const QString kTitulo = QStringLiteral("Transformações");
const char* const kSemMapas = "Deve usar pelo menos uma transformação.";

// Colours of the 16-colour palette: the original, the earlier images, the last image, axes.
constexpr int kCorOriginal = 9;
constexpr int kCorAnteriores = 7;
constexpr int kCorImagem = 12;
constexpr int kCorEixos = 8;

// A coefficient as the boxes and labels show it: "." as the decimal point (what LerValor
// reads back), never "-0"; in a box, the shortest text that reads back as the same double.
QString TextoCoeficiente(double v, int digitos = QLocale::FloatingPointShortest)
{
    return QString::number(v == 0 ? 0.0 : v, 'g', digitos);
}

struct DescricaoConstrucao {
    const char* texto;
    const char* parametro1;  // nullptr: no parameter
    const char* parametro2;
};

const DescricaoConstrucao kConstrucoes[] = {
    {"Translação por (p, q)", "p =", "q ="},
    {"Rotação de ângulo θ", "θ (graus) =", nullptr},
    {"Escala de factores r, s", "r =", "s ="},
    {"Reflexão no eixo dos xx", nullptr, nullptr},
    {"Deslizamento (cisalhamento) horizontal", "k =", nullptr},
};

}  // namespace

PaginaTransformacoes::PaginaTransformacoes(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    ColocarTitulo(kPainelX, kPainelLargura, 26);

    janela_ = new JanelaDesenho(this, area, QPoint(8, 8), {.barras = false});

    QGroupBox* figura = Quadro(area, "Figura", {kPainelX, 28, kPainelLargura, 44});
    figura_.Adicionar(figura, {
        {"FiguraF", "Letra F", {10, 18, 100, 22}, FiguraBase::LetraF},
        {"FiguraQuadrado", "Quadrado", {118, 18, 100, 22}, FiguraBase::Quadrado},
        {"FiguraTriangulo", "Triângulo", {226, 18, 100, 22}, FiguraBase::Triangulo},
    });

    for (int i = 0; i < 3; ++i)
        CriarMapa(area, i, 74 + 92 * i);

    QGroupBox* construir = Quadro(area, "Construir uma transformação", {kPainelX, 352, kPainelLargura, 106});
    construcao_ = new QComboBox(construir);
    construcao_->setObjectName(QStringLiteral("TipoConstrução"));
    construcao_->setGeometry(8, 20, kPainelLargura - 16, 24);
    for (const DescricaoConstrucao& c : kConstrucoes)
        construcao_->addItem(QString::fromUtf8(c.texto));
    rotulo1_ = Rotulo(construir, "", {8, 50, 74, 20});
    parametro1_ = Campo(construir, "Parâmetro1", "0", {84, 48, 70, 24});
    rotulo2_ = Rotulo(construir, "", {166, 50, 74, 20});
    parametro2_ = Campo(construir, "Parâmetro2", "0", {242, 48, 70, 24});
    connect(construcao_, &QComboBox::currentIndexChanged, this,
            &PaginaTransformacoes::ActualizarConstrucao);
    Rotulo(construir, "Escrever na transformação:", {8, 78, 170, 20});
    for (int i = 0; i < 3; ++i) {
        const QByteArray nome = "Construir" + QByteArray::number(i + 1);
        QPushButton* b = Botao(construir, nome.constData(), "", {180 + 46 * i, 76, 40, 24});
        b->setText(QString::number(i + 1));
        b->setToolTip(QStringLiteral("Escrever os coeficientes a–f na transformação %1.").arg(i + 1));
        connect(b, &QPushButton::clicked, this, [this, i] { Construir(i); });
    }
    ActualizarConstrucao();

    QPushButton* desenhar = Botao(area, "DesenharFigura", "Desenhar", {kPainelX, 462, 104, 28},
                                  "Desenhar a figura e a sua imagem.");
    QPushButton* aplicar = Botao(area, "AplicarNovamente", "Aplicar novamente",
                                 {kPainelX + 110, 462, 132, 28},
                                 "Aplicar as transformações à última imagem.");
    QPushButton* recomecar = Botao(area, "Recomeçar", "Recomeçar", {kPainelX + 248, 462, 88, 28},
                                   "Voltar à figura original.");
    janela_->LigarDesenho(desenhar, [this] { Desenhar(); });
    janela_->LigarDesenho(aplicar, [this] { AplicarNovamente(); });
    janela_->LigarDesenho(recomecar, [this] { Recomecar(); });
    QPushButton* espiral = Botao(area, "ExemploEspiral", "Exemplo: espiral",
                                 {kPainelX, 494, 130, 28},
                                 "Rodar 90°, reduzir a metade e deslocar: o F encolhe em espiral.");
    QPushButton* sierpinski = Botao(area, "ExemploSierpinski", "Exemplo: Sierpinski",
                                    {kPainelX + 136, 494, 130, 28},
                                    "As três transformações do triângulo de Sierpinski.");
    janela_->LigarDesenho(espiral, [this] { Exemplo({{0, -0.5, 0.5, 0, 1, 0}}); });
    janela_->LigarDesenho(sierpinski, [this] {
        const auto m = TrianguloSierpinski().Mapas();
        Exemplo({m[0], m[1], m[2]});
    });
    nivel_ = Rotulo(area, "Nível: 0", {kPainelX + 272, 498, 64, 20}, "Nivel");

    janela_->QuadroArea()->setGeometry(kPainelX, 526, kPainelLargura, 78);
    janela_->Xminimo()->setText(QStringLiteral("-0.5"));
    janela_->Xmaximo()->setText(QStringLiteral("1.5"));
    janela_->Yminimo()->setText(QStringLiteral("-0.5"));
    janela_->Ymaximo()->setText(QStringLiteral("1.5"));
    janela_->LerLimitesSimples();

    QGroupBox* quadroOpcoes = janela_->QuadroOpcoes();
    quadroOpcoes->setGeometry(kPainelX, 606, kPainelLargura, 60);
    const int largura = (kPainelLargura - 32) / 3;
    janela_->Guardar()->setGeometry(8, 22, largura, 28);
    janela_->Copiar()->setGeometry(16 + largura, 22, largura, 28);
    janela_->Apagar()->setGeometry(24 + 2 * largura, 22, largura, 28);

    // Page 18's spiral map in use; the Sierpinski maps waiting in the other two frames.
    const auto m = TrianguloSierpinski().Mapas();
    EscreverMapa(0, {0, -0.5, 0.5, 0, 1, 0}, true);
    EscreverMapa(1, m[1], false);
    EscreverMapa(2, m[2], false);
}

void PaginaTransformacoes::CriarMapa(QWidget* area, int i, int y)
{
    CamposMapa& c = mapas_[i];
    const QByteArray n = QByteArray::number(i + 1);
    QGroupBox* quadro = Quadro(area, ("Transformação " + n).constData(), {kPainelX, y, kPainelLargura, 88});
    // The boxes sit as in x′ = a·x + b·y + e over y′ = c·x + d·y + f.
    struct Posicao { const char* letra; int linha, coluna; };
    const Posicao caixas[6] = {{"A", 0, 0}, {"B", 0, 1}, {"C", 1, 0}, {"D", 1, 1}, {"E", 0, 2}, {"F", 1, 2}};
    Rotulo(quadro, "x′ =", {6, 20, 30, 20});
    Rotulo(quadro, "y′ =", {6, 44, 30, 20});
    for (int linha = 0; linha < 2; ++linha) {
        Rotulo(quadro, "x +", {84, 20 + 24 * linha, 22, 20});
        Rotulo(quadro, "y +", {154, 20 + 24 * linha, 22, 20});
    }
    for (int k = 0; k < 6; ++k) {
        const QByteArray nome = QByteArray("T") + caixas[k].letra + n;
        c.coeficientes[k] = Campo(quadro, nome.constData(), "0",
                                  {36 + 70 * caixas[k].coluna, 18 + 24 * caixas[k].linha, 46, 22});
        c.coeficientes[k]->setToolTip(QString(QChar(u'a' + k)));
        connect(c.coeficientes[k], &QLineEdit::textChanged, this, [this, i] { ActualizarMapa(i); });
    }
    c.usar = Caixa(quadro, ("Usar" + n).constData(), "Usar", {234, 16, 90, 22});
    c.matriz = Rotulo(quadro, "", {234, 38, 96, 30}, ("Matriz" + n).constData());
    QFont pequena = c.matriz->font();
    pequena.setPointSizeF(pequena.pointSizeF() * 0.85);
    c.matriz->setFont(pequena);
    c.matriz->setToolTip(QStringLiteral("A matriz da parte linear: linhas (a, b) e (c, d)."));
    Rotulo(quadro, "ad − bc =", {6, 66, 60, 18});
    c.determinante = Rotulo(quadro, "", {72, 66, 66, 18}, ("Determinante" + n).constData());
    c.contrai = Rotulo(quadro, "", {140, 66, 100, 18}, ("Contrai" + n).constData());
}

MapaAfim PaginaTransformacoes::LerMapa(int i) const
{
    std::array<double, 6> v{};
    for (int k = 0; k < 6; ++k)
        v[k] = LerValor(mapas_[i].coeficientes[k]->text().toStdString());
    return {v[0], v[1], v[2], v[3], v[4], v[5]};
}

void PaginaTransformacoes::EscreverMapa(int i, const MapaAfim& m, bool usar)
{
    const double v[6] = {m.a, m.b, m.c, m.d, m.e, m.f};
    for (int k = 0; k < 6; ++k) {
        mapas_[i].coeficientes[k]->setText(TextoCoeficiente(v[k]));
        mapas_[i].coeficientes[k]->setCursorPosition(0);  // a long number shows its start
    }
    mapas_[i].usar->setChecked(usar);
    ActualizarMapa(i);
}

void PaginaTransformacoes::ActualizarMapa(int i)
{
    const CamposMapa& c = mapas_[i];
    const MapaAfim m = LerMapa(i);
    c.matriz->setText(QStringLiteral("[ %1   %2 ]\n[ %3   %4 ]")
                          .arg(TextoCoeficiente(m.a, 4), TextoCoeficiente(m.b, 4), TextoCoeficiente(m.c, 4), TextoCoeficiente(m.d, 4)));
    c.determinante->setText(TextoCoeficiente(m.Determinante(), 6));
    c.contrai->setText(Contrai(m) ? QStringLiteral("contractiva")
                                       : QStringLiteral("não contractiva"));
}

std::vector<MapaAfim> PaginaTransformacoes::MapasEmUso() const
{
    std::vector<MapaAfim> mapas;
    for (int i = 0; i < 3; ++i)
        if (mapas_[i].usar->isChecked())
            mapas.push_back(LerMapa(i));
    return mapas;
}

void PaginaTransformacoes::ActualizarConstrucao()
{
    const DescricaoConstrucao& c = kConstrucoes[construcao_->currentIndex()];
    const auto preparar = [](QLabel* rotulo, QLineEdit* campo, const char* texto) {
        rotulo->setText(texto ? QString::fromUtf8(texto) : QString());
        campo->setEnabled(texto != nullptr);
    };
    preparar(rotulo1_, parametro1_, c.parametro1);
    preparar(rotulo2_, parametro2_, c.parametro2);
}

void PaginaTransformacoes::Construir(int i)
{
    const double p = LerValor(parametro1_->text().toStdString());
    const double q = LerValor(parametro2_->text().toStdString());
    MapaAfim m;
    switch (static_cast<Construcao>(construcao_->currentIndex())) {
    case Construcao::Translacao: m = Translacao(p, q); break;
    case Construcao::Rotacao: m = Rotacao(p); break;
    case Construcao::Escala: m = Escala(p, q); break;
    case Construcao::Reflexao: m = ReflexaoEixoX(); break;
    case Construcao::Cisalhamento: m = CisalhamentoHorizontal(p); break;
    }
    EscreverMapa(i, m, true);
}

void PaginaTransformacoes::Desenhar()
{
    // A new figure, the one chosen now, and its first image; a refusal keeps the old one.
    if (MapasEmUso().empty()) {
        Recusar(this, kTitulo, kSemMapas);
        return;
    }
    imagens_.emplace(Figura(figura_.Valor()));
    Mostrar(true);
}

void PaginaTransformacoes::AplicarNovamente()
{
    if (!imagens_)
        imagens_.emplace(Figura(figura_.Valor()));
    Mostrar(true);
}

void PaginaTransformacoes::Recomecar()
{
    imagens_.emplace(Figura(figura_.Valor()));
    Mostrar(false);
}

void PaginaTransformacoes::Exemplo(std::initializer_list<MapaAfim> mapas)
{
    int i = 0;
    for (const MapaAfim& m : mapas)
        EscreverMapa(i++, m, true);
    for (; i < 3; ++i)
        mapas_[i].usar->setChecked(false);
    Desenhar();
}

void PaginaTransformacoes::Mostrar(bool aplicar)
{
    const std::vector<MapaAfim> mapas = MapasEmUso();
    if (aplicar) {
        // Refused before anything changes: the picture keeps the last level.
        if (mapas.empty()) {
            Recusar(this, kTitulo, kSemMapas);
            return;
        }
        const long long segmentos = imagens_->SegmentosSeguinte(static_cast<int>(mapas.size()));
        if (segmentos > kMaxSegmentos) {
            Recusar(this, kTitulo,
                    QStringLiteral("O nível %1 teria %2 segmentos; o máximo é %3.")
                        .arg(imagens_->Nivel() + 1)
                        .arg(segmentos)
                        .arg(kMaxSegmentos));
            return;
        }
    }
    janela_->PrepararDesenho();
    if (!janela_->ValidarLimites(kTitulo, true))
        return;
    if (aplicar)
        imagens_->Aplicar(mapas);

    SessaoDesenho sessao(*janela_);
    janela_->DefinirEscalaMundo();
    ControloImagem* imagem = janela_->Imagem();
    const double x0 = janela_->xmin, x1 = janela_->xmax, y0 = janela_->ymin, y1 = janela_->ymax;
    imagem->DefinirEstilo(EstiloTraco::Pontilhado);
    imagem->Linha(x0, 0, x1, 0, Paleta16[kCorEixos]);
    imagem->Linha(0, y0, 0, y1, Paleta16[kCorEixos]);
    imagem->DefinirEstilo(EstiloTraco::Continuo);

    const FiguraPlana& figura = imagens_->Original();
    const auto desenhar = [&](int nivel, int cor) {
        const QRgb rgb = Paleta16[cor];
        PercorrerSegmentos(figura, imagens_->Pontos(nivel),
                           [&](Ponto p, Ponto q) { imagem->Linha(p.x, p.y, q.x, q.y, rgb); });
    };
    const int n = imagens_->Nivel();
    for (int k = 1; k < n; ++k)
        desenhar(k, kCorAnteriores);
    imagem->DefinirEspessura(2);
    desenhar(0, kCorOriginal);
    imagem->DefinirEspessura(1);
    if (n > 0)
        desenhar(n, kCorImagem);
    nivel_->setText(QStringLiteral("Nível: %1").arg(n));
    sessao.Concluir();
}

}  // namespace lumerina
