// Cue sheets and the other descriptions that stand beside an image.
#include "Image/CueSheet.h"

#include "Image/ImageTest.h"
#include "support/RawSectors.h"

namespace trovex::test {
namespace {

using image::CueSheet;
using image::IsCueSheet;
using image::Problem;
using image::ReadCueSheet;
using testing::ElementsAre;

constexpr char kOneTrack[] =
    "FILE \"Disque 1.bin\" BINARY\r\n  TRACK 01 MODE1/2352\r\n    INDEX 01 00:00:00\r\n";

TEST(CueSheets, AreToldByTheirLines) {
  EXPECT_TRUE(IsCueSheet(kOneTrack));
  EXPECT_TRUE(IsCueSheet("\xEF\xBB\xBFrem SESSION 01\nfile x.bin binary\n track 01 audio\n"));
  EXPECT_TRUE(IsCueSheet("\r\n\r\nCATALOG 1234567890123\r\nFILE \"x\" WAVE\r\n"));
  EXPECT_FALSE(IsCueSheet(""));
  EXPECT_FALSE(IsCueSheet("Un texte.\r\nFILE \"x.bin\" BINARY\r\nTRACK 01 MODE1/2048\r\n"));
  EXPECT_FALSE(IsCueSheet("REM rien de plus\r\n"));
  EXPECT_FALSE(IsCueSheet(std::string(1000, '\0')));
}

TEST(CueSheets, NameTheFileOfATrackOfData) {
  const CueSheet sheet = ReadCueSheet(kOneTrack);
  ASSERT_EQ(sheet.data.size(), 1u);
  EXPECT_EQ(sheet.data[0].file, "Disque 1.bin");
  EXPECT_EQ(sheet.data[0].start, 0u);
}

TEST(CueSheets, NameFilesWithoutQuotesAndWithPaths) {
  const auto file = [](const std::string& line) {
    const CueSheet sheet = ReadCueSheet(line + "\nTRACK 01 MODE1/2048\nINDEX 01 00:00:00\n");
    return sheet.data.empty() ? std::string("(none)") : sheet.data[0].file;
  };
  EXPECT_EQ(file("FILE disque.bin BINARY"), "disque.bin");
  EXPECT_EQ(file("FILE un disque.bin BINARY"), "un disque.bin");
  EXPECT_EQ(file("FILE \"C:\\CD\\disque.bin\" BINARY"), "disque.bin");
  EXPECT_EQ(file("FILE \"/mnt/disque.bin\" BINARY"), "disque.bin");
  EXPECT_EQ(file("  file  \"disque.bin\"  motorola"), "disque.bin");
}

TEST(CueSheets, TellTracksOfMusicFromData) {
  const CueSheet sheet = ReadCueSheet(
      "FILE \"a.bin\" BINARY\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n"
      "FILE \"b.bin\" BINARY\nTRACK 02 MODE2/2352\nINDEX 00 00:00:00\nINDEX 01 00:02:00\n");
  ASSERT_EQ(sheet.data.size(), 1u);
  EXPECT_EQ(sheet.data[0].file, "b.bin");
  EXPECT_EQ(sheet.data[0].start, 150u * 2352);
  EXPECT_TRUE(ReadCueSheet("FILE \"a.bin\" BINARY\nTRACK 01 AUDIO\n").data.empty());
}

TEST(CueSheets, ReckonThePlaceOfATrackBySectorsOfTheirOwnSizes) {
  const CueSheet sheet = ReadCueSheet(
      "FILE \"a.bin\" BINARY\nTRACK 01 MODE1/2048\nINDEX 01 00:00:00\n"
      "TRACK 02 AUDIO\nINDEX 00 00:01:00\nINDEX 01 00:03:00\n"
      "TRACK 03 MODE2/2336\nINDEX 01 00:05:10\n");
  ASSERT_EQ(sheet.data.size(), 2u);
  EXPECT_EQ(sheet.data[1].start, 75u * 2048 + (150u + 160u) * 2352);
}

TEST(CueSheets, WhatIsNoTimeMovesNothing) {
  for (const char* time : {"", "xx", "1", "00:00", "00:99:00", "00:00:75", "-1:00:00",
                           "9999999999:00:00", "00:00:00:00"}) {
    const CueSheet sheet = ReadCueSheet("FILE \"a\" BINARY\nTRACK 01 MODE1/2048\nINDEX 01 " +
                                        std::string(time) + "\n");
    ASSERT_EQ(sheet.data.size(), 1u) << time;
    EXPECT_EQ(sheet.data[0].start, 0u) << time;
  }
}

TEST(CueSheets, HoldNoMoreTracksThanDiscsDo) {
  std::string text = "FILE \"a\" BINARY\n";
  for (int i = 0; i < 5000; ++i) text += "TRACK 01 MODE1/2048\nINDEX 01 00:00:00\n";
  EXPECT_LE(ReadCueSheet(text).data.size(), 198u);
}

// --- Opening ------------------------------------------------------------------------------------

class Descriptions : public ImageTest {
 protected:
  image::Opened OpenCue(std::string_view text) {
    disc_.File("disque.cue", text);
    return Open(u"D:\\disque.cue");
  }
  void ExpectSmallDisc() {
    EXPECT_THAT(Names(), ElementsAre(u"JEUX", u"LISEZMOI.TXT", u"SETUP.EXE"));
    EXPECT_EQ(Contents(u"E:\\SETUP.EXE"), std::string(5000, 'S') + "fin");
  }
  const BuiltIso iso_ = SmallDisc().Build(IsoFormat::kPlain);
  const std::string raw_ = RawImage(iso_.bytes, {2352, 1});
};

TEST_F(Descriptions, ACueLeadsToItsFileWithoutRegardToCase) {
  disc_.File("DISQUE 1.BIN", raw_);
  Mount(OpenCue(kOneTrack));
  ExpectSmallDisc();
}

TEST_F(Descriptions, ACueNeedsNoExtensionOfItsOwn) {
  disc_.File("Disque 1.bin", raw_);
  disc_.File("table", kOneTrack);
  Mount(Open(u"D:\\table"));
  ExpectSmallDisc();
}

TEST_F(Descriptions, ANameInWindowsLettersIsFound) {
  disc_.File("\xC3\xA9t\xC3\xA9.bin", raw_);
  Mount(OpenCue("FILE \"\xE9t\xE9.bin\" BINARY\nTRACK 01 MODE1/2352\nINDEX 01 00:00:00\n"));
  ExpectSmallDisc();
}

TEST_F(Descriptions, ACueThatNamesAMissingFileSaysWhich) {
  const auto opened = OpenCue(kOneTrack);
  EXPECT_EQ(opened.problem, Problem::kMissingFile);
  EXPECT_EQ(opened.missing, u"Disque 1.bin");
  EXPECT_EQ(OpenCue("FILE \"\" BINARY\nTRACK 01 MODE1/2352\n").problem, Problem::kMissingFile);
}

TEST_F(Descriptions, ACueWithoutDataSaysSo) {
  disc_.File("a.bin", AudioSectors(100));
  EXPECT_EQ(OpenCue("FILE \"a.bin\" BINARY\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n").problem,
            Problem::kNoData);
  EXPECT_EQ(OpenCue("FILE \"a.bin\" BINARY\n").problem, Problem::kNoData);
}

TEST_F(Descriptions, AFilePerTrackIsRead) {
  disc_.File("piste 1.bin", raw_);
  disc_.File("piste 2.bin", AudioSectors(50));
  Mount(
      OpenCue("FILE \"piste 1.bin\" BINARY\nTRACK 01 MODE1/2352\nINDEX 01 00:00:00\n"
              "FILE \"piste 2.bin\" BINARY\nTRACK 02 AUDIO\nINDEX 00 00:00:00\n"));
  ExpectSmallDisc();
}

TEST_F(Descriptions, MusicBeforeTheDataOfOneFileIsPassedOver) {
  // The data of an enhanced disc: a second session, behind the music.
  const BuiltIso later = SmallDisc().Build(IsoFormat::kPlain, 12000);
  disc_.File("disque.bin", AudioSectors(600) + RawImage(later.bytes, {2352, 2, 0, 12000}));
  Mount(
      OpenCue("FILE \"disque.bin\" BINARY\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n"
              "REM SESSION 02\nTRACK 02 MODE2/2352\nINDEX 01 00:08:00\n"));
  ExpectSmallDisc();
}

TEST_F(Descriptions, AWrongLeadOutChangesNothing) {
  IsoBuilder two;
  two.File("NEUF.TXT", "x");
  const BuiltIso second = two.Build(IsoFormat::kPlain, 12000);
  disc_.File("disque.bin", raw_ + RawImage(second.bytes, {2352, 1, 0, 12000}));
  // The sheet reckons as if nothing lay between the sessions, or too much.
  const std::string frame = std::to_string(raw_.size() / 2352);
  for (const std::string& time : {"00:00:" + frame, std::string("59:58:00")}) {
    Mount(
        OpenCue("FILE \"disque.bin\" BINARY\nREM SESSION 01\nTRACK 01 MODE1/2352\n"
                "INDEX 01 00:00:00\nREM LEAD-OUT 99:00:00\nREM SESSION 02\n"
                "TRACK 02 MODE1/2352\nINDEX 01 " +
                time + "\n"));
    EXPECT_THAT(Names(), ElementsAre(u"NEUF.TXT")) << time;
  }
}

TEST_F(Descriptions, TheLastSessionOfAFilePerTrackRefersToTheFirst) {
  IsoBuilder two;
  two.File("LISEZMOI.TXT", "Bonjour\r\n");
  BuiltIso second = two.Build(IsoFormat::kPlain, 12000);
  second.Put(second.records["LISEZMOI.TXT"] + kRecordBlock,
             static_cast<std::uint32_t>(iso_.data.find("LISEZMOI.TXT")->second / kIsoSector));
  second.bytes.replace(second.data["LISEZMOI.TXT"], 7, "???????");
  disc_.File("1.bin", raw_);
  disc_.File("2.bin", RawImage(second.bytes, {2352, 1, 0, 12000}));
  Mount(
      OpenCue("REM SESSION 01\nFILE \"1.bin\" BINARY\nTRACK 01 MODE1/2352\nINDEX 01 00:00:00\n"
              "REM SESSION 02\nFILE \"2.bin\" BINARY\nTRACK 02 MODE1/2352\nINDEX 01 00:00:00\n"));
  EXPECT_THAT(Names(), ElementsAre(u"LISEZMOI.TXT"));
  EXPECT_EQ(Contents(u"E:\\LISEZMOI.TXT"), "Bonjour\r\n");
}

TEST_F(Descriptions, OtherDescriptionsLeadToTheImageBeside) {
  disc_.File("disque.IMG", raw_);
  disc_.File("disque.ccd", "[CloneCD]\r\nVersion=3\r\n");
  Mount(Open(u"D:\\disque.ccd"));
  ExpectSmallDisc();
  disc_.File("autre.mdf", RawImage(iso_.bytes, {2448, 1}));
  disc_.File("autre.mds", "MEDIA DESCRIPTOR\1\3");
  Mount(Open(u"D:\\autre.mds"));
  ExpectSmallDisc();
  disc_.File("seul.mds", "MEDIA DESCRIPTOR\1\3");
  EXPECT_EQ(Open(u"D:\\seul.mds").problem, Problem::kMissingFile);
  EXPECT_EQ(Open(u"D:\\seul.mds").missing, u"seul.mdf");
}

TEST_F(Descriptions, WhatStandsBehindTheTracksOfAnImageIsPassedOver) {
  std::string nero = RawImage(iso_.bytes, {2048, 1, 150}) + "CUEX" + std::string(60, '\2');
  nero += "NER5" + std::string(8, '\1');
  disc_.File("disque.nrg", nero);
  Mount(Open(u"D:\\disque.nrg"));
  ExpectSmallDisc();
}

}  // namespace
}  // namespace trovex::test
