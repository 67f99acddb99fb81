#include "Platform/Posix/Listing.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <vector>

#include "Platform/Encoding.h"
#include "support/TestDisc.h"

namespace trovex::test {
namespace {

using posix::Listing;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<Text> NamesIn(const TestDisc& disc) {
  const auto listing = Listing::Read(disc.HostPath("").string());
  std::vector<Text> names;
  for (std::size_t i = 0; i < listing->Count(); ++i) {
    if (listing->At(i).kind != posix::EntryKind::kOther) names.emplace_back(listing->At(i).name);
  }
  return names;
}

TEST(Listing, ComesInOrderOfUpperCasedNames) {
  TestDisc disc;
  // The underscore lies behind the capitals and before the small letters.
  for (const char* name : {"b", "A_", "Ab", "a", "C", "É", "z"}) disc.File(name);
  EXPECT_THAT(NamesIn(disc), ElementsAre(u"a", u"Ab", u"A_", u"b", u"C", u"z", u"É"));
}

TEST(Listing, NamesBeyondLatinComeInOrderOfTheirFirstDifference) {
  TestDisc disc;
  for (const char* name : {"日本", "Жук", "ŽO", "ŒU", "ÿa", "ÿB"}) disc.File(name);
  EXPECT_THAT(NamesIn(disc), ElementsAre(u"ŒU", u"ÿa", u"ÿB", u"ŽO", u"Жук", u"日本"));
}

// The order told plainly: upper-cased, then code unit by code unit.
bool ComesBefore(const Text& a, const Text& b) {
  const auto upper = [](char16_t unit) { return ToUpper(unit); };
  Text x = a, y = b;
  std::transform(x.begin(), x.end(), x.begin(), upper);
  std::transform(y.begin(), y.end(), y.begin(), upper);
  return std::lexicographical_compare(x.begin(), x.end(), y.begin(), y.end());
}

// Random host names from few characters of many scripts, so that many share their beginnings. No
// two are the same without regard to case.
std::vector<std::string> RandomNames(std::size_t count) {
  const std::vector<std::string> characters = {"a",
                                               "B",
                                               "b",
                                               "_",
                                               "~",
                                               "1",
                                               "é",
                                               "É",
                                               "þ",
                                               "ÿ",
                                               "Ÿ",
                                               "Ā",
                                               "ž",
                                               "Œ",
                                               "λ",
                                               "Ж",
                                               "ж",
                                               "א",
                                               "ก",
                                               "日",
                                               "本",
                                               "한",
                                               "\xEF\xBC\xA1",
                                               "\xEF\xBF\xBD",
                                               "\xF0\x9F\x98\x80",
                                               "\x80",
                                               "\xED\xA0",
                                               "\xFF"};
  std::mt19937 random(1997);
  const auto below = [&](std::size_t end) { return random() % end; };
  std::vector<std::string> names;
  std::vector<Text> taken;
  while (names.size() < count) {
    std::string name;
    for (std::size_t left = 1 + below(12); left > 0; --left) {
      // Every other character from the first six: equal beginnings of all lengths.
      name += characters[below(below(2) == 0 ? 6 : characters.size())];
    }
    Text upper = ToUpper(FromUtf8(name));
    if (std::find(taken.begin(), taken.end(), upper) != taken.end()) continue;
    taken.push_back(std::move(upper));
    names.push_back(name);
  }
  return names;
}

TEST(Listing, RandomNamesOfAllScriptsComeInThePlainOrderAndAreFound) {
  TestDisc disc;
  std::vector<Text> expected;
  for (const std::string& name : RandomNames(2000)) {
    disc.File(name);
    expected.push_back(FromUtf8(name));
  }
  std::sort(expected.begin(), expected.end(), ComesBefore);
  EXPECT_EQ(NamesIn(disc), expected);
  const auto listing = Listing::Read(disc.HostPath("").string());
  for (const Text& name : expected) {
    EXPECT_EQ(listing->Find(ToLower(name))->name, name);
    EXPECT_FALSE(listing->Find(name + char16_t{0xD800}));
  }
}

TEST(Listing, NamesThatDifferOnlyInCaseAreNumbered) {
  TestDisc disc;
  for (const char* name : {"setup.exe", "SETUP.EXE", "Setup.exe"}) disc.File(name);
  EXPECT_THAT(NamesIn(disc), ElementsAre(u"SETUP.EXE", u"Setup~2.exe", u"setup~3.exe"));
}

TEST(Listing, ANumberAlreadyBorneIsSkipped) {
  TestDisc disc;
  for (const char* name : {"a.txt", "A.TXT", "A~2.TXT"}) disc.File(name);
  EXPECT_THAT(NamesIn(disc), ElementsAre(u"A.TXT", u"A~2.TXT", u"a~3.txt"));
}

TEST(Listing, NumbersStandBeforeTheExtension) {
  TestDisc disc;
  for (const char* name : {"LISEZMOI", "lisezmoi", "a.b.C", "A.B.c", ".profil", ".Profil"}) {
    disc.File(name);
  }
  EXPECT_THAT(NamesIn(disc), ElementsAre(u".Profil", u".profil~2", u"A.B.c", u"a.b~2.C",
                                         u"LISEZMOI", u"lisezmoi~2"));
}

TEST(Listing, NumberedNamesLeadToTheirOwnFiles) {
  TestDisc disc;
  disc.File("setup.exe", "small");
  disc.File("SETUP.EXE", "capital");
  const auto listing = Listing::Read(disc.HostPath("").string());
  EXPECT_STREQ(listing->Find(u"SETUP.EXE")->host, "SETUP.EXE");
  EXPECT_STREQ(listing->Find(u"SETUP~2.EXE")->host, "setup.exe");
  EXPECT_EQ(listing->FindHost("setup.exe")->name, u"setup~2.exe");
  EXPECT_FALSE(listing->Find(u"SETUP~3.EXE"));
}

TEST(Listing, AFileKeepsItsNameBesideALinkToADirectory) {
  TestDisc disc;
  disc.File("jeux");
  disc.Directory("cible");
  std::filesystem::create_directory_symlink("cible", disc.HostPath("JEUX"));
  EXPECT_THAT(NamesIn(disc), ElementsAre(u"cible", u"jeux"));
}

TEST(Listing, BytesThatAreNoUtf8StayReachable) {
  TestDisc disc;
  disc.File("a\xFF.exe");
  const auto listing = Listing::Read(disc.HostPath("").string());
  const Text name = {u'a', 0xDCFF, u'.', u'e', u'x', u'e'};
  EXPECT_EQ(listing->At(0).name, name);
  EXPECT_STREQ(listing->Find(ToUpper(name))->host, "a\xFF.exe");
}

TEST(Listing, ABackslashInAHostNameIsNoSeparator) {
  TestDisc disc;
  disc.File("a\\b");
  EXPECT_THAT(NamesIn(disc), ElementsAre(u"a\uF05Cb"));
  EXPECT_EQ(posix::ShownName("a\\b"), u"a\uF05Cb");
  EXPECT_EQ(posix::NewHostName(u"a\uF05Cb"), "a\\b");
}

TEST(Listing, TwoHostNamesThatShowAlikeAreBothThere) {
  TestDisc disc;
  disc.File("a\\b");
  disc.File("a\uF05Cb");
  EXPECT_THAT(NamesIn(disc), ElementsAre(u"a\uF05Cb", u"a\uF05Cb~2"));
}

TEST(Listing, AnEmptyDirectoryHoldsNothing) {
  TestDisc disc;
  EXPECT_THAT(NamesIn(disc), IsEmpty());
}

TEST(Listing, NothingComesOfAMissingDirectoryAFileOrALink) {
  TestDisc disc;
  disc.File("fichier");
  disc.Directory("cible");
  std::filesystem::create_directory_symlink("cible", disc.HostPath("lien"));
  for (const char* name : {"rien", "fichier", "lien"}) {
    EXPECT_EQ(Listing::Read(disc.HostPath(name).string()), nullptr) << name;
  }
}

}  // namespace
}  // namespace trovex::test
