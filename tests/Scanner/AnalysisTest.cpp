// What a file is called: each source of a description, and the order of the sources.
#include "Scanner/ScanTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Text kStarter = u"Programme d'amorçage de l'installation";
const Text kNoProduct = u"Ne contient pas de nom produit.";

Text Signs(std::size_t count, char16_t sign) {
  return Text(count, sign);
}

class AnalysisTest : public ScanTest {
 protected:
  // The description that JEU.EXE gets, an MS-DOS program in a directory as the test left it.
  Text DescriptionOfJeu() {
    Dos("JEU.EXE");
    Scan();
    return Description();
  }
  // The description of a set-up program of this own description.
  Text DescriptionOfSetup(const Text& own) {
    Program("SETUP.EXE", {{"FileDescription", own}});
    Scan();
    return Only(0)[0];
  }
};

// --- Names that give no row ---

TEST_F(AnalysisTest, ToolsOfInstallersGiveNoRowInAnyCase) {
  for (const char* name : {"_ISDEL.EXE", "A/_isdel.exe", "_Isetup.exe", "_MSSETUP.EXE",
                           "_MSTEST.EXE", "EXPAND.EXE", "A/expand.Exe"}) {
    disc.File(name);
  }
  Scan();
  for (int table = 0; table < kTableCount; ++table) EXPECT_THAT(Places(table), IsEmpty());
}

TEST_F(AnalysisTest, AnArchiveNamedAsAToolGivesARow) {
  for (const char* name : {"_ISDEL.ZIP", "EXPAND.ZIP", "EXPAND2.EXE", "ISDEL.EXE"}) disc.File(name);
  Scan();
  EXPECT_THAT(Places(2), ElementsAre(u" D:\\| Expand.zip", u" D:\\| _isdel.zip"));
  EXPECT_THAT(Places(1), ElementsAre(u" D:\\| Expand2.exe", u" D:\\| Isdel.exe"));
}

// --- The row ---

TEST_F(AnalysisTest, TheRowHoldsPlaceAndNameWithALeadingBlank) {
  Program("JEUX/DAMES.EXE", {{"FileDescription", u"Jeu de dames"}, {"FileVersion", u"1.20"}});
  Scan();
  EXPECT_THAT(Only(1), ElementsAre(u"Jeu de dames", u" D:\\Jeux", u" Dames.exe", u"1.20"));
}

TEST_F(AnalysisTest, ARootKeepsItsBackslash) {
  Program("DAMES.EXE", {{"FileDescription", u"Jeu de dames"}});
  Scan();
  EXPECT_EQ(Only(1)[1], u" D:\\");
}

TEST_F(AnalysisTest, TheCallEndsOnTheVersionOfItsRow) {
  Dos("A.EXE");
  Dos("B.EXE");
  Scan();
  EXPECT_EQ(Table(1).Row(), 2);
  EXPECT_EQ(Table(1).Col(), 3);
}

TEST_F(AnalysisTest, AFileThatVanishedGivesARowWithoutProperties) {
  disc.File("JEU.ZIP", ZipArchive(5000));
  platform_.before_status = [this](const Text& name) {
    if (ToUpper(name) == u"D:\\JEU.ZIP") disc.Remove("JEU.ZIP");
  };
  Scan();
  EXPECT_THAT(Only(2), ElementsAre(u" octets", u" D:\\", u" Jeu.zip", u""));
}

TEST_F(AnalysisTest, AVanishedProgramIsStillNamedByASourceBesideIt) {
  Program("JEU.EXE", {{"FileDescription", u"jamais lu"}, {"FileVersion", u"9"}});
  Lines("README.TXT", {u"Un jeu"});
  platform_.before_status = [this](const Text& name) {
    if (ToUpper(name) == u"D:\\JEU.EXE") disc.Remove("JEU.EXE");
  };
  Scan();
  EXPECT_THAT(Only(1), ElementsAre(u"Un jeu", u" D:\\", u" Jeu.exe", u""));
}

// --- The version record ---

TEST_F(AnalysisTest, ADescriptionOf50CharactersStandsAsItIs) {
  Program("A.EXE", {{"FileDescription", Signs(50, u'a')}});
  Scan();
  EXPECT_EQ(Description(), Signs(50, u'a'));
}

TEST_F(AnalysisTest, ADescriptionOf51CharactersStandsWholeFollowedByDots) {
  Program("A.EXE", {{"FileDescription", Signs(51, u'a')}});
  Scan();
  EXPECT_EQ(Description(), Signs(51, u'a') + u"...");
}

