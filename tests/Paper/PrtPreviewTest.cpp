#include "Paper/PrtPreview.h"

#include "Lib/Lib_Form.h"
#include "Paper/PreviewTest.h"

namespace trovex::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kItalic = 3, kPlainStyles[] = {2, 7, 0, 10, -1};

class PrtPreviewTest : public PreviewTest {
 protected:
  PrtPreviewTest() {
    disc.Directory("TMP");
    sRepertoireTemp = u"D:\\TMP";
    grid.SetRow(0);
    for (int col = 0; col < grid.Cols(); ++col) {
      grid.SetCol(col);
      grid.SetText(u"T" + Decimal(col));
    }
  }

  // The surface that documents go to, in the font of fixed pitch.
  PreviewSurface& Surface() { return Fixed(MyPrintPreview()); }
  void Show(PrtPreview& document) {
    Look();
    document.Display();
  }
  const Font& FontOfText(std::size_t index) const { return FontOf(Body(0).at(index)); }

  Grid grid;
  TextBox box;
};

TEST_F(PrtPreviewTest, CentimetresAreRoundedDownToTwips) {
  EXPECT_EQ(PrtPreview::CmToCo(1.5), 850);
  EXPECT_EQ(PrtPreview::CmToCo(1), 567);
  EXPECT_EQ(PrtPreview::CmToCo(-0.001), -1);
  EXPECT_DOUBLE_EQ(PrtPreview::CoToCm(567), 1.0);
  EXPECT_THROW(PrtPreview::CmToCo(1e9), RuntimeError);
}

TEST_F(PrtPreviewTest, TheObjectLendsTheSurfaceAndLeavesNothingBehind) {
  {
    PrtPreview document;
    const Text file = MyPrintPreview().FichierTravail();
    EXPECT_TRUE(file.starts_with(u"D:\\TMP\\~Trvx"));
    disc.File("TMP/" + std::string(file.begin() + 7, file.end()));
    EXPECT_TRUE(bFichierExiste(file));
  }
  EXPECT_TRUE(std::filesystem::is_empty(disc.HostPath("TMP")));
  EXPECT_THAT(LoadedForms(), IsEmpty()) << "the tool form is unloaded";
}

TEST_F(PrtPreviewTest, AGridIsShownInLandscapeWithItsTitleAndNumbers) {
  Look();
  PrtPreview().DisplayGridLandscape(grid, u"Liste des disques.");
  EXPECT_EQ(previews, 1);
  EXPECT_EQ(Paper(0).width, 16838);
  EXPECT_EQ(pages.title, u"Liste des disques.");
  EXPECT_EQ(application, u"Trovex");
  EXPECT_THAT(Lines(0), ElementsAre(u"Liste des disques.", u"T0", u"T1", u"T2", u"T3"));
  EXPECT_EQ(FontOfText(1), (Font{u"Times New Roman", 9.75, true}));
  EXPECT_THAT(Foot(0), ElementsAre(u"Page 1"));
  EXPECT_THAT(Head(0), IsEmpty());
}

TEST_F(PrtPreviewTest, AGridWithoutATitleHasTheUsualOne) {
  Look();
  PrtPreview().DisplayGrid(grid);
  EXPECT_EQ(Lines(0)[0], u"Tableau des données");
  EXPECT_EQ(Paper(0).width, 11906) << "and stands upright";
}

TEST_F(PrtPreviewTest, GridsOfDataAreShownAlike) {
  Look();
  PrtPreview().DisplayGridLandscape(grid, u"t", u"l", 12);
  const std::vector<Text> lines = Lines(0);
  const Extent paper = Paper(0);
  Look();
  PrtPreview().DisplayDBGridLandscape(grid, u"t", u"l", 12);
  EXPECT_EQ(Lines(0), lines);
  EXPECT_EQ(Paper(0).width, paper.width);
  Look();
  PrtPreview().DisplayDBGridPortrait(grid, u"t", u"l", 12, u"Arial");
  EXPECT_EQ(Paper(0).width, paper.height);
  EXPECT_EQ(FontOfText(1), (Font{u"Arial", 12, true}));
  Look();
  PrtPreview().DisplayGridPortrait(grid, u"t", u"l", 12, u"Arial");
  EXPECT_EQ(FontOfText(1), (Font{u"Arial", 12, true}));
}

