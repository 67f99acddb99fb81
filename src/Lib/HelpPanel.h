// The panel of a dialog that tells what stands under the mouse.
#pragma once

#include "Ui/Label.h"

namespace trovex {

// While the mouse moves over `control` the panel shows `sTexte`; a button takes the focus besides.
void TellInPanel(Panel& panel, Control& control, const Text& sTexte);

}  // namespace trovex