TEST_F(AnalysisTest, ALongDescriptionIsCutAt95Characters) {
  Program("A.EXE", {{"FileDescription", Signs(95, u'a')}});
  Program("B.EXE", {{"FileDescription", Signs(96, u'b')}});
  Scan();
  EXPECT_EQ(Rows(1)[0][0], Signs(95, u'a') + u"...");
  EXPECT_EQ(Rows(1)[1][0], Signs(95, u'b') + u"...");
}

TEST_F(AnalysisTest, ADescriptionIsTrimmedBeforeItsLengthIsTaken) {
  Program("A.EXE", {{"FileDescription", u"     " + Signs(50, u'a') + u"     "}});
  Scan();
  EXPECT_EQ(Description(), Signs(50, u'a'));
}

TEST_F(AnalysisTest, ADescriptionOfItsOwnGoesBeforeAllTexts) {
  Program("JEU.EXE", {{"FileDescription", u"Le vrai nom"}});
  Lines("FILE_ID.DIZ", {u"diz"});
  Lines("INSTALL.INF", {u"[INSTALL]", u"APPNAME=inf"});
  Scan();
  EXPECT_EQ(Description(), u"Le vrai nom");
}

TEST_F(AnalysisTest, SixteenBitStringsCountAsNoRecord) {
  disc.File("JEU.EXE", PeExecutable(VersionBlock16({{"FileDescription", "large"}})));
  Lines("README.TXT", {u"Nom du texte"});
  Scan();
  EXPECT_EQ(Description(), u"Nom du texte");
}

// --- SETUP.LST ---

TEST_F(AnalysisTest, ASetupStarterTakesTheTitleOfSetupLst) {
  Lines("SETUP.LST", {u"[Setup]", u"Title=Mon Jeu"});
  EXPECT_EQ(DescriptionOfSetup(kStarter), u"Mon Jeu");
}

TEST_F(AnalysisTest, TheWindowTitleStandsInForTheTitle) {
  Lines("SETUP.LST", {u"[Setup]", u"Title=", u"[Params]", u"WndTitle= Titre de fenêtre ",
                      u"[Windows 95 Params]", u"WndTitle=quatre-vingt-quinze"});
  EXPECT_EQ(DescriptionOfSetup(kStarter), u"Titre de fenêtre");
}

TEST_F(AnalysisTest, TheWindowTitleForWindows95ComesLast) {
  Lines("SETUP.LST", {u"[Params]", u"WndMess=x", u"[Windows 95 Params]", u"WndTitle=Pour 95"});
  EXPECT_EQ(DescriptionOfSetup(kStarter), u"Pour 95");
}

TEST_F(AnalysisTest, EachWorthlessDescriptionIsRejected) {
  Lines("SETUP.LST", {u"[Setup]", u"Title=Mon Jeu"});
  EXPECT_EQ(DescriptionOfSetup(u"Le Programme d'amorçage"), u"Mon Jeu");
  EXPECT_EQ(DescriptionOfSetup(u"MS-Setup 1.0"), u"Mon Jeu");
  EXPECT_EQ(DescriptionOfSetup(u"Ne contient pas de version."), u"Mon Jeu");
}

TEST_F(AnalysisTest, WorthlessDescriptionsAreExactInCase) {
  Lines("SETUP.LST", {u"[Setup]", u"Title=Mon Jeu"});
  EXPECT_EQ(DescriptionOfSetup(u"programme d'amorçage"), u"programme d'amorçage");
  EXPECT_EQ(DescriptionOfSetup(u"MS-SETUP"), u"MS-SETUP");
}

TEST_F(AnalysisTest, ADescriptionWorthItsNameGoesBeforeSetupLst) {
  Lines("SETUP.LST", {u"[Setup]", u"Title=Mon Jeu"});
  EXPECT_EQ(DescriptionOfSetup(u"Installation de Cornemuse"), u"Installation de Cornemuse");
}

TEST_F(AnalysisTest, WithoutSetupLstAStarterKeepsItsText) {
  EXPECT_EQ(DescriptionOfSetup(kStarter), kStarter);
}

TEST_F(AnalysisTest, SetupLstServesEveryProgramOfItsDirectory) {
  Dos("JEU.EXE");
  Lines("SETUP.LST", {u"[Setup]", u"Title=Mon Jeu"});
  Scan();
  EXPECT_EQ(Description(), u"Mon Jeu");
}

