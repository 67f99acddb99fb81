#include "support/MachineTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ShellTest : public MachineTest {
 protected:
  ShellTest() {
    disc.File("JEU/X.EXE");
    disc.File("MON JEU/X.EXE");
  }
  std::vector<Text> Commands() const {
    std::vector<Text> commands;
    for (const FakeShell::Started& start : machine.started) commands.push_back(start.command);
    return commands;
  }
};

TEST_F(ShellTest, AProgramStartsInItsDirectoryAndTheFormerOneComesBack) {
  EXPECT_EQ(iExecuteShellWin(u"D:\\JEU\\X.EXE", 3), -1);
  EXPECT_THAT(machine.started, ElementsAre(FakeShell::Started{u"D:\\JEU\\X.EXE", 3, u"D:\\JEU"}));
  EXPECT_EQ(machine.GetCurrentDirectory(), u"D:\\");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(ShellTest, AMissingModeIsANormalWindow) {
  iExecuteShellWin(u"D:\\JEU\\X.EXE");
  ASSERT_EQ(machine.started.size(), 1u);
  EXPECT_EQ(machine.started[0].mode, 1);
}

TEST_F(ShellTest, AnotherDriveIsLeftAgain) {
  machine.ChangeDrive(u"C:");
  machine.moves.clear();
  iExecuteShellWin(u"D:\\JEU\\X.EXE");
  EXPECT_EQ(machine.started[0].directory, u"D:\\JEU");
  EXPECT_THAT(machine.moves,
              ElementsAre(u"drive D:", u"directory D:\\JEU", u"drive C:", u"directory C:\\"));
  EXPECT_EQ(machine.GetCurrentDirectory(), u"C:\\");
}

TEST_F(ShellTest, AProgramInTheRootStartsOnItsDrive) {
  disc.File("X.EXE");
  machine.ChangeDrive(u"C:");
  iExecuteShellWin(u"D:\\X.EXE");
  ASSERT_EQ(machine.started.size(), 1u);
  EXPECT_EQ(machine.started[0].directory, u"D:\\");
  EXPECT_EQ(machine.GetCurrentDirectory(), u"C:\\");
}

TEST_F(ShellTest, TheDirectoryIsThatOfTheWholeCommand) {
  iExecuteShellWin(u"D:\\JEU\\X.EXE D:\\MON JEU\\A.TXT");
  EXPECT_EQ(machine.started[0].directory, u"D:\\") << "there is no such directory";
}

TEST_F(ShellTest, ABadDirectoryIsPassedOverInSilence) {
  EXPECT_EQ(iExecuteShellWin(u"D:\\ABSENT\\X.EXE"), -1);
  EXPECT_THAT(Commands(), ElementsAre(u"D:\\ABSENT\\X.EXE"));
}

TEST_F(ShellTest, ARefusedStartGoesUnreported) {
  machine.refuses_start = true;
  EXPECT_EQ(iExecuteShellWin(u"D:\\JEU\\X.EXE"), -1);
  EXPECT_EQ(BoxCount(), 0u);
  EXPECT_EQ(machine.GetCurrentDirectory(), u"D:\\");
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(ShellTest, AnEmptyCommandShowsTheBox) {
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(iExecuteShellWin(u""), 0);
  EXPECT_EQ(LastBox(), u"Aucun nom d'exécutable n'est passé à la fonction : iExecuteShellWin()");
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kErreur);
  EXPECT_THAT(machine.started, IsEmpty());
}

TEST_F(ShellTest, ChangeRepertoireChangesDriveOnlyWhereItDiffers) {
  ChangeRepertoire(u"D:\\JEU");
  EXPECT_THAT(machine.moves, ElementsAre(u"directory D:\\JEU"));
  machine.ChangeDrive(u"C:");
  machine.moves.clear();
  ChangeRepertoire(u"D:\\MON JEU");
  EXPECT_THAT(machine.moves, ElementsAre(u"drive D:", u"directory D:\\MON JEU"));
}

TEST_F(ShellTest, ChangeRepertoireLeavesABadDirectoryAlone) {
  ChangeRepertoire(u"D:\\ABSENT");
  ChangeRepertoire(u"");
  EXPECT_THAT(machine.moves, IsEmpty());
}

TEST_F(ShellTest, TheAssociatedProgramIsCutAtItsFirstQuoteAndTrimmed) {
  machine.programs[u"TXT"] = u"  C:\\BLOC.EXE /P \"%1\"";
  EXPECT_EQ(sTrouveExecutable(u"A.TXT", u"D:\\"), u"C:\\BLOC.EXE /P");
}

TEST_F(ShellTest, NoAssociatedProgramGivesAnEmptyText) {
  EXPECT_EQ(sTrouveExecutable(u"A.XYZ", u"D:\\"), u"");
}

TEST_F(ShellTest, AProgramLongerThanTheBufferIsCut) {
  machine.programs[u"TXT"] = Text(300, u'x');
  EXPECT_EQ(sTrouveExecutable(u"A.TXT", u"D:\\"), Text(256, u'x'));
}

TEST_F(ShellTest, AnAssociatedProgramTakesTheFileInQuotes) {
  disc.File("PROG/VIEW.EXE");
  machine.programs[u"TXT"] = u"D:\\PROG\\VIEW.EXE";
  EXPECT_EQ(iLanceParAssociation(u"D:\\JEU\\A.TXT", true), -1);
  EXPECT_THAT(Commands(), ElementsAre(u"D:\\PROG\\VIEW.EXE \"D:\\JEU\\A.TXT\""));
}

TEST_F(ShellTest, ASwitchBehindAnExistingProgramIsDropped) {
  disc.File("PROG/VIEW.EXE");
  machine.programs[u"TXT"] = u"D:\\PROG\\VIEW.EXE /S";
  iLanceParAssociation(u"D:\\JEU\\A.TXT", true);
  EXPECT_THAT(Commands(), ElementsAre(u"D:\\PROG\\VIEW.EXE \"D:\\JEU\\A.TXT\""));
}

TEST_F(ShellTest, AProgramPathWithABlankIsUsedWhole) {
  disc.File("MON PROG/VIEW.EXE");
  machine.programs[u"TXT"] = u"D:\\MON PROG\\VIEW.EXE";
  iLanceParAssociation(u"D:\\JEU\\A.TXT", true);
  EXPECT_THAT(Commands(), ElementsAre(u"D:\\MON PROG\\VIEW.EXE \"D:\\JEU\\A.TXT\""));
}

TEST_F(ShellTest, AProgramIsItsOwnAssociationAndRunsDirectly) {
  EXPECT_EQ(iLanceParAssociation(u"D:\\JEU\\x.exe", true), -1);
  EXPECT_THAT(Commands(), ElementsAre(u"D:\\JEU\\x.exe"));
}

TEST_F(ShellTest, NoAssociationShowsTheBoxOnlyIfWanted) {
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(iLanceParAssociation(u"D:\\A.XYZ", true), 0);
  EXPECT_EQ(LastBox(),
            u"Ouverture impossibleD:\\A.XYZ\r\n\r\nL'extension du fichier ne possède pas "
            u"d'association vers un exécutable.");
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kInfo);
  EXPECT_EQ(iLanceParAssociation(u"D:\\A.XYZ", false), 0);
  EXPECT_EQ(BoxCount(), 1u);
}

