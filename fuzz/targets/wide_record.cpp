// Version records in 16-bit characters.
#include "Scanner/WideRecord.h"
#include "support/ExecutableBuilder.h"
#include "support/Target.h"

namespace trovex::fuzz {
namespace {

constexpr std::string_view kKeys[] = {"CompanyName",  "FileDescription", "FileVersion",
                                      "InternalName", "LegalCopyright",  "OriginalFilename",
                                      "ProductName",  "ProductVersion",  "fileversion"};

}  // namespace

void Try(std::string_view input) {
  const WideTable table = FindWideTable(input);
  Promise(table.begin <= table.end && table.end <= input.size(), "the table lies in the record");
  for (const std::string_view key : kKeys) {
    const auto value = ValueInWideRecord(input, key);
    if (value) {
      Promise(value->size() * 2 < input.size(), "a value is part of the record");
      Promise(value->find(u'\0') == Text::npos, "a value ends at its first NUL");
    }
    Promise(ValueInWideTable(input, table, key) == value, "its table gives a record's values");
  }
  Promise(ValueInWideRecord(input, "FileVersion") == ValueInWideRecord(input, "fileversion"),
          "keys compare without regard to case");
}

void Seeds(const TakeSeed& take) {
  const test::VersionStrings strings = {{"FileDescription", "Jeu"}, {"FileVersion", "1.0"}};
  take("wide", test::VersionBlock16(strings));
  take("narrow", test::VersionBlock8(strings));
  take("empty", test::VersionBlock16({{"ProductName", ""}}));
}

}  // namespace trovex::fuzz
