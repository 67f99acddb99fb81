#include "Platform/Records/ProfileFile.h"

#include <algorithm>

#include "Platform/Encoding.h"

namespace trovex::records {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";

std::string BytesOf(TextView units) {
  std::string bytes;
  for (const char16_t unit : units) {
    if (unit < 0x80) {
      bytes += static_cast<char>(unit);
      continue;
    }
    if (unit < 0x800) {
      bytes += static_cast<char>(0xC0 | unit >> 6);
    } else {
      bytes += static_cast<char>(0xE0 | unit >> 12);
      bytes += static_cast<char>(0x80 | (unit >> 6 & 0x3F));
    }
    bytes += static_cast<char>(0x80 | (unit & 0x3F));
  }
  return bytes;
}

// Of bytes that BytesOf made.
Text UnitsOf(std::string_view bytes) {
  Text units;
  unsigned unit = 0;
  int missing = 0;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const bool first = byte < 0x80 || byte >= 0xC0;
    if (first)
      missing = byte < 0x80 ? 0 : byte < 0xE0 ? 1 : 2;
    else
      --missing;
    unit = first ? byte & (byte < 0x80   ? 0x7F
                           : byte < 0xE0 ? 0x1F
                                         : 0x0F)
                 : unit << 6 | (byte & 0x3F);
    if (missing == 0) units += static_cast<char16_t>(unit);
  }
  return units;
}

// What a file is read as and written back as. One in UTF-16 goes through bytes as UTF-8 has them,
// in which brackets, equal signs and line ends are single bytes as well; but each unit goes by
// itself, so that halves of characters come out as they went in.
struct Form {
  Text (*decode)(std::string_view bytes);
  std::string (*encode)(TextView text);
  bool one_byte_a_character;
};

constexpr Form kAnsi = {FromCp1252, ToCp1252, true};
constexpr Form kUnicode = {UnitsOf, BytesOf, false};

bool IsUtf16(std::string_view file) {
  return file.starts_with(kUtf16Mark);
}

std::string BytesFromUtf16(std::string_view file) {
  file.remove_prefix(kUtf16Mark.size());
  Text text;
  for (std::size_t i = 0; i + 1 < file.size(); i += 2) {
    const auto low = static_cast<unsigned char>(file[i]);
    const auto high = static_cast<unsigned char>(file[i + 1]);
    text += static_cast<char16_t>(high << 8 | low);
  }
  return BytesOf(text);
}

std::string Utf16FromBytes(std::string_view bytes) {
  std::string file(kUtf16Mark);
  for (const char16_t unit : UnitsOf(bytes)) {
    file += static_cast<char>(unit & 0xFF);
    file += static_cast<char>(unit >> 8);
  }
  return file;
}

// The end-of-file mark of MS-DOS counts as a blank.
std::string_view Stripped(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\x1A";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view WithoutQuotes(std::string_view text) {
  const bool quoted =
      text.size() > 1 && (text[0] == '"' || text[0] == '\'') && text.back() == text.front();
  return quoted ? text.substr(1, text.size() - 2) : text;
}

bool Matches(const Form& form, std::string_view bytes, TextView name) {
  if (form.one_byte_a_character && bytes.size() != name.size()) return false;
  return EqualsNoCase(form.decode(bytes), name);
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
    line.name = Stripped(text.substr(1, text.find(']') - 1));
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

Spot FindSpot(const Form& form, std::string_view file, TextView section, TextView key) {
  Spot spot;
  Lines lines(file);
  while (const std::optional<Line> line = lines.Next()) {
    if (line->kind == Line::Kind::kSection) {
      if (spot.section_found) break;
      spot.section_found = Matches(form, line->name, section);
    }
    if (!spot.section_found) continue;
    if (line->kind == Line::Kind::kKey && Matches(form, line->name, key)) {
      spot.key = line;
      break;
    }
    if (line->kind != Line::Kind::kEmpty) spot.section_end = line->end;
  }
  return spot;
}

TextView StrippedName(TextView key) {
  const std::size_t first = key.find_first_not_of(u" \t");
  if (first == TextView::npos) return {};
  return key.substr(first, key.find_last_not_of(u" \t") - first + 1);
}

bool EndsLine(std::string_view file) {
  return file.empty() || file.back() == '\n' || file.back() == '\r';
}

std::string WithValue(const Form& form, std::string_view file, TextView section, TextView key,
                      TextView value) {
  const Spot spot = FindSpot(form, file, section, key);
  if (spot.key) {
    // The key keeps its spelling, and the line its end.
    return std::string(file.substr(0, spot.key->begin))
        .append(spot.key->name)
        .append("=")
        .append(form.encode(value))
        .append(file.substr(spot.key->text_end));
  }
  std::string result(file.substr(0, spot.section_found ? spot.section_end : file.size()));
  const std::string_view rest = file.substr(result.size());
  if (!EndsLine(result)) result += kLineEnd;
  if (!spot.section_found) result.append("[").append(form.encode(section)).append("]\r\n");
  result.append(form.encode(key)).append("=").append(form.encode(value)).append(kLineEnd);
  return result.append(rest);
}

std::optional<Text> ValueIn(const Form& form, std::string_view file, TextView section,
                            TextView key) {
  const Spot spot = FindSpot(form, file, section, key);
  if (!spot.key) return std::nullopt;
  return form.decode(WithoutQuotes(spot.key->value));
}

bool KeyAlone(const Form& form, std::string_view file, TextView section, TextView key) {
  bool inside = false, found = false;
  Lines lines(file);
  while (const std::optional<Line> line = lines.Next()) {
    const std::string_view text = file.substr(line->begin, line->text_end - line->begin);
    if (line->kind == Line::Kind::kSection) {
      inside = Matches(form, line->name, section);
    } else if (inside && line->kind == Line::Kind::kKey && Matches(form, line->name, key)) {
      found = true;
    } else if (line->kind != Line::Kind::kEmpty && !Stripped(text).starts_with(';')) {
      return false;
    }
  }
  return found;
}

}  // namespace

std::optional<Text> FindProfileValue(std::string_view file, TextView section, TextView key) {
  section = StrippedName(section);
  key = StrippedName(key);
  if (!IsUtf16(file)) return ValueIn(kAnsi, file, section, key);
  return ValueIn(kUnicode, BytesFromUtf16(file), section, key);
}

bool HoldsKeyAlone(std::string_view file, TextView section, TextView key) {
  if (!IsUtf16(file)) return KeyAlone(kAnsi, file, section, key);
  return KeyAlone(kUnicode, BytesFromUtf16(file), section, key);
}

std::uint32_t ProfileAnswer(const std::string& bytes, const Text& section, const Text& key,
                            const Text& fallback, Text& buffer, std::uint32_t size) {
  const std::optional<Text> value = FindProfileValue(bytes, section, key);
  // Without trailing blanks; none but blanks leaves nothing.
  buffer = value ? *value : fallback.substr(0, fallback.find_last_not_of(u' ') + 1);
  buffer.resize(std::min<std::size_t>(buffer.size(), size == 0 ? 0 : size - 1));
  return static_cast<std::uint32_t>(buffer.size());
}

std::string WithProfileValue(std::string_view file, TextView section, TextView key,
                             TextView value) {
  section = StrippedName(section);
  key = StrippedName(key);
  if (!IsUtf16(file)) return WithValue(kAnsi, file, section, key, value);
  return Utf16FromBytes(WithValue(kUnicode, BytesFromUtf16(file), section, key, value));
}

}  // namespace trovex::records
