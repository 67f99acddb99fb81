#include "System/LIB_SYSTEME.h"

#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_REGISTRY.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"
#include "System/COpSysInfo.h"

namespace trovex::LIB_SYSTEME {
namespace {

constexpr std::uint32_t kBuffer = 50;  // characters

// Of an empty name, too, unlike sAjouteBackslash.
Text WithBackslash(Text sRepertoire) {
  if (!sRepertoire.ends_with(u'\\')) sRepertoire += u'\\';
  return sRepertoire;
}

Text TrimmedRight(Text sTexte) {
  sTexte.erase(sTexte.find_last_not_of(u' ') + 1);
  return sTexte;
}

// The full name of the information tool. Only where the registry names none is there a guess, and
// only the guess is looked for: a directory that the second key names comes back as it stands.
// Empty where there is no tool.
Text sNomMSInfo() {
  const Text sOutil = sLireCleMachine(u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", u"PATH");
  if (!sOutil.empty()) return sOutil;
  const Text sLieu = sLireCleMachine(u"SOFTWARE\\Microsoft\\Shared Tools Location", u"MSINFO");
  if (!sLieu.empty()) return sLieu;
  const Text sSuppose = sLieu + u"\\" + u"MSINFO32" + u".exe";
  return bFichierExiste(sSuppose) ? sSuppose : Text();
}

}  // namespace

Text sNomSysteme;
Text sVersionSysteme;

Text sRepertoireWindows() {
  Text buffer;
  if (CurrentPlatform().GetWindowsDirectory(buffer, kBuffer) < 1) return {};
  return WithBackslash(sTronqueAuNul(Trimmed(buffer)));
}

Text sRepertoireSysteme() {
  Text buffer;
  if (CurrentPlatform().GetSystemDirectory(buffer, kBuffer) < 1) return {};
  return WithBackslash(sTronqueAuNul(TrimmedRight(std::move(buffer))));
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
