// Re-aims panes and commands at the table now visible.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void ZoneDesTableaux_Click(MainForm& form);

}  // namespace trovex
