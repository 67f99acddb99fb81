#include "Ui/FileListBox.h"

#include <algorithm>

#include "Platform/Pattern.h"
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
  const Text directory = WithoutBackslash(path);
  Read(directory, pattern_);
  path_ = directory;
  Notify(Property::kList);
}

void FileListBox::SetPattern(TextView pattern) {
  pattern_ = pattern;
  if (!path_.empty()) Read(path_, pattern_);
  Notify(Property::kList);
}

void FileListBox::Show(TextView path, TextView pattern) {
  Text directory = WithoutBackslash(path);
  Read(directory, pattern);
  path_ = std::move(directory);
  pattern_ = pattern;
  Notify(Property::kList);
}

const Text& FileListBox::List(int index) const {
  static const Text none;
  return index >= 0 && index < ListCount() ? names_[static_cast<std::size_t>(index)] : none;
}

bool FileListBox::Takes(std::uint32_t attributes) const {
  if ((attributes & kAttributeDirectory) != 0) return false;
  if ((attributes & kAttributeHidden) != 0 && !hidden_) return false;
  return (attributes & kAttributeSystem) == 0 || system_;
}

void FileListBox::Read(const Text& path, TextView pattern) {
  const std::vector<NamePattern> patterns = Split(pattern);
  const auto matches = [&](TextView name) {
    return std::any_of(patterns.begin(), patterns.end(),
                       [&](const NamePattern& one) { return one.Matches(name); });
  };
  std::vector<Text> names;
  const bool found = ReadDirectory(path, [&](const ListedEntry& entry) {
    if (Takes(entry.attributes) && matches(entry.name)) names.emplace_back(entry.name);
  });
  if (!found) throw RuntimeError(ErrorNumber::kPathNotFound, u"FileListBox");
  if (!std::is_sorted(names.begin(), names.end(), ListOrder)) {
    std::stable_sort(names.begin(), names.end(), ListOrder);
  }
  names_ = std::move(names);
}

}  // namespace trovex
