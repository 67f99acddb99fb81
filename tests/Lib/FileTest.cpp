#include "Lib/LIB_FILE.h"

#include "Lib/LIB_DIALOGUE.h"
#include "Lib/LibTest.h"

namespace trovex::test {
namespace {

class FileTest : public LibTest {};

// --- Paths --------------------------------------------------------------------------------------

TEST_F(FileTest, ABackslashIsAddedWhereThereIsNone) {
  EXPECT_EQ(sAjouteBackslash(u"D:\\JEUX"), u"D:\\JEUX\\");
  EXPECT_EQ(sAjouteBackslash(u"D:"), u"D:\\");
  EXPECT_EQ(sAjouteBackslash(u" D:\\A"), u" D:\\A\\");
}

TEST_F(FileTest, ABackslashIsNotAddedTwice) {
  EXPECT_EQ(sAjouteBackslash(u"D:\\"), u"D:\\");
}

TEST_F(FileTest, ABlankPathTakesNoBackslash) {
  EXPECT_EQ(sAjouteBackslash(u"   "), u"");
  EXPECT_EQ(sAjouteBackslash(u""), u"");
}

TEST_F(FileTest, OneBackslashIsTakenAway) {
  EXPECT_EQ(sEnleveBackslash(u"D:\\"), u"D:");
  EXPECT_EQ(sEnleveBackslash(u"D:\\A\\\\"), u"D:\\A\\");
  EXPECT_EQ(sEnleveBackslash(u"D:\\A"), u"D:\\A");
  EXPECT_EQ(sEnleveBackslash(u""), u"");
}

TEST_F(FileTest, TheProgramsDirectoryEndsInABackslash) {
  EXPECT_EQ(sRepertoireAppli(), u"D:\\Programme\\");
}

TEST_F(FileTest, APathIsSplitAtItsLastBackslash) {
  EXPECT_EQ(sNomSeul(u"D:\\JEUX\\SETUP.EXE"), u"SETUP.EXE");
  EXPECT_EQ(sRepertoireSeul(u"D:\\JEUX\\SETUP.EXE"), u"D:\\JEUX");
  EXPECT_EQ(sNomSeul(u"SETUP.EXE"), u"SETUP.EXE");
  EXPECT_EQ(sRepertoireSeul(u"SETUP.EXE"), u"SETUP.EXE");
  EXPECT_EQ(sNomSeul(u"D:\\"), u"");
  EXPECT_EQ(sRepertoireSeul(u"D:\\"), u"D:");
}

TEST_F(FileTest, TheSystemsDirectoriesComeInUpperCaseWithABackslash) {
  EXPECT_EQ(sRepertoireWindows(), u"D:\\WINDOWS\\");
  EXPECT_EQ(sRepertoireSysteme(), u"D:\\WINDOWS\\SYSTEM\\");
}

TEST_F(FileTest, ASystemDirectoryThatDoesNotFitTheBufferIsNone) {
  platform.windows_directory = u"D:\\" + Text(251, u'w');  // and the terminator: 255
  EXPECT_EQ(sRepertoireWindows(), u"D:\\" + Text(251, u'W') + u"\\");
  platform.windows_directory += u'w';
  EXPECT_EQ(sRepertoireWindows(), u"");
}

// --- Existence ----------------------------------------------------------------------------------

TEST_F(FileTest, AFileExists) {
  disc.File("JEUX/LISEZMOI.TXT");
  EXPECT_TRUE(bFichierExiste(u"D:\\JEUX\\LISEZMOI.TXT"));
  EXPECT_TRUE(bFichierExiste(u"d:\\jeux\\lisezmoi.txt"));
  EXPECT_FALSE(bFichierExiste(u"D:\\JEUX\\LISEZMOI"));
  EXPECT_FALSE(bFichierExiste(u"D:\\RIEN\\LISEZMOI.TXT"));
}

TEST_F(FileTest, BlanksAndOneBackslashAroundANameAreDropped) {
  disc.File("A.TXT");
  EXPECT_TRUE(bFichierExiste(u"  D:\\A.TXT "));
  EXPECT_TRUE(bFichierExiste(u"D:\\A.TXT\\"));
}

TEST_F(FileTest, AnEmptyNameDoesNotExist) {
  disc.File("A.TXT");
  EXPECT_FALSE(bFichierExiste(u""));
  EXPECT_FALSE(bFichierExiste(u"  "));
  EXPECT_FALSE(bFichierExiste(u"\\"));
  EXPECT_FALSE(bExisteAttribut(u"", 0));
}

TEST_F(FileTest, AHiddenFileCountsAsAbsent) {
  disc.File(".readme.txt", "x");
  disc.Hide(".readme.txt");
  EXPECT_FALSE(bFichierExiste(u"D:\\.readme.txt"));
  EXPECT_TRUE(bExisteAttribut(u"D:\\.readme.txt", kAttributeHidden));
}

TEST_F(FileTest, AFileOfTheSystemCountsAsAbsent) {
  struct SystemFiles : BentPlatform {
    using BentPlatform::BentPlatform;
    FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
      const FindHandle handle = Target().FindFirstFile(pattern, data);
      data.attributes |= kAttributeSystem;
      return handle;
    }
  } system_files{disc.GetPlatform()};
  const PlatformScope scope(system_files);
  disc.File("IO.SYS");
  EXPECT_FALSE(bFichierExiste(u"D:\\IO.SYS"));
  EXPECT_TRUE(bExisteAttribut(u"D:\\IO.SYS", kAttributeSystem));
}

TEST_F(FileTest, ADirectoryIsNoFile) {
  disc.File("JEUX/A.TXT");
  EXPECT_FALSE(bFichierExiste(u"D:\\JEUX"));
  EXPECT_FALSE(bFichierExiste(u"D:\\JEUX\\"));
  EXPECT_TRUE(bExisteAttribut(u"D:\\JEUX", kAttributeDirectory));
}

TEST_F(FileTest, APatternFindsTheFilesBehindADirectory) {
  disc.Directory("A.DIR");
  EXPECT_FALSE(bFichierExiste(u"D:\\A.*"));
  disc.File("A.TXT");
  EXPECT_TRUE(bFichierExiste(u"D:\\A.*"));
}

TEST_F(FileTest, ExistenceTestsNeverRaise) {
  disc.File("JEUX/A.TXT");
  platform.find_error = ErrorNumber::kDeviceUnavailable;
  EXPECT_FALSE(bFichierExiste(u"D:\\JEUX\\A.TXT"));
  EXPECT_FALSE(bExisteAttribut(u"D:\\JEUX\\A.TXT", 0));
  EXPECT_FALSE(bRepertoireExiste(u"D:\\JEUX"));
  EXPECT_EQ(Err().number, 0);
}

TEST_F(FileTest, ADirectoryExistsEvenWhenItHoldsNothing) {
  disc.Directory("VIDE");
  EXPECT_TRUE(bRepertoireExiste(u"D:\\VIDE"));
  EXPECT_FALSE(bRepertoireExiste(u"D:\\RIEN"));
}

TEST_F(FileTest, AFileIsNoDirectory) {
  disc.File("A.TXT");
  EXPECT_FALSE(bRepertoireExiste(u"D:\\A.TXT"));
}

TEST_F(FileTest, ADriveExistsByWhatItHolds) {
  EXPECT_FALSE(bRepertoireExiste(u"D:"));
  disc.Directory("VIDE");
  EXPECT_TRUE(bRepertoireExiste(u"D:"));
}

// --- Extensions ---------------------------------------------------------------------------------

TEST_F(FileTest, AnExtensionMatchesWithoutRegardToCase) {
  EXPECT_TRUE(bEstExtension(u"ARCHIVE.ZIP", u".zip"));
  EXPECT_TRUE(bEstExtension(u"archive.zip", u"ZIP"));
  EXPECT_TRUE(bEstExtension(u"D:\\A.B\\C.D.txt", u".TXT"));
  EXPECT_FALSE(bEstExtension(u"ARCHIVE.ZIPX", u".zip"));
}

TEST_F(FileTest, ANameWithoutPointComparesWhole) {
  EXPECT_FALSE(bEstExtension(u"NOM", u".zip"));
  EXPECT_TRUE(bEstExtension(u"zip", u".ZIP"));
}

TEST_F(FileTest, AnEmptyNameOrExtensionNeverMatches) {
  EXPECT_FALSE(bEstExtension(u"", u"."));
  EXPECT_FALSE(bEstExtension(u"A.", u""));
  EXPECT_FALSE(bEstExtension(u"", u""));
}

// --- Opening for reading ------------------------------------------------------------------------

TEST_F(FileTest, AFileIsOpenedForReading) {
  disc.File("A.TXT", "un\r\n");
  const int number = iOuvreLecture(u"D:\\A.TXT");
  EXPECT_EQ(number, 1);
  EXPECT_EQ(LineInput(number), u"un");
}

TEST_F(FileTest, AMissingFileIsReported) {
  ExpectBox();
  EXPECT_EQ(iOuvreLecture(u"D:\\RIEN.TXT"), -1);
  EXPECT_EQ(LastBox(), u"Ouverture impossibleD:\\RIEN.TXT");
}

TEST_F(FileTest, AMissingFileIsNotReportedWhereThatIsNotWanted) {
  EXPECT_EQ(iOuvreLecture(u"D:\\RIEN.TXT", false), -1);
}

TEST_F(FileTest, AMissingFileIsCreatedWhereThatIsWanted) {
  const int number = iOuvreLecture(u"D:\\NEUF.TXT", true, true);
  EXPECT_EQ(number, 1);
  PrintLine(number, u"x");
  CloseFile(number);
  EXPECT_EQ(Contents(u"D:\\NEUF.TXT"), "x\r\n");
}

TEST_F(FileTest, AFileThatExistsIsNotCreatedAgain) {
  disc.File("A.TXT", "un\r\n");
  EXPECT_EQ(LineInput(iOuvreLecture(u"D:\\A.TXT", true, true)), u"un");
}

TEST_F(FileTest, AnUnreadableFileIsReportedWithItsError) {
  disc.File("A.TXT");
  platform.open_read_error = ErrorNumber::kPermissionDenied;
  ExpectBox();
  EXPECT_EQ(iOuvreLecture(u"D:\\A.TXT"), -1);
  EXPECT_EQ(LastBox(), u"Ouverture impossibleD:\\A.TXT" + Details(ErrorNumber::kPermissionDenied));
  EXPECT_EQ(Err().number, 0);
  EXPECT_EQ(FreeFile(), 1);
}

TEST_F(FileTest, AnUnreadableFileIsPassedOverInSilenceWhereThatIsWanted) {
  disc.File("A.TXT");
  platform.open_read_error = ErrorNumber::kPermissionDenied;
  EXPECT_EQ(iOuvreLecture(u"D:\\A.TXT", false), -1);
  EXPECT_EQ(Err().number, 0);
}

// --- Opening for writing ------------------------------------------------------------------------

TEST_F(FileTest, AFileIsOpenedForWriting) {
  const int number = iOuvreEcriture(u"D:\\A.TXT");
  EXPECT_EQ(number, 1);
  CloseFile(number);
  EXPECT_TRUE(Exists(u"D:\\A.TXT"));
}

TEST_F(FileTest, AnEmptyNameIsNotOpenedForWriting) {
  ExpectBox();
  EXPECT_EQ(iOuvreEcriture(u""), -1);
  EXPECT_EQ(LastBox(), u"Erreur d'écriture sur le fichier : ");
}

TEST_F(FileTest, AFileThatCannotBeWrittenIsReportedWithItsError) {
  platform.open_write_error = ErrorNumber::kPathNotFound;
  ExpectBox();
  EXPECT_EQ(iOuvreEcriture(u"D:\\A.TXT"), -1);
  EXPECT_EQ(LastBox(),
            u"Erreur d'écriture sur le fichier : D:\\A.TXT" + Details(ErrorNumber::kPathNotFound));
}

TEST_F(FileTest, AFileThatCannotBeCreatedForReadingIsReportedOnce) {
  platform.open_write_error = ErrorNumber::kPathNotFound;
  ExpectBox();
  EXPECT_EQ(iOuvreLecture(u"D:\\A.TXT", false, true), -1);
  EXPECT_EQ(BoxCount(), 1u);
}

// --- Messages -----------------------------------------------------------------------------------

TEST_F(FileTest, CodesOfFileErrorsHaveTheirTexts) {
  const std::pair<int, Text> cases[] = {
      {-55, u"Erreur de lecture sur le fichier : D:\\A"},
      {-45, u"Ouverture impossibleD:\\A"},
      {-40, u"Erreur d'écriture sur le fichier : D:\\A"},
      {-30, u"Fichier inexistant : D:\\A"},
  };
  for (const auto& [code, text] : cases) {
    ExpectBox();
    MessageErreurFichier(u"D:\\A", code);
    EXPECT_EQ(LastBox(), text);
  }
}

TEST_F(FileTest, OneCodeShowsNothing) {
  MessageErreurFichier(u"D:\\A", -50);
  MessageErreurFichier(u"", -50);
  EXPECT_EQ(BoxCount(), 0u);
}

TEST_F(FileTest, AnyOtherCodeShowsTheNameAlone) {
  for (int code : {-56, -54, -31, -20, -9, 0, 53}) {
    ExpectBox();
    MessageErreurFichier(u"D:\\A", code);
    EXPECT_EQ(LastBox(), u"D:\\A");
    MessageErreurFichier(u"", code);  // no box
  }
}

TEST_F(FileTest, ATextIsShownWithoutAName) {
  ExpectBox();
  MessageErreurFichier(u"", -45);
  EXPECT_EQ(LastBox(), u"Ouverture impossible");
}

// --- Copying ------------------------------------------------------------------------------------

class CopyTest : public FileTest {
 protected:
  CopyTest() { disc.File("A.TXT", "source"); }
  void Destination() { disc.File("B.TXT", "ancien"); }
  bool Copy(bool bConfirme) { return bCopieFichier(u"D:\\A.TXT", u"D:\\B.TXT", bConfirme); }
};

TEST_F(CopyTest, AFileIsCopied) {
  EXPECT_TRUE(Copy(true));
  EXPECT_EQ(Contents(u"D:\\B.TXT"), "source");
  EXPECT_EQ(Contents(u"D:\\A.TXT"), "source");
}

TEST_F(CopyTest, EmptyNamesCopyNothing) {
  EXPECT_FALSE(bCopieFichier(u"", u"D:\\B.TXT", true));
  EXPECT_FALSE(bCopieFichier(u"D:\\A.TXT", u"", true));
}

TEST_F(CopyTest, ADestinationThatExistsIsReplacedOnYes) {
  Destination();
  view.Answer(BoxAnswer::kYes);
  EXPECT_TRUE(Copy(true));
  EXPECT_EQ(LastBox(),
            u"Le fichier de destination existe déjà : D:\\B.TXT\r\nSouhaitez-vous le remplacer ?");
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kQuestion);
  EXPECT_EQ(Contents(u"D:\\B.TXT"), "source");
}

