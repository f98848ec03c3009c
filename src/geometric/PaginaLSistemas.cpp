#include "geometric/PaginaLSistemas.h"

#include "frame/ControloImagem.h"
#include "frame/Controlos.h"
#include "frame/EsquemaCores.h"
#include "frame/JanelaDesenho.h"
#include "frame/Plataforma.h"
#include "frame/SessaoDesenho.h"
#include "geometric/CaixaTextoLongo.h"
#include "geometric/Tracado.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <cmath>
#include <limits>

namespace lumerina {

namespace {

const QString kTitulo = QStringLiteral("L-Sistemas");
constexpr std::size_t kBloco = 4096;  // segments drawn together: 128 KiB, kept in cache

// A whole number with its thousands set apart by spaces, as Portuguese writes them.
QString Milhares(std::uint64_t n)
{
    QString s = QString::number(n);
    for (qsizetype i = s.size() - 3; i > 0; i -= 3)
        s.insert(i, QLatin1Char(' '));
    return s;
}

std::optional<double> ValorCampo(const QLineEdit* campo)
{
    return LerNumeroEstrito(campo->text().toStdU16String());
}

// "Integer part of Repete" passes; a field that is not a number makes none.
std::int64_t Passes(const QLineEdit* campo)
{
    const std::optional<double> v = ValorCampo(campo);
    if (!v || *v < 1)
        return 0;
    // Beyond 2⁶² passes every string has either stopped changing or long passed the limit.
    return *v >= 0x1p62 ? std::int64_t(1) << 62 : std::int64_t(std::floor(*v));
}

}  // namespace

// Button names as the program has them: they do not follow the captions.
const PaginaLSistemas::Exemplo PaginaLSistemas::kExemplos[16] = {
    {"Option1", "1", "F", "F[+F]F[-F]F", "-25.7", "25.7", "4", "1", "-5", "316", "631"},
    {"Option2", "2", "F", "FF+[+F-F-F]-[-F+F+F]", "25", "-25", "4", "1", "-10", "316", "631"},
    {"Option3", "3", "F", "F[+F][-F]", "45", "-30", "6", "0.718", "-100", "316", "631"},
    {"Option4", "4", "F", "F[+FF][-F]", "30", "-45", "6", "0.718", "-100", "316", "631"},
    {"Option11", "5", "++--F", "F[-F]F[+F][F]", "30", "-30", "5", "1", "-9", "330", "600"},
    {"Option6", "6", "F-F-F-F", "FF-F-F-F-FF", "-90", "90", "4", "1", "-5", "116", "500"},
    {"Option7", "7", "F-F-F-F", "FF-F+F-F-FF", "-90", "90", "4", "1", "-5", "250", "380"},
    {"Option8", "8", "F-F-F-F", "FF-F-F-F-F-F+F", "-90", "90", "3", "1", "-10", "110", "280"},
    {"Option9", "9", "F-F-F-F", "F-FF--F-F", "-90", "90", "4", "1", "-8", "250", "180"},
    {"Option10", "10", "F++F++F++", "F+F--F+F", "-60", "60", "4", "1", "-6", "480", "560"},
    {"Option5", "11", "--F", "F+F--F+F", "-45", "45", "4", "1", "-3", "100", "350"},
    {"Option12", "12", "F+F+F+F", "F+F-F-FF+F+F-F", "90", "-90", "4", "1", "-1", "180", "440"},
    {"Option13", "13", "F++F++F", "F-F++F-F", "60", "-60", "4", "1", "-2", "250", "400"},
    {"Option16", "14", "F", "F+FF+FFF", "-60", "60", "5", "1", "-10", "316", "300"},
    {"Option18", "15", "F+F+F+F", "F+FF++F+F", "90", "90", "4", "1", "-10", "250", "150"},
    {"Option20", "16", "F+F+F+F", "FF+F++F+F", "90", "90", "3", "1", "-10", "200", "450"},
};

QString TextoLimiteLSistema(std::uint64_t comprimento)
{
    const QString quantos = comprimento == std::numeric_limits<std::uint64_t>::max()
                                ? QStringLiteral("mais de ") + Milhares(comprimento)
                                : Milhares(comprimento);
    return QStringLiteral("Após as substituições, a cadeia teria %1 caracteres, mais do que os "
                          "%2 que o programa consegue desenhar. Diminua o número de repetições.")
        .arg(quantos, Milhares(kComprimentoMaximoLSistema));
}

PaginaLSistemas::PaginaLSistemas(const DescricaoPagina& descricao, QWidget* pai)
    : PaginaBase(descricao, pai), segmentos_(kBloco)
{
    QWidget* area = Area();
    ColocarTitulo();
    Titulo()->setObjectName(QStringLiteral("Label3"));

    janela_ = new JanelaDesenho(this, area, QPoint(8, 8), {.limites = false, .barras = false});
    // On this page the clear button is plain "Apagar".
    janela_->Apagar()->setObjectName(QStringLiteral("Apagar"));

    QGroupBox* definicoes = Quadro(area, "Definições", {kPainelX, 32, kPainelLargura, 104});
    Rotulo(definicoes, "Axioma:", {10, 22, 92, 22});
    axioma_ = Campo(definicoes, "Axioma", "", {104, 20, 222, 24});
    Rotulo(definicoes, "Substituição:", {10, 48, 92, 22});
    substituicao_ = Campo(definicoes, "Substituição", "", {104, 46, 222, 24});
    Rotulo(definicoes, "Repete:", {10, 74, 92, 22});
    repete_ = Campo(definicoes, "Repete", "", {104, 72, 60, 24});

    QGroupBox* partida = Quadro(area, "Ponto de partida", {kPainelX, 140, 130, 78});
    Rotulo(partida, "x:", {10, 22, 24, 22});
    xbox_ = Campo(partida, "xbox", "", {36, 20, 80, 24});
    Rotulo(partida, "y:", {10, 48, 24, 22});
    ybox_ = Campo(partida, "ybox", "", {36, 46, 80, 24});

    QGroupBox* angulos = Quadro(area, "Ângulos", {kPainelX + 136, 140, 200, 78});
    Rotulo(angulos, "Ângulo +:", {10, 22, 90, 22});
    angPos_ = Campo(angulos, "AngPos", "", {104, 20, 84, 24});
    Rotulo(angulos, "Ângulo −:", {10, 48, 90, 22});
    angNeg_ = Campo(angulos, "AngNeg", "", {104, 46, 84, 24});

    QGroupBox* f = Quadro(area, "F", {kPainelX, 222, kPainelLargura, 52});
    Rotulo(f, "Passo inicial:", {10, 22, 92, 22});
    inicio_ = Campo(f, "Início", "", {104, 20, 64, 24});
    Rotulo(f, "Redução:", {186, 22, 64, 22});
    reducao_ = Campo(f, "Redução", "", {252, 20, 74, 24});

    QGroupBox* exemplos = Quadro(area, "Exemplos", {kPainelX, 278, kPainelLargura, 72});
    for (int k = 0; k < 16; ++k) {
        const Exemplo& e = kExemplos[k];
        QRadioButton* b =
            Opcao(exemplos, e.botao, e.legenda, {8 + (k % 8) * 40, 20 + (k / 8) * 24, 40, 22});
        connect(b, &QRadioButton::clicked, this, [this, &e] { PreencherExemplo(e); });
        if (k == 0)
            b->setChecked(true);
    }

    resultado_ = new CaixaTextoLongo(area);
    resultado_->setObjectName(QStringLiteral("Resultado"));
    resultado_->setGeometry(kPainelX, 356, kPainelLargura, 146);

    QGroupBox* informacao = Quadro(area, "Informação", {kPainelX, 506, kPainelLargura, 62});
    QLabel* rotulo = Rotulo(informacao, "Número de caracteres após as substituições:",
                            {10, 18, 220, 40}, "Label12");
    rotulo->setWordWrap(true);
    comprimento_ = Rotulo(informacao, "", {236, 26, 92, 22}, "Label8");

    QGroupBox* botoes = janela_->QuadroOpcoes();
    botoes->setGeometry(kPainelX, 572, kPainelLargura, 62);
    janela_->DisporBotoes(8, 76, 80);
    desenhar_ = Botao(botoes, "Desenhar", "Desenhar", {248, 24, 80, 28});
    janela_->LigarDesenho(desenhar_, [this] { Desenhar(); });

    // The page opens on example "1", so that Desenhar draws a plant at once.
    PreencherExemplo(kExemplos[0]);
}

void PaginaLSistemas::PreencherExemplo(const Exemplo& e)
{
    axioma_->setText(QString::fromUtf8(e.axioma));
    substituicao_->setText(QString::fromUtf8(e.regra));
    angPos_->setText(QString::fromUtf8(e.angPos));
    angNeg_->setText(QString::fromUtf8(e.angNeg));
    repete_->setText(QString::fromUtf8(e.repete));
    reducao_->setText(QString::fromUtf8(e.reducao));
    inicio_->setText(QString::fromUtf8(e.inicio));
    xbox_->setText(QString::fromUtf8(e.x));
    ybox_->setText(QString::fromUtf8(e.y));
}

void PaginaLSistemas::Desenhar()
{
    const std::u16string axiomaTexto = axioma_->text().toStdU16String();
    const std::u16string regraTexto = substituicao_->text().toStdU16String();
    const std::u16string_view axioma = AparaEspacos(axiomaTexto), regra = AparaEspacos(regraTexto);
    const std::int64_t passes = Passes(repete_);

    // The length is known before anything is built: a string that would not fit is refused
    // here, with the picture and the last result left as they were.
    const std::uint64_t comprimento = ComprimentoReescrito(axioma, regra, passes);
    if (comprimento > kComprimentoMaximoLSistema) {
        Recusar(this, kTitulo, TextoLimiteLSistema(comprimento));
        return;
    }

    SessaoDesenho sessao(*janela_);
    janela_->PrepararDesenho();  // cleared, in pixels; never a world scale, so no zoom box

    std::u16string texto = Reescrever(axioma, regra, passes);
    const std::u16string_view aparado = AparaEspacos(texto);
    if (aparado.size() != texto.size())
        texto = std::u16string(aparado);
    comprimento_->setText(QString::number(texto.size()));
    resultado_->DefinirTexto(std::move(texto));

    // The fields are read once: nothing can change them while a drawing that never yields runs.
    tartaruga_.Partida({ValorCampo(xbox_), ValorCampo(ybox_), ValorCampo(inicio_),
                        ValorCampo(angPos_), ValorCampo(angNeg_), ValorCampo(reducao_)});
    Percorrer(resultado_->Texto());
    janela_->Imagem()->MostrarPendente();
}

void PaginaLSistemas::Percorrer(std::u16string_view programa)
{
    ControloImagem* imagem = janela_->Imagem();
    const Cor azul = Paleta16[9];
    std::size_t posicao = 0;
    while (posicao < programa.size()) {
        const std::size_t n = tartaruga_.Percorrer(programa, posicao, segmentos_.data(), kBloco);
        const ImagemCrua crua{imagem->Linha(0), imagem->Imagem().bytesPerLine() / 4,
                              imagem->LarguraPixeis(), imagem->AlturaPixeis()};
        const Rectangulo r = TracarSegmentos(crua, segmentos_.data(), n, azul);
        // A synchronous repaint, at most ~60 a second: the picture grows on screen although
        // the drawing never yields.
        if (!r.Vazio())
            imagem->Sujar(QRect(QPoint(r.x1, r.y1), QPoint(r.x2, r.y2)), true);
    }
}

}  // namespace lumerina
