#include "Screen/MainForm.h"

#include "Lib/LIB_BUSY.h"
#include "Resources/MainFormTable.h"
#include "Screen/Events.h"
#include "Ui/Colour.h"

namespace trovex {

MainForm::MainForm()
    : Form(kMainFormSpec),
      ListeDrive(Get<DriveListBox>(u"ListeDrive")),
      ListeRepertoire(Get<DirListBox>(u"ListeRepertoire")),
      Explorer(Get<Button>(u"Explorer")),
      ConvertHTML(Get<Button>(u"ConvertHTML")),
      Exporter(Get<Button>(u"Exporter")),
      Imprimer(Get<Button>(u"Imprimer")),
      CommandOption(Get<Button>(u"CommandOption")),
      Apropos(Get<Button>(u"Apropos")),
      Quitter(Get<Button>(u"Quitter")),
      ImageAppli(Get<Image>(u"ImageAppli")),
      IconeFichier(Get<PictureBox>(u"IconeFichier")),
      ZoneDesTableaux(Get<TabControl>(u"ZoneDesTableaux")),
      PrintTexte(Get<Button>(u"PrintTexte")),
      ListFichier(Get<ListBox>(u"ListFichier")),
      ImageSelect(Get<PictureBox>(u"ImageSelect")),
      PanelAide(Get<StatusBar>(u"PanelAide")) {
  for (int i = 0; i < kTableCount; ++i) {
    grids_[static_cast<std::size_t>(i)] = &Get<Grid>(u"GridLogiciel", i);
  }
  DressControls();
  BindEvents();
  RegisterTables(grids_);
  RegisterPanelAide(&PanelAide);
}

MainForm::~MainForm() {
  RegisterPanelAide(nullptr);
  RegisterTables({});
}

void MainForm::DressControls() {
  ListFichier.SetSorted(true);
  ZoneDesTableaux.SetCaptions({std::begin(kMainFormTabs), std::end(kMainFormTabs)});
  PanelAide.AddPanel(u"Msg", StatusBar::PanelStyle::kText);
  PanelAide.AddPanel(u"Maj", StatusBar::PanelStyle::kCapsLock);
  PanelAide.AddPanel(u"Num", StatusBar::PanelStyle::kNumLock);
  PanelAide.AddPanel(u"INSER", StatusBar::PanelStyle::kInsert);
}

void MainForm::BindEvents() {
  Explorer.on_click = [this] { Explorer_Click(*this); };
}

}  // namespace trovex
