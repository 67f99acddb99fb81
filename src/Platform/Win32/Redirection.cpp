#include "Platform/Win32/Redirection.h"

#include "Platform/Win32/SystemCalls.h"

namespace trovex {

RedirectionCalls& Redirection() {
  static RedirectionCalls calls = {
      SystemCall<int __stdcall(void**)>(L"kernel32", "Wow64DisableWow64FsRedirection"),
      SystemCall<int __stdcall(void*)>(L"kernel32", "Wow64RevertWow64FsRedirection")};
  return calls;
}

// A system of 32 bits may have the calls and refuse them.
Unredirected::Unredirected() {
  const RedirectionCalls& calls = Redirection();
  off_ = calls.disable != nullptr && calls.revert != nullptr && calls.disable(&former_) != 0;
}

Unredirected::~Unredirected() {
  if (off_) Redirection().revert(former_);
}

}  // namespace trovex
