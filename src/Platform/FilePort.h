// What the program needs of files, directories and drives.
//
// Names are full paths as Windows writes them ("D:\\Jeux\\Setup.exe"), compared without regard to
// case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "Platform/Records/ByteSource.h"
#include "Platform/RuntimeError.h"
#include "Platform/Text.h"

namespace trovex {

// Bits of a file's attribute word.
inline constexpr std::uint32_t kAttributeReadOnly = 1;
inline constexpr std::uint32_t kAttributeHidden = 2;
inline constexpr std::uint32_t kAttributeSystem = 4;
inline constexpr std::uint32_t kAttributeDirectory = 16;

// Answers of GetDriveType.
enum class DriveType : std::uint32_t {
  kUnknown = 0,
  kNoRoot = 1,
  kRemovable = 2,
  kFixed = 3,
  kRemote = 4,
  kCdRom = 5,
  kRamDisk = 6,
};

// One entry of a directory search.
struct FindData {
  std::uint32_t attributes = 0;
  Text name;  // without path, as it stands on the disk
};

// A point in local time.
struct LocalTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
  bool operator==(const LocalTime&) const = default;
};

// What is known of a file without opening it.
struct FileStatus {
  std::uint32_t attributes = 0;
  std::int64_t length = 0;  // bytes; 0 for a directory
  LocalTime modified;
};

// How much of a file could be had: nothing, since there is none or it is out of reach; its status
// alone, since it cannot be opened or read; all that was asked for.
enum class Reading { kNothing, kStatus, kAll };

// Handles are plain numbers that only the platform that gave them understands.
enum class FindHandle : std::int64_t { kInvalid = -1, kNone = 0 };
enum class FileHandle : std::int64_t { kInvalid = -1 };

class FilePort {
 public:
  virtual ~FilePort() = default;

  // --- Directory search -------------------------------------------------------------------

  // Begins a search. The last level of `pattern` may hold * and ?; no 8.3 aliases are matched, and
  // a pattern that ends in ".*" also matches a name without a point. Directories below a root give
  // "." and ".." first. Gives kInvalid, and leaves `data` empty, where the directory is missing or
  // unreadable or nothing matches; raises as FindNextFile. Only files, links to files and
  // directories are found: no FIFO, socket or device, and no link to a directory. A level without *
  // and ? finds that one entry. Order: Posix ascending upper-cased names, Win32 the system's. Every
  // valid handle is closed by FindClose, but one whose search has reached its end holds nothing any
  // more, closed or not; a second call of FindClose and one on kInvalid do no harm.
  virtual FindHandle FindFirstFile(const Text& pattern, FindData& data) = 0;
  // The next entry; false, and `data` untouched, at the end or on kInvalid. Raises kDeviceIo where
  // the search breaks off before its end.
  virtual bool FindNextFile(FindHandle handle, FindData& data) = 0;
  virtual void FindClose(FindHandle handle) = 0;

  // Whether a directory is there and can be listed, be it empty; its name with a final backslash.
  virtual bool CanBeListed(const Text& directory) = 0;

  // --- Files ------------------------------------------------------------------------------

  // Length, date and attributes of a file or directory; false where there is none such (a FIFO or
  // device counts as none), or where `name` is empty.
  virtual bool GetFileStatus(const Text& name, FileStatus& status) = 0;

  // Opens for reading, shared. Raises kFileNotFound, kPathNotFound, kPermissionDenied or
  // kPathFileAccess (a directory, a FIFO, a device). The caller closes.
  virtual FileHandle OpenRead(const Text& name) = 0;
  // Creates the file, or empties it. Raises as OpenRead, and kDiskFull.
  virtual FileHandle OpenWrite(const Text& name) = 0;
  // Up to `size` bytes; fewer only at the end, 0 at the end. Raises kDeviceIo.
  virtual std::size_t Read(FileHandle file, void* buffer, std::size_t size) = 0;
  // All `size` bytes. Raises kDiskFull or kDeviceIo; how much was written is then open.
  virtual void Write(FileHandle file, const void* data, std::size_t size) = 0;
  // Raises kDiskFull or kDeviceIo where earlier writes turn out to have failed; the handle is
  // closed all the same. kInvalid does no harm.
  virtual void Close(FileHandle file) = 0;

