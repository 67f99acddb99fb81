#include "Apps/CliTest.h"

#include <filesystem>
#include <fstream>
#include <functional>

#include "support/SampleDisc.h"

namespace trovex::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

// Three entries: a set-up, a game, an archive.
class CatalogueTest : public CliTest {
 protected:
  CatalogueTest() {
    const LocalTime date = {1997, 6, 2, 10, 30, 0};
    disc_.File(
        "SETUP.EXE",
        NeExecutable(VersionBlock8({{"FileDescription", "Installation"}, {"FileVersion", "1.0"}})));
    disc_.File("JEUX/DAMES.EXE", DosExecutable());
    disc_.File("JEUX/README.TXT", "Jeu de dames \xE0 deux\r\n");
    disc_.File("JEUX/DAMES.ZIP", ZipArchive(12345), date);
  }
};

TEST_F(CatalogueTest, JsonHoldsTheWholeCatalogue) {
  EXPECT_EQ(Run({"--json"}), cli::kDone);
  EXPECT_EQ(out_, R"({"start":"D:\\","tab":2,"count":"1","tables":[)"
                  R"({"titles":[" Description"," Emplacement"," Fichier"," Version"],)"
                  R"("rows":[["Installation"," D:\\"," Setup.exe","1.0"]]},)"
                  R"({"titles":[" Description"," Emplacement"," Fichier"," Version"],)"
                  R"("rows":[["Jeu de dames à deux"," D:\\Jeux"," Dames.exe",""]]},)"
                  R"({"titles":[" Taille en Ko"," Emplacement"," Fichier"," Date"],)"
                  R"("rows":[[" 12"," D:\\Jeux"," Dames.zip","02/06/1997"]]}],)"
                  R"("messages":[]})"
                  "\n");
  EXPECT_EQ(err_, "");
}

TEST_F(CatalogueTest, TablesAreForAPersonToRead) {
  EXPECT_EQ(Run({}), cli::kDone);
  EXPECT_EQ(out_,
            "Fichiers d'installation Setup/Install (1)\n"
            "  Description   Emplacement  Fichier    Version\n"
            "  ------------  -----------  ---------  -------\n"
            "  Installation  D:\\          Setup.exe  1.0\n"
            "\n"
            "Fichiers Exécutable (1)\n"
            "  Description          Emplacement  Fichier    Version\n"
            "  -------------------  -----------  ---------  -------\n"
            "  Jeu de dames à deux  D:\\Jeux      Dames.exe\n"
            "\n"
            "Archives ZIP (1)\n"
            "  Taille en Ko  Emplacement  Fichier    Date\n"
            "  ------------  -----------  ---------  ----------\n"
            "  12            D:\\Jeux      Dames.zip  02/06/1997\n");
  EXPECT_EQ(err_, "");
}

TEST_F(CatalogueTest, QuietPrintsNothing) {
  EXPECT_EQ(Run({"--quiet"}, Terminal::kYes), cli::kDone);
  EXPECT_EQ(out_, "");
  EXPECT_EQ(err_, "");
}

TEST_F(CatalogueTest, QuietLeavesTheJson) {
  Run({"--json"});
  const std::string json = out_;
  EXPECT_EQ(Run({"--json", "--quiet"}), cli::kDone);
  EXPECT_EQ(out_, json);
}

TEST_F(CatalogueTest, ASecondRunGivesTheSame) {
  const Json first = Catalogue();
  EXPECT_EQ(Catalogue(), first);
}

TEST_F(CatalogueTest, StartIsTheDirectoryWithinTheDrive) {
  const Json catalogue = Catalogue({"--start", "D:\\JEUX"});
  EXPECT_EQ(catalogue["start"], "D:\\JEUX");
  EXPECT_EQ(catalogue["tables"][0]["rows"], Json::array());
  EXPECT_EQ(catalogue["tables"][1]["rows"][0][1], " D:\\JEUX");
  EXPECT_EQ(catalogue["tables"][2]["rows"].size(), 1u);
}

