#include "Platform/Posix/PosixPlatform.h"

#include <fcntl.h>
#include <sys/utsname.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <vector>

#include "Platform/Encoding.h"
#include "Platform/Pattern.h"
#include "Platform/Posix/Errors.h"
#include "Platform/Posix/FileReads.h"
#include "Platform/Posix/HostCalls.h"
#include "Platform/Posix/ListedDirectory.h"
#include "Platform/Posix/LocalDate.h"
#include "Platform/Posix/Replacement.h"
#include "Platform/Posix/SystemData.h"
#include "Platform/Records/IconResource.h"
#include "Platform/Records/ProfileFile.h"
#include "Platform/Records/VersionResource.h"
#include "Platform/SystemTexts.h"

namespace trovex {

using namespace posix;
using namespace records;

namespace {

constexpr std::size_t kCopyBuffer = 65536;
constexpr const char16_t* kSystemLibrary = u"\\SHELL32.DLL";

// A directory by the listing of the one above, which a root does not have. What cannot be reached
// is one all the same: below a directory that may be listed but not entered, on a damaged disc.
bool IsListedDirectory(const Place& place) {
  return place.kind == EntryKind::kDirectory && !place.name.empty();
}

// Why a place cannot be used as a file; 0 if it can.
int FileError(const Place& place) {
  switch (place.kind) {
    case EntryKind::kMissing:
      return ENOENT;
    case EntryKind::kDirectory:
      return EISDIR;
    case EntryKind::kOther:
      return ENXIO;
    case EntryKind::kFile:
      break;
  }
  return 0;
}

// Opens a file for reading at offsets; 0, or the errno of the failure, of a reading too.
template <typename Use>
int WithSource(const Place& place, Use use) {
  if (const int unusable = FileError(place)) return unusable;
  // The listing has told that this is a regular file: no further question, and should it have
  // become a FIFO meanwhile, opening it does not wait.
  const FileDescriptor file = OpenHostPath(place.host, O_RDONLY | O_NONBLOCK);
  if (!file.IsOpen()) return errno;
  FileSource source(file);
  use(source);
  return source.Error() == ESPIPE ? ENXIO : source.Error();
}

// The name if it fits with its terminator, else the size that it needs.
std::uint32_t FillBuffer(const Text& name, Text& buffer, std::uint32_t size) {
  const auto length = static_cast<std::uint32_t>(name.size());
  buffer = length < size ? name : Text();
  return length < size ? length : length + 1;
}

// Copies what is left of `source`.
int CopyContents(int source, Replacement& target) {
  std::vector<char> buffer(kCopyBuffer);
  for (;;) {
    const std::ptrdiff_t got = ReadFully(source, buffer.data(), buffer.size());
    if (got < 0) return EIO;
    if (got == 0) return 0;
    if (!target.Write(buffer.data(), static_cast<std::size_t>(got))) return errno;
  }
}

int ReplaceFile(const std::string& host, const std::string& bytes) {
  Replacement file(host);
  const bool done = file.Open() && file.Write(bytes.data(), bytes.size()) && file.Commit();
  return done ? 0 : errno;
}

FileDescriptor OpenForWriting(const Place& place) {
  if (place.kind == EntryKind::kMissing) {
    return OpenHostPath(place.host, O_WRONLY | O_CREAT | O_EXCL);
  }
  struct stat status;
  if (!StatHost(place.host, status)) return FileDescriptor();
  if (!S_ISREG(status.st_mode)) {
    errno = ENXIO;
    return FileDescriptor();
  }
  if (!MayWriteHost(place.host, status)) return FileDescriptor();
  return OpenHostPath(place.host, O_WRONLY | O_TRUNC | O_NONBLOCK);
}

}  // namespace

PosixPlatform::PosixPlatform(PosixSetup setup)
    : drives_(setup.drives, setup.current_drive),
      names_(drives_),
      setup_(std::move(setup)),
      random_(
          static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count())) {
}

