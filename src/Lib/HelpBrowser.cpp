#include "Lib/HelpBrowser.h"

#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_SHELL.h"
#include "Lib/LIB_STRING.h"
#include "Platform/Encoding.h"
#include "Resources/HelpPages.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr TextView kContents = u"index.html";
constexpr TextView kFolder = u"~TrvxAide";

void WritePage(const Text& file, std::string_view bytes) {
  Platform& platform = CurrentPlatform();
  const FileHandle handle = platform.OpenWrite(file);
  try {
    platform.Write(handle, bytes.data(), bytes.size());
  } catch (const RuntimeError&) {
    IgnoringErrors([&] { platform.Close(handle); });
    throw;
  }
  platform.Close(handle);
}

// They are written each time: what stands there may be another version's, or cut short.
void WritePages(const Text& directory) {
  if (!CurrentPlatform().MakeDirectory(directory)) {
    throw RuntimeError(ErrorNumber::kPathFileAccess);
  }
  for (const HelpPage& page : HelpPages()) {
    WritePage(directory + u"\\" + FromUtf8(page.name), page.bytes);
  }
}

}  // namespace

Text sPageAide(const Text& sSujet) {
  if (sSujet.empty()) return Text(kContents);
  for (const HelpPage& page : HelpPages()) {
    const Text name = FromUtf8(page.name);
    if (EqualsNoCase(name, sSujet + u".html")) return name;
  }
  for (const HelpKeyword& keyword : HelpKeywords()) {
    if (EqualsNoCase(keyword.text, sSujet)) return FromUtf8(keyword.page);
  }
  return Text(kContents);
}

void AffichePageAide(const Text& sSujet) {
  if (sRepertoireTemp.empty()) RemplitRepertoireTemp();
  const Text sDossier = sAjouteBackslash(sRepertoireTemp) + Text(kFolder);
  try {
    WritePages(sDossier);
  } catch (const RuntimeError&) {
    return MessageInfo(ResString(StringId::kAideImpossible) + sDossier + Text(kCrLf) + Text(kCrLf) +
                       ResString(StringId::kAideNonEcrite));
  }
  iShellOuvrir(sDossier + u"\\" + sPageAide(sSujet));
}

}  // namespace trovex
