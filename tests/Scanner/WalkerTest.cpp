#include "Lib/Lib_Form.h"
#include "Platform/Unread.h"
#include "Scanner/ScanTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WalkerTest : public ScanTest {};

TEST_F(WalkerTest, AScanThatFindsNothingLeavesTheBlankRows) {
  disc.File("DOC/LISEZMOI.TXT");
  Scan();
  for (int table = 0; table < kTableCount; ++table) {
    EXPECT_EQ(Table(table).Rows(), 2);
    EXPECT_THAT(Places(table), IsEmpty());
  }
}

TEST_F(WalkerTest, NamesDecideTheTable) {
  for (const char* name : {"SETUP.EXE", "INSTALL.EXE", "JEU.EXE", "SETUP.ZIP", "INSTALL.COM",
                           "SETUP1.EXE", "MON JEU.ZIP", "SETUP.EXE.ZIP", "A.ZIP.EXE"}) {
    disc.File(name);
  }
  Scan();
  EXPECT_THAT(Places(0), ElementsAre(u" D:\\| Install.exe", u" D:\\| Setup.exe"));
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\| A.zip.exe", u" D:\\| Jeu.exe", u" D:\\| Setup1.exe"));
  EXPECT_THAT(Places(2),
              ElementsAre(u" D:\\| Mon Jeu.zip", u" D:\\| Setup.exe.zip", u" D:\\| Setup.zip"));
}

TEST_F(WalkerTest, LowerCaseNamesGoToTheSameTables) {
  disc.File("setup.exe");
  disc.File("archive.zip");
  disc.File("jeu.exe");
  Scan();
  EXPECT_THAT(Places(0), ElementsAre(u" D:\\| Setup.exe"));
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\| Jeu.exe"));
  EXPECT_THAT(Places(2), ElementsAre(u" D:\\| Archive.zip"));
}

TEST_F(WalkerTest, ASetupProgramInEachDirectoryGivesARowForEach) {
  for (const char* name : {"A/SETUP.EXE", "B/SETUP.EXE", "C/SETUP.EXE"}) disc.File(name);
  Scan();
  EXPECT_THAT(Places(0),
              ElementsAre(u" D:\\A| Setup.exe", u" D:\\B| Setup.exe", u" D:\\C| Setup.exe"));
}

TEST_F(WalkerTest, ADirectoryNamedSetupExeIsWalkedAndNotListed) {
  disc.File("SETUP.EXE/CONTENU.EXE");
  Scan();
  EXPECT_THAT(Places(0), IsEmpty());
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\Setup.exe| Contenu.exe"));
}

TEST_F(WalkerTest, RowsStandInPreOrder) {
  // Files of the start; then each subdirectory with its own files and at once all below it.
  for (const char* name : {"Z.EXE", "A.EXE", "JEUX/M.EXE", "JEUX/AAA/N.EXE", "JEUX/AAA/BBB/O.EXE",
                           "JEUX/CCC/P.EXE", "UTIL/Q.EXE", "UTIL/AAA/R.EXE"}) {
    disc.File(name);
  }
  Scan();
  EXPECT_THAT(Places(1),
              ElementsAre(u" D:\\| A.exe", u" D:\\| Z.exe", u" D:\\Jeux| M.exe",
                          u" D:\\Jeux\\Aaa| N.exe", u" D:\\Jeux\\Aaa\\Bbb| O.exe",
                          u" D:\\Jeux\\Ccc| P.exe", u" D:\\Util| Q.exe", u" D:\\Util\\Aaa| R.exe"));
}

TEST_F(WalkerTest, AStartWithoutSubdirectoriesIsClassified) {
  disc.File("JEUX/A.EXE");
  disc.File("JEUX/B.ZIP");
  disc.File("AUTRE.EXE");
  Scan(u"D:\\JEUX");
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\JEUX| A.exe"));
  EXPECT_THAT(Places(2), ElementsAre(u" D:\\JEUX| B.zip"));
}

TEST_F(WalkerTest, DirectoriesBelowTheStartAreInProperCaseAndTheStartAsItCame) {
  disc.File("mes JEUX/DE rôle/ÉTÉ 97/a.exe");
  Scan(u"D:\\mes JEUX");
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\mes JEUX\\De Rôle\\Été 97| A.exe"));
}

TEST_F(WalkerTest, AChildOfTheRootHasASingleBackslash) {
  disc.File("JEUX/A.EXE");
  Scan(u"D:\\");
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\Jeux| A.exe"));
}

TEST_F(WalkerTest, ASubtreeWithoutProgramsLeavesNoTrace) {
  disc.File("DOC/TEXTES/A.TXT");
  disc.Directory("DOC/VIDE");
  disc.File("JEU.EXE");
  Scan();
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\| Jeu.exe"));
}

