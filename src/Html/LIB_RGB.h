// Colour texts: up to six hexadecimal digits in the order blue, green, red, without "#".
#pragma once

#include "Platform/RuntimeError.h"
#include "Platform/Text.h"

namespace trovex {

// The colour value (red in the low byte) of a text, which is raised to capitals; 0, and the
// channels untouched, for a text that is empty, "0", longer than six characters or no number.
int Hexa2RGB(Text& sHexa, int& iRouge, int& iVert, int& iBleu);

// Value of one digit, 0 to 15, or -1. A text of more characters counts as a number if it lies
// between "0" and "9"; one beyond 32767 is reported by the error box and gives -1.
int HexaToDecimal(const Text& sChiffre);

// True if the text begins with a hexadecimal digit; it is cut to that first character, raised.
bool IsHexDigit(Text& sChiffre);

// Hexadecimal form of a colour value, capitals without leading zeros.
Text sHexa(unsigned iCouleur);

}  // namespace trovex
