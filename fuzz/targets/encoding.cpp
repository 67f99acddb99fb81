// Bytes of files and names as text, and back.
#include "Platform/Encoding.h"
#include "support/Target.h"

namespace trovex::fuzz {
namespace {

bool IsLone(TextView text, std::size_t i) {
  const bool high = text[i] >= 0xD800 && text[i] < 0xDC00;
  const bool low = text[i] >= 0xDC00 && text[i] < 0xE000;
  if (high) return i + 1 == text.size() || text[i + 1] < 0xDC00 || text[i + 1] >= 0xE000;
  return low && (i == 0 || text[i - 1] < 0xD800 || text[i - 1] >= 0xDC00);
}

bool HasLoneSurrogate(TextView text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsLone(text, i)) return true;
  }
  return false;
}

}  // namespace

void Try(std::string_view input) {
  const Text contents = FromCp1252(input);
  Promise(contents.size() == input.size(), "a byte of contents is a character");
  Promise(ToCp1252(contents) == input, "contents survive the way there and back");
  const Text name = FromUtf8(input);
  Promise(name.size() <= input.size(), "a name grows no longer");
  Promise(ToUtf8(name) == input, "every name survives the way there and back");
  const std::string strict = ToStrictUtf8(name);
  Promise(!HasLoneSurrogate(FromUtf8(strict)), "strict UTF-8 is valid");
  Promise(ToStrictUtf8(FromUtf8(strict)) == strict, "strict UTF-8 stays as it is");
  Promise(ToUpper(ToLower(name)) == ToUpper(name), "lower case hides no name");
  Promise(EqualsNoCase(ProperCase(name), name), "proper case still finds its file");
}

void Seeds(const TakeSeed& take) {
  take("ascii", "JEUX de cartes\tEt plus");
  take("cp1252", "\xC9t\xE9 \x80\x81\x9D\x8C");
  take("utf8", "\xC3\x89t\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80");
  take("broken", "\xC3\xED\xA0\x80\xF0\x9F\xFF\xC0\x80");
}

}  // namespace trovex::fuzz
