// Version records of executables.
#include "Platform/contract/Contract.h"
#include "support/DamagedPrograms.h"
#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

using testing::StartsWith;

const VersionStrings kStrings = {{"CompanyName", "Les Logiciels R\xE9unis"},
                                 {"FileDescription", "Jeu de dames"},
                                 {"FileVersion", "1.20"},
                                 {"ProductName", "Dames"}};

class VersionContract : public Contract {
 protected:
  std::uint32_t SizeOf(std::string_view executable) {
    disc_.File("ESSAI.EXE", executable);
    return platform_.GetFileVersionInfoSize(u"D:\\ESSAI.EXE");
  }
  // The whole record; empty where there is none.
  std::string RecordOf(std::string_view executable) {
    const std::uint32_t size = SizeOf(executable);
    std::string block = "reste";
    const bool found = platform_.GetFileVersionInfo(u"D:\\ESSAI.EXE", size, block);
    EXPECT_EQ(found, size > 0);
    EXPECT_EQ(block.size(), size);
    return block;
  }
};

TEST_F(VersionContract, ReadsTheRecordOf16BitExecutables) {
  const std::string block = VersionBlock8(kStrings);
  EXPECT_EQ(RecordOf(NeExecutable(block)), block);
}

TEST_F(VersionContract, ReadsTheRecordOf32BitExecutables) {
  const std::string narrow = VersionBlock8(kStrings);
  EXPECT_EQ(RecordOf(PeExecutable(narrow)), narrow);
  const std::string wide = VersionBlock16(kStrings);
  EXPECT_EQ(RecordOf(PeExecutable(wide)), wide);
}

TEST_F(VersionContract, WideStringsDoNotShowAsNarrowOnes) {
  const std::string block = RecordOf(PeExecutable(VersionBlock16(kStrings)));
  EXPECT_FALSE(block.empty());
  EXPECT_EQ(block.find("FileDescription"), std::string::npos);
  EXPECT_EQ(block.find("Jeu de dames"), std::string::npos);
}

TEST_F(VersionContract, AnIconDoesNotHideTheRecord) {
  const std::string block = VersionBlock8(kStrings);
  EXPECT_EQ(RecordOf(NeExecutable(block, Icon::kPresent)), block);
  EXPECT_EQ(RecordOf(PeExecutable(block, Icon::kPresent)), block);
}

TEST_F(VersionContract, NamesTakeNoNoticeOfCase) {
  const std::string block = VersionBlock8(kStrings);
  disc_.File("Jeux/Dames.exe", NeExecutable(block));
  EXPECT_EQ(platform_.GetFileVersionInfoSize(u"D:\\JEUX\\DAMES.EXE"), block.size());
}

TEST_F(VersionContract, ALengthOfItsOwnCutsOrFillsUp) {
  const std::string block = VersionBlock8(kStrings);
  disc_.File("ESSAI.EXE", NeExecutable(block));
  std::string bytes;
  EXPECT_TRUE(platform_.GetFileVersionInfo(u"D:\\ESSAI.EXE", 10, bytes));
  EXPECT_EQ(bytes, block.substr(0, 10));
  const auto longer = static_cast<std::uint32_t>(block.size() + 40);
  EXPECT_TRUE(platform_.GetFileVersionInfo(u"D:\\ESSAI.EXE", longer, bytes));
  EXPECT_EQ(bytes.size(), longer);
  EXPECT_THAT(bytes, StartsWith(block));
}

TEST_F(VersionContract, ExecutablesWithoutResourcesHaveNone) {
  EXPECT_EQ(RecordOf(NeExecutable({})), "");
  EXPECT_EQ(RecordOf(PeExecutable({})), "");
  EXPECT_EQ(RecordOf(NeExecutable({}, Icon::kPresent)), "");
  EXPECT_EQ(RecordOf(PeExecutable({}, Icon::kPresent)), "");
  EXPECT_EQ(RecordOf(DosExecutable()), "");
}

