#include "Scanner/TextLines.h"

#include "Platform/Encoding.h"
#include "Platform/ForwardingPlatform.h"
#include "Scanner/VersionRecord.h"
#include "support/ExecutableBuilder.h"
#include "support/LogicTest.h"

namespace trovex::test {
namespace {

// Reads that are counted, and fail from a byte on.
class ReadPlatform : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;

  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override {
    if (bytes >= fails_from) throw RuntimeError(ErrorNumber::kDeviceIo);
    const std::size_t read = ForwardingPlatform::Read(file, buffer, size);
    bytes += read;
    return read;
  }
  FileHandle OpenRead(const Text& name) override {
    if (open_fails) throw RuntimeError(ErrorNumber::kPermissionDenied);
    ++open;
    ++opened;
    return ForwardingPlatform::OpenRead(name);
  }
  void Close(FileHandle file) override {
    --open;
    ForwardingPlatform::Close(file);
  }

  std::size_t bytes = 0;
  std::size_t fails_from = static_cast<std::size_t>(-1);
  bool open_fails = false;
  int open = 0, opened = 0;  // now, and altogether
};

class TextLinesTest : public LogicTest {
 protected:
  void TearDown() override {
    EXPECT_EQ(platform_.open, 0) << "a file was left open";
    LogicTest::TearDown();
  }
  Text First(std::string_view contents) {
    disc.File("LISEZMOI.TXT", contents);
    return TextLines(u"D:\\LISEZMOI.TXT").sPremiereLigne();
  }
  Text Second(std::string_view contents) {
    disc.File("LISEZMOI.TXT", contents);
    return TextLines(u"D:\\LISEZMOI.TXT").sDeuxiemeLigne();
  }

