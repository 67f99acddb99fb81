#include "Platform/Console.h"

#include <unistd.h>

namespace trovex {

std::vector<std::string> CommandLineArguments(int argc, char** argv) {
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

void PrepareConsole() {}

bool ErrorIsTerminal() {
  return isatty(STDERR_FILENO) == 1;
}

}  // namespace trovex
