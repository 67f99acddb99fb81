// Writing a grid to delimited text.
#pragma once

#include <optional>

#include "Lib/ExportOutcome.h"
#include "Ui/Grid.h"

namespace trovex {

// Asks for a format and a file, then writes the grid there.
ExportOutcome GridExportAscii(Grid& grid);

// Writes every cell, fixed ones included, just as it reads: a line a row, ended by CR LF, in
// Windows-1252, replacing the file. `sSeparateur` (a tab if left out) stands between two cells,
// `sGuillemet` (nothing if left out) before and after each; neither is escaped within a cell.
// Errors end in the error box; what was written so far stays.
ExportOutcome GridExport(Grid& grid, const Text& sFichier,
                         const std::optional<Text>& sSeparateur = std::nullopt,
                         const std::optional<Text>& sGuillemet = std::nullopt);

}  // namespace trovex
