// Finds the root directory that a descriptor means, though not all that it says be true.
#pragma once

#include <cstdint>
#include <optional>

#include "Image/Descriptor.h"
#include "Image/Sectors.h"

namespace trovex::image {

struct Root {
  std::uint32_t block = 0;
  std::uint32_t size = 0;  // in bytes
};

// How many more sectors may be looked at where sessions and roots are searched for: a bound for all
// searches of one image together.
class SearchBudget {
 public:
  // Takes one sector off; false where none is left.
  bool Spend() {
    if (sectors_ == 0) return false;
    --sectors_;
    return true;
  }

 private:
  std::uint32_t sectors_ = 1 << 20;  // more than twice what a CD has
};

// `index` is the sector of the session's first descriptor in `track`, one of those of `sectors`.
// The root is where the descriptor's record leads, else where a table of paths does, else in a
// session that was saved alone, whose sectors are then renumbered.
std::optional<Root> FindRoot(Sectors& sectors, Track& track, std::uint32_t index,
                             const Descriptor& descriptor, SearchBudget& budget);

// For discs where all of that fails: a directory that is its own parent.
std::optional<Root> FindRootAnywhere(const Track& track, std::uint32_t index,
                                     const Descriptor& descriptor, SearchBudget& budget);

}  // namespace trovex::image
