#include "frame/Plataforma.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QCoreApplication>
#include <QDateTime>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>
#include <QEventLoop>
#include <QTimer>
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

std::unique_ptr<QMessageBox> CriarCaixaMensagem(QWidget* dono, const QString& titulo,
                                                const QString& texto, IconeMensagem icone)
{
    auto caixa = std::make_unique<QMessageBox>(
        icone == IconeMensagem::Informacao ? QMessageBox::Information : QMessageBox::NoIcon,
        titulo, texto, QMessageBox::Ok, dono);
    // A short text makes a narrow box, and the window manager then cuts the title
    // ("Inte…ador"). The box sizes itself from its grid, so the width goes in as a spacer:
    // the title in a bold caption font, plus room for the caption's buttons.
    QFont letra = QApplication::font();
    letra.setBold(true);
    constexpr int kBotoesDaBarra = 120;
    const int largura = QFontMetrics(letra).horizontalAdvance(titulo) + kBotoesDaBarra;
    if (auto* grelha = qobject_cast<QGridLayout*>(caixa->layout()))
        grelha->addItem(new QSpacerItem(largura, 0, QSizePolicy::Minimum, QSizePolicy::Fixed),
                        grelha->rowCount(), 0, 1, grelha->columnCount());
    return caixa;
}

std::unique_ptr<QFileDialog> CriarDialogoGuardar(QWidget* dono, const QString& filtro)
{
    auto dialogo = std::make_unique<QFileDialog>(dono);
    dialogo->setAcceptMode(QFileDialog::AcceptSave);
    dialogo->setFileMode(QFileDialog::AnyFile);
    // "Descrição|padrão" is the old two-part filter; Qt wants "Descrição".
    dialogo->setNameFilter(filtro.section('|', 0, 0));
    return dialogo;
}

void PlataformaQt::Mensagem(QWidget* dono, const QString& titulo, const QString& texto,
                            IconeMensagem icone)
{
    CriarCaixaMensagem(dono, titulo, texto, icone)->exec();
}

QColor PlataformaQt::EscolherCor(QWidget* dono, const QColor& actual)
{
    const QColor escolhida = QColorDialog::getColor(actual, dono);
    return escolhida.isValid() ? escolhida : actual;
}

RespostaGuardar PlataformaQt::DialogoGuardar(QWidget* dono, const QString& filtro,
                                             const QString& extensaoPredefinida)
{
    // No default suffix here: the typed name is judged by ResolverNomeGuardar, which adds it.
    const auto dialogo = CriarDialogoGuardar(dono, filtro);
    if (dialogo->exec() != QDialog::Accepted || dialogo->selectedFiles().isEmpty())
        return {};
    return ResolverNomeGuardar(dialogo->selectedFiles().constFirst(), extensaoPredefinida);
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
    if (milissegundos <= 0 || ATerminar())
        return;
    // An event loop that a timer ends: the page repaints and "Abandonar" is handled during
    // the wait (ending the program quits every running event loop, this one too).
    QEventLoop espera;
    QTimer::singleShot(milissegundos, &espera, &QEventLoop::quit);
    espera.exec();
    desdeCedencia_.start();
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
