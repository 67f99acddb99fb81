// Names in the form that Windows takes letter by letter, and the errors of the system.
#include "Platform/Win32/Names.h"

#include <gtest/gtest.h>

#include "Platform/Win32/Errors.h"
#include "Platform/Win32/Windows.h"

namespace trovex::test {
namespace {

TEST(NamesTest, AFullNameStaysAsItIs) {
  EXPECT_EQ(VerbatimName(u"D:\\Jeux\\Dames.exe"), u"\\\\?\\D:\\Jeux\\Dames.exe");
  EXPECT_EQ(VerbatimName(u"D:\\Jeux.\\Nom "), u"\\\\?\\D:\\Jeux.\\Nom ");
  EXPECT_EQ(VerbatimName(u"D:\\"), u"\\\\?\\D:\\");
}

TEST(NamesTest, LevelsAreMadePlain) {
  EXPECT_EQ(VerbatimName(u"D:\\A\\..\\B/.\\C\\\\D\\"), u"\\\\?\\D:\\B\\C\\D");
  EXPECT_EQ(VerbatimName(u"D:\\..\\..\\A"), u"\\\\?\\D:\\A");
  EXPECT_EQ(VerbatimName(u"D:\\A\\.."), u"\\\\?\\D:\\");
}

TEST(NamesTest, ADeviceInADirectoryIsAFileName) {
  EXPECT_EQ(VerbatimName(u"D:\\NUL"), u"\\\\?\\D:\\NUL");
  EXPECT_EQ(VerbatimName(u"D:\\Jeux\\con.txt"), u"\\\\?\\D:\\Jeux\\con.txt");
}

TEST(NamesTest, ADeviceOutrightIsNoName) {
  EXPECT_EQ(VerbatimName(u"NUL"), u"");
  EXPECT_EQ(VerbatimName(u"\\\\.\\COM1"), u"");
  EXPECT_EQ(VerbatimName(u""), u"");
}

TEST(NamesTest, AShareKeepsItsServer) {
  EXPECT_EQ(VerbatimName(u"\\\\serveur\\disque\\Jeux"), u"\\\\?\\UNC\\serveur\\disque\\Jeux");
}

TEST(NamesTest, RootsAreKnown) {
  EXPECT_TRUE(IsRoot(u"D:\\"));
  EXPECT_TRUE(IsRoot(u"\\\\?\\D:\\"));
  EXPECT_FALSE(IsRoot(u"D:\\A"));
  EXPECT_FALSE(IsRoot(u"D:"));
  EXPECT_TRUE(HasDriveRoot(u"z:/a"));
  EXPECT_FALSE(HasDriveRoot(u"Z:a"));
  EXPECT_FALSE(HasDriveRoot(u"1:\\a"));
}

TEST(ErrorsTest, CodesOfTheSystemAreErrorsOfTheProgram) {
  EXPECT_EQ(ErrorNumberOf(ERROR_FILE_NOT_FOUND), ErrorNumber::kFileNotFound);
  EXPECT_EQ(ErrorNumberOf(ERROR_PATH_NOT_FOUND), ErrorNumber::kPathNotFound);
  EXPECT_EQ(ErrorNumberOf(ERROR_ACCESS_DENIED), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(ErrorNumberOf(ERROR_SHARING_VIOLATION), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(ErrorNumberOf(ERROR_WRITE_PROTECT), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(ErrorNumberOf(ERROR_DISK_FULL), ErrorNumber::kDiskFull);
  EXPECT_EQ(ErrorNumberOf(ERROR_HANDLE_DISK_FULL), ErrorNumber::kDiskFull);
  EXPECT_EQ(ErrorNumberOf(ERROR_TOO_MANY_OPEN_FILES), ErrorNumber::kTooManyFiles);
  EXPECT_EQ(ErrorNumberOf(ERROR_CRC), ErrorNumber::kDeviceIo);
}

}  // namespace
}  // namespace trovex::test
