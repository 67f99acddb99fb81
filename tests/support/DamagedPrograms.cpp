#include "support/DamagedPrograms.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <string_view>

#include "support/DamagedIcons.h"
#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

// With a product's name and no internal one, a program without an icon is told from one with it.
const VersionStrings kStrings = {{"CompanyName", "Maison"},
                                 {"FileDescription", "Jeu de dames"},
                                 {"FileVersion", "1.20"},
                                 {"ProductName", "Dames 97"},
                                 {"ProductVersion", "1.2"}};

constexpr std::size_t kNewHeader = 0x40;  // where the builder puts it
constexpr std::size_t kIconGroupSize = 20;
constexpr std::size_t kImageHeadSize = 40;
constexpr std::size_t kRecordHeadSize = 8;

// A run of fields of one width.
struct Fields {
  std::size_t begin, end, width;
};

// Of a field of `width` bytes: nothing, the least, and both sides of the sign.
std::array<std::uint32_t, 5> Extremes(std::size_t width) {
  const std::uint32_t sign = std::uint32_t{1} << (8 * width - 1);
  return {0, 1, sign - 1, sign, sign - 1 + sign};
}

std::string Name(const char* form, std::size_t number, int extreme) {
  char name[32];
  std::snprintf(name, sizeof name, form, static_cast<unsigned>(number), extreme);
  return name;
}

class Damages {
 public:
  void SpoilFields(const std::string& folder, const std::string& whole,
                   const std::vector<Fields>& runs) {
    for (const Fields& run : runs) {
      for (std::size_t at = run.begin; at + run.width <= run.end; at += run.width) {
        SpoilField(folder, whole, at, run.width);
      }
    }
  }

  void Cut(const std::string& folder, const std::string& whole, std::size_t step) {
    for (std::size_t size = 0; size < whole.size(); size += step) {
      programs.push_back({folder + Name("/C%05u.EXE", size, 0), whole.substr(0, size)});
    }
  }

  void AddIcons(const std::string& folder) {
    std::size_t number = 0;
    for (const DamagedIcon& icon : DamagedIcons()) {
      programs.push_back({folder + Name("/I%05u.EXE", number++, 0), icon.contents});
    }
  }

  std::vector<DamagedProgram> programs;

 private:
  void SpoilField(const std::string& folder, const std::string& whole, std::size_t at,
                  std::size_t width) {
    int number = 0;
    for (const std::uint32_t extreme : Extremes(width)) {
      std::string bytes = whole;
      SetNumber(bytes, at, extreme, width);
      programs.push_back({folder + Name("/F%04X_%d.EXE", at, number++), bytes});
    }
  }
};

// The heads of the record, of the icon group and of the image, wherever they stand.
std::vector<Fields> HeadsIn(const std::string& program, const std::string& record) {
  static const std::string kGroup("\0\0\1\0\1\0\x20\x20", 8), kImage("\x28\0\0\0\x20\0\0\0", 8);
  const std::size_t block = program.find(record), group = program.find(kGroup),
                    image = program.find(kImage);
  return {{block, block + kRecordHeadSize, 2},
          {group, group + kIconGroupSize, 2},
          {image, image + kImageHeadSize, 4}};
}

void AddNe(Damages& damages) {
  constexpr std::size_t kHeaderSize = 0x40, kTableSize = 2 + 3 * (8 + 12) + 2;
  const std::string record = VersionBlock8(kStrings);
  const std::string whole = NeExecutable(record, Icon::kPresent);
  std::vector<Fields> fields = HeadsIn(whole, record);
  fields.push_back({0, 2, 2});
  fields.push_back({0x3C, 0x40, 4});
  fields.push_back({kNewHeader, kNewHeader + kHeaderSize + kTableSize, 2});
  damages.SpoilFields("NE/CHAMPS", whole, fields);
  damages.Cut("NE/COUPES", NeExecutable(record), 1);
  damages.Cut("NE/ICONES", whole, 8);
}

void AddPe(Damages& damages, const std::string& folder, const std::string& record) {
  constexpr std::size_t kFileHeaderSize = 24, kOptionalSize = 224, kSectionSize = 40;
  constexpr std::size_t kSection = 0x200, kTreeSize = 16 + 3 * 8 + 3 * (24 + 24 + 16);
  const std::string whole = PeExecutable(record, Icon::kPresent);
  std::vector<Fields> fields = HeadsIn(whole, record);
  const std::size_t optional = kNewHeader + kFileHeaderSize;
  fields.push_back({0x3C, 0x40, 4});
  fields.push_back({kNewHeader, optional, 2});
  fields.push_back({optional, optional + kOptionalSize + kSectionSize, 4});
  fields.push_back({kSection, kSection + kTreeSize, 4});
  damages.SpoilFields(folder + "/CHAMPS", whole, fields);
  damages.Cut(folder + "/COUPES", whole, 16);
}

}  // namespace

std::vector<DamagedProgram> DamagedPrograms() {
  Damages damages;
  AddNe(damages);
  AddPe(damages, "PE", VersionBlock8(kStrings));
  damages.AddIcons("ICONES");
  return std::move(damages.programs);
}

std::vector<DamagedProgram> SomeDamagedPrograms() {
  constexpr std::size_t kStep = 7;  // no multiple of the extremes' number: each comes by turns
  std::vector<DamagedProgram> all = DamagedPrograms(), some;
  for (std::size_t i = 0; i < all.size(); i += kStep) some.push_back(std::move(all[i]));
  return some;
}

}  // namespace trovex::test
