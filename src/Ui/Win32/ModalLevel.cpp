#include "Ui/Win32/ModalLevel.h"

namespace trovex::win32 {
namespace {

void SetOwner(HWND window, HWND owner) {
  SetWindowLongPtrW(window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

}  // namespace

ModalLevel::ModalLevel(std::vector<ModalLevel*>& levels, HWND window, HWND owner,
                       const std::vector<HWND>& beneath)
    : levels_(levels), window_(window), owner_(owner == window ? nullptr : owner) {
  levels_.push_back(this);
  SetOwner(window_, owner_);
  for (HWND other : beneath) {
    if (other == window_ || !IsWindowEnabled(other)) continue;
    EnableWindow(other, FALSE);
    disabled_.push_back(other);
  }
}

ModalLevel::~ModalLevel() {
  End();
  levels_.pop_back();
  // A window goes with its owner: one that only hides must outlive it.
  if (IsWindow(window_)) SetOwner(window_, nullptr);
}

void ModalLevel::End() {
  if (ended_) return;
  ended_ = true;
  for (HWND other : disabled_) EnableWindow(other, TRUE);
  if (owner_ != nullptr && GetActiveWindow() == window_) SetActiveWindow(owner_);
}

}  // namespace trovex::win32
