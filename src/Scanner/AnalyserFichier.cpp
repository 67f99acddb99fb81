#include <algorithm>

#include "Lib/LIB_FILE.h"
#include "Lib/LIB_OBJECT_GRID.h"
#include "Lib/LIB_STRING.h"
#include "Platform/Unread.h"
#include "Resources/Strings.h"
#include "Scanner/Finding.h"
#include "Scanner/TROVEX_MAIN.h"
#include "Scanner/zFileInfo.h"

namespace trovex {
namespace {

constexpr int kColDescription = 0;
constexpr int kColEmplacement = 1;
constexpr int kColFichier = 2;
constexpr int kColVersion = 3;

constexpr std::size_t kLongestDescription = 50;  // that stands without dots
constexpr std::size_t kCut = 95;                 // characters of a description kept
constexpr int kDecoration = 10;                  // characters in a row that make a line worthless

// Tools of installers, which have no row in any table.
constexpr TextView kTools[] = {u"_ISDEL.EXE", u"_ISETUP.EXE", u"_MSSETUP.EXE", u"_MSTEST.EXE",
                               u"EXPAND.EXE"};

FindingListener finding_listener;

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
  Analysis(Grid& grid, Surroundings& beside, const Text& sFichier)
      : grid_(grid),
        beside_(beside),
        sFichier_(sFichier),
        bArchive_(bEstExtension(sFichier, u"zip")) {}

  void Run() {
    const bool bDecrire = NeedsDescription();
    oInfo_.PutFileName(FileInHand(beside_.Directory(), Trimmed(sFichier_)),
                       bDecrire ? zFileInfo::Parts::kAll : zFileInfo::Parts::kStatus);
    if (bDecrire && beside_.IsFirst(sFichier_)) beside_.PutFirstRecord(oInfo_.Record());
    PlaceRow();
    if (bDecrire) Describe();
    if (IsArchive() && finding_listener) sDescriptif_ = Current();
    PutSizeOrVersion();
    CleanDescription();
    FillVersion();
    if (finding_listener) Tell();
  }

 private:
  const Text& Current() const { return grid_.GetText(); }
  void Put(TextView sTexte) { grid_.SetText(sTexte); }
  void Put(Text&& sTexte) { grid_.TakeText(std::move(sTexte)); }
  template <typename T>
  void Put(T&& sTexte, const Origin& origin) {
    Put(std::forward<T>(sTexte));
    origin_ = origin;
  }
  bool IsArchive() const { return bArchive_; }

  // An archive shows its size, whatever its description: that is looked for only where a file
  // beside it may turn out to be unreadable, which is reported all the same.
  bool NeedsDescription() const {
    return !IsArchive() || finding_listener || beside_.HasDescription();
  }

  void Describe() {
    Put(Shortened(oInfo_.zDescription()), {Origin::Kind::kVersionRecord});
    ReadInstallerFiles();
    if (Current().empty()) ReadTextFiles();
    const TextView trimmed = Trimmed(Current());
    if (trimmed.empty() || EqualsNoCase(trimmed, u"INSTALLSHIELD")) ReadTextFilesAgain();
  }

  void PlaceRow() {
    const int iLigne = iGetClearLineGrid(grid_, kColFichier, true, TextView());
    if (iLigne == 0) NoteLeftOut(NumberOf(grid_));  // a full table: the box has come up
    grid_.SetRow(iLigne);
    grid_.SetCol(kColEmplacement);
    Put(u" " + beside_.Directory().Name());
    grid_.SetCol(kColFichier);
    Put(ProperCase(u" " + sFichier_));
    grid_.SetCol(kColDescription);
  }

  // --- Description files of installers: one branch, by which file exists ---

  void ReadInstallerFiles() {
    if (beside_.Has(Source::kSetupLst)) {
      RejectBootstrapper();
      PutIniIfEmpty(u"Setup", u"Title", Source::kSetupLst);
      PutIniIfEmpty(u"Params", u"WndTitle", Source::kSetupLst);
      PutIniIfEmpty(u"Windows 95 Params", u"WndTitle", Source::kSetupLst);
    } else if (beside_.Has(Source::kSetupIni)) {
      // SETUP.LST is absent here, so this never fills the text; SETUP.INI has its turn later.
      PutIniIfEmpty(u"Startup", u"AppName", Source::kSetupLst);
    } else if (beside_.Has(Source::kInstallInf)) {
      if (Current().empty()) PutIni(u"INSTALL", u"APPNAME", Source::kInstallInf);
    }
  }

  void RejectBootstrapper() {
    for (StringId worthless :
         {StringId::kProgrammeAmorcage, StringId::kMsSetup, StringId::kPasDeVersion}) {
      if (Current().find(ResString(worthless)) != Text::npos) return Put(Text());
    }
  }

