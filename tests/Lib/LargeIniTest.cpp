// Files that the profile functions are not trusted with: from 320000 bytes on.
#include "Lib/LibTest.h"

namespace trovex::test {
namespace {

class LargeIniTest : public LibTest {
 protected:
  LargeIniTest() {
    platform.environment = {{u"TMP", u"D:\\TEMP"}};
    platform.random = {0};
    disc.Directory("TEMP");
  }

  // Lines before every section that bring a file with this end to `size` bytes.
  static std::string Padding(std::string_view end, std::size_t size = kGrosFichier) {
    constexpr std::size_t kLine = 80;  // bytes, the line end included
    const std::size_t wanted = size - end.size();
    std::string padding(kLine + wanted % kLine - 2, ';');
    padding += "\r\n";
    while (padding.size() < wanted) padding += std::string(kLine - 2, ';') + "\r\n";
    return padding;
  }

  // A large file that ends so. Names differ: Wine takes one of the same name and date as unchanged.
  Text Large(std::string_view end, std::size_t size = kGrosFichier) {
    name_ = "GROS" + std::to_string(++number_) + ".INI";
    padding_ = Padding(end, size);
    disc.File(name_, padding_ + std::string(end));
    return u"D:\\" + Text(name_.begin(), name_.end());
  }

  // What the file holds behind the padding.
  std::string EndOf(const Text& file) {
    const std::string contents = Contents(file);
    EXPECT_EQ(contents.substr(0, padding_.size()), padding_);
    return contents.substr(padding_.size());
  }
  // The same after a value was written into a file that ends so.
  std::string Written(std::string_view end, const Text& section, const Text& key,
                      const Text& value) {
    const Text file = Large(end);
    EcritIniGrosFichier(section, key, value, file);
    return EndOf(file);
  }

  const Text temporary_ = u"D:\\TEMP\\~Trvx023.tmp";
  std::string name_, padding_;

 private:
  static inline int number_ = 0;
};

// --- The limit ----------------------------------------------------------------------------------

// Only the path for large files minds case and overlooks the end of a section.
TEST_F(LargeIniTest, AFileOf320000BytesTakesTheLargePath) {
  const Text file = Large("[a]\r\n[b]\r\nk=1\r\n", 320000);
  EXPECT_EQ(sLitIni(u"a", u"k", u"d", file), u"1");
  EXPECT_EQ(sLitIni(u"A", u"k", u"d", file), u"d");
}

TEST_F(LargeIniTest, AFileOf319999BytesTakesTheProfilePath) {
  const Text file = Large("[a]\r\n[b]\r\nk=1\r\n", 319999);
  EXPECT_EQ(sLitIni(u"a", u"k", u"d", file), u"d");
  EXPECT_EQ(sLitIni(u"B", u"K", u"d", file), u"1");
}

TEST_F(LargeIniTest, TheLargeReaderLeavesSmallFilesToTheOther) {
  const Text file = Large("[a]\r\nk=1\r\n", 319999);
  EXPECT_EQ(sLitIniGrosFichier(u"A", u"K", u"d", file), u"1");
}

TEST_F(LargeIniTest, TheLargeWriterLeavesSmallFilesToTheOther) {
  const Text file = Large("[a]\r\nK=1\r\n", 319999);
  EcritIniGrosFichier(u"A", u"k", u"2", file);
  EXPECT_EQ(EndOf(file), "[a]\r\nK=2\r\n");
}

TEST_F(LargeIniTest, TheLargeWriterLeavesANewFileToTheOther) {
  const Text file = Large("[a]\r\n");
  disc.Remove(name_);
  EcritIniGrosFichier(u"a", u"k", u"1", file);
  EXPECT_EQ(Contents(file), "[a]\r\nk=1\r\n");
}

TEST_F(LargeIniTest, BothWritersTakeTheLargePathFrom320000Bytes) {
  Text file = Large("[a]\r\nK=1\r\n");
  PutIniString(u"a", u"k", u"2", file);
  EXPECT_EQ(EndOf(file), "[a]\r\nK=1\r\nk=2\r\n");
  file = Large("[a]\r\n");
  platform.random = {0.5};
  PutIniBoolean(u"a", u"k", true, file);
  EXPECT_EQ(EndOf(file), "[a]\r\nk=-1\r\n");
}

// --- Reading ------------------------------------------------------------------------------------

TEST_F(LargeIniTest, AMissingFileGivesTheDefault) {
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"k", u"d", u"D:\\RIEN.INI"), u"d");
}

