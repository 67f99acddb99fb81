// The fixture of the tests that spell out a POSIX tree behind the drive D:.
#pragma once

#include "Platform/contract/Contract.h"

namespace trovex::test {

class PosixFixture : public Contract {
 protected:
  FileStatus Status(const Text& name) {
    FileStatus status;
    EXPECT_TRUE(platform_.GetFileStatus(name, status));
    return status;
  }
  bool Exists(const Text& name) {
    FileStatus status;
    return platform_.GetFileStatus(name, status);
  }
  ErrorNumber ReadError(const Text& name) {
    return ErrorOf([&] { platform_.Close(platform_.OpenRead(name)); });
  }
  ErrorNumber WriteError(const Text& name) {
    return ErrorOf([&] { platform_.Close(platform_.OpenWrite(name)); });
  }
  ErrorNumber CopyError(const Text& source, const Text& destination) {
    return ErrorOf([&] { platform_.CopyFile(source, destination); });
  }
  ErrorNumber DeleteError(const Text& name) {
    return ErrorOf([&] { platform_.DeleteFile(name); });
  }
};

}  // namespace trovex::test
