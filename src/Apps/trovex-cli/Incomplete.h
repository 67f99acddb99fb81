// What a catalogue is missing, told to the user.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "Platform/Host.h"
#include "Platform/Unread.h"

namespace trovex::cli {

// One text for each directory and file that could not be read, its name as the program writes it,
// and one for each table that was full.
std::vector<Text> TextsOf(const Unread& unread);

// The same in lines, with the user's own names: the first twenty, and how many more there are.
void TellUnread(const Unread& unread, Host& host, std::ostream& err);

}  // namespace trovex::cli
