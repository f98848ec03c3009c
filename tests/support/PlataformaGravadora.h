#pragma once
// A platform for tests: it answers the dialogs from queues set up by the test and keeps
// every message, the clipboard and the pointer, so that a test can say "the third message
// was X with title Y".

#include "app/Aplicacao.h"
#include "frame/Plataforma.h"

#include <QCoreApplication>
#include <QWidget>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <vector>

namespace lumerina::teste {

struct MensagemGravada {
    QString titulo;
    QString texto;
    IconeMensagem icone;
};

class PlataformaGravadora : public Plataforma {
public:
    std::vector<MensagemGravada> mensagens;
    std::deque<QColor> coresEscolhidas;   // answers of the colour dialog, in order
    std::deque<QString> nomesEscritos;    // what the user types in the save dialog
    QImage areaTransferencia;
    int copias = 0;
    bool cursorEspera = false;
    int cedencias = 0;
    std::function<void(int)> aoCeder;     // runs inside every yield, with its count
    std::vector<int> sonos;               // every sleep asked for, in milliseconds
    std::function<void(int)> aoDormir;    // runs inside every sleep, with its count
    std::uint32_t semente = 20261123;

    void Mensagem(QWidget*, const QString& titulo, const QString& texto,
                  IconeMensagem icone) override
    {
        mensagens.push_back({titulo, texto, icone});
    }
    QColor EscolherCor(QWidget*, const QColor& actual) override
    {
        if (coresEscolhidas.empty())
            return actual;
        QColor c = coresEscolhidas.front();
        coresEscolhidas.pop_front();
        return c;
    }
    RespostaGuardar DialogoGuardar(QWidget*, const QString&, const QString& extensao) override
    {
        if (nomesEscritos.empty())
            return {};
        QString nome = nomesEscritos.front();
        nomesEscritos.pop_front();
        return ResolverNomeGuardar(nome, extensao);
    }
    void CopiarImagem(const QImage& imagem) override
    {
        areaTransferencia = imagem.copy();
        ++copias;
    }
    void CursorEspera(QWidget*, bool ligado) override { cursorEspera = ligado; }
    bool Ceder() override
    {
        ++cedencias;
        if (aoCeder)
            aoCeder(cedencias);
        if (!ATerminar())
            QCoreApplication::processEvents();
        return !ATerminar();
    }
    void Dormir(int milissegundos) override
    {
        sonos.push_back(milissegundos);
        if (aoDormir)
            aoDormir(static_cast<int>(sonos.size()));
    }
    std::uint32_t SementeRelogio() override { return semente; }

    QString UltimoTexto() const { return mensagens.empty() ? QString() : mensagens.back().texto; }
};

// Installs a recorder for the test and releases every page afterwards.
class TesteUi : public ::testing::Test {
protected:
    void SetUp() override
    {
        auto nova = std::make_unique<PlataformaGravadora>();
        sistema = nova.get();
        anterior_ = InstalarPlataforma(std::move(nova));
    }
    void TearDown() override
    {
        FecharLumerina();
        InstalarPlataforma(std::move(anterior_));
    }

    template <class T = QWidget> T* Achar(QWidget* pai, const char* nome)
    {
        T* w = pai->findChild<T*>(QString::fromUtf8(nome));
        EXPECT_NE(w, nullptr) << "no control named " << nome;
        return w;
    }

    PlataformaGravadora* sistema = nullptr;

private:
    std::unique_ptr<Plataforma> anterior_;
};

}  // namespace lumerina::teste
