// What starting programs asks of the system, in a table: a test, which starts none that asks for
// more rights, puts its own in place.
#pragma once

#include "Platform/Win32/Windows.h"

namespace trovex {

struct StartCalls {
  decltype(&CreateProcessW) create_process;
  decltype(&ShellExecuteW) shell_execute;
};

// The system's own, until somebody changes them.
StartCalls& Starts();

}  // namespace trovex
