#include "geometric/PaginaIFS.h"

#include "frame/ControloImagem.h"
#include "frame/Controlos.h"
#include "frame/JanelaDesenho.h"
#include "frame/Plataforma.h"
#include "frame/SessaoDesenho.h"
#include "geometric/SistemaIFS.h"
#include "interp/Aleatorio.h"

#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <cmath>
#include <span>
#include <tuple>
#include <utility>

namespace lumerina {

namespace {

const QString kTitulo = QStringLiteral("Sistemas de função iterada");
constexpr int kLado = 627;  // the picture's drawing area, in pixels
constexpr int kIntervaloProgresso = 33;  // ms between two repaints of a drawing in progress

// A button of an "Exemplos" frame: its name and caption. The caption is also the name of the
// system it draws; the two buttons captioned "Folha de pé" draw the same one.
struct Exemplo {
    const char* nome;
    const char* legenda;
};

const Exemplo kPagina1[] = {
    {"Dragão", "Dragão"},
    {"Estrela", "Estrela"},
    {"Espiral", "Espiral"},
    {"Planta", "Folha1"},
    {"Planta3", "Arbusto2"},
    {"Planta2", "Arbusto"},
    {"Árvore3", "Árvore3"},
    {"EstrelaDecomposta", "Estrela decomposta"},
    {"EstrelaCantor", "Estrela de Cantor"},
    {"JanelasCantor", "Janelas de Cantor"},
    {"CasteloCantor", "Castelo de Cantor"},
    {"InscriçõesPedra", "Inscrições na pedra"},
    {"Tijolo", "Tijolo"},
    {"CavaloMarinho", "Cavalo marinho"},
    {"FolhasCaídas", "Folhas caídas"},
    {"FolhaHata", "Folha de Hata"},
    {"FetoHata", "Feto de Hata"},
    {"Labirinto", "Labirinto de Cantor"},
    {"TriânguloSpier", "Triângulo de Sierpinsky"},
    {"Floresta2", "Floresta2"},
    {"ÁrvorePrim", "Árvore na Primavera"},
    {"Folha2", "Folha deitada"},
    {"CurvaVonKock", "Curva de Von Kock"},
    {"ÁrvoreNatal", "Árvore de Natal"},
    {"ÁrvoreLevi", "Árvore de Levi"},
    {"Coral", "Coral"},
    {"Command3", "Árvore2"},
    {"EscolhaNome", "Toalha de renda2"},
    {"CristalSimétrico", "Cristal simétrico"},
    {"CristalNeve2", "Cristal de neve2"},
    {"PentágonosCentrados", "Pentágonos centrados"},
    {"PentágonoVonKock", "Pentágono de Von Kock"},
    {"ToalhaRenda", "Toalha de renda"},
    {"FunçãoWeierstrass", "Função de Weierstrass"},
    {"MalhaWeierstrass", "Malha de Weieirstrass"},
    {"Folha4", "Folha4"},
    {"ÁrvoreOut", "Árvore no Outono"},
    {"ÁrvoreLevi2", "Árvore de Levi2"},
    {"Floresta", "Floresta"},
    {"CristalNeve", "Cristal de neve"},
    {"Folha1", "Folha de pé"},
    {"FetoBarnsley", "Feto de Barnsley"},
};

const Exemplo kPagina2[] = {
    {"FlocosLã", "Flocos de lã"},
    {"Cristal", "Cristal"},
    {"TriângulosLumerina", "Triângulos lumerina"},
    {"PapagaioPapel", "Papagaio de papel"},
    {"Binário", "Binário"},
    {"ZigZag", "ZigZag"},
    {"Árvore5", "àrvore"},
    {"Twing", "Twing"},
    {"FernB", "Fern 2"},
    {"MandelLike", "Mandel Like"},
    {"Leaf1", "Leaf 1"},
    {"Leaf2", "Leaf 2"},
    {"MandelCincoPontos", "Mandelbrot"},
    {"StarJulia1", "Estrela de Julia 1"},
    {"StarJulia2", "Estrela de Julia 2"},
    {"QueenLace", "Queen Anne's Lace"},
    {"Fern1", "Folha de pé"},
    {"Command2", "DragãoLevY"},
    {"DragãoHeighway", "Dragão de Heighway"},
    {"Carangueijos", "Procissão dos caranguejos"},
};

// The pixels of a picture, as the renderer writes them.
Tela TelaDe(ControloImagem& imagem)
{
    return {imagem.Linha(0), imagem.LarguraPixeis(), imagem.AlturaPixeis(),
            imagem.Imagem().bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb))};
}

}  // namespace

