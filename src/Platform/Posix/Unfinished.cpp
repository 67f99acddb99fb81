#include "Platform/Posix/Unfinished.h"

#include <fcntl.h>
#include <limits.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "Platform/Posix/HostCalls.h"

namespace trovex::posix {
namespace {

constexpr int kMostFiles = 16;
constexpr int kEndingSignals[] = {SIGHUP, SIGINT, SIGTERM};

// What a signal handler may read: no memory that is given back, and the directory open, so that a
// path of any length needs one call.
struct Listed {
  int directory = -1;  // -1: the place is free
  char name[NAME_MAX + 1] = {};
};
Listed listed[kMostFiles];

sigset_t EndingSignals() {
  sigset_t set;
  sigemptyset(&set);
  for (const int signal : kEndingSignals) sigaddset(&set, signal);
  return set;
}

// Where the file stands; `path` where the system does not tell.
std::string RealPath(const FileDescriptor& file, const std::string& path) {
  char real[PATH_MAX];
  const std::string link = "/proc/self/fd/" + std::to_string(file.Get());
  const ssize_t length = readlink(link.c_str(), real, sizeof real);
  const bool told = length > 0 && length < ssize_t{sizeof real} && real[0] == '/';
  return told ? std::string(real, static_cast<std::size_t>(length)) : path;
}

void RemoveAndEnd(int signal) {
  for (const Listed& file : listed) {
    if (file.directory >= 0) unlinkat(file.directory, file.name, 0);
  }
  // The handler was put in place for one time: the signal now does what it always did.
  raise(signal);
}

}  // namespace

Unfinished::Unfinished(const FileDescriptor& file, const std::string& path) {
  const SignalsHeld held;
  const auto place = std::find_if(std::begin(listed), std::end(listed),
                                  [](const Listed& entry) { return entry.directory < 0; });
  const std::string real = RealPath(file, path);
  const std::size_t slash = real.rfind('/');
  const std::string name = real.substr(slash + 1);
  if (place == std::end(listed) || slash == std::string::npos || name.size() > NAME_MAX) return;
  FileDescriptor directory =
      OpenHostPath(slash == 0 ? "/" : real.substr(0, slash), O_PATH | O_DIRECTORY);
  if (!directory.IsOpen()) return;
  std::strcpy(place->name, name.c_str());
  place->directory = directory.Release();
  place_ = static_cast<int>(place - std::begin(listed));
}

void Unfinished::Reset() {
  if (place_ == kNone) return;
  const SignalsHeld held;
  close(std::exchange(listed[place_].directory, -1));
  place_ = kNone;
}

SignalsHeld::SignalsHeld() {
  const sigset_t ending = EndingSignals();
  sigprocmask(SIG_BLOCK, &ending, &former_);
}

SignalsHeld::~SignalsHeld() {
  const int error = errno;
  sigprocmask(SIG_SETMASK, &former_, nullptr);
  errno = error;
}

void RemoveUnfinishedAtSignals() {
  struct sigaction action = {};
  action.sa_handler = RemoveAndEnd;
  action.sa_mask = EndingSignals();
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (const int signal : kEndingSignals) {
    struct sigaction former = {};
    if (sigaction(signal, nullptr, &former) == 0 && former.sa_handler != SIG_IGN) {
      sigaction(signal, &action, nullptr);
    }
  }
}

}  // namespace trovex::posix
