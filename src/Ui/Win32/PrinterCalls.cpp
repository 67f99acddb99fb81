#include "Ui/Win32/PrinterCalls.h"

#include <vector>

#include "Platform/Win32/Names.h"

// Behind Windows.h, whose types it needs.
#include <winspool.h>

namespace trovex::win32 {
namespace {

Text FirstPrinter() {
  constexpr DWORD kAll = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
  DWORD needed = 0, count = 0;
  EnumPrintersW(kAll, nullptr, 4, nullptr, 0, &needed, &count);
  std::vector<BYTE> list(needed);
  if (needed == 0 || !EnumPrintersW(kAll, nullptr, 4, list.data(), needed, &needed, &count) ||
      count == 0) {
    return {};
  }
  return FromWide(reinterpret_cast<const PRINTER_INFO_4W*>(list.data())->pPrinterName);
}

HGLOBAL SettingsOf(const Text& printer) {
  Text name = printer;
  HANDLE opened = nullptr;
  if (!OpenPrinterW(Wide(name), &opened, nullptr)) return nullptr;
  HGLOBAL settings = nullptr;
  const LONG size = DocumentPropertiesW(nullptr, opened, Wide(name), nullptr, nullptr, 0);
  if (size > 0) settings = GlobalAlloc(GHND, static_cast<SIZE_T>(size));
  if (settings != nullptr) {
    auto* mode = static_cast<DEVMODEW*>(GlobalLock(settings));
    const LONG got = DocumentPropertiesW(nullptr, opened, Wide(name), mode, nullptr, DM_OUT_BUFFER);
    GlobalUnlock(settings);
    if (got < 0) settings = GlobalFree(settings);
  }
  ClosePrinter(opened);
  return settings;
}

}  // namespace

PrinterCalls& Printers() {
  static PrinterCalls calls = {FirstPrinter,  SettingsOf,   PrintDlgW, CommDlgExtendedError,
                               GetDeviceCaps, SetAbortProc, StartDocW, StartPage,
                               EndPage,       EndDoc,       AbortDoc};
  return calls;
}

}  // namespace trovex::win32
