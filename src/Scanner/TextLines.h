// What the scanner reads of a file to name a program: first lines and the product's name.
#pragma once

#include <cstddef>

#include "Platform/Text.h"

namespace trovex {

// The longest text that the program's 16-bit positions reach; no line is taken further.
inline constexpr std::size_t kLongestLine = 32767;

// The first or second line of a text file, at most `longest` characters of it; empty where the file
// has fewer lines. A file that cannot be opened or read is reported by the error box and gives an
// empty line.
Text sPremiereLigne(const Text& sFile, std::size_t longest = kLongestLine);
Text sDeuxiemeLigne(const Text& sFile, std::size_t longest = kLongestLine);

// What follows the key ProductName in the file's version record, to the record's end and not only
// to its NUL; "Ne contient pas de nom produit." where there is none. Empty for an empty name.
Text vNomProduit(const Text& sFile);

}  // namespace trovex
