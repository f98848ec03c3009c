// The transformations page: the determinant and contraction shown for typed maps, the
// builder's coefficients, the copies of each level, the spiral onto its fixed point, and the
// refusals (no map in use, bad limits, the segment limit) that leave the level as it was.

#include "app/Paginas.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "geometric/PaginaTransformacoes.h"
#include "interp/LerValor.h"
#include "support/PlataformaGravadora.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <cmath>

namespace lumerina::teste {
namespace {

class TransformacoesPagina : public TesteUi {
protected:
    void SetUp() override
    {
        TesteUi::SetUp();
        pagina = qobject_cast<PaginaTransformacoes*>(Pagina(Form::Transformacoes));
        ASSERT_NE(pagina, nullptr);
        pagina->show();
    }
    void Premir(const char* nome) { Achar<QPushButton>(pagina, nome)->click(); }
    QLineEdit* Campo(const char* nome) { return Achar<QLineEdit>(pagina, nome); }
    QString Texto(const QByteArray& nome) { return Achar<QLabel>(pagina, nome.constData())->text(); }
    void Usar(int i, bool usar)
    {
        Achar<QCheckBox>(pagina, ("Usar" + QByteArray::number(i)).constData())->setChecked(usar);
    }
    int Nivel() const { return pagina->Imagens() ? pagina->Imagens()->Nivel() : -1; }

