#pragma once
// The column loop of the escape-time pages. A page feeds it with its column kernel; the loop
// owns the order of the columns, the writing of the picture and the yield.

#include "frame/EsquemaCores.h"

#include <functional>

namespace lumerina {

class ControloImagem;

// Colours of column i: cores[j] for the row counters j = 0..H (H + 1 colours, j = 0 being the
// bottom row, drawn at picture row H − j).
using ColunaCores = std::function<void(int i, Cor* cores)>;

// Columns i = 0..W inclusive, left to right, with a yield after every column; `aposCeder`
// runs right after each yield, the only moment at which a field the page re-reads can have
// changed. Columns that fall outside the picture are not coloured (the loop still visits
// them, with their yield). The picture may be resized during the drawing (its scroll bars
// stay live): whatever falls outside it then is dropped.
//
// Columns are written a block at a time, row by row: a single column touches one cache line
// per row, a block fills them. The screen repaints about 60 times a second, so nobody sees
// the blocks.
//
// How the columns are written. `subir` raises every row: row counter j is drawn at picture
// row H − subir − j. With `manterFundo`, a colour kSemCor leaves the picture's pixel as it
// is (a point that is not drawn keeps the background).
struct EscritaColunas {
    int subir = 0;
    bool manterFundo = false;
};

// False when the program is ending: the caller abandons its drawing at once.
bool DesenharColunas(ControloImagem& imagem, double W, int H, const ColunaCores& colorir,
                     const std::function<void()>& aposCeder = {}, EscritaColunas escrita = {});

}  // namespace lumerina
