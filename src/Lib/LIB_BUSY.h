// The status line and the busy state.
#pragma once

#include <optional>

#include "Ui/StatusBar.h"

namespace trovex {

// The bar whose panel "Msg" is the status line; its owner registers it and, before it goes, takes
// it back with null. Without one the texts go nowhere.
void RegisterPanelAide(StatusBar* pPanelAide);

// Writes the status line and paints it at once, if the text differs.
void MainMsg(TextView sTexte);

// Hourglass and a text (the usual one if none is given). Not nested: one BusyOff ends any number.
void BusyOn(std::optional<TextView> sTexte = std::nullopt);
// Default pointer and an empty status line.
void BusyOff();

}  // namespace trovex
