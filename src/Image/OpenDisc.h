// Opens a disc image by its name, whatever its kind: what it is, its bytes tell.
#pragma once

#include <memory>

#include "Image/Disc.h"
#include "Platform/Platform.h"

namespace trovex::image {

// Why a file shows no disc.
enum class Problem {
  kNone,
  kUnreadable,  // the file is missing or cannot be opened
  kEmpty,
  kNoImage,  // nothing in it is known
  kUdf,      // a volume of a kind that is not read, alone
  kHfs,
  kCompressed,   // a CHD file
  kNoDirectory,  // a volume whose root directory cannot be found: the image may be cut short
  kMissingFile,  // a cue sheet, or another description, of a file that is not there
  kNoData,       // a cue sheet without a track of data
};

struct Opened {
  std::shared_ptr<Disc> disc;  // null where there is a problem
  Problem problem = Problem::kNone;
  Text missing;  // the file's name, of a kMissingFile
};

// `name` is an image of any layout, a cue sheet, or the .ccd or .mds file beside an image. Files
// that it names are looked for in its own directory, without regard to case. The disc keeps what it
// has opened through `platform`, which must outlive it.
Opened OpenDisc(Platform& platform, const Text& name);

// The same for an image alone, by its bytes.
Opened OpenImage(std::shared_ptr<records::ByteSource> source, std::uint64_t size);

}  // namespace trovex::image
