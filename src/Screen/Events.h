// The main window's handlers, one file a concern.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

// Exploration.cpp: scans from the highlighted directory, then shows the largest table.
void Explorer_Click(MainForm& form);

// RowInspector.cpp: turns the current row of a table into the full picture of its file.
void GridLogiciel_Click(MainForm& form, int Index);

// TabSwitching.cpp: re-aims panes and commands at the table now visible.
void ZoneDesTableaux_Click(MainForm& form);

}  // namespace trovex
