#include "Screen/WindowCommands.h"
#include "ScreenTest.h"
#include "Ui/Colour.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

using WindowTest = ScreenTest;

TEST_F(WindowTest, LoadingCentresAndNamesTheWindow) {
  EXPECT_EQ(form.GetPlace(), (Place{2167.5, 1845, 11025, 7830}));
  EXPECT_EQ(form.Caption(),
            u"Trovex 1.0.0 : Recherche les procédures d'installation, les exécutables et les "
            u"archives Zip à partir d'un répertoire.");
  EXPECT_TRUE(form.Sizable());
  EXPECT_EQ(form.BackColor(), Rgb(192, 192, 255));
}

TEST_F(WindowTest, LoadingLeavesTheWindowBusyUntilItIsFirstActivated) {
  EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
  EXPECT_EQ(Help(), u"Traitement en cours, patientez s.v.p");
  form.Show();
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(Help(), u"");
}

TEST_F(WindowTest, F1OpensTheHelpBesideTheProgram) {
  disc.File("PROG/TROVEX.HLP", "?");
  form.on_key_down(kKeyF1);
  form.on_key_down(kKeyEnter);
  EXPECT_THAT(view.Helps(), ElementsAre(HeadlessView::HelpShown{u"D:\\PROG\\TROVEX.HLP", 0, u""}));
}

TEST_F(WindowTest, LoadingWritesTheTitlesOfEmptyTables) {
  for (int table = 0; table < kTableCount; ++table) {
    const Grid& grid = form.GridLogiciel(table);
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Cell(1, 2), u"");
    EXPECT_EQ(grid.Cell(0, 2), u" Fichier");
  }
  EXPECT_EQ(form.GridLogiciel(0).Cell(0, 3), u" Version");
  EXPECT_EQ(form.GridLogiciel(2).Cell(0, 3), u" Date");
}

TEST_F(WindowTest, TheWindowOpensWhereTheProgramStands) {
  EXPECT_EQ(form.ListeRepertoire.Path(), u"D:\\");
  EXPECT_EQ(form.ListeDrive.Drive(), u"d:");
}

TEST_F(WindowTest, WhatHidesAtFirst) {
  EXPECT_EQ(Pane(), "");
  EXPECT_TRUE(form.LabelInfo(1).Visible());
}

TEST_F(WindowTest, LoadingLaysTheSmallestWindowOut) {
  EXPECT_EQ(form.ShapeOmbre(0).Left(), 9915);
  EXPECT_EQ(form.Quitter.Left(), 9840);
  EXPECT_EQ(form.ZoneDesTableaux.Width(), 10845);
  EXPECT_EQ(form.TextInfo(6).Left(), 10170);
  EXPECT_EQ(form.ListFichier.Height(), 1260);
}

TEST_F(WindowTest, AGrowingWindowLaysOutByNumbers) {
  form.Resize(12225, 9030);  // 12105 by 8610 within
  EXPECT_EQ(form.ShapeOmbre(0).GetPlace(), (Place{11115, 150, 990, 825}));
  EXPECT_EQ(form.Quitter.GetPlace(), (Place{11040, 75, 990, 840}));
  EXPECT_EQ(form.Get<Line>(u"Line1", 0).X2(), 12075);
  EXPECT_EQ(form.ZoneDesTableaux.GetPlace(), (Place{30, 2295, 12045, 3165}));
  EXPECT_EQ(form.TextInfo(6).GetPlace(), (Place{11370, 2295, 705, 285}));
  EXPECT_EQ(form.IconeFichier.GetPlace(), (Place{11400, 1395, 540, 540}));
  for (int i = 1; i <= 5; ++i) EXPECT_EQ(form.TextInfo(i).Width(), 6795) << i;
  EXPECT_EQ(form.ListFichier.GetPlace(), (Place{75, 5835, 2415, 2460}));
  EXPECT_EQ(form.TextInfo(0).GetPlace(), (Place{2550, 5850, 9495, 2460}));
  EXPECT_EQ(form.PanelAide.GetPlace(), (Place{0, 8295, 12105, 315}));
}

