// Builds small executables byte by byte, for tests, the sample disc and the bench tree. Nothing
// in them can run: a header, a resource directory and a version record are all they hold.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace trovex::test {

// Key and value of one string of a version record, in cp1252.
using VersionStrings = std::vector<std::pair<std::string, std::string>>;

// A VS_VERSION_INFO block in the 8-bit layout of 16-bit Windows: VS_FIXEDFILEINFO, StringFileInfo
// with one table "040C04E4" and these strings in order, VarFileInfo.
std::string VersionBlock8(const VersionStrings& strings);
// The same in the 16-bit layout of Win32.
std::string VersionBlock16(const VersionStrings& strings);

// An NE executable with `block` as its version resource; an empty block gives one without any
// resource. `icon` adds an icon group with one 32x32, 16-colour icon.
enum class Icon { kNone, kPresent };
std::string NeExecutable(std::string_view block, Icon icon = Icon::kNone);
// The same as a PE32 executable.
std::string PeExecutable(std::string_view block, Icon icon = Icon::kNone);
// An MS-DOS executable: an MZ header and nothing else.
std::string DosExecutable();
// The icon of these executables as an .ico file.
std::string IconFile();
// An .ico file with one 32x32 image in the PNG format, all of it transparent.
std::string PngIconFile();
// A ZIP archive of `size` bytes (at least 22) with one stored member of zeros;
// below 114 bytes it is empty, and blanks in its comment make up the size.
std::string ZipArchive(std::size_t size);

}  // namespace trovex::test
