// The fonts of the help file and the numbers under which its texts name them.
#pragma once

#include <cstdint>
#include <string>

namespace trovex::aide {

enum class HelpFont : uint32_t { kBody, kBold, kCode, kTitle, kHeading };

// The internal file |FONT.
std::string FontFile();

}  // namespace trovex::aide
