#include "app/Paginas.h"

#include "app/PaginaBase.h"
#include "app/Aplicacao.h"
#include "app/PaginaInformacao.h"
#include "app/PaginaInicial.h"
#include "complex/PaginaJulia.h"
#include "complex/PaginaMandelbrot.h"
#include "complex/PaginaRelacao.h"
#include "complex/PaginaNewton.h"
#include "dynamics/PaginaSucessoes.h"
#include "geometric/PaginaIFS.h"
#include "dynamics/PaginaAtractores.h"
#include "geometric/PaginaLSistemas.h"
#include "geometric/PaginaJogoCaos.h"
#include "geometric/PaginaTransformacoes.h"
#include "complex/PaginaOrbitas.h"
#include "geometric/PaginaDimensao.h"

#include <QPointer>

#include <array>

namespace lumerina {

namespace {

const DescricaoPagina kDescricoes[] = {
    {Form::Julia, "CONJUNTOS DE JULIA", "Conjuntos de Julia", 9, 18},
    {Form::Mandelbrot, "CONJUNTO DE MANDELBROT", "Conjunto de Mandelbrot", 6, 11},
    {Form::Orbitas, "ÓRBITAS", "Órbitas", 4, 8},
    {Form::Relacao, "RELAÇÃO MANDELBROT / JULIA", "Relação Mandel/Julia", 11, 22},
    {Form::Inicial, "LUMERINA", "Lumerina", 1, 1},
    {Form::Instrucoes, "INSTRUÇÕES", "Instruções", 1, 1},
    {Form::Newton, "MÉTODO DE NEWTON", "Método de Newton", 12, 23},
    {Form::Comentarios, "COMENTÁRIOS", "Comentários", 1, 1},
    {Form::LSistemas, "L-SISTEMAS", "L-Sistemas", 23, 53},
    {Form::IFS, "SISTEMAS DE FUNÇÃO ITERADA", "Sistemas de função iterada", 15, 33},
    {Form::JogoCaos, "JOGO DO CAOS", "Jogo do caos", 16, 38},
    {Form::Transformacoes, "TRANSFORMAÇÕES", "Transformações", 18, 40},
    {Form::Sugestoes, "SUGESTÕES", "Sugestões", 1, 1},
    {Form::Sucessoes, "SUCESSÕES", "Sucessões", 24, 58},
    {Form::Dimensao, "DIMENSÃO FRACTAL", "Dimensão fractal", 25, 69},
    {Form::Atractores, "ATRACTORES", "Atractores", 19, 41},
};

std::array<QPointer<QWidget>, kNumeroPaginas + 1>& Instancias()
{
    static std::array<QPointer<QWidget>, kNumeroPaginas + 1> instancias;
    return instancias;
}

QWidget* Criar(int numero)
{
    switch (numero) {
    case Form::Julia:
        return new PaginaJulia(Descricao(numero));
    case Form::Mandelbrot:
        return new PaginaMandelbrot(Descricao(numero));
    case Form::Relacao:
        return new PaginaRelacao(Descricao(numero));
    case Form::IFS:
        return new PaginaIFS(Descricao(numero));
    case Form::LSistemas:
        return new PaginaLSistemas(Descricao(numero));
    case Form::JogoCaos:
        return new PaginaJogoCaos(Descricao(numero));
    case Form::Transformacoes:
        return new PaginaTransformacoes(Descricao(numero));
    case Form::Atractores:
        return new PaginaAtractores(Descricao(numero));
    case Form::Orbitas:
        return new PaginaOrbitas(Descricao(numero));
    case Form::Dimensao:
        return new PaginaDimensao(Descricao(numero));
    case Form::Inicial:
        return new PaginaInicial(Descricao(numero));
    case Form::Newton:
        return new PaginaNewton(Descricao(numero));
    case Form::Instrucoes:
        return new PaginaInformacao(LivroInstrucoes(), PaginaInstrucoes);
    case Form::Comentarios:
        return new PaginaInformacao(LivroComentarios(), PaginaComentarios);
    case Form::Sugestoes:
        return new PaginaInformacao(LivroSugestoes(), 1);
    case Form::Sucessoes:
        return new PaginaSucessoes(Descricao(numero));
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
    return kDescricoes[Form::Inicial - 1];
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
