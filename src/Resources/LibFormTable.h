#pragma once

#include "Ui/FormSpec.h"

namespace trovex {

// The hidden form that lends its controls as tools.
extern const FormSpec kLibFormSpec;

}  // namespace trovex
