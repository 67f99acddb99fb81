// The program's text: UTF-16 code units, as Windows passes them.
#pragma once

#include <string>
#include <string_view>

namespace trovex {

using Text = std::u16string;
using TextView = std::u16string_view;

// Case mapping is one code unit to one code unit, the same on every system. Only pairs that map
// into each other both ways take part, so that upper(lower(x)) always compares equal to upper(x):
// a name shown in proper case still finds its file. Everything else maps to itself.
char16_t ToUpperBeyondAscii(char16_t unit);
char16_t ToLowerBeyondAscii(char16_t unit);
inline char16_t ToUpper(char16_t unit) {
  if (unit >= 0x80) return ToUpperBeyondAscii(unit);
  return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - (u'a' - u'A')) : unit;
}
inline char16_t ToLower(char16_t unit) {
  if (unit >= 0x80) return ToLowerBeyondAscii(unit);
  return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}
Text ToUpper(TextView text);
Text ToLower(TextView text);

// First character of each word raised, all others lowered; words end at a blank, a tab or a NUL.
Text ProperCase(TextView text);

// The text without blanks (U+0020 only) at both ends.
TextView Trimmed(TextView text);
Text Trim(TextView text);

// True if both texts are the same without regard to case.
bool EqualsNoCase(TextView a, TextView b);

// The value of the number that a text begins with, 0 if it begins with none. Blanks, tabs and
// line feeds are passed over, a sign, digits, a point, an exponent and &H or &O forms are read.
double Val(TextView text);

// A whole number in plain decimal.
Text Decimal(long long number);

}  // namespace trovex
