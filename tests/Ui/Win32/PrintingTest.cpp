// Printing without a printer: what it asks of the system is answered by the test.
#include "Ui/Win32/Printing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Win32/Names.h"
#include "Ui/Win32/PrinterCalls.h"

// Behind Windows.h.
#include <cderr.h>

namespace trovex::win32 {
namespace {

using testing::ElementsAre;

// The machine: its printer, what the user chooses in the dialog, and what became of the job.
struct Machine {
  Text printer = u"Imprimante";
  bool has_default = true;
  std::map<int, int> capabilities = {{LOGPIXELSX, 100},     {LOGPIXELSY, 100},
                                     {PHYSICALWIDTH, 850},  {PHYSICALHEIGHT, 1100},
                                     {PHYSICALOFFSETX, 25}, {PHYSICALOFFSETY, 25}};
  std::function<void(PRINTDLGW&)> on_dialog;
  std::function<int(int)> on_end_page = [](int) { return 1; };
  std::function<void(int)> on_start_page;
  std::function<int()> on_start = [] { return 1; };
  std::function<int()> on_end = [] { return 1; };
  bool dialog_fails = false;
  DWORD dialog_error = 0;

  std::vector<std::string> calls;
  int pages = 0;
  Text title;
  ABORTPROC abort = nullptr;
};

Machine* machine = nullptr;

HGLOBAL Letter() {
  const HGLOBAL memory = GlobalAlloc(GHND, sizeof(DEVMODEW));
  auto* mode = static_cast<DEVMODEW*>(GlobalLock(memory));
  mode->dmSize = sizeof(DEVMODEW);
  mode->dmFields = DM_PAPERSIZE;
  mode->dmPaperSize = DMPAPER_LETTER;
  GlobalUnlock(memory);
  return memory;
}

BOOL WINAPI Dialog(PRINTDLGW* dialog) {
  if (dialog->Flags & PD_RETURNDEFAULT) {
    if (!machine->has_default) return FALSE;
    dialog->hDevMode = Letter();
    return TRUE;
  }
  machine->calls.push_back("dialog");
  if (machine->dialog_fails) return FALSE;
  if (machine->on_dialog) machine->on_dialog(*dialog);
  dialog->hDC = CreateCompatibleDC(nullptr);
  return TRUE;
}

DWORD WINAPI DialogError() {
  return machine->dialog_error;
}

Text FirstPrinter() {
  return machine->printer;
}
HGLOBAL SettingsOf(const Text&) {
  return Letter();
}
int WINAPI Capability(HDC, int index) {
  return machine->capabilities[index];
}
int WINAPI SetAbort(HDC, ABORTPROC procedure) {
  machine->abort = procedure;
  return 1;
}
int WINAPI StartDocument(HDC, const DOCINFOW* document) {
  machine->calls.push_back("start");
  machine->title = FromWide(document->lpszDocName);
  return machine->on_start();
}
int WINAPI StartOfPage(HDC) {
  ++machine->pages;
  if (machine->on_start_page) machine->on_start_page(machine->pages);
  return 1;
}
int WINAPI EndOfPage(HDC) {
  return machine->on_end_page(machine->pages);
}
int WINAPI EndDocument(HDC) {
  machine->calls.push_back("end");
  return machine->on_end();
}
int WINAPI AbortDocument(HDC) {
  machine->calls.push_back("abort");
  return 1;
}

HWND Box() {
  return FindWindowW(L"TrovexPrinting", nullptr);
}

class PrintingTest : public ::testing::Test {
 protected:
  PrintingTest() : former_(Printers()) {
    machine = &machine_;
    Printers() = {FirstPrinter,  SettingsOf,  Dialog,    DialogError, Capability,   SetAbort,
                  StartDocument, StartOfPage, EndOfPage, EndDocument, AbortDocument};
    texts_.page = u"Page ";
    texts_.of = u" sur ";
    texts_.printing = u"Impression";
    texts_.cancel = u"Annuler";
    texts_.no_printer = u"aucune";
    texts_.not_printed = u"refus";
    document_.title = u"Liste";
    for (int i = 0; i < 3; ++i) document_.pages.emplace_back().paper = {16838, 11906};
    owner_ = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300,
                             nullptr, nullptr, nullptr, nullptr);
  }
  ~PrintingTest() override {
    DestroyWindow(owner_);
    Printers() = former_;
    machine = nullptr;
  }

  void Print() {
    const auto fail = [this](const Text& failure) { failures_.push_back(failure); };
    const Preview preview = {document_, true, u"Trovex", texts_, {}, fail};
    PrintPages(owner_, preview, fonts_, measure_);
  }
  static Text TextOf(HWND window) {
    wchar_t text[100] = {};
    GetWindowTextW(window, text, 100);
    return FromWide(text);
  }

