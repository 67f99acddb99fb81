// An imaginary shareware disc of the middle nineties, in French: some hundred small files that show
// every convention the catalogue knows. All names of programs, makers and people are invented.
#pragma once

#include <filesystem>

namespace trovex::test {

// Writes the disc below `root`, which is made if it is missing; files of an earlier disc are
// replaced, others stay. The bytes and the dates are the same at every run. Raises
// std::filesystem::filesystem_error where something cannot be written.
void WriteSampleDisc(const std::filesystem::path& root);

// True if `root` is a directory that WriteSampleDisc filled.
bool IsSampleDisc(const std::filesystem::path& root);

}  // namespace trovex::test
