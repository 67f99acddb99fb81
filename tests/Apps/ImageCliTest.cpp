// Disc images on the command line: what is said of those that cannot be read, on every system.
#include "Apps/CliTest.h"
#include "support/IsoBuilder.h"
#include "support/RawSectors.h"

namespace trovex::test {
namespace {

class ImageCliTest : public CliTest {
 protected:
  static IsoBuilder Games() {
    IsoBuilder iso;
    iso.File("JEUX/SETUP.EXE", NeExecutable(VersionBlock8({{"FileDescription", "Installation"}})));
    iso.File("JEUX/DAMES.EXE", DosExecutable());
    iso.File("JEUX/LISEZMOI.TXT", "Les dames.\r\n");
    iso.File("ARCHIVE.ZIP", ZipArchive(500));
    return iso;
  }
  // One line that names the file and the reason; status 2.
  void ExpectNoDisc(std::string_view bytes, const std::string& reason) {
    disc_.File("disque.bin", bytes);
    ExpectWrong({Argument("disque.bin")}, Argument("disque.bin") + ": " + reason);
  }
};

TEST_F(ImageCliTest, AnImageIsADiscWhateverItsName) {
  const std::string bytes = Games().Build(IsoFormat::kJoliet).bytes;
  for (const char* name : {"disque.iso", "disque.zip", "sans extension"}) {
    disc_.File(name, bytes);
    EXPECT_EQ(RunWith({Argument(name), "--json"}), cli::kDone) << name;
    EXPECT_EQ(err_, "");
    const Json catalogue = Json::parse(out_);
    EXPECT_EQ(catalogue["start"], "D:\\");
    EXPECT_EQ(catalogue["tables"][0]["rows"][0][0], "Installation");
    EXPECT_EQ(catalogue["tables"][0]["rows"][0][1], " D:\\Jeux");
    EXPECT_EQ(catalogue["tables"][1]["rows"].size(), 1u);
    EXPECT_EQ(catalogue["tables"][2]["rows"].size(), 1u);
    EXPECT_FALSE(catalogue.contains("unread"));
  }
}

TEST_F(ImageCliTest, AnImageHasItsLetterAndItsStart) {
  disc_.File("disque.bin", RawImage(Games().Build(IsoFormat::kPlain).bytes, {2352, 1}));
  EXPECT_EQ(RunWith({Argument("disque.bin"), "--json", "--drive", "f", "--start", "F:\\JEUX"}),
            cli::kDone);
  const Json catalogue = Json::parse(out_);
  EXPECT_EQ(catalogue["tables"][0]["rows"][0][1], " F:\\JEUX");
  EXPECT_TRUE(catalogue["tables"][2]["rows"].empty());
  ExpectWrong({Argument("disque.bin"), "--start", "D:\\RIEN"}, "--start D:\\RIEN");
}

TEST_F(ImageCliTest, ExportsOfAnImageAreWrittenBesideIt) {
  disc_.File("disque.iso", Games().Build(IsoFormat::kJoliet).bytes);
  EXPECT_EQ(RunWith({Argument("disque.iso"), "--quiet", "--csv", Argument("liste.csv"), "--html",
                     Argument("liste.htm"), "--pdf", Argument("liste.pdf")}),
            cli::kDone);
  for (const char* name : {"liste.csv", "liste.htm", "liste.pdf"}) {
    EXPECT_TRUE(std::filesystem::exists(disc_.HostPath(name))) << name;
  }
}

TEST_F(ImageCliTest, WhatIsNoDiscIsNamedInOneLine) {
  ExpectNoDisc("", "the file is empty");
  ExpectNoDisc(std::string(100000, 'x'), "neither a directory nor a disc image");
  std::string udf(300 * kIsoSector, '\0');
  udf.replace(kPrimary, 6, std::string("\0BEA01", 6));
  ExpectNoDisc(udf, "a disc with a UDF volume alone");
  std::string mac(300 * kIsoSector, '\0');
  mac.replace(1024, 2, "BD");
  ExpectNoDisc(mac, "a Macintosh disc (HFS) alone");
  ExpectNoDisc("MComprHD" + std::string(1000, '\1'), "a compressed image (CHD)");
  ExpectNoDisc(Games().Build(IsoFormat::kPlain).bytes.substr(0, 22 * kIsoSector),
               "the disc's root directory cannot be read");
  ExpectNoDisc("FILE \"absent.bin\" BINARY\nTRACK 01 MODE1/2352\nINDEX 01 00:00:00\n",
               "names the file 'absent.bin', which is not there");
  ExpectNoDisc("FILE \"absent.bin\" BINARY\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n",
               "a disc without a track of data");
}

TEST_F(ImageCliTest, WhatAnImageLacksIsUnreadAndTheRestIsCatalogued) {
  BuiltIso iso = Games().Build(IsoFormat::kPlain);
  iso.Put(iso.records["JEUX/SETUP.EXE"] + kRecordBlock, 0x00FFFFFF);
  iso.Put(iso.records["JEUX"] + kRecordSize, 3 * kIsoSector);
  disc_.File("disque.bin", iso.bytes);
  EXPECT_EQ(RunWith({Argument("disque.bin"), "--json"}), cli::kIncomplete);
  const Json catalogue = Json::parse(out_);
  EXPECT_EQ(catalogue["tables"][1]["rows"].size(), 1u);
  EXPECT_EQ(catalogue["tables"][2]["rows"].size(), 1u);
  EXPECT_THAT(catalogue["unread"].get<std::vector<std::string>>(),
              testing::Contains("D:\\Jeux\\SETUP.EXE"));
  EXPECT_THAT(err_, testing::HasSubstr("SETUP.EXE"));
}

// What an image holds of the last of its files is not that file.
TEST_F(ImageCliTest, ATextThatTheImageHoldsInPartIsUnread) {
  IsoBuilder builder;
  builder.File("JEU.EXE", DosExecutable());
  builder.File("README.TXT", std::string(5000, 'x') + "\r\n");
  const BuiltIso iso = builder.Build(IsoFormat::kPlain);
  disc_.File("disque.bin", iso.bytes.substr(0, iso.data.at("README.TXT") + kIsoSector));
  EXPECT_EQ(RunWith({Argument("disque.bin"), "--json"}), cli::kIncomplete);
  const Json catalogue = Json::parse(out_);
  EXPECT_EQ(catalogue["unread"], Json({"D:\\readme.txt"}));
  ASSERT_FALSE(catalogue["messages"].empty());
  EXPECT_THAT(catalogue["messages"][0]["text"].get<std::string>(),
              testing::StartsWith("Ouverture impossibleD:\\readme.txt"));
  EXPECT_EQ(catalogue["tables"][1]["rows"][0][0], "");
}

TEST_F(ImageCliTest, AnIniFileThatTheImageHoldsInPartIsUnread) {
  IsoBuilder builder;
  builder.File("JEU.EXE", DosExecutable());
  builder.File("SETUP.LST",
               "[Setup]\r\nTitle=Moitié\r\n" + std::string(5000, ';') + "\r\nTitle=Tout\r\n");
  const BuiltIso iso = builder.Build(IsoFormat::kPlain);
  disc_.File("disque.bin", iso.bytes.substr(0, iso.data.at("SETUP.LST") + kIsoSector));
  EXPECT_EQ(RunWith({Argument("disque.bin"), "--json"}), cli::kIncomplete);
  EXPECT_EQ(Json::parse(out_)["unread"], Json({"D:\\SETUP.LST"}));
  EXPECT_EQ(Json::parse(out_)["tables"][1]["rows"][0][0], "Ne contient pas de nom produit.")
      << "nothing of a file that is not whole";
}

TEST_F(ImageCliTest, AnImageThatEndsBeforeItsVolumeSaysSo) {
  BuiltIso iso = Games().Build(IsoFormat::kPlain);
  iso.Put(kPrimarySpace, 100000);
  disc_.File("disque.bin", iso.bytes);
  EXPECT_EQ(RunWith({Argument("disque.bin"), "--json"}), cli::kDone);
  EXPECT_EQ(err_, "trovex-cli: " + Argument("disque.bin") + ": the image ends before its volume\n");
}

}  // namespace
}  // namespace trovex::test
