// Shows the chosen companion, or hands it to its program.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void ListFichier_Click(MainForm& form);
void ListFichier_DblClick(MainForm& form);

}  // namespace trovex
