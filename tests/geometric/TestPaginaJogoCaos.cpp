// The chaos game page: its messages and their titles, the start picture, a step, the
// automatic run (one yield a step, vertices without long runs), the copy machine's level
// buttons and the 8500-point limit of a drawing by hand.

#include "app/Paginas.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "geometric/PaginaJogoCaos.h"
#include "interp/Aleatorio.h"
#include "support/TestePagina.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <array>
#include <vector>

namespace lumerina::teste {
namespace {

std::uint64_t RelogioParado() { return 20261123; }

const char* const kNiveis[4][6] = {
    {"Command14", "Command13", "Command12", "Command11", "Command10", "Command9"},
    {"Command3", "Command4", "Command5", "Command6", "Command7", "Command1"},
    {"Command2", "Command8", "Command15", "Command16", "Command17", "Command18"},
    {"Command19", "Command20", "Command21", "Command22", "Command23", "Command24"},
};
const char* const kSemFigura[4] = {
    "Deve desenhar primeiro as letras.", "Deve desenhar primeiro o círculo.",
    "Deve desenhar primeiro o quadrado.", "Deve fazer primeiro um desenho.",
};

class JogoCaosPagina : public TestePagina<PaginaJogoCaos, Form::JogoCaos> {
protected:
    void SetUp() override
    {
        // A clock that never moves: the game still reseeds before every step.
        DefinirRelogioAleatorio(RelogioParado);
        TestePagina::SetUp();
        if (!HasFatalFailure())
            pagina->show();
    }
    void TearDown() override
    {
        DefinirRelogioAleatorio(nullptr);
        TestePagina::TearDown();
    }
    QString Texto(const char* rotulo) { return Achar<QLabel>(pagina, rotulo)->text(); }
    // The picture maps (−1, 1)–(1, −1) onto 628 x 628 pixels.
    QRgb Cor(double x, double y) const
    {
        return imagem->Imagem().pixel(qRound((x + 1) * 314), qRound((1 - y) * 314)) & 0xFFFFFF;
    }
};

// Each message with its own title (the game's in lower case), its icon, and no drawing.
TEST_F(JogoCaosPagina, MensagensAntesDeHaverJogoOuFigura)
{
    struct Caso { const char* botao; const char* titulo; const char* texto; };
    std::vector<Caso> casos{{"ContinuarCaos", "sistemas de função iterada",
                             "Deve premir primeiro o botão iniciar. Depois, faça click num local da "
                             "janela de desenho."}};
    for (int f = 0; f < 4; ++f)
        for (const char* botao : kNiveis[f])
            casos.push_back({botao, "Sistemas de função iterada", kSemFigura[f]});
    const QImage antes = imagem->Imagem().copy();
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.botao);
        sistema->mensagens.clear();
        Premir(c.botao);
        ASSERT_EQ(sistema->mensagens.size(), 1u);
        EXPECT_EQ(sistema->mensagens[0].titulo, QString::fromUtf8(c.titulo));
        EXPECT_EQ(sistema->mensagens[0].texto, QString::fromUtf8(c.texto));
        EXPECT_EQ(sistema->mensagens[0].icone, IconeMensagem::Informacao);
        EXPECT_EQ(imagem->Imagem(), antes);
    }
    EXPECT_EQ(Texto("Iterações"), "");
    EXPECT_EQ(Texto("Vértice"), "");
}

// The figure's arrays hold one figure: another figure's level buttons, and the hand drawing's
// before any point, still ask for their own figure.
TEST_F(JogoCaosPagina, BotoesDeNivelDeOutraFigura)
{
    Premir("DesenharCírculo");
    EXPECT_EQ(Texto("Label9"), "400");
    Premir("Command14");
    EXPECT_EQ(sistema->UltimoTexto(), "Deve desenhar primeiro as letras.");
    Premir("DesenharUtilizador");
    Premir("Command19");
    EXPECT_EQ(sistema->UltimoTexto(), "Deve fazer primeiro um desenho.");
    Premir("Command3");
    EXPECT_EQ(sistema->UltimoTexto(), "Deve desenhar primeiro o círculo.");
    EXPECT_EQ(sistema->mensagens.size(), 3u);
}

