// Drives, directories and the services of the system.
#include <chrono>
#include <memory>

#include "Platform/SystemTexts.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Redirection.h"
#include "Platform/Win32/SystemCalls.h"
#include "Platform/Win32/Win32Platform.h"
#include "Platform/Win32/Windows.h"

// Behind Windows.h, whose types it needs.
#include <shlobj.h>

namespace trovex {
namespace {

using DirectoryFunction = UINT WINAPI(LPWSTR, UINT);

// The rule of sizes that the system's directory functions share.
std::uint32_t AskDirectory(DirectoryFunction* ask, Text& buffer, std::uint32_t size) {
  buffer.assign(size, u'\0');
  const UINT length = ask(size == 0 ? nullptr : Wide(buffer), size);
  buffer.resize(length < size ? length : 0);
  return length;
}

// The variable in which the process keeps the current directory of a drive, as every run-time
// library does: the system itself resolves names such as "X:File" by it.
Text DirectoryVariable(char16_t letter) {
  return {u'=', ToUpper(letter), u':'};
}

char16_t DriveLetter(const Text& path) {
  const bool named = path.size() >= 2 && path[1] == u':';
  const char16_t letter = named ? ToUpper(path[0]) : u'\0';
  return letter >= u'A' && letter <= u'Z' ? letter : u'\0';
}

bool IsDirectory(const Text& name) {
  const Unredirected unredirected;
  const Text verbatim = VerbatimName(name);
  if (verbatim.empty()) return false;
  const DWORD attributes = GetFileAttributesW(Wide(verbatim));
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

Text WithoutFinalBackslash(Text directory) {
  if (directory.ends_with(u'\\') && !IsRoot(directory)) directory.pop_back();
  return directory;
}

Text CurrentDirectory() {
  Text directory(GetCurrentDirectoryW(0, nullptr), u'\0');
  directory.resize(GetCurrentDirectoryW(static_cast<DWORD>(directory.size()), Wide(directory)));
  return WithoutFinalBackslash(std::move(directory));
}

struct LocalMemory {
  void operator()(wchar_t* memory) const { LocalFree(memory); }
};

}  // namespace

// No box of the system may ask for a disc while a drive is only looked at. No library is looked for
// in the current directory, which may be that of a disc: with an empty name the system leaves it
// out.
Win32Platform::Win32Platform()
    : random_(
          static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count())) {
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  const auto set_directory = SystemCall<BOOL WINAPI(LPCWSTR)>(L"kernel32", "SetDllDirectoryW");
  if (set_directory != nullptr) set_directory(L"");
}

// --- Drives and directories -----------------------------------------------------------------

DriveType Win32Platform::GetDriveType(const Text& root) {
  return DriveType{GetDriveTypeW(root.empty() ? nullptr : Wide(root))};
}

std::uint32_t Win32Platform::GetLogicalDrives() {
  return ::GetLogicalDrives();
}

Text Win32Platform::GetVolumeLabel(const Text& root) {
  wchar_t label[MAX_PATH + 1] = {};
  if (!GetVolumeInformationW(Wide(root), label, MAX_PATH + 1, nullptr, nullptr, nullptr, nullptr,
                             0)) {
    return {};
  }
  return FromWide(label);
}

std::uint32_t Win32Platform::GetWindowsDirectory(Text& buffer, std::uint32_t size) {
  return AskDirectory(GetWindowsDirectoryW, buffer, size);
}

std::uint32_t Win32Platform::GetSystemDirectory(Text& buffer, std::uint32_t size) {
  return AskDirectory(GetSystemDirectoryW, buffer, size);
}

Text Win32Platform::GetProgramDirectory() {
  Text name(MAX_PATH, u'\0');
  DWORD length = 0;
  while ((length = GetModuleFileNameW(nullptr, Wide(name), static_cast<DWORD>(name.size()))) ==
         name.size()) {
    name.resize(2 * name.size());
  }
  name.resize(length);
  return WithoutFinalBackslash(name.substr(0, name.find_last_of(u'\\') + 1));
}

Text Win32Platform::GetApplicationDataDirectory() {
  wchar_t directory[MAX_PATH] = {};
  if (SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, 0, directory) != S_OK) return {};
  return WithoutFinalBackslash(FromWide(directory));
}

Text Win32Platform::GetCurrentDirectory() {
  return CurrentDirectory();
}

void Win32Platform::ChangeDirectory(const Text& directory) {
  const Text full = directory.empty() ? Text() : WithoutFinalBackslash(FullName(directory));
  if (!IsDirectory(full))
    throw RuntimeError::OfSystem(ErrorNumber::kPathNotFound, kSystemPathNotFound);
  const char16_t letter = DriveLetter(full);
  // A network path has no drive: it becomes the current directory, whichever drive was current.
  const bool current = letter == 0 || letter == DriveLetter(CurrentDirectory());
  if (current && !SetCurrentDirectoryW(Wide(full))) {
    throw RuntimeError::OfSystem(ErrorNumber::kPathNotFound, kSystemPathNotFound);
  }
  if (letter != 0) SetEnvironmentVariableW(Wide(DirectoryVariable(letter)), Wide(full));
}

void Win32Platform::ChangeDrive(const Text& drive) {
  const char16_t letter = DriveLetter(drive);
  if (letter == 0)
    throw RuntimeError::OfSystem(ErrorNumber::kDeviceUnavailable, kSystemInvalidDrive);
  const Text former = CurrentDirectory();
  if (letter == DriveLetter(former)) return;
  const Text root = {letter, u':', u'\\'};
  const Text kept = GetEnvironmentVariable(DirectoryVariable(letter));
  if ((kept.empty() || !SetCurrentDirectoryW(Wide(kept))) && !SetCurrentDirectoryW(Wide(root))) {
    throw RuntimeError::OfSystem(ErrorNumber::kDeviceUnavailable, kSystemInvalidDrive);
  }
  SetEnvironmentVariableW(Wide(DirectoryVariable(DriveLetter(former))), Wide(former));
}

Text Win32Platform::GetEnvironmentVariable(const Text& name) {
  Text value(GetEnvironmentVariableW(Wide(name), nullptr, 0), u'\0');
  value.resize(GetEnvironmentVariableW(Wide(name), Wide(value), static_cast<DWORD>(value.size())));
  return value;
}

// --- System services ------------------------------------------------------------------------

void Win32Platform::MessageBeep(std::uint32_t type) {
  ::MessageBeep(type);
}

// In another language than the interface's the system's own text is none.
Text Win32Platform::FormatMessage(std::uint32_t code) {
  if (code == 0) return {};  // the system has a text for success
  if (const Text own = SystemText(code); !own.empty()) return own;
  wchar_t* text = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, code, MAKELANGID(LANG_FRENCH, SUBLANG_FRENCH), reinterpret_cast<wchar_t*>(&text), 0,
      nullptr);
  const std::unique_ptr<wchar_t, LocalMemory> owned(text);
  return length == 0 ? Text() : FromWide(text);
}

double Win32Platform::Random() {
  return std::uniform_real_distribution<double>(0.0, 1.0)(random_);
}

}  // namespace trovex
