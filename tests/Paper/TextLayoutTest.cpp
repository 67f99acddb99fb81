#include "Paper/PreviewTest.h"

namespace trovex::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class TextLayoutTest : public PreviewTest {
 protected:
  // What the surface makes of a text.
  void Print(const Text& text, int align = 0) {
    PreviewSurface& surface = Fixed(MyPrintPreview());
    surface.PrintTextAligned(text, align);
    Look();
    surface.ShowPreview();
  }
  static std::vector<TextView> Wrapped(TextView text, std::size_t characters) {
    const FontRuler ruler({u"Courier New", 10});
    return ruler.Wrap(text, kChar * static_cast<double>(characters));
  }
};

TEST_F(TextLayoutTest, ATextBeginsWhereTheMarginsMeet) {
  Print(u"Bonjour");
  ASSERT_EQ(Body(0).size(), 1u);
  EXPECT_DOUBLE_EQ(Body(0)[0].x, kMargin);
  EXPECT_NEAR(Body(0)[0].baseline, kMargin + 0.833 * 200, 0.01);
  EXPECT_EQ(FontOf(Body(0)[0]), (Font{u"Courier New", 10}));
}

TEST_F(TextLayoutTest, PagesAreA4) {
  Print(u"Bonjour");
  EXPECT_EQ(Paper(0).width, 11906);
  EXPECT_EQ(Paper(0).height, 16838);
}

TEST_F(TextLayoutTest, ShortTextsAreNotCut) {
  EXPECT_THAT(Wrapped(u"un deux", 7), ElementsAre(u"un deux"));
  EXPECT_THAT(Wrapped(u"", 7), ElementsAre(u""));
}

TEST_F(TextLayoutTest, LongLinesAreCutAtBlanks) {
  EXPECT_THAT(Wrapped(u"un deux trois quatre", 9), ElementsAre(u"un deux", u"trois", u"quatre"));
  EXPECT_THAT(Wrapped(u"un deux", 6), ElementsAre(u"un", u"deux"));
}

TEST_F(TextLayoutTest, BlanksAtACutBelongToNoLine) {
  EXPECT_THAT(Wrapped(u"un    deux", 5), ElementsAre(u"un", u"deux"));
  EXPECT_THAT(Wrapped(u"trois deux", 5), ElementsAre(u"trois", u"deux"));
}

TEST_F(TextLayoutTest, BlanksInFrontOfALineStay) {
  EXPECT_THAT(Wrapped(u"  un deux", 6), ElementsAre(u"  un", u"deux"));
}

TEST_F(TextLayoutTest, AWordWiderThanALineIsCutWhereTheLineEnds) {
  EXPECT_THAT(Wrapped(u"abcdefghij", 4), ElementsAre(u"abcd", u"efgh", u"ij"));
  EXPECT_THAT(Wrapped(u"un abcdefghij", 4), ElementsAre(u"un", u"abcd", u"efgh", u"ij"));
}

TEST_F(TextLayoutTest, EachLineTakesACharacterAtLeast) {
  EXPECT_THAT(Wrapped(u"abc", 0), ElementsAre(u"a", u"b", u"c"));
}

TEST_F(TextLayoutTest, ACharacterOfTwoUnitsIsNotCutInTwo) {
  EXPECT_THAT(Wrapped(u"\U0001F4BE\U0001F4BE", 1), Each(TextView(u"\U0001F4BE")));
}

TEST_F(TextLayoutTest, ABlankLineOfAnyLengthIsOneLine) {
  EXPECT_THAT(Wrapped(Text(5000, u' '), 10), testing::SizeIs(1));
}

TEST_F(TextLayoutTest, LineEndsCutTheText) {
  Print(u"un\r\ndeux\r\n\r\nquatre\r\n");
  ASSERT_THAT(Lines(0), ElementsAre(u"un", u"deux", u"quatre"));
  EXPECT_NEAR(Body(0)[1].baseline - Body(0)[0].baseline, kLine, 0.01);
  EXPECT_NEAR(Body(0)[2].baseline - Body(0)[1].baseline, 2 * kLine, 0.01);
}

