#include "Lib/LIB_OBJECT_GRID.h"

#include "support/LogicTest.h"

namespace trovex::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::StartsWith;

std::vector<Text> Cells(const Grid& grid, int row) {
  std::vector<Text> cells;
  for (int col = 0; col < grid.Cols(); ++col) cells.push_back(grid.Cell(row, col));
  return cells;
}

std::vector<Text> Column(const Grid& grid, int col) {
  std::vector<Text> cells;
  for (int row = grid.FixedRows(); row < grid.Rows(); ++row) cells.push_back(grid.Cell(row, col));
  return cells;
}

class ObjectGridTest : public LogicTest {
 protected:
  // A table whose files are these, top-down; the first takes the blank row.
  void Fill(std::initializer_list<TextView> files) {
    bool first = true;
    for (const TextView file : files) {
      if (!first) grid_.AddItem(u"\t");
      first = false;
      Put(grid_.Rows() - 1, 2, file);
    }
  }
  void Put(int row, int col, TextView text) {
    grid_.SetRow(row);
    grid_.SetCol(col);
    grid_.SetText(text);
  }
  // As the scanner asks.
  int Allocate() { return iGetClearLineGrid(grid_, 2, true, u""); }

  Grid grid_;
};

TEST_F(ObjectGridTest, TheFirstFileGoesIntoRow1AndNotIntoANewRow2) {
  EXPECT_EQ(Allocate(), 1);
  EXPECT_EQ(grid_.Rows(), 2);
  EXPECT_EQ(grid_.Row(), 1);
}

TEST_F(ObjectGridTest, EachLaterFileAppendsARow) {
  Fill({u" A.exe", u" B.exe"});
  grid_.SetRow(0);
  EXPECT_EQ(Allocate(), 3);
  EXPECT_EQ(grid_.Rows(), 4);
  EXPECT_EQ(grid_.Row(), 3);
  EXPECT_THAT(Cells(grid_, 3), Each(u""));
}

TEST_F(ObjectGridTest, ACellThatReadsMinusOneMarksItsRowAsFree) {
  Fill({u" A.exe", u"-1", u" C.exe"});
  Put(2, 0, u"reste");
  EXPECT_EQ(Allocate(), 2);
  EXPECT_EQ(grid_.Rows(), 4);
  EXPECT_THAT(Cells(grid_, 2), Each(u"")) << "the row is cleared";
  EXPECT_THAT(Column(grid_, 2), ElementsAre(u" A.exe", u"", u" C.exe"));
}

TEST_F(ObjectGridTest, TheBottomMostFreeRowWins) {
  Fill({u"-2", u"", u" C.exe", u"-1 suite", u" E.exe"});
  EXPECT_EQ(Allocate(), 4);
  Put(4, 2, u" D.exe");
  EXPECT_EQ(Allocate(), 2);
  Put(2, 2, u" B.exe");
  EXPECT_EQ(Allocate(), 1);
  Put(1, 2, u" A.exe");
  EXPECT_EQ(Allocate(), 6);
}

TEST_F(ObjectGridTest, OtherNumbersAreNotFree) {
  Fill({u"0", u"-3", u"-1.5", u" ", u"-12"});
  EXPECT_EQ(Allocate(), 6);
}

TEST_F(ObjectGridTest, TheTestedColumnAloneCounts) {
  Fill({u" A.exe"});
  EXPECT_EQ(iGetClearLineGrid(grid_, 0, true, u""), 1) << "column 0 of the row is empty";
  EXPECT_THAT(Cells(grid_, 1), Each(u""));
}

TEST_F(ObjectGridTest, TheTitleRowIsNeverTaken) {
  Put(0, 2, u"");
  Fill({u" A.exe"});
  EXPECT_EQ(Allocate(), 2);
}

TEST_F(ObjectGridTest, AClearedLineReadsMinusOneIfNoTextIsGiven) {
  EXPECT_EQ(iGetClearLineGrid(grid_, 2, true), 1);
  EXPECT_THAT(Cells(grid_, 1), Each(u"-1"));
  Put(1, 2, u" A.exe");
  EXPECT_EQ(iGetClearLineGrid(grid_, 2, true), 2);
  EXPECT_THAT(Cells(grid_, 2), Each(u"-1"));
  EXPECT_EQ(iGetClearLineGrid(grid_, 2, true), 2) << "which is free in its turn";
}