TEST_F(LargeIniTest, AKeyIsFoundInItsSection) {
  const Text file = Large("[b]\r\nk=0\r\n[a]\r\nj=1\r\nk=2\r\n");
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"k", u"d", file), u"2");
  EXPECT_EQ(FreeFile(), 1);
}

TEST_F(LargeIniTest, AMissingKeyOrSectionGivesTheDefault) {
  const Text file = Large("[a]\r\nk=2\r\n");
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"z", u" d ", file), u" d ");
  EXPECT_EQ(sLitIniGrosFichier(u"z", u"k", u"d", file), u"d");
}

TEST_F(LargeIniTest, AKeyUnderALaterSectionIsFoundIfTheWantedOneCameFirstAndLackedIt) {
  const Text file = Large("[a]\r\nx=1\r\n[b]\r\nk=2\r\n");
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"k", u"d", file), u"2");
}

TEST_F(LargeIniTest, AKeyUnderAnEarlierSectionIsNot) {
  const Text file = Large("[b]\r\nk=2\r\n[a]\r\nx=1\r\n");
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"k", u"d", file), u"d");
}

TEST_F(LargeIniTest, TheValueIsNotTrimmed) {
  const Text file = Large("[a]\r\nk= v = w \r\n");
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"k", u"d", file), u" v = w ");
  EXPECT_EQ(sLitIni(u"a", u"k", u"d", file), u" v = w ");
}

TEST_F(LargeIniTest, AnEmptyValueIsAValue) {
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"k", u"d", Large("[a]\r\nk=\r\n")), u"");
}

TEST_F(LargeIniTest, BlanksAroundHeaderSectionAndKeyAreDropped) {
  const Text file = Large("  [a] \r\n k =1\r\n");
  EXPECT_EQ(sLitIniGrosFichier(u" a ", u"k", u"d", file), u"1");
}

// The key asked for is taken as it is.
TEST_F(LargeIniTest, AKeyAskedForWithBlanksIsNotFound) {
  EXPECT_EQ(sLitIniGrosFichier(u"a", u" k", u"d", Large("[a]\r\n k=1\r\n")), u"d");
}

TEST_F(LargeIniTest, CaseMattersInSectionAndKey) {
  const Text file = Large("[a]\r\nk=1\r\n");
  EXPECT_EQ(sLitIniGrosFichier(u"A", u"k", u"d", file), u"d");
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"K", u"d", file), u"d");
}

TEST_F(LargeIniTest, ALineWithoutEqualsSignComparesWhole) {
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"seul", u"d", Large("[a]\r\nseul\r\n")), u"seul");
}

TEST_F(LargeIniTest, AFileThatCannotBeOpenedGivesTheDefaultWithAMessage) {
  const Text file = Large("[a]\r\nk=1\r\n");
  platform.open_read_error = ErrorNumber::kPermissionDenied;
  ExpectBox();
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"k", u"d", file), u"d");
  EXPECT_EQ(LastBox(), u"Ouverture impossible" + file + Details(ErrorNumber::kPermissionDenied));
}

TEST_F(LargeIniTest, AReadErrorIsReportedAndGivesTheDefault) {
  const Text file = Large("[a]\r\nk=1\r\n");
  platform.good_reads = 2;
  ExpectBox();
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"k", u"d", file), u"d");
  EXPECT_EQ(LastBox(), u"Erreur de lecture section a" + Details(ErrorNumber::kDeviceIo));
  EXPECT_EQ(FreeFile(), 1);
}

