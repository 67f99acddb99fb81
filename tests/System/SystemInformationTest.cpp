#include "System/COpSysInfo.h"

#include "Platform/PartScope.h"
#include "SystemTest.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// --- The version --------------------------------------------------------------------------------

class VersionTest : public SystemTest {
 protected:
  COpSysInfo Read(std::uint32_t family, std::uint32_t major, std::uint32_t minor,
                  std::uint32_t build = 0) {
    system.version.dwPlatformId = family;
    system.version.dwMajorVersion = major;
    system.version.dwMinorVersion = minor;
    system.version.dwBuildNumber = build;
    return {};
  }
  // "95", "98", "NT", or what of them is true together.
  static std::string Flags(const COpSysInfo& info) {
    return std::string(info.IsWin95() ? "95" : "") + (info.IsWin98() ? "98" : "") +
           (info.IsWinNT() ? "NT" : "");
  }
  Text ServicePack(const Text& field) {
    system.version.szCSDVersion = field;
    return COpSysInfo().CSDVersion();
  }
};

TEST_F(VersionTest, TheWindows95FamilyWithMinorVersion0IsWindows95) {
  const COpSysInfo info = Read(1, 4, 0);
  EXPECT_EQ(Flags(info), "95");
  EXPECT_EQ(info.Platform(), u"Windows 95");
}

TEST_F(VersionTest, MinorVersions10And90AreWindows98) {
  for (const std::uint32_t minor : {10U, 90U}) {
    const COpSysInfo info = Read(1, 4, minor);
    EXPECT_EQ(Flags(info), "98");
    EXPECT_EQ(info.Platform(), u"Windows 98");
  }
  EXPECT_EQ(Flags(Read(1, 4, 9)), "95");
}

TEST_F(VersionTest, TheOtherFamilyIsWindowsNtWhateverItsMinorVersion) {
  for (const std::uint32_t minor : {0U, 10U}) {
    const COpSysInfo info = Read(2, 5, minor);
    EXPECT_EQ(Flags(info), "NT");
    EXPECT_EQ(info.Platform(), u"Windows NT");
  }
}

TEST_F(VersionTest, AnUnknownFamilyIsNoneOfTheThreeButCallsItselfWindowsNt) {
  for (const std::uint32_t family : {0U, 3U}) {
    const COpSysInfo info = Read(family, 1, 30);
    EXPECT_EQ(Flags(info), "");
    EXPECT_EQ(info.Platform(), u"Windows NT");
  }
}

TEST_F(VersionTest, ABuildNumberWithItsHighWordSetGivesTheLowWordAlone) {
  EXPECT_EQ(Read(1, 4, 10, 0x040A07CE).BuildNumber(), 1998);
}

TEST_F(VersionTest, ALowWordAbove32767GivesANegativeBuildNumber) {
  EXPECT_EQ(Read(2, 10, 0, 32767).BuildNumber(), 32767);
  EXPECT_EQ(Read(2, 10, 0, 32768).BuildNumber(), -32768);
  EXPECT_EQ(Read(2, 10, 0, 0x0001FFFF).BuildNumber(), -1);
}

TEST_F(VersionTest, TheNumbersAreThoseOfTheSystem) {
  const COpSysInfo info = Read(1, 4, 10, 0x040A07CE);
  EXPECT_EQ(info.MajorVersion(), 4);
  EXPECT_EQ(info.MinorVersion(), 10);
  EXPECT_EQ(info.PlatformID(), 1);
  EXPECT_EQ(info.Version(), u"Windows 98 v4.10, Build 1998");
  EXPECT_EQ(info.dwOSVersionInfoSize(), 148U);
}

TEST_F(VersionTest, AServicePackFieldThatBeginsWithANulIsEmpty) {
  EXPECT_EQ(ServicePack(Text(u"\0ce qui reste", 14)), u"");
}

TEST_F(VersionTest, TheServicePackEndsAtItsFirstNulAndIsTrimmed) {
  EXPECT_EQ(ServicePack(Text(u"A\0B", 3)), u"A");
  EXPECT_EQ(ServicePack(Text(u"  Service Pack 6 \0reste", 23)), u"Service Pack 6");
  EXPECT_EQ(ServicePack(Text(128, u'x')), Text(128, u'x'));
}

