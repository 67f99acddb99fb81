// What the user may not read or write, where a message or a default says so.
#include "Faults/Posix/PermissionTest.h"

#include "Lib/LIB_INI.h"
#include "support/LogicTest.h"

namespace trovex::test {
namespace {

using testing::HasSubstr;

TEST_F(PermissionTest, ADiscThatMayNotBeReadIsSaidInOneLine) {
  Allow("DISQUE", 0);
  const OrdinaryUser user;
  ExpectWrong({Argument("DISQUE")}, "DISQUE cannot be read");
}

TEST_F(PermissionTest, ATitleThatMayNotBeReadIsPassedOver) {
  OnDisc("TITRE/JEU.EXE", Game("Programme d'amorçage"));
  OnDisc("TITRE/SETUP.LST", "[Setup]\r\nTitle=Jamais lu\r\n");
  Allow("DISQUE/TITRE/SETUP.LST", 0);
  const OrdinaryUser user;
  Run({"--json"});
  EXPECT_EQ(out_.find("Jamais lu"), std::string::npos);
}

TEST_F(PermissionTest, AnExportIntoAClosedDirectoryIsReported) {
  Allow("SORTIE", 0555);
  const OrdinaryUser user;
  for (const std::string format : {"html", "csv", "prn", "txt"}) {
    EXPECT_EQ(Run({"--quiet", "--" + format, Argument("SORTIE/Fichier.x")}), cli::kExportFailed);
    EXPECT_EQ(Errors("Erreur d'écriture sur le fichier : "), 1) << format << err_;
    EXPECT_THAT(err_, HasSubstr("Fichier.x"));
  }
  EXPECT_EQ(Run({"--quiet", "--pdf", Argument("SORTIE/Fichier.pdf")}), cli::kExportFailed);
  EXPECT_EQ(Errors("Erreur lors de la création du fichier PDF : "), 1) << err_;
}

TEST_F(PermissionTest, AFileThatMayNotBeOverwrittenStays) {
  disc_.File("SORTIE/Fichier.csv", "avant");
  Allow("SORTIE/Fichier.csv", 0444);
  const OrdinaryUser user;
  EXPECT_EQ(Run({"--quiet", "--csv", Argument("SORTIE/Fichier.csv")}), cli::kExportFailed);
  EXPECT_EQ(Errors("Erreur d'écriture sur le fichier : "), 1) << err_;
  EXPECT_EQ(Contents("SORTIE/Fichier.csv"), "avant");
}

class SettingsPermissionTest : public LogicTest {
 protected:
  SettingsPermissionTest() { disc.File("Trovex.ini", "[html]\r\nhtml_titre=Titre\r\n"); }
  ~SettingsPermissionTest() override { chmod(disc.HostPath("").c_str(), 0700); }
};

TEST_F(SettingsPermissionTest, SettingsThatMayNotBeReadAreThoseByDefault) {
  chmod(disc.HostPath("Trovex.ini").c_str(), 0);
  const OrdinaryUser user;
  EXPECT_EQ(sLitIni(u"html", u"html_titre", u"rien", u"D:\\Trovex.ini"), u"rien");
}

TEST_F(SettingsPermissionTest, SettingsThatMayNotBeWrittenAreReportedKeyByKey) {
  chmod(disc.HostPath("Trovex.ini").c_str(), 0444);
  chmod(disc.HostPath("").c_str(), 0555);
  const OrdinaryUser user;
  view.Answer(BoxAnswer::kOk);
  PutIniString(u"html", u"html_titre", u"Autre", u"D:\\Trovex.ini");
  EXPECT_EQ(LastBox(),
            u"PutIniString() : Erreur d'écriture sur le fichier : D:\\Trovex.ini\r\n"
            u"Item : html_titre");
  EXPECT_EQ(sLitIni(u"html", u"html_titre", u"rien", u"D:\\Trovex.ini"), u"Titre");
}

}  // namespace
}  // namespace trovex::test