// Positions in a line are told up to 32767.
TEST_F(LargeIniTest, ALineThatIsTooLongForTheSearchIsReported) {
  const Text file = Large(std::string(32767, 'x') + "=\r\n[a]\r\nk=1\r\n");
  ExpectBox();
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"k", u"d", file), u"d");
  EXPECT_TRUE(LastBox().starts_with(u"Erreur de lecture section a\r\n\r\nError #6 by "));
  EXPECT_EQ(FreeFile(), 1);
}

TEST_F(LargeIniTest, ANumberPassedAlongIsReadFromWhereItStandsAndStaysOpen) {
  const Text file = Large("[a]\r\nk=1\r\n");
  disc.File("AUTRE.INI", "[a]\r\nk=2\r\nl=3\r\n");
  OpenInput(1, u"D:\\AUTRE.INI");
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"k", u"d", file, 1), u"2");
  EXPECT_EQ(LineInput(1), u"l=3");
}

TEST_F(LargeIniTest, ANumberPassedAlongStaysOpenAfterAnError) {
  const Text file = Large("[a]\r\nk=1\r\n");
  OpenInput(1, file);
  platform.good_reads = 0;
  ExpectBox();
  EXPECT_EQ(sLitIniGrosFichier(u"a", u"k", u"d", file, 1), u"d");
  EXPECT_EQ(FreeFile(), 2);
}

// --- Writing ------------------------------------------------------------------------------------

TEST_F(LargeIniTest, AValueIsReplacedAndAllElseStays) {
  EXPECT_EQ(Written("[b]\r\nk=0\r\n[a]\r\n;c\r\nk=1\r\nz=\xE9\x81\r\nk=3\r\n", u"a", u"k", u"été"),
            "[b]\r\nk=0\r\n[a]\r\n;c\r\nk=\xE9t\xE9\r\nz=\xE9\x81\r\nk=3\r\n");
  EXPECT_FALSE(Exists(temporary_));
  EXPECT_EQ(FreeFile(), 1);
}

TEST_F(LargeIniTest, ANewKeyOfASectionThatEndsWithTheFileIsAppended) {
  EXPECT_EQ(Written("[a]\r\nx=1\r\n", u"a", u"k", u"2"), "[a]\r\nx=1\r\nk=2\r\n");
}

TEST_F(LargeIniTest, ANewKeyOfASectionFollowedByAnEmptyLineStandsBeforeIt) {
  EXPECT_EQ(Written("[a]\r\nx=1\r\n \r\n[b]\r\ny=1\r\n", u"a", u"k", u"2"),
            "[a]\r\nx=1\r\nk=2\r\n \r\n[b]\r\ny=1\r\n");
}

TEST_F(LargeIniTest, ANewKeyStandsBeforeTheNextSection) {
  EXPECT_EQ(Written("[a]\r\nx=1\r\n [b]\r\nk=1\r\n", u"a", u"k", u"2"),
            "[a]\r\nx=1\r\nk=2\r\n [b]\r\nk=1\r\n");
}

// The empty line ends the section, so the key behind it is not seen.
TEST_F(LargeIniTest, AKeyBehindAnEmptyLineIsWrittenASecondTime) {
  EXPECT_EQ(Written("[a]\r\n\r\nk=1\r\n", u"a", u"k", u"2"), "[a]\r\nk=2\r\n\r\nk=1\r\n");
}

TEST_F(LargeIniTest, ANewSectionGoesToTheEndAfterAnEmptyLine) {
  EXPECT_EQ(Written("[b]\r\nk=1\r\n", u" a ", u" k ", u" 2 "),
            "[b]\r\nk=1\r\n\r\n[a]\r\nk= 2 \r\n");
}

TEST_F(LargeIniTest, OnlyTheFirstSectionOfTheNameTakesTheValue) {
  EXPECT_EQ(Written("[a]\r\nx=1\r\n[a]\r\nk=1\r\n", u"a", u"k", u"2"),
            "[a]\r\nx=1\r\nk=2\r\n[a]\r\nk=1\r\n");
}

