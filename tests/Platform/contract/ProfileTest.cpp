// Profile files.
#include "Platform/contract/Contract.h"

namespace trovex::test {
namespace {

class ProfileContract : public Contract {
 protected:
  // A profile file of a name of its own: Wine takes one with the same name and date as unchanged.
  void Profile(std::string_view contents) {
    static int number = 0;
    name_ = "ESSAI" + std::to_string(++number) + ".INI";
    file_ = u"D:\\" + Text(name_.begin(), name_.end());
    disc_.File(name_, contents);
  }
  // A name of the same kind without a file.
  void NoProfile() {
    Profile("");
    disc_.Remove(name_);
  }

  Text Read(const Text& section, const Text& key, const Text& fallback = u"(rien)",
            std::uint32_t size = 255) {
    Text buffer = u"reste";
    const std::uint32_t length =
        platform_.GetPrivateProfileString(section, key, fallback, buffer, size, file_);
    EXPECT_EQ(length, buffer.size());
    return buffer;
  }
  // The file's contents after a value was written.
  std::string Written(const Text& section, const Text& key, const Text& value) {
    EXPECT_TRUE(platform_.WritePrivateProfileString(section, key, value, file_));
    return Contents(file_);
  }

  std::string name_;
  Text file_;
};

// --- Reading: where a value stands --------------------------------------------------------------

TEST_F(ProfileContract, ReadsTheKeyOfItsSection) {
  Profile("[Startup]\r\nAppName=Dames\r\n[Setup]\r\nAppName=Cartes\r\nTitle=Jeux\r\n");
  EXPECT_EQ(Read(u"Startup", u"AppName"), u"Dames");
  EXPECT_EQ(Read(u"Setup", u"AppName"), u"Cartes");
  EXPECT_EQ(Read(u"Startup", u"Title"), u"(rien)");
}

TEST_F(ProfileContract, SectionsAndKeysTakeNoNoticeOfCase) {
  Profile("[startup]\r\nAPPNAME=Dames\r\n");
  EXPECT_EQ(Read(u"STARTUP", u"AppName"), u"Dames");
}

TEST_F(ProfileContract, TheFirstOfSeveralSectionsCounts) {
  Profile("[A]\r\nx=1\r\n[B]\r\n[A]\r\nx=2\r\ny=3\r\n");
  EXPECT_EQ(Read(u"A", u"x"), u"1");
  EXPECT_EQ(Read(u"A", u"y"), u"(rien)");
}

TEST_F(ProfileContract, TheFirstOfSeveralKeysCounts) {
  Profile("[A]\r\nx=1\r\nX=2\r\n");
  EXPECT_EQ(Read(u"A", u"X"), u"1");
}

TEST_F(ProfileContract, APrefixIsNoMatch) {
  Profile("[Setup2]\r\nTitle=a\r\n[Setup]\r\nTitles=b\r\nTitl=c\r\n");
  EXPECT_EQ(Read(u"Setup", u"Title"), u"(rien)");
}

TEST_F(ProfileContract, BlanksAroundHeadersKeysAndValuesAreDropped) {
  Profile(" \t[A]\r\n \tx\t = \t un  mot \t\r\nMon titre=oui\r\n");
  EXPECT_EQ(Read(u"A", u"x"), u"un  mot");
  EXPECT_EQ(Read(u"A", u"Mon titre"), u"oui");
}

TEST_F(ProfileContract, CommentsHideWhatTheyHold) {
  Profile(";[A]\r\n;x=0\r\n[A]\r\n;x=1\r\n  ; x=2\r\nx=3;4\r\n");
  EXPECT_EQ(Read(u"A", u"x"), u"3;4");
}

TEST_F(ProfileContract, TextBehindAHeaderIsPassedOver) {
  Profile("[A] suite\r\nx=1\r\n[B];x\r\nx=2\r\n");
  EXPECT_EQ(Read(u"A", u"x"), u"1");
  EXPECT_EQ(Read(u"B", u"x"), u"2");
}

TEST_F(ProfileContract, LinesEndInEitherWay) {
  Profile("[A]\nx=1\r\ny=2\n\n[B]\r\nz=3");
  EXPECT_EQ(Read(u"A", u"x"), u"1");
  EXPECT_EQ(Read(u"A", u"y"), u"2");
  EXPECT_EQ(Read(u"B", u"z"), u"3");
}

// --- Reading: what a value is -------------------------------------------------------------------

TEST_F(ProfileContract, OnePairOfMatchingQuotesIsDropped) {
  Profile(
      "[A]\r\na=\"mot\"\r\nb='mot'\r\nc=\"mot'\r\nd=\"\"mot\"\"\r\ne= \" mot \" \r\nf=\"\r\n"
      "g=un \"mot\"\r\n");
  EXPECT_EQ(Read(u"A", u"a"), u"mot");
  EXPECT_EQ(Read(u"A", u"b"), u"mot");
  EXPECT_EQ(Read(u"A", u"c"), u"\"mot'");
  EXPECT_EQ(Read(u"A", u"d"), u"\"mot\"");
  EXPECT_EQ(Read(u"A", u"e"), u" mot ");
  EXPECT_EQ(Read(u"A", u"f"), u"\"");
  EXPECT_EQ(Read(u"A", u"g"), u"un \"mot\"");
}

TEST_F(ProfileContract, AnEmptyValueIsEmpty) {
  Profile("[A]\r\nx=\r\ny=   \r\nz=\"\"\r\n");
  EXPECT_EQ(Read(u"A", u"x"), u"");
  EXPECT_EQ(Read(u"A", u"y"), u"");
  EXPECT_EQ(Read(u"A", u"z"), u"");
}

TEST_F(ProfileContract, AValueMayHoldEqualsSigns) {
  Profile("[A]\r\nx=a=b=c\r\n");
  EXPECT_EQ(Read(u"A", u"x"), u"a=b=c");
}

TEST_F(ProfileContract, ValuesAreInTheWindowsCodePage) {
  Profile("[A]\r\nx=\xE9\x80\x9C\x81\r\n");
  EXPECT_EQ(Read(u"A", u"x"), u"\u00E9\u20AC\u0153\u0081");
}

TEST_F(ProfileContract, ALongValueIsCutToTheBuffer) {
  const std::string value(300, 'x');
  Profile("[A]\r\nx=" + value + "\r\ny=abc\r\n");
  EXPECT_EQ(Read(u"A", u"x"), Text(254, u'x'));
  EXPECT_EQ(Read(u"A", u"y", u"", 4), u"abc");
  EXPECT_EQ(Read(u"A", u"y", u"", 3), u"ab");
  EXPECT_EQ(Read(u"A", u"y", u"", 1), u"");
}

TEST_F(ProfileContract, TheFallbackComesForWhatIsMissing) {
  Profile("[A]\r\nx=1\r\n");
  EXPECT_EQ(Read(u"A", u"y", u" rien  "), u" rien");
  EXPECT_EQ(Read(u"B", u"x", u" rien  "), u" rien");
  EXPECT_EQ(Read(u"A", u"y", u""), u"");
  EXPECT_EQ(Read(u"A", u"y", u"rien", 3), u"ri");
  NoProfile();
  EXPECT_EQ(Read(u"A", u"x", u" rien  "), u" rien");
  file_ = u"D:\\NULLEPART\\ESSAI.INI";
  EXPECT_EQ(Read(u"A", u"x", u"rien"), u"rien");
}

TEST_F(ProfileContract, WhatOthersWriteIsSeen) {
  Profile("[A]\r\nx=1\r\n");
  EXPECT_EQ(Read(u"A", u"x"), u"1");
  disc_.File(name_, "[A]\r\nx=2\r\n", {1997, 3, 1, 12, 0, 2});
  EXPECT_EQ(Read(u"A", u"x"), u"2");
  disc_.Remove(name_);
  EXPECT_EQ(Read(u"A", u"x"), u"(rien)");
}

TEST_F(ProfileContract, ACarriageReturnEndsALineToo) {
  Profile("[A]\rx=1\ry=2\r[B]\rz=3");
  EXPECT_EQ(Read(u"A", u"x"), u"1");
  EXPECT_EQ(Read(u"A", u"y"), u"2");
  EXPECT_EQ(Read(u"B", u"z"), u"3");
}

TEST_F(ProfileContract, ALineWithoutEqualsSignIsNoKey) {
  Profile("[A]\r\nx\r\ny=1\r\nz\r\nz=2\r\n");
  EXPECT_EQ(Read(u"A", u"x"), u"(rien)");
  EXPECT_EQ(Read(u"A", u"y"), u"1");
}

TEST_F(ProfileContract, TheEndMarkOfMsDosIsABlank) {
  Profile("[A]\r\nx=1\r\ny=mot\x1A\r\n\x1A\r\nz=3\x1A");
  EXPECT_EQ(Read(u"A", u"x"), u"1");
  EXPECT_EQ(Read(u"A", u"y"), u"mot");
  EXPECT_EQ(Read(u"A", u"z"), u"3");
}

TEST_F(ProfileContract, AFileInUtf16IsReadByItsMark) {
  Profile(std::string("\xFF\xFE[\0A\0]\0\r\0\n\0x\0=\0\x16\x04\xE9\0\r\0\n\0", 24));
  EXPECT_EQ(Read(u"A", u"x"), u"\u0416\u00E9");
  Profile(
      std::string("\xFE\xFF\0[\0A\0]\0\n\0x\0=\0"
                  "1\0\n",
                  18));
  const bool wine_turns_it_round = CurrentHostSystem() == HostSystem::kWine;
  EXPECT_EQ(Read(u"A", u"x"), wine_turns_it_round ? u"1" : u"(rien)");
}

TEST_F(ProfileContract, AFileInUtf16StaysOne) {
  Profile(std::string("\xFF\xFE[\0A\0]\0\r\0\n\0", 12));
  EXPECT_EQ(Written(u"A", u"x", u"\u0416"),
            std::string("\xFF\xFE[\0A\0]\0\r\0\n\0x\0=\0\x16\x04\r\0\n\0", 22));
}

// --- Reading: where Wine differs ----------------------------------------------------------------

TEST_F(ProfileContract, LettersWithAccentsTakeNoNoticeOfCaseEither) {
  Profile("[R\xE9glages]\r\n\xC9t\xE9=chaud\r\n");
  const bool wine_tells_them_apart = CurrentHostSystem() == HostSystem::kWine;
  const Text expected = wine_tells_them_apart ? u"(rien)" : u"chaud";
  EXPECT_EQ(Read(u"R\u00E9glages", u"\u00C9t\u00E9"), u"chaud");
  EXPECT_EQ(Read(u"R\u00C9GLAGES", u"\u00C9t\u00E9"), expected);
  EXPECT_EQ(Read(u"R\u00E9glages", u"\u00E9t\u00C9"), expected);
}

TEST_F(ProfileContract, ACommentIsNoKey) {
  Profile("[A]\r\n;x=1\r\n");
  const bool wine_finds_it = CurrentHostSystem() == HostSystem::kWine;
  EXPECT_EQ(Read(u"A", u";x"), wine_finds_it ? u"1" : u"(rien)");
}

TEST_F(ProfileContract, ASectionEndsAtItsFirstBracket) {
  Profile("[A]B]\r\nx=1\r\n");
  const bool wine_takes_the_last_bracket = CurrentHostSystem() == HostSystem::kWine;
  EXPECT_EQ(Read(u"A", u"x"), wine_takes_the_last_bracket ? u"(rien)" : u"1");
  EXPECT_EQ(Read(u"A]B", u"x"), wine_takes_the_last_bracket ? u"1" : u"(rien)");
}

TEST_F(ProfileContract, BlanksInBracketsDoNotCount) {
  Profile("[ Setup ]\r\nx=1\r\n[\tB]\r\nx=2\r\n");
  EXPECT_EQ(Read(u"Setup", u"x"), u"1");
  EXPECT_EQ(Read(u"B", u"x"), u"2");
}

TEST_F(ProfileContract, ASectionWithoutBracketEndsWithItsLine) {
  Profile("[Ouverte\r\nx=1\r\n");
  const bool wine_refuses_it = CurrentHostSystem() == HostSystem::kWine;
  EXPECT_EQ(Read(u"Ouverte", u"x"), wine_refuses_it ? u"(rien)" : u"1");
}

TEST_F(ProfileContract, KeysBeforeAnySectionAreUnreachable) {
  Profile("x=1\r\n[A]\r\ny=2\r\n");
  const bool wine_reaches_them = CurrentHostSystem() == HostSystem::kWine;
  EXPECT_EQ(Read(u"", u"x"), wine_reaches_them ? u"1" : u"(rien)");
  EXPECT_EQ(Read(u"A", u"x"), u"(rien)");
}

TEST_F(ProfileContract, AUtf8SignatureIsPartOfTheFirstLine) {
  Profile("\xEF\xBB\xBF[A]\r\nx=1\r\n[B]\r\ny=2\r\n");
  const bool wine_decodes_it = CurrentHostSystem() == HostSystem::kWine;
  EXPECT_EQ(Read(u"A", u"x"), wine_decodes_it ? u"1" : u"(rien)");
  EXPECT_EQ(Read(u"B", u"y"), u"2");
}

// --- Writing ------------------------------------------------------------------------------------

TEST_F(ProfileContract, WritingMakesTheFile) {
  NoProfile();
  EXPECT_EQ(Written(u"html", u"html_car", u"12"), "[html]\r\nhtml_car=12\r\n");
  EXPECT_EQ(Read(u"HTML", u"HTML_CAR"), u"12");
}

TEST_F(ProfileContract, WritingReplacesTheFirstMatchAndNothingElse) {
  Profile(
      ";fichier\r\n[A]\r\nx=1\r\n;suite\r\n[html]\r\nTitre=un\r\nautre=deux\r\ntitre=trois\r\n");
  EXPECT_EQ(Written(u"HTML", u"TITRE", u"neuf"),
            ";fichier\r\n[A]\r\nx=1\r\n;suite\r\n[html]\r\nTitre=neuf\r\nautre=deux\r\n"
            "titre=trois\r\n");
}

TEST_F(ProfileContract, ANewKeyEndsItsSection) {
  Profile("[A]\r\nx=1\r\n[B]\r\ny=2\r\n");
  EXPECT_EQ(Written(u"A", u"z", u"3"), "[A]\r\nx=1\r\nz=3\r\n[B]\r\ny=2\r\n");
}

TEST_F(ProfileContract, EmptyLinesStayBehindANewKey) {
  Profile("[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n");
  const bool wine_drops_them = CurrentHostSystem() == HostSystem::kWine;
  const std::string gap = wine_drops_them ? "" : "\r\n";
  EXPECT_EQ(Written(u"A", u"z", u"3"), "[A]\r\nx=1\r\nz=3\r\n" + gap + "[B]\r\ny=2\r\n");
}

TEST_F(ProfileContract, ANewSectionEndsTheFile) {
  Profile("[A]\r\nx=1\r\n");
  EXPECT_EQ(Written(u"B", u"y", u"2"), "[A]\r\nx=1\r\n[B]\r\ny=2\r\n");
}

TEST_F(ProfileContract, ALastLineWithoutEndGetsOne) {
  Profile("[A]\r\nx=1");
  EXPECT_EQ(Written(u"A", u"y", u"2"), "[A]\r\nx=1\r\ny=2\r\n");
}

TEST_F(ProfileContract, ValuesAreWrittenInTheWindowsCodePage) {
  NoProfile();
  EXPECT_EQ(Written(u"R\u00E9glages", u"\u00E9t\u00E9", u"\u20AC \u0416"),
            "[R\xE9glages]\r\n\xE9t\xE9=\x80 ?\r\n");
}

TEST_F(ProfileContract, AnEmptyValueIsWritten) {
  Profile("[A]\r\nx=1\r\n");
  EXPECT_EQ(Written(u"A", u"x", u""), "[A]\r\nx=\r\n");
  EXPECT_EQ(Read(u"A", u"x"), u"");
}

TEST_F(ProfileContract, SeveralValuesFollowEachOther) {
  NoProfile();
  Written(u"html", u"a", u"1");
  Written(u"html", u"b", u"2");
  Written(u"Options", u"c", u"3");
  EXPECT_EQ(Written(u"html", u"a", u"4"), "[html]\r\na=4\r\nb=2\r\n[Options]\r\nc=3\r\n");
}

TEST_F(ProfileContract, WhatCannotBeWrittenFails) {
  disc_.Directory("DOSSIER.INI");
  EXPECT_FALSE(platform_.WritePrivateProfileString(u"A", u"x", u"1", u"D:\\NULLEPART\\A.INI"));
  EXPECT_FALSE(platform_.WritePrivateProfileString(u"A", u"x", u"1", u"D:\\DOSSIER.INI"));
  EXPECT_THAT(FindAll(u"D:\\*"), testing::ElementsAre(u"DOSSIER.INI"));
}

// --- Names of any length ------------------------------------------------------------------------

TEST_F(ProfileContract, NamesLongerThan260CharactersAreReadAndWritten) {
  std::string folder;
  for (int level = 0; level < 12; ++level) folder += "Un dossier au nom tres long/";
  Profile("");
  disc_.File(folder + "SETUP.INI", "[Startup]\r\nAppName=Dames\r\n[Autre]\r\nx=1\r\n");
  file_ = u"D:\\" + Text(folder.begin(), folder.end()) + u"SETUP.INI";
  std::replace(file_.begin(), file_.end(), u'/', u'\\');
  ASSERT_GT(file_.size(), 300u);
  EXPECT_EQ(Read(u"STARTUP", u"appname"), u"Dames");
  EXPECT_EQ(Read(u"Startup", u"Titre"), u"(rien)");
  EXPECT_EQ(Written(u"Startup", u"AppName", u"Cartes"),
            "[Startup]\r\nAppName=Cartes\r\n[Autre]\r\nx=1\r\n");
  EXPECT_EQ(Read(u"Startup", u"AppName"), u"Cartes");
  file_.insert(file_.size() - 4, u"2");
  EXPECT_EQ(Read(u"Startup", u"AppName"), u"(rien)");
}

}  // namespace
}  // namespace trovex::test