TEST_F(WalkerTest, HiddenFilesAndDirectoriesTakePart) {
  disc.File(".CACHE/.SECRET.EXE");
  disc.Hide(".CACHE");
  disc.Hide(".CACHE/.SECRET.EXE");
  Scan();
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\.cache| .secret.exe"));
}

TEST_F(WalkerTest, ASecondScanGivesTheSameRowsAndNotTwiceAsMany) {
  for (const char* name : {"A.EXE", "B/SETUP.EXE", "B/C/D.EXE", "B/E.ZIP"}) disc.File(name);
  Scan();
  const auto first = std::array{Rows(0), Rows(1), Rows(2)};
  EXPECT_EQ(first[1].size(), 2u);
  Scan();
  EXPECT_EQ((std::array{Rows(0), Rows(1), Rows(2)}), first);
}

TEST_F(WalkerTest, TheSecondScanSeesWhatChanged) {
  disc.File("JEUX/A.EXE");
  Lines("JEUX/README.TXT", {u"avant"});
  Scan();
  EXPECT_EQ(Description(), u"avant");
  disc.Remove("JEUX/A.EXE");
  disc.File("JEUX/B.EXE");
  Lines("JEUX/README.TXT", {u"après"});
  disc.File("NOUVEAU/C.ZIP");
  Scan();
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\Jeux| B.exe"));
  EXPECT_EQ(Description(), u"après");
  EXPECT_THAT(Places(2), ElementsAre(u" D:\\Nouveau| C.zip"));
}

TEST_F(WalkerTest, AFileNamedMinusOneGivesItsRowToTheNextFile) {
  disc.File("-1.EXE");
  disc.File("A.EXE");
  disc.File("B.EXE");
  Scan();
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\| A.exe", u" D:\\| B.exe"));
}

TEST_F(WalkerTest, ATableKeepsRowsOfEqualFiles) {
  disc.File("A/JEU.EXE");
  disc.File("B/JEU.EXE");
  Scan();
  EXPECT_EQ(Rows(1).size(), 2u);
}

TEST_F(WalkerTest, EmptyAndBlankPathsAreNotWalked) {
  disc.File("A.EXE");
  ExplorerRepertoire(u"", true);
  ExplorerRepertoire(u"  ", true);
  ClasserFichiers(Folder(u""));
  ClasserFichiers(Folder(u"  "));
  EXPECT_EQ(PremierSousRepertoire(Folder(u"")), u"");
  EXPECT_EQ(PremierSousRepertoire(Folder(u"  ")), u"");
  EXPECT_THAT(Places(1), IsEmpty());
}

TEST_F(WalkerTest, TheFilesOfTheStartAreClassifiedOnlyIfAskedFor) {
  disc.File("A.EXE");
  disc.File("JEUX/B.EXE");
  ExplorerRepertoire(u"D:\\", false);
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\Jeux| B.exe"));
}

TEST_F(WalkerTest, ClassifyingADirectoryLooksAtItsFilesAlone) {
  disc.File("JEUX/A.EXE");
  disc.File("JEUX/SOUS/B.EXE");
  ClasserFichiers(Folder(u"D:\\JEUX"));
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\JEUX| A.exe"));
  EXPECT_EQ(Lib_Form().ListeFichier().Path(), u"D:\\JEUX");
  EXPECT_EQ(Lib_Form().ListeFichier().Pattern(), u"*.exe;*.zip");
}

TEST_F(WalkerTest, TheFirstSubdirectoryInProperCase) {
  disc.File("A.EXE");
  disc.Directory("mes JEUX");
  disc.Directory("mes JEUX/VIDE");
  EXPECT_EQ(PremierSousRepertoire(Folder(u"D:\\")), u"Mes Jeux");
  EXPECT_EQ(PremierSousRepertoire(Folder(u"D:\\mes JEUX")), u"Vide");
  EXPECT_EQ(PremierSousRepertoire(Folder(u"D:\\mes JEUX\\")), u"Vide");
  EXPECT_EQ(PremierSousRepertoire(Folder(u"D:\\mes JEUX\\VIDE")), u"");
  EXPECT_EQ(PremierSousRepertoire(Folder(u"D:\\RIEN")), u"");
}

// A status bar on a form, to see what the walker writes and what it repaints.
class WalkerStatusTest : public WalkerTest {
 protected:
  WalkerStatusTest() {
    form_.Load();
    bar_.AddPanel(u"Msg", StatusBar::PanelStyle::kText);
    RegisterPanelAide(&bar_);
    view.on_repaint = [this](Control& control) {
      if (&control == &bar_) lines_.push_back(bar_.PanelText(u"Msg"));
      if (&control == &form_) lines_.push_back(u"Refresh");
    };
  }
  ~WalkerStatusTest() override {
    RegisterPanelAide(nullptr);
    form_.Unload();
  }

