#include "Platform/Win32/ShortName.h"

#include "Platform/Win32/Names.h"
#include "Platform/Win32/Windows.h"
#include "Platform/contract/Contract.h"

namespace trovex::test {
namespace {

class ShortNameTest : public Contract {
 protected:
  std::string ContentsByPlainName(const Text& name) {
    EXPECT_LT(name.size(), std::size_t{MAX_PATH});
    EXPECT_FALSE(name.starts_with(u"\\\\?\\"));
    return Contents(name);
  }
};

TEST_F(ShortNameTest, ANameThatIsShortEnoughStays) {
  EXPECT_EQ(ShortName(u"D:\\ABSENT.EXE").Get(), u"D:\\ABSENT.EXE");
}

TEST_F(ShortNameTest, ALongNamesFileIsReachedByAShortOneAndNothingIsLeft) {
  std::string folder;
  Text directory = u"D:\\";
  for (int level = 0; level < 12; ++level) {
    folder += "Un dossier au nom tres long/";
    directory += u"Un dossier au nom tres long\\";
  }
  disc_.File(folder + "Programme.exe", "contenu");
  Text kept;
  {
    const ShortName name(directory + u"Programme.exe");
    kept = name.Get();
    EXPECT_EQ(ContentsByPlainName(kept), "contenu");
  }
  const bool alias = kept.starts_with(u"D:");
  FileStatus status;
  EXPECT_EQ(platform_.GetFileStatus(kept, status), alias) << "a copy goes with the object";
  EXPECT_EQ(ShortName(directory + u"Absent.exe").Get(), u"");
}

}  // namespace
}  // namespace trovex::test
