#include "Lib/FileNumbers.h"

#include "Lib/LibTest.h"

namespace trovex::test {
namespace {

constexpr int kLastNumber = 511;

class FileNumbersTest : public LibTest {
 protected:
  // All lines of a file of these bytes.
  std::vector<Text> LinesOf(std::string_view contents) {
    disc.File("LIGNES.TXT", contents);
    const int number = FreeFile();
    OpenInput(number, u"D:\\LIGNES.TXT");
    std::vector<Text> lines;
    while (!AtEnd(number)) lines.push_back(LineInput(number));
    CloseFile(number);
    return lines;
  }
};

using testing::ElementsAre;
using testing::IsEmpty;

// --- Numbers ------------------------------------------------------------------------------------

TEST_F(FileNumbersTest, TheLowestNumberThatIsNotInUseIsFree) {
  disc.File("A.TXT");
  EXPECT_EQ(FreeFile(), 1);
  for (int number = 1; number <= 3; ++number) OpenInput(number, u"D:\\A.TXT");
  EXPECT_EQ(FreeFile(), 4);
  CloseFile(2);
  EXPECT_EQ(FreeFile(), 2);
}

TEST_F(FileNumbersTest, ThereAreNoMoreNumbersThanFiles) {
  disc.File("A.TXT");
  for (int number = 1; number < kLastNumber; ++number) OpenInput(number, u"D:\\A.TXT");
  EXPECT_EQ(FreeFile(), kLastNumber);
  OpenInput(kLastNumber, u"D:\\A.TXT");
  EXPECT_EQ(ErrorOf([] { FreeFile(); }), ErrorNumber::kTooManyFiles);
  CloseAllFiles();
  EXPECT_EQ(FreeFile(), 1);
}

TEST_F(FileNumbersTest, NumbersThatCannotBeAreRefused) {
  disc.File("A.TXT");
  for (int number : {-1, 0, kLastNumber + 1}) {
    EXPECT_EQ(ErrorOf([&] { OpenInput(number, u"D:\\A.TXT"); }), ErrorNumber::kBadFileNumber);
  }
}

TEST_F(FileNumbersTest, WhatIsNotOpenCannotBeUsedButClosed) {
  EXPECT_EQ(ErrorOf([] { LineInput(1); }), ErrorNumber::kBadFileNumber);
  EXPECT_EQ(ErrorOf([] { LineStart(1, 1); }), ErrorNumber::kBadFileNumber);
  EXPECT_EQ(ErrorOf([] { AtEnd(1); }), ErrorNumber::kBadFileNumber);
  EXPECT_EQ(ErrorOf([] { Print(1, u"x"); }), ErrorNumber::kBadFileNumber);
  EXPECT_EQ(ErrorOf([] { PrintLine(1, u"x"); }), ErrorNumber::kBadFileNumber);
  EXPECT_NO_THROW(CloseFile(1));
}

TEST_F(FileNumbersTest, ANumberInUseIsNotOpenedAgain) {
  disc.File("A.TXT");
  disc.File("B.TXT");
  OpenInput(1, u"D:\\A.TXT");
  EXPECT_EQ(ErrorOf([] { OpenInput(1, u"D:\\B.TXT"); }), ErrorNumber::kFileAlreadyOpen);
}

TEST_F(FileNumbersTest, AFileThatIsMissingTakesNoNumber) {
  EXPECT_EQ(ErrorOf([] { OpenInput(1, u"D:\\RIEN.TXT"); }), ErrorNumber::kFileNotFound);
  EXPECT_EQ(FreeFile(), 1);
}

// --- Sharing ------------------------------------------------------------------------------------

TEST_F(FileNumbersTest, SeveralReadersShareAFile) {
  disc.File("A.TXT", "un\r\ndeux\r\n");
  OpenInput(1, u"D:\\A.TXT");
  OpenInput(2, u"D:\\A.TXT");
  EXPECT_EQ(LineInput(1), u"un");
  EXPECT_EQ(LineInput(2), u"un");
  EXPECT_EQ(LineInput(1), u"deux");
}

TEST_F(FileNumbersTest, AFileBeingWrittenIsNotOpenedAgain) {
  OpenOutput(1, u"D:\\A.TXT");
  EXPECT_TRUE(IsOpenForOutput(u"d:\\a.txt"));
  EXPECT_EQ(ErrorOf([] { OpenInput(2, u"D:\\a.txt"); }), ErrorNumber::kFileAlreadyOpen);
  EXPECT_EQ(ErrorOf([] { OpenOutput(2, u"D:\\A.TXT"); }), ErrorNumber::kFileAlreadyOpen);
  CloseFile(1);
  EXPECT_FALSE(IsOpenForOutput(u"D:\\A.TXT"));
  EXPECT_NO_THROW(OpenInput(2, u"D:\\A.TXT"));
}

TEST_F(FileNumbersTest, AFileBeingReadIsNotEmptied) {
  disc.File("A.TXT", "un\r\n");
  OpenInput(1, u"D:\\A.TXT");
  EXPECT_FALSE(IsOpenForOutput(u"D:\\A.TXT"));
  EXPECT_EQ(ErrorOf([] { OpenOutput(2, u"D:\\A.TXT"); }), ErrorNumber::kFileAlreadyOpen);
  EXPECT_EQ(Contents(u"D:\\A.TXT"), "un\r\n");
}

// --- Reading ------------------------------------------------------------------------------------

TEST_F(FileNumbersTest, LinesEndInThreeWays) {
  EXPECT_THAT(LinesOf("un\r\ndeux\rtrois\nquatre"),
              ElementsAre(u"un", u"deux", u"trois", u"quatre"));
  EXPECT_THAT(LinesOf("\r\n\n\r\r\n"), ElementsAre(u"", u"", u"", u""));
}

TEST_F(FileNumbersTest, ALineEndAtTheEndBeginsNoFurtherLine) {
  EXPECT_THAT(LinesOf("un\r\n"), ElementsAre(u"un"));
  EXPECT_THAT(LinesOf(""), IsEmpty());
}

TEST_F(FileNumbersTest, BytesAreReadInTheAnsiCodePage) {
  EXPECT_THAT(LinesOf("\xE9t\xE9 \x80 \x81"), ElementsAre(u"été € \x81"));
}

TEST_F(FileNumbersTest, NulIsACharacterLikeAnyOther) {
  EXPECT_THAT(LinesOf(std::string_view("a\0b\r\nc", 6)), ElementsAre(Text(u"a\0b", 3), u"c"));
}

// The line end lies on and about the edges of what is read at a time.
TEST_F(FileNumbersTest, LongLinesComeWhole) {
  for (std::size_t length = 4090; length <= 4100; ++length) {
    EXPECT_THAT(LinesOf(std::string(length, 'a') + "\r\nb"), ElementsAre(Text(length, u'a'), u"b"));
  }
}

TEST_F(FileNumbersTest, OfALineThatIsTooLongTheRestIsPassedOver) {
  disc.File("A.TXT", "abcdef\r\nghi\r\n" + std::string(10000, 'x') + "\r\nfin");
  OpenInput(1, u"D:\\A.TXT");
  EXPECT_EQ(LineInput(1, 3), u"abc");
  EXPECT_EQ(LineInput(1, 3), u"ghi");
  EXPECT_EQ(LineInput(1, 0), u"");
  EXPECT_EQ(LineInput(1, 3), u"fin");
}

TEST_F(FileNumbersTest, TheStartOfALineLeavesItsRest) {
  disc.File("A.TXT", "abcdef\r\nghi");
  OpenInput(1, u"D:\\A.TXT");
  EXPECT_EQ(LineStart(1, 4), u"abcd");
  EXPECT_EQ(LineInput(1), u"ef");
  EXPECT_EQ(LineStart(1, 100), u"ghi");
  EXPECT_TRUE(AtEnd(1));
}

TEST_F(FileNumbersTest, ReadingBeyondTheEndIsAnError) {
  disc.File("A.TXT", "un");
  OpenInput(1, u"D:\\A.TXT");
  LineInput(1);
  EXPECT_TRUE(AtEnd(1));
  EXPECT_EQ(ErrorOf([] { LineInput(1); }), ErrorNumber::kEndOfFile);
  EXPECT_EQ(ErrorOf([] { LineStart(1, 1); }), ErrorNumber::kEndOfFile);
}

TEST_F(FileNumbersTest, AReadErrorInTheMiddleIsToldAndTheFileCanBeClosed) {
  disc.File("A.TXT", "un\r\n" + std::string(5000, 'x'));
  platform.good_reads = 1;
  OpenInput(1, u"D:\\A.TXT");
  EXPECT_EQ(LineInput(1), u"un");
  EXPECT_EQ(ErrorOf([] { LineInput(1); }), ErrorNumber::kDeviceIo);
  EXPECT_EQ(ErrorOf([] { AtEnd(1); }), ErrorNumber::kDeviceIo);
  EXPECT_NO_THROW(CloseFile(1));
  EXPECT_EQ(FreeFile(), 1);
}

// --- Writing ------------------------------------------------------------------------------------

TEST_F(FileNumbersTest, TextIsWrittenInTheAnsiCodePage) {
  OpenOutput(1, u"D:\\A.TXT");
  Print(1, u"é€");
  PrintLine(1, u"Ω");
  PrintLine(1, u"");
  CloseFile(1);
  EXPECT_EQ(Contents(u"D:\\A.TXT"), "\xE9\x80?\r\n\r\n");
}

TEST_F(FileNumbersTest, WritingBeginsFromEmpty) {
  disc.File("A.TXT", "ancien");
  OpenOutput(1, u"D:\\A.TXT");
  CloseFile(1);
  EXPECT_EQ(Contents(u"D:\\A.TXT"), "");
}

TEST_F(FileNumbersTest, ManyLinesAreWrittenInOrder) {
  OpenOutput(1, u"D:\\A.TXT");
  std::string expected;
  for (int line = 0; line < 20000; ++line) {
    PrintLine(1, Decimal(line));
    expected += std::to_string(line) + "\r\n";
  }
  CloseFile(1);
  EXPECT_EQ(Contents(u"D:\\A.TXT"), expected);
}

TEST_F(FileNumbersTest, AFullDiskIsToldAtTheLatestWhenClosing) {
  platform.write_error = ErrorNumber::kDiskFull;
  OpenOutput(1, u"D:\\A.TXT");
  PrintLine(1, u"peu");
  EXPECT_EQ(ErrorOf([] { CloseFile(1); }), ErrorNumber::kDiskFull);
  EXPECT_EQ(FreeFile(), 1);
}

TEST_F(FileNumbersTest, AFullDiskIsToldWhileWritingMuch) {
  platform.write_error = ErrorNumber::kDiskFull;
  OpenOutput(1, u"D:\\A.TXT");
  EXPECT_EQ(ErrorOf([] { PrintLine(1, Text(100000, u'x')); }), ErrorNumber::kDiskFull);
}

TEST_F(FileNumbersTest, WhatCouldNotBeWrittenIsNotWrittenAgainAtTheEnd) {
  OpenOutput(1, u"D:\\A.TXT");
  platform.write_error = ErrorNumber::kDiskFull;
  EXPECT_EQ(ErrorOf([] { PrintLine(1, Text(100000, u'x')); }), ErrorNumber::kDiskFull);
  platform.write_error.reset();
  CloseFile(1);
  EXPECT_EQ(Contents(u"D:\\A.TXT"), "");
}

TEST_F(FileNumbersTest, ClosingEverythingTellsNoErrors) {
  disc.File("B.TXT");
  platform.write_error = ErrorNumber::kDiskFull;
  OpenOutput(1, u"D:\\A.TXT");
  OpenInput(2, u"D:\\B.TXT");
  PrintLine(1, u"peu");
  EXPECT_NO_THROW(CloseAllFiles());
  EXPECT_EQ(FreeFile(), 1);
}

}  // namespace
}  // namespace trovex::test
