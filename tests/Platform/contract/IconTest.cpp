// Icons of files on a disc.
#include "Platform/contract/Contract.h"
#include "support/DamagedIcons.h"
#include "support/DamagedPrograms.h"
#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

class IconContract : public Contract {
 protected:
  int IconsOf(std::string_view contents) {
    disc_.File("ESSAI.EXE", contents);
    return platform_.ExtractIconEx(u"D:\\ESSAI.EXE", 0, IconOwner::kDisc);
  }
};

TEST_F(IconContract, SoundIconsAreThere) {
  const std::string record = VersionBlock8({{"FileVersion", "1.0"}});
  EXPECT_EQ(IconsOf(NeExecutable(record, Icon::kPresent)), 1);
  EXPECT_EQ(IconsOf(PeExecutable(record, Icon::kPresent)), 1);
  EXPECT_EQ(IconsOf(NeExecutable({}, Icon::kPresent)), 1);
  EXPECT_EQ(IconsOf(PeExecutable({}, Icon::kPresent)), 1);
  EXPECT_EQ(IconsOf(IconFile()), 1);
  EXPECT_EQ(IconsOf(PngIconFile()), 1);
}

TEST_F(IconContract, WhatHasNoIconGivesNone) {
  const std::string record = VersionBlock8({{"FileVersion", "1.0"}});
  EXPECT_EQ(IconsOf(NeExecutable(record)), 0);
  EXPECT_EQ(IconsOf(PeExecutable(record)), 0);
  EXPECT_EQ(IconsOf(NeExecutable({})), 0);
  EXPECT_EQ(IconsOf(DosExecutable()), 0);
  EXPECT_EQ(IconsOf(ZipArchive(200)), 0);
  EXPECT_EQ(IconsOf(""), 0);
  disc_.Directory("JEUX");
  for (const Text& name : {Text(u"D:\\AUTRE.EXE"), Text(u"D:\\JEUX"), Text(u"D:\\NUL"), Text()}) {
    EXPECT_EQ(platform_.ExtractIconEx(name, 0, IconOwner::kDisc), 0);
  }
}

TEST_F(IconContract, AnIconCutShortIsNone) {
  for (const std::string& whole :
       {NeExecutable({}, Icon::kPresent), PeExecutable({}, Icon::kPresent)}) {
    EXPECT_EQ(IconsOf(whole.substr(0, whole.size() / 2)), 0);
  }
  const std::string icon = IconFile();
  EXPECT_EQ(IconsOf(icon.substr(0, icon.size() - 1)), 0);
  EXPECT_EQ(IconsOf(icon.substr(0, 22)), 0);
}

// The system's own functions end the program on some of these, or answer otherwise.
TEST_F(IconContract, DamageOfEachKindGivesNone) {
  for (const DamagedIcon& icon : DamagedIcons()) EXPECT_EQ(IconsOf(icon.contents), 0) << icon.what;
}

TEST_F(IconContract, DamagedExecutablesGiveAnAnswer) {
  int found = 0, none = 0;
  for (const DamagedProgram& program : SomeDamagedPrograms()) {
    const int icons = IconsOf(program.contents);
    EXPECT_TRUE(icons == 0 || icons == 1) << program.path;
    ++(icons == 0 ? none : found);
  }
  EXPECT_GT(found, 50);
  EXPECT_GT(none, 50);
}

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
  EXPECT_EQ(platform_.ExtractIconEx(directory + u"Programme un.exe", 0, IconOwner::kDisc), 1);
  EXPECT_EQ(platform_.ExtractIconEx(directory + u"Programme deux.exe", 0, IconOwner::kDisc), 1);
  EXPECT_EQ(platform_.ExtractIconEx(directory + u"Image seule.ico", 0, IconOwner::kDisc), 1);
  EXPECT_EQ(platform_.ExtractIconEx(directory + u"Sans rien.exe", 0, IconOwner::kDisc), 0);
  EXPECT_EQ(platform_.ExtractIconEx(directory + u"Absent.exe", 0, IconOwner::kDisc), 0);
}

}  // namespace
}  // namespace trovex::test
