#include "Platform/Win32/Names.h"
#include "Ui/Win32/Clipboard.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

constexpr UINT_PTR kSubclassId = 1;

int FormatOf(Alignment alignment) {
  switch (alignment) {
    case Alignment::kLeft:
      break;
    case Alignment::kRight:
      return LVCFMT_RIGHT;
    case Alignment::kCentre:
      return LVCFMT_CENTER;
  }
  return LVCFMT_LEFT;
}

}  // namespace

GridWindow::GridWindow(Grid& model, FormWindow& form) : NativeControl(model, form), grid_(model) {
  Create(WC_LISTVIEWW,
         LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER |
             WS_TABSTOP,
         WS_EX_CLIENTEDGE);
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0,
       LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP);
  MakeColumns();
  SetWindowSubclass(reinterpret_cast<HWND>(Send(LVM_GETHEADER)), TitleRow, kSubclassId,
                    reinterpret_cast<DWORD_PTR>(this));
  Flush();
}

// The title row is a window of its own, but part of the table to the user.
LRESULT CALLBACK GridWindow::TitleRow(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                      DWORD_PTR data) {
  const auto* table = reinterpret_cast<const GridWindow*>(data);
  if (message == WM_NCDESTROY) RemoveWindowSubclass(window, TitleRow, kSubclassId);
  if (message == WM_MOUSEMOVE) table->Owner().Run(table->grid_.on_mouse_move);
  return DefSubclassProc(window, message, w, l);
}

void GridWindow::MakeColumns() {
  // The first column of a list view is always left-aligned, unless it once was the second.
  LVCOLUMNW column = {};
  Send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  for (int col = 0; col < grid_.Cols(); ++col) {
    column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM;
    column.fmt = FormatOf(grid_.ColAlignment(col));
    column.cx = GetScale().Pixels(grid_.ColWidth(col));
    column.pszText = const_cast<wchar_t*>(Wide(grid_.Cell(0, col)));
    column.iSubItem = col;
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(col + 1), reinterpret_cast<LPARAM>(&column));
  }
  Send(LVM_DELETECOLUMN, 0);
}

void GridWindow::ShowColumns() {
  showing_columns_ = true;
  for (int col = 0; col < grid_.Cols(); ++col) {
    LVCOLUMNW column = {};
    column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT;
    column.fmt = FormatOf(grid_.ColAlignment(col));
    column.cx = GetScale().Pixels(grid_.ColWidth(col));
    column.pszText = const_cast<wchar_t*>(Wide(grid_.Cell(0, col)));
    Send(LVM_SETCOLUMNW, static_cast<WPARAM>(col), reinterpret_cast<LPARAM>(&column));
  }
  showing_columns_ = false;
}

// A column that the user has widened or narrowed keeps its width.
void GridWindow::OnPartNotify(const NMHDR& header) {
  if (header.code != HDN_ITEMCHANGEDW || showing_columns_ || Mirroring()) return;
  const auto& change = reinterpret_cast<const NMHEADERW&>(header);
  const bool width = change.pitem != nullptr && (change.pitem->mask & HDI_WIDTH) != 0;
  if (!width || change.iItem >= grid_.Cols()) return;
  grid_.SetColWidth(change.iItem, GetScale().Twips(change.pitem->cxy));
}

void GridWindow::MirrorProperty(Property) {
  stale_ = true;
  Owner().RequestFlush();
}

void GridWindow::Rescale() {
  NativeControl::Rescale();
  stale_ = true;
  Owner().RequestFlush();
}

// Some list views keep the colours that they began with.
void GridWindow::Recolour() {
  NativeControl::Recolour();
  Send(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(GetSysColor(COLOR_WINDOW)));
  Send(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(GetSysColor(COLOR_WINDOW)));
  Send(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(GetSysColor(COLOR_WINDOWTEXT)));
}

void GridWindow::Flush() {
  if (!stale_) return;
  stale_ = false;
  ShowColumns();
  Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(grid_.Rows() - 1), LVSICF_NOSCROLL);
  ShowSelection();
  InvalidateRect(Handle(), nullptr, FALSE);
}

void GridWindow::ShowSelection() {
  const int item = grid_.Row() - 1;
  if (item >= 0 && Send(LVM_GETITEMSTATE, static_cast<WPARAM>(item), LVIS_SELECTED) != 0) return;
  // By name: some list views go through all their rows to find what they should release.
  if (selected_ >= 0) SetItemState(selected_, 0);
  selected_ = -1;
  if (item < 0) return;
  SetItemState(item, LVIS_SELECTED | LVIS_FOCUSED);
  Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(item), FALSE);
}

