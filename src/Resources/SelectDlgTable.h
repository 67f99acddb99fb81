#pragma once

#include "Ui/FormSpec.h"

namespace trovex {

// The dialog that offers two or three options.
extern const FormSpec kSelectDlgSpec;

}  // namespace trovex