TEST_F(CatalogueTest, StartIsUsedAsItIsSpelled) {
  const Json catalogue = Catalogue({"--start=d:\\jEUX"});
  EXPECT_EQ(catalogue["start"], "d:\\jEUX");
  EXPECT_EQ(catalogue["tables"][1]["rows"][0][1], " d:\\jEUX");
}

TEST_F(CatalogueTest, TheDirectoryMayStandBehindTheOptions) {
  EXPECT_EQ(RunWith({"--json", "--start", "D:\\JEUX", Argument()}), cli::kDone);
  EXPECT_EQ(Json::parse(out_)["start"], "D:\\JEUX");
}

TEST_F(CatalogueTest, InspectAddsWhatAClickOnEachRowShows) {
  const Json plain = Catalogue();
  Json catalogue = Catalogue({"--inspect"});
  for (Json& table : catalogue["tables"]) {
    ASSERT_EQ(table["details"].size(), table["rows"].size());
    for (const Json& details : table["details"]) {
      EXPECT_EQ(details["TextInfo"].size(), 6u);
      EXPECT_TRUE(details["ListFichier"].is_array());
      EXPECT_TRUE(details["ListFichier.Tag"].is_string());
      EXPECT_TRUE(details["ListIndex"].is_number_integer());
      for (const char* name : {"TextInfo0", "LabelInfo2", "PrintTexte", "ImageSelect"}) {
        EXPECT_TRUE(details["visible"][name].is_boolean()) << name;
      }
      EXPECT_EQ(details.size(), 5u);
    }
    table.erase("details");
  }
  EXPECT_EQ(catalogue, plain);
}

TEST_F(CatalogueTest, WithoutInspectThereAreNoDetails) {
  const Json catalogue = Catalogue();
  for (const Json& table : catalogue["tables"]) EXPECT_FALSE(table.contains("details"));
}

TEST_F(CatalogueTest, ProgressGoesToATerminalAlone) {
  Run({"--json"}, Terminal::kYes);
  EXPECT_THAT(err_, HasSubstr("Exploration du répertoire : D:\\..."));
  EXPECT_THAT(err_, testing::EndsWith("\r\x1B[K")) << "the line is taken away at the end";
  EXPECT_EQ(err_.find('\n'), std::string::npos);
  Run({"--json"}, Terminal::kNo);
  EXPECT_EQ(err_, "");
}

TEST_F(CliTest, ATreeWithoutEntriesHasTablesWithoutRows) {
  disc_.File("DOC/LISEZMOI.TXT");
  const Json catalogue = Catalogue();
  EXPECT_EQ(catalogue["tab"], 2);
  EXPECT_EQ(catalogue["count"], "0");
  for (const Json& table : catalogue["tables"]) EXPECT_EQ(table["rows"], Json::array());
  EXPECT_EQ(Run({}), cli::kDone);
  EXPECT_EQ(out_,
            "Fichiers d'installation Setup/Install (0)\n\n"
            "Fichiers Exécutable (0)\n\n"
            "Archives ZIP (0)\n");
}

TEST_F(CliTest, TheLargestTableComesUpAndOfEqualOnesTheLater) {
  const auto tab = [&] {
    const Json catalogue = Catalogue();
    return std::make_pair(catalogue["tab"].get<int>(), catalogue["count"].get<std::string>());
  };
  using Shown = std::pair<int, std::string>;
  for (const char* name : {"A/SETUP.EXE", "B/SETUP.EXE"}) disc_.File(name);
  EXPECT_EQ(tab(), Shown(0, "2"));
  for (const char* name : {"A/X.EXE", "B/X.EXE"}) disc_.File(name);
  EXPECT_EQ(tab(), Shown(1, "2"));
  for (const char* name : {"A/X.ZIP", "B/X.ZIP"}) disc_.File(name);
  EXPECT_EQ(tab(), Shown(2, "2"));
  disc_.File("C/SETUP.EXE");
  EXPECT_EQ(tab(), Shown(0, "3"));
  disc_.File("C/X.ZIP");
  EXPECT_EQ(tab(), Shown(2, "3")) << "installs and archives equal, fewer programs";
}