  Machine machine_;
  Pages document_;
  HWND owner_ = nullptr;
  std::vector<Text> failures_;

 private:
  PrinterCalls former_;
  PreviewTexts texts_;
  Fonts fonts_;
  PrintMeasure measure_{fonts_};
};

TEST_F(PrintingTest, PrintsThePagesUnderTheDocumentsTitle) {
  Print();
  EXPECT_EQ(machine_.pages, 3);
  EXPECT_THAT(machine_.calls, ElementsAre("dialog", "start", "end"));
  EXPECT_EQ(machine_.title, u"Liste");
  EXPECT_TRUE(failures_.empty());
}

TEST_F(PrintingTest, WithoutAnyPrinterSaysSo) {
  machine_.printer.clear();
  Print();
  EXPECT_THAT(failures_, ElementsAre(u"aucune"));
  EXPECT_TRUE(machine_.calls.empty());
}

TEST_F(PrintingTest, WithoutADefaultPrinterTheDialogComesUpOnTheFirstOne) {
  machine_.has_default = false;
  Text named;
  bool landscape = false;
  machine_.on_dialog = [&](PRINTDLGW& dialog) {
    auto* names = static_cast<DEVNAMES*>(GlobalLock(dialog.hDevNames));
    named = FromWide(reinterpret_cast<wchar_t*>(names) + names->wDeviceOffset);
    GlobalUnlock(dialog.hDevNames);
    auto* mode = static_cast<DEVMODEW*>(GlobalLock(dialog.hDevMode));
    landscape = mode->dmOrientation == DMORIENT_LANDSCAPE;
    GlobalUnlock(dialog.hDevMode);
  };
  Print();
  EXPECT_EQ(named, u"Imprimante");
  EXPECT_TRUE(landscape);
  EXPECT_EQ(machine_.pages, 3);
  EXPECT_TRUE(failures_.empty());
}

TEST_F(PrintingTest, TheDialogOpensWithThePrintersOwnPaperLaidAsThePagesLie) {
  short paper = 0, orientation = 0;
  DWORD flags = 0;
  machine_.on_dialog = [&](PRINTDLGW& dialog) {
    auto* mode = static_cast<DEVMODEW*>(GlobalLock(dialog.hDevMode));
    paper = mode->dmPaperSize;
    orientation = mode->dmOrientation;
    flags = dialog.Flags;
    GlobalUnlock(dialog.hDevMode);
  };
  Print();
  EXPECT_EQ(paper, DMPAPER_LETTER);
  EXPECT_EQ(orientation, DMORIENT_LANDSCAPE);
  EXPECT_TRUE(flags & PD_HIDEPRINTTOFILE) << "printing to a file is not offered";
}

TEST_F(PrintingTest, OnlyTheChosenPagesArePrinted) {
  machine_.on_dialog = [](PRINTDLGW& dialog) {
    dialog.Flags |= PD_PAGENUMS;
    dialog.nFromPage = 2;
    dialog.nToPage = 2;
  };
  Print();
  EXPECT_EQ(machine_.pages, 1);
}

TEST_F(PrintingTest, ARunningJobShowsItsPageAndTheOwnerWaits) {
  std::vector<Text> shown;
  machine_.on_start_page = [&](int) {
    EXPECT_TRUE(IsWindowVisible(Box()));
    EXPECT_EQ(GetWindow(Box(), GW_OWNER), owner_);
    EXPECT_EQ(TextOf(Box()), u"Impression");
    EXPECT_EQ(TextOf(GetDlgItem(Box(), IDCANCEL)), u"Annuler");
    EXPECT_EQ(GetFocus(), GetDlgItem(Box(), IDCANCEL));
    EXPECT_FALSE(IsWindowEnabled(owner_));
    shown.push_back(TextOf(FindWindowExW(Box(), nullptr, L"STATIC", nullptr)));
  };
  Print();
  EXPECT_THAT(shown, ElementsAre(u"Page 1 sur 3", u"Page 2 sur 3", u"Page 3 sur 3"));
  EXPECT_EQ(Box(), nullptr);
  EXPECT_TRUE(IsWindowEnabled(owner_));
}

TEST_F(PrintingTest, TheButtonStopsTheJobAndThatIsNoFailure) {
  machine_.on_start_page = [&](int page) {
    if (page == 2) PostMessageW(GetDlgItem(Box(), IDCANCEL), BM_CLICK, 0, 0);
  };
  Print();
  EXPECT_EQ(machine_.pages, 2);
  EXPECT_THAT(machine_.calls, ElementsAre("dialog", "start", "abort"));
  EXPECT_TRUE(failures_.empty());
  EXPECT_TRUE(IsWindowEnabled(owner_));
}

TEST_F(PrintingTest, EscapeStopsTheJobToo) {
  machine_.on_start_page = [&](int) {
    PostMessageW(GetDlgItem(Box(), IDCANCEL), WM_KEYDOWN, VK_ESCAPE, 1);
  };
  Print();
  EXPECT_EQ(machine_.pages, 1);
  EXPECT_TRUE(failures_.empty());
}

TEST_F(PrintingTest, TheSystemIsToldWhetherToGoOn) {
  bool before = false, after = true;
  machine_.on_start_page = [&](int) {
    ASSERT_NE(machine_.abort, nullptr);
    before = machine_.abort(nullptr, 0) != 0;
    PostMessageW(Box(), WM_CLOSE, 0, 0);
    after = machine_.abort(nullptr, 0) != 0;
  };
  Print();
  EXPECT_TRUE(before);
  EXPECT_FALSE(after);
}

TEST_F(PrintingTest, AJobCancelledInTheSpoolerIsNoFailure) {
  machine_.on_end_page = [](int page) {
    if (page == 1) return 1;
    SetLastError(ERROR_PRINT_CANCELLED);
    return -1;
  };
  Print();
  EXPECT_EQ(machine_.pages, 2);
  EXPECT_TRUE(failures_.empty());
}

TEST_F(PrintingTest, AUserAbortOfTheSystemsIsNoFailureEither) {
  machine_.on_end_page = [](int) { return SP_USERABORT; };
  Print();
  EXPECT_TRUE(failures_.empty());
}

TEST_F(PrintingTest, WhatThePrinterRefusesIsReported) {
  machine_.on_end_page = [](int) {
    SetLastError(ERROR_ACCESS_DENIED);
    return SP_ERROR;
  };
  Print();
  EXPECT_THAT(failures_, ElementsAre(u"refus"));
  EXPECT_THAT(machine_.calls, ElementsAre("dialog", "start", "abort"));
}

TEST_F(PrintingTest, WhoGoesBackInTheDialogIsToldNothing) {
  machine_.dialog_fails = true;
  Print();
  EXPECT_TRUE(failures_.empty());
  EXPECT_THAT(machine_.calls, ElementsAre("dialog"));
}

TEST_F(PrintingTest, ADialogThatFailsIsReported) {
  machine_.dialog_fails = true;
  machine_.dialog_error = PDERR_PRINTERNOTFOUND;
  Print();
  EXPECT_THAT(failures_, ElementsAre(u"refus"));
  EXPECT_THAT(machine_.calls, ElementsAre("dialog"));
}

TEST_F(PrintingTest, WhoGoesBackWhereADriverAsksForAFileIsToldNothing) {
  machine_.on_start = [] {
    SetLastError(ERROR_CANCELLED);
    return SP_ERROR;
  };
  Print();
  EXPECT_TRUE(failures_.empty());
  EXPECT_EQ(machine_.pages, 0);
}

TEST_F(PrintingTest, AJobThatFailsAtItsEndIsReported) {
  SetLastError(ERROR_PRINT_CANCELLED);
  machine_.on_end = [] { return SP_ERROR; };
  Print();
  EXPECT_THAT(failures_, ElementsAre(u"refus")) << "an older code says nothing about this job";
}

TEST_F(PrintingTest, AJobStoppedAtItsEndIsNoFailure) {
  machine_.on_end = [] {
    SendMessageW(Box(), WM_CLOSE, 0, 0);
    return SP_ERROR;
  };
  Print();
  EXPECT_TRUE(failures_.empty());
}

TEST(SheetFitTest, APageLiesInTheMiddleAsLargeAsItCanBe) {
  // A4 landscape on a letter sheet at 100 dots an inch that prints a quarter of an inch from its
  // edges on.
  const SheetFit letter = FitToSheet({16838, 11906}, {100, 100, 1100, 850, 25, 25});
  EXPECT_NEAR(letter.scale, 1100 / 1169.3, 0.001);
  EXPECT_EQ(letter.left, -25);
  EXPECT_EQ(letter.top, 36 - 25);
  // On its own paper it keeps its size.
  const SheetFit own = FitToSheet({11906, 16838}, {600, 600, 4961, 7016, 100, 100});
  EXPECT_NEAR(own.scale, 1, 0.001);
  EXPECT_NEAR(own.top, -100, 1);
  // Twice as large on paper of four times the size, at dots that are not square.
  const SheetFit large = FitToSheet({11906, 16838}, {300, 600, 4961, 14032, 0, 0});
  EXPECT_NEAR(large.scale, 2, 0.001);
}

}  // namespace
}  // namespace trovex::win32
