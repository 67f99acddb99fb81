// A disc image as a drive among those of the system.
#include "Image/ImageTest.h"
#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

class DiscDrives : public ImageTest {
 protected:
  DiscDrives() { Insert(SmallDisc().Build(IsoFormat::kPlain)); }

  template <typename Operation>
  static ErrorNumber ErrorOf(Operation operation) {
    try {
      operation();
    } catch (const RuntimeError& error) {
      return error.Kind();
    }
    return {};
  }
};

TEST_F(DiscDrives, AreCdRomDrives) {
  EXPECT_EQ(platform_.GetDriveType(u"E:\\"), DriveType::kCdRom);
  EXPECT_EQ(platform_.GetDriveType(u"e:\\"), DriveType::kCdRom);
  EXPECT_EQ(platform_.GetDriveType(u"D:\\"), disc_.GetPlatform().GetDriveType(u"D:\\"));
  EXPECT_EQ(platform_.GetLogicalDrives(), disc_.GetPlatform().GetLogicalDrives() | 1u << 4);
  EXPECT_EQ(platform_.GetVolumeLabel(u"E:\\"), u"DISQUE");
}

TEST_F(DiscDrives, StandBesideTheOthers) {
  disc_.File("JEUX/AUTRE.TXT", "sur D:");
  EXPECT_EQ(Contents(u"D:\\JEUX\\AUTRE.TXT"), "sur D:");
  EXPECT_THAT(Names(u"D:\\JEUX"), ElementsAre(u"AUTRE.TXT"));
  EXPECT_THAT(Names(u"E:\\JEUX"), ElementsAre(u"DAMES"));
}

TEST_F(DiscDrives, HideADriveOfTheSameLetter) {
  disc_.File("SEUL.TXT");
  platform_.Mount(u'd', Open(SmallDisc().Build(IsoFormat::kPlain)).disc);
  FileStatus status;
  EXPECT_FALSE(platform_.GetFileStatus(u"D:\\SEUL.TXT", status));
  EXPECT_TRUE(platform_.GetFileStatus(u"D:\\SETUP.EXE", status));
}

TEST_F(DiscDrives, LeaveAWayToTheDriveThatTheyHide) {
  platform_.Mount(u'd', Open(SmallDisc().Build(IsoFormat::kPlain)).disc);
  EXPECT_EQ(platform_.Beneath(u"D:\\SEUL.TXT"), u"\\\\?\\D:\\SEUL.TXT");
  EXPECT_EQ(platform_.Beneath(u"C:\\SEUL.TXT"), u"C:\\SEUL.TXT");
  EXPECT_EQ(platform_.Beneath(u"SEUL.TXT"), u"SEUL.TXT");
  EXPECT_FALSE(platform_.IsInsideImage(u"\\\\?\\D:\\SEUL.TXT"));
}

TEST_F(DiscDrives, DirectoriesOfTheSystemAreNotTheirs) {
  Text before, after;
  disc_.GetPlatform().GetWindowsDirectory(before, 200);
  platform_.Mount(before[0], Open(SmallDisc().Build(IsoFormat::kPlain)).disc);
  EXPECT_EQ(platform_.GetWindowsDirectory(after, 200), before.size() + 4);
  EXPECT_EQ(after, u"\\\\?\\" + before);
  const auto size = static_cast<std::uint32_t>(before.size() + 4);
  EXPECT_EQ(platform_.GetWindowsDirectory(after, size), size + 1);
  EXPECT_EQ(after, u"");
  EXPECT_EQ(platform_.GetWindowsDirectory(after, size + 1), size);
  disc_.GetPlatform().GetSystemDirectory(before, 200);
  platform_.GetSystemDirectory(after, 200);
  EXPECT_EQ(after, u"\\\\?\\" + before);
}

TEST_F(DiscDrives, HaveACurrentDirectoryEach) {
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\");
  platform_.ChangeDirectory(u"E:\\JEUX\\");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\");
  platform_.ChangeDrive(u"e:");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"E:\\JEUX");
  FileStatus status;
  EXPECT_TRUE(platform_.GetFileStatus(u"dames\\Dames.exe", status));
  EXPECT_TRUE(platform_.GetFileStatus(u"E:..\\.\\SETUP.EXE", status));
  EXPECT_TRUE(platform_.GetFileStatus(u"/SETUP.EXE", status));
  EXPECT_EQ(platform_.GetDriveType(u""), DriveType::kCdRom);
  EXPECT_EQ(ErrorOf([&] { platform_.ChangeDirectory(u"E:\\NULLEPART"); }),
            ErrorNumber::kPathNotFound);
  EXPECT_EQ(ErrorOf([&] { platform_.ChangeDirectory(u"E:\\SETUP.EXE"); }),
            ErrorNumber::kPathNotFound);
  platform_.ChangeDrive(u"D:\\");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\");
}

