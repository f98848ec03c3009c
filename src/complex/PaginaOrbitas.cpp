#include "complex/PaginaOrbitas.h"

#include "complex/TempoFuga.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "frame/Plataforma.h"
#include "interp/LerValor.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace lumerina {

namespace {

constexpr int kLado = 628;  // the picture, in pixels

// Faint, so that the orbit stands out: the set, the band just outside it, the axes.
constexpr QRgb kInteriorFundo = 0xFFD6DEEA;
constexpr QRgb kBordaFundo = 0xFFEDF1F6;
constexpr QRgb kEixos = 0xFFB4B4B4;
constexpr QRgb kDiagonal = 0xFF808080;
constexpr QRgb kGrafico = 0xFF2050C0;
constexpr QRgb kCaminho = 0xFF1F4FBF;
constexpr QRgb kTeia = 0xFFC02020;
constexpr QRgb kPonto = 0xFFD02020;
constexpr QRgb kInicio = 0xFF10A010;

// A number for the table: a decimal comma, as the page's texts write them; six decimals
// while they mean something, four figures and a power of ten beyond.
QString TextoNumero(double v)
{
    const double a = std::abs(v);
    QString t = (a != 0 && (a < 1e-4 || a >= 1e7)) ? QString::number(v, 'g', 4)
                                                     : QString::number(v, 'f', 6);
    if (t.contains('.') && !t.contains('e')) {
        while (t.endsWith('0'))
            t.chop(1);
        if (t.endsWith('.'))
            t.chop(1);
    }
    if (t == QLatin1String("-0"))
        t = QStringLiteral("0");
    return t.replace('.', ',');
}

// n in subscript digits: z₁₂.
QString Indice(int n)
{
    QString t = QString::number(n);
    for (QChar& c : t)
        c = QChar(0x2080 + c.digitValue());
    return t;
}

QString Complexo(PontoOrbita z)
{
    if (z.y == 0)
        return TextoNumero(z.x);
    const QString imaginaria = (std::abs(z.y) == 1 ? QString() : TextoNumero(std::abs(z.y))) + QStringLiteral("i");
    if (z.x == 0)
        return z.y < 0 ? QStringLiteral("-") + imaginaria : imaginaria;
    return TextoNumero(z.x) + (z.y < 0 ? QStringLiteral(" - ") : QStringLiteral(" + ")) + imaginaria;
}

}  // namespace