TEST_F(CopyTest, ADestinationThatExistsStaysOnAnyOtherAnswer) {
  Destination();
  for (BoxAnswer answer : {BoxAnswer::kNo, BoxAnswer::kCancel}) {
    view.Answer(answer);
    EXPECT_FALSE(Copy(true));
    EXPECT_EQ(Contents(u"D:\\B.TXT"), "ancien");
  }
}

TEST_F(CopyTest, WithoutConfirmationADestinationIsReplacedAtOnce) {
  Destination();
  EXPECT_TRUE(Copy(false));
  EXPECT_EQ(Contents(u"D:\\B.TXT"), "source");
}

TEST_F(CopyTest, AMissingSourceIsReportedWithConfirmationOnly) {
  disc.Remove("A.TXT");
  ExpectBox();
  EXPECT_FALSE(Copy(true));
  EXPECT_EQ(LastBox(), u"Fichier inexistant : D:\\A.TXT");
  EXPECT_FALSE(Copy(false));
  EXPECT_EQ(BoxCount(), 1u);
}

TEST_F(CopyTest, ACopyErrorIsReportedWithConfirmationOnly) {
  platform.copy_error = ErrorNumber::kDiskFull;
  ExpectBox();
  EXPECT_FALSE(Copy(true));
  EXPECT_EQ(LastBox(), u"Copie du fichier impossible : D:\\A.TXT > D:\\B.TXT" +
                           Details(ErrorNumber::kDiskFull));
  EXPECT_FALSE(Copy(false));
  EXPECT_EQ(BoxCount(), 1u);
  EXPECT_EQ(Err().number, 0);
}