TEST_F(JogoCaosPagina, IniciarDesenhaVerticesELadosPontilhados)
{
    Premir("IniciarCaos");
    EXPECT_EQ(Texto("Iterações"), "0");
    // Dots of width 7 (3 pixels each way) in colours 9, 10 and 11 of the palette, under the
    // dotted sides drawn after them. (sx, sy) points away from the triangle, off the sides.
    struct Vertice { int x, y, sx, sy; QRgb cor; };
    const Vertice vertices[] = {
        {63, 565, -1, 1, 0x0000FF}, {565, 565, 1, 1, 0x00FF00}, {63, 63, -1, -1, 0x00FFFF},
    };
    const QImage& img = imagem->Imagem();
    const auto cor = [&](int x, int y) { return img.pixel(x, y) & 0xFFFFFF; };
    for (const Vertice& v : vertices) {
        EXPECT_EQ(cor(v.x + 2 * v.sx, v.y + 2 * v.sy), v.cor);
        EXPECT_EQ(cor(v.x + 3 * v.sx, v.y), v.cor);
        EXPECT_EQ(cor(v.x + 4 * v.sx, v.y), 0xFFFFFFu);
        EXPECT_EQ(cor(v.x + 3 * v.sx, v.y + 3 * v.sy), v.cor);
        EXPECT_EQ(cor(v.x + 4 * v.sx, v.y + 4 * v.sy), 0xFFFFFFu);
    }
    // The sides are dotted black: along the bottom row every other pixel.
    int pretos = 0, brancos = 0;
    for (int x = 100; x < 500; ++x) {
        const QRgb c = cor(x, 565);
        pretos += c == 0;
        brancos += c == 0xFFFFFF;
    }
    EXPECT_EQ(pretos, 200);
    EXPECT_EQ(brancos, 200);
    // The hypotenuse joins P3 and P2: its middle is the origin.
    EXPECT_TRUE(cor(314, 314) == 0 || cor(315, 315) == 0);
}

TEST_F(JogoCaosPagina, PassoDoJogoAPartirDoPontoClicado)
{
    Premir("IniciarCaos");
    emit imagem->RatoPremido(Qt::LeftButton, 0.3, -0.2);
    EXPECT_EQ(pagina->PontoActual(), (Ponto{0.3, -0.2}));
    Ponto antes = pagina->PontoActual();
    for (int passo = 1; passo <= 3; ++passo) {
        Premir("ContinuarCaos");
        EXPECT_EQ(Texto("Iterações"), QString::number(passo));
        const int k = Texto("Vértice").toInt();
        ASSERT_TRUE(k >= 1 && k <= 3);
        const Ponto v = kVerticesCaos[k - 1];
        const Ponto meio{(antes.x + v.x) / 2, (antes.y + v.y) / 2};
        EXPECT_EQ(pagina->PontoActual(), meio);
        EXPECT_EQ(Cor(meio.x, meio.y), 0xFF0000u);  // the midpoint in colour 12
        antes = meio;
    }
    EXPECT_TRUE(sistema->mensagens.empty());
    // A right click places nothing.
    emit imagem->RatoPremido(Qt::RightButton, 0.9, 0.9);
    EXPECT_EQ(pagina->PontoActual(), antes);
}

