// Lists what lies beside the row's file and shows what explains it best. Raises
// kPathNotFound for a missing disk of a set.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void ListCompanions(MainForm& form, Grid& grid, const Text& sFichier, const Folder& folder);

}  // namespace trovex
