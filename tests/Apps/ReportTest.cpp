// One report over many discs.
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "Apps/CliTest.h"
#include "Apps/trovex-cli/ReportLines.h"
#include "support/IsoBuilder.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class ReportTest : public CliTest {
 protected:
  ReportTest() { disc_.Directory("SORTIE"); }

  std::string Output(const std::string& name) const { return Argument("SORTIE/" + name); }
  bool Stands(const std::string& name) const {
    return std::filesystem::exists(disc_.HostPath("SORTIE/" + name));
  }
  // The names of everything in the directory of the output.
  std::vector<std::string> Outputs() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(disc_.HostPath("SORTIE"))) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string Bytes(const std::string& name) const {
    std::ifstream file(disc_.HostPath("SORTIE/" + name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  // Runs a report over these discs, directories of the drive.
  int Make(const std::string& name, std::vector<std::string> discs,
           std::vector<std::string> options = {}) {
    std::vector<std::string> arguments = {"--report", Output(name)};
    arguments.insert(arguments.end(), options.begin(), options.end());
    for (const std::string& disc : discs) arguments.push_back(Argument(disc));
    return RunWith(arguments);
  }
  // The rows of a report in JSON.
  std::vector<Json> Rows(std::vector<std::string> discs, std::vector<std::string> options = {}) {
    EXPECT_EQ(Make("r.jsonl", discs, options), cli::kDone) << err_;
    return Parsed("r.jsonl");
  }
  std::vector<Json> Parsed(const std::string& name) {
    std::vector<Json> rows;
    std::istringstream lines(Bytes(name));
    for (std::string line; std::getline(lines, line);) rows.push_back(Json::parse(line));
    return rows;
  }

  // A disc with an entry in each table.
  void Disc(const std::string& name) {
    const LocalTime date = {1997, 6, 2, 10, 30, 15};
    disc_.File(name + "/SETUP.EXE", NeExecutable(VersionBlock8({{"FileDescription", "MS-Setup"}})),
               date);
    disc_.File(name + "/SETUP.LST", "[Params]\r\nWndTitle=Mon \xE9t\xE9\r\n");
    disc_.File(name + "/Jeux De/DAMES.exe",
               NeExecutable(VersionBlock8({{"FileDescription", "Jeu de dames"},
                                           {"FileVersion", "1.20"},
                                           {"CompanyName", "Moi"},
                                           {"LegalCopyright", "\xA9 1997"},
                                           {"ProductName", "Dames"}})),
               date);
    disc_.File(name + "/Jeux De/dames.ZIP", ZipArchive(12345), date);
    disc_.File(name + "/Jeux De/FILE_ID.DIZ", "**********\r\nUn jeu \xE0 deux\r\n");
  }
};

TEST_F(ReportTest, ARowTellsAllOfAnEntry) {
  Disc("A");
  const std::vector<Json> rows = Rows({"A"});
  ASSERT_EQ(rows.size(), 3u);
  const Json dames = {{"disc", Argument("A")},
                      {"volume", rows[1]["volume"]},
                      {"table", "exe"},
                      {"description", "Jeu de dames"},
                      {"source", "version record"},
                      {"location", rows[1]["location"]},
                      {"file", "DAMES.exe"},
                      {"version", "1.20"},
                      {"product", "Dames"},
                      {"company", "Moi"},
                      {"copyright", "© 1997"},
                      {"size", rows[1]["size"]},
                      {"modified", "1997-06-02T10:30:15"},
                      {"format", "NE"}};
  EXPECT_EQ(rows[1], dames);
  EXPECT_EQ(rows[1]["size"], std::filesystem::file_size(disc_.HostPath("A/Jeux De/DAMES.exe")));
  EXPECT_TRUE(rows[1]["size"].is_number());
}

TEST_F(ReportTest, LocationAndFileBearTheDisksOwnSpelling) {
  Disc("A");
  disc_.File("A/Jeux De/SOUS dossier/x.EXE", DosExecutable());
  const std::vector<Json> rows = Rows({"A"});
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_EQ(rows[3]["file"], "x.EXE");
  EXPECT_THAT(rows[3]["location"].get<std::string>(), EndsWith("\\Jeux De\\SOUS dossier"));
}

TEST_F(ReportTest, AllThreeTablesAreInItWithTheirSources) {
  Disc("A");
  std::vector<std::string> told;
  for (const Json& row : Rows({"A"})) {
    told.push_back(row["table"].get<std::string>() + "|" + row["description"].get<std::string>() +
                   "|" + row["source"].get<std::string>() + "|" + row["format"].get<std::string>());
  }
  EXPECT_THAT(told, ElementsAre("setup|Mon été|SETUP.LST [Params] WndTitle|NE",
                                "exe|Jeu de dames|version record|NE",
                                "zip|Un jeu à deux|file_id.diz, line 2|ZIP"));
}

TEST_F(ReportTest, TheProductOfTheFirstFileIsNamedAsASource) {
  disc_.File("A/ABC.EXE", NeExecutable(VersionBlock8({{"ProductName", "Suite"}})));
  disc_.File("A/JEU.EXE", DosExecutable());
  disc_.File("B/JEU.EXE", DosExecutable());
  const std::vector<Json> rows = Rows({"A", "B"});
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[1]["source"], "product name of ABC.EXE");
  EXPECT_EQ(rows[2]["description"], "Ne contient pas de nom produit.");
  EXPECT_EQ(rows[2]["source"], "");
}

TEST_F(ReportTest, CsvIsWhatASpreadsheetOpensRight) {
  disc_.File("A/JEU.EXE", NeExecutable(VersionBlock8({{"FileDescription", "Dit \"d\xE9j\xE0\"; vu"},
                                                      {"FileVersion", "=1+1"}})));
  EXPECT_EQ(Make("r.csv", {"A"}), cli::kDone);
  const std::string csv = Bytes("r.csv");
  EXPECT_THAT(csv, StartsWith("\xEF\xBB\xBF"
                              "disc;volume;table;description;source;location;file;version;product;"
                              "company;copyright;size;modified;format\r\n"));
  EXPECT_THAT(csv, HasSubstr(";exe;\"Dit \"\"déjà\"\"; vu\";version record;"));
  EXPECT_THAT(csv, HasSubstr(";JEU.EXE;'=1+1;;;;"));
  EXPECT_THAT(csv, EndsWith(";1997-03-01T12:00:00;NE\r\n"));
  EXPECT_EQ(err_, "");
  EXPECT_EQ(out_, "");
}

TEST(ReportLinesTest, WhatASpreadsheetWouldCalculateIsMadeHarmless) {
  for (const char* start : {"=", "+", "-", "@", "\t", "\r"}) {
    cli::ReportRow row;
    row.description = std::string(start) + "x";
    EXPECT_THAT(ReportLine(cli::ReportForm::kCsv, row), HasSubstr("'" + std::string(start) + "x"));
    EXPECT_THAT(ReportLine(cli::ReportForm::kJsonLines, row), Not(HasSubstr("'")));
  }
  cli::ReportRow row;
  row.description = "a=b";
  row.size = -1;
  EXPECT_THAT(ReportLine(cli::ReportForm::kCsv, row), Not(HasSubstr("'")));
}

TEST(ReportLinesTest, LineEndsInACellAreQuoted) {
  cli::ReportRow row;
  row.description = "un\r\ndeux\ntrois";
  EXPECT_THAT(ReportLine(cli::ReportForm::kCsv, row), HasSubstr(";\"un\r\ndeux\ntrois\";"));
}

TEST(ReportLinesTest, WhatIsNotKnownIsEmpty) {
  cli::ReportRow row;
  EXPECT_EQ(ReportLine(cli::ReportForm::kCsv, row), std::string(13, ';') + "\r\n");
  const auto json = nlohmann::json::parse(ReportLine(cli::ReportForm::kJsonLines, row));
  EXPECT_TRUE(json["size"].is_null());
  EXPECT_EQ(json["modified"], "");
  EXPECT_FALSE(json.contains("sha1"));
}

TEST(ReportLinesTest, TheEndingTellsTheForm) {
  EXPECT_EQ(cli::FormOf("a/r.csv"), cli::ReportForm::kCsv);
  EXPECT_EQ(cli::FormOf("R.CSV"), cli::ReportForm::kCsv);
  EXPECT_EQ(cli::FormOf("r.JsonL"), cli::ReportForm::kJsonLines);
  for (const char* name : {"r.json", "r.txt", "r", ".csv", "csv", ""}) {
    EXPECT_EQ(cli::FormOf(name), cli::ReportForm::kNone) << name;
  }
}

TEST(ReportLinesTest, ADigestsNameIsEscapedWhereItMustBe) {
  EXPECT_EQ(cli::DigestLine("da39", "a b/c.exe"), "da39  a b/c.exe\n");
  EXPECT_EQ(cli::DigestLine("da39", "a\\b\nc\rd"), "\\da39  a\\\\b\\nc\\rd\n");
}

// --- Digests ---

TEST_F(ReportTest, DigestsStandInTheRowsAndInAListOfTheirOwn) {
  disc_.File("A/JEU.EXE", "abc");
  const std::filesystem::path user = std::filesystem::current_path();
  const std::vector<Json> rows = Rows({"A"}, {"--hash"});
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0]["sha1"], "a9993e364706816aba3e25717850c26c9cd0d89d");
  const std::string list = Bytes("r.sha1");
  ASSERT_THAT(list, StartsWith("a9993e364706816aba3e25717850c26c9cd0d89d  "));
  const std::string path = list.substr(42, list.size() - 43);
  EXPECT_EQ(path.find('\\'), std::string::npos);
  std::ifstream found(user / std::filesystem::path(std::u8string(path.begin(), path.end())));
  EXPECT_TRUE(found.is_open()) << path << " leads there from where the user stands";
}

