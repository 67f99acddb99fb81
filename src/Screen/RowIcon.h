// The icon of the row's file. Raises kTypeMismatch for an icon number that is none.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void ShowRowIcon(MainForm& form, Grid& grid);

}  // namespace trovex
