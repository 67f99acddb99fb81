#include "Screen/TabSwitching.h"

#include "Lib/LIB_BUSY.h"
#include "Resources/Strings.h"
#include "Screen/RowInspector.h"

namespace trovex {
namespace {

// Title and width of a table are made good when its tab comes up: hidden ones do not follow.
void RestoreTable(MainForm& form, Grid& grid, int iTableau) {
  grid.SetWidth(form.ZoneDesTableaux.Width() - 2 * grid.Left());
  grid.SetCol(2);
  const int iLigne = grid.Row();
  grid.SetRow(0);
  grid.SetCol(3);
  const bool bArchives = iTableau == static_cast<int>(Table::kArchives);
  grid.SetText(ResString(bArchives ? StringId::kDate : StringId::kVersion));
  grid.SetRow(iLigne);
}

}  // namespace

void ZoneDesTableaux_Click(MainForm& form) {
  const int iTableau = form.ZoneDesTableaux.Tab();
  Grid& grid = form.GridLogiciel(iTableau);
  BusyOn();
  grid.SetCol(0);
  if (grid.Row() <= 0) grid.SetRow(1);
  const bool bDonnees = !Trimmed(grid.GetText()).empty();
  form.TextInfo(6).SetText(bDonnees ? Decimal(grid.Rows() - 1) : Text(u"0"));
  form.ConvertHTML.SetEnabled(bDonnees);
  form.Exporter.SetEnabled(bDonnees);
  form.Imprimer.SetEnabled(bDonnees);
  RestoreTable(form, grid, iTableau);
  GridLogiciel_Click(form, iTableau);
  BusyOff();
}

}  // namespace trovex
