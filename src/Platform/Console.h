// What a command line program needs of its host beside files.
#pragma once

#include <string>
#include <vector>

namespace trovex {

// The arguments behind the program's name, in UTF-8.
std::vector<std::string> CommandLineArguments(int argc, char** argv);

// Makes standard output and standard error pass bytes as they are, read as UTF-8 by a console. What
// was closed when the process began stays unwritable: no file takes its place. Writing to a reader
// who is gone, or beyond the size that files may have, is a failed write and no signal.
void PrepareConsole();

// Gives the calling thread, which is the first one, the stack that the walk of a very deep tree
// takes: some 10,000 levels. Where a program is linked with its stack, it has it already.
void PrepareStack();

// From now on whoever ends the process from outside (Ctrl+C, a closed terminal, a shut-down) leaves
// no half-written file behind: a file opened by Platform::OpenWrite and not closed is removed.
void RemoveUnfinishedFilesAtTheEnd();

// True if a person watches standard error.
bool ErrorIsTerminal();

}  // namespace trovex