PaginaIFS::PaginaIFS(const DescricaoPagina& descricao, QWidget* pai) : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    QFont letra = Titulo()->font();
    letra.setPointSize(13);
    Titulo()->setFont(letra);
    Titulo()->setObjectName(QStringLiteral("Label1"));
    Titulo()->setGeometry(kPainelX, 2, kPainelLargura, 28);

    janela_ = new JanelaDesenho(this, area, QPoint(8, 8),
                                {.largura = kLado, .altura = kLado, .limites = false});

    // Picture2 lies exactly over Picture1 and is shown only while a system is drawn.
    imagem2_ = new ControloImagem(area, kLado, kLado);
    imagem2_->setObjectName(QStringLiteral("Picture2"));
    imagem2_->setGeometry(janela_->Imagem()->geometry());
    imagem2_->hide();

    // The two pages of examples, in two columns; the paging button closes each.
    const auto exemplos = [&](const char* nome, std::span<const Exemplo> botoes,
                              const char* paginaNome, const char* paginaTexto) {
        const int linhas = int(botoes.size() + 1) / 2;
        QGroupBox* quadro =
            Quadro(area, "Exemplos", {kPainelX, 32, kPainelLargura, 22 + 21 * (linhas + 1) + 8}, nome);
        QFont pequena = quadro->font();
        pequena.setPointSizeF(pequena.pointSizeF() * 0.85);
        constexpr int kColuna = (kPainelLargura - 24) / 2;
        for (std::size_t i = 0; i < botoes.size(); ++i) {
            const int coluna = int(i) / linhas, linha = int(i) % linhas;
            QPushButton* b = Botao(quadro, botoes[i].nome, botoes[i].legenda,
                                   {8 + coluna * (kColuna + 8), 20 + 21 * linha, kColuna, 21});
            b->setFont(pequena);
            const SistemaIFS* sistema = SistemaIFSPorNome(botoes[i].legenda);
            connect(b, &QPushButton::clicked, this, [this, sistema] {
                // A drawing of another page may be yielding: never start one inside it.
                if (!SessaoDesenho::EmCurso())
                    DesenharSistema(*sistema);
            });
        }
        QPushButton* paginar = Botao(quadro, paginaNome, paginaTexto,
                                     {kPainelLargura - 8 - kColuna, 24 + 21 * linhas, kColuna, 24});
        return std::pair{quadro, paginar};
    };
    QPushButton* seguinte;
    QPushButton* anterior;
    std::tie(exemplos1_, seguinte) = exemplos("Frame1", kPagina1, "Command1", "Página seguinte");
    std::tie(exemplos2_, anterior) = exemplos("Frame3", kPagina2, "Command7", "Página anterior");
    exemplos2_->hide();
    connect(seguinte, &QPushButton::clicked, this, [this] {
        exemplos1_->hide();
        exemplos2_->show();
    });
    connect(anterior, &QPushButton::clicked, this, [this] {
        exemplos2_->hide();
        exemplos1_->show();
    });

    const int baixo = exemplos1_->geometry().bottom() + 4;
    QGroupBox* dimensao = janela_->QuadroDimensao();
    dimensao->setObjectName(QStringLiteral("Frame2"));
    dimensao->setTitle(QStringLiteral("Dimensão de janela"));
    dimensao->setGeometry(kPainelX, baixo, kPainelLargura / 2 - 2, 48);
    auto* legenda = dimensao->findChild<QLabel*>(QStringLiteral("LabelDimensãoJanela"));
    legenda->setText(QStringLiteral("%1 x %1").arg(kLado));
    legenda->setToolTip(QStringLiteral("Dimensão da janela de desenho em pixels."));

    QGroupBox* iteracoes = Quadro(area, "Número de iterações",
                                  {kPainelX + kPainelLargura / 2 + 2, baixo, kPainelLargura / 2 - 2, 48},
                                  "Frame18");
    numIteracoes_ = Campo(iteracoes, "NumIteraçõesIFS", "50000", {10, 18, 146, 24});
    numIteracoes_->setToolTip(QStringLiteral("Número de iteração a serem executadas."));

    QGroupBox* opcoesQuadro = janela_->QuadroOpcoes();
    opcoesQuadro->setObjectName(QStringLiteral("Frame19"));
    opcoesQuadro->setGeometry(kPainelX, baixo + 52, kPainelLargura, 88);
    const int largura = (kPainelLargura - 32) / 3;
    janela_->Guardar()->setGeometry(8, 22, largura, 28);
    janela_->Copiar()->setGeometry(16 + largura, 22, largura, 28);
    janela_->Apagar()->setGeometry(24 + 2 * largura, 22, largura, 28);
    connect(Botao(opcoesQuadro, "CorGráfico", "Cor imagem", {8, 54, largura, 28},
                  "Escolher a cor do desenho."),
            &QPushButton::clicked, this, &PaginaIFS::EscolherCorImagem);
    connect(Botao(opcoesQuadro, "CorFundo", "Cor fundo", {16 + largura, 54, largura, 28},
                  "Escolher a cor do fundo da janela de desenho."),
            &QPushButton::clicked, this, &PaginaIFS::EscolherCorFundo);
}

