// Directories in hand of the platform itself, under the eyes of a test's platform: what ships is
// run, and the test still counts, refuses and answers by full names.
#pragma once

#include <cstdlib>
#include <memory>
#include <string_view>

#include "Platform/HeldDirectory.h"

namespace trovex::test {

// False where the environment asks for directories that go through a platform's operations by full
// name, as those of a platform without any of its own do. The tests are run both ways.
inline bool UsesOwnDirectories() {
  const char* way = std::getenv("TROVEX_TEST_DIRECTORIES");
  return way == nullptr || std::string_view(way) != "names";
}

enum class Asked { kDirectory, kStatus, kFile, kRecord };

class DirectoryWatch {
 public:
  virtual ~DirectoryWatch() = default;
  // Before anything is done with that full name; false: there is no such thing. May raise.
  virtual bool OnAsked(Asked what, const Text& name) = 0;
  // Where a test answers for the icons of its files; else -1.
  virtual int IconsOf(const Text&, int) { return -1; }
};

class WatchedDirectory : public HeldDirectory {
 public:
  // Null where `held` is. `name` is the directory's.
  static std::shared_ptr<HeldDirectory> Watch(DirectoryWatch& watch, Text name,
                                              std::shared_ptr<HeldDirectory> held) {
    if (!held) return nullptr;
    if (!name.ends_with(u'\\')) name += u'\\';
    return std::make_shared<WatchedDirectory>(watch, std::move(name), std::move(held));
  }

  WatchedDirectory(DirectoryWatch& watch, Text name, std::shared_ptr<HeldDirectory> held)
      : watch_(watch), name_(std::move(name)), held_(std::move(held)) {}

  const std::shared_ptr<const DirectoryEntries>& Entries() const override {
    return held_->Entries();
  }
  bool IsWhole() const override { return held_->IsWhole(); }
  std::shared_ptr<HeldDirectory> OpenDirectory(const ListedEntry& entry) override {
    if (!watch_.OnAsked(Asked::kDirectory, NameOf(entry))) return nullptr;
    return Watch(watch_, NameOf(entry), held_->OpenDirectory(entry));
  }
  bool GetFileStatus(const ListedEntry& entry, FileStatus& status) override {
    return watch_.OnAsked(Asked::kStatus, NameOf(entry)) && held_->GetFileStatus(entry, status);
  }
  FileHandle OpenRead(const ListedEntry& entry) override {
    if (!watch_.OnAsked(Asked::kFile, NameOf(entry))) {
      throw RuntimeError(ErrorNumber::kPathNotFound);
    }
    return held_->OpenRead(entry);
  }
  Reading GetFileProperties(const ListedEntry& entry, FileStatus& status,
                            std::string& record) override {
    record.clear();
    const bool there = watch_.OnAsked(Asked::kStatus, NameOf(entry)) &&
                       watch_.OnAsked(Asked::kRecord, NameOf(entry));
    return there ? held_->GetFileProperties(entry, status, record) : Reading::kNothing;
  }
  int ExtractIconEx(const ListedEntry& entry, int index) override {
    const int icons = watch_.IconsOf(NameOf(entry), index);
    return icons >= 0 ? icons : held_->ExtractIconEx(entry, index);
  }

 private:
  Text NameOf(const ListedEntry& entry) const { return name_ + Text(entry.name); }

  DirectoryWatch& watch_;
  Text name_;  // with its final backslash
  std::shared_ptr<HeldDirectory> held_;
};

}  // namespace trovex::test
