// The system's error numbers (errno) as errors of the program.
#pragma once

#include "Platform/RuntimeError.h"
#include "Platform/Text.h"

namespace trovex::posix {

// The one place where an errno becomes a run-time error's number.
ErrorNumber ErrorNumberOf(int error);

// The system's text for an errno, the same in every locale.
Text ErrorText(int error);

}  // namespace trovex::posix
