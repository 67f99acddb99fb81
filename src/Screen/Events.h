// The main window's handlers, one file a concern.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

// WindowCommands.cpp: the window's own life, its layout and its small commands.
void Form_Load(MainForm& form);
void Form_Resize(MainForm& form);
void Form_Paint(MainForm& form);
void Form_Unload(MainForm& form);
void ListeDrive_Change(MainForm& form);
// Reads labels, drives and directories afresh, without a word where something has gone.
void UpdateDrives(MainForm& form);
void CommandOption_Click();
void Apropos_Click(MainForm& form);

// HelpLine.cpp: the text that each control writes into the status line under the mouse.
void BindHelpLine(MainForm& form);

// AccessibleNames.cpp: what a screen reader says.
void NameControls(MainForm& form);

// Exploration.cpp: scans from the highlighted directory, then shows the largest table. Where that
// directory has gone only the status line says so.
void Explorer_Click(MainForm& form);

// RowInspector.cpp: turns the current row of a table into the full picture of its file. Every error
// ends in the error box.
void GridLogiciel_Click(MainForm& form, int Index);
// Empties and hides what tells of a row, but for its icon.
void EmptyPanes(MainForm& form);

// CompanionFiles.cpp: lists what lies beside the row's file and shows what explains it best. Raises
// kPathNotFound for a missing disk of a set.
void ListCompanions(MainForm& form, Grid& grid, const Text& sFichier);

// RowIcon.cpp: the icon of the row's file. Raises kTypeMismatch for an icon number that is none.
void ShowRowIcon(MainForm& form, Grid& grid);

// ExecutableType.cpp: names the kind of program by the names on the way to it.
void ShowExecutableType(MainForm& form);
Text sTypeProgramme(TextView sFichier);

// FileViewer.cpp: shows the chosen companion, or hands it to its program.
void ListFichier_Click(MainForm& form);
void ListFichier_DblClick(MainForm& form);

// Launching.cpp: starts the program of a row after a question, opens an archive without one.
void GridLogiciel_DblClick(MainForm& form, int Index);
void GridLogiciel_MouseMove(int Index);

// ConvertHTML.cpp: asks what to export to HTML, and where, and exports it.
void ConvertHTML_Click(MainForm& form);

// PrintCommands.cpp: writes the table on show to an ASCII file; prints it, and the text pane,
// through a preview.
void Exporter_Click(MainForm& form);
void Imprimer_Click(MainForm& form);
void PrintTexte_Click(MainForm& form);

// TabSwitching.cpp: re-aims panes and commands at the table now visible.
void ZoneDesTableaux_Click(MainForm& form);

}  // namespace trovex