TEST_F(PrtPreviewTest, ASecondGridOfTheSameObjectChangesNeitherOrientationNorFontsNorLabel) {
  PrtPreview document;
  Look();
  document.DisplayGrid(grid, u"un", u"étiquette", 2, 12, u"Arial");
  Look();
  document.DisplayGrid(grid, u"deux", u"autre", 1, 8, u"Courier New");
  EXPECT_EQ(Paper(0).width, 16838);
  EXPECT_EQ(FontOfText(1), (Font{u"Arial", 12, true}));
  EXPECT_THAT(Head(0), ElementsAre(u"étiquette"));
  EXPECT_EQ(Lines(0)[0], u"deux");
}

TEST_F(PrtPreviewTest, DisplayLetsTheNextDocumentBeSetUpAnew) {
  PrtPreview document;
  box.SetText(u"x");
  Look();
  document.DisplayTextBox(box, {}, {}, {}, {}, {}, 2);
  EXPECT_EQ(Paper(0).width, 16838);
  Look();
  document.DisplayTextBoxPortrait(box);
  EXPECT_EQ(Paper(0).width, 11906);
  Look();
  document.DisplayTextBoxLandscape(box);
  EXPECT_EQ(Paper(0).width, 16838);
}

TEST_F(PrtPreviewTest, TheSurfaceSpeaksFrench) {
  box.SetText(u"x");
  Look();
  PrtPreview().DisplayTextBox(box);
  EXPECT_EQ(texts, &kFrenchPreview);
  EXPECT_EQ(texts->page + u"1" + texts->of + u"2", u"Page 1 sur 2");
}

TEST_F(PrtPreviewTest, AnErrorWhileThePageIsSetUpIsToldAndTheDocumentGoesOn) {
  view.Answer(BoxAnswer::kOk);
  Look();
  PrtPreview().DisplayGrid(grid, u"t", {}, 7);
  EXPECT_TRUE(LastBox().starts_with(u"Erreur d'initialisation pour l'aperçu avant impression"));
  EXPECT_EQ(Lines(0)[0], u"t");
}

TEST_F(PrtPreviewTest, ATextBoxWithoutATitleHasNoHeading) {
  box.SetText(u"un\r\ndeux");
  Look();
  PrtPreview().DisplayTextBoxPortrait(box);
  EXPECT_THAT(Lines(0), ElementsAre(u"un", u"deux"));
  EXPECT_THAT(Head(0), IsEmpty());
  EXPECT_EQ(FontOfText(0), (Font{u"Times New Roman", 9.75}));
  EXPECT_THAT(Foot(0), ElementsAre(u"Page 1"));
}

TEST_F(PrtPreviewTest, ATextBoxHasItsTitleInBold14) {
  box.SetText(u"un");
  Look();
  PrtPreview().DisplayTextBox(box, u"Titre", kItalic, 1, 12, u"Arial", 1, 0xFF);
  EXPECT_THAT(Lines(0), ElementsAre(u"Titre", u"un"));
  EXPECT_EQ(FontOfText(0), (Font{u"Arial", 14, true, false}));
  EXPECT_EQ(FontOfText(1), (Font{u"Arial", 12, false, true}));
  EXPECT_EQ(Body(0)[1].colour, 0xFFu);
  EXPECT_GT(Body(0)[1].x, kMargin + kPortraitWidth - 400);
  EXPECT_THAT(Head(0), ElementsAre(u"Titre"));
}

TEST_F(PrtPreviewTest, AnEmptyLineAndALineOfBlanksPrintAsALineEnd) {
  Surface();
  PrtPreview document;
  Surface();
  box.SetText(u"un\r\n\r\ntrois\r\n   \r\ncinq");
  document.PutTextBox(box);
  Show(document);
  ASSERT_THAT(Lines(0), ElementsAre(u"un", u"trois", u"cinq"));
  EXPECT_NEAR(Body(0)[2].baseline - Body(0)[0].baseline, 4 * kLine, 0.01);
}

