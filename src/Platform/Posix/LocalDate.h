// The system's file times as the program's dates.
#pragma once

#include <ctime>

#include "Platform/Platform.h"

namespace trovex::posix {

// In local time. Times outside the years 1601 to 9999 become the nearest of them.
LocalTime LocalDate(std::time_t seconds);

}  // namespace trovex::posix
