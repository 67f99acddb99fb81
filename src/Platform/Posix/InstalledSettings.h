// Where an installed program keeps the user's settings.
#pragma once

#include <string>

namespace trovex::posix {

// The host's name of the settings file of a program in `program_directory`: empty, which is beside
// the program, unless it is installed, in a directory called bin. Then it is trovex/Trovex.ini in
// `config_home`, or in .config of `home` where that is empty or no absolute path; empty without
// either.
std::string InstalledSettings(const std::string& program_directory, const std::string& config_home,
                              const std::string& home);

}  // namespace trovex::posix