TEST_F(AnalysisTest, BesideSetupLstTheOtherInstallerFilesAreNotRead) {
  Lines("SETUP.LST", {u"[Setup]"});
  Lines("INSTALL.INF", {u"[INSTALL]", u"APPNAME=Jamais lu"});
  Lines("README.TXT", {u"Texte"});
  EXPECT_EQ(DescriptionOfJeu(), u"Texte");
}

// The rejected text comes back only where nothing else was found: here the record's lack of a
// product name is a text as well.
TEST_F(AnalysisTest, ARejectedStarterWithoutTitleAndTextFileTakesTheFirstFilesProductName) {
  Lines("SETUP.LST", {u"[Setup]", u"Langue=33"});
  EXPECT_EQ(DescriptionOfSetup(kStarter), kNoProduct);
}

TEST_F(AnalysisTest, ARejectedStarterComesBackWhereTheProductNameIsEmpty) {
  Lines("SETUP.LST", {u"[Setup]"});
  Program("SETUP.EXE", {{"FileDescription", kStarter}, {"ProductName", u""}});
  Scan();
  EXPECT_EQ(Only(0)[0], kStarter);
}

TEST_F(AnalysisTest, ARejectedStarterComesBackWhereTheTextsAreDecoration) {
  Lines("SETUP.LST", {u"[Setup]"});
  Lines("README.TXT", {Signs(60, u'*')});
  EXPECT_EQ(DescriptionOfSetup(kStarter), kStarter);
}

TEST_F(AnalysisTest, ARejectedLongDescriptionComesBackShortened) {
  Lines("SETUP.LST", {u"[Setup]"});
  Lines("README.TXT", {u""});
  const Text own = u"MS-Setup " + Signs(60, u'x');
  EXPECT_EQ(DescriptionOfSetup(own), own + u"...");
}

// --- SETUP.INI and INSTALL.INF ---

TEST_F(AnalysisTest, SetupIniIsReadWhereNothingElseNamesTheProgram) {
  Program("JEU.EXE", {{"ProductName", u""}});
  Lines("SETUP.INI", {u"[Startup]", u"AppName= Sonnette "});
  Scan();
  EXPECT_EQ(Description(), u"Sonnette");
}

TEST_F(AnalysisTest, BesideAFileIdTheAppNameIsNeverRead) {
  Lines("SETUP.INI", {u"[Startup]", u"AppName=Jamais lu"});
  Lines("FILE_ID.DIZ", {u"", u""});
  EXPECT_EQ(DescriptionOfJeu(), u"");
  EXPECT_EQ(platform_.opened[u"D:\\SETUP.INI"], 0);
  Lines("FILE_ID.DIZ", {u"Réveil"});
  EXPECT_EQ(DescriptionOfJeu(), u"Réveil");
  EXPECT_EQ(platform_.opened[u"D:\\SETUP.INI"], 0);
}

TEST_F(AnalysisTest, TheAppNameGoesBeforeTheReadmeOnlyInTheSecondPass) {
  Lines("SETUP.INI", {u"[Startup]", u"AppName=Sonnette"});
  Lines("README.TXT", {u"Lisez ceci"});
  EXPECT_EQ(DescriptionOfJeu(), u"Lisez ceci");
  Lines("README.TXT", {Signs(20, u'='), u""});
  EXPECT_EQ(DescriptionOfJeu(), u"Sonnette");
}

TEST_F(AnalysisTest, ASetupIniWithoutAppNameEndsTheSecondPass) {
  Program("JEU.EXE", {{"ProductName", u""}});
  Lines("SETUP.INI", {u"[Startup]", u"Autre=x"});
  Lines("INSTALL.TXT", {u"Jamais lu"});
  Scan();
  EXPECT_EQ(Description(), u"");
}

TEST_F(AnalysisTest, BesideSetupIniTheInstallInfIsNotRead) {
  Lines("SETUP.INI", {u"[Startup]", u"AppName=ini"});
  Lines("INSTALL.INF", {u"[INSTALL]", u"APPNAME=inf"});
  Program("JEU.EXE", {{"ProductName", u""}});
  Scan();
  EXPECT_EQ(Description(), u"ini");
}

TEST_F(AnalysisTest, InstallInfNamesAProgramWithoutDescription) {
  Lines("INSTALL.INF", {u"[INSTALL]", u"APPNAME=Calepin"});
  Lines("FILE_ID.DIZ", {u"diz"});
  EXPECT_EQ(DescriptionOfJeu(), u"Calepin");
}

