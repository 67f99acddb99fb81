#include <oleacc.h>

#include "ViewTest.h"

// Behind Windows.h, whose types it needs.
#include <dbt.h>

namespace trovex::win32 {
namespace {

class FormWindowTest : public ViewTest {
 protected:
  FormWindowTest() {
    Make({{ControlKind::kButton, u"B", 0, {150, 150, 900, 600}, u"zéro"},
          {ControlKind::kButton, u"B", 1, {1200, 150, 900, 600}, u"un"},
          {ControlKind::kButton, u"B", 2, {2250, 150, 900, 600}, u"deux"},
          {ControlKind::kLabel, u"L", -1, {150, 900, 900, 195}, u"texte"}});
  }

  Button& B(int index) { return TheForm().Get<Button>(u"B", index); }
  bool Focused(const Control& control) { return GetFocus() == Handle(control); }
  void Tab(bool backwards = false) {
    BYTE keys[256] = {};
    keys[VK_SHIFT] = backwards ? 0x80 : 0;
    SetKeyboardState(keys);
    PostMessageW(GetFocus(), WM_KEYDOWN, VK_TAB, 1);
    Rest();
    keys[VK_SHIFT] = 0;
    SetKeyboardState(keys);
  }
};

TEST_F(FormWindowTest, ShowsCaptionAndClientArea) {
  Show();
  EXPECT_EQ(Shown(FormHandle()), u"Essai");
  TheForm().SetCaption(u"Trovex 1.0.0");
  EXPECT_EQ(Shown(FormHandle()), u"Trovex 1.0.0");
  EXPECT_EQ(ClientSize(TheForm()).cx, 400);
  EXPECT_EQ(ClientSize(TheForm()).cy, 300);
}

TEST_F(FormWindowTest, TheTabKeyFollowsTheOrderAndLeavesOutWhatCannotBeReached) {
  B(0).SetTabOrder(2);
  B(1).SetTabOrder(0);
  B(2).SetTabOrder(1);
  Show();
  B(1).SetFocus();
  Tab();
  EXPECT_TRUE(Focused(B(2)));
  Tab();
  EXPECT_TRUE(Focused(B(0)));
  Tab();
  EXPECT_TRUE(Focused(B(1))) << "from the last to the first";
  Tab(true);
  EXPECT_TRUE(Focused(B(0)));
  B(2).SetEnabled(false);
  Tab(true);
  EXPECT_TRUE(Focused(B(1)));
}

TEST_F(FormWindowTest, WhatHasNoPlaceInTheOrderOfTabComesLast) {
  B(1).SetTabOrder(1);
  B(2).SetTabOrder(0);
  Show();
  EXPECT_TRUE(Focused(B(2))) << "the first stop";
  Tab();
  EXPECT_TRUE(Focused(B(1)));
  Tab();
  EXPECT_TRUE(Focused(B(0)));
  B(0).SetEnabled(false);
  Rest();
  EXPECT_TRUE(Focused(B(2))) << "from the last to the first";
}

// Two options between two buttons.
class OptionGroupTest : public ViewTest {
 protected:
  OptionGroupTest() {
    Make({{ControlKind::kOptionButton, u"O", 0, {150, 900, 900, 300}, u"a"},
          {ControlKind::kOptionButton, u"O", 1, {1200, 900, 900, 300}, u"b"},
          {ControlKind::kButton, u"B", 0, {150, 150, 900, 600}, u"zéro"},
          {ControlKind::kButton, u"B", 1, {1200, 150, 900, 600}, u"un"}});
  }
  HWND O(int index) { return Handle(TheForm().Get<OptionButton>(u"O", index)); }
  HWND B(int index) { return Handle(TheForm().Get<Button>(u"B", index)); }
  HWND AfterTab() {
    PostMessageW(GetFocus(), WM_KEYDOWN, VK_TAB, 1);
    Rest();
    return GetFocus();
  }
};

TEST_F(OptionGroupTest, IsOneStopOfTheTabKeyAndTheChosenOptionIsIt) {
  TheForm().Get<OptionButton>(u"O", 1).Preset(true);
  Show();
  EXPECT_EQ(GetFocus(), O(1)) << "the first stop";
  EXPECT_EQ(AfterTab(), B(0));
  EXPECT_EQ(AfterTab(), B(1));
  EXPECT_EQ(AfterTab(), O(1));
}

TEST_F(OptionGroupTest, WithoutAChosenOptionTheFirstIsTheStop) {
  Show();
  EXPECT_EQ(GetFocus(), O(0));
  EXPECT_EQ(AfterTab(), B(0));
}

TEST_F(FormWindowTest, EnterReachesTheFormWhereTheControlHasNoUseForIt) {
  Show();
  std::vector<int> pressed;
  TheForm().on_key_press = [&](int key) { pressed.push_back(key); };
  Press(B(0), VK_RETURN);
  EXPECT_EQ(pressed, std::vector<int>{}) << "it is the button's";
  PostMessageW(FormHandle(), WM_KEYDOWN, VK_RETURN, 1);
  Rest();
  EXPECT_EQ(pressed, std::vector{kKeyEnter});
}

TEST_F(FormWindowTest, EscapeAndF1ReachTheForm) {
  Show();
  std::vector<int> pressed, down;
  TheForm().on_key_press = [&](int key) { pressed.push_back(key); };
  TheForm().on_key_down = [&](int key) { down.push_back(key); };
  Press(B(0), VK_ESCAPE);
  Press(B(0), VK_F1);
  EXPECT_EQ(pressed, std::vector{kKeyEscape});
  EXPECT_EQ(down, std::vector{kKeyF1});
}

TEST_F(FormWindowTest, AUsersResizeIsReportedInTwips) {
  Show();
  int resizes = 0;
  TheForm().on_resize = Count(resizes);
  ResizeClient(TheForm(), 500, 320);
  EXPECT_DOUBLE_EQ(TheForm().ScaleWidth(), 7500);
  EXPECT_DOUBLE_EQ(TheForm().ScaleHeight(), 4800);
  EXPECT_EQ(resizes, 1);
}

TEST_F(FormWindowTest, TheProgramsAnswerToAResizeIsShown) {
  Show();
  TheForm().on_resize = [this] {
    if (TheForm().Width() < 6120) TheForm().Resize(6120, TheForm().Height());
  };
  ResizeClient(TheForm(), 300, 300);
  EXPECT_EQ(ClientSize(TheForm()).cx, 400);
}

TEST_F(FormWindowTest, TheProgramsOwnResizeIsReportedOnce) {
  Show();
  int resizes = 0;
  TheForm().on_resize = Count(resizes);
  TheForm().Resize(7620, 4920);
  Rest();
  EXPECT_EQ(resizes, 1);
  EXPECT_EQ(ClientSize(TheForm()).cx, 500);
}

TEST_F(FormWindowTest, MinimisingChangesNoMeasure) {
  Show();
  int resizes = 0;
  TheForm().on_resize = Count(resizes);
  ShowWindow(FormHandle(), SW_MINIMIZE);
  Rest();
  EXPECT_TRUE(TheForm().Minimised());
  EXPECT_DOUBLE_EQ(TheForm().ScaleWidth(), 6000);
  ShowWindow(FormHandle(), SW_RESTORE);
  Rest();
  EXPECT_FALSE(TheForm().Minimised());
  EXPECT_DOUBLE_EQ(TheForm().ScaleWidth(), 6000);
  EXPECT_EQ(resizes, 0);
}

TEST_F(FormWindowTest, TheCloseBoxUnloadsTheForm) {
  Show();
  int unloads = 0;
  TheForm().on_unload = Count(unloads);
  PostMessageW(FormHandle(), WM_CLOSE, 0, 0);
  Rest();
  EXPECT_EQ(unloads, 1);
  EXPECT_FALSE(TheForm().Loaded());
  EXPECT_EQ(view.Of(TheForm()), nullptr);
}

TEST_F(FormWindowTest, AnotherResolutionScalesFormAndControls) {
  Show();
  MoveToResolution(TheForm(), 192);
  EXPECT_EQ(ClientSize(TheForm()).cx, 800);
  EXPECT_EQ(ClientSize(TheForm()).cy, 600);
  const RECT at = PlaceOf(B(1));
  EXPECT_EQ(at.left, 160);
  EXPECT_EQ(at.right, 280);
  EXPECT_DOUBLE_EQ(TheForm().ScaleWidth(), 6000) << "the model knows twips alone";
}

TEST_F(FormWindowTest, TheProposedRectangleIsTaken) {
  Show();
  const RECT proposed = {40, 60, 940, 760};
  MoveToResolution(TheForm(), 144, proposed);
  RECT at;
  GetWindowRect(FormHandle(), &at);
  EXPECT_TRUE(EqualRect(&at, &proposed));
  EXPECT_DOUBLE_EQ(TheForm().Left(), 400);
  EXPECT_DOUBLE_EQ(TheForm().ScaleWidth(), ClientSize(TheForm()).cx * 10);
}

TEST_F(FormWindowTest, TellsTheSystemItsSizeAtAnotherResolution) {
  constexpr UINT kGetDpiScaledSize = 0x02E4;
  Show();
  SIZE size = {};
  ASSERT_TRUE(SendMessageW(FormHandle(), kGetDpiScaledSize, 192, reinterpret_cast<LPARAM>(&size)));
  const auto style = [this](int which) {
    return static_cast<DWORD>(GetWindowLongPtrW(FormHandle(), which));
  };
  const RECT outer = win32::WithFrame({0, 0, 800, 600}, style(GWL_STYLE), style(GWL_EXSTYLE), 192);
  EXPECT_EQ(size.cx, outer.right - outer.left);
  EXPECT_EQ(size.cy, outer.bottom - outer.top);
}

TEST(WithFrameTest, AFrameIsThatOfItsResolution) {
  constexpr DWORD kStyle = WS_CAPTION | WS_THICKFRAME;
  const RECT usual = WithFrame({0, 0, 100, 100}, kStyle, 0, SystemDpi());
  RECT expected = {0, 0, 100, 100};
  AdjustWindowRectEx(&expected, kStyle, FALSE, 0);
  EXPECT_TRUE(EqualRect(&usual, &expected));
  const RECT high = WithFrame({0, 0, 100, 100}, kStyle, 0, 2 * SystemDpi());
  EXPECT_LT(high.top, usual.top) << "a caption of twice the resolution is higher";
}

TEST_F(FormWindowTest, AMaximisedWindowStaysMaximisedAtAnotherResolution) {
  Show();
  ShowWindow(FormHandle(), SW_MAXIMIZE);
  Rest();
  RECT at;
  GetWindowRect(FormHandle(), &at);
  MoveToResolution(TheForm(), 144, at);
  RECT then;
  GetWindowRect(FormHandle(), &then);
  EXPECT_TRUE(IsZoomed(FormHandle()));
  EXPECT_TRUE(EqualRect(&at, &then));
  TheForm().SetCaption(u"autre");
  TheForm().Resize(6120, 4920);
  Rest();
  GetWindowRect(FormHandle(), &then);
  EXPECT_TRUE(EqualRect(&at, &then));
}

TEST_F(FormWindowTest, LinesTenTwipsApartStandOnPixelsOfTheirOwn) {
  TheForm().on_paint = [this] {
    view.DrawStroke(TheForm(), {2770, 2000, 2770, 3000, 0x0000FF});
    view.DrawStroke(TheForm(), {2780, 2000, 2780, 3000, 0x00FF00});
  };
  Show();
  RedrawWindow(FormHandle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  const HDC dc = GetDC(FormHandle());
  EXPECT_EQ(GetPixel(dc, 184, 160), COLORREF{0x0000FF});
  EXPECT_EQ(GetPixel(dc, 185, 160), COLORREF{0x00FF00});
  ReleaseDC(FormHandle(), dc);
}

TEST_F(FormWindowTest, ARunTimeErrorThatNobodyCatchesEndsTheLoop) {
  Show();
  B(0).on_click = [] { throw RuntimeError(ErrorNumber::kPathNotFound, u"essai"); };
  PostMessageW(Handle(B(0)), BM_CLICK, 0, 0);
  EXPECT_THROW(view.Run(), RuntimeError);
}

TEST_F(FormWindowTest, AnUncaughtErrorIsToldWhileTheFormStillStands) {
  Show();
  int told = 0, later = 0;
  bool stood = false;
  view.on_failure = [&](std::exception_ptr failure) {
    ++told;
    stood = IsWindowVisible(FormHandle()) && TheForm().Loaded();
    EXPECT_THROW(std::rethrow_exception(failure), RuntimeError);
    SendMessageW(Handle(B(1)), BM_CLICK, 0, 0);
  };
  B(0).on_click = [] { throw RuntimeError(ErrorNumber::kPathNotFound, u"essai"); };
  B(1).on_click = Count(later);
  PostMessageW(Handle(B(0)), BM_CLICK, 0, 0);
  EXPECT_THROW(view.Run(), RuntimeError);
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(stood);
  EXPECT_EQ(later, 0) << "the program does nothing more";
}

// The form goes with a message to its window still in the queue.
TEST_F(FormWindowTest, NothingOfAFormThatIsGoneIsTouched) {
  Show();
  const HWND window = FormHandle();
  auto box = std::make_unique<Form>(TheSpec());
  box->Load();
  box->Show();
  box->Get<Button>(u"B", 0).SetEnabled(false);
  box.reset();
  Rest();
  EXPECT_TRUE(IsWindowVisible(window));
}

TEST_F(FormWindowTest, AModalFormEndsWhenItIsHiddenAndTheOthersWaitMeanwhile) {
  Show();
  static constexpr ControlSpec kControls[] = {
      {ControlKind::kButton, u"Ok", -1, {150, 150, 900, 600}, u"OK"}};
  static constexpr FormSpec kSpec = {u"Boite", u"Boîte", 3000, 1500, false, 0xC0C0C0, kControls};
  Form box(kSpec);
  bool disabled = false;
  box.Get<Button>(u"Ok").on_click = [&] {
    disabled = !IsWindowEnabled(FormHandle());
    box.Hide();
  };
  box.Load();
  PostMessageW(view.Of(box)->Of(box.Get<Button>(u"Ok"))->Handle(), BM_CLICK, 0, 0);
  box.ShowModal();
  EXPECT_TRUE(disabled);
  EXPECT_TRUE(IsWindowEnabled(FormHandle()));
  box.Unload();
}

TEST_F(FormWindowTest, AScreenReaderIsToldAControlsName) {
  B(0).SetAccessibleName(u"Premier bouton");
  Show();
  IAccessible* told = nullptr;
  ASSERT_EQ(AccessibleObjectFromWindow(Handle(B(0)), static_cast<DWORD>(OBJID_CLIENT),
                                       IID_IAccessible, reinterpret_cast<void**>(&told)),
            S_OK);
  VARIANT self = {};
  self.vt = VT_I4;
  BSTR name = nullptr;
  const HRESULT found = told->get_accName(self, &name);
  told->Release();
  ASSERT_EQ(found, S_OK);
  EXPECT_EQ(FromWide(name), u"Premier bouton");
  SysFreeString(name);
}

TEST_F(FormWindowTest, DevicesThatComeAndGoAreToldOnceWhenTheProgramIsAtRest) {
  Show();
  int drives = 0;
  TheForm().on_drives_changed = Count(drives);
  for (const WPARAM reason : {DBT_DEVICEARRIVAL, DBT_DEVNODES_CHANGED, DBT_DEVICEREMOVECOMPLETE}) {
    SendMessageW(FormHandle(), WM_DEVICECHANGE, reason, 0);
  }
  EXPECT_EQ(drives, 0);
  Rest();
  EXPECT_EQ(drives, 1);
  SendMessageW(FormHandle(), WM_DEVICECHANGE, DBT_QUERYCHANGECONFIG, 0);
  Rest();
  EXPECT_EQ(drives, 1) << "no drive can have changed by a question";
}

TEST_F(FormWindowTest, AFormThatBecomesActiveLooksAtTheDrives) {
  Show();
  const HWND other = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100,
                                     100, nullptr, nullptr, nullptr, nullptr);
  SetActiveWindow(other);
  Rest();
  int drives = 0;
  TheForm().on_drives_changed = Count(drives);
  SetActiveWindow(FormHandle());
  Rest();
  EXPECT_EQ(drives, 1);
  DestroyWindow(other);
}

}  // namespace
}  // namespace trovex::win32
