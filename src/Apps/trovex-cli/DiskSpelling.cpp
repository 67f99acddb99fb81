#include "Apps/trovex-cli/DiskSpelling.h"

#include <algorithm>

#include "Ui/Directory.h"

namespace trovex::cli {
namespace {

constexpr std::size_t kDriveRoot = 3;  // "D:\"

std::vector<Text> NamesOf(const Text& path) {
  std::vector<Text> names = {path.substr(0, kDriveRoot)};
  for (std::size_t at = kDriveRoot; at < path.size();) {
    const std::size_t end = std::min(path.find(u'\\', at), path.size());
    names.push_back(path.substr(at, end - at));
    at = end + 1;
  }
  return names;
}

}  // namespace

Text DiskSpelling::Of(const Text& path) {
  const bool rooted = path.size() >= kDriveRoot && path[1] == u':' && path[2] == u'\\';
  if (!rooted) return path;
  const std::vector<Text> names = NamesOf(path);
  std::size_t shared = 0;
  while (shared < std::min(names.size(), levels_.size()) && levels_[shared].name == names[shared]) {
    ++shared;
  }
  levels_.resize(shared);
  for (std::size_t i = shared; i < names.size(); ++i) Enter(names[i]);
  return levels_.back().spelled;
}

void DiskSpelling::Enter(const Text& name) {
  if (levels_.empty()) return levels_.push_back({name, name});
  Level& above = levels_.back();
  if (!above.read) above.entries = EntriesOf(above.spelled);
  above.read = true;
  ListedEntry entry;
  const bool found = above.entries && above.entries->Find(name, entry);
  const Text spelled = WithBackslash(above.spelled) + (found ? Text(entry.name) : name);
  levels_.push_back({name, spelled});
}

}  // namespace trovex::cli
