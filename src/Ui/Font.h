// A font as forms name it.
#pragma once

#include "Platform/Text.h"

namespace trovex {

// An empty name and size 0 mean the window system's own.
struct Font {
  Text name;
  double size = 0;  // points
  bool bold = false;
  bool italic = false;
  bool operator==(const Font&) const = default;
};

}  // namespace trovex
