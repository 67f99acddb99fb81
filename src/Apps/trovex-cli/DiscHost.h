// A disc of the command line: a directory of the host or a disc image.
#pragma once

#include "Platform/Host.h"

namespace trovex::cli {

// Opens the disc that the argument (UTF-8) names, on the drive `drive`; on Windows a directory is
// catalogued where it stands. What it is its bytes tell, not its name. Where it cannot be read the
// result is null and `complaint` says why, in one line without line end (UTF-8). Otherwise
// `complaint` is empty, or says what is wrong with a disc that can be read all the same.
std::unique_ptr<Host> OpenDisc(const std::string& argument, char16_t drive, std::string& complaint);

}  // namespace trovex::cli
