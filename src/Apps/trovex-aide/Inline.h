// The marks within a paragraph.
#pragma once

#include "Apps/trovex-aide/Book.h"

namespace trovex::aide {

// Splits a paragraph into spans. Lines are separated by '\n', which reads as a blank; `line` is the
// number of the first one.
Spans ReadSpans(const std::string& file, TextView paragraph, int line,
                std::vector<Mistake>& mistakes);

}  // namespace trovex::aide