template <typename Use>
int PosixPlatform::OnPlace(const Text& name, Use use) {
  for (;;) {
    const std::optional<Place> place = names_.Find(name);
    const int error = place ? use(*place) : errno;
    if (error == 0) return 0;
    // A place from memory is missing once the disk has changed.
    if (!place || !place->hinted || !IsMissing(error)) return error;
    names_.Forget();
  }
}

void PosixPlatform::Raise(int error) {
  throw ErrorOf(error);
}

// --- Directory search ---------------------------------------------------------------------------

FindHandle PosixPlatform::FindFirstFile(const Text& pattern, FindData& data) {
  data = {};
  const std::size_t cut = pattern.find_last_of(u"\\/:") + 1;
  const TextView level = TextView(pattern).substr(cut);
  if (!HasWildcard(level)) return FindSingle(pattern, data);
  // Without its final backslash, but for a root.
  const bool drop = cut > 3 && pattern[cut - 1] != u':';
  const Text directory = cut == 0 ? Text(u".") : pattern.substr(0, drop ? cut - 1 : cut);
  bool root = false;
  auto listing = names_.List(directory, root);
  if (!listing) return FindHandle::kInvalid;
  const auto dots = root ? EntrySearch::Dots::kNone : EntrySearch::Dots::kFirst;
  return finds_.Begin(EntrySearch(std::move(listing), level, dots), data);
}

bool PosixPlatform::CanBeListed(const Text& directory) {
  bool root = false;
  return names_.List(directory.substr(0, directory.size() > 3 ? directory.size() - 1 : 3), root) !=
         nullptr;
}

FindHandle PosixPlatform::FindSingle(const Text& name, FindData& data) {
  const int error = OnPlace(name, [&](const Place& place) {
    // A root and a name that ends in a backslash are no entries of a directory.
    const bool entry = !place.name.empty() && name.back() != u'\\' && name.back() != u'/';
    struct stat status;
    if (!entry || place.kind == EntryKind::kMissing || place.kind == EntryKind::kOther) {
      return ENOENT;
    }
    if (!StatHost(place.host, status)) return errno;
    const EntryKind kind = S_ISDIR(status.st_mode) ? EntryKind::kDirectory : EntryKind::kFile;
    if (kind == EntryKind::kFile && !S_ISREG(status.st_mode)) return ENOENT;
    data.attributes = AttributesOf(kind, place.name);
    data.name = place.name;
    return 0;
  });
  return error == 0 ? finds_.BeginSingle() : FindHandle::kInvalid;
}

bool PosixPlatform::FindNextFile(FindHandle handle, FindData& data) {
  return finds_.Next(handle, data);
}

void PosixPlatform::FindClose(FindHandle handle) {
  finds_.Close(handle);
}

std::shared_ptr<HeldDirectory> PosixPlatform::OpenDirectory(const Text& directory) {
  if (directory.ends_with(u':')) return OpenDirectory(directory + u'\\');  // not the current one
  FileDescriptor opened;
  const int error = OnPlace(directory, [&](const Place& place) {
    if (place.kind != EntryKind::kDirectory) return ENOTDIR;
    opened = posix::OpenDirectory(place.host);
    return opened.IsOpen() ? 0 : errno;
  });
  if (error != 0) return nullptr;
  return ListedDirectory::Read(files_, std::move(opened));
}

// --- Files --------------------------------------------------------------------------------------

bool PosixPlatform::GetFileStatus(const Text& name, FileStatus& status) {
  const int error = OnPlace(name, [&](const Place& place) {
    if (place.kind == EntryKind::kMissing || place.kind == EntryKind::kOther) return ENOENT;
    struct stat host;
    if (StatHost(place.host, host)) return StatusOf(host, place.name, status) ? 0 : ENOENT;
    if (IsMissing(errno) || !IsListedDirectory(place)) return errno;
    status = {AttributesOf(EntryKind::kDirectory, place.name), 0, {}};
    return 0;
  });
  return error == 0;
}

FileHandle PosixPlatform::OpenRead(const Text& name) {
  FileDescriptor file;
  const int error = OnPlace(name, [&](const Place& place) {
    if (const int unusable = FileError(place)) return unusable;
    file = OpenHostFile(place.host);
    return file.IsOpen() ? 0 : errno;
  });
  if (error != 0) Raise(error);
  return files_.Add(std::move(file));
}

