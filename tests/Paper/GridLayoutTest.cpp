#include <cmath>

#include "Paper/PreviewTest.h"

namespace trovex::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;

class GridLayoutTest : public PreviewTest {
 protected:
  GridLayoutTest() {
    grid.SetCols(2);
    Put(0, 0, u" Nom");
    Put(0, 1, u" Lieu");
    grid.SetColWidth(0, 3000);
    grid.SetColWidth(1, 1000);
  }

  void Put(int row, int col, const Text& text) {
    grid.SetRow(row);
    grid.SetCol(col);
    grid.SetText(text);
  }
  // `count` rows that tell their number.
  void Fill(int count) {
    grid.SetRows(count + 1);
    for (int row = 1; row <= count; ++row) Put(row, 0, u" n" + Decimal(row));
  }
  void Print(int orientation = 1) {
    PreviewSurface& surface = Fixed(MyPrintPreview());
    surface.SetOrientation(orientation);
    surface.NumeroterPages(1, 2);
    surface.SetTitreDocument(title);
    Look();
    surface.PrintGrid(grid);
  }
  // Right ends of the texts of a page, but for what stands in its margins.
  double RightMost(std::size_t page) const {
    double right = 0;
    for (const Seen& text : Body(page)) {
      right = std::max(right, text.x + kChar * static_cast<double>(text.text.size()));
    }
    return right;
  }
  // Where upright rules stand on a page.
  std::vector<double> Uprights(std::size_t page) const {
    std::vector<double> places;
    for (const PageLine& line : pages.pages.at(page).lines) {
      if (line.x1 == line.x2) places.push_back(line.x1);
    }
    return places;
  }

  Grid grid;
  Text title = u"Liste";
};

TEST_F(GridLayoutTest, TheTitleStandsAboveTheGridInTheMiddle) {
  Print();
  const Seen heading = Body(0)[0];
  EXPECT_EQ(heading.text, u"Liste");
  EXPECT_EQ(FontOf(heading), (Font{u"Courier New", 14, true}));
  EXPECT_NEAR(heading.x, kMargin + (kPortraitWidth - 5 * 1.4 * kChar) / 2, 0.01);
  EXPECT_THAT(Lines(0), ElementsAre(u"Liste", u"Nom", u"Lieu"));
}

TEST_F(GridLayoutTest, WithoutATitleTheGridBeginsAtTheTop) {
  title = u"";
  Print();
  EXPECT_THAT(Lines(0), ElementsAre(u"Nom", u"Lieu"));
  EXPECT_LT(Body(0)[0].baseline, kMargin + kLine);
}

TEST_F(GridLayoutTest, ColumnsKeepTheirProportionsOverTheWholeWidth) {
  Print();
  EXPECT_THAT(Uprights(0),
              ElementsAre(kMargin, kMargin + kPortraitWidth * 3 / 4, kMargin + kPortraitWidth));
  Print(2);
  EXPECT_THAT(Uprights(0),
              ElementsAre(kMargin, kMargin + kLandscapeWidth * 3 / 4, kMargin + kLandscapeWidth));
}

TEST_F(GridLayoutTest, ColumnsWiderThanThePageAreFittedToIt) {
  grid.SetColWidth(0, 90000);
  grid.SetColWidth(1, 90000);
  Print();
  EXPECT_THAT(Uprights(0),
              ElementsAre(kMargin, kMargin + kPortraitWidth / 2, kMargin + kPortraitWidth));
}

TEST_F(GridLayoutTest, AColumnNarrowedToAlmostNothingHasALeastWidthOnPaper) {
  grid.SetColWidth(0, 15);
  grid.SetColWidth(1, 4000);
  Print();
  EXPECT_THAT(Uprights(0), ElementsAre(kMargin, kMargin + 850, kMargin + kPortraitWidth));
}

