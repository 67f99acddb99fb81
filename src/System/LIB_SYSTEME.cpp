#include "System/LIB_SYSTEME.h"

#include <optional>

#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_REGISTRY.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"
#include "System/COpSysInfo.h"
#include "Ui/Directory.h"

namespace trovex::LIB_SYSTEME {
namespace {

constexpr std::uint32_t kBuffer = 50;  // characters

// What the system leaves in a field of blanks: the directory with its terminator, if it fits.
// Blanks at the end of a name stand before the terminator, out of reach of a trim at the right.
// Nothing where the system gives no directory.
std::optional<Text> DirectoryField(std::uint32_t (FilePort::*operation)(Text&, std::uint32_t)) {
  Text buffer;
  const std::uint32_t length = (CurrentPlatform().*operation)(buffer, kBuffer);
  if (length < 1) return std::nullopt;
  if (length < kBuffer) buffer += u'\0';
  buffer.resize(kBuffer, u' ');
  return buffer;
}

Text TrimmedRight(Text sTexte) {
  sTexte.erase(sTexte.find_last_not_of(u' ') + 1);
  return sTexte;
}

// The full name of the information tool. Only where the registry names none is there a guess, and
// only the guess is looked for: a directory that the second key names comes back as it stands.
// Empty where there is no tool.
Text sNomMSInfo() {
  Text sOutil = sLireCleMachine(u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", u"PATH");
  if (!sOutil.empty()) return sOutil;
  Text sLieu = sLireCleMachine(u"SOFTWARE\\Microsoft\\Shared Tools Location", u"MSINFO");
  if (!sLieu.empty()) return sLieu;
  const Text sSuppose = sLieu + u"\\" + u"MSINFO32" + u".exe";
  return bFichierExiste(sSuppose) ? sSuppose : Text();
}

}  // namespace

Text sNomSysteme;
Text sVersionSysteme;

Text sRepertoireWindows() {
  const std::optional<Text> field = DirectoryField(&FilePort::GetWindowsDirectory);
  return field ? WithBackslash(sTronqueAuNul(Trimmed(*field))) : Text();
}

Text sRepertoireSysteme() {
  const std::optional<Text> field = DirectoryField(&FilePort::GetSystemDirectory);
  return field ? WithBackslash(sTronqueAuNul(TrimmedRight(*field))) : Text();
}

void GetVersionSysteme(Text& sNom, Text& sVersion) {
  if (sNomSysteme.empty() || sVersionSysteme.empty()) {
    const COpSysInfo system;
    sNomSysteme = system.Platform();
    sVersionSysteme = Decimal(system.MajorVersion()) + u"." + Decimal(system.MinorVersion()) +
                      u" (Build " + Decimal(system.BuildNumber()) + u")";
  }
  sNom = sNomSysteme;
  sVersion = sVersionSysteme;
}

void LanceMSInfo() {
  constexpr int kNormalWindow = 1;
  try {
    BusyOn();
    const Text sOutil = sNomMSInfo();
    if (sOutil.empty()) return MessageInfo(ResString(StringId::kMsInfoIndisponible));
    CurrentPlatform().StartProgram(sOutil, kNormalWindow);
    BusyOff();
  } catch (const RuntimeError&) {
    MessageInfo(ResString(StringId::kMsInfoIndisponible));
  }
}

}  // namespace trovex::LIB_SYSTEME
