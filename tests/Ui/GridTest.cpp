#include "Ui/Grid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Encoding.h"

namespace trovex::test {
namespace {

ErrorNumber ErrorOf(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const RuntimeError& error) {
    return error.Kind();
  }
  ADD_FAILURE() << "no error was raised";
  return {};
}

std::vector<Text> Cells(const Grid& grid, int row) {
  std::vector<Text> cells;
  for (int col = 0; col < grid.Cols(); ++col) cells.push_back(grid.Cell(row, col));
  return cells;
}

// Data rows of a grid with two columns, each as "first|second".
std::vector<Text> Rows(const Grid& grid) {
  std::vector<Text> rows;
  for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
    rows.push_back(grid.Cell(row, 0) + u"|" + grid.Cell(row, 1));
  }
  return rows;
}

using testing::Each;
using testing::ElementsAre;

TEST(GridTest, ANewGridHasATitleRowAndOneBlankDataRow) {
  const Grid grid;
  EXPECT_EQ(grid.Rows(), 2);
  EXPECT_EQ(grid.Cols(), 4);
  EXPECT_EQ(grid.FixedRows(), 1);
  EXPECT_EQ(grid.FixedCols(), 0);
  EXPECT_THAT(Cells(grid, 0), Each(u""));
  EXPECT_THAT(Cells(grid, 1), Each(u""));
}

TEST(GridTest, TextReadsAndWritesTheCurrentCell) {
  Grid grid;
  grid.SetRow(1);
  grid.SetCol(2);
  grid.SetText(u" Setup.exe");
  EXPECT_EQ(grid.GetText(), u" Setup.exe");
  EXPECT_THAT(Cells(grid, 1), ElementsAre(u"", u"", u" Setup.exe", u""));
  grid.SetRow(0);
  EXPECT_EQ(grid.GetText(), u"");
  EXPECT_EQ(grid.Col(), 2) << "setting the row leaves the column";
}

TEST(GridTest, ACellEndsAtItsFirstNul) {
  Grid grid;
  grid.SetText(TextView(u"Jeu\0reste", 9));
  EXPECT_EQ(grid.GetText(), u"Jeu");
  grid.AddItem(TextView(u"un\0deux\ttrois\0", 14));
  EXPECT_THAT(Cells(grid, 2), ElementsAre(u"un", u"trois", u"", u""));
  grid.TakeText(Text(u"Jeu\0pris", 8));
  EXPECT_EQ(grid.GetText(), u"Jeu");
}

TEST(GridTest, AddItemAppendsARowWhoseCellsTabsSeparate) {
  Grid grid;
  grid.AddItem(u"a\tb\tc\td");
  grid.AddItem(u"\t");
  grid.AddItem(u"a\t\tc");
  grid.AddItem(u"");
  EXPECT_EQ(grid.Rows(), 6);
  EXPECT_THAT(Cells(grid, 2), ElementsAre(u"a", u"b", u"c", u"d"));
  EXPECT_THAT(Cells(grid, 3), Each(u""));
  EXPECT_THAT(Cells(grid, 4), ElementsAre(u"a", u"", u"c", u""));
  EXPECT_THAT(Cells(grid, 5), Each(u""));
}

TEST(GridTest, FieldsBeyondTheLastColumnAreDropped) {
  Grid grid;
  grid.AddItem(u"a\tb\tc\td\te\tf");
  EXPECT_THAT(Cells(grid, 2), ElementsAre(u"a", u"b", u"c", u"d"));
}

TEST(GridTest, AddItemLeavesTheCurrentCell) {
  Grid grid;
  grid.SetRow(1);
  grid.SetCol(3);
  grid.AddItem(u"a");
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(grid.Col(), 3);
}

TEST(GridTest, RemoveItemClosesTheGap) {
  Grid grid;
  grid.SetCols(2);
  grid.AddItem(u"a\t1");
  grid.AddItem(u"b\t2");
  grid.AddItem(u"c\t3");
  grid.RemoveItem(3);
  EXPECT_THAT(Rows(grid), ElementsAre(u"|", u"a|1", u"c|3"));
}

TEST(GridTest, RemovingTheLastRowMovesTheCurrentOneUp) {
  Grid grid;
  grid.AddItem(u"a");
  grid.SetRow(2);
  grid.RemoveItem(2);
  EXPECT_EQ(grid.Row(), 1);
}