  ReadPlatform platform_{disc.GetPlatform()};
  PlatformScope scope_{platform_};
};

TEST_F(TextLinesTest, ALineEndsAtAnyLineEnd) {
  for (const char* contents : {"un\r\ndeux\r\n", "un\ndeux\n", "un\rdeux\r", "un\r\ndeux"}) {
    EXPECT_EQ(First(contents), u"un") << contents;
    EXPECT_EQ(Second(contents), u"deux") << contents;
  }
}

TEST_F(TextLinesTest, AnEmptyLineIsALine) {
  EXPECT_EQ(First("\r\ndeux"), u"");
  EXPECT_EQ(Second("\r\ndeux"), u"deux");
  EXPECT_EQ(Second("un\r\n\r\ntrois"), u"");
  EXPECT_EQ(Second("un\n\ntrois"), u"");
}

TEST_F(TextLinesTest, FewerLinesGiveAnEmptyText) {
  EXPECT_EQ(First(""), u"");
  EXPECT_EQ(Second(""), u"");
  EXPECT_EQ(Second("un seul"), u"");
  EXPECT_EQ(Second("un seul\r\n"), u"");
}

TEST_F(TextLinesTest, BytesAreOfWindows1252) {
  EXPECT_EQ(First(ToCp1252(u"Été à 10 €")), u"Été à 10 €");
}

TEST_F(TextLinesTest, NothingIsTrimmed) {
  EXPECT_EQ(First("\t un \t\r\n"), u"\t un \t");
}

TEST_F(TextLinesTest, ABlankNameGivesAnEmptyLineWithoutABox) {
  EXPECT_EQ(TextLines(u"").sPremiereLigne(), u"");
  EXPECT_EQ(TextLines(u"  ").sDeuxiemeLigne(), u"");
}

TEST_F(TextLinesTest, ALineIsCutWhereItsCallerWants) {
  disc.File("A.TXT", std::string(200, 'a') + "\r\n" + std::string(200, 'b'));
  EXPECT_EQ(TextLines(u"D:\\A.TXT").sPremiereLigne(95), Text(95, u'a'));
  EXPECT_EQ(TextLines(u"D:\\A.TXT").sDeuxiemeLigne(95), Text(95, u'b'));
  EXPECT_EQ(TextLines(u"D:\\A.TXT").sPremiereLigne(), Text(200, u'a'));
  EXPECT_EQ(TextLines(u"D:\\A.TXT").sDeuxiemeLigne(), Text(200, u'b'));
  EXPECT_EQ(TextLines(u"D:\\A.TXT").sPremiereLigne(200), Text(200, u'a'));
}

TEST_F(TextLinesTest, AFileIsOpenedOnceForBothLinesHoweverTheyAreCut) {
  disc.File("A.TXT", std::string(200, 'a') + "\r\n" + std::string(200, 'b') + "\r\ntrois");
  TextLines lines(u"D:\\A.TXT");
  EXPECT_EQ(lines.sPremiereLigne(95), Text(95, u'a'));
  EXPECT_EQ(lines.sDeuxiemeLigne(95), Text(95, u'b'));
  EXPECT_EQ(lines.sPremiereLigne(95), Text(95, u'a'));
  EXPECT_EQ(lines.sDeuxiemeLigne(), Text(200, u'b'));
  EXPECT_EQ(lines.sPremiereLigne(10), Text(10, u'a'));
  EXPECT_EQ(platform_.opened, 1);
  EXPECT_EQ(platform_.open, 1);
}

TEST_F(TextLinesTest, MoreOfALineThatWasPassedIsReadFromTheStart) {
  disc.File("A.TXT", std::string(200, 'a') + "\r\ndeux");
  TextLines lines(u"D:\\A.TXT");
  EXPECT_EQ(lines.sPremiereLigne(95), Text(95, u'a'));
  EXPECT_EQ(lines.sDeuxiemeLigne(), u"deux");
  EXPECT_EQ(lines.sPremiereLigne(), Text(200, u'a'));
  EXPECT_EQ(lines.sDeuxiemeLigne(), u"deux");
}

TEST_F(TextLinesTest, AFailureIsReportedEachTimeAndTheFileTriedAgain) {
  disc.File("A.TXT", "un\r\ndeux");
  TextLines lines(u"D:\\A.TXT");
  platform_.open_fails = true;
  for (int i = 0; i < 2; ++i) view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(lines.sPremiereLigne(), u"");
  EXPECT_EQ(lines.sPremiereLigne(), u"");
  EXPECT_EQ(BoxCount(), 2u);
  platform_.open_fails = false;
  EXPECT_EQ(lines.sPremiereLigne(), u"un");
  EXPECT_EQ(lines.sDeuxiemeLigne(), u"deux");
}

TEST_F(TextLinesTest, LineEndsAreSeenWhereverThePiecesOfAFileEnd) {
  for (std::size_t length : {4094u, 4095u, 4096u, 4097u, 8191u, 8192u}) {
    disc.File("A.TXT", std::string(length, 'a') + "\r\ndeux\r\n");
    EXPECT_EQ(TextLines(u"D:\\A.TXT").sPremiereLigne().size(), length);
    EXPECT_EQ(TextLines(u"D:\\A.TXT").sDeuxiemeLigne(), u"deux") << length;
  }
}

TEST_F(TextLinesTest, AFileThatCannotBeOpenedIsReportedAndGivesAnEmptyLine) {
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(TextLines(u"D:\\RIEN.TXT").sPremiereLigne(), u"");
  EXPECT_EQ(LastBox(), u"Ouverture impossibleD:\\RIEN.TXT");
  EXPECT_EQ(view.Boxes()[0].style, BoxStyle::kErreur);
  disc.File("A.TXT", "un");
  platform_.open_fails = true;
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(TextLines(u"D:\\A.TXT").sDeuxiemeLigne(), u"");
  EXPECT_TRUE(LastBox().starts_with(u"Ouverture impossibleD:\\A.TXT"));
}

TEST_F(TextLinesTest, AnErrorWhileReadingClosesTheFileAndGivesTheSameBox) {
  platform_.fails_from = 0;
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(First("un\r\n"), u"");
  EXPECT_TRUE(LastBox().starts_with(u"Ouverture impossibleD:\\LISEZMOI.TXT"));
  platform_.fails_from = 4096;
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(Second(std::string(5000, 'a') + "\r\ndeux"), u"");
  EXPECT_EQ(BoxCount(), 2u);
  EXPECT_EQ(Err().number, 0) << "the box has taken the error";
}

TEST_F(TextLinesTest, ALargeFileWithoutLineEndIsNotReadThrough) {
  disc.File("README.TXT", "Un jeu");
  std::filesystem::resize_file(disc.HostPath("README.TXT"), 100'000'000);
  EXPECT_TRUE(TextLines(u"D:\\README.TXT").sPremiereLigne(95).starts_with(u"Un jeu"));
  EXPECT_LE(platform_.bytes, 65536u);
  EXPECT_EQ(TextLines(u"D:\\README.TXT").sPremiereLigne().size(), kLongestLine);
  EXPECT_LE(platform_.bytes, 2 * 65536u + kLongestLine);
}

TEST_F(TextLinesTest, ALineOf40000CharactersIsWhole) {
  const std::string longer(40000, 'a');
  EXPECT_EQ(First(longer + "\r\n"), Text(40000, u'a'));
  EXPECT_EQ(Second("un\r\n" + longer), Text(40000, u'a'));
}

TEST_F(TextLinesTest, ALineEndsAt1048576Characters) {
  EXPECT_EQ(First(std::string(1048577, 'a') + "\r\n"), Text(1048576, u'a'));
}

TEST_F(TextLinesTest, OnlyTheFirstTwoLinesOfALargeFileAreRead) {
  disc.File("README.TXT", "un\r\ndeux\r\n");
  std::filesystem::resize_file(disc.HostPath("README.TXT"), 100'000'000);
  EXPECT_EQ(TextLines(u"D:\\README.TXT").sDeuxiemeLigne(), u"deux");
  EXPECT_LE(platform_.bytes, 65536u);
}

// vNomProduit of files whose record a test spells.
class RecordPlatform : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;
  std::uint32_t GetFileVersionInfoSize(const Text&) override {
    if (fails) throw RuntimeError(ErrorNumber::kDeviceIo);
    return static_cast<std::uint32_t>(record.size());
  }
  bool GetFileVersionInfo(const Text&, std::uint32_t, std::string& block) override {
    block = record;
    return readable;
  }
  std::string record;
  bool fails = false, readable = true;
};

