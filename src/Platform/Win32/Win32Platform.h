// The port over Windows itself.
#pragma once

#include <cstdint>
#include <map>
#include <random>

#include "Platform/Platform.h"
#include "Platform/Win32/Handles.h"
#include "Platform/Win32/Search.h"

namespace trovex {

// One instance a process: current directories and the error mode are the process's own. Searches
// and files left open are closed with the object.
class Win32Platform : public Platform {
 public:
  Win32Platform();

  FindHandle FindFirstFile(const Text& pattern, FindData& data) override;
  bool FindNextFile(FindHandle handle, FindData& data) override;
  void FindClose(FindHandle handle) override;
  bool CanBeListed(const Text& directory) override;
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
  Reading GetFileProperties(const Text& name, FileStatus& status, std::string& record) override;
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

 private:
  FileHandle Keep(OwnedFile file);
  void* Native(FileHandle file) const;
  void* Native(SnapshotHandle snapshot) const;

  std::map<FindHandle, Search> searches_;
  std::map<FileHandle, OwnedFile> files_;
  std::map<SnapshotHandle, OwnedFile> snapshots_;
  std::int64_t last_handle_ = 0;
  std::mt19937_64 random_;
};

}  // namespace trovex
