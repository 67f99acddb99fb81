// Drives, directories and the services of the system.
#include <functional>
#include <set>

#include "Platform/Encoding.h"
#include "Platform/Host.h"
#include "Platform/contract/Contract.h"

namespace trovex::test {
namespace {

using testing::EndsWith;
using testing::Not;

class DirectoryContract : public Contract {
 protected:
  using Operation = std::uint32_t (FilePort::*)(Text&, std::uint32_t);

  // The rule of sizes, which both directory operations follow.
  void CheckSizes(Operation operation) {
    Text buffer = u"reste";
    const std::uint32_t needed = (platform_.*operation)(buffer, 0);
    EXPECT_EQ(buffer, u"");
    EXPECT_EQ((platform_.*operation)(buffer, needed), needed - 1);
    EXPECT_EQ(buffer.size(), needed - 1);
    const Text whole = buffer;
    EXPECT_EQ((platform_.*operation)(buffer, needed - 1), needed);
    EXPECT_EQ(buffer, u"");
    EXPECT_EQ((platform_.*operation)(buffer, 255), needed - 1);
    EXPECT_EQ(buffer, whole);
  }
  Text Directory(Operation operation) {
    Text buffer;
    (platform_.*operation)(buffer, 255);
    return buffer;
  }
};

// --- Drives -----------------------------------------------------------------------------------

TEST_F(DirectoryContract, ADriveHasAType) {
  EXPECT_NE(platform_.GetDriveType(u"D:\\"), DriveType::kUnknown);
  EXPECT_NE(platform_.GetDriveType(u"D:\\"), DriveType::kNoRoot);
  EXPECT_EQ(platform_.GetDriveType(u"d:\\"), platform_.GetDriveType(u"D:\\"));
  EXPECT_EQ(platform_.GetDriveType(u"Q:\\"), DriveType::kNoRoot);
}

TEST_F(DirectoryContract, NoRootAsksAboutTheCurrentDrive) {
  disc_.Directory("JEUX");
  platform_.ChangeDirectory(u"D:\\JEUX");
  EXPECT_EQ(platform_.GetDriveType(u""), platform_.GetDriveType(u"D:\\"));
}

TEST_F(DirectoryContract, LogicalDrivesHaveABitEach) {
  const std::uint32_t drives = platform_.GetLogicalDrives();
  EXPECT_TRUE(drives & 1U << (u'D' - u'A'));
  EXPECT_FALSE(drives & 1U << (u'Q' - u'A'));
}

TEST_F(DirectoryContract, AMissingDriveHasNoLabel) {
  EXPECT_EQ(platform_.GetVolumeLabel(u"Q:\\"), u"");
}

// --- Directories of the system ----------------------------------------------------------------

TEST_F(DirectoryContract, SystemDirectoriesFollowTheRuleOfSizes) {
  CheckSizes(&FilePort::GetWindowsDirectory);
  CheckSizes(&FilePort::GetSystemDirectory);
}

TEST_F(DirectoryContract, SystemDirectoriesHaveNoFinalBackslash) {
  const Text windows = Directory(&FilePort::GetWindowsDirectory);
  const Text system = Directory(&FilePort::GetSystemDirectory);
  EXPECT_EQ(ToUpper(windows), u"C:\\WINDOWS");
  EXPECT_TRUE(ToUpper(system).starts_with(ToUpper(windows) + u"\\SYSTEM"));
  EXPECT_FALSE(system.ends_with(u'\\'));
}

TEST_F(DirectoryContract, TheProgramDirectoryIsAFullName) {
  const Text directory = platform_.GetProgramDirectory();
  ASSERT_GE(directory.size(), 3U);
  EXPECT_EQ(directory.substr(1, 2), u":\\");
  EXPECT_EQ(directory.ends_with(u'\\'), directory.size() == 3);
}

// --- The current directory --------------------------------------------------------------------

TEST_F(DirectoryContract, TheCurrentDirectoryChanges) {
  disc_.Directory("JEUX/CARTES");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\");
  platform_.ChangeDirectory(u"D:\\JEUX");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\JEUX");
  platform_.ChangeDirectory(u"D:\\JEUX\\CARTES\\");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\JEUX\\CARTES");
  platform_.ChangeDirectory(u"D:\\");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\");
}

TEST_F(DirectoryContract, WhatIsNoDirectoryCannotBecomeCurrent) {
  disc_.Directory("JEUX");
  disc_.File("FICHIER.TXT");
  platform_.ChangeDirectory(u"D:\\JEUX");
  for (const Text& name : {Text(u"D:\\NULLEPART"), Text(u"D:\\FICHIER.TXT"), Text(u"Q:\\"),
                           Text(u"Q:\\JEUX"), Text()}) {
    EXPECT_EQ(ErrorOf([&] { platform_.ChangeDirectory(name); }), ErrorNumber::kPathNotFound);
    EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\JEUX");
  }
}

TEST_F(DirectoryContract, ChangingToTheCurrentDriveKeepsItsDirectory) {
  disc_.Directory("JEUX");
  platform_.ChangeDirectory(u"D:\\JEUX");
  platform_.ChangeDrive(u"D:");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\JEUX");
  platform_.ChangeDrive(u"d:\\AUTRE");
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\JEUX");
}

TEST_F(DirectoryContract, AMissingDriveCannotBecomeCurrent) {
  EXPECT_EQ(ErrorOf([&] { platform_.ChangeDrive(u"Q:"); }), ErrorNumber::kDeviceUnavailable);
  EXPECT_EQ(ErrorOf([&] { platform_.ChangeDrive(u"Q:\\JEUX"); }), ErrorNumber::kDeviceUnavailable);
  EXPECT_EQ(platform_.GetCurrentDirectory(), u"D:\\");
}

TEST_F(DirectoryContract, AnUnsetEnvironmentVariableIsEmpty) {
  EXPECT_EQ(platform_.GetEnvironmentVariable(u"TROVEX_VARIABLE_QUI_MANQUE"), u"");
}

// --- Services ---------------------------------------------------------------------------------

TEST_F(DirectoryContract, AFailureBringsTheSystemsCodeAndItsText) {
  struct Failure {
    std::function<void()> operation;
    TextView text;
  };
  disc_.Directory("JEUX");
  const Failure failures[] = {
      {[&] { platform_.OpenRead(u"D:\\AUTRE.TXT"); }, u"Le fichier n'existe pas à cet endroit."},
      {[&] { platform_.DeleteFile(u"D:\\AUTRE.TXT"); }, u"Le fichier n'existe pas à cet endroit."},
      {[&] { platform_.OpenRead(u"D:\\RIEN\\A.TXT"); }, u"Un dossier du chemin n'existe pas."},
      {[&] { platform_.OpenWrite(u"D:\\RIEN\\A.TXT"); }, u"Un dossier du chemin n'existe pas."},
      {[&] { platform_.ChangeDirectory(u"D:\\RIEN"); }, u"Un dossier du chemin n'existe pas."},
      {[&] { platform_.OpenWrite(u"D:\\JEUX"); }, u"L'accès est refusé."},
      {[&] { platform_.ChangeDrive(u"Q:"); }, u"Ce lecteur n'existe pas."},
  };
  for (const Failure& failure : failures) {
    try {
      failure.operation();
      ADD_FAILURE() << ToUtf8(failure.text);
    } catch (const RuntimeError& error) {
      EXPECT_EQ(platform_.FormatMessage(error.SystemCode()), failure.text);
    }
  }
  EXPECT_EQ(platform_.FormatMessage(0), u"");
}

TEST_F(DirectoryContract, RandomNumbersLieBetweenZeroAndOne) {
  std::set<double> numbers;
  for (int draw = 0; draw < 100; ++draw) {
    const double number = platform_.Random();
    EXPECT_GE(number, 0.0);
    EXPECT_LT(number, 1.0);
    numbers.insert(number);
  }
  EXPECT_GT(numbers.size(), 90U);
}

// --- The host ---------------------------------------------------------------------------------

class HostContract : public Contract {
 protected:
  std::string Argument(std::string_view path) {
    const std::u8string name = disc_.HostPath(path).u8string();
    return {name.begin(), name.end()};
  }
  // What is said where a directory cannot be opened.
  std::string Complaint(const std::string& argument) {
    std::string complaint;
    EXPECT_EQ(OpenHost(argument, u'E', complaint), nullptr);
    return complaint;
  }
};

TEST_F(HostContract, ADirectoryIsCatalogued) {
  disc_.File("Jeux/Dames.exe", "abc");
  std::string complaint;
  const std::unique_ptr<Host> host = OpenHost(Argument("Jeux"), u'E', complaint);
  ASSERT_NE(host, nullptr) << complaint;
  const bool posix = CurrentHostSystem() == HostSystem::kPosix;
  EXPECT_EQ(host->Start(), posix ? u"E:\\" : u"D:\\Jeux");
  FileStatus status;
  const Text file = host->Start() + (posix ? u"DAMES.EXE" : u"\\DAMES.EXE");
  EXPECT_TRUE(host->GetPlatform().GetFileStatus(file, status));
  EXPECT_EQ(status.length, 3);
}

TEST_F(HostContract, AFileArgumentHasAName) {
  disc_.File("Jeux/Dames.exe");
  disc_.File("Trovex.ini", "abcd");
  std::string complaint;
  const std::unique_ptr<Host> host = OpenHost(Argument("Jeux"), u'E', complaint);
  ASSERT_NE(host, nullptr) << complaint;
  FileStatus status;
  EXPECT_TRUE(host->GetPlatform().GetFileStatus(host->NameOf(Argument("Trovex.ini")), status));
  EXPECT_EQ(status.length, 4);
  const Text fresh = host->NameOf(Argument("Export.csv"));
  EXPECT_TRUE(fresh.ends_with(u"\\Export.csv"));
  EXPECT_FALSE(host->GetPlatform().GetFileStatus(fresh, status));
  host->GetPlatform().Close(host->GetPlatform().OpenWrite(fresh));
  EXPECT_TRUE(platform_.GetFileStatus(u"D:\\Export.csv", status));
}

TEST_F(HostContract, AnEmptyDirectoryIsCatalogued) {
  std::string complaint;
  EXPECT_NE(OpenHost(Argument(""), u'E', complaint), nullptr) << complaint;
}

TEST_F(HostContract, WhatCannotBeCataloguedIsNamed) {
  disc_.File("Fichier.txt");
  const std::string missing = Argument("Nulle part");
  EXPECT_EQ(Complaint(missing), "trovex-cli: " + missing + ": no such directory");
  const std::string file = Argument("Fichier.txt");
  EXPECT_EQ(Complaint(file), "trovex-cli: " + file + " is not a directory");
  EXPECT_EQ(Complaint(""), "trovex-cli: : no such directory");
}

}  // namespace
}  // namespace trovex::test
