#pragma once
// "L-SISTEMAS" (Form9): an axiom rewritten with one rule for F a number of times, then drawn by a
// turtle in pixels of the picture. Sixteen example buttons fill the fields.

#include "app/PaginaBase.h"
#include "geometric/LSistema.h"

#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;

namespace lumerina {

class CaixaTextoLongo;
class JanelaDesenho;

class PaginaLSistemas : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaLSistemas(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    JanelaDesenho* Janela() const { return janela_; }

    // The example buttons in caption order ("1" … "16"), with what each writes.
    struct Exemplo {
        const char* botao;
        const char* legenda;
        const char* axioma;
        const char* regra;
        const char* angPos;
        const char* angNeg;
        const char* repete;
        const char* reducao;
        const char* inicio;
        const char* x;
        const char* y;
    };
    static const Exemplo kExemplos[16];

private:
    void PreencherExemplo(const Exemplo& exemplo);
    void Desenhar();
    // The segments of the program string, block by block, straight into the picture.
    void Percorrer(std::u16string_view programa);

    JanelaDesenho* janela_ = nullptr;
    QLineEdit* axioma_ = nullptr;
    QLineEdit* substituicao_ = nullptr;
    QLineEdit* repete_ = nullptr;
    QLineEdit* xbox_ = nullptr;
    QLineEdit* ybox_ = nullptr;
    QLineEdit* angPos_ = nullptr;
    QLineEdit* angNeg_ = nullptr;
    QLineEdit* inicio_ = nullptr;
    QLineEdit* reducao_ = nullptr;
    CaixaTextoLongo* resultado_ = nullptr;
    QLabel* comprimento_ = nullptr;  // Label8
    QPushButton* desenhar_ = nullptr;

    // The turtle keeps its stack between drawings.
    Tartaruga tartaruga_;
    std::vector<Segmento> segmentos_;
};

// The refusal of a rewriting that would build more than kComprimentoMaximoLSistema characters.
QString TextoLimiteLSistema(std::uint64_t comprimento);

}  // namespace lumerina
