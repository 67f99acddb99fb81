// Directory searches that are going on.
#pragma once

#include <cstdint>
#include <unordered_map>

#include "Platform/EntrySearch.h"

namespace trovex::posix {

class FindTable {
 public:
  // Begins a search. kInvalid, and `data` empty, where nothing matches.
  FindHandle Begin(EntrySearch search, FindData& data) {
    data = {};
    if (!search.Advance(data)) return FindHandle::kInvalid;
    const FindHandle handle = BeginSingle();
    searches_.emplace(handle, std::move(search));
    return handle;
  }
  // The handle of a search that has found the one entry it can find.
  FindHandle BeginSingle() { return static_cast<FindHandle>(next_++); }
  bool Next(FindHandle handle, FindData& data) {
    const auto found = searches_.find(handle);
    if (found == searches_.end()) return false;
    if (found->second.Advance(data)) return true;
    searches_.erase(found);
    return false;
  }
  void Close(FindHandle handle) { searches_.erase(handle); }

 private:
  // A search leaves the table when it reaches its end: a handle that nobody closes costs nothing.
  std::unordered_map<FindHandle, EntrySearch> searches_;
  std::int64_t next_ = 1;
};

}  // namespace trovex::posix
