#include "ViewTest.h"

namespace trovex::win32 {
namespace {

class StatusBarWindowTest : public ViewTest {
 protected:
  StatusBarWindowTest() {
    Make({{ControlKind::kStatusBar, u"Lui", -1, {0, 4185, 6000, 315}}});
    Bar().SetToolTip(u"Zone d'aide");
    Bar().AddPanel(u"Msg", StatusBar::PanelStyle::kText);
    Bar().AddPanel(u"Maj", StatusBar::PanelStyle::kCapsLock);
    Bar().AddPanel(u"Num", StatusBar::PanelStyle::kNumLock);
    Show();
  }

  StatusBar& Bar() { return One<StatusBar>(); }
  Text Panel(WPARAM index) {
    wchar_t text[128] = {};
    Ask(Bar(), SB_GETTEXTW, index, reinterpret_cast<LPARAM>(text));
    return FromWide(text);
  }
  // Turns a key's lamp on or off for this thread.
  void Turn(int key, bool on) {
    BYTE keys[256] = {};
    GetKeyboardState(keys);
    keys[key] = on ? 1 : 0;
    SetKeyboardState(keys);
  }
};

TEST_F(StatusBarWindowTest, ShowsTheProgramsTextAtOnce) {
  Bar().SetPanelText(u"Msg", u"Recherche…");
  EXPECT_EQ(Panel(0), u"Recherche…");
  Bar().SetPanelText(u"Msg", u"");
  EXPECT_EQ(Panel(0), u"");
}

TEST_F(StatusBarWindowTest, HasItsToolTip) {
  TTTOOLINFOW tool = {};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.hwnd = FormHandle();
  tool.uId = reinterpret_cast<UINT_PTR>(Handle(Bar()));
  wchar_t text[80] = {};
  tool.lpszText = text;
  HWND tip = nullptr;
  while ((tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
    if (GetWindow(tip, GW_OWNER) != FormHandle()) continue;
    SendMessageW(tip, TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
    if (*text != L'\0') break;
  }
  EXPECT_STREQ(text, L"Zone d'aide");
}

TEST_F(StatusBarWindowTest, PanelsFollowTheKeyboard) {
  Turn(VK_CAPITAL, true);
  Turn(VK_NUMLOCK, false);
  Press(Bar(), VK_CAPITAL);
  EXPECT_EQ(Panel(1), u"MAJ");
  EXPECT_EQ(Panel(2), u"");
  Turn(VK_CAPITAL, false);
  Turn(VK_NUMLOCK, true);
  Press(Bar(), VK_CAPITAL);
  EXPECT_EQ(Panel(1), u"");
  EXPECT_EQ(Panel(2), u"NUM");
}

TEST_F(StatusBarWindowTest, TheFirstPanelTakesWhatTheOthersLeave) {
  int edges[3] = {};
  ASSERT_EQ(Ask(Bar(), SB_GETPARTS, 3, reinterpret_cast<LPARAM>(edges)), 3);
  EXPECT_EQ(edges[1] - edges[0], 48);
  EXPECT_EQ(edges[2] - edges[1], 48);
  EXPECT_GT(edges[0], 200);
}

}  // namespace
}  // namespace trovex::win32