TEST_F(ObjectGridTest, WithoutReuseFreeRowsStay) {
  Fill({u" A.exe", u"", u" C.exe"});
  EXPECT_EQ(iGetClearLineGrid(grid_, 2, false, u"x"), 4);
  EXPECT_THAT(Cells(grid_, 4), Each(u"x"));
  EXPECT_THAT(Column(grid_, 2), ElementsAre(u" A.exe", u"", u" C.exe", u"x"));
}

TEST_F(ObjectGridTest, EvenWithoutReuseTheOnlyRowIsTakenIfItIsFree) {
  EXPECT_EQ(iGetClearLineGrid(grid_, 2, false, u""), 1);
  EXPECT_EQ(grid_.Rows(), 2);
  Put(1, 2, u" A.exe");
  EXPECT_EQ(iGetClearLineGrid(grid_, 2, false, u""), 2);
}

TEST_F(ObjectGridTest, ALineTextIsAppendedAndTheFreeRowGoes) {
  Fill({u" A.exe", u"", u" C.exe"});
  EXPECT_EQ(iGetClearLineGrid(grid_, 2, true, u"", u"d\te\t D.exe\tv"), 3);
  EXPECT_EQ(grid_.Row(), 3);
  EXPECT_THAT(Column(grid_, 2), ElementsAre(u" A.exe", u" C.exe", u" D.exe"));
  EXPECT_THAT(Cells(grid_, 3), ElementsAre(u"d", u"e", u" D.exe", u"v"));
}

TEST_F(ObjectGridTest, ARowClearedWithATextThatIsNotFreeStaysBesideTheLineText) {
  Fill({u" A.exe", u""});
  EXPECT_EQ(iGetClearLineGrid(grid_, 2, true, u"vide", u"d\te\t D.exe\tv"), 3);
  EXPECT_THAT(Column(grid_, 2), ElementsAre(u" A.exe", u"vide", u" D.exe"));
}

TEST_F(ObjectGridTest, ALineTextOnAnEmptyTableTakesThePlaceOfItsBlankRow) {
  EXPECT_EQ(iGetClearLineGrid(grid_, 2, true, std::nullopt, u"a\tb\tc"), 1);
  EXPECT_EQ(grid_.Rows(), 2);
  EXPECT_THAT(Cells(grid_, 1), ElementsAre(u"a", u"b", u"c", u""));
}

TEST_F(ObjectGridTest, ALineTextIsAppendedWhereNoRowIsFree) {
  Fill({u" A.exe"});
  EXPECT_EQ(iGetClearLineGrid(grid_, 2, true, u"", u"a\tb\tc\td"), 2);
  EXPECT_EQ(grid_.Row(), 2);
  EXPECT_THAT(Cells(grid_, 2), ElementsAre(u"a", u"b", u"c", u"d"));
}

TEST_F(ObjectGridTest, ARowThatCannotBeAddedIsReported) {
  grid_.SetRows(Grid::kMaxRows);
  for (int row = 1; row < Grid::kMaxRows; ++row) Put(row, 2, u" A.exe");
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(Allocate(), 0);
  EXPECT_EQ(grid_.Rows(), 32767);
  EXPECT_EQ(view.Boxes()[0].style, BoxStyle::kErreur);
  EXPECT_TRUE(LastBox().starts_with(
      u"Allocation nouvelle ligne d'un tableau impossible : iGetClearLineGrid()"));
}

TEST_F(ObjectGridTest, AFreeRowIsFoundInAFullGridToo) {
  grid_.SetRows(Grid::kMaxRows);
  for (int row = 1; row < Grid::kMaxRows; ++row) Put(row, 2, row == 5 ? u"" : u" A.exe");
  EXPECT_EQ(Allocate(), 5);
}

// Counts what a view is told of a grid: each step of a search moves the current row.
class CountingView : public HeadlessView {
 public:
  void Changed(Control&, Property) override { ++changes; }
  long changes = 0;
};

