#include "Lib/LIB_INI.h"
#include "ScreenTest.h"
#include "support/SampleDisc.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kInstalls = 0, kPrograms = 1, kArchives = 2;

// One user before the sample disc, from the program's start to its end.
class SessionTest : public MainWindowTest {
 protected:
  SessionTest() {
    WriteSampleDisc(disc.HostPath(""));
    disc.Directory("PROG");
    disc.Directory("TMP");
    machine.environment[u"TMP"] = u"D:\\TMP";
    machine.labels[u"D"] = u"GRENIER";
    machine.programs[u"ZIP"] = u"C:\\ZIP.EXE";
    machine.SetClass(u".exe", u"exefile");
    machine.SetClass(u"exefile\\defaulticon", u"%1");
    machine.SetClass(u".zip", u"zipfile");
    machine.SetClass(u"zipfile\\defaulticon", u"C:\\ZIP.EXE,1");
    machine.icons[u"C:\\ZIP.EXE"] = 2;
    machine.icons[u"D:\\UTIL\\WIN32S\\METEO\\METEO.EXE"] = 1;
    machine.icons[u"D:\\UTIL\\WIN32S\\METEO\\METEO.ICO"] = 1;
    SetEndOfProgram([this] { ++ends_; });
  }

  // A click on the row of that file in the table on show.
  void ClickFile(const Text& directory, const Text& file) {
    const Grid& grid = CurrentGrid();
    for (int row = 1; row < grid.Rows(); ++row) {
      if (grid.Cell(row, 1) == u" " + directory && grid.Cell(row, 2) == u" " + file) {
        return ClickRow(row);
      }
    }
    FAIL() << "no such row";
  }
  void ExpectReady() {
    EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
    EXPECT_EQ(Help(), u"");
  }
  void ExpectExports(bool enabled) {
    EXPECT_EQ(form.ConvertHTML.Enabled(), enabled);
    EXPECT_EQ(form.Exporter.Enabled(), enabled);
    EXPECT_EQ(form.Imprimer.Enabled(), enabled);
  }

  void Start();
  void ChooseDrive();
  void Explore();
  void LookAtPrograms();
  void LookAtInstalls();
  void LookAtArchives();
  void StartPrograms();
  void ResizeWindow();
  void Leave();

  int ends_ = 0;
};

void SessionTest::Start() {
  Main(form);
  EXPECT_TRUE(form.Visible());
  EXPECT_EQ(sFichierIni, u"D:\\PROG\\Trovex.ini");
  EXPECT_EQ(sFichierTemp, u"D:\\TMP\\~Trvx023.tmp");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"D:\\PROG");
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), kInstalls);
  EXPECT_EQ(Pane(), "");
  ExpectReady();
}

void SessionTest::ChooseDrive() {
  form.ListeDrive.SetListIndex(0);
  EXPECT_EQ(form.ListeRepertoire.Path(), u"C:\\");
  form.ListeDrive.SetListIndex(1);
  EXPECT_EQ(form.ListeDrive.Drive(), u"d: [GRENIER]");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"D:\\");
  EXPECT_EQ(form.ListeRepertoire.ListIndex(), -1);
}

void SessionTest::Explore() {
  Press(form.Explorer);
  EXPECT_EQ(form.GridLogiciel(kInstalls).Rows(), 18);
  EXPECT_EQ(form.GridLogiciel(kPrograms).Rows(), 35);
  EXPECT_EQ(form.GridLogiciel(kArchives).Rows(), 17);
  EXPECT_EQ(form.ZoneDesTableaux.Tab(), kPrograms);
  EXPECT_EQ(Info(6), u"34");
  ExpectExports(true);
  // The first row stands inspected.
  EXPECT_EQ(CurrentGrid().Row(), 1);
  EXPECT_EQ(CurrentGrid().SelEndCol(), 3);
  EXPECT_EQ(Info(5), u"D:\\Menu.exe");
  EXPECT_EQ(Chosen(), u"Lisezmoi.txt");
  EXPECT_TRUE(Info(0).starts_with(u"Été 1997"));
  ExpectReady();
}

