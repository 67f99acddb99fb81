#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/PartScope.h"
#include "Ui/DirListBox.h"
#include "Ui/Directory.h"
#include "Ui/DriveListBox.h"
#include "Ui/FileListBox.h"
#include "support/TestDisc.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

ErrorNumber ErrorOf(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const RuntimeError& error) {
    return error.Kind();
  }
  ADD_FAILURE() << "no error was raised";
  return {};
}

template <typename ListControl>
std::vector<Text> Entries(const ListControl& list) {
  std::vector<Text> entries;
  for (int i = 0; i < list.ListCount(); ++i) entries.push_back(list.List(i));
  return entries;
}

class FileListBoxTest : public testing::Test {
 protected:
  TestDisc disc_;
  FileListBox list_;
};

TEST_F(FileListBoxTest, ListsThePlainNamesOfFilesOnly) {
  disc_.File("JEUX/DAMES.EXE");
  disc_.File("JEUX/LISEZMOI.TXT");
  disc_.File("JEUX/SOUS/AUTRE.EXE");
  list_.SetPath(u"D:\\JEUX");
  EXPECT_THAT(Entries(list_), ElementsAre(u"DAMES.EXE", u"LISEZMOI.TXT"));
}

TEST_F(FileListBoxTest, ADirectoryNamedAsAProgramIsNoFile) {
  disc_.Directory("SETUP.EXE");
  disc_.File("JEU.EXE");
  list_.SetPath(u"D:\\");
  list_.SetPattern(u"*.exe");
  EXPECT_THAT(Entries(list_), ElementsAre(u"JEU.EXE"));
}

TEST_F(FileListBoxTest, OrdersUpperCasedNamesByCodeUnit) {
  for (const char* name :
       {"zoo.exe", "_ISDEL.EXE", "B.exe", "a.exe", "10.EXE", "9.exe", "A1.EXE"}) {
    disc_.File(name);
  }
  list_.SetPath(u"D:\\");
  EXPECT_THAT(Entries(list_), ElementsAre(u"10.EXE", u"9.exe", u"a.exe", u"A1.EXE", u"B.exe",
                                          u"zoo.exe", u"_ISDEL.EXE"));
}

TEST_F(FileListBoxTest, SeveralPatternsListANameOnce) {
  for (const char* name : {"A.ZIP", "B.exe", "C.TXT", "D.EXE.ZIP", "E.exe2", "EXE"}) {
    disc_.File(name);
  }
  list_.SetPath(u"D:\\");
  list_.SetPattern(u"*.exe;*.zip");
  EXPECT_THAT(Entries(list_), ElementsAre(u"A.ZIP", u"B.exe", u"D.EXE.ZIP"));
  list_.SetPattern(u" *.e* ; ;*.exe");
  EXPECT_THAT(Entries(list_), ElementsAre(u"B.exe", u"D.EXE.ZIP", u"E.exe2"));
}

TEST_F(FileListBoxTest, HiddenFilesTakePartIfSwitchedOn) {
  disc_.File(".CACHE.EXE");
  disc_.Hide(".CACHE.EXE");
  disc_.File("JEU.EXE");
  list_.SetPath(u"D:\\");
  EXPECT_THAT(Entries(list_), ElementsAre(u"JEU.EXE"));
  list_.SetHidden(true);
  list_.SetSystem(true);
  list_.SetPattern(u"*.exe");
  EXPECT_THAT(Entries(list_), ElementsAre(u".CACHE.EXE", u"JEU.EXE"));
}

// Counts the directories that are read.
class CountingPlatform : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;
  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    ++searches;
    return ForwardingFiles::FindFirstFile(pattern, data);
  }
  int searches = 0;
};

// One search, with attributes that no test can set on every system.
class SystemFilePlatform : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;
  FindHandle FindFirstFile(const Text&, FindData& data) override {
    data = {kAttributeSystem, u"IO.SYS"};
    return FindHandle{7};
  }
  bool FindNextFile(FindHandle, FindData&) override { return false; }
  void FindClose(FindHandle) override {}
};

TEST_F(FileListBoxTest, SystemFilesTakePartIfSwitchedOn) {
  SystemFilePlatform platform(disc_.GetPlatform());
  PartScope scope(platform);
  list_.SetPath(u"D:\\");
  EXPECT_THAT(Entries(list_), IsEmpty());
  list_.SetSystem(true);
  list_.SetPath(u"D:\\");
  EXPECT_THAT(Entries(list_), ElementsAre(u"IO.SYS"));
}

