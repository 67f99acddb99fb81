#include "Platform/Records/ProfileFile.h"

#include <algorithm>

#include "Platform/Encoding.h"

namespace trovex::records {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string_view Stripped(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view WithoutQuotes(std::string_view text) {
  const bool quoted =
      text.size() > 1 && (text[0] == '"' || text[0] == '\'') && text.back() == text.front();
  return quoted ? text.substr(1, text.size() - 2) : text;
}

bool Matches(std::string_view bytes, TextView name) {
  return bytes.size() == name.size() && EqualsNoCase(FromCp1252(bytes), name);
}

// One line, and what it says.
struct Line {
  enum class Kind { kEmpty, kSection, kKey, kOther } kind;
  std::size_t begin, text_end, end;  // in the file; `end` lies behind the line's terminator
  std::string_view name;             // of the section or key
  std::string_view value;            // of the key
};

void Classify(std::string_view text, Line& line) {
  text = Stripped(text);
  line.kind = text.empty() ? Line::Kind::kEmpty : Line::Kind::kOther;
  if (text.empty() || text[0] == ';') return;
  if (text[0] == '[') {
    line.kind = Line::Kind::kSection;
    line.name = text.substr(1, text.find(']') - 1);
  } else if (const std::size_t equals = text.find('='); equals != std::string_view::npos) {
    line.kind = Line::Kind::kKey;
    line.name = Stripped(text.substr(0, equals));
    line.value = Stripped(text.substr(equals + 1));
  }
}

// Goes through the lines of a file; they end at CR LF, CR or LF.
class Lines {
 public:
  explicit Lines(std::string_view file) : file_(file) {}

  std::optional<Line> Next() {
    if (at_ == file_.size()) return std::nullopt;
    Line line = {};
    line.begin = at_;
    line.text_end = std::min(file_.find_first_of("\r\n", at_), file_.size());
    line.end = line.text_end + (file_.substr(line.text_end, 2) == kLineEnd ? 2 : 1);
    at_ = line.end = std::min(line.end, file_.size());
    Classify(file_.substr(line.begin, line.text_end - line.begin), line);
    return line;
  }

 private:
  std::string_view file_;
  std::size_t at_ = 0;
};

// Where a key stands, or would.
struct Spot {
  std::optional<Line> key;
  bool section_found = false;
  std::size_t section_end = 0;  // behind the section's last line that is not empty
};

Spot FindSpot(std::string_view file, TextView section, TextView key) {
  Spot spot;
  Lines lines(file);
  while (const std::optional<Line> line = lines.Next()) {
    if (line->kind == Line::Kind::kSection) {
      if (spot.section_found) break;
      spot.section_found = Matches(line->name, section);
    }
    if (!spot.section_found) continue;
    if (line->kind == Line::Kind::kKey && Matches(line->name, key)) {
      spot.key = line;
      break;
    }
    if (line->kind != Line::Kind::kEmpty) spot.section_end = line->end;
  }
  return spot;
}

TextView StrippedKey(TextView key) {
  const std::size_t first = key.find_first_not_of(u" \t");
  if (first == TextView::npos) return {};
  return key.substr(first, key.find_last_not_of(u" \t") - first + 1);
}

bool EndsLine(std::string_view file) {
  return file.empty() || file.back() == '\n' || file.back() == '\r';
}

}  // namespace

std::optional<std::string_view> FindProfileValue(std::string_view file, TextView section,
                                                 TextView key) {
  const Spot spot = FindSpot(file, section, StrippedKey(key));
  if (!spot.key) return std::nullopt;
  return WithoutQuotes(spot.key->value);
}

std::uint32_t ProfileAnswer(const std::string& bytes, const Text& section, const Text& key,
                            const Text& fallback, Text& buffer, std::uint32_t size) {
  const std::optional<std::string_view> value = FindProfileValue(bytes, section, key);
  // Without trailing blanks; none but blanks leaves nothing.
  buffer = value ? FromCp1252(*value) : fallback.substr(0, fallback.find_last_not_of(u' ') + 1);
  buffer.resize(std::min<std::size_t>(buffer.size(), size == 0 ? 0 : size - 1));
  return static_cast<std::uint32_t>(buffer.size());
}

std::string WithProfileValue(std::string_view file, TextView section, TextView key,
                             TextView value) {
  key = StrippedKey(key);
  const Spot spot = FindSpot(file, section, key);
  if (spot.key) {
    // The key keeps its spelling, and the line its end.
    return std::string(file.substr(0, spot.key->begin))
        .append(spot.key->name)
        .append("=")
        .append(ToCp1252(value))
        .append(file.substr(spot.key->text_end));
  }
  std::string result(file.substr(0, spot.section_found ? spot.section_end : file.size()));
  const std::string_view rest = file.substr(result.size());
  if (!EndsLine(result)) result += kLineEnd;
  if (!spot.section_found) result.append("[").append(ToCp1252(section)).append("]\r\n");
  result.append(ToCp1252(key)).append("=").append(ToCp1252(value)).append(kLineEnd);
  return result.append(rest);
}

}  // namespace trovex::records