void SessionTest::LookAtPrograms() {
  ClickFile(u"D:\\Util\\Win32s\\Meteo", u"Meteo.exe");
  EXPECT_EQ(Info(5), u"D:\\Util\\Win32s\\Meteo\\Meteo.exe");
  EXPECT_EQ(Info(2), u"METEO");
  EXPECT_EQ(Info(4), u"Météopince");
  EXPECT_THAT(Companions(), ElementsAre(u"Meteo.ico"));
  EXPECT_EQ(Pane(), "icon");
  EXPECT_EQ(form.ImageSelect.GetPicture().name, u"D:\\Util\\Win32s\\Meteo\\Meteo.ico");
  EXPECT_EQ(form.IconeFichier.GetPicture().name, u"D:\\Util\\Win32s\\Meteo\\Meteo.exe");

  ClickFile(u"D:\\Textes\\Long", u"Long.exe");
  EXPECT_EQ(Chosen(), u"Long.txt");
  EXPECT_EQ(Pane(), "text");
  EXPECT_TRUE(Info(0).starts_with(u"Ligne 1 sur 400\r\n"));
  EXPECT_TRUE(Info(0).ends_with(u"\r\nLigne 301 sur 400"));
  EXPECT_EQ(Info(2), u"") << "neither record nor key";

  ClickFile(u"D:\\Internet\\Modem", u"Modem.exe");
  EXPECT_EQ(Info(4), u"Programme Windows NT");
  // The first text is an empty file, and the message says so at once.
  EXPECT_EQ(Chosen(), u"File.txt");
  EXPECT_EQ(BoxCount(), 1u);
  EXPECT_EQ(LastBox(),
            u"Affichage annulé du fichier : \r\nD:\\Internet\\Modem\\File.txt\r\ncar la taille du "
            u"fichier est de 0 Octets");
  EXPECT_EQ(Pane(), "");
  Choose(u"Lisezmoi.txt");
  EXPECT_EQ(Pane(), "text");
  EXPECT_TRUE(Info(0).ends_with(u"\r\nModemette"));
  ExpectReady();
}

void SessionTest::LookAtInstalls() {
  form.ZoneDesTableaux.SetTab(kInstalls);
  EXPECT_EQ(Info(6), u"17");
  ExpectExports(true);
  ClickFile(u"D:\\Bureau\\Compta\\Disk1", u"Setup.exe");
  EXPECT_EQ(form.ListFichier.Tag(), u"D:\\Bureau\\Compta\\Disk2");
  EXPECT_TRUE(Info(0).starts_with(u"Comptabillon : "));
  ClickFile(u"D:\\Jeux\\Dos\\Paves", u"Install.exe");
  EXPECT_THAT(Companions(), ElementsAre(u"A.txt", u"Install.txt"));
  EXPECT_EQ(Chosen(), u"Install.txt");
  EXPECT_EQ(Info(4), u"Programme MS-DOS");

  // The set's second disk is missing.
  ClickFile(u"D:\\Bureau\\Orphelin\\Disk1", u"Setup.exe");
  EXPECT_EQ(BoxCount(), 2u);
  EXPECT_EQ(BoxMessage(), u"Erreur lors de la recherche d'information sur le fichier : Setup.exe");
  EXPECT_EQ(Info(5), u"D:\\Bureau\\Orphelin\\Disk1\\Setup.exe");
  EXPECT_EQ(Pane(), "");
}

void SessionTest::LookAtArchives() {
  form.ZoneDesTableaux.SetTab(kArchives);
  EXPECT_EQ(Info(6), u"16");
  ClickFile(u"D:\\Archives\\Textes", u"Mon Jeu.zip");
  EXPECT_THAT(Companions(), ElementsAre(u"Mon Jeu.doc", u"Mon Jeu.txt", u"Mon Jeu.zip"));
  EXPECT_EQ(Info(0), u"Mon jeu, par une main inconnue");
  EXPECT_EQ(form.IconeFichier.GetPicture(), (Picture{Picture::Source::kIconOf, u"C:\\ZIP.EXE", 1}));

  ClickFile(u"D:\\Archives\\Sons", u"Cloche.zip");
  EXPECT_THAT(Companions(), ElementsAre(u"Cloche.hlp", u"Cloche.wav", u"Cloche.zip"));
  EXPECT_EQ(Chosen(), u"");
  EXPECT_EQ(Info(0), u"") << "the pane of the former row is gone";
  Choose(u"Cloche.hlp");
  ASSERT_EQ(view.Helps().size(), 1u);
  EXPECT_EQ(view.Helps()[0].file, u"D:\\Archives\\Sons\\Cloche.hlp");
  Choose(u"Cloche.wav");
  EXPECT_EQ(BoxCount(), 3u);
  EXPECT_TRUE(LastBox().starts_with(u"Ouverture impossibleD:\\Archives\\Sons\\Cloche.wav"));
  EXPECT_EQ(Pane(), "");
  ExpectReady();
}

