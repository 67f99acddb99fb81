// Starts the program of a row after a question, opens an archive without one.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void GridLogiciel_DblClick(MainForm& form, int Index);
void GridLogiciel_MouseMove(int Index);

}  // namespace trovex
