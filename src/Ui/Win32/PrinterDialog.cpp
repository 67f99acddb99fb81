#include "Ui/Win32/PrinterDialog.h"

#include <algorithm>

namespace trovex::win32 {
namespace {

constexpr TextView kDriver = u"winspool";

// The record in which the dialog is told a printer by its name.
HGLOBAL NamesOf(const Text& printer) {
  const Text end(1, u'\0');
  const Text texts = Text(kDriver) + end + printer + end + end;
  constexpr std::size_t kBegin = sizeof(DEVNAMES) / sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GHND, sizeof(DEVNAMES) + texts.size() * sizeof(char16_t));
  if (memory == nullptr) return nullptr;
  auto* names = static_cast<DEVNAMES*>(GlobalLock(memory));
  names->wDriverOffset = static_cast<WORD>(kBegin);
  names->wDeviceOffset = static_cast<WORD>(kBegin + kDriver.size() + 1);
  names->wOutputOffset = static_cast<WORD>(kBegin + texts.size() - 1);
  std::copy(texts.begin(), texts.end(), reinterpret_cast<char16_t*>(names) + kBegin);
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

PrinterDialog::PrinterDialog(HWND owner, std::size_t pages) {
  dialog_.lStructSize = sizeof dialog_;
  dialog_.hwndOwner = owner;
  dialog_.nFromPage = dialog_.nMinPage = 1;
  dialog_.nToPage = dialog_.nMaxPage = static_cast<WORD>(std::min<std::size_t>(pages, 0xFFFF));
}

PrinterDialog::~PrinterDialog() {
  if (dialog_.hDC != nullptr) DeleteDC(dialog_.hDC);
  GlobalFree(dialog_.hDevMode);
  GlobalFree(dialog_.hDevNames);
}

bool PrinterDialog::Prepare(Extent page) {
  const Text first = Printers().first_printer();
  if (first.empty()) return false;
  if (!TakeDefault()) Take(first);
  Lay(page);
  return true;
}

bool PrinterDialog::TakeDefault() {
  dialog_.Flags = PD_RETURNDEFAULT | PD_NOWARNING;
  return Printers().dialog(&dialog_) != 0;
}

void PrinterDialog::Take(const Text& printer) {
  dialog_.hDevNames = NamesOf(printer);
  dialog_.hDevMode = Printers().settings_of(printer);
}

void PrinterDialog::Lay(Extent page) {
  if (dialog_.hDevMode == nullptr) return;
  auto* mode = static_cast<DEVMODEW*>(GlobalLock(dialog_.hDevMode));
  mode->dmFields |= DM_ORIENTATION;
  mode->dmOrientation = page.width > page.height ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
  GlobalUnlock(dialog_.hDevMode);
}

// Printing into a file is left to printers that do nothing else: they ask for a name themselves.
PrinterDialog::Answer PrinterDialog::Ask() {
  dialog_.Flags = PD_ALLPAGES | PD_NOSELECTION | PD_RETURNDC | PD_USEDEVMODECOPIESANDCOLLATE |
                  PD_HIDEPRINTTOFILE | PD_DISABLEPRINTTOFILE | PD_NOWARNING;
  if (Printers().dialog(&dialog_)) return dialog_.hDC ? Answer::kPrint : Answer::kFailed;
  return Printers().dialog_error() == 0 ? Answer::kBack : Answer::kFailed;
}

std::size_t PrinterDialog::End(std::size_t pages) const {
  return Ranged() ? std::min<std::size_t>(dialog_.nToPage, pages) : pages;
}

}  // namespace trovex::win32
