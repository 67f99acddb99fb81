#pragma once

#include "Ui/FormSpec.h"

namespace trovex {

// The dialog that chooses a colour.
extern const FormSpec kRgbFormSpec;

}  // namespace trovex