TEST_F(CopyTest, AnOpenFileIsReportedAsSuch) {
  platform.copy_error = ErrorNumber::kFileAlreadyOpen;
  ExpectBox();
  EXPECT_FALSE(Copy(true));
  EXPECT_EQ(LastBox(), u"Le fichier est ouvert, copie impossible : D:\\A.TXT" +
                           Details(ErrorNumber::kFileAlreadyOpen));
  EXPECT_FALSE(Copy(false));
}

TEST_F(CopyTest, AFileThatTheProgramIsWritingIsNotCopied) {
  for (const char16_t* name : {u"D:\\A.TXT", u"D:\\B.TXT"}) {
    const int number = iOuvreEcriture(name);
    EXPECT_FALSE(Copy(false));
    CloseFile(number);
  }
}

// --- Deleting -----------------------------------------------------------------------------------

class DeleteTest : public FileTest {
 protected:
  DeleteTest() { disc.File("A.TXT"); }
};

TEST_F(DeleteTest, AFileIsDeletedWithoutAskingWhereThatIsWanted) {
  EXPECT_TRUE(bEffaceFichier(u"D:\\A.TXT", false));
  EXPECT_FALSE(Exists(u"D:\\A.TXT"));
}

TEST_F(DeleteTest, AFileIsDeletedOnYes) {
  view.Answer(BoxAnswer::kYes);
  EXPECT_TRUE(bEffaceFichier(u"D:\\A.TXT", true));
  EXPECT_EQ(LastBox(), u"Désirez-vous vraiment effacer le fichier ?\r\nD:\\A.TXT");
  EXPECT_FALSE(Exists(u"D:\\A.TXT"));
}

