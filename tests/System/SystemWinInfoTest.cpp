#include "System/Lib_SystemWinInfo.h"
#include "SystemTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SystemWinInfoTest : public SystemTest {
 protected:
  ~SystemWinInfoTest() override { form.Unload(); }

  // The value beside a caption, once the window is loaded.
  Text Value(int index) {
    form.Load();
    return form.LabelInfo(index).Caption();
  }
  Text Processor(std::uint32_t type) {
    system.processor = type;
    return Value(4);
  }
  std::vector<Text> Processes() const {
    std::vector<Text> names;
    for (int i = 0; i < form.ListProcess.ListCount(); ++i) {
      names.push_back(form.ListProcess.List(i));
    }
    return names;
  }

  Lib_SystemWinInfo form;
};

// --- Loading ------------------------------------------------------------------------------------

TEST_F(SystemWinInfoTest, LoadingCentresTheWindowUnderAnHourglass) {
  form.Load();
  EXPECT_EQ(view.GetPointer(), Pointer::kHourglass);
  EXPECT_EQ(form.Left(), view.ScreenSize().width / 2 - form.Width() / 2);
  EXPECT_EQ(form.Top(), view.ScreenSize().height / 2 - form.Height() / 2);
}

TEST_F(SystemWinInfoTest, ActivationTakesTheHourglassAway) {
  form.Show();
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
}

TEST_F(SystemWinInfoTest, LoadingOverwritesTheCaptionsOfTheForm) {
  form.SetCaption(u"autre");
  form.AfficheProcess.SetCaption(u"autre");
  form.Load();
  EXPECT_EQ(form.Caption(), u"Informations Windows");
  EXPECT_EQ(form.ZoneInfos.Caption(), u" Informations Générales ");
  EXPECT_EQ(form.AfficheProcess.Caption(), u"Rafraîchir la liste...");
  std::vector<Text> captions;
  for (int i = 0; i <= 7; ++i) captions.push_back(form.Label2(i).Caption());
  EXPECT_THAT(captions, ElementsAre(u"Répertoire Windows :", u"Répertoire System :",
                                    u"Mémoire physique :", u"Mémoire virtuelle :", u"Système :",
                                    u"Version :", u"CPU :", u"Liste des Processus Windows :"));
}

TEST_F(SystemWinInfoTest, HasNoValueOfNumber6) {
  EXPECT_EQ(form.Find(u"LabelInfo", 6), nullptr);
}

TEST_F(SystemWinInfoTest, ShowsTheDirectoriesWithoutFinalBackslash) {
  machine.windows = u"C:\\Windows";
  machine.system = u"C:\\Windows\\System";
  EXPECT_EQ(Value(0), u"C:\\Windows");
  EXPECT_EQ(Value(1), u"C:\\Windows\\System");
}

TEST_F(SystemWinInfoTest, ShowsDirectoriesOfMoreThan50Characters) {
  machine.windows = u"C:\\" + Text(251, u'w');
  EXPECT_EQ(Value(0), machine.windows);
}

TEST_F(SystemWinInfoTest, ADirectoryThatTheSystemDoesNotGiveStaysEmpty) {
  machine.windows = u"";
  machine.system = u"C:\\" + Text(252, u's');
  EXPECT_EQ(Value(0), u"");
  EXPECT_EQ(Value(1), u"") << "longer than the buffer";
}

TEST_F(SystemWinInfoTest, ShowsNameAndVersionOfTheSystem) {
  EXPECT_EQ(Value(5), u"Windows 98");
  EXPECT_EQ(Value(7), u"4.10 (Build 1998)");
}

TEST_F(SystemWinInfoTest, AsksTheSystemFirstAndThenFillsTheLabelsInTheirOrder) {
  // Notes the values beside the calls of the system.
  class Watcher : public HeadlessView {
   public:
    explicit Watcher(std::vector<Text>& order) : order_(order) {}
    void Changed(Control& control, Property property) override {
      if (control.Name() != u"LabelInfo" || property != Property::kText) return;
      order_.push_back(Decimal(control.Index()));
    }

   private:
    std::vector<Text>& order_;
  } watcher(system.order);
  const ViewScope scope(watcher);
  form.Load();
  EXPECT_THAT(system.order, ElementsAre(u"windows", u"system", u"version", u"processor", u"memory",
                                        u"0", u"1", u"2", u"3", u"4", u"5", u"7", u"programs"));
  form.Unload();
}

// --- The processor ------------------------------------------------------------------------------