TEST_F(TextLayoutTest, TabsLeadToTheNextColumnOfEight) {
  Print(u"a\tb\tc");
  ASSERT_THAT(Lines(0), ElementsAre(u"a", u"b", u"c"));
  EXPECT_NEAR(Body(0)[1].x, kMargin + 8 * kChar, 0.01);
  EXPECT_NEAR(Body(0)[2].x, kMargin + 16 * kChar, 0.01);
}

TEST_F(TextLayoutTest, ColumnsBehindTabsLineUpHoweverWideTheLettersBeforeThemAre) {
  MyPrintPreview().PrintText(u"iiiiii\tun\r\nWWWW\tdeux\r\n\ttrois");
  Look();
  MyPrintPreview().ShowPreview();
  ASSERT_EQ(Body(0).size(), 5u);
  EXPECT_EQ(Body(0)[1].x, Body(0)[3].x);
  EXPECT_EQ(Body(0)[3].x, Body(0)[4].x);
}

TEST_F(TextLayoutTest, WhatHasNoRoomBehindATabGoesToTheNextLine) {
  Print(Text(70, u'a') + u"\t" + Text(20, u'b'));
  EXPECT_THAT(Lines(0), ElementsAre(Text(70, u'a'), Text(20, u'b')));
  EXPECT_EQ(Body(0)[1].x, kMargin);
  EXPECT_NEAR(Body(0)[1].baseline - Body(0)[0].baseline, kLine, 0.01);
  Print(Text(84, u'\t') + u"fin");
  EXPECT_EQ(Lines(0).back(), u"fin");
}

TEST_F(TextLayoutTest, ALongParagraphBehindATabBeginsAtTheFirstStop) {
  Print(u"\t" + Text(200, u'a'));
  ASSERT_FALSE(Body(0).empty());
  EXPECT_NEAR(Body(0)[0].baseline, kMargin + 0.833 * 200, 0.01);
  EXPECT_NEAR(Body(0)[0].x, kMargin + 8 * kChar, 1);
}

TEST_F(TextLayoutTest, ATabAtTheEndOfAFullLineMakesNoEmptyOne) {
  Print(Text(84, u'a') + u"\t\r\nb");
  ASSERT_EQ(Body(0).size(), 2u);
  EXPECT_NEAR(Body(0)[1].baseline - Body(0)[0].baseline, kLine, 0.01);
}

TEST_F(TextLayoutTest, ATabbedTextFlowsOntoTheNextPage) {
  Text text;
  for (int i = 0; i < 70; ++i) text += u"a\tb\r\n";
  Print(text);
  ASSERT_EQ(pages.pages.size(), 2u);
  EXPECT_EQ(Lines(0).size(), 2 * kLinesAPage);
  EXPECT_EQ(Lines(1).size(), 2 * (70 - kLinesAPage));
}

TEST_F(TextLayoutTest, ControlCharactersAreBlanks) {
  Print(Text(u"a\x01") + u"b\x7F" + u"c");
  EXPECT_THAT(Lines(0), ElementsAre(u"a b c"));
}

TEST_F(TextLayoutTest, AlignmentMovesEachLine) {
  Print(u"abc", 1);
  EXPECT_DOUBLE_EQ(Body(0)[0].x, kMargin + kPortraitWidth - 3 * kChar);
  Print(u"abc", 2);
  EXPECT_DOUBLE_EQ(Body(0)[0].x, kMargin + (kPortraitWidth - 3 * kChar) / 2);
  Print(u"abc", 9);
  EXPECT_DOUBLE_EQ(Body(0)[0].x, kMargin);
}

TEST_F(TextLayoutTest, ATextFlowsOverAsManyPagesAsItNeeds) {
  Text text;
  for (std::size_t i = 0; i < 2 * kLinesAPage + 1; ++i) {
    text += Decimal(static_cast<long long>(i)) + u"\r\n";
  }
  Print(text);
  ASSERT_EQ(pages.pages.size(), 3u);
  EXPECT_EQ(Body(0).size(), kLinesAPage);
  EXPECT_EQ(Body(1).size(), kLinesAPage);
  EXPECT_THAT(Lines(2), ElementsAre(u"132"));
  EXPECT_DOUBLE_EQ(Body(2)[0].baseline, Body(0)[0].baseline) << "at the top again";
}

