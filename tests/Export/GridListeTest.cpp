#include "Export/Lib_GridListe.h"
#include "Lib/LIB_BUSY.h"
#include "Lib/Lib_SelectDlg.h"
#include "Paper/PreviewTest.h"

namespace trovex::test {
namespace {

class GridListeTest : public PreviewTest {
 protected:
  GridListeTest() { list.Load(); }
  ~GridListeTest() override { list.Unload(); }

  Lib_GridListe list;
};

TEST_F(GridListeTest, TheFormBearsItsCaptions) {
  EXPECT_EQ(list.Caption(), u"Liste d'informations");
  EXPECT_EQ(list.cmdSelection.Caption(), u"Sélectionner");
  EXPECT_EQ(list.cmdImprimer.Caption(), u"Imprimer...");
  EXPECT_EQ(list.cmdFermer.Caption(), u"Fermer");
  EXPECT_EQ(list.cmdExporter.Caption(), u"Exporter...");
  EXPECT_EQ(list.LibelleGrid.Caption(), u"Titre");
  EXPECT_EQ(list.LibelleGrid.GetFont().name, u"Times New Roman");
}

TEST_F(GridListeTest, LoadingCentresTheFormAndSetsTheHourglassUntilItIsActive) {
  EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
  EXPECT_EQ(list.Left(), view.ScreenSize().width / 2 - list.Width() / 2);
  list.Show();
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(GridListeTest, FermerAnswers0AndHidesTheForm) {
  list.Show();
  list.cmdFermer.Press();
  EXPECT_EQ(list.Reponse.Tag(), u"0");
  EXPECT_FALSE(list.Visible());
  EXPECT_TRUE(list.Loaded()) << "the caller unloads it";
}

TEST_F(GridListeTest, SelectionnerAnswers1AndHidesTheForm) {
  view.AnswerForm([](Form& form) { static_cast<Lib_GridListe&>(form).cmdSelection.Press(); });
  list.ShowModal();
  EXPECT_EQ(list.Reponse.Tag(), u"1");
  EXPECT_FALSE(list.Visible());
  EXPECT_TRUE(list.Loaded());
}

TEST_F(GridListeTest, EscapeIsFermer) {
  list.Show();
  list.on_key_press(kKeyEscape);
  EXPECT_EQ(list.Reponse.Tag(), u"0");
  EXPECT_FALSE(list.Visible());
}

TEST_F(GridListeTest, ImprimerPrintsTheGridInLandscapeUnderItsTitle) {
  list.LibelleGrid.SetCaption(u"Les disques");
  list.GridListe.SetText(u"cellule");
  Look();
  list.cmdImprimer.Press();
  EXPECT_EQ(previews, 1);
  EXPECT_EQ(Paper(0).width, 16838);
  EXPECT_THAT(Lines(0), testing::ElementsAre(u"Les disques", u"cellule"));
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(GridListeTest, ExporterExportsTheGrid) {
  list.GridListe.SetText(u"cellule");
  view.AnswerForm([](Form& form) { static_cast<Lib_SelectDlg&>(form).Oui().Press(); });
  view.AnswerFile(u"D:\\LISTE.CSV");
  list.cmdExporter.Press();
  EXPECT_TRUE(bFichierExiste(u"D:\\LISTE.CSV"));
}

}  // namespace
}  // namespace trovex::test
