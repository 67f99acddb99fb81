#include "Platform/Posix/Errors.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace trovex::test {
namespace {

using posix::ErrorNumberOf;
using posix::ErrorText;

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

TEST(Errors, TextsAreThoseOfTheSystem) {
  EXPECT_EQ(ErrorText(ENOENT), u"No such file or directory");
  EXPECT_NE(ErrorText(123456), u"");
}

}  // namespace
}  // namespace trovex::test
