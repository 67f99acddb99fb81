// How sectors lie in image files.
#include "Image/ImageTest.h"
#include "support/RawSectors.h"

namespace trovex::test {
namespace {

using testing::ElementsAre;

struct Case {
  const char* name;
  RawLayout layout;
  IsoFormat format;
};

class Layouts : public ImageTest, public testing::WithParamInterface<Case> {
 protected:
  void ExpectSmallDisc() {
    EXPECT_THAT(Names(), ElementsAre(u"JEUX", u"LISEZMOI.TXT", u"SETUP.EXE"));
    EXPECT_EQ(Contents(u"E:\\LISEZMOI.TXT"), "Bonjour\r\n");
    EXPECT_EQ(Contents(u"E:\\JEUX\\DAMES\\DAMES.EXE"), std::string(40000, 'D') + "fin");
  }
};

TEST_P(Layouts, AreToldByTheBytes) {
  Insert(RawImage(SmallDisc().Build(GetParam().format).bytes, GetParam().layout));
  ExpectSmallDisc();
}

TEST_P(Layouts, APregapIsPassedOver) {
  RawLayout layout = GetParam().layout;
  layout.gap = 150;
  Insert(RawImage(SmallDisc().Build(GetParam().format).bytes, layout));
  ExpectSmallDisc();
}

TEST_P(Layouts, APregapOfAnUnusualLengthIsPassedOver) {
  RawLayout layout = GetParam().layout;
  layout.gap = 77;
  Insert(RawImage(SmallDisc().Build(GetParam().format).bytes, layout));
  ExpectSmallDisc();
}

std::vector<Case> AllLayouts() {
  std::vector<Case> cases;
  for (const IsoFormat format : {IsoFormat::kPlain, IsoFormat::kJoliet, IsoFormat::kHighSierra}) {
    for (const auto& [name, stride, mode] :
         {std::tuple("Plain2048", 2048u, 1), std::tuple("Mode1Of2352", 2352u, 1),
          std::tuple("Mode2Of2352", 2352u, 2), std::tuple("Mode2Of2336", 2336u, 2),
          std::tuple("Mode1Of2448", 2448u, 1), std::tuple("Mode2Of2448", 2448u, 2)}) {
      cases.push_back({name, {stride, mode}, format});
    }
  }
  return cases;
}

std::string NameOfCase(const testing::TestParamInfo<Case>& tested) {
  const char* formats[] = {"Iso", "Joliet", "HighSierra"};
  return std::string(tested.param.name) + formats[static_cast<int>(tested.param.format)];
}

INSTANTIATE_TEST_SUITE_P(Kinds, Layouts, testing::ValuesIn(AllLayouts()), NameOfCase);

class Addresses : public ImageTest {};

TEST_F(Addresses, OfSectorsCountWhereTheyStand) {
  // A later session, saved alone: it begins at the address that its sectors bear.
  const BuiltIso iso = SmallDisc().Build(IsoFormat::kJoliet, 12000);
  Insert(RawImage(iso.bytes, {2352, 1, 0, 12000}));
  EXPECT_EQ(Contents(u"E:\\SETUP.EXE"), std::string(5000, 'S') + "fin");
}

TEST_F(Addresses, GoOnBehindSectorsThatTheFileLacks) {
  // The second half of the disc lies 7000 sectors further in the image than its place says.
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  const std::size_t cut = iso.data["JEUX/DAMES/DAMES.EXE"];
  const auto address = static_cast<std::int64_t>(cut / kIsoSector);
  const std::string head = iso.bytes.substr(0, cut), tail = iso.bytes.substr(cut);
  const std::string between(kIsoSector * 40, '\0');
  Insert(RawImage(head, {2352, 1}) + RawImage(between, {2352, 1, 0, 100000}) +
         RawImage(tail, {2352, 1, 0, address}));
  EXPECT_EQ(Contents(u"E:\\JEUX\\DAMES\\DAMES.EXE"), std::string(40000, 'D') + "fin");
}

TEST_F(Addresses, MusicBeforeTheDataDoesNotHideThem) {
  const std::string data = RawImage(SmallDisc().Build(IsoFormat::kPlain).bytes, {2352, 2, 0, 0});
  Insert(data + AudioSectors(40));
  EXPECT_EQ(Contents(u"E:\\SETUP.EXE"), std::string(5000, 'S') + "fin");
}

TEST_F(Addresses, ADamagedSectorPartsNothing) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  std::string raw = RawImage(iso.bytes, {2352, 1});
  raw.replace(5 * 2352, 2352, std::string(2352, '\0'));
  raw.replace(23 * 2352, 2352, std::string(2352, '\x55'));
  Insert(raw);
  EXPECT_EQ(Contents(u"E:\\JEUX\\DAMES\\DAMES.EXE"), std::string(40000, 'D') + "fin");
}

TEST_F(Addresses, AFileStopsAtASectorWithoutData) {
  BuiltIso iso = SmallDisc().Build(IsoFormat::kPlain);
  std::string raw = RawImage(iso.bytes, {2352, 1});
  const std::size_t second = iso.data["SETUP.EXE"] / kIsoSector + 1;
  raw.replace(second * 2352, 2352, std::string(2352, '\0'));
  Insert(raw);
  // It is read a thousand bytes at a time: nothing comes of the piece that breaks off.
  EXPECT_EQ(Contents(u"E:\\SETUP.EXE"), std::string(2000, 'S') + "(unread)");
}

}  // namespace
}  // namespace trovex::test
