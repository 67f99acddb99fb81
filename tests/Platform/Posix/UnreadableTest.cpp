// Files and directories that the host refuses, or whose reading fails.
#include <filesystem>

#include "Platform/ForwardingPlatform.h"
#include "Platform/HeldDirectory.h"
#include "Platform/Posix/PosixFixture.h"
#include "support/Posix/OrdinaryUser.h"

namespace trovex::test {
namespace {

class Unreadable : public PosixFixture {
 protected:
  Reading PropertiesOf(const Text& name) {
    const auto held = platform_.OpenDirectory(u"D:\\");
    ListedEntry entry;
    EXPECT_TRUE(held->Entries()->Find(name, entry));
    return held->GetFileProperties(entry, status_, record_);
  }
  void Lock(const char* path) {
    std::filesystem::permissions(disc_.HostPath(path), std::filesystem::perms::none);
  }

  FileStatus status_;
  std::string record_ = "reste";
};

TEST_F(Unreadable, AFileWhoseReadingFailsHasItsStatusAlone) {
  // Opens, but its first bytes cannot be read.
  std::filesystem::create_symlink("/proc/self/mem", disc_.HostPath("A.EXE"));
  EXPECT_EQ(PropertiesOf(u"A.EXE"), Reading::kStatus);
  EXPECT_EQ(record_, "");
  EXPECT_EQ(platform_.GetFileProperties(u"D:\\A.EXE", status_, record_), Reading::kStatus);
  EXPECT_THROW(platform_.GetFileVersionInfoSize(u"D:\\A.EXE"), RuntimeError);
}

TEST_F(Unreadable, AFileThatIsRefusedHasItsStatusAlone) {
  disc_.File("A.EXE", "MZ");
  Lock("A.EXE");
  const OrdinaryUser user;
  EXPECT_EQ(PropertiesOf(u"A.EXE"), Reading::kStatus);
  EXPECT_EQ(status_.length, 2);
  EXPECT_EQ(platform_.GetFileProperties(u"D:\\A.EXE", status_, record_), Reading::kStatus);
}

TEST_F(Unreadable, ADirectoryThatIsRefusedIsNotHeld) {
  disc_.File("JEUX/A.EXE");
  Lock("JEUX");
  const OrdinaryUser user;
  const auto held = platform_.OpenDirectory(u"D:\\");
  ListedEntry entry;
  ASSERT_TRUE(held->Entries()->Find(u"JEUX", entry));
  EXPECT_FALSE(held->OpenDirectory(entry));
  EXPECT_FALSE(platform_.OpenDirectory(u"D:\\JEUX"));
}

TEST_F(Unreadable, ARootThatIsRefusedIsNotAnEmptyOne) {
  Lock("");
  {
    const OrdinaryUser user;
    ForwardingPlatform by_name(platform_);
    EXPECT_FALSE(platform_.OpenDirectory(u"D:\\"));
    EXPECT_FALSE(by_name.OpenDirectory(u"D:\\"));
    EXPECT_FALSE(platform_.CanBeListed(u"D:\\"));
  }
  std::filesystem::permissions(disc_.HostPath(""), std::filesystem::perms::owner_all);
}

}  // namespace
}  // namespace trovex::test
