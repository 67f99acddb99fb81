#include "Platform/Encoding.h"
#include "Platform/ForwardingPlatform.h"
#include "Scanner/VersionRecord.h"
#include "Scanner/zFileInfo.h"
#include "support/ExecutableBuilder.h"
#include "support/LogicTest.h"

namespace trovex::test {
namespace {

using testing::Each;
using testing::ElementsAre;

// Version records as a test spells them, and faults.
class RecordPlatform : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;

  bool GetFileStatus(const Text& name, FileStatus& status) override {
    ++touches;
    if (status_fails) throw RuntimeError(ErrorNumber::kDeviceIo);
    return ForwardingPlatform::GetFileStatus(name, status);
  }
  std::uint32_t GetFileVersionInfoSize(const Text&) override {
    ++touches;
    if (size_fails) throw RuntimeError(ErrorNumber::kDeviceIo);
    return static_cast<std::uint32_t>(record.size());
  }
  bool GetFileVersionInfo(const Text&, std::uint32_t length, std::string& block) override {
    EXPECT_EQ(length, record.size());
    if (read_fails) return false;
    block = record;
    return true;
  }

  std::string record;
  bool status_fails = false, size_fails = false, read_fails = false;
  int touches = 0;
};

class FileInfoTest : public LogicTest {
 protected:
  std::vector<Text> Fields() const {
    return {info_.zSize(),        info_.zSizeKo(),         info_.zDate(),
            info_.zTime(),        info_.zVersion(),        info_.zCopyright(),
            info_.zDescription(), info_.zInternalName(),   info_.zOriginalName(),
            info_.zProductName(), info_.zProductVersion(), info_.zCompanyName()};
  }
  std::vector<Text> RecordFields() const {
    const std::vector<Text> all = Fields();
    return {all.begin() + 4, all.end()};
  }
  // The fields for a file with this record.
  void Read(std::string record) {
    platform_.record = std::move(record);
    disc.File("A.EXE", "MZ");
    info_.PutFileName(u"D:\\A.EXE");
  }

