// Writes the files of the sample disc: texts in cp1252 with CR LF, fixed dates.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/ExecutableBuilder.h"

namespace trovex::test {

// Names, texts and version strings are UTF-8; paths are relative to the root, with '/'.
class SampleDiscWriter {
 public:
  explicit SampleDiscWriter(std::filesystem::path root);

  // The date that the files written from here on bear. Half past ten of that day in UTC, so that
  // the day is the same in nearly every time zone.
  void Date(int year, unsigned month, unsigned day);

  void Directory(std::string_view path);
  void File(std::string_view path, const std::string& bytes);
  // Each line ends with CR LF.
  void TextFile(std::string_view path, const std::vector<std::string>& lines);

  // Executables of the three systems; without strings they have no version record.
  void Ne(std::string_view path, const VersionStrings& strings = {}, Icon icon = Icon::kNone);
  void Pe(std::string_view path, const VersionStrings& strings = {}, Icon icon = Icon::kNone);
  void Dos(std::string_view path);
  void Zip(std::string_view path, std::size_t size);

  // Dates the directories, which each file written into them has touched. Last of all.
  void Finish();

 private:
  std::filesystem::path PathOf(std::string_view path) const;

  std::filesystem::path root_;
  std::chrono::sys_seconds date_;
};

// The version strings of a program whose maker left none out.
VersionStrings FullRecord(const std::string& company, const std::string& description,
                          const std::string& version, const std::string& name,
                          const std::string& product);

}  // namespace trovex::test
