#include "frame/SessaoDesenho.h"

#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "frame/Plataforma.h"

#include <QPushButton>

namespace lumerina {

namespace {
int sessoesAbertas = 0;
}  // namespace

SessaoDesenho::SessaoDesenho(JanelaDesenho& janela, Botoes botoes)
    : janela_(&janela), pagina_(janela.Pagina())
{
    if (botoes == Botoes::Desactivados)
        for (QPushButton* b : janela.BotoesDesactivados())
            botoes_.emplace_back(b);
    Iniciar(janela.Imagem());
}

SessaoDesenho::SessaoDesenho(QWidget* pagina, ControloImagem* imagem,
                             std::initializer_list<QPushButton*> botoes)
    : pagina_(pagina)
{
    for (QPushButton* b : botoes)
        botoes_.emplace_back(b);
    Iniciar(imagem);
}

void SessaoDesenho::Iniciar(ControloImagem* imagem)
{
    ++sessoesAbertas;
    imagem_ = imagem;
    Sistema().CursorEspera(pagina_, true);
    // A zoom box dragged before leaves a dotted pen in invert mode, persistence off.
    imagem->ReporCaneta();
    for (QPushButton* b : botoes_)
        b->setEnabled(false);
}

void SessaoDesenho::Concluir()
{
    if (imagem_)
        imagem_->MostrarPendente();
    if (janela_ && imagem_) {
        janela_->DefinirEscalaMundo();
        janela_->desenhado = true;
    }
}

SessaoDesenho::~SessaoDesenho()
{
    --sessoesAbertas;
    // The page may be gone already when the program ended in the middle of the drawing.
    if (pagina_)
        Sistema().CursorEspera(pagina_, false);
    for (const QPointer<QPushButton>& b : botoes_)
        if (b)
            b->setEnabled(true);
}

bool SessaoDesenho::EmCurso() { return sessoesAbertas > 0; }

}  // namespace lumerina
