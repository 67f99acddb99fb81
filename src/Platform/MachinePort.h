// What the machine tells about itself, and its small services.
#pragma once

#include <cstdint>
#include <string>

#include "Platform/Text.h"

namespace trovex {

// Families of systems, as their version record numbers them.
inline constexpr std::uint32_t kFamilyWindows9x = 1;
inline constexpr std::uint32_t kFamilyWindowsNt = 2;

// Sizes of two records as a program of 32 bits knows them; the caller sets them before the call.
inline constexpr std::uint32_t kOsVersionInfoSize = 148;
inline constexpr std::uint32_t kProcessEntrySize = 296;

// The version of the system.
struct OsVersionInfo {
  std::uint32_t dwOSVersionInfoSize = 0;
  std::uint32_t dwMajorVersion = 0;
  std::uint32_t dwMinorVersion = 0;
  std::uint32_t dwBuildNumber = 0;  // in the 9x family its high word holds other data
  std::uint32_t dwPlatformId = 0;
  // The service pack in a field of 128 characters: what follows the first NUL means nothing.
  Text szCSDVersion;
};

struct SystemInfo {
  std::uint32_t dwProcessorType = 0;
};

// In bytes. A system that counts further than a program of 32 bits tells it at most kMostMemory.
inline constexpr std::uint32_t kMostMemory = 0x7FFFFFFF;
struct MemoryStatus {
  std::uint32_t dwTotalPhys = 0;
  std::uint32_t dwTotalVirtual = 0;
};

// A list of what ran at one moment.
enum class SnapshotHandle : std::int64_t { kInvalid = -1, kNone = 0 };
inline constexpr std::uint32_t kSnapshotProcesses = 2;

struct ProcessEntry {
  std::uint32_t dwSize = 0;
  Text szExeFile;  // name of the program, 259 characters at most
};

class MachinePort {
 public:
  virtual ~MachinePort() = default;

  // Value of an environment variable, empty if it is not set. A directory is given as the program
  // writes it.
  virtual Text GetEnvironmentVariable(const Text& name) = 0;

  // --- System data --------------------------------------------------------------------------

  // False, and `info` untouched, where its size is not kOsVersionInfoSize. Posix gives the numbers
  // of the kernel's release, as one of the NT family.
  virtual bool GetVersionEx(OsVersionInfo& info) = 0;
  // The processor: 386, 486, 586 (any later one of that line, too), 4000, 21064; any other number
  // where it is none of these.
  virtual void GetSystemInfo(SystemInfo& info) = 0;
  // False, and `status` untouched, where the system does not tell. Posix counts the swap space to
  // the virtual memory.
  virtual bool GlobalMemoryStatus(MemoryStatus& status) = 0;

  // The running programs, with kSnapshotProcesses and the process 0; what else it may hold is open.
  // kNone or kInvalid where there is none. Whoever asked closes it.
  virtual SnapshotHandle CreateToolhelp32Snapshot(std::uint32_t flags, std::uint32_t process) = 0;
  // The first and the next program of a snapshot, in no promised order. False, and `entry`
  // untouched, at the end, on a handle that is none, and where its size is not kProcessEntrySize.
  virtual bool Process32First(SnapshotHandle snapshot, ProcessEntry& entry) = 0;
  virtual bool Process32Next(SnapshotHandle snapshot, ProcessEntry& entry) = 0;
  // A handle that is none, or closed already, does no harm.
  virtual void CloseHandle(SnapshotHandle snapshot) = 0;

  // --- System services ----------------------------------------------------------------------

  // Sounds a standard signal (16 stop, 32 question, 64 information); silent where there is none.
  virtual void MessageBeep(std::uint32_t type) = 0;
  // What an error's SystemCode says (untrimmed), in French on every system; empty where there is no
  // such text.
  virtual Text FormatMessage(std::uint32_t code) = 0;
  // A number from 0 up to, not including, 1, from a generator seeded with the clock.
  virtual double Random() = 0;
};

}  // namespace trovex
