#include "Platform/Win32/Handles.h"

#include "Platform/Win32/Windows.h"

namespace trovex {

void FileHandleCloser::operator()(void* handle) const {
  CloseHandle(handle);
}
void FindHandleCloser::operator()(void* handle) const {
  ::FindClose(handle);
}

OwnedFile OwnFile(void* handle) {
  return OwnedFile(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

OwnedFind OwnFind(void* handle) {
  return OwnedFind(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

}  // namespace trovex
