#include "Platform/Records/ProfileFile.h"

#include <gtest/gtest.h>

#include <random>

namespace trovex::test {
namespace {

using records::FindProfileValue;
using records::HoldsKeyAlone;
using records::WithProfileValue;

TEST(ProfileFile, FindsWithoutRegardToCase) {
  EXPECT_EQ(FindProfileValue("[Setup]\r\nTitle=Jeu\r\n", u"SETUP", u"title"), u"Jeu");
  EXPECT_EQ(FindProfileValue("[\xC9T\xC9]\r\nCl\xE9=1\r\n", u"été", u"CLÉ"), u"1");
}

TEST(ProfileFile, DropsBlanksTabsAndOnePairOfQuotes) {
  EXPECT_EQ(FindProfileValue(" [a] \n \tk \t=\t v w \t\n", u"a", u" k "), u"v w");
  EXPECT_EQ(FindProfileValue("[a]\nk=\" v \"", u"a", u"k"), u" v ");
  EXPECT_EQ(FindProfileValue("[a]\nk='v'", u"a", u"k"), u"v");
  EXPECT_EQ(FindProfileValue("[a]\nk=\"\"v\"\"", u"a", u"k"), u"\"v\"");
  EXPECT_EQ(FindProfileValue("[a]\nk=\"v'", u"a", u"k"), u"\"v'");
  EXPECT_EQ(FindProfileValue("[a]\nk=\"", u"a", u"k"), u"\"");
  EXPECT_EQ(FindProfileValue("[a]\nk=\"\"", u"a", u"k"), u"");
}

TEST(ProfileFile, TheFirstSectionAndTheFirstKeyCount) {
  EXPECT_EQ(FindProfileValue("[a]\nk=1\nk=2\n[a]\nk=3", u"a", u"k"), u"1");
  EXPECT_EQ(FindProfileValue("[a]\n[b]\nk=2\n[a]\nk=3", u"a", u"k"), std::nullopt);
}

TEST(ProfileFile, CommentsAndStrayLinesHoldNoKeys) {
  EXPECT_EQ(FindProfileValue("[a]\n;k=1\n  ; k=2\nk\nk=3", u"a", u"k"), u"3");
  EXPECT_EQ(FindProfileValue("k=1\n[a]\n", u"", u"k"), std::nullopt);
  EXPECT_EQ(FindProfileValue("k=1\n[a]\n", u"a", u"k"), std::nullopt);
}

TEST(ProfileFile, ASectionsNameEndsAtItsBracketOrWithTheLine) {
  EXPECT_EQ(FindProfileValue("[a]b]\nk=1", u"a", u"k"), u"1");
  EXPECT_EQ(FindProfileValue("[a \nk=1", u"a", u"k"), u"1");
  EXPECT_EQ(FindProfileValue("[]\nk=1", u"", u"k"), u"1");
  EXPECT_EQ(FindProfileValue("[", u"", u"k"), std::nullopt);
}

TEST(ProfileFile, TheValueIsAllBehindTheFirstEqualsSign) {
  EXPECT_EQ(FindProfileValue("[a]\nk=x=y;z", u"a", u"k"), u"x=y;z");
  EXPECT_EQ(FindProfileValue("[a]\nk=", u"a", u"k"), u"");
  EXPECT_EQ(FindProfileValue("[a]\n=v", u"a", u""), u"v");
}

TEST(ProfileFile, LinesEndInThreeWays) {
  EXPECT_EQ(FindProfileValue("[a]\rk=1\rl=2", u"a", u"l"), u"2");
  EXPECT_EQ(FindProfileValue("[a]\nk=1\nl=2", u"a", u"k"), u"1");
  EXPECT_EQ(FindProfileValue("[a]\r\n\r\nk=1\r\n", u"a", u"k"), u"1");
}

std::string Utf16(TextView text) {
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

TEST(ProfileFile, AFileInUtf16IsReadByItsMark) {
  const std::string file = Utf16(u"[Réglages]\r\nClé=Жук 日本\r\nl='ż'\r\n");
  EXPECT_EQ(FindProfileValue(file, u"RÉGLAGES", u"clé"), u"Жук 日本");
  EXPECT_EQ(FindProfileValue(file, u"Réglages", u"l"), u"ż");
  EXPECT_EQ(FindProfileValue(file.substr(2), u"Réglages", u"l"), std::nullopt);
  EXPECT_EQ(FindProfileValue(Utf16(u""), u"a", u"k"), std::nullopt);
  for (std::size_t size = 0; size < file.size(); ++size) {
    FindProfileValue(file.substr(0, size), u"Réglages", u"Clé");
  }
}

TEST(ProfileFile, HalvesOfCharactersInUtf16ComeOutAsTheyWentIn) {
  const Text strange = {0xD800, u'a', 0xDCC3, 0xDCA9, 0xDFFF, 0xDBFF, u'z', 0xFFFF};
  const std::string file = Utf16(u"[a]\r\n; " + strange + u"\r\nk=1\r\n");
  EXPECT_EQ(WithProfileValue(file, u"a", u"k", u"2"),
            Utf16(u"[a]\r\n; " + strange + u"\r\nk=2\r\n"));
  EXPECT_EQ(FindProfileValue(Utf16(u"[a]\r\nk=" + strange + u"\r\n"), u"a", u"k"), strange);
}

TEST(ProfileFile, RandomUtf16KeepsItsOtherLines) {
  std::mt19937 random(5);
  for (int round = 0; round < 2000; ++round) {
    Text line = u"; ";
    for (std::size_t size = random() % 20; size > 0; --size) {
      const auto unit = static_cast<char16_t>(random());
      if (unit != u'\r' && unit != u'\n') line += unit;
    }
    const Text head = u"[a]\r\n" + line + u"\r\nk=";
    ASSERT_EQ(WithProfileValue(Utf16(head + u"1\r\n"), u"a", u"k", u"x"), Utf16(head + u"x\r\n"));
  }
}

TEST(ProfileFile, AKeyStandsAloneHoweverItIsWritten) {
  for (const char* alone : {"[a]\r\nk=1\r\n", "[ A ]\n K = \n", "[a\nk=1", "[a] suite\nk=1\n\x1A",
                            "; note\n\n[b]\n\t[a]\nk=1\nk=2\n"}) {
    EXPECT_TRUE(HoldsKeyAlone(alone, u"a", u"k")) << alone;
  }
  EXPECT_TRUE(HoldsKeyAlone(Utf16(u"[a]\r\nk=1\r\n"), u"a", u"k"));
  for (const char* other : {"", "[a]\n", "k=1\n", "[b]\nk=1\n", "[a]\nk=1\nl=2\n",
                            "[a]\nk=1\nnote\n", "[b]\nl=1\n[a]\nk=1\n"}) {
    EXPECT_FALSE(HoldsKeyAlone(other, u"a", u"k")) << other;
  }
}

TEST(ProfileFile, AFileInUtf16StaysOne) {
  EXPECT_EQ(WithProfileValue(Utf16(u"[a]\r\nk=1\r\n"), u"a", u"k", u"Ж"), Utf16(u"[a]\r\nk=Ж\r\n"));
  EXPECT_EQ(WithProfileValue(Utf16(u""), u"a", u"k", u"1"), Utf16(u"[a]\r\nk=1\r\n"));
}

TEST(ProfileFile, BlanksInBracketsDoNotCount) {
  EXPECT_EQ(FindProfileValue("[ \tSetup ]\nk=1", u"Setup", u"k"), u"1");
  EXPECT_EQ(WithProfileValue("[ a ]\nk=1\n", u"a", u"k", u"2"), "[ a ]\nk=2\n");
}

TEST(ProfileFile, TheEndMarkOfMsDosIsABlank) {
  EXPECT_EQ(FindProfileValue("[a]\r\nk=1\x1A", u"a", u"k"), u"1");
  EXPECT_EQ(FindProfileValue("[a]\r\nk=1\r\n\x1A\r\nl=2", u"a", u"l"), u"2");
  EXPECT_EQ(WithProfileValue("[a]\r\nk=1\r\n\x1A", u"a", u"l", u"2"), "[a]\r\nk=1\r\nl=2\r\n\x1A");
}

TEST(ProfileFile, NothingComesOfNothing) {
  EXPECT_EQ(FindProfileValue("", u"a", u"k"), std::nullopt);
  EXPECT_EQ(FindProfileValue(std::string(3, '\0'), u"a", u"k"), std::nullopt);
}

TEST(ProfileFile, ReplacesAValueAndLeavesTheRest) {
  EXPECT_EQ(WithProfileValue(";c\r\n[A]\r\n Key = \"1\"\r\nz=2\r\n", u"a", u"KEY", u"é"),
            ";c\r\n[A]\r\nKey=\xE9\r\nz=2\r\n");
  EXPECT_EQ(WithProfileValue("[a]\nk=1\nk=2", u"a", u"k", u"3"), "[a]\nk=3\nk=2");
  EXPECT_EQ(WithProfileValue("[a]\nk=1", u"a", u"k", u""), "[a]\nk=");
}

TEST(ProfileFile, AddsAKeyBeforeTheSectionsTrailingEmptyLines) {
  EXPECT_EQ(WithProfileValue("[a]\r\nk=1\r\n\r\n \r\n[b]\r\nn=1\r\n", u"a", u"n", u"2"),
            "[a]\r\nk=1\r\nn=2\r\n\r\n \r\n[b]\r\nn=1\r\n");
  EXPECT_EQ(WithProfileValue("[a]\r\n\r\n[b]\r\n", u"a", u"k", u"1"), "[a]\r\nk=1\r\n\r\n[b]\r\n");
  EXPECT_EQ(WithProfileValue("[a]\nk=1", u"a", u"n", u"2"), "[a]\nk=1\r\nn=2\r\n");
}

TEST(ProfileFile, AddsASectionAtTheEnd) {
  EXPECT_EQ(WithProfileValue("", u"html", u"k", u"-1"), "[html]\r\nk=-1\r\n");
  EXPECT_EQ(WithProfileValue("[a]\r\nk=1\r\n", u"b", u"k", u"2"), "[a]\r\nk=1\r\n[b]\r\nk=2\r\n");
  EXPECT_EQ(WithProfileValue("[a]\r\nk=1", u"b", u"k", u"2"), "[a]\r\nk=1\r\n[b]\r\nk=2\r\n");
}

TEST(ProfileFile, WhatWasWrittenIsReadBack) {
  // Every cut of a file that has all kinds of lines takes the value in and gives it back.
  const std::string file = ";x\r\n[a]\rk=1\n[b\r\n\r\n q = \"w\" \r\n[a]\nz";
  for (std::size_t size = 0; size <= file.size(); ++size) {
    const std::string written = WithProfileValue(file.substr(0, size), u"b", u"q", u"neuf");
    EXPECT_EQ(FindProfileValue(written, u"b", u"q"), u"neuf") << size;
  }
}

}  // namespace
}  // namespace trovex::test
