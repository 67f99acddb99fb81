// What works on a table grid as such, whatever it shows. All of it moves the grid's current cell.
#pragma once

#include <optional>

#include "Ui/Grid.h"

namespace trovex {

// The row that the caller is to fill, with Row left on it: with `bReutiliser` the bottom-most row
// whose cell in `iCol` is free, else a new one. The row's cells hold `sValeurVide` ("-1" if left
// out), or the fields of `sTexteLigne` if that is given: then the row is always appended, and the
// free one goes. A row that cannot be added is reported by the error box and gives 0.
int iGetClearLineGrid(Grid& grid, int iCol, bool bReutiliser,
                      std::optional<TextView> sValeurVide = std::nullopt,
                      std::optional<TextView> sTexteLigne = std::nullopt);

// Takes the grid down to one free line that holds `sTexte`.
void ClearGrid(Grid& grid, TextView sTexte);

// Writes `sTexte` into every cell of a line that is not fixed; a line beyond the last one is left
// alone.
void ClearLineGrid(Grid& grid, int iLigne, TextView sTexte);

}  // namespace trovex
