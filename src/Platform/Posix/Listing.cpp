#include "Platform/Posix/Listing.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <set>

#include "Platform/Encoding.h"
#include "Platform/EntryNames.h"
#include "Platform/Posix/Errors.h"
#include "Platform/Posix/HostCalls.h"

namespace trovex::posix {
namespace {

constexpr char16_t kShownBackslash = 0xF05C;

// Of a directory; larger ones grow.
constexpr std::size_t kUsualEntries = 24;
constexpr std::size_t kUsualNames = 384;  // characters

constexpr int kDirectoryFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK;

constexpr std::size_t kKeyUnits = 8;  // of a name, in a record's key

// Entries of an open directory, in the system's own order. The plain call under readdir: a
// catalogue lists every directory of a disc, and the stream around it would double the calls.
class EntryReader {
 public:
  explicit EntryReader(int directory) : directory_(directory) {}

  // The next entry, good until the next call; null at the end and on failure, which sets errno.
  const dirent64* Next() {
    if (next_ == end_ && !Fill()) return nullptr;
    const auto* entry = reinterpret_cast<const dirent64*>(buffer_ + next_);
    next_ += entry->d_reclen;
    return entry;
  }

 private:
  bool Fill() {
    errno = 0;
    const ssize_t got = getdents64(directory_, buffer_, sizeof buffer_);
    next_ = 0;
    end_ = got > 0 ? static_cast<std::size_t>(got) : 0;
    return got > 0;
  }

