#include "ScreenTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr TextView kNoInformation =
    u"Erreur lors de la recherche d'information sur le fichier : Setup.exe";

class CompanionFilesTest : public ScreenTest {
 protected:
  CompanionFilesTest() { form.Show(); }

  // Files with a line of text each.
  void Files(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) disc.File(path, path);
  }
  void InspectProgram(const Text& directory, const Text& file = u" X.exe") {
    Inspect(1, directory, file);
  }
};

TEST_F(CompanionFilesTest, TheListHoldsEveryKindOfCompanionInProperCaseAndOrder) {
  Files({"J/X.EXE", "J/README.TXT", "J/b.diz", "J/C.HTM", "J/d.gif", "J/E.BMP", "J/F.WMF",
         "J/G.MOV", "J/H.AVI",      "J/I.MPG", "J/J.HLP", "J/K.WRI", "J/L.DOC", "J/M.ICO",
         "J/N.WAV", "J/O.MIDI",     "J/P.ZIP", "J/Q.MID", "J/R.DLL", "J/Y.EXE"});
  InspectProgram(u" D:\\J");
  EXPECT_THAT(Companions(), ElementsAre(u"B.diz", u"C.htm", u"D.gif", u"E.bmp", u"F.wmf", u"G.mov",
                                        u"H.avi", u"I.mpg", u"J.hlp", u"K.wri", u"L.doc", u"M.ico",
                                        u"N.wav", u"O.midi", u"P.zip", u"Readme.txt"));
}

TEST_F(CompanionFilesTest, NamesComeOutWithASingleCapital) {
  Files({"J/X.EXE", "J/README.TXT", "J/mOn tExTe.TXT"});
  InspectProgram(u" D:\\J");
  EXPECT_THAT(Companions(), ElementsAre(u"Mon Texte.txt", u"Readme.txt"));
}

TEST_F(CompanionFilesTest, AFileNamedGifAloneIsListedByTheEntryWithoutAStar) {
  Files({"J/X.EXE", "J/.GIF"});
  InspectProgram(u" D:\\J");
  EXPECT_THAT(Companions(), ElementsAre(u".gif"));
}

TEST_F(CompanionFilesTest, InstallTxtComesBeforeOtherTexts) {
  Files({"J/X.EXE", "J/INSTALL.TXT", "J/A.TXT", "J/Z.TXT"});
  InspectProgram(u" D:\\J");
  EXPECT_EQ(Chosen(), u"Install.txt");
  EXPECT_EQ(Info(0), u"J/INSTALL.TXT");
}

TEST_F(CompanionFilesTest, AReadMeComesUpOnlyByItsPlace) {
  Files({"J/X.EXE", "J/README.TXT", "J/LISEZMOI.TXT", "J/A.TXT"});
  InspectProgram(u" D:\\J");
  EXPECT_EQ(Chosen(), u"A.txt");
}

TEST_F(CompanionFilesTest, AFileDescriptionComesUpByNoRule) {
  Files({"J/X.EXE", "J/FILE_ID.DIZ"});
  InspectProgram(u" D:\\J");
  EXPECT_THAT(Companions(), ElementsAre(u"File_id.diz"));
  EXPECT_EQ(Chosen(), u"");
  EXPECT_EQ(Pane(), "");
}

TEST_F(CompanionFilesTest, OneIconAndNoTextShowsTheIcon) {
  Files({"J/X.EXE", "J/A.HLP"});
  disc.File("J/X.ICO", IconFile());
  InspectProgram(u" D:\\J");
  EXPECT_EQ(Chosen(), u"X.ico");
  EXPECT_EQ(Pane(), "icon");
}

TEST_F(CompanionFilesTest, AnIconStandsBeforeATextOfNoName) {
  Files({"J/X.EXE", "J/B.ICO", "J/C.ICO", "J/A.TXT"});
  InspectProgram(u" D:\\J");
  EXPECT_EQ(Chosen(), u"B.ico");
}

TEST_F(CompanionFilesTest, InstallTxtDisplacesTheIconAtTheSamePlaceInTheSource) {
  Files({"J/X.EXE", "J/A.ICO", "J/INSTALL.TXT"});
  InspectProgram(u" D:\\J");
  EXPECT_EQ(Chosen(), u"Install.txt");
}

TEST_F(CompanionFilesTest, InstallTxtMissesAnIconWhoseNumberIsAnothersInTheSource) {
  // Number 1 is the icon in the list, which leaves the executable out; in the source it is In.zip.
  Files({"J/IN.EXE", "J/INA.ICO", "J/INSTALL.TXT"});
  disc.File("J/IN.ZIP", ZipArchive(50));
  Inspect(2, u" D:\\J", u" In.zip");
  EXPECT_THAT(Companions(), ElementsAre(u"In.zip", u"Ina.ico", u"Install.txt"));
  EXPECT_EQ(Chosen(), u"Ina.ico");
}

