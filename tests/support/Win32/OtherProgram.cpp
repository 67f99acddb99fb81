#include "support/Win32/OtherProgram.h"

namespace trovex::test {

OtherProgram::OtherProgram() {
  const HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  thread_ = std::thread([this, ready] { Live(ready); });
  WaitForSingleObject(ready, INFINITE);
  CloseHandle(ready);
}

OtherProgram::~OtherProgram() {
  PostThreadMessageW(thread_id_, WM_QUIT, 0, 0);
  thread_.join();
}

void OtherProgram::Live(HANDLE ready) {
  thread_id_ = GetCurrentThreadId();
  window_ = CreateWindowExW(0, L"STATIC", L"Autre programme", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200,
                            nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  ShowWindow(window_, SW_SHOWNOACTIVATE);
  SetEvent(ready);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  DestroyWindow(window_);
}

}  // namespace trovex::test
