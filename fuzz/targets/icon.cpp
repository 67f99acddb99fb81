// Whether a file holds an icon.
#include "Platform/Records/IconResource.h"
#include "support/ExecutableBuilder.h"
#include "support/MemorySource.h"
#include "support/Target.h"

namespace trovex::fuzz {
namespace {

constexpr int kMostReads = 64 * 1100;  // of as many images as a group may have

bool Holds(std::string_view file) {
  test::MemorySource source(file);
  const bool holds = records::HoldsIcon(source);
  Promise(source.reads <= kMostReads, "a file is read in few pieces");
  return holds;
}

}  // namespace

void Try(std::string_view input) {
  const bool holds = Holds(input);
  Promise(Holds(input) == holds, "the same file gives the same answer");
  test::MemorySource slow(input, 500);
  Promise(records::HoldsIcon(slow) == holds, "a source may give little at a time");
  Promise(holds || !Holds(input.substr(0, input.size() / 4 * 3)),
          "what a part of the file shows the whole file shows");
}

void Seeds(const TakeSeed& take) {
  const std::string record = test::VersionBlock8({{"FileVersion", "1.0"}});
  for (const test::Icon icon : {test::Icon::kNone, test::Icon::kPresent}) {
    const std::string with = icon == test::Icon::kPresent ? "-icon" : "";
    take("ne" + with, test::NeExecutable(record, icon));
    take("pe" + with, test::PeExecutable(record, icon));
  }
  take("ico", test::IconFile());
  take("png", test::PngIconFile());
}

}  // namespace trovex::fuzz