  // The bytes of a file at any offset, open for as long as the result lives; null where OpenRead
  // would raise.
  virtual std::unique_ptr<records::ByteSource> OpenSource(const Text& name) = 0;
  // True for a name on a drive that shows a disc image: only the program itself can read what lies
  // there, so no other one can be started with it.
  virtual bool IsInsideImage(const Text& name);

  // Local time of a moment, in seconds since 1970 began in Greenwich, as GetFileStatus gives that
  // of a file. Times outside the years 1601 to 9999 become the nearest of them.
  virtual LocalTime LocalTimeOf(std::int64_t moment) = 0;

  // Copies contents over an existing or to a new file. Raises as OpenRead, OpenWrite and Write. A
  // copy that fails in the middle leaves no destination behind.
  virtual void CopyFile(const Text& source, const Text& destination) = 0;
  // Raises kFileNotFound, kPermissionDenied or kPathFileAccess.
  virtual void DeleteFile(const Text& name) = 0;
  // Gives the file `source` the name `place` in its directory, in place of a file that bears it, in
  // one step. The permissions of the former file stay, and a link goes on leading to the file,
  // which is the new one. Raises as OpenWrite; both files then stay as they were.
  virtual void PutInPlace(const Text& source, const Text& place) = 0;
  // Makes one level of a directory. True if there is a directory of that name afterwards.
  virtual bool MakeDirectory(const Text& name) = 0;

  // --- Version records ----------------------------------------------------------------------

  // Length in bytes of the version record of an NE or PE file, 0 if it has none or anything in it
  // is malformed or cut short, or where there is no such file. Reads only headers, the resource
  // directory and the record. Raises kPermissionDenied or kDeviceIo where the file is there but
  // cannot be opened or read.
  virtual std::uint32_t GetFileVersionInfoSize(const Text& name) = 0;
  // The first `length` bytes of the raw record (fewer bytes never: filled up with NUL). False, and
  // `block` empty, where there is none.
  virtual bool GetFileVersionInfo(const Text& name, std::uint32_t length, std::string& block) = 0;

  // Status and whole version record at once, for whoever wants both. kNothing where GetFileStatus
  // is false; `record` is empty then, where the file has none, and where it cannot be read. Without
  // a shorter way it goes through the operations above.
  virtual Reading GetFileProperties(const Text& name, FileStatus& status, std::string& record);

  // --- Drives and directories ---------------------------------------------------------------

  // `root` is "X:\"; an empty one asks about the drive of the current directory.
  virtual DriveType GetDriveType(const Text& root) = 0;
  // Bit 0 for A:, bit 1 for B: and so on.
  virtual std::uint32_t GetLogicalDrives() = 0;
  // Volume label of "X:\"; empty if it has none or the drive is not ready.
  virtual Text GetVolumeLabel(const Text& root) = 0;

  // Without final backslash. `buffer` takes the name if it fits into `size` characters with its
  // terminator, and the result is its length; else the result is the size needed and `buffer` is
  // empty.
  virtual std::uint32_t GetWindowsDirectory(Text& buffer, std::uint32_t size) = 0;
  virtual std::uint32_t GetSystemDirectory(Text& buffer, std::uint32_t size) = 0;
  // Directory of the running program, without final backslash but for a root.
  virtual Text GetProgramDirectory() = 0;
  // Directory in which programs keep what belongs to the user, without final backslash; empty where
  // there is none, as on Posix.
  virtual Text GetApplicationDataDirectory() = 0;

  // The current directory, "X:\..." without final backslash but for a root. Each drive has one of
  // its own; ChangeDirectory sets that of the drive that its argument names and leaves the current
  // drive, ChangeDrive makes another drive ("X:" or "X:\...") the current one.
  virtual Text GetCurrentDirectory() = 0;
  // Raises kPathNotFound.
  virtual void ChangeDirectory(const Text& directory) = 0;
  // Raises kDeviceUnavailable.
  virtual void ChangeDrive(const Text& drive) = 0;
};

}  // namespace trovex
