// Reading one directory through the platform.
#pragma once

#include <memory>

#include "Platform/HeldDirectory.h"

namespace trovex {

// The directory with a final backslash, which an empty one gets too.
Text WithBackslash(TextView directory);
// The directory without a final backslash, but for a root ("D:\").
Text WithoutBackslash(TextView directory);

// True if there is a directory of that name, readable or not.
bool DirectoryExists(const Text& directory);

// What a directory holds; null where it is missing or cannot be read.
std::shared_ptr<const DirectoryEntries> EntriesOf(const Text& directory);

}  // namespace trovex
