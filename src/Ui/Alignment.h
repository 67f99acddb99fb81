// How a text stands in its cell or box.
#pragma once

namespace trovex {

enum class Alignment { kLeft = 0, kRight = 1, kCentre = 2 };

}  // namespace trovex
