// Directories in hand: those of the platform itself, and those that go through its operations.
#include "Platform/HeldDirectory.h"

#include "Platform/ForwardingPlatform.h"
#include "Platform/contract/Contract.h"
#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

enum class Way { kOwn, kThroughOperations };

class HeldDirectoryContract : public Contract, public testing::WithParamInterface<Way> {
 protected:
  Platform& Asked() { return GetParam() == Way::kOwn ? platform_ : through_; }

  std::shared_ptr<HeldDirectory> Open(const Text& name) { return Asked().OpenDirectory(name); }

  static std::vector<Text> Names(const DirectoryEntries& entries) {
    std::vector<Text> names;
    ListedEntry entry;
    for (std::size_t place = 0; entries.Next(place, entry);) names.emplace_back(entry.name);
    return names;
  }

  static ListedEntry Entry(const HeldDirectory& directory, TextView name) {
    ListedEntry entry;
    EXPECT_TRUE(directory.Entries()->Find(name, entry));
    return entry;
  }

  std::string Rest(FileHandle file) {
    char piece[100];
    const std::string contents(piece, platform_.Read(file, piece, sizeof piece));
    platform_.Close(file);
    return contents;
  }

  ForwardingPlatform through_{platform_};
};

TEST_P(HeldDirectoryContract, HoldsFilesAndDirectoriesWithoutSelfAndParent) {
  disc_.File("JEUX/SETUP.EXE");
  disc_.Directory("JEUX/Dames");
  const auto held = Open(u"D:\\JEUX");
  ASSERT_TRUE(held);
  EXPECT_THAT(Names(*held->Entries()), UnorderedElementsAre(u"SETUP.EXE", u"Dames"));
  EXPECT_TRUE(Entry(*held, u"Dames").attributes & kAttributeDirectory);
  EXPECT_FALSE(Entry(*held, u"SETUP.EXE").attributes & kAttributeDirectory);
}

TEST_P(HeldDirectoryContract, ComesInTheOrderOfASearch) {
  for (const char* name : {"b.exe", "A.EXE", "_.EXE", "PROGRAMME1.EXE", "programme.exe", "C"}) {
    disc_.File(name);
  }
  EXPECT_EQ(Names(*Open(u"D:\\")->Entries()), FindAll(u"D:\\*.*"));
}

TEST_P(HeldDirectoryContract, ADriveWithoutBackslashIsItsRoot) {
  disc_.File("JEUX/A.EXE");
  platform_.ChangeDirectory(u"D:\\JEUX");
  const auto held = Open(u"D:");
  platform_.ChangeDirectory(u"D:\\");
  EXPECT_THAT(Names(*held->Entries()), ElementsAre(u"JEUX"));
}

TEST_P(HeldDirectoryContract, AnEmptyDirectoryAndAnEmptyRootAreHeldWithoutEntries) {
  EXPECT_THAT(Names(*Open(u"D:\\")->Entries()), IsEmpty());
  EXPECT_THAT(Names(*Open(u"D:")->Entries()), IsEmpty());
  disc_.Directory("JEUX");
  EXPECT_THAT(Names(*Open(u"D:\\JEUX")->Entries()), IsEmpty());
  EXPECT_THAT(Names(*Open(u"D:\\JEUX\\")->Entries()), IsEmpty());
  EXPECT_TRUE(Open(u"D:\\JEUX")->IsWhole());
}

TEST_P(HeldDirectoryContract, NothingIsHeldOfWhatIsMissingOrAFile) {
  disc_.File("A.TXT");
  EXPECT_FALSE(Open(u"D:\\RIEN"));
  EXPECT_FALSE(Open(u"D:\\A.TXT"));
  EXPECT_FALSE(Open(u""));
}

TEST_P(HeldDirectoryContract, FindsNamesWithoutRegardToCase) {
  for (const char* name : {"SETUP.LST", "Programme.exe", "Programm", "\xC3\xA9t\xC3\xA9.txt"}) {
    disc_.File(name);
  }
  const auto held = Open(u"D:\\");
  EXPECT_EQ(Entry(*held, u"setup.lst").name, u"SETUP.LST");
  EXPECT_EQ(Entry(*held, u"PROGRAMME.EXE").name, u"Programme.exe");
  EXPECT_EQ(Entry(*held, u"PROGRAMM").name, u"Programm");
  EXPECT_EQ(Entry(*held, u"ÉTÉ.TXT").name, u"été.txt");
  ListedEntry entry{7, 0, u"reste"};
  for (const TextView name : {u"", u"SETUP", u"SETUP.LST2", u"PROGRAMME", u"ZZZ", u"."}) {
    EXPECT_FALSE(held->Entries()->Find(name, entry)) << name.size();
  }
  EXPECT_EQ(entry.number, 7u);
  EXPECT_EQ(entry.name, u"reste");
}

