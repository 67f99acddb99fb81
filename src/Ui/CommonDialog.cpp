#include "Ui/CommonDialog.h"

namespace trovex {

bool CommonDialog::ShowFile(Mode which) {
  mode = which;
  return CurrentView().ShowFileDialog(*this);
}

void CommonDialog::ShowHelp() {
  CurrentView().ShowHelp(*this);
}

}  // namespace trovex
