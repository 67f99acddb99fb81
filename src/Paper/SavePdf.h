// A document's pages saved as a PDF file.
#pragma once

#include "Ui/Pages.h"

namespace trovex {

// Writes the file, replacing it. A failure is told by the error box, leaves no file behind and
// gives false.
bool SavePdf(const Pages& pages, const Text& file);

}  // namespace trovex
