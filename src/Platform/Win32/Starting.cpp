// Programs and documents that are started: the real calls.
#include <algorithm>

#include "Platform/Win32/CommandLine.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Redirection.h"
#include "Platform/Win32/StartCalls.h"
#include "Platform/Win32/Win32Platform.h"

namespace trovex {
namespace {

constexpr DWORD kLongestName = 32768;      // characters
constexpr DWORD kElevationRequired = 740;  // the program asks for more rights
constexpr int kLeastSuccess = 33;          // of the shell

int ResultOf(HINSTANCE instance) {
  const auto result = reinterpret_cast<std::intptr_t>(instance);
  return static_cast<int>(std::min<std::intptr_t>(result, kLeastSuccess));
}

bool IsFile(const Text& name) {
  const Text verbatim = VerbatimName(name);
  if (verbatim.empty()) return false;
  const DWORD attributes = GetFileAttributesW(Wide(verbatim));
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// What the shell starts meanwhile meets errors as any program does, not as this one.
class ErrorModeOfOthers {
 public:
  ErrorModeOfOthers() : own_(SetErrorMode(0)) {}
  ~ErrorModeOfOthers() { SetErrorMode(own_); }
  ErrorModeOfOthers(const ErrorModeOfOthers&) = delete;
  ErrorModeOfOthers& operator=(const ErrorModeOfOthers&) = delete;

 private:
  UINT own_;
};

// ERROR_SUCCESS, or why the program did not start. The application's name stays null: a program of
// 16 bits starts by its line alone.
DWORD Start(const CommandLine& program, int mode) {
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = static_cast<WORD>(mode);
  PROCESS_INFORMATION process = {};
  Text line = program.Whole();
  if (!Starts().create_process(nullptr, Wide(line), nullptr, nullptr, FALSE,
                               CREATE_DEFAULT_ERROR_MODE, nullptr, nullptr, &start, &process)) {
    return ::GetLastError();
  }
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return ERROR_SUCCESS;
}

// A program that asks for more rights starts only through the shell, which takes its arguments by
// themselves.
bool StartWithMoreRights(const CommandLine& program, int mode) {
  const ErrorModeOfOthers error_mode;
  return ResultOf(Starts().shell_execute(nullptr, nullptr, Wide(program.program),
                                         Wide(program.arguments), nullptr, mode)) >= kLeastSuccess;
}

}  // namespace

StartCalls& Starts() {
  static StartCalls calls = {CreateProcessW, ShellExecuteW};
  return calls;
}

int Win32Platform::ShellExecute(const Text& verb, const Text& file, const Text& parameters,
                                const Text& directory, int show) {
  const ErrorModeOfOthers mode;
  return ResultOf(Starts().shell_execute(GetDesktopWindow(), Wide(verb), Wide(file),
                                         Wide(parameters), Wide(directory), show));
}

int Win32Platform::FindExecutable(const Text& file, const Text& directory, Text& buffer) {
  Text found(std::max<std::size_t>(MAX_PATH, kLongestName), u'\0');
  const int result = ResultOf(FindExecutableW(Wide(file), Wide(directory), Wide(found)));
  found.resize(std::min(found.find(u'\0'), found.size()));
  if (result < kLeastSuccess) found.clear();
  // Name and terminator, as far as the buffer reaches.
  for (std::size_t i = 0; i < std::min(found.size() + 1, buffer.size()); ++i) {
    buffer[i] = i < found.size() && i + 1 < buffer.size() ? found[i] : u'\0';
  }
  return result;
}

void Win32Platform::StartProgram(const Text& command_line, int mode) {
  CommandLine program;
  DWORD code = ERROR_SUCCESS;
  {
    const Unredirected unredirected;
    program = SplitCommandLine(command_line, IsFile);
    code = Start(program, mode);
  }
  // The shell loads libraries of its own, which it finds only where redirection leads it.
  const bool started =
      code == ERROR_SUCCESS || (code == kElevationRequired && StartWithMoreRights(program, mode));
  if (started) return;
  const bool missing = code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND;
  throw RuntimeError(missing ? ErrorNumber::kFileNotFound : ErrorNumber::kInvalidCall);
}

}  // namespace trovex
