#include "Export/Lib_GridListe.h"

#include "Export/GridExport.h"
#include "Lib/Graphics.h"
#include "Lib/LIB_BUSY.h"
#include "Paper/PrtPreview.h"
#include "Resources/GridListeTable.h"

namespace trovex {

Lib_GridListe::Lib_GridListe()
    : Form(kGridListeSpec),
      PanelGrid(Get<Panel>(u"PanelGrid")),
      cmdSelection(Get<Button>(u"cmdSelection")),
      GridListe(Get<Grid>(u"GridListe")),
      cmdImprimer(Get<Button>(u"cmdImprimer")),
      LibelleGrid(Get<Panel>(u"LibelleGrid")),
      cmdFermer(Get<Button>(u"cmdFermer")),
      cmdExporter(Get<Button>(u"cmdExporter")),
      Reponse(Get<Label>(u"reponse")) {
  on_load = [this] {
    BusyOn();
    CenterForm(*this);
  };
  on_activate = [] { BusyOff(); };
  cmdFermer.on_click = [this] { Answer(u"0"); };
  cmdSelection.on_click = [this] { Answer(u"1"); };
  cmdImprimer.on_click = [this] { Print(); };
  cmdExporter.on_click = [this] { GridExportAscii(GridListe); };
  on_key_press = [this](int key) {
    if (key == kKeyEscape) cmdFermer.Press();
  };
}

void Lib_GridListe::Answer(const Text& tag) {
  Reponse.SetTag(tag);
  Hide();
}

void Lib_GridListe::Print() {
  BusyOn();
  PrtPreview().DisplayGridLandscape(GridListe, LibelleGrid.Caption());
  BusyOff();
}

}  // namespace trovex