  int directory_;
  std::size_t next_ = 0, end_ = 0;
  alignas(dirent64) char buffer_[32768];
};

bool IsDots(const char* name) {
  return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

EntryKind KindOf(mode_t mode) {
  if (S_ISREG(mode)) return EntryKind::kFile;
  return S_ISDIR(mode) ? EntryKind::kDirectory : EntryKind::kOther;
}

// Asks for what an entry is; false, and `known` too, where it cannot be told.
bool Ask(int directory, const char* name, int flags, struct stat& status, bool& known) {
  if (fstatat(directory, name, &status, flags) == 0) return true;
  known = known && IsMissing(errno);
  return false;
}

// Of a link, what it leads to counts; a link to anything but a regular file is not for us.
EntryKind KindOfTarget(int directory, const char* name, bool& known) {
  struct stat status;
  const bool found = Ask(directory, name, 0, status, known);
  return found && S_ISREG(status.st_mode) ? EntryKind::kFile : EntryKind::kOther;
}

// Most file systems tell the kind along with the name, which saves a call an entry. `known` becomes
// false where an entry may be anything.
EntryKind KindOf(int directory, const dirent64& entry, bool& known) {
  switch (entry.d_type) {
    case DT_REG:
      return EntryKind::kFile;
    case DT_DIR:
      return EntryKind::kDirectory;
    case DT_LNK:
      return KindOfTarget(directory, entry.d_name, known);
    case DT_UNKNOWN:
      break;
    default:
      return EntryKind::kOther;
  }
  struct stat status;
  if (!Ask(directory, entry.d_name, AT_SYMLINK_NOFOLLOW, status, known)) return EntryKind::kOther;
  if (!S_ISLNK(status.st_mode)) return KindOf(status.st_mode);
  return KindOfTarget(directory, entry.d_name, known);
}

bool IsPlain(std::string_view name) {
  return std::all_of(name.begin(), name.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80 && c != '\\'; });
}

// The first units of a name, upper-cased and a byte each, as a number: names of different keys
// stand in the order of the keys. A unit that a byte cannot hold counts as the highest, and nothing
// behind it takes part: what follows two such units says nothing before they are compared.
std::uint64_t KeyOf(TextView name) {
  constexpr std::uint64_t kHighest = 0xFF;
  std::uint64_t key = 0;
  std::size_t held = 0;
  while (held < std::min(name.size(), kKeyUnits)) {
    const std::uint64_t unit = std::min<std::uint64_t>(ToUpper(name[held]), kHighest);
    key |= unit << 8 * (kKeyUnits - ++held);
    if (unit == kHighest) break;
  }
  return key;
}

}  // namespace

Text ShownName(std::string_view host_name) {
  Text name = FromUtf8(host_name);
  std::replace(name.begin(), name.end(), u'\\', kShownBackslash);
  return name;
}

std::string NewHostName(TextView name) {
  Text shown(name);
  std::replace(shown.begin(), shown.end(), kShownBackslash, u'\\');
  return ToUtf8(shown);
}

EntryKind KindOfHost(const std::string& path) {
  struct stat status;
  if (!StatHostLink(path, status)) return EntryKind::kMissing;
  if (!S_ISLNK(status.st_mode)) return KindOf(status.st_mode);
  return StatHost(path, status) && S_ISREG(status.st_mode) ? EntryKind::kFile : EntryKind::kOther;
}

FileDescriptor OpenDirectoryAt(int parent, const char* name) {
  return FileDescriptor(openat(parent, name, kDirectoryFlags | O_CLOEXEC | O_NOCTTY));
}

FileDescriptor OpenDirectory(const std::string& host) {
  return OpenHostPath(host.empty() ? "/" : host, kDirectoryFlags);
}

std::uint32_t AttributesOf(EntryKind kind, TextView name) {
  std::uint32_t attributes = kind == EntryKind::kDirectory ? kAttributeDirectory : 0;
  if (IsHiddenName(name)) attributes |= kAttributeHidden;
  return attributes;
}

std::shared_ptr<const Listing> Listing::Read(const std::string& host) {
  return Read(OpenDirectory(host));
}

std::shared_ptr<const Listing> Listing::Read(const FileDescriptor& directory) {
  if (!directory.IsOpen()) return nullptr;
  auto listing = std::make_shared<Listing>();
  listing->Reserve();
  EntryReader entries(directory.Get());
  bool known = true;
  while (const dirent64* entry = entries.Next()) {
    if (IsDots(entry->d_name)) continue;
    listing->Add(entry->d_name, KindOf(directory.Get(), *entry, known));
  }
  // A directory that breaks off half-way, as on a scratched disc, gives what was readable.
  const bool ended = errno == 0;
  if (!ended && listing->records_.empty()) return nullptr;
  listing->whole_ = ended && known;
  listing->Arrange();
  return listing;
}

void Listing::Reserve() {
  records_.reserve(kUsualEntries);
  host_names_.reserve(kUsualNames);
}

void Listing::Add(std::string_view host_name, EntryKind kind) {
  Record record;
  record.host = static_cast<std::uint32_t>(host_names_.size());
  record.kind = kind;
  record.length = static_cast<std::uint16_t>(host_name.size());
  plain_ = plain_ && IsPlain(host_name);
  host_names_.append(host_name.data(), host_name.size() + 1);  // with its NUL
  records_.push_back(record);
}

TextView Listing::Name(const Record& record) const {
  return {names_.data() + record.text, record.length};
}

DirectoryEntry Listing::At(std::size_t index) const {
  const Record& record = records_[index];
  return {record.kind, Name(record), host_names_.c_str() + record.host};
}

ListedEntry Listing::Listed(std::size_t index) const {
  const TextView name = Name(records_[index]);
  return {index, AttributesOf(records_[index].kind, name), name};
}

int Listing::Compare(const Record& record, std::uint64_t key, TextView name) const {
  if (record.key != key) return record.key < key ? -1 : 1;
  return CompareNoCase(Name(record), name);
}

std::size_t Listing::PlaceOf(TextView name) const {
  const std::uint64_t key = KeyOf(name);
  const auto place =
      std::partition_point(records_.begin(), records_.end(),
                           [&](const Record& record) { return Compare(record, key, name) < 0; });
  const bool found = place != records_.end() && Compare(*place, key, name) == 0;
  return found ? static_cast<std::size_t>(place - records_.begin()) : records_.size();
}

std::optional<DirectoryEntry> Listing::Find(TextView name) const {
  const std::size_t place = PlaceOf(name);
  return place < records_.size() ? std::optional(At(place)) : std::nullopt;
}

bool Listing::Find(TextView name, ListedEntry& entry) const {
  const std::size_t place = PlaceOf(name);
  if (place == records_.size() || records_[place].kind == EntryKind::kOther) return false;
  entry = Listed(place);
  return true;
}

bool Listing::Next(std::size_t& place, ListedEntry& entry) const {
  while (place < records_.size() && records_[place].kind == EntryKind::kOther) ++place;
  if (place >= records_.size()) return false;
  entry = Listed(place++);
  return true;
}

std::optional<DirectoryEntry> Listing::FindHost(std::string_view host_name) const {
  for (std::size_t i = 0; i < records_.size(); ++i) {
    if (host_name == host_names_.c_str() + records_[i].host) return At(i);
  }
  return std::nullopt;
}

void Listing::Arrange() {
  if (plain_) {
    PutPlainNames();
  } else {
    PutShownNames();
  }
  Sort();
  const auto same = [this](const Record& a, const Record& b) {
    return Compare(a, b.key, Name(b)) == 0;
  };
  if (std::adjacent_find(records_.begin(), records_.end(), same) == records_.end()) return;
  SeparateNames();
  Sort();
}

// Plain names stand in both buffers at the same places.
void Listing::PutPlainNames() {
  names_.assign(host_names_.begin(), host_names_.end());
  for (Record& record : records_) {
    record.text = record.host;
    record.key = KeyOf(Name(record));
  }
}

void Listing::PutShownNames() {
  for (Record& record : records_) Rename(record, ShownName(host_names_.c_str() + record.host));
}

// Among names that are the same without regard to case, what the program can use comes first,
// then the order of the code units counts, and last that of the bytes.
void Listing::Sort() {
  std::sort(records_.begin(), records_.end(), [this](const Record& a, const Record& b) {
    if (const int order = Compare(a, b.key, Name(b)); order != 0) return order < 0;
    const bool other_a = a.kind == EntryKind::kOther, other_b = b.kind == EntryKind::kOther;
    if (other_a != other_b) return other_b;
    if (const int order = Name(a).compare(Name(b)); order != 0) return order < 0;
    return std::string_view(host_names_.c_str() + a.host) <
           std::string_view(host_names_.c_str() + b.host);
  });
}

void Listing::SeparateNames() {
  std::set<Text> taken;
  for (const Record& record : records_) taken.insert(ToUpper(Name(record)));
  Text first;
  unsigned number = 0;
  for (Record& record : records_) {
    if (Text upper = ToUpper(Name(record)); number == 0 || upper != first) {
      first = std::move(upper);
      number = 1;
      continue;
    }
    Text name;
    do {
      name = NumberedName(Name(record), ++number);
    } while (!taken.insert(ToUpper(name)).second);
    Rename(record, name);
  }
}

void Listing::Rename(Record& record, const Text& name) {
  record.text = static_cast<std::uint32_t>(names_.size());
  record.length = static_cast<std::uint16_t>(name.size());
  names_ += name;
  record.key = KeyOf(name);
}

}  // namespace trovex::posix
