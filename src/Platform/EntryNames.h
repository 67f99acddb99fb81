// How the names of a directory stand to each other.
#pragma once

#include "Platform/Text.h"

namespace trovex {

// Orders names by their upper-cased characters, code unit by code unit: below 0, 0 or above 0.
int CompareNoCase(TextView a, TextView b);

// `name` with ~number put before its extension, as one of several that are the same without regard
// to case is shown. A point at the start makes no extension.
Text NumberedName(TextView name, unsigned number);

}  // namespace trovex
