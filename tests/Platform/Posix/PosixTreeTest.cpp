// What only a POSIX tree can hold: very long paths, special files, links, names of any bytes.
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>

#include "Platform/Posix/PosixFixture.h"
#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PosixTree : public PosixFixture {};

// 400 levels of 20 characters, twice as long as a path that the system takes at once. Returns the
// descriptor of the lowest one.
int MakeDeepTree(const TestDisc& disc, Text& name) {
  int directory = open(disc.HostPath("").c_str(), O_RDONLY | O_DIRECTORY);
  name = u"D:";
  for (int level = 0; level < 400; ++level) {
    const char* const kLevel = "Un Niveau Parmi 1234";
    mkdirat(directory, kLevel, 0777);
    const int next = openat(directory, kLevel, O_RDONLY | O_DIRECTORY);
    close(directory);
    directory = next;
    name += u"\\UN NIVEAU PARMI 1234";
  }
  return directory;
}

TEST_F(PosixTree, PathsLongerThanTheSystemTakesWork) {
  Text deep;
  const int directory = MakeDeepTree(disc_, deep);
  ASSERT_GE(directory, 0);
  ASSERT_GT(deep.size(), 8000u);
  close(openat(directory, "Jeu.exe", O_WRONLY | O_CREAT, 0666));
  close(directory);
  EXPECT_THAT(FindAll(deep + u"\\*.*"), ElementsAre(u".", u"..", u"Jeu.exe"));
  EXPECT_TRUE(Exists(deep + u"\\JEU.EXE"));
  Write(deep + u"\\Lisez.txt", "bonjour");
  EXPECT_EQ(Contents(deep + u"\\LISEZ.TXT"), "bonjour");
  platform_.CopyFile(deep + u"\\lisez.txt", deep + u"\\copie.txt");
  EXPECT_EQ(Contents(deep + u"\\copie.txt"), "bonjour");
  EXPECT_TRUE(platform_.WritePrivateProfileString(u"a", u"k", u"v", deep + u"\\a.ini"));
  Text value;
  EXPECT_EQ(platform_.GetPrivateProfileString(u"a", u"k", u"", value, 255, deep + u"\\A.INI"), 1u);
  platform_.ChangeDirectory(deep);
  EXPECT_TRUE(Exists(u"jeu.exe"));
  platform_.DeleteFile(u"JEU.EXE");
  EXPECT_FALSE(Exists(u"jeu.exe"));
}

