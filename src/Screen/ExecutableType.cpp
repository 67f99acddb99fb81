#include "Screen/ExecutableType.h"

#include "Resources/Strings.h"

namespace trovex {
namespace {

struct Key {
  TextView name;
  StringId label;
};

// Tested in this order, anywhere in the full name: the first hit wins.
constexpr Key kKeys[] = {
    {u"OS2", StringId::kProgrammeOs2},       {u"DOS", StringId::kProgrammeDos},
    {u"WIN32S", StringId::kProgrammeWin32s}, {u"W32S", StringId::kProgrammeWin32s},
    {u"WIN3", StringId::kProgrammeWin31},    {u"W3", StringId::kProgrammeWin31},
    {u"16B", StringId::kProgrammeWin31},     {u"WIN95", StringId::kProgrammeWin95},
    {u"W95", StringId::kProgrammeWin95},     {u"32B", StringId::kProgrammeWin95},
    {u"WINNT", StringId::kProgrammeWinNt},   {u"WNT", StringId::kProgrammeWinNt},
    {u"NT", StringId::kProgrammeWinNt},
};

}  // namespace

Text sTypeProgramme(TextView sFichier) {
  const Text sMajuscules = ToUpper(sFichier);
  for (const Key& key : kKeys) {
    if (sMajuscules.find(key.name) != Text::npos) return ResString(key.label);
  }
  return {};
}

void ShowExecutableType(MainForm& form) {
  const Text sType = sTypeProgramme(form.TextInfo(5).GetText());
  TextBox& interne = form.TextInfo(2);
  TextBox& produit = form.TextInfo(4);
  if (interne.GetText().empty()) {
    interne.SetText(sType);
  } else if (produit.GetText().empty()) {
    produit.SetText(sType);
    // The label that stood in for a missing icon gives way to what the names say.
    if (interne.GetText() == ResString(StringId::kProgrammeDos)) interne.SetText({});
  }
}

}  // namespace trovex
