#include "app/PaginaBase.h"

#include "app/Aplicacao.h"
#include "app/Menu.h"
#include "app/Paginas.h"

#include <QCloseEvent>
#include <QLabel>

namespace lumerina {

void PaginaBase::ColocarTitulo(int x, int largura, int altura)
{
    QFont letra = titulo_->font();
    letra.setPointSize(14);
    titulo_->setFont(letra);
    titulo_->setGeometry(x, 2, largura, altura);
}

bool PaginaBase::Inicial() const { return descricao_.numero == Form::Inicial; }

PaginaBase::PaginaBase(const DescricaoPagina& descricao, QWidget* pai)
    : QMainWindow(pai), descricao_(descricao)
{
    setObjectName(QStringLiteral("Form%1").arg(descricao.numero));
    setWindowTitle(QString::fromUtf8(descricao.tituloJanela));
    area_ = new QWidget(this);
    area_->setObjectName(QStringLiteral("Area"));
    area_->setFixedSize(kLargura, kAltura);
    setCentralWidget(area_);
    ConstruirMenuComum(this);

    titulo_ = new QLabel(QString::fromUtf8(descricao.titulo), area_);
    titulo_->setObjectName(QStringLiteral("TituloPagina"));
    QFont letra = titulo_->font();
    letra.setPointSize(16);
    letra.setBold(true);
    titulo_->setFont(letra);
    titulo_->setAlignment(Qt::AlignCenter);
    titulo_->setGeometry(0, 12, kLargura, 36);
    setFixedSize(sizeHint());
}

void PaginaBase::closeEvent(QCloseEvent* evento)
{
    // The window's own close button does what the menu would: a topic page is closed
    // (hidden); closing the main page leaves the program.
    evento->ignore();
    if (Inicial())
        Abandonar();
    else
        FecharPagina(this);
}

}  // namespace lumerina
