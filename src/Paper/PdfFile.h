// A document's pages as a PDF file. Texts stand in the standard fonts that every reader has, so
// that the file is small and can be searched; what Windows-1252 lacks becomes '?'.
#pragma once

#include <functional>
#include <string_view>

#include "Ui/Pages.h"

namespace trovex {

// Hands the file's bytes, page by page, to `write`. Equal pages give equal bytes.
void WritePdf(const Pages& pages, const std::function<void(std::string_view)>& write);

}  // namespace trovex
