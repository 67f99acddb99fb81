// A platform for the time of one scan: it answers from what it has read of the directories in
// hand, so that each directory is listed once and each file beside a program is read once.
#pragma once

#include <array>
#include <list>
#include <map>
#include <memory>
#include <optional>

#include "Platform/EntrySearch.h"
#include "Platform/ForwardingPlatform.h"
#include "Platform/RecordMemo.h"

namespace trovex {

// Lives for one scan: what changes on the disk meanwhile may go unseen until the next one. It holds
// the directories on the way down and the last few beside them, a bounded number whatever the tree,
// and reaches files and subdirectories through them.
class ScanCache : public ForwardingPlatform {
 public:
  explicit ScanCache(Platform& target);
  ~ScanCache() override;

  FindHandle FindFirstFile(const Text& pattern, FindData& data) override;
  bool FindNextFile(FindHandle handle, FindData& data) override;
  void FindClose(FindHandle handle) override;
  std::shared_ptr<HeldDirectory> OpenDirectory(const Text& directory) override;

  bool GetFileStatus(const Text& name, FileStatus& status) override;
  bool GetFileProperties(const Text& name, FileStatus& status, std::string& record) override;
  FileHandle OpenRead(const Text& name) override;
  FileHandle OpenWrite(const Text& name) override;
  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override;
  void Write(FileHandle file, const void* data, std::size_t size) override;
  void Close(FileHandle file) override;
  void CopyFile(const Text& source, const Text& destination) override;
  void DeleteFile(const Text& name) override;

  std::uint32_t GetFileVersionInfoSize(const Text& name) override;
  bool GetFileVersionInfo(const Text& name, std::uint32_t length, std::string& block) override;
  std::uint32_t GetPrivateProfileString(const Text& section, const Text& key, const Text& fallback,
                                        Text& buffer, std::uint32_t size,
                                        const Text& file) override;
  bool WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                 const Text& file) override;
  void Forget() override;

 private:
  class SharedFile;
  struct Reader;
  struct Profile;

  // A directory by its name, without the final backslash even of a root; null where it is missing
  // or unreadable. Held for as long as one below it is.
  struct Held {
    Text name;
    std::shared_ptr<HeldDirectory> directory;
    std::shared_ptr<Held> above;
  };
  // A name found in a directory that is held.
  struct Place {
    HeldDirectory& directory;
    ListedEntry entry;
  };

  const Held& HeldOf(TextView directory);
  std::shared_ptr<Held> FindHeld(TextView directory) const;
  std::shared_ptr<Held> Open(TextView directory);
  std::optional<Place> Find(TextView name);
  FileHandle OpenFileBeneath(const Text& name);
  FindHandle Begin(EntrySearch search, FindData& data);
  const std::string& RecordOf(const Text& name);
  void EnterDirectory(TextView directory);
  void DropFiles();
  void DropAll();

  static constexpr std::size_t kHeld = 8;
  std::array<std::shared_ptr<Held>, kHeld> held_;  // the latest first
  std::map<std::int64_t, EntrySearch> searches_;
  std::map<std::int64_t, Reader> readers_;
  std::int64_t next_handle_ = 1;

  // What belongs to the directory whose files were asked for last.
  Text files_of_;
  std::map<Text, std::shared_ptr<SharedFile>> files_;
  RecordMemo records_;
  std::list<Profile> profiles_;
};

}  // namespace trovex