TEST_F(SystemWinInfoTest, KnowsFiveProcessors) {
  EXPECT_EQ(sNomProcesseur(386), u"Intel 386");
  EXPECT_EQ(sNomProcesseur(486), u"Intel 486");
  EXPECT_EQ(sNomProcesseur(586), u"Intel Pentium");
  EXPECT_EQ(sNomProcesseur(4000), u"MIPS R4000");
  EXPECT_EQ(sNomProcesseur(21064), u"DEC Alpha 21064");
}

TEST_F(SystemWinInfoTest, ShowsTheProcessorBesideItsCaption) {
  EXPECT_EQ(Processor(486), u"Intel 486");
}

TEST_F(SystemWinInfoTest, AProcessorThatIsNotInTheTableShowsTheCaptionOfTheProcessList) {
  EXPECT_EQ(Processor(686), u"Liste des Processus Windows :");
  for (const std::uint32_t type : {0U, 385U, 8664U, 0xFFFFFFFFU}) {
    EXPECT_EQ(sNomProcesseur(type), u"Liste des Processus Windows :") << type;
  }
}

// --- Memory -------------------------------------------------------------------------------------

TEST_F(SystemWinInfoTest, ShowsTheMemoryInGroupsOfThreeDigits) {
  EXPECT_EQ(Value(2), u"65.536 Ko");
  EXPECT_EQ(Value(3), u"2.097.024 Ko");
}

TEST_F(SystemWinInfoTest, FillsTheGroupsFromTheRight) {
  EXPECT_EQ(sFormatMemoire(640 * 1024), u"640 Ko");
  EXPECT_EQ(sFormatMemoire(1000 * 1024), u"1.000 Ko");
  EXPECT_EQ(sFormatMemoire(999999 * 1024), u"999.999 Ko");
  EXPECT_EQ(sFormatMemoire(1000000 * 1024), u"1.000.000 Ko");
}

TEST_F(SystemWinInfoTest, RoundsAFractionToAWholeNumber) {
  EXPECT_EQ(sFormatMemoire(1024 + 511), u"1 Ko");
  EXPECT_EQ(sFormatMemoire(1024 + 512), u"2 Ko");
  EXPECT_EQ(sFormatMemoire(0x7FFFFFFF), u"2.097.152 Ko");
}

TEST_F(SystemWinInfoTest, FourGigabytesTakenAsASignedValueShowANegativeOrSmallFigure) {
  system.memory = MemoryStatus{0x80000000, 0xFFFE0000};
  EXPECT_EQ(Value(2), u"-2.097.152 Ko");
  EXPECT_EQ(Value(3), u"-128 Ko");
  EXPECT_EQ(sFormatMemoire(0xFFFFFFFF), u" Ko") << "rounded to zero, which has no digit";
  EXPECT_EQ(sFormatMemoire(0), u" Ko");
}

TEST_F(SystemWinInfoTest, MemoryThatTheSystemDoesNotTellStaysEmpty) {
  system.memory.reset();
  EXPECT_EQ(Value(2), u"");
  EXPECT_EQ(Value(3), u"");
}

// --- Running programs ---------------------------------------------------------------------------

TEST_F(SystemWinInfoTest, ListsTheProgramsInTheOrderOfTheSnapshot) {
  system.processes = {u"zebre.exe", u"Abeille Maya.exe", u"zebre.exe"};
  form.Load();
  EXPECT_THAT(Processes(), ElementsAre(u"zebre.exe", u"Abeille Maya.exe", u"zebre.exe"));
  EXPECT_THAT(system.snapshot_flags, ElementsAre(2));
  EXPECT_THAT(system.snapshot_processes, ElementsAre(0));
  EXPECT_THAT(system.closed, ElementsAre(system.snapshot));
}

TEST_F(SystemWinInfoTest, TwoClicksShowEveryProcessThreeTimes) {
  system.processes = {u"un.exe", u"deux.exe"};
  form.Show();
  form.AfficheProcess.Press();
  form.AfficheProcess.Press();
  EXPECT_THAT(Processes(),
              ElementsAre(u"un.exe", u"deux.exe", u"un.exe", u"deux.exe", u"un.exe", u"deux.exe"));
}

TEST_F(SystemWinInfoTest, EachClickTakesANewSnapshotBelowTheOldList) {
  system.processes = {u"un.exe"};
  form.Show();
  system.processes = {u"autre.exe"};
  form.AfficheProcess.Press();
  EXPECT_THAT(Processes(), ElementsAre(u"un.exe", u"autre.exe"));
}

TEST_F(SystemWinInfoTest, ANullHandleEndsTheOperation) {
  system.snapshot = SnapshotHandle::kNone;
  form.Load();
  EXPECT_THAT(Processes(), IsEmpty());
  EXPECT_THAT(system.closed, IsEmpty());
}

