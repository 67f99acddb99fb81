// A document's pages saved as a PDF file.
#pragma once

#include "Ui/Pages.h"

namespace trovex {

// Writes the file, replacing it as a whole. A failure is told by the error box and gives false; a
// former file is then as it was.
bool SavePdf(const Pages& pages, const Text& file);

}  // namespace trovex