TEST_F(FileListBoxTest, AMissingDirectoryRaisesAndKeepsTheFormerOne) {
  disc_.File("JEUX/A.EXE");
  list_.SetPath(u"D:\\JEUX\\");
  EXPECT_EQ(ErrorOf([&] { list_.SetPath(u"D:\\RIEN"); }), ErrorNumber::kPathNotFound);
  EXPECT_EQ(ErrorOf([&] { list_.SetPath(u"D:\\JEUX\\A.EXE"); }), ErrorNumber::kPathNotFound);
  EXPECT_EQ(ErrorOf([&] { list_.SetPath(u""); }), ErrorNumber::kPathNotFound);
  EXPECT_EQ(list_.Path(), u"D:\\JEUX");
  EXPECT_THAT(Entries(list_), ElementsAre(u"A.EXE"));
}

TEST_F(FileListBoxTest, AnEmptyRootIsADirectoryWithoutFiles) {
  list_.SetPath(u"D:\\");
  EXPECT_EQ(list_.Path(), u"D:\\");
  EXPECT_EQ(list_.ListCount(), 0);
  EXPECT_EQ(list_.List(0), u"");
  EXPECT_EQ(list_.List(-1), u"");
}

TEST_F(FileListBoxTest, APatternWithoutPathReadsNothing) {
  list_.SetPattern(u"*.exe");
  EXPECT_EQ(list_.ListCount(), 0);
}

TEST_F(FileListBoxTest, ThePatternReadsTheDirectoryAgain) {
  disc_.File("A.EXE");
  list_.SetPath(u"D:\\");
  disc_.File("B.EXE");
  list_.SetPattern(u"*.exe");
  EXPECT_THAT(Entries(list_), ElementsAre(u"A.EXE", u"B.EXE"));
}

TEST_F(FileListBoxTest, ShowReadsNothingThatHasBeenRead) {
  disc_.File("JEUX/A.EXE");
  disc_.File("JEUX/B.TXT");
  const auto entries = EntriesOf(u"D:\\JEUX");
  CountingPlatform counting(CurrentPlatform());
  PartScope scope(counting);
  list_.Show(u"D:\\JEUX\\", entries.get(), u"*.txt");
  EXPECT_THAT(Entries(list_), ElementsAre(u"B.TXT"));
  EXPECT_EQ(list_.Path(), u"D:\\JEUX");
  EXPECT_EQ(list_.Pattern(), u"*.txt");
  EXPECT_EQ(counting.searches, 0);
}

TEST_F(FileListBoxTest, ShowOfAMissingDirectoryKeepsPathAndPattern) {
  disc_.File("JEUX/A.EXE");
  list_.Show(u"D:\\JEUX", EntriesOf(u"D:\\JEUX").get(), u"*.exe");
  EXPECT_THROW(list_.Show(u"D:\\RIEN", nullptr, u"*.txt"), RuntimeError);
  EXPECT_EQ(list_.Path(), u"D:\\JEUX");
  EXPECT_EQ(list_.Pattern(), u"*.exe");
  EXPECT_THAT(Entries(list_), ElementsAre(u"A.EXE"));
}

class DirListBoxTest : public testing::Test {
 protected:
  TestDisc disc_;
  DirListBox list_;
};

TEST_F(DirListBoxTest, ListsTheChildrenAsFullNames) {
  disc_.Directory("JEUX/ZOO");
  disc_.Directory("JEUX/arbre");
  disc_.File("JEUX/FICHIER.EXE");
  list_.SetPath(u"D:\\JEUX");
  EXPECT_THAT(Entries(list_), ElementsAre(u"D:\\JEUX\\arbre", u"D:\\JEUX\\ZOO"));
  EXPECT_EQ(list_.ListIndex(), -1);
  EXPECT_EQ(list_.List(2), u"");
}

