#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_STRING.h"
#include "Lib/Lib_Form.h"
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

void VisitSubdirectory(const Text& sEnfant, Control* ctlRafraichir) {
  if (ctlRafraichir != nullptr) ctlRafraichir->Refresh();
  ClasserFichiers(sEnfant);
  if (!PremierSousRepertoire(sEnfant).empty()) ExplorerRepertoire(sEnfant, false);
}

}  // namespace

void RegisterTables(const std::array<Grid*, kTableCount>& tables) {
  tables_in_use = tables;
}

void ExplorerRepertoire(const Text& sPath, bool bListerDabord, Control* ctlRafraichir) {
  if (sPath.empty()) return;
  MainMsg(ResString(StringId::kExplorationRepertoire) + sPath + u"...");
  if (bListerDabord) ClasserFichiers(sPath);

  // A directory that cannot be searched has no subdirectories, without a message.
  const auto entries = EntriesOf(sPath);
  if (!entries) return;
  const Text sBase = sEnleveBackslash(sPath);
  ListedEntry entry;
  for (std::size_t place = 0; entries->Next(place, entry);) {
    if (IsDirectory(entry)) VisitSubdirectory(sBase + u"\\" + DirectoryName(entry), ctlRafraichir);
  }
}

void ClasserFichiers(const Text& sPath) {
  if (Trimmed(sPath).empty()) return;
  FileListBox& liste = Lib_Form().ListeFichier();
  liste.Show(sPath, u"*.exe;*.zip");
  for (int i = 0; i < liste.ListCount(); ++i) {
    const Text sFichier = Trim(liste.List(i));
    if (sFichier.empty()) continue;
    Grid* grid = tables_in_use[static_cast<std::size_t>(TableOf(sFichier))];
    if (grid != nullptr) AnalyserFichier(*grid, sPath, sFichier);
  }
}

Text PremierSousRepertoire(const Text& sPath) {
  if (Trimmed(sPath).empty()) return {};
  try {
    const auto entries = EntriesOf(sPath);
    ListedEntry entry;
    for (std::size_t place = 0; entries && entries->Next(place, entry);) {
      if (IsDirectory(entry)) return DirectoryName(entry);
    }
  } catch (const RuntimeError&) {
  }
  return {};
}

}  // namespace trovex
