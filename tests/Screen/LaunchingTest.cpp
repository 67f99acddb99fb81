#include "Screen/Launching.h"
#include "ScreenTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LaunchingTest : public ScreenTest {
 protected:
  LaunchingTest() {
    form.Show();
    Dos("JEU/X.EXE");
    disc.File("JEU/A.ZIP", ZipArchive(50));
  }

  void DoubleClick(int table) { Raise(form.GridLogiciel(table).on_dbl_click); }
};

TEST_F(LaunchingTest, TheAnswerYesStartsTheProgramInItsDirectory) {
  Inspect(1, u" D:\\Jeu", u" X.exe");
  view.Answer(BoxAnswer::kYes);
  DoubleClick(1);
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kQuestion);
  EXPECT_EQ(LastBox(), u"Confirmez-vous l'execution du fichier ?\r\nD:\\Jeu\\X.exe");
  EXPECT_THAT(machine.started, ElementsAre(FakeShell::Started{u"D:\\Jeu\\X.exe", 1, u"D:\\Jeu"}));
  EXPECT_EQ(machine.GetCurrentDirectory(), u"D:\\");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(LaunchingTest, AnInstallProgramIsAskedForToo) {
  Dos("JEU/SETUP.EXE");
  Inspect(0, u" D:\\Jeu", u" Setup.exe");
  view.Answer(BoxAnswer::kYes);
  DoubleClick(0);
  EXPECT_EQ(machine.started.size(), 1u);
}

TEST_F(LaunchingTest, TheAnswerNoStartsNothingAndClearsTheHourglass) {
  Inspect(1, u" D:\\Jeu", u" X.exe");
  for (const BoxAnswer answer : {BoxAnswer::kNo, BoxAnswer::kCancel}) {
    view.Answer(answer);
    DoubleClick(1);
    EXPECT_THAT(machine.started, IsEmpty());
    EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
    EXPECT_EQ(Help(), u"");
  }
}

TEST_F(LaunchingTest, AProgramOfARemovedDiscFailsInSilenceAfterYes) {
  Inspect(1, u" D:\\Jeu", u" X.exe");
  machine.gone = {u"D:"};
  machine.refuses_start = true;
  view.Answer(BoxAnswer::kYes);
  DoubleClick(1);
  EXPECT_EQ(BoxCount(), 1u);
  EXPECT_THAT(machine.started, IsEmpty());
}

TEST_F(LaunchingTest, AnArchiveNeverAsks) {
  machine.programs[u"ZIP"] = u"C:\\ZIP.EXE";
  Inspect(2, u" D:\\Jeu", u" A.zip");
  DoubleClick(2);
  ASSERT_EQ(machine.started.size(), 1u);
  EXPECT_EQ(machine.started[0].command, u"C:\\ZIP.EXE \"D:\\Jeu\\A.zip\"");
}

TEST_F(LaunchingTest, AnArchiveWithoutAssociationShowsTheBox) {
  Inspect(2, u" D:\\Jeu", u" A.zip");
  view.Answer(BoxAnswer::kOk);
  DoubleClick(2);
  EXPECT_EQ(LastBox(),
            u"Ouverture impossibleD:\\Jeu\\A.zip\r\n\r\nL'extension du fichier ne possède pas "
            u"d'association vers un exécutable.");
}

TEST_F(LaunchingTest, AnEmptyRowAsksForNoNameAndThenReportsThatThereIsNone) {
  form.GridLogiciel(1).SetRow(1);
  view.Answer(BoxAnswer::kYes);
  view.Answer(BoxAnswer::kOk);
  DoubleClick(1);
  EXPECT_EQ(view.Boxes()[0].text, u"Confirmez-vous l'execution du fichier ?\r\n");
  EXPECT_EQ(LastBox(), u"Aucun nom d'exécutable n'est passé à la fonction : iExecuteShellWin()");
}

TEST_F(LaunchingTest, ThePanesAreUpToDateWhileTheQuestionStands) {
  Lines("JEU/LIRE.TXT", {u"Lisez avant"});
  Inspect(1, u" D:\\Jeu", u" X.exe");
  view.on_box = [&](const Box&) {
    EXPECT_EQ(Info(5), u"D:\\Jeu\\X.exe");
    EXPECT_EQ(Info(0), u"Lisez avant");
  };
  view.Answer(BoxAnswer::kNo);
  DoubleClickRow(1);
}

TEST_F(LaunchingTest, ATableThatDoesNotExistHasNoHelp) {
  MainMsg(u"texte d'avant");
  GridLogiciel_MouseMove(3);
  EXPECT_EQ(Help(), u"texte d'avant");
}

}  // namespace
}  // namespace trovex::test
