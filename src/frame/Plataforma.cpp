#include "frame/Plataforma.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QCoreApplication>
#include <QDateTime>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QThread>
#include <QWidget>

namespace lumerina {

RespostaGuardar ResolverNomeGuardar(const QString& escrito, const QString& extensaoPredefinida)
{
    RespostaGuardar r;
    const QString nome = escrito.trimmed();
    if (nome.isEmpty())
        return r;
    const QString sufixo = QFileInfo(nome).suffix();
    if (sufixo.isEmpty()) {
        r.ficheiro = nome.endsWith('.') ? nome + extensaoPredefinida
                                        : nome + '.' + extensaoPredefinida;
    } else {
        r.ficheiro = nome;
        r.extensaoDiferente = sufixo.compare(extensaoPredefinida, Qt::CaseInsensitive) != 0;
    }
    return r;
}

void PlataformaQt::Mensagem(QWidget* dono, const QString& titulo, const QString& texto,
                            IconeMensagem icone)
{
    QMessageBox caixa(icone == IconeMensagem::Informacao ? QMessageBox::Information
                                                          : QMessageBox::NoIcon,
                      titulo, texto, QMessageBox::Ok, dono);
    caixa.exec();
}

QColor PlataformaQt::EscolherCor(QWidget* dono, const QColor& actual)
{
    const QColor escolhida = QColorDialog::getColor(actual, dono);
    return escolhida.isValid() ? escolhida : actual;
}

RespostaGuardar PlataformaQt::DialogoGuardar(QWidget* dono, const QString& filtro,
                                             const QString& extensaoPredefinida)
{
    // "Descrição|padrão" is the old two-part filter; Qt wants "Descrição".
    QString filtroQt = filtro.section('|', 0, 0);
    QFileDialog dialogo(dono);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setFileMode(QFileDialog::AnyFile);
    dialogo.setNameFilter(filtroQt);
    // No default suffix here: the typed name is judged by ResolverNomeGuardar, which adds it.
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty())
        return {};
    return ResolverNomeGuardar(dialogo.selectedFiles().constFirst(), extensaoPredefinida);
}

void PlataformaQt::CopiarImagem(const QImage& imagem)
{
    QClipboard* area = QGuiApplication::clipboard();
    area->clear();
    area->setImage(imagem);
}

void PlataformaQt::CursorEspera(QWidget* pagina, bool ligado)
{
    if (!pagina)
        return;
    if (ligado)
        pagina->setCursor(Qt::WaitCursor);
    else
        pagina->unsetCursor();
}

bool PlataformaQt::Ceder()
{
    // A drawing yields after every column, hundreds of times a second. Handling events
    // every few milliseconds is as responsive to a person and keeps the yield nearly free.
    constexpr qint64 kIntervalo = 10;  // ms
    if (!ATerminar() && (!desdeCedencia_.isValid() || desdeCedencia_.elapsed() >= kIntervalo)) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        desdeCedencia_.start();
    }
    return !ATerminar();
}

void PlataformaQt::Dormir(int milissegundos)
{
    if (milissegundos > 0)
        QThread::msleep(static_cast<unsigned long>(milissegundos));
}

std::uint32_t PlataformaQt::SementeRelogio()
{
    return static_cast<std::uint32_t>(QDateTime::currentMSecsSinceEpoch());
}

namespace {
std::unique_ptr<Plataforma>& Actual()
{
    static std::unique_ptr<Plataforma> plataforma = std::make_unique<PlataformaQt>();
    return plataforma;
}
}  // namespace

Plataforma& Sistema() { return *Actual(); }

std::unique_ptr<Plataforma> InstalarPlataforma(std::unique_ptr<Plataforma> nova)
{
    std::unique_ptr<Plataforma> antiga = std::move(Actual());
    Actual() = std::move(nova);
    return antiga;
}

}  // namespace lumerina
