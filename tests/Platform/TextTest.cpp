#include "Platform/Text.h"

#include <gtest/gtest.h>

namespace trovex::test {
namespace {

TEST(Text, CaseMappingCoversAccentedAndForeignLetters) {
  EXPECT_EQ(ToUpper(u"éàüœÿ"), u"ÉÀÜŒŸ");
  EXPECT_EQ(ToLower(u"ÉÀÜŒŸ"), u"éàüœÿ");
  EXPECT_EQ(ToUpper(u"ωжա"), u"ΩЖԱ");
  EXPECT_EQ(ToUpper(u"1-_~\\"), u"1-_~\\");
}

TEST(Text, CaseMappingNeverChangesTheLength) {
  // These have no one-to-one partner that leads back.
  EXPECT_EQ(ToUpper(u"ßıſµ"), u"ßıſµ");
  EXPECT_EQ(ToLower(u"İẞ"), u"İẞ");
}

TEST(Text, EveryUnitKeepsItsClassThroughBothMappings) {
  for (unsigned i = 0; i <= 0xFFFF; ++i) {
    const auto unit = static_cast<char16_t>(i);
    ASSERT_EQ(ToUpper(ToLower(unit)), ToUpper(unit)) << i;
    ASSERT_EQ(ToLower(ToUpper(unit)), ToLower(unit)) << i;
    ASSERT_EQ(ToUpper(ToUpper(unit)), ToUpper(unit)) << i;
  }
}

TEST(Text, SurrogatesAreNoLetters) {
  for (unsigned i = 0xD800; i <= 0xDFFF; ++i) {
    const auto unit = static_cast<char16_t>(i);
    ASSERT_EQ(ToUpper(unit), unit);
    ASSERT_EQ(ToLower(unit), unit);
  }
}

TEST(Text, ProperCaseRaisesTheFirstOfEachWord) {
  EXPECT_EQ(ProperCase(u"JEUX D'ADRESSE"), u"Jeux D'adresse");
  EXPECT_EQ(ProperCase(u"a\tb c"), u"A\tB C");
  EXPECT_EQ(ProperCase(Text(u"AB\0CD", 5)), Text(u"Ab\0Cd", 5));
  EXPECT_EQ(ProperCase(u"MOT-CLEF.EXE"), u"Mot-clef.exe");
  EXPECT_EQ(ProperCase(u"3DSHOW ÉTÉ"), u"3dshow Été");
  EXPECT_EQ(ProperCase(u""), u"");
}

TEST(Text, TrimTakesBlanksOnly) {
  EXPECT_EQ(Trim(u"  a b  "), u"a b");
  EXPECT_EQ(Trim(u"\t a\t "), u"\t a\t");
  EXPECT_EQ(Trim(u"\u00A0a"), u"\u00A0a");
  EXPECT_EQ(Trim(u"   "), u"");
  EXPECT_EQ(Trim(u""), u"");
}

TEST(Text, EqualsNoCaseComparesLengthAndLetters) {
  EXPECT_TRUE(EqualsNoCase(u"Été.EXE", u"éTÉ.exe"));
  EXPECT_FALSE(EqualsNoCase(u"ete", u"été"));
  EXPECT_FALSE(EqualsNoCase(u"ab", u"abc"));
  EXPECT_TRUE(EqualsNoCase(u"", u""));
}

TEST(Text, ValReadsTheNumberAtTheStart) {
  EXPECT_EQ(Val(u"12abc"), 12);
  EXPECT_EQ(Val(u"  -3.5 F"), -3.5);
  EXPECT_EQ(Val(u"1 234\t5"), 12345);
  EXPECT_EQ(Val(u"+7"), 7);
  EXPECT_EQ(Val(u".5"), 0.5);
  EXPECT_EQ(Val(u"1.2.3"), 1.2);
  EXPECT_EQ(Val(u"12-3"), 12);
}

TEST(Text, ValReadsExponents) {
  EXPECT_EQ(Val(u"1e3"), 1000);
  EXPECT_EQ(Val(u"2D2"), 200);
  EXPECT_EQ(Val(u"5e"), 5);
  EXPECT_EQ(Val(u"5e+"), 5);
}

TEST(Text, ValReadsHexadecimalAndOctal) {
  EXPECT_EQ(Val(u"&HFF"), 255);
  EXPECT_EQ(Val(u"&hFFFF"), -1);
  EXPECT_EQ(Val(u"&H10000"), 65536);
  EXPECT_EQ(Val(u"&HFFFFFFFF"), -1);
  EXPECT_EQ(Val(u"&O17"), 15);
  EXPECT_EQ(Val(u" &H1G"), 1);
  EXPECT_EQ(Val(u"&"), 0);
  EXPECT_EQ(Val(u"&X1"), 0);
}

TEST(Text, ValIsNothingWhereNoNumberStands) {
  EXPECT_EQ(Val(u""), 0);
  EXPECT_EQ(Val(u"abc"), 0);
  EXPECT_EQ(Val(u"-"), 0);
  EXPECT_EQ(Val(u"--5"), 0);
  EXPECT_EQ(Val(u"+-5"), 0);
  EXPECT_EQ(Val(u"."), 0);
  EXPECT_EQ(Val(u"inf"), 0);
}

TEST(Text, DecimalWritesWholeNumbers) {
  EXPECT_EQ(Decimal(0), u"0");
  EXPECT_EQ(Decimal(-32768), u"-32768");
  EXPECT_EQ(Decimal(9223372036854775807), u"9223372036854775807");
}

}  // namespace
}  // namespace trovex::test