TEST_F(VersionTest, TheSystemIsAskedOnceForEachObject) {
  const COpSysInfo info = Read(2, 5, 1);
  system.version.dwMajorVersion = 6;
  EXPECT_EQ(info.MajorVersion(), 5);
  EXPECT_EQ(info.Version(), u"Windows NT v5.1, Build 0");
  EXPECT_EQ(system.versions_read, 1);
}

TEST_F(VersionTest, ASystemThatDoesNotAnswerHasNoNumbers) {
  system.tells_version = false;
  const COpSysInfo info;
  EXPECT_EQ(info.dwOSVersionInfoSize(), 148U);
  EXPECT_EQ(info.Version(), u"Windows NT v0.0, Build 0");
  EXPECT_EQ(info.CSDVersion(), u"");
}

// --- Name and version for the window ------------------------------------------------------------

class NameOfSystemTest : public SystemTest {
 protected:
  Text Ask() {
    Text sNom, sVersion;
    LIB_SYSTEME::GetVersionSysteme(sNom, sVersion);
    return sNom + u"|" + sVersion;
  }
};

TEST_F(NameOfSystemTest, HasTheBuildInBrackets) {
  EXPECT_EQ(Ask(), u"Windows 98|4.10 (Build 1998)");
}

TEST_F(NameOfSystemTest, NoObjectIsMadeOnTheSecondCall) {
  Ask();
  system.version.dwMajorVersion = 5;
  EXPECT_EQ(Ask(), u"Windows 98|4.10 (Build 1998)");
  EXPECT_EQ(system.versions_read, 1);
}

TEST_F(NameOfSystemTest, HalfAnAnswerIsNoAnswer) {
  LIB_SYSTEME::sNomSysteme = u"Windows 95";
  EXPECT_EQ(Ask(), u"Windows 98|4.10 (Build 1998)");
  LIB_SYSTEME::sNomSysteme.clear();
  EXPECT_EQ(Ask(), u"Windows 98|4.10 (Build 1998)");
  EXPECT_EQ(system.versions_read, 2);
}

// --- Directories --------------------------------------------------------------------------------

using DirectoriesTest = SystemTest;

TEST_F(DirectoriesTest, EndInABackslash) {
  machine.windows = u"C:\\Windows";
  machine.system = u"C:\\Windows\\System";
  EXPECT_EQ(LIB_SYSTEME::sRepertoireWindows(), u"C:\\Windows\\");
  EXPECT_EQ(LIB_SYSTEME::sRepertoireSysteme(), u"C:\\Windows\\System\\");
}

TEST_F(DirectoriesTest, GetNoSecondBackslash) {
  machine.windows = machine.system = u"C:\\";
  EXPECT_EQ(LIB_SYSTEME::sRepertoireWindows(), u"C:\\");
  EXPECT_EQ(LIB_SYSTEME::sRepertoireSysteme(), u"C:\\");
}

TEST_F(DirectoriesTest, LoseBlanksInFrontInTheWindowsDirectoryAlone) {
  machine.windows = machine.system = u"  C:\\WIN";
  EXPECT_EQ(LIB_SYSTEME::sRepertoireWindows(), u"C:\\WIN\\");
  EXPECT_EQ(LIB_SYSTEME::sRepertoireSysteme(), u"  C:\\WIN\\");
}

TEST_F(DirectoriesTest, KeepBlanksBeforeTheirTerminator) {
  machine.windows = machine.system = u"C:\\WIN ";
  EXPECT_EQ(LIB_SYSTEME::sRepertoireWindows(), u"C:\\WIN \\");
  EXPECT_EQ(LIB_SYSTEME::sRepertoireSysteme(), u"C:\\WIN \\");
}

TEST_F(DirectoriesTest, EndAtTheirFirstNul) {
  machine.windows = machine.system = Text(u"C:\\WIN\0reste", 12);
  EXPECT_EQ(LIB_SYSTEME::sRepertoireWindows(), u"C:\\WIN\\");
  EXPECT_EQ(LIB_SYSTEME::sRepertoireSysteme(), u"C:\\WIN\\");
}

TEST_F(DirectoriesTest, AreEmptyWhereTheSystemGivesNone) {
  machine.windows = machine.system = u"";
  EXPECT_EQ(LIB_SYSTEME::sRepertoireWindows(), u"");
  EXPECT_EQ(LIB_SYSTEME::sRepertoireSysteme(), u"");
}

