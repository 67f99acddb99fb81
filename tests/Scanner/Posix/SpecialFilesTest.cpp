// What a tree may hold on this system and on no disc of the program's time.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "Scanner/ScanTest.h"

namespace trovex::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class SpecialFilesTest : public ScanTest {
 protected:
  void Fifo(const char* path) { ASSERT_EQ(mkfifo(disc.HostPath(path).c_str(), 0600), 0); }
};

TEST_F(SpecialFilesTest, AFifoIsNeitherListedNorOpened) {
  Dos("JEU.EXE");
  for (const char* name : {"TUBE.EXE", "SETUP.EXE", "A.ZIP", "README.TXT", "SETUP.LST"}) Fifo(name);
  Scan();  // an opened one would wait for ever
  EXPECT_THAT(Places(0), IsEmpty());
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\| Jeu.exe"));
  EXPECT_THAT(Places(2), IsEmpty());
  EXPECT_THAT(platform_.opened, IsEmpty());
  EXPECT_EQ(Description(), u"Ne contient pas de nom produit.");
}

TEST_F(SpecialFilesTest, LinksToFilesAreFiles) {
  Program("VRAI.EX", {{"FileDescription", u"Par un lien"}});
  fs::create_symlink("VRAI.EX", disc.HostPath("LIEN.EXE"));
  fs::create_symlink("RIEN.EX", disc.HostPath("MORT.EXE"));
  fs::create_symlink("MOI.EXE", disc.HostPath("MOI.EXE"));
  Scan();
  EXPECT_THAT(Only(1), ElementsAre(u"Par un lien", u" D:\\", u" Lien.exe", u""));
}

TEST_F(SpecialFilesTest, AWalkEndsThoughLinksLeadInCircles) {
  Dos("JEUX/A.EXE");
  fs::create_directory_symlink("..", disc.HostPath("JEUX/HAUT"));
  fs::create_directory_symlink(".", disc.HostPath("ICI"));
  fs::create_directory_symlink(disc.HostPath(""), disc.HostPath("JEUX/RACINE"));
  Scan();
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\Jeux| A.exe"));
}

TEST_F(SpecialFilesTest, NamesThatAreNotUtf8AreListedAndReachable) {
  Program("R\xE9PERT/JE\xFFU.EXE", {{"FileDescription", u"atteint"}});
  Scan();
  ASSERT_EQ(Rows(1).size(), 1u);
  EXPECT_EQ(Description(), u"atteint");
  EXPECT_EQ(Only(1)[1], FromUtf8(" D:\\R\xE9pert"));
  EXPECT_EQ(ToUtf8(Only(1)[2]), " Je\xFFu.exe");
}

TEST_F(SpecialFilesTest, NamesWithControlCharactersAndSignsAreListedAndReachable) {
  Program("a\tb\n/JEU\x01 \"?*<>|.EXE", {{"FileDescription", u"atteint"}});
  Lines("a\tb\n/LOGICIEL.TXT", {u"", u"Version : 1.2"});
  Scan();
  EXPECT_THAT(Only(1), ElementsAre(u"atteint", u" D:\\A\tB\n", u" Jeu\x01 \"?*<>|.exe", u"1.2"));
}

TEST_F(SpecialFilesTest, FilesThatDifferOnlyInCaseAreBothReachable) {
  Program("JEU.EXE", {{"FileDescription", u"en capitales"}});
  Program("jeu.exe", {{"FileDescription", u"en minuscules"}});
  Scan();
  EXPECT_THAT(Places(1), UnorderedElementsAre(u" D:\\| Jeu.exe", u" D:\\| Jeu~2.exe"));
  EXPECT_THAT((std::vector{Rows(1)[0][0], Rows(1)[1][0]}),
              UnorderedElementsAre(u"en capitales", u"en minuscules"));
}

TEST_F(SpecialFilesTest, DirectoriesThatDifferOnlyInCaseAreBothWalked) {
  Program("JEUX/A.EXE", {{"FileDescription", u"en capitales"}});
  Program("jeux/B.EXE", {{"FileDescription", u"en minuscules"}});
  Scan();
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\Jeux| A.exe", u" D:\\Jeux~2| B.exe"));
  EXPECT_EQ(Rows(1)[0][0], u"en capitales");
  EXPECT_EQ(Rows(1)[1][0], u"en minuscules");
}

TEST_F(SpecialFilesTest, AHiddenTextIsAbsentForTheAnalysis) {
  Dos("JEU.EXE");
  Lines(".README.TXT", {u"Jamais lu"});
  Scan();
  EXPECT_EQ(Description(), u"Ne contient pas de nom produit.");
}

TEST_F(SpecialFilesTest, AVeryDeepTreeIsWalkedToItsEnd) {
  // Deeper than the longest path that the system takes in one piece.
  const std::string level(100, 'n');
  int directory = open(disc.HostPath("").c_str(), O_RDONLY | O_DIRECTORY);
  constexpr int kDepth = 60;
  for (int depth = 0; depth < kDepth; ++depth) {
    ASSERT_EQ(mkdirat(directory, level.c_str(), 0700), 0);
    const int below = openat(directory, level.c_str(), O_RDONLY | O_DIRECTORY);
    close(directory);
    directory = below;
  }
  const int file = openat(directory, "FOND.EXE", O_WRONLY | O_CREAT, 0600);
  ASSERT_GE(file, 0);
  close(file);
  close(directory);
  Scan();
  ASSERT_EQ(Rows(1).size(), 1u);
  EXPECT_EQ(Only(1)[1].size(), 3 + kDepth * (level.size() + 1));
  EXPECT_EQ(Only(1)[2], u" Fond.exe");
}

// How many directories this process holds open.
int OpenDirectories() {
  std::error_code gone;
  return static_cast<int>(std::count_if(
      fs::directory_iterator("/proc/self/fd"), fs::directory_iterator(),
      [&](const fs::directory_entry& entry) { return fs::is_directory(entry.path(), gone); }));
}

TEST_F(SpecialFilesTest, OfAVeryDeepTreeTheUpperDirectoriesAreClosedAndTheWalkGoesOn) {
  std::string path;
  for (int depth = 0; depth < 100; ++depth) {
    path += "N/";
    disc.File(path + "A.EXE");
    disc.File(path + "Z/B.EXE");  // its turn comes when the walk is back from below
  }
  int most = 0;
  platform_.before_listing = [&](const Text&) { most = std::max(most, OpenDirectories()); };
  Scan();
  EXPECT_EQ(Rows(1).size(), 200u);
  EXPECT_LE(most, 70);
}

}  // namespace
}  // namespace trovex::test
