#include "Platform/Posix/Errors.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "Platform/SystemTexts.h"

namespace trovex::test {
namespace {

using posix::ErrorNumberOf;
using posix::SystemCodeOf;

TEST(Errors, TheSystemsNumbersBecomeTheProgramsOwn) {
  EXPECT_EQ(ErrorNumberOf(ENOENT), ErrorNumber::kFileNotFound);
  EXPECT_EQ(ErrorNumberOf(ENOTDIR), ErrorNumber::kPathNotFound);
  EXPECT_EQ(ErrorNumberOf(EACCES), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(ErrorNumberOf(EROFS), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(ErrorNumberOf(EISDIR), ErrorNumber::kPathFileAccess);
  EXPECT_EQ(ErrorNumberOf(ENXIO), ErrorNumber::kPathFileAccess);
  EXPECT_EQ(ErrorNumberOf(ENOSPC), ErrorNumber::kDiskFull);
  EXPECT_EQ(ErrorNumberOf(EDQUOT), ErrorNumber::kDiskFull);
  EXPECT_EQ(ErrorNumberOf(EMFILE), ErrorNumber::kTooManyFiles);
  EXPECT_EQ(ErrorNumberOf(EBADF), ErrorNumber::kBadFileNumber);
  EXPECT_EQ(ErrorNumberOf(EIO), ErrorNumber::kDeviceIo);
  EXPECT_EQ(ErrorNumberOf(ESTALE), ErrorNumber::kDeviceIo);
}

TEST(Errors, TheSystemsNumbersHaveCodesWithTexts) {
  for (const int error : {ENOENT, ENOTDIR, EACCES, EISDIR, EROFS, EBUSY, ENOSPC, EFBIG, EMFILE,
                          ENOMEM, EILSEQ, ENAMETOOLONG, ENODEV, EIO}) {
    EXPECT_NE(SystemText(SystemCodeOf(error)), u"") << error;
  }
  EXPECT_EQ(SystemCodeOf(ENOTDIR), kSystemPathNotFound);
  EXPECT_EQ(SystemCodeOf(ENXIO), 0u);
  EXPECT_EQ(SystemText(0), u"");
}

}  // namespace
}  // namespace trovex::test
