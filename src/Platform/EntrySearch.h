// A search through the entries of a directory, and where it stands.
#pragma once

#include <memory>

#include "Platform/HeldDirectory.h"
#include "Platform/Pattern.h"

namespace trovex {

class EntrySearch {
 public:
  // `dots` says whether "." and ".." come first, where the pattern matches them.
  enum class Dots { kNone, kFirst };
  EntrySearch(std::shared_ptr<const DirectoryEntries> entries, TextView pattern, Dots dots);

  // The next entry; false, and `data` untouched, at the end.
  bool Advance(FindData& data);

 private:
  std::shared_ptr<const DirectoryEntries> entries_;
  NamePattern pattern_;
  int dots_;  // how many of "." and ".." are still to come
  std::size_t place_ = 0;
};

}  // namespace trovex