TEST_F(DeleteTest, AFileStaysOnAnyOtherAnswer) {
  for (BoxAnswer answer : {BoxAnswer::kNo, BoxAnswer::kCancel}) {
    view.Answer(answer);
    EXPECT_FALSE(bEffaceFichier(u"D:\\A.TXT", true));
    EXPECT_TRUE(Exists(u"D:\\A.TXT"));
  }
}

TEST_F(DeleteTest, AMissingFileIsReportedAndCountsAsDeleted) {
  ExpectBox();
  EXPECT_TRUE(bEffaceFichier(u"D:\\RIEN.TXT", true));
  EXPECT_EQ(LastBox(), u"Fichier inexistant : D:\\RIEN.TXT");
}

TEST_F(DeleteTest, AMissingFileIsNotReportedWhereThatIsNotWanted) {
  EXPECT_TRUE(bEffaceFichier(u"D:\\RIEN.TXT", false, false));
}

TEST_F(DeleteTest, AnErrorIsReportedUnlessMessagesAreNotWanted) {
  platform.delete_error = ErrorNumber::kPermissionDenied;
  ExpectBox();
  EXPECT_TRUE(bEffaceFichier(u"D:\\A.TXT", false));
  EXPECT_EQ(LastBox(), u"D:\\A.TXT" + Details(ErrorNumber::kPermissionDenied));
  EXPECT_TRUE(bEffaceFichier(u"D:\\A.TXT", false, false));
  EXPECT_EQ(BoxCount(), 1u);
  EXPECT_EQ(Err().number, 0);
}

