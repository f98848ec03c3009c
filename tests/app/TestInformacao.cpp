// The information pages: start pages, the arrows, release on "Fechar", and the texts.

#include "app/Aplicacao.h"
#include "app/PaginaInformacao.h"
#include "app/Paginas.h"
#include "support/PlataformaGravadora.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace lumerina::teste {
namespace {

class Informacao : public TesteUi {
protected:
    PaginaInformacao* Abrir(int origem, const char* item, int numero)
    {
        Achar<QAction>(Pagina(origem), item)->trigger();
        return qobject_cast<PaginaInformacao*>(Pagina(numero));
    }
    bool Visivel(QWidget* pagina, const char* nome)
    {
        return !Achar<QWidget>(pagina, nome)->isHidden();
    }
    QString Numero(QWidget* pagina) { return Achar<QLabel>(pagina, "Label2")->text(); }
    void Carregar(QWidget* pagina, const char* seta)
    {
        Achar<QToolButton>(pagina, seta)->click();
    }
    // The one page picture shown.
    int ImagemVisivel(QWidget* pagina)
    {
        int visivel = 0;
        for (QLabel* imagem : pagina->findChildren<QLabel*>("Image1"))
            if (!imagem->isHidden()) {
                EXPECT_EQ(visivel, 0) << "two pages shown";
                visivel = imagem->property("Index").toInt();
            }
        return visivel;
    }
};

TEST_F(Informacao, AbremNaPaginaDoTopico)
{
    // Which page each topic opens at is the navigation's table; here, what that page shows.
    AbrirLumerina();
    PaginaInformacao* comentarios = Abrir(2, "Comentários", 8);
    ASSERT_NE(comentarios, nullptr);
    EXPECT_EQ(comentarios->PaginaActual(), 11);
    EXPECT_EQ(Numero(comentarios), "11");
    EXPECT_EQ(Achar<QLabel>(comentarios, "Label3")->text(), "de  73");
    EXPECT_TRUE(Visivel(comentarios, "SetaE"));
    EXPECT_TRUE(Visivel(comentarios, "SetaD"));
    EXPECT_EQ(ImagemVisivel(comentarios), 11);
}

TEST_F(Informacao, SetasNoPrimeiroENoUltimoPaginas)
{
    PaginaInformacao* sugestoes = Abrir(5, "Sugestões", 13);
    Carregar(sugestoes, "SetaD");
    EXPECT_EQ(Numero(sugestoes), "2");
    EXPECT_TRUE(Visivel(sugestoes, "SetaE"));
    EXPECT_TRUE(Visivel(sugestoes, "SetaD"));
    Carregar(sugestoes, "SetaD");
    EXPECT_EQ(Numero(sugestoes), "3");
    EXPECT_FALSE(Visivel(sugestoes, "SetaD"));
    EXPECT_EQ(ImagemVisivel(sugestoes), 3);
    sugestoes->PaginaSeguinte();  // past the end: nothing moves
    EXPECT_EQ(sugestoes->PaginaActual(), 3);
    Carregar(sugestoes, "SetaE");  // one step back shows the right arrow again
    EXPECT_EQ(Numero(sugestoes), "2");
    EXPECT_TRUE(Visivel(sugestoes, "SetaD"));
    Carregar(sugestoes, "SetaE");
    EXPECT_EQ(Numero(sugestoes), "1");
    EXPECT_FALSE(Visivel(sugestoes, "SetaE"));
    EXPECT_TRUE(Visivel(sugestoes, "SetaD"));
    sugestoes->PaginaAnterior();
    EXPECT_EQ(sugestoes->PaginaActual(), 1);
    EXPECT_EQ(ImagemVisivel(sugestoes), 1);

    // From Dimensão the comments open at 69: four steps reach the last page.
    PaginaInformacao* comentarios = Abrir(15, "Comentários", 8);
    for (int k = 70; k <= 73; ++k) {
        Carregar(comentarios, "SetaD");
        EXPECT_EQ(comentarios->PaginaActual(), k);
    }
    EXPECT_FALSE(Visivel(comentarios, "SetaD"));
    EXPECT_EQ(ImagemVisivel(comentarios), 73);
}

// A page picture is megabytes: reading the whole book keeps only the last few, and a page
// turned back to is drawn again.
TEST_F(Informacao, SoAsUltimasPaginasGuardamAImagem)
{
    PaginaInformacao* comentarios = Abrir(5, "Comentários", 8);
    const auto desenhadas = [&] {
        int n = 0;
        for (QLabel* imagem : comentarios->findChildren<QLabel*>("Image1"))
            n += !imagem->pixmap().isNull();
        return n;
    };
    for (int k = 2; k <= 73; ++k)
        Carregar(comentarios, "SetaD");
    EXPECT_LE(desenhadas(), 3);
    for (int k = 72; k >= 60; --k)
        Carregar(comentarios, "SetaE");
    EXPECT_LE(desenhadas(), 3);
    for (QLabel* imagem : comentarios->findChildren<QLabel*>("Image1"))
        EXPECT_TRUE(imagem->isHidden() || !imagem->pixmap().isNull());
}

TEST_F(Informacao, FecharLibertaEAProximaAberturaRecomeca)
{
    PaginaInformacao* instrucoes = Abrir(2, "Instruções", 6);
    Carregar(instrucoes, "SetaD");
    EXPECT_EQ(instrucoes->PaginaActual(), 7);
    Achar<QPushButton>(instrucoes, "Command1")->click();
    EXPECT_FALSE(instrucoes->isVisible());
    EXPECT_EQ(PaginaExistente(6), nullptr);
    PaginaInformacao* outra = Abrir(2, "Instruções", 6);
    EXPECT_EQ(outra->PaginaActual(), 6);
    // Closed through the window's own button: the same release.
    outra->close();
    EXPECT_EQ(PaginaExistente(6), nullptr);
}

TEST_F(Informacao, TodasAsPaginasExistemEEnchemASuaImagem)
{
    for (const LivroInformacao* livro : {&LivroInstrucoes(), &LivroComentarios(), &LivroSugestoes()}) {
        for (int k = 1; k <= livro->paginas; ++k) {
            const QString texto = TextoPaginaInformacao(*livro, k);
            EXPECT_GT(texto.size(), 600) << livro->pasta << " " << k;
            EXPECT_TRUE(texto.startsWith("<h2>")) << livro->pasta << " " << k;
        }
        EXPECT_TRUE(TextoPaginaInformacao(*livro, livro->paginas + 1).isEmpty()) << livro->pasta;
    }
    // A page is drawn, not left blank: dark text on the light paper.
    const QImage pagina = DesenharPaginaInformacao(TextoPaginaInformacao(LivroComentarios(), 69),
                                                   {PaginaInformacao::kLarguraPagina,
                                                    PaginaInformacao::kAlturaPagina}, 1.0);
    int escuros = 0;
    for (int y = 0; y < pagina.height(); y += 2)
        for (int x = 0; x < pagina.width(); x += 2)
            escuros += qGray(pagina.pixel(x, y)) < 100;
    EXPECT_GT(escuros, 500);
}

}  // namespace
}  // namespace lumerina::teste
