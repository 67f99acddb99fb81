#include "Image/Drive.h"

#include <algorithm>

namespace trovex::image {
namespace {

constexpr TextView kSeparators = u"\\/";

bool IsSeparator(char16_t unit) {
  return unit == u'\\' || unit == u'/';
}

// Takes the first level off a path without a drive.
TextView TakeLevel(TextView& path) {
  const std::size_t begin = std::min(path.find_first_not_of(kSeparators), path.size());
  path.remove_prefix(begin);
  const TextView level = path.substr(0, path.find_first_of(kSeparators));
  path.remove_prefix(level.size());
  return level;
}

}  // namespace

bool Place::IsFile() const {
  return IsThere() && number && !(folder->directory->At(*number).flags & kRecordDirectory);
}

Drive::Drive(char16_t letter, std::shared_ptr<Disc> disc)
    : letter_(letter), disc_(std::move(disc)), current_{letter, u':', u'\\'} {}

Text Drive::FullName(TextView rest) const {
  Text full{letter_, u':'};
  const auto append = [&](TextView path) {
    while (!path.empty()) {
      const TextView level = TakeLevel(path);
      if (level == u"..") {
        full.resize(std::max<std::size_t>(2, std::min(full.rfind(u'\\'), full.size())));
      } else if (!level.empty() && level != u".") {
        full += u'\\';
        full += level;
      }
    }
  };
  if (rest.empty() || !IsSeparator(rest.front())) append(TextView(current_).substr(2));
  append(rest);
  if (full.size() == 2) full += u'\\';
  return full;
}

std::shared_ptr<const Folder> Drive::Recall(TextView full) {
  const auto known = std::find_if(known_.begin(), known_.end(), [&](const Known& k) {
    return k.folder && EqualsNoCase(k.name, full);
  });
  if (known == known_.end()) return nullptr;
  std::rotate(known_.begin(), known, known + 1);
  return known_.front().folder;
}

void Drive::Remember(TextView full, std::shared_ptr<const Folder> folder) {
  std::rotate(known_.begin(), known_.end() - 1, known_.end());
  known_.front() = {Text(full), std::move(folder)};
}

std::shared_ptr<const Folder> Drive::Open(TextView full) {
  if (auto known = Recall(full)) return known;
  // Down from the directory above, if that was asked for lately, else from the root.
  const std::size_t backslash = full.rfind(u'\\');
  std::shared_ptr<const Folder> folder = Recall(full.substr(0, backslash));
  TextView way = full.substr(folder ? backslash : 2);
  if (!folder) folder = disc_->Root();
  while (folder && !way.empty()) {
    const TextView level = TakeLevel(way);
    ListedEntry entry;
    if (level.empty()) break;
    const bool found = folder->directory->Find(level, entry);
    folder = found ? disc_->Open(folder, entry.number) : nullptr;
  }
  if (folder) Remember(full, folder);
  return folder;
}

Place Drive::Find(TextView full) {
  const std::size_t backslash = full.rfind(u'\\');
  if (backslash + 1 == full.size()) return {disc_->Root(), std::nullopt, false};
  Place place;
  place.folder = Open(full.substr(0, backslash));
  ListedEntry entry;
  if (!place.folder) return place;
  place.missing = !place.folder->directory->Find(full.substr(backslash + 1), entry);
  if (!place.missing) place.number = entry.number;
  return place;
}

}  // namespace trovex::image
