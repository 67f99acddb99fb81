#include "Paper/PdfFile.h"
#include "Paper/SavePdf.h"

#include <fstream>
#include <sstream>

#include "Paper/PreviewTest.h"
#include "Platform/PartScope.h"

namespace trovex::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

// A disk that takes a number of bytes and no more.
class SmallDisk : public ForwardingFiles {
 public:
  SmallDisk(Platform& target, std::size_t room) : ForwardingFiles(target), room_(room) {}
  void Write(FileHandle file, const void* data, std::size_t size) override {
    if (size > room_) throw RuntimeError(ErrorNumber::kDiskFull);
    room_ -= size;
    ForwardingFiles::Write(file, data, size);
  }

 private:
  std::size_t room_;
};

class PdfTest : public PreviewTest {
 protected:
  PdfTest() {
    document.title = u"Été 97";
    document.fonts = {{u"Times New Roman", 9.75}, {u"Arial", 12, true}, {u"Courier New", 8}};
    document.pages.resize(1);
    document.pages[0].paper = {11906, 16838};
  }

  void Put(const Text& text, std::size_t font = 0, unsigned colour = 0) {
    document.pages[0].Add({1000, 2000, font, colour}, text);
  }
  std::string Bytes() const {
    std::string bytes;
    WritePdf(document, [&](std::string_view part) { bytes += part; });
    return bytes;
  }
  bool Exists(std::string_view path) const { return std::filesystem::exists(disc.HostPath(path)); }

  Pages document;
};

TEST_F(PdfTest, TheCrossReferencesLeadToTheObjects) {
  Put(u"a");
  document.pages.resize(3, document.pages[0]);
  const std::string pdf = Bytes();
  EXPECT_THAT(pdf, StartsWith("%PDF-1.4\n"));
  EXPECT_THAT(pdf, testing::EndsWith("\n%%EOF\n"));
  const std::size_t mark = pdf.rfind("startxref\n");
  std::istringstream table(pdf.substr(std::stoul(pdf.substr(mark + 10))));
  std::string word;
  std::size_t first = 1, count = 0;
  table >> word >> first >> count;
  EXPECT_EQ(word, "xref");
  EXPECT_EQ(first, 0u);
  ASSERT_EQ(count, 5u + 3u + 2u * 3u);
  for (std::size_t number = 0; number < count; ++number) {
    std::string offset, generation, kind;
    table >> offset >> generation >> kind;
    if (number == 0) continue;
    EXPECT_EQ(offset.size(), 10u);
    EXPECT_THAT(pdf.substr(std::stoul(offset)), StartsWith(std::to_string(number) + " 0 obj\n"));
  }
}

TEST_F(PdfTest, StreamsAreAsLongAsTheySay) {
  Put(u"abc");
  const std::string pdf = Bytes();
  const std::size_t length = pdf.find("/Length ") + 8;
  const std::size_t start = pdf.find("stream\n", length) + 7;
  EXPECT_EQ(pdf.find("\nendstream") - start, std::stoul(pdf.substr(length)));
}

TEST_F(PdfTest, TextsStandInPointsFromTheLowerLeftCorner) {
  Put(u"abc");
  EXPECT_THAT(Bytes(), HasSubstr("/F0 9.75 Tf\n1 0 0 1 50 741.9 Tm (abc) Tj\n"));
  EXPECT_THAT(Bytes(), HasSubstr("/MediaBox [ 0 0 595.3 841.9 ]"));
}

TEST_F(PdfTest, FontsAreTheStandardOnesThatComeNearest) {
  const std::string pdf = Bytes();
  EXPECT_THAT(pdf, HasSubstr("/BaseFont /Times-Roman /Encoding /WinAnsiEncoding"));
  EXPECT_THAT(pdf, HasSubstr("/BaseFont /Helvetica-Bold /Encoding /WinAnsiEncoding"));
  EXPECT_THAT(pdf, HasSubstr("/BaseFont /Courier /Encoding /WinAnsiEncoding"));
}

TEST_F(PdfTest, LettersAreThoseOfTheCodePage) {
  Put(u"\u00E9\u20AC\u0416\u0153");
  EXPECT_THAT(Bytes(), HasSubstr("(\xE9\x80?\x9C) Tj"));
}

