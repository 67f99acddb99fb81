#include "Platform/Records/IconResource.h"

#include <gtest/gtest.h>

#include <random>

#include "support/DamagedIcons.h"
#include "support/DamagedPrograms.h"
#include "support/ExecutableBuilder.h"
#include "support/MemorySource.h"

namespace trovex::test {
namespace {

bool Holds(std::string_view file) {
  MemorySource source(file);
  return records::HoldsIcon(source);
}

std::vector<std::string> Samples() {
  return {NeExecutable({}, Icon::kPresent), PeExecutable({}, Icon::kPresent), IconFile()};
}

// Where the one image of a sample begins: a head of 40 bytes, 32 pixels wide.
std::size_t ImageIn(const std::string& file) {
  return file.find(std::string("\x28\0\0\0\x20\0\0\0", 8));
}

TEST(IconResource, SoundIconsAreFound) {
  for (const std::string& sample : Samples()) EXPECT_TRUE(Holds(sample));
  EXPECT_TRUE(Holds(PngIconFile()));
}

TEST(IconResource, AnIconWithoutItsMaskIsFound) {
  std::string file = IconFile();
  const std::uint32_t mask = 32 * 32 / 8;
  SetNumber(file, 14, static_cast<std::uint32_t>(file.size()) - 22 - mask, 4);
  EXPECT_TRUE(Holds(file.substr(0, file.size() - mask)));
  EXPECT_FALSE(Holds(file.substr(0, file.size() - mask - 1)));
}

TEST(IconResource, DamageOfEachKindIsNone) {
  for (const DamagedIcon& icon : DamagedIcons()) EXPECT_FALSE(Holds(icon.contents)) << icon.what;
}

TEST(IconResource, APngImageChangedAnywhereOrCutShortIsNone) {
  const std::string whole = PngIconFile();
  for (std::size_t at = 22; at < whole.size(); ++at) {
    std::string file = whole;
    file[at] = static_cast<char>(file[at] ^ 0x10);
    EXPECT_FALSE(Holds(file)) << at;
    EXPECT_FALSE(Holds(whole.substr(0, at))) << at;
  }
}

TEST(IconResource, AnImageThatIsMissingIsNone) {
  std::string file = IconFile();
  SetNumber(file, 4, 2, 2);  // a second image, whose entry is the first one's bytes
  EXPECT_FALSE(Holds(file));
  SetNumber(file, 4, 65, 2);
  EXPECT_FALSE(Holds(file));
  file = PeExecutable({}, Icon::kPresent);
  const std::size_t group = file.find(std::string("\0\0\1\0\1\0\x20\x20", 8));
  SetNumber(file, group + 18, 2, 2);  // the image's number
  EXPECT_FALSE(Holds(file));
}

std::string ImageOf(std::string_view file, int pixels) {
  MemorySource source(file);
  return records::IconImage(source, pixels);
}

// The bitmap of a sample with its mask.
std::string_view Bitmap(std::string_view file) {
  return file.substr(ImageIn(std::string(file)), 40 + 4 * 16 + 32 * 32 / 2 + 32 * 32 / 8);
}

TEST(IconImage, IsTheBitmapWithItsMask) {
  // In a 16-bit program it is followed by what fills its units.
  for (const std::string& sample : Samples()) {
    EXPECT_TRUE(ImageOf(sample, 32).starts_with(Bitmap(sample)));
  }
}

TEST(IconImage, AMaskThatIsMissingHidesNothing) {
  std::string file = IconFile();
  const std::uint32_t mask = 32 * 32 / 8;
  SetNumber(file, 14, static_cast<std::uint32_t>(file.size()) - 22 - mask, 4);
  const std::string colours = file.substr(22, file.size() - 22 - mask);
  EXPECT_EQ(ImageOf(file.substr(0, file.size() - mask), 32), colours + std::string(mask, '\0'));
}

TEST(IconImage, IsThatOfTheNearestSizeAndOfMoreColours) {
  const std::string one = IconFile().substr(22);
  std::string file(6, '\0');
  file[2] = 1;
  std::string images;
  struct Entry {
    int side, bits;
  };
  const Entry entries[] = {{16, 4}, {32, 1}, {32, 4}, {0, 32}};
  for (const auto& [side, bits] : entries) {
    std::string entry(16, '\0');
    entry[0] = entry[1] = static_cast<char>(side);
    entry[6] = static_cast<char>(bits);
    SetNumber(entry, 8, static_cast<std::uint32_t>(one.size()), 4);
    SetNumber(entry, 12, static_cast<std::uint32_t>(6 + 4 * 16 + images.size()), 4);
    file += entry;
    images += one;
    SetNumber(images, images.size() - 4, static_cast<std::uint32_t>(file[4]++), 4);
  }
  file += images;
  const auto chosen = [&](int pixels) { return static_cast<int>(ImageOf(file, pixels).end()[-4]); };
  EXPECT_EQ(chosen(16), 0);
  EXPECT_EQ(chosen(32), 2);
  EXPECT_EQ(chosen(40), 2);
  EXPECT_EQ(chosen(200), 3);
}

TEST(IconImage, OfNoSoundIconIsEmpty) {
  EXPECT_EQ(ImageOf("", 32), "");
  EXPECT_EQ(ImageOf(DosExecutable(), 32), "");
  std::string file = IconFile();
  SetNumber(file, ImageIn(file) + 4, 1025, 4);
  EXPECT_EQ(ImageOf(file, 32), "");
}

TEST(IconResource, EveryDamageGivesABoundedAnswer) {
  for (const DamagedProgram& program : DamagedPrograms()) {
    MemorySource source(program.contents);
    records::HoldsIcon(source);
    ASSERT_LE(source.reads, 2500) << program.path;
  }
  std::mt19937 random(1998);
  for (const std::string& sample : Samples()) {
    for (int round = 0; round < 5000; ++round) {
      std::string file = sample;
      for (int i = 0; i < 4; ++i) file[random() % file.size()] = static_cast<char>(random());
      MemorySource source(file);
      records::HoldsIcon(source);
      ASSERT_LE(source.reads, 2500) << round;
      records::IconImage(source, 32);
    }
  }
}

}  // namespace
}  // namespace trovex::test
