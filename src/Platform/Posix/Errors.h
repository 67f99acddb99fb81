// The system's error numbers (errno) as errors of the program.
#pragma once

#include <cstdint>

#include "Platform/RuntimeError.h"

namespace trovex::posix {

// The one place where an errno becomes a run-time error's number.
ErrorNumber ErrorNumberOf(int error);

// The code by which Windows knows such an error; 0 where it has none, or where its text would not
// be about what happened.
std::uint32_t SystemCodeOf(int error);

// True for the errors that say that there is nothing by a name, rather than that it cannot be
// reached.
bool IsMissing(int error);

// Both at once.
RuntimeError ErrorOf(int error);

}  // namespace trovex::posix
