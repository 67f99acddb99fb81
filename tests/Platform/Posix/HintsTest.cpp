// What the platform remembers of the disk never shows: every change is seen at once.
#include <filesystem>
#include <fstream>

#include "Platform/Posix/PosixFixture.h"
#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Hints : public PosixFixture {
 protected:
  void Rename(const char* from, const char* to) {
    std::filesystem::rename(disc_.HostPath(from), disc_.HostPath(to));
  }
};

TEST_F(Hints, ANewFileIsSeen) {
  disc_.File("JEUX/A.TXT");
  EXPECT_FALSE(Exists(u"D:\\Jeux\\B.TXT"));
  disc_.File("JEUX/B.TXT");
  EXPECT_TRUE(Exists(u"D:\\Jeux\\B.TXT"));
}

TEST_F(Hints, ADeletedFileIsGone) {
  disc_.File("JEUX/A.TXT");
  EXPECT_TRUE(Exists(u"D:\\Jeux\\A.TXT"));
  disc_.Remove("JEUX/A.TXT");
  EXPECT_FALSE(Exists(u"D:\\Jeux\\A.TXT"));
  EXPECT_THAT(FindAll(u"D:\\Jeux\\A.TXT"), IsEmpty());
  EXPECT_EQ(ReadError(u"D:\\Jeux\\A.TXT"), ErrorNumber::kFileNotFound);
}

TEST_F(Hints, AFileThatChangesTheCaseOfItsNameIsFound) {
  disc_.File("JEUX/A.TXT", "a");
  EXPECT_EQ(Contents(u"D:\\Jeux\\A.TXT"), "a");
  Rename("JEUX/A.TXT", "JEUX/a.txt");
  EXPECT_EQ(Contents(u"D:\\Jeux\\A.TXT"), "a");
  EXPECT_THAT(FindAll(u"D:\\Jeux\\A.TXT"), ElementsAre(u"a.txt"));
}

TEST_F(Hints, ADirectoryThatChangesTheCaseOfItsNameIsFound) {
  disc_.File("JEUX/CARTES/A.TXT", "a");
  EXPECT_EQ(Contents(u"D:\\Jeux\\Cartes\\A.TXT"), "a");
  Rename("JEUX", "jeux");
  EXPECT_EQ(Contents(u"D:\\Jeux\\Cartes\\A.TXT"), "a");
  Rename("jeux/CARTES", "jeux/cartes");
  EXPECT_THAT(FindAll(u"D:\\Jeux\\Cartes\\*.*"), ElementsAre(u".", u"..", u"A.TXT"));
  disc_.Remove("jeux");
  EXPECT_FALSE(Exists(u"D:\\Jeux\\Cartes\\A.TXT"));
  EXPECT_THAT(FindAll(u"D:\\Jeux\\Cartes\\*.*"), IsEmpty());
}

TEST_F(Hints, AFileThatBecomesADirectoryIsOne) {
  disc_.File("JEUX");
  EXPECT_TRUE(Exists(u"D:\\JEUX"));
  disc_.Remove("JEUX");
  disc_.File("JEUX/A.TXT", "a");
  EXPECT_EQ(Status(u"D:\\JEUX").attributes, kAttributeDirectory);
  EXPECT_EQ(Contents(u"D:\\JEUX\\A.TXT"), "a");
}

TEST_F(Hints, AVersionRecordIsThatOfTheFileAsked) {
  const std::string first = VersionBlock8({{"FileVersion", "1.0"}});
  const std::string second = VersionBlock8({{"FileVersion", "2.0"}});
  disc_.File("A.EXE", NeExecutable(first));
  disc_.File("B.EXE", NeExecutable(second));
  const std::uint32_t size = platform_.GetFileVersionInfoSize(u"D:\\A.EXE");
  std::string block;
  EXPECT_TRUE(platform_.GetFileVersionInfo(u"D:\\B.EXE", size, block));
  EXPECT_EQ(block, second);
  EXPECT_TRUE(platform_.GetFileVersionInfo(u"D:\\A.EXE", size, block));
  EXPECT_EQ(block, first);
}

TEST_F(Hints, AVersionRecordMeasuredBeforeAWriteIsReadAgain) {
  const std::string first = VersionBlock8({{"FileVersion", "1.0"}});
  const std::string second = NeExecutable(VersionBlock8({{"FileVersion", "2.0"}}));
  disc_.File("A.EXE", NeExecutable(first));
  const std::uint32_t size = platform_.GetFileVersionInfoSize(u"D:\\A.EXE");
  Write(u"D:\\A.EXE", second);
  std::string block;
  EXPECT_TRUE(platform_.GetFileVersionInfo(u"D:\\A.EXE", size, block));
  EXPECT_NE(block.find("2.0"), std::string::npos);
}

TEST_F(Hints, MoreDirectoriesThanAreRememberedStayInReach) {
  for (int number = 0; number < 600; ++number) {
    disc_.File("NIVEAU/D" + std::to_string(number) + "/A.TXT", std::to_string(number));
  }
  for (int round = 0; round < 2; ++round) {
    for (int number = 0; number < 600; ++number) {
      const Text name = u"D:\\Niveau\\d" + Decimal(number) + u"\\a.txt";
      ASSERT_EQ(Contents(name), std::to_string(number));
    }
  }
}

}  // namespace
}  // namespace trovex::test