// --- ChargeTexte --------------------------------------------------------------------------------

class LoadTest : public FileTest {
 protected:
  LoadTest() { box.SetText(u"ancien"); }

  // A file of so many lines, "1" to its number, and the text that it gives.
  void Lines(int count) {
    std::string contents;
    expected.clear();
    for (int line = 1; line <= count; ++line) {
      contents += std::to_string(line) + "\r\n";
      expected += (line == 1 ? Text() : Text(u"\r\n")) + Decimal(line);
    }
    disc.File("A.TXT", contents);
  }

  TextBox box;
  Text expected;
};

TEST_F(LoadTest, LinesAreJoinedByLineEnds) {
  disc.File("A.TXT", "un\ndeux\r\n\r\ntrois\r\n");
  ChargeTexte(u"D:\\A.TXT", box);
  EXPECT_EQ(box.GetText(), u"un\r\ndeux\r\n\r\ntrois");
  EXPECT_EQ(FreeFile(), 1);
}

TEST_F(LoadTest, AnEmptyFirstLineCounts) {
  disc.File("A.TXT", "\r\ndeux\r\n");
  ChargeTexte(u"D:\\A.TXT", box, true);
  EXPECT_EQ(box.GetText(), u"\r\ndeux");
}

TEST_F(LoadTest, ABlankNameLoadsNothing) {
  ChargeTexte(u"", box);
  ChargeTexte(u"  ", box);
  EXPECT_EQ(box.GetText(), u"ancien");
}

