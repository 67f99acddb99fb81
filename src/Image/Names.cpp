#include "Image/Names.h"

#include <algorithm>

namespace trovex::image {
namespace {

constexpr char16_t kPrivate = 0xF000;
constexpr TextView kNameless = u"_";

// Code page 850 from 80 on.
constexpr char16_t kUpperHalf[] =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒáíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐└┴┬├─┼ãÃ╚╔╩╦╠═╬¤"
    u"ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";
static_assert(std::size(kUpperHalf) == 128 + 1);

char16_t FromCp850(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code < 0x80 ? code : kUpperHalf[code - 0x80];
}

Text Decoded(std::string_view bytes, Format format) {
  Text text;
  if (format != Format::kJoliet) {
    for (const char byte : bytes) text += FromCp850(byte);
    return text;
  }
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto high = static_cast<unsigned char>(bytes[i]);
    const auto low = static_cast<unsigned char>(bytes[i + 1]);
    text += static_cast<char16_t>(high << 8 | low);
  }
  return text;
}

void CutVersion(Text& name) {
  const std::size_t mark = name.rfind(u';');
  if (mark == Text::npos) return;
  const auto is_digit = [](char16_t c) { return c >= u'0' && c <= u'9'; };
  const auto version = name.begin() + static_cast<std::ptrdiff_t>(mark) + 1;
  if (std::all_of(version, name.end(), is_digit)) name.resize(mark);
}

bool IsUnfit(char16_t unit) {
  return unit == u'\\' || unit == u'/' || unit == u':' || unit == u'\0';
}

}  // namespace

Text NameText(std::string_view identifier, Format format) {
  Text name = Decoded(identifier, format);
  CutVersion(name);
  if (name.ends_with(u'.')) name.pop_back();
  if (name.empty() || name == u"." || name == u"..") return Text(kNameless);
  for (char16_t& unit : name) {
    if (IsUnfit(unit)) unit = static_cast<char16_t>(kPrivate + unit);
  }
  return name;
}

Text LabelText(std::string_view label, Format format) {
  Text text = Decoded(label, format);
  text.resize(text.find_last_not_of(TextView(u" \0", 2)) + 1);
  return text.substr(0, text.find(u'\0'));
}

}  // namespace trovex::image