TEST_F(AnalysisTest, AnInstallInfWithoutNameLeavesTheTextsTheirTurn) {
  Lines("INSTALL.INF", {u"[INSTALL]", u"AUTRE=x"});
  Lines("FILE_ID.DIZ", {u"diz"});
  EXPECT_EQ(DescriptionOfJeu(), u"diz");
}

// --- The text files ---

TEST_F(AnalysisTest, TheOrderOfTheTextFiles) {
  Lines("INSTALL.TXT", {u"quatre"});
  Program("JEU.EXE", {{"ProductName", u""}});
  Scan();
  EXPECT_EQ(Description(), u"quatre");
  Lines("readme.txt", {u"trois"});
  Scan();
  EXPECT_EQ(Description(), u"trois");
  Lines("LisezMoi.txt", {u"deux"});
  Scan();
  EXPECT_EQ(Description(), u"deux");
  Lines("FILE_ID.diz", {u"un"});
  Scan();
  EXPECT_EQ(Description(), u"un");
}

TEST_F(AnalysisTest, OneFileDecidesAndTheNextHasNoTurn) {
  Lines("FILE_ID.DIZ", {u"", u""});
  Lines("LISEZMOI.TXT", {u"Jamais lu"});
  Lines("README.TXT", {u"Jamais lu"});
  Lines("INSTALL.TXT", {u"Jamais lu"});
  EXPECT_EQ(DescriptionOfJeu(), u"");
}

TEST_F(AnalysisTest, ALineOfDashesGivesWayToTheSecondLine) {
  Lines("FILE_ID.DIZ", {Signs(40, u'-'), u"Couleuvre 1.2", Signs(40, u'-')});
  EXPECT_EQ(DescriptionOfJeu(), u"Couleuvre 1.2");
}

TEST_F(AnalysisTest, EverySignOfDecorationCounts) {
  for (const char16_t sign : {u'*', u'#', u'-', u'=', u'_'}) {
    Lines("README.TXT", {u"a " + Signs(10, sign), u"deux"});
    EXPECT_EQ(DescriptionOfJeu(), u"deux");
  }
  for (const char16_t sign : {u'+', u'~', u'.'}) {
    Lines("README.TXT", {Signs(10, sign), u"deux"});
    EXPECT_EQ(DescriptionOfJeu(), Signs(10, sign));
  }
}

TEST_F(AnalysisTest, NineSignsSurviveAndTenBlankTheWholeLine) {
  Lines("README.TXT", {Signs(9, u'*') + u" JEU " + Signs(9, u'*'), u"deux"});
  EXPECT_EQ(DescriptionOfJeu(), Signs(9, u'*') + u" JEU " + Signs(9, u'*'));
  Lines("README.TXT", {Signs(10, u'*') + u" JEU " + Signs(10, u'*'), u"deux"});
  EXPECT_EQ(DescriptionOfJeu(), u"deux");
}

TEST_F(AnalysisTest, DecorationBehindTheCutIsNotSeen) {
  Lines("README.TXT", {Signs(90, u'a') + Signs(10, u'-'), u"deux"});
  EXPECT_EQ(DescriptionOfJeu(), Signs(90, u'a') + Signs(5, u'-'));
}

TEST_F(AnalysisTest, ADecoratedSecondLineIsBlankedAtTheEnd) {
  Lines("SOUS/README.TXT", {u"", Signs(20, u'=')});
  Program("SOUS/JEU.EXE", {{"FileVersion", u"1.0"}});
  Scan();
  EXPECT_THAT(Only(1), ElementsAre(u"", u" D:\\Sous", u" Jeu.exe", u"1.0"));
}

TEST_F(AnalysisTest, TabsBecomeBlanksAndTheLineIsTrimmed) {
  Lines("FILE_ID.DIZ", {u"\t  Gribouillard\tvectoriel \t"});
  EXPECT_EQ(DescriptionOfJeu(), u"Gribouillard vectoriel");
}

TEST_F(AnalysisTest, TheCutIsMadeBeforeTheLineIsTrimmed) {
  Lines("FILE_ID.DIZ", {Signs(10, u'\t') + Signs(100, u'a')});
  EXPECT_EQ(DescriptionOfJeu(), Signs(85, u'a'));
}

TEST_F(AnalysisTest, ABlankFirstLineGivesWayToTheSecond) {
  Lines("FILE_ID.DIZ", {u" \t ", u"deux"});
  EXPECT_EQ(DescriptionOfJeu(), u"deux");
}

