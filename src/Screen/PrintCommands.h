// Writes the table on show to an ASCII file; prints it, and the text pane,
// through a preview.
#pragma once

#include "Lib/ExportOutcome.h"
#include "Screen/MainForm.h"

namespace trovex {

ExportOutcome Exporter_Click(MainForm& form);
void Imprimer_Click(MainForm& form);
void PrintTexte_Click(MainForm& form);

}  // namespace trovex
