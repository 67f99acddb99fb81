// The program's own readers of records against those of the system, for files that are sound. Of a
// file in several languages the system takes the user's, the program the first.
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Windows.h"
#include "Platform/contract/Contract.h"
#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

class SystemRecordsTest : public Contract {
 protected:
  // The system leaves room behind the record; its first field is its length.
  static std::string SystemsRecord(const Text& name) {
    DWORD ignored = 0;
    std::string block(GetFileVersionInfoSizeW(Wide(name), &ignored), '\0');
    if (block.size() < 2) return {};
    if (!GetFileVersionInfoW(Wide(name), 0, static_cast<DWORD>(block.size()), block.data())) {
      return {};
    }
    const std::size_t length =
        static_cast<unsigned char>(block[0]) | static_cast<unsigned char>(block[1]) << 8;
    block.resize(std::min(length, block.size()));
    return block;
  }
  std::string OwnRecord(const Text& name) {
    FileStatus status;
    std::string record;
    platform_.GetFileProperties(name, status, record);
    return record;
  }
};

TEST_F(SystemRecordsTest, SoundFilesHaveTheSameRecordsAndIcons) {
  const VersionStrings strings = {{"FileDescription", "Jeu de l'\xE9t\xE9"},
                                  {"FileVersion", "1.0"}};
  const std::string narrow = VersionBlock8(strings), wide = VersionBlock16(strings);
  const Text name = u"D:\\ESSAI.EXE";
  for (const Icon icon : {Icon::kNone, Icon::kPresent}) {
    for (const std::string& file :
         {NeExecutable(narrow, icon), PeExecutable(narrow, icon), PeExecutable(wide, icon),
          NeExecutable({}, icon), PeExecutable({}, icon), DosExecutable()}) {
      disc_.File("ESSAI.EXE", file);
      EXPECT_EQ(OwnRecord(name), SystemsRecord(name));
      EXPECT_EQ(platform_.ExtractIconEx(name, 0, IconOwner::kDisc),
                platform_.ExtractIconEx(name, 0, IconOwner::kSystem));
    }
  }
}

}  // namespace
}  // namespace trovex::test
