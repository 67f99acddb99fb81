// Version records in 16-bit characters: a tree of nodes, read within its bounds.
#pragma once

#include <optional>
#include <string_view>

#include "Platform/Text.h"

namespace trovex {

// Where the string table of a record lies that counts: the one that the record's translation names
// first, or, where there is no such table, the first one. Empty where the record is of another
// form.
struct WideTable {
  std::size_t begin = 0, end = 0;
};
WideTable FindWideTable(std::string_view record);

// The value of `key` (ASCII, in any case) in that table of that record, up to its NUL or its end;
// nothing where there is no such string. What is wrong with a record, such as lengths that lead out
// of it, ends the reading there: what stands before that counts.
std::optional<Text> ValueInWideTable(std::string_view record, const WideTable& table,
                                     std::string_view key);

// The same of a record that is asked once.
std::optional<Text> ValueInWideRecord(std::string_view record, std::string_view key);

}  // namespace trovex
