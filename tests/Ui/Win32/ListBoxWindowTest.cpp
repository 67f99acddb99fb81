#include "ViewTest.h"

namespace trovex::win32 {
namespace {

class ListBoxWindowTest : public ViewTest {
 protected:
  ListBoxWindowTest() {
    for (const char16_t* name : {u"a.txt", u"b.txt", u"c.txt"}) list.AddItem(name);
    list.on_click = Count(clicks);
    list.on_dbl_click = Count(double_clicks);
    Rest();
  }

  Text Entry(int index) {
    wchar_t text[64] = {};
    Ask(list, LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
    return FromWide(text);
  }
  LRESULT Selected() { return Ask(list, LB_GETCURSEL); }

  ListBox& list = ShowOne<ListBox>(ControlKind::kListBox);
  int clicks = 0, double_clicks = 0;
};

TEST_F(ListBoxWindowTest, ShowsEntriesAndSelection) {
  EXPECT_EQ(Ask(list, LB_GETCOUNT), 3);
  EXPECT_EQ(Entry(2), u"c.txt");
  EXPECT_EQ(Selected(), LB_ERR);
  list.SetListIndex(1);
  Rest();
  EXPECT_EQ(Selected(), 1);
  list.Clear();
  Rest();
  EXPECT_EQ(Ask(list, LB_GETCOUNT), 0);
}

TEST_F(ListBoxWindowTest, AClickSelectsAndIsReported) {
  Click(list, 10, 2);
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(clicks, 1);
  Click(list, 10, 2);
  EXPECT_EQ(clicks, 2) << "on the selected entry, too";
}

TEST_F(ListBoxWindowTest, ArrowKeysSelect) {
  list.SetFocus();
  list.SetListIndex(0);
  Rest();
  clicks = 0;
  Press(list, VK_DOWN);
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ListBoxWindowTest, ADoubleClickAndEnterAreTheSame) {
  DoubleClick(list, 10, 2);
  EXPECT_EQ(double_clicks, 1);
  Press(list, VK_RETURN);
  EXPECT_EQ(double_clicks, 2);
}

TEST_F(ListBoxWindowTest, EnterWithoutASelectionDoesNothing) {
  Press(list, VK_RETURN);
  EXPECT_EQ(double_clicks, 0);
}

TEST_F(ListBoxWindowTest, WhatTheProgramSelectsRaisesOneClick) {
  list.SetListIndex(2);
  Rest();
  EXPECT_EQ(clicks, 1) << "the model's, and no echo of the window's";
}

}  // namespace
}  // namespace trovex::win32