TEST_F(CompanionFilesTest, NothingButExecutablesGivesAnEmptyList) {
  Files({"J/X.EXE", "J/Y.EXE", "J/Z.EXE"});
  InspectProgram(u" D:\\J");
  EXPECT_THAT(Companions(), IsEmpty());
  EXPECT_EQ(form.ListFichier.Tag(), u"D:\\J");
}

TEST_F(CompanionFilesTest, AnArchiveBesideFilesOfItsNameListsThoseAndShowsTheText) {
  disc.File("Z/MON JEU.ZIP", ZipArchive(50));
  Files({"Z/MON JEU.TXT", "Z/MON JEU.DOC", "Z/AUTRE.TXT"});
  Inspect(2, u" D:\\Z", u" Mon Jeu.zip");
  EXPECT_THAT(Companions(), ElementsAre(u"Mon Jeu.doc", u"Mon Jeu.txt", u"Mon Jeu.zip"));
  EXPECT_EQ(Chosen(), u"Mon Jeu.txt");
  EXPECT_EQ(form.TextInfo(0).Tag(), u"1");
}

TEST_F(CompanionFilesTest, AnArchiveAloneOfItsNameListsTheOthersWithoutArchives) {
  disc.File("Z/MON JEU.ZIP", ZipArchive(50));
  disc.File("Z/AUTRE.ZIP", ZipArchive(50));
  Files({"Z/LISEZ.TXT", "Z/BIEN.TXT"});
  Inspect(2, u" D:\\Z", u" Mon Jeu.zip");
  EXPECT_THAT(Companions(), ElementsAre(u"Bien.txt", u"Lisez.txt"));
  EXPECT_EQ(Chosen(), u"Bien.txt");
}

TEST_F(CompanionFilesTest, ATextWhoseNameIsPartOfTheArchivesIsPreferredAndTheLastWins) {
  disc.File("Z/JEUX.ZIP", ZipArchive(50));
  Files({"Z/A.TXT", "Z/EU.TXT", "Z/JEU.TXT", "Z/ZUT.TXT"});
  Inspect(2, u" D:\\Z", u" Jeux.zip");
  EXPECT_EQ(Chosen(), u"Jeu.txt");
}

TEST_F(CompanionFilesTest, ASetOfDisksShowsTheFilesOfDisk2) {
  Files({"APP/DISK1/SETUP.EXE", "APP/DISK2/LISEZ.TXT"});
  Inspect(0, u" D:\\App\\Disk1", u" Setup.exe");
  EXPECT_THAT(Companions(), ElementsAre(u"Lisez.txt"));
  EXPECT_EQ(form.ListFichier.Tag(), u"D:\\App\\Disk2");
  EXPECT_EQ(Info(0), u"APP/DISK2/LISEZ.TXT");
  EXPECT_EQ(Info(5), u"D:\\App\\Disk1\\Setup.exe");
}

TEST_F(CompanionFilesTest, AMissingDisk2EndsInTheErrorBox) {
  Files({"APP/DISK1/SETUP.EXE"});
  view.Answer(BoxAnswer::kOk);
  Inspect(0, u" D:\\App\\Disk1", u" Setup.exe");
  EXPECT_EQ(BoxMessage(), kNoInformation);
  EXPECT_EQ(BoxError(), 76);
}

TEST_F(CompanionFilesTest, ADisk2ThatCannotBeReadEndsInTheErrorBox) {
  Files({"APP/DISK1/SETUP.EXE", "APP/DISK2/LISEZ.TXT"});
  machine.unreadable = {u"D:\\APP\\DISK2"};
  view.Answer(BoxAnswer::kOk);
  Inspect(0, u" D:\\App\\Disk1", u" Setup.exe");
  EXPECT_EQ(BoxMessage(), kNoInformation);
  EXPECT_EQ(BoxError(), 75);
  EXPECT_THAT(Companions(), IsEmpty());
}

TEST_F(CompanionFilesTest, AnEmptyDisk2LeadsToDisk3) {
  Files({"APP/DISK1/SETUP.EXE", "APP/DISK2/X.DAT", "APP/DISK3/FIN.TXT"});
  Inspect(0, u" D:\\App\\Disk1", u" Setup.exe");
  EXPECT_THAT(Companions(), ElementsAre(u"Fin.txt"));
  EXPECT_EQ(form.ListFichier.Tag(), u"D:\\App\\Disk3");
}

