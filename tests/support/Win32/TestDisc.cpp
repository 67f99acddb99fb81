#include "support/TestDisc.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

#include "Platform/Encoding.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Win32Platform.h"
#include "Platform/Win32/Windows.h"

namespace trovex::test {
namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kDrive = L"D:";

[[noreturn]] void Fail(const std::string& what) {
  throw std::runtime_error("test disc: " + what);
}

// Names are passed on in the form without a limit of length, which the file system library lacks.
Text NameOf(std::string_view path) {
  return VerbatimName(u"D:\\" + FromUtf8(path));
}

bool IsDirectory(const Text& name) {
  const DWORD attributes = GetFileAttributesW(Wide(name));
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

void RemoveAll(const Text& name);

void Empty(const Text& directory) {
  WIN32_FIND_DATAW entry;
  const OwnedFind search = OwnFind(FindFirstFileW(Wide(directory + u"\\*"), &entry));
  if (!search) return;
  do {
    const Text name = FromWide(entry.cFileName);
    if (name != u"." && name != u"..") RemoveAll(directory + u"\\" + name);
  } while (FindNextFileW(search.get(), &entry));
}

void RemoveAll(const Text& name) {
  const DWORD attributes = GetFileAttributesW(Wide(name));
  SetFileAttributesW(Wide(name), FILE_ATTRIBUTE_NORMAL);
  if (!IsDirectory(name)) {
    if (!DeleteFileW(Wide(name))) Fail("cannot remove " + ToUtf8(name));
    return;
  }
  // A link goes; what it leads to stays.
  if (!(attributes & FILE_ATTRIBUTE_REPARSE_POINT)) Empty(name);
  if (!RemoveDirectoryW(Wide(name))) Fail("cannot remove " + ToUtf8(name));
}

void EmptyDrive() {
  Empty(u"\\\\?\\D:");
}

void MakeDirectories(const Text& name) {
  if (name.ends_with(u':') || IsDirectory(name)) return;
  MakeDirectories(name.substr(0, name.find_last_of(u'\\')));
  if (!CreateDirectoryW(Wide(name), nullptr)) Fail("cannot make " + ToUtf8(name));
}

// Where TROVEX_TEST_DRIVE names no drive: D: over a directory of the user's temporary files, for
// the life of the process.
class Substitution {
 public:
  Substitution() {
    if (GetDriveTypeW(L"D:\\") != DRIVE_NO_ROOT_DIR) {
      Fail("there is a drive D:, set TROVEX_TEST_DRIVE=D: if all on it may be deleted");
    }
    directory_ = fs::temp_directory_path() / ("trovex-" + std::to_string(GetCurrentProcessId()));
    fs::create_directories(directory_);
    if (!DefineDosDeviceW(0, kDrive, directory_.c_str())) Fail("D: cannot be substituted");
  }
  ~Substitution() {
    DefineDosDeviceW(DDD_REMOVE_DEFINITION | DDD_EXACT_MATCH_ON_REMOVE, kDrive,
                     (L"\\??\\" + directory_.wstring()).c_str());
    std::error_code ignored;
    fs::remove_all(directory_, ignored);
  }

 private:
  fs::path directory_;
};

void PrepareDrive() {
  const char* given = std::getenv("TROVEX_TEST_DRIVE");
  if (given == nullptr || *given == '\0') {
    static const Substitution substitution;
  } else if (std::string_view(given) != "D:") {
    Fail("TROVEX_TEST_DRIVE must be D:, the drive that the tests spell out");
  }
  if (!IsDirectory(u"D:\\")) Fail("there is no drive D:");
  EmptyDrive();
}

FILETIME ToFileTime(const LocalTime& time) {
  SYSTEMTIME local = {}, universal = {};
  local.wYear = static_cast<WORD>(time.year);
  local.wMonth = static_cast<WORD>(time.month);
  local.wDay = static_cast<WORD>(time.day);
  local.wHour = static_cast<WORD>(time.hour);
  local.wMinute = static_cast<WORD>(time.minute);
  local.wSecond = static_cast<WORD>(time.second);
  FILETIME file = {};
  if (!TzSpecificLocalTimeToSystemTime(nullptr, &local, &universal) ||
      !SystemTimeToFileTime(&universal, &file)) {
    Fail("no such time");
  }
  return file;
}

// Others may have the file open to read.
void WriteFileAt(const Text& name, std::string_view contents, const LocalTime& modified) {
  const OwnedFile file = OwnFile(CreateFileW(Wide(name), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                             CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  const FILETIME time = ToFileTime(modified);
  DWORD written = 0;
  if (!file ||
      !WriteFile(file.get(), contents.data(), static_cast<DWORD>(contents.size()), &written,
                 nullptr) ||
      written != contents.size() || !SetFileTime(file.get(), nullptr, nullptr, &time)) {
    Fail("cannot write " + ToUtf8(name));
  }
}

}  // namespace

struct TestDisc::State {
  fs::path former_directory = fs::current_path();
  Win32Platform platform;
  PlatformScope scope{platform};
};

TestDisc::TestDisc() {
  PrepareDrive();
  state_ = std::make_unique<State>();
  fs::current_path(L"D:\\");
  SetEnvironmentVariableW(L"=D:", L"D:\\");
}

// The drive is left before it is emptied: a current directory cannot be removed. Files that the
// test left open are closed by then, too.
TestDisc::~TestDisc() {
  std::error_code ignored;
  fs::current_path(state_->former_directory, ignored);
  state_.reset();
  EmptyDrive();
}

void TestDisc::File(std::string_view path, std::string_view contents, const LocalTime& modified) {
  const Text name = NameOf(path);
  MakeDirectories(name.substr(0, name.find_last_of(u'\\')));
  WriteFileAt(name, contents, modified);
  // Wine keeps profile files that it has read by name and date, and all files here bear the same
  // date: it is told to drop this one.
  const Text plain = name.starts_with(u"\\\\?\\") ? name.substr(4) : name;
  WritePrivateProfileStringW(nullptr, nullptr, nullptr, Wide(plain));
}

void TestDisc::Directory(std::string_view path) {
  MakeDirectories(NameOf(path));
}

void TestDisc::Remove(std::string_view path) {
  RemoveAll(NameOf(path));
}

void TestDisc::Hide(std::string_view path) {
  const Text name = NameOf(path);
  const DWORD attributes = GetFileAttributesW(Wide(name));
  if (!SetFileAttributesW(Wide(name), attributes | FILE_ATTRIBUTE_HIDDEN)) Fail("cannot hide");
}

fs::path TestDisc::HostPath(std::string_view path) const {
  return (fs::path(L"D:\\") / fs::path(FromUtf8(path))).make_preferred();
}

Platform& TestDisc::GetPlatform() {
  return state_->platform;
}

}  // namespace trovex::test
