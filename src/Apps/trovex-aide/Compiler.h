// trovex-aide without its process: what a test calls as well.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace trovex::aide {

// Exit statuses.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;  // the source has mistakes, or a file cannot be written
inline constexpr int kWrongCommandLine = 2;

// trovex-aide SOURCE-FOLDER [--hlp FILE] [--html FOLDER] [--cpp FILE]: makes of the help's source
// the help file, the HTML pages, and a C++ source that holds those pages. Mistakes of the source go
// to `err`, one line each, "file:line: what is wrong", and then nothing is written.
int Run(const std::vector<std::string>& arguments, std::ostream& err);

}  // namespace trovex::aide
