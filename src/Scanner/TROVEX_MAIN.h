// The scanner: walks a tree, puts each program and archive into the table where it belongs, and
// works out what it is called.
#pragma once

#include <array>

#include "Ui/Grid.h"

namespace trovex {

// Numbers of the three tables.
enum class Table { kInstallation = 0, kExecutables = 1, kArchives = 2 };
inline constexpr int kTableCount = 3;

// The grids that the scanner fills; their owner registers them and, before they go, takes them back
// with an empty array.
void RegisterTables(const std::array<Grid*, kTableCount>& tables);

// Walks the tree below `sPath` in pre-order; `bListerDabord` says whether the files of `sPath`
// itself are classified first. `ctlRafraichir` is repainted once per direct subdirectory. A
// directory that has gone when its turn comes raises kPathNotFound.
void ExplorerRepertoire(const Text& sPath, bool bListerDabord, Control* ctlRafraichir = nullptr);

// Classifies the files of one directory.
void ClasserFichiers(const Text& sPath);

// Name, in proper case, of the first subdirectory, or empty. Errors are ignored.
Text PremierSousRepertoire(const Text& sPath);

// Adds at most one row for the file to the table and fills it.
void AnalyserFichier(Grid& grid, const Text& sPath, const Text& sFichier);

}  // namespace trovex
