// The port over a POSIX system. Drives are letters mapped to host directories; the program sees
// "D:\Jeux\SETUP.EXE", and names compare without regard to case.
#pragma once

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "Platform/Platform.h"
#include "Platform/Posix/Drives.h"
#include "Platform/Posix/FileTable.h"
#include "Platform/Posix/FindTable.h"
#include "Platform/Posix/Names.h"
#include "Platform/Posix/RegistryTable.h"
#include "Platform/Posix/SnapshotTable.h"
#include "Platform/Posix/Unfinished.h"

namespace trovex {

// What a PosixPlatform shows of its surroundings. Nothing else of the process is looked at: no
// environment variable, no current directory.
struct PosixSetup {
  std::vector<posix::Drive> drives;
  // 0: the first of `drives`.
  char16_t current_drive = 0;
  // These need not lie on a mapped drive.
  Text windows_directory = u"C:\\WINDOWS";
  Text system_directory = u"C:\\WINDOWS\\SYSTEM";
  Text program_directory = u"C:\\";
  // Names without regard to case.
  std::map<Text, Text> environment;
  // What the system tells of memory and processes: a host directory.
  std::string proc_directory = "/proc";
};

class PosixPlatform : public Platform {
 public:
  explicit PosixPlatform(PosixSetup setup);
  PosixPlatform(const PosixPlatform&) = delete;
  PosixPlatform& operator=(const PosixPlatform&) = delete;

  FindHandle FindFirstFile(const Text& pattern, FindData& data) override;
  bool FindNextFile(FindHandle handle, FindData& data) override;
  void FindClose(FindHandle handle) override;
  bool CanBeListed(const Text& directory) override;
  std::shared_ptr<HeldDirectory> OpenDirectory(const Text& directory) override;
  bool GetFileStatus(const Text& name, FileStatus& status) override;
  FileHandle OpenRead(const Text& name) override;
  FileHandle OpenWrite(const Text& name) override;
  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override;
  void Write(FileHandle file, const void* data, std::size_t size) override;
  void Close(FileHandle file) override;
  std::unique_ptr<records::ByteSource> OpenSource(const Text& name) override;
  void CopyFile(const Text& source, const Text& destination) override;
  void DeleteFile(const Text& name) override;
  void PutInPlace(const Text& source, const Text& place) override;
  bool MakeDirectory(const Text& name) override;
  std::uint32_t GetFileVersionInfoSize(const Text& name) override;
  bool GetFileVersionInfo(const Text& name, std::uint32_t length, std::string& block) override;
  std::uint32_t GetPrivateProfileString(const Text& section, const Text& key, const Text& fallback,
                                        Text& buffer, std::uint32_t size,
                                        const Text& file) override;
  bool WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                 const Text& file) override;
  DriveType GetDriveType(const Text& root) override;
  std::uint32_t GetLogicalDrives() override;
  Text GetVolumeLabel(const Text& root) override;
  std::uint32_t GetWindowsDirectory(Text& buffer, std::uint32_t size) override;
  std::uint32_t GetSystemDirectory(Text& buffer, std::uint32_t size) override;
  Text GetProgramDirectory() override;
  Text GetApplicationDataDirectory() override;
  Text GetCurrentDirectory() override;
  void ChangeDirectory(const Text& directory) override;
  void ChangeDrive(const Text& drive) override;
  Text GetEnvironmentVariable(const Text& name) override;
  int ShellExecute(const Text& verb, const Text& file, const Text& parameters,
                   const Text& directory, int show) override;
  int FindExecutable(const Text& file, const Text& directory, Text& buffer) override;
  void StartProgram(const Text& command_line, int mode) override;
  bool HasHelpEngine() override;
  int ExtractIconEx(const Text& file, int index, IconOwner owner) override;
  long RegCreateKey(RegistryRoot root, const Text& name, RegistryKey& key) override;
  long RegOpenKeyEx(RegistryRoot root, const Text& name, std::uint32_t access,
                    RegistryKey& key) override;
  long RegQueryValueEx(RegistryKey key, const Text& name, RegistryValue& value) override;
  void RegCloseKey(RegistryKey key) override;
  bool GetVersionEx(OsVersionInfo& info) override;
  void GetSystemInfo(SystemInfo& info) override;
  bool GlobalMemoryStatus(MemoryStatus& status) override;
  SnapshotHandle CreateToolhelp32Snapshot(std::uint32_t flags, std::uint32_t process) override;
  bool Process32First(SnapshotHandle snapshot, ProcessEntry& entry) override;
  bool Process32Next(SnapshotHandle snapshot, ProcessEntry& entry) override;
  void CloseHandle(SnapshotHandle snapshot) override;
  void MessageBeep(std::uint32_t type) override;
  Text FormatMessage(std::uint32_t code) override;
  LocalTime LocalTimeOf(std::int64_t moment) override;
  double Random() override;

  // The registry: empty, for whoever sets up the platform to fill.
  posix::RegistryTable& Registry() { return registry_; }

  // The name by which the program reaches an absolute host path on the drive `letter`, whose root
  // is in front of it. What is missing keeps its spelling, for a new file to be created so.
  Text NameOfHost(char16_t letter, const std::string& path);
  // The way back: what stands behind the host directory of the drive, "/JEUX/SETUP.EXE", empty for
  // its root. What cannot be found keeps its spelling.
  std::string PathBelowRoot(const Text& name);

 private:
  // Runs `use` on the place of a name; if what memory held of it turns out to be gone, once more
  // on what is found afresh. 0, or the errno of the failure.
  template <typename Use>
  int OnPlace(const Text& name, Use use);
  [[noreturn]] void Raise(int error);
  FindHandle FindSingle(const Text& name, FindData& data);
  std::string ReadVersionBlock(const Text& name);

  posix::Drives drives_;
  posix::Names names_;
  posix::FindTable finds_;
  posix::FileTable files_;
  std::map<FileHandle, posix::Unfinished> unfinished_;  // those of files_ that are being written
  PosixSetup setup_;
  posix::RegistryTable registry_;
  posix::SnapshotTable snapshots_;
  std::mt19937_64 random_;
};

}  // namespace trovex
