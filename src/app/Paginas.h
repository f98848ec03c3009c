#pragma once
// The page registry: every page is one program-wide instance, created on first use and kept
// afterwards, until it is released.

class QWidget;

namespace lumerina {

struct DescricaoPagina;

// "Formn", created on first use.
QWidget* Pagina(int numero);
// "Formn" if it exists, else nullptr.
QWidget* PaginaExistente(int numero);
// Drops the instance (deleted later); the next Pagina(numero) builds it afresh.
void LibertarPagina(int numero);
// Deletes every page now.
void LibertarTodasAsPaginas();

// Title, caption and information-page start pages of a topic page (or the main page).
const DescricaoPagina& Descricao(int numero);

constexpr int kNumeroPaginas = 16;

}  // namespace lumerina