TEST_F(PrtPreviewTest, AnEmptyTextShowsAnEmptyPage) {
  Look();
  PrtPreview().DisplayTextBoxPortrait(box);
  ASSERT_EQ(pages.pages.size(), 1u);
  EXPECT_THAT(Lines(0), IsEmpty());
}

TEST_F(PrtPreviewTest, ATextWhoseLastLineIsBlanksNeverRunsOutAndEndsWithTheErrorBox) {
  box.SetText(u"un\r\n   ");
  view.Answer(BoxAnswer::kOk);
  Look();
  PrtPreview().DisplayTextBoxPortrait(box);
  EXPECT_EQ(LastBox(), u"Le document est trop long : il s'arrête au bas de la page 10000.");
  EXPECT_EQ(pages.pages.size(), 10000u);
  EXPECT_THAT(Lines(0), ElementsAre(u"un"));
  EXPECT_THAT(Lines(9999), IsEmpty());
}

TEST_F(PrtPreviewTest, AGridOfTooManyPagesEndsWithTheErrorBoxToo) {
  grid.SetRows(400);
  for (int row = 1; row < 400; ++row) {
    grid.SetRow(row);
    grid.SetCol(0);
    grid.SetText(Text(32000, u'M'));
  }
  view.Answer(BoxAnswer::kOk);
  Look();
  PrtPreview().DisplayGridLandscape(grid, u"t", {}, 24);
  EXPECT_EQ(LastBox(), u"Le document est trop long : il s'arrête au bas de la page 10000.");
  EXPECT_EQ(pages.pages.size(), 10000u);
}

TEST_F(PrtPreviewTest, ALineTooLongToBeTakenOffIsReportedOnce) {
  box.SetText(u"un\r\n" + Text(40000, u'x') + u"\r\ntrois");
  view.Answer(BoxAnswer::kOk);
  Look();
  PrtPreview().DisplayTextBoxPortrait(box);
  EXPECT_TRUE(LastBox().starts_with(u"Erreur lors de récupération sur la chaîne :"));
  EXPECT_EQ(BoxCount(), 1u);
  EXPECT_THAT(Lines(0), ElementsAre(u"un"));
}

TEST_F(PrtPreviewTest, FlagTypeChoosesTheStyles) {
  struct Expected {
    int type;
    bool bold, italic, underline;
  };
  for (const Expected& expected : {Expected{1, true, false, false}, Expected{3, false, true, false},
                                   Expected{4, true, true, false}, Expected{5, false, false, true},
                                   Expected{6, true, false, true}, Expected{8, false, true, true},
                                   Expected{9, true, true, true}}) {
    PrtPreview document;
    document.PutString(u"abc", expected.type);
    document.PutString(u"def");
    Show(document);
    EXPECT_EQ(FontOfText(0).bold, expected.bold) << expected.type;
    EXPECT_EQ(FontOfText(0).italic, expected.italic) << expected.type;
    EXPECT_EQ(pages.pages[0].lines.size(), expected.underline ? 1u : 0u) << expected.type;
    EXPECT_EQ(FontOfText(1), (Font{u"Times New Roman", 9.75})) << "styles end with the text";
  }
}

TEST_F(PrtPreviewTest, FlagType2And7ChangeNothingLikeAnyValueOutside1To9) {
  for (const int type : kPlainStyles) {
    PrtPreview document;
    MyPrintPreview().SetFontBold(true);
    document.PutString(u"abc", type);
    document.PutString(u"def");
    Show(document);
    EXPECT_EQ(FontOfText(0), (Font{u"Times New Roman", 9.75, true})) << type;
    EXPECT_EQ(FontOfText(1), (Font{u"Times New Roman", 9.75, true})) << type;
    EXPECT_TRUE(pages.pages[0].lines.empty()) << type;
  }
}

