#pragma once
// "SUCESSÕES" (Form14): eight worked exercises in which a sequence arises from the stages of
// a geometric construction. Choosing an example draws stages 0 to 3 in Picture1 and shows
// how the construction goes; "Ver solução" shows the answer, over several sheets turned with
// arrows for examples 3, 7 and 8.

#include "app/PaginaBase.h"
#include "frame/Controlos.h"

#include <QImage>
#include <QString>

#include <array>
#include <vector>

class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QToolButton;

namespace lumerina {

class ControloImagem;

// The explanation and solution texts: the names of their pictures, example by example.
struct TextosExemplo {
    const char* construcao;               // ImageAk
    std::vector<const char*> solucao;     // ImageB1 … ImageB82, one to four sheets
};
const TextosExemplo& Textos(int exemplo);  // 1..8
// The text behind a picture of the page (":/sucessoes/<name>.html"); empty if missing.
QString TextoSucessao(const char* imagem);

// Stages 0 to 3 of example 1..8, side by side, labelled "(0)" to "(3)", in a picture of the
// given size. Segment-like constructions (examples 1, 2, 3, 6) take four rows, the plane
// figures a 2 x 2 grid; stage k is drawn in CorEtapa(k).
QImage DesenharEtapas(int exemplo, QSize tamanho);
QRgb CorEtapa(int etapa);

class PaginaSucessoes : public PaginaBase {
    Q_OBJECT
public:
    static constexpr int kLadoImagem = 480;        // Picture1
    static constexpr int kLarguraTexto = 488;      // the explanation and solution pictures
    static constexpr int kAlturaTexto = 520;

    explicit PaginaSucessoes(const DescricaoPagina& descricao, QWidget* pai = nullptr);

    ControloImagem* Imagem() const { return imagem_; }
    // The example of the checked option of "Exemplos" (Option1, example 1, at first).
    int ExemploActual() const;

    void EscolherExemplo(int exemplo);  // an option of "Exemplos"
    void VerSolucao();                  // VerSolução: the solution of the checked example
    void Apagar();                      // Apagar
    void SolucaoSeguinte(int exemplo);  // right arrow of a several-sheet solution
    void SolucaoAnterior(int exemplo);  // left arrow

private:
    struct Painel {
        QGroupBox* construcao = nullptr;        // Construção1(k)
        QLabel* imagemConstrucao = nullptr;
        QGroupBox* solucao = nullptr;           // Solução1(k)
        std::vector<QLabel*> imagensSolucao;
        QToolButton* setaE = nullptr;           // examples 3, 7, 8
        QToolButton* setaD = nullptr;
        int folha = 0;                          // sheet of the solution shown
    };

    void ConstruirPaineis(QWidget* area);
    void MostrarFolha(Painel& painel, int folha);
    static void MostrarImagem(QLabel* imagem);
    static void EsconderImagem(QLabel* imagem);

    ControloImagem* imagem_ = nullptr;
    GrupoOpcoes<int> exemplos_;                 // the options of "Exemplos", by example
    std::array<Painel, 9> paineis_{};           // by example number, [0] unused
};

}  // namespace lumerina
