// The dialog that chooses a colour by its three channels.
#pragma once

#include "Ui/Button.h"
#include "Ui/Form.h"
#include "Ui/Label.h"
#include "Ui/Picture.h"
#include "Ui/ScrollBar.h"
#include "Ui/TextBox.h"

namespace trovex {

class Lib_RGBForm : public Form {
 public:
  Lib_RGBForm();

  ScrollBar& HScroll_R;
  ScrollBar& HScroll_G;
  ScrollBar& HScroll_B;
  TextBox& R_Value;
  TextBox& G_Value;
  TextBox& B_Value;
  PictureBox& PictureRGB;  // its back colour is the colour chosen
  Label& LabelRGB;
  Label& Reponse;
  Button& Valider;
  Button& Annuler;
  Panel& PanelAide;

 private:
  void AfficheCouleur();
  void BindChannel(ScrollBar& bar, TextBox& field);
  void Answer(const Text& tag);
};

// The colour text that the user chose, without "#"; empty if that was cancelled. `sCouleur` is what
// the dialog opens with; a "#" in front of it is taken away.
Text sGetDialogRGBbyString(Text& sCouleur);

}  // namespace trovex
