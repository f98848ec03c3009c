#pragma once
// The page registry: every page is one program-wide instance, created on first use and kept
// afterwards, until it is released.

class QWidget;

namespace lumerina {

struct DescricaoPagina;

// The pages by their number n of "Formn".
namespace Form {
enum : int {
    Julia = 1,
    Mandelbrot = 2,
    Orbitas = 3,
    Relacao = 4,
    Inicial = 5,
    Instrucoes = 6,
    Newton = 7,
    Comentarios = 8,
    LSistemas = 9,
    IFS = 10,
    JogoCaos = 11,
    Transformacoes = 12,
    Sugestoes = 13,
    Sucessoes = 14,
    Dimensao = 15,
    Atractores = 16,
};
}  // namespace Form

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

constexpr int kNumeroPaginas = Form::Atractores;

}  // namespace lumerina
