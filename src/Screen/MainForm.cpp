#include "Screen/MainForm.h"

#include "Lib/Dialogs.h"
#include "Lib/LIB_BUSY.h"
#include "Resources/MainFormTable.h"
#include "Resources/Strings.h"
#include "Screen/AccessibleNames.h"
#include "Screen/ConvertHTML.h"
#include "Screen/Exploration.h"
#include "Screen/FileViewer.h"
#include "Screen/HelpLine.h"
#include "Screen/Launching.h"
#include "Screen/PrintCommands.h"
#include "Screen/RowInspector.h"
#include "Screen/TabSwitching.h"
#include "Screen/WindowCommands.h"
#include "Ui/Colour.h"

namespace trovex {
namespace {

constexpr int kButtonCount = 7;  // of the tool bar

}  // namespace

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
  for (int i = 0; i <= 6; ++i) {
    text_info_[static_cast<std::size_t>(i)] = &Get<TextBox>(u"TextInfo", i);
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
  ZoneDesTableaux.SetPictures({std::begin(kMainFormTabPictures), std::end(kMainFormTabPictures)});
  // A button's picture bears the button's name.
  for (Button* button : {&Explorer, &ConvertHTML, &Exporter, &Imprimer, &CommandOption, &Apropos,
                         &Quitter, &PrintTexte}) {
    button->SetPicture(button->Name());
  }
  // The captions of the detail boxes end at the same edge.
  for (int i : {11, 20, 21, 22}) Get<Label>(u"Label2", i).SetAlignment(Alignment::kRight);
  IconeFichier.SetBackColor(BackColor());
  ImageSelect.SetBackColor(BackColor());
  ImageAppli.SetPicture({Picture::Source::kResource, u"Trovex"});
  for (int i = 0; i < kButtonCount; ++i) {
    ShapeOmbre(i).SetBackColor(Rgb(128, 128, 128));
  }
  for (int i = 0; i < kTableCount; ++i) GridLogiciel(i).SetFont({u"Times New Roman", 9.75});
  DressTextBoxes();
  NameControls(*this);
  PanelAide.AddPanel(u"Msg", StatusBar::PanelStyle::kText);
  PanelAide.AddPanel(u"Maj", StatusBar::PanelStyle::kCapsLock);
  PanelAide.AddPanel(u"Num", StatusBar::PanelStyle::kNumLock);
  PanelAide.AddPanel(u"INSER", StatusBar::PanelStyle::kInsert);
  PanelAide.SetToolTip(ResString(StringId::kInfoBullePanel));
  OrderTabs();
}

void MainForm::DressTextBoxes() {
  for (int i = 0; i <= 6; ++i) TextInfo(i).SetLocked(true);
  for (int i = 1; i <= 4; ++i) TextInfo(i).SetForeColor(Rgb(0, 0, 128));
  TextInfo(0).SetMultiLine(true);
  TextInfo(0).SetFont({u"Fixedsys", 9});
  for (int i : {5, 6}) {
    TextInfo(i).SetBackColor(Rgb(192, 192, 192));
    TextInfo(i).SetFont({{}, 0, true});
  }
  TextInfo(6).SetAlignment(Alignment::kCentre);
}

// The tool bar comes first in the order of the Tab key, with Exporter last of all.
void MainForm::OrderTabs() {
  int order = 0;
  for (Control* control : std::initializer_list<Control*>{
           &Explorer,        &ConvertHTML,     &Imprimer,        &CommandOption, &Apropos,
           &Quitter,         &ListeDrive,      &ListeRepertoire, &TextInfo(4),   &TextInfo(1),
           &TextInfo(2),     &TextInfo(3),     &TextInfo(5),     &TextInfo(6),   &ZoneDesTableaux,
           &GridLogiciel(0), &GridLogiciel(1), &GridLogiciel(2), &ListFichier,   &TextInfo(0),
           &PrintTexte,      &Exporter}) {
    control->SetTabOrder(order++);
  }
}

void MainForm::BindEvents() {
  on_load = [this] { Form_Load(*this); };
  on_activate = [] { BusyOff(); };
  on_resize = [this] { Form_Resize(*this); };
  on_paint = [this] { Form_Paint(*this); };
  on_unload = [this] { Form_Unload(*this); };
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
  ZoneDesTableaux.on_tab_click = [this](int) { ZoneDesTableaux_Click(*this); };
  ListFichier.on_click = [this] { ListFichier_Click(*this); };
  ListFichier.on_dbl_click = [this] { ListFichier_DblClick(*this); };
  for (int i = 0; i < kTableCount; ++i) {
    GridLogiciel(i).on_click = [this, i] { GridLogiciel_Click(*this, i); };
    GridLogiciel(i).on_dbl_click = [this, i] { GridLogiciel_DblClick(*this, i); };
  }
  BindHelpLine(*this);
}

}  // namespace trovex
