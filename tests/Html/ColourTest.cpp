#include "Html/LIB_RGB.h"

#include "Html/HtmlTest.h"

namespace trovex::test {
namespace {

class ColourTest : public HtmlTest {
 protected:
  // Value and channels of a text; channels that were not touched are -1.
  struct Colour {
    int value, red, green, blue;
    bool operator==(const Colour&) const = default;
  };
  Colour ColourOf(Text text) {
    Colour colour = {0, -1, -1, -1};
    colour.value = Hexa2RGB(text, colour.red, colour.green, colour.blue);
    text_after = text;
    return colour;
  }
  static constexpr Colour kUntouched = {0, -1, -1, -1};

  Text text_after;
};

TEST_F(ColourTest, WhiteIsAllChannelsFull) {
  EXPECT_EQ(ColourOf(u"FFFFFF"), (Colour{16777215, 255, 255, 255}));
}

TEST_F(ColourTest, AShortTextIsFilledOnTheLeft) {
  EXPECT_EQ(ColourOf(u"FF"), (Colour{255, 255, 0, 0}));
  EXPECT_EQ(ColourOf(u"1"), (Colour{1, 1, 0, 0}));
  EXPECT_EQ(ColourOf(u"101FF"), (Colour{0x101FF, 255, 1, 1}));
}

TEST_F(ColourTest, TheFirstPairIsBlueAndTheTextIsRaisedInPlace) {
  EXPECT_EQ(ColourOf(u"ff0000"), (Colour{16711680, 0, 0, 255}));
  EXPECT_EQ(text_after, u"FF0000");
}

TEST_F(ColourTest, WhatIsNoColourGivesZeroAndLeavesTheChannels) {
  EXPECT_EQ(ColourOf(u"0"), kUntouched);
  EXPECT_EQ(ColourOf(u""), kUntouched);
  EXPECT_EQ(ColourOf(u"1234567"), kUntouched);
  EXPECT_EQ(ColourOf(u"12G456"), kUntouched);
  EXPECT_EQ(ColourOf(u"#FFFF"), kUntouched);
}

TEST_F(ColourTest, ATextOfWrongDigitsIsRaisedAllTheSameAndATooLongOneIsNot) {
  ColourOf(u"12g456");
  EXPECT_EQ(text_after, u"12G456");
  ColourOf(u"abcdefa");
  EXPECT_EQ(text_after, u"abcdefa");
}

TEST_F(ColourTest, BlackOfTwoDigitsSetsTheChannels) {
  EXPECT_EQ(ColourOf(u"00"), (Colour{0, 0, 0, 0}));
}

TEST_F(ColourTest, ADigitHasItsValueOrMinusOne) {
  EXPECT_EQ(HexaToDecimal(u"a"), 10);
  EXPECT_EQ(HexaToDecimal(u"G"), -1);
  EXPECT_EQ(HexaToDecimal(u"0"), 0);
  EXPECT_EQ(HexaToDecimal(u"9"), 9);
  EXPECT_EQ(HexaToDecimal(u"F"), 15);
  EXPECT_EQ(HexaToDecimal(u""), -1);
  EXPECT_EQ(HexaToDecimal(u"/"), -1);
  EXPECT_EQ(HexaToDecimal(u":"), -1);
}

TEST_F(ColourTest, ANumberTooLargeForADigitIsReported) {
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(HexaToDecimal(u"1e99"), -1);
  EXPECT_EQ(BoxMessage(), u"HexaToDecimal()");
  EXPECT_EQ(BoxError(), kOverflow);
}

TEST_F(ColourTest, ATextIsCutToItsFirstDigit) {
  Text text = u"az";
  EXPECT_TRUE(IsHexDigit(text));
  EXPECT_EQ(text, u"A");
  text = u"xyz";
  EXPECT_FALSE(IsHexDigit(text));
  EXPECT_EQ(text, u"X");
  text = u"";
  EXPECT_FALSE(IsHexDigit(text));
  EXPECT_EQ(text, u"");
}

TEST_F(ColourTest, AColourTextHasNoLeadingZeros) {
  EXPECT_EQ(sHexa(0), u"0");
  EXPECT_EQ(sHexa(255), u"FF");
  EXPECT_EQ(sHexa(0x101FF), u"101FF");
  EXPECT_EQ(sHexa(0xFFFFFF), u"FFFFFF");
}

}  // namespace
}  // namespace trovex::test
