#include "ScreenTest.h"

namespace trovex::test {
namespace {

class TabSwitchingTest : public ScreenTest {
 protected:
  TabSwitchingTest() { form.Show(); }

  void ExpectCommands(bool enabled) {
    EXPECT_EQ(form.ConvertHTML.Enabled(), enabled);
    EXPECT_EQ(form.Exporter.Enabled(), enabled);
    EXPECT_EQ(form.Imprimer.Enabled(), enabled);
  }
  void Programs(int count) {
    for (int i = 0; i < count; ++i) {
      Program("P/X" + std::to_string(i) + ".EXE",
              {{"FileDescription", "Programme"}, {"InternalName", "X" + std::to_string(i)}});
    }
  }
};

TEST_F(TabSwitchingTest, ATableWithoutDataShowsZeroAndDisablesTheCommands) {
  Programs(2);
  Scan();
  ExpectCommands(true);
  form.ZoneDesTableaux.SetTab(0);
  EXPECT_EQ(Info(6), u"0");
  ExpectCommands(false);
  for (int i = 0; i <= 5; ++i) EXPECT_EQ(Info(i), u"") << i;
  EXPECT_EQ(Pane(), "");
}

TEST_F(TabSwitchingTest, AfterArchivesOnlyTheOtherTablesShowZero) {
  disc.File("Z/A.ZIP", ZipArchive(5000));
  disc.File("Z/B.ZIP", ZipArchive(5000));
  Scan();
  EXPECT_EQ(Info(6), u"2");
  form.ZoneDesTableaux.SetTab(0);
  EXPECT_EQ(Info(6), u"0");
  form.ZoneDesTableaux.SetTab(1);
  EXPECT_EQ(Info(6), u"0");
  form.ZoneDesTableaux.SetTab(2);
  EXPECT_EQ(Info(6), u"2");
  ExpectCommands(true);
  EXPECT_EQ(Info(5), u"D:\\Z\\A.zip");
}

TEST_F(TabSwitchingTest, ATableWithOneRowShowsOne) {
  Programs(1);
  Scan();
  form.ZoneDesTableaux.SetTab(0);
  form.ZoneDesTableaux.SetTab(1);
  EXPECT_EQ(Info(6), u"1");
  ExpectCommands(true);
}

TEST_F(TabSwitchingTest, ATableTakesTheNewWidthOnArrival) {
  form.Resize(12225, 9030);
  EXPECT_EQ(form.GridLogiciel(2).Width(), 8775);
  form.ZoneDesTableaux.SetTab(2);
  EXPECT_EQ(form.GridLogiciel(2).Width(), 11895);
  EXPECT_EQ(form.GridLogiciel(1).Width(), 8775);
}

TEST_F(TabSwitchingTest, TheTitleRowIsNeverTheCurrentRow) {
  Programs(2);
  Scan();
  form.ZoneDesTableaux.SetTab(0);
  form.GridLogiciel(1).SetRow(0);
  form.ZoneDesTableaux.SetTab(1);
  EXPECT_EQ(form.GridLogiciel(1).Row(), 1);
  EXPECT_EQ(Info(2), u"X0");
}

TEST_F(TabSwitchingTest, TheTitleOfTheLastColumnIsMadeGood) {
  for (int table : {0, 1, 2}) {
    Grid& grid = form.GridLogiciel(table);
    grid.SetRow(0);
    grid.SetCol(3);
    grid.SetText(u"abîmé");
  }
  form.ZoneDesTableaux.SetTab(1);
  form.ZoneDesTableaux.SetTab(2);
  form.ZoneDesTableaux.SetTab(0);
  EXPECT_EQ(form.GridLogiciel(0).Cell(0, 3), u" Version");
  EXPECT_EQ(form.GridLogiciel(1).Cell(0, 3), u" Version");
  EXPECT_EQ(form.GridLogiciel(2).Cell(0, 3), u" Date");
}

TEST_F(TabSwitchingTest, EachTableKeepsItsRowBetweenVisits) {
  Programs(3);
  Scan();
  ClickRow(3);
  form.ZoneDesTableaux.SetTab(0);
  form.ZoneDesTableaux.SetTab(1);
  EXPECT_EQ(form.GridLogiciel(1).Row(), 3);
  EXPECT_EQ(Info(2), u"X2");
}

TEST_F(TabSwitchingTest, ARowWhoseFirstColumnIsBlankCountsAsNoData) {
  Programs(2);
  Scan();
  Grid& grid = form.GridLogiciel(1);
  grid.SetRow(1);
  grid.SetCol(0);
  grid.SetText(u"  ");
  form.ZoneDesTableaux.SetTab(0);
  form.ZoneDesTableaux.SetTab(1);
  EXPECT_EQ(Info(6), u"0");
  ExpectCommands(false);
  EXPECT_EQ(Info(2), u"X0") << "its row is inspected all the same";
}

TEST_F(TabSwitchingTest, TheBusyStateEnds) {
  form.ZoneDesTableaux.SetTab(1);
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(Help(), u"");
}

TEST_F(TabSwitchingTest, ARowOfAVanishedDirectoryShowsTheErrorBoxOnArrival) {
  Programs(1);
  Scan();
  form.ZoneDesTableaux.SetTab(0);
  machine.gone = {u"D:\\P"};
  view.Answer(BoxAnswer::kOk);
  form.ZoneDesTableaux.SetTab(1);
  EXPECT_EQ(BoxMessage(), u"Erreur lors de la recherche d'information sur le fichier : X0.exe");
  EXPECT_EQ(Info(6), u"1");
}

}  // namespace
}  // namespace trovex::test