    PaginaTransformacoes* pagina = nullptr;
};

// The labels follow the boxes as they are typed, in each of the three frames.
TEST_F(TransformacoesPagina, DeterminanteEContraccaoDosMapasEscritos)
{
    struct Caso { const char* a; const char* b; const char* c; const char* d; const char* det; const char* contrai; };
    const Caso casos[] = {
        // Page 18: areas halve, yet horizontal distances double.
        {"2", "0", "0", "0.25", "0.5", "não contractiva"},
        {"0.6", "0.6", "0", "0.6", "0.36", "contractiva"},   // σ = 0.971
        {"0.9", "0", "0", "-0.9", "-0.81", "contractiva"},   // shrunk mirror
        {"abc", "0", "0", "0.5", "0", "contractiva"},        // leniently read as 0
        {" 1 . 5", "0", "0", "0.5", "0.75", "não contractiva"},
    };
    for (int i = 1; i <= 3; ++i) {
        const QByteArray n = QByteArray::number(i);
        for (const Caso& c : casos) {
            SCOPED_TRACE(std::string(c.a) + " " + c.b + " " + c.c + " " + c.d + " in " + n.constData());
            Campo("TA" + n)->setText(QString::fromUtf8(c.a));
            Campo("TB" + n)->setText(QString::fromUtf8(c.b));
            Campo("TC" + n)->setText(QString::fromUtf8(c.c));
            Campo("TD" + n)->setText(QString::fromUtf8(c.d));
            EXPECT_EQ(Texto("Determinante" + n), QString::fromUtf8(c.det));
            EXPECT_EQ(Texto("Contrai" + n), QString::fromUtf8(c.contrai));
        }
    }
}

TEST_F(TransformacoesPagina, ConstrutorEscreveOsCoeficientes)
{
    const double r3 = std::sqrt(3.0) / 2;
    struct Caso { int tipo; const char* p; const char* q; int destino; double esperado[6]; const char* contrai; };
    const Caso casos[] = {
        {0, "2", "-3", 1, {1, 0, 0, 1, 2, -3}, "não contractiva"},
        {1, "90", "7", 2, {0, -1, 1, 0, 0, 0}, "não contractiva"},
        {1, "30", "", 3, {r3, -0.5, 0.5, r3, 0, 0}, "não contractiva"},
        {1, "-45", "", 1, {std::sqrt(0.5), std::sqrt(0.5), -std::sqrt(0.5), std::sqrt(0.5), 0, 0},
         "não contractiva"},
        {2, "0.5", "0.25", 1, {0.5, 0, 0, 0.25, 0, 0}, "contractiva"},
        {3, "5", "5", 2, {1, 0, 0, -1, 0, 0}, "não contractiva"},
        {4, "0.75", "9", 3, {1, 0.75, 0, 1, 0, 0}, "não contractiva"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.tipo);
        const QByteArray n = QByteArray::number(c.destino);
        Usar(c.destino, false);
        Achar<QComboBox>(pagina, "TipoConstrução")->setCurrentIndex(c.tipo);
        Campo("Parâmetro1")->setText(QString::fromUtf8(c.p));
        Campo("Parâmetro2")->setText(QString::fromUtf8(c.q));
        Premir(("Construir" + n).constData());
        const char* letras[6] = {"TA", "TB", "TC", "TD", "TE", "TF"};
        for (int k = 0; k < 6; ++k)
            EXPECT_NEAR(LerValor(Campo(letras[k] + n)->text().toStdString()), c.esperado[k], 5e-13)
                << letras[k];
        EXPECT_TRUE(Achar<QCheckBox>(pagina, ("Usar" + n).constData())->isChecked());
        EXPECT_EQ(Texto("Contrai" + n), QString::fromUtf8(c.contrai));
    }
}

// Level n of m maps in use holds mⁿ copies; Recomeçar goes back to the figure alone.
TEST_F(TransformacoesPagina, CopiasDeCadaNivel)
{
    Premir("ExemploSierpinski");
    EXPECT_EQ(Nivel(), 1);
    EXPECT_EQ(Texto("Nivel"), "Nível: 1");
    long long copias = 3;
    EXPECT_EQ(pagina->Imagens()->Copias(1), copias);
    for (int n = 2; n <= 6; ++n) {
        Premir("AplicarNovamente");
        copias *= 3;
        EXPECT_EQ(pagina->Imagens()->Copias(n), copias);
        EXPECT_EQ(Texto("Nivel"), QStringLiteral("Nível: %1").arg(n));
    }
    Usar(3, false);
    Premir("AplicarNovamente");
    EXPECT_EQ(pagina->Imagens()->Copias(7), copias * 2);
    Premir("Recomeçar");
    EXPECT_EQ(Nivel(), 0);
    EXPECT_EQ(Texto("Nivel"), "Nível: 0");
    Premir("AplicarNovamente");
    EXPECT_EQ(pagina->Imagens()->Copias(1), 2);
    EXPECT_TRUE(sistema->mensagens.empty());
}

// Page 18's map: the F shrinks in a spiral onto (0.8, 0.4), half as far at every level.
TEST_F(TransformacoesPagina, EspiralConvergeParaOPontoFixo)
{
    Premir("ExemploEspiral");
    EXPECT_FALSE(Achar<QCheckBox>(pagina, "Usar2")->isChecked());
    EXPECT_FALSE(Achar<QCheckBox>(pagina, "Usar3")->isChecked());
    EXPECT_EQ(Texto("Determinante1"), "0.25");
    for (int n = 2; n <= 20; ++n)
        Premir("AplicarNovamente");
    ASSERT_EQ(Nivel(), 20);
    EXPECT_EQ(pagina->Imagens()->Copias(20), 1);
    for (const Ponto& p : pagina->Imagens()->Pontos(20))
        EXPECT_LT(std::hypot(p.x - 0.8, p.y - 0.4), std::ldexp(1.0, -20) * 1.0001);
    // Drawn in red at the fixed point, in the default window (−0.5…1.5)².
    const QImage& img = pagina->Janela()->Imagem()->Imagem();
    EXPECT_EQ(img.pixel(qRound(1.3 * 314), qRound(1.1 * 314)) & 0xFFFFFF, 0xFF0000u);
}

// What is refused leaves the level and the picture as they were.
TEST_F(TransformacoesPagina, RecusasDeixamONivel)
{
    Achar<QRadioButton>(pagina, "FiguraQuadrado")->setChecked(true);
    Premir("ExemploSierpinski");
    for (int n = 2; n <= 11; ++n)
        Premir("AplicarNovamente");
    ASSERT_EQ(Nivel(), 11);
    EXPECT_EQ(pagina->Imagens()->Segmentos(11), 708588);
    const QImage antes = pagina->Janela()->Imagem()->Imagem().copy();
    ASSERT_TRUE(sistema->mensagens.empty());

    // 4·3¹² = 2 125 764 segments.
    Premir("AplicarNovamente");
    ASSERT_EQ(sistema->mensagens.size(), 1u);
    EXPECT_EQ(sistema->mensagens[0].titulo, "Transformações");
    EXPECT_EQ(sistema->mensagens[0].texto,
              "O nível 12 teria 2125764 segmentos; o máximo é 2000000.");
    EXPECT_EQ(Nivel(), 11);
    EXPECT_EQ(Texto("Nivel"), "Nível: 11");
    EXPECT_EQ(pagina->Janela()->Imagem()->Imagem(), antes);

    for (int i = 1; i <= 3; ++i)
        Usar(i, false);
    for (const char* botao : {"AplicarNovamente", "DesenharFigura"}) {
        sistema->mensagens.clear();
        Premir(botao);
        ASSERT_EQ(sistema->mensagens.size(), 1u) << botao;
        EXPECT_EQ(sistema->mensagens[0].texto, "Deve usar pelo menos uma transformação.");
        EXPECT_EQ(Nivel(), 11);
    }

    // Limits are checked before the level moves on.
    Usar(1, true);
    Campo("Xmínimo")->setText("2");
    sistema->mensagens.clear();
    Premir("AplicarNovamente");
    ASSERT_EQ(sistema->mensagens.size(), 1u);
    EXPECT_EQ(sistema->mensagens[0].texto, "O valor de Xmáx deve ser maior que o de Xmín.");
    EXPECT_EQ(Nivel(), 11);
}

}  // namespace
}  // namespace lumerina::teste
