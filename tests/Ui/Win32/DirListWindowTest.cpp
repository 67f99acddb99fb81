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
    list.on_again = Count(agains);
  }

  // A click on an entry of the list that was dropped down.
  void Take(int item) {
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof parts;
    Ask(list, CB_SHOWDROPDOWN, TRUE);
    ASSERT_TRUE(GetComboBoxInfo(Handle(list), &parts));
    RECT at = {};
    SendMessageW(parts.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(item),
                 reinterpret_cast<LPARAM>(&at));
    const LPARAM place = MAKELPARAM(at.left + 20, at.top + 3);
    SendMessageW(parts.hwndList, WM_MOUSEMOVE, 0, place);
    SendMessageW(parts.hwndList, WM_LBUTTONDOWN, MK_LBUTTON, place);
    SendMessageW(parts.hwndList, WM_LBUTTONUP, 0, place);
    Rest();
  }

  DriveListBox& list = ShowOne<DriveListBox>(ControlKind::kDriveListBox, {150, 150, 3000, 315});
  int changes = 0;
  int agains = 0;
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

TEST_F(DriveListWindowTest, ADropTellsBeforeTheListIsSeen) {
  int drops = 0;
  list.on_drop_down = Count(drops);
  Ask(list, CB_SHOWDROPDOWN, TRUE);
  Rest();
  EXPECT_EQ(drops, 1);
  EXPECT_EQ(changes, 0);
}

TEST_F(DriveListWindowTest, TheSelectedDriveTakenAgainIsTold) {
  const int selected = list.ListIndex();
  Take(selected);
  EXPECT_EQ(list.ListIndex(), selected);
  EXPECT_EQ(agains, 1);
  EXPECT_EQ(changes, 0);
}

TEST_F(DriveListWindowTest, AnotherDriveTakenIsAChangeAlone) {
  const int other = list.ListIndex() == 0 ? 1 : 0;
  Take(other);
  EXPECT_EQ(list.ListIndex(), other);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(agains, 0);
}

}  // namespace
}  // namespace trovex::win32
