// Where this process looks for libraries, once it has its platform.
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Windows.h"
#include "Platform/contract/Contract.h"

namespace trovex::test {
namespace {

// A library that lies in the current directory alone.
class LibrarySearchTest : public Contract {
 protected:
  LibrarySearchTest() {
    Text system;
    platform_.GetSystemDirectory(system, 255);
    copied_ = CopyFileW(Wide(system + u"\\version.dll"), L"D:\\trvxessai.dll", TRUE);
    platform_.ChangeDirectory(u"D:\\");
  }
  static bool Loads() {
    const HMODULE library = LoadLibraryW(L"trvxessai.dll");
    if (library != nullptr) FreeLibrary(library);
    return library != nullptr;
  }

  bool copied_ = false;
};

TEST_F(LibrarySearchTest, NoLibraryIsTakenFromTheCurrentDirectory) {
  ASSERT_TRUE(copied_);
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\");
  EXPECT_FALSE(Loads());
}

// So the test above is about that directory, and not about a library that nobody can load.
TEST_F(LibrarySearchTest, WithTheSystemsOwnOrderItWouldBe) {
  ASSERT_TRUE(copied_);
  SetDllDirectoryW(nullptr);
  const bool loads = Loads();
  SetDllDirectoryW(L"");
  EXPECT_TRUE(loads);
}

}  // namespace
}  // namespace trovex::test