TEST_F(LargeIniTest, ALineThatHoldsRemAnywhereIsAComment) {
  EXPECT_EQ(Written("[a]\r\nPREMIER=1\r\n", u"a", u"PREMIER", u"2"),
            "[a]\r\nPREMIER=1\r\nPREMIER=2\r\n");
  platform.random = {0.5};
  EXPECT_EQ(Written("[a]\r\nk=c'est la creme\r\n", u"a", u"k", u"2"),
            "[a]\r\nk=c'est la creme\r\nk=2\r\n");
}

// A comment's brackets and blanks come first: what ends the section ends it.
TEST_F(LargeIniTest, ASectionNamedLikeACommentEndsTheSectionAllTheSame) {
  EXPECT_EQ(Written("[a]\r\n[REM]\r\n", u"a", u"k", u"2"), "[a]\r\nk=2\r\n[REM]\r\n");
}

TEST_F(LargeIniTest, TheKeyMustMatchExactlyUpToTheEqualsSign) {
  EXPECT_EQ(Written("[a]\r\nK=1\r\nk =1\r\nk\r\n  k=1 \r\n", u"a", u"k", u"2"),
            "[a]\r\nK=1\r\nk =1\r\nk\r\nk=2\r\n");
}

TEST_F(LargeIniTest, ALastLineWithoutEndIsCompleted) {
  EXPECT_EQ(Written("[a]\r\nx=1", u"a", u"k", u"2"), "[a]\r\nx=1\r\nk=2\r\n");
}

TEST_F(LargeIniTest, WhatWasWrittenIsReadBack) {
  const Text file = Large("[b]\r\nk=1\r\n");
  EcritIniGrosFichier(u"a", u"k", u"neuf", file);
  EXPECT_EQ(sLitIni(u"a", u"k", u"d", file), u"neuf");
}

TEST_F(LargeIniTest, AWriteToACdRomIsSilentlyDropped) {
  const Text file = Large("[a]\r\nk=1\r\n");
  platform.drive_type = DriveType::kCdRom;
  EcritIniGrosFichier(u"a", u"k", u"2", file);
  PutIniString(u"a", u"k", u"2", file);
  EXPECT_EQ(EndOf(file), "[a]\r\nk=1\r\n");
}

// --- Writing: failures --------------------------------------------------------------------------

TEST_F(LargeIniTest, AFileThatCannotBeReadIsReportedAndStays) {
  const Text file = Large("[a]\r\nk=1\r\n");
  platform.open_read_error = ErrorNumber::kPermissionDenied;
  ExpectBox();
  EcritIniGrosFichier(u"a", u"k", u"2", file);
  EXPECT_EQ(LastBox(), u"Ouverture impossible" + file + Details(ErrorNumber::kPermissionDenied));
  EXPECT_FALSE(Exists(temporary_));
}

TEST_F(LargeIniTest, ATemporaryFileThatCannotBeOpenedIsReportedAndNothingStaysOpen) {
  const Text file = Large("[a]\r\nk=1\r\n");
  platform.open_write_error = ErrorNumber::kPathNotFound;
  ExpectBox();
  EcritIniGrosFichier(u"a", u"k", u"2", file);
  EXPECT_EQ(LastBox(), u"Erreur d'écriture sur le fichier : " + temporary_ +
                           Details(ErrorNumber::kPathNotFound));
  EXPECT_EQ(FreeFile(), 1);
  EXPECT_EQ(EndOf(file), "[a]\r\nk=1\r\n");
}

TEST_F(LargeIniTest, AFullDiskIsReportedAndTheFileStays) {
  const Text file = Large("[a]\r\nk=1\r\n");
  platform.write_error = ErrorNumber::kDiskFull;
  ExpectBox();
  EcritIniGrosFichier(u"a", u"k", u"2", file);
  EXPECT_EQ(LastBox(), u"Erreur d'écriture section a" + Details(ErrorNumber::kDiskFull));
  EXPECT_EQ(FreeFile(), 1);
  EXPECT_EQ(EndOf(file), "[a]\r\nk=1\r\n");
}

