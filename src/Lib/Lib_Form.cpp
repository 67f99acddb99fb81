#include "Lib/Lib_Form.h"

#include <memory>

#include "Resources/LibFormTable.h"

namespace trovex {

LibForm::LibForm()
    : Form(kLibFormSpec),
      liste_fichier_(Get<FileListBox>(u"ListeFichier")),
      dialogue_(Get<CommonDialog>(u"DialogueCommun")) {
  liste_fichier_.SetHidden(true);
  liste_fichier_.SetSystem(true);
}

LibForm& Lib_Form() {
  static std::unique_ptr<LibForm> form;
  if (!form || !form->Loaded()) {
    form = std::make_unique<LibForm>();
    form->Load();
  }
  return *form;
}

}  // namespace trovex
