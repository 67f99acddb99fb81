// Names between the program and the system.
#pragma once

#include "Platform/Text.h"

namespace trovex {

// The same characters as the system's functions take and give them.
const wchar_t* Wide(const Text& text);
wchar_t* Wide(Text& text);
Text FromWide(const wchar_t* text);

// `name` as a full path, by the current directories; empty where it makes none.
Text FullName(const Text& name);

// `name` in the form that the system takes letter by letter: of any length, and with no device
// hidden in it ("D:\NUL" is a file of that name). A device named outright ("NUL", "\\.\COM1") gives
// an empty text, as does an empty name.
Text VerbatimName(const Text& name);

// True for "X:\..." with any letter.
bool HasDriveRoot(TextView name);

// True for a verbatim name or a full name that is the root of a drive.
bool IsRoot(TextView name);

}  // namespace trovex