TEST_F(TextLayoutTest, ATextThatJustFillsThePageBeginsNoOther) {
  Text text;
  for (std::size_t i = 0; i < kLinesAPage; ++i) text += u"x\r\n";
  Print(text);
  EXPECT_EQ(pages.pages.size(), 1u);
}

TEST_F(TextLayoutTest, NoLineLeavesTheMargins) {
  Print(Text(1000, u'x') + u" " + Text(84, u'y') + u" zz");
  for (const Seen& text : Body(0)) {
    EXPECT_LE(text.text.size(), kAcross);
    EXPECT_GE(text.x, kMargin);
  }
  EXPECT_EQ(Lines(0).back(), u"zz");
}

TEST_F(TextLayoutTest, ALetterTallerThanThePageHasAPageToItself) {
  PreviewSurface& surface = MyPrintPreview();
  surface.SetFontSize(1000);
  surface.PrintText(u"A\r\nB");
  Look();
  surface.ShowPreview();
  EXPECT_EQ(pages.pages.size(), 2u);
}

TEST_F(TextLayoutTest, UnderliningDrawsALineAsLongAsTheText) {
  PreviewSurface& surface = Fixed(MyPrintPreview());
  surface.SetFontUnderline(true);
  surface.PrintText(u"abcd");
  Look();
  surface.ShowPreview();
  ASSERT_EQ(pages.pages[0].lines.size(), 1u);
  const PageLine& line = pages.pages[0].lines[0];
  EXPECT_DOUBLE_EQ(line.x2 - line.x1, 4 * kChar);
  EXPECT_GT(line.y1, Body(0)[0].baseline);
}

TEST_F(TextLayoutTest, PagesAreNumberedWhereThatWasAskedFor) {
  PreviewSurface& surface = Fixed(MyPrintPreview());
  surface.NumeroterPages(1, 2);
  for (std::size_t i = 0; i <= kLinesAPage; ++i) surface.PrintText(u"x");
  surface.NewPage(7);
  surface.PrintText(u"sans numéro");
  surface.NewPage(7);
  surface.NumeroterPages(1, 2);
  Look();
  surface.ShowPreview();
  ASSERT_EQ(pages.pages.size(), 4u);
  EXPECT_THAT(Foot(0), ElementsAre(u"Page 1"));
  EXPECT_THAT(Foot(1), ElementsAre(u"Page 2"));
  EXPECT_THAT(Foot(2), IsEmpty());
  EXPECT_THAT(Foot(3), ElementsAre(u"Page 4"));
}

TEST_F(TextLayoutTest, ALabelStandsAtTheTopOfEachPage) {
  PreviewSurface& surface = Fixed(MyPrintPreview());
  surface.SetLibellePage(u"Disque 7");
  surface.PrintText(u"x");
  surface.NewPage(7);
  Look();
  surface.ShowPreview();
  EXPECT_THAT(Head(0), ElementsAre(u"Disque 7"));
  EXPECT_THAT(Head(1), ElementsAre(u"Disque 7"));
}

TEST_F(TextLayoutTest, TheNextDocumentBeginsOnAPageOfItsOwn) {
  Print(u"premier");
  Print(u"second");
  ASSERT_EQ(pages.pages.size(), 1u);
  EXPECT_THAT(Lines(0), ElementsAre(u"second"));
}

TEST_F(TextLayoutTest, AnOrientationThatIsNoneIsRefused) {
  EXPECT_THROW(MyPrintPreview().SetOrientation(0), RuntimeError);
  EXPECT_THROW(MyPrintPreview().SetOrientation(3), RuntimeError);
  EXPECT_THROW(MyPrintPreview().SetFontSize(0), RuntimeError);
  EXPECT_THROW(MyPrintPreview().SetFontSize(-8), RuntimeError);
}

}  // namespace
}  // namespace trovex::test
