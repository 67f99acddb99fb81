// The choice to read version records in 16-bit characters, too. It is off unless the settings file
// or the user says otherwise.
#pragma once

#include "Platform/Text.h"

namespace trovex {

bool bFichesUnicode();
// For this run alone.
void ChoisitFichesUnicode(bool bLire);
// As the settings file has it; off where it says nothing.
void LitFichesUnicode();
// The user's own change: for this run, and kept in the settings file. A failure to write is
// reported by the error box.
void EnregistreFichesUnicode(bool bLire);

// True if the file exists and is more than a note of this choice: settings that somebody made
// before, or beside it, count; the choice alone does not make them.
bool bAutresReglages(const Text& sFichier);

}  // namespace trovex
