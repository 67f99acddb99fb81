#pragma once

#include "Ui/FormSpec.h"

namespace trovex {

// The dialog of the HTML options.
extern const FormSpec kOptionsHtmlSpec;

}  // namespace trovex
