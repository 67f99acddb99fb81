#include <algorithm>

#include "Lib/LIB_FILE.h"
#include "Lib/LIB_INI.h"
#include "Lib/LIB_OBJECT_GRID.h"
#include "Lib/LIB_STRING.h"
#include "Lib/Lib_Form.h"
#include "Resources/Strings.h"
#include "Scanner/TROVEX_MAIN.h"
#include "Scanner/TextLines.h"
#include "Scanner/zFileInfo.h"

namespace trovex {
namespace {

constexpr int kColDescription = 0;
constexpr int kColEmplacement = 1;
constexpr int kColFichier = 2;
constexpr int kColVersion = 3;

constexpr std::size_t kUsualName = 16;  // characters of a file's name; longer ones do no harm
constexpr std::size_t kLongestDescription = 50;  // that stands without dots
constexpr std::size_t kCut = 95;                 // characters of a description kept
constexpr int kDecoration = 10;                  // characters in a row that make a line worthless

// Tools of installers, which have no row in any table.
constexpr TextView kTools[] = {u"_ISDEL.EXE", u"_ISETUP.EXE", u"_MSSETUP.EXE", u"_MSTEST.EXE",
                               u"EXPAND.EXE"};

// The files that a description is taken from.
constexpr TextView kDescriptions[] = {u"SETUP.LST",   u"SETUP.INI",    u"INSTALL.INF",
                                      u"file_id.diz", u"lisezmoi.txt", u"readme.txt",
                                      u"INSTALL.TXT"};

bool IsTool(const Text& sFichier) {
  return std::any_of(std::begin(kTools), std::end(kTools),
                     [&](TextView tool) { return EqualsNoCase(sFichier, tool); });
}

// The shortened description: from 51 characters on it gets its dots, cut or not.
Text Shortened(const Text& sDescription) {
  const Text d = Trim(sDescription);
  return d.size() > kLongestDescription ? d.substr(0, kCut) + u"..." : d;
}

// The analysis of one file. The cell in column 0 is the working variable: each source writes it,
// the next one reads it back.
class Analysis {
 public:
  Analysis(Grid& grid, const Text& sPath, const Text& sFichier)
      : grid_(grid),
        sPath_(sPath),
        sFichier_(sFichier),
        sDossier_(sAjouteBackslash(sPath)),
        iDossier_(sDossier_.size()),
        bArchive_(bEstExtension(sFichier, u"zip")) {
    sDossier_.reserve(iDossier_ + kUsualName);
  }

  void Run() {
    const bool bDecrire = NeedsDescription();
    oInfo_.PutFileName(Beside(Trimmed(sFichier_)),
                       bDecrire ? zFileInfo::Parts::kAll : zFileInfo::Parts::kStatus);
    PlaceRow();
    if (bDecrire) Describe();
    PutSizeOrVersion();
    CleanDescription();
    FillVersion();
  }

 private:
  const Text& Current() const { return grid_.GetText(); }
  void Put(TextView sTexte) { grid_.SetText(sTexte); }
  // The name of a file of this directory; good until the next call.
  const Text& Beside(TextView sNom) {
    sDossier_.resize(iDossier_);
    return sDossier_.append(sNom);
  }
  bool Exists(TextView sNom) { return bFichierExiste(Beside(sNom)); }
  bool IsArchive() const { return bArchive_; }

  // An archive shows its size, whatever its description: that is looked for only where a file
  // beside it may turn out to be unreadable, which is reported all the same.
  bool NeedsDescription() {
    return !IsArchive() || std::any_of(std::begin(kDescriptions), std::end(kDescriptions),
                                       [this](TextView sNom) { return Exists(sNom); });
  }

  void Describe() {
    Put(Shortened(oInfo_.zDescription()));
    ReadInstallerFiles();
    if (Current().empty()) ReadTextFiles();
    const TextView trimmed = Trimmed(Current());
    if (trimmed.empty() || EqualsNoCase(trimmed, u"INSTALLSHIELD")) ReadTextFilesAgain();
  }

  void PlaceRow() {
    grid_.SetRow(iGetClearLineGrid(grid_, kColFichier, true, TextView()));
    grid_.SetCol(kColEmplacement);
    Put(u" " + sPath_);
    grid_.SetCol(kColFichier);
    Put(ProperCase(u" " + sFichier_));
    grid_.SetCol(kColDescription);
  }

  // --- Description files of installers: one branch, by which file exists ---

  void ReadInstallerFiles() {
    if (Exists(u"SETUP.LST")) {
      RejectBootstrapper();
      PutIniIfEmpty(u"Setup", u"Title", u"SETUP.LST");
      PutIniIfEmpty(u"Params", u"WndTitle", u"SETUP.LST");
      PutIniIfEmpty(u"Windows 95 Params", u"WndTitle", u"SETUP.LST");
    } else if (Exists(u"SETUP.INI")) {
      // SETUP.LST is absent here, so this never fills the text; SETUP.INI has its turn later.
      PutIniIfEmpty(u"Startup", u"AppName", u"SETUP.LST");
    } else if (Exists(u"INSTALL.INF")) {
      if (Current().empty()) Put(sLitIni(u"INSTALL", u"APPNAME", {}, Beside(u"INSTALL.INF")));
    }
  }

