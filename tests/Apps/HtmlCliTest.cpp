// The HTML export of the command line: the sample disc against golden files, and what goes wrong.
// The golden files hold the export of all tables with the drive letter, and the page of tables
// without it. What the options and --table change is taken from them or spelled out here.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "Apps/CliTest.h"
#include "support/SampleDisc.h"

namespace trovex::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace fs = std::filesystem;

std::string Contents(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return "missing";
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string Golden(const std::string& name) {
  return Contents(fs::path(TROVEX_TEST_SOURCES) / "Apps/golden/html" / name);
}

// A page in its parts: head, one section a table, end.
struct Parts {
  std::string head, end;
  std::vector<std::string> sections;
};

Parts PartsOf(const std::string& page) {
  static const std::string kHeading = "<CENTER><H3>", kEnd = "</BODY>\r\n</HTML>\r\n";
  Parts parts;
  std::string rest = page;
  if (rest.ends_with(kEnd)) {
    parts.end = kEnd;
    rest.resize(rest.size() - kEnd.size());
  }
  std::size_t at = rest.find(kHeading);
  parts.head = rest.substr(0, at);
  while (at < rest.size()) {
    const std::size_t next = std::min(rest.find(kHeading, at + 1), rest.size());
    parts.sections.push_back(rest.substr(at, next - at));
    at = next;
  }
  return parts;
}

class HtmlCliTest : public CliTest {
 protected:
  HtmlCliTest() { disc_.Directory("SITE"); }

  std::string Target() const { return Argument("SITE/Fichier.htm"); }
  std::string Frameset() const { return Contents(disc_.HostPath("SITE/Fichier.htm")); }
  std::string Tables() const { return Contents(disc_.HostPath("SITE/Fichier_tableaux.htm")); }
  std::string Data() const { return Contents(disc_.HostPath("SITE/Fichier_donnees.htm")); }

  int Export(std::vector<std::string> options = {}) {
    options.insert(options.end(), {"--quiet", "--html", Target(), "--ini", ini_});
    return Run(options);
  }
  // The same with a settings file of these lines, each of a name of its own.
  int ExportWith(const std::string& lines, std::vector<std::string> options = {}) {
    const std::string name = "SITE/R" + std::to_string(++settings_) + ".INI";
    disc_.File(name, "[html]\r\n" + lines);
    ini_ = Argument(name);
    return Export(std::move(options));
  }

  std::string ini_ = Argument("SITE/AUCUN.INI");

 private:
  static inline int settings_ = 0;
};

class SampleSiteTest : public HtmlCliTest {
 protected:
  SampleSiteTest() { WriteSampleDisc(disc_.HostPath("")); }
};

TEST_F(SampleSiteTest, AllTablesWithTheDriveLetter) {
  EXPECT_EQ(Export(), cli::kDone);
  EXPECT_EQ(Frameset(), Golden("Fichier.htm"));
  EXPECT_EQ(Tables(), Golden("Fichier_tableaux.htm"));
  EXPECT_EQ(Data(), Golden("Fichier_donnees.htm"));
}

TEST_F(SampleSiteTest, AllTablesWithoutTheDriveLetter) {
  EXPECT_EQ(Export({"--drop-drive"}), cli::kDone);
  EXPECT_EQ(Frameset(), Golden("Fichier.htm"));
  EXPECT_EQ(Tables(), Golden("sans-lecteur.htm"));
  EXPECT_EQ(Data(), Golden("Fichier_donnees.htm"));
}

TEST_F(SampleSiteTest, OneTableIsItsSectionBetweenHeadAndEnd) {
  const Parts data = PartsOf(Golden("Fichier_donnees.htm"));
  ASSERT_EQ(data.sections.size(), 3u);
  for (const bool keep : {true, false}) {
    const Parts tables = PartsOf(Golden(keep ? "Fichier_tableaux.htm" : "sans-lecteur.htm"));
    ASSERT_EQ(tables.sections.size(), 3u);
    for (std::size_t table = 0; table < 3; ++table) {
      std::vector<std::string> options = {"--table", std::to_string(table)};
      if (!keep) options.push_back("--drop-drive");
      EXPECT_EQ(Export(options), cli::kDone);
      EXPECT_EQ(Frameset(), Golden("Fichier.htm"));
      EXPECT_EQ(Tables(), tables.head + tables.sections[table] + tables.end);
      EXPECT_EQ(Data(), data.head + data.sections[table]);
    }
  }
}

TEST_F(SampleSiteTest, EveryOptionAtOnceChangesHeadAndEndAlone) {
  const Parts tables = PartsOf(Golden("Fichier_tableaux.htm"));
  const Parts data = PartsOf(Golden("Fichier_donnees.htm"));
  EXPECT_EQ(ExportWith("html_entete=0\r\nhtml_fin=0\r\nhtml_titre=T\r\nhtml_couleur=\r\n"
                       "html_back=f.gif\r\nhtml_image=l.gif\r\nhtml_frame=0\r\nhtml_cr=0\r\n"
                       "html_car=0\r\nhtml_prefixe=p\r\nhtml_ref=r.htm\r\n"),
            cli::kDone);
  const auto sum = [](const Parts& parts) {
    return parts.sections[0] + parts.sections[1] + parts.sections[2];
  };
  EXPECT_EQ(Frameset(), Golden("Fichier.htm"));
  EXPECT_EQ(Tables(), sum(tables));
  EXPECT_EQ(Data(), sum(data));
}

// Every combination of the boxes, each with and without its text where it has one, on a disc
// without entries: the sections do not depend on them.
TEST_F(HtmlCliTest, EachCombinationOfTheBoxesGivesItsHeadAndEnd) {
  const auto head = [](const std::string& title, bool colour, bool back, bool image) {
    return "<!-- DOCUMENT HTML GENERE PAR L'APPLICATION (c) Trovex 1.0.0 - 1999 -->\r\n"
           "<!-- DOCTYPE HTML SYSTEM \"html.dtd\" -->\r\n"
           "<HTML><HEAD><TITLE>" +
           title + "</TITLE></HEAD>\r\n<BODY BACKGROUND=\"" + (back ? "C:\\fond.gif" : "") +
           "\" BGCOLOR=\"" + (colour ? "#80FF" : "") + "\"><!--IMG SRC=\"" +
           (image ? "C:\\logo.gif" : "") + "\" ALIGN=\"MIDDLE\"-->\r\n\r\n";
  };
  for (unsigned boxes = 0; boxes < 64; ++boxes) {
    const auto on = [&](unsigned box) { return (boxes >> box & 1) != 0; };
    const bool entete = on(0), fin = on(1), titre = on(2), couleur = on(3), back = on(4),
               image = on(5);
    std::string lines;
    lines += std::string("html_entete=") + (entete ? "-1" : "0") + "\r\n";
    lines += std::string("html_fin=") + (fin ? "-1" : "0") + "\r\n";
    lines += std::string("html_titre=") + (titre ? "Mon \xE9t\xE9" : "") + "\r\n";
    // A key without a value counts as missing: it takes a blank between quotes to switch off.
    lines += std::string("html_couleur=") + (couleur ? "#80FF" : "\" \"") + "\r\n";
    lines += std::string("html_back=") + (back ? "C:\\fond.gif" : "") + "\r\n";
    lines += std::string("html_image=") + (image ? "C:\\logo.gif" : "") + "\r\n";
    EXPECT_EQ(ExportWith(lines), cli::kDone);
    const std::string expected =
        entete ? head(titre ? "Mon &eacute;t&eacute;" : "", couleur, back, image) : "";
    EXPECT_EQ(Tables(), expected + (fin ? "</BODY>\r\n</HTML>\r\n" : "")) << lines;
    EXPECT_EQ(Data(), expected) << lines;
  }
}

TEST_F(HtmlCliTest, WithoutAUsersTitleEachPageHasItsOwn) {
  EXPECT_EQ(Export(), cli::kDone);
  EXPECT_THAT(Tables(), HasSubstr("<TITLE>Tableaux des fichiers</TITLE>"));
  EXPECT_THAT(Data(), HasSubstr("<TITLE>Liste des donn&eacute;es</TITLE>"));
}

// --- The command line ---------------------------------------------------------------------------

TEST_F(HtmlCliTest, TablesAndJsonAreAsWithoutTheExport) {
  disc_.File("JEU.EXE", DosExecutable());
  for (const char* form : {"--json", "--drive=D"}) {
    Run({form});
    const std::string without = out_;
    EXPECT_EQ(Run({form, "--html", Target()}), cli::kDone);
    EXPECT_EQ(out_, without);
    EXPECT_EQ(err_, "");
  }
}

TEST_F(HtmlCliTest, TheTargetMayBeRelative) {
  const fs::path former = fs::current_path();
  fs::current_path(disc_.HostPath("SITE"));
  EXPECT_EQ(Run({"--quiet", "--html", "relatif.htm"}), cli::kDone);
  fs::current_path(former);
  EXPECT_THAT(Contents(disc_.HostPath("SITE/relatif.htm")),
              HasSubstr("SRC=\"relatif_tableaux.htm\""));
}

TEST_F(HtmlCliTest, ANameWithoutAPointGetsTheExtension) {
  EXPECT_EQ(Run({"--quiet", "--html", Argument("SITE") + "/abc"}), cli::kDone);
  EXPECT_THAT(Contents(disc_.HostPath("SITE/abc.htm")), HasSubstr("SRC=\"abc_tableaux.htm\""));
  EXPECT_THAT(Contents(disc_.HostPath("SITE/abc_tableaux.htm")), EndsWith("</HTML>\r\n"));
  EXPECT_THAT(Contents(disc_.HostPath("SITE/abc_donnees.htm")), StartsWith("<!--"));
  EXPECT_EQ(Contents(disc_.HostPath("SITE/abc")), "missing");
}

TEST_F(HtmlCliTest, APointInADirectoryIsNoExtension) {
  disc_.Directory("SITE/V1.0");
  EXPECT_EQ(Run({"--quiet", "--html", Argument("SITE/V1.0") + "/abc"}), cli::kDone);
  EXPECT_THAT(Contents(disc_.HostPath("SITE/V1.0/abc.htm")), StartsWith("<HTML>"));
}

TEST_F(HtmlCliTest, AnExtensionGivenStays) {
  for (const std::string name : {"SITE/abc.html", "SITE/abc.x"}) {
    EXPECT_EQ(Run({"--quiet", "--html", Argument(name)}), cli::kDone);
    EXPECT_THAT(Contents(disc_.HostPath(name)), StartsWith("<HTML>"));
  }
}

TEST_F(HtmlCliTest, ADirectoryForATargetIsStatusOne) {
  EXPECT_EQ(Run({"--quiet", "--html", Argument("SITE") + "/"}), cli::kExportFailed);
  EXPECT_EQ(Contents(disc_.HostPath("SITE.htm")), "missing");
}

// The tab counts a table by its current row, which an inspection must leave where it was.
TEST_F(HtmlCliTest, AnInspectionChangesNothingOfTheExport) {
  for (const char* name : {"A.ZIP", "B.ZIP"}) disc_.File(name, ZipArchive(5000));
  disc_.File("JEUX/DAMES.EXE", DosExecutable());
  disc_.File("JEUX/DAMES.TXT", "Jeu de dames\r\n");
  std::string lines;
  for (int i = 0; i < 4; ++i) lines += std::string(60, '_') + "\r\n";
  disc_.File("VIDE/RIEN.EXE", DosExecutable());
  disc_.File("VIDE/LISEZMOI.TXT", lines);
  const Json rows = Catalogue()["tables"][1]["rows"];
  ASSERT_EQ(rows.size(), 2u);
  ASSERT_EQ(rows[1][0], "");
  EXPECT_EQ(Export(), cli::kDone);
  const std::string tables = Tables(), data = Data();
  EXPECT_THAT(tables, HasSubstr("#EXECUTBALE"));
  EXPECT_EQ(Export({"--inspect", "--json"}), cli::kDone);
  EXPECT_EQ(Tables(), tables);
  EXPECT_EQ(Data(), data);
}

TEST_F(HtmlCliTest, ATextThatIsLostIsStatusOne) {
  disc_.File("JEU.EXE", DosExecutable());
  disc_.File("JEU.TXT", std::string(40000, 'x') + "\r\nfin\r\n");
  EXPECT_EQ(Export(), cli::kExportFailed);
  EXPECT_THAT(err_, StartsWith("trovex-cli: Erreur de traitement sur :"));
  EXPECT_THAT(Data(), HasSubstr("<KBD>\r\n\r\n</KBD>")) << "the rest is written all the same";
}

TEST_F(HtmlCliTest, ATargetThatCannotBeCreatedIsStatusOne) {
  disc_.File("JEU.EXE", DosExecutable());
  EXPECT_EQ(Run({"--json", "--html", Argument("AUCUN/Fichier.htm")}), cli::kExportFailed);
  EXPECT_THAT(err_, StartsWith("trovex-cli: Erreur d'\xC3\xA9"
                               "criture sur le fichier : "));
  EXPECT_EQ(Json::parse(out_)["messages"], Json::array()) << "the catalogue comes all the same";
}

TEST_F(HtmlCliTest, ADirectoryInThePlaceOfAPageIsStatusOne) {
  disc_.Directory("SITE/Fichier_donnees.htm");
  EXPECT_EQ(Export(), cli::kExportFailed);
  EXPECT_THAT(err_, HasSubstr("Fichier_donnees.htm"));
  EXPECT_THAT(Frameset(), EndsWith("</FRAMESET></HTML>\r\n"));
}

TEST_F(HtmlCliTest, SettingsOutOfRangeAreStatusOne) {
  EXPECT_EQ(ExportWith("html_car=2\r\n"), cli::kExportFailed);
  EXPECT_THAT(err_, StartsWith("trovex-cli: Erreur lors de la cr\xC3\xA9"
                               "ation du fichier HTML."));
}

TEST_F(HtmlCliTest, AColourThatIsNoneIsWrittenAsItStands) {
  EXPECT_EQ(ExportWith("html_couleur=pas une couleur\r\n"), cli::kDone);
  EXPECT_THAT(Tables(), HasSubstr("BGCOLOR=\"pas une couleur\""));
}

TEST_F(HtmlCliTest, TheSettingsAreNotWritten) {
  EXPECT_EQ(ExportWith("html_titre=T\r\n"), cli::kDone);
  EXPECT_EQ(Contents(std::u8string(ini_.begin(), ini_.end())), "[html]\r\nhtml_titre=T\r\n");
}

TEST_F(HtmlCliTest, WrongOptionsOfTheExportAreNamedInOneLine) {
  ExpectWrong({Argument(), "--html"}, "--html");
  ExpectWrong({Argument(), "--html", ""}, "--html");
  ExpectWrong({Argument(), "--html", Target(), "--table", "3"}, "--table");
  ExpectWrong({Argument(), "--html", Target(), "--table", "x"}, "--table");
  ExpectWrong({Argument(), "--html", Target(), "--table", "-1"}, "--table");
  EXPECT_EQ(Frameset(), "missing");
}

}  // namespace
}  // namespace trovex::test
