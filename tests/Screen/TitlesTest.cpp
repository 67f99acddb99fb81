#include "Screen/MainForm.h"
#include "support/LogicTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

class TitlesTest : public LogicTest {
 protected:
  TitlesTest() { form_.InitTitresTableaux(); }

  std::vector<Text> Titles(int table) {
    std::vector<Text> titles;
    for (int col = 0; col < 4; ++col) titles.push_back(form_.GridLogiciel(table).Cell(0, col));
    return titles;
  }
  std::vector<double> Widths(int table) {
    std::vector<double> widths;
    for (int col = 0; col < 4; ++col) widths.push_back(form_.GridLogiciel(table).ColWidth(col));
    return widths;
  }
  std::vector<Alignment> Alignments(int table) {
    std::vector<Alignment> alignments;
    for (int col = 0; col < 4; ++col) {
      alignments.push_back(form_.GridLogiciel(table).ColAlignment(col));
    }
    return alignments;
  }

  MainForm form_;
};

constexpr Alignment kLeft = Alignment::kLeft, kCentre = Alignment::kCentre;

TEST_F(TitlesTest, TheTablesOfPrograms) {
  for (int table : {0, 1}) {
    EXPECT_THAT(Titles(table),
                ElementsAre(u" Description", u" Emplacement", u" Fichier", u" Version"));
    EXPECT_THAT(Widths(table), ElementsAre(4000, 4200, 1450, 1000));
    EXPECT_THAT(Alignments(table), ElementsAre(kLeft, kLeft, kLeft, kCentre));
  }
}

TEST_F(TitlesTest, TheTableOfArchives) {
  EXPECT_THAT(Titles(2), ElementsAre(u" Taille en Ko", u" Emplacement", u" Fichier", u" Date"));
  EXPECT_THAT(Widths(2), ElementsAre(1300, 4600, 3100, 1500));
  EXPECT_THAT(Alignments(2), ElementsAre(kCentre, kLeft, kLeft, kCentre));
}

TEST_F(TitlesTest, NoDataRowIsTouched) {
  Grid& grid = form_.GridLogiciel(1);
  grid.SetRow(1);
  grid.SetCol(2);
  grid.SetText(u" Jeu.exe");
  form_.InitTitresTableaux();
  EXPECT_EQ(grid.Rows(), 2);
  EXPECT_EQ(grid.Cell(1, 2), u" Jeu.exe");
  EXPECT_EQ(grid.Row(), 0) << "the current cell ends on the last title";
  EXPECT_EQ(grid.Col(), 3);
}

TEST_F(TitlesTest, WrittenAgainTheyReplaceWhatStoodThere) {
  Grid& grid = form_.GridLogiciel(2);
  grid.SetRow(0);
  grid.SetCol(1);
  grid.SetText(u" D:\\TROP");
  form_.InitTitresTableaux();
  EXPECT_EQ(Titles(2)[1], u" Emplacement");
}

}  // namespace
}  // namespace trovex::test
