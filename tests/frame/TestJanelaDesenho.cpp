// The drawing window: limits, zoom rectangle, resizing, Guardar/Copiar/Apagar.

#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "frame/SessaoDesenho.h"
#include "support/TestePagina.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumerina::teste {
namespace {

class Janela : public TesteUi {
protected:
    void SetUp() override
    {
        TesteUi::SetUp();
        pagina = std::make_unique<QWidget>();
        janela = new JanelaDesenho(pagina.get(), pagina.get(), QPoint(8, 8));
        Preencher("-2", "1", "-1.5", "1.5");
        janela->LerLimitesSimples();
    }
    void TearDown() override
    {
        pagina.reset();
        TesteUi::TearDown();
    }

    void Preencher(const char* x0, const char* x1, const char* y0, const char* y1)
    {
        janela->Xminimo()->setText(QString::fromUtf8(x0));
        janela->Xmaximo()->setText(QString::fromUtf8(x1));
        janela->Yminimo()->setText(QString::fromUtf8(y0));
        janela->Ymaximo()->setText(QString::fromUtf8(y1));
    }
    QStringList Limites() const
    {
        return {janela->Xminimo()->text(), janela->Xmaximo()->text(), janela->Yminimo()->text(),
                janela->Ymaximo()->text()};
    }
    // A finished drawing of something, so that there is a picture to zoom into.
    void Desenhado()
    {
        ControloImagem* imagem = janela->Imagem();
        for (int y = 0; y < imagem->AlturaPixeis(); ++y)
            for (int x = 0; x < imagem->LarguraPixeis(); ++x)
                imagem->Linha(y)[x] = qRgb(x & 255, y & 255, 77);
        imagem->Sujar(imagem->Imagem().rect());
        SessaoDesenho(*janela).Concluir();
    }
    void Rato(QEvent::Type tipo, QPoint pixel, Qt::MouseButton botao, Qt::MouseButtons botoes)
    {
        teste::Rato(janela->Imagem(), tipo, pixel, botao, botoes);
    }
    void Arrastar(QPoint de, QPoint para)
    {
        Rato(QEvent::MouseButtonPress, de, Qt::LeftButton, Qt::LeftButton);
        Rato(QEvent::MouseMove, (de + para) / 2, Qt::NoButton, Qt::LeftButton);
        Rato(QEvent::MouseMove, para, Qt::NoButton, Qt::LeftButton);
        Rato(QEvent::MouseButtonRelease, para, Qt::LeftButton, Qt::NoButton);
    }

