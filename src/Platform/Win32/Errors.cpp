#include "Platform/Win32/Errors.h"

#include "Platform/Win32/Windows.h"

namespace trovex {

ErrorNumber ErrorNumberOf(std::uint32_t code) {
  switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_INVALID_NAME:
      return ErrorNumber::kFileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DIRECTORY:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
      return ErrorNumber::kPathNotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
    case ERROR_USER_MAPPED_FILE:
      return ErrorNumber::kPermissionDenied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_FILE_TOO_LARGE:
      return ErrorNumber::kDiskFull;
    case ERROR_TOO_MANY_OPEN_FILES:
      return ErrorNumber::kTooManyFiles;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
      return ErrorNumber::kOutOfMemory;
    case ERROR_INVALID_HANDLE:
    case ERROR_FILENAME_EXCED_RANGE:
      return ErrorNumber::kBadFileNumber;
    case ERROR_BAD_DEVICE:
    case ERROR_DEV_NOT_EXIST:
      return ErrorNumber::kPathFileAccess;
    default:
      return ErrorNumber::kDeviceIo;
  }
}

}  // namespace trovex
