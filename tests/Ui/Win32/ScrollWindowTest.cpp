#include "ViewTest.h"

namespace trovex::win32 {
namespace {

class ScrollWindowTest : public ViewTest {
 protected:
  ScrollWindowTest() {
    bar.SetRange(0, 255);
    bar.SetValue(100);
    bar.on_change = Count(changes);
    bar.on_scroll = Count(scrolls);
  }

  SCROLLINFO Info(UINT mask) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = mask;
    GetScrollInfo(Handle(bar), SB_CTL, &info);
    return info;
  }
  void Scroll(WORD code) {
    SendMessageW(FormHandle(), WM_HSCROLL, code, reinterpret_cast<LPARAM>(Handle(bar)));
  }

  ScrollBar& bar = ShowOne<ScrollBar>(ControlKind::kScrollBar, {150, 150, 3000, 255});
  int changes = 0, scrolls = 0;
};

TEST_F(ScrollWindowTest, ShowsRangeAndValue) {
  const SCROLLINFO info = Info(SIF_RANGE | SIF_POS);
  EXPECT_EQ(info.nMin, 0);
  EXPECT_EQ(info.nMax, 255);
  EXPECT_EQ(info.nPos, 100);
  EXPECT_EQ(changes, 0);
}

TEST_F(ScrollWindowTest, ArrowsGoOneStep) {
  Scroll(SB_LINERIGHT);
  EXPECT_EQ(bar.Value(), 101);
  Scroll(SB_LINELEFT);
  Scroll(SB_LINELEFT);
  EXPECT_EQ(bar.Value(), 99);
  EXPECT_EQ(Info(SIF_POS).nPos, 99);
  EXPECT_EQ(changes, 3);
}

TEST_F(ScrollWindowTest, TheTrackGoesAPageAndTheEndsHold) {
  Scroll(SB_PAGERIGHT);
  EXPECT_EQ(bar.Value(), 116);
  Scroll(SB_PAGELEFT);
  EXPECT_EQ(bar.Value(), 100);
  Scroll(SB_RIGHT);
  Scroll(SB_LINERIGHT);
  EXPECT_EQ(bar.Value(), 255);
  Scroll(SB_LEFT);
  Scroll(SB_PAGELEFT);
  EXPECT_EQ(bar.Value(), 0);
}

TEST_F(ScrollWindowTest, ArrowKeysMoveIt) {
  bar.SetFocus();
  Press(bar, VK_RIGHT);
  EXPECT_EQ(bar.Value(), 101);
}

TEST_F(ScrollWindowTest, WhatTheProgramSetsRaisesOneChange) {
  bar.SetValue(7);
  Rest();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(scrolls, 0);
}

}  // namespace
}  // namespace trovex::win32
