// What a POSIX system tells of itself, brought into the records of the port.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Platform.h"

namespace trovex::posix {

// The version for a kernel's release, "6.1.0-13-amd64": its numbers, one that is missing being 0,
// and as service pack what stands behind them, "13-amd64". The family is that of Windows NT, whose
// processes and users are kept apart as they are here; the two 9x families have no counterpart.
OsVersionInfo VersionOfRelease(std::string_view release);

// The processor type for a machine's name as uname gives it. 64-bit machines of the Intel line
// count as 586, as they do to a program of 32 bits; 0 for a name that is not known.
std::uint32_t ProcessorTypeOf(std::string_view machine);

// Memory by the file "meminfo" of the directory `proc`; nothing where that does not tell.
std::optional<MemoryStatus> ReadMemory(const std::string& proc);

// Names of the running programs, in ascending order of their numbers. A program that ends
// meanwhile is left out.
std::vector<Text> ReadProcessNames(const std::string& proc);

}  // namespace trovex::posix