TEST_F(LoadTest, AnEmptyFileLeavesTheBox) {
  disc.File("A.TXT");
  ChargeTexte(u"D:\\A.TXT", box);
  EXPECT_EQ(box.GetText(), u"ancien");
  EXPECT_EQ(FreeFile(), 1);
}

TEST_F(LoadTest, TheLimitEndsBehindLine301) {
  Lines(301);
  const Text limited = expected;
  ChargeTexte(u"D:\\A.TXT", box, true);
  EXPECT_EQ(box.GetText(), limited);
  Lines(302);
  ChargeTexte(u"D:\\A.TXT", box, true);
  EXPECT_EQ(box.GetText(), limited);
}

TEST_F(LoadTest, WithoutLimitEveryLineIsLoaded) {
  Lines(400);
  ChargeTexte(u"D:\\A.TXT", box);
  EXPECT_EQ(box.GetText(), expected);
}

TEST_F(LoadTest, ALineIsShownToItsMillionthCharacter) {
  disc.File("A.TXT", std::string(1048577, 'x') + "\r\ndeux\r\n");
  ChargeTexte(u"D:\\A.TXT", box, true);
  EXPECT_EQ(box.GetText(), Text(1048576, u'x') + u"\r\ndeux");
}

// A file of 5 GiB without line ends was read to its end.
TEST_F(LoadTest, NothingIsShownBehindALineThatDoesNotEnd) {
  constexpr std::size_t kShown = 1048576, kRest = 16777216;
  disc.File("A.TXT", "un\r\n" + std::string(kShown + kRest - 10000, 'x') + "\r\ntrois\r\n");
  ChargeTexte(u"D:\\A.TXT", box);
  EXPECT_TRUE(box.GetText().ends_with(u"x\r\ntrois"));
  disc.File("A.TXT", "un\r\n" + std::string(kShown + kRest + 10000, 'x') + "\r\ntrois\r\n");
  ChargeTexte(u"D:\\A.TXT", box);
  EXPECT_EQ(box.GetText(), u"un\r\n" + Text(kShown, u'x'));
}