TEST_F(GridLayoutTest, WhatNarrowColumnsLackIsTakenFromTheOthersInProportion) {
  grid.SetCols(4);
  grid.SetColWidth(0, 15);
  grid.SetColWidth(1, 6000);
  grid.SetColWidth(2, 15);
  grid.SetColWidth(3, 2000);
  Print();
  const double room = kPortraitWidth - 2 * 850;
  const std::vector<double> places = Uprights(0);
  ASSERT_EQ(places.size(), 5u);
  EXPECT_NEAR(places[2] - places[1], room * 3 / 4, 0.01);
  EXPECT_NEAR(places[4] - places[3], room / 4, 0.01);
}

TEST_F(GridLayoutTest, MoreColumnsThanFitShareThePageEvenly) {
  grid.SetCols(40);
  for (int col = 0; col < 40; ++col) grid.SetColWidth(col, col == 0 ? 15 : 1000);
  Print();
  const std::vector<double> places = Uprights(0);
  ASSERT_EQ(places.size(), 41u);
  EXPECT_NEAR(places[1] - places[0], kPortraitWidth / 40, 0.01);
  EXPECT_NEAR(places.back(), kMargin + kPortraitWidth, 0.01);
}

TEST_F(GridLayoutTest, AColumnWithoutWidthIsNotPrinted) {
  grid.SetColWidth(0, 0);
  Print();
  EXPECT_THAT(Lines(0), ElementsAre(u"Liste", u"Lieu"));
  EXPECT_EQ(Uprights(0).size(), 2u);
}

TEST_F(GridLayoutTest, ColumnsThatAllLackAWidthShareThePage) {
  grid.SetColWidth(0, 0);
  grid.SetColWidth(1, 0);
  Print();
  EXPECT_THAT(Uprights(0),
              ElementsAre(kMargin, kMargin + kPortraitWidth / 2, kMargin + kPortraitWidth));
}

TEST_F(GridLayoutTest, LandscapeTurnsThePaper) {
  Print(2);
  EXPECT_EQ(Paper(0).width, 16838);
  EXPECT_EQ(Paper(0).height, 11906);
}

TEST_F(GridLayoutTest, TheHeaderStandsAgainOnEachPageInBold) {
  Fill(200);
  Print();
  ASSERT_GT(pages.pages.size(), 2u);
  for (std::size_t page = 1; page < pages.pages.size(); ++page) {
    EXPECT_EQ(Lines(page)[0], u"Nom");
    EXPECT_EQ(Lines(page)[1], u"Lieu");
    EXPECT_TRUE(FontOf(Body(page)[0]).bold);
    EXPECT_FALSE(FontOf(Body(page)[2]).bold);
    EXPECT_THAT(Foot(page), ElementsAre(u"Page " + Decimal(static_cast<long long>(page + 1))));
  }
}

TEST_F(GridLayoutTest, EveryRowIsPrintedOnceAndInOrder) {
  Fill(500);
  Print();
  std::vector<Text> rows, expected;
  for (std::size_t page = 0; page < pages.pages.size(); ++page) {
    for (const Text& line : Lines(page)) {
      if (line[0] == u'n') rows.push_back(line);
    }
  }
  for (int row = 1; row <= 500; ++row) expected.push_back(u"n" + Decimal(row));
  EXPECT_EQ(rows, expected);
}

TEST_F(GridLayoutTest, NothingLeavesTheMargins) {
  Fill(100);
  for (int row = 1; row <= 100; ++row) Put(row, 1, Text(static_cast<std::size_t>(row), u'x'));
  Print();
  for (std::size_t page = 0; page < pages.pages.size(); ++page) {
    EXPECT_LE(RightMost(page), kMargin + kPortraitWidth);
    for (const PageLine& line : pages.pages[page].lines) {
      EXPECT_LE(line.y2, kMargin + kPortraitHeight);
    }
  }
}

TEST_F(GridLayoutTest, ATextTooWideForItsCellIsWrapped) {
  Put(1, 0, u"a");
  Put(1, 1, u"un deux trois quatre cinq six");
  Print();
  EXPECT_THAT(Lines(0),
              ElementsAre(u"Liste", u"Nom", u"Lieu", u"a", u"un deux trois quatre", u"cinq six"));
  const std::vector<Seen> body = Body(0);
  EXPECT_EQ(body[3].baseline, body[4].baseline);
  EXPECT_NEAR(body[5].baseline - body[4].baseline, kLine, 0.01);
  EXPECT_EQ(body[5].x, body[4].x);
}

