// What the command line does with things that only this system has.
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "Apps/CliTest.h"
#include "support/Posix/OrdinaryUser.h"

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

TEST_F(PosixCliTest, DirectoriesNamedAsWindowsOwnAreTheDiscsOnAnyDrive) {
  for (const char* name : {"JEU.EXE", "JEU.TXT", "SYSTEM/SHELL32.DLL", "EXPLORER.EXE"}) {
    disc_.File(std::string("WINDOWS/") + name, DosExecutable());
  }
  disc_.File("WINDOWS/SYSTEM/OUTIL.EXE", DosExecutable());
  disc_.File("WINDOWS/SYSTEM/OUTIL.TXT", "texte");
  const auto lists = [&](const char* drive) {
    std::vector<Json> found;
    const Json catalogue = Catalogue({"--inspect", "--drive", drive});
    for (const Json& details : catalogue["tables"][1]["details"]) {
      found.push_back(details["ListFichier"]);
    }
    return found;
  };
  EXPECT_EQ(lists("C"), lists("D"));
  EXPECT_EQ(lists("C").back(), Json::array({"Outil.txt"}));
}

// The system's library has an icon, so that there is no sign of a program without one.
TEST_F(PosixCliTest, ATypeThatNothingNamesHasTheSystemsIconAndNoLabel) {
  disc_.File("WIN95/A.B.EXE", DosExecutable());
  disc_.File("WIN95/NOM.X.ZIP", ZipArchive(200));
  const Json tables = Catalogue({"--inspect"})["tables"];
  for (const int table : {1, 2}) {
    const Json& boxes = tables[table]["details"][0]["TextInfo"];
    EXPECT_EQ(boxes[2], "Programme Windows 95") << "the kind by the directory's name";
    EXPECT_EQ(boxes[4], "");
  }
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
  EXPECT_EQ(Run({"--json"}), cli::kIncomplete);
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
  while (std::getline(lines, line) && line.find("Lecture") == std::string::npos) {
    ++count;
    EXPECT_THAT(line, StartsWith("trovex-cli: Ouverture impossibleD:\\readme.txt"));
  }
  EXPECT_EQ(count, 4);
  EXPECT_EQ(line, "trovex-cli: Lecture impossible : " + Argument("README.TXT"));
}

// --- What could not be read ---

class UnreadCliTest : public PosixCliTest {
 protected:
  void Lock(const std::string& path, std::filesystem::perms left = std::filesystem::perms::none) {
    std::filesystem::permissions(disc_.HostPath(path), left);
    locked_.push_back(path);
  }
  ~UnreadCliTest() override {
    for (const std::string& path : locked_) {
      std::filesystem::permissions(disc_.HostPath(path), std::filesystem::perms::owner_all);
    }
  }
  static std::string Line(const std::string& text) {
    return "trovex-cli: Lecture impossible : " + text + "\n";
  }

  std::vector<std::string> locked_;
  const OrdinaryUser user_;
};

TEST_F(UnreadCliTest, NothingThatWasReadIsToldAndTheStatusIsZero) {
  disc_.File("A.EXE", DosExecutable());
  EXPECT_FALSE(Catalogue({"--inspect"}).contains("unread"));
}

TEST_F(UnreadCliTest, DirectoriesAndProgramsThatAreRefusedAreToldWithTheUsersOwnNames) {
  disc_.File("JEUX/SECRET/A.EXE", DosExecutable());
  disc_.File("JEUX/B.EXE", DosExecutable());
  disc_.File("C.EXE", DosExecutable());
  Lock("JEUX/SECRET");
  Lock("JEUX/B.EXE");
  EXPECT_EQ(Run({"--json", "--quiet"}), cli::kIncomplete);
  const Json catalogue = Json::parse(out_);
  EXPECT_EQ(catalogue["unread"], Json({"D:\\Jeux\\B.EXE", "D:\\Jeux\\Secret"}));
  EXPECT_EQ(catalogue["tables"][1]["rows"].size(), 2u);
  EXPECT_EQ(err_, Line(Argument("JEUX/B.EXE")) + Line(Argument("JEUX/SECRET")));
}

