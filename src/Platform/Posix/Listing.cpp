#include "Platform/Posix/Listing.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <set>

#include "Platform/Encoding.h"
#include "Platform/Posix/HostCalls.h"

namespace trovex::posix {
namespace {

constexpr char16_t kShownBackslash = 0xF05C;

// Of a directory; larger ones grow.
constexpr std::size_t kUsualEntries = 24;
constexpr std::size_t kUsualNames = 384;  // characters

constexpr int kDirectoryFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK;

constexpr std::size_t kKeyUnits = 4;  // of a name, in a record's key

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

// Of a link, what it leads to counts; a link to anything but a regular file is not for us.
EntryKind KindOfTarget(int directory, const char* name) {
  struct stat status;
  const bool found = fstatat(directory, name, &status, 0) == 0;
  return found && S_ISREG(status.st_mode) ? EntryKind::kFile : EntryKind::kOther;
}

EntryKind KindOf(mode_t mode) {
  if (S_ISREG(mode)) return EntryKind::kFile;
  return S_ISDIR(mode) ? EntryKind::kDirectory : EntryKind::kOther;
}

// Most file systems tell the kind along with the name, which saves a call an entry.
EntryKind KindOf(int directory, const dirent64& entry) {
  switch (entry.d_type) {
    case DT_REG:
      return EntryKind::kFile;
    case DT_DIR:
      return EntryKind::kDirectory;
    case DT_LNK:
      return KindOfTarget(directory, entry.d_name);
    case DT_UNKNOWN:
      break;
    default:
      return EntryKind::kOther;
  }
  struct stat status;
  if (fstatat(directory, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
    return EntryKind::kOther;
  }
  return S_ISLNK(status.st_mode) ? KindOfTarget(directory, entry.d_name) : KindOf(status.st_mode);
}

bool IsPlain(std::string_view name) {
  return std::all_of(name.begin(), name.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80 && c != '\\'; });
}

// The first units of a name, upper-cased, as a number that stands in the order of the names.
std::uint64_t KeyOf(TextView name) {
  std::uint64_t key = 0;
  for (std::size_t i = 0; i < kKeyUnits; ++i) {
    key = key << 16 | (i < name.size() ? ToUpper(name[i]) : 0u);
  }
  return key;
}

// `name` with ~number put before its extension. A point at the start makes no extension.
Text Numbered(TextView name, unsigned number) {
  const std::size_t point = name.rfind(u'.');
  const std::size_t stem = point == TextView::npos || point == 0 ? name.size() : point;
  return Text(name.substr(0, stem)) + u'~' + Decimal(number) + Text(name.substr(stem));
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
  while (const dirent64* entry = entries.Next()) {
    if (!IsDots(entry->d_name)) listing->Add(entry->d_name, KindOf(directory.Get(), *entry));
  }
  // A directory that breaks off half-way, as on a scratched disc, gives what was readable.
  if (errno != 0 && listing->records_.empty()) return nullptr;
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

TextView Listing::Upper(const Record& record) const {
  return {upper_names_.data() + record.text, record.length};
}

DirectoryEntry Listing::At(std::size_t index) const {
  const Record& record = records_[index];
  return {record.kind, Name(record), host_names_.c_str() + record.host};
}

ListedEntry Listing::Listed(std::size_t index) const {
  const TextView name = Name(records_[index]);
  return {index, AttributesOf(records_[index].kind, name), name};
}

int Listing::CompareUpper(const Record& a, const Record& b) const {
  if (a.key != b.key) return a.key < b.key ? -1 : 1;
  return Upper(a).compare(Upper(b));
}

int Listing::CompareUpper(const Record& record, std::uint64_t key, TextView name) const {
  if (record.key != key) return record.key < key ? -1 : 1;
  const TextView upper = Upper(record);
  const std::size_t size = std::min(upper.size(), name.size());
  for (std::size_t i = 0; i < size; ++i) {
    const char16_t unit = ToUpper(name[i]);
    if (upper[i] != unit) return upper[i] < unit ? -1 : 1;
  }
  return upper.size() == name.size() ? 0 : upper.size() < name.size() ? -1 : 1;
}

std::size_t Listing::PlaceOf(TextView name) const {
  const std::uint64_t key = KeyOf(name);
  const auto place = std::partition_point(
      records_.begin(), records_.end(),
      [&](const Record& record) { return CompareUpper(record, key, name) < 0; });
  const bool found = place != records_.end() && CompareUpper(*place, key, name) == 0;
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
  const auto same = [this](const Record& a, const Record& b) { return CompareUpper(a, b) == 0; };
  if (std::adjacent_find(records_.begin(), records_.end(), same) == records_.end()) return;
  SeparateNames();
  Sort();
}

// Plain names stand in all three buffers at the same places.
void Listing::PutPlainNames() {
  const std::size_t size = host_names_.size();
  names_.resize(size);
  upper_names_.resize(size);
  for (std::size_t i = 0; i < size; ++i) {
    const auto unit = static_cast<char16_t>(host_names_[i]);
    names_[i] = unit;
    upper_names_[i] = ToUpper(unit);
  }
  for (Record& record : records_) {
    record.text = record.host;
    record.key = KeyOf(Upper(record));
  }
}

void Listing::PutShownNames() {
  for (Record& record : records_) Rename(record, ShownName(host_names_.c_str() + record.host));
}

// Among names that are the same without regard to case, what the program can use comes first,
// then the order of the code units counts, and last that of the bytes.
void Listing::Sort() {
  std::sort(records_.begin(), records_.end(), [this](const Record& a, const Record& b) {
    if (const int order = CompareUpper(a, b); order != 0) return order < 0;
    const bool other_a = a.kind == EntryKind::kOther, other_b = b.kind == EntryKind::kOther;
    if (other_a != other_b) return other_b;
    if (const int order = Name(a).compare(Name(b)); order != 0) return order < 0;
    return std::string_view(host_names_.c_str() + a.host) <
           std::string_view(host_names_.c_str() + b.host);
  });
}

void Listing::SeparateNames() {
  std::set<Text> taken;
  for (const Record& record : records_) taken.emplace(Upper(record));
  Text first;
  unsigned number = 0;
  for (Record& record : records_) {
    if (const TextView upper = Upper(record); number == 0 || upper != first) {
      first = upper;
      number = 1;
      continue;
    }
    Text name;
    do {
      name = Numbered(Name(record), ++number);
    } while (!taken.insert(ToUpper(name)).second);
    Rename(record, name);
  }
}

void Listing::Rename(Record& record, const Text& name) {
  record.text = static_cast<std::uint32_t>(names_.size());
  record.length = static_cast<std::uint16_t>(name.size());
  names_ += name;
  upper_names_ += ToUpper(name);
  record.key = KeyOf(name);
}

}  // namespace trovex::posix
