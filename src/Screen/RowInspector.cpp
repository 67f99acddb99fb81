#include "Screen/RowInspector.h"

#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/Lib_Form.h"
#include "Resources/Strings.h"
#include "Scanner/zFileInfo.h"
#include "Screen/CompanionFiles.h"
#include "Screen/ExecutableType.h"
#include "Screen/RowIcon.h"

namespace trovex {
namespace {

constexpr int kArchives = static_cast<int>(Table::kArchives);

// False where column 1 holds no directory: the row has nothing to show.
bool HasDirectory(Grid& grid) {
  grid.SetCol(1);
  const TextView trimmed = Trimmed(grid.GetText());
  if (trimmed == u"0") {
    grid.SetText({});
    return false;
  }
  return !trimmed.empty();
}

// A description that the scan left open is filled in now.
void CompleteDescription(Grid& grid, int Index, const zFileInfo& oInfo) {
  grid.SetCol(0);
  if (Trimmed(grid.GetText()) != u"0") return;
  grid.SetText(Index == kArchives ? oInfo.zSizeKo() : oInfo.zDescription());
}

// The directory of a row, in the window's hand for as long as the object lives.
class RowFolder {
 public:
  RowFolder(MainForm& form, TextView sRepertoire) : form_(form), folder_(Text(sRepertoire)) {
    form_.TientDossier(&folder_);
  }
  ~RowFolder() { form_.TientDossier(nullptr); }
  RowFolder(const RowFolder&) = delete;
  RowFolder& operator=(const RowFolder&) = delete;

  const Folder& Get() const { return folder_; }

 private:
  MainForm& form_;
  const Folder folder_;
};

void ShowDetails(MainForm& form, Grid& grid, int Index, const Text& sFichier,
                 const Folder& folder) {
  form.TextInfo(5).SetText(Trimmed(sAjouteBackslash(grid.GetText()) + sFichier));
  ListFolder(folder);
  form.ListFichier.SetTag(Lib_Form().ListeFichier().Path());
  grid.SetCol(2);
  zFileInfo oInfo;
  oInfo.PutFileName(FileInHand(&folder, form.TextInfo(5).GetText()));
  form.TextInfo(1).SetText(oInfo.zCopyright());
  form.TextInfo(2).SetText(oInfo.zInternalName());
  form.TextInfo(3).SetText(oInfo.zCompanyName());
  form.TextInfo(4).SetText(oInfo.zProductName());
  CompleteDescription(grid, Index, oInfo);
}

// `sFichier` tells the handler of errors which file was in hand.
void Inspect(MainForm& form, int Index, Text& sFichier) {
  Grid& grid = form.GridLogiciel(Index);
  EmptyPanes(form);
  form.IconeFichier.SetPicture({});
  grid.SetCol(2);
  sFichier = Trim(grid.GetText());
  if (sFichier.empty()) return;
  BusyOn();
  if (HasDirectory(grid)) {
    const RowFolder folder(form, Trimmed(grid.GetText()));
    ShowDetails(form, grid, Index, sFichier, folder.Get());
    ListCompanions(form, grid, sFichier, folder.Get());
    if (!Trimmed(form.TextInfo(5).GetText()).empty()) ShowRowIcon(form, grid);
    ShowExecutableType(form);
  }
  BusyOff();
}

}  // namespace

void EmptyPanes(MainForm& form) {
  form.ListFichier.Clear();
  for (int i = 0; i <= 5; ++i) form.TextInfo(i).SetText({});
  form.PrintTexte.SetVisible(false);
  form.ImageSelect.SetVisible(false);
  form.TextInfo(0).SetVisible(false);
  form.LabelInfo(2).SetVisible(false);
}

void GridLogiciel_Click(MainForm& form, int Index) {
  if (form.GridLogiciel(Index).Row() <= 0) return;
  Text sFichier;
  try {
    Inspect(form, Index, sFichier);
  } catch (const RuntimeError& error) {
    Err().Set(error);
    MessageErreur(ResString(StringId::kErreurRecherche) + sFichier);
  }
}

}  // namespace trovex
