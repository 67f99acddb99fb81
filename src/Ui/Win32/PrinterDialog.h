// The system's dialog for a document's printing.
#pragma once

#include "Ui/Preview.h"
#include "Ui/Win32/PrinterCalls.h"

namespace trovex::win32 {

// With what it gives, which is released at the end.
class PrinterDialog {
 public:
  PrinterDialog(HWND owner, std::size_t pages);
  ~PrinterDialog();
  PrinterDialog(const PrinterDialog&) = delete;
  PrinterDialog& operator=(const PrinterDialog&) = delete;

  // Takes the default printer with its own paper, or the first where none is the default, and lays
  // the paper as the page lies. False where the system knows no printer.
  bool Prepare(Extent page);
  enum class Answer { kPrint, kBack, kFailed };
  Answer Ask();

  HDC Device() const { return dialog_.hDC; }
  // The first page to print, from 0, and the one behind the last.
  std::size_t First() const { return Ranged() ? dialog_.nFromPage - 1u : 0; }
  std::size_t End(std::size_t pages) const;

 private:
  bool Ranged() const { return (dialog_.Flags & PD_PAGENUMS) != 0 && dialog_.nFromPage > 0; }
  bool TakeDefault();
  void Take(const Text& printer);
  void Lay(Extent page);

  PRINTDLGW dialog_ = {};
};

}  // namespace trovex::win32
