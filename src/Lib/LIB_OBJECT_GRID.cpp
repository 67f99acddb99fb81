#include "Lib/LIB_OBJECT_GRID.h"

#include "Lib/LIB_DIALOGUE.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr int kNone = -1;

// The bottom-most free row, or kNone. The current cell ends where the search ends.
int FindFreeRow(Grid& grid, int iCol) {
  // A search that is known to fail would end on the first row.
  const bool bSansLibre = grid.FreeCells(iCol) == 0;
  for (int r = bSansLibre ? grid.FixedRows() : grid.Rows() - 1; r >= grid.FixedRows(); --r) {
    grid.SetRow(r);
    grid.SetCol(iCol);
    if (Grid::IsFree(grid.GetText())) return r;
  }
  return kNone;
}

int AppendLine(Grid& grid, TextView sVide, std::optional<TextView> sTexteLigne) {
  if (sTexteLigne) {
    grid.AddItem(*sTexteLigne);
  } else {
    grid.AddItem(u"\t");
    ClearLineGrid(grid, grid.Rows() - 1, sVide);
  }
  grid.SetRow(grid.Rows() - 1);
  return grid.Rows() - 1;
}

int ReuseLine(Grid& grid, int iLibre, int iCol, TextView sVide,
              std::optional<TextView> sTexteLigne) {
  ClearLineGrid(grid, iLibre, sVide);
  if (!sTexteLigne) return iLibre;
  grid.AddItem(*sTexteLigne);
  grid.SetRow(iLibre);
  grid.SetCol(iCol);
  if (Grid::IsFree(grid.GetText())) grid.RemoveItem(iLibre);
  grid.SetRow(grid.Rows() - 1);
  return grid.Rows() - 1;
}

}  // namespace

int iGetClearLineGrid(Grid& grid, int iCol, bool bReutiliser, std::optional<TextView> sValeurVide,
                      std::optional<TextView> sTexteLigne) {
  const TextView sVide = sValeurVide.value_or(u"-1");
  const bool bCherche = bReutiliser || grid.Rows() <= grid.FixedRows() + 1;
  const int iLibre = bCherche ? FindFreeRow(grid, iCol) : kNone;
  try {
    return iLibre == kNone ? AppendLine(grid, sVide, sTexteLigne)
                           : ReuseLine(grid, iLibre, iCol, sVide, sTexteLigne);
  } catch (const RuntimeError& error) {
    Err().Set(error);
    MessageErreur(ResString(StringId::kAllocationLigne) + u"iGetClearLineGrid()");
    return 0;
  }
}

void ClearGrid(Grid& grid, TextView sTexte) {
  const int iPremiere = grid.FixedRows();
  for (int r = grid.Rows() - 1; r >= iPremiere; --r) {
    grid.SetRow(r);
    if (grid.Rows() > grid.FixedRows() + 1) {
      grid.RemoveItem(r);
    } else {
      ClearLineGrid(grid, r, sTexte);
    }
  }
}

void ClearLineGrid(Grid& grid, int iLigne, TextView sTexte) {
  if (iLigne > grid.Rows() - 1) return;
  grid.SetRow(iLigne);
  for (int c = grid.FixedCols(); c < grid.Cols(); ++c) {
    grid.SetCol(c);
    grid.SetText(sTexte);
  }
}

}  // namespace trovex
