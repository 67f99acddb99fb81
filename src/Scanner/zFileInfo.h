// What the program knows of one file, as display texts: size, date and version record.
#pragma once

#include <array>
#include <bitset>
#include <optional>
#include <string>

#include "Platform/Platform.h"

namespace trovex {

class zFileInfo {
 public:
  // What PutFileName reads of a file.
  enum class Parts { kAll, kStatus };  // kStatus: size, date and time, without opening the file

  // Fills the object from the file. Every failure is silent: what could not be read stays empty.
  void PutFileName(const Text& sFileName, Parts parts = Parts::kAll);

  // Each field has a getter and a setter of its own name; all are empty texts at first.
  const Text& zSize() const { return Get(kSize); }  // bytes in the picture "### ### ###"
  void zSize(Text value) { Put(kSize, std::move(value)); }
  const Text& zSizeKo() const { return Get(kSizeKo); }  // the same without its last four characters
  void zSizeKo(Text value) { Put(kSizeKo, std::move(value)); }
  const Text& zDate() const { return Get(kDate); }  // dd/mm/yyyy
  void zDate(Text value) { Put(kDate, std::move(value)); }
  const Text& zTime() const { return Get(kTime); }  // hh:mm:ss
  void zTime(Text value) { Put(kTime, std::move(value)); }
  const Text& zVersion() const { return Get(kVersion); }
  void zVersion(Text value) { Put(kVersion, std::move(value)); }
  const Text& zCopyright() const { return Get(kCopyright); }
  void zCopyright(Text value) { Put(kCopyright, std::move(value)); }
  const Text& zDescription() const { return Get(kDescription); }
  void zDescription(Text value) { Put(kDescription, std::move(value)); }
  const Text& zInternalName() const { return Get(kInternalName); }
  void zInternalName(Text value) { Put(kInternalName, std::move(value)); }
  const Text& zOriginalName() const { return Get(kOriginalName); }
  void zOriginalName(Text value) { Put(kOriginalName, std::move(value)); }
  const Text& zProductName() const { return Get(kProductName); }
  void zProductName(Text value) { Put(kProductName, std::move(value)); }
  const Text& zProductVersion() const { return Get(kProductVersion); }
  void zProductVersion(Text value) { Put(kProductVersion, std::move(value)); }
  const Text& zCompanyName() const { return Get(kCompanyName); }
  void zCompanyName(Text value) { Put(kCompanyName, std::move(value)); }

 private:
  enum Field {
    kSize,
    kSizeKo,
    kDate,
    kTime,
    kVersion,
    kCopyright,
    kDescription,
    kInternalName,
    kOriginalName,
    kProductName,
    kProductVersion,
    kCompanyName,
    kFieldCount
  };

  void ViderChamps();
  // A field's text is made when it is asked for: of most files that are read, two of them are.
  const Text& Get(Field field) const;
  void Put(Field field, Text value);
  Text Made(Field field) const;
  Text FromStatus(Field field) const;
  Text FromRecord(Field field) const;

  std::optional<FileStatus> status_;
  std::string record_;
  mutable std::array<Text, kFieldCount> texts_;  // each only if it is made
  mutable std::bitset<kFieldCount> made_;
};

// A number of bytes in the picture "### ### ###": digits from the right, the two blanks always
// there, digits beyond the ninth in front of the first group.
Text sFormatTaille(std::int64_t iTaille);

}  // namespace trovex
