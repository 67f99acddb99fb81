// Turns the current row of a table into the full picture of its file. Every error
// ends in the error box.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void GridLogiciel_Click(MainForm& form, int Index);
// Empties and hides what tells of a row, but for its icon.
void EmptyPanes(MainForm& form);

}  // namespace trovex
