// The builder of sample files is held against bytes read here by offsets, without its own code.
#include "support/ExecutableBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "Platform/Encoding.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

std::size_t U8(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes.at(at));
}
std::size_t U16(std::string_view bytes, std::size_t at) {
  return U8(bytes, at) | U8(bytes, at + 1) << 8;
}
std::size_t U32(std::string_view bytes, std::size_t at) {
  return U16(bytes, at) | U16(bytes, at + 2) << 16;
}
std::size_t Up4(std::size_t offset) {
  return (offset + 3) & ~std::size_t{3};
}

const VersionStrings kStrings = {{"CompanyName", "Soci\xE9t\xE9"}, {"FileDescription", "Jeu"},
                                 {"FileVersion", "1.2"},           {"InternalName", "JEU"},
                                 {"LegalCopyright", "\xA9 1996"},  {"OriginalFilename", "JEU.EXE"},
                                 {"ProductName", "Mon Jeu"},       {"ProductVersion", "1.20"}};

// --- Version records ----------------------------------------------------------------------------

// Every string found in a record, keys and values in cp1252.
struct Walk {
  std::string_view block;
  bool wide;
  VersionStrings strings;
  std::vector<std::string> branches;

  std::string TextAt(std::size_t& at) const {
    Text text;
    const std::size_t step = wide ? 2 : 1;
    for (std::size_t unit; (unit = wide ? U16(block, at) : U8(block, at)) != 0; at += step) {
      text.push_back(static_cast<char16_t>(unit));
    }
    at += step;
    return ToCp1252(text);
  }

  // Reads the node at `start`, `depth` levels below the root, and gives its end.
  std::size_t Node(std::size_t start, int depth) {
    EXPECT_EQ(start % 4, 0U);
    const std::size_t end = start + U16(block, start);
    const bool text = wide && U16(block, start + 4) == 1;
    const std::size_t value_size = U16(block, start + 2) * (text ? 2 : 1);
    std::size_t at = start + (wide ? 6 : 4);
    const std::string key = TextAt(at);
    at = Up4(at);
    if (depth == 3) {
      std::size_t value = at;
      strings.emplace_back(key, key == "Translation" ? Hex(value) : TextAt(value));
      if (key != "Translation") {
        EXPECT_EQ(value, at + value_size) << key;
      }
    } else {
      branches.push_back(key);
    }
    at += value_size;
    while (Up4(at) < end) at = Node(Up4(at), depth + (key == "VarFileInfo" ? 2 : 1));
    EXPECT_EQ(at, end) << key;
    return end;
  }

  std::string Hex(std::size_t at) const {
    return std::to_string(U16(block, at)) + "," + std::to_string(U16(block, at + 2));
  }
};

void ExpectRecord(std::string_view block, bool wide) {
  Walk walk{block, wide, {}, {}};
  EXPECT_EQ(walk.Node(0, 0), block.size());
  VersionStrings expected = kStrings;
  expected.emplace_back("Translation", "1036,1252");
  EXPECT_EQ(walk.strings, expected);
  EXPECT_THAT(walk.branches,
              ElementsAre("VS_VERSION_INFO", "StringFileInfo", "040C04E4", "VarFileInfo"));
  const std::size_t fixed = wide ? Up4(6 + 2 * 16) : 4 + 16;
  EXPECT_EQ(U16(block, 2), 52U);
  EXPECT_EQ(U32(block, fixed), 0xFEEF04BDU);
}

TEST(ExecutableBuilderTest, TheEightBitRecordIsATreeOfNodes) {
  ExpectRecord(VersionBlock8(kStrings), false);
}

TEST(ExecutableBuilderTest, TheSixteenBitRecordIsATreeOfNodes) {
  ExpectRecord(VersionBlock16(kStrings), true);
}

TEST(ExecutableBuilderTest, AnEightBitValueStandsAFixedStepBehindItsKey) {
  const std::string block = VersionBlock8(kStrings);
  const std::map<std::string, std::size_t> steps = {
      {"CompanyName", 12},  {"FileDescription", 16}, {"FileVersion", 12},
      {"InternalName", 16}, {"LegalCopyright", 16},  {"OriginalFilename", 20},
      {"ProductName", 12},  {"ProductVersion", 16}};
  for (const auto& [key, value] : kStrings) {
    const std::size_t at = block.find(key);
    ASSERT_NE(at, std::string::npos) << key;
    EXPECT_EQ(at % 4, 0U) << key;
    EXPECT_STREQ(block.c_str() + at + steps.at(key), value.c_str());
  }
}

