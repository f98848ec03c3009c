// The sequences page: which option shows which example, the panels and their pictures, the
// arrows of the solutions of several sheets, Apagar, the texts, and where each stage is drawn.

#include "app/PaginaInformacao.h"
#include "app/Paginas.h"
#include "dynamics/PaginaSucessoes.h"
#include "frame/ControloImagem.h"
#include "support/PlataformaGravadora.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

namespace lumerina::teste {
namespace {

class Sucessoes : public TesteUi {
protected:
    void SetUp() override
    {
        TesteUi::SetUp();
        pagina = qobject_cast<PaginaSucessoes*>(Pagina(Form::Sucessoes));
        ASSERT_NE(pagina, nullptr);
        pagina->show();
    }
    void Clicar(const char* nome) { Achar<QAbstractButton>(pagina, nome)->click(); }
    // The panels of a kind ("Construção1" or "Solução1") now shown, by their index.
    std::vector<int> Visiveis(const char* painel)
    {
        std::vector<int> indices;
        for (QGroupBox* p : pagina->findChildren<QGroupBox*>(QString::fromUtf8(painel)))
            if (p->isVisible())
                indices.push_back(p->property("Index").toInt());
        return indices;
    }
    QGroupBox* Painel(const char* painel, int indice)
    {
        for (QGroupBox* p : pagina->findChildren<QGroupBox*>(QString::fromUtf8(painel)))
            if (p->property("Index").toInt() == indice)
                return p;
        ADD_FAILURE() << painel << "(" << indice << ") missing";
        return nullptr;
    }
    // The names of the text pictures now shown.
    std::vector<QString> ImagensVisiveis()
    {
        std::vector<QString> nomes;
        for (QLabel* l : pagina->findChildren<QLabel*>())
            if (l->objectName().startsWith("Image") && l->isVisible())
                nomes.push_back(l->objectName());
        return nomes;
    }
    bool Activa(const char* seta) { return Achar<QToolButton>(pagina, seta)->isEnabled(); }

