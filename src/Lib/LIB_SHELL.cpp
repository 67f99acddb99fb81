#include "Lib/LIB_SHELL.h"

#include <algorithm>

#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr int kNormalWindow = 1;
constexpr int kDone = -1;
constexpr int kLeastSuccess = 33;
constexpr std::size_t kProgramBuffer = 256;  // characters

// The page that opens where no document is named: the program has none.
constexpr TextView kDefaultAddress = u"";

struct ShellError {
  int code;
  StringId text;
};

constexpr ShellError kShellErrors[] = {
    {2, StringId::kShellFichier},
    {3, StringId::kShellChemin},
    {5, StringId::kShellAcces},
    {8, StringId::kShellMemoire},
    {11, StringId::kShellExe},
    {26, StringId::kShellPartage},
    {27, StringId::kShellIncomplete},
    {28, StringId::kShellDdeTemps},
    {29, StringId::kShellDdeEchec},
    {30, StringId::kShellDdeOccupee},
    {31, StringId::kShellSansAssociation},
    {32, StringId::kShellDll},
};

const Text& TextOfShellError(int code) {
  const auto known = std::find_if(std::begin(kShellErrors), std::end(kShellErrors),
                                  [&](const ShellError& error) { return error.code == code; });
  return ResString(known == std::end(kShellErrors) ? StringId::kShellInconnue : known->text);
}

Text Quoted(const Text& sFichier) {
  return u"\"" + sFichier + u"\"";
}

}  // namespace

int iExecuteShellWin(const Text& sCommande, int iMode) {
  CurrentView().SetPointer(Pointer::kHourglass);
  if (iMode == 0) iMode = kNormalWindow;
  if (sCommande.empty()) {
    MessageErreur(ResString(StringId::kAucunExecutable));
    return 0;
  }
  Platform& platform = CurrentPlatform();
  const Text sAncien = platform.GetCurrentDirectory();
  const Text sRepertoire = sRepertoireSeul(sCommande);
  IgnoringErrors([&] { ChangeRepertoire(sRepertoire); });
  IgnoringErrors([&] { platform.StartProgram(sCommande, iMode); });
  const Text sLecteur = sGaucheDe(sAncien, u"\\");
  if (sLecteur != sRepertoire) IgnoringErrors([&] { platform.ChangeDrive(sLecteur); });
  IgnoringErrors([&] { platform.ChangeDirectory(sAncien); });
  CurrentView().SetPointer(Pointer::kDefault);
  return kDone;
}

void ChangeRepertoire(const Text& sRepertoire) {
  if (!bExisteAttribut(sRepertoire, kAttributeDirectory)) return;
  Platform& platform = CurrentPlatform();
  const Text sLecteur = sGaucheDe(sRepertoire, u"\\");
  if (sGaucheDe(platform.GetCurrentDirectory(), u"\\") != sLecteur) platform.ChangeDrive(sLecteur);
  platform.ChangeDirectory(sRepertoire);
}

Text sTrouveExecutable(const Text& sFichier, const Text& sRepertoire) {
  Text buffer(kProgramBuffer, u' ');
  CurrentPlatform().FindExecutable(sFichier, sRepertoire, buffer);
  if (buffer.empty() || buffer[0] == u'\0') return {};
  buffer = sChangeCaractere(buffer, TextView(u"\0", 1), u" ");
  return Trim(sGaucheDe(buffer, u"\""));
}

int iLanceParAssociation(const Text& sFichier, bool bMessage) {
  const Text sProg = sTrouveExecutable(sNomSeul(sFichier), sRepertoireSeul(sFichier));
  if (sProg.empty()) {
    if (bMessage) {
      MessageInfo(ResString(StringId::kOuvertureImpossible) + sFichier + Text(kCrLf) + Text(kCrLf) +
                  ResString(StringId::kPasDAssociation));
    }
    return 0;
  }
  const Text sPremier = sGaucheDe(sProg, u" ");
  if (ToUpper(sProg).find(ToUpper(sFichier)) != Text::npos) {
    iExecuteShellWin(sProg, kNormalWindow);  // the file is a program itself
  } else if (bFichierExiste(sPremier)) {
    iExecuteShellWin(sPremier + u" " + Quoted(sFichier), kNormalWindow);
  } else {
    iExecuteShellWin(sProg + u" " + Quoted(sFichier), kNormalWindow);
  }
  return kDone;
}

int iShellOuvrir(const Text& sDocument) {
  const int code = CurrentPlatform().ShellExecute(u"Open", sDocument, u" ", u"C:\\", kNormalWindow);
  if (code >= kLeastSuccess) return kDone;
  MessageErreur(ResString(StringId::kLancementDocument) + sDocument + Text(kCrLf) +
                TextOfShellError(code));
  return 0;
}

void OuvrirDocument(const Text& sDocument, const Text& sProgramme) {
  BusyOn();
  const Text sAdresse = sDocument.empty() ? Text(kDefaultAddress) : sDocument;
  if (!sAdresse.empty()) {
    if (sProgramme.empty()) {
      iShellOuvrir(sAdresse);
    } else {
      iExecuteShellWin(sProgramme + u" " + sAdresse, kNormalWindow);
    }
  }
  BusyOff();
}

}  // namespace trovex