TEST(ExecutableBuilderTest, TheSixteenBitRecordHoldsNoEightBitKey) {
  EXPECT_EQ(VersionBlock16(kStrings).find("FileDescription"), std::string::npos);
}

// --- Resources of both formats ------------------------------------------------------------------

using ResourceMap = std::map<std::size_t, std::string>;  // by type; all names are 1

ResourceMap NeResources(std::string_view file) {
  const std::size_t header = U32(file, 0x3C);
  EXPECT_EQ(file.substr(0, 2), "MZ");
  EXPECT_EQ(file.substr(header, 2), "NE");
  const std::size_t table = header + U16(file, header + 0x24);
  ResourceMap found;
  if (table == header + U16(file, header + 0x26)) return found;  // the resident names: no table
  const std::size_t shift = U16(file, table);
  EXPECT_EQ(shift, 4U);
  for (std::size_t at = table + 2; U16(file, at) != 0; at += 20) {
    EXPECT_EQ(U16(file, at + 2), 1U);
    EXPECT_EQ(U16(file, at + 14), 0x8001U);
    found[U16(file, at)] = file.substr(U16(file, at + 8) << shift, U16(file, at + 10) << shift);
  }
  return found;
}

ResourceMap PeResources(std::string_view file) {
  const std::size_t pe = U32(file, 0x3C), optional = pe + 24, section = optional + 224;
  EXPECT_EQ(file.substr(pe, 4), std::string_view("PE\0\0", 4));
  EXPECT_EQ(U16(file, pe + 4), 0x014CU);
  EXPECT_EQ(U16(file, optional), 0x010BU);
  const std::size_t rva = U32(file, optional + 96 + 2 * 8);
  ResourceMap found;
  if (rva == 0) return found;
  EXPECT_EQ(U16(file, pe + 6), 1U);
  EXPECT_EQ(file.substr(section, 6), std::string_view(".rsrc\0", 6));
  EXPECT_EQ(U32(file, section + 12), rva);
  EXPECT_EQ(U32(file, section + 8), U32(file, optional + 96 + 2 * 8 + 4));
  const std::string_view tree = file.substr(U32(file, section + 20), U32(file, section + 16));
  for (std::size_t i = 0; i < U16(tree, 14); ++i) {
    const std::size_t names = U32(tree, 16 + 8 * i + 4) & 0x7FFFFFFF;
    EXPECT_EQ(U32(tree, names + 16), 1U);
    const std::size_t languages = U32(tree, names + 20) & 0x7FFFFFFF;
    EXPECT_EQ(U32(tree, languages + 16), 0x040CU);
    const std::size_t entry = U32(tree, languages + 20);
    found[U32(tree, 16 + 8 * i)] = tree.substr(U32(tree, entry) - rva, U32(tree, entry + 4));
  }
  return found;
}

TEST(ExecutableBuilderTest, AnNeProgramHoldsItsRecord) {
  const std::string block = VersionBlock8(kStrings);
  const ResourceMap found = NeResources(NeExecutable(block));
  ASSERT_EQ(found.size(), 1U);
  std::string padded = block;
  padded.resize((block.size() + 15) / 16 * 16);
  EXPECT_THAT(found, ElementsAre(Pair(0x8010, padded)));
}

TEST(ExecutableBuilderTest, APeProgramHoldsItsRecord) {
  const std::string block = VersionBlock16(kStrings);
  EXPECT_THAT(PeResources(PeExecutable(block)), ElementsAre(Pair(16, block)));
}

TEST(ExecutableBuilderTest, WithoutRecordThereIsNoResource) {
  EXPECT_THAT(NeResources(NeExecutable("")), IsEmpty());
  EXPECT_THAT(PeResources(PeExecutable("")), IsEmpty());
}

TEST(ExecutableBuilderTest, SectionsOfAPeProgramEndWithTheFile) {
  const std::string file = PeExecutable(VersionBlock16(kStrings), Icon::kPresent);
  const std::size_t section = U32(file, 0x3C) + 24 + 224;
  EXPECT_EQ(U32(file, section + 20) + U32(file, section + 16), file.size());
  EXPECT_LE(U32(file, section + 8), U32(file, section + 16));
}

// --- Icons --------------------------------------------------------------------------------------

// Size of the colours and the mask of 32 by 32 points, with header and palette.
constexpr std::size_t kImageSize = 40 + 16 * 4 + 32 * 32 / 2 + 32 * 32 / 8;

