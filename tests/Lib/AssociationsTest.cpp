#include "support/MachineTest.h"

namespace trovex::test {
namespace {

class AssociationsTest : public MachineTest {
 protected:
  void WinIni(const std::string& lines) {
    disc.File("WINDOWS/WIN.INI", "[Extensions]\r\n" + lines);
  }
  // The open command of a type.
  void Register(const Text& type, const Text& command) {
    machine.SetClass(u"." + type, type + u"file");
    machine.SetClass(type + u"file\\shell\\open\\command", command);
  }
};

TEST_F(AssociationsTest, WinIniNamesProgramsInUpperCase) {
  for (const char* program : {"PROG/NAV.EXE", "PROG/TEXTE.EXE", "PROG/DESSIN.EXE"}) {
    disc.File(program);
  }
  WinIni(
      "htm=d:\\prog\\nav.exe ^.htm\r\ndoc=d:\\prog\\texte.exe ^.doc\r\n"
      "bmp=d:\\prog\\dessin.exe ^.bmp\r\n");
  InitAssociations();
  EXPECT_EQ(sAppliHtm, u"D:\\PROG\\NAV.EXE");
  EXPECT_EQ(sAppliDoc, u"D:\\PROG\\TEXTE.EXE");
  EXPECT_EQ(sAppliBmp, u"D:\\PROG\\DESSIN.EXE");
}

TEST_F(AssociationsTest, HtmlStandsInForHtm) {
  disc.File("PROG/NAV.EXE");
  WinIni("html=d:\\prog\\nav.exe ^.html\r\n");
  InitAssociations();
  EXPECT_EQ(sAppliHtm, u"D:\\PROG\\NAV.EXE");
}

TEST_F(AssociationsTest, AProgramOfTheWindowsDirectoryGetsItsFullName) {
  disc.File("WINDOWS/DESSIN.EXE");
  WinIni("bmp=dessin.exe ^.bmp\r\n");
  InitAssociations();
  EXPECT_EQ(sAppliBmp, u"D:\\WINDOWS\\DESSIN.EXE");
}

TEST_F(AssociationsTest, AProgramThatIsNowhereIsForgotten) {
  WinIni("bmp=absent.exe ^.bmp\r\n");
  InitAssociations();
  EXPECT_EQ(sAppliBmp, u"");
}

TEST_F(AssociationsTest, AMachineWithoutWinIniTakesAllFromTheRegistry) {
  Register(u"doc", u"C:\\TEXTE.EXE/n");
  Register(u"htm", u"\"C:\\NAV.EXE\"-nohome");
  Register(u"bmp", u"\"C:\\DESSIN.EXE\"/dde");
  InitAssociations();
  EXPECT_EQ(sAppliDoc, u"C:\\TEXTE.EXE");
  EXPECT_EQ(sAppliHtm, u"C:\\NAV.EXE");
  EXPECT_EQ(sAppliBmp, u"C:\\DESSIN.EXE");
}

TEST_F(AssociationsTest, TheBrowsersCommandIsCutBeforeItsArgument) {
  Register(u"htm", u"C:\\NAV.EXE \"%1\"");
  InitAssociations();
  EXPECT_EQ(sAppliHtm, u"C:\\NAV.EXE ");
}

TEST_F(AssociationsTest, OneQuoteAtEachEndGoes) {
  Register(u"doc", u"\"\"C:\\TEXTE.EXE\"\"");
  InitAssociations();
  EXPECT_EQ(sAppliDoc, u"\"C:\\TEXTE.EXE\"");
}

TEST_F(AssociationsTest, WinIniGoesBeforeTheRegistry) {
  disc.File("PROG/TEXTE.EXE");
  WinIni("doc=d:\\prog\\texte.exe ^.doc\r\n");
  Register(u"doc", u"C:\\AUTRE.EXE");
  InitAssociations();
  EXPECT_EQ(sAppliDoc, u"D:\\PROG\\TEXTE.EXE");
}

TEST_F(AssociationsTest, WithoutABrowserTheCommandOfPicturesStaysUncleaned) {
  Register(u"bmp", u"\"C:\\DESSIN.EXE\"/dde");
  InitAssociations();
  EXPECT_EQ(sAppliBmp, u"\"C:\\DESSIN.EXE\"/dde");
}

TEST_F(AssociationsTest, TheDesktopsBrowserIsKnownWhereItExists) {
  InitAssociations();
  EXPECT_EQ(sAppliExplorer, u"");
  disc.File("WINDOWS/EXPLORER.EXE");
  InitAssociations();
  EXPECT_EQ(sAppliExplorer, u"D:\\WINDOWS\\EXPLORER.EXE");
}

TEST_F(AssociationsTest, AMachineThatKnowsNothingLeavesAllEmpty) {
  sAppliHtm = sAppliDoc = sAppliBmp = sAppliExplorer = u"ancien";
  InitAssociations();
  EXPECT_EQ(sAppliHtm + sAppliDoc + sAppliBmp + sAppliExplorer, u"");
}

TEST_F(AssociationsTest, TheTemporaryDirectoryIsTmpThenTempThenTheProgramsOwn) {
  InitAssociations();
  EXPECT_EQ(sRepertoireTemp, u"D:\\PROG\\");
  machine.environment[u"TEMP"] = u"D:\\TEMP";
  InitAssociations();
  EXPECT_EQ(sRepertoireTemp, u"D:\\TEMP");
  machine.environment[u"TMP"] = u"D:\\TMP";
  InitAssociations();
  EXPECT_EQ(sRepertoireTemp, u"D:\\TMP");
}

}  // namespace
}  // namespace trovex::test
