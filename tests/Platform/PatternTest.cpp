#include "Platform/Pattern.h"

#include <gtest/gtest.h>

#include <random>

#include "Platform/Encoding.h"

namespace trovex::test {
namespace {

TEST(Pattern, StarIsAnyRunAndQuestionMarkOneCharacter) {
  EXPECT_TRUE(MatchesPattern(u"SETUP.EXE", u"*.exe"));
  EXPECT_TRUE(MatchesPattern(u"a.b.exe", u"*.EXE"));
  EXPECT_TRUE(MatchesPattern(u".exe", u"*.exe"));
  EXPECT_FALSE(MatchesPattern(u"setup.exe2", u"*.exe"));
  EXPECT_FALSE(MatchesPattern(u"setupexe", u"*.exe"));
  EXPECT_TRUE(MatchesPattern(u"ab", u"a?"));
  EXPECT_FALSE(MatchesPattern(u"a", u"a?"));
  EXPECT_TRUE(MatchesPattern(u"abcXbcd", u"a*bcd"));
  EXPECT_TRUE(MatchesPattern(u"abc", u"**c*"));
}

TEST(Pattern, LettersMatchWithoutRegardToCase) {
  EXPECT_TRUE(MatchesPattern(u"ÉTÉ.txt", u"été.TXT"));
  EXPECT_FALSE(MatchesPattern(u"ete.txt", u"été.TXT"));
}

TEST(Pattern, AnyExtensionAlsoMeansNone) {
  EXPECT_TRUE(MatchesPattern(u"LISEZMOI", u"*.*"));
  EXPECT_TRUE(MatchesPattern(u"a.b", u"*.*"));
  EXPECT_TRUE(MatchesPattern(u"LISEZMOI", u"lisez*.*"));
  EXPECT_TRUE(MatchesPattern(u"LISEZMOI", u"lisezmoi.*"));
  EXPECT_FALSE(MatchesPattern(u"LISEZMOI", u"autre.*"));
  EXPECT_FALSE(MatchesPattern(u"LISEZMOI", u"*.t*"));
  EXPECT_FALSE(MatchesPattern(u"a.b", u"a*b.*"));
}

TEST(Pattern, EmptyMatchesOnlyEmpty) {
  EXPECT_TRUE(MatchesPattern(u"", u""));
  EXPECT_TRUE(MatchesPattern(u"", u"*"));
  EXPECT_FALSE(MatchesPattern(u"a", u""));
  EXPECT_FALSE(MatchesPattern(u"", u"?"));
}

TEST(Pattern, ManyStarsStayCheap) {
  Text pattern;
  for (int i = 0; i < 50; ++i) pattern += u"a*";
  EXPECT_FALSE(MatchesPattern(Text(2000, u'a'), pattern + u"b"));
}

TEST(Pattern, WildcardsAreSeen) {
  EXPECT_TRUE(HasWildcard(u"*.exe"));
  EXPECT_TRUE(HasWildcard(u"a?"));
  EXPECT_FALSE(HasWildcard(u"setup.exe"));
}

TEST(NamePattern, MatchesAsThePatternItself) {
  const TextView patterns[] = {u"*",   u"*.*",      u"*.exe", u"*.e?e", u"a*.exe", u"été.TXT", u"?",
                               u"*xe", u"lisez*.*", u"*.",    u"",      u"**",     u"*é.*"};
  const TextView names[] = {u"SETUP.EXE", u"a.exe", u"ÉTÉ.txt", u"b", u"LISEZMOI",
                            u".exe",      u"exe",   u"a.exe2",  u"",  u"é"};
  for (const TextView pattern : patterns) {
    const NamePattern compiled(pattern);
    for (const TextView name : names) {
      EXPECT_EQ(compiled.Matches(name), MatchesPattern(name, pattern))
          << ToUtf8(pattern) << " " << ToUtf8(name);
    }
  }
}

TEST(NamePattern, MatchesRandomNamesAsThePatternItself) {
  std::mt19937 random(17);
  const TextView units = u"aAéÉ.eEжЖ日ßÿ*?";
  const auto text = [&](std::size_t alphabet) {
    Text result;
    for (std::size_t size = random() % 6; size > 0; --size) result += units[random() % alphabet];
    return result;
  };
  for (int round = 0; round < 20000; ++round) {
    const Text pattern = (random() % 2 == 0 ? u"*" : u"") + text(units.size());
    const Text name = text(units.size() - 2);
    ASSERT_EQ(NamePattern(pattern).Matches(name), MatchesPattern(name, pattern))
        << ToUtf8(pattern) << " " << ToUtf8(name);
  }
}

}  // namespace
}  // namespace trovex::test
