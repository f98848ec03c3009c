// The information pages keep one vocabulary, one spelling and one way of setting numbers
// (resources/info/ESTILO.md). Every page the program shows is read here and checked, so that
// a later edit cannot bring "tapete", "2.666" in prose or a breakable "|c| ≤ 2" back.

#include "app/PaginaInformacao.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace lumerina::teste {
namespace {

// The running prose of a page: tags dropped, and what is not prose (fields' values in
// <code>, L-system programs in <pre>, program texts in «») replaced by a marker, since
// those are quoted exactly as the program has them ("Rossler", "2.666", "Xmin =").
QString Prosa(const QString& html)
{
    QString texto = html;
    static const QRegularExpression citado(
        QStringLiteral("<code>.*?</code>|<pre>.*?</pre>|«[^«»]*»"),
        QRegularExpression::DotMatchesEverythingOption);
    texto.replace(citado, QStringLiteral(" ⟦⟧ "));
    // Cells, items and paragraphs are apart; inline marks (<sub>, <b>) join their neighbours.
    static const QRegularExpression bloco(
        QStringLiteral("</?(td|th|tr|p|li|br|h\\d|ul|ol|table)\\b[^>]*>"));
    texto.replace(bloco, QStringLiteral(" "));
    static const QRegularExpression marca(QStringLiteral("<[^>]+>"));
    texto.replace(marca, QString());
    return texto;
}

struct Regra {
    const char* padrao;  // searched in the prose, case-insensitive
    const char* porque;
};

// Each pattern is a form the style note rules out.
const Regra kRegras[] = {
    {"\\btapete", "carpete, não tapete"},
    {"homem de gengibre", "boneco de gengibre"},
    {"deslizamento", "cisalhamento"},
    {"\\bRossler\\b", "Rössler no texto; Rossler só citado do programa, em «»"},
    {"predefini|pré definid", "pré-definido"},
    {"\\beixo (dos )?[xyz]\\b", "eixo dos xx, dos yy, dos zz"},
    {"semieixo", "semi-eixo"},
    {"super-atract", "superatractivo"},
    {"bem sucedid", "bem-sucedido"},
    {"anti-floco", "antifloco"},
    {"\\b(o|no|do|ao|um|pelo|dum) cardi[oó]ide", "a cardióide, no feminino"},
    {"cardioide", "cardióide, com acento"},
    {"sistemas? de função iterada", "sistemas de funções iteradas; o singular só na citação do programa"},
    {"'", "um só sinal de derivada, ′ e ″"},
    {"[\u0304\u0305]", "conjugado com <span class=\"conj\">, não com a barra combinatória"},
    {"\\d\\.\\d", "vírgula decimal no texto; o ponto só no que se escreve num campo, em <code>"},
    {"(?<![\\d,])\\d{5,}", "milhares agrupados: 100&nbsp;000"},
    {"\\d \\d{3}(?!\\d)", "milhares com espaço que não quebra"},
    {"\\d ?%", "percentagem com espaço que não quebra: 55&nbsp;%"},
    {" (=|≤|≥|≈|≠|&lt;|&gt;|→|⇔)|(=|≤|≥|≈|≠|&lt;|&gt;|→|⇔) ", "relação sem quebra: &nbsp; à volta do sinal"},
    {"\\b(log|ln|sen|cos|tg) (?=[^ &])", "&nbsp; depois de log, ln, sen, cos, tg"},
    {"\\d x \\d", "× para multiplicar; x só citado do programa"},
};

// The rules broken by one page, one line each.
QStringList Faltas(const QString& html)
{
    QStringList faltas;
    const QString prosa = Prosa(html);
    for (const Regra& r : kRegras) {
        const QRegularExpression padrao(QString::fromUtf8(r.padrao),
                                        QRegularExpression::CaseInsensitiveOption |
                                            QRegularExpression::UseUnicodePropertiesOption);
        auto achados = padrao.globalMatch(prosa);
        while (achados.hasNext()) {
            const auto achado = achados.next();
            faltas << QStringLiteral("%1 (…%2…)")
                          .arg(QString::fromUtf8(r.porque),
                               prosa.mid(std::max<qsizetype>(0, achado.capturedStart() - 20),
                                         achado.capturedLength() + 40)
                                   .simplified());
        }
    }
    // A value typed in a field ("2.666") and the same value in prose (2,666) never share a sentence.
    static const QRegularExpression valor(QStringLiteral("<code>-?(\\d+)\\.(\\d+)</code>"));
    static const QRegularExpression fimDeFrase(QStringLiteral("[.!?]\\s|</?(p|td|li)>"));
    for (auto valores = valor.globalMatch(html); valores.hasNext();) {
        const auto v = valores.next();
        const qsizetype inicio = html.lastIndexOf(fimDeFrase, v.capturedStart());
        const auto fim = fimDeFrase.match(html, v.capturedEnd());
        const QString frase = Prosa(html.mid(std::max<qsizetype>(inicio, 0),
                                             (fim.hasMatch() ? fim.capturedStart() : html.size()) -
                                                 std::max<qsizetype>(inicio, 0)));
        const QRegularExpression virgula(
            QStringLiteral("(?<![\\d,])%1,%2(?!\\d)").arg(v.captured(1), v.captured(2)));
        if (virgula.match(frase).hasMatch())
            faltas << QStringLiteral("%1 e %2,%3 na mesma frase").arg(v.captured(0), v.captured(1), v.captured(2));
    }
    // The page's drawing pads the cells of a bare <table> only.
    if (html.contains(QStringLiteral("<table ")))
        faltas << QStringLiteral("<table> sem atributos");
    if (html.contains(QStringLiteral("<th></th>")))
        faltas << QStringLiteral("célula de cabeçalho vazia");
    return faltas;
}

// The instruction pages' sections come in one order: steps, what to observe, messages, notes.
QStringList FaltasDeEstrutura(const QString& html)
{
    QStringList faltas;
    const char* const ordem[] = {"<h3>O que observar</h3>", "<h3>Mensagens</h3>", "<h3>Notas</h3>"};
    qsizetype anterior = -1;
    for (const char* seccao : ordem) {
        const qsizetype onde = html.indexOf(QString::fromUtf8(seccao));
        if (onde < 0)
            continue;
        if (onde < anterior)
            faltas << QStringLiteral("%1 fora de ordem").arg(QString::fromUtf8(seccao));
        anterior = onde;
    }
    const qsizetype mensagens = html.indexOf(QStringLiteral("<h3>Mensagens</h3>"));
    static const QRegularExpression cabecalho(
        QStringLiteral("^<h3>Mensagens</h3>\\s*<table>\\s*<tr><th[^>]*>Mensagem</th><th>Quando aparece</th></tr>"));
    if (mensagens >= 0 && !cabecalho.match(html.mid(mensagens)).hasMatch())
        faltas << QStringLiteral("mensagens sem a tabela de cabeçalho Mensagem / Quando aparece");
    return faltas;
}

// The checker itself: it must flag the forms it is meant to, and leave alone what is quoted.
TEST(EstiloDasPaginas, AsRegrasDistinguemProsaDeCitacao)
{
    struct Caso { const char* html; bool falta; };
    const Caso casos[] = {
        {"<p>o tapete de Sierpinski</p>", true},
        {"<p>a carpete de Sierpinski</p>", false},
        {"<p>fluxos: Lorenz, Rossler, Duffing</p>", true},
        {"<p>ao escolher «Rossler», o quadro</p>", false},
        {"<p>os valores C&nbsp;=&nbsp;2.666</p>", true},
        {"<p>escreva <code>2.666</code> no campo</p>", false},
        {"<p>com |c| ≤ 2 a órbita</p>", true},
        {"<p>com |c|&nbsp;≤&nbsp;2 a órbita</p>", false},
        {"<p>com 100000 pontos</p>", true},
        {"<p>com 100&nbsp;000 pontos</p>", false},
        {"<p>cerca de 0,506127</p>", false},
        {"<p>a 55% das vezes</p>", true},
        {"<p>f'(x)</p>", true},
        {"<p>f′(x)</p>", false},
        {"<p>no cardióide principal</p>", true},
        {"<p>na cardióide principal</p>", false},
        {"<p>um sistema de função iterada</p>", true},
        {"<p>título «SISTEMAS DE FUNÇÃO ITERADA»</p>", false},
        {"<p>a órbita de c\u0304</p>", true},
        {"<p>log 3&nbsp;/&nbsp;log&nbsp;2</p>", true},
        {"<p>uma janela de 627 x 627</p>", true},
        {"<p>«Resolução: 1024 x 768»</p>", false},
        {"<table border=\"1\"><tr><td>1</td></tr></table>", true},
        {"<table><tr><th></th><th>a</th></tr></table>", true},
        {"<pre>Axioma: F++F++F\nÂngulos: 60 e -60</pre>", false},
        {"<p>A&nbsp;=&nbsp;1,4: escreva <code>1.4</code> no campo.</p>", true},
        {"<p>A&nbsp;=&nbsp;1,4. Escreva <code>1.4</code> no campo.</p>", false},
        {"<p>Escreva <code>0.25</code>; com 0,255 é outro caso.</p>", false},
    };
    for (const Caso& c : casos)
        EXPECT_EQ(!Faltas(QString::fromUtf8(c.html)).isEmpty(), c.falta) << c.html;

    EXPECT_EQ(FaltasDeEstrutura(QStringLiteral("<h3>Notas</h3><h3>Mensagens</h3>\n<table>\n<tr><th>Mensagem</th>"
                                               "<th>Quando aparece</th></tr></table>"))
                  .size(), 1);
    EXPECT_TRUE(FaltasDeEstrutura(QStringLiteral("<h3>O que observar</h3><h3>Mensagens</h3>\n<table>\n"
                                                 "<tr><th width=\"64%\">Mensagem</th><th>Quando aparece</th></tr>"
                                                 "</table><h3>Notas</h3>"))
                    .isEmpty());
    EXPECT_FALSE(FaltasDeEstrutura(QStringLiteral("<h3>Mensagens</h3><table><tr><td>x</td></tr></table>"))
                     .isEmpty());
}

TEST(EstiloDasPaginas, TodasAsPaginasSeguemANorma)
{
    for (const LivroInformacao* livro : {&LivroInstrucoes(), &LivroComentarios(), &LivroSugestoes()}) {
        for (int k = 1; k <= livro->paginas; ++k) {
            const QString html = TextoPaginaInformacao(*livro, k);
            ASSERT_FALSE(html.isEmpty()) << livro->pasta << " " << k;
            QStringList faltas = Faltas(html);
            if (livro == &LivroInstrucoes())
                faltas << FaltasDeEstrutura(html);
            EXPECT_TRUE(faltas.isEmpty())
                << livro->pasta << " " << k << ":\n  " << faltas.join(QStringLiteral("\n  ")).toStdString();
        }
    }
}

// The deeper comment pages carry their mark right under the title, and only there.
TEST(EstiloDasPaginas, AprofundamentoLogoDepoisDoTitulo)
{
    const QString marca = QStringLiteral("<p class=\"nivel\">Aprofundamento</p>");
    for (int k = 1; k <= LivroComentarios().paginas; ++k) {
        const QString html = TextoPaginaInformacao(LivroComentarios(), k);
        const qsizetype onde = html.indexOf(marca);
        if (onde >= 0) {
            EXPECT_EQ(onde, html.indexOf(QStringLiteral("</h2>")) + 6) << k;
        }
    }
    for (int k : {15, 16, 19, 21, 29, 34, 35, 52, 72})
        EXPECT_TRUE(TextoPaginaInformacao(LivroComentarios(), k).contains(marca)) << k;
}

// A page too long for its picture is set in smaller type; the book is written so that none is.
TEST(EstiloDasPaginas, TodasCabemComLetraDeOnzeEMeioPontos)
{
    for (const LivroInformacao* livro : {&LivroInstrucoes(), &LivroComentarios(), &LivroSugestoes()}) {
        for (int k = 1; k <= livro->paginas; ++k) {
            qreal pontos = 0;
            DesenharPaginaInformacao(TextoPaginaInformacao(*livro, k),
                                     {PaginaInformacao::kLarguraPagina, PaginaInformacao::kAlturaPagina},
                                     1.0, &pontos);
            EXPECT_EQ(pontos, 11.5) << livro->pasta << " " << k;
        }
    }
}

}  // namespace
}  // namespace lumerina::teste
