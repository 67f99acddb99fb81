#include "Platform/Records/FileFormat.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "support/ExecutableBuilder.h"

namespace trovex::test {
namespace {

class Memory : public records::ByteSource {
 public:
  explicit Memory(std::string bytes) : bytes_(std::move(bytes)) {}
  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override {
    if (offset >= bytes_.size()) return 0;
    return bytes_.copy(buffer, size, static_cast<std::size_t>(offset));
  }

 private:
  std::string bytes_;
};

std::string FormatOf(const std::string& bytes) {
  Memory source(bytes);
  return records::NameOf(records::FormatOf(source));
}

// An MS-DOS header that leads to a newer one at `at`, which begins with these bytes.
std::string Executable(const std::string& header, std::size_t at = 0x80) {
  std::string bytes = "MZ";
  bytes.resize(0x3C);
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(at >> shift & 0xFF);
  bytes.resize(std::max(at, bytes.size()));
  return bytes + header;
}
std::string Pe(char low, char high) {
  return std::string("PE\0\0", 4) + std::string(20, '\0') + low + high;
}

TEST(FileFormatTest, EachFormatIsTold) {
  EXPECT_EQ(FormatOf(DosExecutable()), "MZ");
  EXPECT_EQ(FormatOf(NeExecutable({})), "NE");
  EXPECT_EQ(FormatOf(PeExecutable({})), "PE32");
  EXPECT_EQ(FormatOf(Executable(Pe('\x0B', '\2'))), "PE32+");
  EXPECT_EQ(FormatOf(Executable("LE header")), "LE");
  EXPECT_EQ(FormatOf(ZipArchive(200)), "ZIP");
  EXPECT_EQ(FormatOf(ZipArchive(22)), "ZIP") << "an empty archive";
  EXPECT_EQ(FormatOf("PK\7\10 first of several"), "ZIP");
}

TEST(FileFormatTest, AnythingElseIsOther) {
  EXPECT_EQ(FormatOf(""), "other");
  EXPECT_EQ(FormatOf("M"), "other");
  EXPECT_EQ(FormatOf("PK\1\2 a member of the directory"), "other");
  EXPECT_EQ(FormatOf("#!/bin/sh\n"), "other");
  EXPECT_EQ(FormatOf(Executable("LX header")), "other");
  EXPECT_EQ(FormatOf(Executable(Pe('\7', '\1'))), "other") << "of no known width";
  EXPECT_EQ(FormatOf(Executable(std::string("PE\0\0", 4))), "other") << "cut short";
}

TEST(FileFormatTest, AHeaderThatLeadsNowhereIsMsDos) {
  EXPECT_EQ(FormatOf("MZ"), "MZ");
  EXPECT_EQ(FormatOf(Executable("", 0x80)), "MZ");
  EXPECT_EQ(FormatOf(Executable("XY header")), "MZ");
  std::string far = Executable("");
  far.replace(0x3C, 4, "\xFF\xFF\xFF\xFF");
  EXPECT_EQ(FormatOf(far), "MZ");
}

TEST(FileFormatTest, TheHeaderMayStandFarBehind) {
  EXPECT_EQ(FormatOf(Executable(Pe('\x0B', '\1'), 200000)), "PE32");
}

}  // namespace
}  // namespace trovex::test