  static constexpr ControlSpec kControls[] = {
      {ControlKind::kStatusBar, u"Barre", -1, {0, 0, 1, 1}}};
  static constexpr FormSpec kSpec = {u"Essai", u"Essai", 100, 100, false, 0, kControls};
  Form form_{kSpec};
  StatusBar& bar_ = form_.Get<StatusBar>(u"Barre");
  std::vector<Text> lines_;
};

TEST_F(WalkerStatusTest, TheStatusLineNamesTheStartAndDirectoriesThatHaveSubdirectories) {
  disc.File("FEUILLE/A.EXE");
  disc.File("JEUX/SOUS/B.EXE");
  ExplorerRepertoire(u"D:\\", true);
  EXPECT_THAT(lines_, ElementsAre(u"Exploration du répertoire : D:\\...",
                                  u"Exploration du répertoire : D:\\Jeux..."));
}

TEST_F(WalkerStatusTest, ALeafStartIsNamedToo) {
  disc.File("FEUILLE/A.EXE");
  ExplorerRepertoire(u"D:\\FEUILLE", true);
  EXPECT_THAT(lines_, ElementsAre(u"Exploration du répertoire : D:\\FEUILLE..."));
}

TEST_F(WalkerStatusTest, OnlyDirectSubdirectoriesOfTheStartAreRefreshed) {
  disc.File("JEUX/SOUS/B.EXE");
  disc.Directory("JEUX/AUTRE");
  disc.Directory("UTIL");
  ExplorerRepertoire(u"D:\\", true, &form_);
  EXPECT_THAT(lines_, ElementsAre(u"Exploration du répertoire : D:\\...", u"Refresh",
                                  u"Exploration du répertoire : D:\\Jeux...", u"Refresh"));
}

TEST_F(WalkerTest, EachDirectoryIsListedOnce) {
  for (const char* name : {"A.EXE", "JEUX/B.EXE", "JEUX/SOUS/C.EXE", "JEUX/SOUS/PROFOND/D.ZIP",
                           "UTIL/E.EXE", "UTIL/README.TXT"}) {
    disc.File(name);
  }
  Scan();
  EXPECT_EQ(Most(platform_.listings), 1);
  EXPECT_THAT(platform_.listings,
              ElementsAre(testing::Pair(u"D:\\*.*", 1), testing::Pair(u"D:\\JEUX\\*.*", 1),
                          testing::Pair(u"D:\\JEUX\\SOUS\\*.*", 1),
                          testing::Pair(u"D:\\JEUX\\SOUS\\PROFOND\\*.*", 1),
                          testing::Pair(u"D:\\UTIL\\*.*", 1)));
}

TEST_F(WalkerTest, AWideAndDeepTreeIsListedOnceToo) {
  std::string path;
  for (int depth = 0; depth < 20; ++depth) {
    path += "N" + std::to_string(depth) + "/";
    disc.File(path + "A.EXE");
    for (int wide = 0; wide < 5; ++wide) disc.Directory(path + "W" + std::to_string(wide) + "/X");
  }
  Scan();
  EXPECT_EQ(Rows(1).size(), 20u);
  EXPECT_EQ(Most(platform_.listings), 1);
}

TEST_F(WalkerTest, ADirectoryThatVanishesUnderTheWalkRaisesPathNotFound) {
  disc.File("JEUX/A.EXE");
  disc.File("UTIL/B.EXE");
  platform_.before_listing = [this](const Text& pattern) {
    if (ToUpper(pattern) == u"D:\\JEUX\\*.*") disc.Remove("UTIL");
  };
  try {
    Scan();
    ADD_FAILURE() << "no error was raised";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Kind(), ErrorNumber::kPathNotFound);
  }
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\Jeux| A.exe"));
}

// A platform on which one directory cannot be listed, though it is there.
class UnreadablePlatform : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;
  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    if (!EqualsNoCase(pattern, u"D:\\SECRET\\*.*")) {
      return ForwardingPlatform::FindFirstFile(pattern, data);
    }
    data = {};
    return FindHandle::kInvalid;
  }
};

TEST_F(WalkerTest, AnUnreadableDirectoryGivesNoRowsAndNoMessage) {
  disc.File("A/A.EXE");
  disc.File("SECRET/B.EXE");
  disc.File("Z/C.EXE");
  UnreadablePlatform unreadable(platform_);
  PlatformScope scope(unreadable);
  ExplorerRepertoire(u"D:\\", true);
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\A| A.exe", u" D:\\Z| C.exe"));
  ExplorerRepertoire(u"D:\\SECRET", true);
  EXPECT_EQ(Rows(1).size(), 2u);
}

