// Directory searches that are going on.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>

#include "Platform/Platform.h"
#include "Platform/Posix/Listing.h"

namespace trovex::posix {

class FindTable {
 public:
  // Begins a search through a listing; `dots` says whether "." and ".." come first. kInvalid, and
  // `data` empty, where nothing matches.
  enum class Dots { kNone, kFirst };
  FindHandle Begin(std::shared_ptr<const Listing> listing, TextView pattern, Dots dots,
                   FindData& data);
  // The handle of a search that has found the one entry it can find.
  FindHandle BeginSingle() { return static_cast<FindHandle>(next_++); }
  bool Next(FindHandle handle, FindData& data);
  void Close(FindHandle handle) { searches_.erase(handle); }

 private:
  struct Search {
    std::shared_ptr<const Listing> listing;
    Text pattern;
    bool all = false;  // the pattern matches every name
    int dots = 0;      // how many of "." and ".." are still to come
    std::size_t next = 0;
  };

  static bool Advance(Search& search, FindData& data);

  // A search leaves the table when it reaches its end: a handle that nobody closes costs nothing.
  std::unordered_map<FindHandle, Search> searches_;
  std::int64_t next_ = 1;
};

// What a search tells of an entry.
std::uint32_t AttributesOf(EntryKind kind, TextView name);

}  // namespace trovex::posix