TEST_F(PdfTest, BracketsAndBackslashesAreEscaped) {
  Put(u"D:\\(a)");
  EXPECT_THAT(Bytes(), HasSubstr("(D:\\\\\\(a\\)) Tj"));
}

TEST_F(PdfTest, BytesThatTheEncodingLacksBecomeQuestionMarks) {
  Put(u"a\x81"
      u"b");
  EXPECT_THAT(Bytes(), HasSubstr("(a?b) Tj"));
}

TEST_F(PdfTest, TheTitleIsUnicode) {
  EXPECT_THAT(Bytes(), HasSubstr("/Title <FEFF00C9007400E9002000390037>"));
}

TEST_F(PdfTest, ColoursAndLinesAreDrawn) {
  Put(u"rouge", 0, 0x0000FF);
  document.pages[0].lines.push_back({0, 0, 200, 16838, 20, 0xFF0000});
  const std::string pdf = Bytes();
  EXPECT_THAT(pdf, HasSubstr("1 0 0 rg\n"));
  EXPECT_THAT(pdf, HasSubstr("0 0 1 RG\n1 w\n0 841.9 m 10 0 l S\n"));
}

TEST_F(PdfTest, ImagesAreEmbedded) {
  document.bitmaps.push_back({1, 1, std::string("\x01\x02\x03", 3)});
  document.pages[0].images.push_back({100, 200, {300, 400}, 0});
  const std::string pdf = Bytes();
  EXPECT_THAT(pdf, HasSubstr("/Width 1 /Height 1 /Length 3 >>\nstream\n\x01\x02\x03\nendstream"));
  EXPECT_THAT(pdf, HasSubstr("q 15 0 0 20 5 811.9 cm /I0 Do Q\n"));
}

TEST_F(PdfTest, EqualPagesGiveEqualBytes) {
  Put(u"a");
  EXPECT_EQ(Bytes(), Bytes());
}

TEST_F(PdfTest, TheFileHoldsTheBytes) {
  Put(u"a");
  disc.File("A.PDF", std::string(100000, 'x'));
  EXPECT_TRUE(SavePdf(document, u"D:\\A.PDF"));
  std::ifstream file(disc.HostPath("A.PDF"), std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  EXPECT_EQ(bytes.str(), Bytes());
}

TEST_F(PdfTest, AFullDiskLeavesNoHalfFileBehind) {
  for (int i = 0; i < 5000; ++i) Put(u"une ligne de texte");
  for (const std::size_t room : {std::size_t{0}, std::size_t{100000}}) {
    SmallDisk full(disc.GetPlatform(), room);
    PartScope scope(full);
    view.Answer(BoxAnswer::kOk);
    EXPECT_FALSE(SavePdf(document, u"D:\\A.PDF"));
    EXPECT_TRUE(LastBox().starts_with(u"Erreur lors de la création du fichier PDF : D:\\A.PDF"));
    EXPECT_FALSE(Exists("A.PDF"));
  }
}

TEST_F(PdfTest, AFileThatCannotBeWrittenWholeLeavesTheFormerOneAsItWas) {
  for (int i = 0; i < 5000; ++i) Put(u"une ligne de texte");
  disc.File("A.PDF", "l'ancien");
  SmallDisk full(disc.GetPlatform(), 100000);
  PartScope scope(full);
  view.Answer(BoxAnswer::kOk);
  EXPECT_FALSE(SavePdf(document, u"D:\\A.PDF"));
  std::ifstream file(disc.HostPath("A.PDF"), std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  EXPECT_EQ(bytes.str(), "l'ancien");
  EXPECT_FALSE(Exists("~Trvx0.tmp"));
}

TEST_F(PdfTest, APlaceThatCannotBeWrittenIsNamedAndNothingIsDeleted) {
  disc.File("DOSSIER/AUTRE.TXT", "x");
  view.Answer(BoxAnswer::kOk);
  EXPECT_FALSE(SavePdf(document, u"D:\\DOSSIER"));
  EXPECT_TRUE(Exists("DOSSIER/AUTRE.TXT"));
}

}  // namespace
}  // namespace trovex::test
