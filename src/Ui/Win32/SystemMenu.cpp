#include "Ui/Win32/SystemMenu.h"

#include "Platform/Win32/Names.h"

namespace trovex::win32 {
namespace {

// The system keeps the lower four bits of such a command for itself, and all numbers from 0xF000
// on.
constexpr UINT kCommandStep = 0x10;
constexpr WPARAM kCommandMask = 0xFFF0;

UINT CommandOf(std::size_t entry) {
  return static_cast<UINT>(entry + 1) * kCommandStep;
}

}  // namespace

void MirrorSystemMenu(HWND window, const Form& form) {
  GetSystemMenu(window, TRUE);  // drops what was added before
  const HMENU menu = GetSystemMenu(window, FALSE);
  const auto& entries = form.MenuEntries();
  if (!entries.empty()) AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const UINT mark = entries[i]->Checked() ? MF_CHECKED : MF_UNCHECKED;
    AppendMenuW(menu, MF_STRING | mark, CommandOf(i), Wide(entries[i]->Caption()));
  }
}

MenuEntry* EntryOfCommand(const Form& form, WPARAM command) {
  const auto& entries = form.MenuEntries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if ((command & kCommandMask) == CommandOf(i)) return entries[i].get();
  }
  return nullptr;
}

}  // namespace trovex::win32
