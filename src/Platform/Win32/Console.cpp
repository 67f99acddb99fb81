#include "Platform/Console.h"

#include <fcntl.h>
#include <io.h>
#include <stdio.h>

#include "Platform/Encoding.h"
#include "Platform/Win32/Unfinished.h"
#include "Platform/Win32/Windows.h"
// shellapi.h needs what Windows.h brings.
#include <shellapi.h>

namespace trovex {

std::vector<std::string> CommandLineArguments(int, char**) {
  int count = 0;
  wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> result;
  for (int i = 1; arguments != nullptr && i < count; ++i) {
    const std::wstring argument = arguments[i];
    result.push_back(ToUtf8(Text(argument.begin(), argument.end())));
  }
  LocalFree(arguments);
  return result;
}

void PrepareConsole() {
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
}

void PrepareStack() {}

void RemoveUnfinishedFilesAtTheEnd() {
  RemoveUnfinishedAtControlEvents();
}

bool ErrorIsTerminal() {
  return _isatty(_fileno(stderr)) != 0;
}

}  // namespace trovex
