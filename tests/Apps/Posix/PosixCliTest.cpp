// What the command line does with things that only this system has.
#include <sys/stat.h>

#include <filesystem>

#include "Apps/CliTest.h"

namespace trovex::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class PosixCliTest : public CliTest {};

TEST_F(PosixCliTest, TheDirectoryIsTheRootOfTheDrive) {
  disc_.File("JEUX/DAMES.EXE", DosExecutable());
  for (const char* drive : {"E", "e", "E:", "e:"}) {
    const Json catalogue = Catalogue({"--drive", drive});
    EXPECT_EQ(catalogue["start"], "E:\\") << drive;
    EXPECT_EQ(catalogue["tables"][1]["rows"][0][1], " E:\\Jeux") << drive;
  }
  EXPECT_EQ(Catalogue({"--drive", "Z"})["start"], "Z:\\");
  EXPECT_EQ(Catalogue({"--drive", "E", "--start", "E:\\JEUX"})["tables"][1]["rows"].size(), 1u);
}

TEST_F(PosixCliTest, AStartOnADriveThatIsNotThereIsWrong) {
  ExpectWrong({Argument(), "--drive", "E", "--start", "D:\\"}, "--start D:\\");
}

TEST_F(PosixCliTest, AnyDirectoryMayBeTheRoot) {
  disc_.File("JEUX/DAMES.EXE", DosExecutable());
  EXPECT_EQ(RunWith({Argument("JEUX"), "--json"}), cli::kDone);
  EXPECT_EQ(Json::parse(out_)["tables"][1]["rows"][0][1], " D:\\");
  EXPECT_EQ(RunWith({Argument("JEUX") + "/", "--json"}), cli::kDone);
  EXPECT_EQ(Json::parse(out_)["tables"][1]["rows"].size(), 1u);
}

TEST_F(PosixCliTest, ALinkToADirectoryMayBeTheRoot) {
  disc_.File("JEUX/DAMES.EXE", DosExecutable());
  std::filesystem::create_directory_symlink("JEUX", disc_.HostPath("LIEN"));
  EXPECT_EQ(RunWith({Argument("LIEN"), "--json"}), cli::kDone);
  EXPECT_EQ(Json::parse(out_)["tables"][1]["rows"].size(), 1u);
}

TEST_F(PosixCliTest, AFifoInTheDirectorysPlaceIsWrong) {
  ASSERT_EQ(mkfifo(disc_.HostPath("TUBE").c_str(), 0600), 0);
  ExpectWrong({Argument("TUBE")}, "is not a directory");
}

TEST_F(PosixCliTest, NamesThatAreNotUtf8MakeJsonAllTheSame) {
  disc_.File("JE\xFF.EXE", NeExecutable(VersionBlock8({{"FileDescription", "atteint"}})));
  const Json row = Catalogue()["tables"][1]["rows"][0];
  EXPECT_EQ(row[0], "atteint");
  EXPECT_EQ(row[2], " Je\xEF\xBF\xBD.exe");
}

TEST_F(PosixCliTest, ControlCharactersDoNotReachATerminal) {
  disc_.File("A\x1B[31m\n.EXE", NeExecutable(VersionBlock8({{"FileDescription", "atteint"}})));
  EXPECT_EQ(Run({}), cli::kDone);
  EXPECT_THAT(out_, HasSubstr("atteint"));
  EXPECT_THAT(out_, HasSubstr("A?[31m?.exe"));
  EXPECT_EQ(out_.find('\x1B'), std::string::npos);
  EXPECT_EQ(Catalogue()["tables"][1]["rows"][0][2], " A\x1B[31m\n.exe");
}

// A text that opens and cannot be read: the program's own memory begins with a hole.
TEST_F(PosixCliTest, ErrorBoxesAreRecordedAndGoToStandardErrorAsOftenAsTheyCome) {
  disc_.File("JEU.EXE", DosExecutable());
  std::filesystem::create_symlink("/proc/self/mem", disc_.HostPath("README.TXT"));
  EXPECT_EQ(Run({"--json"}), cli::kDone);
  const Json catalogue = Json::parse(out_);
  const Json& messages = catalogue["messages"];
  // Two lines in each of two passes.
  ASSERT_EQ(messages.size(), 4u);
  for (const Json& message : messages) {
    EXPECT_EQ(message["kind"], "erreur");
    EXPECT_EQ(message["title"], "Error message");
    EXPECT_THAT(message["text"].get<std::string>(),
                StartsWith("Ouverture impossibleD:\\readme.txt"));
    EXPECT_EQ(message.size(), 3u);
  }
  EXPECT_EQ(catalogue["tables"][1]["rows"][0][0], "");
  std::istringstream lines(err_);
  std::string line;
  int count = 0;
  while (std::getline(lines, line)) {
    ++count;
    EXPECT_THAT(line, StartsWith("trovex-cli: Ouverture impossibleD:\\readme.txt"));
  }
  EXPECT_EQ(count, 4);
}

}  // namespace
}  // namespace trovex::test
