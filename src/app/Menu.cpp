#include "app/Menu.h"

#include "app/Aplicacao.h"
#include "app/PaginaBase.h"

#include <QMenuBar>

#include <functional>
#include <vector>

namespace lumerina {

namespace {

struct Item {
    const char* nome;          // objectName on a topic page
    const char* nomeInicial;   // objectName on the main page
    const char* texto;
    int destino;               // page number, or 0 for the special items below
};

struct Menu {
    const char* nome;
    const char* texto;
    std::vector<Item> itens;
};

// The order, captions and names of the common menu bar. "Instruções", "Comentários" and
// "Sugestões" are items of the bar itself.
const Menu kMenus[] = {
    {"Mandelbrot", "Mandelbrot",
     {{"IrMandelbrot", "InícioMandelbrot", "Conjunto de Mandelbrot", 2},
      {"Julia", "Julia", "Conjuntos de Julia", 1},
      {"Órbitas", "Órbitas", "Órbitas", 3},
      {"Relação", "Relação", "Relação Mandel/Julia", 4}}},
    {"Newton", "Newton", {{"MétodoNewton", "MétodoNewton", "Método de Newton", 7}}},
    {"IFS", "IFS",
     {{"IrIFS", "Sistemas", "IFS", 10},
      {"JogoCaos", "JogoCaos", "Jogo do caos", 11},
      {"Transformações", "Transformações", "Transformações", 12}}},
    {"Atractores", "Atractores", {{"IrAtractores", "IrAtractores", "Atractores", 16}}},
    {"LSistemas", "L-Sistemas", {{"IrLSistemas", "IrLSistemas", "L-Sistemas", 9}}},
    {"Sucessões", "Sucessões", {{"IrSucessões", "IrSucessões", "Sucessões", 14}}},
    {"Dimensão", "Dimensão", {{"IrDimensão", "DimensãoFractal", "Dimensão", 15}}},
};

QAction* Accao(QWidget* dono, const char* nome, const char* texto, std::function<void()> feito)
{
    auto* accao = new QAction(QString::fromUtf8(texto), dono);
    accao->setObjectName(QString::fromUtf8(nome));
    QObject::connect(accao, &QAction::triggered, dono, std::move(feito));
    return accao;
}

}  // namespace

void ConstruirMenuComum(PaginaBase* pagina)
{
    QMenuBar* barra = pagina->menuBar();
    const bool inicial = pagina->Inicial();

    QMenu* ficheiro = barra->addMenu(QStringLiteral("Ficheiro"));
    ficheiro->setObjectName(QStringLiteral("Ficheiro"));
    if (!inicial)
        ficheiro->addAction(Accao(pagina, "FecharPágina", "Fechar esta página",
                                  [pagina] { FecharPagina(pagina); }));
    ficheiro->addAction(Accao(pagina, "Abandonar", "Abandonar o programa", [] { Abandonar(); }));

    for (const Menu& m : kMenus) {
        QMenu* menu = barra->addMenu(QString::fromUtf8(m.texto));
        menu->setObjectName(QString::fromUtf8(m.nome));
        for (const Item& item : m.itens) {
            const int destino = item.destino;
            menu->addAction(Accao(pagina, inicial ? item.nomeInicial : item.nome, item.texto,
                                  [pagina, destino] { IrPara(pagina, destino); }));
        }
    }

    barra->addAction(Accao(pagina, "Instruções", "Instruções", [pagina] { AbrirInstrucoes(pagina); }));
    barra->addAction(Accao(pagina, "Comentários", "Comentários", [pagina] { AbrirComentarios(pagina); }));
    barra->addAction(Accao(pagina, "Sugestões", "Sugestões", [pagina] { AbrirSugestoes(pagina); }));
}

}  // namespace lumerina
