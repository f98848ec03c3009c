// Qt's own dialogs speak European Portuguese, message boxes show their whole title, and the
// limit fields read the typographic signs the help pages use.

#include "app/Aplicacao.h"
#include "frame/JanelaDesenho.h"
#include "frame/Plataforma.h"
#include "support/PlataformaGravadora.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>

#include <cmath>
#include <memory>

namespace lumerina::teste {
namespace {

class Portugues : public TesteUi {
protected:
    void SetUp() override
    {
        TesteUi::SetUp();
        InstalarTraducao();
    }
    // Every text a dialog shows: its title, labels, buttons and their tips, column headers.
    static QStringList Textos(QWidget* dialogo)
    {
        QStringList textos{dialogo->windowTitle()};
        for (QLabel* l : dialogo->findChildren<QLabel*>())
            textos << l->text();
        for (QAbstractButton* b : dialogo->findChildren<QAbstractButton*>())
            textos << b->text() << b->toolTip();
        textos.removeAll(QString());
        for (QString& t : textos)
            t.remove('&');
        return textos;
    }
    static void SemIngles(const QStringList& textos)
    {
        static const QRegularExpression ingles(
            QStringLiteral("\\b(Save|Cancel|Look in|File name|Files of type|Back|Forward|Select|"
                           "Color|colors|Custom|Basic|Parent|Folder|View|Red|Green|Blue|Hue|Yes|No)\\b"));
        for (const QString& t : textos)
            EXPECT_FALSE(ingles.match(t).hasMatch()) << t.toStdString();
    }
};

TEST_F(Portugues, DialogoGuardar)
{
    const auto dialogo = CriarDialogoGuardar(nullptr, QStringLiteral("Mapa de bits (*.bmp)|*.bmp"));
    dialogo->setOption(QFileDialog::DontUseNativeDialog);
    dialogo->show();
    const QStringList textos = Textos(dialogo.get());
    EXPECT_EQ(dialogo->windowTitle(), "Guardar como");
    for (const char* esperado : {"Procurar em:", "Nome do ficheiro:", "Ficheiros do tipo:", "Guardar",
                                 "Cancelar"})
        EXPECT_TRUE(textos.contains(QString::fromUtf8(esperado))) << esperado;
    SemIngles(textos);
    EXPECT_EQ(QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg("a.bmp"),
              QString::fromUtf8("a.bmp já existe.\nQuer substituí-lo?"));
}

TEST_F(Portugues, DialogoDeCores)
{
    QColorDialog dialogo;
    dialogo.setOption(QColorDialog::DontUseNativeDialog);
    dialogo.show();
    const QStringList textos = Textos(&dialogo);
    EXPECT_EQ(dialogo.windowTitle(), "Seleccionar cor");
    for (const char* esperado : {"Cores básicas", "Cores personalizadas", "Vermelho:", "Cancelar"})
        EXPECT_TRUE(textos.contains(QString::fromUtf8(esperado))) << esperado;
    SemIngles(textos);
}

TEST_F(Portugues, MenuDosCamposDeTexto)
{
    QLineEdit campo(QStringLiteral("-2"));
    const std::unique_ptr<QMenu> menu(campo.createStandardContextMenu());
    QStringList textos;
    for (QAction* a : menu->actions())
        if (!a->isSeparator())
            textos << a->text().remove('&').section('\t', 0, 0);
    EXPECT_EQ(textos, QStringList({"Desfazer", "Refazer", "Cortar", "Copiar", "Colar", "Eliminar",
                                   "Seleccionar tudo"}));
}

// "Divisão por zero." is short, its title "Interpretador" longer: the box is made wide
// enough for the title and the caption's buttons.
TEST_F(Portugues, CaixaDeMensagemCabeOTitulo)
{
    for (const char* titulo : {"Interpretador", "São necessários todos os limites", "Lumerina"}) {
        const auto caixa = CriarCaixaMensagem(nullptr, QString::fromUtf8(titulo),
                                              QStringLiteral("Divisão por zero."),
                                              IconeMensagem::Informacao);
        QFont letra = QApplication::font();
        letra.setBold(true);
        EXPECT_GE(caixa->sizeHint().width(),
                  QFontMetrics(letra).horizontalAdvance(QString::fromUtf8(titulo)) + 100)
            << titulo;
    }
}

TEST_F(Portugues, SinaisTipograficosNosLimites)
{
    const double pi = AvaliarLimite(QStringLiteral("pi"));
    struct Caso { const char* texto; double valor; };
    const Caso casos[] = {
        {"−2", -2}, {"2×pi", 2 * pi}, {"3·2÷4", 1.5}, {"−1.5 − 0.25", -1.75},
        {"-2*pi/4", -pi / 2}, {"2^3^2", 64},  // ASCII reads as before (powers from the left)
    };
    for (const Caso& c : casos)
        EXPECT_DOUBLE_EQ(AvaliarLimite(QString::fromUtf8(c.texto)), c.valor) << c.texto;
    // What is not one of the four signs is left for the interpreter to judge.
    EXPECT_EQ(TextoParaInterpretar(QString::fromUtf8("2 – 1")), QString::fromUtf8("2 – 1"));
}

}  // namespace
}  // namespace lumerina::teste
