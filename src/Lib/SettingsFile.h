// Where the settings are: beside the program, or with what belongs to the user where nothing can be
// written beside it. Only one file counts: where both exist the user's is read, whole.
#pragma once

#include "Platform/Text.h"

namespace trovex {

// Sets sFichierIni at the start.
void ChoisitFichierIni();

// What could not be written beside the program goes to the user's file from now on, which first
// takes over what stands beside the program. False, and nothing is changed, where `sFichier` is not
// the settings file beside the program or the user has no place for one.
bool PasseAuFichierUtilisateur(const Text& sFichier);
// Takes that back: the user's file could not be written either.
void RevientAuFichierDuProgramme();

// True for a file of the user's to which a program on a CD-ROM may not write either.
bool bReglagesSurCdRom(const Text& sFichier);

}  // namespace trovex
