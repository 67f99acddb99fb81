#include "Screen/CompanionFiles.h"

#include <optional>

#include "Lib/LIB_FILE.h"
#include "Lib/LIB_STRING.h"
#include "Lib/Lib_Form.h"
#include "System/LIB_SYSTEME.h"
#include "Ui/Directory.h"

namespace trovex {
namespace {

// The seventh entry has no star, and that stays.
constexpr TextView kGeneralPattern =
    u"*.txt;*.diz;*.htm;*.gif;*.bmp;*.wmf;.gif;*.mov;*.avi;*.mpg;*.hlp;*.wri;*.doc;*.ico;*.wav;"
    u"*.midi";

// Where to look next when a directory of a set of disks offers nothing. The last five characters
// of the path are taken away in every row, whatever the length of its level.
struct NextDisk {
  TextView level;
  TextView next;
  bool tested;
};

constexpr std::size_t kLevelCut = 5;

constexpr NextDisk kNextDisks[] = {
    {u"DISK1", u"Disk2", false},
    {u"D1", u"D2", false},
    {u"DISK2", u"Disk3", true},
    {u"D2", u"D3", true},
};

// The directory that follows, empty where the search ends.
Text NextDirectory(const Text& sChemin) {
  const Text sNiveau = ToUpper(sDroiteDernier(sChemin, u"\\"));
  for (const NextDisk& disk : kNextDisks) {
    if (sNiveau != disk.level) continue;
    if (sChemin.size() < kLevelCut) throw RuntimeError(ErrorNumber::kInvalidCall);
    const Text sSuivant = sChemin.substr(0, sChemin.size() - kLevelCut) + Text(disk.next);
    return disk.tested && !bRepertoireExiste(sSuivant) ? Text() : sSuivant;
  }
  return {};
}

Text StemOf(const Text& sNom) {
  return sGaucheDe(sNom, u".");
}
Text ShownName(const Text& sNom) {
  return ProperCase(ToLower(sNom));
}

class Companions {
 public:
  Companions(MainForm& form, Grid& grid, const Text& sFichier, const Folder& folder)
      : form_(form),
        grid_(grid),
        sFichier_(sFichier),
        bZip_(bEstExtension(sFichier, u"zip")),
        row_folder_(folder),
        folder_(&folder),
        source_(Lib_Form().ListeFichier()),
        list_(form.ListFichier) {}
  ~Companions() { form_.TientDossier(&row_folder_); }
  Companions(const Companions&) = delete;
  Companions& operator=(const Companions&) = delete;

  void Run() {
    if (IsIn(LIB_SYSTEME::sRepertoireWindows()) || IsIn(LIB_SYSTEME::sRepertoireSysteme())) {
      // Too much there has nothing to do with the program.
      grid_.SetCol(2);
      ShowPattern(StemOf(Trim(grid_.GetText())) + u".*");
      return;
    }
    FindDirectory();
    list_.Clear();
    form_.TextInfo(0).SetText({});
    form_.TextInfo(0).SetTag({});
    grid_.SetSelStartCol(0);
    grid_.SetSelEndCol(grid_.Cols() - 1);
    for (int i = 0; i < source_.ListCount(); ++i) Take(source_.List(i));
    Select();
    if (IsIn(LIB_SYSTEME::sRepertoireSysteme())) AddWindowsFiles();
  }

 private:
  bool IsIn(const Text& sRepertoire) const {
    return EqualsNoCase(sAjouteBackslash(source_.Path()), sRepertoire);
  }

  void ShowPattern(TextView sMotif) { source_.Show(source_.Path(), folder_->Entries(), sMotif); }

  // Leaves the source on the first directory of the set that offers something.
  void FindDirectory() {
    for (;;) {
      if (!bZip_ || ArchiveStandsAlone()) {
        list_.SetTag(source_.Path());
        ShowPattern(bZip_ ? kGeneralPattern : Text(kGeneralPattern) + u";*.zip");
      }
      if (source_.ListCount() != 0) return;
      const Text sSuivant = NextDirectory(source_.Path());
      if (sSuivant.empty()) return;
      folder_ = &next_.emplace(sSuivant);
      form_.TientDossier(folder_);
      ListFolder(*folder_);
    }
  }

  bool ArchiveStandsAlone() {
    list_.SetTag(source_.Path());
    ShowPattern(StemOf(sFichier_) + u"*.*");
    return source_.ListCount() == 1;
  }

  const Text& Tag() const { return form_.TextInfo(0).Tag(); }
  void SetTag(int index) { form_.TextInfo(0).SetTag(Decimal(index)); }

  // The tag counts in the sorted list, the look-up in the source: it may meet another file.
  bool TagIsIcon() const {
    return bEstExtension(source_.List(static_cast<int>(Val(Tag()))), u"ico");
  }

  void Take(const Text& sEntree) {
    if (Trimmed(sEntree).empty() || bEstExtension(sEntree, u"exe")) return;
    list_.AddItem(ShownName(sEntree));
    const int iPlace = list_.NewIndex();
    if (bZip_ && bEstExtension(sEntree, u"txt") &&
        ToUpper(StemOf(sFichier_)).find(ToUpper(StemOf(sEntree))) != Text::npos) {
      SetTag(iPlace);
    }
    if (!TagByName(ToUpper(sEntree), iPlace) && bEstExtension(sEntree, u"ico") && Tag().empty()) {
      SetTag(iPlace);
    }
  }

  // Names that explain a program. The first three, in lower case against an upper-cased name, never
  // match: a read-me comes up by its place in the list, and only INSTALL.TXT goes before others.
  bool TagByName(const Text& sMajuscules, int iPlace) {
    if (sMajuscules == u"file_id.diz") {
      if (!bZip_ || Tag().empty() || TagIsIcon()) SetTag(iPlace);
      return true;
    }
    const bool bNotice = sMajuscules == u"lisezmoi.txt" || sMajuscules == u"readme.txt" ||
                         sMajuscules == u"INSTALL.TXT";
    if (bNotice && (Tag().empty() || TagIsIcon())) SetTag(iPlace);
    return bNotice;
  }

  void Select() {
    if (!Tag().empty()) return list_.SetListIndex(static_cast<int>(Val(Tag())));
    for (int i = 0; i < list_.ListCount(); ++i) {
      if (bEstExtension(list_.List(i), u"txt")) return list_.SetListIndex(i);
    }
  }

  void AddWindowsFiles() {
    source_.SetPath(LIB_SYSTEME::sRepertoireWindows());
    for (int i = 0; i <= source_.ListCount(); ++i) {
      const Text& sEntree = source_.List(i);
      if (Trimmed(sEntree).empty() || ToUpper(sDroiteDe(sEntree, u".")) == u"EXE") continue;
      list_.AddItem(ShownName(sEntree));
    }
  }

  MainForm& form_;
  Grid& grid_;
  const Text& sFichier_;
  const bool bZip_;
  const Folder& row_folder_;
  const Folder* folder_;  // the one that the source shows
  std::optional<Folder> next_;
  FileListBox& source_;
  ListBox& list_;
};

}  // namespace

void ListFolder(const Folder& folder) {
  if (folder.Entries() == nullptr && DirectoryExists(folder.Name())) {
    throw RuntimeError(ErrorNumber::kPathFileAccess);
  }
  FileListBox& liste = Lib_Form().ListeFichier();
  liste.Show(folder.Name(), folder.Entries(), liste.Pattern());
}

void ListCompanions(MainForm& form, Grid& grid, const Text& sFichier, const Folder& folder) {
  Companions(form, grid, sFichier, folder).Run();
}

}  // namespace trovex
