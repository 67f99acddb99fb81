#include "Screen/PrintCommands.h"

#include "Export/GridExport.h"
#include "Lib/LIB_BUSY.h"
#include "Paper/PrtPreview.h"
#include "Resources/Strings.h"

namespace trovex {
namespace {

constexpr StringId kTitres[kTableCount] = {
    StringId::kImprimeInstallation, StringId::kImprimeExecutables, StringId::kImprimeArchives};

}  // namespace

ExportOutcome Exporter_Click(MainForm& form) {
  return GridExportAscii(form.GridLogiciel(form.ZoneDesTableaux.Tab()));
}

void Imprimer_Click(MainForm& form) {
  BusyOn();
  const int iTableau = form.ZoneDesTableaux.Tab();
  PrtPreview().DisplayGridLandscape(form.GridLogiciel(iTableau), ResString(kTitres[iTableau]));
  BusyOff();
}

void PrintTexte_Click(MainForm& form) {
  BusyOn();
  PrtPreview().DisplayTextBoxPortrait(form.TextInfo(0));
  BusyOff();
}

}  // namespace trovex
