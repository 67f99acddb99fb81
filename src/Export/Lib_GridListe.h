// A viewer that shows a list, and prints and exports it. Whoever opens it fills the grid, sets the
// title, shows the form and reads the answer from the tag of the label `reponse`: "1" for a
// selection, "0" for none. The form only hides itself; the caller unloads it.
#pragma once

#include "Ui/Button.h"
#include "Ui/Form.h"
#include "Ui/Grid.h"
#include "Ui/Label.h"

namespace trovex {

class Lib_GridListe : public Form {
 public:
  Lib_GridListe();

  Panel& PanelGrid;
  Button& cmdSelection;
  Grid& GridListe;
  Button& cmdImprimer;
  Panel& LibelleGrid;
  Button& cmdFermer;
  Button& cmdExporter;
  Label& Reponse;

 private:
  void Answer(const Text& tag);
  void Print();
};

}  // namespace trovex
