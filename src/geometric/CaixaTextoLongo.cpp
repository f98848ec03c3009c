#include "geometric/CaixaTextoLongo.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace lumerina {

CaixaTextoLongo::CaixaTextoLongo(QWidget* pai) : QAbstractScrollArea(pai)
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    const QFontMetrics m(font());
    larguraLetra_ = std::max(1, m.horizontalAdvance(QLatin1Char('M')));
    alturaLinha_ = std::max(1, m.lineSpacing());
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->setBackgroundRole(QPalette::Base);
    verticalScrollBar()->setSingleStep(1);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, viewport(),
            qOverload<>(&QWidget::update));
}

void CaixaTextoLongo::DefinirTexto(std::u16string texto)
{
    texto_ = std::move(texto);
    ancora_ = cursor_ = 0;
    ActualizarBarra();
    verticalScrollBar()->setValue(0);
    viewport()->update();
}

int CaixaTextoLongo::ColunasPorLinha() const
{
    return std::max(1, (viewport()->width() - 2 * margem_) / larguraLetra_);
}

std::size_t CaixaTextoLongo::Linhas() const
{
    const std::size_t colunas = std::size_t(ColunasPorLinha());
    return std::max<std::size_t>(1, (texto_.size() + colunas - 1) / colunas);
}

int CaixaTextoLongo::LinhasVisiveis() const
{
    return std::max(1, (viewport()->height() - 2 * margem_) / alturaLinha_);
}

void CaixaTextoLongo::ActualizarBarra()
{
    QScrollBar* barra = verticalScrollBar();
    const int visiveis = LinhasVisiveis();
    barra->setRange(0, int(std::max<std::size_t>(Linhas(), std::size_t(visiveis)) - visiveis));
    barra->setPageStep(visiveis);
}

void CaixaTextoLongo::Seleccionar(std::size_t inicio, std::size_t fim)
{
    ancora_ = std::min(inicio, texto_.size());
    cursor_ = std::min(fim, texto_.size());
    viewport()->update();
}

QString CaixaTextoLongo::TextoSeleccionado() const
{
    const std::size_t a = std::min(ancora_, cursor_), b = std::max(ancora_, cursor_);
    return QString::fromUtf16(texto_.data() + a, qsizetype(b - a));
}

void CaixaTextoLongo::CopiarSeleccao() const
{
    if (ancora_ != cursor_)
        QApplication::clipboard()->setText(TextoSeleccionado());
}

void CaixaTextoLongo::paintEvent(QPaintEvent*)
{
    QPainter p(viewport());
    const QPalette& pal = palette();
    p.fillRect(viewport()->rect(), pal.base());
    const std::size_t colunas = std::size_t(ColunasPorLinha());
    const std::size_t primeira = std::size_t(verticalScrollBar()->value());
    const std::size_t ultima = std::min(Linhas(), primeira + std::size_t(LinhasVisiveis()) + 1);
    const std::size_t selA = std::min(ancora_, cursor_), selB = std::max(ancora_, cursor_);
    const QFontMetrics m(font());
    for (std::size_t linha = primeira; linha < ultima; ++linha) {
        const std::size_t inicio = linha * colunas;
        if (inicio >= texto_.size())
            break;
        const std::size_t fim = std::min(texto_.size(), inicio + colunas);
        const int topo = margem_ + int(linha - primeira) * alturaLinha_;
        const auto pedaco = [&](std::size_t a, std::size_t b) {
            return QString::fromUtf16(texto_.data() + a, qsizetype(b - a));
        };
        // Measured rather than counted, so that the highlight sits under its letters whatever
        // the font's fractional advances.
        const auto xDe = [&](std::size_t i) {
            return margem_ + m.horizontalAdvance(pedaco(inicio, i));
        };
        p.setPen(pal.color(QPalette::Text));
        p.drawText(margem_, topo + m.ascent(), pedaco(inicio, fim));
        // The selected part of the row, drawn again over its highlight.
        const std::size_t a = std::max(inicio, selA), b = std::min(fim, selB);
        if (a < b) {
            const QRect caixa(xDe(a), topo, xDe(b) - xDe(a), alturaLinha_);
            p.fillRect(caixa, pal.highlight());
            p.setPen(pal.color(QPalette::HighlightedText));
            p.drawText(xDe(a), topo + m.ascent(), pedaco(a, b));
        }
    }
}

