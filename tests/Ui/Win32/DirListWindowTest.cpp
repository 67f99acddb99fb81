#include "ViewTest.h"

namespace trovex::win32 {
namespace {

class DirListWindowTest : public ViewTest {
 protected:
  DirListWindowTest() {
    disc.Directory("Jeux/Arcade");
    disc.Directory("Jeux/Paves");
    disc.Directory("Util");
    list.SetPath(u"D:\\Jeux");
    Rest();
    list.on_change = Count(changes);
  }

  Text Entry(int index) {
    wchar_t text[64] = {};
    Ask(list, LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
    return FromWide(text);
  }

  DirListBox& list = ShowOne<DirListBox>(ControlKind::kDirListBox);
  int changes = 0;
};

TEST_F(DirListWindowTest, ShowsTheParentsThePathAndItsChildren) {
  ASSERT_EQ(Ask(list, LB_GETCOUNT), 4);
  EXPECT_EQ(Entry(0), u"D:\\");
  EXPECT_EQ(Entry(1), u"Jeux");
  EXPECT_EQ(Entry(2), u"Arcade");
  EXPECT_EQ(Entry(3), u"Paves");
  EXPECT_EQ(Ask(list, LB_GETCURSEL), 1) << "the path itself";
}

TEST_F(DirListWindowTest, ADoubleClickOpensADirectory) {
  const int height = static_cast<int>(Ask(list, LB_GETITEMHEIGHT));
  DoubleClick(list, 60, height * 2 + 3);
  EXPECT_EQ(list.Path(), u"D:\\Jeux\\Arcade");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(Entry(2), u"Arcade");
}

TEST_F(DirListWindowTest, ArrowsChooseAndEnterOpens) {
  list.SetFocus();
  Press(list, VK_UP);
  EXPECT_EQ(list.ListIndex(), -2);
  EXPECT_EQ(changes, 0) << "a choice opens nothing";
  Press(list, VK_RETURN);
  EXPECT_EQ(list.Path(), u"D:\\");
  EXPECT_EQ(changes, 1);
}

TEST_F(DirListWindowTest, AVanishedDirectoryStaysClosed) {
  list.SetListIndex(0);
  disc.Remove("Jeux/Arcade");
  Press(list, VK_RETURN);
  EXPECT_EQ(list.Path(), u"D:\\Jeux");
  EXPECT_EQ(changes, 0);
}

TEST_F(DirListWindowTest, WhatTheProgramOpensRaisesOneChange) {
  list.SetPath(u"D:\\Util");
  Rest();
  EXPECT_EQ(changes, 1);
}

class DriveListWindowTest : public ViewTest {
 protected:
  DriveListWindowTest() {
    list.Reread();
    Rest();
    list.on_change = Count(changes);
  }

  DriveListBox& list = ShowOne<DriveListBox>(ControlKind::kDriveListBox, {150, 150, 3000, 315});
  int changes = 0;
};

TEST_F(DriveListWindowTest, ShowsTheDrivesWithTheirLabels) {
  ASSERT_GE(list.ListCount(), 2);
  ASSERT_EQ(Ask(list, CB_GETCOUNT), list.ListCount());
  EXPECT_EQ(Ask(list, CB_GETCURSEL), list.ListIndex());
  wchar_t text[64] = {};
  Ask(list, CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text));
  EXPECT_EQ(FromWide(text), list.List(1));
}

TEST_F(DriveListWindowTest, AChoiceOfTheUsersIsAChange) {
  list.SetListIndex(0);
  changes = 0;
  list.SetFocus();
  Press(list, VK_DOWN);
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(changes, 1);
}

TEST_F(DriveListWindowTest, WhatTheProgramChoosesRaisesOneChange) {
  list.SetListIndex(list.ListIndex() == 0 ? 1 : 0);
  Rest();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(Ask(list, CB_GETCURSEL), list.ListIndex());
}

}  // namespace
}  // namespace trovex::win32