TEST_F(ReportTest, ALargeFilesDigestIsThatOfAllOfIt) {
  disc_.File("A/JEU.EXE", std::string(1000000, 'a'));
  EXPECT_EQ(Rows({"A"}, {"--hash"})[0]["sha1"], "34aa973cd4c4daa4f61eeb2bdbad27316534016f");
}

TEST_F(ReportTest, WithoutHashThereIsNoListOfDigests) {
  Disc("A");
  EXPECT_EQ(Make("r.csv", {"A"}), cli::kDone);
  EXPECT_THAT(Outputs(), ElementsAre("r.csv"));
  EXPECT_THAT(Bytes("r.csv"), Not(HasSubstr("sha1")));
  EXPECT_EQ(Make("r.csv", {"A"}, {"--hash"}), cli::kDone);
  EXPECT_THAT(Outputs(), ElementsAre("r.csv", "r.sha1"));
  EXPECT_THAT(Bytes("r.csv"), HasSubstr(";format;sha1\r\n"));
}

// --- Several discs ---

TEST_F(ReportTest, TenDiscsOfWhichOneIsBroken) {
  std::vector<std::string> discs;
  for (int i = 0; i < 10; ++i) {
    discs.push_back("D" + std::to_string(i));
    if (i != 4) Disc(discs.back());
  }
  EXPECT_EQ(Make("r.jsonl", discs), cli::kIncomplete);
  EXPECT_EQ(err_, "trovex-cli: " + Argument("D4") + ": no such directory\n");
  const std::vector<Json> rows = Parsed("r.jsonl");
  ASSERT_EQ(rows.size(), 27u);
  EXPECT_EQ(rows[0]["disc"], Argument("D0"));
  EXPECT_EQ(rows[12]["disc"], Argument("D5"));
  EXPECT_EQ(rows[26]["disc"], Argument("D9"));
}

