#include "Lib/HelpPanel.h"

namespace trovex {

void TellInPanel(Panel& panel, Control& control, const Text& sTexte) {
  control.on_mouse_move = [&panel, &control, sTexte] {
    if (control.Kind() == ControlKind::kButton) control.SetFocus();
    panel.SetCaption(sTexte);
  };
}

}  // namespace trovex