PaginaOrbitas::PaginaOrbitas(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    ColocarTitulo();

    janela_ = new JanelaDesenho(this, area, QPoint(8, 8), {.limites = false, .barras = false});

    QGroupBox* iteracao = Quadro(area, "Iteração", {kPainelX, 32, kPainelLargura, 94});
    modo_.Adicionar(iteracao, {
        {"ModoOrbita", "Órbita de z₀ por z ← z² + c", {10, 20, 316, 22}, Iteracao::Complexa},
        {"ModoCoseno", "Diagrama em teia de x ← cos x", {10, 44, 316, 22}, Iteracao::Coseno},
        {"ModoQuadratica", "Diagrama em teia de x ← x² + c", {10, 68, 316, 22},
         Iteracao::QuadraticaReal},
    });

    QGroupBox* parametros = Quadro(area, "Parâmetros", {kPainelX, 130, kPainelLargura, 84});
    Rotulo(parametros, "c =", {10, 22, 26, 22});
    valorC_ = Campo(parametros, "ValorDeC", "-0.5", {38, 20, 100, 24});
    Rotulo(parametros, "+ i ·", {144, 22, 34, 22});
    valorD_ = Campo(parametros, "ValorDeD", "0", {180, 20, 100, 24});
    Rotulo(parametros, "x₀ =", {10, 52, 30, 22});
    valorX0_ = Campo(parametros, "ValorX0", "0", {38, 50, 100, 24});

    QGroupBox* passos = Quadro(area, "Passos", {kPainelX, 218, kPainelLargura, 94});
    QPushButton* passo = Botao(passos, "Passo", "Passo", {8, 22, 76, 28}, "Calcular o ponto seguinte.");
    automatico_ = Botao(passos, "Automatico", "Automático", {88, 22, 78, 28},
                        "Calcular os pontos sozinhos, ao ritmo da barra de velocidade.");
    parar_ = Botao(passos, "Parar", "Parar", {170, 22, 76, 28});
    QPushButton* recomecar = Botao(passos, "Recomeçar", "Recomeçar", {250, 22, 78, 28},
                                   "Voltar ao ponto inicial.");
    Rotulo(passos, "Velocidade:", {10, 60, 80, 22});
    velocidade_ = new QScrollBar(Qt::Horizontal, passos);
    velocidade_->setObjectName(QStringLiteral("Velocidade"));
    velocidade_->setGeometry(92, 62, 236, 18);
    velocidade_->setRange(1, 50);  // steps a second
    velocidade_->setValue(5);
    parar_->setEnabled(false);

    labelFuga_ = Rotulo(area, "", {kPainelX + 4, 316, kPainelLargura - 8, 40}, "LabelFuga");
    labelFuga_->setWordWrap(true);

    tabela_ = new QTableWidget(0, 3, area);
    tabela_->setObjectName(QStringLiteral("TabelaOrbita"));
    tabela_->setGeometry(kPainelX, 360, kPainelLargura, 190);
    tabela_->verticalHeader()->hide();
    tabela_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabela_->setSelectionMode(QAbstractItemView::NoSelection);
    tabela_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tabela_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Fixed);
    tabela_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    tabela_->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Fixed);
    tabela_->setColumnWidth(0, 40);
    tabela_->setColumnWidth(2, 92);
    tabela_->verticalHeader()->setDefaultSectionSize(20);

    QGroupBox* opcoesGrafico = janela_->QuadroOpcoes();
    opcoesGrafico->setGeometry(kPainelX, 556, kPainelLargura, 62);
    janela_->DisporBotoes(8, 100, 110);

    // The automatic steps: the one timer that drives work in the program.
    relogio_ = new QTimer(this);
    relogio_->setObjectName(QStringLiteral("Timer1"));
    MudarVelocidade(velocidade_->value());

    connect(passo, &QPushButton::clicked, this, &PaginaOrbitas::Passo);
    connect(automatico_, &QPushButton::clicked, this, &PaginaOrbitas::Automatico);
    connect(parar_, &QPushButton::clicked, this, &PaginaOrbitas::Parar);
    connect(recomecar, &QPushButton::clicked, this, &PaginaOrbitas::Recomecar);
    connect(relogio_, &QTimer::timeout, this, &PaginaOrbitas::Passo);
    connect(velocidade_, &QScrollBar::valueChanged, this, &PaginaOrbitas::MudarVelocidade);
    connect(janela_->Apagar(), &QPushButton::clicked, this, &PaginaOrbitas::Apagado);
    connect(janela_->Imagem(), &ControloImagem::RatoPremido, this, &PaginaOrbitas::EscolherPonto);
    for (const auto& [botao, valor] : modo_.Opcoes())
        connect(botao, &QRadioButton::toggled, this, [this](bool ligado) {
            if (ligado)
                MudarModo();
        });

    MudarModo();
}

PaginaOrbitas::Parametros PaginaOrbitas::ParametrosActuais() const
{
    const Iteracao it = modo_.Valor();
    const double c = LerValor(valorC_->text().toStdString());
    switch (it) {
    case Iteracao::Complexa:
        return {it, c, LerValor(valorD_->text().toStdString()), z0Complexo_};
    case Iteracao::Coseno:
        return {it, 0, 0, {LerValor(valorX0_->text().toStdString()), 0}};
    case Iteracao::QuadraticaReal:
        break;
    }
    return {it, c, 0, {LerValor(valorX0_->text().toStdString()), 0}};
}

void PaginaOrbitas::Iniciar(const Parametros& p)
{
    parametros_ = p;
    orbita_.emplace(p.iteracao, p.z0, p.cx, p.cy);
    // The world: the plane around the Mandelbrot set and the circle |z| = 2, or a square on
    // the diagonal holding x_0 and where the real orbits live.
    double lado = 2.2, centro = 0;
    if (p.iteracao == Iteracao::Coseno) {
        // After one step x lies in [-1, 1]; the fixed point is at 0.739.
        const double a = std::min(-0.25, p.z0.x - 0.1), b = std::max(1.25, p.z0.x + 0.1);
        centro = (a + b) / 2;
        lado = (b - a) / 2;
    } else if (p.iteracao == Iteracao::QuadraticaReal) {
        // For c <= 1/4 the orbits that stay bounded live in [-b, b], b = (1 + sqrt(1 - 4c))/2.
        const double b = p.cx <= 0.25 ? (1 + std::sqrt(1 - 4 * p.cx)) / 2 : 0;
        lado = 1.05 * std::max({2.0, std::abs(p.z0.x), b});
    }
    if (!std::isfinite(lado))
        lado = 2.2;
    xmin_ = ymin_ = centro - lado;
    xmax_ = ymax_ = centro + lado;
    DesenharFundo();

    const bool real = p.iteracao != Iteracao::Complexa;
    tabela_->setRowCount(0);
    tabela_->setHorizontalHeaderLabels({QStringLiteral("n"), real ? QStringLiteral("xₙ") : QStringLiteral("zₙ"),
                                        real ? QStringLiteral("|xₙ|") : QStringLiteral("|zₙ|")});
    AcrescentarLinha(0);
    labelFuga_->clear();
    if (orbita_->PassoFuga() == 0)
        MostrarSituacao(ResultadoPasso::Fugiu);
}

