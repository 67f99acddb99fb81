#include "Lib/LIB_FILE.h"

#include "Lib/FileNumbers.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr std::uint32_t kDirectoryBuffer = 255;  // characters
constexpr int kLastLimitedLine = 300;
constexpr std::size_t kLongestText = 4194304;  // characters shown, line ends included
constexpr std::size_t kDateAndTime = 19;       // characters

Text DirectoryOf(std::uint32_t (FilePort::*operation)(Text&, std::uint32_t)) {
  Text buffer;
  (CurrentPlatform().*operation)(buffer, kDirectoryBuffer);
  return sAjouteBackslash(ToUpper(buffer));
}

// The search itself: errors are the caller's.
bool Finds(const Text& pattern, std::uint32_t allowed) {
  Platform& platform = CurrentPlatform();
  FindData data;
  const FindHandle handle = platform.FindFirstFile(pattern, data);
  if (handle == FindHandle::kInvalid) return false;
  bool found = false;
  do {
    found = (data.attributes & kAttributesSpecial & ~allowed) == 0 && !Trimmed(data.name).empty();
  } while (!found && platform.FindNextFile(handle, data));
  platform.FindClose(handle);
  return found;
}

Text TextOfCode(int iCode) {
  switch (iCode) {
    case kCodeLecture:
      return ResString(StringId::kErreurLecture);
    case kCodeOuverture:
      return ResString(StringId::kOuvertureImpossible);
    case kCodeEcriture:
      return ResString(StringId::kErreurEcriture);
    case kCodeInexistant:
      return ResString(StringId::kFichierInexistant);
    default:
      return {};
  }
}

Text Padded(int number, std::size_t width) {
  Text digits = Decimal(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), u'0');
  return digits;
}

}  // namespace

Text sAjouteBackslash(TextView sChemin) {
  if (Trimmed(sChemin).empty()) return {};
  Text sResultat;
  sResultat.reserve(sChemin.size() + 1);
  sResultat = sChemin;
  if (!sResultat.ends_with(u'\\')) sResultat += u'\\';
  return sResultat;
}

Text sEnleveBackslash(TextView sChemin) {
  if (sChemin.ends_with(u'\\')) sChemin.remove_suffix(1);
  return Text(sChemin);
}

Text sRepertoireAppli() {
  return sAjouteBackslash(CurrentPlatform().GetProgramDirectory());
}
Text sNomSeul(TextView sChemin) {
  return sDroiteDernier(sChemin, u"\\");
}
Text sRepertoireSeul(TextView sChemin) {
  return sGaucheDernier(sChemin, u"\\");
}
Text sRepertoireWindows() {
  return DirectoryOf(&FilePort::GetWindowsDirectory);
}
Text sRepertoireSysteme() {
  return DirectoryOf(&FilePort::GetSystemDirectory);
}

bool bFichierExiste(const Text& sNom) {
  TextView sCherche = Trimmed(sNom);
  if (sCherche.ends_with(u'\\')) sCherche.remove_suffix(1);
  if (sCherche.size() == sNom.size()) return bExisteAttribut(sNom, 0);
  return bExisteAttribut(Text(sCherche), 0);
}

bool bExisteAttribut(const Text& sNom, std::uint32_t iAttributs) {
  try {
    if (sNom.empty()) return false;
    // A search of a drive or a directory looks at what it holds.
    const bool bContenu = sNom.ends_with(u':') || sNom.ends_with(u'\\');
    return bContenu ? Finds(sNom + u"*.*", iAttributs) : Finds(sNom, iAttributs);
  } catch (const RuntimeError&) {
    return false;
  }
}

bool bRepertoireExiste(TextView sChemin) {
  return bExisteAttribut(Text(sChemin) + u"\\*.*", kAttributeDirectory);
}

bool bEstExtension(TextView sNom, TextView sExtension) {
  if (sNom.empty() || sExtension.empty()) return false;
  return EqualsNoCase(sDroiteDernier(sNom, u"."), sDroiteDernier(sExtension, u"."));
}

Text sFormatDate(const LocalTime& date) {
  Text text;
  text.reserve(kDateAndTime);
  text.append(Padded(date.day, 2)).append(u"/").append(Padded(date.month, 2)).append(u"/");
  text.append(Padded(date.year, 4)).append(u" ").append(Padded(date.hour, 2)).append(u":");
  text.append(Padded(date.minute, 2)).append(u":").append(Padded(date.second, 2));
  return text;
}

