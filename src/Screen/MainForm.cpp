#include "Screen/MainForm.h"

#include "Lib/Dialogs.h"
#include "Lib/LIB_BUSY.h"
#include "Resources/MainFormTable.h"
#include "Resources/Strings.h"
#include "Screen/ConvertHTML.h"
#include "Screen/DiscImages.h"
#include "Screen/Exploration.h"
#include "Screen/FileViewer.h"
#include "Screen/Launching.h"
#include "Screen/PrintCommands.h"
#include "Screen/RowInspector.h"
#include "Screen/TabSwitching.h"
#include "Screen/WindowCommands.h"

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
      PanelAide(Get<StatusBar>(u"PanelAide")),
      OuvrirImage(AddMenuEntry(ResString(StringId::kOuvrirImage))),
      LireFichesUnicode(AddMenuEntry(ResString(StringId::kLireFichesUnicode))) {
  for (int i = 0; i < kTableCount; ++i) {
    grids_[static_cast<std::size_t>(i)] = &Get<Grid>(u"GridLogiciel", i);
  }
  for (int i = 0; i <= 6; ++i) {
    text_info_[static_cast<std::size_t>(i)] = &Get<TextBox>(u"TextInfo", i);
  }
  // An archive is found by its name; its first column is its size.
  GridLogiciel(static_cast<int>(Table::kArchives)).SetSearchCol(2);
  BindEvents();
  RegisterTables(grids_);
  RegisterPanelAide(&PanelAide);
}

MainForm::~MainForm() {
  RegisterPanelAide(nullptr);
  RegisterTables({});
}

void MainForm::BindEvents() {
  on_load = [this] { Form_Load(*this); };
  on_activate = [] { BusyOff(); };
  on_resize = [this] { Form_Resize(*this); };
  on_paint = [this] { Form_Paint(*this); };
  on_unload = [this] { Form_Unload(*this); };
  on_session_end = [this] { Unload(); };
  on_drop_files = [this](const std::vector<Text>& files) { Form_DropFiles(*this, files); };
  OuvrirImage.on_click = [this] { OuvrirImage_Click(*this); };
  on_key_down = [](int key) {
    if (key == kKeyF1) AfficheAide({});
  };
  ListeDrive.on_change = [this] { ListeDrive_Change(*this); };
  on_drives_changed = [this] { UpdateDrives(*this); };
  ListeDrive.on_again = on_drives_changed;
  ListeDrive.on_drop_down = on_drives_changed;
  Explorer.on_click = [this] { Explorer_Click(*this); };
  ConvertHTML.on_click = [this] { ConvertHTML_Click(*this); };
  Exporter.on_click = [this] { Exporter_Click(*this); };
  Imprimer.on_click = [this] { Imprimer_Click(*this); };
  PrintTexte.on_click = [this] { PrintTexte_Click(*this); };
  CommandOption.on_click = [] { CommandOption_Click(); };
  Apropos.on_click = [this] { Apropos_Click(*this); };
  Quitter.on_click = [this] { Unload(); };
  LireFichesUnicode.on_click = [this] { LireFichesUnicode_Click(*this); };
  ZoneDesTableaux.on_tab_click = [this](int) { ZoneDesTableaux_Click(*this); };
  ListFichier.on_click = [this] { ListFichier_Click(*this); };
  ListFichier.on_dbl_click = [this] { ListFichier_DblClick(*this); };
  for (int i = 0; i < kTableCount; ++i) {
    GridLogiciel(i).on_click = [this, i] { GridLogiciel_Click(*this, i); };
    GridLogiciel(i).on_dbl_click = [this, i] { GridLogiciel_DblClick(*this, i); };
    GridLogiciel(i).on_mouse_move = [i] { GridLogiciel_MouseMove(i); };
  }
  on_help_line = MainMsg;
}

}  // namespace trovex
