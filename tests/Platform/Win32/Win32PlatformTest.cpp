// What only Windows has: a current directory on each of several drives, devices that hide behind
// names, read-only files, files in use, the process's environment.
#include "Platform/Win32/FileReads.h"
#include "Platform/Win32/Handles.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Windows.h"
#include "Platform/contract/Contract.h"
#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Win32PlatformTest : public Contract {
 protected:
  Text SystemDirectory() {
    Text directory;
    platform_.GetSystemDirectory(directory, 255);
    return directory;
  }
  // The name of a link to the Windows directory: one made for the test, or under Wine, which cannot
  // make any, the one that stands ready.
  Text MakeLink() {
    if (CurrentHostSystem() == HostSystem::kWine) return u"C:\\trovex-link";
    constexpr DWORD kUnprivileged = 2;
    Text windows;
    platform_.GetWindowsDirectory(windows, 255);
    EXPECT_TRUE(CreateSymbolicLinkW(L"D:\\trovex-link", Wide(windows),
                                    SYMBOLIC_LINK_FLAG_DIRECTORY | kUnprivileged));
    return u"D:\\trovex-link";
  }
};

// --- Current directories ------------------------------------------------------------------------

TEST_F(Win32PlatformTest, EachDriveHasACurrentDirectory) {
  disc_.Directory("JEUX");
  platform_.ChangeDirectory(u"D:\\JEUX");
  platform_.ChangeDirectory(SystemDirectory());
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\JEUX");
  platform_.ChangeDrive(u"C:");
  EXPECT_EQ(platform_.GetCurrentDirectory(), SystemDirectory());
  platform_.ChangeDrive(u"D:\\");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\JEUX");
}

TEST_F(Win32PlatformTest, ADirectoryThatHasGoneGivesWayToItsRoot) {
  disc_.Directory("JEUX");
  platform_.ChangeDrive(u"C:");
  platform_.ChangeDirectory(u"D:\\JEUX");
  disc_.Remove("JEUX");
  platform_.ChangeDrive(u"D:");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\");
}

// Wine keeps what stands for shares beside its drives; elsewhere there is none to be had.
TEST_F(Win32PlatformTest, ANetworkPathBecomesTheCurrentDirectory) {
  if (CurrentHostSystem() != HostSystem::kWine) GTEST_SKIP() << "there is no share";
  Text prefix = u"Z:" + platform_.GetEnvironmentVariable(u"WINEPREFIX");
  std::replace(prefix.begin(), prefix.end(), u'/', u'\\');
  Text share = prefix + u"\\dosdevices";
  for (const TextView level : {u"\\unc", u"\\trovex", u"\\jeux"}) {
    share += level;
    CreateDirectoryW(Wide(share), nullptr);
  }
  platform_.ChangeDirectory(u"\\\\trovex\\jeux");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"\\\\trovex\\jeux");
  platform_.ChangeDrive(u"D:");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\");
}

// --- Files whose reading fails ------------------------------------------------------------------

