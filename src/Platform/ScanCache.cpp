#include "Platform/ScanCache.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "Platform/Pattern.h"

namespace trovex {
namespace {

constexpr std::size_t kListings = 8;       // directories kept beside those being walked
constexpr std::size_t kUsualEntries = 16;  // of a directory, and the characters of their names
constexpr std::size_t kUsualNames = 192;
constexpr std::size_t kRecords = 8;          // version records kept
constexpr std::size_t kProfiles = 32;        // profile answers kept
constexpr std::size_t kSharedFiles = 16;     // files kept open for a directory
constexpr std::size_t kSharedBytes = 65536;  // of each file

// A handle of the cache's own stands above those of the platform beneath, which pass through.
constexpr std::int64_t kOwnHandles = std::int64_t{1} << 60;

// "D:\JEUX\" and "SETUP.EXE" of "D:\JEUX\SETUP.EXE".
std::pair<TextView, TextView> Split(TextView name) {
  const std::size_t backslash = name.find_last_of(u'\\');
  if (backslash == TextView::npos) return {{}, name};
  return {name.substr(0, backslash + 1), name.substr(backslash + 1)};
}

int Compare(TextView a, TextView b) {
  const std::size_t size = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < size; ++i) {
    const char16_t x = ToUpper(a[i]), y = ToUpper(b[i]);
    if (x != y) return x < y ? -1 : 1;
  }
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

bool MatchesAll(TextView pattern) {
  return pattern == u"*.*" || pattern == u"*";
}

}  // namespace

// The entries of one directory, their names in one piece.
class ScanCache::Listing {
 public:
  Listing(Platform& platform, TextView directory) : directory_(directory) {
    FindData data;
    const FindHandle handle = platform.FindFirstFile(directory_ + u"*.*", data);
    if (handle == FindHandle::kInvalid) return;
    readable_ = true;
    names_.reserve(kUsualNames);
    entries_.reserve(kUsualEntries);
    do {
      Add(data);
    } while (platform.FindNextFile(handle, data));
    platform.FindClose(handle);
    Sort();
  }

  const Text& Directory() const { return directory_; }
  bool Readable() const { return readable_; }
  std::size_t Size() const { return entries_.size(); }

  // Entries in the platform's order.
  TextView Name(std::size_t i) const {
    const std::size_t end = i + 1 < entries_.size() ? entries_[i + 1].begin : names_.size();
    return TextView(names_).substr(entries_[i].begin, end - entries_[i].begin);
  }
  std::uint32_t Attributes(std::size_t i) const { return entries_[i].attributes; }

  // Number of the entry of that name, Size() if there is none.
  std::size_t Find(TextView name) const {
    const auto found = std::lower_bound(
        sorted_.begin(), sorted_.end(), name,
        [&](std::uint32_t i, TextView wanted) { return Compare(Name(i), wanted) < 0; });
    const bool hit = found != sorted_.end() && Compare(Name(*found), name) == 0;
    return hit ? *found : Size();
  }

 private:
  struct Entry {
    std::uint32_t begin;  // of the name in names_
    std::uint32_t attributes;
  };

  void Add(const FindData& data) {
    entries_.push_back({static_cast<std::uint32_t>(names_.size()), data.attributes});
    names_ += data.name;
  }

  void Sort() {
    sorted_.resize(entries_.size());
    for (std::uint32_t i = 0; i < sorted_.size(); ++i) sorted_[i] = i;
    const auto before = [&](std::uint32_t a, std::uint32_t b) {
      return Compare(Name(a), Name(b)) < 0;
    };
    if (!std::is_sorted(sorted_.begin(), sorted_.end(), before)) {
      std::sort(sorted_.begin(), sorted_.end(), before);
    }
  }

  Text directory_;
  bool readable_ = false;
  Text names_;
  std::vector<Entry> entries_;
  std::vector<std::uint32_t> sorted_;
};

// A search within a listing, and where it stands.
struct ScanCache::Search {
  Search(std::shared_ptr<const Listing> entries, TextView wanted)
      : listing(std::move(entries)), pattern(wanted), all(MatchesAll(wanted)) {}

  std::shared_ptr<const Listing> listing;
  Text pattern;
  bool all;
  std::size_t next = 0;

