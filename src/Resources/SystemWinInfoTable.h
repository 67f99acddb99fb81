#pragma once

#include "Ui/FormSpec.h"

namespace trovex {

// The window that tells what the machine is.
extern const FormSpec kSystemWinInfoSpec;

}  // namespace trovex