TEST_F(ReportTest, DiscsMayBearAnyName) {
  for (const char* name : {"[a,b]", "un deux", "é", "[c]"}) Disc(name);
  const std::vector<Json> rows = Rows({"un deux", "[a,b]", "é", "[c]"});
  ASSERT_EQ(rows.size(), 12u);
  EXPECT_EQ(rows[3]["disc"], Argument("[a,b]"));
  EXPECT_EQ(rows[11]["disc"], Argument("[c]"));
}

TEST_F(ReportTest, ADiscWithoutEntriesHasNoRows) {
  disc_.File("VIDE/LISEZMOI.TXT", "rien");
  EXPECT_THAT(Rows({"VIDE"}), IsEmpty());
  EXPECT_EQ(Make("r.csv", {"VIDE"}), cli::kDone);
  EXPECT_THAT(Bytes("r.csv"), EndsWith(";format\r\n"));
}

TEST_F(ReportTest, ProgressOnATerminalTellsTheDisc) {
  Disc("A");
  Disc("B");
  EXPECT_EQ(RunWith({"--report", Output("r.csv"), Argument("A"), Argument("B")}, Terminal::kYes),
            cli::kDone);
  EXPECT_THAT(err_, HasSubstr("disc 1 of 2, Exploration du répertoire"));
  EXPECT_THAT(err_, HasSubstr("disc 2 of 2, Exploration du répertoire"));
  EXPECT_EQ(RunWith({"--report", Output("r.csv"), "--quiet", Argument("A")}, Terminal::kYes),
            cli::kDone);
  EXPECT_EQ(err_, "");
}

// --- Images ---

TEST_F(ReportTest, AnImageIsADiscAmongOthers) {
  IsoBuilder iso;
  iso.File("JEUX/DAMES.EXE", "abc");
  iso.File("JEUX/LISEZMOI.TXT", "Les dames.\r\n");
  disc_.File("disque.iso", iso.Build(IsoFormat::kJoliet).bytes);
  Disc("A");
  const std::vector<Json> rows = Rows({"A", "disque.iso"}, {"--hash"});
  ASSERT_EQ(rows.size(), 4u);
  const Json& dames = rows[3];
  EXPECT_EQ(dames["disc"], Argument("disque.iso"));
  EXPECT_EQ(dames["location"], "D:\\JEUX");
  EXPECT_EQ(dames["file"], "DAMES.EXE");
  EXPECT_EQ(dames["description"], "Les dames.");
  EXPECT_EQ(dames["source"], "lisezmoi.txt, line 1");
  EXPECT_EQ(dames["size"], 3);
  EXPECT_EQ(dames["sha1"], "a9993e364706816aba3e25717850c26c9cd0d89d");
  const std::string list = Bytes("r.sha1");
  EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), 3) << "files of directories only";
  EXPECT_EQ(list.find("DAMES.EXE"), std::string::npos) << list;
}

