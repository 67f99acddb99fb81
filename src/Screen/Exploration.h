// Scans from the highlighted directory, then shows the largest table. Where that
// directory has gone only the status line says so.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void Explorer_Click(MainForm& form);

}  // namespace trovex
