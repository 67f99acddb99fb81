// Asks what to export to HTML, and where, and exports it.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void ConvertHTML_Click(MainForm& form);

}  // namespace trovex