// An empty table counts for one row, like one of a single entry.
TEST_F(CliTest, ATableOfOneEntryGivesWayToAnEmptyOneBehindIt) {
  disc_.File("JEU.EXE", DosExecutable());
  const Json catalogue = Catalogue();
  EXPECT_EQ(catalogue["tab"], 2);
  EXPECT_EQ(catalogue["count"], "0");
  EXPECT_EQ(catalogue["tables"][1]["rows"].size(), 1u);
}

TEST_F(CliTest, HelpNamesEveryOption) {
  EXPECT_EQ(RunWith({"--help"}), cli::kDone);
  EXPECT_EQ(err_, "");
  for (const char* option : {"DISC", "--drive", "--start", "--json", "--inspect", "--ini",
                             "--quiet", "--help", "--version"}) {
    EXPECT_THAT(out_, HasSubstr(option));
  }
}

TEST_F(CliTest, VersionIsNameAndNumber) {
  EXPECT_EQ(RunWith({"--version"}), cli::kDone);
  EXPECT_EQ(out_, "Trovex 1.0.0\n");
  EXPECT_EQ(err_, "");
}

TEST_F(CliTest, ACommandLineWithoutDirectoryIsWrong) {
  ExpectWrong({}, "DISC");
  ExpectWrong({"--json"}, "DISC");
}

TEST_F(CliTest, AMissingDirectoryIsNamedInOneLine) {
  ExpectWrong({Argument("RIEN")}, Argument("RIEN") + ": no such directory");
  ExpectWrong({Argument("RIEN/DU/TOUT")}, "no such directory");
  ExpectWrong({""}, "no such directory");
}

TEST_F(CliTest, AFileInTheDirectorysPlaceIsNamedInOneLine) {
  disc_.File("FICHIER.TXT", "texte");
  ExpectWrong({Argument("FICHIER.TXT")},
              Argument("FICHIER.TXT") + ": neither a directory nor a disc image");
}

TEST_F(CliTest, AStartThatIsMissingOrAFileIsWrong) {
  disc_.File("FICHIER.TXT", "texte");
  ExpectWrong({Argument(), "--start", "D:\\RIEN"}, "--start D:\\RIEN");
  ExpectWrong({Argument(), "--start", "D:\\FICHIER.TXT"}, "--start D:\\FICHIER.TXT");
  ExpectWrong({Argument(), "--start", ""}, "--start");
}

TEST_F(CliTest, WrongOptionsAreNamedInOneLine) {
  ExpectWrong({Argument(), "--nope"}, "--nope");
  ExpectWrong({Argument(), "AUTRE"}, "AUTRE");
  ExpectWrong({Argument(), "--drive"}, "--drive");
  ExpectWrong({Argument(), "--drive", "1"}, "--drive");
  ExpectWrong({Argument(), "--drive", "DE"}, "--drive");
  ExpectWrong({Argument(), "--drive", ""}, "--drive");
  ExpectWrong({Argument(), "--start"}, "--start");
}

TEST_F(CliTest, NamesInAnyScriptComeOutAsUtf8) {
  disc_.File("\xD0\x98\xD0\xB3\xD1\x80\xD1\x8B/\xE6\x97\xA5.EXE", DosExecutable());
  EXPECT_EQ(Catalogue()["tables"][1]["rows"][0][1], " D:\\\xD0\x98\xD0\xB3\xD1\x80\xD1\x8B");
  const Json below = Catalogue({"--start", "D:\\\xD0\x98\xD0\xB3\xD1\x80\xD1\x8B"});
  EXPECT_EQ(below["tables"][1]["rows"].size(), 1u);
}

