#include "Lib/SettingsFile.h"

#include "support/MachineTest.h"

namespace trovex::test {
namespace {

// The program in D:\PROG, the user's data in D:\DATA.
class SettingsFileTest : public MachineTest {
 protected:
  SettingsFileTest() {
    disc.Directory("PROG");
    disc.Directory("DATA");
    machine.application_data = u"D:\\DATA";
  }
  ~SettingsFileTest() override { sFichierIni.clear(); }

  void Start() { ChoisitFichierIni(); }
  Text Value(const Text& key) { return sLitIni(u"html", key, u"rien", sFichierIni); }
  bool IsThere(const Text& file) { return bFichierExiste(file); }

  const Text beside = u"D:\\PROG\\Trovex.ini", users = u"D:\\DATA\\Trovex\\Trovex.ini";
};

TEST_F(SettingsFileTest, StandBesideTheProgramWhereThatCanBeWritten) {
  Start();
  PutIniString(u"html", u"html_titre", u"Mes jeux", sFichierIni);
  EXPECT_EQ(sFichierIni, beside);
  EXPECT_TRUE(IsThere(beside));
  EXPECT_FALSE(IsThere(users));
}

TEST_F(SettingsFileTest, GoToTheUserWhereNothingCanBeWrittenBesideTheProgram) {
  disc.File("PROG/Trovex.ini", "[html]\r\nhtml_ref=adresse\r\n[Options]\r\naffiche_aide=0\r\n");
  machine.write_protected = {u"D:\\PROG"};
  Start();
  EXPECT_EQ(sFichierIni, beside);
  PutIniString(u"html", u"html_titre", u"Mes jeux", sFichierIni);
  PutIniBoolean(u"html", u"html_cr", true, sFichierIni);
  EXPECT_EQ(sFichierIni, users);
  EXPECT_EQ(Value(u"html_titre"), u"Mes jeux");
  EXPECT_EQ(Value(u"html_cr"), u"-1");
  EXPECT_EQ(Value(u"html_ref"), u"adresse") << "what stood beside the program goes along";
  EXPECT_EQ(BoxCount(), 0u);
  Start();
  EXPECT_EQ(sFichierIni, users);
}

TEST_F(SettingsFileTest, OfTwoFilesTheUsersIsReadWhole) {
  disc.File("PROG/Trovex.ini", "[html]\r\nhtml_titre=Programme\r\nhtml_ref=adresse\r\n");
  disc.File("DATA/Trovex/Trovex.ini", "[html]\r\nhtml_titre=Utilisateur\r\n");
  Start();
  EXPECT_EQ(Value(u"html_titre"), u"Utilisateur");
  EXPECT_EQ(Value(u"html_ref"), u"rien");
  PutIniString(u"html", u"html_titre", u"Autre", sFichierIni);
  EXPECT_EQ(Value(u"html_titre"), u"Autre");
  EXPECT_EQ(sLitIni(u"html", u"html_titre", {}, beside), u"Programme");
}

TEST_F(SettingsFileTest, TheBoxComesOnlyWhereNeitherCanBeWritten) {
  disc.File("PROG/Trovex.ini", "[html]\r\nhtml_titre=Programme\r\n");
  disc.Directory("DATA/Trovex");
  machine.write_protected = {u"D:\\PROG", u"D:\\DATA\\TROVEX"};
  Start();
  view.Answer(BoxAnswer::kOk);
  PutIniString(u"html", u"html_titre", u"Mes jeux", sFichierIni);
  EXPECT_EQ(BoxMessage(),
            u"PutIniString() : Erreur d'écriture sur le fichier : D:\\PROG\\Trovex.ini\r\n"
            u"Item : html_titre");
  EXPECT_EQ(sFichierIni, beside);
  EXPECT_FALSE(IsThere(users)) << "no copy is left behind";
}

TEST_F(SettingsFileTest, WithoutAPlaceForTheUsersTheBoxComesAsWell) {
  machine.application_data.clear();
  machine.write_protected = {u"D:\\PROG"};
  Start();
  view.Answer(BoxAnswer::kOk);
  PutIniBoolean(u"html", u"html_cr", true, sFichierIni);
  EXPECT_EQ(BoxCount(), 1u);
}

TEST_F(SettingsFileTest, FromACdRomNothingIsWrittenAnywhere) {
  machine.types[u"D"] = DriveType::kCdRom;
  Start();
  PutIniString(u"html", u"html_titre", u"Mes jeux", sFichierIni);
  EXPECT_FALSE(IsThere(beside));
  EXPECT_FALSE(IsThere(users));
}

// The user's data stand on a disk of their own then; here on the fake's only drive with contents.
TEST_F(SettingsFileTest, AProgramOnACdRomReadsTheUsersFileAndLeavesItAsItIs) {
  disc.File("DATA/Trovex/Trovex.ini", "[html]\r\nhtml_titre=Utilisateur\r\n");
  machine.drives.insert(u"E");
  machine.types[u"E"] = DriveType::kCdRom;
  machine.program_directory = u"E:\\TROVEX";
  Start();
  EXPECT_EQ(Value(u"html_titre"), u"Utilisateur");
  PutIniString(u"html", u"html_titre", u"Autre", sFichierIni);
  EXPECT_EQ(Value(u"html_titre"), u"Utilisateur");
}

TEST_F(SettingsFileTest, OtherFilesHaveNoSecondPlace) {
  machine.write_protected = {u"D:\\PROG"};
  Start();
  view.Answer(BoxAnswer::kOk);
  PutIniString(u"S", u"K", u"v", u"D:\\PROG\\AUTRE.INI");
  EXPECT_EQ(BoxCount(), 1u);
  EXPECT_EQ(sFichierIni, beside);
}

}  // namespace
}  // namespace trovex::test
