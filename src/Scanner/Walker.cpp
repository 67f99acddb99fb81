#include <algorithm>
#include <vector>

#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_STRING.h"
#include "Lib/Lib_Form.h"
#include "Platform/Unread.h"
#include "Resources/Strings.h"
#include "Scanner/TROVEX_MAIN.h"
#include "Ui/Directory.h"

namespace trovex {
namespace {

std::array<Grid*, kTableCount> tables_in_use = {};

Table TableOf(const Text& sFichier) {
  const bool installs =
      EqualsNoCase(sFichier, u"SETUP.EXE") || EqualsNoCase(sFichier, u"INSTALL.EXE");
  if (installs) return Table::kInstallation;
  return bEstExtension(sFichier, u"zip") ? Table::kArchives : Table::kExecutables;
}

bool IsDirectory(const ListedEntry& entry) {
  return (entry.attributes & kAttributeDirectory) != 0;
}

// The name of a subdirectory as all paths below the start carry it.
Text DirectoryName(const ListedEntry& entry) {
  return ProperCase(sTronqueAuNul(entry.name));
}

void TellDirectory(const Text& sPath) {
  MainMsg(ResString(StringId::kExplorationRepertoire) + sPath + u"...");
}

// The way down through a tree. Each directory is opened from the one above.
class Walk {
 public:
  void Explore(Folder& folder, bool bListerDabord, Control* ctlRafraichir) {
    Enter(folder);
    if (bListerDabord) ClasserFichiers(folder);
    const Text sBase = sEnleveBackslash(folder.Name());
    ListedEntry entry;
    // A directory that cannot be searched has no subdirectories, without a message.
    const DirectoryEntries* entries = folder.Entries();
    for (std::size_t place = 0; entries != nullptr && entries->Next(place, entry);) {
      if (!IsDirectory(entry)) continue;
      if (ctlRafraichir != nullptr) ctlRafraichir->Refresh();
      Visit(folder.Below(entry, sBase + u"\\" + DirectoryName(entry)));
    }
    way_.pop_back();
  }

 private:
  static constexpr std::size_t kHeld = 64;  // directories held open at a time

  // Of a very deep tree the upper levels are closed.
  void Enter(Folder& folder) {
    way_.push_back(&folder);
    if (way_.size() > kHeld) way_[way_.size() - 1 - kHeld]->Release();
  }

  void Visit(Folder folder) {
    ClasserFichiers(folder);
    if (PremierSousRepertoire(folder).empty()) return;
    TellDirectory(folder.Name());
    Explore(folder, false, nullptr);
  }

  std::vector<Folder*> way_;
};

}  // namespace

void RegisterTables(const std::array<Grid*, kTableCount>& tables) {
  tables_in_use = tables;
}

int NumberOf(const Grid& grid) {
  const auto found = std::find(tables_in_use.begin(), tables_in_use.end(), &grid);
  return found == tables_in_use.end() ? kNoTable : static_cast<int>(found - tables_in_use.begin());
}

void ExplorerRepertoire(const Text& sPath, bool bListerDabord, Control* ctlRafraichir) {
  if (sPath.empty()) return;
  TellDirectory(sPath);
  Folder folder(sPath);
  Walk().Explore(folder, bListerDabord, ctlRafraichir);
}

void ClasserFichiers(const Folder& folder) {
  if (Trimmed(folder.Name()).empty()) return;
  FileListBox& liste = Lib_Form().ListeFichier();
  liste.Show(folder.Name(), folder.Entries(), u"*.exe;*.zip");
  if (!folder.IsWhole()) NoteUnread(WithoutBackslash(folder.Name()));
  if (liste.ListCount() == 0) return;
  Surroundings beside(folder, liste.List(0));
  for (int i = 0; i < liste.ListCount(); ++i) {
    const Text sFichier = Trim(liste.List(i));
    if (sFichier.empty()) continue;
    Grid* grid = tables_in_use[static_cast<std::size_t>(TableOf(sFichier))];
    if (grid != nullptr) AnalyserFichier(*grid, beside, sFichier);
  }
}

Text PremierSousRepertoire(const Folder& folder) {
  const DirectoryEntries* entries = folder.Entries();
  ListedEntry entry;
  for (std::size_t place = 0; entries != nullptr && entries->Next(place, entry);) {
    if (IsDirectory(entry)) return DirectoryName(entry);
  }
  return {};
}

}  // namespace trovex
