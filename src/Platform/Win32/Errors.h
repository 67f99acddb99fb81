// The system's error codes as errors of the program.
#pragma once

#include <cstdint>

#include "Platform/RuntimeError.h"

namespace trovex {

// The one place where an error code of the system becomes a run-time error's number.
ErrorNumber ErrorNumberOf(std::uint32_t code);

}  // namespace trovex
