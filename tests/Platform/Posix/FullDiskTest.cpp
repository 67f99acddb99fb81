// Writes that fail half-way, as on a full disk.
#include "Platform/Posix/PosixFixture.h"
#include "support/Posix/FullDisk.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

class FullDisk : public PosixFixture {};

TEST_F(FullDisk, AWriteRaises) {
  const FileHandle file = platform_.OpenWrite(u"D:\\A.TXT");
  {
    const FileSizeLimit limit(1000);
    const std::string bytes(600, 'x');
    platform_.Write(file, bytes.data(), bytes.size());
    EXPECT_EQ(ErrorOf([&] { platform_.Write(file, bytes.data(), bytes.size()); }),
              ErrorNumber::kDiskFull);
  }
  platform_.Close(file);
}

TEST_F(FullDisk, ACopyLeavesNothingBehind) {
  disc_.File("A.TXT", std::string(5000, 'x'));
  {
    const FileSizeLimit limit(1000);
    EXPECT_EQ(CopyError(u"D:\\A.TXT", u"D:\\B.TXT"), ErrorNumber::kDiskFull);
  }
  EXPECT_THAT(FindAll(u"D:\\*.*"), ElementsAre(u"A.TXT"));
}

TEST_F(FullDisk, AProfileFileIsAsItWas) {
  const std::string contents = "[a]\r\nk=1\r\n" + std::string(995, ';');
  disc_.File("A.INI", contents);
  {
    const FileSizeLimit limit(1000);
    EXPECT_FALSE(platform_.WritePrivateProfileString(u"a", u"k", u"deux", u"D:\\A.INI"));
  }
  EXPECT_EQ(Contents(u"D:\\A.INI"), contents);
  EXPECT_THAT(FindAll(u"D:\\*.*"), ElementsAre(u"A.INI"));
}

}  // namespace
}  // namespace trovex::test
