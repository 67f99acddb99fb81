// What is no disc, or one that leads astray: it ends, it tells, and it never takes long.
#include <algorithm>
#include <random>

#include "Image/ImageTest.h"
#include "support/RawSectors.h"

namespace trovex::test {
namespace {

using image::Problem;
using testing::ElementsAre;
using testing::IsEmpty;

class BadDiscs : public ImageTest {
 protected:
  // Directories that can be reached, at most `limit` of them.
  int CountDirectories(int limit) {
    int count = 0;
    std::vector<std::shared_ptr<HeldDirectory>> open{platform_.OpenDirectory(u"E:\\")};
    while (!open.empty() && count < limit) {
      const auto directory = open.back();
      open.pop_back();
      ++count;
      ListedEntry entry;
      for (std::size_t place = 0; directory->Entries()->Next(place, entry);) {
        if ((entry.attributes & kAttributeDirectory) == 0) continue;
        if (auto below = directory->OpenDirectory(entry)) open.push_back(std::move(below));
      }
    }
    return count;
  }
};

TEST_F(BadDiscs, WhatIsNoDiscIsNamed) {
  EXPECT_EQ(Open("").problem, Problem::kEmpty);
  EXPECT_EQ(Open("MZ").problem, Problem::kNoImage);
  EXPECT_EQ(Open(std::string(3000000, 'x')).problem, Problem::kNoImage);
  EXPECT_EQ(Open(AudioSectors(300)).problem, Problem::kNoImage);
  EXPECT_EQ(Open(u"D:\\NULLEPART.ISO").problem, Problem::kUnreadable);
  disc_.Directory("DOSSIER.ISO");
  EXPECT_EQ(Open(u"D:\\DOSSIER.ISO").problem, Problem::kUnreadable);
}

TEST_F(BadDiscs, DiscsOfOtherKindsAreNamed) {
  std::string udf(300 * kIsoSector, '\0');
  udf.replace(kPrimary, 6, std::string("\0BEA01", 6));
  EXPECT_EQ(Open(udf).problem, Problem::kUdf);
  EXPECT_EQ(Open(RawImage(udf, {2352, 1})).problem, Problem::kUdf);
  std::string mac(300 * kIsoSector, '\0');
  mac.replace(1024, 2, "BD");
  EXPECT_EQ(Open(mac).problem, Problem::kHfs);
  EXPECT_EQ(Open(RawImage(mac, {2352, 1})).problem, Problem::kHfs);
  mac.replace(1024, 2, "xx");
  mac.replace(512, 2, "PM");
  EXPECT_EQ(Open(mac).problem, Problem::kHfs);
  EXPECT_EQ(Open("MComprHD" + std::string(100000, '\1')).problem, Problem::kCompressed);
}

TEST_F(BadDiscs, ARootBehindTheEndOfTheImageIsTold) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kJoliet);
  iso.bytes.resize(20 * kIsoSector);
  EXPECT_EQ(Open(iso).problem, Problem::kNoDirectory);
}

TEST_F(BadDiscs, EveryLengthOfAnImageEndsWell) {
  const BuiltIso iso = SmallDisc().Build(IsoFormat::kJoliet);
  const std::string raw = RawImage(iso.bytes, {2352, 1});
  for (const std::string& whole : {iso.bytes, raw}) {
    for (std::size_t length = 0; length < whole.size(); length += 997) {
      const auto opened = Open(whole.substr(0, length));
      if (opened.problem != Problem::kNone) continue;
      Mount(opened);
      EXPECT_LE(CountDirectories(100), 3);
    }
  }
}

// --- Directories that lead astray ---------------------------------------------------------------

TEST_F(BadDiscs, ADirectoryThatHoldsItselfIsNotEnteredAgain) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  const auto root = static_cast<std::uint32_t>(iso.data[""] / kIsoSector);
  iso.Put(iso.records["JEUX/DAMES"] + kRecordBlock, root);
  Insert(iso);
  EXPECT_EQ(CountDirectories(1000), 2);
  EXPECT_THAT(Names(u"E:\\JEUX\\DAMES"), ElementsAre(u"(nothing)"));
}

