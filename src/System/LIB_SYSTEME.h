// What the machine says of itself, and the start of the system's own information tool.
#pragma once

#include "Platform/Text.h"

namespace trovex::LIB_SYSTEME {

// Windows and system directory with a final backslash, read into 50 characters: a longer name gives
// a lone backslash. Empty where the system gives none.
Text sRepertoireWindows();
Text sRepertoireSysteme();

// The last answer of GetVersionSysteme; both empty before the first.
extern Text sNomSysteme;
extern Text sVersionSysteme;

// The system's name and its version, "4.10 (Build 1998)". The system is asked at the first call
// alone.
void GetVersionSysteme(Text& sNom, Text& sVersion);

// Starts the information tool that the registry names, without waiting for it; says so where there
// is none or it does not start.
void LanceMSInfo();

}  // namespace trovex::LIB_SYSTEME