TEST_F(AnalysisTest, TheFirstLineOfALisezmoiIsNotCut) {
  Lines("LISEZMOI.TXT", {Signs(200, u'a')});
  EXPECT_EQ(DescriptionOfJeu(), Signs(200, u'a'));
}

TEST_F(AnalysisTest, ALisezmoiOf40000CharactersStandsWhole) {
  Lines("LISEZMOI.TXT", {Signs(40000, u'a')});
  EXPECT_EQ(DescriptionOfJeu(), Signs(40000, u'a'));
}

// A tab behind position 32767 cannot be told; the text is given up, and the next line has its turn.
TEST_F(AnalysisTest, ATabFarBehindInALisezmoiIsAnOverflow) {
  Lines("LISEZMOI.TXT", {Signs(32767, u'a') + u"\tb", u"deux"});
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(DescriptionOfJeu(), u"deux");
  EXPECT_TRUE(LastBox().starts_with(u"Erreur de traitement sur :\r\nsChangeCaractere("));
  EXPECT_NE(LastBox().find(u"Error #6 by LIB_STRING"), Text::npos);
}

TEST_F(AnalysisTest, TheFirstLineOfAReadmeAndAFileIdIsCutAt95) {
  Lines("README.TXT", {Signs(200, u'a')});
  EXPECT_EQ(DescriptionOfJeu(), Signs(95, u'a'));
  Lines("FILE_ID.DIZ", {Signs(200, u'b')});
  EXPECT_EQ(DescriptionOfJeu(), Signs(95, u'b'));
}

TEST_F(AnalysisTest, SecondLinesOfTheFirstPassAreCutAt95) {
  for (const char* name : {"README.TXT", "LISEZMOI.TXT", "FILE_ID.DIZ"}) {
    Lines(name, {Signs(12, u'#'), Signs(200, u'b')});
    EXPECT_EQ(DescriptionOfJeu(), Signs(95, u'b')) << name;
  }
}

TEST_F(AnalysisTest, InTheSecondPassTheLisezmoiIsCutToo) {
  Lines("LISEZMOI.TXT", {Signs(200, u'a')});
  Program("JEU.EXE", {{"FileDescription", u"InstallShield"}});
  Scan();
  EXPECT_EQ(Description(), Signs(95, u'a'));
}

TEST_F(AnalysisTest, InTheSecondPassTheSecondLineOfAFileIdIsNotCut) {
  Lines("FILE_ID.DIZ", {Signs(12, u'#'), Signs(200, u'b')});
  Program("JEU.EXE", {{"FileDescription", u"InstallShield"}});
  Scan();
  EXPECT_EQ(Description(), Signs(200, u'b'));
}

TEST_F(AnalysisTest, InTheSecondPassOtherSecondLinesAreCut) {
  Program("JEU.EXE", {{"FileDescription", u"InstallShield"}});
  for (const char* name : {"INSTALL.TXT", "README.TXT", "LISEZMOI.TXT"}) {
    Lines(name, {Signs(12, u'#'), Signs(200, u'b')});
    Scan();
    EXPECT_EQ(Description(), Signs(95, u'b')) << name;
  }
}

TEST_F(AnalysisTest, ADirectoryNamedAsATextFileIsNoFile) {
  disc.File("JEU.EXE", DosExecutable());
  Lines("README.TXT", {u"lu"});
  disc.Directory("LISEZMOI.TXT");
  Scan();
  EXPECT_EQ(Description(), u"lu");
}

// --- The product name of the first file ---

TEST_F(AnalysisTest, WithoutTextsTheProductNameOfTheFirstListedFileIsTaken) {
  Program("AVANT.EXE", {{"FileDescription", u"Avant"}, {"ProductName", u"Premier produit"}});
  Program("JEU.EXE", {{"ProductName", u"Un autre"}});
  Dos("ZOE.EXE");
  Scan();
  EXPECT_EQ(Rows(1)[0][0], u"Avant");
  EXPECT_EQ(Rows(1)[1][0], u"Premier produit");
  EXPECT_EQ(Rows(1)[2][0], u"Premier produit");
}

TEST_F(AnalysisTest, TheFirstListedFileMayBeAnArchiveOrATool) {
  disc.File("A.ZIP", NeExecutable(VersionBlock8({{"ProductName", "Archive auto"}})));
  Dos("B.EXE");
  Program("T/EXPAND.EXE", {{"ProductName", u"Outil"}});
  Dos("T/JEU.EXE");
  Scan();
  EXPECT_EQ(Rows(1)[0][0], u"Archive auto");
  EXPECT_EQ(Rows(1)[1][0], u"Outil");
}

