// The keys of the windows that tell of the machine and of the program, whichever control has the
// focus.
#include "Lib/Dialogs.h"
#include "Screen/Lib_AboutDlg.h"
#include "System/Lib_SystemWinInfo.h"
#include "WindowTest.h"

namespace trovex::test {
namespace {

using testing::SizeIs;

class SystemWindowsTest : public WindowTest {
 protected:
  void Show(Form& form) {
    form.Show();
    Rest();
  }
  void PressOn(HWND window, WPARAM key) {
    PostMessageW(window, WM_KEYDOWN, key, 1);
    PostMessageW(window, WM_KEYUP, key, 1);
    Rest();
  }
  // The key Esc with the focus on a control, then on nothing but the window itself.
  void ExpectEscapeCloses(Form& form, const std::vector<Control*>& controls) {
    for (Control* control : controls) {
      Show(form);
      control->SetFocus();
      EXPECT_EQ(GetFocus(), Handle(*control)) << ToUtf8(control->Name());
      PressOn(Handle(*control), VK_ESCAPE);
      EXPECT_FALSE(form.Loaded()) << ToUtf8(control->Name());
    }
    Show(form);
    PressOn(Handle(form), VK_ESCAPE);
    EXPECT_FALSE(form.Loaded()) << "the window itself";
  }
};

TEST_F(SystemWindowsTest, EscClosesTheInformationWindowWithTheFocusOnAnyOfItsControls) {
  Lib_SystemWinInfo form;
  ExpectEscapeCloses(form, {&form.ListProcess, &form.AfficheProcess, &form.CommandMSInfo});
}

TEST_F(SystemWindowsTest, OtherKeysLeaveTheInformationWindowOpen) {
  Lib_SystemWinInfo form;
  Show(form);
  for (Control* control : std::initializer_list<Control*>{&form.ListProcess, &form.CommandMSInfo}) {
    for (const WPARAM key : std::initializer_list<WPARAM>{VK_F1, VK_F3, VK_DOWN}) {
      Press(*control, key);
    }
  }
  EXPECT_TRUE(form.Loaded());
}

TEST_F(SystemWindowsTest, EscClosesTheAboutWindowFromAnyOfItsButtons) {
  Lib_AboutDlg form;
  ExpectEscapeCloses(form, {&form.CommFermer, &form.CommInfos});
}

// Without a help file the call says so, which is what there is to be seen of it here.
TEST_F(SystemWindowsTest, F1AsksForTheHelpFromTheAboutWindowAndFromItsButtons) {
  sFichierDAide = u"TROVEX.HLP";
  Lib_AboutDlg form;
  Show(form);
  for (const HWND window : {Handle(form), Handle(form.CommFermer), Handle(form.CommInfos)}) {
    boxes.Press(IDOK);
    PressOn(window, VK_F1);
    ASSERT_FALSE(boxes.Boxes().empty());
    EXPECT_TRUE(boxes.Boxes().back().text.starts_with(u"Affichage de l'aide impossible"));
  }
  EXPECT_THAT(boxes.Boxes(), SizeIs(3));
  EXPECT_TRUE(form.Loaded());
}

}  // namespace
}  // namespace trovex::test
