// A platform whose files stand in memory: names of any drive, no directories, searches for one
// name only. It holds the current platform's place, and a view without a screen, for its life.
#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "Platform/ForwardingPlatform.h"
#include "Platform/Posix/PosixPlatform.h"
#include "Ui/Headless/HeadlessView.h"

namespace trovex::fuzz {

namespace internal {
// Answers what is asked beside files.
struct Machine {
  static PosixSetup Setup() {
    PosixSetup setup;
    setup.drives = {{u'D', "/", DriveType::kFixed, {}}};
    return setup;
  }
  PosixPlatform machine{Setup()};
};
}  // namespace internal

class MemoryDisc : private internal::Machine, public ForwardingPlatform {
 public:
  MemoryDisc() : ForwardingPlatform(machine), scope_(*this), view_scope_(view) {}

  std::map<Text, std::string> files;  // by whole name, upper case
  HeadlessView view;
  std::size_t bytes_read = 0;
  std::int64_t least_length = 0;  // what GetFileStatus tells of a shorter file

  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    data = {};
    if (!files.contains(ToUpper(pattern))) return FindHandle::kInvalid;
    data.name = pattern;
    return FindHandle::kNone;
  }
  bool FindNextFile(FindHandle, FindData&) override { return false; }
  void FindClose(FindHandle) override {}
  bool GetFileStatus(const Text& name, FileStatus& status) override {
    const auto found = files.find(ToUpper(name));
    if (found == files.end()) return false;
    status = {0, std::max<std::int64_t>(std::ssize(found->second), least_length), {}};
    return true;
  }
  FileHandle OpenRead(const Text& name) override {
    Contents(name);
    return Open(name);
  }
  FileHandle OpenWrite(const Text& name) override {
    files[ToUpper(name)].clear();
    return Open(name);
  }
  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override {
    OpenFile& open = opened_.at(file);
    const std::size_t got = Contents(open.name).copy(static_cast<char*>(buffer), size, open.place);
    open.place += got;
    bytes_read += got;
    return got;
  }
  void Write(FileHandle file, const void* data, std::size_t size) override {
    Contents(opened_.at(file).name).append(static_cast<const char*>(data), size);
  }
  void Close(FileHandle file) override { opened_.erase(file); }
  void CopyFile(const Text& source, const Text& destination) override {
    files[ToUpper(destination)] = Contents(source);
  }
  void DeleteFile(const Text& name) override { files.erase(ToUpper(name)); }
  DriveType GetDriveType(const Text&) override { return DriveType::kFixed; }
  Text GetEnvironmentVariable(const Text&) override { return u"T:\\"; }

  bool HasOpenFiles() const { return !opened_.empty(); }

 private:
  struct OpenFile {
    Text name;
    std::size_t place = 0;
  };

  std::string& Contents(const Text& name) {
    const auto found = files.find(ToUpper(name));
    if (found == files.end()) throw RuntimeError(ErrorNumber::kFileNotFound);
    return found->second;
  }
  FileHandle Open(const Text& name) {
    const auto handle = static_cast<FileHandle>(next_++);
    opened_[handle] = {name, 0};
    return handle;
  }

  std::map<FileHandle, OpenFile> opened_;
  std::int64_t next_ = 1;
  PlatformScope scope_;
  ViewScope view_scope_;
};

}  // namespace trovex::fuzz
