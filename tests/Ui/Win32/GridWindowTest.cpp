#include "ViewTest.h"

namespace trovex::win32 {
namespace {

class GridWindowTest : public ViewTest {
 protected:
  GridWindowTest() {
    for (int col = 0; col < 4; ++col) Put(0, col, u"Titre " + Text(1, u'A' + col));
    for (int row = 1; row <= 5; ++row) grid.AddItem(Text(1, u'0' + row) + u"\tD:\\JEUX\tA.EXE\t12");
    grid.RemoveItem(1);
    grid.SetRow(1);
    Rest();
    grid.on_click = Count(clicks);
    grid.on_dbl_click = Count(double_clicks);
  }

  void Put(int row, int col, const Text& text) {
    grid.SetRow(row);
    grid.SetCol(col);
    grid.SetText(text);
  }
  Text Cell(int item, int col) {
    wchar_t text[64] = {};
    LVITEMW cell = {};
    cell.iSubItem = col;
    cell.pszText = text;
    cell.cchTextMax = 64;
    Ask(grid, LVM_GETITEMTEXTW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&cell));
    return FromWide(text);
  }
  HWND Header() { return reinterpret_cast<HWND>(Ask(grid, LVM_GETHEADER)); }
  Text Title(int col) {
    wchar_t text[64] = {};
    HDITEMW item = {};
    item.mask = HDI_TEXT;
    item.pszText = text;
    item.cchTextMax = 64;
    SendMessageW(Header(), HDM_GETITEMW, static_cast<WPARAM>(col), reinterpret_cast<LPARAM>(&item));
    return FromWide(item.pszText);
  }
  int Selected() {
    return static_cast<int>(Ask(grid, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
  }
  POINT Middle(int item) {
    RECT row = {};
    row.left = LVIR_BOUNDS;
    Ask(grid, LVM_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&row));
    return {row.left + 20, (row.top + row.bottom) / 2};
  }
  void ClickItem(int item) {
    const POINT at = Middle(item);
    Click(grid, at.x, at.y);
  }

  void Type(wchar_t letter) {
    PostMessageW(Handle(grid), WM_CHAR, letter, 1);
    Rest();
  }
  // What the list is told when it looks for a row.
  LRESULT Find(const wchar_t* beginning, int from) {
    NMLVFINDITEMW wish = {};
    wish.hdr = {Handle(grid), 0, static_cast<UINT>(LVN_ODFINDITEMW)};
    wish.iStart = from;
    wish.lvfi.flags = LVFI_STRING | LVFI_PARTIAL | LVFI_WRAP;
    wish.lvfi.psz = beginning;
    return SendMessageW(FormHandle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&wish));
  }
  Text Clipboard() {
    OpenClipboard(FormHandle());
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    const Text text =
        memory == nullptr ? Text() : FromWide(static_cast<const wchar_t*>(GlobalLock(memory)));
    CloseClipboard();
    return text;
  }

  Grid& grid = ShowOne<Grid>(ControlKind::kGrid, {150, 150, 5500, 3000});
  int clicks = 0, double_clicks = 0;
};

TEST_F(GridWindowTest, ShowsTitlesAsHeaderAndTheOtherRowsBelow) {
  EXPECT_EQ(Title(0), u"Titre A");
  EXPECT_EQ(Title(3), u"Titre D");
  ASSERT_EQ(Ask(grid, LVM_GETITEMCOUNT), 5);
  EXPECT_EQ(Cell(0, 0), u"1");
  EXPECT_EQ(Cell(4, 2), u"A.EXE");
}

TEST_F(GridWindowTest, FollowsCellsTitlesAndRows) {
  Put(2, 1, u"C:\\ÉTÉ");
  Put(0, 2, u"Fichier");
  grid.AddItem(u"six");
  Rest();
  EXPECT_EQ(Cell(1, 1), u"C:\\ÉTÉ");
  EXPECT_EQ(Title(2), u"Fichier");
  EXPECT_EQ(Ask(grid, LVM_GETITEMCOUNT), 6);
}

TEST_F(GridWindowTest, ColumnsHaveTheModelsWidthsAndAlignments) {
  grid.SetColWidth(1, 1500);
  grid.SetColAlignment(3, Alignment::kRight);
  grid.SetColAlignment(0, Alignment::kCentre);
  Rest();
  EXPECT_EQ(Ask(grid, LVM_GETCOLUMNWIDTH, 1), 100);
  for (const auto& [col, format] : {std::pair{3, LVCFMT_RIGHT}, std::pair{0, LVCFMT_CENTER}}) {
    LVCOLUMNW column = {};
    column.mask = LVCF_FMT;
    Ask(grid, LVM_GETCOLUMNW, static_cast<WPARAM>(col), reinterpret_cast<LPARAM>(&column));
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, format);
  }
}

