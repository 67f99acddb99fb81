// What a volume's records say: names, flags, dates, pieces, labels.
#include "Image/Dates.h"
#include "Image/ImageTest.h"
#include "Image/Names.h"

namespace trovex::test {
namespace {

using image::Format;
using testing::ElementsAre;

class Volumes : public ImageTest {
 protected:
  // The plain record of an entry.
  static std::size_t RecordOf(const BuiltIso& iso, const char* name) {
    return iso.records.find(name)->second;
  }
};

// --- Names ------------------------------------------------------------------------------------

TEST(ImageNames, LoseTheirVersionAndAFinalPoint) {
  EXPECT_EQ(image::NameText("SETUP.EXE;1", Format::kIso), u"SETUP.EXE");
  EXPECT_EQ(image::NameText("LISEZMOI.;1", Format::kIso), u"LISEZMOI");
  EXPECT_EQ(image::NameText("JEUX", Format::kIso), u"JEUX");
  EXPECT_EQ(image::NameText("A..;12", Format::kIso), u"A.");
  EXPECT_EQ(image::NameText("A;B.TXT", Format::kIso), u"A;B.TXT");
}

TEST(ImageNames, KeepTheirLettersAsTheyAre) {
  EXPECT_EQ(image::NameText("Setup.exe;1", Format::kIso), u"Setup.exe");
  EXPECT_EQ(image::NameText("D\x82MO.EXE;1", Format::kIso), u"DéMO.EXE");
  EXPECT_EQ(image::NameText("\x90T\x90.TXT;1", Format::kHighSierra), u"ÉTÉ.TXT");
  EXPECT_EQ(image::NameText({"\x00J\x04\x16\x00;\x00\x31", 8}, Format::kJoliet), u"JЖ");
}

TEST(ImageNames, HoldNothingThatWouldReadAsAPath) {
  EXPECT_EQ(image::NameText("A\\B/C:D", Format::kIso), u"A\uF05CB\uF02FC\uF03AD");
  EXPECT_EQ(image::NameText({"A\0B", 3}, Format::kIso), u"A\uF000B");
  EXPECT_EQ(image::NameText(";1", Format::kIso), u"_");
  EXPECT_EQ(image::NameText("..", Format::kIso), u"_");
  EXPECT_EQ(image::NameText("...", Format::kIso), u"_");
}

TEST_F(Volumes, LongNamesComeBeforePlainOnes) {
  IsoBuilder iso;
  iso.File("Un long nom avec des blancs.txt", "texte");
  Insert(iso.Build(IsoFormat::kJoliet));
  EXPECT_THAT(Names(), ElementsAre(u"Un long nom avec des blancs.txt"));
}

TEST_F(Volumes, NamesComeInTheOrderOfDirectories) {
  IsoBuilder iso;
  for (const char* name : {"a_.txt", "A.TXT", "B", "_A", "Z1", "z"}) iso.File(name);
  Insert(iso.Build(IsoFormat::kPlain));
  EXPECT_THAT(Names(), ElementsAre(u"A.TXT", u"a_.txt", u"B", u"z", u"Z1", u"_A"));
}

TEST_F(Volumes, NamesThatDifferInCaseOrVersionAreAllReachable) {
  IsoBuilder iso;
  iso.File("LISEZ.TXT", "un");
  iso.File("lisez.txt", "deux");
  Insert(iso.Build(IsoFormat::kPlain));
  EXPECT_THAT(Names(), ElementsAre(u"LISEZ.TXT", u"lisez~2.txt"));
  EXPECT_EQ(Contents(u"E:\\Lisez.txt"), "un");
  EXPECT_EQ(Contents(u"E:\\LISEZ~2.TXT"), "deux");
}

TEST_F(Volumes, AnOlderVersionOfAFileIsReachable) {
  IsoBuilder iso;
  iso.File("A.TXT;2", "neuf");
  iso.File("A.TXT", "vieux");
  BuiltIso built = iso.Build(IsoFormat::kPlain);
  // "A.TXT;1" stands before "A.TXT;2;1": make that "A.TXT;2" alone.
  const std::size_t name = RecordOf(built, "A.TXT;2") + kRecordName;
  built.At(name - 1) = 7;
  Insert(built);
  EXPECT_THAT(Names(), ElementsAre(u"A.TXT", u"A~2.TXT"));
  EXPECT_EQ(Contents(u"E:\\A~2.TXT"), "neuf");
}

TEST_F(Volumes, ADirectoryOfManySectorsComesWhole) {
  IsoBuilder iso;
  for (int i = 10000; i < 15000; ++i) iso.File("F" + std::to_string(i) + ".TXT");
  Insert(iso.Build(IsoFormat::kJoliet));
  const std::vector<Text> names = Names();
  ASSERT_EQ(names.size(), 5000u);
  EXPECT_EQ(names.front(), u"F10000.TXT");
  EXPECT_EQ(names.back(), u"F14999.TXT");
  EXPECT_TRUE(IsWhole(u"E:\\"));
}

// --- Flags --------------------------------------------------------------------------------------

TEST_F(Volumes, TheHiddenBitAloneHides) {
  IsoBuilder iso;
  iso.File("CACHE.TXT");
  iso.Hide("CACHE.TXT");
  iso.File(".profile");
  iso.Directory("ARRIERE");
  iso.Hide("ARRIERE");
  Insert(iso.Build(IsoFormat::kPlain));
  EXPECT_TRUE(Status(u"E:\\CACHE.TXT").attributes & kAttributeHidden);
  EXPECT_TRUE(Status(u"E:\\ARRIERE").attributes & kAttributeHidden);
  EXPECT_FALSE(Status(u"E:\\.profile").attributes & kAttributeHidden);
}

TEST_F(Volumes, ResourceForksAreLeftOut) {
  IsoBuilder iso;
  iso.File("IMAGE.PCT", "fork");
  iso.File("IMAGE.PCU", "data");
  BuiltIso built = iso.Build(IsoFormat::kPlain);
  built.At(RecordOf(built, "IMAGE.PCT") + kRecordFlags) = 4;
  built.At(RecordOf(built, "IMAGE.PCU") + kRecordName + 8) = 'T';
  Insert(built);
  EXPECT_THAT(Names(), ElementsAre(u"IMAGE.PCT"));
  EXPECT_EQ(Contents(u"E:\\IMAGE.PCT"), "data");
}

TEST_F(Volumes, AFileOfSeveralPiecesIsOne) {
  IsoBuilder iso;
  iso.File("FILM.AV1", std::string(2048, 'a'));
  iso.File("FILM.AV2", std::string(2048, 'b'));
  iso.File("FILM.AV3", "fin");
  BuiltIso built = iso.Build(IsoFormat::kPlain);
  for (const char* piece : {"FILM.AV1", "FILM.AV2", "FILM.AV3"}) {
    built.At(RecordOf(built, piece) + kRecordName + 7) = 'I';
  }
  built.At(RecordOf(built, "FILM.AV1") + kRecordFlags) = '\x80';
  built.At(RecordOf(built, "FILM.AV2") + kRecordFlags) = '\x80';
  Insert(built);
  EXPECT_THAT(Names(), ElementsAre(u"FILM.AVI"));
  EXPECT_EQ(Status(u"E:\\FILM.AVI").length, 4099);
  EXPECT_EQ(Contents(u"E:\\FILM.AVI"), std::string(2048, 'a') + std::string(2048, 'b') + "fin");
}

TEST_F(Volumes, AttributesBeforeTheDataAreSkipped) {
  IsoBuilder iso;
  iso.File("A.TXT", std::string(2048, 'x') + "texte");
  BuiltIso built = iso.Build(IsoFormat::kPlain);
  built.At(RecordOf(built, "A.TXT") + 1) = 1;
  built.Put(RecordOf(built, "A.TXT") + kRecordSize, 5);
  Insert(built);
  EXPECT_EQ(Contents(u"E:\\A.TXT"), "texte");
}

TEST_F(Volumes, InterleavedDataAreNotTakenForOthers) {
  IsoBuilder iso;
  iso.File("A.TXT", "texte");
  BuiltIso built = iso.Build(IsoFormat::kPlain);
  built.At(RecordOf(built, "A.TXT") + kRecordUnit) = 1;
  Insert(built);
  EXPECT_THROW(platform_.OpenRead(u"E:\\A.TXT"), RuntimeError);
}

// --- Dates --------------------------------------------------------------------------------------

TEST(ImageDates, AMomentCountsItsZone) {
  constexpr std::int64_t kNoon = 857217600;  // March 1st, 1997, 12:00 in Greenwich
  EXPECT_EQ(image::RecordedMoment({97, 3, 1, 12, 0, 0, 0}), kNoon);
  EXPECT_EQ(image::RecordedMoment({97, 3, 1, 13, 0, 0, 4}), kNoon);
  EXPECT_EQ(image::RecordedMoment({97, 3, 1, 7, 0, 0, -20}), kNoon);
  EXPECT_EQ(image::RecordedMoment({97, 3, 1, 12, 0, 0, 99}), kNoon);
}

TEST(ImageDates, FieldsBeyondTheirRangeBecomeTheNearest) {
  EXPECT_EQ(image::RecordedTime({0, 0, 0, 0, 0, 0, 0}), (LocalTime{1900, 1, 1, 0, 0, 0}));
  EXPECT_EQ(image::RecordedTime({97, 13, 99, 77, 88, 99, 0}),
            (LocalTime{1997, 12, 31, 23, 59, 59}));
  EXPECT_EQ(image::RecordedTime({97, 2, 31, -1, -1, -1, 0}), (LocalTime{1997, 2, 28, 0, 0, 0}));
  EXPECT_EQ(image::RecordedTime({-56, 2, 29, 0, 0, 0, 0}), (LocalTime{2100, 2, 28, 0, 0, 0}));
}

TEST_F(Volumes, DatesAreShownInLocalTime) {
  IsoBuilder iso;
  iso.File("A.TXT", "x", {{96, 12, 31, 23, 30, 10, -20}});
  Insert(iso.Build(IsoFormat::kPlain));
  EXPECT_EQ(Status(u"E:\\A.TXT").modified, (LocalTime{1997, 1, 1, 4, 30, 10}));
}

TEST_F(Volumes, DatesWithoutZoneStandAsTheyAre) {
  IsoBuilder iso;
  iso.File("A.TXT", "x", {{88, 12, 31, 23, 30, 10, 0}});
  Insert(iso.Build(IsoFormat::kHighSierra));
  EXPECT_EQ(Status(u"E:\\A.TXT").modified, (LocalTime{1988, 12, 31, 23, 30, 10}));
}

// --- Labels -------------------------------------------------------------------------------------

TEST_F(Volumes, TheLabelIsTheDrives) {
  IsoBuilder iso = SmallDisc();
  iso.Label("JEUX été");
  Insert(iso.Build(IsoFormat::kPlain));
  EXPECT_EQ(platform_.GetVolumeLabel(u"E:\\"), u"JEUX été");
  Insert(iso.Build(IsoFormat::kJoliet));
  EXPECT_EQ(platform_.GetVolumeLabel(u"E:\\"), u"JEUX été");
  Insert(iso.Build(IsoFormat::kHighSierra));
  EXPECT_EQ(platform_.GetVolumeLabel(u"E:\\"), u"JEUX été");
}

TEST_F(Volumes, BlocksMayBeSmallerThanSectors) {
  BuiltIso built = SmallDisc().Build(IsoFormat::kPlain);
  built.At(kPrimary + 128) = 0;
  built.At(kPrimary + 129) = 2;  // 512
  const auto quadruple = [&](std::size_t record) {
    const auto* bytes = reinterpret_cast<unsigned char*>(&built.At(record + kRecordBlock));
    built.Put(record + kRecordBlock, 4u * (bytes[0] | bytes[1] << 8));
  };
  quadruple(kPrimaryRoot);
  for (const auto& [name, record] : built.records) quadruple(record);
  // Directories' records of themselves and of those above.
  for (const char* directory : {"", "JEUX", "JEUX/DAMES"}) {
    quadruple(built.data[directory]);
    quadruple(built.data[directory] + 34);
  }
  Insert(built);
  EXPECT_EQ(Contents(u"E:\\JEUX\\DAMES\\DAMES.EXE"), std::string(40000, 'D') + "fin");
}

}  // namespace
}  // namespace trovex::test
