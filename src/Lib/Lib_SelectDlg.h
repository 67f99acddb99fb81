// The dialog that offers two or three options. Its answer travels in tags: "1" or "0" in that of
// the label `reponse`, the index of the option clicked last in that of SelOptions(0).
#pragma once

#include "Ui/Button.h"
#include "Ui/Form.h"
#include "Ui/Label.h"
#include "Ui/OptionButton.h"

namespace trovex {

class Lib_SelectDlg : public Form {
 public:
  Lib_SelectDlg();

  Panel& Libelle() { return Get<Panel>(u"Label"); }
  Label& Reponse() { return Get<Label>(u"reponse"); }
  OptionButton& SelOptions(int index) { return Get<OptionButton>(u"SelOptions", index); }
  Button& Oui() { return Get<Button>(u"Oui"); }
  Button& Annuler() { return Get<Button>(u"Annuler"); }

  // Sets one option on and the others off, as if nobody had touched them.
  void Preselect(int index);
  // Whether the panel shows its text.
  void SetShowsLabel(bool shows) { Libelle().SetVisible(shows); }

 private:
  void Answer(const Text& tag);
};

}  // namespace trovex
