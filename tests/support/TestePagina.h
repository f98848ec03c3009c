#pragma once
// A drawing page under test: the page "FormN" opened with the recorder installed, its drawing
// window and picture, and the few gestures every page test makes (typing in a field, choosing
// an option, pressing a button with the yield count restarted, sizing the picture, a drag).

#include "app/Paginas.h"
#include "frame/ControloImagem.h"
#include "frame/JanelaDesenho.h"
#include "support/PlataformaGravadora.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace lumerina::teste {

// A mouse event at a pixel of a picture.
inline void Rato(QWidget* imagem, QEvent::Type tipo, QPoint p, Qt::MouseButton botao,
                 Qt::MouseButtons botoes)
{
    const QPointF onde = imagem->contentsRect().topLeft() + p;
    QMouseEvent e(tipo, onde, imagem->mapToGlobal(onde), botao, botoes, Qt::NoModifier);
    QCoreApplication::sendEvent(imagem, &e);
}

template <class P, int N> class TestePagina : public TesteUi {
protected:
    void SetUp() override
    {
        TesteUi::SetUp();
        pagina = qobject_cast<P*>(Pagina(N));
        ASSERT_NE(pagina, nullptr);
        janela = pagina->Janela();
        imagem = janela->Imagem();
    }
    void Lado(int largura, int altura)
    {
        Achar<QScrollBar>(pagina, "HScroll1")->setValue(largura);
        Achar<QScrollBar>(pagina, "VScroll1")->setValue(altura);
    }
    void Lado(int pixeis) { Lado(pixeis, pixeis); }
    void Texto(const char* campo, const char* texto)
    {
        Achar<QLineEdit>(pagina, campo)->setText(QString::fromUtf8(texto));
    }
    QString Campo(const char* campo) { return Achar<QLineEdit>(pagina, campo)->text(); }
    void Vista(const char* x0, const char* x1, const char* y0, const char* y1)
    {
        Texto("Xmínimo", x0);
        Texto("Xmáximo", x1);
        Texto("Ymínimo", y0);
        Texto("Ymáximo", y1);
    }
    // The four limit fields as they read now.
    QStringList Limites() { return {Campo("Xmínimo"), Campo("Xmáximo"), Campo("Ymínimo"), Campo("Ymáximo")}; }
    void Escolher(const char* opcao) { Achar<QRadioButton>(pagina, opcao)->click(); }
    // A press of a drawing button; the recorder counts its yields from 1.
    void Premir(const char* botao)
    {
        sistema->cedencias = 0;
        Achar<QPushButton>(pagina, botao)->click();
    }
    QRgb Pixel(int x, int y) const { return imagem->Imagem().pixel(x, y); }
    void Rato(QEvent::Type tipo, QPoint p, Qt::MouseButton botao, Qt::MouseButtons botoes)
    {
        teste::Rato(imagem, tipo, p, botao, botoes);
    }
    // A left-button drag between two pixels of the picture.
    void Arrastar(QPoint de, QPoint ate)
    {
        Rato(QEvent::MouseButtonPress, de, Qt::LeftButton, Qt::LeftButton);
        Rato(QEvent::MouseMove, ate, Qt::NoButton, Qt::LeftButton);
        Rato(QEvent::MouseButtonRelease, ate, Qt::LeftButton, Qt::NoButton);
    }

    P* pagina = nullptr;
    JanelaDesenho* janela = nullptr;
    ControloImagem* imagem = nullptr;
};

}  // namespace lumerina::teste
