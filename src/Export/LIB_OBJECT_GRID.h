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

// Asks for a format and a file, then writes the grid there.
void GridExportAscii(Grid& grid);

// Writes every cell, fixed ones included, just as it reads: a line a row, ended by CR LF, in
// Windows-1252, replacing the file. `sSeparateur` (a tab if left out) stands between two cells,
// `sGuillemet` (nothing if left out) before and after each; neither is escaped within a cell.
// Errors end in the error box; what was written so far stays.
void GridExport(Grid& grid, const Text& sFichier,
                const std::optional<Text>& sSeparateur = std::nullopt,
                const std::optional<Text>& sGuillemet = std::nullopt);

}  // namespace trovex
