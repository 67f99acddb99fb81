// Names the kind of program by the names on the way to it.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void ShowExecutableType(MainForm& form);
Text sTypeProgramme(TextView sFichier);

}  // namespace trovex