TEST_F(CompanionFilesTest, Disk2WithoutDisk3GivesAnEmptyListAndNoError) {
  Files({"APP/DISK2/SETUP.EXE"});
  Inspect(0, u" D:\\App\\Disk2", u" Setup.exe");
  EXPECT_THAT(Companions(), IsEmpty());
  EXPECT_EQ(form.ListFichier.Tag(), u"D:\\App\\Disk2");
}

TEST_F(CompanionFilesTest, Disk3IsTheEndOfASet) {
  Files({"APP/DISK3/SETUP.EXE", "APP/DISK4/FIN.TXT"});
  Inspect(0, u" D:\\App\\Disk3", u" Setup.exe");
  EXPECT_THAT(Companions(), IsEmpty());
}

TEST_F(CompanionFilesTest, ADirectoryNamedD1WithNothingBesideItEndsInTheErrorBox) {
  Files({"ABC/D1/SETUP.EXE", "ABC/D2/LISEZ.TXT"});
  view.Answer(BoxAnswer::kOk);
  Inspect(0, u" D:\\Abc\\D1", u" Setup.exe");
  EXPECT_EQ(BoxMessage(), kNoInformation);
}

TEST_F(CompanionFilesTest, ADirectoryNamedD1LeadsFiveCharactersBack) {
  Files({"ABC/D1/SETUP.EXE", "AD2/LISEZ.TXT"});
  Inspect(0, u" D:\\Abc\\D1", u" Setup.exe");
  EXPECT_THAT(Companions(), ElementsAre(u"Lisez.txt"));
  EXPECT_EQ(form.ListFichier.Tag(), u"D:\\AD2");
}

TEST_F(CompanionFilesTest, ADirectoryNamedD2LeadsFiveCharactersBackWhereThatExists) {
  Files({"ABC/D2/SETUP.EXE", "AD3/LISEZ.TXT", "DEF/D2/SETUP.EXE"});
  Inspect(0, u" D:\\Abc\\D2", u" Setup.exe");
  EXPECT_THAT(Companions(), ElementsAre(u"Lisez.txt"));
  Inspect(0, u" D:\\Def\\D2", u" Setup.exe");
  EXPECT_THAT(Companions(), IsEmpty());
}

TEST_F(CompanionFilesTest, TheWindowsDirectoryListsNothing) {
  Files({"WINDOWS/X.EXE", "WINDOWS/X.TXT", "WINDOWS/A.TXT"});
  InspectProgram(u" D:\\Windows");
  EXPECT_THAT(Companions(), IsEmpty());
  EXPECT_EQ(Lib_Form().ListeFichier().Pattern(), u"X.*");
  EXPECT_EQ(form.GridLogiciel(1).SelEndCol(), 0) << "the row is not highlighted";
}

TEST_F(CompanionFilesTest, TheSystemDirectoryListsNothing) {
  Files({"WINDOWS/SYSTEM/X.EXE", "WINDOWS/SYSTEM/A.TXT"});
  InspectProgram(u" D:\\Windows\\System");
  EXPECT_THAT(Companions(), IsEmpty());
}

TEST_F(CompanionFilesTest, AWindowsDirectoryOfAVeryLongNameIsNotRecognised) {
  machine.windows = u"D:\\" + Text(60, u'W');
  Files({std::string(60, 'W') + "/X.EXE", std::string(60, 'W') + "/A.TXT"});
  InspectProgram(u" D:\\W" + Text(59, u'w'));
  EXPECT_THAT(Companions(), ElementsAre(u"A.txt"));
}

TEST_F(CompanionFilesTest, ADiskThatIsTheSystemDirectoryAddsTheWindowsFiles) {
  machine.system = u"D:\\APP\\DISK2";
  Files({"APP/DISK1/X.EXE", "APP/DISK2/LISEZ.TXT", "WINDOWS/WIN.TXT", "WINDOWS/A.B.DOC"});
  InspectProgram(u" D:\\App\\Disk1");
  EXPECT_THAT(Companions(), ElementsAre(u"A.b.doc", u"Lisez.txt", u"Win.txt"));
  EXPECT_EQ(Chosen(), u"Lisez.txt");
}

TEST_F(CompanionFilesTest, HiddenFilesAreListedButCountAsAbsentForTheViewer) {
  Files({"J/X.EXE", "J/.cache.txt"});
  disc.Hide("J/.cache.txt");
  view.Answer(BoxAnswer::kOk);
  InspectProgram(u" D:\\J");
  EXPECT_THAT(Companions(), ElementsAre(u".cache.txt"));
}

}  // namespace
}  // namespace trovex::test
