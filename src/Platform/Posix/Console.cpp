#include "Platform/Console.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

#include "Platform/Posix/Unfinished.h"

namespace trovex {

std::vector<std::string> CommandLineArguments(int argc, char** argv) {
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

void PrepareConsole() {
  // The lowest free number is the one that was found closed. Neither can be written to.
  for (int fd = STDIN_FILENO; fd <= STDERR_FILENO; ++fd) {
    if (fcntl(fd, F_GETFD) < 0) open("/dev/null", O_RDONLY);
  }
  signal(SIGPIPE, SIG_IGN);
  signal(SIGXFSZ, SIG_IGN);
}

// The stack of the first thread grows up to the limit that holds when it needs more.
void PrepareStack() {
  constexpr rlim_t kDeepWalk = rlim_t{64} << 20;
  rlimit limit = {};
  if (getrlimit(RLIMIT_STACK, &limit) != 0 || limit.rlim_cur >= kDeepWalk) return;
  limit.rlim_cur = std::min(kDeepWalk, limit.rlim_max);
  setrlimit(RLIMIT_STACK, &limit);
}

void RemoveUnfinishedFilesAtTheEnd() {
  posix::RemoveUnfinishedAtSignals();
}

bool ErrorIsTerminal() {
  return isatty(STDERR_FILENO) == 1;
}

}  // namespace trovex
