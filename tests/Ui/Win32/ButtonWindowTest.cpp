#include "ViewTest.h"

namespace trovex::win32 {
namespace {

class ButtonWindowTest : public ViewTest {
 protected:
  Button& button = ShowOne<Button>(ControlKind::kButton);
};

TEST_F(ButtonWindowTest, ShowsItsCaption) {
  EXPECT_EQ(Shown(button), u"Texte");
  button.SetCaption(u"&Été");
  EXPECT_EQ(Shown(button), u"&Été");
}

TEST_F(ButtonWindowTest, ShowsWhetherItIsEnabledAndVisible) {
  button.SetEnabled(false);
  EXPECT_FALSE(IsWindowEnabled(Handle(button)));
  button.SetEnabled(true);
  EXPECT_TRUE(IsWindowEnabled(Handle(button)));
  button.SetVisible(false);
  EXPECT_FALSE(IsWindowVisible(Handle(button)));
  button.SetVisible(true);
  EXPECT_TRUE(IsWindowVisible(Handle(button)));
}

TEST_F(ButtonWindowTest, FollowsItsPlace) {
  button.Move({300, 600, 1500, 750});
  const RECT at = PlaceOf(button);
  EXPECT_EQ(at.left, 20);
  EXPECT_EQ(at.top, 40);
  EXPECT_EQ(at.right, 120);
  EXPECT_EQ(at.bottom, 90);
}

TEST_F(ButtonWindowTest, AClickIsAClick) {
  int clicks = 0;
  button.on_click = Count(clicks);
  Ask(button, BM_CLICK);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonWindowTest, EnterAndSpacePressIt) {
  int clicks = 0;
  button.on_click = Count(clicks);
  button.SetFocus();
  Press(button, VK_RETURN);
  EXPECT_EQ(clicks, 1);
  Press(button, VK_SPACE);
  EXPECT_EQ(clicks, 2);
}

TEST_F(ButtonWindowTest, WhatTheProgramChangesIsNoClick) {
  int clicks = 0;
  button.on_click = Count(clicks);
  button.SetCaption(u"Autre");
  button.SetEnabled(false);
  button.SetEnabled(true);
  button.SetFocus();
  Rest();
  EXPECT_EQ(clicks, 0);
}

TEST_F(ButtonWindowTest, TheMouseIsReportedWhereItMoves) {
  int moves = 0;
  button.on_mouse_move = Count(moves);
  Ask(button, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  Ask(button, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(moves, 1) << "the system repeats the message without a movement";
  Ask(button, WM_MOUSEMOVE, 0, MAKELPARAM(6, 5));
  EXPECT_EQ(moves, 2);
}

TEST_F(ButtonWindowTest, TheFocusDrawsADarkFrame) {
  EnableWindow(Handle(button), TRUE);
  SetFocus(nullptr);
  UpdateWindow(Handle(button));
  const auto corner = [&] {
    const HDC dc = GetDC(Handle(button));
    const COLORREF colour = GetPixel(dc, 0, 50);
    ReleaseDC(Handle(button), dc);
    return colour;
  };
  const COLORREF without = corner();
  button.SetFocus();
  UpdateWindow(Handle(button));
  EXPECT_EQ(corner(), GetSysColor(COLOR_WINDOWFRAME));
  EXPECT_NE(without, corner());
}

}  // namespace
}  // namespace trovex::win32
