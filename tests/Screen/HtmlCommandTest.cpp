#include "Screen/ConvertHTML.h"
#include "Screen/HtmlExportTest.h"

namespace trovex::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

const Text kFileDialog = u"Désignez le nom du fichier HTML à créer";

// --- The dialogue before it ---------------------------------------------------------------------

TEST_F(HtmlQuestionsTest, TheUserIsAskedInThisOrder) {
  Export();
  EXPECT_EQ(view.FileDialogs(), std::vector<Text>{kFileDialog});
  const CommonDialog& dialog = Lib_Form().DialogueCommun();
  EXPECT_EQ(dialog.filter, u"Fichiers HTML (*.htm)|*.htm");
  EXPECT_EQ(dialog.default_extension, u".htm");
  std::vector<Text> texts;
  for (const Box& box : view.Boxes()) {
    EXPECT_EQ(box.style, BoxStyle::kQuestion);
    texts.push_back(box.text);
  }
  EXPECT_EQ(texts, (std::vector<Text>{
                       u"Souhaitez-vous exporter au format HTML tous les tableaux ?",
                       u"Une dernière question : \r\n\r\nSouhaitez-vous conserver la lettre du "
                       u"lecteur (C:, D:, etc.) dans le chemin (path) des fichiers ?",
                       u"Souhaitez-vous consulter le résultat de la génération ?"}));
}

TEST_F(HtmlQuestionsTest, ANameIsProposed) {
  view.AnswerFile(u"");  // going back leaves what was proposed
  Raise(form.ConvertHTML.on_click);
  EXPECT_EQ(Lib_Form().DialogueCommun().file_name, u"Fichier.htm");
}

TEST_F(HtmlQuestionsTest, TheTableIsChosenAmongThree) {
  view.AnswerFile(u"D:\\SITE\\Fichier.htm");
  view.Answer(BoxAnswer::kNo);
  view.AnswerForm([](Form& dialog) {
    auto& choice = dynamic_cast<Lib_SelectDlg&>(dialog);
    EXPECT_EQ(choice.Libelle().Caption(), u"Sélectionnez le tableau à exporter : ");
    EXPECT_EQ(choice.SelOptions(0).Caption(), u"Fichiers d'installation Setup/Install");
    EXPECT_EQ(choice.SelOptions(1).Caption(), u"Fichiers Exécutable");
    EXPECT_EQ(choice.SelOptions(2).Caption(), u"Archives ZIP");
    EXPECT_TRUE(choice.SelOptions(0).Value());
    choice.Annuler().Press();
  });
  Raise(form.ConvertHTML.on_click);
}

TEST_F(HtmlQuestionsTest, WithoutAFileNameNothingIsAskedAndNothingIsBusy) {
  view.AnswerFile(u"");
  EXPECT_EQ(ConvertHTML_Click(form), ExportOutcome::kCancelled);
  EXPECT_EQ(Help(), u"");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  ExpectNoFile();
}

TEST_F(HtmlQuestionsTest, CancelAtTheFirstQuestionCreatesNoFile) {
  view.AnswerFile(u"D:\\SITE\\Fichier.htm");
  view.Answer(BoxAnswer::kCancel);
  Raise(form.ConvertHTML.on_click);
  ExpectNoFile();
  EXPECT_EQ(Help(), kBusy);
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(HtmlQuestionsTest, CancelAtTheSecondQuestionCreatesNoFile) {
  view.AnswerFile(u"D:\\SITE\\Fichier.htm");
  view.Answer(BoxAnswer::kYes);
  view.Answer(BoxAnswer::kCancel);
  Raise(form.ConvertHTML.on_click);
  ExpectNoFile();
  EXPECT_EQ(Help(), kBusy);
}

TEST_F(HtmlQuestionsTest, CancelInTheChoiceCreatesNoFile) {
  view.AnswerFile(u"D:\\SITE\\Fichier.htm");
  view.Answer(BoxAnswer::kNo);
  view.AnswerForm([](Form& dialog) { dynamic_cast<Lib_SelectDlg&>(dialog).Annuler().Press(); });
  Raise(form.ConvertHTML.on_click);
  ExpectNoFile();
  EXPECT_EQ(Help(), kBusy);
}

TEST_F(HtmlQuestionsTest, OnYesTheFramesetFileIsOpened) {
  Export({.look = true});
  ASSERT_EQ(machine.shelled.size(), 1u);
  EXPECT_EQ(machine.shelled[0].file, u"D:\\SITE\\Fichier.htm");
  Export();
  EXPECT_EQ(machine.shelled.size(), 1u);
}

// --- What it does to the window -----------------------------------------------------------------

TEST_F(HtmlQuestionsTest, TheTabComesBackAndTheRowsStayOnTheLast) {
  form.ZoneDesTableaux.SetTab(2);
  ClickRow(1);
  Export();
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), 2);
  EXPECT_EQ(form.GridLogiciel(1).Row(), 2);
  EXPECT_EQ(form.GridLogiciel(1).Col(), 3);
  EXPECT_EQ(Help(), u"");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(HtmlQuestionsTest, WhatTheUserDoesWhileItWritesIsLost) {
  std::vector<bool> lost;
  const auto follow = form.GridLogiciel(1).on_click;
  form.GridLogiciel(1).on_click = [&] {
    lost.push_back(view.IgnoresInput());
    follow();
  };
  Export();
  EXPECT_THAT(lost, testing::AllOf(testing::Contains(true), Not(testing::Contains(false))));
  EXPECT_FALSE(view.IgnoresInput());
}

