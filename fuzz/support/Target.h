// A fuzz target: one source in targets/ that defines the two functions below. Main.cpp makes a
// program of it.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace trovex::fuzz {

// Gives the reader these bytes and holds it to its promises. The bytes stand in a block of just
// their size, so a read behind their end is caught.
void Try(std::string_view input);

// Passes on the inputs that the search starts from, each with a name of its own.
using TakeSeed = std::function<void(const std::string& name, std::string_view input)>;
void Seeds(const TakeSeed& take);

// Ends the process, with the promise on standard error, where it does not hold.
void Promise(bool holds, const char* promise);

// Cuts the first line off an input that tells names before bytes: up to the first LF, which goes;
// all of it where there is none.
std::string_view TakeLine(std::string_view& input);

}  // namespace trovex::fuzz
