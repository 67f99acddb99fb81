// The export of the tables to a frameset file, a page of tables and a page of data.
#pragma once

#include "Lib/ExportOutcome.h"
#include "Screen/MainForm.h"

namespace trovex {

// What the user was asked before an export.
struct HtmlExportWish {
  Text sFichier;               // the frameset file
  int iTableau = -1;           // 0 to 2, -1 for all
  bool bGarderLecteur = true;  // the location keeps its drive letter
};

// Writes the three files. Errors end in the error box; what was written so far stays. A text too
// long to be written counts as a failure, though the rest stands.
ExportOutcome ExportHtml(MainForm& form, const HtmlExportWish& wish);

}  // namespace trovex
