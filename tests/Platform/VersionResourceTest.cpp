#include "Platform/Records/VersionResource.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "support/DamagedPrograms.h"
#include "support/ExecutableBuilder.h"
#include "support/MemorySource.h"

namespace trovex::test {
namespace {

using records::ReadVersionRecord;

std::string VersionOf(std::string_view file) {
  MemorySource source(file);
  return ReadVersionRecord(source);
}

const VersionStrings kStrings = {{"FileDescription", "Jeu de cartes"}, {"FileVersion", "1.0"}};

struct Sample {
  const char* name;
  std::string record, file;
};

std::vector<Sample> Samples() {
  const std::string record8 = VersionBlock8(kStrings), record16 = VersionBlock16(kStrings);
  return {{"NE", record8, NeExecutable(record8, Icon::kPresent)},
          {"PE", record16, PeExecutable(record16, Icon::kPresent)},
          {"PE with 8-bit record", record8, PeExecutable(record8)}};
}

std::uint32_t NumberAt(const std::string& file, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  std::memcpy(&number, file.data() + at, size);
  return number;
}

void SetNumber(std::string& file, std::size_t at, std::uint32_t number, std::size_t size) {
  std::memcpy(file.data() + at, &number, size);
}

TEST(VersionResource, FindsTheRecord) {
  for (const Sample& sample : Samples()) {
    EXPECT_EQ(VersionOf(sample.file), sample.record) << sample.name;
  }
}

TEST(VersionResource, AFileCutShortHasTheWholeRecordOrNone) {
  for (const Sample& sample : Samples()) {
    // Resources reach beyond their records, those of an NE file to whole alignment units.
    const std::size_t end = sample.file.find(sample.record) + sample.record.size();
    for (std::size_t size = 0; size < sample.file.size(); ++size) {
      const std::string found = VersionOf(std::string_view(sample.file).substr(0, size));
      EXPECT_EQ(found, size < end ? "" : sample.record) << sample.name << ' ' << size;
    }
    EXPECT_EQ(VersionOf(sample.file.substr(0, sample.file.size() / 2)), "") << sample.name;
  }
}

TEST(VersionResource, EveryOverwrittenNumberGivesABoundedAnswer) {
  for (const Sample& sample : Samples()) {
    for (std::size_t at = 0; at + 4 <= sample.file.size(); ++at) {
      for (const std::uint32_t number : {0u, 1u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        std::string file = sample.file;
        SetNumber(file, at, number, 4);
        MemorySource source(file);
        const std::string found = ReadVersionRecord(source);
        ASSERT_LE(found.size(), records::kMaxVersionResource) << sample.name << ' ' << at;
        ASSERT_TRUE(found.empty() || file.find(found) != std::string::npos) << at;
        ASSERT_LE(source.reads, 1100) << sample.name << ' ' << at;
      }
    }
  }
}

TEST(VersionResource, EveryDamagedProgramGivesABoundedAnswer) {
  for (const DamagedProgram& program : DamagedPrograms()) {
    MemorySource source(program.contents);
    const std::string found = ReadVersionRecord(source);
    ASSERT_TRUE(found.empty() || program.contents.find(found) != std::string::npos) << program.path;
    ASSERT_LE(source.reads, 1100) << program.path;
  }
}

TEST(VersionResource, RandomDamageGivesABoundedAnswer) {
  std::mt19937 random(1997);
  for (const Sample& sample : Samples()) {
    for (int round = 0; round < 5000; ++round) {
      std::string file = sample.file;
      for (int i = 0; i < 8; ++i) file[random() % file.size()] = static_cast<char>(random());
      const std::string found = VersionOf(file);
      ASSERT_LE(found.size(), records::kMaxVersionResource);
      ASSERT_TRUE(found.empty() || file.find(found) != std::string::npos);
    }
  }
}

TEST(VersionResource, OtherFilesHaveNone) {
  EXPECT_EQ(VersionOf(""), "");
  EXPECT_EQ(VersionOf("MZ"), "");
  EXPECT_EQ(VersionOf(DosExecutable()), "");
  EXPECT_EQ(VersionOf(ZipArchive(100)), "");
  EXPECT_EQ(VersionOf(NeExecutable({})), "");
  EXPECT_EQ(VersionOf(PeExecutable({})), "");
  EXPECT_EQ(VersionOf(NeExecutable({}, Icon::kPresent)), "");
  EXPECT_EQ(VersionOf(PeExecutable({}, Icon::kPresent)), "");
}

TEST(VersionResource, AnOs2ProgramHasNone) {
  std::string file = NeExecutable(VersionBlock8(kStrings));
  const std::size_t header = NumberAt(file, 0x3C, 4);
  file[header + 0x36] = 1;
  EXPECT_EQ(VersionOf(file), "");
}

TEST(VersionResource, TooManySectionsOrTooLargeARecordGiveNone) {
  std::string file = PeExecutable(VersionBlock8(kStrings));
  const std::size_t header = NumberAt(file, 0x3C, 4);
  SetNumber(file, header + 6, 97, 2);
  EXPECT_EQ(VersionOf(file), "");
  std::string large = VersionBlock8(kStrings);
  large.resize(records::kMaxVersionResource + 1);
  EXPECT_EQ(VersionOf(PeExecutable(large)), "");
  large.pop_back();
  EXPECT_EQ(VersionOf(PeExecutable(large)), VersionBlock8(kStrings));
}

TEST(VersionResource, ARecordsOwnLengthCounts) {
  std::string record = VersionBlock8(kStrings);
  for (const std::size_t length : {std::size_t{0}, std::size_t{5}, std::size_t{0xFFFF}}) {
    SetNumber(record, 0, static_cast<std::uint32_t>(length), 2);
    EXPECT_EQ(VersionOf(NeExecutable(record)), "") << length;
    EXPECT_EQ(VersionOf(PeExecutable(record)), "") << length;
  }
  SetNumber(record, 0, 40, 2);
  EXPECT_EQ(VersionOf(NeExecutable(record)), record.substr(0, 40));
}

TEST(VersionResource, ATableThatLeadsToItselfEnds) {
  std::string file = PeExecutable(VersionBlock8(kStrings));
  int changed = 0;
  for (std::size_t at = 0; at + 8 <= file.size(); at += 4) {
    // The version type's entry, whose table of names becomes the root itself.
    if (NumberAt(file, at, 4) != 16 || (NumberAt(file, at + 4, 4) & 0x80000000) == 0) continue;
    SetNumber(file, at + 4, 0x80000000, 4);
    ++changed;
  }
  EXPECT_EQ(changed, 1);
  EXPECT_EQ(VersionOf(file), "");
}

TEST(VersionResource, ReadsHeadersTableAndRecordOnly) {
  for (const Sample& sample : Samples()) {
    const std::string file = sample.file + std::string(10'000'000, 'x');
    MemorySource source(file);
    EXPECT_FALSE(ReadVersionRecord(source).empty()) << sample.name;
    EXPECT_LE(source.reads, 4) << sample.name;
    EXPECT_LE(source.total, 20000u) << sample.name;
  }
}

}  // namespace
}  // namespace trovex::test
