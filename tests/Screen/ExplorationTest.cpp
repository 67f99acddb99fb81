#include "ScreenTest.h"

namespace trovex::test {
namespace {

class ExplorationTest : public ScreenTest {
 protected:
  // So many install programs, other programs and archives.
  void Tree(int installs, int programs, int archives) {
    for (int i = 0; i < installs; ++i) Dos("I" + std::to_string(i) + "/SETUP.EXE");
    for (int i = 0; i < programs; ++i) Dos("P/X" + std::to_string(i) + ".EXE");
    for (int i = 0; i < archives; ++i)
      disc.File("Z/A" + std::to_string(i) + ".ZIP", ZipArchive(50));
    disc.Directory("VIDE");
  }
  void ExpectExports(bool enabled) {
    EXPECT_EQ(form.ConvertHTML.Enabled(), enabled);
    EXPECT_EQ(form.Exporter.Enabled(), enabled);
    EXPECT_EQ(form.Imprimer.Enabled(), enabled);
  }
};

TEST_F(ExplorationTest, OnlyArchivesComeToRestOnTab2WithTheirCount) {
  Tree(0, 0, 3);
  Scan();
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), 2);
  EXPECT_EQ(Info(6), u"3");
  ExpectExports(true);
}

TEST_F(ExplorationTest, TheLargestTableComesUp) {
  Tree(3, 1, 2);
  Scan();
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), 0);
  EXPECT_EQ(Info(6), u"3");
}

TEST_F(ExplorationTest, ATieOfInstallsAndProgramsShowsTab1) {
  Tree(5, 5, 2);
  Scan();
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), 1);
}

TEST_F(ExplorationTest, ATieOfInstallsAndArchivesShowsTab2) {
  Tree(5, 2, 5);
  Scan();
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), 2);
}

TEST_F(ExplorationTest, ATieOfProgramsAndArchivesShowsTab2) {
  Tree(1, 4, 4);
  Scan();
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), 2);
}

TEST_F(ExplorationTest, AnEmptyTableCountsItsBlankRowSoASingleProgramLeavesTab2Up) {
  Tree(0, 1, 0);
  Scan();
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), 2);
  EXPECT_EQ(Info(6), u"0");
  ExpectExports(false);
}

TEST_F(ExplorationTest, AScanThatFindsNothingShowsTab2AndZero) {
  Tree(0, 0, 0);
  Scan();
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), 2);
  EXPECT_EQ(Info(6), u"0");
  ExpectExports(false);
  for (int i = 0; i < kTableCount; ++i) EXPECT_EQ(form.GridLogiciel(i).Rows(), 2);
}

TEST_F(ExplorationTest, TheFirstRowIsInspectedAtOnce) {
  Lines("P/LIRE.TXT", {u"Bonjour"});
  Tree(0, 2, 0);
  Scan();
  EXPECT_EQ(Info(5), u"D:\\P\\X0.exe");
  EXPECT_EQ(Info(0), u"Bonjour");
  EXPECT_EQ(CurrentGrid().Row(), 1);
}

TEST_F(ExplorationTest, ASecondScanClearsDetailsAndCompanionsBeforeItStarts) {
  for (const char* name : {"P/X.EXE", "P/Y.EXE"}) {
    Program(name, {{"CompanyName", "Atelier"}, {"FileDescription", "Programme"}});
  }
  Lines("P/LIRE.TXT", {u"Bonjour"});
  Scan();
  ASSERT_EQ(Info(3), u"Atelier");
  bool seen = false;
  view.on_repaint = [&](Control& control) {
    if (&control != &form || seen) return;
    seen = true;
    for (int i = 0; i <= 5; ++i) EXPECT_EQ(Info(i), u"") << i;
    EXPECT_TRUE(Companions().empty());
    EXPECT_EQ(Pane(), "");
    EXPECT_EQ(form.IconeFichier.GetPicture(), Picture());
    EXPECT_EQ(form.GridLogiciel(1).Rows(), 2);
    EXPECT_EQ(form.GridLogiciel(1).Cell(1, 2), u"");
    EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
    ExpectExports(false);
  };
  Scan();
  EXPECT_TRUE(seen);
  EXPECT_EQ(Info(6), u"2") << "the same rows, not twice as many";
}