TEST_F(BadDiscs, ADirectoryInTwoPlacesIsShownInBoth) {
  IsoBuilder builder;
  builder.File("EN/COMMUN/A.TXT", "x");
  builder.Directory("FR/COMMUN");
  BuiltIso iso = builder.Build(IsoFormat::kPlain);
  iso.Put(iso.records["FR/COMMUN"] + kRecordBlock,
          static_cast<std::uint32_t>(iso.data["EN/COMMUN"] / kIsoSector));
  Insert(iso);
  EXPECT_THAT(Names(u"E:\\EN\\COMMUN"), ElementsAre(u"A.TXT"));
  EXPECT_THAT(Names(u"E:\\FR\\COMMUN"), ElementsAre(u"A.TXT"));
}

TEST_F(BadDiscs, DirectoriesSharedAtEveryLevelDoNotMultiplyWithoutEnd) {
  // Each level's two directories lead to the one next level: the ways double forty times.
  IsoBuilder builder;
  std::string path = "A";
  for (int level = 0; level < 40; ++level, path += "/A") {
    builder.Directory(path);
    builder.Directory(path.substr(0, path.size() - 1) + "B");
  }
  BuiltIso iso = builder.Build(IsoFormat::kPlain);
  for (const auto& [name, record] : iso.records) {
    if (!name.ends_with('B')) continue;
    const std::string twin = name.substr(0, name.size() - 1) + "A";
    iso.Put(record + kRecordBlock, static_cast<std::uint32_t>(iso.data[twin] / kIsoSector));
  }
  Insert(iso);
  EXPECT_LE(CountDirectories(1 << 20), 41 * 16);
}

TEST_F(BadDiscs, ADirectoryOf64MebibytesTakesNoMoreThanItHolds) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  iso.Put(iso.records["JEUX"] + kRecordSize, 64u << 20);
  Insert(iso);
  EXPECT_THAT(Names(u"E:\\JEUX"), ElementsAre(u"DAMES"));
  EXPECT_FALSE(IsWhole(u"E:\\JEUX"));
  EXPECT_TRUE(IsWhole(u"E:\\JEUX\\DAMES"));
}

TEST_F(BadDiscs, ADirectoryThatRunsIntoTheNextOneStopsThere) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  iso.Put(kPrimaryRoot + kRecordSize, 3 * kIsoSector);
  Insert(iso);
  EXPECT_THAT(Names(), ElementsAre(u"JEUX", u"LISEZMOI.TXT", u"SETUP.EXE"));
  EXPECT_FALSE(IsWhole(u"E:\\"));
}

TEST_F(BadDiscs, ARecordThatCrossesItsSectorEndsIt) {
  IsoBuilder builder;
  for (int i = 100; i < 200; ++i) builder.File("FICHIER" + std::to_string(i) + ".TXT", "x");
  BuiltIso iso = builder.Build(IsoFormat::kPlain);
  // The last record of the first sector reaches into the second one.
  std::string last;
  for (const auto& [name, record] : iso.records) {
    if (record < iso.data[""] + kIsoSector) last = name;
  }
  iso.At(iso.records[last]) = '\xFE';
  Insert(iso);
  EXPECT_EQ(Names().size(), 99u);
  EXPECT_FALSE(IsWhole(u"E:\\"));
}

TEST_F(BadDiscs, ALengthThatLiesEndsItsSectorOnly) {
  for (const int length : {1, 20, 33, 34}) {
    BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
    iso.At(iso.records["LISEZMOI.TXT"]) = static_cast<char>(length);
    Insert(iso);
    EXPECT_THAT(Names(), ElementsAre(u"JEUX")) << length;
    EXPECT_FALSE(IsWhole(u"E:\\"));
  }
}