TEST_P(HeldDirectoryContract, TellsTheStatusOfAnEntry) {
  disc_.File("A.TXT", "12345", {1996, 2, 29, 10, 20, 30});
  disc_.Directory("JEUX");
  const auto held = Open(u"D:\\");
  FileStatus status;
  ASSERT_TRUE(held->GetFileStatus(Entry(*held, u"A.TXT"), status));
  EXPECT_EQ(status.length, 5);
  EXPECT_EQ(status.modified, (LocalTime{1996, 2, 29, 10, 20, 30}));
  ASSERT_TRUE(held->GetFileStatus(Entry(*held, u"JEUX"), status));
  EXPECT_TRUE(status.attributes & kAttributeDirectory);
  EXPECT_EQ(status.length, 0);
}

TEST_P(HeldDirectoryContract, OpensFilesAndDirectoriesItHolds) {
  disc_.File("JEUX/DAMES/README.TXT", "texte");
  const auto games = Open(u"D:\\JEUX");
  const auto draughts = games->OpenDirectory(Entry(*games, u"dames"));
  ASSERT_TRUE(draughts);
  EXPECT_EQ(Rest(draughts->OpenRead(Entry(*draughts, u"README.TXT"))), "texte");
  EXPECT_FALSE(draughts->OpenDirectory(Entry(*draughts, u"README.TXT")));
  EXPECT_EQ(ErrorOf([&] { games->OpenRead(Entry(*games, u"DAMES")); }),
            ErrorNumber::kPathFileAccess);
}

TEST_P(HeldDirectoryContract, ReadsRecordsAndIcons) {
  const std::string block = VersionBlock8({{"FileVersion", "1.0"}});
  disc_.File("A.EXE", NeExecutable(block));
  disc_.File("B.EXE", DosExecutable());
  disc_.File("C.ICO", IconFile());
  const auto held = Open(u"D:\\");
  FileStatus status;
  std::string record = "reste";
  EXPECT_EQ(held->GetFileProperties(Entry(*held, u"A.EXE"), status, record), Reading::kAll);
  EXPECT_EQ(record, block);
  EXPECT_EQ(status.length, static_cast<std::int64_t>(NeExecutable(block).size()));
  EXPECT_EQ(held->GetFileProperties(Entry(*held, u"B.EXE"), status, record), Reading::kAll);
  EXPECT_EQ(record, "");
  EXPECT_EQ(held->ExtractIconEx(Entry(*held, u"C.ICO"), 0), 1);
  EXPECT_EQ(held->ExtractIconEx(Entry(*held, u"B.EXE"), 0), 0);
}

TEST_P(HeldDirectoryContract, AnEntryThatHasGoneIsMissing) {
  disc_.File("A.TXT", "texte");
  disc_.File("JEUX/B.TXT");
  const auto held = Open(u"D:\\");
  const ListedEntry file = Entry(*held, u"A.TXT"), directory = Entry(*held, u"JEUX");
  disc_.Remove("A.TXT");
  disc_.Remove("JEUX");
  FileStatus status;
  std::string record = "reste";
  EXPECT_FALSE(held->GetFileStatus(file, status));
  EXPECT_EQ(held->GetFileProperties(file, status, record), Reading::kNothing);
  EXPECT_EQ(record, "");
  EXPECT_EQ(held->ExtractIconEx(file, 0), 0);
  EXPECT_EQ(ErrorOf([&] { held->OpenRead(file); }), ErrorNumber::kFileNotFound);
  EXPECT_FALSE(held->OpenDirectory(directory));
}

TEST_P(HeldDirectoryContract, EntriesStayAsTheyWereRead) {
  disc_.File("A.TXT");
  const auto entries = Open(u"D:\\")->Entries();
  disc_.File("B.TXT");
  EXPECT_THAT(Names(*entries), ElementsAre(u"A.TXT"));
  EXPECT_THAT(Names(*Open(u"D:\\")->Entries()), UnorderedElementsAre(u"A.TXT", u"B.TXT"));
}

TEST_P(HeldDirectoryContract, StatusAndRecordComeAtOnce) {
  const std::string block = VersionBlock8({{"FileVersion", "1.0"}});
  disc_.File("A.EXE", NeExecutable(block), {1996, 2, 29, 10, 20, 30});
  disc_.File("VIDE.EXE");
  FileStatus status;
  std::string record;
  EXPECT_EQ(Asked().GetFileProperties(u"D:\\A.EXE", status, record), Reading::kAll);
  EXPECT_EQ(record, block);
  EXPECT_EQ(status.modified, (LocalTime{1996, 2, 29, 10, 20, 30}));
  EXPECT_EQ(Asked().GetFileProperties(u"D:\\VIDE.EXE", status, record), Reading::kAll);
  EXPECT_EQ(record, "");
  EXPECT_EQ(status.length, 0);
  record = "reste";
  EXPECT_EQ(Asked().GetFileProperties(u"D:\\RIEN.EXE", status, record), Reading::kNothing);
  EXPECT_EQ(record, "");
}

INSTANTIATE_TEST_SUITE_P(Ways, HeldDirectoryContract,
                         testing::Values(Way::kOwn, Way::kThroughOperations));

}  // namespace
}  // namespace trovex::test
