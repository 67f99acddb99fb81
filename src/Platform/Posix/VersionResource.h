// The version record of a Windows executable.
#pragma once

#include <string>

#include "Platform/Posix/ByteReader.h"

namespace trovex::posix {

// The raw bytes of the version resource (type 16) of an NE executable, or of a PE executable the
// first name's first language. Empty where there is none, where the file is of another kind, and
// where anything on the way to it is malformed or cut short. What the record itself says is not
// looked at.
std::string ReadVersionResource(ByteSource& source);

// The two kinds; `header` is the offset of the new header behind the MS-DOS one.
std::string ReadNeVersion(ByteReader& file, std::uint64_t header);
std::string ReadPeVersion(ByteReader& file, std::uint64_t header);

// Larger records are no version records.
inline constexpr std::size_t kMaxVersionBlock = 65536;

}  // namespace trovex::posix