TEST_F(PosixTree, SpecialFilesAreNeitherListedNorOpened) {
  ASSERT_EQ(mkfifo(disc_.HostPath("SETUP.EXE").c_str(), 0666), 0);
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  std::strncpy(address.sun_path, disc_.HostPath("prise").c_str(), sizeof address.sun_path - 1);
  const int bound = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(bind(bound, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  close(bound);
  std::filesystem::create_symlink("/dev/null", disc_.HostPath("nul.exe"));
  std::filesystem::create_symlink("nulle part", disc_.HostPath("perdu.exe"));
  EXPECT_THAT(FindAll(u"D:\\*.*"), IsEmpty());
  for (const Text name : {u"D:\\setup.exe", u"D:\\prise", u"D:\\nul.exe", u"D:\\perdu.exe"}) {
    EXPECT_FALSE(Exists(name));
    EXPECT_THAT(FindAll(name), IsEmpty());
    EXPECT_EQ(ReadError(name), ErrorNumber::kPathFileAccess);
    EXPECT_EQ(WriteError(name), ErrorNumber::kPathFileAccess);
    EXPECT_EQ(DeleteError(name), ErrorNumber::kPathFileAccess);
    EXPECT_EQ(platform_.GetFileVersionInfoSize(name), 0u);
    Text value;
    EXPECT_EQ(platform_.GetPrivateProfileString(u"a", u"k", u"", value, 255, name), 0u);
    EXPECT_FALSE(platform_.WritePrivateProfileString(u"a", u"k", u"v", name));
  }
  EXPECT_TRUE(std::filesystem::is_fifo(disc_.HostPath("SETUP.EXE")));
}

TEST_F(PosixTree, AFileThatBecameAFifoDoesNotHold) {
  disc_.File("JEUX/SETUP.EXE", NeExecutable(VersionBlock8({{"FileVersion", "1.0"}})));
  EXPECT_GT(platform_.GetFileVersionInfoSize(u"D:\\Jeux\\Setup.exe"), 0u);
  disc_.Remove("JEUX/SETUP.EXE");
  ASSERT_EQ(mkfifo(disc_.HostPath("JEUX/SETUP.EXE").c_str(), 0666), 0);
  EXPECT_EQ(platform_.GetFileVersionInfoSize(u"D:\\Jeux\\Setup.exe"), 0u);
  EXPECT_FALSE(Exists(u"D:\\Jeux\\Setup.exe"));
  EXPECT_EQ(ReadError(u"D:\\Jeux\\Setup.exe"), ErrorNumber::kPathFileAccess);
}

TEST_F(PosixTree, LinksToFilesAreFilesAndLinksToDirectoriesAreNothing) {
  disc_.File("Vrai/Fichier.txt", "contenu");
  std::filesystem::create_symlink("Vrai/Fichier.txt", disc_.HostPath("lien.txt"));
  std::filesystem::create_directory_symlink("Vrai", disc_.HostPath("Lien"));
  std::filesystem::create_directory_symlink("..", disc_.HostPath("Vrai/Boucle"));
  EXPECT_THAT(FindAll(u"D:\\*.*"), ElementsAre(u"lien.txt", u"Vrai"));
  EXPECT_EQ(Contents(u"D:\\LIEN.TXT"), "contenu");
  EXPECT_FALSE(Exists(u"D:\\Lien"));
  EXPECT_FALSE(Exists(u"D:\\Lien\\Fichier.txt"));
  EXPECT_THAT(FindAll(u"D:\\Lien\\*.*"), IsEmpty());
  EXPECT_THAT(FindAll(u"D:\\Vrai\\*.*"), ElementsAre(u".", u"..", u"Fichier.txt"));
}

TEST_F(PosixTree, AProfileBehindALinkStaysBehindIt) {
  disc_.File("Vrai/a.ini", "[a]\r\nk=1\r\n");
  std::filesystem::create_symlink("Vrai/a.ini", disc_.HostPath("a.ini"));
  EXPECT_TRUE(platform_.WritePrivateProfileString(u"a", u"k", u"2", u"D:\\A.INI"));
  EXPECT_TRUE(std::filesystem::is_symlink(disc_.HostPath("a.ini")));
  EXPECT_EQ(Contents(u"D:\\Vrai\\a.ini"), "[a]\r\nk=2\r\n");
  EXPECT_THAT(FindAll(u"D:\\Vrai\\*.*"), ElementsAre(u".", u"..", u"a.ini"));
}

TEST_F(PosixTree, WritingAProfileKeepsThePermissions) {
  disc_.File("a.ini", "[a]\r\nk=1\r\n");
  const auto mode = std::filesystem::perms::owner_all;
  std::filesystem::permissions(disc_.HostPath("a.ini"), mode);
  EXPECT_TRUE(platform_.WritePrivateProfileString(u"a", u"k", u"2", u"D:\\A.INI"));
  EXPECT_EQ(std::filesystem::status(disc_.HostPath("a.ini")).permissions(), mode);
}

TEST_F(PosixTree, AReadOnlyFileIsNotTouched) {
  disc_.File("a.ini", "[a]\r\nk=1\r\n");
  disc_.File("b.txt", "b");
  chmod(disc_.HostPath("a.ini").c_str(), 0444);
  FileStatus status;
  ASSERT_TRUE(platform_.GetFileStatus(u"D:\\A.INI", status));
  EXPECT_EQ(status.attributes, kAttributeReadOnly);
  EXPECT_FALSE(platform_.WritePrivateProfileString(u"a", u"k", u"2", u"D:\\A.INI"));
  EXPECT_EQ(WriteError(u"D:\\A.INI"), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(CopyError(u"D:\\B.TXT", u"D:\\A.INI"), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(DeleteError(u"D:\\A.INI"), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(Contents(u"D:\\A.INI"), "[a]\r\nk=1\r\n");
}

TEST_F(PosixTree, NamesThatDifferInCaseAreBothReached) {
  disc_.File("setup.exe", "petit");
  disc_.File("SETUP.EXE", "grand");
  disc_.File("jeux/a.txt", "petit");
  disc_.File("JEUX/a.txt", "grand");
  EXPECT_THAT(FindAll(u"D:\\*.*"), ElementsAre(u"JEUX", u"jeux~2", u"SETUP.EXE", u"setup~2.exe"));
  EXPECT_THAT(FindAll(u"D:\\*.exe"), ElementsAre(u"SETUP.EXE", u"setup~2.exe"));
  EXPECT_EQ(Contents(u"D:\\Setup.exe"), "grand");
  EXPECT_EQ(Contents(u"D:\\Setup~2.Exe"), "petit");
  EXPECT_EQ(Contents(u"D:\\Jeux\\A.TXT"), "grand");
  EXPECT_EQ(Contents(u"D:\\Jeux~2\\A.TXT"), "petit");
}

TEST_F(PosixTree, NamesOfAnyBytesAreReached) {
  disc_.File("caf\xE9\\bar/a\\b.txt", "x");
  const std::vector<Text> found = FindAll(u"D:\\*.*");
  EXPECT_THAT(found, ElementsAre(Text{u'c', u'a', u'f', 0xDCE9, 0xF05C, u'b', u'a', u'r'}));
  EXPECT_EQ(Contents(u"D:\\" + ProperCase(found[0]) + u"\\A\uF05CB.TXT"), "x");
  Write(u"D:\\" + found[0] + u"\\neuf\uF05Cici", "y");
  EXPECT_TRUE(std::filesystem::exists(disc_.HostPath("caf\xE9\\bar/neuf\\ici")));
}

TEST_F(PosixTree, APointAtTheStartHides) {
  disc_.File(".cache", "x");
  FindData data;
  platform_.FindClose(platform_.FindFirstFile(u"D:\\*.*", data));
  EXPECT_EQ(data.attributes, kAttributeHidden);
  FileStatus status;
  ASSERT_TRUE(platform_.GetFileStatus(u"D:\\.CACHE", status));
  EXPECT_EQ(status.attributes, kAttributeHidden);
}

}  // namespace
}  // namespace trovex::test
