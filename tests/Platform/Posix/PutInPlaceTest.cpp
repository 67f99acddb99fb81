// What a file on Linux keeps when another one takes its place.
#include <filesystem>
#include <fstream>

#include "Platform/Posix/PosixFixture.h"

namespace trovex::test {
namespace {

namespace fs = std::filesystem;

class PutInPlace : public PosixFixture {
 protected:
  void Put() { platform_.PutInPlace(u"D:\\NEUF.TMP", u"D:\\A.TXT"); }
  std::string Contents(const char* path) {
    std::ifstream file(disc_.HostPath(path));
    return {std::istreambuf_iterator<char>(file), {}};
  }
};

TEST_F(PutInPlace, KeepsTheFormerFilesPermissions) {
  disc_.File("A.TXT", "ancien");
  disc_.File("NEUF.TMP", "nouveau");
  const auto own = fs::perms::owner_read | fs::perms::owner_write;
  fs::permissions(disc_.HostPath("A.TXT"), own);
  Put();
  EXPECT_EQ(Contents("A.TXT"), "nouveau");
  EXPECT_EQ(fs::status(disc_.HostPath("A.TXT")).permissions(), own);
}

TEST_F(PutInPlace, LeavesALinkThatLeadsToTheNewFile) {
  disc_.File("AILLEURS/VRAI.TXT", "ancien");
  disc_.File("NEUF.TMP", "nouveau");
  fs::create_symlink("AILLEURS/VRAI.TXT", disc_.HostPath("A.TXT"));
  Put();
  EXPECT_TRUE(fs::is_symlink(disc_.HostPath("A.TXT")));
  EXPECT_EQ(Contents("AILLEURS/VRAI.TXT"), "nouveau");
  EXPECT_FALSE(fs::exists(disc_.HostPath("NEUF.TMP")));
}

}  // namespace
}  // namespace trovex::test
