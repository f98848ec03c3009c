#pragma once
// The main page "Form5": the program's title, version and screen size, and the topics with
// a small picture of each.

#include "app/PaginaBase.h"

namespace lumerina {

class PaginaInicial : public PaginaBase {
    Q_OBJECT
public:
    // Size of the topics' pictures, in device-independent pixels.
    static constexpr int kLarguraFigura = 160;
    static constexpr int kAlturaFigura = 90;

    explicit PaginaInicial(const DescricaoPagina& descricao, QWidget* pai = nullptr);
};

}  // namespace lumerina