bool PaginaIFS::LerIteracoes(long long& iteracoes)
{
    // A whole number, as the field holds it ("." whatever the locale; "1e6" is a million).
    bool numerico = false;
    const double n = numIteracoes_->text().trimmed().toDouble(&numerico);
    if (!numerico || !std::isfinite(n) || std::floor(n) != n)
        return Recusar(this, kTitulo, "O número de iterações deve ser um número inteiro.");
    // No other bound: 100 or fewer steps draw nothing. The cap only keeps the conversion
    // defined (no one waits for 10^18 steps).
    iteracoes = n > 1e18 ? static_cast<long long>(1e18) : static_cast<long long>(n);
    return true;
}

void PaginaIFS::DesenharSistema(const SistemaIFS& sistema)
{
    long long iteracoes = 0;
    if (!LerIteracoes(iteracoes))
        return;
    ControloImagem* imagem1 = janela_->Imagem();
    SessaoDesenho sessao(*janela_);

    // The points are watched arriving on Picture2, blank as it is shown (it keeps nothing
    // from one drawing to the next), while Picture1 gathers every system drawn.
    imagem2_->setGeometry(imagem1->geometry());
    imagem2_->Redimensionar(imagem1->LarguraPixeis(), imagem1->AlturaPixeis());
    imagem2_->DefinirCorFundo(imagem1->CorFundo());
    imagem2_->Limpar();
    imagem1->hide();
    imagem2_->show();
    imagem2_->raise();
    imagem2_->repaint();

    const EscalaIFS& e = sistema.moldura.escala;
    for (ControloImagem* imagem : {imagem1, imagem2_})
        imagem->Escala(e.esquerda, e.topo, e.direita, e.fundo);
    // One seed a drawing: the shared generator, reseeded from the clock, gives 48 bits.
    SemearAleatorioDoRelogio();
    const auto bits24 = [] { return static_cast<std::uint64_t>(Aleatorio() * 0x1p24); };
    UniformeIFS uniforme(bits24() << 24 | bits24());

    // The loop never yields: the page takes no input until the last point. Progress shows
    // by a synchronous repaint of Picture2, about 30 times a second: enough to watch a fern
    // grow, and a small cost beside the points'.
    // Both pictures receive every point. Picture2 starts blank, so when the colour differs
    // from the background its drawn pixels are exactly those of that colour: they are drawn
    // there alone and copied onto Picture1 at the end, half the scattered writes of the loop.
    const QRect tudo = imagem2_->Imagem().rect();
    const std::uint32_t cor = corImagem_.rgb() | 0xFF000000u;
    const bool copiarNoFim = cor != (imagem2_->CorFundo() | 0xFF000000u);
    const Tela telas[] = {TelaDe(*imagem2_), TelaDe(*imagem1)};
    QElapsedTimer desdePintura;
    desdePintura.start();
    DesenharIFS(sistema, iteracoes, std::span(telas, copiarNoFim ? 1 : 2), cor, uniforme, [&] {
        if (desdePintura.elapsed() >= kIntervaloProgresso) {
            imagem2_->Sujar(tudo, true);
            desdePintura.restart();
        }
    });
    if (copiarNoFim)
        CopiarCor(telas[0], telas[1], cor);

    imagem1->Sujar(tudo);
    imagem2_->hide();
    imagem1->show();
    // The picture keeps the system's scale.
    janela_->xmin = e.esquerda;
    janela_->xmax = e.direita;
    janela_->ymin = e.fundo;
    janela_->ymax = static_cast<float>(e.topo);
    sessao.Concluir();
}

void PaginaIFS::EscolherCorImagem() { corImagem_ = Sistema().EscolherCor(this, corImagem_); }

void PaginaIFS::EscolherCorFundo()
{
    // The dialog answers its last colour when it is closed without a choice, and that colour
    // is set again: either way both pictures are cleared.
    corFundo_ = Sistema().EscolherCor(this, corFundo_);
    for (ControloImagem* imagem : {janela_->Imagem(), imagem2_}) {
        imagem->DefinirCorFundo(corFundo_.rgb());
        imagem->Limpar();
    }
    janela_->desenhado = false;
}

}  // namespace lumerina
