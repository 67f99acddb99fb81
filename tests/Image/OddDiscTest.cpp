// The odd discs of the time.
#include "Image/ImageTest.h"
#include "support/RawSectors.h"

namespace trovex::test {
namespace {

using image::Problem;
using testing::ElementsAre;

class OddDiscs : public ImageTest {
 protected:
  void ExpectSmallDisc() {
    EXPECT_THAT(Names(), ElementsAre(u"JEUX", u"LISEZMOI.TXT", u"SETUP.EXE"));
    EXPECT_EQ(Contents(u"E:\\SETUP.EXE"), std::string(5000, 'S') + "fin");
    EXPECT_EQ(Contents(u"E:\\JEUX\\DAMES\\DAMES.EXE"), std::string(40000, 'D') + "fin");
  }
};

TEST_F(OddDiscs, ARootRecordThatSaysItHas68Bytes) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  iso.At(kPrimaryRoot) = 68;
  Insert(iso);
  ExpectSmallDisc();
}

TEST_F(OddDiscs, ARootThatOnlyTheTableOfPathsFinds) {
  for (const IsoFormat format : {IsoFormat::kPlain, IsoFormat::kHighSierra}) {
    BuiltIso iso = SmallDisc().Build(format);
    iso.Put(kPrimary + (format == IsoFormat::kPlain ? 156 : 180) + kRecordBlock, 7);
    Insert(iso);
    ExpectSmallDisc();
  }
}

TEST_F(OddDiscs, ARootThatOnlyTheOtherTableOfPathsFinds) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  iso.Put(kPrimaryRoot + kRecordBlock, 7);
  iso.Put(kPrimaryTable, 99999);
  // The other one, its big end first, stands behind.
  iso.At(kPrimary + 148 + 3) = 21;
  Insert(iso);
  ExpectSmallDisc();
}

TEST_F(OddDiscs, ARootThatOnlyItsRecordFinds) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  for (std::size_t i = 0; i < 2 * kIsoSector; ++i) iso.At(20 * kIsoSector + i) = '\xEE';
  iso.Put(kPrimaryTable, 0xFFFFFFFF);
  Insert(iso);
  ExpectSmallDisc();
}

TEST_F(OddDiscs, ARootThatNothingTellsIsFoundAsItsOwnParent) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  iso.Put(kPrimaryRoot + kRecordBlock, 7);
  for (std::size_t i = 0; i < 2 * kIsoSector; ++i) iso.At(20 * kIsoSector + i) = '\xEE';
  Insert(iso);
  ExpectSmallDisc();
}

TEST_F(OddDiscs, ARootThatSaysItIsEmptyIsAsLongAsItsOwnRecordSays) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  iso.Put(kPrimaryRoot + kRecordSize, 0);
  Insert(iso);
  ExpectSmallDisc();
}

TEST_F(OddDiscs, ARootWhoseRecordOfItselfHoldsWhatOtherSystemsAdd) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  const std::size_t root = iso.data[""];
  constexpr std::size_t kAdded = 200;
  iso.bytes.erase(root + kIsoSector - kAdded, kAdded);
  iso.bytes.insert(root + iso.At(root), kAdded, '\x01');
  iso.At(root) = static_cast<char>(iso.At(root) + kAdded);
  Insert(iso);
  ExpectSmallDisc();
}

TEST_F(OddDiscs, AnotherDescriptorBeforeThePrimaryOne) {
  const BuiltIso iso = SmallDisc().Build(IsoFormat::kJoliet);
  for (const unsigned stride : {2048u, 2352u}) {
    std::string bytes = iso.bytes;
    bytes.replace(kPrimary + kIsoSector, 3 * kIsoSector, bytes, kPrimary, 3 * kIsoSector);
    bytes.replace(kPrimary, kIsoSector, std::string("\0CD001\1", 7) + std::string(2041, '\0'));
    Insert(RawImage(bytes, {stride, 1}));
    ExpectSmallDisc();
  }
}

TEST_F(OddDiscs, ADirectoryWithoutReadableLongNamesShowsPlainOnes) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kJoliet);
  iso.Put(kPrimary + kIsoSector + 156 + kRecordBlock, 9);
  for (std::size_t i = 0; i < 2 * kIsoSector; ++i) iso.At(22 * kIsoSector + i) = '\xEE';
  iso.At(iso.joliet_root) = 0;
  Insert(iso);
  ExpectSmallDisc();
}

TEST_F(OddDiscs, AMacintoshHybridShowsItsIsoSide) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  iso.bytes.replace(0, 2, "ER");
  iso.bytes.replace(512, 2, "PM");
  iso.bytes.replace(1024, 2, "BD");
  Insert(iso);
  ExpectSmallDisc();
}

// --- Sessions -----------------------------------------------------------------------------------

class Sessions : public OddDiscs {
 protected:
  static constexpr std::uint32_t kSecond = 300, kThird = 600;

