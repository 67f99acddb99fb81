#include "Screen/ExecutableType.h"
#include "ScreenTest.h"

namespace trovex::test {
namespace {

struct Label {
  TextView file, label;
};

class TypeOfProgram : public testing::TestWithParam<Label> {};

TEST_P(TypeOfProgram, FollowsFromTheNamesOnTheWay) {
  EXPECT_EQ(sTypeProgramme(GetParam().file), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(EveryKeyAlone, TypeOfProgram,
                         testing::Values(Label{u"D:\\OS2\\X.EXE", u"Programme OS2"},
                                         Label{u"D:\\DOS\\X.EXE", u"Programme MS-DOS"},
                                         Label{u"D:\\WIN32S\\X.EXE", u"Programme Windows 32s"},
                                         Label{u"D:\\W32S\\X.EXE", u"Programme Windows 32s"},
                                         Label{u"D:\\WIN3\\X.EXE", u"Programme Windows 3.1x"},
                                         Label{u"D:\\W3\\X.EXE", u"Programme Windows 3.1x"},
                                         Label{u"D:\\16B\\X.EXE", u"Programme Windows 3.1x"},
                                         Label{u"D:\\WIN95\\X.EXE", u"Programme Windows 95"},
                                         Label{u"D:\\W95\\X.EXE", u"Programme Windows 95"},
                                         Label{u"D:\\32B\\X.EXE", u"Programme Windows 95"},
                                         Label{u"D:\\WINNT\\X.EXE", u"Programme Windows NT"},
                                         Label{u"D:\\WNT\\X.EXE", u"Programme Windows NT"},
                                         Label{u"D:\\NT\\X.EXE", u"Programme Windows NT"},
                                         Label{u"D:\\JEU\\X.EXE", u""}));

INSTANTIATE_TEST_SUITE_P(OrderAndFalseHits, TypeOfProgram,
                         testing::Values(Label{u"D:\\OS2\\DOS\\X.EXE", u"Programme OS2"},
                                         Label{u"D:\\DOS\\OS2\\X.EXE", u"Programme OS2"},
                                         Label{u"D:\\WIN32\\X.EXE", u"Programme Windows 3.1x"},
                                         Label{u"D:\\INTERNET\\X.EXE", u"Programme Windows NT"},
                                         Label{u"D:\\DOSSIER\\X.EXE", u"Programme MS-DOS"},
                                         Label{u"D:\\WIN95\\DOS\\X.EXE", u"Programme MS-DOS"},
                                         Label{u"D:\\W32S\\WIN95\\X.EXE", u"Programme Windows 32s"},
                                         Label{u"D:\\JEU\\FRONTAL.ZIP", u"Programme Windows NT"},
                                         Label{u"d:\\win95\\x.exe", u"Programme Windows 95"},
                                         Label{u"D:\\Win95\\Setup.exe", u"Programme Windows 95"}));

class ExecutableTypeTest : public ScreenTest {
 protected:
  ExecutableTypeTest() { form.Show(); }
};

TEST_F(ExecutableTypeTest, WithoutARecordTheLabelStandsAsInternalName) {
  Dos("WIN95/SETUP.EXE");
  machine.SetClass(u".exe", u"exefile");
  machine.SetClass(u"exefile\\defaulticon", u"%1");
  machine.icons[u"D:\\WIN95\\SETUP.EXE"] = 1;
  Inspect(0, u" D:\\Win95", u" Setup.exe");
  EXPECT_EQ(Info(2), u"Programme Windows 95");
  EXPECT_EQ(Info(4), u"");
}

TEST_F(ExecutableTypeTest, TheNameOfTheDirectoryWinsOverTheMissingIcon) {
  Dos("WIN95/SETUP.EXE");
  Inspect(0, u" D:\\Win95", u" Setup.exe");
  EXPECT_EQ(Info(2), u"");
  EXPECT_EQ(Info(4), u"Programme Windows 95");
}

TEST_F(ExecutableTypeTest, AnInternalNameAloneLeavesTheLabelToTheProduct) {
  Program("WIN3/X.EXE", {{"InternalName", "X"}});
  Inspect(1, u" D:\\Win3", u" X.exe");
  EXPECT_EQ(Info(2), u"X");
  EXPECT_EQ(Info(4), u"Programme Windows 3.1x");
}

TEST_F(ExecutableTypeTest, BothNamesLeaveNoPlaceForALabel) {
  Program("WIN3/X.EXE", {{"InternalName", "X"}, {"ProductName", "Produit"}});
  Inspect(1, u" D:\\Win3", u" X.exe");
  EXPECT_EQ(Info(2), u"X");
  EXPECT_EQ(Info(4), u"Produit");
}

TEST_F(ExecutableTypeTest, NeitherRecordNorIconNorKeyShowsTwoEmptyBoxes) {
  Dos("JEU/X.EXE");
  Inspect(1, u" D:\\Jeu", u" X.exe");
  EXPECT_EQ(Info(2), u"");
  EXPECT_EQ(Info(4), u"");
}

TEST_F(ExecutableTypeTest, TheFallbackSurvivesBesideAProductName) {
  Program("JEU/X.EXE", {{"ProductName", "Produit"}});
  Inspect(1, u" D:\\Jeu", u" X.exe");
  EXPECT_EQ(Info(2), u"Programme MS-DOS");
  EXPECT_EQ(Info(4), u"Produit");
}

TEST_F(ExecutableTypeTest, AnArchiveIsLabelledLikeAnyFile) {
  disc.File("OS2/A.ZIP", ZipArchive(50));
  machine.SetClass(u".zip", u"zipfile");
  machine.SetClass(u"zipfile\\defaulticon", u"C:\\ZIP.EXE,0");
  Inspect(2, u" D:\\Os2", u" A.zip");
  EXPECT_EQ(Info(2), u"Programme OS2");
}

}  // namespace
}  // namespace trovex::test