TEST_F(WindowTest, OnlyTheLastButtonAndShadowFollowTheRightEdge) {
  const double left[] = {2700, 4050, 5175, 6300, 7545, 8670};
  form.Resize(14025, 7830);
  const Button* buttons[] = {&form.Explorer, &form.ConvertHTML,   &form.Exporter,
                             &form.Imprimer, &form.CommandOption, &form.Apropos};
  for (std::size_t i = 0; i < std::size(left); ++i) EXPECT_EQ(buttons[i]->Left(), left[i]);
  EXPECT_EQ(form.ShapeOmbre(2).Left(), 2775);
  EXPECT_EQ(form.ShapeOmbre(1).Left(), 8745);
}

TEST_F(WindowTest, TablesGrowInWidthAndOnlyTheVisibleOne) {
  form.Resize(12225, 9030);
  EXPECT_EQ(form.GridLogiciel(0).GetPlace(), (Place{75, 375, 11895, 2745}));
  EXPECT_EQ(form.GridLogiciel(1).GetPlace(), (Place{75, 375, 8775, 2745}));
  EXPECT_EQ(form.GridLogiciel(2).GetPlace(), (Place{75, 375, 8775, 2745}));
}

TEST_F(WindowTest, AHiddenPaneIsResizedAllTheSame) {
  form.Resize(11025, 10830);
  EXPECT_FALSE(form.TextInfo(0).Visible());
  EXPECT_EQ(form.TextInfo(0).Height(), 4260);
}

TEST_F(WindowTest, AWindowTooSmallSnapsBackByAResizeEventEach) {
  int events = 0;
  form.on_resize = [&] {
    ++events;
    Form_Resize(form);
  };
  form.Resize(9000, 6000);
  EXPECT_EQ(form.Width(), 11025);
  EXPECT_EQ(form.Height(), 7830);
  EXPECT_EQ(events, 3);
}

TEST_F(WindowTest, AWindowTooNarrowKeepsItsHeight) {
  form.Resize(11024, 8000);
  EXPECT_EQ(form.Width(), 11025);
  EXPECT_EQ(form.Height(), 8000);
  EXPECT_EQ(form.ListFichier.Height(), 1430);
}

TEST_F(WindowTest, MinimisingAndRestoringChangesNoLayout) {
  form.Resize(12225, 9030);
  const Place before = form.TextInfo(0).GetPlace();
  form.SetMinimised(true);
  form.Resize(2400, 420);
  EXPECT_EQ(form.Width(), 2400) << "a minimised window does not snap back";
  EXPECT_EQ(form.TextInfo(0).GetPlace(), before);
  form.SetMinimised(false);
  form.Resize(12225, 9030);
  EXPECT_EQ(form.TextInfo(0).GetPlace(), before);
  EXPECT_EQ(form.ZoneDesTableaux.Width(), 12045);
}

TEST_F(WindowTest, PaintingDrawsTheThreeReliefLines) {
  view.Forget();
  Raise(form.on_paint);
  constexpr unsigned kShadow = kButtonShadowColour, kLight = kHighlightColour;
  EXPECT_THAT(
      view.Strokes(),
      ElementsAre(Stroke{2770, 990, 2770, 2180, kShadow}, Stroke{2780, 990, 2780, 2180, kLight},
                  Stroke{2775, 990, 10875, 990, kShadow}, Stroke{10880, 1010, 2770, 1010, kLight},
                  Stroke{30, 2160, 2760, 2160, kShadow}, Stroke{2765, 2180, 25, 2180, kLight}));
}

TEST_F(WindowTest, ResizingDrawsTheUpperLineAgain) {
  view.Forget();
  form.Resize(12225, 9030);
  ASSERT_EQ(view.Strokes().size(), 2u);
  EXPECT_EQ(view.Strokes()[0], (Stroke{2775, 990, 12075, 990, kButtonShadowColour}));
}

