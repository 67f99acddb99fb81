// The scanner: walks a tree, puts each program and archive into the table where it belongs, and
// works out what it is called.
#pragma once

#include <array>

#include "Scanner/Surroundings.h"
#include "Ui/Grid.h"

namespace trovex {

// Numbers of the three tables.
enum class Table { kInstallation = 0, kExecutables = 1, kArchives = 2 };
inline constexpr int kTableCount = 3;

// The grids that the scanner fills; their owner registers them and, before they go, takes them back
// with an empty array.
void RegisterTables(const std::array<Grid*, kTableCount>& tables);

// The number of a table that is registered; kNoTable for any other grid.
inline constexpr int kNoTable = -1;
int NumberOf(const Grid& grid);

// Walks the tree below `sPath` in pre-order; `bListerDabord` says whether the files of `sPath`
// itself are classified first. `ctlRafraichir` is repainted once per direct subdirectory. A
// directory that has gone when its turn comes raises kPathNotFound.
void ExplorerRepertoire(const Text& sPath, bool bListerDabord, Control* ctlRafraichir = nullptr);

// Classifies the files of one directory. Raises kPathNotFound where there is none.
void ClasserFichiers(const Folder& folder);

// Name, in proper case, of the first subdirectory, or empty.
Text PremierSousRepertoire(const Folder& folder);

// Adds at most one row for the file to the table and fills it; `beside` is the directory it lies
// in.
void AnalyserFichier(Grid& grid, Surroundings& beside, const Text& sFichier);

}  // namespace trovex
