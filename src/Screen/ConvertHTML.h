// Asks what to export to HTML, and where, and exports it.
#pragma once

#include "Lib/ExportOutcome.h"
#include "Screen/MainForm.h"

namespace trovex {

ExportOutcome ConvertHTML_Click(MainForm& form);

}  // namespace trovex
