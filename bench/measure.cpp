// trovex-bench-measure PROGRAM [ARGUMENT...]: runs PROGRAM with its output thrown away and prints
// wall seconds, user and system seconds and the peak resident memory in KiB, on one line. A program
// of its own because a child's peak counts that of the process it was forked from: this one is
// smaller than whatever it runs.
// Exit status: that of PROGRAM; 125 if it could not be run or was killed.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace {

constexpr int kNotRun = 125;

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

[[noreturn]] void Exec(char** command) {
  const int nowhere = open("/dev/null", O_WRONLY);
  dup2(nowhere, STDOUT_FILENO);
  execvp(command[0], command);
  std::perror(command[0]);
  _exit(kNotRun);
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) {
    std::fputs("usage: trovex-bench-measure PROGRAM [ARGUMENT...]\n", stderr);
    return 2;
  }
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) Exec(arguments + 1);
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) != child) return kNotRun;
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
  std::printf("%.6f %.6f %.6f %ld\n", wall.count(), Seconds(usage.ru_utime),
              Seconds(usage.ru_stime), usage.ru_maxrss);
  return WIFEXITED(status) ? WEXITSTATUS(status) : kNotRun;
}
