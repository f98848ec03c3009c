#pragma once
// The platform seam: every dialog, the clipboard, the pointer, the yield, the sleep and the
// clock seed go through one object, so that tests can replace them with a recorder.

#include <QColor>
#include <QElapsedTimer>
#include <QImage>
#include <QString>

#include <cstdint>
#include <memory>

class QFileDialog;
class QMessageBox;
class QWidget;

namespace lumerina {

enum class IconeMensagem { Nenhum, Informacao };

// What a save dialog answers: the chosen file name (empty when cancelled), already given
// the default extension when none was typed, and whether a different extension was typed.
struct RespostaGuardar {
    QString ficheiro;
    bool extensaoDiferente = false;
};

// The rule shared by the real dialog and the test recorder: a typed name without an
// extension gets the default one; a typed extension other than the default is reported.
RespostaGuardar ResolverNomeGuardar(const QString& escrito, const QString& extensaoPredefinida);

class Plataforma {
public:
    virtual ~Plataforma() = default;

    // Modal message box with an OK button.
    virtual void Mensagem(QWidget* dono, const QString& titulo, const QString& texto,
                          IconeMensagem icone) = 0;
    // Colour dialog: the chosen colour, or `actual` when the user cancels.
    virtual QColor EscolherCor(QWidget* dono, const QColor& actual) = 0;
    // Save dialog with a filter such as "Mapa de bits (*.bmp)|*.bmp" and a default extension.
    virtual RespostaGuardar DialogoGuardar(QWidget* dono, const QString& filtro,
                                           const QString& extensaoPredefinida) = 0;
    virtual void CopiarImagem(const QImage& imagem) = 0;
    virtual void CursorEspera(QWidget* pagina, bool ligado) = 0;
    // Lets the event loop run. Returns false once the program is ending: the caller must
    // abandon its drawing at once.
    virtual bool Ceder() = 0;
    // Waits, handling events meanwhile, so that the program stays responsive; returns early
    // once the program is ending.
    virtual void Dormir(int milissegundos) = 0;
    virtual std::uint32_t SementeRelogio() = 0;

    // "Abandonar o programa": from now on every yield answers false.
    void PedirFim() { aTerminar_ = true; }
    void RetomarDepoisDoFim() { aTerminar_ = false; }
    bool ATerminar() const { return aTerminar_; }

private:
    bool aTerminar_ = false;
};

// The real platform: Qt's message box, colour and file dialogs, clipboard and event loop.
class PlataformaQt : public Plataforma {
public:
    void Mensagem(QWidget* dono, const QString& titulo, const QString& texto,
                  IconeMensagem icone) override;
    QColor EscolherCor(QWidget* dono, const QColor& actual) override;
    RespostaGuardar DialogoGuardar(QWidget* dono, const QString& filtro,
                                   const QString& extensaoPredefinida) override;
    void CopiarImagem(const QImage& imagem) override;
    void CursorEspera(QWidget* pagina, bool ligado) override;
    bool Ceder() override;
    void Dormir(int milissegundos) override;
    std::uint32_t SementeRelogio() override;

private:
    QElapsedTimer desdeCedencia_;
};

// The dialogs PlataformaQt shows, built but not yet shown (tests look inside them).
// The message box is at least wide enough for its whole title on the window's caption bar.
std::unique_ptr<QMessageBox> CriarCaixaMensagem(QWidget* dono, const QString& titulo,
                                                const QString& texto, IconeMensagem icone);
std::unique_ptr<QFileDialog> CriarDialogoGuardar(QWidget* dono, const QString& filtro);

// The platform in force (a PlataformaQt until another is installed).
Plataforma& Sistema();
// Installs another platform (tests); returns the previous one.
std::unique_ptr<Plataforma> InstalarPlataforma(std::unique_ptr<Plataforma> nova);

}  // namespace lumerina