    std::unique_ptr<QWidget> pagina;
    JanelaDesenho* janela = nullptr;
};

TEST_F(Janela, ValidacaoDosLimitesPelaOrdem)
{
    struct Caso {
        const char *x0, *x1, *y0, *y1;
        const char* titulo;  // nullptr: passes
        const char* texto;
    };
    const char* falta = "São necessários todos os limites da janela de desenho.";
    const char* ordemY = "O valor de Ymáx deve ser maior que o de Ymín.";
    const char* ordemX = "O valor de Xmáx deve ser maior que o de Xmín.";
    const Caso casos[] = {
        {"-2*1", "sqr(1)", "-1.3", "1.3", nullptr, nullptr},
        {" ", "1", "-1", "1", "Lumerina", falta},
        {"-2", "1", "", "1", "Lumerina", falta},
        {"-2", "1", "-1", "", nullptr, nullptr},  // Ymáximo is not tested: the old Ymax stays
        {"-2", "foo(1)", "-1", "1", "Interpretador", "Função não definida: foo()"},
        {"-2", "1", "1.3", "-1.3", "Página", ordemY},
        {"1", "0", "1.3", "-1.3", "Página", ordemY},  // Y is checked before X
        {"1", "0", "-1", "1", "Página", ordemX},
        {"1", "1", "-1", "1", "Página", ordemX},
        {"-2", "1", "-1", "10^300", "Interpretador", "Excesso de capacidade."},  // past a float
    };
    for (const Caso& c : casos) {
        sistema->mensagens.clear();
        janela->ymax = 2.5f;
        Preencher(c.x0, c.x1, c.y0, c.y1);
        const bool valido = janela->ValidarLimites(QStringLiteral("Página"), false);
        SCOPED_TRACE(std::string(c.x0) + " " + c.x1 + " " + c.y0 + " " + c.y1);
        if (!c.titulo) {
            EXPECT_TRUE(valido);
            EXPECT_TRUE(sistema->mensagens.empty());
        } else {
            EXPECT_FALSE(valido);
            ASSERT_EQ(sistema->mensagens.size(), 1u);
            EXPECT_EQ(sistema->mensagens[0].titulo, QString::fromUtf8(c.titulo));
            EXPECT_EQ(sistema->mensagens[0].texto, QString::fromUtf8(c.texto));
            EXPECT_EQ(sistema->mensagens[0].icone, IconeMensagem::Informacao);
        }
    }
    Preencher("-2", "1", "-1", "");
    janela->ymax = 2.5f;
    ASSERT_TRUE(janela->ValidarLimites(QStringLiteral("Página"), false));
    EXPECT_EQ(janela->ymax, 2.5f);
    EXPECT_FALSE(janela->ValidarLimites(QStringLiteral("Página"), true));  // where it is tested
    // Ymax is held in single precision.
    Preencher("-2", "1", "-1", "0.1");
    ASSERT_TRUE(janela->ValidarLimites(QStringLiteral("Página"), false));
    EXPECT_EQ(janela->ymax, 0.1f);
    EXPECT_EQ(janela->xmin, -2.0);
}

TEST_F(Janela, ZoomNosDoisSentidosDaOsMesmosLimites)
{
    Desenhado();
    Arrastar({100, 200}, {300, 400});
    // x = -2 + px * 3/628, y = 1.5 - py * 3/628, rounded to 4 decimals.
    const QStringList esperados = {"-1.5223", "-0.5669", "-0.4108", "0.5446"};
    EXPECT_EQ(Limites(), esperados);
    Preencher("-2", "1", "-1.5", "1.5");
    Arrastar({300, 400}, {100, 200});
    EXPECT_EQ(Limites(), esperados);
    Arrastar({300, 200}, {100, 400});
    EXPECT_EQ(Limites(), esperados);
    EXPECT_EQ(janela->Imagem()->Modo(), ModoDesenho::Copiar);
}

TEST_F(Janela, ACaixaFicaNoEcraMasNaoNaImagem)
{
    Desenhado();
    const QImage antes = janela->Imagem()->Imagem().copy();
    Arrastar({50, 60}, {200, 220});
    EXPECT_EQ(janela->Imagem()->Imagem(), antes);
    EXPECT_NE(janela->Imagem()->ImagemEcra(), antes);
    // Only the last box stays: every changed pixel lies on its outline, and the boxes drawn
    // while the mouse moved were erased.
    const QImage ecra = janela->Imagem()->ImagemEcra();
    int mudados = 0;
    for (int y = 0; y < ecra.height(); ++y)
        for (int x = 0; x < ecra.width(); ++x)
            if (ecra.pixel(x, y) != antes.pixel(x, y)) {
                ++mudados;
                const bool lado = (x == 50 || x == 200) && y >= 60 && y <= 220;
                const bool base = (y == 60 || y == 220) && x >= 50 && x <= 200;
                EXPECT_TRUE(lado || base) << x << "," << y;
            }
    EXPECT_GT(mudados, 200);
    janela->CopiarGrafico();
    EXPECT_EQ(sistema->areaTransferencia, antes);
}

TEST_F(Janela, SemZoomAntesDeDesenharOuDepoisDeApagar)
{
    const QStringList antes = Limites();
    Arrastar({100, 100}, {200, 200});
    EXPECT_EQ(Limites(), antes);
    Desenhado();
    janela->ApagarGrafico();
    const QImage limpa = janela->Imagem()->ImagemEcra().copy();
    Arrastar({100, 100}, {200, 200});
    EXPECT_EQ(Limites(), antes);
    EXPECT_EQ(janela->Imagem()->ImagemEcra(), limpa);
    // The right button never zooms.
    Desenhado();
    Rato(QEvent::MouseButtonPress, {10, 10}, Qt::RightButton, Qt::RightButton);
    Rato(QEvent::MouseButtonRelease, {90, 90}, Qt::RightButton, Qt::NoButton);
    EXPECT_EQ(Limites(), antes);
}

TEST_F(Janela, BarrasMudamOTamanhoEALegenda)
{
    auto* legenda = Achar<QLabel>(pagina.get(), "LabelDimensãoJanela");
    auto* horizontal = Achar<QScrollBar>(pagina.get(), "HScroll1");
    auto* vertical = Achar<QScrollBar>(pagina.get(), "VScroll1");
    EXPECT_EQ(legenda->text(), "628 x 628");
    horizontal->setValue(500);
    EXPECT_EQ(janela->Imagem()->LarguraPixeis(), 500);
    EXPECT_EQ(horizontal->width(), 500);
    EXPECT_EQ(vertical->x(), janela->Imagem()->geometry().right() + 1 + 4);
    // Int(W + 1) x Int(H + 1), W and H the picture's inner size in pixels.
    EXPECT_EQ(legenda->text(), "501 x 629");
    vertical->setValue(300);
    EXPECT_EQ(janela->Imagem()->AlturaPixeis(), 300);
    EXPECT_EQ(vertical->height(), 300);
    EXPECT_EQ(horizontal->y(), janela->Imagem()->geometry().bottom() + 1 + 4);
    EXPECT_EQ(legenda->text(), "501 x 301");
    // The world scale is set again: a corner of the picture is a corner of the rectangle.
    EXPECT_DOUBLE_EQ(janela->Imagem()->EscalaX(0), -2);
    EXPECT_DOUBLE_EQ(janela->Imagem()->EscalaX(500), 1);
    EXPECT_DOUBLE_EQ(janela->Imagem()->EscalaY(300), -1.5);
}

TEST_F(Janela, GuardarEscreveUmBmpComOsPixeisExactos)
{
    Desenhado();
    const QImage antes = janela->Imagem()->Imagem().copy();
    Arrastar({20, 20}, {100, 100});  // on screen only
    QTemporaryDir pasta;
    sistema->nomesEscritos = {pasta.filePath("figura"), pasta.filePath("outra.BMP")};
    janela->GuardarGrafico();
    janela->GuardarGrafico();
    for (const char* nome : {"figura.bmp", "outra.BMP"}) {
        QFile ficheiro(pasta.filePath(nome));
        ASSERT_TRUE(ficheiro.open(QIODevice::ReadOnly)) << nome;
        EXPECT_EQ(ficheiro.read(2), QByteArray("BM"));
        ficheiro.close();
        QImage lida(pasta.filePath(nome), "BMP");
        EXPECT_EQ(lida.convertToFormat(QImage::Format_RGB32), antes) << nome;
    }
    EXPECT_TRUE(sistema->mensagens.empty());
}

TEST_F(Janela, OutraExtensaoNaoEPermitida)
{
    QTemporaryDir pasta;
    sistema->nomesEscritos = {pasta.filePath("figura.png"), QString()};
    janela->GuardarGrafico();
    janela->GuardarGrafico();  // cancelled: nothing at all
    EXPECT_TRUE(QDir(pasta.path()).entryList(QDir::Files).isEmpty());
    ASSERT_EQ(sistema->mensagens.size(), 1u);
    EXPECT_EQ(sistema->mensagens[0].texto, "Essa extensão não é permitida.");
    EXPECT_EQ(sistema->mensagens[0].icone, IconeMensagem::Nenhum);
}

// What the failing device does to the process that saves. Both run in a child process, so
// that the restriction dies with it.
enum class Falha {
    PastaSemEscrita,   // the directory cannot be written (as root, the child drops to nobody)
    // Writes stop short of the bitmap's size (RLIMIT_FSIZE, SIGXFSZ ignored): halfway, or
    // within the last row, where the only sign is a write shorter than asked.
    DiscoCheioAMeio,
    DiscoCheioNoFim,
};

// The bitmap of the window's picture: 24 bits a pixel, rows padded to 4 bytes, 54 of header.
qint64 TamanhoBmp(const QImage& imagem)
{
    return 54 + qint64((imagem.width() * 3 + 3) / 4 * 4) * imagem.height();
}

// Saves into `ficheiro` in a child process under `falha`. The child's answer: 0 when exactly
// the message "Não foi possível guardar o ficheiro." was shown, 1 otherwise, -1 if it died.
int GuardarNumFilho(JanelaDesenho* janela, PlataformaGravadora* sistema, const QString& ficheiro,
                    const QString& pasta, Falha falha)
{
    const qint64 tamanho = TamanhoBmp(janela->Imagem()->Imagem());
    const pid_t filho = fork();
    if (filho == 0) {
        bool pronto = true;
        if (falha == Falha::PastaSemEscrita) {
            pronto = chmod(QFile::encodeName(pasta).constData(), 0555) == 0;
            if (geteuid() == 0)
                pronto = pronto && setgid(65534) == 0 && setuid(65534) == 0;
        } else {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlim_t maximo = falha == Falha::DiscoCheioAMeio ? tamanho / 2 : tamanho - 1000;
            const rlimit limite{maximo, maximo};
            pronto = setrlimit(RLIMIT_FSIZE, &limite) == 0;
        }
        if (!pronto)
            _exit(2);
        sistema->mensagens.clear();
        sistema->nomesEscritos = {ficheiro};
        janela->GuardarGrafico();
        const bool certo = sistema->mensagens.size() == 1 &&
                           sistema->mensagens[0].texto == "Não foi possível guardar o ficheiro.";
        _exit(certo ? 0 : 1);
    }
    int estado = 0;
    if (filho < 0 || waitpid(filho, &estado, 0) != filho || !WIFEXITED(estado))
        return -1;
    return WEXITSTATUS(estado);
}

TEST_F(Janela, GuardarFicaCompletoOuNaoFica)
{
    Desenhado();
    // A first save in this process, so that the child finds the bitmap writer ready.
    QTemporaryDir aquecer;
    sistema->nomesEscritos = {aquecer.filePath("a.bmp")};
    janela->GuardarGrafico();
    ASSERT_EQ(QFileInfo(aquecer.filePath("a.bmp")).size(),
              TamanhoBmp(janela->Imagem()->Imagem()));

    const QByteArray velho = "an older picture, to be kept whole";
    const struct {
        const char* nome;
        Falha falha;
        bool haviaFicheiro;
    } casos[] = {
        {"unwritable directory, no file yet", Falha::PastaSemEscrita, false},
        {"unwritable directory, an old file", Falha::PastaSemEscrita, true},
        {"disk full halfway, no file yet", Falha::DiscoCheioAMeio, false},
        {"disk full halfway, an old file", Falha::DiscoCheioAMeio, true},
        {"disk full in the last row, no file yet", Falha::DiscoCheioNoFim, false},
        {"disk full in the last row, an old file", Falha::DiscoCheioNoFim, true},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.nome);
        QTemporaryDir pasta;
        const QString alvo = pasta.filePath("figura.bmp");
        if (c.haviaFicheiro) {
            QFile f(alvo);
            ASSERT_TRUE(f.open(QIODevice::WriteOnly));
            f.write(velho);
        }
        EXPECT_EQ(GuardarNumFilho(janela, sistema, alvo, pasta.path(), c.falha), 0);
        QFile::setPermissions(pasta.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

        // Nothing but the old file, if there was one, and it is intact.
        const QStringList restantes = QDir(pasta.path()).entryList(QDir::Files | QDir::Hidden);
        EXPECT_EQ(restantes, c.haviaFicheiro ? QStringList{"figura.bmp"} : QStringList{});
        if (c.haviaFicheiro) {
            QFile f(alvo);
            ASSERT_TRUE(f.open(QIODevice::ReadOnly));
            EXPECT_EQ(f.readAll(), velho);
        }
    }
}

// A save over a larger file leaves the new bitmap alone, with nothing of the old one after it.
TEST_F(Janela, GuardarPorCimaDeUmFicheiroMaior)
{
    Desenhado();
    QTemporaryDir pasta;
    const QString alvo = pasta.filePath("figura.bmp");
    const qint64 tamanho = TamanhoBmp(janela->Imagem()->Imagem());
    {
        QFile f(alvo);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(tamanho * 2, 'x'));
    }
    sistema->nomesEscritos = {alvo};
    janela->GuardarGrafico();
    EXPECT_TRUE(sistema->mensagens.empty());
    EXPECT_EQ(QFileInfo(alvo).size(), tamanho);
    EXPECT_EQ(QImage(alvo, "BMP").convertToFormat(QImage::Format_RGB32),
              janela->Imagem()->Imagem());
    EXPECT_EQ(QDir(pasta.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"figura.bmp"});
}

}  // namespace
}  // namespace lumerina::teste
