#include "Screen/LIB_GENERALE.h"

#include "Lib/LIB_STRING.h"
#include "Lib/Lib_SelectDlg.h"
#include "Platform/PartScope.h"
#include "support/MachineTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

class StartStopTest : public MachineTest {
 protected:
  StartStopTest() {
    disc.Directory("PROG");
    disc.Directory("TMP");
    machine.environment[u"TMP"] = u"D:\\TMP";
    RestStart();
  }
  ~StartStopTest() override { RestStart(); }

 private:
  static void RestStart() {
    sFichierTemp.clear();
    sFichierIni.clear();
    SetEndOfProgram({});
  }
};

TEST_F(StartStopTest, TheStartPreparesTheGlobals) {
  machine.random = {0.5};
  sSautLigneTirets.clear();
  InitApplication();
  EXPECT_EQ(sFichierIni, u"D:\\PROG\\Trovex.ini");
  EXPECT_EQ(sRepertoireTemp, u"D:\\TMP");
  EXPECT_EQ(sFichierTemp, u"D:\\TMP\\~Trvx031.tmp");
  EXPECT_EQ(sSautLigneTirets.size(), 78u);
  EXPECT_EQ(sFichierDAide, u"TROVEX.HLP");
  EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
}

TEST_F(StartStopTest, TheStartLoadsTheToolForm) {
  InitApplication();
  ASSERT_EQ(LoadedForms().size(), 1u);
  EXPECT_EQ(LoadedForms()[0]->Name(), u"Lib_Form");
  EXPECT_FALSE(LoadedForms()[0]->Visible());
}

TEST_F(StartStopTest, TheStartEntersTheProgramsDirectoryAndDrive) {
  machine.ChangeDrive(u"C:");
  machine.moves.clear();
  InitApplication();
  EXPECT_THAT(machine.moves, ElementsAre(u"directory D:\\PROG", u"drive D:\\PROG"));
  EXPECT_EQ(machine.GetCurrentDirectory(), u"D:\\PROG");
}

TEST_F(StartStopTest, AStartFromANetworkPathChangesTheDirectoryButNotTheDrive) {
  machine.program_directory = u"\\\\SERVEUR\\TROVEX";
  InitApplication();
  EXPECT_THAT(machine.moves, ElementsAre(u"directory \\\\SERVEUR\\TROVEX"));
}

TEST_F(StartStopTest, ATemporaryNameThatIsSetStays) {
  sFichierTemp = u"D:\\TMP\\A MOI.TMP";
  InitApplication();
  EXPECT_EQ(sFichierTemp, u"D:\\TMP\\A MOI.TMP");
}

TEST_F(StartStopTest, ASecondTemporaryNameStandsInTheProgramsDirectory) {
  disc.File("TMP/PRIS.TMP");
  for (const auto& [drawn, name] : std::vector<std::pair<double, Text>>{
           {0.0, u"~Trvx23.tmp"}, {0.5, u"~Trvx46.tmp"}, {0.9999, u"~Trvx69.tmp"}}) {
    sFichierTemp = u"D:\\TMP\\PRIS.TMP";
    machine.random = {drawn};
    InitApplication();
    EXPECT_EQ(sFichierTemp, u"D:\\PROG\\" + name);
  }
}

TEST_F(StartStopTest, ASecondTemporaryNameIsTestedNoFurther) {
  disc.File("TMP/PRIS.TMP");
  disc.File("PROG/~Trvx23.tmp");
  sFichierTemp = u"D:\\TMP\\PRIS.TMP";
  InitApplication();
  EXPECT_EQ(sFichierTemp, u"D:\\PROG\\~Trvx23.tmp");
}

TEST_F(StartStopTest, TheHelpFileBesideTheProgramIsFound) {
  disc.File("PROG/TROVEX.HLP", "?");
  InitApplication();
  EXPECT_EQ(sFichierDAide, u"D:\\PROG\\TROVEX.HLP");
}