TEST(GridTest, NeitherAFixedRowNorTheLastDataRowCanBeRemoved) {
  Grid grid;
  EXPECT_EQ(ErrorOf([&] { grid.RemoveItem(1); }), ErrorNumber::kInvalidRow);
  grid.AddItem(u"a");
  EXPECT_EQ(ErrorOf([&] { grid.RemoveItem(0); }), ErrorNumber::kInvalidRow);
  EXPECT_EQ(ErrorOf([&] { grid.RemoveItem(3); }), ErrorNumber::kInvalidRow);
  EXPECT_EQ(ErrorOf([&] { grid.RemoveItem(-1); }), ErrorNumber::kInvalidRow);
  EXPECT_EQ(grid.Rows(), 3);
}

TEST(GridTest, TheCurrentCellStaysWithinTheGrid) {
  Grid grid;
  EXPECT_EQ(ErrorOf([&] { grid.SetRow(2); }), ErrorNumber::kInvalidRow);
  EXPECT_EQ(ErrorOf([&] { grid.SetRow(-1); }), ErrorNumber::kInvalidRow);
  EXPECT_EQ(ErrorOf([&] { grid.SetCol(4); }), ErrorNumber::kInvalidCol);
  EXPECT_EQ(ErrorOf([&] { grid.SetCol(-1); }), ErrorNumber::kInvalidCol);
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(grid.Col(), 0);
}

TEST(GridTest, MoreRowsAreBlankAndFewerAreCutOff) {
  Grid grid;
  grid.SetCols(2);
  grid.AddItem(u"a\t1");
  grid.AddItem(u"b\t2");
  grid.SetRow(3);
  grid.SetRows(3);
  EXPECT_THAT(Rows(grid), ElementsAre(u"|", u"a|1"));
  EXPECT_EQ(grid.Row(), 2);
  grid.SetRows(4);
  EXPECT_THAT(Rows(grid), ElementsAre(u"|", u"a|1", u"|"));
}

TEST(GridTest, MoreAndFewerColumnsKeepTheOthers) {
  Grid grid;
  grid.AddItem(u"a\tb\tc\td");
  grid.SetCol(3);
  grid.SetCols(2);
  EXPECT_THAT(Cells(grid, 2), ElementsAre(u"a", u"b"));
  EXPECT_EQ(grid.Col(), 1);
  grid.SetCols(3);
  EXPECT_THAT(Cells(grid, 2), ElementsAre(u"a", u"b", u""));
}

TEST(GridTest, SizesKeepOneCellThatIsNotFixed) {
  Grid grid;
  EXPECT_EQ(ErrorOf([&] { grid.SetRows(1); }), ErrorNumber::kInvalidProperty);
  EXPECT_EQ(ErrorOf([&] { grid.SetRows(Grid::kMaxRows + 1); }), ErrorNumber::kInvalidProperty);
  EXPECT_EQ(ErrorOf([&] { grid.SetCols(0); }), ErrorNumber::kInvalidProperty);
  EXPECT_EQ(ErrorOf([&] { grid.SetCols(Grid::kMaxCols + 1); }), ErrorNumber::kInvalidProperty);
  EXPECT_EQ(ErrorOf([&] { grid.SetFixedRows(2); }), ErrorNumber::kInvalidProperty);
  EXPECT_EQ(ErrorOf([&] { grid.SetFixedRows(-1); }), ErrorNumber::kInvalidProperty);
  EXPECT_EQ(ErrorOf([&] { grid.SetFixedCols(4); }), ErrorNumber::kInvalidProperty);
  EXPECT_EQ(grid.Rows(), 2);
  EXPECT_EQ(grid.Cols(), 4);
}

TEST(GridTest, TakesUpTo32767RowsAndNotOneMore) {
  Grid grid;
  grid.SetRows(Grid::kMaxRows - 1);
  grid.AddItem(u"dernier");
  EXPECT_EQ(grid.Rows(), 32767);
  EXPECT_EQ(ErrorOf([&] { grid.AddItem(u"trop"); }), ErrorNumber::kOutOfMemory);
  EXPECT_EQ(grid.Rows(), 32767);
  EXPECT_EQ(grid.Cell(32766, 0), u"dernier");
}

TEST(GridTest, ColumnsHaveWidthAndAlignment) {
  Grid grid;
  grid.SetColWidth(0, 4000);
  grid.SetColAlignment(3, Alignment::kCentre);
  EXPECT_EQ(grid.ColWidth(0), 4000);
  EXPECT_EQ(grid.ColAlignment(3), Alignment::kCentre);
  EXPECT_EQ(grid.ColAlignment(0), Alignment::kLeft);
  EXPECT_EQ(static_cast<int>(Alignment::kLeft), 0);
  EXPECT_EQ(static_cast<int>(Alignment::kRight), 1);
  EXPECT_EQ(static_cast<int>(Alignment::kCentre), 2);
  EXPECT_EQ(ErrorOf([&] { grid.SetColWidth(4, 1); }), ErrorNumber::kInvalidCol);
  EXPECT_EQ(ErrorOf([&] { grid.SetColAlignment(-1, Alignment::kLeft); }), ErrorNumber::kInvalidCol);
}

