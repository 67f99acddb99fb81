// Paths of a walk as their names stand on the disk.
#pragma once

#include <memory>
#include <vector>

#include "Platform/HeldDirectory.h"

namespace trovex::cli {

// Of the path asked for last, what each level holds is kept: the next one, in the order of a walk,
// shares most of its levels.
class DiskSpelling {
 public:
  // Names are spelled as far as they are found there; the rest stays as it is, and so does a path
  // without a drive's root.
  Text Of(const Text& path);

 private:
  struct Level {
    Text name;                                                  // as the walk writes it
    Text spelled;                                               // the path up to it, as on the disk
    std::shared_ptr<const DirectoryEntries> entries = nullptr;  // once they are wanted
    bool read = false;
  };

  void Enter(const Text& name);

  std::vector<Level> levels_;  // the root first
};

}  // namespace trovex::cli
