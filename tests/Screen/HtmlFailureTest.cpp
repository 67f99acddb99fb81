#include "Screen/ConvertHTML.h"
#include "Screen/HtmlExportTest.h"

namespace trovex::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

// --- Failures -----------------------------------------------------------------------------------

TEST_F(HtmlQuestionsTest, AFramesetFileThatCannotBeCreatedEndsTheCommand) {
  Prepare({.name = u"D:\\AUCUN\\Fichier.htm"});
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(ConvertHTML_Click(form), ExportOutcome::kFailed);
  EXPECT_EQ(BoxMessage(), u"Erreur d'écriture sur le fichier : D:\\AUCUN\\Fichier.htm");
  EXPECT_EQ(Help(), kBusy);
}

TEST_F(HtmlQuestionsTest, APageThatCannotBeCreatedEndsTheCommandAndTheFramesetStays) {
  for (const char16_t* page :
       {u"D:\\SITE\\Fichier_tableaux.htm", u"D:\\SITE\\Fichier_donnees.htm"}) {
    CloseAllFiles();
    disk.refused = page;
    Prepare({});
    view.Answer(BoxAnswer::kOk);
    EXPECT_EQ(ConvertHTML_Click(form), ExportOutcome::kFailed);
    EXPECT_EQ(BoxMessage(), u"Erreur d'écriture sur le fichier : " + Text(page));
    EXPECT_THAT(Frameset(), EndsWith("</FRAMESET></HTML>\r\n"));
    EXPECT_EQ(Help(), kBusy);
  }
}

TEST_F(HtmlQuestionsTest, ATablePageStaysOpenWhereTheDataPageCannotBeCreated) {
  disk.refused = u"D:\\SITE\\Fichier_donnees.htm";
  Prepare({});
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(ConvertHTML_Click(form), ExportOutcome::kFailed);
  EXPECT_TRUE(IsOpenForOutput(u"D:\\SITE\\Fichier_tableaux.htm"));
  EXPECT_FALSE(IsOpenForOutput(u"D:\\SITE\\Fichier.htm"));
  EXPECT_EQ(FreeFile(), 2) << "its number is still taken";
}

TEST_F(HtmlQuestionsTest, ADiskFullFromTheStartIsReportedAndTheFilesAreClosed) {
  disk.room = 0;
  Prepare({});
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(ConvertHTML_Click(form), ExportOutcome::kFailed);
  EXPECT_EQ(BoxMessage(), u"Erreur lors de la création du fichier HTML.");
  EXPECT_EQ(BoxError(), static_cast<int>(ErrorNumber::kDiskFull));
  EXPECT_EQ(FreeFile(), 1) << "every file number is free again";
  disk.room = kNever;
  Export();
  EXPECT_THAT(Tables(), EndsWith(kTableEnd));
}

TEST_F(HtmlExportTest, ADiskThatFillsUpInTheMiddleLeavesWhatWasWritten) {
  const std::string text = "Un long texte. " + std::string(20000, 'x') + "\r\n";
  for (char name = 'A'; name <= 'P'; ++name) Game("JEUX", std::string(1, name), text);
  Scan();
  form.ZoneDesTableaux.SetTab(0);
  disk.room = 150000;
  Prepare({});
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(ConvertHTML_Click(form), ExportOutcome::kFailed);
  EXPECT_EQ(BoxMessage(), u"Erreur lors de la création du fichier HTML.");
  EXPECT_EQ(BoxError(), static_cast<int>(ErrorNumber::kDiskFull));
  EXPECT_EQ(FreeFile(), 1);
  EXPECT_THAT(Frameset(), EndsWith("</FRAMESET></HTML>\r\n"));
  EXPECT_GT(Data().size(), 60000u);
  EXPECT_THAT(Data(), StartsWith(kDataHead));
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), 1) << "the tab is not restored";
  EXPECT_EQ(Help(), kBusy);
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault) << "by the error box";
}

