// What a disc can do to the window.
#include "WindowTest.h"
#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

class BadInputTest : public WindowTest {
 protected:
  void Start() {
    Main(form);
    Rest();
  }
  // A directory with two programs: a lone one would not bring its table up.
  void Programs(const std::string& directory, const std::string& first) {
    disc.File(directory + "/" + first, DosExecutable());
    disc.File(directory + "/ZZZ.EXE", DosExecutable());
  }
  void Scan(const Text& directory) {
    form.ListeRepertoire.SetPath(directory);
    Push(form.Explorer);
  }
  Text Info(int index) { return Shown(form.TextInfo(index)); }

  MainForm form;
};

TEST_F(BadInputTest, AnEmptyDriveIsRefusedAndTheListReturns) {
  machine.drives = {u"C", u"D", u"E"};
  Start();
  form.ListeDrive.SetDrive(u"d:");
  form.ListeDrive.SetFocus();
  boxes.Press(IDOK);
  Press(form.ListeDrive, VK_DOWN);
  ASSERT_EQ(boxes.Boxes().size(), 1u);
  EXPECT_TRUE(boxes.Boxes()[0].text.starts_with(u"Erreur lors du changement de lecteur."));
  EXPECT_EQ(form.ListeDrive.Drive(), u"d: [GRENIER]");
  EXPECT_EQ(Ask(form.ListeDrive, CB_GETCURSEL), form.ListeDrive.ListIndex());
}

TEST_F(BadInputTest, ANameBeyond260CharactersIsShownWhole) {
  const std::string level(60, 'n');
  std::string directory = "Profond";
  for (int i = 0; i < 5; ++i) directory += "/" + level;
  Programs(directory, "JEU.EXE");
  Start();
  Scan(u"D:\\Profond");
  EXPECT_EQ(Ask(form.TextInfo(5), WM_GETTEXTLENGTH), 10 + 5 * 61 + 8);
  EXPECT_EQ(Info(6), u"2");
}

TEST_F(BadInputTest, ANameOutsideTheCodePageIsShownAsItIs) {
  Programs("Grec", "Ωμέγα ソフト.EXE");
  Start();
  Scan(u"D:\\Grec");
  Press(form.GridLogiciel(form.ZoneDesTableaux.Tab()), VK_DOWN);
  EXPECT_EQ(Info(5), u"D:\\Grec\\Ωμέγα ソフト.exe");
}

TEST_F(BadInputTest, ACorruptIconBesideAProgramShowsAnEmptyPane) {
  Programs("Icone", "JEU.EXE");
  disc.File("Icone/JEU.ICO", std::string("\0\0\1\0\1\0\x20\x20\0\0\1\0\x20\0\xFF\xFF\xFF\x7F", 18));
  Start();
  Scan(u"D:\\Icone");
  ASSERT_EQ(form.ListFichier.ListCount(), 1);
  EXPECT_EQ(form.ListFichier.List(0), u"Jeu.ico");
  EXPECT_TRUE(IsWindowVisible(Handle(form.ImageSelect)));
  const HDC dc = GetDC(Handle(form.ImageSelect));
  EXPECT_EQ(GetPixel(dc, 16, 16), COLORREF{form.BackColor()});
  ReleaseDC(Handle(form.ImageSelect), dc);
}

TEST_F(BadInputTest, AProgramThatVanishedLeavesItsRowAndItsName) {
  Programs("Parti", "JEU.EXE");
  Start();
  Scan(u"D:\\Parti");
  ASSERT_EQ(Info(6), u"2");
  disc.Remove("Parti/JEU.EXE");
  Press(form.GridLogiciel(form.ZoneDesTableaux.Tab()), VK_DOWN);
  Press(form.GridLogiciel(form.ZoneDesTableaux.Tab()), VK_UP);
  EXPECT_EQ(Info(5), u"D:\\Parti\\Jeu.exe");
  EXPECT_EQ(Info(6), u"2");
}

}  // namespace
}  // namespace trovex::test
