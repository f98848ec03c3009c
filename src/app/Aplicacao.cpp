#include "app/Aplicacao.h"

#include "app/PaginaBase.h"
#include "app/Paginas.h"
#include "frame/Plataforma.h"
#include "interp/clsEquation.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

namespace lumerina {

int PaginaInstrucoes = 1;
int PaginaComentarios = 1;

namespace {


void Mostrar(QWidget* pagina)
{
    pagina->show();
    pagina->raise();
    pagina->activateWindow();
}

}  // namespace

void IrPara(PaginaBase* origem, int numero)
{
    QWidget* destino = Pagina(numero);
    if (!destino)
        return;
    if (origem && !origem->Inicial() && origem != destino)
        origem->hide();
    Mostrar(destino);
}

void FecharPagina(PaginaBase* pagina)
{
    if (pagina && !pagina->Inicial())
        pagina->hide();
}

void AbrirInstrucoes(PaginaBase* origem)
{
    PaginaInstrucoes = origem ? origem->PaginaInstrucoesPropria() : 1;
    Mostrar(Pagina(Form::Instrucoes));
}

void AbrirComentarios(PaginaBase* origem)
{
    PaginaComentarios = origem ? origem->PaginaComentariosPropria() : 1;
    Mostrar(Pagina(Form::Comentarios));
}

void AbrirSugestoes(PaginaBase*)
{
    Mostrar(Pagina(Form::Sugestoes));
}

void Abandonar()
{
    // Every yield answers false from now on, so a drawing in progress returns at once;
    // the main loop then ends with code 0 and the pages are released.
    Sistema().PedirFim();
    for (int n = 1; n <= kNumeroPaginas; ++n)
        if (QWidget* p = PaginaExistente(n))
            p->hide();
    QCoreApplication::exit(0);
}

void InstalarTraducao()
{
    static QTranslator* traducao = nullptr;
    if (traducao || !qApp)
        return;
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Portugal));
    traducao = new QTranslator(qApp);
    if (traducao->load(QStringLiteral(":/traducoes/lumerina_pt_PT.qm")))
        QCoreApplication::installTranslator(traducao);
}

void FecharLumerina()
{
    LibertarTodasAsPaginas();
    PaginaInstrucoes = 1;
    PaginaComentarios = 1;
    Sistema().RetomarDepoisDoFim();
}

}  // namespace lumerina

QWidget* AbrirLumerina()
{
    using namespace lumerina;
    static bool ligado = false;
    if (!ligado && qApp) {
        ligado = true;
        QApplication::setQuitOnLastWindowClosed(false);
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, [] { FecharLumerina(); });
        InstalarTraducao();
        // "rnd(", "rand(" and "random(" reseed from the platform's clock.
        DefinirRelogioAleatorio(
            +[]() -> std::uint64_t { return Sistema().SementeRelogio(); });
    }
    QWidget* inicial = Pagina(Form::Inicial);
    Mostrar(inicial);
    return inicial;
}