    PaginaSucessoes* pagina = nullptr;
};

// Control, example it shows, and that example's construction picture. The controls are not in
// the examples' order.
struct Opcao {
    const char* controlo;
    int exemplo;
    const char* imagem;
};
const Opcao kOpcoes[] = {
    {"Option1", 1, "ImageA1"}, {"Option2", 2, "ImageA2"}, {"Option3", 3, "ImageA3"},
    {"Option4", 4, "ImageA4"}, {"Option5", 8, "ImageA8"}, {"Option6", 6, "ImageA6"},
    {"Option7", 7, "ImageA7"}, {"Option8", 5, "ImageA5"},
};

TEST_F(Sucessoes, CadaOpcaoMostraASuaConstrucao)
{
    for (const Opcao& o : kOpcoes) {
        Clicar(o.controlo);
        EXPECT_EQ(pagina->ExemploActual(), o.exemplo) << o.controlo;
        EXPECT_EQ(Visiveis("Construção1"), std::vector<int>{o.exemplo}) << o.controlo;
        EXPECT_TRUE(Visiveis("Solução1").empty()) << o.controlo;
        EXPECT_EQ(ImagensVisiveis(), std::vector<QString>{o.imagem}) << o.controlo;
        EXPECT_FALSE(Achar<QLabel>(pagina, o.imagem)->pixmap().isNull()) << o.imagem;
        // The stages drawn are that example's.
        const QImage& desenho = pagina->Imagem()->Imagem();
        EXPECT_TRUE(desenho == DesenharEtapas(o.exemplo, desenho.size())) << o.controlo;
    }
}

// "Ver solução" swaps the construction for the first sheet of the solution; the first
// caption keeps its odd spacing.
TEST_F(Sucessoes, VerSolucaoMostraAPrimeiraFolha)
{
    struct Caso {
        const char* controlo;
        int exemplo;
        const char* legenda;
        const char* primeira;
    };
    const Caso casos[] = {
        {"Option1", 1, "Solução do exemplo1 ", "ImageB1"},
        {"Option2", 2, "Solução do exemplo 2", "ImageB2"},
        {"Option3", 3, "Solução do exemplo 3", "ImageB31"},
        {"Option4", 4, "Solução do exemplo 4", "ImageB4"},
        {"Option8", 5, "Solução do exemplo 5", "ImageB5"},
        {"Option6", 6, "Solução do exemplo 6", "Image7"},
        {"Option7", 7, "Solução do exemplo 7", "ImageB71"},
        {"Option5", 8, "Solução do exemplo 8", "ImageB81"},
    };
    for (const Caso& c : casos) {
        Clicar(c.controlo);
        Clicar("VerSolução");
        EXPECT_TRUE(Visiveis("Construção1").empty()) << c.controlo;
        EXPECT_EQ(Visiveis("Solução1"), std::vector<int>{c.exemplo}) << c.controlo;
        EXPECT_EQ(Painel("Solução1", c.exemplo)->title(), QString::fromUtf8(c.legenda));
        EXPECT_EQ(ImagensVisiveis(), std::vector<QString>{c.primeira}) << c.controlo;
    }
}

// The arrows at every step: the right one goes dark on the last sheet, the left one on the
// first, and a step past either end changes nothing.
TEST_F(Sucessoes, SetasEmCadaPasso)
{
    struct Caso {
        const char* controlo;
        int exemplo;
        const char* esquerda;
        const char* direita;
        std::vector<const char*> folhas;
    };
    const Caso casos[] = {
        {"Option3", 3, "SetaE3", "SetaD3", {"ImageB31", "ImageB32", "ImageB33", "ImageB34"}},
        {"Option7", 7, "SetaE7", "Setad7", {"ImageB71", "ImageB72"}},
        {"Option5", 8, "SetaE8", "SetaD8", {"ImageB81", "ImageB82"}},
    };
    for (const Caso& c : casos) {
        Clicar(c.controlo);
        Clicar("VerSolução");
        const int n = int(c.folhas.size());
        EXPECT_FALSE(Activa(c.esquerda)) << c.controlo;
        EXPECT_TRUE(Activa(c.direita)) << c.controlo;
        for (int k = 1; k < n; ++k) {
            Clicar(c.direita);
            EXPECT_EQ(ImagensVisiveis(), std::vector<QString>{c.folhas[k]}) << c.controlo << k;
            EXPECT_TRUE(Activa(c.esquerda)) << c.controlo << k;
            EXPECT_EQ(Activa(c.direita), k < n - 1) << c.controlo << k;
        }
        pagina->SolucaoSeguinte(c.exemplo);
        EXPECT_EQ(ImagensVisiveis(), std::vector<QString>{c.folhas[n - 1]}) << c.controlo;
        for (int k = n - 2; k >= 0; --k) {
            Clicar(c.esquerda);
            EXPECT_EQ(ImagensVisiveis(), std::vector<QString>{c.folhas[k]}) << c.controlo << k;
            EXPECT_TRUE(Activa(c.direita)) << c.controlo << k;
            EXPECT_EQ(Activa(c.esquerda), k > 0) << c.controlo << k;
        }
        pagina->SolucaoAnterior(c.exemplo);
        EXPECT_EQ(ImagensVisiveis(), std::vector<QString>{c.folhas[0]}) << c.controlo;
    }
}

TEST_F(Sucessoes, OutroExemploEscondeASolucao)
{
    Clicar("Option3");
    Clicar("VerSolução");
    Clicar("SetaD3");
    Clicar("SetaD3");
    Clicar("Option5");
    EXPECT_TRUE(Visiveis("Solução1").empty());
    EXPECT_EQ(Visiveis("Construção1"), std::vector<int>{8});
    EXPECT_EQ(ImagensVisiveis(), std::vector<QString>{"ImageA8"});
    // Back to example 3: its solution starts again at the first sheet.
    Clicar("Option3");
    Clicar("VerSolução");
    EXPECT_EQ(ImagensVisiveis(), std::vector<QString>{"ImageB31"});
    EXPECT_FALSE(Activa("SetaE3"));
    EXPECT_TRUE(Activa("SetaD3"));
}

TEST_F(Sucessoes, ApagarEscondeTudoELimpaAImagem)
{
    ControloImagem* imagem = pagina->Imagem();
    const auto branca = [&] {
        const QImage& img = imagem->Imagem();
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                if (img.pixel(x, y) != qRgb(255, 255, 255))
                    return false;
        return true;
    };
    for (const char* antes : {"", "VerSolução", "SetaD8"}) {
        Clicar("Option5");
        if (*antes)
            Clicar("VerSolução");
        if (std::string(antes) == "SetaD8")
            Clicar("SetaD8");
        EXPECT_FALSE(branca());
        Clicar("Apagar");
        EXPECT_TRUE(Visiveis("Construção1").empty()) << antes;
        EXPECT_TRUE(Visiveis("Solução1").empty()) << antes;
        EXPECT_TRUE(ImagensVisiveis().empty()) << antes;
        for (QLabel* l : pagina->findChildren<QLabel*>()) {
            if (l->objectName().startsWith("Image")) {
                EXPECT_TRUE(l->isHidden()) << qPrintable(l->objectName());
                EXPECT_TRUE(l->pixmap().isNull()) << qPrintable(l->objectName()) << " kept";
            }
        }
        EXPECT_TRUE(branca()) << antes;
    }
}

// The solution shown is the checked example's, even after Apagar has hidden its construction;
// at first that is example 1.
TEST_F(Sucessoes, VerSolucaoDoExemploMarcado)
{
    Clicar("VerSolução");
    EXPECT_EQ(Visiveis("Solução1"), std::vector<int>{1});
    Clicar("Option8");
    Clicar("Apagar");
    Clicar("VerSolução");
    EXPECT_EQ(Visiveis("Solução1"), std::vector<int>{5});
    EXPECT_EQ(ImagensVisiveis(), std::vector<QString>{"ImageB5"});
    // An example chosen without a click checks its option, so its solution is the one shown.
    pagina->EscolherExemplo(7);
    EXPECT_TRUE(Achar<QRadioButton>(pagina, "Option7")->isChecked());
    Clicar("VerSolução");
    EXPECT_TRUE(Visiveis("Construção1").empty());
    EXPECT_EQ(Visiveis("Solução1"), std::vector<int>{7});
}

// Every explanation and solution exists and fits its picture in a readable type: one sheet
// for examples 1, 2, 4, 5 and 6, four for example 3, two for 7 and 8.
TEST(SucessoesTextos, PresentesEInteiros)
{
    const std::size_t folhas[9] = {0, 1, 1, 4, 1, 1, 1, 2, 2};
    for (int k = 1; k <= 8; ++k) {
        const TextosExemplo& textos = Textos(k);
        EXPECT_EQ(textos.solucao.size(), folhas[k]) << k;
        std::vector<const char*> nomes{textos.construcao};
        nomes.insert(nomes.end(), textos.solucao.begin(), textos.solucao.end());
        for (const char* nome : nomes) {
            const QString texto = TextoSucessao(nome);
            EXPECT_GT(texto.size(), 400) << nome;
            EXPECT_TRUE(texto.startsWith("<h3>")) << nome;
            qreal pontos = 0;
            DesenharPaginaInformacao(texto, {PaginaSucessoes::kLarguraTexto,
                                             PaginaSucessoes::kAlturaTexto}, 1.0, &pontos);
            EXPECT_GE(pontos, 10.0) << nome << " is cut or set too small";
        }
    }
    EXPECT_TRUE(TextoSucessao("ImageB6").isEmpty());
}

// Stage k is drawn in its own colour, in its own place and nowhere else: row k of four for
// the segment-like examples, cell k of a 2 x 2 grid for the plane figures.
TEST(SucessoesEtapas, CadaEtapaNoSeuLugar)
{
    const QSize tamanho(PaginaSucessoes::kLadoImagem, PaginaSucessoes::kLadoImagem);
    for (int exemplo = 1; exemplo <= 8; ++exemplo) {
        const QImage img = DesenharEtapas(exemplo, tamanho);
        const bool linhas = exemplo == 1 || exemplo == 2 || exemplo == 3 || exemplo == 6;
        const auto lugar = [&](int x, int y) {
            return linhas ? 4 * y / img.height()
                          : 2 * (2 * y / img.height()) + 2 * x / img.width();
        };
        int dentro[4] = {}, fora[4] = {};
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                for (int etapa = 0; etapa < 4; ++etapa)
                    if (img.pixel(x, y) == CorEtapa(etapa))
                        ++(lugar(x, y) == etapa ? dentro : fora)[etapa];
        for (int etapa = 0; etapa < 4; ++etapa) {
            EXPECT_GT(dentro[etapa], 150) << "example " << exemplo << " stage " << etapa;
            EXPECT_EQ(fora[etapa], 0) << "example " << exemplo << " stage " << etapa;
        }
        for (int a = 0; a < 4; ++a)
            for (int b = a + 1; b < 4; ++b)
                EXPECT_NE(CorEtapa(a), CorEtapa(b));
    }
}

// The plane figures at stage 1, sampled at the centres of the nine cells of their square:
// the rule shows (carpet: a hole in the middle; fractal square: corners and centre;
// Haferman: the cross of blacks).
TEST(SucessoesEtapas, EtapaUmSegueARegra)
{
    struct Caso {
        int exemplo;
        const char* celulas;  // rows from the top, '#' coloured, '.' not
    };
    const Caso casos[] = {
        {7, "####.####"},
        {5, "#.#.#.#.#"},
        {8, ".#.#.#.#."},
    };
    for (const Caso& c : casos) {
        const QImage etapas =
            DesenharEtapas(c.exemplo, {PaginaSucessoes::kLadoImagem, PaginaSucessoes::kLadoImagem});
        // Cell 1 is the top right quarter; find its square by the stage's colour, below the
        // label "(1)".
        int x0 = etapas.width(), y0 = etapas.height(), x1 = 0, y1 = 0;
        for (int y = 30; y < etapas.height() / 2; ++y)
            for (int x = etapas.width() / 2; x < etapas.width(); ++x)
                if (etapas.pixel(x, y) == CorEtapa(1)) {
                    x0 = std::min(x0, x), x1 = std::max(x1, x);
                    y0 = std::min(y0, y), y1 = std::max(y1, y);
                }
        const int lado = x1 - x0 + 1;
        EXPECT_EQ(y1 - y0 + 1, lado) << c.exemplo;
        for (int linha = 0; linha < 3; ++linha)
            for (int coluna = 0; coluna < 3; ++coluna) {
                const int x = x0 + (2 * coluna + 1) * lado / 6;
                const int y = y0 + (2 * linha + 1) * lado / 6;
                EXPECT_EQ(etapas.pixel(x, y) == CorEtapa(1), c.celulas[3 * linha + coluna] == '#')
                    << "example " << c.exemplo << " cell " << linha << "," << coluna;
            }
    }
}

}  // namespace
}  // namespace lumerina::teste
