#include "Ui/PreviewState.h"

#include <gtest/gtest.h>

#include "Ui/FontWidths.h"

namespace trovex::test {
namespace {

class PreviewStateTest : public testing::Test {
 protected:
  static Pages Document(std::size_t count, Extent paper = {11906, 16838}) {
    Pages pages;
    pages.pages.resize(count);
    for (Page& page : pages.pages) page.paper = paper;
    return pages;
  }
};

TEST_F(PreviewStateTest, PagesAreLeafedThroughOneByOne) {
  const Pages pages = Document(3);
  PreviewState state(pages);
  EXPECT_EQ(state.First(), 0u);
  EXPECT_FALSE(state.Previous());
  EXPECT_TRUE(state.Next());
  EXPECT_TRUE(state.Next());
  EXPECT_FALSE(state.Next());
  EXPECT_EQ(state.First(), 2u);
  EXPECT_TRUE(state.Previous());
  EXPECT_EQ(state.First(), 1u);
}

TEST_F(PreviewStateTest, AnyPageCanBeGoneTo) {
  const Pages pages = Document(3);
  PreviewState state(pages);
  EXPECT_TRUE(state.GoTo(99));
  EXPECT_EQ(state.First(), 2u);
  EXPECT_FALSE(state.GoTo(2));
  EXPECT_TRUE(state.GoTo(0));
}

TEST_F(PreviewStateTest, TwoPagesBeginWithAnOddNumber) {
  const Pages pages = Document(5);
  PreviewState state(pages);
  state.GoTo(3);
  state.ShowTwo(true);
  EXPECT_EQ(state.First(), 2u);
  EXPECT_EQ(state.Shown(), 2u);
  EXPECT_TRUE(state.Next());
  EXPECT_EQ(state.First(), 4u);
  EXPECT_EQ(state.Shown(), 1u) << "the last one stands alone";
  EXPECT_FALSE(state.Next());
  EXPECT_TRUE(state.Previous());
  EXPECT_EQ(state.First(), 2u);
  state.ShowTwo(false);
  EXPECT_EQ(state.Shown(), 1u);
}

TEST_F(PreviewStateTest, AWholePageFitsIntoTheArea) {
  const Pages pages = Document(2);
  PreviewState state(pages);
  for (const bool two : {false, true}) {
    state.ShowTwo(two);
    for (const auto& [width, height] : {std::pair{1000, 700}, {300, 900}, {640, 480}}) {
      const PreviewState::Layout layout = state.In(width, height);
      ASSERT_EQ(layout.sheets.size(), two ? 2u : 1u);
      for (const PreviewState::Sheet& sheet : layout.sheets) {
        EXPECT_GE(sheet.left, 0);
        EXPECT_GE(sheet.top, 0);
        EXPECT_LE(sheet.left + sheet.width, width);
        EXPECT_LE(sheet.top + sheet.height, height);
      }
      EXPECT_LE(layout.height, height) << "nothing to scroll";
    }
  }
}

TEST_F(PreviewStateTest, AtItsWidthAPageFillsTheAreaAcross) {
  const Pages pages = Document(1);
  PreviewState state(pages);
  state.SetFit(PreviewState::Fit::kWidth);
  const PreviewState::Layout layout = state.In(1000, 400);
  EXPECT_NEAR(layout.sheets[0].width, 1000 - 24, 9);
  EXPECT_GT(layout.height, 400) << "the rest is scrolled to";
  EXPECT_EQ(layout.height, layout.sheets[0].height + 24);
}

TEST_F(PreviewStateTest, TheTwoPagesStandBesideEachOther) {
  const Pages pages = Document(2);
  PreviewState state(pages);
  state.ShowTwo(true);
  const PreviewState::Layout layout = state.In(1200, 700);
  EXPECT_EQ(layout.sheets[0].page, 0u);
  EXPECT_EQ(layout.sheets[1].page, 1u);
  EXPECT_GT(layout.sheets[1].left, layout.sheets[0].left + layout.sheets[0].width);
  EXPECT_EQ(layout.sheets[1].top, layout.sheets[0].top);
}

TEST_F(PreviewStateTest, AnAreaTooSmallForAnythingStillHasALayout) {
  const Pages pages = Document(1);
  PreviewState state(pages);
  EXPECT_GT(state.In(0, 0).sheets[0].width, 0);
  EXPECT_GT(state.In(-10, -10).dpi, 0);
}

TEST(FontWidthsTest, LettersHaveTheWidthsOfTheStandardFonts) {
  EXPECT_DOUBLE_EQ(StandardWidth(u"A", {u"Times New Roman", 10}), 722 * 0.2);
  EXPECT_DOUBLE_EQ(StandardWidth(u"A", {u"Arial", 10}), 667 * 0.2);
  EXPECT_DOUBLE_EQ(StandardWidth(u"\u20AC", {u"Arial", 10}), 556 * 0.2);
  EXPECT_DOUBLE_EQ(StandardWidth(u"il", {u"Courier New", 10}), 2 * 600 * 0.2);
  EXPECT_DOUBLE_EQ(StandardWidth(u"\u00E9", {u"Times New Roman", 10, true}), 444 * 0.2);
  EXPECT_DOUBLE_EQ(StandardWidth(u"A", {u"Times New Roman", 10, false, true}), 611 * 0.2);
  EXPECT_DOUBLE_EQ(StandardWidth(u"A", {u"Times New Roman", 10, true, true}), 667 * 0.2);
  EXPECT_DOUBLE_EQ(StandardWidth(u"", {u"Arial", 10}), 0);
}

TEST(FontWidthsTest, ALetterThatTheCodePageLacksMeasuresAsAQuestionMark) {
  const Font font = {u"Times New Roman", 10};
  EXPECT_EQ(StandardWidth(u"\u0416", font), StandardWidth(u"?", font));
}

TEST(FontWidthsTest, FamiliesAreKnownByName) {
  EXPECT_EQ(FamilyOf({u"Times New Roman", 9}), FontFamily::kTimes);
  EXPECT_EQ(FamilyOf({u"garamond", 9}), FontFamily::kTimes);
  EXPECT_EQ(FamilyOf({u"ARIAL", 9}), FontFamily::kHelvetica);
  EXPECT_EQ(FamilyOf({u"Fixedsys", 9}), FontFamily::kCourier);
  EXPECT_EQ(FamilyOf({u"", 9}), FontFamily::kHelvetica);
}

}  // namespace
}  // namespace trovex::test
