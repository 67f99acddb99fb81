// The pages as a C++ source.
#include "Apps/trovex-aide/Html.h"
#include "Platform/Encoding.h"

namespace trovex::aide {
namespace {

// A literal of these bytes, a line of the source each line. Bytes beyond ASCII are written in three
// digits, which end by themselves.
std::string Literal(std::string_view bytes) {
  std::string literal = "\"";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\n') {
      literal += "\\n\"\n    \"";
    } else if (c == '"' || c == '\\') {
      literal += std::string("\\") + c;
    } else if (byte >= 0x20 && byte < 0x7F) {
      literal += c;
    } else {
      literal += std::string("\\") + static_cast<char>('0' + (byte >> 6)) +
                 static_cast<char>('0' + (byte >> 3 & 7)) + static_cast<char>('0' + (byte & 7));
    }
  }
  return literal + "\"";
}

// Code points of the keyword, which Windows-1252 has: none beyond 16 bits.
std::string WideLiteral(TextView text) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string literal = "u\"";
  for (const char16_t unit : text) {
    if (unit >= 0x20 && unit < 0x7F && unit != u'"' && unit != u'\\') {
      literal += static_cast<char>(unit);
      continue;
    }
    literal += "\\x";
    for (int shift = 12; shift >= 0; shift -= 4) literal += kDigits[unit >> shift & 15];
    literal += "\" u\"";
  }
  return literal + "\"";
}

}  // namespace

std::string BuildPagesSource(const Book& book) {
  std::string source =
      "// Made by trovex-aide.\n#include \"Resources/HelpPages.h\"\n\n"
      "namespace trovex {\nnamespace {\n\nconstexpr HelpPage kPages[] = {\n";
  for (const auto& [name, page] : BuildPages(book)) {
    source += "    {" + Literal(name) + ",\n    " + Literal(page) + "},\n";
  }
  source += "};\n\nconstexpr HelpKeyword kKeywords[] = {\n";
  for (const Topic& topic : book.topics) {
    for (const Text& keyword : topic.keywords) {
      source += "    {" + WideLiteral(keyword) + ", " + Literal(PageOf(book, topic.name)) + "},\n";
    }
  }
  return source +
         "};\n\n}  // namespace\n\nstd::span<const HelpPage> HelpPages() {\n  return kPages;\n}\n"
         "std::span<const HelpKeyword> HelpKeywords() {\n  return kKeywords;\n}\n\n"
         "}  // namespace trovex\n";
}

}  // namespace trovex::aide
