#include "app/Menu.h"

#include "app/Aplicacao.h"
#include "app/PaginaBase.h"
#include "app/Paginas.h"

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
     {{"IrMandelbrot", "InícioMandelbrot", "Conjunto de Mandelbrot", Form::Mandelbrot},
      {"Julia", "Julia", "Conjuntos de Julia", Form::Julia},
      {"Órbitas", "Órbitas", "Órbitas", Form::Orbitas},
      {"Relação", "Relação", "Relação Mandel/Julia", Form::Relacao}}},
    {"Newton", "Newton", {{"MétodoNewton", "MétodoNewton", "Método de Newton", Form::Newton}}},
    {"IFS", "IFS",
     {{"IrIFS", "Sistemas", "IFS", Form::IFS},
      {"JogoCaos", "JogoCaos", "Jogo do caos", Form::JogoCaos},
      {"Transformações", "Transformações", "Transformações", Form::Transformacoes}}},
    {"Atractores", "Atractores", {{"IrAtractores", "IrAtractores", "Atractores", Form::Atractores}}},
    {"LSistemas", "L-Sistemas", {{"IrLSistemas", "IrLSistemas", "L-Sistemas", Form::LSistemas}}},
    {"Sucessões", "Sucessões", {{"IrSucessões", "IrSucessões", "Sucessões", Form::Sucessoes}}},
    {"Dimensão", "Dimensão", {{"IrDimensão", "DimensãoFractal", "Dimensão", Form::Dimensao}}},
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
