// Icons of files.
#include "Platform/contract/Contract.h"
#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

class IconContract : public Contract {};

TEST_F(IconContract, AreFoundInFilesWhoseNamesAreLongerThan260Characters) {
  std::string folder;
  Text directory = u"D:\\";
  for (int level = 0; level < 12; ++level) {
    folder += "Un dossier au nom tres long/";
    directory += u"Un dossier au nom tres long\\";
  }
  ASSERT_GT(directory.size(), 300u);
  disc_.File(folder + "Programme un.exe", NeExecutable(VersionBlock8({}), Icon::kPresent));
  disc_.File(folder + "Programme deux.exe", PeExecutable(VersionBlock8({}), Icon::kPresent));
  disc_.File(folder + "Image seule.ico", IconFile());
  disc_.File(folder + "Sans rien.exe", PeExecutable(VersionBlock8({})));
  EXPECT_EQ(platform_.ExtractIconEx(directory + u"Programme un.exe", 0), 1);
  EXPECT_EQ(platform_.ExtractIconEx(directory + u"Programme deux.exe", 0), 1);
  EXPECT_EQ(platform_.ExtractIconEx(directory + u"Image seule.ico", 0), 1);
  EXPECT_EQ(platform_.ExtractIconEx(directory + u"Sans rien.exe", 0), 0);
  EXPECT_EQ(platform_.ExtractIconEx(directory + u"Absent.exe", 0), 0);
}

}  // namespace
}  // namespace trovex::test
