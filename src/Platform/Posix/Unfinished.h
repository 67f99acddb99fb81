// Files that are being written, for a signal that ends the process to take away: half a file is not
// to be left under a whole one's name.
#pragma once

#include <signal.h>

#include <string>
#include <utility>

#include "Platform/Posix/FileDescriptor.h"

namespace trovex::posix {

// Keeps an open file on the list for the life of the object. A file for which the list has no room
// is not on it.
class Unfinished {
 public:
  Unfinished() = default;
  // `path`: the file's absolute host path. Of a link the file that it leads to is meant.
  Unfinished(const FileDescriptor& file, const std::string& path);
  ~Unfinished() { Reset(); }
  Unfinished(Unfinished&& other) noexcept : place_(std::exchange(other.place_, kNone)) {}
  Unfinished& operator=(Unfinished&& other) noexcept {
    if (this != &other) {
      Reset();
      place_ = std::exchange(other.place_, kNone);
    }
    return *this;
  }

 private:
  static constexpr int kNone = -1;

  void Reset();

  int place_ = kNone;
};

// Holds back the signals that end the process, so that a file is made and put on the list, or
// finished and taken off it, in one step.
class SignalsHeld {
 public:
  SignalsHeld();
  ~SignalsHeld();
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;

 private:
  sigset_t former_;
};

// From now on SIGHUP, SIGINT and SIGTERM remove what is on the list and end the process as they
// always did. One that the process was started to ignore stays ignored.
void RemoveUnfinishedAtSignals();

}  // namespace trovex::posix