TEST_F(HtmlQuestionsTest, AnExportThatFailsGivesTheWindowBack) {
  disk.room = 100;
  Prepare({});
  view.Answer(BoxAnswer::kOk);
  Raise(form.ConvertHTML.on_click);
  EXPECT_FALSE(view.IgnoresInput());
}

TEST_F(HtmlQuestionsTest, TheDetailsShowTheLastRowExported) {
  form.ZoneDesTableaux.SetTab(1);
  ClickRow(1);
  Export();
  EXPECT_EQ(Info(5), u"D:\\Vide\\Rien.exe");
}

TEST_F(HtmlQuestionsTest, OneTableAskedForLeavesTheOthersUntouched) {
  for (const char* name : {"A", "B", "C"}) {
    disc.File("Z/" + std::string(name) + ".ZIP", ZipArchive(5000));
    Dos("INST/" + std::string(name) + "/SETUP.EXE");
  }
  Scan();
  form.ZoneDesTableaux.SetTab(1);
  for (int other : {0, 2}) {
    Grid& grid = form.GridLogiciel(other);
    ASSERT_EQ(grid.Rows(), 4) << other;
    grid.SetRow(2);
    grid.SetCol(3);
  }
  const auto expect_untouched = [this](int other) {
    EXPECT_EQ(form.GridLogiciel(other).Row(), 2) << other;
    EXPECT_EQ(form.GridLogiciel(other).Col(), 3) << other;
  };
  std::vector<int> visited;
  const auto follow = form.ZoneDesTableaux.on_tab_click;
  form.ZoneDesTableaux.on_tab_click = [&](int previous) {
    visited.push_back(form.ZoneDesTableaux.Tab());
    follow(previous);
  };
  Export({.table = 1});
  EXPECT_EQ(visited, std::vector<int>());
  expect_untouched(0);
  expect_untouched(2);
  EXPECT_THAT(Tables(), HasSubstr("#EXECUTBALE"));
  EXPECT_THAT(Tables(), Not(HasSubstr("#SETUPINSTALL")));
  EXPECT_THAT(Tables(), Not(HasSubstr("#ZIP")));
  Export({.table = 2});
  EXPECT_EQ(visited, (std::vector<int>{2, 1}));
  expect_untouched(0);
}

TEST_F(HtmlQuestionsTest, TheMouseGivesTheButtonTheFocusAndTellsWhatItDoes) {
  Raise(form.ConvertHTML.on_mouse_move);
  EXPECT_EQ(view.Focus(), &form.ConvertHTML);
  EXPECT_EQ(Help(), u"Permet la construction de fichiers HTML à partir des données du tableau.");
}

TEST_F(HtmlQuestionsTest, TheOptionsOpenBetweenBusyAndNotBusy) {
  view.AnswerForm([this](Form& options) {
    EXPECT_EQ(Help(), kBusy);
    options.Close();
  });
  Press(form.CommandOption);
  EXPECT_EQ(Help(), u"");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

}  // namespace
}  // namespace trovex::test