TEST_F(AnalysisTest, WhereTheFirstFileHasNoRecordAllProgramsSaySo) {
  Dos("A.EXE");
  Program("B.EXE", {{"ProductName", u"Pas le premier"}});
  Dos("C.EXE");
  Scan();
  for (const Row& row : Rows(1)) EXPECT_EQ(row[0], kNoProduct);
}

TEST_F(AnalysisTest, TheProductNameOfTheFirstFileEndsAtItsNul) {
  Program("A.EXE", {{"ProductName", u"Produit"}, {"ProductVersion", u"1.0"}});
  Scan();
  EXPECT_EQ(Description(), u"Produit");
}

TEST_F(AnalysisTest, AProductNamedInstallshieldGoesToTheSecondPass) {
  Program("A.EXE", {{"ProductName", u"  InstallShield "}});
  Lines("SETUP.INI", {u"[Startup]", u"AppName=Fiches"});
  Scan();
  EXPECT_EQ(Description(), u"Fiches");
}

TEST_F(AnalysisTest, TheProductNameIsNotCheckedUntilTheEnd) {
  Program("A.EXE", {{"ProductName", u"Produit " + Signs(10, u'-')}});
  Lines("INSTALL.TXT", {u"Jamais lu"});
  Scan();
  EXPECT_EQ(Description(), u"");
}

// --- InstallShield ---

TEST_F(AnalysisTest, InstallshieldAloneGoesToTheSecondPass) {
  Lines("SETUP.INI", {u"[Startup]", u"AppName=Fichadoc 95"});
  EXPECT_EQ(DescriptionOfSetup(u"InstallShield"), u"Fichadoc 95");
  EXPECT_EQ(DescriptionOfSetup(u"  INSTALLshield "), u"Fichadoc 95");
  EXPECT_EQ(DescriptionOfSetup(u"InstallShield 3"), u"InstallShield 3");
}

TEST_F(AnalysisTest, InstallshieldStaysWhereTheSecondPassFindsNothing) {
  EXPECT_EQ(DescriptionOfSetup(u"InstallShield"), u"InstallShield");
  Lines("FILE_ID.DIZ", {});
  EXPECT_EQ(DescriptionOfSetup(u"InstallShield"), u"InstallShield");
}

// --- Cleaning ---

TEST_F(AnalysisTest, AZeroAsDescriptionGivesWayToTheFilesOwn) {
  Program("JEU.EXE", {{"FileDescription", u"MS-Setup"}});
  Lines("SETUP.LST", {u"[Setup]", u"Title= 0"});
  Scan();
  EXPECT_EQ(Description(), u"MS-Setup");
}

TEST_F(AnalysisTest, ADecoratedDescriptionOfItsOwnComesBackAtTheEnd) {
  Program("JEU.EXE", {{"FileDescription", u"== " + Signs(10, u'=')}});
  Scan();
  EXPECT_EQ(Description(), u"== " + Signs(10, u'='));
}

// --- Archives ---

class ArchiveTest : public ScanTest {
 protected:
  Text SizeCell(std::size_t size) {
    disc.File("A.ZIP", std::string(size, 'x'));
    Scan();
    return Only(2)[0];
  }
};

TEST_F(ArchiveTest, ShowsItsSizeAndDate) {
  disc.File("MON JEU.ZIP", ZipArchive(123456), {1998, 4, 1, 10, 30, 0});
  Scan();
  EXPECT_THAT(Only(2), ElementsAre(u" 123", u" D:\\", u" Mon Jeu.zip", u"01/04/1998"));
}

TEST_F(ArchiveTest, SmallArchivesShowTheirBytesAndThoseOf100To999ABlank) {
  EXPECT_EQ(SizeCell(0), u"   octets");
  EXPECT_EQ(SizeCell(5), u"  5 octets");
  EXPECT_EQ(SizeCell(55), u"  55 octets");
  EXPECT_EQ(SizeCell(99), u"  99 octets");
  EXPECT_EQ(SizeCell(100), u" ");
  EXPECT_EQ(SizeCell(999), u" ");
  EXPECT_EQ(SizeCell(1000), u" 1");
  EXPECT_EQ(SizeCell(1999), u" 1");
  EXPECT_EQ(SizeCell(1234567), u"1 234");
}