TEST_F(PrtPreviewTest, FontSizeAndColourComeBackBehindAText) {
  PrtPreview document;
  document.PutString(u"abc", {}, {}, 20, u"Arial", 0xFF0000);
  document.PutString(u"def");
  Show(document);
  EXPECT_EQ(FontOfText(0), (Font{u"Arial", 20}));
  EXPECT_EQ(Body(0)[0].colour, 0xFF0000u);
  EXPECT_EQ(FontOfText(1), (Font{u"Times New Roman", 9.75}));
  EXPECT_EQ(Body(0)[1].colour, 0u);
}

TEST_F(PrtPreviewTest, TheSize0AndABlankNameAreIgnored) {
  PrtPreview document;
  document.SetFontSize(0);
  document.SetFontName(u"   ");
  document.SetFontName(u"");
  EXPECT_EQ(MyPrintPreview().FontSize(), 9.75);
  EXPECT_EQ(MyPrintPreview().FontName(), u"Times New Roman");
  document.SetFontSize(12);
  document.SetFontName(u"Arial");
  EXPECT_EQ(MyPrintPreview().FontSize(), 12);
  EXPECT_EQ(MyPrintPreview().FontName(), u"Arial");
}

TEST_F(PrtPreviewTest, AnEmptyLineStandsBehindOrBeforeAText) {
  PrtPreview document;
  Surface();
  document.PutStringWithCrlfNext(u"un");
  document.PutStringWithCrlfPrev(u"deux");
  Show(document);
  EXPECT_NEAR(Body(0)[1].baseline - Body(0)[0].baseline, 3 * kLine, 0.01);
}

TEST_F(PrtPreviewTest, APlaceSetWithOneCoordinateLeavesTheOther) {
  PrtPreview document;
  document.SetCurrentCmXY(2, 3);
  EXPECT_EQ(document.GetCurrentCoX(), 1134);
  EXPECT_EQ(document.GetCurrentCoY(), 1701);
  document.SetCurrentCmXY(1);
  EXPECT_EQ(document.GetCurrentCoX(), 567);
  EXPECT_EQ(document.GetCurrentCoY(), 1701);
  document.SetCurrentCmXY({}, 1);
  EXPECT_EQ(document.GetCurrentCoX(), 567);
  EXPECT_DOUBLE_EQ(document.GetCurrentCmY(), 1);
  document.SetCurrentCoXY({}, 100);
  EXPECT_DOUBLE_EQ(document.GetCurrentCmX(), 1);
  EXPECT_EQ(document.GetCurrentCoY(), 100);
}

TEST_F(PrtPreviewTest, APlaceBeyond16BitsIsAnOverflow) {
  PrtPreview document;
  document.SetCurrentCoXY(32767, 40000);
  EXPECT_EQ(document.GetCurrentCoX(), 32767);
  EXPECT_THROW(document.GetCurrentCoY(), RuntimeError);
}

TEST_F(PrtPreviewTest, LabelsAndValuesStandBesideEachOther) {
  PrtPreview document;
  Surface();
  document.PutItemsString(u"A :", u"a", u"C :", u"c", u"E :", u"e");
  document.PutString(u"suite");
  Show(document);
  const std::vector<Seen> body = Body(0);
  ASSERT_THAT(Lines(0), ElementsAre(u"    A :", u"a", u"        C :", u" c", u"        E :", u" e",
                                    u"suite"));
  const double places[] = {0, 8, 9, 21, 22, 34};
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_NEAR(body[i].x, kMargin + places[i] * kChar, 0.01) << i;
    EXPECT_EQ(FontOf(body[i]).bold, i % 2 == 0) << i;
    EXPECT_EQ(body[i].baseline, body[0].baseline);
  }
  EXPECT_DOUBLE_EQ(body[6].x, kMargin);
  EXPECT_NEAR(body[6].baseline - body[0].baseline, kLine, 0.01);
}

TEST_F(PrtPreviewTest, WithoutAFirstLabelTheNextHasTheShortPad) {
  PrtPreview document;
  Surface();
  document.PutItemsString(u"", u"", u"C :", {}, u"E :");
  Show(document);
  EXPECT_THAT(Lines(0), ElementsAre(u"    C :", u"        E :"));
}

