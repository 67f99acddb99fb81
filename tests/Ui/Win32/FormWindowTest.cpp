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

TEST_F(FormWindowTest, ARunTimeErrorThatNobodyCatchesEndsTheLoop) {
  Show();
  B(0).on_click = [] { throw RuntimeError(ErrorNumber::kPathNotFound, u"essai"); };
  PostMessageW(Handle(B(0)), BM_CLICK, 0, 0);
  EXPECT_THROW(view.Run(), RuntimeError);
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
