#pragma once

#include "Ui/FormSpec.h"

namespace trovex {

// The window that tells what the program is.
extern const FormSpec kAboutDlgSpec;

}  // namespace trovex
