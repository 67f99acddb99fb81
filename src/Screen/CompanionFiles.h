// The companions of a row's file.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

// Lib_Form's file list shows the folder under the pattern that it has. Raises kPathNotFound where
// there is no such directory, kPathFileAccess where it cannot be read; the list stays as it was.
void ListFolder(const Folder& folder);

// Lists what lies beside the row's file and shows what explains it best. Raises as ListFolder for a
// disk of a set.
void ListCompanions(MainForm& form, Grid& grid, const Text& sFichier, const Folder& folder);

}  // namespace trovex
