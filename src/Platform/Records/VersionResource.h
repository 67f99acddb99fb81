// The version record of a Windows executable.
#pragma once

#include <string>

#include "Platform/Records/ByteReader.h"

namespace trovex::records {

// The version record in the version resource (type 16) of an NE executable, or of a PE executable
// in that of the first name's first language. The record's first field tells its length; what a
// resource holds behind it is left out. Empty where there is none, where the file is of another
// kind, and where anything on the way to the record's end is malformed or cut short. What else the
// record says is not looked at.
std::string ReadVersionRecord(ByteSource& source);

// True for an NE or PE executable that holds a group of icons (resource type 14), and for an icon
// file.
bool HoldsIcon(ByteSource& source);

// The raw version resources of the two kinds, and whether they hold resources of a type; `header`
// is the offset of the new header behind the MS-DOS one.
std::string ReadNeResource(ByteReader& file, std::uint64_t header);
std::string ReadPeResource(ByteReader& file, std::uint64_t header);
bool HasNeResource(ByteReader& file, std::uint64_t header, std::uint16_t type);
bool HasPeResource(ByteReader& file, std::uint64_t header, std::uint16_t type);

// Larger resources are no version resources.
inline constexpr std::size_t kMaxVersionResource = 65536;

}  // namespace trovex::records
