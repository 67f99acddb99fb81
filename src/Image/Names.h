// Names of files and volumes as they are recorded on a disc.
#pragma once

#include <string_view>

#include "Image/Descriptor.h"
#include "Platform/Text.h"

namespace trovex::image {

// The name that an identifier stands for, as Windows shows it: without its version and one final
// point, its letters as they are; plain bytes above 7F are of code page 850. A character that could
// not stand in a name of the program ('\', '/', ':', NUL) becomes U+F000 + its code. Never empty.
Text NameText(std::string_view identifier, Format format);

// A volume's label without the blanks and NULs behind it.
Text LabelText(std::string_view label, Format format);

}  // namespace trovex::image
