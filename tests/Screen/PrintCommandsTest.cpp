#include "Lib/Lib_SelectDlg.h"
#include "ScreenTest.h"
#include "Ui/Preview.h"

namespace trovex::test {
namespace {

using testing::Contains;

class PrintCommandsTest : public ScreenTest {
 protected:
  PrintCommandsTest() {
    form.Show();
    disc.File("SETUP.EXE", NeExecutable(VersionBlock8({{"FileDescription", "Installation"}})));
    disc.File("JEUX/DAMES.EXE", DosExecutable());
    disc.File("JEUX/README.TXT", "Jeu de dames\r\nSeconde ligne\r\n");
    disc.File("JEUX/DAMES.ZIP", ZipArchive(12345));
  }

  void Look() {
    view.AnswerPreview([this](const Preview& preview) {
      pages = preview.pages;
      busy_in_preview = view.GetPointer() == Pointer::kHourglass;
    });
  }
  std::vector<Text> Texts(std::size_t page = 0) const {
    std::vector<Text> texts;
    const Page& shown = pages.pages.at(page);
    for (const PageText& text : shown.texts) texts.emplace_back(shown.LettersOf(text));
    return texts;
  }
  void ExpectReady() {
    EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
    EXPECT_EQ(Help(), u"");
  }

  Pages pages;
  bool busy_in_preview = true;
};

TEST_F(PrintCommandsTest, EachTableIsPrintedInLandscapeUnderItsTitle) {
  Scan();
  const Text titles[] = {u"Liste des procédures d'installation.", u"Liste des exécutables.",
                         u"Liste des Archives ZIP."};
  const Text files[] = {u"Setup.exe", u"Dames.exe", u"Dames.zip"};
  for (int table = 0; table < kTableCount; ++table) {
    form.ZoneDesTableaux.SetTab(table);
    Look();
    Press(form.Imprimer);
    EXPECT_EQ(pages.title, titles[table]);
    EXPECT_EQ(pages.pages.at(0).paper.width, 16838);
    EXPECT_THAT(Texts(), Contains(titles[table]));
    EXPECT_THAT(Texts(), Contains(files[table]));
    EXPECT_THAT(Texts(), Contains(u"Page 1"));
  }
}

TEST_F(PrintCommandsTest, PrintingAnEmptyTableShowsTheHeaderAndAFreeLine) {
  disc.Remove("JEUX/DAMES.ZIP");
  Scan();
  form.ZoneDesTableaux.SetTab(2);
  Look();
  Raise(form.Imprimer.on_click);
  EXPECT_THAT(Texts(),
              testing::UnorderedElementsAre(u"Liste des Archives ZIP.", u"Taille en Ko",
                                            u"Emplacement", u"Fichier", u"Date", u"Page 1"));
  int levels = 0;
  for (const PageLine& line : pages.pages.at(0).lines) levels += line.y1 == line.y2 ? 1 : 0;
  EXPECT_EQ(levels, 3) << "above and below the header, and below the free line";
}

TEST_F(PrintCommandsTest, TheTextPaneIsPrintedUpright) {
  Scan();
  form.ZoneDesTableaux.SetTab(1);
  Look();
  Press(form.PrintTexte);
  EXPECT_EQ(pages.pages.at(0).paper.width, 11906);
  EXPECT_THAT(Texts(), testing::ElementsAre(u"Page 1", u"Jeu de dames", u"Seconde ligne"));
}

TEST_F(PrintCommandsTest, PrintingAnEmptyTextPaneShowsAnEmptyPage) {
  form.TextInfo(0).SetText(u"");
  Look();
  Raise(form.PrintTexte.on_click);
  EXPECT_EQ(pages.pages.size(), 1u);
  EXPECT_THAT(Texts(), testing::ElementsAre(u"Page 1"));
}

TEST_F(PrintCommandsTest, ClosingThePreviewReturnsToTheWindowWithTheHourglassGone) {
  Scan();
  Look();
  Press(form.Imprimer);
  EXPECT_FALSE(busy_in_preview) << "the user works there as well";
  ExpectReady();
  Look();
  Raise(form.PrintTexte.on_click);
  ExpectReady();
}

TEST_F(PrintCommandsTest, TheScanGoesOnBehindAPrintedTable) {
  Scan();
  Look();
  Press(form.Imprimer);
  Scan();
  EXPECT_EQ(form.GridLogiciel(1).Cell(1, 2), u" Dames.exe") << "the tool form came back";
}

TEST_F(PrintCommandsTest, ExporterWritesTheTableOnShow) {
  Scan();
  form.ZoneDesTableaux.SetTab(0);
  view.AnswerForm([](Form& dialog) {
    Lib_SelectDlg& choice = static_cast<Lib_SelectDlg&>(dialog);
    Raise(choice.SelOptions(1).on_click);
    choice.Oui().Press();
  });
  view.AnswerFile(u"D:\\TABLE.PRN");
  Press(form.Exporter);
  const int file = iOuvreLecture(u"D:\\TABLE.PRN");
  EXPECT_EQ(LineInput(file), u" Description  Emplacement  Fichier  Version");
  EXPECT_EQ(LineInput(file), u"Installation  D:\\  Setup.exe ");
  EXPECT_TRUE(AtEnd(file));
  CloseFile(file);
  ExpectReady();
}

}  // namespace
}  // namespace trovex::test
