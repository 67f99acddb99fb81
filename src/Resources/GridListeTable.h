#pragma once

#include "Ui/FormSpec.h"

namespace trovex {

// The viewer of a grid.
extern const FormSpec kGridListeSpec;

}  // namespace trovex
