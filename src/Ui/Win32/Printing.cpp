#include "Ui/Win32/Printing.h"

#include <algorithm>
#include <cmath>

#include "Platform/Win32/Names.h"
#include "Ui/Win32/PrinterDialog.h"
#include "Ui/Win32/PrintingBox.h"

namespace trovex::win32 {
namespace {

constexpr double kTwipsPerInch = 1440;

enum class Outcome { kDone, kCancelled, kFailed };

// What a call of the printer's that gave no success means.
Outcome OutcomeOf(int result) {
  const DWORD code = ::GetLastError();
  const bool cancelled = result == SP_USERABORT || result == SP_APPABORT ||
                         code == ERROR_CANCELLED || code == ERROR_PRINT_CANCELLED;
  return cancelled ? Outcome::kCancelled : Outcome::kFailed;
}

Sheet SheetOf(HDC dc) {
  const auto ask = [dc](int index) { return Printers().capability(dc, index); };
  return {ask(LOGPIXELSX),     ask(LOGPIXELSY),      ask(PHYSICALWIDTH),
          ask(PHYSICALHEIGHT), ask(PHYSICALOFFSETX), ask(PHYSICALOFFSETY)};
}

// Makes a pixel of the drawing a dot of the printer across, before the page is fitted.
Scale MapToPaper(HDC dc, Extent page) {
  const Sheet sheet = SheetOf(dc);
  const SheetFit fit = FitToSheet(page, sheet);
  constexpr int kUnits = 10000;
  SetMapMode(dc, MM_ANISOTROPIC);
  SetWindowExtEx(dc, kUnits, kUnits, nullptr);
  SetViewportExtEx(dc, static_cast<int>(kUnits * fit.scale),
                   static_cast<int>(kUnits * fit.scale * sheet.dots_down / sheet.dots_across),
                   nullptr);
  SetViewportOrgEx(dc, fit.left, fit.top, nullptr);
  return {sheet.dots_across};
}

class Job {
 public:
  Job(const Preview& preview, const PrinterDialog& dialog, PrintingBox& box, PagePainter& painter)
      : preview_(preview), dialog_(dialog), box_(box), painter_(painter) {}

  Outcome Run() {
    const PrinterCalls& printer = Printers();
    const HDC dc = dialog_.Device();
    const Text& title = preview_.pages.title;
    const Text name = title.empty() ? preview_.application : title;
    DOCINFOW document = {};
    document.cbSize = sizeof document;
    document.lpszDocName = Wide(name);
    printer.set_abort(dc, PrintingBox::Ask);
    SetLastError(ERROR_SUCCESS);
    const int started = printer.start_document(dc, &document);
    // A document that is printed into a file asks for its name, and the user may go back.
    if (started <= 0) return OutcomeOf(started);
    const Outcome outcome = PrintAll(dc);
    if (outcome == Outcome::kDone) {
      SetLastError(ERROR_SUCCESS);
      const int ended = printer.end_document(dc);
      if (ended > 0) return outcome;
      return box_.GoOn() ? OutcomeOf(ended) : Outcome::kCancelled;
    }
    printer.abort_document(dc);
    return outcome;
  }

 private:
  Outcome PrintAll(HDC dc) {
    const std::vector<Page>& pages = preview_.pages.pages;
    const std::size_t end = dialog_.End(pages.size());
    for (std::size_t i = dialog_.First(); i < end; ++i) {
      box_.Show(preview_.texts.page + Decimal(static_cast<long long>(i + 1)) + preview_.texts.of +
                Decimal(static_cast<long long>(pages.size())));
      if (!box_.GoOn()) return Outcome::kCancelled;
      const int result = PrintPage(dc, pages[i]);
      if (!box_.GoOn()) return Outcome::kCancelled;
      if (result <= 0) return OutcomeOf(result);
    }
    return Outcome::kDone;
  }

  int PrintPage(HDC dc, const Page& page) {
    SetLastError(ERROR_SUCCESS);
    const int started = Printers().start_page(dc);
    if (started <= 0) return started;
    painter_.Draw(dc, page, MapToPaper(dc, page.paper));
    SetLastError(ERROR_SUCCESS);
    return Printers().end_page(dc);
  }

  const Preview& preview_;
  const PrinterDialog& dialog_;
  PrintingBox& box_;
  PagePainter& painter_;
};

}  // namespace

SheetFit FitToSheet(Extent page, const Sheet& sheet) {
  const double width = page.width / kTwipsPerInch * sheet.dots_across;
  const double height = page.height / kTwipsPerInch * sheet.dots_down;
  const double scale = std::min(sheet.width / width, sheet.height / height);
  return {scale, static_cast<int>(std::lround((sheet.width - width * scale) / 2)) - sheet.left,
          static_cast<int>(std::lround((sheet.height - height * scale) / 2)) - sheet.top};
}

void PrintPages(HWND owner, const Preview& preview, Fonts& fonts, PrintMeasure& measure) {
  const Pages& pages = preview.pages;
  PrinterDialog dialog(owner, pages.pages.size());
  if (!dialog.Prepare(pages.pages.front().paper)) {
    return preview.on_failure(preview.texts.no_printer);
  }
  const PrinterDialog::Answer answer = dialog.Ask();
  if (answer == PrinterDialog::Answer::kBack) return;
  if (answer == PrinterDialog::Answer::kFailed) {
    return preview.on_failure(preview.texts.not_printed);
  }
  PagePainter painter(pages, fonts, measure);
  Outcome outcome = Outcome::kDone;
  {
    PrintingBox box(owner, {preview.texts.printing, preview.texts.cancel}, fonts);
    outcome = Job(preview, dialog, box, painter).Run();
  }
  if (outcome == Outcome::kFailed) preview.on_failure(preview.texts.not_printed);
}

}  // namespace trovex::win32