TEST_F(ExplorationTest, TheHighlightedDirectoryIsTheStart) {
  Tree(0, 1, 1);
  form.ListeRepertoire.SetPath(u"D:\\");
  form.ListeRepertoire.SetListIndex(0);
  ASSERT_EQ(form.ListeRepertoire.List(0), u"D:\\P");
  Press(form.Explorer);
  EXPECT_EQ(form.ListeRepertoire.Path(), u"D:\\") << "the list stays where it stood";
  EXPECT_EQ(form.GridLogiciel(1).Cell(1, 1), u" D:\\P");
  EXPECT_EQ(form.GridLogiciel(2).Cell(1, 2), u"");
}

TEST_F(ExplorationTest, TheParentMayBeTheStartToo) {
  Tree(0, 1, 1);
  form.ListeRepertoire.SetPath(u"D:\\VIDE");
  form.ListeRepertoire.SetListIndex(-2);
  Press(form.Explorer);
  EXPECT_EQ(form.GridLogiciel(1).Cell(1, 1), u" D:\\P");
}

TEST_F(ExplorationTest, WithNothingSelectedTheListsOwnPathIsTheStart) {
  Tree(0, 2, 1);
  form.ListeRepertoire.SetPath(u"D:\\Z");
  ASSERT_EQ(form.ListeRepertoire.ListIndex(), -1);
  Press(form.Explorer);
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), 2);
  EXPECT_EQ(Info(6), u"1");
}

TEST_F(ExplorationTest, TheStatusLineTellsTheStartAndEndsEmpty) {
  Tree(0, 1, 0);
  std::vector<Text> told;
  view.on_repaint = [&](Control& control) {
    if (&control == &form.PanelAide) told.push_back(Help());
  };
  Scan();
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.front(), u"Exploration du répertoire : D:\\...");
  EXPECT_EQ(told.back(), u"");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(ExplorationTest, TheTitlesAreRewrittenAndEveryTableStandsOnItsFirstRow) {
  Tree(3, 2, 2);
  Grid& grid = form.GridLogiciel(0);
  grid.SetRow(0);
  grid.SetCol(0);
  grid.SetText(u"abîmé");
  Scan();
  EXPECT_EQ(grid.Cell(0, 0), u" Description");
  for (int i = 0; i < kTableCount; ++i) EXPECT_EQ(form.GridLogiciel(i).Row(), 1) << i;
}

TEST_F(ExplorationTest, ADirectoryThatHasGoneIsNotScannedAndTheTablesStay) {
  Tree(0, 2, 0);
  disc.Directory("PARTI");
  Scan();
  form.ListeRepertoire.SetListIndex(1);
  ASSERT_EQ(form.ListeRepertoire.List(1), u"D:\\PARTI");
  machine.gone = {u"D:\\PARTI"};
  disc.Remove("PARTI");
  Press(form.Explorer);
  EXPECT_EQ(Help(), u"Répertoire introuvable");
  EXPECT_EQ(form.GridLogiciel(1).Rows(), 3);
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(form.ListeRepertoire.List(1), u"D:\\VIDE") << "the list was read afresh";
}

TEST_F(ExplorationTest, WhatWasChangedOnTheDiscSinceIsScanned) {
  disc.Directory("JEUX");
  form.ListeRepertoire.SetPath(u"D:\\");
  form.ListeRepertoire.SetListIndex(0);
  machine.labels[u"D"] = u"CAVE";
  Tree(0, 2, 0);
  Dos("JEUX/A.EXE");
  Press(form.Explorer);
  EXPECT_EQ(form.GridLogiciel(1).Cell(1, 1), u" D:\\JEUX");
  EXPECT_EQ(form.ListeDrive.Drive(), u"d: [CAVE]");
  EXPECT_EQ(form.ListeRepertoire.ListCount(), 3);
}

TEST_F(ExplorationTest, AStartThatVanishesUnderTheScanLeavesTheProgram) {
  Tree(0, 1, 0);
  disc.Directory("PARTI");
  form.ListeRepertoire.SetPath(u"D:\\PARTI");
  view.on_repaint = [&](Control& control) {
    if (&control == &form) machine.gone = {u"D:\\PARTI"};
  };
  try {
    form.Explorer.Press();
    FAIL() << "no run-time error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 76);
  }
}

}  // namespace
}  // namespace trovex::test
