// The choice to read version records in 16-bit characters, and what its note in the settings means.
#include "Lib/FichesUnicode.h"

#include "Platform/Encoding.h"
#include "support/LogicTest.h"

namespace trovex::test {
namespace {

class FichesUnicodeTest : public LogicTest {
 protected:
  // A name of its own for each test: the system may keep a file of the same name and date in mind.
  FichesUnicodeTest() {
    name_ = "CHOIX" + std::to_string(++number_) + ".INI";
    sFichierIni = u"D:\\" + Text(name_.begin(), name_.end());
  }
  ~FichesUnicodeTest() override { sFichierIni.clear(); }

  void Settings(const std::string& text) { disc.File(name_, text); }
  // The choice as a fresh start finds it.
  bool AtTheStart() {
    sDernierFichierIni.clear();
    LitFichesUnicode();
    return bFichesUnicode();
  }

 private:
  std::string name_;
  static inline int number_ = 0;
};

TEST_F(FichesUnicodeTest, IsOffWithoutSettings) {
  EXPECT_FALSE(AtTheStart());
  EXPECT_FALSE(bFichierExiste(sFichierIni)) << "reading writes nothing";
}

TEST_F(FichesUnicodeTest, IsOffWhereTheSettingsSayNothing) {
  Settings("[html]\r\nfiches_unicode=-1\r\n[Options]\r\naffiche_aide=-1\r\n");
  EXPECT_FALSE(AtTheStart());
}

TEST_F(FichesUnicodeTest, IsWhatTheSettingsSay) {
  Settings("[Options]\r\nfiches_unicode=-1\r\n");
  EXPECT_TRUE(AtTheStart());
}

TEST_F(FichesUnicodeTest, TheUsersChangeIsKept) {
  EnregistreFichesUnicode(true);
  EXPECT_TRUE(bFichesUnicode());
  EXPECT_TRUE(AtTheStart());
  EXPECT_EQ(sLitIni(u"Options", u"fiches_unicode", {}, sFichierIni), u"-1");
  EnregistreFichesUnicode(false);
  EXPECT_FALSE(AtTheStart());
  EXPECT_EQ(sLitIni(u"Options", u"fiches_unicode", {}, sFichierIni), u"0");
}

TEST_F(FichesUnicodeTest, AChoiceForOneRunIsNotKept) {
  ChoisitFichesUnicode(true);
  EXPECT_TRUE(bFichesUnicode());
  EXPECT_FALSE(AtTheStart());
  EXPECT_FALSE(bFichierExiste(sFichierIni));
}

TEST_F(FichesUnicodeTest, TheChoiceAloneIsNoOtherSetting) {
  EXPECT_FALSE(bAutresReglages(sFichierIni)) << "no file";
  EnregistreFichesUnicode(true);
  EXPECT_FALSE(bAutresReglages(sFichierIni));
  EnregistreFichesUnicode(false);
  EXPECT_FALSE(bAutresReglages(sFichierIni));
}

TEST_F(FichesUnicodeTest, HoweverTheChoiceIsWrittenItIsNoOtherSetting) {
  Settings("; note\r\n\r\n[Vide]\r\n\t[OPTIONS]\r\n  Fiches_Unicode\t= -1\r\n");
  EXPECT_FALSE(bAutresReglages(sFichierIni));
}

TEST_F(FichesUnicodeTest, WhatIsReadAsTheChoiceIsNoOtherSetting) {
  for (const char* text : {"[ Options ]\r\nfiches_unicode=-1\r\n",
                           "[Options] suite\r\nfiches_unicode=-1\r\n\x1A\r\n"}) {
    Settings(text);
    EXPECT_TRUE(AtTheStart()) << text;
    EXPECT_FALSE(bAutresReglages(sFichierIni)) << text;
  }
}

TEST_F(FichesUnicodeTest, AnythingElseIsAnotherSetting) {
  for (const char* text :
       {"", "; note\r\n", "[Options]\r\n", "[html]\r\nhtml_fin=0\r\n",
        "[Options]\r\nfiches_unicode=-1\r\naffiche_aide=0\r\n",
        "[html]\r\nhtml_titre=\r\n[Options]\r\nfiches_unicode=-1\r\n",
        "[html]\r\nfiches_unicode=-1\r\n", "fiches_unicode=-1\r\n", "[Options]\r\nfiches\r\n"}) {
    Settings(text);
    EXPECT_TRUE(bAutresReglages(sFichierIni)) << text;
  }
}

}  // namespace
}  // namespace trovex::test
