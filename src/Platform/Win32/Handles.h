// Owned handles of the system. A header without <windows.h>: a handle is a plain pointer there.
#pragma once

#include <memory>

namespace trovex {

// Closes what CreateFileW gave.
struct FileHandleCloser {
  void operator()(void* handle) const;
};
using OwnedFile = std::unique_ptr<void, FileHandleCloser>;

// Closes what FindFirstFileExW gave.
struct FindHandleCloser {
  void operator()(void* handle) const;
};
using OwnedFind = std::unique_ptr<void, FindHandleCloser>;

// Takes a handle over; the system's invalid one becomes null.
OwnedFile OwnFile(void* handle);
OwnedFind OwnFind(void* handle);

}  // namespace trovex
