// The one place where bytes become text and text becomes bytes.
#pragma once

#include <string>
#include <string_view>

#include "Platform/Text.h"

namespace trovex {

// Windows-1252, the encoding of file contents. The five undefined bytes (81, 8D, 8F, 90, 9D)
// become the control character of the same value and back again; a character that the code page
// lacks becomes '?'.
Text FromCp1252(std::string_view bytes);
std::string ToCp1252(TextView text);

// UTF-8, the encoding of POSIX names and of the terminal. A byte that belongs to no valid sequence
// becomes the lone surrogate U+DC00 + byte, which ToUtf8 turns back into that byte: every POSIX
// name survives the round trip.
Text FromUtf8(std::string_view bytes);
std::string ToUtf8(TextView text);

// As ToUtf8, but always valid UTF-8: a lone surrogate becomes U+FFFD.
std::string ToStrictUtf8(TextView text);

}  // namespace trovex
