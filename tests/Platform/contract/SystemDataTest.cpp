// Version, processor, memory and running programs.
#include "Platform/contract/Contract.h"

namespace trovex::test {
namespace {

using testing::AnyOf;
using testing::Contains;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class SystemDataContract : public Contract {
 protected:
  static ProcessEntry Entry() { return {kProcessEntrySize, u"reste"}; }

  // What is left of a snapshot once its first program was asked for.
  std::vector<Text> NamesFrom(SnapshotHandle snapshot) {
    std::vector<Text> names;
    ProcessEntry entry = Entry();
    for (bool more = platform_.Process32First(snapshot, entry); more;
         more = platform_.Process32Next(snapshot, entry)) {
      names.push_back(entry.szExeFile);
    }
    return names;
  }
  SnapshotHandle TakeSnapshot() {
    return platform_.CreateToolhelp32Snapshot(kSnapshotProcesses, 0);
  }
};

// --- Version ------------------------------------------------------------------------------------

TEST_F(SystemDataContract, TheVersionIsKnown) {
  OsVersionInfo info;
  info.dwOSVersionInfoSize = kOsVersionInfoSize;
  ASSERT_TRUE(platform_.GetVersionEx(info));
  EXPECT_EQ(info.dwOSVersionInfoSize, kOsVersionInfoSize);
  EXPECT_GT(info.dwMajorVersion, 0U);
  EXPECT_THAT(info.dwPlatformId, AnyOf(kFamilyWindows9x, kFamilyWindowsNt));
  EXPECT_THAT(info.szCSDVersion, SizeIs(128));
}

TEST_F(SystemDataContract, AVersionRecordOfAnotherSizeIsRefused) {
  OsVersionInfo info;
  info.dwMajorVersion = 77;
  EXPECT_FALSE(platform_.GetVersionEx(info));
  EXPECT_EQ(info.dwMajorVersion, 77U);
}

// --- Processor and memory -----------------------------------------------------------------------

TEST_F(SystemDataContract, TheProcessorStaysTheSame) {
  SystemInfo first{1}, second{2};
  platform_.GetSystemInfo(first);
  platform_.GetSystemInfo(second);
  EXPECT_EQ(first.dwProcessorType, second.dwProcessorType);
  EXPECT_THAT(first.dwProcessorType, AnyOf(386U, 486U, 586U, 4000U, 21064U, 0U));
}

TEST_F(SystemDataContract, ThereIsMemory) {
  MemoryStatus status;
  ASSERT_TRUE(platform_.GlobalMemoryStatus(status));
  EXPECT_GT(status.dwTotalPhys, 1U << 20);
  EXPECT_GT(status.dwTotalVirtual, 1U << 20);
}

// --- Running programs ---------------------------------------------------------------------------

TEST_F(SystemDataContract, ThisProgramRuns) {
  const SnapshotHandle snapshot = TakeSnapshot();
  const std::vector<Text> names = NamesFrom(snapshot);
  EXPECT_THAT(names, AnyOf(Contains(u"test_platform"), Contains(u"test_platform.exe")));
  EXPECT_THAT(names, Not(Contains(u"")));
  platform_.CloseHandle(snapshot);
}

TEST_F(SystemDataContract, ASnapshotBeginsAgainAndDoesNotChange) {
  const SnapshotHandle snapshot = TakeSnapshot();
  const std::vector<Text> names = NamesFrom(snapshot);
  EXPECT_EQ(NamesFrom(snapshot), names);
  platform_.CloseHandle(snapshot);
}

TEST_F(SystemDataContract, TheEndOfASnapshotLeavesTheEntry) {
  const SnapshotHandle snapshot = TakeSnapshot();
  NamesFrom(snapshot);
  ProcessEntry entry = Entry();
  EXPECT_FALSE(platform_.Process32Next(snapshot, entry));
  EXPECT_EQ(entry.szExeFile, u"reste");
  platform_.CloseHandle(snapshot);
}

TEST_F(SystemDataContract, AnEntryOfAnotherSizeIsRefused) {
  const SnapshotHandle snapshot = TakeSnapshot();
  ProcessEntry entry = {0, u"reste"};
  EXPECT_FALSE(platform_.Process32First(snapshot, entry));
  EXPECT_FALSE(platform_.Process32Next(snapshot, entry));
  EXPECT_EQ(entry.szExeFile, u"reste");
  platform_.CloseHandle(snapshot);
}

TEST_F(SystemDataContract, AClosedSnapshotHoldsNothing) {
  const SnapshotHandle snapshot = TakeSnapshot();
  platform_.CloseHandle(snapshot);
  EXPECT_THAT(NamesFrom(snapshot), IsEmpty());
  platform_.CloseHandle(snapshot);
}

TEST_F(SystemDataContract, AHandleThatIsNoneHoldsNothing) {
  for (const SnapshotHandle none : {SnapshotHandle::kNone, SnapshotHandle::kInvalid}) {
    EXPECT_THAT(NamesFrom(none), IsEmpty());
    platform_.CloseHandle(none);
  }
}

}  // namespace
}  // namespace trovex::test
