#include "dynamics/PaginaSucessoes.h"

#include "app/PaginaInformacao.h"
#include "frame/ControloImagem.h"
#include "frame/Controlos.h"
#include "frame/EsquemaCores.h"
#include "geometric/Construcoes.h"

#include <QFile>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QToolButton>

#include <cmath>
#include <cstring>

// The exercise texts are compiled into this static library; nothing else refers to them, so
// they are registered by hand before the first read.
static void RegistarTextosSucessoes()
{
    Q_INIT_RESOURCE(sucessoes);
}

namespace lumerina {

namespace {

// The frame "Exemplos": the control of each example and its caption. The controls are not in
// the examples' order: Option5 is example 8 and Option8 is example 5.
struct OpcaoExemplo {
    const char* controlo;
    const char* legenda;
};
const OpcaoExemplo kOpcoes[9] = {
    {nullptr, nullptr},
    {"Option1", "Divisão de um segmento em 1, 2, 3, ..., partes iguais."},
    {"Option2", "Divisão de um segmento em 2, 4, 8, ... , partes iguais."},
    {"Option3", "Curva de Koch"},
    {"Option4", "Triângulo de Sierpinski"},
    {"Option8", "Quadrado fractal"},
    {"Option6", "Poeira de Cantor"},
    {"Option7", "Carpete de Sierpinski"},
    {"Option5", "Carpete de Haferman"},
};

// The arrows of the solutions of several sheets ("Setad7" is spelt so).
struct Setas {
    const char* esquerda;
    const char* direita;
};
Setas SetasDoExemplo(int exemplo)
{
    switch (exemplo) {
    case 3: return {"SetaE3", "SetaD3"};
    case 7: return {"SetaE7", "Setad7"};
    case 8: return {"SetaE8", "SetaD8"};
    default: return {nullptr, nullptr};
    }
}

// Layout of the right-hand column: title, panels, buttons.
constexpr int kColunaX = 500;
constexpr int kColunaLargura = 504;
constexpr int kPainelY = 34;
constexpr int kPainelAltura = 584;

// Stage drawing.
const int kCoresEtapas[4] = {9, 2, 12, 5};  // light blue, green, light red, magenta
const QColor kContorno(0xb8, 0xb8, 0xb8);

void EscreverRotulo(QPainter& pintor, QPointF onde, int etapa)
{
    QFont letra(QStringLiteral("DejaVu Sans"));
    letra.setPixelSize(15);
    letra.setBold(true);
    pintor.setFont(letra);
    pintor.setPen(QColor::fromRgb(CorEtapa(etapa)));
    pintor.drawText(onde, QStringLiteral("(%1)").arg(etapa));
}

// Examples 1, 2, 3 and 6: stage k in row k, its label at the left.
void DesenharLinhas(QPainter& pintor, int exemplo, QSizeF tamanho)
{
    const double alturaLinha = tamanho.height() / 4;
    const double x0 = 56, largura = tamanho.width() - 76;
    for (int etapa = 0; etapa < 4; ++etapa) {
        const double topo = etapa * alturaLinha, meio = topo + alturaLinha / 2;
        const QColor cor = QColor::fromRgb(CorEtapa(etapa));
        EscreverRotulo(pintor, {10, meio + 6}, etapa);
        if (exemplo == 3) {
            // The curve keeps below √3/6 of its width: as wide as the row's height allows.
            const double lado = std::min(largura, (alturaLinha - 28) / (std::sqrt(3.0) / 6));
            const double esquerda = x0 + (largura - lado) / 2, base = topo + alturaLinha - 16;
            QPainterPath caminho;
            bool primeiro = true;
            for (const Ponto& p : CurvaKoch(etapa)) {
                const QPointF q(esquerda + p.x * lado, base - p.y * lado);
                primeiro ? caminho.moveTo(q) : caminho.lineTo(q);
                primeiro = false;
            }
            pintor.setPen(QPen(cor, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            pintor.setBrush(Qt::NoBrush);
            pintor.drawPath(caminho);
            continue;
        }
        if (exemplo == 6) {
            pintor.setPen(Qt::NoPen);
            pintor.setBrush(cor);
            for (const Intervalo& i : PoeiraCantor(etapa))
                pintor.drawRect(QRectF(x0 + i.inicio * largura, meio - 5, (i.fim - i.inicio) * largura, 10));
            continue;
        }
        // Examples 1 and 2: the segment with a mark at each end of every part.
        const int partes = exemplo == 1 ? etapa + 1 : 1 << etapa;
        pintor.setPen(QPen(cor, 3, Qt::SolidLine, Qt::FlatCap));
        pintor.drawLine(QPointF(x0, meio), QPointF(x0 + largura, meio));
        pintor.setPen(QPen(cor, 2, Qt::SolidLine, Qt::FlatCap));
        for (const Intervalo& i : DivisaoSegmento(partes)) {
            const double x = x0 + i.inicio * largura;
            pintor.drawLine(QPointF(x, meio - 10), QPointF(x, meio + 10));
        }
        pintor.drawLine(QPointF(x0 + largura, meio - 10), QPointF(x0 + largura, meio + 10));
    }
}

// Examples 4, 5, 7 and 8: stage k in cell k of a 2 x 2 grid, its label at the cell's top left.
void DesenharGrelha(QPainter& pintor, int exemplo, QSizeF tamanho)
{
    const double larguraCelula = tamanho.width() / 2, alturaCelula = tamanho.height() / 2;
    const double lado = std::min(larguraCelula - 40, alturaCelula - 44);
    for (int etapa = 0; etapa < 4; ++etapa) {
        const double cx = (etapa % 2) * larguraCelula, cy = (etapa / 2) * alturaCelula;
        const QColor cor = QColor::fromRgb(CorEtapa(etapa));
        EscreverRotulo(pintor, {cx + 8, cy + 20}, etapa);
        // The figure's box: centred across, under the label.
        const double fx = cx + (larguraCelula - lado) / 2;
        const double fy = cy + 28 + (alturaCelula - 28 - lado) / 2;
        if (exemplo == 4) {
            const double altura = lado * std::sqrt(3.0) / 2;
            const double base = fy + (lado + altura) / 2;
            const auto ponto = [&](Ponto p) { return QPointF(fx + p.x * lado, base - p.y * lado); };
            pintor.setRenderHint(QPainter::Antialiasing, true);
            pintor.setPen(QPen(kContorno, 1));
            pintor.setBrush(Qt::NoBrush);
            pintor.drawPolygon(QPolygonF({ponto({0, 0}), ponto({1, 0}), ponto({0.5, std::sqrt(3.0) / 2})}));
            pintor.setPen(Qt::NoPen);
            pintor.setBrush(cor);
            for (const Triangulo& t : TrianguloSierpinski(etapa))
                pintor.drawPolygon(QPolygonF({ponto(t.a), ponto(t.b), ponto(t.c)}));
            continue;
        }
        const std::vector<Quadrado> quadrados = exemplo == 5   ? QuadradoFractal(etapa)
                                                : exemplo == 7 ? CarpeteSierpinski(etapa)
                                                               : CarpeteHaferman(etapa);
        // Squares on whole pixels, edges rounded once, so that neighbours neither overlap
        // nor leave a seam.
        pintor.setRenderHint(QPainter::Antialiasing, false);
        const auto borda = [&](double u, double origem) { return int(std::lround(origem + u * lado)); };
        const auto rect = [&](const Quadrado& q) {
            const int x1 = borda(q.x, fx), x2 = borda(q.x + q.lado, fx);
            const int y1 = borda(1 - q.y - q.lado, fy), y2 = borda(1 - q.y, fy);
            return QRect(x1, y1, x2 - x1, y2 - y1);
        };
        pintor.setPen(Qt::NoPen);
        for (const Quadrado& q : quadrados)
            if (q.preto)
                pintor.fillRect(rect(q), cor);
        pintor.setBrush(Qt::NoBrush);
        pintor.setPen(QPen(kContorno, 0));
        for (const Quadrado& q : quadrados)
            if (!q.preto)
                pintor.drawRect(rect(q).adjusted(0, 0, -1, -1));
        pintor.drawRect(rect({0, 0, 1}).adjusted(-1, -1, 0, 0));
    }
}

}  // namespace

QRgb CorEtapa(int etapa)
{
    return Paleta16[kCoresEtapas[etapa & 3]];
}

const TextosExemplo& Textos(int exemplo)
{
    static const TextosExemplo textos[9] = {
        {nullptr, {}},
        {"ImageA1", {"ImageB1"}},
        {"ImageA2", {"ImageB2"}},
        {"ImageA3", {"ImageB31", "ImageB32", "ImageB33", "ImageB34"}},
        {"ImageA4", {"ImageB4"}},
        {"ImageA5", {"ImageB5"}},
        {"ImageA6", {"Image7"}},  // example 6's solution picture is named so
        {"ImageA7", {"ImageB71", "ImageB72"}},
        {"ImageA8", {"ImageB81", "ImageB82"}},
    };
    return textos[exemplo >= 1 && exemplo <= 8 ? exemplo : 0];
}

QString TextoSucessao(const char* imagem)
{
    static const bool registados = (RegistarTextosSucessoes(), true);
    (void)registados;
    QFile ficheiro(QStringLiteral(":/sucessoes/%1.html").arg(QString::fromUtf8(imagem)));
    if (!ficheiro.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(ficheiro.readAll());
}

QImage DesenharEtapas(int exemplo, QSize tamanho)
{
    QImage imagem(tamanho, QImage::Format_RGB32);
    imagem.fill(Qt::white);
    QPainter pintor(&imagem);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setRenderHint(QPainter::TextAntialiasing);
    if (exemplo == 1 || exemplo == 2 || exemplo == 3 || exemplo == 6)
        DesenharLinhas(pintor, exemplo, tamanho);
    else if (exemplo >= 4 && exemplo <= 8)
        DesenharGrelha(pintor, exemplo, tamanho);
    return imagem;
}

PaginaSucessoes::PaginaSucessoes(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    ColocarTitulo(kColunaX, kColunaLargura);

    imagem_ = new ControloImagem(area, kLadoImagem, kLadoImagem);
    imagem_->setObjectName(QStringLiteral("Picture1"));
    imagem_->move(8, 8);

    QGroupBox* exemplos =
        Quadro(area, "Exemplos", {8, kLadoImagem + 14, kLadoImagem + 4, 166}, "Exemplos");
    // Examples 1 and 2 have long captions and take a row each; 3 to 8 go two to a row, each
    // with its number beside it.
    for (int k = 1; k <= 8; ++k) {
        const int linha = k <= 2 ? k - 1 : 2 + (k - 3) / 2;
        const int coluna = k <= 2 ? 0 : (k - 3) % 2;
        const int x = 10 + coluna * 240, y = 22 + linha * 27;
        Rotulo(exemplos, QByteArray::number(k).constData(), {x, y, 16, 22},
               QStringLiteral("LabelExemplo%1").arg(k).toUtf8().constData());
        QRadioButton* opcao = exemplos_.Adicionar(
            Opcao(exemplos, kOpcoes[k].controlo, kOpcoes[k].legenda,
                  {x + 18, y, k <= 2 ? 450 : 214, 22}),
            k);
        // Every click draws, the checked option's included: after Apagar it draws it again.
        connect(opcao, &QRadioButton::clicked, this, [this] { EscolherExemplo(exemplos_.Valor()); });
    }

    ConstruirPaineis(area);

    const int y = kPainelY + kPainelAltura + 10;
    connect(Botao(area, "VerSolução", "Ver solução", {kColunaX, y, 120, 32}),
            &QPushButton::clicked, this, &PaginaSucessoes::VerSolucao);
    connect(Botao(area, "Apagar", "Apagar", {kColunaX + 130, y, 120, 32},
                  "Apagar a janela de desenho."),
            &QPushButton::clicked, this, &PaginaSucessoes::Apagar);
}

void PaginaSucessoes::ConstruirPaineis(QWidget* area)
{
    const QRect geometria(kColunaX, kPainelY, kColunaLargura, kPainelAltura);
    const QRect imagem(8, 22, kLarguraTexto, kAlturaTexto);
    const auto criarImagem = [&](QGroupBox* painel, const char* nome) {
        auto* rotulo = new QLabel(painel);
        rotulo->setObjectName(QString::fromUtf8(nome));
        rotulo->setGeometry(imagem);
        rotulo->hide();
        return rotulo;
    };
    for (int k = 1; k <= 8; ++k) {
        Painel& p = paineis_[static_cast<std::size_t>(k)];
        const TextosExemplo& textos = Textos(k);

        const QByteArray modo = "Modo de construção (exemplo " + QByteArray::number(k) + ")";
        p.construcao = Quadro(area, modo.constData(), geometria, "Construção1");
        p.construcao->setProperty("Index", k);
        p.construcao->hide();
        p.imagemConstrucao = criarImagem(p.construcao, textos.construcao);

        // The first caption is written without a blank before its number, and ends in one.
        const QByteArray legenda = k == 1 ? QByteArray("Solução do exemplo1 ")
                                          : "Solução do exemplo " + QByteArray::number(k);
        p.solucao = Quadro(area, legenda.constData(), geometria, "Solução1");
        p.solucao->setProperty("Index", k);
        p.solucao->hide();
        for (const char* nome : textos.solucao)
            p.imagensSolucao.push_back(criarImagem(p.solucao, nome));

        const Setas setas = SetasDoExemplo(k);
        if (setas.esquerda) {
            const int y = imagem.bottom() + 6;
            p.setaE = new QToolButton(p.solucao);
            p.setaE->setObjectName(QString::fromUtf8(setas.esquerda));
            p.setaE->setArrowType(Qt::LeftArrow);
            p.setaE->setToolTip(QStringLiteral("Folha anterior"));
            p.setaE->setGeometry(kColunaLargura / 2 - 50, y, 44, 28);
            p.setaD = new QToolButton(p.solucao);
            p.setaD->setObjectName(QString::fromUtf8(setas.direita));
            p.setaD->setArrowType(Qt::RightArrow);
            p.setaD->setToolTip(QStringLiteral("Folha seguinte"));
            p.setaD->setGeometry(kColunaLargura / 2 + 6, y, 44, 28);
            connect(p.setaE, &QToolButton::clicked, this, [this, k] { SolucaoAnterior(k); });
            connect(p.setaD, &QToolButton::clicked, this, [this, k] { SolucaoSeguinte(k); });
        }
    }
}

void PaginaSucessoes::EsconderImagem(QLabel* imagem)
{
    // A text picture is about a megabyte (four at double density): only the one shown keeps
    // it, and the next showing renders it again.
    imagem->hide();
    imagem->setPixmap(QPixmap());
}

void PaginaSucessoes::MostrarImagem(QLabel* imagem)
{
    if (imagem->pixmap().isNull()) {  // rendered the first time it is shown
        const qreal escala = QGuiApplication::primaryScreen()
                                 ? QGuiApplication::primaryScreen()->devicePixelRatio()
                                 : 1.0;
        const QByteArray nome = imagem->objectName().toUtf8();
        imagem->setPixmap(QPixmap::fromImage(DesenharPaginaInformacao(
            TextoSucessao(nome.constData()), {kLarguraTexto, kAlturaTexto}, escala)));
    }
    imagem->show();
}

int PaginaSucessoes::ExemploActual() const
{
    return exemplos_.Valor();
}

void PaginaSucessoes::EscolherExemplo(int exemplo)
{
    if (exemplo < 1 || exemplo > 8)
        return;
    exemplos_.Marcar(exemplo);  // when called other than by a click, the option follows
    Apagar();
    Painel& p = paineis_[static_cast<std::size_t>(exemplo)];
    p.construcao->show();
    MostrarImagem(p.imagemConstrucao);
    const QImage etapas = DesenharEtapas(exemplo, {imagem_->LarguraPixeis(), imagem_->AlturaPixeis()});
    for (int y = 0; y < etapas.height(); ++y)
        std::memcpy(imagem_->Linha(y), etapas.constScanLine(y), std::size_t(etapas.bytesPerLine()));
    imagem_->Sujar(etapas.rect());
}

void PaginaSucessoes::VerSolucao()
{
    Painel& p = paineis_[static_cast<std::size_t>(exemplos_.Valor())];
    p.construcao->hide();
    EsconderImagem(p.imagemConstrucao);
    p.solucao->show();
    MostrarFolha(p, 0);
}

void PaginaSucessoes::MostrarFolha(Painel& p, int folha)
{
    for (QLabel* imagem : p.imagensSolucao)
        EsconderImagem(imagem);
    p.folha = folha;
    MostrarImagem(p.imagensSolucao[static_cast<std::size_t>(folha)]);
    if (p.setaE) {
        p.setaE->setEnabled(folha > 0);
        p.setaD->setEnabled(folha + 1 < int(p.imagensSolucao.size()));
    }
}

void PaginaSucessoes::SolucaoSeguinte(int exemplo)
{
    Painel& p = paineis_[static_cast<std::size_t>(exemplo)];
    if (p.folha + 1 < int(p.imagensSolucao.size()))
        MostrarFolha(p, p.folha + 1);
}

void PaginaSucessoes::SolucaoAnterior(int exemplo)
{
    Painel& p = paineis_[static_cast<std::size_t>(exemplo)];
    if (p.folha > 0)
        MostrarFolha(p, p.folha - 1);
}

void PaginaSucessoes::Apagar()
{
    imagem_->Limpar();
    for (Painel& p : paineis_) {
        if (!p.construcao)
            continue;
        p.construcao->hide();
        EsconderImagem(p.imagemConstrucao);
        p.solucao->hide();
        for (QLabel* imagem : p.imagensSolucao)
            EsconderImagem(imagem);
    }
}

}  // namespace lumerina
