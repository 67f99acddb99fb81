// A platform that passes every operation on to another one. What changes one operation (a cache,
// an injected fault, a count) derives from it and overrides that one. OpenDirectory and
// GetFileProperties are left to Platform, which goes through the other operations: what is
// overridden holds for them as well.
#pragma once

#include "Platform/Platform.h"

namespace trovex {

class ForwardingPlatform : public Platform {
 public:
  // `target` must outlive this object.
  explicit ForwardingPlatform(Platform& target) : target_(target) {}

  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    return target_.FindFirstFile(pattern, data);
  }
  bool FindNextFile(FindHandle handle, FindData& data) override {
    return target_.FindNextFile(handle, data);
  }
  void FindClose(FindHandle handle) override { target_.FindClose(handle); }
  bool GetFileStatus(const Text& name, FileStatus& status) override {
    return target_.GetFileStatus(name, status);
  }
  FileHandle OpenRead(const Text& name) override { return target_.OpenRead(name); }
  FileHandle OpenWrite(const Text& name) override { return target_.OpenWrite(name); }
  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override {
    return target_.Read(file, buffer, size);
  }
  void Write(FileHandle file, const void* data, std::size_t size) override {
    target_.Write(file, data, size);
  }
  void Close(FileHandle file) override { target_.Close(file); }
  void CopyFile(const Text& source, const Text& destination) override {
    target_.CopyFile(source, destination);
  }
  void DeleteFile(const Text& name) override { target_.DeleteFile(name); }
  std::uint32_t GetFileVersionInfoSize(const Text& name) override {
    return target_.GetFileVersionInfoSize(name);
  }
  bool GetFileVersionInfo(const Text& name, std::uint32_t length, std::string& block) override {
    return target_.GetFileVersionInfo(name, length, block);
  }
  std::uint32_t GetPrivateProfileString(const Text& section, const Text& key, const Text& fallback,
                                        Text& buffer, std::uint32_t size,
                                        const Text& file) override {
    return target_.GetPrivateProfileString(section, key, fallback, buffer, size, file);
  }
  bool WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                 const Text& file) override {
    return target_.WritePrivateProfileString(section, key, value, file);
  }
  DriveType GetDriveType(const Text& root) override { return target_.GetDriveType(root); }
  std::uint32_t GetLogicalDrives() override { return target_.GetLogicalDrives(); }
  Text GetVolumeLabel(const Text& root) override { return target_.GetVolumeLabel(root); }
  std::uint32_t GetWindowsDirectory(Text& buffer, std::uint32_t size) override {
    return target_.GetWindowsDirectory(buffer, size);
  }
  std::uint32_t GetSystemDirectory(Text& buffer, std::uint32_t size) override {
    return target_.GetSystemDirectory(buffer, size);
  }
  Text GetProgramDirectory() override { return target_.GetProgramDirectory(); }
  Text GetCurrentDirectory() override { return target_.GetCurrentDirectory(); }
  void ChangeDirectory(const Text& directory) override { target_.ChangeDirectory(directory); }
  void ChangeDrive(const Text& drive) override { target_.ChangeDrive(drive); }
  Text GetEnvironmentVariable(const Text& name) override {
    return target_.GetEnvironmentVariable(name);
  }
  int ShellExecute(const Text& verb, const Text& file, const Text& parameters,
                   const Text& directory, int show) override {
    return target_.ShellExecute(verb, file, parameters, directory, show);
  }
  int FindExecutable(const Text& file, const Text& directory, Text& buffer) override {
    return target_.FindExecutable(file, directory, buffer);
  }
  void StartProgram(const Text& command_line, int mode) override {
    target_.StartProgram(command_line, mode);
  }
  int ExtractIconEx(const Text& file, int index) override {
    return target_.ExtractIconEx(file, index);
  }
  long RegCreateKey(RegistryRoot root, const Text& name, RegistryKey& key) override {
    return target_.RegCreateKey(root, name, key);
  }
  long RegOpenKeyEx(RegistryRoot root, const Text& name, std::uint32_t access,
                    RegistryKey& key) override {
    return target_.RegOpenKeyEx(root, name, access, key);
  }
  long RegQueryValueEx(RegistryKey key, const Text& name, RegistryValue& value) override {
    return target_.RegQueryValueEx(key, name, value);
  }
  void RegCloseKey(RegistryKey key) override { target_.RegCloseKey(key); }
  bool GetVersionEx(OsVersionInfo& info) override { return target_.GetVersionEx(info); }
  void GetSystemInfo(SystemInfo& info) override { target_.GetSystemInfo(info); }
  bool GlobalMemoryStatus(MemoryStatus& status) override {
    return target_.GlobalMemoryStatus(status);
  }
  SnapshotHandle CreateToolhelp32Snapshot(std::uint32_t flags, std::uint32_t process) override {
    return target_.CreateToolhelp32Snapshot(flags, process);
  }
  bool Process32First(SnapshotHandle snapshot, ProcessEntry& entry) override {
    return target_.Process32First(snapshot, entry);
  }
  bool Process32Next(SnapshotHandle snapshot, ProcessEntry& entry) override {
    return target_.Process32Next(snapshot, entry);
  }
  void CloseHandle(SnapshotHandle snapshot) override { target_.CloseHandle(snapshot); }
  void MessageBeep(std::uint32_t type) override { target_.MessageBeep(type); }
  std::uint32_t GetLastError() override { return target_.GetLastError(); }
  Text FormatMessage(std::uint32_t code) override { return target_.FormatMessage(code); }
  double Random() override { return target_.Random(); }
  void Forget() override { target_.Forget(); }

 protected:
  Platform& Target() { return target_; }

 private:
  Platform& target_;
};

}  // namespace trovex
