// Where the program ends in a command line and its arguments begin.
#pragma once

#include <functional>

#include "Platform/Text.h"

namespace trovex {

struct CommandLine {
  Text program;  // without quotes
  Text arguments;

  // The line with the program in quotes where its name holds blanks: the system would otherwise
  // start whatever bears the beginning of that name.
  Text Whole() const;
};

// The program is what stands in quotes; else the longest beginning of the line, up to a blank or
// its end, that is the name of a file. Where none is, a line that begins with a drive's root or two
// backslashes names a program that is missing, up to its first ".exe" before a blank or the end, or
// as a whole; of any other line it is what stands before the first blank.
CommandLine SplitCommandLine(const Text& line, const std::function<bool(const Text&)>& is_file);

}  // namespace trovex
