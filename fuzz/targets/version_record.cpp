// The version record of an executable.
#include "Platform/Records/VersionResource.h"
#include "support/ExecutableBuilder.h"
#include "support/MemorySource.h"
#include "support/Target.h"

namespace trovex::fuzz {
namespace {

constexpr int kMostReads = 1100;

std::string RecordOf(std::string_view file) {
  test::MemorySource source(file);
  const std::string record = records::ReadVersionRecord(source);
  Promise(source.reads <= kMostReads, "a file is read in few pieces");
  return record;
}

std::size_t LengthWord(std::string_view record) {
  return static_cast<unsigned char>(record[0]) | static_cast<unsigned char>(record[1]) << 8;
}

}  // namespace

void Try(std::string_view input) {
  const std::string record = RecordOf(input);
  Promise(record.size() <= records::kMaxVersionResource, "a record has its limit");
  if (!record.empty()) {
    Promise(input.find(record) != std::string_view::npos, "a record is part of the file");
    Promise(LengthWord(record) == record.size(), "a record has the length that it tells");
  }
  Promise(RecordOf(input) == record, "the same file has the same record");
  test::MemorySource slow(input, 500);
  Promise(records::ReadVersionRecord(slow) == record, "a source may give little at a time");
  const std::string cut = RecordOf(input.substr(0, input.size() / 4 * 3));
  Promise(cut.empty() || cut == record, "a file cut short has the whole record or none");
}

void Seeds(const TakeSeed& take) {
  const test::VersionStrings strings = {{"FileDescription", "Jeu"}, {"FileVersion", "1.0"}};
  const std::string narrow = test::VersionBlock8(strings), wide = test::VersionBlock16(strings);
  take("ne", test::NeExecutable(narrow));
  take("ne-icon", test::NeExecutable(narrow, test::Icon::kPresent));
  take("pe", test::PeExecutable(wide));
  take("pe-icon", test::PeExecutable(wide, test::Icon::kPresent));
  take("pe-narrow", test::PeExecutable(narrow));
  take("dos", test::DosExecutable());
}

}  // namespace trovex::fuzz
