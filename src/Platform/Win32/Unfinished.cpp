#include "Platform/Win32/Unfinished.h"

#include <map>

#include "Platform/Win32/Names.h"
#include "Platform/Win32/Windows.h"

namespace trovex {
namespace {

// The system calls the handler on a thread of its own.
struct Unfinished {
  Unfinished() { InitializeCriticalSection(&section); }

  CRITICAL_SECTION section;
  std::map<void*, Text> files;
};

Unfinished& List() {
  static Unfinished list;
  return list;
}

class Lock {
 public:
  Lock() { EnterCriticalSection(&List().section); }
  ~Lock() { LeaveCriticalSection(&List().section); }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;
};

BOOL WINAPI OnControlEvent(DWORD) {
  RemoveUnfinished();
  return FALSE;
}

}  // namespace

void ListUnfinished(void* file, const Text& verbatim) {
  const Lock lock;
  List().files.emplace(file, verbatim);
}

void StrikeUnfinished(void* file) {
  const Lock lock;
  List().files.erase(file);
}

void RemoveUnfinished() {
  EnterCriticalSection(&List().section);
  for (const auto& [file, verbatim] : List().files) {
    CloseHandle(file);
    DeleteFileW(Wide(verbatim));
  }
  List().files.clear();
}

void RemoveUnfinishedAtControlEvents() {
  List();  // made before two threads could
  SetConsoleCtrlHandler(OnControlEvent, TRUE);
}

}  // namespace trovex