  // Section and key are literals: they outlive the analysis.
  void PutIni(TextView sSection, TextView sCle, Source source) {
    Put(beside_.Ini(source).sLitIni(Text(sSection), Text(sCle), {}),
        {Origin::Kind::kSetting, NameOf(source), sSection, sCle});
  }
  void PutIniTrimmed(TextView sSection, TextView sCle, Source source) {
    PutIni(sSection, sCle, source);
    Put(Trim(Current()));
  }
  void PutIniIfEmpty(TextView sSection, TextView sCle, Source source) {
    if (Current().empty()) PutIniTrimmed(sSection, sCle, source);
  }

  // --- Text files: one branch in each pass, by which file exists ---

  void ReadTextFiles() {
    if (beside_.Has(Source::kFileIdDiz)) {
      PutLines(Source::kFileIdDiz, kCut, kCut);
    } else if (beside_.Has(Source::kLisezMoi)) {
      PutLines(Source::kLisezMoi, kLongestLine, kCut);
    } else if (beside_.Has(Source::kReadme)) {
      PutLines(Source::kReadme, kCut, kCut);
    } else if (!IsArchive()) {
      Put(beside_.FirstProduct(), {Origin::Kind::kProductName, beside_.First()});
    }
  }

  void ReadTextFilesAgain() {
    if (beside_.Has(Source::kFileIdDiz)) {
      PutLines(Source::kFileIdDiz, kCut, kLongestLine);
    } else if (beside_.Has(Source::kSetupIni)) {
      PutIniTrimmed(u"Startup", u"AppName", Source::kSetupIni);
    } else {
      for (const Source source : {Source::kLisezMoi, Source::kReadme, Source::kInstallTxt}) {
        if (beside_.Has(source)) return PutLines(source, kCut, kCut);
      }
    }
  }

  // The first line, or where the line check leaves nothing of it the second, each cut to so many
  // characters.
  void PutLines(Source source, std::size_t iPremiere, std::size_t iDeuxieme) {
    TextLines& lines = beside_.Lines(source);
    PutLine(lines.sPremiereLigne(iPremiere), source, 1);
    CheckLine();
    if (Current().empty()) PutLine(lines.sDeuxiemeLigne(iDeuxieme), source, 2);
  }

  void PutLine(const Text& sLigne, Source source, int iLigne) {
    Put(Trimmed(sChangeCaractere(sLigne, u"\t", u" ")),
        {Origin::Kind::kLine, NameOf(source), {}, {}, iLigne});
  }

  // Blanks a decorated line whole, so that the caller goes on to its next source.
  void CheckLine() {
    grid_.SetCol(kColDescription);
    for (const char16_t sign : {u'*', u'#', u'-', u'=', u'_'}) {
      const Text& line = Current();
      if (std::search_n(line.begin(), line.end(), kDecoration, sign) != line.end()) Put(Text());
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
    if (IsArchive()) return Put(oInfo_.zSizeKo());
    Put(Shortened(oInfo_.zDescription()), {Origin::Kind::kVersionRecord});
  }

  // The second line of logiciel.txt, such as "Version : 1.2", stands in for a missing version.
  void FillVersion() {
    grid_.SetCol(kColVersion);
    if (!IsBlankOrZero() || !beside_.Has(Source::kLogiciel)) return;
    const Text sLigne = beside_.Lines(Source::kLogiciel).sDeuxiemeLigne();
    Put(sDroiteDe(sDroiteDe(sLigne, u":"), u" "));
  }

  // --- What a listener is told ---

  // Where a text came from; one that says nothing comes from nowhere.
  Origin OriginOf(const Text& sTexte) const {
    const bool none = origin_.kind == Origin::Kind::kProductName &&
                      sTexte == ResString(StringId::kPasDeNomProduit);
    return sTexte.empty() || none ? Origin() : origin_;
  }

  void Tell() const {
    const int iLigne = grid_.Row();
    const Text sTexte = IsArchive() ? sDescriptif_ : grid_.Cell(iLigne, kColDescription);
    const Text sVersion = IsArchive() ? oInfo_.zVersion() : grid_.Cell(iLigne, kColVersion);
    finding_listener({NumberOf(grid_), beside_.Directory().Name(), sFichier_, sTexte,
                      OriginOf(sTexte), sVersion, oInfo_});
  }

  Grid& grid_;
  Surroundings& beside_;
  const Text& sFichier_;
  const bool bArchive_;
  zFileInfo oInfo_;
  Origin origin_;     // of the description in the cell
  Text sDescriptif_;  // of an archive, for the listener
};

}  // namespace

void RegisterFindingListener(FindingListener listener) {
  finding_listener = std::move(listener);
}

void AnalyserFichier(Grid& grid, Surroundings& beside, const Text& sFichier) {
  if (IsTool(sFichier)) return;
  Analysis(grid, beside, sFichier).Run();
}

}  // namespace trovex