TEST_F(PrtPreviewTest, LinesOfItemsFlowOntoTheNextPageTogether) {
  PrtPreview document;
  Surface();
  for (std::size_t i = 0; i <= kLinesAPage; ++i) document.PutItemsString(u"A", u"a", u"C", u"c");
  Show(document);
  ASSERT_EQ(pages.pages.size(), 2u);
  EXPECT_EQ(Body(0).size(), 4 * kLinesAPage);
  EXPECT_EQ(Body(1).size(), 4u);
}

TEST_F(PrtPreviewTest, APlaceThatIsGivenLeavesAFullPageInHand) {
  PrtPreview document;
  Surface();
  for (std::size_t i = 0; i < kLinesAPage; ++i) document.PutString(u"A");
  document.PutItemsStringCmXY(u"Nom", u"valeur", 2, 5);
  Show(document);
  EXPECT_EQ(pages.pages.size(), 1u);
}

TEST_F(PrtPreviewTest, ALabelAtAPlaceHasItsValueBehindIt) {
  PrtPreview document;
  Surface();
  document.PutItemsStringCmXY(u"Nom", u"valeur", 2, 5);
  Show(document);
  const std::vector<Seen> body = Body(0);
  ASSERT_THAT(Lines(0), ElementsAre(u"Nom", u"valeur"));
  EXPECT_DOUBLE_EQ(body[0].x, kMargin + 1134);
  EXPECT_NEAR(body[1].x, kMargin + 1134 + 3 * kChar, 1);
  EXPECT_NEAR(body[0].baseline, kMargin + 2835 + 0.833 * 200, 0.01);
  EXPECT_TRUE(FontOf(body[0]).bold);
  EXPECT_FALSE(FontOf(body[1]).bold);
}

TEST_F(PrtPreviewTest, APlaceIsGoneToThoughNothingStandsThere) {
  PrtPreview document;
  Surface();
  document.PutItemsStringCmXY(u"", u"", 2, 5);
  EXPECT_NEAR(document.GetCurrentCmX(), 2, 0.01);
  EXPECT_NEAR(document.GetCurrentCmY(), 5, 0.01);
}

TEST_F(PrtPreviewTest, AValueWithoutALabelStandsAtTheLeftEdge) {
  PrtPreview document;
  document.PutItemsStringCmXY(u"", u"valeur", 7);
  Show(document);
  EXPECT_DOUBLE_EQ(Body(0)[0].x, kMargin);
}

TEST_F(PrtPreviewTest, ALineIsCentredOnThePageByDefault) {
  PrtPreview document;
  MyPrintPreview().SetForeColor(0x80);
  document.PutLine(2, 3);
  document.PutLine(1, 1, 4, 5, 0xFF, 30);
  Show(document);
  const std::vector<PageLine>& lines = pages.pages[0].lines;
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_DOUBLE_EQ(lines[0].x1, kMargin + 1134);
  EXPECT_NEAR(lines[0].x2, kMargin + kPortraitWidth - 1134, 1);
  EXPECT_EQ(lines[0].y1, lines[0].y2);
  EXPECT_EQ(lines[0].colour, 0x80u);
  EXPECT_EQ(lines[0].width, 15);
  EXPECT_DOUBLE_EQ(lines[1].x2, kMargin + 4 * 567);
  EXPECT_DOUBLE_EQ(lines[1].y2, kMargin + 5 * 567);
  EXPECT_EQ(lines[1].colour, 0xFFu);
  EXPECT_EQ(lines[1].width, 30);
}

TEST_F(PrtPreviewTest, ANewPageIsNumberedAsThePagesBeforeUnlessItIsTold) {
  PrtPreview document;
  document.PutString(u"un");
  document.PutNewPage();
  document.PutNewPage(true);
  document.PutNewPage();
  document.PutNewPage(false);
  Show(document);
  ASSERT_EQ(pages.pages.size(), 5u);
  EXPECT_THAT(Foot(0), IsEmpty());
  EXPECT_THAT(Foot(1), IsEmpty());
  EXPECT_THAT(Foot(2), ElementsAre(u"Page 3"));
  EXPECT_THAT(Foot(3), ElementsAre(u"Page 4"));
  EXPECT_THAT(Foot(4), IsEmpty());
}