TEST_F(GridLayoutTest, ARowThatDoesNotFitGoesToTheNextPageWhole) {
  Fill(50);
  Text tall;
  for (int i = 0; i < 30; ++i) tall += u"abcdefghijklmnopqrs ";
  Put(50, 1, tall);
  Print();
  ASSERT_EQ(pages.pages.size(), 2u);
  EXPECT_THAT(Lines(0), testing::Not(Contains(u"n50")));
  EXPECT_EQ(Lines(1).size(), 2u + 1u + 30u) << "the header, the row's name, and all its lines";
}

TEST_F(GridLayoutTest, ARowTallerThanAPageIsSplit) {
  Put(1, 0, u"haut");
  Text tall;
  for (int i = 0; i < 150; ++i) tall += u"abcdefghijklmnopqrs ";
  Put(1, 1, tall);
  grid.AddItem(u"après");
  Print();
  ASSERT_EQ(pages.pages.size(), 4u) << "one of the title, three of the row";
  std::size_t lines = 0;
  for (std::size_t page = 0; page < pages.pages.size(); ++page) {
    for (const Text& line : Lines(page)) lines += line == u"abcdefghijklmnopqrs" ? 1 : 0;
    EXPECT_THAT(Lines(page), Contains(u"Nom"));
  }
  EXPECT_EQ(lines, 150u);
  EXPECT_EQ(Lines(3).back(), u"après");
}

TEST_F(GridLayoutTest, ACellOf30000CharactersIsPrintedToItsEnd) {
  Put(1, 1, Text(30000, u'x'));
  Print();
  std::size_t printed = 0;
  for (std::size_t page = 0; page < pages.pages.size(); ++page) {
    for (const Text& line : Lines(page)) printed += line[0] == u'x' ? line.size() : 0;
  }
  EXPECT_EQ(printed, 30000u);
}

TEST_F(GridLayoutTest, AHeaderThatWouldTakeThePageIsCutShort) {
  Put(0, 0, Text(30000, u'h'));
  Fill(3);
  Print();
  EXPECT_THAT(Lines(0), Contains(u"n1"));
  EXPECT_THAT(Lines(0), Contains(u"n3"));
}

TEST_F(GridLayoutTest, ALetterTallerThanThePageComesToItsEndAllTheSame) {
  Fill(3);
  PreviewSurface& surface = MyPrintPreview();
  surface.SetFontSize(1500);
  Look();
  surface.PrintGrid(grid);
  EXPECT_LT(pages.pages.size(), 100u);
}

TEST_F(GridLayoutTest, CellsFollowTheAlignmentOfTheirColumn) {
  grid.SetColAlignment(0, Alignment::kRight);
  grid.SetColAlignment(1, Alignment::kCentre);
  Put(1, 0, u"droite");
  Put(1, 1, u"milieu");
  Print();
  const std::vector<Seen> body = Body(0);
  const double column = kPortraitWidth * 3 / 4;
  EXPECT_NEAR(body[3].x, kMargin + column - 60 - 6 * kChar, 0.01);
  EXPECT_NEAR(body[4].x, kMargin + column + (kPortraitWidth - column - 6 * kChar) / 2, 0.01);
}

TEST_F(GridLayoutTest, BlanksAroundACellAreLeftOut) {
  Put(1, 0, u"  12 ");
  Print();
  EXPECT_EQ(Lines(0).back(), u"12");
}

TEST_F(GridLayoutTest, TheGridsCurrentCellStaysWhereItIs) {
  Fill(5);
  grid.SetRow(2);
  grid.SetCol(1);
  Print();
  EXPECT_EQ(grid.Row(), 2);
  EXPECT_EQ(grid.Col(), 1);
}

TEST_F(GridLayoutTest, ATableOf32767RowsIsLaidOut) {
  grid.SetRows(Grid::kMaxRows);
  Put(Grid::kMaxRows - 1, 0, u"dernier");
  Print();
  EXPECT_EQ(Lines(pages.pages.size() - 1).back(), u"dernier");
}

}  // namespace
}  // namespace trovex::test
