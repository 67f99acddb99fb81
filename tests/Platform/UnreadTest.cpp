#include "Platform/Unread.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/ForwardingPlatform.h"
#include "Platform/HeldDirectory.h"
#include "support/TestDisc.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

TEST(Unread, NamesComeOnceEachInOrderWhateverTheirCase) {
  Unread unread;
  EXPECT_TRUE(unread.IsEmpty());
  for (const TextView name : {u"D:\\b.exe", u"D:\\A.EXE", u"D:\\B.EXE", u"D:\\JEUX"})
    unread.Add(name);
  EXPECT_THAT(unread.Names(), ElementsAre(u"D:\\A.EXE", u"D:\\b.exe", u"D:\\JEUX"));
  EXPECT_FALSE(unread.IsEmpty());
}

TEST(Unread, RowsLeftOutAreCountedByTable) {
  Unread unread;
  unread.AddRow(2);
  unread.AddRow(1);
  unread.AddRow(2);
  EXPECT_THAT(unread.Rows(), ElementsAre(Pair(1, 1), Pair(2, 2)));
  EXPECT_FALSE(unread.IsEmpty());
}

TEST(Unread, OnlyTheListInPlaceIsToldAndTheFormerComesBack) {
  Unread outer, inner;
  NoteUnread(u"D:\\PERSONNE");
  {
    UnreadScope first(outer);
    {
      UnreadScope second(inner);
      NoteUnread(u"D:\\A");
      NoteLeftOut(0);
    }
    NoteUnread(u"D:\\B");
  }
  NoteLeftOut(1);
  EXPECT_THAT(inner.Names(), ElementsAre(u"D:\\A"));
  EXPECT_THAT(inner.Rows(), ElementsAre(Pair(0, 1)));
  EXPECT_THAT(outer.Names(), ElementsAre(u"D:\\B"));
  EXPECT_THAT(outer.Rows(), IsEmpty());
}

// A disc that breaks off after a few entries of each directory.
class Scratched : public ForwardingPlatform {
 public:
  using ForwardingPlatform::ForwardingPlatform;

  bool FindNextFile(FindHandle handle, FindData& data) override {
    if (left-- == 0) throw RuntimeError(ErrorNumber::kDeviceIo);
    return ForwardingPlatform::FindNextFile(handle, data);
  }

  int left = 1;
};

TEST(HeldDirectory, ASearchThatBreaksOffGivesWhatWasReadAndSaysSo) {
  TestDisc disc;
  for (const char* name : {"A.TXT", "B.TXT", "C.TXT"}) disc.File(name);
  Scratched scratched(disc.GetPlatform());
  const auto held = scratched.OpenDirectory(u"D:\\");
  ASSERT_TRUE(held);
  EXPECT_FALSE(held->IsWhole());
  std::size_t place = 0, count = 0;
  for (ListedEntry entry; held->Entries()->Next(place, entry);) ++count;
  EXPECT_EQ(count, 2u);
  scratched.left = 100;
  EXPECT_TRUE(scratched.OpenDirectory(u"D:\\")->IsWhole());
}

// As where the only entries that could be read are none for the program.
TEST(HeldDirectory, ASearchThatBreaksOffAtItsBeginningIsHeldWithoutEntriesAndSaysSo) {
  class Broken : public ForwardingPlatform {
   public:
    using ForwardingPlatform::ForwardingPlatform;
    FindHandle FindFirstFile(const Text&, FindData&) override {
      throw RuntimeError(ErrorNumber::kDeviceIo);
    }
  };
  TestDisc disc;
  disc.File("JEUX/A.TXT");
  Broken broken(disc.GetPlatform());
  for (const TextView directory : {u"D:\\", u"D:\\JEUX"}) {
    const auto held = broken.OpenDirectory(Text(directory));
    ASSERT_TRUE(held);
    EXPECT_FALSE(held->IsWhole());
    std::size_t place = 0;
    ListedEntry entry;
    EXPECT_FALSE(held->Entries()->Next(place, entry));
  }
}

TEST(HeldDirectory, AFileThatCannotBeReadHasItsStatusAlone) {
  class Locked : public ForwardingPlatform {
   public:
    using ForwardingPlatform::ForwardingPlatform;
    std::uint32_t GetFileVersionInfoSize(const Text&) override {
      throw RuntimeError(ErrorNumber::kPermissionDenied);
    }
  };
  TestDisc disc;
  disc.File("A.EXE", "MZ");
  Locked locked(disc.GetPlatform());
  const auto held = locked.OpenDirectory(u"D:\\");
  ListedEntry entry;
  ASSERT_TRUE(held->Entries()->Find(u"A.EXE", entry));
  FileStatus status;
  std::string record = "reste";
  EXPECT_EQ(held->GetFileProperties(entry, status, record), Reading::kStatus);
  EXPECT_EQ(status.length, 2);
  EXPECT_EQ(record, "");
}

}  // namespace
}  // namespace trovex::test
