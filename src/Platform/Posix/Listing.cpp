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
constexpr std::size_t kUsualEntries = 16;
constexpr std::size_t kUsualNames = 192;  // characters

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

FileDescriptor OpenDirectory(const std::string& host) {
  return OpenHostPath(host.empty() ? "/" : host, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK);
}

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

std::shared_ptr<const Listing> Listing::Read(const std::string& host) {
  const FileDescriptor directory = OpenDirectory(host);
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
  names_.reserve(kUsualNames);
  host_names_.reserve(kUsualNames);
}

void Listing::Add(std::string_view host_name, EntryKind kind) {
  Record record;
  record.text = static_cast<std::uint32_t>(names_.size());
  record.host = static_cast<std::uint32_t>(host_names_.size());
  record.kind = kind;
  if (IsPlain(host_name)) {
    names_.resize(names_.size() + host_name.size());
    std::copy(host_name.begin(), host_name.end(), names_.begin() + record.text);
  } else {
    names_ += ShownName(host_name);
  }
  record.length = static_cast<std::uint16_t>(names_.size() - record.text);
  host_names_.append(host_name).push_back('\0');
  records_.push_back(record);
}

TextView Listing::Name(const Record& record) const {
  return TextView(names_).substr(record.text, record.length);
}

TextView Listing::Upper(const Record& record) const {
  return TextView(upper_names_).substr(record.text, record.length);
}

DirectoryEntry Listing::At(std::size_t index) const {
  const Record& record = records_[index];
  return {record.kind, Name(record), host_names_.c_str() + record.host};
}

std::optional<DirectoryEntry> Listing::Find(TextView upper_name) const {
  const auto place = std::lower_bound(
      records_.begin(), records_.end(), upper_name,
      [this](const Record& record, TextView name) { return Upper(record) < name; });
  if (place == records_.end() || Upper(*place) != upper_name) return std::nullopt;
  return At(static_cast<std::size_t>(place - records_.begin()));
}

std::optional<DirectoryEntry> Listing::FindHost(std::string_view host_name) const {
  for (std::size_t i = 0; i < records_.size(); ++i) {
    if (host_name == host_names_.c_str() + records_[i].host) return At(i);
  }
  return std::nullopt;
}

void Listing::Arrange() {
  upper_names_ = ToUpper(names_);
  Sort();
  const auto same = [this](const Record& a, const Record& b) { return Upper(a) == Upper(b); };
  if (std::adjacent_find(records_.begin(), records_.end(), same) == records_.end()) return;
  SeparateNames();
  Sort();
}

// Among names that are the same without regard to case, what the program can use comes first,
// then the order of the code units counts, and last that of the bytes.
void Listing::Sort() {
  std::sort(records_.begin(), records_.end(), [this](const Record& a, const Record& b) {
    if (const int order = Upper(a).compare(Upper(b)); order != 0) return order < 0;
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
}

}  // namespace trovex::posix
