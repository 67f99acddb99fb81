#include "Platform/Posix/Errors.h"

#include <cerrno>

#include "Platform/SystemTexts.h"

namespace trovex::posix {

ErrorNumber ErrorNumberOf(int error) {
  switch (error) {
    case ENOENT:
      return ErrorNumber::kFileNotFound;
    case ENOTDIR:
      return ErrorNumber::kPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
    case ETXTBSY:
      return ErrorNumber::kPermissionDenied;
    case EISDIR:
    case ELOOP:
    case EEXIST:
    case ENXIO:
      return ErrorNumber::kPathFileAccess;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ErrorNumber::kDiskFull;
    case EMFILE:
    case ENFILE:
      return ErrorNumber::kTooManyFiles;
    case ENOMEM:
      return ErrorNumber::kOutOfMemory;
    case EBADF:
    case EINVAL:
    case EILSEQ:
    case ENAMETOOLONG:
      return ErrorNumber::kBadFileNumber;
    case ENODEV:
      return ErrorNumber::kDeviceUnavailable;
    default:
      return ErrorNumber::kDeviceIo;
  }
}

std::uint32_t SystemCodeOf(int error) {
  switch (error) {
    case ENOENT:
      return kSystemFileNotFound;
    case ENOTDIR:
      return kSystemPathNotFound;
    case EACCES:
    case EPERM:
    case EISDIR:
      return kSystemAccessDenied;
    case EROFS:
      return kSystemWriteProtected;
    case EBUSY:
    case ETXTBSY:
      return kSystemInUse;
    case ENOSPC:
    case EDQUOT:
      return kSystemDiskFull;
    case EFBIG:
      return kSystemFileTooLarge;
    case EMFILE:
    case ENFILE:
      return kSystemTooManyFiles;
    case ENOMEM:
      return kSystemOutOfMemory;
    case EINVAL:
    case EILSEQ:
      return kSystemInvalidName;
    case ENAMETOOLONG:
      return kSystemNameTooLong;
    case ENODEV:
      return kSystemInvalidDrive;
    case EIO:
      return kSystemDeviceIo;
    default:
      return 0;
  }
}

bool IsMissing(int error) {
  return error == ENOENT || error == ENOTDIR || error == ELOOP;
}

RuntimeError ErrorOf(int error) {
  return RuntimeError::OfSystem(ErrorNumberOf(error), SystemCodeOf(error));
}

}  // namespace trovex::posix