FileHandle PosixPlatform::OpenWrite(const Text& name) {
  FileDescriptor file;
  Unfinished unfinished;
  const SignalsHeld held;
  const int error = OnPlace(name, [&](const Place& place) {
    const int unusable = FileError(place);
    if (unusable != 0 && unusable != ENOENT) return unusable;
    file = OpenForWriting(place);
    if (!file.IsOpen()) return errno;
    unfinished = Unfinished(file, place.host);
    return 0;
  });
  if (error != 0) Raise(error);
  const FileHandle handle = files_.Add(std::move(file));
  unfinished_.emplace(handle, std::move(unfinished));
  return handle;
}

std::unique_ptr<records::ByteSource> PosixPlatform::OpenSource(const Text& name) {
  FileDescriptor file;
  const int error = OnPlace(name, [&](const Place& place) {
    if (const int unusable = FileError(place)) return unusable;
    file = OpenHostFile(place.host);
    return file.IsOpen() ? 0 : errno;
  });
  return error == 0 ? std::make_unique<OwnedSource>(std::move(file)) : nullptr;
}

std::size_t PosixPlatform::Read(FileHandle file, void* buffer, std::size_t size) {
  const std::ptrdiff_t got = ReadFully(files_.Get(file), buffer, size);
  if (got < 0) Raise(errno);
  return static_cast<std::size_t>(got);
}

void PosixPlatform::Write(FileHandle file, const void* data, std::size_t size) {
  if (!WriteFully(files_.Get(file), data, size)) Raise(errno);
}

void PosixPlatform::Close(FileHandle file) {
  FileDescriptor descriptor = files_.Take(file);
  if (!descriptor.IsOpen()) return;
  const auto unfinished = unfinished_.extract(file);
  if (close(descriptor.Release()) != 0 && errno != EINTR) Raise(errno);
}

void PosixPlatform::CopyFile(const Text& source, const Text& destination) {
  FileDescriptor from;
  int error = OnPlace(source, [&](const Place& place) {
    if (const int unusable = FileError(place)) return unusable;
    from = OpenHostFile(place.host);
    return from.IsOpen() ? 0 : errno;
  });
  if (error != 0) Raise(error);
  error = OnPlace(destination, [&](const Place& place) {
    const int unusable = FileError(place);
    if (unusable != 0 && unusable != ENOENT) return unusable;
    Replacement to(place.host);
    if (!to.Open()) return errno;
    if (const int failed = CopyContents(from.Get(), to)) return failed;
    return to.Commit() ? 0 : errno;
  });
  if (error != 0) Raise(error);
}

void PosixPlatform::DeleteFile(const Text& name) {
  const int error = OnPlace(name, [](const Place& place) {
    if (const int unusable = FileError(place)) return unusable;
    struct stat status;
    if (!StatHost(place.host, status)) return errno;
    if ((status.st_mode & kAnyWriteBit) == 0) return EACCES;
    return UnlinkHost(place.host) ? 0 : errno;
  });
  // There is no difference between a missing file and one in a missing directory here.
  if (error != 0) Raise(error == ENOTDIR ? ENOENT : error);
}

void PosixPlatform::PutInPlace(const Text& source, const Text& place) {
  std::string from;
  int error = OnPlace(source, [&](const Place& found) {
    from = found.host;
    return FileError(found);
  });
  if (error != 0) Raise(error);
  bool link = false;
  error = OnPlace(place, [&](const Place& found) {
    const int unusable = FileError(found);
    if (unusable != 0 && unusable != ENOENT) return unusable;
    struct stat status;
    if (unusable == 0 && StatHost(found.host, status)) {
      if (!MayWriteHost(found.host, status)) return EACCES;
      struct stat own;
      link = StatHostLink(found.host, own) && S_ISLNK(own.st_mode);
      if (link) return 0;
      const FileDescriptor file = OpenHostPath(from, O_RDONLY);
      if (!file.IsOpen() || fchmod(file.Get(), status.st_mode & 07777) != 0) return errno;
    }
    return RenameHost(from, found.host) ? 0 : errno;
  });
  // What a link leads to may lie on another file system: that is written anew.
  if (link) {
    CopyFile(source, place);
    DeleteFile(source);
  }
  if (error != 0) Raise(error);
}

