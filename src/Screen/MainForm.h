// The only working window of the program.
#pragma once

#include <array>

#include "Lib/Folder.h"
#include "Scanner/TROVEX_MAIN.h"
#include "Ui/Button.h"
#include "Ui/DirListBox.h"
#include "Ui/DriveListBox.h"
#include "Ui/Form.h"
#include "Ui/Grid.h"
#include "Ui/Label.h"
#include "Ui/Line.h"
#include "Ui/ListBox.h"
#include "Ui/Picture.h"
#include "Ui/StatusBar.h"
#include "Ui/TabControl.h"
#include "Ui/TextBox.h"

namespace trovex {

// Lends its tables to the scanner and its status bar to the status line for as long as it lives.
class MainForm : public Form {
 public:
  MainForm();
  ~MainForm() override;

  // Writes the title row of the three tables, their column widths and alignments.
  void InitTitresTableaux();

  Grid& GridLogiciel(int index) { return *grids_[static_cast<std::size_t>(index)]; }
  TextBox& TextInfo(int index) { return *text_info_[static_cast<std::size_t>(index)]; }
  Label& LabelInfo(int index) { return Get<Label>(u"LabelInfo", index); }
  Shape& ShapeOmbre(int index) { return Get<Shape>(u"ShapeOmbre", index); }

  // What a click on a row has in hand, null between clicks: no disc is kept busy.
  const Folder* DossierEnMain() const { return dossier_; }
  void TientDossier(const Folder* dossier) { dossier_ = dossier; }

  DriveListBox& ListeDrive;
  DirListBox& ListeRepertoire;
  Button& Explorer;
  Button& ConvertHTML;
  Button& Exporter;
  Button& Imprimer;
  Button& CommandOption;
  Button& Apropos;
  Button& Quitter;
  Image& ImageAppli;
  PictureBox& IconeFichier;
  TabControl& ZoneDesTableaux;
  Button& PrintTexte;
  ListBox& ListFichier;
  PictureBox& ImageSelect;
  StatusBar& PanelAide;
  MenuEntry& OuvrirImage;        // in the window's menu
  MenuEntry& LireFichesUnicode;  // likewise

 private:
  void BindEvents();

  std::array<Grid*, kTableCount> grids_;
  std::array<TextBox*, 7> text_info_;
  const Folder* dossier_ = nullptr;
};

}  // namespace trovex
