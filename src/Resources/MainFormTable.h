#pragma once

#include "Ui/FormSpec.h"

namespace trovex {

// The main window.
extern const FormSpec kMainFormSpec;

// Smallest outer size, in twips.
inline constexpr Extent kMainFormMinimum = {11025, 7830};

}  // namespace trovex