TEST_F(UnreadCliTest, AnIniFileThatIsRefusedIsToldThoughNoBoxComesUp) {
  disc_.File("A.EXE", DosExecutable());
  disc_.File("SETUP.LST", "[Setup]\r\nTitle=Jeu\r\n");
  Lock("SETUP.LST");
  EXPECT_EQ(Run({"--json"}), cli::kIncomplete);
  EXPECT_EQ(Json::parse(out_)["unread"], Json({"D:\\SETUP.LST"}));
  EXPECT_EQ(Json::parse(out_)["messages"].size(), 0u);
}

TEST_F(UnreadCliTest, ACompanionThatIsRefusedIsToldByTheInspection) {
  disc_.File("A.EXE", DosExecutable());
  disc_.File("JEUX/B.EXE", DosExecutable());
  disc_.File("JEUX/NOTES.TXT", "texte");
  Lock("JEUX/NOTES.TXT");
  EXPECT_EQ(Run({"--json"}), cli::kDone);
  EXPECT_EQ(Run({"--json", "--inspect"}), cli::kIncomplete);
  EXPECT_EQ(Json::parse(out_)["unread"], Json({"D:\\Jeux\\Notes.txt"}));
}

TEST_F(UnreadCliTest, ADirectoryBelowOneThatCannotBeEnteredIsToldAndTheOthersAreCatalogued) {
  disc_.File("JEUX/SOUS/A.EXE", DosExecutable());
  disc_.File("ZEBRE/Z.EXE", DosExecutable());
  Lock("JEUX", std::filesystem::perms::owner_read);
  EXPECT_EQ(Run({"--json", "--inspect"}), cli::kIncomplete);
  EXPECT_EQ(Json::parse(out_)["unread"], Json({"D:\\Jeux\\Sous"}));
  EXPECT_EQ(Json::parse(out_)["tables"][1]["rows"].size(), 1u);
  EXPECT_EQ(err_, Line(Argument("JEUX/SOUS")));
}

TEST_F(UnreadCliTest, ADirectoryWithALinkThatCannotBeFollowedIsTold) {
  disc_.File("SECRET/A.EXE", DosExecutable());
  disc_.File("JEUX/B.EXE", DosExecutable());
  std::filesystem::create_symlink("../SECRET/A.EXE", disc_.HostPath("JEUX/LIEN.EXE"));
  Lock("SECRET", std::filesystem::perms::owner_read);
  EXPECT_EQ(Run({"--json", "--start", "D:\\JEUX"}), cli::kIncomplete);
  EXPECT_EQ(Json::parse(out_)["unread"], Json({"D:\\JEUX"}));
  EXPECT_EQ(Json::parse(out_)["tables"][1]["rows"].size(), 1u);
}

TEST_F(UnreadCliTest, TwentyAreToldByNameAndTheOthersCounted) {
  for (int i = 10; i < 35; ++i) {
    const std::string name = "P" + std::to_string(i) + ".EXE";
    disc_.File(name, DosExecutable());
    Lock(name);
  }
  EXPECT_EQ(Run({"--json"}), cli::kIncomplete);
  EXPECT_EQ(Json::parse(out_)["unread"].size(), 25u);
  EXPECT_EQ(std::count(err_.begin(), err_.end(), '\n'), 21);
  EXPECT_THAT(err_, StartsWith(Line(Argument("P10.EXE"))));
  EXPECT_THAT(err_, testing::EndsWith(Line(Argument("P29.EXE")) + Line("5 autres")));
}

TEST_F(UnreadCliTest, AnExportThatFailsGoesBefore) {
  disc_.File("A.EXE", DosExecutable());
  Lock("A.EXE");
  EXPECT_EQ(Run({"--quiet", "--csv", Argument("RIEN/A.CSV")}), cli::kExportFailed);
  EXPECT_THAT(err_, HasSubstr(Line(Argument("A.EXE"))));
}

}  // namespace
}  // namespace trovex::test
