// What the tests of a scan share: three tables, files by their kind, and a scan as the program
// runs it.
#pragma once

#include <array>
#include <map>
#include <vector>

#include "Lib/LIB_BUSY.h"
#include "Lib/LIB_OBJECT_GRID.h"
#include "Platform/Encoding.h"
#include "Platform/ForwardingPlatform.h"
#include "Scanner/TROVEX_MAIN.h"
#include "support/ExecutableBuilder.h"
#include "support/LogicTest.h"
#include "support/WatchedDirectory.h"

namespace trovex::test {

// Counts what reaches the disk, by name in upper case, and fails where a test says so.
class CountingPlatform : public ForwardingPlatform, private DirectoryWatch {
 public:
  using ForwardingPlatform::ForwardingPlatform;

  std::shared_ptr<HeldDirectory> OpenDirectory(const Text& directory) override {
    if (!UsesOwnDirectories()) return ForwardingPlatform::OpenDirectory(directory);
    OnAsked(Asked::kDirectory, directory);
    return WatchedDirectory::Watch(*this, directory, Target().OpenDirectory(directory));
  }
  FindHandle FindFirstFile(const Text& pattern, FindData& data) override {
    OnListing(pattern);
    return ForwardingPlatform::FindFirstFile(pattern, data);
  }
  FileHandle OpenRead(const Text& name) override {
    OnAsked(Asked::kFile, name);
    return ForwardingPlatform::OpenRead(name);
  }
  std::size_t Read(FileHandle file, void* buffer, std::size_t size) override {
    const std::size_t read = ForwardingPlatform::Read(file, buffer, size);
    bytes += read;
    return read;
  }
  bool GetFileStatus(const Text& name, FileStatus& status) override {
    OnAsked(Asked::kStatus, name);
    return ForwardingPlatform::GetFileStatus(name, status);
  }
  std::uint32_t GetFileVersionInfoSize(const Text& name) override {
    OnAsked(Asked::kRecord, name);
    return ForwardingPlatform::GetFileVersionInfoSize(name);
  }

  using Counts = std::map<Text, int>;
  Counts listings, opened, records;
  std::size_t bytes = 0;
  std::function<void(const Text&)> before_listing, before_status;

 private:
  void OnListing(const Text& pattern) {
    ++listings[ToUpper(pattern)];
    if (before_listing) before_listing(pattern);
  }
  bool OnAsked(Asked what, const Text& name) override {
    if (what == Asked::kDirectory) OnListing(name + (name.ends_with(u'\\') ? u"*.*" : u"\\*.*"));
    if (what == Asked::kFile) ++opened[ToUpper(name)];
    if (what == Asked::kRecord) ++records[ToUpper(name)];
    if (what == Asked::kStatus && before_status) before_status(name);
    return true;
  }
};

// The most often that anything was asked for; 0 if nothing was.
inline int Most(const CountingPlatform::Counts& counts) {
  int most = 0;
  for (const auto& [name, count] : counts) most = std::max(most, count);
  return most;
}

class ScanTest : public LogicTest {
 protected:
  using Row = std::vector<Text>;

  ScanTest() { RegisterTables({&tables_[0], &tables_[1], &tables_[2]}); }
  ~ScanTest() override { RegisterTables({}); }

  // The tables after a scan of `start`.
  void Scan(const Text& start = u"D:\\") {
    for (Grid& grid : tables_) ClearGrid(grid, u"");
    ExplorerRepertoire(start, true);
  }

  Grid& Table(int number) { return tables_[static_cast<std::size_t>(number)]; }

  // Entries of a table; none where its data row is blank.
  std::vector<Row> Rows(int number) {
    std::vector<Row> rows;
    const Grid& grid = Table(number);
    if (grid.Rows() == 2 && grid.Cell(1, 2).empty()) return rows;
    for (int row = 1; row < grid.Rows(); ++row) {
      Row cells;
      for (int col = 0; col < grid.Cols(); ++col) cells.push_back(grid.Cell(row, col));
      rows.push_back(std::move(cells));
    }
    return rows;
  }

  // The entries of a table as "directory|file", blanks in front included.
  std::vector<Text> Places(int number) {
    std::vector<Text> places;
    for (const Row& row : Rows(number)) places.push_back(row[1] + u"|" + row[2]);
    return places;
  }

  // The description in the only entry of table 1, and its version.
  Text Description() { return Only(1)[0]; }
  Text Version() { return Only(1)[3]; }
  Row Only(int number) {
    const std::vector<Row> rows = Rows(number);
    EXPECT_EQ(rows.size(), 1u);
    return rows.empty() ? Row(4) : rows[0];
  }

  // An executable of 16-bit Windows with these version strings; one of MS-DOS has none.
  void Program(std::string_view path, const std::vector<std::pair<std::string, Text>>& strings) {
    VersionStrings bytes;
    for (const auto& [key, value] : strings) bytes.emplace_back(key, ToCp1252(value));
    disc.File(path, NeExecutable(VersionBlock8(bytes)));
  }
  void Dos(std::string_view path) { disc.File(path, DosExecutable()); }
  void Lines(std::string_view path, const std::vector<Text>& lines) {
    std::string bytes;
    for (const Text& line : lines) bytes += ToCp1252(line) + "\r\n";
    disc.File(path, bytes);
  }

  CountingPlatform platform_{disc.GetPlatform()};
  PlatformScope scope_{platform_};

 private:
  std::array<Grid, kTableCount> tables_;
};

}  // namespace trovex::test
