// The choice in the window menu to read version records in 16-bit characters, too.
#include "Lib/FichesUnicode.h"
#include "Screen/HtmlExportTest.h"

namespace trovex::test {
namespace {

class UnicodeRecordsTest : public HtmlExportTest {
 protected:
  UnicodeRecordsTest() {
    disc.File("JEUX/DAMES.EXE", PeExecutable(VersionBlock16({{"FileDescription", "Jeu de dames"},
                                                             {"FileVersion", "1.20"},
                                                             {"CompanyName", "Moi"},
                                                             {"InternalName", "DAMES"},
                                                             {"LegalCopyright", "\xA9 1997"},
                                                             {"ProductName", "Dames"}})));
    Dos("JEUX/ECHECS.EXE");  // with two rows the table of programs comes up
  }

  std::vector<Text> FirstRow() {
    std::vector<Text> cells;
    for (int col = 0; col < 4; ++col) cells.push_back(CurrentGrid().Cell(1, col));
    return cells;
  }
  std::vector<std::string> Site() { return {Frameset(), Tables(), Data()}; }
  // The next use of the HTML options loads them again, as another start of the program does.
  void ForgetOptions() {
    Lib_OptionsHTML().Unload();
    sDernierFichierIni.clear();
  }
};

TEST_F(UnicodeRecordsTest, TheEntryIsTheLastOfTheWindowMenuAndOff) {
  EXPECT_EQ(form.MenuEntries().back().get(), &form.LireFichesUnicode);
  EXPECT_EQ(form.LireFichesUnicode.Caption(), u"Lire les fiches de version Unicode");
  EXPECT_FALSE(form.LireFichesUnicode.Checked());
}

TEST_F(UnicodeRecordsTest, ScansGoByTheChoice) {
  Scan();
  EXPECT_EQ(FirstRow()[0], u"Ne contient pas de nom produit.");
  form.LireFichesUnicode.Choose();
  EXPECT_TRUE(form.LireFichesUnicode.Checked());
  EXPECT_EQ(FirstRow()[0], u"Ne contient pas de nom produit.") << "until the next scan";
  Scan();
  EXPECT_EQ(FirstRow(), (std::vector<Text>{u"Jeu de dames", u" D:\\Jeux", u" Dames.exe", u"1.20"}));
  form.LireFichesUnicode.Choose();
  EXPECT_FALSE(form.LireFichesUnicode.Checked());
  Scan();
  EXPECT_EQ(FirstRow()[0], u"Ne contient pas de nom produit.");
}

TEST_F(UnicodeRecordsTest, ClicksGoByTheChoice) {
  Scan();
  EXPECT_EQ(Info(4), u"");
  form.LireFichesUnicode.Choose();
  ClickRow(1);
  EXPECT_EQ(Info(4), u"Dames");
  EXPECT_EQ(Info(1), u"© 1997");
  EXPECT_EQ(Info(2), u"DAMES");
  EXPECT_EQ(Info(3), u"Moi");
}

// The product's name of the first file stands for all the others of its directory.
TEST_F(UnicodeRecordsTest, TheFirstFilesProductNameGoesByTheChoice) {
  form.LireFichesUnicode.Choose();
  Scan();
  EXPECT_EQ(CurrentGrid().Cell(2, 0), u"Dames");
}

TEST_F(UnicodeRecordsTest, RecordsOf8BitCharactersAreReadAsBefore) {
  Program("A/A.EXE", {{"FileDescription", "Ancien"}});
  form.LireFichesUnicode.Choose();
  Scan();
  EXPECT_EQ(FirstRow()[0], u"Ancien");
}

TEST_F(UnicodeRecordsTest, TheChoiceIsShownAsTheSettingsHaveIt) {
  form.on_unload = {};
  form.Unload();
  disc.File("SITE/CHOIX.INI", "[Options]\r\nfiches_unicode=-1\r\n");
  sFichierIni = u"D:\\SITE\\CHOIX.INI";
  LitFichesUnicode();
  form.Show();
  EXPECT_TRUE(form.LireFichesUnicode.Checked());
}

TEST_F(UnicodeRecordsTest, TheChoiceAloneChangesNoExport) {
  Game("JEUX/DOS", "ECHECS", "Un jeu");
  disc.Remove("JEUX/DAMES.EXE");
  sFichierIni = u"D:\\SITE\\CHOIX2.INI";
  Scan();
  Export();
  const std::vector<std::string> before = Site();
  EXPECT_NE(before[1].find("BGCOLOR=\"\""), std::string::npos);
  form.LireFichesUnicode.Choose();
  ASSERT_TRUE(bFichierExiste(sFichierIni));
  for (int turn = 0; turn < 2; ++turn) {
    ForgetOptions();
    Scan();
    Export();
    EXPECT_EQ(Site(), before) << "the settings hold the choice alone";
    form.LireFichesUnicode.Choose();
  }
  disc.File("SITE/CHOIX2.INI", "[html]\r\nhtml_cr=-1\r\n[Options]\r\nfiches_unicode=0\r\n");
  ForgetOptions();
  Export();
  EXPECT_NE(Site()[1].find("BGCOLOR=\"#FFFFFF\""), std::string::npos) << "settings there are";
}

}  // namespace
}  // namespace trovex::test
