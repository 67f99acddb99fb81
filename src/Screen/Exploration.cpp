#include "Screen/Exploration.h"

#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_OBJECT_GRID.h"
#include "Resources/Strings.h"
#include "Screen/RowInspector.h"
#include "Screen/WindowCommands.h"
#include "Ui/Directory.h"

namespace trovex {
namespace {

Text StartingDirectory(const MainForm& form) {
  return form.ListeRepertoire.List(form.ListeRepertoire.ListIndex());
}

void EnableExports(MainForm& form, bool enabled) {
  form.ConvertHTML.SetEnabled(enabled);
  form.Exporter.SetEnabled(enabled);
  form.Imprimer.SetEnabled(enabled);
}

void ClearWindow(MainForm& form) {
  EmptyPanes(form);
  EnableExports(form, false);
  form.IconeFichier.SetPicture({});
  for (int i = 0; i < kTableCount; ++i) ClearGrid(form.GridLogiciel(i), {});
  form.Refresh();
}

// The table with the most rows; of equal ones that of the higher index.
int LargestTable(MainForm& form) {
  const int n0 = form.GridLogiciel(0).Rows() - 1;
  const int n1 = form.GridLogiciel(1).Rows() - 1;
  const int n2 = form.GridLogiciel(2).Rows() - 1;
  if (n0 > n1) return n0 > n2 ? 0 : 2;
  return n1 > n2 ? 1 : 2;
}

void ShowTable(MainForm& form, int iTableau) {
  form.ZoneDesTableaux.SetTab(iTableau);
  Grid& grid = form.GridLogiciel(iTableau);
  grid.SetCol(2);
  if (grid.GetText().empty()) {
    form.TextInfo(6).SetText(u"0");
    return;
  }
  form.TextInfo(6).SetText(Decimal(grid.Rows() - 1));
  EnableExports(form, true);
  GridLogiciel_Click(form, iTableau);
}

}  // namespace

// What was read of a disc is old by now: it may have been changed since.
void Explorer_Click(MainForm& form) {
  const Text start = StartingDirectory(form);
  UpdateDrives(form);
  if (!DirectoryExists(start)) return MainMsg(ResString(StringId::kRepertoireIntrouvable));
  const InputBreak input_break;
  BusyOn(ResString(StringId::kExplorationRepertoire) + StartingDirectory(form) + u"...");
  ClearWindow(form);
  ExplorerRepertoire(StartingDirectory(form), true, &form);
  form.InitTitresTableaux();
  for (int i = 0; i < kTableCount; ++i) form.GridLogiciel(i).SetRow(1);
  ShowTable(form, LargestTable(form));
  BusyOff();
}

}  // namespace trovex
