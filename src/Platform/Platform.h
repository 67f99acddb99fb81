// The port to the operating system: one method an operation, named after it. This header is the
// contract; tests/Platform/contract holds it against every implementation.
//
// Names are full paths as Windows writes them ("D:\Jeux\Setup.exe"), compared without regard to
// case. Conveniences over these operations live in free functions, not here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

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

// Handles are plain numbers that only the platform that gave them understands.
enum class FindHandle : std::int64_t { kInvalid = -1, kNone = 0 };
enum class FileHandle : std::int64_t { kInvalid = -1 };

// Roots of the registry, and keys that only the platform understands.
enum class RegistryRoot : std::uint32_t { kClassesRoot = 0x80000000, kLocalMachine = 0x80000002 };
enum class RegistryKey : std::int64_t { kNone = 0 };

// Types of registry values that the program reads.
inline constexpr std::uint32_t kRegistryString = 1;
inline constexpr std::uint32_t kRegistryBinary = 3;
inline constexpr std::uint32_t kRegistryNumber = 4;
inline constexpr std::uint32_t kRegistryStrings = 7;

// A value as it is stored.
struct RegistryValue {
  std::uint32_t type = 0;
  Text text;          // of a string or strings, terminators included
  std::string bytes;  // of a binary value or a number, lowest byte first
};

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

class HeldDirectory;

class Platform {
 public:
  virtual ~Platform() = default;

  // --- Directory search -------------------------------------------------------------------

  // Begins a search. The last level of `pattern` may hold * and ?; no 8.3 aliases are matched, and
  // a pattern that ends in ".*" also matches a name without a point. Directories below a root give
  // "." and ".." first. Gives kInvalid, and leaves `data` empty, where the directory is missing or
  // unreadable or nothing matches. Only files, links to files and directories are found: no FIFO,
  // socket or device, and no link to a directory. A level without * and ? finds that one entry.
  // Order: Posix ascending upper-cased names, Win32 the system's. Every valid handle is closed by
  // FindClose, but one whose search has reached its end holds nothing any more, closed or not; a
  // second call of FindClose and one on kInvalid do no harm.
  virtual FindHandle FindFirstFile(const Text& pattern, FindData& data) = 0;
  // The next entry; false, and `data` untouched, at the end or on kInvalid.
  virtual bool FindNextFile(FindHandle handle, FindData& data) = 0;
  virtual void FindClose(FindHandle handle) = 0;

  // Reads a directory and holds it, see Platform/HeldDirectory.h. Null where a search for "*.*"
  // finds nothing: a missing or unreadable directory, an empty root. Unless an implementation has a
  // shorter way, the directory in hand goes through the operations of this class, so that who
  // overrides one of them need not think of it.
  virtual std::shared_ptr<HeldDirectory> OpenDirectory(const Text& directory);

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

  // Copies contents over an existing or to a new file. Raises as OpenRead, OpenWrite and Write. A
  // copy that fails in the middle leaves no destination behind.
  virtual void CopyFile(const Text& source, const Text& destination) = 0;
  // Raises kFileNotFound, kPermissionDenied or kPathFileAccess.
  virtual void DeleteFile(const Text& name) = 0;

  // --- Version records and profile files ----------------------------------------------------

  // Length in bytes of the version record of an NE or PE file, 0 if it has none or anything in it
  // is malformed or cut short. Reads only headers, the resource directory and the record.
  virtual std::uint32_t GetFileVersionInfoSize(const Text& name) = 0;
  // The first `length` bytes of the raw record (fewer bytes never: filled up with NUL). False, and
  // `block` empty, where there is none.
  virtual bool GetFileVersionInfo(const Text& name, std::uint32_t length, std::string& block) = 0;

  // Status and whole version record at once, for whoever wants both. False as GetFileStatus;
  // `record` is empty where there is none or it cannot be read. Without a shorter way it goes
  // through the operations above.
  virtual bool GetFileProperties(const Text& name, FileStatus& status, std::string& record);