TEST_F(HtmlExportTest, WhatIsWrittenGoesToTheDiskInPieces) {
  const std::string text = "Un long texte. " + std::string(20000, 'x') + "\r\n";
  for (char name = 'A'; name <= 'P'; ++name) Game("JEUX", std::string(1, name), text);
  Scan();
  Export();
  EXPECT_GT(Data().size(), 300000u);
  EXPECT_LT(disk.longest_write, 100000u);
}

TEST_F(HtmlExportTest, ATextTooLongForItsPositionsIsReported) {
  Game("JEUX", "DAMES", std::string(40000, 'x') + " http://exemple fin");
  Dos("VIDE/RIEN.EXE");
  Scan();
  Prepare({});
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(ConvertHTML_Click(form), ExportOutcome::kFailed);
  EXPECT_EQ(BoxMessage(), u"Erreur lors de la création du fichier HTML.");
  EXPECT_EQ(BoxError(), static_cast<int>(ErrorNumber::kOverflow));
  EXPECT_EQ(FreeFile(), 1);
  // The block was begun when the text was met.
  EXPECT_THAT(Data(), EndsWith("<TR VALIGN=TOP><TD><KBD>\r\n"));
  EXPECT_THAT(Frameset(), EndsWith("</FRAMESET></HTML>\r\n"));
}

TEST_F(HtmlExportTest, ALongTextWithoutAddressIsExportedWhole) {
  Game("JEUX", "DAMES", std::string(40000, 'x'));
  Dos("VIDE/RIEN.EXE");
  Scan();
  Export();
  EXPECT_THAT(Data(), HasSubstr("\r\n" + std::string(40000, 'x') + "\r\n</KBD>\r\n"));
}

TEST_F(HtmlQuestionsTest, SettingsThatCannotBeReadAreReportedByTheExport) {
  disc.File("SITE/FAUX.INI", "[html]\r\nhtml_car=2\r\nhtml_titre=Titre\r\n");
  sFichierIni = u"D:\\SITE\\FAUX.INI";
  Prepare({});
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(ConvertHTML_Click(form), ExportOutcome::kFailed);
  EXPECT_EQ(BoxMessage(), u"Erreur lors de la création du fichier HTML.");
  EXPECT_EQ(BoxError(), static_cast<int>(ErrorNumber::kNoSuchElement));
  EXPECT_THAT(Frameset(), EndsWith("</FRAMESET></HTML>\r\n"));
  EXPECT_EQ(FreeFile(), 1);
}

TEST_F(HtmlQuestionsTest, SettingsThatCannotBeReadEndTheProgramWhereTheOptionsAreOpened) {
  disc.File("SITE/FAUX2.INI", "[html]\r\nhtml_car=2\r\nhtml_titre=Titre\r\n");
  sFichierIni = u"D:\\SITE\\FAUX2.INI";
  EXPECT_THROW(form.CommandOption.Press(), RuntimeError);
  EXPECT_THAT(Contents("FAUX2.INI"), HasSubstr("html_titre=Titre\r\n"));
}

TEST_F(HtmlQuestionsTest, ARowWhoseDirectoryIsGoneIsExportedPlainAfterItsErrorBox) {
  machine.gone.insert(u"D:\\JEUX");
  Prepare({});
  // On the way to the tab, and when the row's turn comes.
  for (int box = 0; box < 2; ++box) view.Answer(BoxAnswer::kOk);
  view.Answer(BoxAnswer::kNo);
  Raise(form.ConvertHTML.on_click);
  EXPECT_EQ(view.Boxes()[2].style, BoxStyle::kErreur);
  EXPECT_THAT(Tables(), HasSubstr("<TD> D:\\Jeux</TD>\r\n"));
  EXPECT_THAT(Tables(), EndsWith(kTableEnd));
}

}  // namespace
}  // namespace trovex::test
