// How a POSIX system's own words become the records of the port.
#include "Platform/Posix/SystemData.h"

#include <gmock/gmock.h>

#include "Platform/Encoding.h"
#include "Platform/Posix/PosixPlatform.h"
#include "support/TestDisc.h"

namespace trovex::test {
namespace {

using posix::ProcessorTypeOf;
using posix::VersionOfRelease;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(KernelRelease, GivesThreeNumbersAndWhatFollows) {
  const OsVersionInfo info = VersionOfRelease("6.1.27-13-amd64");
  EXPECT_EQ(info.dwOSVersionInfoSize, kOsVersionInfoSize);
  EXPECT_EQ(info.dwMajorVersion, 6U);
  EXPECT_EQ(info.dwMinorVersion, 1U);
  EXPECT_EQ(info.dwBuildNumber, 27U);
  EXPECT_EQ(info.szCSDVersion, Text(u"13-amd64").append(120, u'\0'));
}

TEST(KernelRelease, IsOneOfTheNtFamily) {
  EXPECT_EQ(VersionOfRelease("4.10.0").dwPlatformId, kFamilyWindowsNt);
}

TEST(KernelRelease, MayLackNumbers) {
  EXPECT_EQ(VersionOfRelease("7").dwMajorVersion, 7U);
  EXPECT_EQ(VersionOfRelease("7").dwMinorVersion, 0U);
  EXPECT_EQ(VersionOfRelease("13.2-RELEASE").dwBuildNumber, 0U);
  EXPECT_EQ(VersionOfRelease("13.2-RELEASE").szCSDVersion, Text(u"RELEASE").append(121, u'\0'));
  EXPECT_EQ(VersionOfRelease("").dwMajorVersion, 0U);
  EXPECT_EQ(VersionOfRelease("99999999999.1").dwMajorVersion, 0U);
}

TEST(KernelRelease, IsCutToTheField) {
  const std::string tail(200, 'x');
  EXPECT_EQ(VersionOfRelease("6.1.0-" + tail).szCSDVersion, Text(128, u'x'));
}

TEST(MachineName, GivesTheProcessorType) {
  EXPECT_EQ(ProcessorTypeOf("i386"), 386U);
  EXPECT_EQ(ProcessorTypeOf("i486"), 486U);
  EXPECT_EQ(ProcessorTypeOf("i586"), 586U);
  EXPECT_EQ(ProcessorTypeOf("i686"), 586U);
  EXPECT_EQ(ProcessorTypeOf("x86_64"), 586U);
  EXPECT_EQ(ProcessorTypeOf("mips64"), 4000U);
  EXPECT_EQ(ProcessorTypeOf("alpha"), 21064U);
  EXPECT_EQ(ProcessorTypeOf("aarch64"), 0U);
  EXPECT_EQ(ProcessorTypeOf(""), 0U);
}

// A directory that tells of a system as /proc does.
class ProcDirectory : public testing::Test {
 protected:
  void MemInfo(std::string_view contents) { disc_.File("proc/meminfo", contents); }
  void Process(const std::string& number, std::string_view name) {
    disc_.File("proc/" + number + "/comm", std::string(name) + "\n");
  }
  std::string Path() const { return disc_.HostPath("proc").string(); }

  TestDisc disc_;
};

TEST_F(ProcDirectory, TellsTheMemory) {
  MemInfo("MemTotalOther:  9 kB\nMemTotal:      65536 kB\nMemFree: 12 kB\nSwapTotal:  1024 kB\n");
  const auto memory = posix::ReadMemory(Path());
  ASSERT_TRUE(memory);
  EXPECT_EQ(memory->dwTotalPhys, 65536U * 1024);
  EXPECT_EQ(memory->dwTotalVirtual, 66560U * 1024);
}

TEST_F(ProcDirectory, TellsNoMoreThanAProgramOf32BitsCounts) {
  MemInfo("MemTotal: 2097151 kB\nSwapTotal: 4194304 kB\n");
  EXPECT_EQ(posix::ReadMemory(Path())->dwTotalPhys, 2097151U * 1024);
  EXPECT_EQ(posix::ReadMemory(Path())->dwTotalVirtual, kMostMemory);
  MemInfo("MemTotal: 8388608 kB\n");
  EXPECT_EQ(posix::ReadMemory(Path())->dwTotalPhys, kMostMemory);
}

TEST_F(ProcDirectory, MayTellOfNoMemory) {
  EXPECT_FALSE(posix::ReadMemory(Path()));
  for (const char* contents : {"", "MemTotal", "MemTotal:", "MemTotal: kB\n", "SwapTotal: 1 kB"}) {
    MemInfo(contents);
    EXPECT_FALSE(posix::ReadMemory(Path())) << contents;
  }
}

TEST_F(ProcDirectory, ListsProgramsByTheirNumbers) {
  Process("10", "serveur");
  Process("9", "un programme");
  Process("1", "init");
  Process("self", "personne");
  disc_.File("proc/11", "");
  disc_.Directory("proc/12");
  EXPECT_THAT(posix::ReadProcessNames(Path()), ElementsAre(u"init", u"un programme", u"serveur"));
}

TEST_F(ProcDirectory, MayBeMissing) {
  EXPECT_THAT(posix::ReadProcessNames(Path()), IsEmpty());
  PosixSetup setup;
  setup.drives = {{u'D', disc_.HostPath("").string(), DriveType::kFixed, u""}};
  setup.proc_directory = Path();
  PosixPlatform platform(setup);
  EXPECT_EQ(platform.CreateToolhelp32Snapshot(kSnapshotProcesses, 0), SnapshotHandle::kNone);
  MemoryStatus status{1, 2};
  EXPECT_FALSE(platform.GlobalMemoryStatus(status));
  EXPECT_EQ(status.dwTotalPhys, 1U);
}

TEST_F(ProcDirectory, HoldsNoProgramsForOtherSnapshots) {
  EXPECT_EQ(disc_.GetPlatform().CreateToolhelp32Snapshot(1, 0), SnapshotHandle::kNone);
}

}  // namespace
}  // namespace trovex::test
