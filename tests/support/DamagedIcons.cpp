#include "support/DamagedIcons.h"

#include <algorithm>

#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

struct Field {
  const char* what;
  std::size_t at, width;
  std::uint32_t value;
};

std::string With(std::string bytes, const Field& field, std::size_t base = 0) {
  SetNumber(bytes, base + field.at, field.value, field.width);
  return bytes;
}

std::string NeWhole() {
  return NeExecutable(VersionBlock8({{"FileVersion", "1.0"}}), Icon::kPresent);
}

// The table of resources: a shift, then icons, groups and records, each a run of type, count and
// four bytes more with one entry of 12 bytes, then a type of zero.
constexpr std::size_t kNeIcons = 0x82, kNeGroups = kNeIcons + 20, kNeRecords = kNeGroups + 20;
constexpr std::size_t kNeTypes = 3 * 20;

// Two icons of number 1 in the place of one and the record.
std::string SameNumberTwice() {
  std::string file = NeWhole();
  const std::string entry = file.substr(kNeIcons + 8, 12);
  std::string types = file.substr(kNeIcons, 20) + entry + file.substr(kNeGroups, 20);
  SetNumber(types, 2, 2, 2);
  types.resize(kNeTypes);
  return file.replace(kNeIcons, kNeTypes, types);
}

void AddNe(std::vector<DamagedIcon>& icons) {
  static const Field kFields[] = {
      {"more groups than the file has bytes for", kNeGroups + 2, 2, 0xFF00},
      {"more icons than the file has bytes for", kNeIcons + 2, 2, 0xFF00},
      {"no end of the types", kNeRecords + 2, 2, 0xFFFF},
      {"two runs of icons", kNeRecords, 2, 0x8003},
      {"two runs of groups", kNeRecords, 2, 0x800E},
      {"a table that goes on behind the names", 0x66, 2, 0x50},
      {"a table that begins behind the names", 0x66, 2, 0x3F},
      {"an image out of the file", kNeIcons + 8, 2, 0xF000},
      {"a group out of the file", kNeGroups + 8, 2, 0xF000},
  };
  for (const Field& field : kFields) {
    icons.push_back({std::string("NE, ") + field.what, With(NeWhole(), field)});
  }
  icons.push_back({"NE, two icons of one number", SameNumberTwice()});
}

// The tables of resources: the root with icons and groups, the icon's names, its languages, its
// place.
constexpr std::size_t kPeRoot = 0x200, kPeNames = kPeRoot + 32, kPeLanguages = kPeNames + 24;
constexpr std::size_t kPePlace = kPeLanguages + 24, kFirstEntry = 16, kNumberedAt = 14;

void AddPe(std::vector<DamagedIcon>& icons) {
  static const Field kFields[] = {
      {"types in no order", kPeRoot + kFirstEntry, 4, 15},
      {"a type of more than 16 bits", kPeRoot + kFirstEntry, 4, 0x10003},
      {"icons in no order", kPeNames + kNumberedAt, 2, 0x101},
      {"a name that is a number", kPeNames + 12, 2, 1},
      {"more languages than the file has bytes for", kPeLanguages + kNumberedAt, 2, 4000},
      {"an image out of the file", kPePlace, 4, 0x100000},
      {"an image longer than the file", kPePlace + 4, 4, 0x7FFFFFFF},
  };
  const std::string whole = PeExecutable({}, Icon::kPresent);
  for (const Field& field : kFields) {
    icons.push_back({std::string("PE, ") + field.what, With(whole, field)});
  }
  std::string two = With(whole, {"", kPeLanguages + kNumberedAt, 2, 2});
  SetNumber(two, kPeLanguages + kFirstEntry, 0xFFFF, 4);
  icons.push_back({"PE, languages in no order", two});
}

void AddImages(std::vector<DamagedIcon>& icons) {
  static const Field kFields[] = {
      {"a head of another form", 0, 4, 12},
      {"a head of a later form", 0, 4, 124},
      {"no width", 4, 4, 0},
      {"a width beyond bounds", 4, 4, 1025},
      {"a width below zero", 4, 4, 0xFFFFFFE0},
      {"a width whose bytes are no number", 4, 4, 0x80000000},
      {"no height", 8, 4, 0},
      {"a height beyond bounds", 8, 4, 4096},
      {"a height below zero", 8, 4, 0xFFFFFFC0},
      {"no planes", 12, 2, 0},
      {"two planes", 12, 2, 2},
      {"bits that no bitmap has", 14, 2, 3},
      {"no bits", 14, 2, 0},
      {"more bits than there are", 14, 2, 32},
      {"run lengths of 8 bits", 16, 4, 1},
      {"run lengths of 4 bits", 16, 4, 2},
      {"masks of bits", 16, 4, 3},
      {"a picture of another format", 16, 4, 5},
      {"more colours than its bits tell apart", 32, 4, 17},
      {"colours beyond bounds", 32, 4, 0x7FFFFFFF},
  };
  for (const std::string& whole : {NeWhole(), PeExecutable({}, Icon::kPresent), IconFile()}) {
    const std::size_t image = whole.find(std::string("\x28\0\0\0\x20\0\0\0", 8));
    for (const Field& field : kFields) icons.push_back({field.what, With(whole, field, image)});
  }
}

// Behind 22 bytes of the file's own head and 8 of the format's: the first chunk, of 25 bytes, then
// the colours' and the last one, of 12.
void AddPng(std::vector<DamagedIcon>& icons) {
  constexpr std::size_t kImage = 22, kFirst = kImage + 8, kColours = kFirst + 25, kChunkEnd = 12;
  const std::string whole = PngIconFile();
  static const Field kFields[] = {
      {"PNG of another signature", kImage + 4, 4, 0},
      {"PNG of another first chunk", kFirst + 4, 4, 0x54414449},
      {"PNG of another width", kFirst + 11, 1, 33},
      {"PNG of no width", kFirst + 8, 4, 0},
      {"PNG of a width of 2^31", kFirst + 8, 4, 0x80},
      {"PNG of a chunk that leads out of it", kColours, 1, 0x7F},
      {"PNG of other colours", kColours + 12, 1, 0},
      {"PNG of another sum", kColours - 1, 1, 0},
  };
  for (const Field& field : kFields) icons.push_back({field.what, With(whole, field)});
  std::string empty = whole;
  empty.erase(kColours, whole.size() - kChunkEnd - kColours);
  SetNumber(empty, 14, static_cast<std::uint32_t>(empty.size() - kImage), 4);
  icons.push_back({"PNG without colours", empty});
  std::string endless = whole.substr(0, whole.size() - kChunkEnd);
  SetNumber(endless, 14, static_cast<std::uint32_t>(endless.size() - kImage), 4);
  icons.push_back({"PNG without an end", endless});
}

}  // namespace

void SetNumber(std::string& bytes, std::size_t at, std::uint32_t number, std::size_t width) {
  for (std::size_t i = 0; i < width; ++i) {
    bytes[at + i] = static_cast<char>(number >> (8 * i) & 0xFF);
  }
}

std::vector<DamagedIcon> DamagedIcons() {
  std::vector<DamagedIcon> icons;
  AddNe(icons);
  AddPe(icons);
  AddImages(icons);
  AddPng(icons);
  return icons;
}

}  // namespace trovex::test
