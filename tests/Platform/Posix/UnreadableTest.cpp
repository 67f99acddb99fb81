// Files and directories that the host refuses, or whose reading fails.
#include <filesystem>

#include "Platform/ForwardingPlatform.h"
#include "Platform/HeldDirectory.h"
#include "Platform/Posix/Listing.h"
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

// Its parent can be listed, but not entered.
TEST_F(Unreadable, ADirectoryThatCannotBeReachedIsOneByItsParentsListing) {
  disc_.File("JEUX/SOUS/A.EXE");
  disc_.File("JEUX/B.EXE");
  std::filesystem::permissions(disc_.HostPath("JEUX"), std::filesystem::perms::owner_read);
  const OrdinaryUser user;
  EXPECT_FALSE(platform_.OpenDirectory(u"D:\\JEUX\\SOUS"));
  ASSERT_TRUE(platform_.GetFileStatus(u"D:\\JEUX\\SOUS", status_));
  EXPECT_EQ(status_.attributes, kAttributeDirectory);
  EXPECT_EQ(status_.length, 0);
  EXPECT_FALSE(platform_.GetFileStatus(u"D:\\JEUX\\B.EXE", status_));
  EXPECT_FALSE(platform_.GetFileStatus(u"D:\\JEUX\\RIEN", status_));
}

TEST_F(Unreadable, ADirectoryThatHasGoneIsNone) {
  disc_.File("JEUX/SOUS/A.EXE");
  ASSERT_TRUE(platform_.GetFileStatus(u"D:\\JEUX\\SOUS", status_));
  disc_.Remove("JEUX/SOUS");
  EXPECT_FALSE(platform_.GetFileStatus(u"D:\\JEUX\\SOUS", status_));
}

// --- Entries of an unknown kind ---

bool IsWhole(const TestDisc& disc, const char* directory) {
  return posix::Listing::Read(disc.HostPath(directory).string())->IsWhole();
}

TEST_F(Unreadable, ALinkWhoseTargetIsRefusedLeavesTheListingIncomplete) {
  disc_.File("SECRET/A.EXE");
  disc_.Directory("JEUX");
  std::filesystem::create_symlink("../SECRET/A.EXE", disc_.HostPath("JEUX/LIEN.EXE"));
  EXPECT_TRUE(IsWhole(disc_, "JEUX"));
  Lock("SECRET");
  const OrdinaryUser user;
  EXPECT_FALSE(IsWhole(disc_, "JEUX"));
  EXPECT_FALSE(platform_.OpenDirectory(u"D:\\JEUX")->IsWhole());
}

TEST_F(Unreadable, ALinkThatLeadsNowhereLeavesTheListingWhole) {
  disc_.File("A.EXE");
  std::filesystem::create_symlink("RIEN", disc_.HostPath("PERDU"));
  std::filesystem::create_symlink("CERCLE", disc_.HostPath("CERCLE"));
  std::filesystem::create_symlink("A.EXE/RIEN", disc_.HostPath("FAUX"));
  EXPECT_TRUE(IsWhole(disc_, ""));
}

}  // namespace
}  // namespace trovex::test
