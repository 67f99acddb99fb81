// Passes every operation of its part on. What changes one of them derives from it.
// GetFileProperties is left to FilePort, which goes through the other operations: what is
// overridden holds for it as well.
#pragma once

#include "Platform/FilePort.h"

namespace trovex {

class ForwardingFiles : public virtual FilePort {
 public:
  // `target` must outlive this object.
  explicit ForwardingFiles(FilePort& target) : target_(target) {}

  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    return target_.FindFirstFile(pattern, data);
  }
  bool FindNextFile(FindHandle handle, FindData& data) override {
    return target_.FindNextFile(handle, data);
  }
  void FindClose(FindHandle handle) override { target_.FindClose(handle); }
  bool CanBeListed(const Text& directory) override { return target_.CanBeListed(directory); }
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
  std::unique_ptr<records::ByteSource> OpenSource(const Text& name) override {
    return target_.OpenSource(name);
  }
  bool IsInsideImage(const Text& name) override { return target_.IsInsideImage(name); }
  LocalTime LocalTimeOf(std::int64_t moment) override { return target_.LocalTimeOf(moment); }
  void CopyFile(const Text& source, const Text& destination) override {
    target_.CopyFile(source, destination);
  }
  void DeleteFile(const Text& name) override { target_.DeleteFile(name); }
  void PutInPlace(const Text& source, const Text& place) override {
    target_.PutInPlace(source, place);
  }
  bool MakeDirectory(const Text& name) override { return target_.MakeDirectory(name); }
  std::uint32_t GetFileVersionInfoSize(const Text& name) override {
    return target_.GetFileVersionInfoSize(name);
  }
  bool GetFileVersionInfo(const Text& name, std::uint32_t length, std::string& block) override {
    return target_.GetFileVersionInfo(name, length, block);
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
  Text GetApplicationDataDirectory() override { return target_.GetApplicationDataDirectory(); }
  Text GetCurrentDirectory() override { return target_.GetCurrentDirectory(); }
  void ChangeDirectory(const Text& directory) override { target_.ChangeDirectory(directory); }
  void ChangeDrive(const Text& drive) override { target_.ChangeDrive(drive); }

 protected:
  FilePort& Target() { return target_; }

 private:
  FilePort& target_;
};

}  // namespace trovex