TEST_F(ReportTest, AnImagesVolumeIsNamed) {
  IsoBuilder iso;
  iso.Label("NOEL_97");
  iso.File("JEU.EXE", DosExecutable());
  disc_.File("disque.iso", iso.Build(IsoFormat::kPlain).bytes);
  EXPECT_EQ(Rows({"disque.iso"})[0]["volume"], "NOEL_97");
}

TEST_F(ReportTest, AnImageThatIsNoneDoesNotEndTheRun) {
  disc_.File("disque.iso", std::string(100000, 'x'));
  Disc("A");
  EXPECT_EQ(Make("r.jsonl", {"disque.iso", "A"}), cli::kIncomplete);
  EXPECT_THAT(err_, StartsWith("trovex-cli: " + Argument("disque.iso") + ": neither"));
  EXPECT_EQ(Parsed("r.jsonl").size(), 3u);
}

// --- Options ---

TEST_F(ReportTest, CommandLinesThatCannotBe) {
  Disc("A");
  ExpectWrong({"--report", Output("r.txt"), Argument("A")}, ".csv or .jsonl");
  ExpectWrong({"--report", Output("r"), Argument("A")}, ".csv or .jsonl");
  ExpectWrong({"--report", "", Argument("A")}, "name");
  ExpectWrong({"--report", Output("r.csv")}, "DISC");
  ExpectWrong({Argument("A"), Argument("A")}, "--report");
  ExpectWrong({"--hash", Argument("A")}, "--report");
  ExpectWrong({"--report", Output("r.csv"), Argument("A"), "--rien"}, "--rien");
  ExpectWrong({"--report", Output("r.csv"), "--json", Argument("A")}, "--report");
  ExpectWrong({"--report", Output("r.csv"), "--csv", Output("t.csv"), Argument("A")}, "--report");
  EXPECT_THAT(Outputs(), IsEmpty());
}

TEST_F(ReportTest, UnicodeRecordsAreReadIfAskedFor) {
  disc_.File(
      "A/JEU.EXE",
      PeExecutable(VersionBlock16({{"FileDescription", "Jeu \xE9t\xE9"}, {"CompanyName", "Moi"}})));
  EXPECT_EQ(Rows({"A"})[0]["source"], "");
  const Json row = Rows({"A"}, {"--unicode-records"})[0];
  EXPECT_EQ(row["description"], "Jeu été");
  EXPECT_EQ(row["source"], "version record");
  EXPECT_EQ(row["company"], "Moi");
  EXPECT_EQ(row["format"], "PE32");
  EXPECT_EQ(Rows({"A"})[0]["source"], "") << "for that run alone";
}

TEST_F(ReportTest, TheSettingsFileMayChooseUnicodeRecords) {
  disc_.File("A/JEU.EXE", PeExecutable(VersionBlock16({{"FileDescription", "Jeu"}})));
  disc_.File("B/JEU.EXE", PeExecutable(VersionBlock16({{"FileDescription", "Jeu"}})));
  disc_.File("CHOIX9.INI", "[Options]\r\nfiches_unicode=-1\r\n");
  for (const Json& row : Rows({"A", "B"}, {"--ini", Argument("CHOIX9.INI")})) {
    EXPECT_EQ(row["description"], "Jeu");
  }
}

// --- A report that cannot be finished ---

TEST_F(ReportTest, AReportThatCannotBeWrittenIsAFailure) {
  Disc("A");
  EXPECT_EQ(Make("RIEN/r.csv", {"A"}), cli::kExportFailed);
  EXPECT_THAT(err_, HasSubstr("r.csv: cannot be written"));
  disc_.Directory("SORTIE/r.csv");
  EXPECT_EQ(Make("r.csv", {"A"}), cli::kExportFailed);
  EXPECT_THAT(Outputs(), ElementsAre("r.csv"));
}

TEST_F(ReportTest, AReportWithoutItsListOfDigestsIsAFailure) {
  Disc("A");
  disc_.Directory("SORTIE/r.sha1/PLEIN");
  EXPECT_EQ(Make("r.csv", {"A"}, {"--hash"}), cli::kExportFailed);
  EXPECT_THAT(Outputs(), ElementsAre("r.sha1"));
}

TEST_F(ReportTest, AnEarlierReportIsReplaced) {
  Disc("A");
  disc_.File("SORTIE/r.jsonl", std::string(100000, 'x'));
  EXPECT_EQ(Rows({"A"}).size(), 3u);
  EXPECT_THAT(Outputs(), ElementsAre("r.jsonl"));
}

}  // namespace
}  // namespace trovex::test