TEST_F(WalkerTest, WhatCouldNotBeReadIsNoted) {
  disc.File("A/A.EXE");
  disc.File("SECRET/B.EXE");
  UnreadablePlatform unreadable(platform_);
  PlatformScope scope(unreadable);
  Unread unread;
  UnreadScope unread_scope(unread);
  ExplorerRepertoire(u"D:\\", true);
  EXPECT_THAT(unread.Names(), ElementsAre(u"D:\\Secret"));
}

// A disc whose files can be read up to a place only.
class ScratchedPlatform : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;
  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override {
    if (read_[file] >= 321000) throw RuntimeError(ErrorNumber::kDeviceIo);
    const std::size_t got = ForwardingPlatform::Read(file, buffer, size);
    read_[file] += got;
    return got;
  }
  void Close(FileHandle file) override {
    read_.erase(file);
    ForwardingPlatform::Close(file);
  }

 private:
  std::map<FileHandle, std::size_t> read_;
};

TEST_F(WalkerTest, ALargeIniFileThatFailsFurtherOnIsNoted) {
  Dos("A.EXE");
  std::string bytes = "[a]\r\n";
  while (bytes.size() < 400000) bytes += std::string(78, ';') + "\r\n";
  disc.File("SETUP.LST", bytes + "[Setup]\r\nTitle=Jeu\r\n");
  ScratchedPlatform scratched(platform_);
  PlatformScope scope(scratched);
  for (int box = 0; box < 3; ++box) view.Answer(BoxAnswer::kOk);
  Unread unread;
  UnreadScope unread_scope(unread);
  ExplorerRepertoire(u"D:\\", true);
  EXPECT_THAT(unread.Names(), ElementsAre(u"D:\\SETUP.LST"));
}

TEST_F(WalkerTest, AnEmptyRootIsReadLikeAnyOther) {
  Unread unread;
  UnreadScope unread_scope(unread);
  Scan();
  EXPECT_TRUE(unread.IsEmpty());
}

TEST_F(WalkerTest, AStartThatIsMissingRaisesPathNotFound) {
  EXPECT_THROW(Scan(u"D:\\RIEN"), RuntimeError);
}

TEST_F(WalkerTest, NamesWithoutAnAnsiFormAreListedAndReachable) {
  disc.File("\xD0\x98\xD0\x93\xD0\xA0\xD0\xAB/\xE6\x97\xA5.EXE", DosExecutable());
  Lines("\xD0\x98\xD0\x93\xD0\xA0\xD0\xAB/README.TXT", {u"lu"});
  Scan();
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\Игры| 日.exe"));
  EXPECT_EQ(Description(), u"lu");
}

TEST_F(WalkerTest, RowsBeyondTheLimitAreReportedAndNothingElseIsLost) {
  Table(1).SetRows(Grid::kMaxRows - 1);
  for (int row = 1; row < Grid::kMaxRows - 1; ++row) {
    Table(1).SetRow(row);
    Table(1).SetCol(2);
    Table(1).SetText(u" Plein.exe");
  }
  for (const char* name : {"A.EXE", "B.EXE", "C.EXE", "SETUP.EXE", "Z.ZIP"}) disc.File(name);
  Lines("README.TXT", {u"texte"});
  view.Answer(BoxAnswer::kOk);
  view.Answer(BoxAnswer::kOk);
  Unread unread;
  UnreadScope unread_scope(unread);
  ExplorerRepertoire(u"D:\\", true);
  EXPECT_EQ(BoxCount(), 2u);
  EXPECT_THAT(unread.Rows(), ElementsAre(testing::Pair(1, 2)));
  EXPECT_THAT(unread.Names(), IsEmpty());
  EXPECT_TRUE(LastBox().starts_with(
      u"Allocation nouvelle ligne d'un tableau impossible : iGetClearLineGrid()"));
  EXPECT_EQ(Table(1).Rows(), Grid::kMaxRows);
  EXPECT_EQ(Table(1).Cell(Grid::kMaxRows - 1, 2), u" A.exe");
  EXPECT_EQ(Table(1).Cell(Grid::kMaxRows - 2, 2), u" Plein.exe");
  EXPECT_THAT(Places(0), ElementsAre(u" D:\\| Setup.exe"));
  EXPECT_THAT(Places(2), ElementsAre(u" D:\\| Z.zip"));
}

}  // namespace
}  // namespace trovex::test
