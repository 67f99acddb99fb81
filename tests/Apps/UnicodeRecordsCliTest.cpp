// The command line's choice to read version records in 16-bit characters, too.
#include "Apps/CliTest.h"

namespace trovex::test {
namespace {

class UnicodeRecordsCliTest : public CliTest {
 protected:
  UnicodeRecordsCliTest() {
    std::string record = VersionBlock16({{"FileDescription", "Jeu #"}, {"ProductName", "Go #"}});
    // A character that Windows-1252 lacks takes the sign's place.
    const std::string sign("#\0", 2), go = "\xF2\x56";
    for (std::size_t at; (at = record.find(sign)) != std::string::npos;) record.replace(at, 2, go);
    disc_.File("JEU.EXE", PeExecutable(record));
    disc_.File("VIEUX.EXE", NeExecutable(VersionBlock8({{"FileDescription", "Ancien"}})));
  }

  std::string Description(std::vector<std::string> options = {}) {
    return Catalogue(std::move(options))["tables"][1]["rows"][0][0];
  }
};

TEST_F(UnicodeRecordsCliTest, IsOffUnlessAskedFor) {
  EXPECT_EQ(Description(), "Ne contient pas de nom produit.");
  EXPECT_EQ(Description({"--unicode-records"}), "Jeu \u56F2");
  EXPECT_EQ(Description(), "Ne contient pas de nom produit.") << "for that run alone";
}

TEST_F(UnicodeRecordsCliTest, TheSettingsFileMayAskForIt) {
  disc_.File("OUI7.INI", "[Options]\r\nfiches_unicode=-1\r\n");
  disc_.File("NON7.INI", "[Options]\r\nfiches_unicode=0\r\n");
  EXPECT_EQ(Description({"--ini", Argument("OUI7.INI")}), "Jeu \u56F2");
  EXPECT_EQ(Description({"--ini", Argument("NON7.INI")}), "Ne contient pas de nom produit.");
  EXPECT_EQ(Description({"--ini", Argument("NON7.INI"), "--unicode-records"}), "Jeu \u56F2");
}

TEST_F(UnicodeRecordsCliTest, AClickShowsWhatTheScanRead) {
  const Json details =
      Catalogue({"--unicode-records", "--inspect"})["tables"][1]["details"][0]["TextInfo"];
  EXPECT_EQ(details[4], "Go \u56F2");
}

TEST_F(UnicodeRecordsCliTest, RecordsOf8BitCharactersAreReadAsBefore) {
  const Json rows = Catalogue({"--unicode-records"})["tables"][1]["rows"];
  EXPECT_EQ(rows[1][0], "Ancien");
}

}  // namespace
}  // namespace trovex::test