TEST_F(BadDiscs, ADirectoryThatIsNoneIsNotEntered) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  iso.Put(iso.records["JEUX"] + kRecordBlock,
          static_cast<std::uint32_t>(iso.data["SETUP.EXE"] / kIsoSector));
  Insert(iso);
  EXPECT_THAT(Names(u"E:\\JEUX"), ElementsAre(u"(nothing)"));
  EXPECT_TRUE(Status(u"E:\\JEUX").attributes & kAttributeDirectory);
}

TEST_F(BadDiscs, WhatLiesBehindTheEndIsListedAndUnread) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  iso.Put(iso.records["SETUP.EXE"] + kRecordBlock, 0xFFFFFFF0);
  iso.Put(iso.records["JEUX"] + kRecordBlock, 0x7FFFFFFF);
  Insert(iso);
  EXPECT_THAT(Names(), ElementsAre(u"JEUX", u"LISEZMOI.TXT", u"SETUP.EXE"));
  EXPECT_EQ(Contents(u"E:\\SETUP.EXE"), "(unread)");
  FileStatus status;
  std::string record;
  EXPECT_EQ(platform_.GetFileProperties(u"E:\\SETUP.EXE", status, record), Reading::kStatus);
  EXPECT_EQ(status.length, 5003);
  EXPECT_THAT(Names(u"E:\\JEUX"), ElementsAre(u"(nothing)"));
}

// Zeros without end behind what is given.
class EndlessSource : public records::ByteSource {
 public:
  explicit EndlessSource(std::string bytes) : bytes_(std::move(bytes)) {}
  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override {
    ++reads;
    std::fill_n(buffer, size, '\0');
    if (offset < bytes_.size()) bytes_.copy(buffer, size, static_cast<std::size_t>(offset));
    return size;
  }
  int reads = 0;

 private:
  std::string bytes_;
};

TEST_F(BadDiscs, AnImageOfATebibyteIsNotGoneThroughToItsEnd) {
  const std::string iso = SmallDisc().Build(IsoFormat::kPlain).bytes;
  for (const std::string& bytes : {iso, RawImage(iso, {2352, 1})}) {
    const auto source = std::make_shared<EndlessSource>(bytes);
    const auto opened = image::OpenImage(source, std::uint64_t{1} << 40);
    EXPECT_EQ(opened.problem, Problem::kNone);
    EXPECT_LT(source->reads, 2 * (1 << 20) + 10000);
  }
}

// The image ends in the last file, at whatever place of a piece that is read.
TEST_F(BadDiscs, AFileThatTheImageHoldsInPartIsUnreadThoughAPieceOfItCame) {
  IsoBuilder builder;
  builder.File("README.TXT", std::string(5000, 'x'));
  const BuiltIso iso = builder.Build(IsoFormat::kPlain);
  for (const std::size_t left : {0, 1, 2047, 2048, 2049, 4096, 4999}) {
    Insert(iso.bytes.substr(0, iso.data.at("README.TXT") + left));
    const FileHandle file = platform_.OpenRead(u"E:\\README.TXT");
    char piece[5000];
    EXPECT_THROW(platform_.Read(file, piece, sizeof piece), RuntimeError) << left;
    platform_.Close(file);
  }
}

// --- Anything at all ----------------------------------------------------------------------------

TEST_F(BadDiscs, BytesChangedAtRandomEndWell) {
  const BuiltIso iso = SmallDisc().Build(IsoFormat::kJoliet);
  std::mt19937 random(1997);
  for (int round = 0; round < 300; ++round) {
    std::string bytes = iso.bytes;
    for (int change = 0; change < 12; ++change) {
      const std::size_t place = kPrimary + random() % (bytes.size() - kPrimary);
      bytes[place] = static_cast<char>(random());
    }
    const auto opened = Open(bytes);
    if (opened.problem != Problem::kNone) continue;
    Mount(opened);
    EXPECT_LE(CountDirectories(10000), 300);
  }
}

}  // namespace
}  // namespace trovex::test
