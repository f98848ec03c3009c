#include "app/Paginas.h"

#include "app/PaginaBase.h"
#include "app/Aplicacao.h"
#include "app/PaginaInformacao.h"
#include "app/PaginaInicial.h"
#include "complex/PaginaMandelbrot.h"

#include <QPointer>

#include <array>

namespace lumerina {

namespace {

const DescricaoPagina kDescricoes[] = {
    {1, "CONJUNTOS DE JULIA", "Conjuntos de Julia", 9, 18},
    {2, "CONJUNTO DE MANDELBROT", "Conjunto de Mandelbrot", 6, 11},
    {3, "ÓRBITAS", "Órbitas", 4, 8},
    {4, "RELAÇÃO MANDELBROT / JULIA", "Relação Mandel/Julia", 11, 22},
    {5, "LUMERINA", "Lumerina", 1, 1},
    {6, "INSTRUÇÕES", "Instruções", 1, 1},
    {7, "MÉTODO DE NEWTON", "Método de Newton", 12, 23},
    {8, "COMENTÁRIOS", "Comentários", 1, 1},
    {9, "L-SISTEMAS", "L-Sistemas", 23, 53},
    {10, "SISTEMAS DE FUNÇÃO ITERADA", "Sistemas de função iterada", 15, 33},
    {11, "JOGO DO CAOS", "Jogo do caos", 16, 38},
    {12, "TRANSFORMAÇÕES", "Transformações", 18, 40},
    {13, "SUGESTÕES", "Sugestões", 1, 1},
    {14, "SUCESSÕES", "Sucessões", 24, 58},
    {15, "DIMENSÃO FRACTAL", "Dimensão fractal", 25, 69},
    {16, "ATRACTORES", "Atractores", 19, 41},
};

std::array<QPointer<QWidget>, kNumeroPaginas + 1>& Instancias()
{
    static std::array<QPointer<QWidget>, kNumeroPaginas + 1> instancias;
    return instancias;
}

QWidget* Criar(int numero)
{
    switch (numero) {
    case 2:
        return new PaginaMandelbrot(Descricao(2));
    case 5:
        return new PaginaInicial(Descricao(5));
    case 6:
        return new PaginaInformacao(LivroInstrucoes(), PaginaInstrucoes);
    case 8:
        return new PaginaInformacao(LivroComentarios(), PaginaComentarios);
    case 13:
        return new PaginaInformacao(LivroSugestoes(), 1);
    default:
        // Topic pages still waiting for their controls: their window, title and menu bar.
        return new PaginaBase(Descricao(numero));
    }
}

}  // namespace

const DescricaoPagina& Descricao(int numero)
{
    for (const DescricaoPagina& d : kDescricoes)
        if (d.numero == numero)
            return d;
    return kDescricoes[4];
}

QWidget* Pagina(int numero)
{
    if (numero < 1 || numero > kNumeroPaginas)
        return nullptr;
    QPointer<QWidget>& instancia = Instancias()[numero];
    if (!instancia)
        instancia = Criar(numero);
    return instancia;
}

QWidget* PaginaExistente(int numero)
{
    if (numero < 1 || numero > kNumeroPaginas)
        return nullptr;
    return Instancias()[numero];
}

void LibertarPagina(int numero)
{
    if (numero < 1 || numero > kNumeroPaginas)
        return;
    QPointer<QWidget>& instancia = Instancias()[numero];
    if (instancia) {
        instancia->hide();
        instancia->deleteLater();
        instancia = nullptr;
    }
}

void LibertarTodasAsPaginas()
{
    for (QPointer<QWidget>& instancia : Instancias()) {
        delete instancia.data();
        instancia = nullptr;
    }
}

}  // namespace lumerina
