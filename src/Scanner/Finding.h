// What the analysis found out about one file, and from where.
#pragma once

#include <functional>

#include "Scanner/zFileInfo.h"

namespace trovex {

// Where a description comes from. Views are good until the listener returns.
struct Origin {
  enum class Kind {
    kNone,
    kVersionRecord,  // of the file itself
    kSetting,        // `key` in `section` of the settings file `file` beside it
    kLine,           // line `line` of the text file `file` beside it
    kProductName,    // in the version record of `file`, the first one that the directory lists
  };
  Kind kind = Kind::kNone;
  TextView file = {}, section = {}, key = {};
  int line = 0;
};

// A file whose row stands. `directory` is the path as the walk formed it, `file` the name as it
// stands on the disk. The description of an archive is what its cell held before the size came.
struct Finding {
  int table = 0;
  const Text& directory;
  const Text& file;
  Text description;
  Origin origin;
  Text version;
  const zFileInfo& info;
};

// Whoever wants more of a scan than the tables hold. While a listener is there, archives are
// described for it, too. An empty one ends that.
using FindingListener = std::function<void(const Finding&)>;
void RegisterFindingListener(FindingListener listener);

}  // namespace trovex
