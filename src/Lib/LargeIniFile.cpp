#include "Lib/FileNumbers.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_INI.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

Text HeaderOf(const Text& sSection) {
  return u"[" + Trim(sSection) + u"]";
}

long long LengthOf(const FileInHand& oFichier) {
  FileStatus status;
  return oFichier.GetFileStatus(status) ? status.length : 0;
}

void Report(StringId label, const Text& sSection) {
  MessageErreur(ResString(label) + u" " + sSection);
}

// Closes without raising: what must be told has been told.
void CloseQuietly(int hFichier) {
  try {
    CloseFile(hFichier);
  } catch (const RuntimeError&) {
  }
}

Text ReadValue(int hFichier, const Text& sSection, const Text& sCle, const Text& sDefaut) {
  const Text sEntete = HeaderOf(sSection);
  bool bDansSection = false;
  while (!AtEnd(hFichier)) {
    const Text sLigne = LineInput(hFichier, kLongestLine);
    if (!bDansSection && Trimmed(sLigne) == sEntete) {
      bDansSection = true;
    } else if (Trim(sGaucheDe(sLigne, u"=")) == sCle && bDansSection) {
      return sDroiteDe(sLigne, u"=");
    }
  }
  return sDefaut;
}

// The rewriting of one value, line by line.
class ValueWriter {
 public:
  ValueWriter(int hSortie, const Text& sSection, const Text& sCle, const Text& sValeur)
      : hSortie_(hSortie),
        sEntete_(HeaderOf(sSection)),
        sCle_(sCle),
        sNouvelle_(Trim(sCle) + u"=" + sValeur) {}

  void Take(const Text& sLigne) {
    if (bEcrit_ || !bDansSection_) {
      if (!bEcrit_ && Trimmed(sLigne) == sEntete_) bDansSection_ = bSectionVue_ = true;
      PrintLine(hSortie_, sLigne);
    } else if (EndsSection(sLigne)) {
      WriteValue();
      PrintLine(hSortie_, sLigne);
      bDansSection_ = false;
    } else if (IsValueLine(sLigne)) {
      WriteValue();
    } else {
      PrintLine(hSortie_, sLigne);
    }
  }

  void Finish() {
    if (bEcrit_) return;
    if (!bSectionVue_) {
      PrintLine(hSortie_, {});
      PrintLine(hSortie_, sEntete_);
    }
    WriteValue();
  }

 private:
  static bool EndsSection(const Text& sLigne) {
    const TextView trimmed = Trimmed(sLigne);
    return trimmed.empty() || trimmed[0] == u'[';
  }

  // A line that holds "REM" anywhere is a comment here, whatever else it says.
  bool IsValueLine(const Text& sLigne) const {
    if (ToUpper(sLigne).find(u"REM") != Text::npos) return false;
    return sLigne.find(u'=') != Text::npos && sGaucheDe(Trimmed(sLigne), u"=") == sCle_;
  }

  void WriteValue() {
    PrintLine(hSortie_, sNouvelle_);
    bEcrit_ = true;
  }

  int hSortie_;
  Text sEntete_, sCle_, sNouvelle_;
  bool bDansSection_ = false, bSectionVue_ = false, bEcrit_ = false;
};

}  // namespace

Text sLitIniGrosFichier(const Text& sSection, const Text& sCle, const Text& sDefaut,
                        const FileInHand& oFichier, int hFichier) {
  if (!oFichier.Exists()) return sDefaut;
  if (LengthOf(oFichier) < kGrosFichier) return sLitIni(sSection, sCle, sDefaut, oFichier.Name());
  const int hLecture = hFichier == -1 ? iOuvreLecture(oFichier) : hFichier;
  if (hLecture == -1) return sDefaut;
  Text sResultat = sDefaut;
  try {
    sResultat = ReadValue(hLecture, sSection, sCle, sDefaut);
    if (hFichier == -1) CloseFile(hLecture);
  } catch (const RuntimeError& error) {
    Err().Set(error);
    oFichier.NoteUnread();
    if (hFichier == -1) CloseQuietly(hLecture);
    Report(StringId::kErreurLectureSection, sSection);
  }
  return sResultat;
}

void EcritIniGrosFichier(const Text& sSection, const Text& sCle, const Text& sValeur,
                         const Text& sFichier, int hEntree, int hSortie) {
  if (iTypeLecteur(sFichier.substr(0, 2)) == DriveType::kCdRom) return;
  if (!bFichierExiste(sFichier) || LengthOf(sFichier) < kGrosFichier) {
    PutIniString(sSection, sCle, sValeur, sFichier);
    return;
  }
  const Text sTemporaire = sNomTempAppli();
  if (sTemporaire.empty()) return;
  const int hLecture = hEntree == -1 ? iOuvreLecture(sFichier) : hEntree;
  if (hLecture == -1) return;
  const int hEcriture = hSortie == -1 ? iOuvreEcriture(sTemporaire) : hSortie;
  if (hEcriture == -1) {
    if (hEntree == -1) CloseFile(hLecture);
    return;
  }
  const auto close_own = [&](auto close) {
    if (hEntree == -1) close(hLecture);
    if (hSortie == -1) close(hEcriture);
  };
  try {
    ValueWriter writer(hEcriture, sSection, sCle, sValeur);
    while (!AtEnd(hLecture)) writer.Take(LineInput(hLecture));
    writer.Finish();
    close_own(CloseFile);
    if (hEntree == -1 && bCopieFichier(sTemporaire, sFichier, false)) {
      bEffaceFichier(sTemporaire, false);
    }
  } catch (const RuntimeError& error) {
    Err().Set(error);
    close_own(CloseQuietly);
    Report(StringId::kErreurEcritureSection, sSection);
  }
}

}  // namespace trovex
