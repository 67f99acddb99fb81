// The window that tells what the program is, over a picture.
#pragma once

#include "Ui/Button.h"
#include "Ui/Form.h"
#include "Ui/Label.h"
#include "Ui/Picture.h"

namespace trovex {

class Lib_AboutDlg : public Form {
 public:
  Lib_AboutDlg();

  Image& ImageFond;
  Image& ImageAppli;
  Label& LabelNom;
  Label& LabelVersion;
  Label& LabelAccord;
  Button& CommFermer;
  Button& CommInfos;

 private:
  void Form_Load();
  void BindButtons();
};

// Shows the window and returns when it is closed. A description that is empty or blank throughout
// leaves its place empty.
void AfficheAbout(const Text& sTitre, const Text& sVersion, const Image& image,
                  const Text& sDescription);

// The box with the program's version record and the date of its directory.
void AfficheInfosVersion();

}  // namespace trovex
