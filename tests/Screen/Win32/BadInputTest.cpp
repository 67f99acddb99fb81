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
  // Scans the directory and clicks on the first row of the table that comes up.
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
  disc.File(directory + "/JEU.EXE", DosExecutable());
  Start();
  Scan(u"D:\\Profond");
  EXPECT_EQ(Ask(form.TextInfo(5), WM_GETTEXTLENGTH), 10 + 5 * 61 + 8);
  EXPECT_EQ(Info(6), u"1");
}

TEST_F(BadInputTest, ANameOutsideTheCodePageIsShownAsItIs) {
  disc.File("Grec/Ωμέγα ソフト.EXE", DosExecutable());
  Start();
  Scan(u"D:\\Grec");
  EXPECT_EQ(Info(5), u"D:\\Grec\\Ωμέγα ソフト.exe");
}

TEST_F(BadInputTest, ACorruptIconBesideAProgramShowsAnEmptyPane) {
  disc.File("Icone/JEU.EXE", DosExecutable());
  disc.File("Icone/JEU.ICO", std::string("\0\0\1\0\1\0\x20\x20\0\0\1\0\x20\0\xFF\xFF\xFF\x7F", 18));
  Start();
  Scan(u"D:\\Icone");
  EXPECT_EQ(Info(6), u"1");
  EXPECT_TRUE(IsWindowVisible(Handle(form)));
}

TEST_F(BadInputTest, AProgramThatVanishedLeavesItsRow) {
  disc.File("Parti/JEU.EXE", DosExecutable());
  Start();
  Scan(u"D:\\Parti");
  disc.Remove("Parti/JEU.EXE");
  ASSERT_EQ(Info(6), u"1");
  Click(form.GridLogiciel(form.ZoneDesTableaux.Tab()), 20, 30);
  EXPECT_TRUE(IsWindowVisible(Handle(form)));
}

}  // namespace
}  // namespace trovex::test