TEST_F(VersionContract, WhatIsNoExecutableHasNone) {
  EXPECT_EQ(RecordOf(ZipArchive(100)), "");
  EXPECT_EQ(RecordOf("MZ"), "");
  EXPECT_EQ(RecordOf(""), "");
  EXPECT_EQ(RecordOf(std::string(5000, 'M')), "");
}

TEST_F(VersionContract, WhatIsNoFileHasNone) {
  disc_.Directory("JEUX");
  for (const Text& name : {Text(u"D:\\AUTRE.EXE"), Text(u"D:\\NULLEPART\\A.EXE"), Text(u"D:\\JEUX"),
                           Text(u"D:\\NUL"), Text()}) {
    std::string block = "reste";
    EXPECT_EQ(platform_.GetFileVersionInfoSize(name), 0U);
    EXPECT_FALSE(platform_.GetFileVersionInfo(name, 100, block));
    EXPECT_EQ(block, "");
  }
}

// A record whose length reaches behind its resource.
TEST_F(VersionContract, ARecordLongerThanItsResourceIsNone) {
  std::string block = VersionBlock8(kStrings);
  block[1] = static_cast<char>(0x7F);
  EXPECT_EQ(SizeOf(NeExecutable(block)), 0U);
  EXPECT_EQ(SizeOf(PeExecutable(block)), 0U);
}

// Whatever part of the file is cut away: the record is there whole, or there is none.
TEST_F(VersionContract, AFileCutShortNeverGivesPartOfARecord) {
  const std::string block = VersionBlock8(kStrings);
  for (const std::string& whole : {NeExecutable(block), PeExecutable(block)}) {
    const std::size_t end = whole.find(block) + block.size();
    for (std::size_t length = 0; length <= whole.size(); length += 7) {
      const std::string record = RecordOf(whole.substr(0, length));
      EXPECT_TRUE(record.empty() || (record == block && length >= end)) << length;
    }
    EXPECT_EQ(RecordOf(whole), block);
  }
}

// A record's size was taken for the length of a text once, its address for one inside the file.
TEST_F(VersionContract, DamagedExecutablesGiveAnAnswer) {
  for (const DamagedProgram& program : SomeDamagedPrograms()) {
    const std::string record = RecordOf(program.contents);
    EXPECT_TRUE(record.empty() || program.contents.find(record) != std::string::npos)
        << program.path;
  }
}

TEST_F(VersionContract, StatusAndRecordComeTogether) {
  const std::string block = VersionBlock8(kStrings), executable = NeExecutable(block);
  disc_.File("ESSAI.EXE", executable);
  disc_.File("NOTES.EXE", "texte");
  disc_.Directory("JEUX");
  FileStatus status, expected;
  std::string record;
  EXPECT_EQ(platform_.GetFileProperties(u"D:\\ESSAI.EXE", status, record), Reading::kAll);
  EXPECT_TRUE(platform_.GetFileStatus(u"D:\\ESSAI.EXE", expected));
  EXPECT_EQ(record, block);
  EXPECT_EQ(status.length, static_cast<std::int64_t>(executable.size()));
  EXPECT_EQ(status.modified, expected.modified);
  EXPECT_EQ(status.attributes, expected.attributes);
  EXPECT_EQ(platform_.GetFileProperties(u"D:\\NOTES.EXE", status, record), Reading::kAll);
  EXPECT_EQ(record, "");
  EXPECT_EQ(platform_.GetFileProperties(u"D:\\JEUX", status, record), Reading::kAll);
  EXPECT_EQ(status.attributes & kAttributeDirectory, kAttributeDirectory);
  EXPECT_EQ(platform_.GetFileProperties(u"D:\\AUTRE.EXE", status, record), Reading::kNothing);
  EXPECT_EQ(platform_.GetFileProperties({}, status, record), Reading::kNothing);
}

TEST_F(VersionContract, ARewrittenFileShowsItsNewRecord) {
  const std::string first = VersionBlock8({{"FileVersion", "1.0"}});
  const std::string second = VersionBlock8({{"FileVersion", "2.0"}});
  EXPECT_EQ(RecordOf(NeExecutable(first)), first);
  EXPECT_EQ(RecordOf(NeExecutable(second)), second);
}

}  // namespace
}  // namespace trovex::test
