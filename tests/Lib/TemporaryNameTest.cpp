#include "Lib/LibTest.h"

namespace trovex::test {
namespace {

class TemporaryNameTest : public LibTest {
 protected:
  TemporaryNameTest() { platform.environment = {{u"TMP", u"D:\\TEMP"}}; }

  // A number that names a file with these last digits, 23 to 39.
  static double Giving(int digits) { return (digits - 23 + 0.5) / 17; }
};

TEST_F(TemporaryNameTest, IsMadeOfThePrefixAndThreeDigitsInTheTemporaryDirectory) {
  platform.random = {Giving(31)};
  EXPECT_EQ(sNomTemporaire(u"Trvx"), u"D:\\TEMP\\~Trvx031.tmp");
}

TEST_F(TemporaryNameTest, TheProgramsOwnNamesBearItsPrefix) {
  platform.random = {Giving(30)};
  EXPECT_EQ(sNomTempAppli(), u"D:\\TEMP\\~Trvx030.tmp");
}

TEST_F(TemporaryNameTest, TheDigitsRunFrom023To039) {
  platform.random = {0.0, 0.999999};
  EXPECT_EQ(sNomTempAppli(), u"D:\\TEMP\\~Trvx023.tmp");
  EXPECT_EQ(sNomTempAppli(), u"D:\\TEMP\\~Trvx039.tmp");
}

// --- The prefix ---------------------------------------------------------------------------------

TEST_F(TemporaryNameTest, ThePrefixIsCleaned) {
  platform.random = {0};
  EXPECT_EQ(sNomTemporaire(u"a.é"), u"D:\\TEMP\\~a__023.tmp");
}

TEST_F(TemporaryNameTest, FiveCharactersOfThePrefixAreKept) {
  platform.random = {0};
  EXPECT_EQ(sNomTemporaire(u"abcdefgh"), u"D:\\TEMP\\~abcde023.tmp");
}

TEST_F(TemporaryNameTest, AnEmptyPrefixIsTheUsualOne) {
  platform.random = {0};
  EXPECT_EQ(sNomTemporaire(u""), u"D:\\TEMP\\~Trvx023.tmp");
}

// --- The directory ------------------------------------------------------------------------------

TEST_F(TemporaryNameTest, TheDirectoryIsThatOfTmp) {
  platform.environment = {{u"TMP", u"D:\\UN\\"}, {u"TEMP", u"D:\\DEUX"}};
  platform.random = {0};
  EXPECT_EQ(sNomTempAppli(), u"D:\\UN\\~Trvx023.tmp");
  EXPECT_EQ(sRepertoireTemp, u"D:\\UN\\");
}

TEST_F(TemporaryNameTest, TheDirectoryIsThatOfTempWithoutTmp) {
  platform.environment = {{u"TEMP", u"D:\\DEUX"}};
  platform.random = {0};
  EXPECT_EQ(sNomTempAppli(), u"D:\\DEUX\\~Trvx023.tmp");
}

TEST_F(TemporaryNameTest, TheDirectoryIsTheProgramsWithoutEither) {
  platform.environment.clear();
  platform.random = {0};
  EXPECT_EQ(sNomTempAppli(), u"D:\\Programme\\~Trvx023.tmp");
}

TEST_F(TemporaryNameTest, TheDirectoryIsLookedUpOnce) {
  sRepertoireTemp = u"D:\\CHOISI";
  platform.random = {0};
  EXPECT_EQ(sNomTempAppli(), u"D:\\CHOISI\\~Trvx023.tmp");
}

// --- Fresh names --------------------------------------------------------------------------------

TEST_F(TemporaryNameTest, TheNameGivenOutIsRemembered) {
  platform.random = {Giving(25)};
  EXPECT_EQ(sNomTempAppli(), sDernierNomTemp);
  EXPECT_EQ(sDernierNomTemp, u"D:\\TEMP\\~Trvx025.tmp");
}

TEST_F(TemporaryNameTest, ANameThatExistsIsDrawnAgain) {
  disc.File("TEMP/~Trvx025.tmp");
  platform.random = {Giving(25), Giving(26)};
  EXPECT_EQ(sNomTempAppli(), u"D:\\TEMP\\~Trvx026.tmp");
}

TEST_F(TemporaryNameTest, TheLastNameIsDrawnAgain) {
  sDernierNomTemp = u"D:\\TEMP\\~Trvx025.tmp";
  platform.random = {Giving(25), Giving(26)};
  EXPECT_EQ(sNomTempAppli(), u"D:\\TEMP\\~Trvx026.tmp");
}

TEST_F(TemporaryNameTest, TheSecondNameMayBeTheLastOne) {
  sDernierNomTemp = u"D:\\TEMP\\~Trvx025.tmp";
  platform.random = {Giving(25), Giving(25)};
  EXPECT_EQ(sNomTempAppli(), u"D:\\TEMP\\~Trvx025.tmp");
}

TEST_F(TemporaryNameTest, TheThirdNameIsNotTested) {
  disc.File("TEMP/~Trvx025.tmp");
  disc.File("TEMP/~Trvx026.tmp");
  disc.File("TEMP/~Trvx027.tmp");
  platform.random = {Giving(25), Giving(26), Giving(27)};
  EXPECT_EQ(sNomTempAppli(), u"D:\\TEMP\\~Trvx027.tmp");
  EXPECT_THAT(platform.random, testing::IsEmpty());
}

}  // namespace
}  // namespace trovex::test
