// Pictures of windows, to be looked at.
#pragma once

#include <filesystem>

#include "Platform/Win32/Windows.h"

namespace trovex::test {

// Writes what the window shows on the screen, frame and all, as a PNG file; missing directories on
// the way are made. Raises std::runtime_error where that fails.
void WritePicture(HWND window, const std::filesystem::path& file);

}  // namespace trovex::test
