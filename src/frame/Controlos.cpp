#include "frame/Controlos.h"

#include "frame/Plataforma.h"
#include "frame/SessaoDesenho.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace lumerina {

namespace {

template <class W> W* Criar(W* controlo, const char* nome, QRect onde)
{
    if (nome)
        controlo->setObjectName(QString::fromUtf8(nome));
    controlo->setGeometry(onde);
    return controlo;
}

const char* const kPropriedadeDesenho = "lumerinaDesenho";  // on a draw button
const char* const kPropriedadeEnter = "lumerinaEnter";      // on a page that has the filter

// How many ancestors `w` has: the deeper the frame two widgets share, the closer they are.
int Profundidade(const QWidget* w)
{
    int n = 0;
    for (; w; w = w->parentWidget())
        ++n;
    return n;
}

int ProfundidadeComum(const QWidget* a, const QWidget* b)
{
    for (const QWidget* p = a; p; p = p->parentWidget())
        if (p->isAncestorOf(b))
            return Profundidade(p);
    return 0;
}

// Enter in a text field of the page presses the closest enabled draw button. A line edit
// passes Enter on to its parents (that is how dialogs see it), so the page sees it here.
class EnterDesenha : public QObject {
public:
    explicit EnterDesenha(QWidget* pagina) : QObject(pagina), pagina_(pagina)
    {
        pagina->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* alvo, QEvent* evento) override
    {
        if (alvo != pagina_ || evento->type() != QEvent::KeyPress)
            return false;
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla != Qt::Key_Return && tecla != Qt::Key_Enter)
            return false;
        auto* campo = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        if (!campo || !pagina_->isAncestorOf(campo))
            return false;
        QPushButton* escolhido = nullptr;
        int melhor = -1;
        for (QPushButton* b : pagina_->findChildren<QPushButton*>()) {
            if (!b->property(kPropriedadeDesenho).toBool() || !b->isEnabled() ||
                !b->isVisibleTo(pagina_))
                continue;
            const int p = ProfundidadeComum(campo, b);
            if (p > melhor) {
                melhor = p;
                escolhido = b;
            }
        }
        if (!escolhido)
            return false;
        escolhido->click();
        return true;
    }

private:
    QWidget* pagina_;
};

}  // namespace

QRadioButton* Opcao(QWidget* pai, const char* nome, const char* texto, QRect onde)
{
    return Criar(new QRadioButton(QString::fromUtf8(texto), pai), nome, onde);
}

QPushButton* Botao(QWidget* pai, const char* nome, const char* texto, QRect onde, const char* dica)
{
    auto* botao = Criar(new QPushButton(QString::fromUtf8(texto), pai), nome, onde);
    if (dica)
        botao->setToolTip(QString::fromUtf8(dica));
    return botao;
}

QCheckBox* Caixa(QWidget* pai, const char* nome, const char* texto, QRect onde)
{
    return Criar(new QCheckBox(QString::fromUtf8(texto), pai), nome, onde);
}

QLineEdit* Campo(QWidget* pai, const char* nome, const char* texto, QRect onde)
{
    return Criar(new QLineEdit(QString::fromUtf8(texto), pai), nome, onde);
}

QLabel* Rotulo(QWidget* pai, const char* texto, QRect onde, const char* nome)
{
    return Criar(new QLabel(QString::fromUtf8(texto), pai), nome, onde);
}

QGroupBox* Quadro(QWidget* pai, const char* titulo, QRect onde, const char* nome)
{
    return Criar(new QGroupBox(QString::fromUtf8(titulo), pai), nome, onde);
}

bool Recusar(QWidget* dono, const QString& titulo, const QString& texto)
{
    Sistema().Mensagem(dono, titulo, texto, IconeMensagem::Informacao);
    return false;
}

bool Recusar(QWidget* dono, const QString& titulo, const char* texto)
{
    return Recusar(dono, titulo, QString::fromUtf8(texto));
}

void LigarDesenho(QPushButton* botao, std::function<void()> desenhar)
{
    botao->setProperty(kPropriedadeDesenho, true);
    QObject::connect(botao, &QPushButton::clicked, botao, [desenhar = std::move(desenhar)] {
        if (!SessaoDesenho::EmCurso())
            desenhar();
    });
    QWidget* pagina = botao->window();
    if (!pagina->property(kPropriedadeEnter).toBool()) {
        pagina->setProperty(kPropriedadeEnter, true);
        new EnterDesenha(pagina);
    }
}

namespace detalhe {

QButtonGroup* JuntarOpcao(QButtonGroup* grupo, QRadioButton* botao, bool primeiro)
{
    if (!grupo)
        grupo = new QButtonGroup(botao->parent());
    grupo->addButton(botao);
    if (primeiro)
        botao->setChecked(true);
    return grupo;
}

bool OpcaoMarcada(const QRadioButton* botao) { return botao->isChecked(); }

void MarcarOpcao(QRadioButton* botao) { botao->setChecked(true); }

}  // namespace detalhe

SeletorCor::SeletorCor(QWidget* pai, const char* nomeBotao, const char* texto, QRect ondeBotao,
                       const char* nomeAmostra, QRect ondeAmostra, QColor inicial)
    : QObject(pai),
      botao_(Botao(pai, nomeBotao, texto, ondeBotao)),
      amostra_(Rotulo(pai, "", ondeAmostra, nomeAmostra))
{
    DefinirCor(inicial);
    connect(botao_, &QPushButton::clicked, this, &SeletorCor::Escolher);
}

void SeletorCor::DefinirCor(const QColor& cor)
{
    cor_ = cor;
    amostra_->setStyleSheet(
        QStringLiteral("background: %1; border: 1px solid #808080;").arg(cor.name()));
}

void SeletorCor::Escolher()
{
    DefinirCor(Sistema().EscolherCor(botao_->window(), cor_));
    emit Escolhida(cor_);
}

}  // namespace lumerina
