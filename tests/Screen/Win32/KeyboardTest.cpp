// The program by the keyboard.
#include "Lib/Dialogs.h"
#include "Lib/Lib_SelectDlg.h"
#include "WindowTest.h"
#include "support/Win32/Steps.h"

namespace trovex::test {
namespace {

class KeyboardTest : public WindowTest {
 protected:
  KeyboardTest() { Main(form); }

  // The user's choice of three, the second being proposed.
  int Choose(std::deque<std::function<void()>> acts) {
    Steps user(std::move(acts));
    const int chosen = iChoix(true, u"Titre", u"Un", u"Deux", 1, Text(u"Trois"));
    EXPECT_EQ(user.Left(), 0u);
    return chosen;
  }
  void Key(WPARAM key) { PostMessageW(GetFocus(), WM_KEYDOWN, key, 1); }
  Lib_SelectDlg& Dialog() { return static_cast<Lib_SelectDlg&>(*LoadedForms().back()); }
  std::wstring HelpLine() {
    wchar_t help[256] = {};
    Ask(form.PanelAide, SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(help));
    return help;
  }

  MainForm form;
};

TEST_F(KeyboardTest, AChoiceOpensOnTheProposedOptionAndEnterAcceptsIt) {
  HWND focus = nullptr, option = nullptr;
  EXPECT_EQ(Choose({[&] { focus = GetFocus(); }, [&] { option = Handle(Dialog().SelOptions(1)); },
                    [&] { Key(VK_RETURN); }}),
            0)
      << "no option was clicked";
  EXPECT_NE(focus, nullptr);
  EXPECT_EQ(focus, option);
}

TEST_F(KeyboardTest, TheArrowKeysChooseAndEnterAccepts) {
  EXPECT_EQ(Choose({[&] { Key(VK_DOWN); }, [&] { Key(VK_RETURN); }}), 2);
  EXPECT_EQ(Choose({[&] { Key(VK_DOWN); }, [&] { Key(VK_DOWN); }, [&] { Key(VK_DOWN); },
                    [&] { Key(VK_RETURN); }}),
            1);
}

TEST_F(KeyboardTest, EscCancelsAChoice) {
  EXPECT_EQ(Choose({[&] { Key(VK_DOWN); }, [&] { Key(VK_ESCAPE); }}), -1);
}

TEST_F(KeyboardTest, TabLeavesTheOptionsForTheButtons) {
  std::vector<HWND> stops, expected;
  Choose({[&] { Key(VK_TAB); }, [&] { stops.push_back(GetFocus()); }, [&] { Key(VK_TAB); },
          [&] { stops.push_back(GetFocus()); },
          [&] {
            expected = {Handle(Dialog().Oui()), Handle(Dialog().Annuler())};
          },
          [&] { Key(VK_RETURN); }});
  EXPECT_EQ(stops, expected);
}

TEST_F(KeyboardTest, ALetterFindsAnArchiveByItsName) {
  form.ListeRepertoire.SetPath(u"D:\\");
  form.Explorer.Press();
  form.ZoneDesTableaux.SetTab(2);
  Grid& grid = form.GridLogiciel(2);
  Rest();
  grid.SetFocus();
  const Text name = Trim(grid.Cell(grid.Rows() - 1, 2));
  ASSERT_FALSE(name.empty());
  PostMessageW(Handle(grid), WM_CHAR, name[0], 1);
  Rest();
  EXPECT_EQ(Trim(grid.Cell(grid.Row(), 2))[0], name[0]);
}

TEST_F(KeyboardTest, TheTitleRowGivesTheHelpLineOfItsTable) {
  const HWND titles = reinterpret_cast<HWND>(Ask(form.GridLogiciel(0), LVM_GETHEADER));
  SendMessageW(titles, WM_MOUSEMOVE, 0, MAKELPARAM(20, 5));
  EXPECT_TRUE(HelpLine().starts_with(L"Liste des procédures d'installation"));
}

}  // namespace
}  // namespace trovex::test
