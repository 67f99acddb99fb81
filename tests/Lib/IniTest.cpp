#include "Lib/LIB_INI.h"

#include "Lib/LibTest.h"

namespace trovex::test {
namespace {

class IniTest : public LibTest {
 protected:
  // An INI file of a name of its own: Wine takes one with the same name and date as unchanged.
  Text Ini(std::string_view contents) {
    name_ = "REGL" + std::to_string(++number_) + ".INI";
    disc.File(name_, contents);
    return Path();
  }
  // A name of the same kind without a file.
  Text NoIni() {
    const Text path = Ini("");
    disc.Remove(name_);
    return path;
  }
  Text Path() const { return u"D:\\" + Text(name_.begin(), name_.end()); }

  std::string name_;

 private:
  static inline int number_ = 0;
};

// --- sLitIni ------------------------------------------------------------------------------------

TEST_F(IniTest, AValueIsReadWithoutRegardToCase) {
  EXPECT_EQ(sLitIni(u"Setup", u"Title", u"-", Ini("[SETUP]\r\ntitle=Jeu\r\n")), u"Jeu");
}

TEST_F(IniTest, AValueIsTrimmed) {
  EXPECT_EQ(sLitIni(u"a", u"k", u"-", Ini("[a]\r\nk=\"  v w  \"\r\n")), u"v w");
}

TEST_F(IniTest, AMissingFileGivesTheDefaultWithoutMessage) {
  EXPECT_EQ(sLitIni(u"a", u"k", u" d ", NoIni()), u" d ");
  EXPECT_EQ(sDernierFichierIni, u"");
}

TEST_F(IniTest, AMissingSectionOrKeyGivesTheDefault) {
  const Text file = Ini("[a]\r\nk=1\r\n");
  EXPECT_EQ(sLitIni(u"b", u"k", u"d", file), u"d");
  EXPECT_EQ(sLitIni(u"a", u"z", u"d", file), u"d");
  EXPECT_EQ(sLitIni(u"a", u"z", u"", file), u"");
}

TEST_F(IniTest, AnEmptyValueGivesTheDefault) {
  EXPECT_EQ(sLitIni(u"a", u"k", u"d", Ini("[a]\r\nk=\r\n")), u"d");
}

TEST_F(IniTest, AValueIsCutToTheBuffer) {
  const Text file = Ini("[a]\r\nk=" + std::string(300, 'x') + "\r\n");
  EXPECT_EQ(sLitIni(u"a", u"k", u"d", file), Text(254, u'x'));
}

TEST_F(IniTest, TheFileReadIsRemembered) {
  const Text file = Ini("[a]\r\nk=1\r\n");
  EXPECT_EQ(sLitIni(u"a", u"k", u"d", file), u"1");
  EXPECT_EQ(sDernierFichierIni, file);
}

TEST_F(IniTest, ASecondReadFromTheSameNameSkipsTheExistenceTest) {
  const Text file = Ini("[a]\r\nk=1\r\nl=2\r\n");
  sLitIni(u"a", u"k", u"d", file);
  EXPECT_EQ(platform.finds, 1);
  EXPECT_EQ(sLitIni(u"a", u"l", u"d", file), u"2");
  EXPECT_EQ(platform.finds, 1);
}

TEST_F(IniTest, AFileDeletedInBetweenGivesTheDefaultOfItsLength) {
  const Text file = Ini("[a]\r\nk=1\r\n");
  sLitIni(u"a", u"k", u"d", file);
  disc.Remove(name_);
  EXPECT_EQ(sLitIni(u"a", u"k", u"d", file), u"d");
  EXPECT_EQ(platform.finds, 1);
  EXPECT_EQ(Err().number, 0);
}

TEST_F(IniTest, AnotherFileIsTestedAgain) {
  sLitIni(u"a", u"k", u"d", Ini("[a]\r\nk=1\r\n"));
  sLitIni(u"a", u"k", u"d", Ini("[a]\r\nk=1\r\n"));
  EXPECT_EQ(platform.finds, 2);
}

TEST_F(IniTest, AnyErrorCountsAsAMissingKey) {
  platform.profile_read_error = ErrorNumber::kDeviceIo;
  EXPECT_EQ(sLitIni(u"a", u"k", u"d", Ini("[a]\r\nk=1\r\n")), u"d");
  EXPECT_EQ(Err().number, 0);
}

// --- bLitIni ------------------------------------------------------------------------------------

TEST_F(IniTest, ABooleanIsANumber) {
  const Text file = Ini("[a]\r\nvrai=-1\r\nun=1\r\nfaux=0\r\n");
  EXPECT_TRUE(bLitIni(u"a", u"vrai", false, file));
  EXPECT_TRUE(bLitIni(u"a", u"un", false, file));
  EXPECT_FALSE(bLitIni(u"a", u"faux", true, file));
}

TEST_F(IniTest, ABooleanMayBeAWordInEitherLanguage) {
  const Text file = Ini("[a]\r\n1=True\r\n2=VRAI\r\n3= vrai \r\n4=False\r\n5=faux\r\n6=rien\r\n");
  for (const char16_t* key : {u"1", u"2", u"3"}) EXPECT_TRUE(bLitIni(u"a", key, false, file));
  for (const char16_t* key : {u"4", u"5", u"6"}) EXPECT_FALSE(bLitIni(u"a", key, true, file));
}

TEST_F(IniTest, AMissingBooleanIsTheDefault) {
  const Text file = Ini("[a]\r\n");
  EXPECT_TRUE(bLitIni(u"a", u"k", true, file));
  EXPECT_FALSE(bLitIni(u"a", u"k", false, file));
  EXPECT_TRUE(bLitIni(u"a", u"k", true, NoIni()));
}

// --- Writing ------------------------------------------------------------------------------------

TEST_F(IniTest, AValueIsWrittenIntoANewFile) {
  const Text file = NoIni();
  PutIniString(u"html", u"html_titre", u"été", file);
  EXPECT_EQ(Contents(file), "[html]\r\nhtml_titre=\xE9t\xE9\r\n");
}

TEST_F(IniTest, AValueThatStandsThereIsReplaced) {
  const Text file = Ini("[html]\r\nk=1\r\n[b]\r\nk=3\r\n");
  PutIniString(u"html", u"k", u"2", file);
  EXPECT_EQ(Contents(file), "[html]\r\nk=2\r\n[b]\r\nk=3\r\n");
}

TEST_F(IniTest, ABooleanIsWrittenAsItsNumber) {
  const Text file = NoIni();
  PutIniBoolean(u"html", u"k", true, file);
  EXPECT_EQ(Contents(file), "[html]\r\nk=-1\r\n");
  PutIniBoolean(u"html", u"k", false, file);
  EXPECT_EQ(Contents(file), "[html]\r\nk=0\r\n");
}

TEST_F(IniTest, WhatWasWrittenIsReadBack) {
  const Text file = NoIni();
  PutIniBoolean(u"html", u"html_frame", true, file);
  PutIniString(u"html", u"html_prefixe", u"tableau", file);
  EXPECT_TRUE(bLitIni(u"html", u"html_frame", false, file));
  EXPECT_EQ(sLitIni(u"html", u"html_prefixe", u"", file), u"tableau");
}

TEST_F(IniTest, AWriteToACdRomIsSilentlyDropped) {
  platform.drive_type = DriveType::kCdRom;
  const Text file = NoIni();
  PutIniString(u"html", u"k", u"1", file);
  PutIniBoolean(u"html", u"k", true, file);
  EXPECT_FALSE(Exists(file));
  EXPECT_THAT(platform.drive_roots, testing::ElementsAre(u"D:\\", u"D:\\"));
}

TEST_F(IniTest, AFailedWriteOfATextIsReported) {
  const Text file = Ini("[html]\r\n");
  platform.profile_write_fails = true;
  ExpectBox();
  PutIniString(u"html", u"html_titre", u"x", file);
  EXPECT_EQ(LastBox(), u"PutIniString() : Erreur d'écriture sur le fichier : " + file +
                           u"\r\nItem : html_titre");
  EXPECT_EQ(Contents(file), "[html]\r\n");
}

TEST_F(IniTest, AFailedWriteOfABooleanIsReportedWithItsValue) {
  const Text file = Ini("[html]\r\n");
  platform.profile_write_fails = true;
  ExpectBox();
  PutIniBoolean(u"html", u"html_cr", true, file);
  EXPECT_EQ(LastBox(), u"PutIniBoolean() : Erreur d'écriture sur le fichier : " + file +
                           u"\r\nItem : html_cr:-1");
  ExpectBox();
  PutIniBoolean(u"html", u"html_cr", false, file);
  EXPECT_TRUE(LastBox().ends_with(u"Item : html_cr:0"));
}

// --- WIN.INI ------------------------------------------------------------------------------------

class WinIniTest : public IniTest {
 protected:
  void WinIni(std::string_view contents) {
    Ini("");  // for a number of its own
    const std::string directory = name_.substr(0, name_.find('.'));
    disc.File(directory + "/WIN.INI", contents);
    platform.windows_directory = u"D:\\" + Text(directory.begin(), directory.end());
  }
};

TEST_F(WinIniTest, AValueIsReadFromTheWindowsDirectory) {
  WinIni("[Desktop]\r\nWallpaper=PAPIER.BMP\r\n");
  EXPECT_EQ(sLitWinIni(u"Desktop", u"Wallpaper"), u"PAPIER.BMP");
  EXPECT_EQ(sLitWinIni(u"Desktop", u"Pattern"), u"");
}

TEST_F(WinIniTest, TheProgramOfAnExtensionEndsBeforeTheCaret) {
  WinIni("[Extensions]\r\ntxt=notepad.exe ^.txt\r\nbmp=pbrush.exe\r\n");
  EXPECT_EQ(vExtensionWinIni(u"txt"), u"notepad.exe ");
  EXPECT_EQ(vExtensionWinIni(u"bmp"), u"pbrush.exe");
  EXPECT_EQ(vExtensionWinIni(u"doc"), u"");
}

TEST_F(WinIniTest, ABlankExtensionHasNoProgram) {
  WinIni("[Extensions]\r\n=rien.exe\r\n");
  EXPECT_EQ(vExtensionWinIni(u""), u"");
  EXPECT_EQ(vExtensionWinIni(u"  "), u"");
}

TEST_F(WinIniTest, WithoutTheFileThereIsNothing) {
  EXPECT_EQ(sLitWinIni(u"Desktop", u"Wallpaper"), u"");
  EXPECT_EQ(vExtensionWinIni(u"txt"), u"");
}

}  // namespace
}  // namespace trovex::test