  // Reads a value from an INI file in Windows-1252. Sections and keys without regard to case; the
  // first matching section and in it the first matching key; blanks and tabs around key and value
  // dropped, one pair of matching quotes around the value dropped; lines beginning with ';' are
  // comments; a section's name ends at the first ']' or, where there is none, at the end of the
  // line; keys before any section are unreachable. `buffer` receives at most size - 1 characters,
  // its length is the result: an empty value gives 0. A missing file, section or key gives
  // `fallback` without its trailing blanks.
  virtual std::uint32_t GetPrivateProfileString(const Text& section, const Text& key,
                                                const Text& fallback, Text& buffer,
                                                std::uint32_t size, const Text& file) = 0;
  // Writes a value in Windows-1252 by the same rules of place: replaces the first matching key,
  // else adds it at the end of the section (before its trailing empty lines), else adds the section
  // at the end of the file; creates the file. All other lines stay as they are. False on failure;
  // the file is then as it was.
  virtual bool WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                         const Text& file) = 0;

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

  // The current directory, "X:\..." without final backslash but for a root. Each drive has one of
  // its own; ChangeDirectory sets that of the drive that its argument names and leaves the current
  // drive, ChangeDrive makes another drive ("X:" or "X:\...") the current one.
  virtual Text GetCurrentDirectory() = 0;
  // Raises kPathNotFound.
  virtual void ChangeDirectory(const Text& directory) = 0;
  // Raises kDeviceUnavailable.
  virtual void ChangeDrive(const Text& drive) = 0;

  // Value of an environment variable, empty if it is not set. A directory is given as the program
  // writes it.
  virtual Text GetEnvironmentVariable(const Text& name) = 0;

  // --- Shell, icons, registry -----------------------------------------------------------------

  // Hands a document to the program that the system associates with it. A result below 33 is an
  // error code; Posix starts nothing and answers 31, as a machine without associations does.
  virtual int ShellExecute(const Text& verb, const Text& file, const Text& parameters,
                           const Text& directory, int show) = 0;
  // The program associated with a file. `buffer` keeps its size; the name and a NUL overwrite its
  // beginning, a NUL alone where there is none. A result below 33 is an error code.
  virtual int FindExecutable(const Text& file, const Text& directory, Text& buffer) = 0;
  // Starts a program and returns at once; `mode` is the window's state (1 normal). Raises
  // kFileNotFound or kInvalidCall; Posix, where nothing is ever started, kPermissionDenied.
  virtual void StartProgram(const Text& command_line, int mode) = 0;

  // Number of large icons that extracting one at `index` yields, 0 or 1. Posix looks into icon
  // files and into NE and PE executables, where any icon group will do.
  virtual int ExtractIconEx(const Text& file, int index) = 0;

  // Registry: results are error codes, 0 is success. Keys that were opened or created are closed by
  // RegCloseKey, or at the end of the process.
  virtual long RegCreateKey(RegistryRoot root, const Text& name, RegistryKey& key) = 0;
  virtual long RegOpenKeyEx(RegistryRoot root, const Text& name, std::uint32_t access,
                            RegistryKey& key) = 0;
  // The value `name`, or the key's default value where it is empty.
  virtual long RegQueryValueEx(RegistryKey key, const Text& name, RegistryValue& value) = 0;
  virtual void RegCloseKey(RegistryKey key) = 0;

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
  // The system's last error code, 0 if none, and the system's text for a code (untrimmed).
  virtual std::uint32_t GetLastError() = 0;
  virtual Text FormatMessage(std::uint32_t code) = 0;
  // A number from 0 up to, not including, 1, from a generator seeded with the clock.
  virtual double Random() = 0;

  // Drops what the implementation remembers of the disk: what is asked next is read afresh. What
  // it remembers between calls is otherwise only a hint that each use verifies.
  virtual void Forget() = 0;
};

// The platform of the process. It must have been set.
Platform& CurrentPlatform();

// Puts a platform in place for a time; the former one comes back at the end. The caller owns it.
class PlatformScope {
 public:
  explicit PlatformScope(Platform& platform);
  ~PlatformScope();
  PlatformScope(const PlatformScope&) = delete;
  PlatformScope& operator=(const PlatformScope&) = delete;

 private:
  Platform* former_;
};

}  // namespace trovex
