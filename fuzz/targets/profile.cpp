// Profile files that are read and written as a whole. An input is a section, a key and a value, a
// line each, and the file.
#include <algorithm>

#include "Platform/Encoding.h"
#include "Platform/Records/ProfileFile.h"
#include "support/Target.h"

namespace trovex::fuzz {
namespace {

struct Setting {
  Text section, key, value;
};

// A name or value that comes back as it was written: nothing in it is a mark of the format.
bool IsPlain(const Text& text) {
  if (text.find_first_of(u"[]=;\"'\r") != Text::npos) return false;
  const auto blank = [](char16_t unit) {
    return TextView(u" \t\x1A").find(unit) != TextView::npos;
  };
  return text.empty() || (!blank(text.front()) && !blank(text.back()));
}

bool IsUtf16(std::string_view file) {
  return file.starts_with("\xFF\xFE");
}

// How many bytes of `before` stand neither at the beginning nor at the end of `after`.
std::size_t Lost(std::string_view before, std::string_view after) {
  const std::size_t most = std::min(before.size(), after.size());
  std::size_t head = 0, tail = 0;
  while (head < most && before[head] == after[head]) ++head;
  while (tail < most - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
    ++tail;
  return before.size() - head - tail;
}

void TryWriting(std::string_view file, const Setting& put, bool known) {
  const std::string written = records::WithProfileValue(file, put.section, put.key, put.value);
  // Text that is none may come out otherwise.
  if (IsUtf16(file)) return;
  const auto line_ends = [](std::string_view text) {
    return std::count_if(text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; });
  };
  if (known && put.value.find(u'\r') == Text::npos) {
    Promise(line_ends(written) == line_ends(file), "a known key keeps its line");
  } else if (!known) {
    Promise(Lost(file, written) == 0, "a new key takes no byte away");
  }
  if (!IsPlain(put.section) || !IsPlain(put.key) || !IsPlain(put.value) || put.key.empty()) return;
  const auto found = records::FindProfileValue(written, put.section, put.key);
  Promise(found && *found == FromCp1252(ToCp1252(put.value)), "what was written is read back");
  Promise(records::WithProfileValue(written, put.section, put.key, put.value) == written,
          "writing the same again changes nothing");
}

void TryAnswer(const std::string& file, const Setting& put, std::uint32_t size) {
  Text buffer;
  const std::uint32_t length =
      records::ProfileAnswer(file, put.section, put.key, put.value, buffer, size);
  Promise(length == buffer.size(), "the answer is the length of what is in the buffer");
  Promise(length < std::max(size, 1u), "a value stays within its buffer");
}

}  // namespace

void Try(std::string_view input) {
  Setting put;
  put.section = FromCp1252(TakeLine(input));
  put.key = FromCp1252(TakeLine(input));
  put.value = FromCp1252(TakeLine(input));
  const auto found = records::FindProfileValue(input, put.section, put.key);
  if (found) {
    const std::string bytes = ToCp1252(*found);
    Promise(IsUtf16(input) || input.find(bytes) != std::string_view::npos,
            "a value is part of the file");
    Promise(found->find_first_of(u"\r\n") == Text::npos, "a value is part of a line");
  }
  Promise(records::FindProfileValue(input, put.section, put.key) == found,
          "the same file has the same value");
  TryWriting(input, put, found.has_value());
  for (const std::uint32_t size : {0u, 1u, 8u, 255u}) TryAnswer(std::string(input), put, size);
}

void Seeds(const TakeSeed& take) {
  take("title", "Setup\nTitle\nMon Jeu\n[Setup]\r\nTitle=\"Autre jeu\"\r\n\r\n[Params]\r\n");
  take("section", "html\nhtml_car\n-1\n;rien\r\n[Options]\r\naffiche_aide = 0 \r\n");
  take("last", "b\nk\nv\n[a]\rk=1\n[b\r\n\r\n q = 'w' \r\n[a]\nz");
  take("accents", "\xC9t\xE9\ncl\xE9\n\x80\n[\xE9T\xC9]\nCL\xC9=x=y;z");
  take("empty", "a\nk\n\n");
}

}  // namespace trovex::fuzz