void PaginaOrbitas::DesenharFundo()
{
    ControloImagem* imagem = janela_->Imagem();
    imagem->ReporCaneta();
    imagem->Limpar();
    imagem->Escala(xmin_, ymax_, xmax_, ymin_);
    if (parametros_.iteracao == Iteracao::Complexa) {
        // The Mandelbrot set of the same square, for orientation: pixel column i and row
        // y stand for the point at their left and top edges (the kernel divides by W - 1
        // and H - 1, and counts rows from the bottom).
        const int largura = imagem->LarguraPixeis(), altura = imagem->AlturaPixeis();
        constexpr int N = 64;
        const VistaMundo vista{xmin_, xmax_, ymin_, static_cast<float>(ymax_), double(largura) + 1,
                               altura + 1};
        std::vector<int> contagens(static_cast<std::size_t>(altura) + 2);
        for (int i = 0; i < largura; ++i) {
            ColunaMandelbrot(VarianteMandel::Normal, vista, i, N, contagens.data());
            for (int y = 0; y < altura; ++y) {
                const int n = contagens[static_cast<std::size_t>(altura - y)];
                if (n == N)
                    imagem->Linha(y)[i] = kInteriorFundo;
                else if (n >= 8)
                    imagem->Linha(y)[i] = kBordaFundo;
            }
        }
        imagem->Sujar(imagem->rect());
        imagem->Linha(xmin_, 0, xmax_, 0, kEixos);
        imagem->Linha(0, ymin_, 0, ymax_, kEixos);
        // The escape circle |z| = R.
        imagem->DefinirEstilo(EstiloTraco::Pontilhado);
        const double r = orbita_->Raio();
        constexpr int kLados = 180;
        for (int k = 0; k < kLados; ++k) {
            const double a = 2 * std::numbers::pi * k / kLados, b = 2 * std::numbers::pi * (k + 1) / kLados;
            imagem->Linha(r * std::cos(a), r * std::sin(a), r * std::cos(b), r * std::sin(b), kDiagonal);
        }
        imagem->DefinirEstilo(EstiloTraco::Continuo);
    } else {
        imagem->Linha(xmin_, 0, xmax_, 0, kEixos);
        imagem->Linha(0, ymin_, 0, ymax_, kEixos);
        imagem->Linha(xmin_, xmin_, xmax_, xmax_, kDiagonal);
        // The graph of f, a point every pixel.
        const double passo = (xmax_ - xmin_) / kLado;
        double xa = xmin_, ya = MapaReal(parametros_.iteracao, xa, parametros_.cx);
        for (int k = 1; k <= kLado; ++k) {
            const double x = xmin_ + k * passo, y = MapaReal(parametros_.iteracao, x, parametros_.cx);
            imagem->Linha(xa, ya, x, y, kGrafico);
            xa = x;
            ya = y;
        }
    }
    const PontoOrbita z0 = orbita_->Pontos().front();
    DesenharPonto(parametros_.iteracao == Iteracao::Complexa ? z0 : PontoOrbita{z0.x, z0.x}, kInicio);
}

void PaginaOrbitas::DesenharPonto(PontoOrbita z, QRgb cor)
{
    // A filled square five pixels wide: three nested outlines.
    ControloImagem* imagem = janela_->Imagem();
    const double pixel = (xmax_ - xmin_) / kLado;
    for (int k = 0; k <= 2; ++k)
        imagem->Caixa(z.x - k * pixel, z.y - k * pixel, z.x + k * pixel, z.y + k * pixel, cor);
}

void PaginaOrbitas::AcrescentarLinha(int n)
{
    const PontoOrbita z = orbita_->Pontos()[static_cast<std::size_t>(n)];
    const int linha = tabela_->rowCount();
    tabela_->insertRow(linha);
    const QString textos[] = {QString::number(n), Complexo(z), TextoNumero(Modulo(z))};
    for (int coluna = 0; coluna < 3; ++coluna) {
        auto* item = new QTableWidgetItem(textos[coluna]);
        item->setToolTip(textos[coluna]);  // a long z_n is elided in its cell
        item->setTextAlignment(coluna == 1 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignRight | Qt::AlignVCenter);
        tabela_->setItem(linha, coluna, item);
    }
    tabela_->scrollToBottom();
}

