#include "support/SampleDisc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "support/TestDisc.h"

namespace trovex::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

std::string Contents(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream bytes;
  bytes << stream.rdbuf();
  return bytes.str();
}

// Every file below `root` by its path from there, with its contents and date.
std::map<fs::path, std::pair<std::string, fs::file_time_type>> Files(const fs::path& root) {
  std::map<fs::path, std::pair<std::string, fs::file_time_type>> files;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    if (!entry.is_regular_file()) continue;
    files[fs::relative(entry.path(), root)] = {Contents(entry.path()), entry.last_write_time()};
  }
  return files;
}

class SampleDiscTest : public testing::Test {
 protected:
  TestDisc disc_;
};

TEST_F(SampleDiscTest, TwoDiscsAreTheSame) {
  WriteSampleDisc(disc_.HostPath("A"));
  WriteSampleDisc(disc_.HostPath("B"));
  const auto files = Files(disc_.HostPath("A"));
  EXPECT_GT(files.size(), 60U);
  EXPECT_EQ(files, Files(disc_.HostPath("B")));
}

TEST_F(SampleDiscTest, WritingAgainRestoresAChangedFileAndKeepsOthers) {
  WriteSampleDisc(disc_.HostPath("A"));
  const auto files = Files(disc_.HostPath("A"));
  disc_.File("A/LISEZMOI.TXT", "autre chose");
  disc_.File("A/A_MOI.TXT", "reste");
  WriteSampleDisc(disc_.HostPath("A"));
  EXPECT_EQ(Contents(disc_.HostPath("A/A_MOI.TXT")), "reste");
  disc_.Remove("A/A_MOI.TXT");
  EXPECT_EQ(files, Files(disc_.HostPath("A")));
}

TEST_F(SampleDiscTest, KnowsItsOwnDiscs) {
  disc_.Directory("A");
  EXPECT_FALSE(IsSampleDisc(disc_.HostPath("A")));
  disc_.File("A/DISQUE.ID", "autre disque\r\n");
  EXPECT_FALSE(IsSampleDisc(disc_.HostPath("A")));
  EXPECT_FALSE(IsSampleDisc(disc_.HostPath("ABSENT")));
  WriteSampleDisc(disc_.HostPath("A"));
  EXPECT_TRUE(IsSampleDisc(disc_.HostPath("A")));
}

TEST_F(SampleDiscTest, TextsAreInTheCodePageWithCarriageReturns) {
  WriteSampleDisc(disc_.HostPath("A"));
  const std::string text = Contents(disc_.HostPath("A/LISEZMOI.TXT"));
  EXPECT_THAT(text, StartsWith("\xC9t\xE9 1997 : le septi\xE8me disque"));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 5);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), 5);
}

TEST_F(SampleDiscTest, RecordsAreInTheCodePage) {
  WriteSampleDisc(disc_.HostPath("A"));
  EXPECT_THAT(Contents(disc_.HostPath("A/JEUX/ZOUK/SETUP.EXE")),
              HasSubstr("Programme d'amor\xE7"
                        "age de l'installation"));
}

TEST_F(SampleDiscTest, FilesBearTheDatesOfTheNineties) {
  WriteSampleDisc(disc_.HostPath("A"));
  FileStatus status;
  ASSERT_TRUE(disc_.GetPlatform().GetFileStatus(u"D:\\A\\JEUX\\ZOUK\\SETUP.EXE", status));
  EXPECT_EQ(status.modified, (LocalTime{1995, 3, 17, 10, 30, 0}));
}

}  // namespace
}  // namespace trovex::test
