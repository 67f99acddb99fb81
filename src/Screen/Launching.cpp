#include "Screen/Launching.h"

#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LIB_FILE.h"
#include "Lib/LIB_SHELL.h"
#include "Lib/LIB_STRING.h"
#include "Resources/Strings.h"
#include "Screen/DiscImages.h"

namespace trovex {

void GridLogiciel_DblClick(MainForm& form, int Index) {
  Grid& grid = form.GridLogiciel(Index);
  BusyOn();
  grid.SetCol(2);
  Text sFichier = Trim(grid.GetText());
  grid.SetCol(1);
  sFichier = sAjouteBackslash(Trimmed(grid.GetText())) + sFichier;
  if (bRefuseDansImage(sFichier)) {
    // Said already.
  } else if (Index == static_cast<int>(Table::kArchives)) {
    iLanceParAssociation(sFichier, true);
  } else {
    const Text sQuestion = ResString(StringId::kConfirmeExecution) + Text(kCrLf) + sFichier;
    if (iQuestion(sQuestion) == BoxAnswer::kYes) iExecuteShellWin(sFichier, 1);
  }
  BusyOff();
}

void GridLogiciel_MouseMove(int Index) {
  switch (Index) {
    case 0:
      return MainMsg(ResString(StringId::kAideTable0));
    case 1:
      return MainMsg(ResString(StringId::kAideTable1));
    case 2:
      return MainMsg(ResString(StringId::kAideTable2));
    default:
      return;
  }
}

}  // namespace trovex