TEST_F(Win32PlatformTest, AReadingThatFailsIsToldFromTheEndOfTheFile) {
  disc_.File("A.EXE", "MZ");
  char buffer[8];
  const OwnedFile readable = OpenForReading(u"D:\\A.EXE");
  FileSource source(readable.get());
  EXPECT_EQ(source.ReadAt(0, buffer, sizeof buffer), 2u);
  EXPECT_EQ(source.ReadAt(2, buffer, sizeof buffer), 0u);
  EXPECT_EQ(source.Error(), 0u);
  const OwnedFile unreadable =
      OwnFile(CreateFileW(L"D:\\A.EXE", FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE,
                          nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(unreadable);
  FileSource refused(unreadable.get());
  EXPECT_EQ(refused.ReadAt(0, buffer, sizeof buffer), 0u);
  EXPECT_NE(refused.Error(), 0u);
}

// Opens, but its first bytes cannot be read: some are locked by another user of the file. Wine does
// not hold to locks, but shows the memory of a process, which begins with a hole.
TEST_F(Win32PlatformTest, AFileWhoseReadingFailsHasItsStatusAlone) {
  disc_.File("A.EXE", DosExecutable());
  const bool wine = CurrentHostSystem() == HostSystem::kWine;
  const Text name = wine ? u"Z:\\proc\\self\\mem" : u"D:\\A.EXE";
  const OwnedFile other =
      OwnFile(CreateFileW(L"D:\\A.EXE", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                          OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(LockFile(other.get(), 0, 0, 2, 0));
  FileStatus status;
  std::string record = "reste";
  EXPECT_EQ(platform_.GetFileProperties(name, status, record), Reading::kStatus);
  EXPECT_EQ(record, "");
  EXPECT_EQ(ErrorOf([&] { platform_.GetFileVersionInfoSize(name); }), ErrorNumber::kDeviceIo);
}

// --- Surroundings -------------------------------------------------------------------------------

TEST_F(Win32PlatformTest, TheEnvironmentIsTheProcesss) {
  SetEnvironmentVariableW(L"TROVEX_ESSAI", L"D:\\Temp \u20AC");
  EXPECT_EQ(platform_.GetEnvironmentVariable(u"trovex_essai"), u"D:\\Temp \u20AC");
  SetEnvironmentVariableW(L"TROVEX_ESSAI", nullptr);
  EXPECT_EQ(platform_.GetEnvironmentVariable(u"TROVEX_ESSAI"), u"");
}

TEST_F(Win32PlatformTest, TheProgramStandsInItsDirectory) {
  const Text directory = platform_.GetProgramDirectory();
  EXPECT_THAT(FindAll(directory + u"\\test_platform.exe"), ElementsAre(u"test_platform.exe"));
}

TEST_F(Win32PlatformTest, ErrorCodesHaveTheSystemsText) {
  EXPECT_NE(platform_.FormatMessage(ERROR_ACCESS_DENIED), u"");
  EXPECT_NE(platform_.FormatMessage(ERROR_ACCESS_DENIED),
            platform_.FormatMessage(ERROR_FILE_NOT_FOUND));
  EXPECT_EQ(platform_.FormatMessage(0xDEADBEEF), u"");
}

// Every build for Windows is one for this line.
TEST_F(Win32PlatformTest, AProcessorOf64BitsCountsToTheLineOfThePentium) {
  SystemInfo info;
  platform_.GetSystemInfo(info);
  EXPECT_EQ(info.dwProcessorType, 586U);
}

// --- Registry -----------------------------------------------------------------------------------

class RegistryContract : public Win32PlatformTest {
 protected:
  // A value of a key that every Windows has, and that not everybody may write.
  RegistryValue Surroundings(const Text& name) {
    constexpr std::uint32_t kAllAccess = 63;
    RegistryKey key = RegistryKey::kNone;
    EXPECT_EQ(
        platform_.RegOpenKeyEx(RegistryRoot::kLocalMachine,
                               u"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment",
                               kAllAccess, key),
        0);
    RegistryValue value;
    EXPECT_EQ(platform_.RegQueryValueEx(key, name, value), 0);
    platform_.RegCloseKey(key);
    return value;
  }
};

TEST_F(RegistryContract, AStringWithVariablesKeepsThemAndItsType) {
  const RegistryValue value = Surroundings(u"windir");
  EXPECT_EQ(value.type, DWORD{REG_EXPAND_SZ});
  EXPECT_EQ(ToUpper(value.text), Text(u"%SYSTEMROOT%\0", 13));
  EXPECT_EQ(value.bytes, "");
}

TEST_F(RegistryContract, AStringKeepsItsTerminator) {
  const RegistryValue value = Surroundings(u"PROCESSOR_ARCHITECTURE");
  EXPECT_EQ(value.type, kRegistryString);
  EXPECT_EQ(value.text, sizeof(void*) == 4 ? Text(u"x86\0", 4) : Text(u"AMD64\0", 6));
}

TEST_F(RegistryContract, AKeyThatIsMissingIsAnErrorAndOpensNothing) {
  RegistryKey key = RegistryKey::kNone;
  EXPECT_EQ(platform_.RegOpenKeyEx(RegistryRoot::kLocalMachine, u"SOFTWARE\\TrovexAbsent", 63, key),
            ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(key, RegistryKey::kNone);
}

// --- Names that are no files --------------------------------------------------------------------

TEST_F(Win32PlatformTest, DevicesAreNeitherFoundNorOpened) {
  for (const Text& name : {Text(u"NUL"), Text(u"con"), Text(u"COM1"), Text(u"\\\\.\\NUL"),
                           Text(u"\\\\.\\COM1"), Text(u"\\\\.\\PhysicalDrive0")}) {
    FileStatus status;
    EXPECT_FALSE(platform_.GetFileStatus(name, status));
    EXPECT_EQ(ErrorOf([&] { platform_.OpenRead(name); }), ErrorNumber::kPathFileAccess);
    EXPECT_EQ(ErrorOf([&] { platform_.OpenWrite(name); }), ErrorNumber::kPathFileAccess);
    EXPECT_EQ(ErrorOf([&] { platform_.DeleteFile(name); }), ErrorNumber::kPathFileAccess);
    EXPECT_EQ(platform_.GetFileVersionInfoSize(name), 0U);
  }
}

TEST_F(Win32PlatformTest, ALinkToADirectoryIsNoEntry) {
  const Text link = MakeLink();
  FileStatus status;
  EXPECT_TRUE(platform_.GetFileStatus(link + u"\\system32", status));
  EXPECT_THAT(FindAll(link), IsEmpty());
  EXPECT_THAT(FindAll(link + u"*"), IsEmpty());
}

// An open search would keep its directory from being removed, and its disc from being taken out.
TEST_F(Win32PlatformTest, ASearchAtItsEndHoldsNothing) {
  disc_.File("JEUX/A.EXE");
  DWORD before = 0, after = 0;
  ASSERT_TRUE(GetProcessHandleCount(GetCurrentProcess(), &before));
  std::vector<FindHandle> ended;
  for (int i = 0; i < 20; ++i) {
    FindData data;
    ended.push_back(platform_.FindFirstFile(u"D:\\JEUX\\*.*", data));
    while (platform_.FindNextFile(ended.back(), data)) {
    }
  }
  ASSERT_TRUE(GetProcessHandleCount(GetCurrentProcess(), &after));
  EXPECT_LT(after, before + 20);
  EXPECT_TRUE(RemoveDirectoryW(L"D:\\JEUX") || ::GetLastError() == ERROR_DIR_NOT_EMPTY);
  for (const FindHandle handle : ended) platform_.FindClose(handle);
}

// --- Files in use --------------------------------------------------------------------------------

TEST_F(Win32PlatformTest, AFileInUseIsRefused) {
  disc_.File("A.TXT", "ancien");
  const OwnedFile held = OwnFile(CreateFileW(L"D:\\A.TXT", GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                             OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  ASSERT_TRUE(held);
  EXPECT_EQ(ErrorOf([&] { platform_.OpenRead(u"D:\\A.TXT"); }), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(ErrorOf([&] { platform_.OpenWrite(u"D:\\A.TXT"); }), ErrorNumber::kPermissionDenied);
  EXPECT_EQ(ErrorOf([&] { platform_.DeleteFile(u"D:\\A.TXT"); }), ErrorNumber::kPermissionDenied);
}

// What is being written can be looked at, but not written by somebody else.
TEST_F(Win32PlatformTest, AFileBeingWrittenIsShownToReaders) {
  const FileHandle file = platform_.OpenWrite(u"D:\\A.TXT");
  platform_.Write(file, "abc", 3);
  EXPECT_EQ(Contents(u"D:\\A.TXT"), "abc");
  EXPECT_EQ(ErrorOf([&] { platform_.OpenWrite(u"D:\\A.TXT"); }), ErrorNumber::kPermissionDenied);
  platform_.Close(file);
}

TEST_F(Win32PlatformTest, HandlesOfNothingAreRefused) {
  char unit = 0;
  EXPECT_EQ(ErrorOf([&] { platform_.Read(FileHandle::kInvalid, &unit, 1); }),
            ErrorNumber::kBadFileNumber);
  EXPECT_EQ(ErrorOf([&] { platform_.Write(FileHandle{12345}, &unit, 1); }),
            ErrorNumber::kBadFileNumber);
}

}  // namespace
}  // namespace trovex::test
