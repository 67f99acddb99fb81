#include "Platform/Posix/Names.h"

#include <algorithm>
#include <cerrno>

#include "Platform/Posix/Errors.h"
#include "Platform/Posix/HostCalls.h"

namespace trovex::posix {
namespace {

constexpr std::size_t kRootLength = 3;  // "D:\"
constexpr std::size_t kMaxDirectories = 256;
constexpr std::size_t kMaxEntries = 65536;

// End of the whole name above the one that ends at `end`.
std::size_t ParentEnd(TextView name, std::size_t end) {
  return std::max(name.rfind(u'\\', end - 1), kRootLength);
}

// Start of the level below the whole name that ends at `end`.
std::size_t ChildStart(std::size_t end) {
  return end == kRootLength ? end : end + 1;
}

// True for the last level of a name that is whole if what stands before it is.
bool IsPlainLevel(TextView level) {
  return !level.empty() && level[0] != u'.' &&
         std::none_of(level.begin(), level.end(),
                      [](char16_t unit) { return unit == u'\\' || unit == u'/' || unit == u'\0'; });
}

std::size_t LevelEnd(TextView name, std::size_t start) {
  return std::min(name.find(u'\\', start), name.size());
}

}  // namespace

// --- DirectoryHints ---------------------------------------------------------------------------

KnownDirectory* DirectoryHints::Find(TextView upper_name) {
  const auto found = by_name_.find(upper_name);
  if (found == by_name_.end()) return nullptr;
  directories_.splice(directories_.begin(), directories_, found->second);
  return &directories_.front();
}

KnownDirectory* DirectoryHints::Put(TextView upper_name, std::string host) {
  directories_.push_front({Text(upper_name), std::move(host), nullptr});
  by_name_[directories_.front().name] = directories_.begin();
  Shrink();
  return &directories_.front();
}

void DirectoryHints::SetListing(KnownDirectory& directory, std::shared_ptr<const Listing> listing) {
  if (directory.listing) entries_ -= directory.listing->Count();
  directory.listing = std::move(listing);
  if (directory.listing) entries_ += directory.listing->Count();
  Shrink();
}

void DirectoryHints::Clear() {
  by_name_.clear();
  directories_.clear();
  entries_ = 0;
}

// The directory in hand always stays.
void DirectoryHints::Shrink() {
  while (directories_.size() > 1 &&
         (directories_.size() > kMaxDirectories || entries_ > kMaxEntries)) {
    const KnownDirectory& last = directories_.back();
    if (last.listing) entries_ -= last.listing->Count();
    by_name_.erase(last.name);
    directories_.pop_back();
  }
}

// --- Names ------------------------------------------------------------------------------------

std::optional<Place> Names::Find(const Text& name) {
  if (std::optional<Place> place = FindBeside(name)) return place;
  const std::optional<Text> full = drives_.FullName(name);
  if (!full) {
    errno = name.empty() ? ENOENT : ENOTDIR;
    return std::nullopt;
  }
  const Text upper = ToUpper(*full);
  hint_failed_ = false;
  std::optional<Place> place = Walk({*full, upper});
  if (place || !hint_failed_) return place;
  Forget();
  return Walk({*full, upper});
}

// The short way to another name in the directory of the last one. Nothing where it does not lead
// to a place: the long way tells why.
std::optional<Place> Names::FindBeside(TextView name) {
  if (last_directory_.empty() || !name.starts_with(last_directory_)) return std::nullopt;
  const TextView level = name.substr(last_directory_.size());
  if (!IsPlainLevel(level)) return std::nullopt;
  const Text upper = ToUpper(level);
  return Look(hints_.Latest(), {level, upper});
}

void Names::Forget() {
  hints_.Clear();
  last_directory_.clear();
}

std::shared_ptr<const Listing> Names::List(const Text& directory, bool& root) {
  const std::optional<Text> full = drives_.FullName(directory);
  if (!full) {
    errno = ENOTDIR;
    return nullptr;
  }
  root = full->size() == kRootLength;
  const Text upper = ToUpper(*full);
  hint_failed_ = false;
  auto listing = ListOnce({*full, upper});
  if (listing || !hint_failed_) return listing;
  Forget();
  return ListOnce({*full, upper});
}

std::shared_ptr<const Listing> Names::ListOnce(Spelling directory) {
  KnownDirectory* known = Enter(directory);
  return known != nullptr ? Read(*known) : nullptr;
}

std::optional<Place> Names::Walk(Spelling name) {
  if (name.upper.size() == kRootLength) {
    return Place{EntryKind::kDirectory, false, {}, drives_.Find(name.upper[0])->root + "/."};
  }
  const std::size_t end = ParentEnd(name.upper, name.upper.size());
  KnownDirectory* directory = Enter(name.Head(end));
  if (directory == nullptr) return std::nullopt;
  const std::size_t start = ChildStart(end);
  last_directory_ = name.given.substr(0, start);
  return Look(*directory, {name.given.substr(start), name.upper.substr(start)});
}

// Goes down from the deepest directory that is held.
KnownDirectory* Names::Enter(Spelling directory) {
  last_directory_.clear();
  std::size_t end = directory.upper.size();
  KnownDirectory* known = hints_.Find(directory.upper);
  while (known == nullptr && end > kRootLength) {
    end = ParentEnd(directory.upper, end);
    known = hints_.Find(directory.upper.substr(0, end));
  }
  if (known == nullptr) {
    known = hints_.Put(directory.upper.substr(0, end), drives_.Find(directory.upper[0])->root);
  }
  while (end < directory.upper.size()) {
    const std::size_t start = ChildStart(end);
    end = LevelEnd(directory.upper, start);
    const Spelling head = directory.Head(end);
    std::optional<Place> place = Look(*known, {head.given.substr(start), head.upper.substr(start)});
    if (place && place->hinted && place->kind != EntryKind::kDirectory) {
      hints_.SetListing(*known, nullptr);
      place = Look(*known, {head.given.substr(start), head.upper.substr(start)});
    }
    if (!place || place->kind != EntryKind::kDirectory) {
      if (place) errno = ENOTDIR;
      return nullptr;
    }
    known = hints_.Put(head.upper, std::move(place->host));
  }
  return known;
}

// A name that the listing held does not know is looked for in a new one: only what is there can be
// verified by its use.
std::optional<Place> Names::Look(KnownDirectory& directory, Spelling level) {
  if (directory.listing) {
    const auto entry = directory.listing->Find(level.upper);
    if (entry && entry->kind != EntryKind::kOther) {
      Place place = PlaceOf(directory, *entry);
      place.hinted = true;
      return place;
    }
  }
  const auto listing = Read(directory);
  if (!listing && errno != EACCES) return std::nullopt;
  if (listing) {
    if (const auto entry = listing->Find(level.upper)) return PlaceOf(directory, *entry);
  }
  Place place;
  place.host = directory.host + '/' + NewHostName(level.given);
  place.name = level.given;
  // A directory that can be entered but not read gives names only as they are spelled.
  if (!listing) place.kind = KindOfHost(place.host);
  return place;
}

Place Names::PlaceOf(const KnownDirectory& directory, const DirectoryEntry& entry) const {
  const std::string_view name = entry.host;
  std::string host;
  host.reserve(directory.host.size() + 1 + name.size());
  host.append(directory.host).append(1, '/').append(name);
  return {entry.kind, false, Text(entry.name), std::move(host)};
}

std::shared_ptr<const Listing> Names::Read(KnownDirectory& directory) {
  auto listing = Listing::Read(directory.host);
  const bool gone = !listing && IsMissing(errno);
  if (gone && directory.name.size() > kRootLength) hint_failed_ = true;
  hints_.SetListing(directory, listing);
  return listing;
}

Text Names::NameOfHost(const Drive& drive, const std::string& path) {
  Text name = Text{drive.letter, u':'};
  std::string_view rest = std::string_view(path).substr(drive.root.size());
  std::string host = drive.root;
  while (!rest.empty()) {
    const std::size_t start = rest.find_first_not_of('/');
    if (start == std::string_view::npos) break;
    rest.remove_prefix(start);
    const std::string_view level = rest.substr(0, rest.find('/'));
    rest.remove_prefix(level.size());
    const auto listing = Listing::Read(host);
    const auto entry = listing ? listing->FindHost(level) : std::nullopt;
    name += u'\\';
    name += entry ? Text(entry->name) : ShownName(level);
    host.append(1, '/').append(level);
  }
  return name.size() == 2 ? name + u'\\' : name;
}

}  // namespace trovex::posix
