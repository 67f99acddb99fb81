// The window's own life, its layout and its small commands.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void Form_Load(MainForm& form);
void Form_Resize(MainForm& form);
void Form_Paint(MainForm& form);
void Form_Unload(MainForm& form);
void ListeDrive_Change(MainForm& form);
// Reads labels, drives and directories afresh, without a word where something has gone.
void UpdateDrives(MainForm& form);
void CommandOption_Click();
void Apropos_Click(MainForm& form);
// Turns the choice to read version records in 16-bit characters, for the next scan and click.
void LireFichesUnicode_Click(MainForm& form);

}  // namespace trovex
