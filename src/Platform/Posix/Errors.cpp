#include "Platform/Posix/Errors.h"

#include <locale.h>
#include <string.h>

#include <cerrno>

#include "Platform/Encoding.h"

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

Text ErrorText(int error) {
  // Never freed: it lives as long as the process.
  static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
  return FromUtf8(strerror_l(error, plain));
}

}  // namespace trovex::posix
