// Searches, files and their contents.
#include <algorithm>
#include <array>
#include <utility>

#include "Platform/SystemTexts.h"
#include "Platform/Win32/Errors.h"
#include "Platform/Win32/FileReads.h"
#include "Platform/Win32/FirstEntry.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Redirection.h"
#include "Platform/Win32/Unfinished.h"
#include "Platform/Win32/Win32Platform.h"
#include "Platform/Win32/Windows.h"

namespace trovex {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::size_t kLargestPiece = 1 << 24;  // of one call of the system

// 0 where there is no such file.
DWORD AttributesOf(const Text& verbatim) {
  const DWORD attributes = GetFileAttributesW(Wide(verbatim));
  return attributes == INVALID_FILE_ATTRIBUTES ? 0 : attributes;
}

bool IsDirectory(const Text& verbatim) {
  return AttributesOf(verbatim) & FILE_ATTRIBUTE_DIRECTORY;
}

bool IsDirectoryMissing(const Text& verbatim) {
  return !IsDirectory(verbatim.substr(0, verbatim.find_last_of(u'\\') + 1));
}

[[noreturn]] void Raise(ErrorNumber number, DWORD code) {
  throw RuntimeError::OfSystem(number, code);
}

// The system refuses a directory as it refuses a file without permission, and does not always tell
// a missing file from a missing directory or drive; the program does.
[[noreturn]] void RaiseFor(const Text& verbatim, DWORD code) {
  if (IsDirectory(verbatim)) Raise(ErrorNumber::kPathFileAccess, kSystemAccessDenied);
  const ErrorNumber number = ErrorNumberOf(code);
  if (number == ErrorNumber::kFileNotFound && IsDirectoryMissing(verbatim)) {
    Raise(ErrorNumber::kPathNotFound, kSystemPathNotFound);
  }
  Raise(number, code);
}

// The name that the system opens; raises what no name and a device's name raise.
Text Openable(const Text& name) {
  if (name.empty()) Raise(ErrorNumber::kFileNotFound, kSystemFileNotFound);
  Text verbatim = VerbatimName(name);
  if (verbatim.empty()) throw RuntimeError(ErrorNumber::kPathFileAccess);
  return verbatim;
}

// The same for a file that is to be written or replaced. Not every file system holds to the
// read-only attribute by itself.
Text Writable(const Text& name) {
  Text verbatim = Openable(name);
  const DWORD attributes = AttributesOf(verbatim);
  if (attributes & FILE_ATTRIBUTE_DIRECTORY) {
    Raise(ErrorNumber::kPathFileAccess, kSystemAccessDenied);
  }
  if (attributes & FILE_ATTRIBUTE_READONLY) {
    Raise(ErrorNumber::kPermissionDenied, kSystemAccessDenied);
  }
  return verbatim;
}

// A file on a disk. What opens as anything else (a pipe of a server) is closed again.
OwnedFile OpenDiskFile(const Text& verbatim, DWORD access, DWORD share, DWORD disposition) {
  OwnedFile file = OwnFile(CreateFileW(Wide(verbatim), access, share, nullptr, disposition,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) RaiseFor(verbatim, ::GetLastError());
  if (GetFileType(file.get()) != FILE_TYPE_DISK) {
    throw RuntimeError(ErrorNumber::kPathFileAccess);
  }
  return file;
}

std::size_t ReadAll(HANDLE file, char* buffer, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const auto piece = static_cast<DWORD>(std::min(size - done, kLargestPiece));
    DWORD count = 0;
    if (!ReadFile(file, buffer + done, piece, &count, nullptr)) {
      Raise(ErrorNumber::kDeviceIo, ::GetLastError());
    }
    if (count == 0) break;
    done += count;
  }
  return done;
}

// Reads at offsets from a file of its own.
class KeptSource : public records::ByteSource {
 public:
  explicit KeptSource(OwnedFile file) : file_(std::move(file)), source_(file_.get()) {}
  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override {
    return source_.ReadAt(offset, buffer, size);
  }

