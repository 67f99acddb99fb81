#include <algorithm>

#include "Ui/DirListBox.h"
#include "Ui/Directory.h"
#include "Ui/ListBox.h"

namespace trovex {
namespace {

bool IsRootPath(TextView path) {
  return path.size() == 3 && path.ends_with(u":\\");
}

// "\\server\share": what stands above a share is no directory.
bool IsShare(TextView path) {
  if (!path.starts_with(u"\\\\")) return false;
  const std::size_t server_end = path.find(u'\\', 2);
  return server_end == TextView::npos || path.find(u'\\', server_end + 1) == TextView::npos;
}

TextView ParentOf(TextView path) {
  const std::size_t backslash = path.find_last_of(u'\\');
  if (IsRootPath(path) || IsShare(path) || backslash == TextView::npos) return {};
  const TextView parent = path.substr(0, backslash);
  return parent.ends_with(u':') ? path.substr(0, backslash + 1) : parent;
}

// "X:" and "x: [LABEL]" name a drive and mean its root, wherever the process stands on that drive:
// who chooses a disc wants to see it from the top.
Text Resolved(TextView path) {
  const bool drive = path.size() >= 2 && path[1] == u':' && (path.size() == 2 || path[2] == u' ');
  return drive ? Text{ToUpper(path[0]), u':', u'\\'} : WithoutBackslash(path);
}

std::vector<Text> ChildrenAmong(const DirectoryEntries* entries) {
  std::vector<Text> children;
  ListedEntry entry;
  for (std::size_t place = 0; entries != nullptr && entries->Next(place, entry);) {
    if ((entry.attributes & kAttributeDirectory) != 0) children.emplace_back(entry.name);
  }
  std::stable_sort(children.begin(), children.end(), ListOrder);
  return children;
}

// The directory itself, or what is left of the way to it.
Text NearestExisting(const Text& directory) {
  TextView nearest = directory;
  while (!ParentOf(nearest).empty() && !DirectoryExists(Text(nearest))) nearest = ParentOf(nearest);
  return Text(nearest);
}

}  // namespace

void DirListBox::SetPath(TextView path) {
  const Text directory = Resolved(path);
  const auto entries = EntriesOf(directory);
  if (!entries && !DirectoryExists(directory)) {
    const bool root = IsRootPath(directory);
    throw RuntimeError(root ? ErrorNumber::kDeviceUnavailable : ErrorNumber::kPathNotFound,
                       u"DirListBox");
  }
  path_ = directory;
  children_ = ChildrenAmong(entries.get());
  list_index_ = -1;
  Notify(Property::kList);
  Raise(on_change);
}

void DirListBox::Update() {
  if (path_.empty()) return;
  const Text highlighted = List(list_index_);
  const Text path = NearestExisting(path_);
  std::vector<Text> children;
  IgnoringErrors([&] { children = ChildrenAmong(EntriesOf(path).get()); });
  const bool moved = path != path_;
  // Drawn anew only where it differs: a list that is scrolled stays as the user left it.
  if (!moved && children == children_) return;
  path_ = path;
  children_ = std::move(children);
  list_index_ = IndexOf(highlighted);
  Notify(Property::kList);
  if (moved) Raise(on_change);
}

// -1, the path itself, for a directory that is not listed.
int DirListBox::IndexOf(TextView directory) const {
  for (int index = -1 - Depth(); index < ListCount(); ++index) {
    if (EqualsNoCase(List(index), directory)) return index;
  }
  return -1;
}

Text DirListBox::List(int index) const {
  if (index >= ListCount()) return {};
  if (index >= 0) return WithBackslash(path_) + children_[static_cast<std::size_t>(index)];
  TextView directory = path_;
  for (; index < -1; ++index) directory = ParentOf(directory);
  return Text(directory);
}

int DirListBox::Depth() const {
  int depth = 0;
  for (TextView parent = ParentOf(path_); !parent.empty(); parent = ParentOf(parent)) ++depth;
  return depth;
}

void DirListBox::SetListIndex(int index) {
  if (index >= ListCount() || index < -1 - Depth()) {
    throw RuntimeError(ErrorNumber::kInvalidProperty, u"DirListBox");
  }
  if (index == list_index_) return;
  list_index_ = index;
  Notify(Property::kSelection);
  Raise(on_click);
}

void DirListBox::Open() {
  if (list_index_ != -1) SetPath(List(list_index_));
}

}  // namespace trovex