TEST(GridTest, ACellIsFreeIfItIsEmptyOrItsNumberIsMinusOneOrMinusTwo) {
  for (const TextView text : {u"", u"-1", u"-2", u" -1", u"-1.0", u"-2 suite", u"-1.exe"}) {
    EXPECT_TRUE(Grid::IsFree(text)) << ToStrictUtf8(text);
  }
  for (const TextView text : {u" ", u"0", u"1", u"-3", u"-1.5", u"-10", u"-12", u"a-1", u"--1",
                              u" Setup.exe", u" 1-2.zip"}) {
    EXPECT_FALSE(Grid::IsFree(text)) << ToStrictUtf8(text);
  }
}

// The count must follow whatever happens to the grid.
class FreeCellsTest : public testing::Test {
 protected:
  FreeCellsTest() {
    grid_.AddItem(u"a\tb\tx");
    grid_.AddItem(u"a\tb\t-1");
    EXPECT_EQ(grid_.FreeCells(2), 2);
  }
  // What a fresh look at the cells counts.
  int Counted(int col) const {
    int count = 0;
    for (int row = grid_.FixedRows(); row < grid_.Rows(); ++row) {
      count += Grid::IsFree(grid_.Cell(row, col)) ? 1 : 0;
    }
    return count;
  }

  Grid grid_;
};

TEST_F(FreeCellsTest, FollowTheTextOfCells) {
  grid_.SetCol(2);
  grid_.SetRow(1);
  grid_.SetText(u"y");
  EXPECT_EQ(grid_.FreeCells(2), 1);
  grid_.SetRow(2);
  grid_.SetText(u"-2");
  EXPECT_EQ(grid_.FreeCells(2), 2);
  grid_.SetText(u"");
  EXPECT_EQ(grid_.FreeCells(2), 2);
  grid_.SetCol(1);
  grid_.SetText(u"");
  EXPECT_EQ(grid_.FreeCells(2), 2) << "another column does not count";
}

TEST_F(FreeCellsTest, FollowTextThatIsTaken) {
  grid_.SetCol(2);
  grid_.SetRow(1);
  ASSERT_EQ(grid_.FreeCells(2), 2);
  grid_.TakeText(u"un texte qui ne tient pas dans la cellule");
  EXPECT_EQ(grid_.GetText(), u"un texte qui ne tient pas dans la cellule");
  EXPECT_EQ(grid_.FreeCells(2), Counted(2));
  grid_.TakeText(Text(u"\0reste", 6));
  EXPECT_EQ(grid_.FreeCells(2), Counted(2));
}

TEST_F(FreeCellsTest, LeaveTheTitleRowOut) {
  grid_.SetRow(0);
  grid_.SetCol(2);
  grid_.SetText(u" Fichier");
  EXPECT_EQ(grid_.FreeCells(2), 2);
  grid_.SetText(u"");
  EXPECT_EQ(grid_.FreeCells(2), 2);
}

TEST_F(FreeCellsTest, FollowRowsThatComeAndGo) {
  grid_.AddItem(u"\t");
  EXPECT_EQ(grid_.FreeCells(2), 3);
  grid_.AddItem(u"a\tb\tplein");
  EXPECT_EQ(grid_.FreeCells(2), 3);
  grid_.RemoveItem(3);
  EXPECT_EQ(grid_.FreeCells(2), 2);
  grid_.RemoveItem(2);
  EXPECT_EQ(grid_.FreeCells(2), 2);
  EXPECT_EQ(grid_.FreeCells(2), Counted(2));
}

TEST_F(FreeCellsTest, FollowAnotherColumnAndAnotherShape) {
  EXPECT_EQ(grid_.FreeCells(0), 1);
  grid_.SetRows(10);
  EXPECT_EQ(grid_.FreeCells(0), 7);
  EXPECT_EQ(grid_.FreeCells(2), Counted(2));
  grid_.SetFixedRows(2);
  EXPECT_EQ(grid_.FreeCells(2), Counted(2));
  grid_.SetCols(3);
  EXPECT_EQ(grid_.FreeCells(2), Counted(2));
  EXPECT_EQ(ErrorOf([&] { grid_.FreeCells(3); }), ErrorNumber::kInvalidCol);
}

}  // namespace
}  // namespace trovex::test
