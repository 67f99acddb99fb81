// The version record of a Windows executable.
#pragma once

#include <string>

#include "Platform/Records/ByteSource.h"

namespace trovex::records {

// The version record in the version resource (type 16) of an NE executable, or of a PE executable
// in that of the first name's first language. The record's first field tells its length; what a
// resource holds behind it is neither read nor missed. Empty where there is none, where the file is
// of another kind, and where anything on the way to the record's end is malformed or cut short.
// What else the record says is not looked at.
std::string ReadVersionRecord(ByteSource& source);

// Larger resources are no version resources.
inline constexpr std::size_t kMaxVersionResource = 65536;

}  // namespace trovex::records