TEST_F(DirListBoxTest, NegativeIndicesClimbToTheRoot) {
  disc_.Directory("JEUX/DAMES");
  list_.SetPath(u"D:\\JEUX\\DAMES");
  EXPECT_EQ(list_.Depth(), 2);
  EXPECT_EQ(list_.List(-1), u"D:\\JEUX\\DAMES");
  EXPECT_EQ(list_.List(-2), u"D:\\JEUX");
  EXPECT_EQ(list_.List(-3), u"D:\\");
  EXPECT_EQ(list_.List(-4), u"");
}

TEST_F(DirListBoxTest, TheRootKeepsItsBackslash) {
  disc_.Directory("JEUX");
  list_.SetPath(u"D:\\");
  EXPECT_EQ(list_.List(-1), u"D:\\");
  EXPECT_EQ(list_.List(0), u"D:\\JEUX");
  EXPECT_EQ(list_.Depth(), 0);
}

TEST_F(DirListBoxTest, ADriveStandsForItsRoot) {
  disc_.Directory("JEUX");
  list_.SetPath(u"d: [DISQUE]");
  EXPECT_EQ(list_.Path(), u"D:\\");
  list_.SetPath(u"D:\\JEUX\\");
  EXPECT_EQ(list_.Path(), u"D:\\JEUX");
  list_.SetPath(u"d:");
  EXPECT_EQ(list_.Path(), u"D:\\");
}

TEST_F(DirListBoxTest, TheHighlightedEntryIsNotYetThePath) {
  disc_.Directory("JEUX/DAMES");
  int changes = 0;
  list_.on_change = [&] { ++changes; };
  list_.SetPath(u"D:\\");
  list_.SetListIndex(0);
  EXPECT_EQ(list_.Path(), u"D:\\");
  EXPECT_EQ(list_.List(list_.ListIndex()), u"D:\\JEUX");
  EXPECT_EQ(changes, 1);
  list_.Open();
  EXPECT_EQ(list_.Path(), u"D:\\JEUX");
  EXPECT_EQ(list_.ListIndex(), -1);
  EXPECT_EQ(changes, 2);
  list_.SetListIndex(-2);
  list_.Open();
  EXPECT_EQ(list_.Path(), u"D:\\");
}

TEST_F(DirListBoxTest, AnEntryThatDoesNotExistCannotBeHighlighted) {
  disc_.Directory("JEUX");
  list_.SetPath(u"D:\\");
  EXPECT_EQ(ErrorOf([&] { list_.SetListIndex(1); }), ErrorNumber::kInvalidProperty);
  EXPECT_EQ(ErrorOf([&] { list_.SetListIndex(-2); }), ErrorNumber::kInvalidProperty);
}

TEST_F(DirListBoxTest, AMissingDirectoryOrDriveRaisesAndKeepsTheFormerPath) {
  disc_.Directory("JEUX");
  list_.SetPath(u"D:\\JEUX");
  EXPECT_EQ(ErrorOf([&] { list_.SetPath(u"D:\\RIEN"); }), ErrorNumber::kPathNotFound);
  EXPECT_EQ(ErrorOf([&] { list_.SetPath(u"Q:\\"); }), ErrorNumber::kDeviceUnavailable);
  EXPECT_EQ(list_.Path(), u"D:\\JEUX");
}

TEST_F(DirListBoxTest, UpdatingReadsTheChildrenAgainAndKeepsTheHighlightedOne) {
  disc_.Directory("JEUX");
  disc_.Directory("UTIL");
  list_.SetPath(u"D:\\");
  list_.SetListIndex(1);
  int changes = 0;
  list_.on_change = [&] { ++changes; };
  disc_.Directory("ARTS");
  list_.Update();
  EXPECT_THAT(Entries(list_), ElementsAre(u"D:\\ARTS", u"D:\\JEUX", u"D:\\UTIL"));
  EXPECT_EQ(list_.ListIndex(), 2);
  disc_.Remove("UTIL");
  list_.Update();
  EXPECT_EQ(list_.ListIndex(), -1) << "what was highlighted has gone";
  EXPECT_EQ(changes, 0);
}

