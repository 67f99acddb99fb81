// Shell, icons and registry: the real calls.
#include <algorithm>

#include "Platform/Records/IconResource.h"
#include "Platform/Win32/CommandLine.h"
#include "Platform/Win32/FileReads.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Redirection.h"
#include "Platform/Win32/ShortName.h"
#include "Platform/Win32/SystemCalls.h"
#include "Platform/Win32/Win32Platform.h"
#include "Platform/Win32/Windows.h"

namespace trovex {
namespace {

constexpr DWORD kLongestName = 32768;      // characters
constexpr DWORD kElevationRequired = 740;  // the program asks for more rights

HKEY Root(RegistryRoot root) {
  return root == RegistryRoot::kClassesRoot ? HKEY_CLASSES_ROOT : HKEY_LOCAL_MACHINE;
}

HKEY NativeKey(RegistryKey key) {
  return reinterpret_cast<HKEY>(static_cast<std::intptr_t>(key));
}

RegistryKey PortKey(HKEY key) {
  return static_cast<RegistryKey>(reinterpret_cast<std::intptr_t>(key));
}

int ResultOf(HINSTANCE instance) {
  const auto result = reinterpret_cast<std::intptr_t>(instance);
  return static_cast<int>(std::min<std::intptr_t>(result, 33));
}

bool IsFile(const Text& name) {
  const Text verbatim = VerbatimName(name);
  if (verbatim.empty()) return false;
  const DWORD attributes = GetFileAttributesW(Wide(verbatim));
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// What the shell starts meanwhile meets errors as any program does, not as this one.
class ErrorModeOfOthers {
 public:
  ErrorModeOfOthers() : own_(SetErrorMode(0)) {}
  ~ErrorModeOfOthers() { SetErrorMode(own_); }
  ErrorModeOfOthers(const ErrorModeOfOthers&) = delete;
  ErrorModeOfOthers& operator=(const ErrorModeOfOthers&) = delete;

 private:
  UINT own_;
};

// A program that asks for more rights starts only through the shell, which takes its arguments by
// themselves.
bool StartWithMoreRights(const CommandLine& line, int mode) {
  const ErrorModeOfOthers error_mode;
  return ResultOf(ShellExecuteW(nullptr, nullptr, Wide(line.program), Wide(line.arguments), nullptr,
                                mode)) > 32;
}

bool HoldsSoundIcon(const Text& file) {
  try {
    const OwnedFile opened = OpenForReading(file);
    FileSource source(opened.get());
    return records::HoldsIcon(source);
  } catch (const RuntimeError&) {
    return false;
  }
}

bool IsText(DWORD type) {
  return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

}  // namespace

int Win32Platform::ShellExecute(const Text& verb, const Text& file, const Text& parameters,
                                const Text& directory, int show) {
  const ErrorModeOfOthers mode;
  return ResultOf(ShellExecuteW(GetDesktopWindow(), Wide(verb), Wide(file), Wide(parameters),
                                Wide(directory), show));
}

int Win32Platform::FindExecutable(const Text& file, const Text& directory, Text& buffer) {
  Text found(std::max<std::size_t>(MAX_PATH, kLongestName), u'\0');
  const int result = ResultOf(FindExecutableW(Wide(file), Wide(directory), Wide(found)));
  found.resize(std::min(found.find(u'\0'), found.size()));
  if (result <= 32) found.clear();
  // Name and terminator, as far as the buffer reaches.
  for (std::size_t i = 0; i < std::min(found.size() + 1, buffer.size()); ++i) {
    buffer[i] = i < found.size() && i + 1 < buffer.size() ? found[i] : u'\0';
  }
  return result;
}

// The application's name stays null: a program of 16 bits starts by its line alone.
void Win32Platform::StartProgram(const Text& command_line, int mode) {
  const Unredirected unredirected;
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = static_cast<WORD>(mode);
  PROCESS_INFORMATION process = {};
  const CommandLine split = SplitCommandLine(command_line, IsFile);
  Text line = split.Whole();
  if (!CreateProcessW(nullptr, Wide(line), nullptr, nullptr, FALSE, CREATE_DEFAULT_ERROR_MODE,
                      nullptr, nullptr, &start, &process)) {
    const DWORD code = ::GetLastError();
    const bool missing = code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND;
    if (code == kElevationRequired && StartWithMoreRights(split, mode)) return;
    throw RuntimeError(missing ? ErrorNumber::kFileNotFound : ErrorNumber::kInvalidCall);
  }
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
}

// Windows gave the engine up with Vista.
bool Win32Platform::HasHelpEngine() {
  if (SystemCall<const char*()>(L"ntdll", "wine_get_version") != nullptr) return true;
  constexpr DWORD kVista = 6;
  OsVersionInfo info;
  info.dwOSVersionInfoSize = kOsVersionInfoSize;
  return GetVersionEx(info) && info.dwMajorVersion < kVista;
}

int Win32Platform::ExtractIconEx(const Text& file, int index, IconOwner owner) {
  const Unredirected unredirected;
  if (owner == IconOwner::kDisc && !HoldsSoundIcon(file)) return 0;
  HICON large = nullptr;
  const ShortName name(file);
  ExtractIconExW(Wide(name.Get()), index, &large, nullptr, 1);
  if (large == nullptr) return 0;
  DestroyIcon(large);
  return 1;
}

long Win32Platform::RegCreateKey(RegistryRoot root, const Text& name, RegistryKey& key) {
  HKEY opened = nullptr;
  const LSTATUS result = RegCreateKeyW(Root(root), Wide(name), &opened);
  key = PortKey(opened);
  return result;
}

long Win32Platform::RegOpenKeyEx(RegistryRoot root, const Text& name, std::uint32_t access,
                                 RegistryKey& key) {
  HKEY opened = nullptr;
  LSTATUS result = RegOpenKeyExW(Root(root), Wide(name), 0, access, &opened);
  if (result == ERROR_ACCESS_DENIED) {
    result = RegOpenKeyExW(Root(root), Wide(name), 0, KEY_READ, &opened);
  }
  key = PortKey(opened);
  return result;
}

long Win32Platform::RegQueryValueEx(RegistryKey key, const Text& name, RegistryValue& value) {
  DWORD type = 0, size = 0;
  LSTATUS result = RegQueryValueExW(NativeKey(key), Wide(name), nullptr, &type, nullptr, &size);
  if (result != ERROR_SUCCESS) return result;
  std::string bytes(size, '\0');
  result = RegQueryValueExW(NativeKey(key), Wide(name), nullptr, &type,
                            reinterpret_cast<BYTE*>(bytes.data()), &size);
  if (result != ERROR_SUCCESS) return result;
  bytes.resize(size);
  value = {type, {}, {}};
  if (!IsText(type)) {
    value.bytes = std::move(bytes);
    return result;
  }
  value.text.resize(size / sizeof(char16_t));
  std::copy_n(bytes.data(), value.text.size() * sizeof(char16_t),
              reinterpret_cast<char*>(value.text.data()));
  if (!value.text.ends_with(u'\0')) value.text += u'\0';
  return result;
}

void Win32Platform::RegCloseKey(RegistryKey key) {
  ::RegCloseKey(NativeKey(key));
}

}  // namespace trovex
