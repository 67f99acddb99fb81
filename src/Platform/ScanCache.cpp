#include "Platform/ScanCache.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "Platform/Pattern.h"

namespace trovex {
namespace {

constexpr std::size_t kOnTheWay = 64;        // directories held above the one in hand
constexpr std::size_t kProfiles = 32;        // profile answers kept
constexpr std::size_t kSharedFiles = 16;     // files kept open for a directory
constexpr std::size_t kSharedBytes = 65536;  // of each file

// A handle of the cache's own stands above those of the platform beneath, which pass through.
constexpr std::int64_t kOwnHandles = std::int64_t{1} << 60;

// "D:\JEUX" and "SETUP.EXE" of "D:\JEUX\SETUP.EXE".
std::pair<TextView, TextView> Split(TextView name) {
  const std::size_t backslash = name.find_last_of(u'\\');
  if (backslash == TextView::npos) return {{}, name};
  return {name.substr(0, backslash), name.substr(backslash + 1)};
}

}  // namespace

// A file that is open beneath for as long as its directory is in hand. What was read of it is
// kept, up to a limit, for whoever reads it again from the start.
class ScanCache::SharedFile {
 public:
  // Takes over the open file.
  SharedFile(Platform& platform, FileHandle file) : platform_(platform), handle_(file) {}
  ~SharedFile() {
    try {
      platform_.Close(handle_);
    } catch (const RuntimeError&) {
      // Nothing was written: closing has nothing to lose.
    }
  }
  SharedFile(const SharedFile&) = delete;
  SharedFile& operator=(const SharedFile&) = delete;

  // Up to `size` bytes at `place`, which must not lie beyond the bytes kept.
  std::size_t Copy(std::size_t place, void* buffer, std::size_t size) {
    while (size > 0 && place == bytes_.size() && !at_end_) ReadMore(size);
    const std::size_t given = std::min(size, bytes_.size() - place);
    std::memcpy(buffer, bytes_.data() + place, given);
    return given;
  }

 private:
  void ReadMore(std::size_t size) {
    const std::size_t before = bytes_.size();
    bytes_.resize(before + size);
    std::size_t read = 0;
    try {
      read = platform_.Read(handle_, bytes_.data() + before, size);
    } catch (const RuntimeError&) {
      bytes_.resize(before);
      throw;
    }
    bytes_.resize(before + read);
    at_end_ = read == 0;
  }