TEST_F(DirListBoxTest, APathThatHasGoneFallsBackToItsNearestParent) {
  disc_.Directory("JEUX/ARCADE/PAVES");
  disc_.Directory("JEUX/CARTES");
  list_.SetPath(u"D:\\JEUX\\ARCADE\\PAVES");
  list_.SetListIndex(-3);
  int changes = 0;
  list_.on_change = [&] { ++changes; };
  disc_.Remove("JEUX/ARCADE");
  list_.Update();
  EXPECT_EQ(list_.Path(), u"D:\\JEUX");
  EXPECT_THAT(Entries(list_), ElementsAre(u"D:\\JEUX\\CARTES"));
  EXPECT_EQ(list_.List(list_.ListIndex()), u"D:\\JEUX");
  EXPECT_EQ(changes, 1);
}

// A drive whose disc can be taken out.
class TrayPlatform : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;
  bool GetFileStatus(const Text& name, FileStatus& status) override {
    return !open && ForwardingFiles::GetFileStatus(name, status);
  }
  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    if (!open) return ForwardingFiles::FindFirstFile(pattern, data);
    data = {};
    return FindHandle::kInvalid;
  }
  bool open = false;
};

TEST_F(DirListBoxTest, WithoutADiscTheRootIsLeftAndTheNextDiscIsShown) {
  TrayPlatform tray(disc_.GetPlatform());
  PartScope scope(tray);
  disc_.Directory("JEUX/ARCADE");
  list_.SetPath(u"D:\\JEUX\\ARCADE");
  tray.open = true;
  list_.Update();
  EXPECT_EQ(list_.Path(), u"D:\\");
  EXPECT_EQ(list_.ListCount(), 0);
  list_.Update();
  EXPECT_EQ(list_.Path(), u"D:\\");
  disc_.Remove("JEUX");
  disc_.Directory("UTIL");
  tray.open = false;
  list_.Update();
  EXPECT_THAT(Entries(list_), ElementsAre(u"D:\\UTIL"));
}

TEST_F(DirListBoxTest, WithoutAPathThereIsNothingToUpdate) {
  list_.Update();
  EXPECT_EQ(list_.Path(), u"");
}

// A share of the network, all directories.
class SharePlatform : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;
  bool GetFileStatus(const Text& name, FileStatus& status) override {
    status = {kAttributeDirectory, 0, {}};
    return name.starts_with(there);
  }
  FindHandle FindFirstFile(const Text&, FindData& data) override {
    data = {};
    return FindHandle::kInvalid;
  }
  Text there = u"\\\\serveur\\disques";
};

TEST_F(DirListBoxTest, AShareHasNoParent) {
  SharePlatform share(disc_.GetPlatform());
  PartScope scope(share);
  list_.SetPath(u"\\\\serveur\\disques\\jeux");
  EXPECT_EQ(list_.Depth(), 1);
  EXPECT_EQ(list_.List(-2), u"\\\\serveur\\disques");
  share.there = u"nulle part";
  list_.Update();
  EXPECT_EQ(list_.Path(), u"\\\\serveur\\disques");
}

// Drives that a test spells out; a floppy and a drive of the network among them.
class DrivesPlatform : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;
  std::uint32_t GetLogicalDrives() override { return mask; }
  DriveType GetDriveType(const Text& root) override {
    if (root == u"A:\\") return DriveType::kRemovable;
    return root == u"Z:\\" ? DriveType::kRemote : DriveType::kFixed;
  }
  Text GetVolumeLabel(const Text& root) override {
    asked += root[0];
    return root == u"C:\\" ? label : root == u"A:\\" ? u"DISQUETTE" : u"";
  }
  Text GetCurrentDirectory() override { return current; }

  std::uint32_t mask = 1u << 0 | 1u << 2 | 1u << 25;
  Text label = u"SYSTEME";
  Text current = u"c:\\JEUX";
  Text asked;
};

class DriveListBoxTest : public testing::Test {
 protected:
  DriveListBoxTest() {
    list_.on_change = [this] { ++changes_; };
    list_.Reread();
  }
  TestDisc disc_;
  DrivesPlatform platform_{disc_.GetPlatform()};
  PartScope<DrivesPlatform> scope_{platform_};
  DriveListBox list_;
  int changes_ = 0;
};

TEST_F(DriveListBoxTest, ListsTheDrivesWithTheirLabels) {
  EXPECT_THAT(Entries(list_), ElementsAre(u"a:", u"c: [SYSTEME]", u"z:"));
}

TEST_F(DriveListBoxTest, SelectsTheCurrentDriveWithoutAnEvent) {
  EXPECT_EQ(list_.Drive(), u"c: [SYSTEME]");
  EXPECT_EQ(changes_, 0);
}

