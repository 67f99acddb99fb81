// The window menu of a form: the one of the icon in the title bar and of Alt+Space.
#pragma once

#include "Platform/Win32/Windows.h"
#include "Ui/Form.h"

namespace trovex::win32 {

// Makes the window's menu anew: the system's entries, and below a line those of the form.
void MirrorSystemMenu(HWND window, const Form& form);

// The form's entry that a WM_SYSCOMMAND means; null for the system's own commands.
MenuEntry* EntryOfCommand(const Form& form, WPARAM command);

}  // namespace trovex::win32