// A bitmap of two by two pixels: red and green above, blue and white below.
std::string TinyBitmap() {
  std::string bytes = "BM";
  const auto number = [&](unsigned value, int size) {
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
  };
  number(70, 4), number(0, 4), number(54, 4);              // file size, reserved, pixels
  number(40, 4), number(2, 4), number(2, 4);               // header, width, height
  number(1, 2), number(24, 2), number(0, 4);               // planes, bits, compression
  for (int i = 0; i < 5; ++i) number(0, 4);                // the rest of the header
  number(0xFF0000, 3), number(0xFFFFFF, 3), number(0, 2);  // the lower row, padded
  number(0x0000FF, 3), number(0x00FF00, 3), number(0, 2);
  std::swap(bytes[54], bytes[56]);
  std::swap(bytes[62], bytes[64]);
  return bytes;
}

TEST_F(PrtPreviewTest, AnImageStandsAtItsPlace) {
  disc.File("IMAGE.BMP", TinyBitmap());
  Look();
  PrtPreview().DisplayImage(u"D:\\IMAGE.BMP", u"Titre", 2, 1, 2);
  ASSERT_EQ(pages.pages[0].images.size(), 1u);
  const PageImage& image = pages.pages[0].images[0];
  EXPECT_EQ(image.x, kMargin + 567);
  EXPECT_EQ(image.y, kMargin + 1134);
  EXPECT_EQ(image.size.width, 30);
  EXPECT_THAT(Head(0), ElementsAre(u"Titre"));
  EXPECT_EQ(pages.bitmaps[0].width, 2);
}

TEST_F(PrtPreviewTest, AMissingImageGivesAPageWithoutItAndNoMessage) {
  Look();
  PrtPreview().DisplayImage(u"D:\\ABSENT.BMP");
  EXPECT_THAT(pages.pages[0].images, IsEmpty());
}

TEST_F(PrtPreviewTest, AnImageFileThatIsNoneIsNamed) {
  disc.File("FAUX.BMP", "BM, mais rien d'autre");
  view.Answer(BoxAnswer::kOk);
  Look();
  PrtPreview().DisplayImage(u"D:\\FAUX.BMP");
  EXPECT_EQ(LastBox(), u"L'image est illisible : D:\\FAUX.BMP");
  EXPECT_THAT(pages.pages[0].images, IsEmpty());
}

TEST_F(PrtPreviewTest, ABitmapCutShortAnywhereIsNone) {
  const std::string whole = TinyBitmap();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    disc.File("COUPE.BMP", whole.substr(0, size));
    view.Answer(BoxAnswer::kOk);
    MyPrintPreview().DrawImage(u"D:\\COUPE.BMP", 0, 0);
  }
  EXPECT_EQ(BoxCount(), whole.size());
}

TEST_F(PrtPreviewTest, TheUserMaySaveThePagesAsPdf) {
  view.AnswerFile(u"D:\\LISTE.PDF");
  view.AnswerPreview([](const Preview& preview) { preview.on_save(); });
  PrtPreview().DisplayGridLandscape(grid, u"t");
  EXPECT_TRUE(bFichierExiste(u"D:\\LISTE.PDF"));
  EXPECT_THAT(view.FileDialogs(), ElementsAre(u"Enregistrer le document au format PDF"));
  view.AnswerFile({});
  view.AnswerPreview([](const Preview& preview) { preview.on_save(); });
  PrtPreview().DisplayGridLandscape(grid, u"t");
}

TEST_F(PrtPreviewTest, WhatFailsInThePreviewIsToldByTheErrorBox) {
  view.Answer(BoxAnswer::kOk);
  view.AnswerPreview([](const Preview& preview) { preview.on_failure(preview.texts.no_printer); });
  PrtPreview().DisplayGridLandscape(grid, u"t");
  EXPECT_EQ(LastBox(), u"Aucune imprimante n'est installée sur cet ordinateur.");
}

}  // namespace
}  // namespace trovex::test
