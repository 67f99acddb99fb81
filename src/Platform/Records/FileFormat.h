// The format of a program or archive, told by its first bytes.
#pragma once

#include "Platform/Records/ByteSource.h"

namespace trovex::records {

enum class FileFormat {
  kOther,
  kMz,    // MS-DOS, and no newer header behind it that is known
  kNe,    // 16-bit Windows and OS/2
  kLe,    // linear: drivers and extended programs of MS-DOS
  kPe32,  // 32-bit Windows
  kPe64,  // the wide form, of 64-bit Windows
  kZip,
};

// kOther where the source is empty, cannot be read or holds anything else, a PE header of no known
// width among it.
FileFormat FormatOf(ByteSource& source);

// "MZ", "NE", "LE", "PE32", "PE32+", "ZIP", "other".
const char* NameOf(FileFormat format);

}  // namespace trovex::records
