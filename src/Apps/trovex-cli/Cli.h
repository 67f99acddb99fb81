// trovex-cli without its process: what a test calls as well.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace trovex::cli {

// Exit statuses.
inline constexpr int kDone = 0;
inline constexpr int kExportFailed = 1;
inline constexpr int kWrongCommandLine = 2;
inline constexpr int kRuntimeError = 3;
inline constexpr int kIncomplete = 4;  // something could not be read; 3 and 1 go before

// Does what the arguments (UTF-8, without the program's name) say and gives the exit status.
// Progress goes to `err` only where `err_is_terminal`.
int Run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
        bool err_is_terminal);

}  // namespace trovex::cli
