// Settings files too large for the system's profile functions. An input is a section, a key and a
// value, a line each, and the file. Its length is told as that of a large one: the readers choose
// their way by it and ask no further.
#include <algorithm>

#include "Lib/LIB_INI.h"
#include "Platform/Encoding.h"
#include "support/MemoryDisc.h"
#include "support/Target.h"

namespace trovex::fuzz {
namespace {

const Text kFile = u"D:\\GROS.INI";

// The lines as they are written: each with CR LF.
std::vector<std::string> LinesOf(std::string_view file) {
  std::vector<std::string> lines;
  while (!file.empty()) {
    const std::size_t end = std::min(file.find_first_of("\r\n"), file.size());
    lines.emplace_back(file.substr(0, end));
    file.remove_prefix(end);
    file.remove_prefix(file.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, file.size()));
  }
  return lines;
}

// How many lines of `before` stand neither at the beginning nor at the end of `after`.
std::size_t Lost(const std::vector<std::string>& before, const std::vector<std::string>& after) {
  const std::size_t most = std::min(before.size(), after.size());
  std::size_t head = 0, tail = 0;
  while (head < most && before[head] == after[head]) ++head;
  while (tail < most - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
    ++tail;
  return before.size() - head - tail;
}

void CheckWritten(const std::string& before, const std::string& after) {
  Promise(after.ends_with("\r\n"), "the last line has its end");
  const auto old_lines = LinesOf(before), new_lines = LinesOf(after);
  const std::size_t lost = Lost(old_lines, new_lines);
  Promise(lost <= 1, "one line at most is replaced");
  const std::size_t added = new_lines.size() + lost - old_lines.size();
  const bool same = lost == 0 && added == 0;  // the value was there already
  Promise(same || added == 1 || (lost == 0 && added == 3), "a value is a line, a section two more");
}

}  // namespace

void Try(std::string_view input) {
  MemoryDisc disc;
  disc.least_length = kGrosFichier;
  sDernierFichierIni.clear();
  const Text section = FromCp1252(TakeLine(input)), key = FromCp1252(TakeLine(input));
  const Text value = FromCp1252(TakeLine(input)), none = u"\uFFFD";
  std::string& file = disc.files[kFile] = std::string(input);
  const std::string before = file;

  const Text read = sLitIni(section, key, none, kFile);
  Promise(read == none || before.find(ToCp1252(read)) != std::string::npos,
          "a value is part of the file");
  Promise(sLitIniGrosFichier(section, key, none, kFile) == read, "both ways read the same");
  Promise(disc.files[kFile] == before, "reading changes nothing");
  // What breaks a line is no value of one line; nobody writes such.
  if (section.find(u'\r') != Text::npos || key.find(u'\r') != Text::npos ||
      value.find(u'\r') != Text::npos)
    return;
  PutIniString(section, key, value, kFile);
  CheckWritten(before, file);
  Promise(disc.files.size() == 1 && !disc.HasOpenFiles(), "no temporary file is left");
  Promise(disc.view.Boxes().empty(), "a file that can be written raises no box");
}

void Seeds(const TakeSeed& take) {
  take("known", "a\nk\nneuf\n[a]\r\nk=vieux\r\n\r\n[b]\r\nk=2\r\n");
  take("new-key", "a\nn\n1\n[a]\nk=0\n\n[b]\n");
  take("new-section", "c\nk\n1\n[a]\r\nk=0");
  take("comment", "a\nPREMIER\n1\n[a]\r\nREM PREMIER=0\r\nPREMIER=0\r\n");
  take("next-section", "a\nk\n1\n[a]\r\n[b]\r\nk = 3\r\n");
}

}  // namespace trovex::fuzz
