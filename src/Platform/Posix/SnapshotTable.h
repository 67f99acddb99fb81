// Lists of running programs that are being gone through.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "Platform/Platform.h"

namespace trovex::posix {

class SnapshotTable {
 public:
  SnapshotHandle Add(std::vector<Text> names) {
    const auto handle = static_cast<SnapshotHandle>(next_++);
    snapshots_.emplace(handle, Snapshot{std::move(names)});
    return handle;
  }
  void Rewind(SnapshotHandle handle) {
    const auto found = snapshots_.find(handle);
    if (found != snapshots_.end()) found->second.next = 0;
  }
  // False, and `name` untouched, at the end or where the handle is none of ours.
  bool Next(SnapshotHandle handle, Text& name) {
    const auto found = snapshots_.find(handle);
    if (found == snapshots_.end()) return false;
    Snapshot& snapshot = found->second;
    if (snapshot.next == snapshot.names.size()) return false;
    name = snapshot.names[snapshot.next++];
    return true;
  }
  void Close(SnapshotHandle handle) { snapshots_.erase(handle); }

 private:
  struct Snapshot {
    std::vector<Text> names;
    std::size_t next = 0;
  };

  std::unordered_map<SnapshotHandle, Snapshot> snapshots_;
  std::int64_t next_ = 1;
};

}  // namespace trovex::posix
