#include "app/PaginaInformacao.h"

#include "app/Paginas.h"

#include <QAbstractTextDocumentLayout>
#include <QCloseEvent>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTextDocument>
#include <QToolButton>

#include <algorithm>

// The page texts are compiled into this static library; nothing else refers to them, so they
// are registered by hand before the first read.
static void RegistarTextos()
{
    Q_INIT_RESOURCE(info);
}

namespace lumerina {

namespace {

constexpr int kMargem = 8;  // Image1 sits at left 120, top 120 twips: 8 pixels

const char* const kEstilo = R"(
h2 { color: #1d3a66; font-size: 17pt; margin-bottom: 6px; }
h3 { color: #2b5a8c; font-size: 12.5pt; margin-top: 8px; margin-bottom: 3px; }
p { margin-top: 3px; margin-bottom: 5px; }
li { margin-bottom: 2px; }
code { font-family: "DejaVu Sans Mono", monospace; color: #7a2e0e; }
pre { font-family: "DejaVu Sans Mono", monospace; color: #2d3748; margin-left: 18px; }
th { background-color: #e3e9f2; }
td, th { padding-left: 7px; padding-right: 7px; }
.conj { text-decoration: overline; }
.programa { color: #0f5a63; }
.nivel { color: #8a5a00; font-style: italic; margin-top: 0px; }
.exercicio { margin-top: 8px; background-color: #efe8d4; }
)";

}  // namespace

const LivroInformacao& LivroInstrucoes()
{
    static const LivroInformacao livro{6, "INSTRUÇÕES", "instrucoes", 26};
    return livro;
}

const LivroInformacao& LivroComentarios()
{
    static const LivroInformacao livro{8, "COMENTÁRIOS", "comentarios", 73};
    return livro;
}

const LivroInformacao& LivroSugestoes()
{
    static const LivroInformacao livro{13, "SUGESTÕES", "sugestoes", 3};
    return livro;
}

QString TextoPaginaInformacao(const LivroInformacao& livro, int k)
{
    static const bool registados = (RegistarTextos(), true);
    (void)registados;
    QFile ficheiro(QStringLiteral(":/info/%1/%2.html")
                       .arg(QString::fromUtf8(livro.pasta))
                       .arg(k, 2, 10, QLatin1Char('0')));
    if (!ficheiro.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(ficheiro.readAll());
}

QImage DesenharPaginaInformacao(const QString& html, QSize tamanho, qreal escala, qreal* pontos)
{
    QImage imagem(tamanho * escala, QImage::Format_RGB32);
    imagem.setDevicePixelRatio(escala);
    imagem.fill(QColor(0xfb, 0xf8, 0xef));

    QTextDocument documento;
    documento.setDefaultStyleSheet(QString::fromUtf8(kEstilo));
    documento.setDocumentMargin(18);
    // Tables get room round their cells (Qt's rich text takes it as attributes, not CSS).
    QString texto = html;
    texto.replace(QLatin1String("<table>"),
                  QLatin1String(R"(<table cellpadding="3" cellspacing="0" border="0">)"));
    // Texts quoted from the program («Desenhar», «Xmin =») are set apart from the prose, so
    // that a reader sees at once which words are on the screen; «» holds nothing else.
    static const QRegularExpression citacao(QStringLiteral("«([^«»]*)»"));
    texto.replace(citacao, QStringLiteral(R"(<span class="programa">«\1»</span>)"));
    // An opening bar of an absolute value may not end a line ("|" allows a break after it):
    // a word joiner ties it to what it encloses.
    static const QRegularExpression barraDeAbertura(QStringLiteral("(?<=[\\s>(;])\\|(?=[^\\s<|&])"));
    texto.replace(barraDeAbertura, QStringLiteral("|\u2060"));
    documento.setHtml(texto);
    // The page must fit its picture: a long page is set a little smaller rather than cut.
    QFont letra(QStringLiteral("DejaVu Sans"));
    qreal usados = 0;
    for (qreal tamanhoLetra = 11.5; tamanhoLetra >= 8 && usados == 0; tamanhoLetra -= 0.5) {
        letra.setPointSizeF(tamanhoLetra);
        documento.setDefaultFont(letra);
        documento.setTextWidth(tamanho.width());
        if (documento.size().height() <= tamanho.height())
            usados = tamanhoLetra;
    }
    if (pontos)
        *pontos = usados;

    QPainter pintor(&imagem);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setRenderHint(QPainter::TextAntialiasing);
    QAbstractTextDocumentLayout::PaintContext contexto;
    contexto.palette.setColor(QPalette::Text, QColor(0x22, 0x22, 0x22));
    contexto.clip = QRectF(QPointF(0, 0), tamanho);
    documento.documentLayout()->draw(&pintor, contexto);
    pintor.setPen(QColor(0xc8, 0xbf, 0xa8));
    pintor.drawRect(QRectF(0.5, 0.5, tamanho.width() - 1, tamanho.height() - 1));
    return imagem;
}

namespace {
// Enough to turn back and forth over a few pages without drawing them again.
constexpr std::size_t kPaginasGuardadas = 3;
}  // namespace

PaginaInformacao::PaginaInformacao(const LivroInformacao& livro, int inicio, QWidget* pai)
    : QWidget(pai), livro_(livro)
{
    // 1. The page's own size.
    setObjectName(QStringLiteral("Form%1").arg(livro.numero));
    setWindowTitle(QString::fromUtf8(livro.titulo));
    const int baseY = kMargem + kAlturaPagina + 10;
    setFixedSize(kLarguraPagina + 2 * kMargem, baseY + 44);

    // 2. Every page picture at (8, 8), hidden.
    for (int indice = 1; indice <= livro.paginas; ++indice) {
        auto* imagem = new QLabel(this);
        imagem->setObjectName(QStringLiteral("Image1"));
        imagem->setProperty("Index", indice);
        imagem->setGeometry(kMargem, kMargem, kLarguraPagina, kAlturaPagina);
        imagem->hide();
        imagens_.push_back(imagem);
    }

    setaE_ = new QToolButton(this);
    setaE_->setObjectName(QStringLiteral("SetaE"));
    setaE_->setArrowType(Qt::LeftArrow);
    setaE_->setToolTip(QStringLiteral("Página anterior"));
    setaE_->setGeometry(kMargem, baseY, 44, 30);
    setaD_ = new QToolButton(this);
    setaD_->setObjectName(QStringLiteral("SetaD"));
    setaD_->setArrowType(Qt::RightArrow);
    setaD_->setToolTip(QStringLiteral("Página seguinte"));
    setaD_->setGeometry(kMargem + 52, baseY, 44, 30);

    auto* label1 = new QLabel(QStringLiteral("Página"), this);
    label1->setObjectName(QStringLiteral("Label1"));
    label1->setGeometry(kMargem + 320, baseY + 5, 50, 20);
    label2_ = new QLabel(this);
    label2_->setObjectName(QStringLiteral("Label2"));
    label2_->setAlignment(Qt::AlignCenter);
    label2_->setGeometry(kMargem + 370, baseY + 5, 30, 20);
    auto* label3 = new QLabel(QStringLiteral("de  %1").arg(livro.paginas), this);
    label3->setObjectName(QStringLiteral("Label3"));
    label3->setGeometry(kMargem + 402, baseY + 5, 60, 20);

    auto* fechar = new QPushButton(QStringLiteral("Fechar"), this);
    fechar->setObjectName(QStringLiteral("Command1"));
    fechar->setGeometry(kMargem + kLarguraPagina - 100, baseY, 100, 30);

    connect(setaD_, &QToolButton::clicked, this, &PaginaInformacao::PaginaSeguinte);
    connect(setaE_, &QToolButton::clicked, this, &PaginaInformacao::PaginaAnterior);
    connect(fechar, &QPushButton::clicked, this, &PaginaInformacao::Fechar);

    // 3-4. The start page.
    k_ = std::clamp(inicio, 1, livro.paginas);
    MostrarImagem(k_);
    if (k_ == 1)
        setaE_->hide();
    label2_->setNum(k_);
}

void PaginaInformacao::MostrarImagem(int indice)
{
    const std::size_t i = static_cast<std::size_t>(indice - 1);
    if (imagens_[i]->pixmap().isNull()) {  // drawn the first time it is shown
        const qreal escala = QGuiApplication::primaryScreen()
                                 ? QGuiApplication::primaryScreen()->devicePixelRatio()
                                 : 1.0;
        const QImage pagina = DesenharPaginaInformacao(TextoPaginaInformacao(livro_, indice),
                                                       {kLarguraPagina, kAlturaPagina}, escala);
        imagens_[i]->setPixmap(QPixmap::fromImage(pagina));
    }
    imagens_[i]->show();
    std::erase(desenhadas_, indice);
    desenhadas_.push_back(indice);
    if (desenhadas_.size() > kPaginasGuardadas) {
        imagens_[static_cast<std::size_t>(desenhadas_.front() - 1)]->clear();
        desenhadas_.erase(desenhadas_.begin());
    }
}

void PaginaInformacao::EsconderImagem(int indice)
{
    imagens_[static_cast<std::size_t>(indice - 1)]->hide();
}

void PaginaInformacao::PaginaSeguinte()
{
    if (!imagens_[static_cast<std::size_t>(k_ - 1)]->isHidden() && k_ < livro_.paginas) {
        EsconderImagem(k_);
        MostrarImagem(k_ + 1);
        ++k_;
        setaE_->show();
    }
    if (k_ == livro_.paginas)
        setaD_->hide();
    label2_->setNum(k_);
}

void PaginaInformacao::PaginaAnterior()
{
    if (!imagens_[static_cast<std::size_t>(k_ - 1)]->isHidden() && k_ > 1) {
        EsconderImagem(k_);
        MostrarImagem(k_ - 1);
        --k_;
        setaD_->show();
    }
    if (k_ == 1) {
        setaE_->hide();
        setaD_->show();
    }
    label2_->setNum(k_);
}

void PaginaInformacao::Fechar()
{
    // Hidden and released: the next opening builds the page afresh at its start page.
    hide();
    LibertarPagina(livro_.numero);
}

void PaginaInformacao::closeEvent(QCloseEvent* evento)
{
    evento->ignore();
    Fechar();
}

}  // namespace lumerina
