// Files by number: text files read and written line by line, in Windows-1252.
#pragma once

#include <cstddef>
#include <limits>

#include "Lib/Folder.h"

namespace trovex {

// The lowest number that no open file bears, from 1; raises kTooManyFiles past 511.
int FreeFile();

// Open a file under a free number for reading, or for writing from empty. Only readers share a
// file: anything else raises kFileAlreadyOpen, as a number in use does. They raise what the
// platform raises, and kBadFileNumber for a number that cannot be.
void OpenInput(int number, const FileInHand& file);
void OpenOutput(int number, const Text& name);

// True at the end of a file that was opened for reading. Raises kDeviceIo.
bool AtEnd(int number);

// No line of a text is taken further by whoever only looks at it.
inline constexpr std::size_t kLongestLine = 1048576;  // characters

inline constexpr std::size_t kWholeLine = std::numeric_limits<std::size_t>::max();

// The next line, without its end (CR LF, CR or LF); only its first `longest` characters are kept,
// the rest is passed over in pieces. A rest of more than 16777216 characters is none that anybody
// reads: the file then counts as at its end. Raises kEndOfFile, kDeviceIo.
Text LineInput(int number, std::size_t longest = kWholeLine);

// The first `longest` characters of the next line, or all of it if it is shorter. Nothing behind
// them is read, however long the line; what is read next begins there. Raises as LineInput.
Text LineStart(int number, std::size_t longest);

// Writes the text as it stands; raises kDiskFull, kDeviceIo, at the latest when closing.
void Print(int number, TextView text);
// The same with a line end (CR LF).
void PrintLine(int number, TextView text);

// Closing a number that is not open does nothing. Raises kDiskFull, kDeviceIo; closed all the same.
void CloseFile(int number);
// Closes everything, errors ignored.
void CloseAllFiles();

// True if a file of that name is open for writing.
bool IsOpenForOutput(const Text& name);

}  // namespace trovex