TEST_F(CliTest, ALargeReadmeWithoutLineEndGivesItsBeginning) {
  disc_.File("A.EXE", DosExecutable());  // the row that is inspected
  for (int i = 0; i < 20; ++i) disc_.File("JEUX/" + std::to_string(i) + ".EXE", DosExecutable());
  disc_.File("JEUX/README.TXT", "Un jeu");
  std::filesystem::resize_file(disc_.HostPath("JEUX/README.TXT"), 100'000'000);
  const Json rows = Catalogue()["tables"][1]["rows"];
  ASSERT_EQ(rows.size(), 21u);
  for (std::size_t row = 1; row < rows.size(); ++row) EXPECT_EQ(rows[row][0], "Un jeu");
}

// Standard output that takes nothing.
class ClosedBuffer : public std::streambuf {};

TEST_F(CatalogueTest, OutputThatCannotBeWrittenEndsWithARunTimeError) {
  for (const char* form : {"--json", "--start=D:\\"}) {
    ClosedBuffer closed;
    std::ostream out(&closed);
    std::ostringstream err;
    EXPECT_EQ(cli::Run({Argument(), form}, out, err, false), cli::kRuntimeError);
    EXPECT_EQ(err.str(), "trovex-cli: erreur d'exécution 61 : Disque plein (trovex-cli)\n");
  }
}

// Standard output whose failures are exceptions of another kind.
TEST_F(CatalogueTest, AnyOtherExceptionEndsWithOneLineAndTheSameStatus) {
  ClosedBuffer closed;
  std::ostream out(&closed);
  out.exceptions(std::ios::badbit);
  std::ostringstream err;
  EXPECT_EQ(cli::Run({Argument(), "--json"}, out, err, false), cli::kRuntimeError);
  EXPECT_THAT(err.str(), StartsWith("trovex-cli: erreur interne : "));
  EXPECT_EQ(err.str().find('\n'), err.str().size() - 1);
}

// Calls back each time the program has shown its progress.
class WatchedBuffer : public std::stringbuf {
 public:
  explicit WatchedBuffer(std::function<void(const std::string&)> watcher)
      : watcher_(std::move(watcher)) {}
  int sync() override {
    watcher_(str());
    return 0;
  }

 private:
  std::function<void(const std::string&)> watcher_;
};

TEST_F(CatalogueTest, ADirectoryThatVanishesUnderTheScanEndsWithARunTimeErrorAndNoJson) {
  disc_.Directory("JEUX/SOUS");
  disc_.File("ZEBRE/Z.EXE", DosExecutable());
  WatchedBuffer watched([&](const std::string& shown) {
    if (shown.find("D:\\Jeux...") != std::string::npos) disc_.Remove("ZEBRE");
  });
  std::ostringstream out;
  std::ostream err(&watched);
  EXPECT_EQ(cli::Run({Argument(), "--json"}, out, err, true), cli::kRuntimeError);
  EXPECT_EQ(out.str(), "");
  EXPECT_THAT(watched.str(), HasSubstr("trovex-cli: erreur d'exécution 76 : "
                                       "Chemin d'accès introuvable"));
  EXPECT_EQ(Run({"--json"}), cli::kDone) << "the next run is not disturbed";
}

TEST_F(CliTest, TheSampleDisc) {
  WriteSampleDisc(disc_.HostPath(""));
  std::ifstream file(std::filesystem::path(TROVEX_TEST_SOURCES) / "Apps/golden/sampledisc.json");
  ASSERT_TRUE(file);
  const Json golden = Json::parse(file);
  const Json catalogue = Catalogue();
  EXPECT_EQ(catalogue["start"], golden["start"]);
  EXPECT_EQ(catalogue["tab"], golden["tab"]);
  EXPECT_EQ(catalogue["count"], golden["count"]);
  EXPECT_EQ(catalogue["messages"], golden["messages"]);
  for (std::size_t table = 0; table < 3; ++table) {
    const Json& expected = golden["tables"][table];
    const Json& given = catalogue["tables"][table];
    EXPECT_EQ(given["titles"], expected["titles"]);
    ASSERT_EQ(given["rows"].size(), expected["rows"].size());
    for (std::size_t row = 0; row < expected["rows"].size(); ++row) {
      EXPECT_EQ(given["rows"][row], expected["rows"][row]);
    }
  }
}

}  // namespace
}  // namespace trovex::test
