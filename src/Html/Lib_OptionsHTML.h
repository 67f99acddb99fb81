// The dialog of the HTML options, and their only holder: whoever needs an option reads its control.
#pragma once

#include "Ui/Button.h"
#include "Ui/CheckBox.h"
#include "Ui/Form.h"
#include "Ui/Label.h"
#include "Ui/OptionButton.h"
#include "Ui/TextBox.h"

namespace trovex {

class OptionsHTML : public Form {
 public:
  OptionsHTML();

  CheckBox& CheckEntete;
  CheckBox& CheckCR;
  CheckBox& CheckFin;
  CheckBox& CheckFrame;
  CheckBox& CheckTitre;
  TextBox& TextTitre;
  CheckBox& CheckFond;
  TextBox& CouleurRGB;
  Button& LaCouleur;
  CheckBox& CheckBack;
  TextBox& ImageBack;
  Button& Limage;
  CheckBox& CheckImage;
  TextBox& ImageDebut;
  Button& LeFichier;
  CheckBox& CheckSuffixe;
  TextBox& TextSuffixe;
  CheckBox& CheckRef;
  Label& LabelFichier;
  TextBox& RefHTML;
  Button& FichierHTML;
  Button& Fermer;
  Panel& PanelAide;

  Label& LabelNom(int index) { return Get<Label>(u"LabelNom", index); }
  OptionButton& OptionTag(int index) { return Get<OptionButton>(u"OptionTag", index); }

 private:
  void BindDependents();
  void BindPickers();

  void Form_Load();
  void Form_Unload();
  void ReadSettings();
  void SelectTag(const Text& sNumero);
  void ReadImageSettings();
  void CloseAndSave();
  void SaveText(const Text& sCle, const CheckBox& box, const TextBox& field);
};

// The single instance, loaded, and the settings read, at its first use; it stays loaded and hidden.
// An html_car outside 0 and 1 raises kNoSuchElement, at each use anew.
OptionsHTML& Lib_OptionsHTML();

}  // namespace trovex
