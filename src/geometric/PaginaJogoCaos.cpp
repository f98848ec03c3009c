#include "geometric/PaginaJogoCaos.h"

#include "frame/ControloImagem.h"
#include "frame/Controlos.h"
#include "frame/EsquemaCores.h"
#include "frame/JanelaDesenho.h"
#include "frame/Plataforma.h"
#include "frame/SessaoDesenho.h"
#include "interp/Aleatorio.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace lumerina {

namespace {

const QString kTitulo = QStringLiteral("Sistemas de função iterada");
// The one message of the game, with its own lower-case title.
const QString kTituloJogo = QStringLiteral("sistemas de função iterada");
constexpr int kPassosAutomatico = 100000;

// A frame of the copy machine: its caption, its Desenhar button, its six level buttons (first
// to sixth) and the message of a level button pressed before the figure exists.
struct QuadroFigura {
    const char* titulo;
    const char* desenhar;
    const char* dicaDesenhar;
    const char* niveis[6];
    const char* semFigura;
};

const QuadroFigura kQuadros[PaginaJogoCaos::kTipos] = {
    {"Figura inicial: letras", "DesenharNome", "Desenhar as letras iniciais",
     {"Command14", "Command13", "Command12", "Command11", "Command10", "Command9"},
     "Deve desenhar primeiro as letras."},
    {"Figura inicial: circunferência", "DesenharCírculo", "Desenhar a circunferência inicial",
     {"Command3", "Command4", "Command5", "Command6", "Command7", "Command1"},
     "Deve desenhar primeiro o círculo."},
    {"Figura inicial: quadrado", "DesenharQuadrado", "Desenhar o quadrado inicial",
     {"Command2", "Command8", "Command15", "Command16", "Command17", "Command18"},
     "Deve desenhar primeiro o quadrado."},
    {"Figura inicial: definida pelo utilizador", "DesenharUtilizador",
     "Prima esta tecla para iniciar esta opção.",
     {"Command19", "Command20", "Command21", "Command22", "Command23", "Command24"},
     "Deve fazer primeiro um desenho."},
};

const char* const kDicasNivel[6] = {
    "Fazer a primeira transformação", "Fazer a segunda transformação",
    "Fazer a terceira transformação", "Fazer a quarta transformação",
    "Fazer a quinta transformação",   "Fazer a sexta transformação",
};

// Fixed colours are numbers of the 16-colour palette.
QRgb CorPaleta(int n) { return Paleta16[n]; }

}  // namespace

