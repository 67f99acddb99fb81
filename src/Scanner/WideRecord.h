// Version records in 16-bit characters: a tree of nodes, read within its bounds.
#pragma once

#include <optional>
#include <string_view>

#include "Platform/Text.h"

namespace trovex {

// The value of `key` (in any case) in the string table that the record's translation names first,
// or, where there is no such table, in the first one; up to its NUL or its end. Nothing where the
// record is of another form or has no such string. What is wrong with a record, such as lengths
// that lead out of it, ends the reading there: what stands before that counts.
std::optional<Text> ValueInWideRecord(std::string_view record, TextView key);

}  // namespace trovex