  RecordPlatform platform_{disc.GetPlatform()};
  PlatformScope scope_{platform_};
  zFileInfo info_;
};

TEST_F(FileInfoTest, ThePictureOfSizes) {
  EXPECT_EQ(sFormatTaille(0), u"  ");
  EXPECT_EQ(sFormatTaille(5), u"  5");
  EXPECT_EQ(sFormatTaille(55), u"  55");
  EXPECT_EQ(sFormatTaille(555), u"  555");
  EXPECT_EQ(sFormatTaille(1000), u" 1 000");
  EXPECT_EQ(sFormatTaille(1234), u" 1 234");
  EXPECT_EQ(sFormatTaille(999999), u" 999 999");
  EXPECT_EQ(sFormatTaille(1234567), u"1 234 567");
  EXPECT_EQ(sFormatTaille(123456789), u"123 456 789");
  EXPECT_EQ(sFormatTaille(1234567890), u"1234 567 890");
  EXPECT_EQ(sFormatTaille(123456789012), u"123456 789 012");
}

TEST_F(FileInfoTest, AFileOfLength0HasTwoBlanksNoKilobytesAndItsDateAndTime) {
  disc.File("VIDE.EXE", "", {1997, 3, 1, 12, 30, 5});
  info_.PutFileName(u"D:\\VIDE.EXE");
  EXPECT_EQ(info_.zSize(), u"  ");
  EXPECT_EQ(info_.zSizeKo(), u"");
  EXPECT_EQ(info_.zDate(), u"01/03/1997");
  EXPECT_EQ(info_.zTime(), u"12:30:05");
  EXPECT_THAT(RecordFields(), Each(u""));
}

TEST_F(FileInfoTest, KilobytesAreTheSizeLessItsLastFourCharacters) {
  const auto kilobytes = [&](std::size_t size) {
    disc.File("A.ZIP", std::string(size, 'x'));
    info_.PutFileName(u"D:\\A.ZIP");
    return info_.zSizeKo();
  };
  EXPECT_EQ(kilobytes(1), u"");
  EXPECT_EQ(kilobytes(99), u"");
  EXPECT_EQ(kilobytes(100), u" ") << "a single blank is not empty";
  EXPECT_EQ(kilobytes(999), u" ");
  EXPECT_EQ(kilobytes(1000), u" 1");
  EXPECT_EQ(kilobytes(1234), u" 1");
  EXPECT_EQ(kilobytes(1999), u" 1") << "cut, not rounded";
  EXPECT_EQ(kilobytes(1234567), u"1 234");
}

TEST_F(FileInfoTest, DateHasTenCharactersAndTimeEightWithLeadingZeros) {
  disc.File("A.EXE", "MZ", {2004, 1, 2, 3, 4, 6});
  info_.PutFileName(u"D:\\A.EXE");
  EXPECT_EQ(info_.zDate(), u"02/01/2004");
  EXPECT_EQ(info_.zTime(), u"03:04:06");
}

TEST_F(FileInfoTest, AnEmptyOrBlankNameLeavesAllFieldsEmptyAndTouchesNoFile) {
  Read(VersionBlock8({{"FileDescription", "Jeu"}}));
  platform_.touches = 0;
  info_.PutFileName(u"");
  EXPECT_THAT(Fields(), Each(u""));
  info_.PutFileName(u"   ");
  EXPECT_THAT(Fields(), Each(u""));
  EXPECT_EQ(platform_.touches, 0);
}

TEST_F(FileInfoTest, EachFieldComesFromItsKey) {
  Read(VersionBlock8({{"CompanyName", "Cie"},
                      {"FileDescription", ToCp1252(u"Jeu de dames, édité")},
                      {"FileVersion", "1.20"},
                      {"InternalName", "DAMES"},
                      {"LegalCopyright", ToCp1252(u"© 1996")},
                      {"OriginalFilename", "DAMES.EXE"},
                      {"ProductName", "Dames"},
                      {"ProductVersion", "1.2"}}));
  EXPECT_EQ(info_.zCompanyName(), u"Cie");
  EXPECT_EQ(info_.zDescription(), u"Jeu de dames, édité");
  EXPECT_EQ(info_.zVersion(), u"1.20");
  EXPECT_EQ(info_.zInternalName(), u"DAMES");
  EXPECT_EQ(info_.zCopyright(), u"© 1996");
  EXPECT_EQ(info_.zOriginalName(), u"DAMES.EXE");
  EXPECT_EQ(info_.zProductName(), u"Dames");
  EXPECT_EQ(info_.zProductVersion(), u"1.2");
}

TEST_F(FileInfoTest, TheValueStandsAtAFixedDistanceFromEachKey) {
  const struct {
    std::string key;
    std::size_t distance;
    Text (zFileInfo::*get)() const;
  } keys[] = {{"CompanyName", 12, &zFileInfo::zCompanyName},
              {"FileDescription", 16, &zFileInfo::zDescription},
              {"FileVersion", 12, &zFileInfo::zVersion},
              {"InternalName", 16, &zFileInfo::zInternalName},
              {"LegalCopyright", 16, &zFileInfo::zCopyright},
              {"OriginalFilename", 20, &zFileInfo::zOriginalName},
              {"ProductName", 12, &zFileInfo::zProductName},
              {"ProductVersion", 16, &zFileInfo::zProductVersion}};
  for (const auto& key : keys) {
    std::string record = "xyz" + key.key;
    record.resize(3 + key.distance, '.');
    Read(record + std::string("valeur\0suite", 12));
    EXPECT_EQ((info_.*key.get)(), u"valeur") << key.key;
  }
}

TEST_F(FileInfoTest, AKeyWithinALongerTextIsTakenAtItsFirstOccurrenceAllTheSame) {
  std::string record = "MyFileVersionX";
  record.resize(2 + 12);
  record += std::string("premier\0", 8);
  record += std::string("FileVersion\0second\0", 19);
  Read(record);
  EXPECT_EQ(info_.zVersion(), u"premier");
}

TEST_F(FileInfoTest, KeysAreExactInCase) {
  Read(std::string("FILEVERSION\0un\0fileversion\0deux\0", 32));
  EXPECT_EQ(info_.zVersion(), u"");
}

TEST_F(FileInfoTest, AValueThatRunsToTheEndOfTheBlockKeepsAllOfIt) {
  Read(std::string("ProductName\0tout jusqu'au bout", 30));
  EXPECT_EQ(info_.zProductName(), u"tout jusqu'au bout");
}

TEST_F(FileInfoTest, AKeyAtTheVeryEndHasAnEmptyValue) {
  Read("FileDescription");
  EXPECT_EQ(info_.zDescription(), u"");
  Read(std::string("OriginalFilename\0", 17));
  EXPECT_EQ(info_.zOriginalName(), u"");
}

TEST_F(FileInfoTest, ValuesAreNotTrimmed) {
  Read(std::string("ProductName\0  Jeu  \0", 20));
  EXPECT_EQ(info_.zProductName(), u"  Jeu  ");
}

TEST_F(FileInfoTest, SixteenBitStringsStayUnmatched) {
  Read(VersionBlock16({{"FileDescription", "Jeu"}, {"FileVersion", "1.0"}}));
  EXPECT_THAT(RecordFields(), Each(u""));
  EXPECT_EQ(info_.zSize(), u"  2");
}

TEST_F(FileInfoTest, ARecordThatCannotBeReadLeavesSizeAndDate) {
  platform_.read_fails = true;
  Read(VersionBlock8({{"FileDescription", "Jeu"}}));
  EXPECT_EQ(info_.zSize(), u"  2");
  EXPECT_EQ(info_.zDate(), u"01/03/1997");
  EXPECT_THAT(RecordFields(), Each(u""));
}

TEST_F(FileInfoTest, AnErrorKeepsWhatWasFilledSoFar) {
  platform_.size_fails = true;
  Read(VersionBlock8({{"FileDescription", "Jeu"}}));
  EXPECT_EQ(info_.zSize(), u"  2");
  EXPECT_THAT(RecordFields(), Each(u""));
  platform_.status_fails = true;
  info_.PutFileName(u"D:\\A.EXE");
  EXPECT_THAT(Fields(), Each(u""));
}

TEST_F(FileInfoTest, AFileThatVanishedLeavesAllFieldsEmpty) {
  Read(VersionBlock8({{"FileDescription", "Jeu"}}));
  disc.Remove("A.EXE");
  info_.PutFileName(u"D:\\A.EXE");
  EXPECT_THAT(Fields(), Each(u""));
}

TEST_F(FileInfoTest, AnObjectIsEmptiedBeforeItTakesAnotherFile) {
  Read(VersionBlock8({{"FileDescription", "Jeu"}, {"FileVersion", "1.0"}}));
  Read(VersionBlock8({{"FileVersion", "2.0"}}));
  EXPECT_EQ(info_.zDescription(), u"");
  EXPECT_EQ(info_.zVersion(), u"2.0");
}

TEST_F(FileInfoTest, SettersReplaceAFieldAlone) {
  info_.zDescription(u"autre");
  info_.zSizeKo(u" 1");
  EXPECT_EQ(info_.zDescription(), u"autre");
  EXPECT_EQ(info_.zSizeKo(), u" 1");
  EXPECT_EQ(info_.zSize(), u"");
}

TEST_F(FileInfoTest, BehindKeyGivesAllThatFollows) {
  const std::string record("ProductName\0Jeu\0suite", 21);
  EXPECT_EQ(BehindKey(record, "ProductName", 12), std::string("Jeu\0suite", 9));
  EXPECT_EQ(BehindKey(record, "ProductName", 100), "");
  EXPECT_EQ(BehindKey(record, "FileVersion", 12), std::nullopt);
}

// The same through the real operations of the platform.
class RealFileInfoTest : public LogicTest {};

TEST_F(RealFileInfoTest, AnExecutableOf16BitWindowsShowsItsRecord) {
  disc.File("A.EXE", NeExecutable(VersionBlock8({{"FileDescription", "Jeu"}})));
  zFileInfo info;
  info.PutFileName(u"D:\\A.EXE");
  EXPECT_EQ(info.zDescription(), u"Jeu");
  EXPECT_EQ(info.zVersion(), u"");
}

TEST_F(RealFileInfoTest, AnExecutableOf32BitWindowsWith16BitStringsShowsNone) {
  disc.File("A.EXE", PeExecutable(VersionBlock16({{"FileDescription", "Jeu"}})));
  zFileInfo info;
  info.PutFileName(u"D:\\A.EXE");
  EXPECT_EQ(info.zDescription(), u"");
  EXPECT_NE(info.zSize(), u"");
}

}  // namespace
}  // namespace trovex::test
