#include "Ui/Win32/Printing.h"

#include <algorithm>

#include "Platform/Win32/Names.h"

// Behind Windows.h, whose types they need.
#include <commdlg.h>
#include <winspool.h>

namespace trovex::win32 {
namespace {

bool AnyPrinter() {
  DWORD needed = 0, count = 0;
  EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 4, nullptr, 0, &needed,
                &count);
  return needed > 0;
}

// The dialog, with what it gives: released at the end.
class PrintDialog {
 public:
  PrintDialog(HWND owner, std::size_t pages) {
    dialog_.lStructSize = sizeof dialog_;
    dialog_.hwndOwner = owner;
    dialog_.nFromPage = dialog_.nMinPage = 1;
    dialog_.nToPage = dialog_.nMaxPage = static_cast<WORD>(std::min<std::size_t>(pages, 0xFFFF));
  }
  ~PrintDialog() {
    if (dialog_.hDC != nullptr) DeleteDC(dialog_.hDC);
    GlobalFree(dialog_.hDevMode);
    GlobalFree(dialog_.hDevNames);
  }
  PrintDialog(const PrintDialog&) = delete;
  PrintDialog& operator=(const PrintDialog&) = delete;

  // False where the system knows no printer to begin with.
  bool Prepare(Extent paper) {
    dialog_.Flags = PD_RETURNDEFAULT | PD_NOWARNING;
    if (!PrintDlgW(&dialog_)) return false;
    SetPaper(paper);
    return true;
  }

  bool Ask() {
    dialog_.Flags = PD_ALLPAGES | PD_NOSELECTION | PD_RETURNDC | PD_USEDEVMODECOPIESANDCOLLATE;
    return PrintDlgW(&dialog_) && dialog_.hDC != nullptr;
  }

  HDC Device() const { return dialog_.hDC; }
  // The first page to print, from 0, and the one behind the last.
  std::size_t First() const { return Ranged() ? dialog_.nFromPage - 1u : 0; }
  std::size_t End(std::size_t pages) const {
    return Ranged() ? std::min<std::size_t>(dialog_.nToPage, pages) : pages;
  }

 private:
  bool Ranged() const { return (dialog_.Flags & PD_PAGENUMS) != 0 && dialog_.nFromPage > 0; }

  void SetPaper(Extent paper) {
    auto* mode = static_cast<DEVMODEW*>(GlobalLock(dialog_.hDevMode));
    if (mode == nullptr) return;
    mode->dmFields |= DM_ORIENTATION | DM_PAPERSIZE;
    mode->dmOrientation = paper.width > paper.height ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
    mode->dmPaperSize = DMPAPER_A4;
    GlobalUnlock(dialog_.hDevMode);
  }

  PRINTDLGW dialog_ = {};
};

// Makes a pixel of the drawing a dot of the printer across, from the paper's corner on; smaller
// where the paper is smaller than the page.
Scale MapToPaper(HDC dc, Extent paper) {
  const Scale scale{GetDeviceCaps(dc, LOGPIXELSX)};
  const int down = GetDeviceCaps(dc, LOGPIXELSY);
  const double across = GetDeviceCaps(dc, PHYSICALWIDTH) / (paper.width / 1440 * scale.dpi);
  const double along = GetDeviceCaps(dc, PHYSICALHEIGHT) / (paper.height / 1440 * down);
  const double fit = std::min({1.0, across, along});
  constexpr int kUnits = 10000;
  SetMapMode(dc, MM_ANISOTROPIC);
  SetWindowExtEx(dc, kUnits, kUnits, nullptr);
  SetViewportExtEx(dc, static_cast<int>(kUnits * fit),
                   static_cast<int>(kUnits * fit * down / scale.dpi), nullptr);
  SetViewportOrgEx(dc, -GetDeviceCaps(dc, PHYSICALOFFSETX), -GetDeviceCaps(dc, PHYSICALOFFSETY),
                   nullptr);
  return scale;
}

bool PrintOn(HDC dc, const PrintDialog& dialog, const Pages& pages, PagePainter& painter) {
  const std::size_t end = dialog.End(pages.pages.size());
  for (std::size_t i = dialog.First(); i < end; ++i) {
    if (StartPage(dc) <= 0) return false;
    const Page& page = pages.pages[i];
    painter.Draw(dc, page, MapToPaper(dc, page.paper));
    if (EndPage(dc) <= 0) return false;
  }
  return true;
}

}  // namespace

void PrintPages(HWND owner, const Preview& preview, Fonts& fonts, PrintMeasure& measure) {
  const Pages& pages = preview.pages;
  PrintDialog dialog(owner, pages.pages.size());
  if (!AnyPrinter() || !dialog.Prepare(pages.pages.front().paper)) {
    return preview.on_failure(preview.texts.no_printer);
  }
  if (!dialog.Ask()) return;
  SetCursor(LoadCursorW(nullptr, IDC_WAIT));
  const HDC dc = dialog.Device();
  const Text name = pages.title.empty() ? preview.application : pages.title;
  DOCINFOW document = {};
  document.cbSize = sizeof document;
  document.lpszDocName = Wide(name);
  if (StartDocW(dc, &document) <= 0) {
    // A document that is printed into a file asks for its name, and the user may go back.
    const bool cancelled = ::GetLastError() == ERROR_CANCELLED;
    if (!cancelled) preview.on_failure(preview.texts.not_printed);
    return;
  }
  PagePainter painter(pages, fonts, measure);
  if (PrintOn(dc, dialog, pages, painter) && EndDoc(dc) > 0) return;
  AbortDoc(dc);
  preview.on_failure(preview.texts.not_printed);
}

}  // namespace trovex::win32