PaginaJogoCaos::PaginaJogoCaos(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai)
{
    QWidget* area = Area();
    ColocarTitulo();

    janela_ = new JanelaDesenho(this, area, QPoint(8, 8), {.limites = false, .barras = false});
    ControloImagem* imagem = janela_->Imagem();
    connect(imagem, &ControloImagem::RatoPremido, this, &PaginaJogoCaos::RatoPremido);
    connect(imagem, &ControloImagem::RatoMovido, this, &PaginaJogoCaos::RatoMovido);

    QGroupBox* jogo = Quadro(area, "Jogo do caos", {kPainelX, 32, kPainelLargura, 104});
    janela_->LigarDesenho(Botao(jogo, "IniciarCaos", "Iniciar", {8, 22, 100, 28},
                                "Prima esta tecla para iniciar esta opção."),
                          [this] { Iniciar(); });
    janela_->LigarDesenho(Botao(jogo, "ContinuarCaos", "Continuar", {116, 22, 100, 28},
                                "Para continuar, vá premindo, sucessivamente, esta tacla."),
                          [this] { Continuar(); });
    janela_->LigarDesenho(Botao(jogo, "Automático", "Auto", {224, 22, 100, 28},
                                "Inicia o movimento automático."),
                          [this] { Automatico(); });
    const char* dicaValor = "Aqui é indicado o vértice escolhido aleatoriamente";
    Rotulo(jogo, "Vértice considerado:", {10, 56, 150, 20}, "Label4");
    vertice_ = Rotulo(jogo, "", {165, 56, 60, 20}, "Vértice");
    vertice_->setToolTip(QString::fromUtf8(dicaValor));
    Rotulo(jogo, "Iterações efectuadas:", {10, 78, 150, 20}, "Label10");
    iteracoes_ = Rotulo(jogo, "", {165, 78, 100, 20}, "Iterações");
    iteracoes_->setToolTip(QString::fromUtf8(dicaValor));

    QFont pequena = jogo->font();
    pequena.setPointSizeF(pequena.pointSizeF() * 0.85);
    for (int t = 0; t < kTipos; ++t) {
        const QuadroFigura& q = kQuadros[t];
        const Tipo tipo = static_cast<Tipo>(t);
        QGroupBox* quadro = Quadro(area, q.titulo, {kPainelX, 140 + 80 * t, kPainelLargura, 76});
        janela_->LigarDesenho(Botao(quadro, q.desenhar, "Desenhar", {8, 20, 82, 28}, q.dicaDesenhar),
                              [this, tipo] { DesenharFigura(tipo); });
        for (int l = 0; l < 6; ++l) {
            QString dica = QString::fromUtf8(kDicasNivel[l]);
            if (tipo == Circulo && l == 0)
                dica += QLatin1Char('.');
            QPushButton* nivel = Botao(quadro, q.niveis[l], "", {98 + 38 * l, 20, 34, 28});
            nivel->setText(QString::number(l + 1));
            nivel->setToolTip(dica);
            janela_->LigarDesenho(nivel, [this, tipo, l] { Transformar(tipo, l + 1); });
        }
        QLabel* dica = Rotulo(quadro, "Depois de desenhar, prima sequencialmente estes botões.",
                              {10, 52, kPainelLargura - 20, 18});
        dica->setFont(pequena);
    }

    const char* dicaPontos = "Aqui é indicado o número de pontos utilizados para o desenho.";
    Rotulo(area, "Número de pontos considerados:", {kPainelX + 2, 462, 220, 20}, "Label8")
        ->setToolTip(QString::fromUtf8(dicaPontos));
    pontos_ = Rotulo(area, "", {kPainelX + 226, 462, 100, 20}, "Label9");
    pontos_->setToolTip(QString::fromUtf8(dicaPontos));

    QGroupBox* quadroOpcoes = janela_->QuadroOpcoes();
    quadroOpcoes->setGeometry(kPainelX, 488, kPainelLargura, 92);
    const int largura = (kPainelLargura - 32) / 3;
    janela_->Guardar()->setGeometry(8, 22, largura, 28);
    janela_->Copiar()->setGeometry(16 + largura, 22, largura, 28);
    janela_->Apagar()->setGeometry(24 + 2 * largura, 22, largura, 28);
    connect(Botao(quadroOpcoes, "CorGráfico", "Cor imagem", {8, 56, largura, 28},
                  "Escolher a cor da imagem."),
            &QPushButton::clicked, this, &PaginaJogoCaos::EscolherCorImagem);
    connect(Botao(quadroOpcoes, "CorFundo", "Cor fundo", {16 + largura, 56, largura, 28},
                  "Escolher a cor do fundo da janela de desenho."),
            &QPushButton::clicked, this, &PaginaJogoCaos::EscolherCorFundo);
}

void PaginaJogoCaos::PrepararImagem()
{
    ControloImagem* imagem = janela_->Imagem();
    imagem->ReporCaneta();
    imagem->Limpar();
    imagem->Escala(-1, 1, 1, -1);
}

void PaginaJogoCaos::Iniciar()
{
    aDesenhar_ = false;
    PrepararImagem();
    vertice_->clear();
    ControloImagem* imagem = janela_->Imagem();
    imagem->DefinirEspessura(7);
    const int cores[3] = {9, 10, 11};
    for (int k = 0; k < 3; ++k)
        imagem->Pixel(kVerticesCaos[k].x, kVerticesCaos[k].y, CorPaleta(cores[k]));
    imagem->DefinirEspessura(1);
    imagem->DefinirEstilo(EstiloTraco::Pontilhado);
    const auto lado = [&](int i, int j) {
        imagem->Linha(kVerticesCaos[i].x, kVerticesCaos[i].y, kVerticesCaos[j].x,
                      kVerticesCaos[j].y, CorPaleta(0));
    };
    lado(0, 1);
    lado(0, 2);
    lado(2, 1);
    imagem->DefinirEstilo(EstiloTraco::Continuo);
    iniciado_ = true;
    iteracoes_->setText(QStringLiteral("0"));
}

