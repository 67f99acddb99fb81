// Bringing the program up and down.
#pragma once

#include "Ui/Form.h"

namespace trovex {

// The program's own temporary file, deleted at shut-down.
extern Text sFichierTemp;

// The start: settings file, programs of the file types, temporary name, tool form, constants, help
// file, working directory.
void InitApplication();

// The stop: deletes the temporary file, unloads every other form and then this one, closes all
// files; with `bTerminer` asks for the end of the program. Errors are ignored.
void FermerApplication(Form& form, bool bTerminer);

// Deletes sFichierTemp without asking, if there is one.
void EffacerFichierTemp();

// What ends the process; the program's main function sets it, the default does nothing.
void SetEndOfProgram(Event end);

// The program's entry: brings it up and shows its main window. From then on everything is an event.
void Main(Form& main_form);

}  // namespace trovex