  // A later session refers to what an earlier one holds: its record of `name` leads there.
  static BuiltIso Referring(IsoBuilder& later, std::uint32_t first, const char* name,
                            const BuiltIso& earlier) {
    later.File(name, earlier.bytes.substr(earlier.data.find(name)->second, 8));
    BuiltIso built = later.Build(IsoFormat::kPlain, first);
    built.Put(built.records[name] + kRecordBlock,
              static_cast<std::uint32_t>(earlier.data.find(name)->second / kIsoSector));
    // Its own copy is gone.
    built.bytes.replace(built.data[name], 8, "????????");
    return built;
  }

  static void Extend(std::string& bytes, std::uint32_t sectors) {
    bytes.resize(sectors * kIsoSector, '\0');
  }
};

TEST_F(Sessions, TheLastOneCountsAndRefersToTheEarlierOnes) {
  IsoBuilder one, two, three;
  one.File("ANCIEN.TXT", "premiere");
  const BuiltIso first = one.Build(IsoFormat::kPlain);
  const BuiltIso second = Referring(two, kSecond, "ANCIEN.TXT", first);
  three.File("NEUF.TXT", "troisieme");
  const BuiltIso third = Referring(three, kThird, "ANCIEN.TXT", first);
  std::string bytes = first.bytes;
  Extend(bytes, kSecond);
  bytes += second.bytes;
  Extend(bytes, kThird);
  bytes += third.bytes;
  Insert(bytes);
  EXPECT_THAT(Names(), ElementsAre(u"ANCIEN.TXT", u"NEUF.TXT"));
  EXPECT_EQ(Contents(u"E:\\ANCIEN.TXT"), "premiere");
  EXPECT_EQ(Contents(u"E:\\NEUF.TXT"), "troisieme");
}

TEST_F(Sessions, OfRawSectorsFollowEachOtherWithoutWhatLiesBetweenOnTheDisc) {
  IsoBuilder one, two;
  one.File("ANCIEN.TXT", "premiere");
  const BuiltIso first = one.Build(IsoFormat::kPlain);
  const BuiltIso second = Referring(two, 12000, "ANCIEN.TXT", first);
  Insert(RawImage(first.bytes, {2352, 1}) + RawImage(second.bytes, {2352, 2, 0, 12000}));
  EXPECT_THAT(Names(), ElementsAre(u"ANCIEN.TXT"));
  EXPECT_EQ(Contents(u"E:\\ANCIEN.TXT"), "premiere");
}

TEST_F(Sessions, OfPlainSectorsFollowEachOtherWithoutWhatLiesBetweenOnTheDisc) {
  IsoBuilder one, two;
  one.File("ANCIEN.TXT", "premiere");
  const BuiltIso first = one.Build(IsoFormat::kPlain);
  const BuiltIso second = Referring(two, 12000, "ANCIEN.TXT", first);
  Insert(first.bytes + second.bytes);
  EXPECT_EQ(Contents(u"E:\\ANCIEN.TXT"), "premiere");
}

TEST_F(Sessions, ALaterOneSavedAloneIsFoundByItsRoot) {
  for (const IsoFormat format : {IsoFormat::kPlain, IsoFormat::kJoliet, IsoFormat::kHighSierra}) {
    Insert(SmallDisc().Build(format, 11702));
    ExpectSmallDisc();
  }
}

TEST_F(Sessions, ALaterOneSavedAloneCanHaveSpacedSectorsWithoutAddresses) {
  Insert(RawImage(SmallDisc().Build(IsoFormat::kPlain, 11702).bytes, {2336, 2}));
  ExpectSmallDisc();
}

TEST_F(Sessions, AnImageThatIsAFileOfTheDiscIsNone) {
  IsoBuilder inner, outer;
  inner.File("DEDANS.TXT", "x");
  outer.File("DISQUE.ISO", inner.Build(IsoFormat::kPlain).bytes);
  BuiltIso iso = outer.Build(IsoFormat::kPlain);
  iso.Put(kPrimarySpace, 20);  // a volume that says it ends before its files
  Insert(iso);
  EXPECT_THAT(Names(), ElementsAre(u"DISQUE.ISO"));
}

// --- Cut short ----------------------------------------------------------------------------------

TEST_F(OddDiscs, AnImageShorterThanItsVolumeSaysSo) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  EXPECT_FALSE(Open(iso).disc->GetVolume().cut_short);
  iso.bytes.resize(iso.data["SETUP.EXE"] + 3000);
  const auto opened = Open(iso);
  ASSERT_EQ(opened.problem, Problem::kNone);
  EXPECT_TRUE(opened.disc->GetVolume().cut_short);
  Mount(opened);
  EXPECT_THAT(Names(), ElementsAre(u"JEUX", u"LISEZMOI.TXT", u"SETUP.EXE"));
  EXPECT_EQ(Contents(u"E:\\SETUP.EXE"), std::string(3000, 'S') + "(unread)");
}

}  // namespace
}  // namespace trovex::test
