// The version record of a file as plain 8-bit bytes, searched and not parsed.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Lib/Folder.h"

namespace trovex {

// The raw record; empty where the file has none or it cannot be read.
std::string ReadVersionRecord(const FileInHand& oFichier);

// All that stands in the record from `offset` characters behind the start of the first occurrence
// of `key` (exact in case); nothing where the key does not occur. A part of `record`.
std::optional<std::string_view> BehindKey(std::string_view record, std::string_view key,
                                          std::size_t offset);

}  // namespace trovex