  void RejectBootstrapper() {
    for (StringId worthless :
         {StringId::kProgrammeAmorcage, StringId::kMsSetup, StringId::kPasDeVersion}) {
      if (Current().find(ResString(worthless)) != Text::npos) return Put({});
    }
  }

  void PutIniIfEmpty(const Text& sSection, const Text& sCle, TextView sNom) {
    if (Current().empty()) Put(Trimmed(sLitIni(sSection, sCle, {}, Beside(sNom))));
  }

  // --- Text files: one branch in each pass, by which file exists ---

  void ReadTextFiles() {
    if (Exists(u"file_id.diz")) {
      PutLines(u"file_id.diz", kCut, kCut);
    } else if (Exists(u"lisezmoi.txt")) {
      PutLines(u"lisezmoi.txt", kLongestLine, kCut);
    } else if (Exists(u"readme.txt")) {
      PutLines(u"readme.txt", kCut, kCut);
    } else if (!IsArchive()) {
      // Always the first file of the directory, whichever is being analysed.
      Put(vNomProduit(Beside(Lib_Form().ListeFichier().List(0))));
    }
  }

  void ReadTextFilesAgain() {
    if (Exists(u"file_id.diz")) {
      PutLines(u"file_id.diz", kCut, kLongestLine);
    } else if (Exists(u"SETUP.INI")) {
      Put(Trimmed(sLitIni(u"Startup", u"AppName", {}, Beside(u"SETUP.INI"))));
    } else {
      for (const TextView sNom : {u"lisezmoi.txt", u"readme.txt", u"INSTALL.TXT"}) {
        if (Exists(sNom)) return PutLines(sNom, kCut, kCut);
      }
    }
  }

  // The first line, or where the line check leaves nothing of it the second, each cut to so many
  // characters.
  void PutLines(TextView sNom, std::size_t iPremiere, std::size_t iDeuxieme) {
    const Text& sFile = Beside(sNom);
    PutLine(sPremiereLigne(sFile, iPremiere));
    CheckLine();
    if (Current().empty()) PutLine(sDeuxiemeLigne(sFile, iDeuxieme));
  }

  void PutLine(const Text& sLigne) { Put(Trimmed(sChangeCaractere(sLigne, u"\t", u" "))); }

  // Blanks a decorated line whole, so that the caller goes on to its next source.
  void CheckLine() {
    grid_.SetCol(kColDescription);
    for (const char16_t sign : {u'*', u'#', u'-', u'=', u'_'}) {
      const Text& line = Current();
      if (std::search_n(line.begin(), line.end(), kDecoration, sign) != line.end()) Put({});
    }
  }

  // --- The other cells, and what is left of the description ---

  void PutSizeOrVersion() {
    if (!IsArchive()) {
      grid_.SetCol(kColVersion);
      Put(oInfo_.zVersion());
      return;
    }
    grid_.SetCol(kColDescription);
    Put(oInfo_.zSizeKo().empty() ? oInfo_.zSize() + u" " + ResString(StringId::kOctets)
                                 : oInfo_.zSizeKo());
    grid_.SetCol(kColVersion);
    Put(oInfo_.zDate());
  }

  bool IsBlankOrZero() const {
    const TextView trimmed = Trimmed(Current());
    return trimmed.empty() || trimmed == u"0";
  }

  void CleanDescription() {
    CheckLine();
    if (!IsBlankOrZero()) return;
    Put(IsArchive() ? oInfo_.zSizeKo() : Shortened(oInfo_.zDescription()));
  }

  // The second line of logiciel.txt, such as "Version : 1.2", stands in for a missing version.
  void FillVersion() {
    grid_.SetCol(kColVersion);
    if (!IsBlankOrZero() || !Exists(u"logiciel.txt")) return;
    const Text sLigne = sDeuxiemeLigne(Beside(u"logiciel.txt"));
    Put(sDroiteDe(sDroiteDe(sLigne, u":"), u" "));
  }

  Grid& grid_;
  const Text& sPath_;
  const Text& sFichier_;
  Text sDossier_;  // with its final backslash, and behind that the name asked for last
  const std::size_t iDossier_;
  const bool bArchive_;
  zFileInfo oInfo_;
};

}  // namespace

void AnalyserFichier(Grid& grid, const Text& sPath, const Text& sFichier) {
  if (IsTool(sFichier)) return;
  Analysis(grid, sPath, sFichier).Run();
}

}  // namespace trovex
