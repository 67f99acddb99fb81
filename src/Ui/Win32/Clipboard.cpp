#include "Ui/Win32/Clipboard.h"

#include <cstring>

namespace trovex::win32 {
namespace {

// The text with its terminator in memory that the clipboard takes; null where there is none.
HGLOBAL MemoryOf(const Text& text) {
  const std::size_t size = (text.size() + 1) * sizeof(char16_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  if (memory == nullptr) return nullptr;
  std::memcpy(GlobalLock(memory), text.c_str(), size);
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

void CopyToClipboard(HWND window, const Text& text) {
  if (!OpenClipboard(window)) return;
  EmptyClipboard();
  const HGLOBAL memory = MemoryOf(text);
  if (memory != nullptr && SetClipboardData(CF_UNICODETEXT, memory) == nullptr) GlobalFree(memory);
  CloseClipboard();
}

}  // namespace trovex::win32
