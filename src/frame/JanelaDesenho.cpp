#include "frame/JanelaDesenho.h"

#include "frame/ControloImagem.h"
#include "frame/Controlos.h"
#include "frame/Plataforma.h"
#include "frame/SessaoDesenho.h"
#include "interp/LerValor.h"
#include "interp/clsEquation.h"

#include <QBuffer>
#include <QGroupBox>
#include <QImageWriter>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <limits>

namespace lumerina {

namespace {
constexpr int kFolga = 4;          // gap between the picture and its scroll bars
constexpr int kEspessuraBarra = 17;
constexpr int kMinimoBarra = 20;   // smallest picture side the bars allow, in pixels

const QString kFiltroBmp = QStringLiteral("Mapa de bits (*.bmp)|*.bmp");

// Complete or not at all: the bitmap goes to a temporary file beside the target, which
// replaces the target only once every byte is written and flushed. A write refused half-way
// (a full disk, a file size limit) leaves the old file as it was and no temporary behind.
// The bitmap is encoded in memory first: the BMP writer takes a short write for a complete
// one, so only the count of bytes the file accepted tells that the last rows were cut.
bool GuardarBmp(const QImage& imagem, const QString& ficheiro)
{
    QBuffer bmp;
    bmp.open(QIODevice::WriteOnly);
    if (!QImageWriter(&bmp, "BMP").write(imagem))
        return false;
    QSaveFile destino(ficheiro);
    if (!destino.open(QIODevice::WriteOnly))
        return false;
    if (destino.write(bmp.data()) != bmp.data().size()) {
        destino.cancelWriting();
        return false;
    }
    return destino.commit();
}
}  // namespace

QString TextoParaInterpretar(QString texto)
{
    // What the help pages and a word processor write for minus, times and division; the
    // interpreter would skip them as unknown characters ("−2" would read as 2).
    texto.replace(QChar(0x2212), QLatin1Char('-'));
    texto.replace(QChar(0x00D7), QLatin1Char('*'));
    texto.replace(QChar(0x00B7), QLatin1Char('*'));
    texto.replace(QChar(0x00F7), QLatin1Char('/'));
    return texto;
}

double AvaliarLimite(const QString& texto)
{
    clsEquation equacao;
    equacao.Expression(TextoParaInterpretar(texto).toStdString());
    equacao.SetVariable("x", 0);
    equacao.Evaluate();
    return equacao.Value();
}

QString TextoLimite(double valor, int casas)
{
    const double escala = std::pow(10.0, casas);
    double r = std::nearbyint(valor * escala) / escala;
    if (!std::isfinite(r))
        r = valor;
    if (r == 0)
        r = 0;  // no "-0"
    QString texto = QString::number(r, 'f', casas);
    if (texto.contains('.')) {
        while (texto.endsWith('0'))
            texto.chop(1);
        if (texto.endsWith('.'))
            texto.chop(1);
    }
    return texto;
}

JanelaDesenho::JanelaDesenho(QWidget* pagina, QWidget* area, QPoint origem, Opcoes opcoes)
    : QObject(area), pagina_(pagina), origem_(origem)
{
    imagem_ = new ControloImagem(area, opcoes.largura, opcoes.altura);
    imagem_->setObjectName(QStringLiteral("Picture1"));
    imagem_->move(origem);
    connect(imagem_, &ControloImagem::RatoPremido, this, &JanelaDesenho::RatoPremido);
    connect(imagem_, &ControloImagem::RatoMovido, this, &JanelaDesenho::RatoMovido);
    connect(imagem_, &ControloImagem::RatoLargado, this, &JanelaDesenho::RatoLargado);

    if (opcoes.barras) {
        // The bars' values are the picture's inner width and height in pixels.
        const auto barra = [area](Qt::Orientation sentido, const char* nome, int maximo) {
            auto* b = new QScrollBar(sentido, area);
            b->setObjectName(QString::fromUtf8(nome));
            b->setRange(kMinimoBarra, maximo);
            b->setSingleStep(1);
            b->setPageStep(10);
            b->setValue(maximo);
            return b;
        };
        hscroll_ = barra(Qt::Horizontal, "HScroll1", opcoes.largura);
        vscroll_ = barra(Qt::Vertical, "VScroll1", opcoes.altura);
        const QSize total = imagem_->size();
        hscroll_->setGeometry(origem.x(), origem.y() + total.height() + kFolga, opcoes.largura,
                              kEspessuraBarra);
        vscroll_->setGeometry(origem.x() + total.width() + kFolga, origem.y(), kEspessuraBarra,
                              opcoes.altura);
        connect(hscroll_, &QScrollBar::valueChanged, this, &JanelaDesenho::MudarLargura);
        connect(vscroll_, &QScrollBar::valueChanged, this, &JanelaDesenho::MudarAltura);

        quadroDimensao_ = Quadro(area, "Dimensão da janela", {0, 0, 300, 48});
        Rotulo(quadroDimensao_, "Nº de pixeis:", {12, 20, 90, 20});
        labelDimensao_ = Rotulo(quadroDimensao_, "628 x 628", {105, 20, 120, 20}, "LabelDimensãoJanela");
    }

    if (opcoes.limites) {
        quadroArea_ = Quadro(area, "Área de desenho", {0, 0, 300, 80});
        struct CampoLimite { QLineEdit** campo; const char* nome; const char* rotulo; int x, y; };
        const char* const* r = opcoes.rotulosLimites;
        const CampoLimite campos[] = {
            {&xmin_, "Xmínimo", r[0], 10, 20}, {&xmax_, "Xmáximo", r[1], 155, 20},
            {&ymin_, "Ymínimo", r[2], 10, 48}, {&ymax_, "Ymáximo", r[3], 155, 48},
        };
        for (const CampoLimite& c : campos) {
            QLabel* rotulo = Rotulo(quadroArea_, c.rotulo, {c.x, c.y + 2, 36, 20});
            const int largura =
                std::max(36, rotulo->fontMetrics().horizontalAdvance(rotulo->text()) + 2);
            rotulo->resize(largura, 20);
            *c.campo = Campo(quadroArea_, c.nome, "", {c.x + largura + 2, c.y, 131 - largura, 24});
        }
    }

    quadroOpcoes_ = Quadro(area, "Opções", {0, 0, 300, 60});
    guardar_ = Botao(quadroOpcoes_, "GuardarGráfico", "Guardar", {10, 22, 68, 28},
                     "Guardar como imagem .bmp o gráfico da função.");
    copiar_ = Botao(quadroOpcoes_, "CopiarGráfico", "Copiar", {82, 22, 68, 28},
                    "Copiar o gráfico para outra aplicação.");
    apagar_ = Botao(quadroOpcoes_, "ApagarGráfico", "Apagar", {154, 22, 68, 28},
                    "Apagar a janela de desenho.");
    connect(guardar_, &QPushButton::clicked, this, &JanelaDesenho::GuardarGrafico);
    connect(copiar_, &QPushButton::clicked, this, &JanelaDesenho::CopiarGrafico);
    connect(apagar_, &QPushButton::clicked, this, &JanelaDesenho::ApagarGrafico);
}

void JanelaDesenho::LerLimitesSimples()
{
    if (!xmin_)
        return;
    xmin = LerValor(xmin_->text().toStdString());
    xmax = LerValor(xmax_->text().toStdString());
    ymin = LerValor(ymin_->text().toStdString());
    ymax = static_cast<float>(LerValor(ymax_->text().toStdString()));
}

bool JanelaDesenho::ValidarLimites(const QString& titulo, bool testarYmaximo)
{
    QLineEdit* const obrigatorios[] = {xmin_, xmax_, ymin_, testarYmaximo ? ymax_ : ymin_};
    for (QLineEdit* campo : obrigatorios) {
        if (campo->text().trimmed().isEmpty()) {
            Sistema().Mensagem(pagina_, QStringLiteral("Lumerina"),
                               QStringLiteral("São necessários todos os limites da janela de desenho."),
                               IconeMensagem::Informacao);
            return false;
        }
    }
    try {
        // One after the other, as typed: a failing field leaves the earlier limits read.
        xmin = AvaliarLimite(xmin_->text());
        xmax = AvaliarLimite(xmax_->text());
        ymin = AvaliarLimite(ymin_->text());
        if (!ymax_->text().trimmed().isEmpty()) {
            const double topo = AvaliarLimite(ymax_->text());
            // Held in single precision: beyond its range the conversion overflows.
            if (std::fabs(topo) > std::numeric_limits<float>::max())
                throw ErroInterpretador(6, "Excesso de capacidade.");
            ymax = static_cast<float>(topo);
        }
    } catch (const ErroInterpretador& erro) {
        Sistema().Mensagem(pagina_, QString::fromStdString(erro.origem()),
                           QString::fromStdString(erro.what()), IconeMensagem::Informacao);
        return false;
    }
    if (ymin >= ymax) {
        Sistema().Mensagem(pagina_, titulo,
                           QStringLiteral("O valor de Ymáx deve ser maior que o de Ymín."),
                           IconeMensagem::Informacao);
        return false;
    }
    if (xmin >= xmax) {
        Sistema().Mensagem(pagina_, titulo,
                           QStringLiteral("O valor de Xmáx deve ser maior que o de Xmín."),
                           IconeMensagem::Informacao);
        return false;
    }
    return true;
}

int JanelaDesenho::DisporBotoes(int x, int largura, int passo)
{
    for (QPushButton* b : {guardar_, copiar_, apagar_}) {
        b->setGeometry(x, 24, largura, 28);
        x += passo;
    }
    return x;
}

void JanelaDesenho::LigarDesenho(QPushButton* botao, std::function<void()> desenhar)
{
    botoesDesenho_.push_back(botao);
    lumerina::LigarDesenho(botao, std::move(desenhar));
}

std::vector<QPushButton*> JanelaDesenho::BotoesDesactivados() const
{
    std::vector<QPushButton*> botoes = botoesDesenho_;
    botoes.insert(botoes.end(), {apagar_, copiar_, guardar_});
    return botoes;
}

void JanelaDesenho::PrepararDesenho()
{
    imagem_->Limpar();
    desenhado = false;
    imagem_->EscalaPixeis();
    W_ = imagem_->LarguraEscala();
    H_ = static_cast<int>(imagem_->AlturaEscala());
}

bool JanelaDesenho::DesenharPorColunas(const ColunaCores& colorir,
                                       const std::function<void()>& aposCeder,
                                       EscritaColunas escrita)
{
    SessaoDesenho sessao(*this);
    if (!DesenharColunas(*imagem_, W_, H_, colorir, aposCeder, escrita))
        return false;
    sessao.Concluir();
    return true;
}

void JanelaDesenho::DefinirEscalaMundo()
{
    imagem_->Escala(xmin, ymax, xmax, ymin);
}

void JanelaDesenho::ApagarGrafico()
{
    imagem_->Limpar();
    desenhado = false;
}

void JanelaDesenho::CopiarGrafico()
{
    Sistema().CopiarImagem(imagem_->Imagem());
}

void JanelaDesenho::GuardarGrafico()
{
    const RespostaGuardar resposta =
        Sistema().DialogoGuardar(pagina_, kFiltroBmp, QStringLiteral("bmp"));
    if (resposta.extensaoDiferente) {
        Sistema().Mensagem(pagina_, QStringLiteral("Lumerina"),
                           QStringLiteral("Essa extensão não é permitida."), IconeMensagem::Nenhum);
        return;
    }
    if (resposta.ficheiro.isEmpty())
        return;
    if (!GuardarBmp(imagem_->Imagem(), resposta.ficheiro))
        Sistema().Mensagem(pagina_, QStringLiteral("Lumerina"),
                           QStringLiteral("Não foi possível guardar o ficheiro."),
                           IconeMensagem::Informacao);
}

void JanelaDesenho::MudarLargura(int largura)
{
    imagem_->Redimensionar(largura, imagem_->AlturaPixeis());
    hscroll_->resize(largura, hscroll_->height());
    vscroll_->move(origem_.x() + imagem_->width() + kFolga, vscroll_->y());
    ActualizarDimensao();
}

void JanelaDesenho::MudarAltura(int altura)
{
    imagem_->Redimensionar(imagem_->LarguraPixeis(), altura);
    vscroll_->resize(vscroll_->width(), altura);
    hscroll_->move(hscroll_->x(), origem_.y() + imagem_->height() + kFolga);
    ActualizarDimensao();
}

void JanelaDesenho::ActualizarDimensao()
{
    imagem_->EscalaPixeis();
    // Int(W + 1) x Int(H + 1): the columns and rows the escape-time loops visit (0..W).
    const int w = static_cast<int>(std::floor(imagem_->LarguraEscala() + 1));
    const int h = static_cast<int>(std::floor(imagem_->AlturaEscala() + 1));
    labelDimensao_->setText(QStringLiteral("%1 x %2").arg(w).arg(h));
    DefinirEscalaMundo();
}

void JanelaDesenho::RatoPremido(Qt::MouseButton botao, double x, double y)
{
    if (botao != Qt::LeftButton || !desenhado || !xmin_)
        return;
    // The box goes to the screen only, never into the saved image.
    imagem_->DefinirPersistente(false);
    imagem_->DefinirEstilo(EstiloTraco::Pontilhado);
    imagem_->DefinirModo(ModoDesenho::Inverter);
    x0_ = x1_ = x;
    y0_ = y1_ = y;
}

void JanelaDesenho::RatoMovido(Qt::MouseButtons botoes, double x, double y)
{
    if (!(botoes & Qt::LeftButton) || !desenhado || imagem_->Modo() != ModoDesenho::Inverter)
        return;
    imagem_->Caixa(x0_, y0_, x1_, y1_, 0);  // invert again: erases the last box
    imagem_->Caixa(x0_, y0_, x, y, 0);
    x1_ = x;
    y1_ = y;
}

void JanelaDesenho::RatoLargado(Qt::MouseButton botao, double x, double y)
{
    if (botao != Qt::LeftButton)
        return;
    if (desenhado && imagem_->Modo() == ModoDesenho::Inverter) {
        imagem_->Caixa(x0_, y0_, x1_, y1_, 0);
        imagem_->Caixa(x0_, y0_, x, y, 0);
        xmin_->setText(TextoLimite(std::min(x0_, x)));
        xmax_->setText(TextoLimite(std::max(x0_, x)));
        ymin_->setText(TextoLimite(std::min(y0_, y)));
        ymax_->setText(TextoLimite(std::max(y0_, y)));
    }
    // The box is done with its dotted invert pen; what is drawn next gets a plain one.
    imagem_->DefinirModo(ModoDesenho::Copiar);
    imagem_->DefinirEstilo(EstiloTraco::Continuo);
}

}  // namespace lumerina