TEST_F(SystemWinInfoTest, AFailedSnapshotLeavesTheListEmpty) {
  system.snapshot = SnapshotHandle::kInvalid;
  form.Load();
  EXPECT_THAT(Processes(), IsEmpty());
}

TEST_F(SystemWinInfoTest, AnErrorKeepsWhatWasListedSoFar) {
  system.processes = {u"un.exe", u"deux.exe", u"trois.exe"};
  system.good_processes = 2;
  form.Load();
  EXPECT_THAT(Processes(), ElementsAre(u"un.exe", u"deux.exe"));
  EXPECT_THAT(system.closed, ElementsAre(system.snapshot));
  EXPECT_EQ(Err().number, 0);
}

// --- Commands -----------------------------------------------------------------------------------

TEST_F(SystemWinInfoTest, TheButtonStartsTheInformationTool) {
  machine.SetValue(RegistryRoot::kLocalMachine, u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO",
                   u"PATH", FakeShell::TextValue(u"D:\\INFO.EXE"));
  form.Show();
  form.CommandMSInfo.Press();
  ASSERT_EQ(machine.started.size(), 1U);
  EXPECT_EQ(machine.started[0].command, u"D:\\INFO.EXE");
}

TEST_F(SystemWinInfoTest, EscClosesTheWindowWithTheFocusOnAnyOfItsControls) {
  for (Control* control : std::initializer_list<Control*>{
           &form, &form.ListProcess, &form.AfficheProcess, &form.CommandMSInfo}) {
    form.Show();
    control->SetFocus();
    form.on_key_press(kKeyEscape);
    EXPECT_FALSE(form.Loaded());
  }
}

TEST_F(SystemWinInfoTest, EveryOtherKeyDoesNothing) {
  form.Show();
  for (const int key : {kKeyEnter, 26, 28, int{u'a'}}) form.on_key_press(key);
  EXPECT_TRUE(form.Loaded());
  EXPECT_EQ(form.ListProcess.ListCount(), 2);
}

TEST_F(SystemWinInfoTest, AWindowInFrontOfAllOthersLeavesThatOrderFirst) {
  form.Show();
  FenetrePremierPlan(form, true);
  ASSERT_THAT(view.TopmostForms(), ElementsAre(&form));
  form.SetTag(u"-1");
  form.Unload();
  EXPECT_EQ(sFenetreDevant, u"");
  EXPECT_THAT(view.TopmostForms(), IsEmpty());
}

TEST_F(SystemWinInfoTest, WithoutItsMarkNothingIsTakenOutOfThatOrder) {
  form.Show();
  sFenetreDevant = form.Caption();
  form.SetTag(u"0");
  form.Unload();
  EXPECT_EQ(sFenetreDevant, u"Informations Windows");
}

// --- The table ----------------------------------------------------------------------------------

struct Placed {
  TextView name;
  int index;
  double left, top;
};

TEST_F(SystemWinInfoTest, TheControlsStandAtTheirPlaces) {
  constexpr Placed kPlaces[] = {
      {u"Label2", 0, 360, 300},     {u"LabelInfo", 0, 2025, 315},  {u"Label2", 1, 360, 540},
      {u"LabelInfo", 1, 2025, 540}, {u"Label2", 2, 360, 960},      {u"LabelInfo", 2, 1800, 960},
      {u"Label2", 3, 360, 1215},    {u"LabelInfo", 3, 1800, 1215}, {u"Label2", 4, 3480, 960},
      {u"LabelInfo", 5, 4320, 960}, {u"Label2", 5, 3480, 1215},    {u"LabelInfo", 7, 4320, 1215},
      {u"Label2", 6, 360, 1560},    {u"LabelInfo", 4, 840, 1560},  {u"Label2", 7, 165, 2145},
  };
  for (const Placed& placed : kPlaces) {
    const Label& label = form.Get<Label>(placed.name, placed.index);
    EXPECT_EQ(label.Left(), placed.left) << placed.index;
    EXPECT_EQ(label.Top(), placed.top) << placed.index;
  }
  EXPECT_EQ(form.ZoneInfos.GetPlace(), (Place{75, 0, 6495, 1935}));
  EXPECT_EQ(form.CommandMSInfo.GetPlace(), (Place{5850, 225, 540, 540}));
  EXPECT_EQ(form.AfficheProcess.GetPlace(), (Place{4845, 2025, 1695, 315}));
  EXPECT_EQ(form.ListProcess.GetPlace(), (Place{45, 2385, 6525, 1425}));
  EXPECT_EQ(form.Controls().size(), std::size(kPlaces) + 4);
}

}  // namespace
}  // namespace trovex::test
