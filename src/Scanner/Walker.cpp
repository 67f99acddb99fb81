#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_STRING.h"
#include "Lib/Lib_Form.h"
#include "Resources/Strings.h"
#include "Scanner/TROVEX_MAIN.h"
#include "Ui/Directory.h"

namespace trovex {
namespace {

constexpr std::size_t kPatternLength = 4;  // "\*.*"

std::array<Grid*, kTableCount> tables_in_use = {};

Table TableOf(const Text& sFichier) {
  const bool installs =
      EqualsNoCase(sFichier, u"SETUP.EXE") || EqualsNoCase(sFichier, u"INSTALL.EXE");
  if (installs) return Table::kInstallation;
  return bEstExtension(sFichier, u"zip") ? Table::kArchives : Table::kExecutables;
}

bool IsDirectory(const FindData& entry) {
  return (entry.attributes & kAttributeDirectory) != 0;
}
bool IsDots(TextView name) {
  return name == u"." || name == u"..";
}

// The name of a subdirectory as all paths below the start carry it.
Text DirectoryName(const FindData& entry) {
  return ProperCase(sChangeCaractere(sTronqueAuNul(entry.name), TextView(u"\0", 1), u" "));
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

  Text sMotif = WithBackslash(sPath) + u"*.*";
  FindData entry;
  const FindHandle handle = CurrentPlatform().FindFirstFile(sMotif, entry);
  if (handle == FindHandle::kNone) return;
  // A failed search goes the same way: its entry is no directory and its first step ends it.
  sMotif.resize(sMotif.size() - kPatternLength);
  const Text& sBase = sMotif;
  do {
    if (!IsDirectory(entry)) continue;
    const Text sSousRep = DirectoryName(entry);
    if (!IsDots(sSousRep)) VisitSubdirectory(sBase + u"\\" + sSousRep, ctlRafraichir);
  } while (CurrentPlatform().FindNextFile(handle, entry));
  CurrentPlatform().FindClose(handle);
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
    Platform& platform = CurrentPlatform();
    FindData entry;
    const FindHandle handle = platform.FindFirstFile(sAjouteBackslash(sPath) + u"*.*", entry);
    if (handle == FindHandle::kNone) return {};
    do {
      if (!IsDirectory(entry) || IsDots(sTronqueAuNul(entry.name))) continue;
      const Text sSousRep = ProperCase(sTronqueAuNul(entry.name));
      platform.FindClose(handle);
      return sSousRep;
    } while (platform.FindNextFile(handle, entry));
    // A search that came to its end is left as it is.
  } catch (const RuntimeError&) {
  }
  return {};
}

}  // namespace trovex
