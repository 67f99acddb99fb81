// What the machine says of itself.
#pragma once

#include "Platform/Text.h"

namespace trovex::LIB_SYSTEME {

// Windows and system directory with a final backslash, read into 50 characters: a longer name gives
// a lone backslash. Empty where the system gives none.
Text sRepertoireWindows();
Text sRepertoireSysteme();

}  // namespace trovex::LIB_SYSTEME
