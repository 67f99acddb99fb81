#include "WindowTest.h"

namespace trovex::test {
namespace {

constexpr int kInstalls = 0, kPrograms = 1;

// One user before the sample disc, in front of the real window.
class ScenarioTest : public WindowTest {
 protected:
  Grid& CurrentGrid() { return form.GridLogiciel(form.ZoneDesTableaux.Tab()); }
  // The middle of the row of that file in the table on show, scrolled into sight.
  POINT PlaceOfFile(const Text& file) {
    Grid& grid = CurrentGrid();
    int row = 1;
    while (row < grid.Rows() && grid.Cell(row, 2) != u" " + file) ++row;
    if (row == grid.Rows()) throw std::runtime_error("no such row");
    const auto item = static_cast<WPARAM>(row - 1);
    Ask(grid, LVM_ENSUREVISIBLE, item, FALSE);
    RECT at = {};
    at.left = LVIR_BOUNDS;
    Ask(grid, LVM_GETITEMRECT, item, reinterpret_cast<LPARAM>(&at));
    return {at.left + 20, (at.top + at.bottom) / 2};
  }
  void ClickFile(const Text& file) {
    const POINT at = PlaceOfFile(file);
    Click(CurrentGrid(), at.x, at.y);
  }
  void ClickTab(int tab) {
    RECT at;
    Ask(form.ZoneDesTableaux, TCM_GETITEMRECT, static_cast<WPARAM>(tab),
        reinterpret_cast<LPARAM>(&at));
    Click(form.ZoneDesTableaux, at.left + 5, at.top + 5);
  }
  void ClickCompanion(const Text& name) {
    const auto item = Ask(form.ListFichier, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                          reinterpret_cast<LPARAM>(Wide(name)));
    Ask(form.ListFichier, LB_SETTOPINDEX, static_cast<WPARAM>(item));
    RECT at = {};
    Ask(form.ListFichier, LB_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&at));
    Click(form.ListFichier, at.left + 5, at.top + 2);
  }
  bool Seen(const Control& control) { return IsWindowVisible(Handle(control)); }
  Text Info(int index) { return Shown(form.TextInfo(index)); }

  void Start();
  void ChooseDisc();
  void Explore();
  void ClickRows();
  void SwitchTabs();
  void ResizeBelowTheMinimum();
  void ReadATextBesideTheProgram();
  void DoubleClickAndAnswerNo();
  void Leave();

