// Texts as JSON writes them.
#pragma once

#include <string>

#include "Platform/Text.h"

namespace trovex::cli {

// The text as a JSON string in UTF-8, quotes included; a lone surrogate becomes U+FFFD.
std::string Quoted(TextView text);

}  // namespace trovex::cli
