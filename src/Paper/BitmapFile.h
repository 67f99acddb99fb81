// Bitmap files (BMP), as images of a document.
#pragma once

#include <optional>
#include <string_view>

#include "Ui/Pages.h"

namespace trovex {

// The picture in the bytes: 1, 4, 8, 24 or 32 bits a pixel, not compressed. Nothing where they are
// malformed, cut short, or larger than 8,192 pixels either way.
std::optional<Bitmap> DecodeBitmap(std::string_view bytes);

// The same from a file; nothing as well where it cannot be read or passes 64 MiB.
std::optional<Bitmap> ReadBitmap(const Text& file);

}  // namespace trovex
