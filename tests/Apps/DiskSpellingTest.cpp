// Paths of a walk, found again as the disk spells them.
#include "Apps/trovex-cli/DiskSpelling.h"

#include <gtest/gtest.h>

#include "Platform/ForwardingPlatform.h"
#include "support/TestDisc.h"

namespace trovex::test {
namespace {

class CountedSearches : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;

  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    ++searches;
    return ForwardingPlatform::FindFirstFile(pattern, data);
  }

  int searches = 0;
};

class DiskSpellingTest : public testing::Test {
 protected:
  TestDisc disc_;
  cli::DiskSpelling spelling_;
};

TEST_F(DiskSpellingTest, EveryLevelIsSpelledAsOnTheDisk) {
  disc_.Directory("JEUX de/SOUS dossier");
  EXPECT_EQ(spelling_.Of(u"D:\\Jeux De\\Sous Dossier"), u"D:\\JEUX de\\SOUS dossier");
  EXPECT_EQ(spelling_.Of(u"D:\\Jeux De"), u"D:\\JEUX de");
  EXPECT_EQ(spelling_.Of(u"D:\\"), u"D:\\");
}

TEST_F(DiskSpellingTest, LevelsOfTheSameNameBelowOthersAreTheirOwn) {
  disc_.Directory("A/jeux");
  disc_.Directory("B/JEUX");
  EXPECT_EQ(spelling_.Of(u"D:\\A\\Jeux"), u"D:\\A\\jeux");
  EXPECT_EQ(spelling_.Of(u"D:\\B\\Jeux"), u"D:\\B\\JEUX");
}

TEST_F(DiskSpellingTest, WhatIsNotFoundStaysAsItIs) {
  disc_.Directory("JEUX");
  EXPECT_EQ(spelling_.Of(u"D:\\Jeux\\Rien\\Du Tout"), u"D:\\JEUX\\Rien\\Du Tout");
  EXPECT_EQ(spelling_.Of(u"\\\\Serveur\\Partage"), u"\\\\Serveur\\Partage");
  EXPECT_EQ(spelling_.Of(u""), u"");
}

TEST_F(DiskSpellingTest, ADirectoryIsListedOnceForAllThatAWalkFindsBelow) {
  Text walked = u"D:\\Jeux\\";
  for (int i = 0; i < 20; ++i) disc_.Directory("JEUX/n" + std::to_string(i));
  CountedSearches counted(disc_.GetPlatform());
  PlatformScope scope(counted);
  for (int i = 0; i < 20; ++i) {
    EXPECT_EQ(spelling_.Of(walked + u"N" + Decimal(i)), u"D:\\JEUX\\n" + Decimal(i));
  }
  EXPECT_EQ(counted.searches, 2) << "the root and one directory";
}

}  // namespace
}  // namespace trovex::test
