#include "geometric/PaginaDimensao.h"

#include "app/Paginas.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "frame/SessaoDesenho.h"
#include "geometric/FigurasAutoSemelhantes.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include <algorithm>
#include <cmath>

namespace lumerina {

namespace {

const QString kTitulo = QStringLiteral("Dimensão fractal");
constexpr QRgb kFigura = 0xFF000000;

// The pictures that can be measured: this page's own, or another page's by its title.
struct Origem {
    const char* texto;
    int pagina;  // 0: this page
};
constexpr Origem kOrigens[] = {
    {"Esta página", 0},
    {"Conjunto de Mandelbrot", Form::Mandelbrot},
    {"Conjuntos de Julia", Form::Julia},
    {"IFS", Form::IFS},
    {"L-Sistemas", Form::LSistemas},
    {"Atractores", Form::Atractores},
};

// A number as the texts write it: a decimal comma.
QString Decimal(double v, int casas)
{
    return QString::number(v, 'f', casas).replace('.', ',');
}

}  // namespace

Mascara MascaraDaImagem(const ControloImagem& imagem)
{
    const QImage& img = imagem.Imagem();
    Mascara m(img.width(), img.height());
    const QRgb fundo = imagem.CorFundo() & 0xFFFFFF;
    for (int y = 0; y < img.height(); ++y) {
        const auto* linha = reinterpret_cast<const QRgb*>(img.constScanLine(y));
        for (int x = 0; x < img.width(); ++x)
            m(x, y) = (linha[x] & 0xFFFFFF) != fundo;
    }
    return m;
}

PaginaDimensao::PaginaDimensao(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    ColocarTitulo();

    janela_ = new JanelaDesenho(this, area, QPoint(8, 8), {.limites = false, .barras = false});

    QGroupBox* metodo = Quadro(area, "Dimensão", {kPainelX, 32, kPainelLargura, 52});
    metodo_.Adicionar(metodo, {
        {"AutoSemelhanca", "Auto-semelhança", {10, 22, 150, 22}, Metodo::AutoSemelhanca},
        {"ContagemCaixas", "Contagem de caixas", {170, 22, 160, 22}, Metodo::ContagemCaixas},
    });

    // Both frames share the place below the options; the option shows one.
    quadroFiguras_ = Quadro(area, "Figuras auto-semelhantes", {kPainelX, 88, kPainelLargura, 200});
    figura_ = new QComboBox(quadroFiguras_);
    figura_->setObjectName(QStringLiteral("Figura"));
    figura_->setGeometry(10, 24, 316, 26);
    for (const DadosFigura& f : Figuras())
        figura_->addItem(QString::fromUtf8(f.nome));
    figura_->setCurrentIndex(static_cast<int>(Figura::TrianguloSierpinski));
    QPushButton* desenhar = Botao(quadroFiguras_, "Desenhar", "Desenhar", {10, 58, 100, 28},
                                  "Desenhar a figura escolhida.");
    semelhanca_ = Rotulo(quadroFiguras_, "", {10, 94, 316, 100}, "Semelhanca");
    semelhanca_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    semelhanca_->setWordWrap(true);
    QFont grande = semelhanca_->font();
    grande.setPointSize(grande.pointSize() + 2);
    semelhanca_->setFont(grande);

    quadroCaixas_ = Quadro(area, "Contagem de caixas", {kPainelX, 88, kPainelLargura, 464});
    Rotulo(quadroCaixas_, "Imagem a medir:", {10, 24, 110, 24});
    origem_ = new QComboBox(quadroCaixas_);
    origem_->setObjectName(QStringLiteral("Origem"));
    origem_->setGeometry(120, 22, 206, 26);
    for (const Origem& o : kOrigens)
        origem_->addItem(QString::fromUtf8(o.texto));
    QPushButton* medir = Botao(quadroCaixas_, "Medir", "Medir", {10, 54, 100, 28},
                               "Medir a dimensão da imagem escolhida.");
    dimensao_ = Rotulo(quadroCaixas_, "", {120, 52, 110, 30}, "Dimensao");
    QFont forte = dimensao_->font();
    forte.setPointSize(forte.pointSize() + 4);
    forte.setBold(true);
    dimensao_->setFont(forte);
    ajuste_ = Rotulo(quadroCaixas_, "", {236, 54, 90, 26}, "Ajuste");

    tabela_ = new QTableWidget(static_cast<int>(std::size(kLadosCaixas)), 4, quadroCaixas_);
    tabela_->setObjectName(QStringLiteral("TabelaCaixas"));
    tabela_->setGeometry(10, 88, 316, 166);
    tabela_->setHorizontalHeaderLabels({QStringLiteral("s"), QStringLiteral("N(s)"),
                                        QStringLiteral("log(1/s)"), QStringLiteral("log N(s)")});
    tabela_->verticalHeader()->hide();
    tabela_->verticalHeader()->setDefaultSectionSize(20);
    tabela_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    tabela_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabela_->setSelectionMode(QAbstractItemView::NoSelection);
    tabela_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tabela_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Exactly the seven rows under the header.
    tabela_->setFixedHeight(tabela_->horizontalHeader()->sizeHint().height() + 7 * 20 +
                            2 * tabela_->frameWidth());

    grafico_ = new ControloImagem(quadroCaixas_, 314, 196);
    grafico_->setObjectName(QStringLiteral("Picture2"));
    grafico_->move(10, 260);

    QGroupBox* opcoesGrafico = janela_->QuadroOpcoes();
    opcoesGrafico->setGeometry(kPainelX, 556, kPainelLargura, 62);
    janela_->DisporBotoes(8, 100, 110);

    janela_->LigarDesenho(desenhar, [this] { DesenharFigura(); });
    LigarDesenho(medir, [this] { Medir(); });
    for (const auto& [botao, valor] : metodo_.Opcoes())
        connect(botao, &QRadioButton::toggled, this, &PaginaDimensao::MudarMetodo);
    MudarMetodo();
}

void PaginaDimensao::MudarMetodo()
{
    const bool caixas = metodo_.Valor() == Metodo::ContagemCaixas;
    quadroFiguras_->setVisible(!caixas);
    quadroCaixas_->setVisible(caixas);
}

void PaginaDimensao::DesenharFigura()
{
    const DadosFigura& dados = Figuras()[static_cast<std::size_t>(std::max(0, figura_->currentIndex()))];
    ControloImagem* imagem = janela_->Imagem();
    SessaoDesenho sessao(*janela_);
    imagem->Limpar();
    const Mascara m = lumerina::DesenharFigura(dados.figura, imagem->LarguraPixeis(), imagem->AlturaPixeis());
    for (int y = 0; y < m.altura; ++y) {
        QRgb* linha = imagem->Linha(y);
        for (int x = 0; x < m.largura; ++x)
            if (m(x, y))
                linha[x] = kFigura;
    }
    imagem->Sujar(imagem->rect());
    sessao.Concluir();

    const double D = DimensaoAutoSemelhanca(dados.copias, dados.razao);
    const QString umSobreR = dados.figura == Figura::DragaoHeighway
                                 ? QStringLiteral("√2")
                                 : QString::number(std::lround(1 / dados.razao));
    semelhanca_->setText(QStringLiteral("N = %1 cópias, r = %2\n\nD = log %1 / log %3 ≈ %4")
                             .arg(dados.copias)
                             .arg(QString::fromUtf8(dados.razaoTexto))
                             .arg(umSobreR)
                             .arg(Decimal(D, 4)));
}

void PaginaDimensao::Medir()
{
    const Origem& origem = kOrigens[std::max(0, origem_->currentIndex())];
    const ControloImagem* imagem = nullptr;
    Mascara m;
    if (origem.pagina == 0) {
        imagem = janela_->Imagem();
        m = MascaraDaImagem(*imagem);
    } else if (QWidget* pagina = PaginaExistente(origem.pagina)) {
        // The page's current picture: Picture1, or Picture2 where the figure is drawn there.
        for (const char* nome : {"Picture1", "Picture2"}) {
            imagem = pagina->findChild<ControloImagem*>(QString::fromUtf8(nome));
            if (!imagem)
                continue;
            m = MascaraDaImagem(*imagem);
            if (std::find(m.pixeis.begin(), m.pixeis.end(), 1) != m.pixeis.end())
                break;
        }
    }
    const Dimensao d = MedirDimensao(m);
    if (!d.valida) {
        const QString texto =
            origem.pagina == 0
                ? QStringLiteral("Esta página ainda não tem nenhum desenho: desenhe primeiro uma figura.")
                : QStringLiteral("A página «%1» ainda não tem nenhum desenho: desenhe primeiro a figura "
                                 "nessa página e depois meça-a aqui.")
                      .arg(QString::fromUtf8(origem.texto));
        Recusar(this, kTitulo, texto);
        return;
    }
    MostrarMedicao(d);
}

void PaginaDimensao::MostrarMedicao(const Dimensao& d)
{
    for (std::size_t k = 0; k < d.caixas.size(); ++k) {
        const QString textos[] = {QString::number(d.caixas[k].lado), QString::number(d.caixas[k].contagem),
                                  Decimal(d.u[k], 4), Decimal(d.v[k], 4)};
        for (int coluna = 0; coluna < 4; ++coluna) {
            auto* item = new QTableWidgetItem(textos[coluna]);
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            tabela_->setItem(static_cast<int>(k), coluna, item);
        }
    }
    dimensao_->setText(QStringLiteral("D ≈ ") + Decimal(d.ajuste.declive, 2));
    ajuste_->setText(QStringLiteral("r² = ") + Decimal(d.ajuste.r2, 4));
    DesenharGrafico(d);
}

void PaginaDimensao::DesenharGrafico(const Dimensao& d)
{
    ControloImagem* g = grafico_;
    g->ReporCaneta();
    g->Limpar();
    // World: u across, v up, with room on the left and below for the axes' names.
    const auto [umin, umax] = std::minmax_element(d.u.begin(), d.u.end());
    const auto [vmin, vmax] = std::minmax_element(d.v.begin(), d.v.end());
    const double du = *umax - *umin, dv = std::max(*vmax - *vmin, 0.5);
    const double x0 = *umin - 0.22 * du, x1 = *umax + 0.06 * du;
    const double y0 = *vmin - 0.22 * dv, y1 = *vmax + 0.12 * dv;
    g->Escala(x0, y1, x1, y0);
    const double ex = *umin - 0.06 * du, ey = *vmin - 0.08 * dv;  // where the axes cross
    constexpr QRgb kEixo = 0xFF606060;
    g->Linha(ex, ey, x1, ey, kEixo);
    g->Linha(ex, ey, ex, y1, kEixo);
    g->Texto(x1 - 0.30 * du, ey - 0.03 * dv, QStringLiteral("log(1/s)"), kEixo);
    g->Texto(ex + 0.02 * du, y1 - 0.01 * dv, QStringLiteral("log N(s)"), kEixo);
    // The least-squares line over the points' span, then the points on top of it.
    const Ajuste& a = d.ajuste;
    g->Linha(*umin, a.ordenada + a.declive * *umin, *umax, a.ordenada + a.declive * *umax, 0xFFC02020);
    const double px = 3 * (x1 - x0) / g->LarguraPixeis(), py = 3 * (y1 - y0) / g->AlturaPixeis();
    for (std::size_t k = 0; k < d.u.size(); ++k)
        g->Caixa(d.u[k] - px, d.v[k] - py, d.u[k] + px, d.v[k] + py, 0xFF1F4FBF);
}

}  // namespace lumerina