  bool Advance(FindData& data) {
    for (; next < listing->Size(); ++next) {
      const TextView name = listing->Name(next);
      if (!all && !MatchesPattern(name, pattern)) continue;
      data.name = name;
      data.attributes = listing->Attributes(next++);
      return true;
    }
    return false;
  }
};

// A file that is open beneath for as long as its directory is in hand. What was read of it is
// kept, up to a limit, for whoever reads it again from the start.
class ScanCache::SharedFile {
 public:
  SharedFile(Platform& platform, const Text& name)
      : platform_(platform), handle_(platform.OpenRead(name)) {}
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

struct ScanCache::Record {
  Text name;
  std::string block;
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

std::shared_ptr<const ScanCache::Listing> ScanCache::ListingOf(TextView directory) {
  const auto known = std::find_if(listings_.begin(), listings_.end(), [&](const auto& listing) {
    return EqualsNoCase(listing->Directory(), directory);
  });
  if (known != listings_.end()) {
    listings_.splice(listings_.begin(), listings_, known);
  } else {
    listings_.push_front(std::make_shared<const Listing>(Target(), directory));
    if (listings_.size() > kListings) listings_.pop_back();
  }
  return listings_.front();
}

FindHandle ScanCache::FindFirstFile(const Text& pattern, FindData& data) {
  data = {};
  const auto [directory, last] = Split(pattern);
  if (directory.empty() || last.empty()) return Target().FindFirstFile(pattern, data);
  std::shared_ptr<const Listing> listing = ListingOf(directory);
  if (!listing->Readable()) return FindHandle::kInvalid;
  if (HasWildcard(last)) return Begin(Search(std::move(listing), last), data);
  const std::size_t found = listing->Find(last);
  if (found == listing->Size()) return FindHandle::kInvalid;
  data.attributes = listing->Attributes(found);
  data.name = listing->Name(found);
  // The search is at its end before it is asked again.
  return static_cast<FindHandle>(kOwnHandles + next_handle_++);
}

FindHandle ScanCache::Begin(Search search, FindData& data) {
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

FileHandle ScanCache::OpenRead(const Text& name) {
  const TextView directory = Split(name).first;
  if (!EqualsNoCase(directory, files_of_)) {
    DropFiles();
    files_of_ = directory;
  }
  const Text key = ToUpper(name);
  auto known = files_.find(key);
  if (known == files_.end()) {
    auto file = std::make_shared<SharedFile>(Target(), name);
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
  reader.own = Target().OpenRead(reader.name);
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

const ScanCache::Record& ScanCache::RecordOf(const Text& name) {
  const auto known = std::find_if(records_.begin(), records_.end(), [&](const Record& record) {
    return EqualsNoCase(record.name, name);
  });
  if (known != records_.end()) {
    // A record that is asked for again behind later ones is the one that the directory comes back
    // to: it takes the protected place.
    if (std::next(known) != records_.end()) records_.splice(records_.begin(), records_, known);
    return *known;
  }
  Record record{name, {}};
  const std::uint32_t length = Target().GetFileVersionInfoSize(name);
  if (length > 0 && !Target().GetFileVersionInfo(name, length, record.block)) record.block.clear();
  // The analysis comes back to the first file of a directory.
  if (!records_.empty() && !EqualsNoCase(Split(records_.front().name).first, Split(name).first)) {
    records_.clear();
  }
  records_.push_back(std::move(record));
  if (records_.size() > kRecords) records_.erase(std::next(records_.begin()));
  return records_.back();
}

std::uint32_t ScanCache::GetFileVersionInfoSize(const Text& name) {
  return static_cast<std::uint32_t>(RecordOf(name).block.size());
}

bool ScanCache::GetFileVersionInfo(const Text& name, std::uint32_t length, std::string& block) {
  block = RecordOf(name).block;
  if (block.empty()) return false;
  block.resize(length);
  return true;
}

std::uint32_t ScanCache::GetPrivateProfileString(const Text& section, const Text& key,
                                                 const Text& fallback, Text& buffer,
                                                 std::uint32_t size, const Text& file) {
  const auto known = std::find_if(profiles_.begin(), profiles_.end(), [&](const Profile& asked) {
    return asked.file == file && asked.key == key && asked.section == section &&
           asked.fallback == fallback && asked.size == size;
  });
  if (known == profiles_.end()) {
    Profile asked{section, key, fallback, file, size, {}};
    Target().GetPrivateProfileString(section, key, fallback, asked.answer, size, file);
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

void ScanCache::DropFiles() {
  files_.clear();
  files_of_.clear();
}

void ScanCache::DropAll() {
  DropFiles();
  listings_.clear();
  records_.clear();
  profiles_.clear();
}

}  // namespace trovex
