// What printing asks of the system, in a table: a test, which has no printer, puts its own in
// place.
#pragma once

#include "Ui/Win32/Scale.h"

// Behind Windows.h, whose types it needs.
#include <commdlg.h>

namespace trovex::win32 {

struct PrinterCalls {
  // Name of the first printer that the system lists; empty where there is none.
  Text (*first_printer)();
  // A copy of the printer's own settings in memory that GlobalFree frees; null where it has none.
  HGLOBAL (*settings_of)(const Text& printer);
  BOOL(WINAPI* dialog)(PRINTDLGW* dialog);
  // Why the dialog came to nothing; 0 where the user went back.
  DWORD(WINAPI* dialog_error)();
  int(WINAPI* capability)(HDC dc, int index);
  int(WINAPI* set_abort)(HDC dc, ABORTPROC procedure);
  int(WINAPI* start_document)(HDC dc, const DOCINFOW* document);
  int(WINAPI* start_page)(HDC dc);
  int(WINAPI* end_page)(HDC dc);
  int(WINAPI* end_document)(HDC dc);
  int(WINAPI* abort_document)(HDC dc);
};

// The system's own, until somebody changes them.
PrinterCalls& Printers();

}  // namespace trovex::win32
