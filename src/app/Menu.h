#pragma once

namespace lumerina {

class PaginaBase;

// The menu bar every page carries, with the main page's own names where they differ.
void ConstruirMenuComum(PaginaBase* pagina);

}  // namespace lumerina
