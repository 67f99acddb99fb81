#include "support/SampleDiscWriter.h"

#include <fstream>

#include "Platform/Encoding.h"

namespace trovex::test {
namespace {

std::string Cp1252(const std::string& utf8) {
  return ToCp1252(FromUtf8(utf8));
}

VersionStrings Cp1252(const VersionStrings& strings) {
  VersionStrings converted;
  for (const auto& [key, value] : strings) converted.emplace_back(key, Cp1252(value));
  return converted;
}

std::filesystem::file_time_type FileTime(std::chrono::sys_seconds time) {
  return std::filesystem::file_time_type::clock::from_sys(time);
}

}  // namespace

SampleDiscWriter::SampleDiscWriter(std::filesystem::path root) : root_(std::move(root)) {
  std::filesystem::create_directories(root_);
  Date(1996, 1, 1);
}

void SampleDiscWriter::Date(int year, unsigned month, unsigned day) {
  const std::chrono::year_month_day date{std::chrono::year{year}, std::chrono::month{month},
                                         std::chrono::day{day}};
  date_ = std::chrono::sys_days{date} + std::chrono::hours{10} + std::chrono::minutes{30};
}

std::filesystem::path SampleDiscWriter::PathOf(std::string_view path) const {
  return root_ / std::filesystem::path(FromUtf8(path));
}

void SampleDiscWriter::Directory(std::string_view path) {
  std::filesystem::create_directories(PathOf(path));
}

void SampleDiscWriter::File(std::string_view path, const std::string& bytes) {
  const std::filesystem::path name = PathOf(path);
  std::filesystem::create_directories(name.parent_path());
  std::ofstream file(name, std::ios::binary | std::ios::trunc);
  file << bytes;
  file.close();
  if (!file) {
    throw std::filesystem::filesystem_error("cannot write", name,
                                            std::make_error_code(std::errc::io_error));
  }
  std::filesystem::last_write_time(name, FileTime(date_));
}

void SampleDiscWriter::TextFile(std::string_view path, const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += Cp1252(line) + "\r\n";
  File(path, bytes);
}

void SampleDiscWriter::Ne(std::string_view path, const VersionStrings& strings, Icon icon) {
  File(path, NeExecutable(strings.empty() ? "" : VersionBlock8(Cp1252(strings)), icon));
}

void SampleDiscWriter::Pe(std::string_view path, const VersionStrings& strings, Icon icon) {
  File(path, PeExecutable(strings.empty() ? "" : VersionBlock16(Cp1252(strings)), icon));
}

void SampleDiscWriter::Dos(std::string_view path) {
  File(path, DosExecutable());
}

void SampleDiscWriter::Zip(std::string_view path, std::size_t size) {
  File(path, ZipArchive(size));
}

void SampleDiscWriter::Finish() {
  Date(1997, 6, 2);
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root_)) {
    // Where the system dates files only, nothing is lost: no directory's date is ever shown.
    std::error_code ignored;
    if (entry.is_directory()) {
      std::filesystem::last_write_time(entry.path(), FileTime(date_), ignored);
    }
  }
  std::error_code ignored;
  std::filesystem::last_write_time(root_, FileTime(date_), ignored);
}

VersionStrings FullRecord(const std::string& company, const std::string& description,
                          const std::string& version, const std::string& name,
                          const std::string& product) {
  return {{"CompanyName", company},
          {"FileDescription", description},
          {"FileVersion", version},
          {"InternalName", name},
          {"LegalCopyright", "Copyright © " + company + " 1996"},
          {"OriginalFilename", name + ".EXE"},
          {"ProductName", product},
          {"ProductVersion", version}};
}

}  // namespace trovex::test
