// The hidden form that only lends its controls as tools.
#pragma once

#include "Ui/CommonDialog.h"
#include "Ui/FileListBox.h"
#include "Ui/Form.h"

namespace trovex {

class LibForm : public Form {
 public:
  LibForm();

  // Lists hidden and system files as well.
  FileListBox& ListeFichier() { return liste_fichier_; }
  CommonDialog& DialogueCommun() { return dialogue_; }

 private:
  FileListBox& liste_fichier_;
  CommonDialog& dialogue_;
};

// The single instance, loaded when it is first reached; after its unloading a new one, with all
// controls at rest, is loaded at the next call.
LibForm& Lib_Form();

}  // namespace trovex