  MainForm form;
};

void ScenarioTest::Start() {
  Main(form);
  Rest();
  EXPECT_TRUE(IsWindowVisible(Handle(form)));
  EXPECT_EQ(Shown(Handle(form)),
            u"Trovex 1.0.0 : Recherche les procédures d'installation, les exécutables et les "
            u"archives Zip à partir d'un répertoire.");
  EXPECT_TRUE(Seen(form.GridLogiciel(kInstalls)));
  EXPECT_FALSE(Seen(form.TextInfo(0)));
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

void ScenarioTest::ChooseDisc() {
  form.ListeDrive.SetFocus();
  Press(form.ListeDrive, VK_UP);
  EXPECT_EQ(form.ListeRepertoire.Path(), u"C:\\");
  Press(form.ListeDrive, VK_DOWN);
  EXPECT_EQ(form.ListeDrive.Drive(), u"d: [GRENIER]");
  EXPECT_EQ(form.ListeRepertoire.Path(), u"D:\\");
  wchar_t root[16] = {};
  Ask(form.ListeRepertoire, LB_GETTEXT, 0, reinterpret_cast<LPARAM>(root));
  EXPECT_STREQ(root, L"D:\\");
}

void ScenarioTest::Explore() {
  Push(form.Explorer);
  EXPECT_EQ(Ask(form.GridLogiciel(kInstalls), LVM_GETITEMCOUNT), 17);
  EXPECT_EQ(Ask(form.GridLogiciel(kPrograms), LVM_GETITEMCOUNT), 34);
  EXPECT_TRUE(Seen(form.GridLogiciel(kPrograms)));
  EXPECT_FALSE(Seen(form.GridLogiciel(kInstalls)));
  EXPECT_EQ(Ask(form.ZoneDesTableaux, TCM_GETCURSEL), kPrograms);
  EXPECT_EQ(Info(6), u"34");
  EXPECT_EQ(Info(5), u"D:\\Menu.exe");
  EXPECT_TRUE(IsWindowEnabled(Handle(form.ConvertHTML)));
}

void ScenarioTest::ClickRows() {
  ClickFile(u"Meteo.exe");
  EXPECT_EQ(Info(5), u"D:\\Util\\Win32s\\Meteo\\Meteo.exe");
  EXPECT_EQ(Info(4), u"Météopince");
  EXPECT_TRUE(Seen(form.ImageSelect));
  ClickFile(u"Long.exe");
  EXPECT_TRUE(Seen(form.TextInfo(0)));
  EXPECT_TRUE(Seen(form.PrintTexte));
  EXPECT_TRUE(Info(0).starts_with(u"Ligne 1 sur 400\r\n"));
  EXPECT_FALSE(Seen(form.ImageSelect));
  Press(CurrentGrid(), VK_UP);
  EXPECT_NE(Info(5), u"D:\\Textes\\Long\\Long.exe") << "arrow keys choose rows, too";
}

void ScenarioTest::SwitchTabs() {
  ClickTab(kInstalls);
  EXPECT_TRUE(Seen(form.GridLogiciel(kInstalls)));
  EXPECT_EQ(Info(6), u"17");
  ClickTab(kPrograms);
  EXPECT_EQ(Info(6), u"34");
}

void ScenarioTest::ResizeBelowTheMinimum() {
  ResizeClient(form, 500, 300);
  EXPECT_EQ(ClientSize(form).cx, 727);
  EXPECT_EQ(ClientSize(form).cy, 494);
  ResizeClient(form, 800, 600);
  EXPECT_EQ(PlaceOf(form.ZoneDesTableaux).right, 798);
  EXPECT_EQ(PlaceOf(form.TextInfo(0)).bottom, 580) << "the text pane takes the height";
  EXPECT_EQ(PlaceOf(form.PanelAide).bottom, 600);
}

void ScenarioTest::ReadATextBesideTheProgram() {
  boxes.Press(IDOK);
  ClickFile(u"Menu.exe");
  EXPECT_TRUE(Info(0).starts_with(u"Été 1997"));
  ClickCompanion(u"Grenier.gif");
  ASSERT_EQ(boxes.Boxes().size(), 1u) << "no program is known for it";
  EXPECT_TRUE(boxes.Boxes()[0].text.starts_with(u"Ouverture impossibleD:\\Grenier.gif"));
  ClickCompanion(u"Lisezmoi.txt");
  EXPECT_TRUE(Seen(form.TextInfo(0)));
  EXPECT_TRUE(Info(0).starts_with(u"Été 1997"));
}

void ScenarioTest::DoubleClickAndAnswerNo() {
  boxes.Press(IDNO);
  const POINT at = PlaceOfFile(u"Menu.exe");
  DoubleClick(CurrentGrid(), at.x, at.y);
  EXPECT_EQ(boxes.Boxes().back().text, u"Confirmez-vous l'execution du fichier ?\r\nD:\\Menu.exe");
  EXPECT_TRUE(machine.started.empty());
  EXPECT_TRUE(machine.shelled.empty());
}

void ScenarioTest::Leave() {
  Ask(form.Quitter, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(GetFocus(), Handle(form.Quitter)) << "the highlight follows the mouse";
  wchar_t help[128] = {};
  Ask(form.PanelAide, SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(help));
  EXPECT_STREQ(help, L"Permet de quitter l'application");
  Push(form.Quitter);
  EXPECT_EQ(ends, 1);
  EXPECT_FALSE(form.Loaded());
  EXPECT_EQ(view.Of(form), nullptr);
}

TEST_F(ScenarioTest, FromTheStartToTheEnd) {
  ASSERT_NO_FATAL_FAILURE(Start());
  ASSERT_NO_FATAL_FAILURE(ChooseDisc());
  ASSERT_NO_FATAL_FAILURE(Explore());
  ASSERT_NO_FATAL_FAILURE(ClickRows());
  ASSERT_NO_FATAL_FAILURE(SwitchTabs());
  ASSERT_NO_FATAL_FAILURE(ResizeBelowTheMinimum());
  ASSERT_NO_FATAL_FAILURE(ReadATextBesideTheProgram());
  ASSERT_NO_FATAL_FAILURE(DoubleClickAndAnswerNo());
  ASSERT_NO_FATAL_FAILURE(Leave());
}

}  // namespace
}  // namespace trovex::test
