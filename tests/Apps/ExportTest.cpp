// The exports of the command line: files that other programs read.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "Apps/CliTest.h"
#include "support/SampleDisc.h"

namespace trovex::test {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

std::string BytesOf(const std::filesystem::path& name) {
  std::ifstream file(name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

class ExportTest : public CliTest {
 protected:
  std::string Output(std::string_view path) const { return BytesOf(disc_.HostPath(path)); }
  bool Exists(std::string_view path) const { return std::filesystem::exists(disc_.HostPath(path)); }
  static std::string Golden(const std::string& name) {
    return BytesOf(std::filesystem::path(TROVEX_TEST_SOURCES) / "Apps/golden" / name);
  }
};

class SmallExportTest : public ExportTest {
 protected:
  SmallExportTest() {
    disc_.File("SETUP.EXE", NeExecutable(VersionBlock8({{"FileDescription", "Installation"}})));
    disc_.File("JEUX/DAMES.EXE", DosExecutable());
    disc_.File("JEUX/README.TXT", "Jeu de \"dames\" \xE0 deux\r\n");
    disc_.File("JEUX/ECHECS.EXE", DosExecutable());
    disc_.Directory("SORTIE");
  }
};

TEST_F(SmallExportTest, CsvHoldsTheTableThatComesUp) {
  EXPECT_EQ(Run({"--quiet", "--csv", Argument("SORTIE/A.CSV")}), cli::kDone);
  EXPECT_EQ(Output("SORTIE/A.CSV"),
            "\" Description\",\" Emplacement\",\" Fichier\",\" Version\"\r\n"
            "\"Jeu de \"dames\" \xE0 deux\",\" D:\\Jeux\",\" Dames.exe\",\"\"\r\n"
            "\"Jeu de \"dames\" \xE0 deux\",\" D:\\Jeux\",\" Echecs.exe\",\"\"\r\n");
  EXPECT_EQ(err_, "");
}

TEST_F(SmallExportTest, TableChoosesAnother) {
  EXPECT_EQ(Run({"--quiet", "--prn", Argument("SORTIE/A.PRN"), "--table", "0"}), cli::kDone);
  EXPECT_EQ(Output("SORTIE/A.PRN"),
            " Description  Emplacement  Fichier  Version\r\nInstallation  D:\\  Setup.exe \r\n");
}

TEST_F(SmallExportTest, AnEmptyTableIsWrittenAllTheSame) {
  EXPECT_EQ(Run({"--quiet", "--txt", Argument("SORTIE/A.TXT"), "--table", "2"}), cli::kDone);
  EXPECT_EQ(Output("SORTIE/A.TXT"),
            "\" Taille en Ko\"\t\" Emplacement\"\t\" Fichier\"\t\" Date\"\r\n"
            "\"\"\t\"\"\t\"\"\t\"\"\r\n");
}

TEST_F(SmallExportTest, JsonComesAsWithoutTheExports) {
  Run({"--json"});
  const std::string plain = out_;
  EXPECT_EQ(Run({"--json", "--csv", Argument("SORTIE/A.CSV"), "--table", "0"}), cli::kDone);
  EXPECT_EQ(out_, plain);
}

TEST_F(SmallExportTest, ANameWithoutAPointGetsTheExtensionOfItsFormat) {
  const std::string name = Argument("SORTIE") + "/abc";
  EXPECT_EQ(Run({"--quiet", "--csv", name, "--prn", name, "--txt", name, "--pdf", name}),
            cli::kDone);
  for (const char* written :
       {"SORTIE/abc.csv", "SORTIE/abc.prn", "SORTIE/abc.txt", "SORTIE/abc.pdf"}) {
    EXPECT_TRUE(Exists(written)) << written;
  }
  EXPECT_FALSE(Exists("SORTIE/abc"));
}

TEST_F(SmallExportTest, AFileThatCannotBeWrittenGivesStatus1) {
  EXPECT_EQ(
      Run({"--quiet", "--csv", Argument("ABSENT") + "/A.CSV", "--txt", Argument("SORTIE/A.TXT")}),
      cli::kExportFailed);
  EXPECT_THAT(err_, StartsWith("trovex-cli: Erreur d'écriture sur le fichier : " +
                               Argument("ABSENT") + "/A.CSV "));
  EXPECT_THAT(err_, HasSubstr("Un dossier du chemin n'existe pas."));
  EXPECT_TRUE(Exists("SORTIE/A.TXT")) << "the other export is written all the same";
}

TEST_F(SmallExportTest, EveryFileIsNamedAsItWasGiven) {
  const std::string absent = Argument("ABSENT");
  EXPECT_EQ(
      Run({"--quiet", "--html", absent + "/A", "--prn", absent + "/B", "--pdf", absent + "/C.x"}),
      cli::kExportFailed);
  for (const char* name : {"/A.htm", "/B.prn", "/C.x"}) EXPECT_THAT(err_, HasSubstr(absent + name));
  // The program's own name of the directory.
  EXPECT_THAT(err_, Not(HasSubstr("Z:\\")));
}

TEST_F(SmallExportTest, PdfHoldsThePagesOfTheTable) {
  EXPECT_EQ(Run({"--quiet", "--pdf", Argument("SORTIE/A.PDF"), "--table", "0"}), cli::kDone);
  const std::string pdf = Output("SORTIE/A.PDF");
  EXPECT_THAT(pdf, StartsWith("%PDF-1.4\n"));
  EXPECT_THAT(pdf, HasSubstr("(Liste des proc\xE9"
                             "dures d'installation.) Tj"));
  EXPECT_THAT(pdf, HasSubstr("(Setup.exe) Tj"));
  EXPECT_THAT(pdf, HasSubstr("/Count 1 "));
  EXPECT_THAT(pdf, testing::EndsWith("%%EOF\n"));
  EXPECT_EQ(err_, "");
}

TEST_F(SmallExportTest, APdfThatCannotBeWrittenGivesStatus1AndLeavesNoFile) {
  EXPECT_EQ(Run({"--quiet", "--pdf", Argument("ABSENT") + "/A.PDF"}), cli::kExportFailed);
  EXPECT_THAT(err_, HasSubstr("Erreur lors de la création du fichier PDF"));
  EXPECT_FALSE(Exists("ABSENT"));
}

TEST_F(ExportTest, TheSampleDiscInThreeFormats) {
  WriteSampleDisc(disc_.HostPath(""));
  disc_.Directory("SORTIE");
  const std::string csv = Argument("SORTIE/A.CSV"), prn = Argument("SORTIE/A.PRN"),
                    txt = Argument("SORTIE/A.TXT");
  for (const std::string table : {"0", "1", "2"}) {
    EXPECT_EQ(Run({"--quiet", "--table", table, "--csv", csv, "--prn", prn, "--txt", txt}),
              cli::kDone);
    EXPECT_EQ(Output("SORTIE/A.CSV"), Golden("sampledisc-" + table + ".csv"));
    EXPECT_EQ(Output("SORTIE/A.PRN"), Golden("sampledisc-" + table + ".prn"));
    EXPECT_EQ(Output("SORTIE/A.TXT"), Golden("sampledisc-" + table + ".txt"));
  }
}

}  // namespace
}  // namespace trovex::test
