#include <gtest/gtest.h>

#include <filesystem>

#include "Platform/Encoding.h"
#include "Platform/Host.h"
#include "support/TestDisc.h"

namespace trovex::test {
namespace {

class PosixHostTest : public testing::Test {
 protected:
  std::string Path(std::string_view path) const { return disc_.HostPath(path).string(); }
  std::unique_ptr<Host> Open(const std::string& directory, char16_t drive = u'D') {
    return OpenHost(directory, drive, complaint_);
  }
  // The name that an absolute host path should get.
  static Text OnRootDrive(char16_t drive, const std::string& path) {
    Text name = Text{drive, u':'} + FromUtf8(path);
    for (char16_t& unit : name) unit = unit == u'/' ? u'\\' : unit;
    return name;
  }

  TestDisc disc_;
  std::string complaint_;
};

TEST_F(PosixHostTest, TheDirectoryIsACdRom) {
  disc_.File("Disque 1/JEUX/A.TXT", "abc");
  const auto host = Open(Path("Disque 1"));
  ASSERT_NE(host, nullptr);
  Platform& platform = host->GetPlatform();
  EXPECT_EQ(host->Start(), u"D:\\");
  EXPECT_EQ(platform.GetDriveType(u"D:\\"), DriveType::kCdRom);
  EXPECT_EQ(platform.GetVolumeLabel(u"D:\\"), u"Disque 1");
  EXPECT_EQ(platform.GetCurrentDirectory(), u"D:\\");
  FileStatus status;
  EXPECT_TRUE(platform.GetFileStatus(u"D:\\Jeux\\a.txt", status));
  EXPECT_EQ(status.length, 3);
}

TEST_F(PosixHostTest, TheHostsRootIsAFixedDriveOfAnotherLetter) {
  const auto host = Open(Path(""), u'e');
  EXPECT_EQ(host->Start(), u"E:\\");
  EXPECT_EQ(host->GetPlatform().GetDriveType(u"Z:\\"), DriveType::kFixed);
  EXPECT_EQ(host->GetPlatform().GetLogicalDrives(), 1u << 4 | 1u << 25);
  const auto last = Open(Path(""), u'Z');
  EXPECT_EQ(last->Start(), u"Z:\\");
  EXPECT_EQ(last->GetPlatform().GetDriveType(u"Y:\\"), DriveType::kFixed);
  EXPECT_EQ(last->NameOf("/nulle-part"), u"Y:\\nulle-part");
}

TEST_F(PosixHostTest, TheStandInForWindowsIsOnNoDriveOfTheDisc) {
  disc_.File("WINDOWS/SYSTEM/SHELL32.DLL", "texte");
  disc_.File("WINDOWS/WIN.INI", "[Extensions]\r\ntxt=x\r\n");
  for (const char16_t drive : {u'C', u'D', u'X', u'Z'}) {
    const auto host = Open(Path(""), drive);
    Text directory;
    host->GetPlatform().GetWindowsDirectory(directory, 50);
    EXPECT_NE(directory[0], drive);
    FileStatus status;
    EXPECT_FALSE(host->GetPlatform().GetFileStatus(directory, status));
  }
}

TEST_F(PosixHostTest, TheSystemLibraryHasIcons) {
  for (const char16_t drive : {u'C', u'D'}) {
    const auto host = Open(Path(""), drive);
    Platform& platform = host->GetPlatform();
    Text directory;
    platform.GetSystemDirectory(directory, 50);
    EXPECT_EQ(platform.ExtractIconEx(directory + u"\\shell32.dll", 0, IconOwner::kSystem), 1);
    EXPECT_EQ(platform.ExtractIconEx(directory + u"\\autre.dll", 0, IconOwner::kSystem), 0);
  }
}

TEST_F(PosixHostTest, ArgumentsKeepTheirSpelling) {
  disc_.Directory("Export");
  const auto host = Open(Path(""));
  const Text name = host->NameOf(Path("Export/Nouveau.html"));
  EXPECT_EQ(name, OnRootDrive(u'Z', Path("Export/Nouveau.html")));
  Platform& platform = host->GetPlatform();
  platform.Close(platform.OpenWrite(name));
  EXPECT_TRUE(std::filesystem::exists(disc_.HostPath("Export/Nouveau.html")));
  EXPECT_EQ(host->NameOf(""), u"");
}

TEST_F(PosixHostTest, AnArgumentMeansTheFileOfJustThatSpelling) {
  disc_.File("A.INI", "[a]\nk=grand");
  disc_.File("a.ini", "[a]\nk=petit");
  const auto host = Open(Path(""));
  Text value;
  host->GetPlatform().GetPrivateProfileString(u"a", u"k", u"", value, 255,
                                              host->NameOf(Path("a.ini")));
  EXPECT_EQ(value, u"petit");
}

TEST_F(PosixHostTest, AnArgumentThroughALinkLeadsToTheFile) {
  disc_.File("Vrai/a.ini", "[a]\nk=1");
  std::filesystem::create_directory_symlink("Vrai", disc_.HostPath("Lien"));
  const auto host = Open(Path("Lien"));
  ASSERT_NE(host, nullptr);
  EXPECT_EQ(host->GetPlatform().GetVolumeLabel(u"D:\\"), u"Vrai");
  const Text name = host->NameOf(Path("Lien/../Lien/a.ini"));
  EXPECT_EQ(name, OnRootDrive(u'Z', Path("Vrai/a.ini")));
  FileStatus status;
  EXPECT_TRUE(host->GetPlatform().GetFileStatus(name, status));
}

TEST_F(PosixHostTest, ARelativeArgumentBelongsToTheCurrentDirectory) {
  const auto host = Open(Path(""));
  const std::string here = std::filesystem::current_path().string();
  EXPECT_EQ(host->NameOf("pas-encore.ini"), OnRootDrive(u'Z', here + "/pas-encore.ini"));
}

TEST_F(PosixHostTest, SurroundingsAreNamedAsTheProgramWritesThem) {
  const auto host = Open(Path(""));
  Platform& platform = host->GetPlatform();
  FileStatus status;
  for (const Text& name :
       {platform.GetEnvironmentVariable(u"tmp"), platform.GetProgramDirectory()}) {
    EXPECT_TRUE(name.starts_with(u"Z:\\"));
    ASSERT_TRUE(platform.GetFileStatus(name, status));
    EXPECT_EQ(status.attributes & kAttributeDirectory, kAttributeDirectory);
  }
  EXPECT_EQ(platform.GetEnvironmentVariable(u"PATH"), u"");
}

TEST_F(PosixHostTest, WhatCannotBeOpenedIsSaidInOneLine) {
  disc_.File("fichier");
  EXPECT_EQ(Open(Path("rien")), nullptr);
  EXPECT_EQ(complaint_, "trovex-cli: " + Path("rien") + ": no such directory");
  EXPECT_EQ(Open(Path("fichier")), nullptr);
  EXPECT_EQ(complaint_, "trovex-cli: " + Path("fichier") + " is not a directory");
}

}  // namespace
}  // namespace trovex::test