void PaginaJogoCaos::Continuar()
{
    if (!iniciado_) {
        Recusar(this, kTituloJogo,
                "Deve premir primeiro o botão iniciar. Depois, faça click num local da janela de "
                "desenho.");
        return;
    }
    // The count lives in its label, as the page shows it.
    iteracoes_->setText(QString::number(iteracoes_->text().toLongLong() + 1));
    const int k = SortearVertice();
    vertice_->setText(QString::number(k));
    const Ponto v = kVerticesCaos[k - 1];
    ControloImagem* imagem = janela_->Imagem();
    imagem->Linha(v.x, v.y, ponto_.x, ponto_.y, CorPaleta(9));
    ponto_ = PontoMedio(ponto_, v);
    imagem->DefinirEspessura(5);
    imagem->Pixel(ponto_.x, ponto_.y, CorPaleta(12));
    imagem->DefinirEspessura(1);
}

void PaginaJogoCaos::Automatico()
{
    SessaoDesenho sessao(*janela_);
    Iniciar();
    ControloImagem* imagem = janela_->Imagem();
    for (int i = 1; i <= kPassosAutomatico; ++i) {
        const int k = SortearVertice();
        vertice_->setText(QString::number(k));
        // From whatever point the page holds: the last one clicked or reached, even one
        // clicked while the run goes on.
        ponto_ = PontoMedio(ponto_, kVerticesCaos[k - 1]);
        imagem->DefinirEspessura(2);
        imagem->Pixel(ponto_.x, ponto_.y, CorPaleta(12));
        imagem->DefinirEspessura(1);
        iteracoes_->setText(QString::number(i));
        if (!Sistema().Ceder())
            return;
    }
}

void PaginaJogoCaos::MostrarFigura()
{
    ControloImagem* imagem = janela_->Imagem();
    const QRgb cor = corImagem_.rgb();
    imagem->DefinirEspessura(2);
    for (int i = 0; i < figura_.n; ++i)
        imagem->Pixel(figura_.x[i], figura_.y[i], cor);
    imagem->DefinirEspessura(1);
    pontos_->setText(QString::number(figura_.n));
}

void PaginaJogoCaos::DesenharFigura(Tipo tipo)
{
    PrepararImagem();
    // The figure's arrays hold one figure at a time: drawing one takes them from the others,
    // whose level buttons then ask for their own figure first.
    desenhada_.fill(false);
    desenhada_[tipo] = true;
    aDesenhar_ = false;
    switch (tipo) {
    case Letras: FiguraLetras(figura_); break;
    case Circulo: FiguraCirculo(figura_); break;
    case Quadrado: FiguraQuadrado(figura_); break;
    case Utilizador:
        figura_.n = 0;
        aDesenhar_ = true;
        break;
    case kTipos: break;
    }
    MostrarFigura();
}

void PaginaJogoCaos::Transformar(Tipo tipo, int nivel)
{
    // An empty drawing by hand is no drawing yet.
    if (!desenhada_[tipo] || figura_.n == 0) {
        Recusar(this, kTitulo, kQuadros[tipo].semFigura);
        return;
    }
    aDesenhar_ = false;
    PrepararImagem();
    SemearAleatorioDoRelogio();
    TransformarFigura(figura_, nivel, [] { return Aleatorio(); });
    MostrarFigura();
}

void PaginaJogoCaos::RatoPremido(Qt::MouseButton botao, double x, double y)
{
    if (botao != Qt::LeftButton)
        return;
    if (iniciado_)
        ponto_ = {x, y};
    if (aDesenhar_)
        AcrescentarPonto(x, y);
}

void PaginaJogoCaos::RatoMovido(Qt::MouseButtons botoes, double x, double y)
{
    if ((botoes & Qt::LeftButton) && aDesenhar_)
        AcrescentarPonto(x, y);
}

void PaginaJogoCaos::AcrescentarPonto(double x, double y)
{
    if (!figura_.Acrescentar({x, y})) {
        // Said once: the drawing by hand ends here.
        aDesenhar_ = false;
        Recusar(this, kTitulo, "O número máximo de pontos é 8500");
        return;
    }
    ControloImagem* imagem = janela_->Imagem();
    imagem->DefinirEspessura(2);
    imagem->Pixel(x, y, corImagem_.rgb());
    imagem->DefinirEspessura(1);
    pontos_->setText(QString::number(figura_.n));
}

void PaginaJogoCaos::EscolherCorImagem() { corImagem_ = Sistema().EscolherCor(this, corImagem_); }

void PaginaJogoCaos::EscolherCorFundo()
{
    corFundo_ = Sistema().EscolherCor(this, corFundo_);
    ControloImagem* imagem = janela_->Imagem();
    imagem->DefinirCorFundo(corFundo_.rgb());
    imagem->Limpar();
}

}  // namespace lumerina
