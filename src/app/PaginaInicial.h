#pragma once
// The main page "Form5": the program's title, version and screen size, and the topics.

#include "app/PaginaBase.h"

namespace lumerina {

class PaginaInicial : public PaginaBase {
    Q_OBJECT
public:
    explicit PaginaInicial(const DescricaoPagina& descricao, QWidget* pai = nullptr);
};

}  // namespace lumerina