TEST_F(ObjectGridTest, FillingAGridTo32767RowsCostsTheSameForEachRow) {
  constexpr ControlSpec kControls[] = {{ControlKind::kGrid, u"Grille", -1, {0, 0, 100, 100}}};
  const FormSpec spec = {u"Essai", u"Essai", 100, 100, false, 0, kControls};
  CountingView counting;
  ViewScope scope(counting);
  Form form(spec);
  form.Load();
  Grid& grid = form.Get<Grid>(u"Grille");
  const auto fill = [&](int upto) {
    const long before = counting.changes;
    const int from = grid.Rows();
    for (int row = from; row < upto; ++row) {
      EXPECT_EQ(iGetClearLineGrid(grid, 2, true, u""), row);
      grid.SetText(u"x");
      grid.SetCol(2);
      grid.SetText(u" A.exe");
    }
    return static_cast<double>(counting.changes - before) / (upto - from);
  };
  EXPECT_EQ(iGetClearLineGrid(grid, 2, true, u""), 1);
  grid.SetCol(2);
  grid.SetText(u" A.exe");
  const double first = fill(100);
  const double last = fill(Grid::kMaxRows);
  EXPECT_LT(last, first + 1);
  EXPECT_EQ(grid.Rows(), Grid::kMaxRows);
  form.Unload();
}

TEST_F(ObjectGridTest, ClearGridLeavesOneLineThatHoldsTheText) {
  Put(0, 1, u" Emplacement");
  Fill({u" A.exe", u" B.exe", u" C.exe"});
  ClearGrid(grid_, u"");
  EXPECT_EQ(grid_.Rows(), 2);
  EXPECT_THAT(Cells(grid_, 1), Each(u""));
  EXPECT_EQ(grid_.Cell(0, 1), u" Emplacement") << "titles stay";
  Fill({u" A.exe", u" B.exe"});
  ClearGrid(grid_, u"-1");
  EXPECT_THAT(Cells(grid_, 1), Each(u"-1"));
}

TEST_F(ObjectGridTest, ClearGridEndsOnTheLineThatIsLeft) {
  Fill({u" A.exe", u" B.exe"});
  grid_.SetRow(0);
  ClearGrid(grid_, u"");
  EXPECT_EQ(grid_.Row(), 1);
}

TEST_F(ObjectGridTest, ClearGridKeepsFixedRowsAndColumns) {
  grid_.SetRows(5);
  grid_.SetFixedRows(2);
  grid_.SetFixedCols(1);
  for (int row = 0; row < 5; ++row) {
    for (int col = 0; col < 4; ++col) Put(row, col, u"x");
  }
  ClearGrid(grid_, u"y");
  EXPECT_EQ(grid_.Rows(), 3);
  EXPECT_THAT(Cells(grid_, 1), Each(u"x"));
  EXPECT_THAT(Cells(grid_, 2), ElementsAre(u"x", u"y", u"y", u"y"));
}

TEST_F(ObjectGridTest, ClearLineGridWritesEveryCellThatIsNotFixed) {
  Fill({u" A.exe", u" B.exe"});
  grid_.SetFixedCols(1);
  Put(1, 0, u"titre");
  ClearLineGrid(grid_, 1, u"z");
  EXPECT_THAT(Cells(grid_, 1), ElementsAre(u"titre", u"z", u"z", u"z"));
  EXPECT_EQ(grid_.Cell(2, 2), u" B.exe");
  EXPECT_EQ(grid_.Row(), 1);
}

TEST_F(ObjectGridTest, ClearLineGridLeavesALineBeyondTheLastOneAlone) {
  Fill({u" A.exe"});
  grid_.SetRow(0);
  ClearLineGrid(grid_, 2, u"z");
  EXPECT_EQ(grid_.Row(), 0);
  EXPECT_EQ(grid_.Cell(1, 2), u" A.exe");
  EXPECT_EQ(grid_.Rows(), 2);
}

TEST_F(ObjectGridTest, ClearLineGridTakesTheLastLine) {
  Fill({u" A.exe", u" B.exe"});
  ClearLineGrid(grid_, 2, u"");
  EXPECT_THAT(Column(grid_, 2), ElementsAre(u" A.exe", u""));
}

}  // namespace
}  // namespace trovex::test
