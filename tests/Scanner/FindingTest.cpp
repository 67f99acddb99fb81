// What a scan tells beside its tables: which source gave each description.
#include "Scanner/Finding.h"

#include "Scanner/ScanTest.h"

namespace trovex::test {
namespace {

class FindingTest : public ScanTest {
 protected:
  FindingTest() {
    RegisterFindingListener([this](const Finding& finding) {
      sources_[finding.file] = Said(finding.origin);
      descriptions_[finding.file] = finding.description;
      versions_[finding.file] = finding.version;
      directories_[finding.file] = finding.directory;
      sizes_[finding.file] = finding.info.Status() ? finding.info.Status()->length : -1;
    });
  }
  ~FindingTest() override { RegisterFindingListener({}); }

  static Text Said(const Origin& origin) {
    switch (origin.kind) {
      case Origin::Kind::kNone:
        return u"-";
      case Origin::Kind::kVersionRecord:
        return u"record";
      case Origin::Kind::kSetting:
        return Text(origin.file) + u"|" + Text(origin.section) + u"|" + Text(origin.key);
      case Origin::Kind::kLine:
        return Text(origin.file) + u":" + Decimal(origin.line);
      case Origin::Kind::kProductName:
        return u"product of " + Text(origin.file);
    }
    return {};
  }
  // The source told for JEU.EXE, or another file, and its description.
  std::pair<Text, Text> Found(const Text& file = u"JEU.EXE") {
    Scan();
    return {sources_[file], descriptions_[file]};
  }
  using Pair = std::pair<Text, Text>;

  std::map<Text, Text> sources_, descriptions_, versions_, directories_;
  std::map<Text, std::int64_t> sizes_;
};

TEST_F(FindingTest, TheVersionRecord) {
  Program("JEU.EXE", {{"FileDescription", u"Jeu de dames"}, {"FileVersion", u"1.2"}});
  EXPECT_EQ(Found(), (Pair{u"record", u"Jeu de dames"}));
  EXPECT_EQ(versions_[u"JEU.EXE"], u"1.2");
}

TEST_F(FindingTest, EachSettingOfAnInstaller) {
  Dos("JEU.EXE");
  Lines("SETUP.LST", {u"[Setup]", u"Title=un", u"[Params]", u"WndTitle=deux"});
  EXPECT_EQ(Found(), (Pair{u"SETUP.LST|Setup|Title", u"un"}));
  Lines("SETUP.LST", {u"[Windows 95 Params]", u"WndTitle=trois", u"[Params]", u"WndTitle=deux"});
  EXPECT_EQ(Found(), (Pair{u"SETUP.LST|Params|WndTitle", u"deux"}));
  Lines("SETUP.LST", {u"[Windows 95 Params]", u"WndTitle=trois"});
  EXPECT_EQ(Found(), (Pair{u"SETUP.LST|Windows 95 Params|WndTitle", u"trois"}));
  disc.Remove("SETUP.LST");
  Lines("INSTALL.INF", {u"[INSTALL]", u"APPNAME=quatre"});
  EXPECT_EQ(Found(), (Pair{u"INSTALL.INF|INSTALL|APPNAME", u"quatre"}));
  disc.Remove("INSTALL.INF");
  Lines("SETUP.INI", {u"[Startup]", u"AppName=cinq"});
  Lines("README.TXT", {u"", u""});
  EXPECT_EQ(Found(), (Pair{u"SETUP.INI|Startup|AppName", u"cinq"}));
}

TEST_F(FindingTest, ALineOfATextFile) {
  Dos("JEU.EXE");
  Lines("INSTALL.TXT", {u"----------", u"par INSTALL"});
  Lines("README.TXT", {u"Lisez ceci", u"et cela"});
  EXPECT_EQ(Found(), (Pair{u"readme.txt:1", u"Lisez ceci"}));
  Lines("README.TXT", {u"**********", u"et cela"});
  EXPECT_EQ(Found(), (Pair{u"readme.txt:2", u"et cela"}));
  Lines("FILE_ID.DIZ", {u"Un jeu"});
  EXPECT_EQ(Found(), (Pair{u"file_id.diz:1", u"Un jeu"}));
}

TEST_F(FindingTest, TheProductNameOfTheFirstFileListed) {
  Program("ABC.EXE", {{"ProductName", u"Dames"}});
  Dos("JEU.EXE");
  EXPECT_EQ(Found(), (Pair{u"product of ABC.EXE", u"Dames"}));
}

TEST_F(FindingTest, NobodyGaveTheTextThatThereIsNoProductName) {
  Dos("JEU.EXE");
  EXPECT_EQ(Found(), (Pair{u"-", u"Ne contient pas de nom produit."}));
}

TEST_F(FindingTest, AnEmptyDescriptionComesFromNowhere) {
  Program("JEU.EXE", {{"FileVersion", u"1.0"}});
  Lines("README.TXT", {u"", u""});
  EXPECT_EQ(Found(), (Pair{u"-", u""}));
}

// A bootstrapper's own text that comes back in the end is the record's again.
TEST_F(FindingTest, ARejectedDescriptionThatComesBackIsTheRecords) {
  Program("SETUP.EXE", {{"FileDescription", u"MS-Setup"}});
  Lines("SETUP.LST", {u"[Setup]", u"Titre=sans"});
  Lines("README.TXT", {u"==========", u""});
  EXPECT_EQ(Found(u"SETUP.EXE"), (Pair{u"record", u"MS-Setup"}));
}

TEST_F(FindingTest, AnArchiveTellsWhatItsTextsGaveBeforeItsSize) {
  disc.File("JEUX/Dames.zip", ZipArchive(12345));
  Lines("JEUX/FILE_ID.DIZ", {u"Un jeu de dames"});
  EXPECT_EQ(Found(u"Dames.zip"), (Pair{u"file_id.diz:1", u"Un jeu de dames"}));
  EXPECT_EQ(Only(2)[0], u" 12");
  EXPECT_EQ(versions_[u"Dames.zip"], u"");
  EXPECT_EQ(sizes_[u"Dames.zip"], 12345);
  EXPECT_EQ(directories_[u"Dames.zip"], u"D:\\Jeux");
}

TEST_F(FindingTest, AnArchiveWithoutTextsComesFromNowhere) {
  disc.File("Dames.zip", ZipArchive(55));
  EXPECT_EQ(Found(u"Dames.zip"), (Pair{u"-", u""}));
}

TEST_F(FindingTest, WhoListensNoMoreIsToldNothing) {
  Dos("JEU.EXE");
  RegisterFindingListener({});
  Scan();
  EXPECT_TRUE(sources_.empty());
}

}  // namespace
}  // namespace trovex::test