TEST_F(ArchiveTest, TextsNeverShowButAreReadAllTheSame) {
  Lines("FILE_ID.DIZ", {u"Description"});
  EXPECT_EQ(SizeCell(5000), u" 5");
  EXPECT_EQ(platform_.opened[u"D:\\FILE_ID.DIZ"], 1);
}

TEST_F(ArchiveTest, OneWithADescriptionOfItsOwnLeavesTextsUnread) {
  Lines("FILE_ID.DIZ", {u"Description"});
  disc.File("A.ZIP", NeExecutable(VersionBlock8({{"FileDescription", "Mon Jeu"}})));
  Scan();
  EXPECT_EQ(platform_.opened[u"D:\\FILE_ID.DIZ"], 0);
  EXPECT_EQ(platform_.records[u"D:\\A.ZIP"], 1);
}

TEST_F(ArchiveTest, HasNoProductName) {
  disc.File("A.ZIP", ZipArchive(5000));
  Scan();
  EXPECT_EQ(platform_.records[u"D:\\A.ZIP"], 0);
  EXPECT_THAT(Only(2), ElementsAre(u" 5", u" D:\\", u" A.zip", u"01/03/1997"));
}

TEST_F(ArchiveTest, OneWithADateTakesNoVersionFromLogicielTxt) {
  Lines("LOGICIEL.TXT", {u"Titre", u"Version : 1.2"});
  disc.File("A.ZIP", ZipArchive(5000));
  Scan();
  EXPECT_EQ(Only(2)[3], u"01/03/1997");
}

// --- The version ---

TEST_F(AnalysisTest, AVersionTextGoesBeforeLogicielTxt) {
  Program("JEU.EXE", {{"FileVersion", u"2.0"}});
  Lines("LOGICIEL.TXT", {u"Titre", u"Version : 1.2"});
  Scan();
  EXPECT_EQ(Version(), u"2.0");
}

TEST_F(AnalysisTest, WithoutVersionTheSecondLineOfLogicielTxtIsTaken) {
  Dos("JEU.EXE");
  const auto version = [&](const Text& line) {
    Lines("LOGICIEL.TXT", {u"Titre : Jeu", line});
    Scan();
    return Version();
  };
  EXPECT_EQ(version(u"Version : 1.2"), u"1.2");
  EXPECT_EQ(version(u"Version :1.2"), u"1.2");
  EXPECT_EQ(version(u"Version : 1.2 du 3 mai"), u"1.2 du 3 mai");
  EXPECT_EQ(version(u"2.0 du 3 mai"), u"du 3 mai")
      << "no colon: behind the first blank of the line";
  EXPECT_EQ(version(u"a : b : c"), u"b : c");
  EXPECT_EQ(version(u"3.14"), u"3.14");
  EXPECT_EQ(version(u""), u"");
}

TEST_F(AnalysisTest, AVersionThatReadsZeroIsReplaced) {
  Program("JEU.EXE", {{"FileVersion", u" 0 "}});
  Lines("LOGICIEL.TXT", {u"Titre", u"Version : 3.14"});
  Scan();
  EXPECT_EQ(Version(), u"3.14");
}

TEST_F(AnalysisTest, WithoutLogicielTxtAMissingVersionLeavesAnEmptyCell) {
  Dos("JEU.EXE");
  Scan();
  EXPECT_EQ(Version(), u"");
  Program("JEU.EXE", {{"FileVersion", u"0"}});
  Scan();
  EXPECT_EQ(Version(), u"0");
}

TEST_F(AnalysisTest, ALogicielTxtOfOneLineGivesAnEmptyVersion) {
  Program("JEU.EXE", {{"FileVersion", u"0"}});
  Lines("LOGICIEL.TXT", {u"Version : 1.2"});
  Scan();
  EXPECT_EQ(Version(), u"");
}

// --- Failures ---

// A disc whose README.TXT bears the hidden attribute, which not every system can store.
class HiddenReadMePlatform : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;
  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    const FindHandle handle = ForwardingPlatform::FindFirstFile(pattern, data);
    Hide(data);
    return handle;
  }
  bool FindNextFile(FindHandle handle, FindData& data) override {
    const bool found = ForwardingPlatform::FindNextFile(handle, data);
    Hide(data);
    return found;
  }

 private:
  static void Hide(FindData& data) {
    if (EqualsNoCase(data.name, u"README.TXT")) data.attributes |= kAttributeHidden;
  }
};

