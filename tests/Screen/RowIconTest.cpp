#include "ScreenTest.h"

namespace trovex::test {
namespace {

const Text kShell = u"D:\\WINDOWS\\SYSTEM\\shell32.dll";

class RowIconTest : public ScreenTest {
 protected:
  RowIconTest() {
    form.Show();
    machine.icons[ToUpper(kShell)] = 1;
    Dos("J/X.EXE");
  }

  Picture IconAfter(const Text& file) {
    Inspect(1, u" D:\\J", file);
    return form.IconeFichier.GetPicture();
  }
  // The icon that the registry names for a type.
  void Register(const Text& type, const Text& icon) {
    machine.SetClass(u"." + type, type + u"file");
    machine.SetClass(type + u"file\\defaulticon", icon);
  }
  static Picture Icon(const Text& file, int index = 0) {
    return {Picture::Source::kIconOf, file, index};
  }
};

TEST_F(RowIconTest, AProgramShowsItsOwnIcon) {
  Register(u"exe", u"%1");
  machine.icons[u"D:\\J\\X.EXE"] = 1;
  EXPECT_EQ(IconAfter(u" X.exe"), Icon(u"D:\\J\\X.exe"));
  EXPECT_EQ(Info(2), u"") << "no label where there is an icon";
}

TEST_F(RowIconTest, AProgramWithoutIconGetsTheSystemsAndTheLabel) {
  Register(u"exe", u"%1");
  Program("J/X.EXE", {{"ProductName", "Produit"}});
  EXPECT_EQ(IconAfter(u" X.exe"), Icon(kShell));
  EXPECT_EQ(Info(2), u"Programme MS-DOS");
}

TEST_F(RowIconTest, TheLabelReplacesNoInternalName) {
  Register(u"exe", u"%1");
  Program("J/X.EXE", {{"ProductName", "Produit"}, {"InternalName", "X"}});
  EXPECT_EQ(IconAfter(u" X.exe"), Icon(kShell));
  EXPECT_EQ(Info(2), u"X");
}

TEST_F(RowIconTest, ATypeThatNobodyRegisteredGetsTheSystemsIconWithoutLabel) {
  Program("J/X.EXE", {{"ProductName", "Produit"}});
  EXPECT_EQ(IconAfter(u" X.exe"), Icon(kShell));
  EXPECT_EQ(Info(2), u"");
  EXPECT_TRUE(machine.keys_created.contains(u".EXE"));
  EXPECT_TRUE(machine.keys_created.contains(u"\\DEFAULTICON"));
}

TEST_F(RowIconTest, AnArchiveShowsTheArchiversIcon) {
  disc.File("J/A.ZIP", ZipArchive(50));
  Register(u"zip", u"C:\\ZIP\\ZIP.EXE,3");
  machine.icons[u"C:\\ZIP\\ZIP.EXE"] = 5;
  EXPECT_EQ(IconAfter(u" A.zip"), Icon(u"C:\\ZIP\\ZIP.EXE", 3));
}

TEST_F(RowIconTest, ANegativeIndexIsANumber) {
  Register(u"exe", u"C:\\A.DLL,-12");
  machine.icons[u"C:\\A.DLL"] = 1;
  EXPECT_EQ(IconAfter(u" X.exe"), Icon(u"C:\\A.DLL", -12));
}

TEST_F(RowIconTest, AFailedExtractionOfANamedIconDrawsNothing) {
  Register(u"exe", u"C:\\ABSENT.DLL,2");
  Program("J/X.EXE", {{"ProductName", "Produit"}});
  EXPECT_EQ(IconAfter(u" X.exe"), Picture());
  EXPECT_EQ(Info(2), u"");
}

TEST_F(RowIconTest, AnIndexThatIsNoNumberEndsInTheErrorBox) {
  for (const Text icon : {u"C:\\A.DLL,abc", u"C:\\A.DLL,", u"C:\\A.DLL,1,2"}) {
    Register(u"exe", icon);
    view.Answer(BoxAnswer::kOk);
    IconAfter(u" X.exe");
    EXPECT_EQ(BoxMessage(), u"Erreur lors de la recherche d'information sur le fichier : X.exe");
    EXPECT_EQ(BoxError(), 13);
  }
}

TEST_F(RowIconTest, AnIndexBeyond32BitsEndsInTheErrorBox) {
  Register(u"exe", u"C:\\A.DLL,99999999999");
  view.Answer(BoxAnswer::kOk);
  IconAfter(u" X.exe");
  EXPECT_EQ(BoxError(), 6);
}

TEST_F(RowIconTest, ANameOfSeveralPointsLooksUpAllBehindTheFirst) {
  Dos("J/A.B.EXE");
  Register(u"exe", u"%1");
  machine.icons[u"D:\\J\\A.B.EXE"] = 1;
  EXPECT_EQ(IconAfter(u" A.b.exe"), Icon(kShell));
  EXPECT_TRUE(machine.keys_created.contains(u".B.EXE"));
}

TEST_F(RowIconTest, WithoutAnyIconTheBoxIsEmpty) {
  machine.icons.clear();
  EXPECT_EQ(IconAfter(u" X.exe"), Picture());
}

}  // namespace
}  // namespace trovex::test