TEST_F(WindowTest, TheToolBarComesFirstInTheTabOrderAndExporterLast) {
  const Control* order[] = {&form.Explorer,      &form.ConvertHTML, &form.Imprimer,
                            &form.CommandOption, &form.Apropos,     &form.Quitter};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(order[i]->TabOrder(), i);
  for (const auto& control : form.Controls()) {
    if (control.get() == &form.Exporter) continue;
    EXPECT_LT(control->TabOrder(), form.Exporter.TabOrder());
  }
}

TEST_F(WindowTest, WhatTheControlsWear) {
  for (int i = 0; i <= 6; ++i) EXPECT_EQ(form.ShapeOmbre(i).BackColor(), Rgb(128, 128, 128));
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(form.TextInfo(i).ForeColor(), Rgb(0, 0, 128));
  for (int i : {5, 6}) {
    EXPECT_EQ(form.TextInfo(i).BackColor(), Rgb(192, 192, 192));
    EXPECT_TRUE(form.TextInfo(i).GetFont().bold);
  }
  EXPECT_EQ(form.TextInfo(6).GetAlignment(), Alignment::kCentre);
  EXPECT_TRUE(form.TextInfo(0).MultiLine());
  EXPECT_EQ(form.TextInfo(0).GetFont(), (Font{u"Fixedsys", 9}));
  for (int i = 0; i < kTableCount; ++i) {
    EXPECT_EQ(form.GridLogiciel(i).GetFont(), (Font{u"Times New Roman", 9.75}));
  }
  EXPECT_TRUE(form.ListFichier.Sorted());
  EXPECT_THAT(form.ZoneDesTableaux.Captions(),
              ElementsAre(u"Setup/Install", u"Exe", u"Archive ZIP"));
}

TEST_F(WindowTest, EveryButtonAndTabHasAPicture) {
  for (const auto& control : form.Controls()) {
    const auto* button = dynamic_cast<const Button*>(control.get());
    EXPECT_TRUE(button == nullptr || !button->Picture().empty());
  }
  EXPECT_EQ(form.ZoneDesTableaux.Pictures().size(), 3u);
  EXPECT_EQ(form.ImageAppli.GetPicture().source, Picture::Source::kResource);
}

TEST_F(WindowTest, TheHelpLineHasFourPanelsAndATip) {
  std::vector<Text> keys;
  for (const StatusBar::Panel& panel : form.PanelAide.Panels()) keys.push_back(panel.key);
  EXPECT_THAT(keys, ElementsAre(u"Msg", u"Maj", u"Num", u"INSER"));
  EXPECT_EQ(form.PanelAide.ToolTip(), u"Zone d'affichage d'une aide associée à la souris");
}

TEST_F(WindowTest, QuitterUnloadsTheWindowAndEndsTheProgram) {
  int ends = 0;
  SetEndOfProgram([&] { ++ends; });
  form.Show();
  Press(form.Quitter);
  EXPECT_FALSE(form.Loaded());
  EXPECT_EQ(ends, 1);
}

TEST_F(WindowTest, ClosingByAnyMeansRunsTheShutDown) {
  disc.File("TMP/~Trvx023.tmp");
  sFichierTemp = u"D:\\TMP\\~Trvx023.tmp";
  Lib_Form();
  form.Unload();
  EXPECT_FALSE(bFichierExiste(u"D:\\TMP\\~Trvx023.tmp"));
  EXPECT_TRUE(LoadedForms().empty());
}

class DriveTest : public ScreenTest {
 protected:
  DriveTest() {
    machine.drives = {u"C", u"D", u"E"};
    machine.labels[u"D"] = u"GRENIER";
    disc.Directory("JEUX/ARCADE");
    machine.ChangeDirectory(u"D:\\JEUX\\ARCADE");
    form.ListeDrive.Reread();
    form.ListeRepertoire.SetPath(u"D:\\JEUX\\ARCADE");
  }
};

TEST_F(DriveTest, ADriveThatIsChosenShowsItsDirectories) {
  form.ListeDrive.SetListIndex(0);
  EXPECT_EQ(form.ListeDrive.Drive(), u"c:");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"C:\\");
}

