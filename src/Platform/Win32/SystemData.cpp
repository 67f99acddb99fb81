// Version, processor, memory and running programs.
#include <algorithm>

#include "Platform/Win32/Names.h"
#include "Platform/Win32/Win32Platform.h"
#include "Platform/Win32/Windows.h"

namespace trovex {
namespace {

// Where the records of the system are wider than those of the port.
std::uint32_t ToldToThirtyTwoBits(SIZE_T bytes) {
  if (sizeof bytes == sizeof(std::uint32_t)) return static_cast<std::uint32_t>(bytes);
  return static_cast<std::uint32_t>(std::min<SIZE_T>(bytes, kMostMemory));
}

// The line of the Pentium goes on under another number in programs of 64 bits.
std::uint32_t ProcessorTypeOf(DWORD native) {
  constexpr DWORD kOfSixtyFourBits = 8664;
  switch (native) {
    case 386:
    case 486:
    case 586:
    case 4000:
    case 21064:
      return native;
    case kOfSixtyFourBits:
      return 586;
    default:
      return 0;
  }
}

using ProcessFunction = BOOL WINAPI(HANDLE, LPPROCESSENTRY32W);

bool AskProcess(ProcessFunction* ask, HANDLE snapshot, ProcessEntry& entry) {
  if (snapshot == nullptr || entry.dwSize != kProcessEntrySize) return false;
  PROCESSENTRY32W native = {};
  native.dwSize = sizeof native;
  if (!ask(snapshot, &native)) return false;
  entry.szExeFile = FromWide(native.szExeFile);
  return true;
}

}  // namespace

bool Win32Platform::GetVersionEx(OsVersionInfo& info) {
  if (info.dwOSVersionInfoSize != kOsVersionInfoSize) return false;
  OSVERSIONINFOW native = {};
  native.dwOSVersionInfoSize = sizeof native;
  if (!GetVersionExW(&native)) return false;
  info.dwMajorVersion = native.dwMajorVersion;
  info.dwMinorVersion = native.dwMinorVersion;
  info.dwBuildNumber = native.dwBuildNumber;
  info.dwPlatformId = native.dwPlatformId;
  info.szCSDVersion.assign(std::begin(native.szCSDVersion), std::end(native.szCSDVersion));
  return true;
}

void Win32Platform::GetSystemInfo(SystemInfo& info) {
  SYSTEM_INFO native = {};
  ::GetSystemInfo(&native);
  info.dwProcessorType = ProcessorTypeOf(native.dwProcessorType);
}

bool Win32Platform::GlobalMemoryStatus(MemoryStatus& status) {
  MEMORYSTATUS native = {};
  native.dwLength = sizeof native;
  ::GlobalMemoryStatus(&native);
  status.dwTotalPhys = ToldToThirtyTwoBits(native.dwTotalPhys);
  status.dwTotalVirtual = ToldToThirtyTwoBits(native.dwTotalVirtual);
  return true;
}

SnapshotHandle Win32Platform::CreateToolhelp32Snapshot(std::uint32_t flags, std::uint32_t process) {
  OwnedFile snapshot = OwnFile(::CreateToolhelp32Snapshot(flags, process));
  if (!snapshot) return SnapshotHandle::kInvalid;
  const auto handle = static_cast<SnapshotHandle>(++last_handle_);
  snapshots_.emplace(handle, std::move(snapshot));
  return handle;
}

void* Win32Platform::Native(SnapshotHandle snapshot) const {
  const auto found = snapshots_.find(snapshot);
  return found == snapshots_.end() ? nullptr : found->second.get();
}

bool Win32Platform::Process32First(SnapshotHandle snapshot, ProcessEntry& entry) {
  return AskProcess(Process32FirstW, Native(snapshot), entry);
}

bool Win32Platform::Process32Next(SnapshotHandle snapshot, ProcessEntry& entry) {
  return AskProcess(Process32NextW, Native(snapshot), entry);
}

void Win32Platform::CloseHandle(SnapshotHandle snapshot) {
  snapshots_.erase(snapshot);
}

}  // namespace trovex
