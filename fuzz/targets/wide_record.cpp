// Version records in 16-bit characters.
#include "Scanner/WideRecord.h"
#include "support/ExecutableBuilder.h"
#include "support/Target.h"

namespace trovex::fuzz {
namespace {

constexpr TextView kKeys[] = {u"CompanyName",  u"FileDescription", u"FileVersion",
                              u"InternalName", u"LegalCopyright",  u"OriginalFilename",
                              u"ProductName",  u"ProductVersion",  u"fileversion"};

}  // namespace

void Try(std::string_view input) {
  for (const TextView key : kKeys) {
    const auto value = ValueInWideRecord(input, key);
    if (value) {
      Promise(value->size() * 2 < input.size(), "a value is part of the record");
      Promise(value->find(u'\0') == Text::npos, "a value ends at its first NUL");
    }
    Promise(ValueInWideRecord(input, key) == value, "the same record has the same values");
  }
  Promise(ValueInWideRecord(input, u"FileVersion") == ValueInWideRecord(input, u"fileversion"),
          "keys compare without regard to case");
}

void Seeds(const TakeSeed& take) {
  const test::VersionStrings strings = {{"FileDescription", "Jeu"}, {"FileVersion", "1.0"}};
  take("wide", test::VersionBlock16(strings));
  take("narrow", test::VersionBlock8(strings));
  take("empty", test::VersionBlock16({{"ProductName", ""}}));
}

}  // namespace trovex::fuzz
