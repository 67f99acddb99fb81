// What a command line program needs of its host beside files.
#pragma once

#include <string>
#include <vector>

namespace trovex {

// The arguments behind the program's name, in UTF-8.
std::vector<std::string> CommandLineArguments(int argc, char** argv);

// Makes standard output and standard error pass bytes as they are, read as UTF-8 by a console.
void PrepareConsole();

// True if a person watches standard error.
bool ErrorIsTerminal();

}  // namespace trovex