// Auto shows every step's vertex and count and yields after each. With a clock that never
// moves, 10 000 steps still choose each vertex about a third of the time with no long run.
TEST_F(JogoCaosPagina, AutomaticoCedeACadaPassoSemLongasRepeticoes)
{
    emit imagem->RatoPremido(Qt::LeftButton, 0.5, 0.5);  // not started: places nothing
    EXPECT_EQ(pagina->PontoActual(), (Ponto{0, 0}));
    std::array<int, 4> contagem{};
    int corrida = 0, maiorCorrida = 0, anterior = 0, ultima = 0;
    bool contagemCerta = true;
    sistema->aoCeder = [&](int vez) {
        ultima = vez;
        contagemCerta = contagemCerta && Texto("Iterações") == QString::number(vez);
        const int k = Texto("Vértice").toInt();
        ++contagem[k >= 1 && k <= 3 ? k : 0];
        corrida = k == anterior ? corrida + 1 : 1;
        maiorCorrida = std::max(maiorCorrida, corrida);
        anterior = k;
        if (vez == 10000)
            Achar<QAction>(pagina, "Abandonar")->trigger();
    };
    QTimer::singleShot(0, [&] { Premir("Automático"); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(ultima, 10000);
    EXPECT_TRUE(contagemCerta);
    EXPECT_EQ(contagem[0], 0);
    for (int k = 1; k <= 3; ++k)
        EXPECT_NEAR(contagem[k], 3333, 250) << "vertex " << k;
    EXPECT_LT(maiorCorrida, 20);
    EXPECT_FALSE(sistema->cursorEspera);
}

// After 6 levels at once, every point of the square lies in the triangle (0, 0), (1, 0),
// (0, 1) grown by the distance left: 0.71/64 plus the rounding, under 0.02.
TEST_F(JogoCaosPagina, SextoNivelNoTrianguloDeSierpinski)
{
    struct Caso { const char* desenhar; const char* sexto; };
    const Caso casos[] = {
        {"DesenharNome", "Command9"}, {"DesenharCírculo", "Command1"}, {"DesenharQuadrado", "Command18"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.desenhar);
        Premir(c.desenhar);
        const int n = pagina->Figura().n;
        Premir(c.sexto);
        ASSERT_EQ(pagina->Figura().n, n);
        EXPECT_EQ(Texto("Label9"), QString::number(n));
        for (int i = 0; i < n; ++i) {
            const Ponto p = pagina->Figura()[i];
            ASSERT_TRUE(p.x > -0.02 && p.y > -0.02 && p.x + p.y < 1.03) << p.x << "," << p.y;
        }
    }
    EXPECT_TRUE(sistema->mensagens.empty());
}

TEST_F(JogoCaosPagina, DesenhoDoUtilizadorRecusaOPonto8501)
{
    emit imagem->RatoPremido(Qt::LeftButton, 0.1, 0.1);  // before Desenhar: not kept
    Premir("DesenharUtilizador");
    EXPECT_EQ(pagina->Figura().n, 0);
    emit imagem->RatoPremido(Qt::LeftButton, 0, 0);
    emit imagem->RatoMovido(Qt::NoButton, 0.2, 0);  // moving without the button adds nothing
    for (int i = 1; i < kMaxPontosUtilizador; ++i)
        emit imagem->RatoMovido(Qt::LeftButton, i * 1e-4, 0.5);
    EXPECT_EQ(pagina->Figura().n, 8500);
    EXPECT_EQ(Texto("Label9"), "8500");
    EXPECT_TRUE(sistema->mensagens.empty());
    emit imagem->RatoMovido(Qt::LeftButton, -0.5, -0.5);
    ASSERT_EQ(sistema->mensagens.size(), 1u);
    EXPECT_EQ(sistema->mensagens[0].titulo, "Sistemas de função iterada");
    EXPECT_EQ(sistema->mensagens[0].texto, "O número máximo de pontos é 8500");
    EXPECT_EQ(pagina->Figura().n, 8500);
    EXPECT_NE(pagina->Figura()[8499].x, -0.5);
    emit imagem->RatoMovido(Qt::LeftButton, -0.6, -0.6);
    EXPECT_EQ(sistema->mensagens.size(), 1u);
    // The drawing's level buttons now work on its 8500 points.
    Premir("Command19");
    EXPECT_EQ(sistema->mensagens.size(), 1u);
    EXPECT_EQ(pagina->Figura().n, 8500);
}

}  // namespace
}  // namespace lumerina::teste