 private:
  OwnedFile file_;
  FileSource source_;
};

void WriteAll(HANDLE file, const char* data, std::size_t size) {
  for (std::size_t done = 0; done < size;) {
    const auto piece = static_cast<DWORD>(std::min(size - done, kLargestPiece));
    DWORD count = 0;
    if (!WriteFile(file, data + done, piece, &count, nullptr)) {
      const DWORD code = ::GetLastError();
      const ErrorNumber number = ErrorNumberOf(code);
      Raise(number == ErrorNumber::kDiskFull ? number : ErrorNumber::kDeviceIo, code);
    }
    if (count == 0) Raise(ErrorNumber::kDiskFull, kSystemDiskFull);
    done += count;
  }
}

void CloseNative(OwnedFile file) {
  if (!CloseHandle(file.release())) Raise(ErrorNumber::kDeviceIo, ::GetLastError());
}

// A new file beside another one. Unless it is put in that one's place it goes away again.
class FileBeside {
 public:
  explicit FileBeside(const Text& place) : place_(place) {
    const Text directory = place.substr(0, place.find_last_of(u'\\') + 1);
    for (int number = 0; !file_; ++number) {
      name_ = directory + u"~Trvx" + Decimal(number) + u".tmp";
      file_ = OwnFile(CreateFileW(Wide(name_), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                  FILE_ATTRIBUTE_NORMAL, nullptr));
      const DWORD code = ::GetLastError();
      if (!file_ && code != ERROR_FILE_EXISTS) RaiseFor(name_, code);
    }
    ListUnfinished(file_.get(), name_);
  }
  ~FileBeside() {
    StrikeUnfinished(file_.get());
    file_.reset();
    if (!name_.empty()) DeleteFileW(Wide(name_));
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;

  HANDLE Get() const { return file_.get(); }

  void PutInPlace() {
    StrikeUnfinished(file_.get());
    CloseNative(std::move(file_));
    if (!MoveFileExW(Wide(name_), Wide(place_), MOVEFILE_REPLACE_EXISTING)) {
      RaiseFor(place_, ::GetLastError());
    }
    name_.clear();
  }

 private:
  Text place_;
  Text name_;
  OwnedFile file_;
};

// Seconds from 1601, where the system's times begin, to 1970, and bounds a day within the years
// that it can tell, in seconds since 1970.
constexpr std::int64_t kBeforeEpoch = 11644473600;
constexpr std::int64_t kFirstMoment = -11644387200, kLastMoment = 253402128000;
constexpr std::int64_t kTicksASecond = 10000000;

LocalTime ToLocalTime(const FILETIME& time) {
  SYSTEMTIME universal = {}, local = {};
  if (!FileTimeToSystemTime(&time, &universal) ||
      !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local)) {
    return {};
  }
  return {local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
}

// Either record of the system has these fields.
template <typename Data>
FileStatus StatusIn(const Data& data) {
  const bool directory = data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
  const std::int64_t length = std::int64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow;
  return {data.dwFileAttributes, directory ? 0 : length, ToLocalTime(data.ftLastWriteTime)};
}

// The attributes and measures of what a name leads to, through links.
bool Query(const Text& verbatim, WIN32_FILE_ATTRIBUTE_DATA& data) {
  if (!GetFileAttributesExW(Wide(verbatim), GetFileExInfoStandard, &data)) return false;
  if (!(data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT)) return true;
  const OwnedFile file =
      OwnFile(CreateFileW(Wide(verbatim), FILE_READ_ATTRIBUTES, kShareAll, nullptr, OPEN_EXISTING,
                          FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION target;
  if (!file || !GetFileInformationByHandle(file.get(), &target)) return false;
  data.dwFileAttributes = target.dwFileAttributes;
  data.ftLastWriteTime = target.ftLastWriteTime;
  data.nFileSizeHigh = target.nFileSizeHigh;
  data.nFileSizeLow = target.nFileSizeLow;
  return true;
}

}  // namespace

OwnedFile OpenForReading(const Text& name) {
  const Unredirected unredirected;
  return OpenDiskFile(Openable(name), GENERIC_READ, kShareAll, OPEN_EXISTING);
}

bool StatusOf(void* file, FileStatus& status) {
  BY_HANDLE_FILE_INFORMATION data;
  if (!GetFileInformationByHandle(file, &data)) return false;
  status = StatusIn(data);
  return true;
}

std::size_t FileSource::ReadAt(std::uint64_t offset, char* buffer, std::size_t size) {
  OVERLAPPED place = {};
  place.Offset = static_cast<DWORD>(offset);
  place.OffsetHigh = static_cast<DWORD>(offset >> 32);
  DWORD count = 0;
  const auto piece = static_cast<DWORD>(std::min(size, kLargestPiece));
  if (ReadFile(file_, buffer, piece, &count, &place)) return count;
  const DWORD code = ::GetLastError();
  if (code != ERROR_HANDLE_EOF) error_ = code;
  return 0;
}

// --- Directory search -----------------------------------------------------------------------

bool Win32Platform::CanBeListed(const Text& directory) {
  // Wine says of a missing directory what Windows says of an empty one.
  FileStatus status;
  if (!GetFileStatus(directory, status) || !(status.attributes & kAttributeDirectory)) return false;
  const Unredirected unredirected;
  return trovex::CanBeListed(Wide(VerbatimName(directory) + u'*'));
}

FindHandle Win32Platform::FindFirstFile(const Text& pattern, FindData& data) {
  data = {};
  Search search(pattern);
  if (!search.Next(data)) return FindHandle::kInvalid;
  const FindHandle handle{++last_handle_};
  searches_.emplace(handle, std::move(search));
  return handle;
}

bool Win32Platform::FindNextFile(FindHandle handle, FindData& data) {
  const auto found = searches_.find(handle);
  return found != searches_.end() && found->second.Next(data);
}

void Win32Platform::FindClose(FindHandle handle) {
  searches_.erase(handle);
}

// --- Files ----------------------------------------------------------------------------------

bool Win32Platform::GetFileStatus(const Text& name, FileStatus& status) {
  const Unredirected unredirected;
  const Text verbatim = VerbatimName(name);
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (verbatim.empty() || !Query(verbatim, data)) return false;
  status = StatusIn(data);
  return true;
}

FileHandle Win32Platform::Keep(OwnedFile file) {
  const FileHandle handle{++last_handle_};
  files_.emplace(handle, std::move(file));
  return handle;
}

void* Win32Platform::Native(FileHandle file) const {
  const auto found = files_.find(file);
  if (found == files_.end()) throw RuntimeError(ErrorNumber::kBadFileNumber);
  return found->second.get();
}

FileHandle Win32Platform::OpenRead(const Text& name) {
  return Keep(OpenForReading(name));
}

// Emptied after it was opened: the system would refuse to create over a hidden file.
FileHandle Win32Platform::OpenWrite(const Text& name) {
  const Text verbatim = Writable(name);
  OwnedFile file = OpenDiskFile(verbatim, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
  if (!SetEndOfFile(file.get())) RaiseFor(verbatim, ::GetLastError());
  ListUnfinished(file.get(), verbatim);
  return Keep(std::move(file));
}

LocalTime Win32Platform::LocalTimeOf(std::int64_t moment) {
  const std::int64_t seconds = std::clamp(moment, kFirstMoment, kLastMoment) + kBeforeEpoch;
  const std::uint64_t ticks = static_cast<std::uint64_t>(seconds) * kTicksASecond;
  return ToLocalTime({static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)});
}

std::unique_ptr<records::ByteSource> Win32Platform::OpenSource(const Text& name) {
  try {
    return std::make_unique<KeptSource>(OpenForReading(name));
  } catch (const RuntimeError&) {
    return nullptr;
  }
}

std::size_t Win32Platform::Read(FileHandle file, void* buffer, std::size_t size) {
  return ReadAll(Native(file), static_cast<char*>(buffer), size);
}

void Win32Platform::Write(FileHandle file, const void* data, std::size_t size) {
  WriteAll(Native(file), static_cast<const char*>(data), size);
}

void Win32Platform::Close(FileHandle file) {
  const auto found = files_.find(file);
  if (found == files_.end()) return;
  OwnedFile native = std::move(found->second);
  files_.erase(found);
  StrikeUnfinished(native.get());
  CloseNative(std::move(native));
}

void Win32Platform::CopyFile(const Text& source, const Text& destination) {
  const OwnedFile from = OpenForReading(source);
  FileBeside copy(Writable(destination));
  std::array<char, 65536> piece;
  while (const std::size_t count = ReadAll(from.get(), piece.data(), piece.size())) {
    WriteAll(copy.Get(), piece.data(), count);
  }
  copy.PutInPlace();
}

void Win32Platform::PutInPlace(const Text& source, const Text& place) {
  const Text from = Openable(source), to = Writable(place);
  if (!MoveFileExW(Wide(from), Wide(to), MOVEFILE_REPLACE_EXISTING)) {
    RaiseFor(to, ::GetLastError());
  }
}

bool Win32Platform::MakeDirectory(const Text& name) {
  const Text verbatim = VerbatimName(name);
  if (verbatim.empty()) return false;
  return CreateDirectoryW(Wide(verbatim), nullptr) || IsDirectory(verbatim);
}

void Win32Platform::DeleteFile(const Text& name) {
  const Text verbatim = Openable(name);
  if (DeleteFileW(Wide(verbatim))) return;
  const DWORD code = ::GetLastError();
  const ErrorNumber number = ErrorNumberOf(code);
  if (number == ErrorNumber::kFileNotFound || number == ErrorNumber::kPathNotFound) {
    Raise(ErrorNumber::kFileNotFound, kSystemFileNotFound);
  }
  RaiseFor(verbatim, code);
}

}  // namespace trovex