TEST_F(LoadTest, ATextIsShownToItsFourMillionthCharacter) {
  std::string contents;
  for (int line = 0; line < 6; ++line) contents += std::string(1000000, 'x') + "\r\n";
  disc.File("A.TXT", contents);
  ChargeTexte(u"D:\\A.TXT", box, true);
  EXPECT_EQ(box.GetText().size(), 4194304u);
  EXPECT_EQ(FreeFile(), 1);
}

TEST_F(LoadTest, AFileThatCannotBeOpenedIsReported) {
  ExpectBox();
  ChargeTexte(u"D:\\RIEN.TXT", box);
  EXPECT_EQ(LastBox(), u"Ouverture impossibleD:\\RIEN.TXT");
  EXPECT_EQ(box.GetText(), u"ancien");
}

TEST_F(LoadTest, AReadErrorInTheMiddleKeepsTheLinesReadSoFar) {
  disc.File("A.TXT", "un\r\ndeux\r\n" + std::string(5000, 'x'));
  platform.good_reads = 1;
  ChargeTexte(u"D:\\A.TXT", box);
  EXPECT_EQ(box.GetText(), u"un\r\ndeux");
  EXPECT_EQ(FreeFile(), 1);
}

// --- iTypeLecteur -------------------------------------------------------------------------------

class DriveTypeTest : public FileTest {
 protected:
  DriveTypeTest() { platform.drive_type = DriveType::kRemote; }

  // The root whose type the text asks for.
  Text RootOf(TextView text) {
    EXPECT_EQ(iTypeLecteur(text), DriveType::kRemote);
    return platform.drive_roots.back();
  }
};

TEST_F(DriveTypeTest, ALetterIsWrittenInThreeWays) {
  EXPECT_EQ(RootOf(u"D"), u"D:\\");
  EXPECT_EQ(RootOf(u"D:"), u"D:\\");
  EXPECT_EQ(RootOf(u"D:\\"), u"D:\\");
}

TEST_F(DriveTypeTest, BlanksAndCaseDoNotMatter) {
  EXPECT_EQ(RootOf(u" d: "), u"D:\\");
}

TEST_F(DriveTypeTest, EveryLetterButPIsKnown) {
  for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
    const Text root = letter == u'P' ? Text() : Text{letter, u':', u'\\'};
    EXPECT_EQ(RootOf(Text{letter}), root);
    EXPECT_EQ(RootOf(Text{letter, u':'}), root);
    EXPECT_EQ(RootOf(Text{letter, u':', u'\\'}), root);
  }
}

TEST_F(DriveTypeTest, DrivePIsNotLookedAt) {
  EXPECT_EQ(RootOf(u"P:"), u"");
  EXPECT_EQ(RootOf(u"p:\\"), u"");
}

TEST_F(DriveTypeTest, AnyOtherTextAsksAboutTheCurrentDrive) {
  for (const char16_t* text : {u"", u"  ", u"\\\\", u"1:", u"D:\\A", u"DD", u"É:", u"[:"}) {
    EXPECT_EQ(RootOf(text), u"") << testing::PrintToString(text);
  }
}

TEST_F(DriveTypeTest, TheAnswerIsTheSystems) {
  platform.drive_type = DriveType::kCdRom;
  EXPECT_EQ(iTypeLecteur(u"D:"), DriveType::kCdRom);
}

// --- Dates ------------------------------------------------------------------------------------

TEST(DateTest, HasLeadingZeros) {
  EXPECT_EQ(sFormatDate({2004, 1, 2, 3, 4, 6}), u"02/01/2004 03:04:06");
  EXPECT_EQ(sFormatDate({1980, 12, 31, 0, 0, 0}), u"31/12/1980 00:00:00");
}

}  // namespace
}  // namespace trovex::test
