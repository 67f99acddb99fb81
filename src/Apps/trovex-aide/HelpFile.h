// The whole help file, as the Windows help engine opens it.
#pragma once

#include <string>

#include "Apps/trovex-aide/Book.h"

namespace trovex::aide {

// The bytes of the help file of a book without mistakes. The layout is that of the public
// description of the Windows 3.1 help file format, uncompressed: a file of files, found through a
// directory. |TOPIC holds the text, |CONTEXT leads from names to it, |TTLBTREE to titles, |KWBTREE,
// |KWDATA and |KWMAP from keywords, |CTXOMAP from numbers (1 is the first topic). The same book
// gives the same bytes.
std::string BuildHelpFile(const Book& book);

// The order of keywords: without regard to case and accents first.
bool KeywordBefore(const Text& a, const Text& b);

}  // namespace trovex::aide
