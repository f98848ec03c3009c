#pragma once
// The small kit every page builds its controls with: captioned controls at fixed positions,
// exclusive option groups that answer with a value, colour pickers with their swatch, the one
// refusal message of a check, and draw buttons that Enter presses and that never start a
// second drawing.
//
// Names are objectNames, accents included; texts are shown exactly as given (UTF-8).

#include <QColor>
#include <QObject>
#include <QRect>
#include <QString>

#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;

namespace lumerina {

// `nome` may be null for controls that nothing looks up.
QRadioButton* Opcao(QWidget* pai, const char* nome, const char* texto, QRect onde);
QPushButton* Botao(QWidget* pai, const char* nome, const char* texto, QRect onde,
                   const char* dica = nullptr);
QCheckBox* Caixa(QWidget* pai, const char* nome, const char* texto, QRect onde);
QLineEdit* Campo(QWidget* pai, const char* nome, const char* texto, QRect onde);
QLabel* Rotulo(QWidget* pai, const char* texto, QRect onde, const char* nome = nullptr);
QGroupBox* Quadro(QWidget* pai, const char* titulo, QRect onde, const char* nome = nullptr);

// A failed check: the message box every page shows (information icon, OK), then false, so
// that a check reads `if (bad) return Recusar(this, kTitulo, "…");`.
bool Recusar(QWidget* dono, const QString& titulo, const QString& texto);
bool Recusar(QWidget* dono, const QString& titulo, const char* texto);

// A button that starts a drawing. A click, or Enter in any text field of its page, runs
// `desenhar`, unless a drawing is already running somewhere in the program: drawings yield
// to the event loop, and a second one started inside that yield would run nested in the
// first. Enter chooses, among the page's enabled draw buttons, the one that shares the
// deepest frame with the field (the first one made, when none is closer).
void LigarDesenho(QPushButton* botao, std::function<void()> desenhar);

// Exclusive option buttons, each standing for a value: Valor() is the value of the checked
// one, so a page never walks a chain of isChecked() tests.
// Out of line, so that the template below needs no widget headers.
namespace detalhe {
QButtonGroup* JuntarOpcao(QButtonGroup* grupo, QRadioButton* botao, bool primeiro);
bool OpcaoMarcada(const QRadioButton* botao);
void MarcarOpcao(QRadioButton* botao);
}  // namespace detalhe

template <class T>
class GrupoOpcoes {
public:
    struct Item {
        const char* nome;
        const char* texto;
        QRect onde;
        T valor;
    };

    GrupoOpcoes() = default;
    // The buttons are made in `pai` in the table's order; the first is checked.
    GrupoOpcoes(QWidget* pai, std::initializer_list<Item> itens) { Adicionar(pai, itens); }

    void Adicionar(QWidget* pai, std::initializer_list<Item> itens)
    {
        for (const Item& item : itens)
            Adicionar(Opcao(pai, item.nome, item.texto, item.onde), item.valor);
    }
    QRadioButton* Adicionar(QRadioButton* botao, T valor)
    {
        grupo_ = detalhe::JuntarOpcao(grupo_, botao, opcoes_.empty());
        opcoes_.emplace_back(botao, std::move(valor));
        return botao;
    }

    T Valor() const
    {
        for (const auto& [botao, valor] : opcoes_)
            if (detalhe::OpcaoMarcada(botao))
                return valor;
        return opcoes_.front().second;
    }
    void Marcar(const T& valor) const
    {
        for (const auto& [botao, v] : opcoes_)
            if (v == valor)
                detalhe::MarcarOpcao(botao);
    }
    QRadioButton* Botao(const T& valor) const
    {
        for (const auto& [botao, v] : opcoes_)
            if (v == valor)
                return botao;
        return nullptr;
    }
    const std::vector<std::pair<QRadioButton*, T>>& Opcoes() const { return opcoes_; }

private:
    QButtonGroup* grupo_ = nullptr;
    std::vector<std::pair<QRadioButton*, T>> opcoes_;
};

// A colour chosen with the colour dialog: the button that opens it and the swatch label that
// shows the colour. Each picker is its own dialog and keeps its last colour.
class SeletorCor : public QObject {
    Q_OBJECT
public:
    SeletorCor(QWidget* pai, const char* nomeBotao, const char* texto, QRect ondeBotao,
               const char* nomeAmostra, QRect ondeAmostra, QColor inicial = Qt::black);

    QColor Cor() const { return cor_; }
    void DefinirCor(const QColor& cor);
    QPushButton* BotaoEscolher() const { return botao_; }
    QLabel* Amostra() const { return amostra_; }

signals:
    void Escolhida(const QColor& cor);

private:
    void Escolher();

    QPushButton* botao_;
    QLabel* amostra_;
    QColor cor_;
};

}  // namespace lumerina
