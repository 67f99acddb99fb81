// The command line of trovex-cli.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace trovex::cli {

struct Options {
  std::vector<std::string> discs;  // one, or with a report any number
  char drive = 'D';
  std::optional<std::string> start;
  std::optional<std::string> ini;   // a file name of the host's
  std::optional<std::string> html;  // likewise, as those that follow
  std::optional<std::string> csv;
  std::optional<std::string> prn;
  std::optional<std::string> txt;
  std::optional<std::string> pdf;
  std::optional<int> table;
  bool drop_drive = false;
  bool json = false;
  bool inspect = false;
  std::optional<std::string> report;
  bool hash = false;
  bool unicode_records = false;
  bool quiet = false;
};

// What became of a command line: options to work with, or a text for standard output or, with an
// exit status other than 0, a line for standard error.
struct Parsed {
  std::optional<Options> options;
  int exit_status = 0;
  std::string output;
};

// `arguments` are UTF-8, without the program's name.
Parsed ParseArguments(const std::vector<std::string>& arguments);

}  // namespace trovex::cli