bool PosixPlatform::MakeDirectory(const Text& name) {
  const int error = OnPlace(name, [](const Place& place) {
    if (place.kind == EntryKind::kDirectory) return 0;
    if (place.kind != EntryKind::kMissing) return ENOTDIR;
    return MakeHostDirectory(place.host) ? 0 : errno;
  });
  return error == 0;
}

// --- Version records and profile files
// ------------------------------------------------------------

std::string PosixPlatform::ReadVersionBlock(const Text& name) {
  std::string block;
  const int error = OnPlace(name, [&](const Place& place) {
    return WithSource(place, [&](ByteSource& source) { block = ReadVersionRecord(source); });
  });
  const ErrorNumber number = ErrorNumberOf(error);
  const bool unreadable =
      number == ErrorNumber::kPermissionDenied || number == ErrorNumber::kDeviceIo;
  if (error != 0 && unreadable) Raise(error);
  return block;
}

int PosixPlatform::ExtractIconEx(const Text& file, int, IconOwner) {
  // The stand-in for the system's library is no file, but it has icons.
  if (EqualsNoCase(file, setup_.system_directory + kSystemLibrary)) return 1;
  bool holds = false;
  OnPlace(file, [&](const Place& place) {
    return WithSource(place, [&](ByteSource& source) { holds = HoldsIcon(source); });
  });
  return holds ? 1 : 0;
}

std::uint32_t PosixPlatform::GetFileVersionInfoSize(const Text& name) {
  return static_cast<std::uint32_t>(ReadVersionBlock(name).size());
}

bool PosixPlatform::GetFileVersionInfo(const Text& name, std::uint32_t length, std::string& block) {
  block = ReadVersionBlock(name);
  if (block.empty()) return false;
  block.resize(length, '\0');
  return true;
}

std::uint32_t PosixPlatform::GetPrivateProfileString(const Text& section, const Text& key,
                                                     const Text& fallback, Text& buffer,
                                                     std::uint32_t size, const Text& file) {
  std::string bytes;
  const int error = OnPlace(file, [&](const Place& place) {
    const int unusable = FileError(place);
    return unusable != 0 ? unusable : ReadProfile(OpenHostFile(place.host), bytes);
  });
  if (error != 0) bytes.clear();
  return ProfileAnswer(bytes, section, key, fallback, buffer, size);
}

bool PosixPlatform::WritePrivateProfileString(const Text& section, const Text& key,
                                              const Text& value, const Text& file) {
  const int error = OnPlace(file, [&](const Place& place) {
    const int unusable = FileError(place);
    if (unusable != 0 && unusable != ENOENT) return unusable;
    std::string bytes;
    if (unusable == 0) {
      if (const int failed = ReadProfile(OpenHostFile(place.host), bytes)) return failed;
    }
    if (bytes.size() == kMaxProfile) return EFBIG;
    return ReplaceFile(place.host, WithProfileValue(bytes, section, key, value));
  });
  return error == 0;
}

// --- Drives and directories
// -----------------------------------------------------------------------

DriveType PosixPlatform::GetDriveType(const Text& root) {
  const Drive* drive = drives_.FindRoot(root);
  return drive != nullptr ? drive->type : DriveType::kNoRoot;
}

std::uint32_t PosixPlatform::GetLogicalDrives() {
  return drives_.Mask();
}

Text PosixPlatform::GetVolumeLabel(const Text& root) {
  const Drive* drive = drives_.FindRoot(root);
  return drive != nullptr ? drive->label : Text();
}

std::uint32_t PosixPlatform::GetWindowsDirectory(Text& buffer, std::uint32_t size) {
  return FillBuffer(setup_.windows_directory, buffer, size);
}