class ProductNameTest : public LogicTest {
 protected:
  ProductNameTest() { disc.File("A.EXE"); }
  Text NameIn(std::string record) {
    platform_.record = std::move(record);
    return vNomProduit(ReadVersionRecord(u"D:\\A.EXE"));
  }
  RecordPlatform platform_{disc.GetPlatform()};
  PlatformScope scope_{platform_};
  const Text none_ = u"Ne contient pas de nom produit.";
};

TEST_F(ProductNameTest, IsNotCutAtTheNul) {
  EXPECT_EQ(NameIn(std::string("xProductName\0Jeu\0suite", 22)), Text(u"Jeu\0suite", 9));
}

TEST_F(ProductNameTest, ARecordThatEndsBehindTheKeyGivesAnEmptyText) {
  EXPECT_EQ(NameIn("ProductName"), u"");
}

TEST_F(ProductNameTest, IsOfWindows1252) {
  EXPECT_EQ(NameIn(std::string("ProductName\0", 12) + ToCp1252(u"Échecs")), u"Échecs");
}

TEST_F(ProductNameTest, AFileWithoutOneSaysSo) {
  EXPECT_EQ(NameIn(""), none_);
  EXPECT_EQ(NameIn("productname\0Jeu"), none_);
  platform_.readable = false;
  EXPECT_EQ(NameIn(std::string("ProductName\0Jeu\0", 16)), none_);
  platform_.fails = true;
  EXPECT_EQ(NameIn(std::string("ProductName\0Jeu\0", 16)), none_);
}

}  // namespace
}  // namespace trovex::test