TEST_F(ShellTest, ADocumentGoesToTheSystem) {
  EXPECT_EQ(iShellOuvrir(u"D:\\A.HTM"), -1);
  EXPECT_THAT(machine.shelled,
              ElementsAre(FakeShell::Shelled{u"Open", u"D:\\A.HTM", u" ", u"C:\\", 1}));
  machine.shell_result = 33;
  EXPECT_EQ(iShellOuvrir(u"D:\\A.HTM"), -1);
}

struct Refusal {
  int code;
  TextView text;
};

void PrintTo(const Refusal& refusal, std::ostream* out) {
  *out << refusal.code;
}

class ShellRefusal : public ShellTest, public testing::WithParamInterface<Refusal> {};

TEST_P(ShellRefusal, HasItsText) {
  machine.shell_result = GetParam().code;
  view.Answer(BoxAnswer::kOk);
  EXPECT_EQ(iShellOuvrir(u"D:\\A.HTM"), 0);
  EXPECT_EQ(LastBox(), u"Lancement document : D:\\A.HTM\r\n" + Text(GetParam().text));
  EXPECT_EQ(view.Boxes().back().style, BoxStyle::kErreur);
}

INSTANTIATE_TEST_SUITE_P(
    EveryCode, ShellRefusal,
    testing::Values(Refusal{2, u"Fichier introuvable"}, Refusal{3, u"Path introuvable"},
                    Refusal{5, u"Accès refusé"}, Refusal{8, u"Mémoire insuffisante"},
                    Refusal{11, u"Fichier EXE invalide"}, Refusal{26, u"Violation de partage"},
                    Refusal{27, u"Association de fichier incomplète ou invalide"},
                    Refusal{28, u"Liaison DDE : Temps dépassé"},
                    Refusal{29, u"Transaction DDE impossible"}, Refusal{30, u"Liaison DDE occupée"},
                    Refusal{31, u"Pas d'association pour cette extension de fichier"},
                    Refusal{32, u"DLL introuvable"}, Refusal{0, u"Erreur inconnue"},
                    Refusal{10, u"Erreur inconnue"}));

TEST_F(ShellTest, ADocumentOpensByTheProgramGivenOrElseByTheSystem) {
  OuvrirDocument(u"D:\\A.HTM", u"C:\\NAV.EXE");
  EXPECT_THAT(Commands(), ElementsAre(u"C:\\NAV.EXE D:\\A.HTM"));
  EXPECT_THAT(machine.shelled, IsEmpty());
  OuvrirDocument(u"D:\\A.HTM");
  EXPECT_EQ(machine.shelled.size(), 1u);
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(ShellTest, WithoutADocumentNothingOpens) {
  OuvrirDocument(u"");
  OuvrirDocument(u"", u"C:\\NAV.EXE");
  EXPECT_THAT(machine.started, IsEmpty());
  EXPECT_THAT(machine.shelled, IsEmpty());
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

}  // namespace
}  // namespace trovex::test