void GridWindow::SetItemState(int item, UINT selection) {
  LVITEMW state = {};
  state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  state.state = selection;
  Send(LVM_SETITEMSTATE, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&state));
}

void GridWindow::FillCell(NMLVDISPINFOW& info) {
  LVITEMW& item = info.item;
  const int row = item.iItem + 1;
  const bool exists = row < grid_.Rows() && item.iSubItem < grid_.Cols();
  if ((item.mask & LVIF_TEXT) == 0 || item.cchTextMax <= 0) return;
  const Text cell = exists ? grid_.Cell(row, item.iSubItem) : Text();
  const auto length = std::min(cell.size(), static_cast<std::size_t>(item.cchTextMax - 1));
  std::copy_n(Wide(cell), length, item.pszText);
  item.pszText[length] = L'\0';
}

// What the user does comes while nothing is stale: otherwise the window is only being filled.
void GridWindow::Choose(int item) {
  if (Mirroring() || stale_ || item < 0 || item + 1 >= grid_.Rows()) return;
  Owner().Run([this, item] {
    grid_.SetRow(item + 1);
    Raise(grid_.on_click);
  });
}

void GridWindow::OnSelected(int item) {
  selected_ = item;
  if (item + 1 == grid_.Row()) return;
  if (pressed_) chosen_by_press_ = item;
  Choose(item);
}

// A press on another row has chosen it already; a click on the chosen row counts once more. One
// beside all rows chooses none: the highlight that it took away comes back.
void GridWindow::OnClicked(int item) {
  if (item < 0) ShowSelection();
  if (item != chosen_by_press_) Choose(item);
  chosen_by_press_ = -1;
}

void GridWindow::OnInput(UINT message) {
  pressed_ = message != WM_KEYDOWN;
  if (pressed_) chosen_by_press_ = -1;
}

// Not every system's list names the row that the Enter key is pressed on: it is the current one.
// The mouse means the row under it.
void GridWindow::OnActivated(int item) {
  if (item >= 0 || !pressed_) Owner().Run(grid_.on_dbl_click);
}

bool GridWindow::OnKey(WPARAM key) {
  if (key != 'C' || !ControlHeld()) return false;
  CopyRow();
  return true;
}

void GridWindow::CopyRow() const {
  if (grid_.Row() >= grid_.FixedRows()) CopyToClipboard(Handle(), grid_.RowText(grid_.Row()));
}

int GridWindow::FindItem(const NMLVFINDITEMW& wish) const {
  constexpr UINT kText = LVFI_STRING | LVFI_PARTIAL;
  if ((wish.lvfi.flags & kText) == 0 || wish.lvfi.psz == nullptr) return -1;
  return grid_.FindRow(FromWide(wish.lvfi.psz), wish.iStart + 1) - 1;
}

// The current row is highlighted whether or not the table has the focus.
LRESULT GridWindow::DrawHighlight(NMLVCUSTOMDRAW& draw) {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  const auto row = static_cast<int>(draw.nmcd.dwItemSpec) + 1;
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT || row != grid_.Row()) return CDRF_DODEFAULT;
  draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
  draw.clrText = GetSysColor(COLOR_HIGHLIGHTTEXT);
  draw.clrTextBk = GetSysColor(COLOR_HIGHLIGHT);
  return CDRF_NEWFONT;
}

bool GridWindow::OnNotify(NMHDR& header, LRESULT& result) {
  switch (header.code) {
    case NM_CUSTOMDRAW:
      result = DrawHighlight(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
      return true;
    case LVN_GETDISPINFOW:
      FillCell(reinterpret_cast<NMLVDISPINFOW&>(header));
      return true;
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<NMLISTVIEW&>(header);
      const bool selected = (change.uNewState & LVIS_SELECTED) != 0;
      if (selected && (change.uOldState & LVIS_SELECTED) == 0) OnSelected(change.iItem);
      return true;
    }
    case NM_CLICK:
      OnClicked(reinterpret_cast<NMITEMACTIVATE&>(header).iItem);
      return true;
    case LVN_ITEMACTIVATE:
      OnActivated(reinterpret_cast<NMITEMACTIVATE&>(header).iItem);
      return true;
    case LVN_ODFINDITEMW:
      result = FindItem(reinterpret_cast<const NMLVFINDITEMW&>(header));
      return true;
    default:
      return false;
  }
}

}  // namespace trovex::win32