TEST_F(DirectoriesTest, OfFiftyCharactersWithTheirTerminatorAreTheLongest) {
  const Text longest = u"C:\\" + Text(46, u'w');
  machine.windows = machine.system = longest;
  EXPECT_EQ(LIB_SYSTEME::sRepertoireWindows(), longest + u"\\");
  EXPECT_EQ(LIB_SYSTEME::sRepertoireSysteme(), longest + u"\\");
  machine.windows = machine.system = longest + u"w";
  EXPECT_EQ(LIB_SYSTEME::sRepertoireWindows(), u"\\");
  EXPECT_EQ(LIB_SYSTEME::sRepertoireSysteme(), u"\\");
}

// --- The information tool -----------------------------------------------------------------------

class InformationToolTest : public SystemTest {
 protected:
  void Path(const Text& value) {
    machine.SetValue(RegistryRoot::kLocalMachine, u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO",
                     u"PATH", FakeShell::TextValue(value));
  }
  void Location(const Text& value) {
    machine.SetValue(RegistryRoot::kLocalMachine, u"SOFTWARE\\Microsoft\\Shared Tools Location",
                     u"MSINFO", FakeShell::TextValue(value));
  }
  std::vector<Text> Started() const {
    std::vector<Text> commands;
    for (const FakeShell::Started& started : machine.started) {
      EXPECT_EQ(started.mode, 1) << "a normal window";
      commands.push_back(started.command);
    }
    return commands;
  }
  // A start that ends in the box, which leaves the status line as it is.
  void ExpectBox() {
    view.Answer(BoxAnswer::kOk);
    LIB_SYSTEME::LanceMSInfo();
    EXPECT_THAT(Started(), IsEmpty());
    EXPECT_THAT(
        view.Boxes(),
        ElementsAre(Box{BoxStyle::kInfo, u"Un message d'information",
                        u"Les informations MS système ne sont pas disponibles actuellement"}));
    EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
    EXPECT_EQ(StatusLine(), u"Traitement en cours, patientez s.v.p");
  }
};

TEST_F(InformationToolTest, StartsFromTheFirstKey) {
  Path(u"  D:\\OUTILS\\INFO.EXE ");
  Location(u"D:\\AUTRES");
  LIB_SYSTEME::LanceMSInfo();
  EXPECT_THAT(Started(), ElementsAre(u"D:\\OUTILS\\INFO.EXE"));
  EXPECT_EQ(view.GetPointer(), Pointer::kDefault);
  EXPECT_EQ(StatusLine(), u"");
}

TEST_F(InformationToolTest, ADirectoryOfTheSecondKeyIsStartedAsItStands) {
  for (const Text& blank : {Text(), Text(u"   ")}) {
    machine.started.clear();
    Path(blank);
    Location(u"D:\\OUTILS");
    LIB_SYSTEME::LanceMSInfo();
    EXPECT_THAT(Started(), ElementsAre(u"D:\\OUTILS"));
  }
}

TEST_F(InformationToolTest, ADirectoryFoundUnderTheSecondKeyFailsAndSoComesToTheMessage) {
  disc.Directory("OUTILS");
  disc.File("OUTILS/MSINFO32.EXE", "MZ");
  Location(u"D:\\OUTILS");
  ExpectBox();
}

TEST_F(InformationToolTest, ThatNoKeyNamesIsNotThere) {
  ExpectBox();
}

TEST_F(InformationToolTest, IsLookedForOnlyWhereBothKeysAreEmpty) {
  Path(u"");
  Location(u"");
  ExpectBox();
}

TEST_F(InformationToolTest, ThatIsFoundByItsUsualNameStarts) {
  // The root of the current drive, as the guess has no directory before its backslash.
  class RootDrive : public ForwardingFiles {
   public:
    using ForwardingFiles::ForwardingFiles;
    FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
      return Target().FindFirstFile(pattern.starts_with(u'\\') ? u"D:" + pattern : pattern, data);
    }
    bool GetFileStatus(const Text& name, FileStatus& status) override {
      return Target().GetFileStatus(name.starts_with(u'\\') ? u"D:" + name : name, status);
    }
  } root_drive(system);
  const PartScope scope(root_drive);
  disc.File("MSINFO32.EXE", "MZ");
  LIB_SYSTEME::LanceMSInfo();
  EXPECT_THAT(Started(), ElementsAre(u"\\MSINFO32.exe"));
}

TEST_F(InformationToolTest, ThatRefusesToStartIsReported) {
  Path(u"D:\\OUTILS\\INFO.EXE");
  machine.refuses_start = true;
  ExpectBox();
}

}  // namespace
}  // namespace trovex::test