TEST_F(GridWindowTest, TheCurrentRowIsHighlightedAsAWhole) {
  EXPECT_EQ(Selected(), 0);
  grid.SetRow(4);
  Rest();
  EXPECT_EQ(Selected(), 3);
  EXPECT_TRUE(Ask(grid, LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_FULLROWSELECT);
  // Whether or not the table has the focus.
  for (const HWND focus : {Handle(grid), FormHandle()}) {
    SetFocus(focus);
    RedrawWindow(Handle(grid), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const POINT at = Middle(3);
    const HDC dc = GetDC(Handle(grid));
    EXPECT_EQ(GetPixel(dc, 130, at.y), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_NE(GetPixel(dc, 130, Middle(2).y), GetSysColor(COLOR_HIGHLIGHT));
    ReleaseDC(Handle(grid), dc);
  }
}

TEST_F(GridWindowTest, ARowThatComesUpIsScrolledIntoSight) {
  for (int row = 0; row < 500; ++row) grid.AddItem(u"x");
  grid.SetRow(400);
  Rest();
  const auto top = static_cast<int>(Ask(grid, LVM_GETTOPINDEX));
  const auto page = static_cast<int>(Ask(grid, LVM_GETCOUNTPERPAGE));
  EXPECT_GT(top + page, 399);
  EXPECT_LE(top, 399);
}

TEST_F(GridWindowTest, AClickChoosesTheRowOnce) {
  ClickItem(2);
  EXPECT_EQ(grid.Row(), 3);
  EXPECT_EQ(clicks, 1);
  ClickItem(2);
  EXPECT_EQ(clicks, 2) << "a click on the chosen row counts once more";
}

TEST_F(GridWindowTest, ADoubleClickIsOne) {
  const POINT at = Middle(1);
  DoubleClick(grid, at.x, at.y);
  EXPECT_EQ(grid.Row(), 2);
  EXPECT_EQ(double_clicks, 1);
}

TEST_F(GridWindowTest, ArrowKeysMoveAndEnterActsAsTheDoubleClick) {
  grid.SetFocus();
  Press(grid, VK_DOWN);
  EXPECT_EQ(grid.Row(), 2);
  EXPECT_EQ(clicks, 1);
  Press(grid, VK_END);
  EXPECT_EQ(grid.Row(), 5);
  Press(grid, VK_RETURN);
  EXPECT_EQ(double_clicks, 1);
  EXPECT_EQ(clicks, 2);
}

TEST_F(GridWindowTest, EnterCountsThoughTheListNamesNoRow) {
  Press(grid, VK_DOWN);
  NMITEMACTIVATE activation = {};
  activation.hdr = {Handle(grid), 0, static_cast<UINT>(LVN_ITEMACTIVATE)};
  activation.iItem = -1;
  SendMessageW(FormHandle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&activation));
  EXPECT_EQ(double_clicks, 1);
}

TEST_F(GridWindowTest, AClickOnTheRowThatAnArrowKeyChoseIsAClick) {
  grid.SetFocus();
  Press(grid, VK_DOWN);
  ASSERT_EQ(clicks, 1);
  ClickItem(1);
  EXPECT_EQ(grid.Row(), 2);
  EXPECT_EQ(clicks, 2);
  ClickItem(3);
  EXPECT_EQ(clicks, 3);
}

TEST_F(GridWindowTest, ALetterGoesToTheNextRowThatBeginsWithIt) {
  for (const auto& [row, name] :
       {std::pair{1, u"Alpha"}, {2, u"beta"}, {3, u" Bravo"}, {4, u"Écho"}, {5, u"alpin"}}) {
    Put(row, 0, name);
  }
  grid.SetRow(1);
  Rest();
  grid.SetFocus();
  Type('b');
  EXPECT_EQ(grid.Row(), 2);
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(clicks, 1);
  Type('x');
  EXPECT_EQ(grid.Row(), 2) << "none begins with it";
}

TEST_F(GridWindowTest, TheListAsksForTheRowByTheColumnThatItIsSearchedBy) {
  for (const auto& [row, name] : {std::pair{1, u" Zip.zip"}, {2, u" Beta.zip"}, {4, u" béta.zip"}})
    Put(row, 2, name);
  grid.SetSearchCol(2);
  EXPECT_EQ(Find(L"b", 0), 1);
  EXPECT_EQ(Find(L"B", 2), 3);
  EXPECT_EQ(Find(L"b", 4), 1) << "round and round";
  EXPECT_EQ(Find(L"bé", 0), 3);
  EXPECT_EQ(Find(L"D", 0), -1) << "another column's";
}

TEST_F(GridWindowTest, CtrlCCopiesTheRowWithTabsBetweenItsCells) {
  Put(2, 1, u" D:\\Été");
  grid.SetRow(2);
  Rest();
  PressWithControl(grid, 'C');
  EXPECT_EQ(Clipboard(), u"2\tD:\\Été\tA.EXE\t12");
}

TEST_F(GridWindowTest, TheTitleRowIsPartOfTheTableToTheMouse) {
  int moves = 0;
  grid.on_mouse_move = Count(moves);
  SendMessageW(Header(), WM_MOUSEMOVE, 0, MAKELPARAM(20, 5));
  EXPECT_EQ(moves, 1);
}

TEST_F(GridWindowTest, AClickBelowTheRowsIsNone) {
  Click(grid, 20, 190);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(Selected(), 0) << "the current row stays the highlighted one";
}

TEST_F(GridWindowTest, WhatTheProgramChoosesIsNoClick) {
  grid.SetRow(4);
  grid.SetSelStartCol(0);
  grid.SetSelEndCol(3);
  Rest();
  grid.SetRows(2);
  Rest();
  EXPECT_EQ(clicks, 0);
}

TEST_F(GridWindowTest, AColumnThatTheUserWidensStaysWide) {
  HDITEMW item = {};
  item.mask = HDI_WIDTH;
  item.cxy = 222;
  SendMessageW(Header(), HDM_SETITEMW, 1, reinterpret_cast<LPARAM>(&item));
  EXPECT_DOUBLE_EQ(grid.ColWidth(1), 222 * 15);
  Put(1, 1, u"autre");
  Rest();
  EXPECT_EQ(Ask(grid, LVM_GETCOLUMNWIDTH, 1), 222);
}

TEST_F(GridWindowTest, AFullTableIsShownWhole) {
  grid.SetRows(Grid::kMaxRows);
  Put(Grid::kMaxRows - 1, 2, u"dernier");
  Rest();
  EXPECT_EQ(Ask(grid, LVM_GETITEMCOUNT), Grid::kMaxRows - 1);
  EXPECT_EQ(Cell(Grid::kMaxRows - 2, 2), u"dernier");
}

}  // namespace
}  // namespace trovex::win32