int iOuvreLecture(const FileInHand& oFichier, bool bMessage, bool bCreer) {
  try {
    if (oFichier.Exists()) {
      const int iFichier = FreeFile();
      OpenInput(iFichier, oFichier);
      return iFichier;
    }
    if (bCreer) return iOuvreEcriture(oFichier.Name());
  } catch (const RuntimeError& error) {
    Err().Set(error);
  }
  if (bMessage) MessageErreurFichier(oFichier.Name(), kCodeOuverture);
  Err().Clear();
  return -1;
}

int iOuvreEcriture(const Text& sNom) {
  try {
    if (!sNom.empty()) {
      const int iFichier = FreeFile();
      OpenOutput(iFichier, sNom);
      return iFichier;
    }
  } catch (const RuntimeError& error) {
    Err().Set(error);
  }
  MessageErreurFichier(sNom, kCodeEcriture);
  return -1;
}

bool bCopieFichier(const Text& sSource, const Text& sDestination, bool bConfirme) {
  if (sSource.empty() || sDestination.empty()) return false;
  if (bConfirme && bFichierExiste(sDestination)) {
    const BoxAnswer answer = iQuestion(ResString(StringId::kDestinationExiste) + sDestination +
                                       Text(kCrLf) + ResString(StringId::kSouhaitezRemplacer));
    if (answer != BoxAnswer::kYes) return false;
  }
  if (!bFichierExiste(sSource)) {
    if (bConfirme) MessageErreurFichier(sSource, kCodeInexistant);
    return false;
  }
  try {
    if (IsOpenForOutput(sSource) || IsOpenForOutput(sDestination)) {
      throw RuntimeError(ErrorNumber::kFileAlreadyOpen);
    }
    CurrentPlatform().CopyFile(sSource, sDestination);
    return true;
  } catch (const RuntimeError& error) {
    if (!bConfirme) return false;
    Err().Set(error);
    MessageErreur(error.Kind() == ErrorNumber::kFileAlreadyOpen
                      ? ResString(StringId::kFichierOuvert) + sSource
                      : ResString(StringId::kCopieImpossible) + sSource + u" > " + sDestination);
    return false;
  }
}

bool bEffaceFichier(const Text& sNom, bool bConfirme, bool bMessage) {
  if (!bFichierExiste(sNom)) {
    if (bMessage) MessageErreurFichier(sNom, kCodeInexistant);
    return true;
  }
  if (bConfirme) {
    const Text sQuestion = ResString(StringId::kConfirmeEffacement) + Text(kCrLf) + sNom;
    if (iQuestion(sQuestion) != BoxAnswer::kYes) return false;
  }
  try {
    CurrentPlatform().DeleteFile(sNom);
  } catch (const RuntimeError& error) {
    if (!bMessage) return true;
    Err().Set(error);
    MessageErreurFichier(sNom, error.Number());
  }
  return true;
}

void ChargeTexte(const FileInHand& oFichier, TextBox& oTexte, bool bLimiter) {
  if (Trimmed(oFichier.Name()).empty()) return;
  const int iFichier = iOuvreLecture(oFichier);
  if (iFichier == -1) return;
  try {
    for (int iLigne = 0; !AtEnd(iFichier) && (!bLimiter || iLigne <= kLastLimitedLine); ++iLigne) {
      Text sLigne = LineInput(iFichier, kLongestLine);
      if (iLigne == 0) {
        oTexte.SetText(sLigne);
        continue;
      }
      sLigne.insert(0, kCrLf);
      const std::size_t iPlace = kLongestText - oTexte.GetText().size();
      oTexte.Append(TextView(sLigne).substr(0, iPlace));
      if (sLigne.size() >= iPlace) break;
    }
  } catch (const RuntimeError&) {
    oFichier.NoteUnread();  // the lines read so far stay
  }
  CloseFile(iFichier);
}

DriveType iTypeLecteur(TextView sLecteur) {
  const Text sLettre = ToUpper(Trimmed(sLecteur));
  const TextView behind = TextView(sLettre).substr(sLettre.empty() ? 0 : 1);
  // The table of drives has no entry for P.
  const bool known = !sLettre.empty() && sLettre[0] >= u'A' && sLettre[0] <= u'Z' &&
                     sLettre[0] != u'P' && (behind.empty() || behind == u":" || behind == u":\\");
  return CurrentPlatform().GetDriveType(known ? Text{sLettre[0], u':', u'\\'} : Text());
}

void MessageErreurFichier(const Text& sNom, int iCode) {
  if (iCode == kCodeSansMessage) return;
  const Text sTexte = TextOfCode(iCode) + sNom;
  if (!sTexte.empty()) MessageErreur(sTexte);
}

}  // namespace trovex