void CaixaTextoLongo::resizeEvent(QResizeEvent* evento)
{
    QAbstractScrollArea::resizeEvent(evento);
    ActualizarBarra();
}

std::size_t CaixaTextoLongo::PosicaoEm(QPoint ponto) const
{
    const std::size_t colunas = std::size_t(ColunasPorLinha());
    const int y = std::max(0, ponto.y() - margem_);
    const std::size_t linha =
        std::size_t(verticalScrollBar()->value()) + std::size_t(y / alturaLinha_);
    const int x = std::max(0, ponto.x() - margem_ + larguraLetra_ / 2);
    const std::size_t coluna = std::min(colunas, std::size_t(x / larguraLetra_));
    return std::min(texto_.size(), linha * colunas + coluna);
}

void CaixaTextoLongo::MoverCursor(std::size_t posicao, bool estender)
{
    cursor_ = std::min(posicao, texto_.size());
    if (!estender)
        ancora_ = cursor_;
    MostrarCursor();
    viewport()->update();
}

void CaixaTextoLongo::MostrarCursor()
{
    const int linha = int(cursor_ / std::size_t(ColunasPorLinha()));
    QScrollBar* barra = verticalScrollBar();
    if (linha < barra->value())
        barra->setValue(linha);
    else if (linha >= barra->value() + LinhasVisiveis())
        barra->setValue(linha - LinhasVisiveis() + 1);
}

void CaixaTextoLongo::mousePressEvent(QMouseEvent* evento)
{
    if (evento->button() == Qt::LeftButton)
        MoverCursor(PosicaoEm(evento->position().toPoint()),
                    evento->modifiers() & Qt::ShiftModifier);
}

void CaixaTextoLongo::mouseMoveEvent(QMouseEvent* evento)
{
    if (evento->buttons() & Qt::LeftButton)
        MoverCursor(PosicaoEm(evento->position().toPoint()), true);
}

void CaixaTextoLongo::mouseDoubleClickEvent(QMouseEvent* evento)
{
    // The string is one word: a double click takes it all, as a line edit does.
    if (evento->button() == Qt::LeftButton)
        SeleccionarTudo();
}

void CaixaTextoLongo::keyPressEvent(QKeyEvent* evento)
{
    if (evento->matches(QKeySequence::Copy)) {
        CopiarSeleccao();
        return;
    }
    if (evento->matches(QKeySequence::SelectAll)) {
        SeleccionarTudo();
        return;
    }
    const bool estender = evento->modifiers() & Qt::ShiftModifier;
    const std::size_t colunas = std::size_t(ColunasPorLinha());
    const std::size_t pagina = colunas * std::size_t(LinhasVisiveis());
    const bool controlo = evento->modifiers() & Qt::ControlModifier;
    switch (evento->key()) {
    case Qt::Key_Left: MoverCursor(cursor_ > 0 ? cursor_ - 1 : 0, estender); break;
    case Qt::Key_Right: MoverCursor(cursor_ + 1, estender); break;
    case Qt::Key_Up: MoverCursor(cursor_ >= colunas ? cursor_ - colunas : 0, estender); break;
    case Qt::Key_Down: MoverCursor(cursor_ + colunas, estender); break;
    case Qt::Key_PageUp: MoverCursor(cursor_ >= pagina ? cursor_ - pagina : 0, estender); break;
    case Qt::Key_PageDown: MoverCursor(cursor_ + pagina, estender); break;
    case Qt::Key_Home:
        MoverCursor(controlo ? 0 : cursor_ - cursor_ % colunas, estender);
        break;
    case Qt::Key_End:
        MoverCursor(controlo ? texto_.size() : cursor_ - cursor_ % colunas + colunas, estender);
        break;
    default: QAbstractScrollArea::keyPressEvent(evento); break;
    }
}

void CaixaTextoLongo::contextMenuEvent(QContextMenuEvent* evento)
{
    QMenu menu(this);
    QAction* copiar =
        menu.addAction(QStringLiteral("Copiar"), this, &CaixaTextoLongo::CopiarSeleccao);
    copiar->setEnabled(ancora_ != cursor_);
    menu.addAction(QStringLiteral("Seleccionar tudo"), this, &CaixaTextoLongo::SeleccionarTudo);
    menu.exec(evento->globalPos());
}

}  // namespace lumerina
