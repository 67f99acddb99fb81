#include "Scanner/zFileInfo.h"
#include "ScreenTest.h"

namespace trovex::test {
namespace {

const VersionStrings kRecord = {{"CompanyName", "Atelier Cornemousse"},
                                {"FileDescription", "Jeu de la cornemuse"},
                                {"FileVersion", "1.03"},
                                {"InternalName", "CORNEM"},
                                {"LegalCopyright", "(c) 1995 A. C."},
                                {"ProductName", "Cornemousse"}};

class RowInspectorTest : public ScreenTest {
 protected:
  RowInspectorTest() {
    form.Show();
    Program("JEU/JEU.EXE", kRecord);
  }

  // Panes full of what an earlier row left.
  void FillPanes() {
    form.ListFichier.AddItem(u"Ancien.txt");
    for (int i = 0; i <= 5; ++i) form.TextInfo(i).SetText(u"ancien");
    form.PrintTexte.SetVisible(true);
    form.ImageSelect.SetVisible(true);
    form.TextInfo(0).SetVisible(true);
    form.LabelInfo(2).SetVisible(true);
    form.IconeFichier.SetPicture({Picture::Source::kResource, u"ancien"});
  }
  void ExpectEmptyPanes() {
    EXPECT_TRUE(Companions().empty());
    for (int i = 0; i <= 5; ++i) EXPECT_EQ(Info(i), u"") << i;
    EXPECT_EQ(Pane(), "");
    EXPECT_EQ(form.IconeFichier.GetPicture(), Picture());
  }
};

TEST_F(RowInspectorTest, AClickFillsTheDetailBoxes) {
  Inspect(1, u" D:\\Jeu", u" Jeu.exe");
  EXPECT_EQ(Info(5), u"D:\\Jeu\\Jeu.exe");
  EXPECT_EQ(Info(1), u"(c) 1995 A. C.");
  EXPECT_EQ(Info(2), u"CORNEM");
  EXPECT_EQ(Info(3), u"Atelier Cornemousse");
  EXPECT_EQ(Info(4), u"Cornemousse");
  EXPECT_EQ(form.ListFichier.Tag(), u"D:\\Jeu");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(Help(), u"");
}

TEST_F(RowInspectorTest, AFileInTheRootHasOneBackslash) {
  Program("X.EXE", kRecord);
  Inspect(1, u" D:\\", u" X.exe");
  EXPECT_EQ(Info(5), u"D:\\X.exe");
  EXPECT_EQ(Info(4), u"Cornemousse");
}

TEST_F(RowInspectorTest, TheWholeRowStandsHighlighted) {
  Inspect(1, u" D:\\Jeu", u" Jeu.exe");
  EXPECT_EQ(form.GridLogiciel(1).SelStartCol(), 0);
  EXPECT_EQ(form.GridLogiciel(1).SelEndCol(), 3);
}

TEST_F(RowInspectorTest, AClickOnTheTitleRowChangesNothing) {
  FillPanes();
  form.GridLogiciel(0).SetRow(0);
  Raise(form.GridLogiciel(0).on_click);
  EXPECT_EQ(Info(3), u"ancien");
  EXPECT_EQ(Companions().size(), 1u);
  EXPECT_TRUE(form.ImageSelect.Visible());
}

TEST_F(RowInspectorTest, AClickOnATableThatWasNeverFilledChangesNothing) {
  FillPanes();
  for (int table = 0; table < kTableCount; ++table) {
    ASSERT_EQ(form.GridLogiciel(table).Row(), 0) << "no row is the current one yet";
    Raise(form.GridLogiciel(table).on_click);
  }
  for (int i = 0; i <= 5; ++i) EXPECT_EQ(Info(i), u"ancien") << i;
  EXPECT_THAT(Companions(), testing::ElementsAre(u"Ancien.txt"));
  EXPECT_EQ(form.IconeFichier.GetPicture(), (Picture{Picture::Source::kResource, u"ancien"}));
}

// Its blank row is the current one then.
TEST_F(RowInspectorTest, AClickOnATableThatTheScanLeftEmptyEmptiesThePanes) {
  Scan();
  form.ZoneDesTableaux.SetTab(0);
  FillPanes();
  ASSERT_EQ(form.GridLogiciel(0).Row(), 1);
  Raise(form.GridLogiciel(0).on_click);
  ExpectEmptyPanes();
}

TEST_F(RowInspectorTest, AClickOnAnEmptyRowEmptiesThePanesWithoutHourglass) {
  FillPanes();
  form.GridLogiciel(0).SetRow(1);
  const int painted = view.Repaints(form.PanelAide);
  Raise(form.GridLogiciel(0).on_click);
  ExpectEmptyPanes();
  EXPECT_EQ(view.Repaints(form.PanelAide), painted) << "the busy text came up";
}

TEST_F(RowInspectorTest, ARowWhoseDirectoryReadsZeroLosesThatText) {
  FillPanes();
  Inspect(1, u" 0", u" Jeu.exe");
  EXPECT_EQ(form.GridLogiciel(1).Cell(1, 1), u"");
  ExpectEmptyPanes();
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(Help(), u"");
}

TEST_F(RowInspectorTest, ARowWithoutDirectoryStaysEmpty) {
  FillPanes();
  Inspect(1, u" ", u" Jeu.exe");
  ExpectEmptyPanes();
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(RowInspectorTest, AnOpenDescriptionIsCompleted) {
  Inspect(1, u" D:\\Jeu", u" Jeu.exe", u" 0 ");
  EXPECT_EQ(form.GridLogiciel(1).Cell(1, 0), u"Jeu de la cornemuse");
}

TEST_F(RowInspectorTest, AnOpenArchiveGetsItsSizeText) {
  disc.File("Z/A.ZIP", ZipArchive(123456));
  Inspect(2, u" D:\\Z", u" A.zip", u"0");
  zFileInfo info;
  info.PutFileName(u"D:\\Z\\A.zip");
  EXPECT_EQ(form.GridLogiciel(2).Cell(1, 0), info.zSizeKo());
  EXPECT_EQ(Trimmed(form.GridLogiciel(2).Cell(1, 0)), u"123");
}

TEST_F(RowInspectorTest, AnyOtherFirstColumnIsLeftAlone) {
  Inspect(1, u" D:\\Jeu", u" Jeu.exe", u"");
  EXPECT_EQ(form.GridLogiciel(1).Cell(1, 0), u"");
  Inspect(1, u" D:\\Jeu", u" Jeu.exe", u"00");
  EXPECT_EQ(form.GridLogiciel(1).Cell(1, 0), u"00");
}

TEST_F(RowInspectorTest, AVanishedFileGivesEmptyBoxesAndNoMessage) {
  Lines("JEU/LIRE.TXT", {u"Bonjour"});
  Inspect(1, u" D:\\Jeu", u" Parti.exe");
  EXPECT_EQ(Info(5), u"D:\\Jeu\\Parti.exe");
  EXPECT_EQ(Info(1) + Info(3) + Info(4), u"");
  EXPECT_EQ(Info(0), u"Bonjour") << "the rest goes on";
}

TEST_F(RowInspectorTest, ARemovedDiscGivesTheErrorBoxWithTheFile) {
  machine.gone = {u"D:"};
  view.Answer(BoxAnswer::kOk);
  Inspect(1, u" D:\\Jeu", u" Jeu.exe");
  EXPECT_EQ(BoxMessage(), u"Erreur lors de la recherche d'information sur le fichier : Jeu.exe");
  EXPECT_EQ(BoxError(), 76);
  EXPECT_EQ(Info(5), u"D:\\Jeu\\Jeu.exe") << "what was written stays";
  EXPECT_EQ(Info(1), u"");
}

TEST_F(RowInspectorTest, AVanishedDirectoryGivesTheErrorBoxAndTheNextClickStartsAfresh) {
  machine.gone = {u"D:\\JEU"};
  view.Answer(BoxAnswer::kOk);
  Inspect(1, u" D:\\Jeu", u" Jeu.exe");
  EXPECT_EQ(BoxCount(), 1u);
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(Help(), u"Traitement en cours, patientez s.v.p") << "the busy state is not ended";
  machine.gone.clear();
  ClickRow(1);
  EXPECT_EQ(Info(2), u"CORNEM");
  EXPECT_EQ(Help(), u"");
}

TEST_F(RowInspectorTest, ADirectoryThatCannotBeReadGivesTheErrorBoxWithTheFile) {
  Lines("JEU/LIRE.TXT", {u"Bonjour"});
  machine.unreadable = {u"D:\\JEU"};
  view.Answer(BoxAnswer::kOk);
  Inspect(1, u" D:\\Jeu", u" Jeu.exe");
  EXPECT_EQ(BoxMessage(), u"Erreur lors de la recherche d'information sur le fichier : Jeu.exe");
  EXPECT_EQ(BoxError(), 75);
  EXPECT_EQ(Info(5), u"D:\\Jeu\\Jeu.exe") << "what was written stays";
  EXPECT_EQ(Info(1), u"");
}

TEST_F(RowInspectorTest, ARootThatCannotBeReadGivesTheErrorBoxToo) {
  Program("X.EXE", kRecord);
  machine.unreadable = {u"D:\\"};
  view.Answer(BoxAnswer::kOk);
  Inspect(1, u" D:\\", u" X.exe");
  EXPECT_EQ(BoxError(), 75);
}

TEST_F(RowInspectorTest, PanesShowOnlyWhatTheClickLoaded) {
  FillPanes();
  Inspect(1, u" D:\\Jeu", u" Jeu.exe");
  EXPECT_EQ(Pane(), "");
  Lines("JEU/LIRE.TXT", {u"Bonjour"});
  ClickRow(1);
  EXPECT_EQ(Pane(), "text");
  disc.Remove("JEU/LIRE.TXT");
  disc.File("JEU/JEU.ICO", IconFile());
  ClickRow(1);
  EXPECT_EQ(Pane(), "icon");
  EXPECT_EQ(Info(0), u"");
}

TEST_F(RowInspectorTest, TheSameRowClickedAgainIsReadAgain) {
  Inspect(1, u" D:\\Jeu", u" Jeu.exe");
  Program("JEU/JEU.EXE", {{"CompanyName", "Un autre"}});
  ClickRow(1);
  EXPECT_EQ(Info(3), u"Un autre");
}

TEST_F(RowInspectorTest, TheTextOfTheViewerReplacesTheBusyTextWhileItLoads) {
  Lines("JEU/LIRE.TXT", {u"Bonjour"});
  std::vector<Text> told;
  view.on_repaint = [&](Control&) { told.push_back(Help()); };
  Inspect(1, u" D:\\Jeu", u" Jeu.exe");
  EXPECT_THAT(told, testing::ElementsAre(
                        u"Traitement en cours, patientez s.v.p", u"",  // the tab
                        u"Traitement en cours, patientez s.v.p",
                        u"Patientez, chargement du fichier : D:\\Jeu\\Lire.txt - 9 Octets", u""));
}

}  // namespace
}  // namespace trovex::test
