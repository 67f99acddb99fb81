#include "Platform/Encoding.h"

#include <gtest/gtest.h>

namespace trovex::test {
namespace {

std::string AllBytes() {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  return bytes;
}

TEST(Cp1252, EveryByteSurvivesTheRoundTrip) {
  EXPECT_EQ(ToCp1252(FromCp1252(AllBytes())), AllBytes());
}

TEST(Cp1252, HighBytesAreTheCodePagesCharacters) {
  EXPECT_EQ(FromCp1252("\x80\x85\x8C\x92\x9C\x9F\xA0\xE9\xFF"), u"€…Œ’œŸ\u00A0éÿ");
}

TEST(Cp1252, UndefinedBytesAreControls) {
  EXPECT_EQ(FromCp1252("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
}

TEST(Cp1252, WhatItLacksBecomesAQuestionMark) {
  EXPECT_EQ(ToCp1252(u"aЖb"), "a?b");
  EXPECT_EQ(ToCp1252(u"\u0080"), "?");  // a control whose byte means the euro sign
  EXPECT_EQ(ToCp1252(u"x\U0001F600y"), "x?y");
  EXPECT_EQ(ToCp1252(Text{0xD800, u'a', 0xDC00}), "?a?");
}

TEST(Utf8, DecodesAllLengths) {
  EXPECT_EQ(FromUtf8("aé€\xF0\x9F\x98\x80"), u"aé€\U0001F600");
  EXPECT_EQ(ToUtf8(u"aé€\U0001F600"), "aé€\xF0\x9F\x98\x80");
}

TEST(Utf8, ABadByteBecomesALoneSurrogate) {
  EXPECT_EQ(FromUtf8("a\xFFz"), (Text{u'a', 0xDCFF, u'z'}));
  EXPECT_EQ(FromUtf8("\xC3"), (Text{0xDCC3}));              // cut short
  EXPECT_EQ(FromUtf8("\xC0\xAF"), (Text{0xDCC0, 0xDCAF}));  // too long a form
  EXPECT_EQ(FromUtf8("\xE0\x80\xAF"), (Text{0xDCE0, 0xDC80, 0xDCAF}));
  EXPECT_EQ(FromUtf8("\xED\xA0\x80"), (Text{0xDCED, 0xDCA0, 0xDC80}));  // a surrogate
  EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), (Text{0xDCF4, 0xDC90, 0xDC80, 0xDC80}));
}

TEST(Utf8, EveryPairOfBytesSurvivesTheRoundTrip) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string bytes = {
          '\xF0', '\x9F', '\x98', '\x80', static_cast<char>(first), static_cast<char>(second)};
      ASSERT_EQ(ToUtf8(FromUtf8(bytes)), bytes) << first << ' ' << second;
    }
  }
}

TEST(Utf8, StrictFormIsAlwaysValid) {
  EXPECT_EQ(ToStrictUtf8(Text{u'a', 0xDCFF}), "a\xEF\xBF\xBD");
  EXPECT_EQ(ToStrictUtf8(Text{0xD800}), "\xEF\xBF\xBD");
  EXPECT_EQ(ToStrictUtf8(u"é\U0001F600"), "é\xF0\x9F\x98\x80");
  // A lone surrogate that stands for no byte has no other form.
  EXPECT_EQ(ToUtf8(Text{0xD800, u'a'}),
            "\xEF\xBF\xBD"
            "a");
}

}  // namespace
}  // namespace trovex::test
