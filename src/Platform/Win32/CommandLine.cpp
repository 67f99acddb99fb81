#include "Platform/Win32/CommandLine.h"

namespace trovex {
namespace {

CommandLine SplitAt(const Text& line, std::size_t end) {
  const std::size_t next = end == Text::npos ? end : line.find_first_not_of(u' ', end);
  return {line.substr(0, end), next == Text::npos ? Text() : line.substr(next)};
}

}  // namespace

Text CommandLine::Whole() const {
  const bool quotes = program.find(u' ') != Text::npos;
  Text line = quotes ? u"\"" + program + u"\"" : program;
  return arguments.empty() ? line : line + u" " + arguments;
}

CommandLine SplitCommandLine(const Text& line, const std::function<bool(const Text&)>& is_file) {
  if (line.starts_with(u'"')) {
    const std::size_t end = line.find(u'"', 1);
    if (end != Text::npos) {
      CommandLine split = SplitAt(line, end + 1);
      split.program = line.substr(1, end - 1);
      return split;
    }
  }
  for (std::size_t end = line.size(); end != Text::npos && end > 0;
       end = line.rfind(u' ', end - 1)) {
    if (is_file(line.substr(0, end))) return SplitAt(line, end);
  }
  return SplitAt(line, line.find(u' '));
}

}  // namespace trovex
