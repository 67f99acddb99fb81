#include "support/Win32/Steps.h"

#include <utility>

namespace trovex::test {

Steps* Steps::current_ = nullptr;

// A timer's message comes behind all others.
Steps::Steps(std::deque<std::function<void()>> steps)
    : steps_(std::move(steps)), timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer)) {
  current_ = this;
}

Steps::~Steps() {
  KillTimer(nullptr, timer_);
  current_ = nullptr;
}

void CALLBACK Steps::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
  if (current_ == nullptr || current_->steps_.empty()) return;
  const std::function<void()> step = std::move(current_->steps_.front());
  current_->steps_.pop_front();
  step();
}

}  // namespace trovex::test