TEST_F(DriveTest, ADriveIsShownFromItsRootThoughTheProgramStandsDeeper) {
  form.ListeDrive.SetListIndex(0);
  form.ListeDrive.SetListIndex(1);
  EXPECT_EQ(machine.GetCurrentDirectory(), u"D:\\JEUX\\ARCADE");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"D:\\");
}

TEST_F(DriveTest, AnEmptyCdRomDriveShowsTheBoxAndTheFormerDriveComesBack) {
  view.Answer(BoxAnswer::kOk);
  form.ListeDrive.SetListIndex(2);
  EXPECT_EQ(BoxMessage(),
            u"Erreur lors du changement de lecteur.\r\n\r\nS'il s'agit d'un lecteur de CD-ROM ou "
            u"d'un lecteur ammovible,\r\nassurez-vous que le lecteur ne soit pas vide.");
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kErreur);
  EXPECT_EQ(BoxError(), 68);
  EXPECT_EQ(form.ListeDrive.Drive(), u"d: [GRENIER]");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"D:\\");
}

TEST_F(DriveTest, ADriveThatWasRemovedMeanwhileCannotComeBackEither) {
  form.ListeDrive.SetListIndex(0);
  machine.gone = {u"D:"};
  view.Answer(BoxAnswer::kOk);
  form.ListeDrive.SetListIndex(1);
  EXPECT_EQ(form.ListeDrive.Drive(), u"c:");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"C:\\");
}

// What makes the window look at the drives afresh: a device that came or went, its becoming active,
// the drive list that drops down, and the same drive chosen again.
class ChangedDiscTest : public DriveTest {
 protected:
  void ChangeTheDisc() {
    machine.labels[u"D"] = u"CAVE";
    disc.Remove("JEUX");
    disc.Directory("UTIL");
  }
  void ExpectTheNewDisc() {
    EXPECT_EQ(form.ListeDrive.Drive(), u"d: [CAVE]");
    EXPECT_EQ(form.ListeRepertoire.Path(), u"D:\\");
    EXPECT_EQ(form.ListeRepertoire.List(0), u"D:\\UTIL");
    EXPECT_EQ(BoxCount(), 0u);
  }
};

TEST_F(ChangedDiscTest, IsReadAfreshWhenTheDrivesMayHaveChanged) {
  ChangeTheDisc();
  Raise(form.on_drives_changed);
  ExpectTheNewDisc();
}

TEST_F(ChangedDiscTest, IsReadAfreshWhenTheDriveListDropsDown) {
  ChangeTheDisc();
  Raise(form.ListeDrive.on_drop_down);
  ExpectTheNewDisc();
}

TEST_F(ChangedDiscTest, IsReadAfreshWhenTheSameDriveIsChosenAgain) {
  ChangeTheDisc();
  form.ListeDrive.Choose(form.ListeDrive.ListIndex());
  ExpectTheNewDisc();
}

TEST_F(ChangedDiscTest, ADriveWithoutADiscShowsNoBox) {
  machine.gone = {u"D:"};
  machine.labels.clear();
  Raise(form.on_drives_changed);
  form.ListeDrive.Choose(form.ListeDrive.ListIndex());
  EXPECT_EQ(form.ListeDrive.Drive(), u"d:");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"D:\\");
  EXPECT_EQ(form.ListeRepertoire.ListCount(), 0);
  EXPECT_EQ(BoxCount(), 0u);
}

TEST_F(ChangedDiscTest, AFloppyThatIsChosenTellsItsLabel) {
  machine.drives.insert(u"A");
  machine.ready.insert(u"A");
  machine.types[u"A"] = DriveType::kRemovable;
  machine.labels[u"A"] = u"DISQUETTE";
  Raise(form.on_drives_changed);
  EXPECT_EQ(form.ListeDrive.List(0), u"a:");
  form.ListeDrive.Choose(0);
  EXPECT_EQ(form.ListeDrive.Drive(), u"a: [DISQUETTE]");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"A:\\");
}

}  // namespace
}  // namespace trovex::test