TEST_F(LargeIniTest, AReadErrorInTheMiddleIsReportedAndTheFileStays) {
  const Text file = Large("[a]\r\nk=1\r\n");
  platform.good_reads = 5;
  ExpectBox();
  EcritIniGrosFichier(u"a", u"k", u"2", file);
  EXPECT_EQ(LastBox(), u"Erreur d'écriture section a" + Details(ErrorNumber::kDeviceIo));
  EXPECT_EQ(FreeFile(), 1);
  EXPECT_EQ(EndOf(file), "[a]\r\nk=1\r\n");
}

TEST_F(LargeIniTest, ACopyThatFailsKeepsTheTemporaryFileWithoutAMessage) {
  const Text file = Large("[a]\r\nk=1\r\n");
  platform.copy_error = ErrorNumber::kPermissionDenied;
  EcritIniGrosFichier(u"a", u"k", u"2", file);
  EXPECT_EQ(EndOf(file), "[a]\r\nk=1\r\n");
  EXPECT_EQ(EndOf(temporary_), "[a]\r\nk=2\r\n");
}

TEST_F(LargeIniTest, ATemporaryFileThatCannotBeDeletedIsReported) {
  const Text file = Large("[a]\r\nk=1\r\n");
  platform.delete_error = ErrorNumber::kPermissionDenied;
  ExpectBox();
  EcritIniGrosFichier(u"a", u"k", u"2", file);
  EXPECT_EQ(LastBox(), temporary_ + Details(ErrorNumber::kPermissionDenied));
  EXPECT_EQ(EndOf(file), "[a]\r\nk=2\r\n");
}

// --- Writing: numbers passed along --------------------------------------------------------------

TEST_F(LargeIniTest, AnInputPassedAlongStaysOpenAndNothingIsCopiedBack) {
  const Text file = Large("[a]\r\nk=1\r\n");
  disc.File("AUTRE.INI", "[a]\r\nk=5\r\n");
  OpenInput(1, u"D:\\AUTRE.INI");
  EcritIniGrosFichier(u"a", u"k", u"2", file, 1);
  EXPECT_TRUE(AtEnd(1));
  EXPECT_EQ(FreeFile(), 2);
  EXPECT_EQ(EndOf(file), "[a]\r\nk=1\r\n");
  EXPECT_EQ(Contents(temporary_), "[a]\r\nk=2\r\n");
}

TEST_F(LargeIniTest, AnInputPassedAlongStaysOpenWhereTheOutputCannotBeOpened) {
  const Text file = Large("[a]\r\nk=1\r\n");
  OpenInput(1, file);
  platform.open_write_error = ErrorNumber::kPathNotFound;
  ExpectBox();
  EcritIniGrosFichier(u"a", u"k", u"2", file, 1);
  EXPECT_EQ(FreeFile(), 2);
}

TEST_F(LargeIniTest, AnOutputPassedAlongTakesTheLinesAndStaysOpen) {
  const Text file = Large("[a]\r\nk=1\r\n");
  OpenOutput(1, u"D:\\SORTIE.INI");
  EcritIniGrosFichier(u"a", u"k", u"2", file, -1, 1);
  EXPECT_EQ(FreeFile(), 2);
  CloseFile(1);
  EXPECT_EQ(EndOf(u"D:\\SORTIE.INI"), "[a]\r\nk=2\r\n");
  EXPECT_EQ(EndOf(file), "[a]\r\nk=1\r\n");
}

TEST_F(LargeIniTest, NumbersPassedAlongStayOpenAfterAnError) {
  const Text file = Large("[a]\r\nk=1\r\n");
  OpenInput(1, file);
  OpenOutput(2, u"D:\\SORTIE.INI");
  platform.good_reads = 1;
  ExpectBox();
  EcritIniGrosFichier(u"a", u"k", u"2", file, 1, 2);
  EXPECT_EQ(FreeFile(), 3);
}

}  // namespace
}  // namespace trovex::test