TEST_F(AnalysisTest, AHiddenReadMeIsPassedOver) {
  Lines("README.TXT", {u"caché"});
  Lines("INSTALL.TXT", {u"visible"});
  Program("JEU.EXE", {{"ProductName", u""}});
  HiddenReadMePlatform hiding(platform_);
  PlatformScope scope(hiding);
  ExplorerRepertoire(u"D:\\", true);
  EXPECT_EQ(Rows(1)[0][0], u"visible");
}

// One text file that cannot be opened, though it is there.
class LockedPlatform : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;
  FileHandle OpenRead(const Text& name) override {
    if (ToUpper(name).ends_with(u"README.TXT")) throw RuntimeError(ErrorNumber::kPermissionDenied);
    return ForwardingPlatform::OpenRead(name);
  }
};

TEST_F(AnalysisTest, ATextThatCannotBeOpenedIsReportedAndTheScanGoesOn) {
  Dos("A.EXE");
  Lines("README.TXT", {u"fermé"});
  Lines("LOGICIEL.TXT", {u"Titre", u"Version : 1.2"});
  Dos("SOUS/B.EXE");
  LockedPlatform locked(platform_);
  PlatformScope scope(locked);
  // Both lines in each of the two passes.
  for (int i = 0; i < 4; ++i) view.Answer(BoxAnswer::kOk);
  ExplorerRepertoire(u"D:\\", true);
  EXPECT_EQ(Rows(1)[0][0], u"");
  EXPECT_EQ(Rows(1)[0][3], u"1.2");
  EXPECT_EQ(Rows(1)[1][0], kNoProduct);
  EXPECT_TRUE(LastBox().starts_with(u"Ouverture impossibleD:\\readme.txt"));
}

// --- How often the disk is asked ---

TEST_F(AnalysisTest, EachTextFileIsOpenedOnceAndEachExecutableReadOnce) {
  for (int i = 10; i < 40; ++i) Dos("JEU" + std::to_string(i) + ".EXE");
  Lines("README.TXT", {Signs(20, u'-'), u""});
  Lines("LOGICIEL.TXT", {u"Titre", u"Version : 1.2"});
  Scan();
  EXPECT_EQ(Rows(1).size(), 30u);
  EXPECT_THAT(platform_.opened, ElementsAre(testing::Pair(u"D:\\LOGICIEL.TXT", 1),
                                            testing::Pair(u"D:\\README.TXT", 1)));
  EXPECT_EQ(platform_.records.size(), 30u);
  EXPECT_EQ(Most(platform_.records), 1);
}

TEST_F(AnalysisTest, TheFirstFileIsReadOnceThoughEachOtherAsksForItsProduct) {
  for (int i = 10; i < 40; ++i) Dos("JEU" + std::to_string(i) + ".EXE");
  Program("AVANT.EXE", {{"ProductName", u"Produit"}});
  Scan();
  EXPECT_EQ(Rows(1)[30][0], u"Produit");
  EXPECT_EQ(Most(platform_.records), 1);
}

TEST_F(AnalysisTest, AToolThatIsListedFirstIsReadOnceToo) {
  for (int i = 10; i < 40; ++i) Dos("JEU" + std::to_string(i) + ".EXE");
  Program("EXPAND.EXE", {{"ProductName", u"Produit"}});
  Scan();
  EXPECT_EQ(Rows(1)[29][0], u"Produit");
  EXPECT_EQ(Most(platform_.records), 1);
}

TEST_F(AnalysisTest, AnIniFileIsReadOnceForAllItsKeys) {
  for (int i = 10; i < 40; ++i) Dos("JEU" + std::to_string(i) + ".EXE");
  Lines("SETUP.LST", {u"[Setup]", u"[Windows 95 Params]", u"WndTitle=Jeux"});
  Scan();
  EXPECT_EQ(Rows(1)[29][0], u"Jeux");
  EXPECT_EQ(platform_.opened[u"D:\\SETUP.LST"], 1);
}

TEST_F(AnalysisTest, AReadmeOf100MegabytesWithoutLineEndCostsLittle) {
  for (int i = 10; i < 20; ++i) Dos("JEU" + std::to_string(i) + ".EXE");
  disc.File("README.TXT", "Un jeu");
  std::filesystem::resize_file(disc.HostPath("README.TXT"), 100'000'000);
  Scan();
  EXPECT_EQ(Rows(1)[9][0], u"Un jeu");
  EXPECT_LE(platform_.bytes, 65536u);
}

}  // namespace
}  // namespace trovex::test