TEST_F(DiscDrives, TakeNothingThatIsWritten) {
  const auto denied = ErrorNumber::kPermissionDenied;
  disc_.File("A.TXT", "x");
  EXPECT_EQ(ErrorOf([&] { platform_.OpenWrite(u"E:\\A.TXT"); }), denied);
  EXPECT_EQ(ErrorOf([&] { platform_.OpenWrite(u"E:\\SETUP.EXE"); }), denied);
  EXPECT_EQ(ErrorOf([&] { platform_.DeleteFile(u"E:\\SETUP.EXE"); }), denied);
  EXPECT_EQ(ErrorOf([&] { platform_.CopyFile(u"D:\\A.TXT", u"E:\\A.TXT"); }), denied);
  EXPECT_EQ(ErrorOf([&] { platform_.PutInPlace(u"D:\\A.TXT", u"E:\\SETUP.EXE"); }), denied);
  EXPECT_EQ(ErrorOf([&] { platform_.PutInPlace(u"E:\\SETUP.EXE", u"D:\\A.TXT"); }), denied);
  EXPECT_FALSE(platform_.MakeDirectory(u"E:\\NEUF"));
  EXPECT_TRUE(platform_.MakeDirectory(u"E:\\JEUX"));
  EXPECT_FALSE(platform_.WritePrivateProfileString(u"A", u"x", u"1", u"E:\\SETUP.INI"));
}

TEST_F(DiscDrives, GiveTheirFilesToACopy) {
  platform_.CopyFile(u"E:\\LISEZMOI.TXT", u"D:\\COPIE.TXT");
  EXPECT_EQ(Contents(u"D:\\COPIE.TXT"), "Bonjour\r\n");
  EXPECT_EQ(ErrorOf([&] { platform_.CopyFile(u"E:\\RIEN.TXT", u"D:\\R.TXT"); }),
            ErrorNumber::kFileNotFound);
}

TEST_F(DiscDrives, ACopyThatBreaksOffLeavesNothingBehind) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  iso.bytes.resize(iso.data["SETUP.EXE"] + 3000);
  Insert(iso);
  EXPECT_EQ(ErrorOf([&] { platform_.CopyFile(u"E:\\SETUP.EXE", u"D:\\COPIE.EXE"); }),
            ErrorNumber::kDeviceIo);
  FileStatus status;
  EXPECT_FALSE(platform_.GetFileStatus(u"D:\\COPIE.EXE", status));
}

TEST_F(DiscDrives, StartNothing) {
  EXPECT_TRUE(platform_.IsInsideImage(u"E:\\SETUP.EXE"));
  EXPECT_FALSE(platform_.IsInsideImage(u"D:\\SETUP.EXE"));
  EXPECT_EQ(ErrorOf([&] { platform_.StartProgram(u"E:\\SETUP.EXE", 1); }),
            ErrorNumber::kPermissionDenied);
  EXPECT_EQ(ErrorOf([&] { platform_.StartProgram(u"\"E:\\SETUP.EXE\" /x", 1); }),
            ErrorNumber::kPermissionDenied);
  EXPECT_EQ(platform_.ShellExecute(u"Open", u"E:\\LISEZMOI.TXT", u"", u"C:\\", 1), 5);
  Text buffer(256, u' ');
  EXPECT_EQ(platform_.FindExecutable(u"E:\\LISEZMOI.TXT", u"E:\\", buffer), 31);
  EXPECT_EQ(buffer[0], u'\0');
}

TEST_F(DiscDrives, ReadRecordsProfilesAndIcons) {
  const std::string block = VersionBlock8({{"FileVersion", "1.0"}});
  IsoBuilder iso;
  iso.File("A.EXE", NeExecutable(block, Icon::kPresent));
  iso.File("B.EXE", DosExecutable());
  iso.File("SETUP.LST", "[Setup]\r\nTitle=Mon Jeu\r\n");
  Insert(iso.Build(IsoFormat::kJoliet));
  EXPECT_EQ(platform_.GetFileVersionInfoSize(u"E:\\A.EXE"), block.size());
  EXPECT_EQ(platform_.GetFileVersionInfoSize(u"E:\\B.EXE"), 0u);
  EXPECT_EQ(platform_.ExtractIconEx(u"E:\\A.EXE", 0, IconOwner::kDisc), 1);
  EXPECT_EQ(platform_.ExtractIconEx(u"E:\\B.EXE", 0, IconOwner::kDisc), 0);
  EXPECT_EQ(platform_.ExtractIconEx(u"E:\\RIEN.EXE", 0, IconOwner::kDisc), 0);
  Text buffer;
  platform_.GetPrivateProfileString(u"setup", u"title", u"", buffer, 255, u"E:\\Setup.lst");
  EXPECT_EQ(buffer, u"Mon Jeu");
  platform_.GetPrivateProfileString(u"setup", u"title", u"rien ", buffer, 255, u"E:\\AUTRE.LST");
  EXPECT_EQ(buffer, u"rien");
}

TEST_F(DiscDrives, ADiscInsideADiscIsRead) {
  IsoBuilder outer;
  outer.File("DISQUE.ISO", SmallDisc().Build(IsoFormat::kPlain).bytes);
  Insert(outer.Build(IsoFormat::kPlain));
  const auto opened = image::OpenDisc(platform_, u"E:\\DISQUE.ISO");
  ASSERT_EQ(opened.problem, image::Problem::kNone);
  platform_.Mount(u'F', opened.disc);
  EXPECT_EQ(Contents(u"F:\\LISEZMOI.TXT"), "Bonjour\r\n");
}

}  // namespace
}  // namespace trovex::test
