#include "Apps/trovex-aide/BTree.h"

#include <cstdio>

#include "AideTest.h"
#include "Apps/trovex-aide/Bytes.h"
#include "HelpReader.h"

namespace trovex::test {
namespace {

std::vector<TreeEntry> Entries(int count) {
  std::vector<TreeEntry> entries;
  for (int i = 0; i < count; ++i) {
    char name[16];
    std::snprintf(name, sizeof name, "nom%05d", i);
    entries.push_back({Bytes().Zero(name).Get(), Bytes().U32(static_cast<uint32_t>(i)).Get()});
  }
  return entries;
}

ReadTree BuiltAndRead(int count) {
  const Tree tree = BuildTree("z4", TreeUse::kDirectory, Entries(count));
  const ReadTree read = ReadTreeOf(tree.bytes, kDirectoryTree, 0x400);
  EXPECT_EQ(tree.first_entry_of_leaf, read.first_entry_of_leaf);
  EXPECT_EQ(read.entries.size(), static_cast<size_t>(count));
  for (int i = 0; i < count; ++i) {
    EXPECT_EQ(ByteView(read.entries[static_cast<size_t>(i)].data).U32(), static_cast<uint32_t>(i));
  }
  return read;
}

TEST(TreeTest, NoEntryIsOneEmptyLeaf) {
  const ReadTree tree = BuiltAndRead(0);
  EXPECT_EQ(tree.pages, 1U);
  EXPECT_EQ(tree.levels, 1U);
}

// 8 bytes of head and 13 an entry: 78 fill a page of 1024 but two bytes.
TEST(TreeTest, AFullLeafIsStillOne) {
  EXPECT_EQ(BuiltAndRead(78).levels, 1U);
}

TEST(TreeTest, OneEntryMoreMakesASecondLeafAndAnIndex) {
  const ReadTree tree = BuiltAndRead(79);
  EXPECT_EQ(tree.pages, 3U);
  EXPECT_EQ(tree.levels, 2U);
}

// An index page leads to 93 others: 8000 entries take 103 leaves, two index pages and a root.
TEST(TreeTest, ManyEntriesMakeThreeLevels) {
  const ReadTree tree = BuiltAndRead(8000);
  EXPECT_EQ(tree.first_entry_of_leaf.size(), 103U);
  EXPECT_EQ(tree.pages, 106U);
  EXPECT_EQ(tree.levels, 3U);
}

TEST(TreeTest, TheReaderObjectsToEntriesOutOfOrder) {
  std::vector<TreeEntry> entries = Entries(2);
  std::swap(entries[0], entries[1]);
  const Tree tree = BuildTree("z4", TreeUse::kDirectory, entries);
  EXPECT_THROW(ReadTreeOf(tree.bytes, kDirectoryTree, 0x400), BadHelpFile);
}

TEST(BytesTest, ShortFormsOfNumbers) {
  for (const int number : {-16384, -65, -64, 0, 63, 64, 16383}) {
    EXPECT_EQ(ByteView(Bytes().Short(number).Get()).Short(), number);
  }
  for (const int number : {0, 127, 128, 32767}) {
    EXPECT_EQ(ByteView(Bytes().UShort(number).Get()).UShort(), static_cast<uint32_t>(number));
  }
  for (const int number : {0, 16383, 16384, 1000000}) {
    EXPECT_EQ(ByteView(Bytes().Long(number).Get()).Long(), number);
  }
  EXPECT_EQ(Bytes().Short(63).Size(), 1U);
  EXPECT_EQ(Bytes().Short(64).Size(), 2U);
  EXPECT_EQ(Bytes().Long(16384).Size(), 4U);
}

}  // namespace
}  // namespace trovex::test
