// The descriptors of a disc image and the directories that they lead to. An input stands where the
// descriptors do: the empty sectors before it are put there.
#include <functional>

#include "Image/OpenDisc.h"
#include "support/IsoBuilder.h"
#include "support/MemorySource.h"
#include "support/Target.h"

namespace trovex::fuzz {
namespace {

constexpr std::size_t kMostReads = 200000;  // of one image: more than any search of it takes
constexpr std::size_t kShown = 4096;        // directories that are gone into
constexpr std::size_t kMostWays = 16;       // to one directory

// What a walk through the disc saw.
struct Seen {
  std::size_t directories = 0, files = 0;
  std::uint64_t digest = 0;
  bool operator==(const Seen&) const = default;
};

void Take(Seen& seen, TextView name) {
  seen.digest = seen.digest * 31 + std::hash<TextView>()(name);
}

void LookAtEntry(const image::Disc& disc, const image::Folder& folder, const ListedEntry& entry,
                 Seen& seen) {
  Promise(!entry.name.empty(), "an entry has a name");
  Promise(entry.name.find_first_of(u"\\/") == TextView::npos, "a name is one level of a path");
  Promise(entry.name != u"." && entry.name != u"..", "self and parent are no entries");
  ListedEntry found;
  Promise(folder.directory->Find(entry.name, found), "an entry is found by its name");
  Promise(found.number == entry.number, "a name is that of one entry");
  Take(seen, entry.name);
  const auto contents = disc.OpenFile(folder, entry.number);
  if (!contents) return;
  ++seen.files;
  char bytes[3000];
  const std::size_t got = contents->ReadAt(0, bytes, sizeof bytes);
  Promise(got <= contents->Length(), "no more is read of a file than its length");
  const bool whole = got == sizeof bytes || got == contents->Length();
  Promise(whole || contents->HasFailed(), "what cannot be read is told");
}

Seen Walk(image::Disc& disc, std::size_t sectors) {
  Seen seen;
  std::vector<std::shared_ptr<const image::Folder>> open{disc.Root()};
  while (!open.empty() && seen.directories < kShown) {
    const auto folder = open.back();
    open.pop_back();
    ++seen.directories;
    ListedEntry entry;
    for (std::size_t place = 0; folder->directory->Next(place, entry);) {
      LookAtEntry(disc, *folder, entry, seen);
      if (auto below = disc.Open(folder, entry.number)) open.push_back(std::move(below));
    }
  }
  Promise(seen.directories <= sectors * 4 * kMostWays + 1, "a walk ends");
  return seen;
}

Seen See(const std::string& bytes) {
  auto source = std::make_shared<test::MemorySource>(bytes);
  const image::Opened opened = image::OpenImage(source, bytes.size());
  Promise((opened.disc != nullptr) == (opened.problem == image::Problem::kNone),
          "there is a disc or a problem");
  Promise(source->reads < static_cast<int>(kMostReads), "an image is opened in few pieces");
  if (!opened.disc) return {};
  Promise(opened.disc->GetVolume().label.size() <= 32, "a label has its limit");
  return Walk(*opened.disc, bytes.size() / 2048 + 1);
}

}  // namespace

void Try(std::string_view input) {
  const std::string bytes = std::string(test::kPrimary, '\0') + std::string(input);
  Promise(See(bytes) == See(bytes), "the same image has the same directories");
}

void Seeds(const TakeSeed& take) {
  test::IsoBuilder iso;
  iso.File("SETUP.EXE", "MZ");
  iso.File("JEUX/DAMES/LISEZMOI.TXT", "texte");
  const auto seed = [&](const char* name, test::IsoFormat format, std::uint32_t first) {
    take(name, iso.Build(format, first).bytes.substr(test::kPrimary));
  };
  seed("plain", test::IsoFormat::kPlain, 0);
  seed("joliet", test::IsoFormat::kJoliet, 0);
  seed("high-sierra", test::IsoFormat::kHighSierra, 0);
  seed("session", test::IsoFormat::kPlain, 12000);
}

}  // namespace trovex::fuzz
