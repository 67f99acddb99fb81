#include "Platform/Posix/Drives.h"

#include <gtest/gtest.h>

namespace trovex::test {
namespace {

using posix::Drives;

Drives TwoDrives() {
  return Drives({{u'D', "/", DriveType::kCdRom, u"JEUX"}, {u'z', "/", DriveType::kFixed, u""}}, 0);
}

TEST(Drives, LettersAreFoundInEitherCase) {
  const Drives drives = TwoDrives();
  EXPECT_EQ(drives.Find(u'd')->label, u"JEUX");
  EXPECT_EQ(drives.Find(u'Z')->type, DriveType::kFixed);
  EXPECT_EQ(drives.Find(u'C'), nullptr);
  EXPECT_EQ(drives.Mask(), 1u << 3 | 1u << 25);
}

TEST(Drives, ARootIsALetterWithOrWithoutItsMarks) {
  const Drives drives = TwoDrives();
  for (const Text root : {u"", u"D", u"d:", u"D:\\"}) {
    ASSERT_NE(drives.FindRoot(root), nullptr);
    EXPECT_EQ(drives.FindRoot(root)->letter, u'D');
  }
  for (const Text root : {u"D:\\JEUX", u"DD", u":", u"\\", u"C:\\"}) {
    EXPECT_EQ(drives.FindRoot(root), nullptr);
  }
}

TEST(Drives, NamesAreMadeWhole) {
  Drives drives = TwoDrives();
  EXPECT_EQ(drives.FullName(u"D:\\A\\B"), u"D:\\A\\B");
  EXPECT_EQ(drives.FullName(u"d:/A//B\\"), u"D:\\A\\B");
  EXPECT_EQ(drives.FullName(u"D:\\"), u"D:\\");
  EXPECT_EQ(drives.FullName(u"D:\\A\\.\\..\\C"), u"D:\\C");
  EXPECT_EQ(drives.FullName(u"D:\\A\\.."), u"D:\\");
  EXPECT_EQ(drives.FullName(u"D:\\..\\..\\A"), u"D:\\A");
  EXPECT_EQ(drives.FullName(u"D:\\...\\A"), u"D:\\...\\A");
}

TEST(Drives, RelativeNamesBelongToTheDirectoryOfTheirDrive) {
  Drives drives = TwoDrives();
  drives.SetDirectory(u"D:\\Jeux\\Cartes");
  EXPECT_EQ(drives.FullName(u"A.TXT"), u"D:\\Jeux\\Cartes\\A.TXT");
  EXPECT_EQ(drives.FullName(u"D:A.TXT"), u"D:\\Jeux\\Cartes\\A.TXT");
  EXPECT_EQ(drives.FullName(u"..\\A.TXT"), u"D:\\Jeux\\A.TXT");
  EXPECT_EQ(drives.FullName(u"\\A.TXT"), u"D:\\A.TXT");
  EXPECT_EQ(drives.FullName(u"Z:A.TXT"), u"Z:\\A.TXT");
  EXPECT_EQ(drives.FullName(u"D:"), u"D:\\Jeux\\Cartes");
  ASSERT_TRUE(drives.SetDrive(u'z'));
  EXPECT_EQ(drives.FullName(u"A.TXT"), u"Z:\\A.TXT");
  EXPECT_EQ(drives.CurrentDirectory(), u"Z:\\");
  EXPECT_FALSE(drives.SetDrive(u'C'));
}

TEST(Drives, NamesThatLeadNowhere) {
  const Drives drives = TwoDrives();
  EXPECT_FALSE(drives.FullName(u""));
  EXPECT_FALSE(drives.FullName(u"C:\\A"));
  EXPECT_FALSE(drives.FullName(u"1:\\A"));
  EXPECT_FALSE(drives.FullName(u"\\\\serveur\\partage"));
  EXPECT_FALSE(drives.FullName(Text(u"D:\\A\0B", 6)));
}

TEST(Drives, WithoutAnyDriveNothingIsFound) {
  const Drives drives({}, 0);
  EXPECT_EQ(drives.Mask(), 0u);
  EXPECT_FALSE(drives.FullName(u"A"));
  EXPECT_EQ(drives.FindRoot(u""), nullptr);
}

}  // namespace
}  // namespace trovex::test
