#pragma once
// Start-up and navigation between the pages.

class QWidget;

// Creates and shows the main page "Form5" and returns it. main() and the tests start the
// program through it.
QWidget* AbrirLumerina();

namespace lumerina {

class PaginaBase;

// The page at which "Instruções" and "Comentários" open; set by the menu item that opens them.
extern int PaginaInstrucoes;
extern int PaginaComentarios;

// A topic item of the menu: from the main page the target is shown over it; from a topic
// page that page is hidden first.
void IrPara(PaginaBase* origem, int numero);
// "Fechar esta página": hides the page; the main page is never hidden.
void FecharPagina(PaginaBase* pagina);
// "Abandonar o programa": ends the program at once, even in the middle of a drawing.
void AbrirInstrucoes(PaginaBase* origem);
void AbrirComentarios(PaginaBase* origem);
void AbrirSugestoes(PaginaBase* origem);
void Abandonar();

// Qt's own dialogs and context menus in European Portuguese, whatever the system's
// language: the program is Portuguese by design. AbrirLumerina does it once.
void InstalarTraducao();

// Releases every page and resets the program-wide state (end of the program; tests).
void FecharLumerina();

}  // namespace lumerina