TEST_F(StartStopTest, WithNoHelpFileOnlyTheHelpComplains) {
  InitApplication();
  EXPECT_EQ(sFichierDAide, u"TROVEX.HLP");
  EXPECT_EQ(BoxCount(), 0u);
  view.Answer(BoxAnswer::kOk);
  AfficheAide(u"");
  EXPECT_EQ(LastBox(), u"Affichage de l'aide impossible, le fichier d'aide : TROVEX.HLP");
}

TEST_F(StartStopTest, TheEntryShowsTheMainWindowWithoutWaiting) {
  Lib_SelectDlg window;
  window.on_load = [&] {
    EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
    EXPECT_NE(sFichierTemp, u"") << "loaded before the start was over";
  };
  Main(window);
  EXPECT_TRUE(window.Visible());
}

TEST_F(StartStopTest, TheStopDeletesTheTemporaryFileAndEveryForm) {
  disc.File("TMP/~Trvx023.tmp");
  sFichierTemp = u"D:\\TMP\\~Trvx023.tmp";
  Lib_SelectDlg window, other;
  window.Load();
  window.SetCaption(u"Fenêtre");
  other.Load();
  Lib_Form();
  disc.File("A.TXT", "a");
  OpenInput(FreeFile(), u"D:\\A.TXT");
  int ends = 0;
  SetEndOfProgram([&] { ++ends; });
  FermerApplication(window, true);
  EXPECT_FALSE(bFichierExiste(u"D:\\TMP\\~Trvx023.tmp"));
  EXPECT_TRUE(LoadedForms().empty());
  EXPECT_EQ(FreeFile(), 1) << "files stay open";
  EXPECT_EQ(ends, 1);
}

TEST_F(StartStopTest, TheStopWithoutEndLeavesTheProcess) {
  Lib_SelectDlg window;
  window.Load();
  int ends = 0;
  SetEndOfProgram([&] { ++ends; });
  FermerApplication(window, false);
  EXPECT_FALSE(window.Loaded());
  EXPECT_EQ(ends, 0);
}

TEST_F(StartStopTest, FormsGoInTheOrderOfTheirLoadingAndThoseOfTheSameCaptionStay) {
  Lib_SelectDlg first, window, namesake;
  std::vector<Text> gone;
  first.Load();
  window.Load();
  namesake.Load();
  first.SetCaption(u"Première");
  window.SetCaption(u"Fenêtre");
  namesake.SetCaption(u"Fenêtre");
  LibForm& tools = Lib_Form();
  first.on_unload = [&] { gone.push_back(u"première"); };
  tools.on_unload = [&] { gone.push_back(u"outils"); };
  window.on_unload = [&] { gone.push_back(u"fenêtre"); };
  FermerApplication(window, false);
  EXPECT_THAT(gone, ElementsAre(u"première", u"outils", u"fenêtre"));
  EXPECT_TRUE(namesake.Loaded());
}

TEST_F(StartStopTest, AFormThatFailsWhileGoingDoesNotHoldTheStop) {
  Lib_SelectDlg window, other;
  window.Load();
  window.SetCaption(u"Fenêtre");
  other.Load();
  other.on_unload = [] { throw RuntimeError(ErrorNumber::kInvalidCall); };
  FermerApplication(window, false);
  EXPECT_FALSE(window.Loaded());
  other.on_unload = {};
}

class UndeletablePlatform : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;
  void DeleteFile(const Text&) override { throw RuntimeError(ErrorNumber::kPathFileAccess); }
};

TEST_F(StartStopTest, ATemporaryFileThatCannotBeDeletedStaysWithoutAMessage) {
  UndeletablePlatform undeletable(machine);
  PartScope scope(undeletable);
  disc.File("TMP/~Trvx023.tmp");
  sFichierTemp = u"D:\\TMP\\~Trvx023.tmp";
  EffacerFichierTemp();
  EXPECT_TRUE(bFichierExiste(u"D:\\TMP\\~Trvx023.tmp"));
  EXPECT_EQ(BoxCount(), 0u);
}

TEST_F(StartStopTest, WithoutATemporaryNameNothingIsDeleted) {
  EffacerFichierTemp();
  EXPECT_EQ(BoxCount(), 0u);
}

}  // namespace
}  // namespace trovex::test