void SessionTest::StartPrograms() {
  Raise(CurrentGrid().on_dbl_click);
  ASSERT_EQ(machine.started.size(), 1u) << "an archive opens without a question";
  EXPECT_EQ(machine.started[0].command, u"C:\\ZIP.EXE \"D:\\Archives\\Sons\\Cloche.zip\"");

  form.ZoneDesTableaux.SetTab(kPrograms);
  EXPECT_EQ(BoxCount(), 4u) << "the row left there shows its empty text again";
  ClickFile(u"D:\\Textes\\Long", u"Long.exe");
  Raise(CurrentGrid().on_dbl_click);
  EXPECT_EQ(LastBox(), u"Confirmez-vous l'execution du fichier ?\r\nD:\\Textes\\Long\\Long.exe");
  EXPECT_EQ(machine.started.size(), 1u) << "the answer was no";
  ExpectReady();
  Raise(CurrentGrid().on_dbl_click);
  ASSERT_EQ(machine.started.size(), 2u);
  EXPECT_EQ(machine.started[1],
            (FakeShell::Started{u"D:\\Textes\\Long\\Long.exe", 1, u"D:\\Textes\\Long"}));
  EXPECT_EQ(machine.GetCurrentDirectory(), u"D:\\PROG");
  EXPECT_EQ(Pane(), "text") << "the panes stay";
  ExpectReady();
}

void SessionTest::ResizeWindow() {
  form.Resize(8000, 5000);
  EXPECT_EQ(form.Width(), 11025);
  EXPECT_EQ(form.Height(), 7830);
  EXPECT_EQ(form.TextInfo(0).GetPlace(), (Place{2550, 5850, 8295, 1260}));
  form.Resize(12225, 9030);
  EXPECT_EQ(form.TextInfo(0).GetPlace(), (Place{2550, 5850, 9495, 2460}));
  EXPECT_EQ(CurrentGrid().Width(), 11895);
  EXPECT_EQ(form.GridLogiciel(kArchives).Width(), 10695) << "hidden tables wait for their visit";
  EXPECT_TRUE(Info(0).starts_with(u"Ligne 1 sur 400"));
}

void SessionTest::Leave() {
  disc.File("TMP/~Trvx023.tmp", "provisoire");
  Raise(form.Quitter.on_mouse_move);
  EXPECT_EQ(view.Focus(), &form.Quitter);
  EXPECT_EQ(Help(), u"Permet de quitter l'application");
  Press(form.Quitter);
  EXPECT_EQ(ends_, 1);
  EXPECT_FALSE(form.Loaded());
  EXPECT_THAT(LoadedForms(), IsEmpty());
  EXPECT_FALSE(bFichierExiste(u"D:\\TMP\\~Trvx023.tmp"));
}

TEST_F(SessionTest, FromTheStartToTheEnd) {
  // An empty text, a missing disk, an unknown kind, the empty text once more, no, yes.
  for (const BoxAnswer answer : {BoxAnswer::kOk, BoxAnswer::kOk, BoxAnswer::kOk, BoxAnswer::kOk,
                                 BoxAnswer::kNo, BoxAnswer::kYes}) {
    view.Answer(answer);
  }
  ASSERT_NO_FATAL_FAILURE(Start());
  ASSERT_NO_FATAL_FAILURE(ChooseDrive());
  ASSERT_NO_FATAL_FAILURE(Explore());
  ASSERT_NO_FATAL_FAILURE(LookAtPrograms());
  ASSERT_NO_FATAL_FAILURE(LookAtInstalls());
  ASSERT_NO_FATAL_FAILURE(LookAtArchives());
  ASSERT_NO_FATAL_FAILURE(StartPrograms());
  ASSERT_NO_FATAL_FAILURE(ResizeWindow());
  ASSERT_NO_FATAL_FAILURE(Leave());
}

}  // namespace
}  // namespace trovex::test