  Platform& platform_;
  FileHandle handle_;
  std::string bytes_;
  bool at_end_ = false;
};

// One opening of a shared file. Behind the bytes that are shared it goes on with a file of its own.
struct ScanCache::Reader {
  Text name;
  std::shared_ptr<SharedFile> file;
  std::size_t place = 0;
  FileHandle own = FileHandle::kInvalid;
};

struct ScanCache::Profile {
  Text section, key, fallback, file;
  std::uint32_t size;
  Text answer;
};

ScanCache::ScanCache(Platform& target) : ForwardingPlatform(target) {
  Target().Forget();
}

ScanCache::~ScanCache() {
  for (auto& [handle, reader] : readers_) {
    if (reader.own != FileHandle::kInvalid) Target().Close(reader.own);
  }
  Target().Forget();
}

const ScanCache::Held& ScanCache::HeldOf(TextView directory) {
  if (held_[0] && EqualsNoCase(held_[0]->name, directory)) return *held_[0];
  std::shared_ptr<Held> held = FindHeld(directory);
  if (!held) held = Open(directory);
  // It takes the place of itself, else of the one longest unused, and comes first.
  const auto place = std::find(held_.begin(), held_.end() - 1, held);
  *place = std::move(held);
  std::rotate(held_.begin(), place, place + 1);
  return *held_[0];
}

// Among the last ones and those above the latest, to which a walk comes back.
std::shared_ptr<ScanCache::Held> ScanCache::FindHeld(TextView directory) const {
  const auto known = std::find_if(held_.begin(), held_.end(), [&](const auto& held) {
    return held && EqualsNoCase(held->name, directory);
  });
  if (known != held_.end()) return *known;
  std::shared_ptr<Held> held = held_[0] ? held_[0]->above : nullptr;
  while (held && !EqualsNoCase(held->name, directory)) held = held->above;
  return held;
}

// From the directory above, if that is held: so the way to it is not looked for again.
std::shared_ptr<ScanCache::Held> ScanCache::Open(TextView directory) {
  auto held = std::make_shared<Held>(Held{Text(directory), nullptr, nullptr});
  const auto [parent, level] = Split(directory);
  ListedEntry entry;
  held->above = FindHeld(parent);
  if (held->above && held->above->directory &&
      held->above->directory->Entries()->Find(level, entry)) {
    held->directory = held->above->directory->OpenDirectory(entry);
  }
  if (!held->directory) held->directory = Target().OpenDirectory(held->name + u'\\');
  // Of a very deep tree the upper levels go.
  Held* last = held.get();
  for (std::size_t levels = 0; last->above && levels < kOnTheWay; ++levels) {
    last = last->above.get();
  }
  last->above = nullptr;
  return held;
}

std::optional<ScanCache::Place> ScanCache::Find(TextView name) {
  const auto [directory, last] = Split(name);
  if (directory.empty() || last.empty()) return std::nullopt;
  const Held& held = HeldOf(directory);
  ListedEntry entry;
  if (!held.directory || !held.directory->Entries()->Find(last, entry)) return std::nullopt;
  return Place{*held.directory, entry};
}

FindHandle ScanCache::FindFirstFile(const Text& pattern, FindData& data) {
  data = {};
  const auto [directory, last] = Split(pattern);
  if (directory.empty() || last.empty() || last == u"." || last == u"..") {
    return Target().FindFirstFile(pattern, data);
  }
  const Held& held = HeldOf(directory);
  if (!held.directory) return FindHandle::kInvalid;
  const std::shared_ptr<const DirectoryEntries>& entries = held.directory->Entries();
  if (HasWildcard(last)) {
    const bool dots = held.directory->HasDots();
    const auto first = dots ? EntrySearch::Dots::kFirst : EntrySearch::Dots::kNone;
    return Begin(EntrySearch(entries, last, first), data);
  }
  ListedEntry entry;
  if (!entries->Find(last, entry)) return FindHandle::kInvalid;
  data.attributes = entry.attributes;
  data.name = entry.name;
  // The search is at its end before it is asked again.
  return static_cast<FindHandle>(kOwnHandles + next_handle_++);
}

FindHandle ScanCache::Begin(EntrySearch search, FindData& data) {
  if (!search.Advance(data)) return FindHandle::kInvalid;
  const std::int64_t handle = kOwnHandles + next_handle_++;
  searches_.emplace(handle, std::move(search));
  return static_cast<FindHandle>(handle);
}

bool ScanCache::FindNextFile(FindHandle handle, FindData& data) {
  const auto number = static_cast<std::int64_t>(handle);
  if (number < kOwnHandles) return Target().FindNextFile(handle, data);
  const auto search = searches_.find(number);
  if (search == searches_.end()) return false;
  if (search->second.Advance(data)) return true;
  searches_.erase(search);
  return false;
}

void ScanCache::FindClose(FindHandle handle) {
  const auto number = static_cast<std::int64_t>(handle);
  if (number < kOwnHandles) return Target().FindClose(handle);
  searches_.erase(number);
}

std::shared_ptr<HeldDirectory> ScanCache::OpenDirectory(const Text& directory) {
  TextView name = directory;
  if (name.ends_with(u'\\')) name.remove_suffix(1);
  return name.empty() ? Target().OpenDirectory(directory) : HeldOf(name).directory;
}

bool ScanCache::GetFileStatus(const Text& name, FileStatus& status) {
  const auto place = Find(name);
  return place ? place->directory.GetFileStatus(place->entry, status)
               : Target().GetFileStatus(name, status);
}

FileHandle ScanCache::OpenFileBeneath(const Text& name) {
  const auto place = Find(name);
  return place ? place->directory.OpenRead(place->entry) : Target().OpenRead(name);
}

FileHandle ScanCache::OpenRead(const Text& name) {
  EnterDirectory(Split(name).first);
  const Text key = ToUpper(name);
  auto known = files_.find(key);
  if (known == files_.end()) {
    auto file = std::make_shared<SharedFile>(Target(), OpenFileBeneath(name));
    if (files_.size() >= kSharedFiles) files_.clear();
    known = files_.emplace(key, std::move(file)).first;
  }
  const std::int64_t handle = kOwnHandles + next_handle_++;
  readers_.emplace(handle, Reader{name, known->second});
  return static_cast<FileHandle>(handle);
}

std::size_t ScanCache::Read(FileHandle file, void* buffer, std::size_t size) {
  const auto found = readers_.find(static_cast<std::int64_t>(file));
  if (found == readers_.end()) return Target().Read(file, buffer, size);
  Reader& reader = found->second;
  if (reader.own != FileHandle::kInvalid) return Target().Read(reader.own, buffer, size);
  if (reader.place < kSharedBytes) {
    size = std::min(size, kSharedBytes - reader.place);
    const std::size_t read = reader.file->Copy(reader.place, buffer, size);
    reader.place += read;
    return read;
  }
  reader.own = OpenFileBeneath(reader.name);
  std::string skipped(kSharedBytes, '\0');
  for (std::size_t left = kSharedBytes; left > 0;) {
    const std::size_t read = Target().Read(reader.own, skipped.data(), left);
    if (read == 0) return 0;
    left -= read;
  }
  return Target().Read(reader.own, buffer, size);
}

void ScanCache::Close(FileHandle file) {
  const auto found = readers_.find(static_cast<std::int64_t>(file));
  if (found == readers_.end()) return Target().Close(file);
  const FileHandle own = found->second.own;
  readers_.erase(found);
  if (own != FileHandle::kInvalid) Target().Close(own);
}

FileHandle ScanCache::OpenWrite(const Text& name) {
  DropAll();
  return Target().OpenWrite(name);
}

void ScanCache::Write(FileHandle file, const void* data, std::size_t size) {
  DropAll();
  Target().Write(file, data, size);
}

void ScanCache::CopyFile(const Text& source, const Text& destination) {
  DropAll();
  Target().CopyFile(source, destination);
}

void ScanCache::DeleteFile(const Text& name) {
  DropAll();
  Target().DeleteFile(name);
}

bool ScanCache::GetFileProperties(const Text& name, FileStatus& status, std::string& record) {
  const auto place = Find(name);
  const bool found = place ? place->directory.GetFileProperties(place->entry, status, record)
                           : Target().GetFileProperties(name, status, record);
  if (records_.Find(name) == nullptr) records_.Put(name, record);
  return found;
}

const std::string& ScanCache::RecordOf(const Text& name) {
  if (const std::string* known = records_.Find(name)) return *known;
  FileStatus status;
  std::string record;
  const auto place = Find(name);
  if (place) {
    place->directory.GetFileProperties(place->entry, status, record);
  } else {
    Target().GetFileProperties(name, status, record);
  }
  return records_.Put(name, record);
}

std::uint32_t ScanCache::GetFileVersionInfoSize(const Text& name) {
  return static_cast<std::uint32_t>(RecordOf(name).size());
}

bool ScanCache::GetFileVersionInfo(const Text& name, std::uint32_t length, std::string& block) {
  block = RecordOf(name);
  if (block.empty()) return false;
  block.resize(length);
  return true;
}

std::uint32_t ScanCache::GetPrivateProfileString(const Text& section, const Text& key,
                                                 const Text& fallback, Text& buffer,
                                                 std::uint32_t size, const Text& file) {
  EnterDirectory(Split(file).first);
  const auto known = std::find_if(profiles_.begin(), profiles_.end(), [&](const Profile& asked) {
    return asked.file == file && asked.key == key && asked.section == section &&
           asked.fallback == fallback && asked.size == size;
  });
  if (known == profiles_.end()) {
    Profile asked{section, key, fallback, file, size, {}};
    if (const auto place = Find(file)) {
      place->directory.GetPrivateProfileString(section, key, fallback, asked.answer, size,
                                               place->entry);
    } else {
      Target().GetPrivateProfileString(section, key, fallback, asked.answer, size, file);
    }
    profiles_.push_front(std::move(asked));
    if (profiles_.size() > kProfiles) profiles_.pop_back();
  } else {
    profiles_.splice(profiles_.begin(), profiles_, known);
  }
  buffer = profiles_.front().answer;
  return static_cast<std::uint32_t>(buffer.size());
}

bool ScanCache::WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                          const Text& file) {
  DropAll();
  return Target().WritePrivateProfileString(section, key, value, file);
}

void ScanCache::Forget() {
  DropAll();
  Target().Forget();
}

void ScanCache::EnterDirectory(TextView directory) {
  if (EqualsNoCase(directory, files_of_)) return;
  DropFiles();
  files_of_ = directory;
}

void ScanCache::DropFiles() {
  files_.clear();
  profiles_.clear();
  files_of_.clear();
}

void ScanCache::DropAll() {
  DropFiles();
  held_.fill(nullptr);
  records_.Clear();
}

}  // namespace trovex