void ExpectIcon(std::string_view group, std::string_view image) {
  EXPECT_EQ(U16(group, 2), 1U);
  EXPECT_EQ(U16(group, 4), 1U);
  EXPECT_EQ(U8(group, 6), 32U);
  EXPECT_EQ(U8(group, 7), 32U);
  EXPECT_EQ(U16(group, 12), 4U);
  EXPECT_EQ(U32(group, 14), kImageSize);
  EXPECT_EQ(U16(group, 18), 1U);
  ASSERT_GE(image.size(), kImageSize);
  EXPECT_EQ(U32(image, 0), 40U);
  EXPECT_EQ(U32(image, 4), 32U);
  EXPECT_EQ(U32(image, 8), 64U);
  EXPECT_EQ(U16(image, 14), 4U);
  const std::size_t middle = 40 + 16 * 4 + 16 * 16 + 8, mask = kImageSize - 128;
  EXPECT_NE(U8(image, middle), 0U);
  EXPECT_EQ(U8(image, mask), 0xFFU);            // the corner is transparent,
  EXPECT_EQ(U8(image, mask + 16 * 4 + 2), 0U);  // the middle is not
}

TEST(ExecutableBuilderTest, AnNeProgramHoldsAnIcon) {
  const ResourceMap found = NeResources(NeExecutable(VersionBlock8(kStrings), Icon::kPresent));
  ASSERT_EQ(found.size(), 3U);
  ExpectIcon(found.at(0x800E), found.at(0x8003));
}

TEST(ExecutableBuilderTest, APeProgramHoldsAnIcon) {
  const ResourceMap found = PeResources(PeExecutable("", Icon::kPresent));
  ASSERT_EQ(found.size(), 2U);
  ExpectIcon(found.at(14), found.at(3));
  EXPECT_EQ(found.at(3).size(), kImageSize);
}

TEST(ExecutableBuilderTest, AnIconFileHoldsTheSameImage) {
  const std::string file = IconFile();
  EXPECT_EQ(U16(file, 2), 1U);
  EXPECT_EQ(U16(file, 4), 1U);
  ASSERT_EQ(U32(file, 14), kImageSize);
  EXPECT_EQ(file.substr(U32(file, 18)), PeResources(PeExecutable("", Icon::kPresent)).at(3));
}

// --- Other files --------------------------------------------------------------------------------

TEST(ExecutableBuilderTest, ADosProgramLeadsToNoOtherHeader) {
  const std::string file = DosExecutable();
  EXPECT_EQ(file.substr(0, 2), "MZ");
  EXPECT_LT(U16(file, 0x18), 0x40U);
  EXPECT_EQ(U16(file, 8) * 16, file.size());
  EXPECT_EQ(U16(file, 2), file.size());
}

TEST(ExecutableBuilderTest, AnArchiveHasTheSizeWanted) {
  for (const std::size_t size : {22, 23, 99, 113, 114, 115, 999, 70000}) {
    EXPECT_EQ(ZipArchive(size).size(), size);
  }
}

TEST(ExecutableBuilderTest, AnArchiveTooSmallForAMemberIsEmpty) {
  const std::string file = ZipArchive(99);
  EXPECT_EQ(file.substr(0, 4), "PK\5\6");
  EXPECT_EQ(U16(file, 10), 0U);
  EXPECT_EQ(U16(file, 20), 99U - 22U);
}

TEST(ExecutableBuilderTest, AnArchiveHoldsOneMemberOfZeros) {
  const std::string file = ZipArchive(114 + 32);
  const std::size_t end = file.size() - 22, central = U32(file, end + 16);
  ASSERT_EQ(file.substr(end, 4), "PK\5\6");
  EXPECT_EQ(U16(file, end + 10), 1U);
  EXPECT_EQ(central + U32(file, end + 12), end);
  ASSERT_EQ(file.substr(central, 4), "PK\1\2");
  ASSERT_EQ(file.substr(U32(file, central + 42), 4), "PK\3\4");
  EXPECT_EQ(U32(file, central + 16), 0x190A55ADU);  // CRC-32 of 32 zeros
  EXPECT_EQ(U32(file, 14), 0x190A55ADU);
  EXPECT_EQ(U32(file, 22), 32U);
  EXPECT_EQ(file.substr(30 + U16(file, 26), 32), std::string(32, '\0'));
}

}  // namespace
}  // namespace trovex::test