void PaginaOrbitas::Passo()
{
    if (Sistema().ATerminar()) {
        Parar();
        return;
    }
    // A field changed since the orbit began, or the picture was cleared: a new orbit.
    const Parametros p = ParametrosActuais();
    if (!orbita_ || !(p == parametros_))
        Iniciar(p);
    const ResultadoPasso resultado = orbita_->Avancar();
    if (resultado == ResultadoPasso::Avancou || resultado == ResultadoPasso::Fugiu) {
        const int n = orbita_->Passos();
        const PontoOrbita antes = orbita_->Pontos()[static_cast<std::size_t>(n - 1)];
        const PontoOrbita agora = orbita_->Pontos()[static_cast<std::size_t>(n)];
        ControloImagem* imagem = janela_->Imagem();
        if (parametros_.iteracao == Iteracao::Complexa) {
            imagem->Linha(antes.x, antes.y, agora.x, agora.y, kCaminho);
            DesenharPonto(agora, kPonto);
        } else {
            for (const SegmentoTeia& s : SegmentosTeia(antes.x, agora.x))
                imagem->Linha(s.x1, s.y1, s.x2, s.y2, kTeia);
        }
        AcrescentarLinha(n);
    }
    MostrarSituacao(resultado);
}

void PaginaOrbitas::MostrarSituacao(ResultadoPasso resultado)
{
    const Orbita& o = *orbita_;
    const bool real = o.Tipo() != Iteracao::Complexa;
    const QString nome = real ? QStringLiteral("x") : QStringLiteral("z");
    QString texto;
    if (o.PassoFuga() >= 0) {
        const int n = o.PassoFuga();
        texto = QStringLiteral("A órbita fugiu no passo %1: |%2%3| = %4 > %5.")
                    .arg(n)
                    .arg(nome)
                    .arg(Indice(n))
                    .arg(TextoNumero(Modulo(o.Pontos()[static_cast<std::size_t>(n)])))
                    .arg(TextoNumero(o.Raio()));
    }
    const int periodo = o.Periodo();
    if (periodo == 1)
        texto = QStringLiteral("A órbita chegou a um ponto fixo.");
    else if (periodo > 1)
        texto = QStringLiteral("A órbita entrou num ciclo de período %1.").arg(periodo);
    if (resultado == ResultadoPasso::Transbordou)
        texto += QStringLiteral(" O ponto seguinte excede a capacidade do computador.");
    else if (resultado == ResultadoPasso::Limite)
        texto += QStringLiteral(" A tabela chegou aos %1 passos.").arg(Orbita::kMaxPassos);
    labelFuga_->setText(texto.trimmed());
    // Nothing changes after a cycle or the end: the automatic steps stop there.
    if (periodo > 0 || resultado == ResultadoPasso::Transbordou || resultado == ResultadoPasso::Limite)
        Parar();
}

void PaginaOrbitas::Automatico()
{
    if (relogio_->isActive())
        return;
    relogio_->start();
    automatico_->setEnabled(false);
    parar_->setEnabled(true);
}

void PaginaOrbitas::Parar()
{
    relogio_->stop();
    automatico_->setEnabled(true);
    parar_->setEnabled(false);
}

void PaginaOrbitas::MudarModo()
{
    // Only the fields the mode reads can be typed in.
    const Iteracao it = modo_.Valor();
    valorC_->setEnabled(it != Iteracao::Coseno);
    valorD_->setEnabled(it == Iteracao::Complexa);
    valorX0_->setEnabled(it != Iteracao::Complexa);
    Recomecar();
}

void PaginaOrbitas::Recomecar()
{
    Parar();
    Iniciar(ParametrosActuais());
}

void PaginaOrbitas::Apagado()
{
    // The drawing window has cleared the picture: the orbit goes with it, and the next step
    // starts afresh.
    Parar();
    orbita_.reset();
    tabela_->setRowCount(0);
    labelFuga_->clear();
}

void PaginaOrbitas::EscolherPonto(Qt::MouseButton botao, double x, double y)
{
    if (botao != Qt::LeftButton)
        return;
    Parar();
    if (modo_.Valor() == Iteracao::Complexa)
        z0Complexo_ = {x, y};
    else
        valorX0_->setText(TextoLimite(x));
    Iniciar(ParametrosActuais());
}

void PaginaOrbitas::MudarVelocidade(int passosPorSegundo)
{
    relogio_->setInterval(1000 / std::max(1, passosPorSegundo));
}

void PaginaOrbitas::hideEvent(QHideEvent* evento)
{
    // A page out of sight takes no steps: closed, left for another page, or the program ending.
    Parar();
    PaginaBase::hideEvent(evento);
}

}  // namespace lumerina
