// A disk that fills up under what the program writes.
#include "support/Posix/FullDisk.h"

#include "Faults/FaultsTest.h"
#include "Lib/LIB_INI.h"
#include "Platform/Encoding.h"
#include "support/LogicTest.h"

namespace trovex::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::size_t kRoom = 8192;
const std::string kHtmlError = "Erreur lors de la création du fichier HTML. ";
const std::string kDiskFull = "Error #61 by ";

class FullDiskTest : public FaultsTest {
 protected:
  FullDiskTest() { Games(600); }
};

TEST_F(FullDiskTest, EachTextExportSaysSoAndKeepsWhatWasWritten) {
  for (const std::string format : {"csv", "prn", "txt"}) {
    const std::string name = "SORTIE/Fichier." + format;
    ASSERT_EQ(Run({"--quiet", "--" + format, Argument(name)}), cli::kDone);
    const std::string whole = Contents(name);
    ASSERT_GT(whole.size(), 2 * kRoom);
    disc_.Remove(name);
    const SmallDisk disk(disc_.HostPath("SORTIE"), kRoom);
    EXPECT_EQ(Run({"--quiet", "--" + format, Argument(name)}), cli::kExportFailed);
    EXPECT_EQ(Errors("GridExport()"), 1) << err_;
    EXPECT_THAT(err_, HasSubstr(kDiskFull));
    EXPECT_EQ(Contents(name), whole.substr(0, kRoom)) << format;
  }
}

TEST_F(FullDiskTest, TheHtmlExportSaysSoAndItsFramesetStaysWhole) {
  const std::string name = "SORTIE/Fichier.htm";
  ASSERT_EQ(Run({"--quiet", "--html", Argument(name)}), cli::kDone);
  const std::string frameset = Contents(name), data = Contents("SORTIE/Fichier_donnees.htm");
  for (const std::string& written : Names("SORTIE")) disc_.Remove("SORTIE/" + written);
  const SmallDisk disk(disc_.HostPath("SORTIE"), 4 * kRoom);
  EXPECT_EQ(Run({"--quiet", "--html", Argument(name)}), cli::kExportFailed);
  EXPECT_EQ(Errors(kHtmlError), 1) << err_;
  EXPECT_THAT(err_, HasSubstr(kDiskFull));
  EXPECT_EQ(Contents(name), frameset);
  EXPECT_THAT(data, StartsWith(Contents("SORTIE/Fichier_donnees.htm")));
}

TEST_F(FullDiskTest, ThePagesSaySoAndLeaveNoFile) {
  const SmallDisk disk(disc_.HostPath("SORTIE"), kRoom);
  EXPECT_EQ(Run({"--quiet", "--pdf", Argument("SORTIE/Fichier.pdf")}), cli::kExportFailed);
  EXPECT_EQ(Errors("Erreur lors de la création du fichier PDF : "), 1) << err_;
  EXPECT_THAT(err_, HasSubstr(kDiskFull));
  EXPECT_THAT(Names("SORTIE"), IsEmpty());
}

TEST_F(FullDiskTest, OneExportThatFailsLeavesTheOthersWhole) {
  ASSERT_EQ(Run({"--quiet", "--txt", Argument("SORTIE/Fichier.txt")}), cli::kDone);
  const std::string whole = Contents("SORTIE/Fichier.txt");
  disc_.Directory("PLEIN");
  const SmallDisk disk(disc_.HostPath("PLEIN"), 4096);
  disc_.File("PLEIN/Reste", std::string(4096, 'x'));
  EXPECT_EQ(Run({"--quiet", "--csv", Argument("PLEIN/A.csv"), "--txt", Argument("SORTIE/B.txt")}),
            cli::kExportFailed);
  EXPECT_GE(Errors("GridExport()"), 1) << err_;
  EXPECT_EQ(Contents("SORTIE/B.txt").substr(0, 4096), whole.substr(0, 4096));
}

class FullDiskSettingsTest : public LogicTest {
 protected:
  FullDiskSettingsTest() { disc.Directory("PLEIN"); }

  std::string Contents() const {
    std::ifstream file(disc.HostPath("PLEIN/Trovex.ini"), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
};

TEST_F(FullDiskSettingsTest, ASettingThatFindsNoRoomIsReportedAndTheFileStaysAsItWas) {
  const SmallDisk disk(disc.HostPath("PLEIN"), kRoom);
  const std::string settings = "[html]\r\nhtml_titre=Titre\r\n" + std::string(kRoom - 100, ';');
  disc.File("PLEIN/Trovex.ini", settings);
  view.Answer(BoxAnswer::kOk);
  PutIniString(u"html", u"html_titre", Text(200, u'x'), u"D:\\PLEIN\\Trovex.ini");
  EXPECT_EQ(LastBox(),
            u"PutIniString() : Erreur d'écriture sur le fichier : D:\\PLEIN\\Trovex.ini\r\n"
            u"Item : html_titre");
  view.Answer(BoxAnswer::kOk);
  PutIniBoolean(u"html", u"html_cr" + Text(200, u'x'), true, u"D:\\PLEIN\\Trovex.ini");
  EXPECT_EQ(LastBox(),
            u"PutIniBoolean() : Erreur d'écriture sur le fichier : D:\\PLEIN\\Trovex.ini\r\n"
            u"Item : html_cr" +
                Text(200, u'x') + u":-1");
  EXPECT_EQ(Contents(), settings);
}

TEST_F(FullDiskSettingsTest, ALargeSettingsFileIsReportedByItsSectionAndStaysAsItWas) {
  std::string settings = "[html]\r\nhtml_titre=Titre\r\n";
  while (settings.size() < 320000) settings += ";" + std::string(997, '-') + "\r\n";
  disc.File("PLEIN/Trovex.ini", settings);
  sRepertoireTemp = u"D:\\PLEIN";
  const FileSizeLimit limit(100000);
  view.Answer(BoxAnswer::kOk);
  PutIniString(u"html", u"html_titre", u"Autre", u"D:\\PLEIN\\Trovex.ini");
  EXPECT_THAT(ToUtf8(LastBox()), StartsWith("Erreur d'écriture section html\r\n\r\nError #61 by "));
  EXPECT_EQ(Contents(), settings);
}

}  // namespace
}  // namespace trovex::test
