#include "Platform/Win32/CommandLine.h"

namespace trovex {
namespace {

CommandLine SplitAt(const Text& line, std::size_t end) {
  const std::size_t next = end == Text::npos ? end : line.find_first_not_of(u' ', end);
  return {line.substr(0, end), next == Text::npos ? Text() : line.substr(next)};
}

bool NamesAPlace(const Text& line) {
  return line.starts_with(u"\\\\") || line.find(u":\\") == 1;
}

// Where the program ends that cannot be found: a shorter name would be another program's.
std::size_t EndOfMissing(const Text& line) {
  constexpr TextView kExtension = u".EXE";
  const Text upper = ToUpper(line);
  for (std::size_t at = upper.find(kExtension); at != Text::npos;
       at = upper.find(kExtension, at + 1)) {
    const std::size_t end = at + kExtension.size();
    if (end == line.size() || line[end] == u' ') return end;
  }
  return line.size();
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
  return SplitAt(line, NamesAPlace(line) ? EndOfMissing(line) : line.find(u' '));
}

}  // namespace trovex