std::uint32_t PosixPlatform::GetSystemDirectory(Text& buffer, std::uint32_t size) {
  return FillBuffer(setup_.system_directory, buffer, size);
}

Text PosixPlatform::GetApplicationDataDirectory() {
  return {};
}

Text PosixPlatform::GetProgramDirectory() {
  return setup_.program_directory;
}

Text PosixPlatform::GetCurrentDirectory() {
  return drives_.CurrentDirectory();
}

void PosixPlatform::ChangeDirectory(const Text& directory) {
  const int error = OnPlace(directory, [](const Place& place) {
    struct stat status;
    if (place.kind != EntryKind::kDirectory) return ENOTDIR;
    if (!StatHost(place.host, status)) return errno;
    return S_ISDIR(status.st_mode) ? 0 : ENOTDIR;
  });
  if (error != 0) Raise(ENOTDIR);
  drives_.SetDirectory(*drives_.FullName(directory));
}

void PosixPlatform::ChangeDrive(const Text& drive) {
  if (drive.empty() || !drives_.SetDrive(drive[0])) Raise(ENODEV);
}

Text PosixPlatform::GetEnvironmentVariable(const Text& name) {
  for (const auto& [key, value] : setup_.environment) {
    if (EqualsNoCase(key, name)) return value;
  }
  return {};
}

// --- System data
// ----------------------------------------------------------------------------------

bool PosixPlatform::GetVersionEx(OsVersionInfo& info) {
  utsname system;
  if (info.dwOSVersionInfoSize != kOsVersionInfoSize || uname(&system) != 0) return false;
  info = VersionOfRelease(system.release);
  return true;
}

void PosixPlatform::GetSystemInfo(SystemInfo& info) {
  utsname system;
  info.dwProcessorType = uname(&system) == 0 ? ProcessorTypeOf(system.machine) : 0;
}

bool PosixPlatform::GlobalMemoryStatus(MemoryStatus& status) {
  const std::optional<MemoryStatus> memory = ReadMemory(setup_.proc_directory);
  if (memory) status = *memory;
  return memory.has_value();
}

SnapshotHandle PosixPlatform::CreateToolhelp32Snapshot(std::uint32_t flags, std::uint32_t) {
  std::vector<Text> names;
  if ((flags & kSnapshotProcesses) != 0) names = ReadProcessNames(setup_.proc_directory);
  return names.empty() ? SnapshotHandle::kNone : snapshots_.Add(std::move(names));
}

bool PosixPlatform::Process32First(SnapshotHandle snapshot, ProcessEntry& entry) {
  snapshots_.Rewind(snapshot);
  return Process32Next(snapshot, entry);
}

bool PosixPlatform::Process32Next(SnapshotHandle snapshot, ProcessEntry& entry) {
  return entry.dwSize == kProcessEntrySize && snapshots_.Next(snapshot, entry.szExeFile);
}

void PosixPlatform::CloseHandle(SnapshotHandle snapshot) {
  snapshots_.Close(snapshot);
}

// --- System services
// ------------------------------------------------------------------------------

void PosixPlatform::MessageBeep(std::uint32_t) {}

Text PosixPlatform::FormatMessage(std::uint32_t code) {
  return SystemText(code);
}

LocalTime PosixPlatform::LocalTimeOf(std::int64_t moment) {
  return LocalDate(moment);
}

double PosixPlatform::Random() {
  // 53 bits fill a double's mantissa, so that rounding never gives 1.
  return static_cast<double>(random_() >> 11) * 0x1p-53;
}

std::string PosixPlatform::PathBelowRoot(const Text& name) {
  const Drive* drive = name.empty() ? nullptr : drives_.Find(name[0]);
  const std::optional<Place> place = names_.Find(name);
  if (drive == nullptr || !place) {
    std::string path = ToUtf8(name.substr(std::min<std::size_t>(name.size(), 2)));
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
  }
  return place->name.empty() ? "" : place->host.substr(drive->root.size());
}

Text PosixPlatform::NameOfHost(char16_t letter, const std::string& path) {
  return names_.NameOfHost(*drives_.Find(letter), path);
}

}  // namespace trovex
