#include "Image/OpenDisc.h"

#include <algorithm>
#include <string_view>

#include "Image/CueSheet.h"
#include "Image/Probe.h"
#include "Image/ReadAll.h"
#include "Platform/Encoding.h"

namespace trovex::image {
namespace {

// A description is no longer; a disc image is.
constexpr std::uint64_t kLongestSheet = 1 << 18;

// A file that may hold an image.
struct File {
  std::shared_ptr<records::ByteSource> source;  // null where it cannot be opened
  std::uint64_t size = 0;
};

File OpenFile(Platform& platform, const Text& name) {
  FileStatus status;
  if (!platform.GetFileStatus(name, status)) return {};
  return {platform.OpenSource(name), static_cast<std::uint64_t>(status.length)};
}

// The whole file, if it is short enough for a description; else its beginning.
std::string Beginning(const File& file) {
  std::string bytes(std::min(file.size, kLongestSheet), '\0');
  bytes.resize(ReadAll(*file.source, 0, bytes.data(), bytes.size()));
  return bytes;
}

Opened Failure(Problem problem, Text missing = {}) {
  return {nullptr, problem, std::move(missing)};
}

Problem ProblemOf(Mark mark) {
  switch (mark) {
    case Mark::kUdf:
      return Problem::kUdf;
    case Mark::kHfs:
      return Problem::kHfs;
    case Mark::kCompressed:
      return Problem::kCompressed;
    default:
      return Problem::kNoImage;
  }
}

// Puts the tracks of a disc together.
class Assembly {
 public:
  void Add(const File& file, std::uint64_t start) {
    const Probed probed = Probe(*file.source, start);
    if (probed.mark != Mark::kVolume) {
      if (mark_ == Mark::kNone) mark_ = probed.mark;
      return;
    }
    sectors_.Add(Track(file.source, file.size, probed.layout));
    primaries_.push_back(probed.primary);
  }
  bool IsEmpty() const { return primaries_.empty(); }

  Opened Finish() {
    if (IsEmpty()) return Failure(ProblemOf(mark_));
    const auto volume = FindVolume(sectors_, primaries_);
    if (!volume) return Failure(Problem::kNoDirectory);
    return {std::make_shared<Disc>(std::move(sectors_), *volume), Problem::kNone, {}};
  }

 private:
  Sectors sectors_;
  std::vector<std::uint32_t> primaries_;
  Mark mark_ = Mark::kNone;
};

Text DirectoryOf(const Text& name) {
  return name.substr(0, name.find_last_of(u"\\/:") + 1);
}

// A name in UTF-8, or else in Windows-1252.
Text FileName(const std::string& bytes) {
  const Text text = FromUtf8(bytes);
  const auto is_stray = [](char16_t unit) { return unit >= 0xDC80 && unit <= 0xDCFF; };
  bool valid = true;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool paired = i > 0 && text[i - 1] >= 0xD800 && text[i - 1] <= 0xDBFF;
    valid = valid && (!is_stray(text[i]) || paired);
  }
  return valid ? text : FromCp1252(bytes);
}

Opened OpenSheet(Platform& platform, const Text& name, const CueSheet& sheet) {
  if (sheet.data.empty()) return Failure(Problem::kNoData);
  Assembly disc;
  File file;
  std::string opened;
  for (const CueTrack& track : sheet.data) {
    if (!file.source || track.file != opened) {
      const Text beside = FileName(track.file);
      file = OpenFile(platform, DirectoryOf(name) + beside);
      opened = track.file;
      if (!file.source || beside.empty()) return Failure(Problem::kMissingFile, beside);
    }
    disc.Add(file, track.start);
  }
  // Times in a sheet may be wrong.
  if (disc.IsEmpty()) disc.Add(file, 0);
  return disc.Finish();
}

// A description that says no more than that an image of its own name stands beside it.
Opened OpenBeside(Platform& platform, const Text& name, const Text& extension) {
  const std::size_t directory = DirectoryOf(name).size();
  const std::size_t point = name.rfind(u'.');
  const bool bare = point == Text::npos || point < directory;
  const Text beside = name.substr(0, bare ? name.size() : point) + extension;
  const File file = OpenFile(platform, beside);
  if (!file.source) return Failure(Problem::kMissingFile, beside.substr(directory));
  return OpenImage(file.source, file.size);
}

}  // namespace

Opened OpenImage(std::shared_ptr<records::ByteSource> source, std::uint64_t size) {
  if (size == 0) return Failure(Problem::kEmpty);
  Assembly disc;
  disc.Add({std::move(source), size}, 0);
  return disc.Finish();
}

Opened OpenDisc(Platform& platform, const Text& name) {
  const File file = OpenFile(platform, name);
  if (!file.source) return Failure(Problem::kUnreadable);
  if (file.size == 0) return Failure(Problem::kEmpty);
  const std::string beginning = Beginning(file);
  if (beginning.starts_with("MEDIA DESCRIPTOR")) return OpenBeside(platform, name, u".mdf");
  if (beginning.starts_with("[CloneCD]")) return OpenBeside(platform, name, u".img");
  if (file.size <= kLongestSheet && IsCueSheet(beginning)) {
    return OpenSheet(platform, name, ReadCueSheet(beginning));
  }
  return OpenImage(file.source, file.size);
}

}  // namespace trovex::image
