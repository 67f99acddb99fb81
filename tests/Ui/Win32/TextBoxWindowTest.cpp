#include "ViewTest.h"
#include "support/Win32/OtherProgram.h"

namespace trovex::win32 {
namespace {

class TextBoxWindowTest : public ViewTest {
 protected:
  TextBoxWindowTest() { box.on_change = Count(changes); }

  TextBox& box = ShowOne<TextBox>(ControlKind::kTextBox);
  int changes = 0;
};

TEST_F(TextBoxWindowTest, ShowsItsTextWhenTheProgramRests) {
  box.SetText(u"Œuvre d'été");
  Rest();
  EXPECT_EQ(Shown(box), u"Œuvre d'été");
}

TEST_F(TextBoxWindowTest, ATextThatGrowsIsShownOnce) {
  for (int line = 0; line < 100; ++line) box.Append(u"ligne\r\n");
  const Text before = Shown(box);
  Rest();
  EXPECT_EQ(before, u"");
  EXPECT_EQ(GetWindowTextLengthW(Handle(box)), 700);
}

TEST_F(TextBoxWindowTest, TypingReachesTheModel) {
  box.SetFocus();
  for (const wchar_t letter : std::wstring_view(L"abc")) Ask(box, WM_CHAR, letter, 1);
  EXPECT_EQ(box.GetText(), u"abc");
  EXPECT_EQ(changes, 3);
  Rest();
  EXPECT_EQ(Ask(box, EM_GETSEL), MAKELONG(3, 3)) << "the caret stays behind what was typed";
}

TEST_F(TextBoxWindowTest, WhatTheProgramWritesIsNoTyping) {
  box.SetText(u"par programme");
  Rest();
  EXPECT_EQ(changes, 1) << "the model's own";
}

TEST_F(TextBoxWindowTest, EnterGoesToWhoListensAndIsUsedUp) {
  int enters = 0;
  box.on_enter = Count(enters);
  box.SetFocus();
  Press(box, VK_RETURN);
  EXPECT_EQ(enters, 1);
  EXPECT_EQ(box.GetText(), u"");
}

class TwoTextBoxesTest : public ViewTest {
 protected:
  TwoTextBoxesTest() {
    Make({{ControlKind::kTextBox, u"T", 0, {150, 150, 3000, 300}},
          {ControlKind::kTextBox, u"T", 1, {150, 600, 3000, 300}}});
    Show();
    T(0).on_lost_focus = Count(losses);
  }
  TextBox& T(int index) { return TheForm().Get<TextBox>(u"T", index); }

  int losses = 0;
};

TEST_F(TwoTextBoxesTest, LeavingOneForTheOtherIsReported) {
  T(0).SetFocus();
  T(1).SetFocus();
  EXPECT_EQ(losses, 1);
}

TEST_F(TwoTextBoxesTest, AnotherWindowTakesTheFocusForAWhileOnly) {
  test::OtherProgram other;
  T(0).SetFocus();
  SetForegroundWindow(other.Window());
  Rest();
  SetForegroundWindow(FormHandle());
  Rest();
  EXPECT_EQ(GetFocus(), Handle(T(0)));
  EXPECT_EQ(losses, 0);
}

TEST_F(TextBoxWindowTest, ItsColourFillsIt) {
  box.SetBackColor(0x00C0FF);
  UpdateWindow(Handle(box));
  const HDC dc = GetDC(Handle(box));
  EXPECT_EQ(GetPixel(dc, 150, 60), COLORREF{0x00C0FF});
  ReleaseDC(Handle(box), dc);
}

class TextPaneTest : public ViewTest {
 protected:
  TextPaneTest() {
    Make({{ControlKind::kTextBox, u"Lui", -1, {150, 150, 3000, 1500}}});
    One<TextBox>().SetMultiLine(true);
    One<TextBox>().SetLocked(true);
    Show();
  }
};

TEST_F(TextPaneTest, KeepsItsLinesAndScrollsBothWays) {
  One<TextBox>().SetText(u"un\r\ndeux\r\ntrois");
  Rest();
  EXPECT_EQ(Ask(One<TextBox>(), EM_GETLINECOUNT), 3);
  const LONG_PTR style = GetWindowLongPtrW(Handle(One<TextBox>()), GWL_STYLE);
  EXPECT_TRUE(style & WS_VSCROLL);
  EXPECT_TRUE(style & WS_HSCROLL);
}

TEST_F(TextPaneTest, ALockedTextCannotBeTypedInto) {
  One<TextBox>().SetText(u"lu");
  Rest();
  Ask(One<TextBox>(), WM_CHAR, 'x', 1);
  EXPECT_EQ(Shown(One<TextBox>()), u"lu");
  EXPECT_EQ(One<TextBox>().GetText(), u"lu");
}

TEST_F(TextPaneTest, CtrlASelectsAll) {
  One<TextBox>().SetText(u"un\r\ndeux");
  Rest();
  PressWithControl(One<TextBox>(), 'A');
  EXPECT_EQ(Ask(One<TextBox>(), EM_GETSEL), MAKELONG(0, 8));
}

TEST_F(TextPaneTest, HoldsALongText) {
  const Text text(200'000, u'x');
  One<TextBox>().SetText(text);
  Rest();
  EXPECT_EQ(GetWindowTextLengthW(Handle(One<TextBox>())), 200'000);
}

}  // namespace
}  // namespace trovex::win32