TEST_F(DriveListBoxTest, ANewDriveRaisesTheChange) {
  list_.SetDrive(u"Z:\\JEUX");
  EXPECT_EQ(list_.Drive(), u"z:");
  EXPECT_EQ(changes_, 1);
  list_.SetListIndex(2);
  EXPECT_EQ(changes_, 1) << "the one already selected";
  list_.SetListIndex(0);
  EXPECT_EQ(changes_, 2);
}

TEST_F(DriveListBoxTest, ADriveThatIsNotThereIsAnError) {
  EXPECT_EQ(ErrorOf([&] { list_.SetDrive(u"q:"); }), ErrorNumber::kDeviceUnavailable);
  EXPECT_EQ(ErrorOf([&] { list_.SetDrive(u""); }), ErrorNumber::kDeviceUnavailable);
  EXPECT_EQ(ErrorOf([&] { list_.SetListIndex(3); }), ErrorNumber::kInvalidProperty);
  EXPECT_EQ(ErrorOf([&] { list_.SetListIndex(-1); }), ErrorNumber::kInvalidProperty);
  EXPECT_EQ(list_.Drive(), u"c: [SYSTEME]");
}

TEST_F(DriveListBoxTest, AtTheStartOnlyDrivesThatAnswerAtOnceAreAskedForTheirLabels) {
  EXPECT_EQ(platform_.asked, u"C");
  platform_.asked.clear();
  platform_.current = u"A:\\";
  list_.Reread();
  EXPECT_EQ(platform_.asked, u"C") << "the program's own drive was not chosen";
  list_.Update();
  EXPECT_EQ(platform_.asked, u"CC");
}

TEST_F(DriveListBoxTest, AFloppyIsAskedWhileItIsTheOneThatWasChosen) {
  list_.SetListIndex(0);
  list_.Update();
  EXPECT_EQ(list_.Drive(), u"a: [DISQUETTE]");
  EXPECT_EQ(changes_, 1);
  list_.SetListIndex(1);
  platform_.asked.clear();
  list_.Update();
  EXPECT_EQ(platform_.asked, u"C");
  EXPECT_EQ(list_.List(0), u"a:");
}

TEST_F(DriveListBoxTest, UpdatingShowsNewLabelsAndDrivesAndKeepsTheSelectedOne) {
  platform_.label = u"AUTRE";
  platform_.mask |= 1u << 1;
  list_.Update();
  EXPECT_THAT(Entries(list_), ElementsAre(u"a:", u"b:", u"c: [AUTRE]", u"z:"));
  EXPECT_EQ(list_.Drive(), u"c: [AUTRE]");
  EXPECT_EQ(changes_, 0);
}

TEST_F(DriveListBoxTest, ADriveThatHasGoneLeavesNoneSelected) {
  platform_.mask = 1u << 25;
  list_.Update();
  EXPECT_EQ(list_.ListIndex(), -1);
  EXPECT_EQ(list_.Drive(), u"");
  list_.Update();
  EXPECT_EQ(changes_, 0);
}

TEST_F(DriveListBoxTest, ADriveThatComesBackIsSelectedAgain) {
  platform_.mask = 1u << 25;
  list_.Update();
  platform_.mask = 1u << 2 | 1u << 25;
  list_.Update();
  EXPECT_EQ(list_.Drive(), u"c: [SYSTEME]");
  EXPECT_EQ(changes_, 0);
}

TEST_F(DriveListBoxTest, ADriveThatComesBackLeavesTheOneThatWasChosenMeanwhile) {
  platform_.mask = 1u << 25;
  list_.Update();
  list_.SetDrive(u"z:");
  platform_.mask = 1u << 2 | 1u << 25;
  list_.Update();
  EXPECT_EQ(list_.Drive(), u"z:");
}

TEST_F(DriveListBoxTest, TheDriveThatIsSelectedCanBeChosenAgain) {
  int again = 0;
  list_.on_again = [&] { ++again; };
  list_.Choose(1);
  EXPECT_EQ(again, 1);
  EXPECT_EQ(changes_, 0);
  list_.Choose(0);
  EXPECT_EQ(again, 1);
  EXPECT_EQ(changes_, 1);
}

}  // namespace
}  // namespace trovex::test
