#include "Lib/SettingsFile.h"

#include "Lib/LIB_FILE.h"
#include "Lib/LIB_INI.h"

namespace trovex {
namespace {

constexpr TextView kFichier = u"Trovex.ini";
constexpr TextView kDossier = u"Trovex";

bool copy_made = false;  // by the last step to the user's file

Text BesideProgram() {
  return sRepertoireAppli() + Text(kFichier);
}

// Empty where the user has no directory for it.
Text UserDirectory() {
  const Text sDonnees = CurrentPlatform().GetApplicationDataDirectory();
  return sDonnees.empty() ? Text() : sAjouteBackslash(sDonnees) + Text(kDossier);
}

Text UsersFile() {
  const Text sDossier = UserDirectory();
  return sDossier.empty() ? Text() : sAjouteBackslash(sDossier) + Text(kFichier);
}

}  // namespace

void ChoisitFichierIni() {
  const Text sUtilisateur = UsersFile();
  sFichierIni = bFichierExiste(sUtilisateur) ? sUtilisateur : BesideProgram();
}

bool PasseAuFichierUtilisateur(const Text& sFichier) {
  const Text sUtilisateur = UsersFile();
  if (sUtilisateur.empty() || sFichier != sFichierIni || sFichier != BesideProgram()) return false;
  if (!CurrentPlatform().MakeDirectory(UserDirectory())) return false;
  copy_made = false;
  try {
    if (bFichierExiste(sFichier) && !bFichierExiste(sUtilisateur)) {
      CurrentPlatform().CopyFile(sFichier, sUtilisateur);
      copy_made = true;
    }
  } catch (const RuntimeError&) {
    return false;
  }
  sFichierIni = sUtilisateur;
  return true;
}

void RevientAuFichierDuProgramme() {
  if (copy_made) IgnoringErrors([] { CurrentPlatform().DeleteFile(UsersFile()); });
  sFichierIni = BesideProgram();
}

bool bReglagesSurCdRom(const Text& sFichier) {
  return sFichier == sFichierIni && sFichier == UsersFile() &&
         iTypeLecteur(sRepertoireAppli().substr(0, 2)) == DriveType::kCdRom;
}

}  // namespace trovex
