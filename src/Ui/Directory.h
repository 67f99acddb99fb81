// Reading one directory through the platform.
#pragma once

#include <functional>
#include <vector>

#include "Platform/HeldDirectory.h"

namespace trovex {

// The directory with a final backslash.
Text WithBackslash(TextView directory);
// The directory without a final backslash, but for a root ("D:\").
Text WithoutBackslash(TextView directory);

// True if there is a directory of that name, readable or not.
bool DirectoryExists(const Text& directory);

// Calls `visit` for each entry but "." and "..", in the platform's order. False if there is no such
// directory; an unreadable one counts as empty.
bool ReadDirectory(const Text& directory, const std::function<void(const ListedEntry&)>& visit);

}  // namespace trovex
