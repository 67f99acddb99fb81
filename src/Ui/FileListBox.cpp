#include "Ui/FileListBox.h"

#include <algorithm>

#include "Ui/Directory.h"
#include "Ui/ListBox.h"

namespace trovex {
namespace {

std::vector<NamePattern> Split(TextView patterns) {
  std::vector<NamePattern> result;
  while (!patterns.empty()) {
    const std::size_t end = std::min(patterns.find(u';'), patterns.size());
    if (end > 0) result.emplace_back(Trimmed(patterns.substr(0, end)));
    patterns.remove_prefix(std::min(end + 1, patterns.size()));
  }
  return result;
}

}  // namespace

void FileListBox::SetPath(TextView path) {
  Show(path, EntriesOf(WithoutBackslash(path)).get(), pattern_);
}

void FileListBox::SetPattern(TextView pattern) {
  TakePattern(pattern);
  if (path_.empty()) return Notify(Property::kList);
  SetPath(path_);
}

void FileListBox::Show(TextView path, const DirectoryEntries* entries, TextView pattern) {
  Text directory = WithoutBackslash(path);
  if (entries == nullptr && !DirectoryExists(directory)) {
    throw RuntimeError(ErrorNumber::kPathNotFound, u"FileListBox");
  }
  path_ = std::move(directory);
  TakePattern(pattern);
  Fill(entries);
  Notify(Property::kList);
}

const Text& FileListBox::List(int index) const {
  static const Text none;
  return index >= 0 && index < ListCount() ? names_[static_cast<std::size_t>(index)] : none;
}

bool FileListBox::Takes(const ListedEntry& entry) const {
  if ((entry.attributes & kAttributeDirectory) != 0) return false;
  if ((entry.attributes & kAttributeHidden) != 0 && !hidden_) return false;
  if ((entry.attributes & kAttributeSystem) != 0 && !system_) return false;
  return std::any_of(patterns_.begin(), patterns_.end(),
                     [&](const NamePattern& pattern) { return pattern.Matches(entry.name); });
}

void FileListBox::TakePattern(TextView pattern) {
  if (pattern == pattern_ && !patterns_.empty()) return;
  pattern_ = pattern;
  patterns_ = Split(pattern_);
}

void FileListBox::Fill(const DirectoryEntries* entries) {
  std::size_t count = 0;
  ListedEntry entry;
  for (std::size_t place = 0; entries != nullptr && entries->Next(place, entry);) {
    if (!Takes(entry)) continue;
    if (count == names_.size()) names_.emplace_back();
    names_[count++] = entry.name;
  }
  count_ = static_cast<int>(count);
  const auto end = names_.begin() + count_;
  if (!std::is_sorted(names_.begin(), end, ListOrder)) {
    std::stable_sort(names_.begin(), end, ListOrder);
  }
}

}  // namespace trovex
