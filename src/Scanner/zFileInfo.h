// What the program knows of one file, as display texts: size, date and version record.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "Lib/Folder.h"
#include "Scanner/WideRecord.h"

namespace trovex {

class zFileInfo {
 public:
  // What PutFileName reads of a file.
  enum class Parts { kAll, kStatus };  // kStatus: size, date and time, without opening the file

  // Fills the object from the file. Every failure is silent: what could not be read stays empty.
  void PutFileName(const FileInHand& oFichier, Parts parts = Parts::kAll);
  // The version record that was read, empty if none was.
  const std::string& Record() const { return record_; }

  // Length and date as numbers; nothing where the file could not be measured.
  const std::optional<FileStatus>& Status() const { return status_; }

  // Each field has a getter and a setter of its own name; all are empty texts at first.
  Text zSize() const { return Get(kSize); }  // bytes in the picture "### ### ###"
  void zSize(Text value) { Put(kSize, std::move(value)); }
  Text zSizeKo() const { return Get(kSizeKo); }  // the same without its last four characters
  void zSizeKo(Text value) { Put(kSizeKo, std::move(value)); }
  Text zDate() const { return Get(kDate); }  // dd/mm/yyyy
  void zDate(Text value) { Put(kDate, std::move(value)); }
  Text zTime() const { return Get(kTime); }  // hh:mm:ss
  void zTime(Text value) { Put(kTime, std::move(value)); }
  Text zVersion() const { return Get(kVersion); }
  void zVersion(Text value) { Put(kVersion, std::move(value)); }
  Text zCopyright() const { return Get(kCopyright); }
  void zCopyright(Text value) { Put(kCopyright, std::move(value)); }
  Text zDescription() const { return Get(kDescription); }
  void zDescription(Text value) { Put(kDescription, std::move(value)); }
  Text zInternalName() const { return Get(kInternalName); }
  void zInternalName(Text value) { Put(kInternalName, std::move(value)); }
  Text zOriginalName() const { return Get(kOriginalName); }
  void zOriginalName(Text value) { Put(kOriginalName, std::move(value)); }
  Text zProductName() const { return Get(kProductName); }
  void zProductName(Text value) { Put(kProductName, std::move(value)); }
  Text zProductVersion() const { return Get(kProductVersion); }
  void zProductVersion(Text value) { Put(kProductVersion, std::move(value)); }
  Text zCompanyName() const { return Get(kCompanyName); }
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
  Text Get(Field field) const;
  void Put(Field field, Text value) { put_[field] = std::move(value); }
  Text FromStatus(Field field) const;
  Text FromRecord(Field field) const;
  Text FromWideRecord(std::string_view key) const;

  std::optional<FileStatus> status_;
  std::string record_;
  mutable std::optional<WideTable> wide_table_;       // of the record, once it was asked for
  std::array<std::optional<Text>, kFieldCount> put_;  // by the setters
};

// A number of bytes in the picture "### ### ###": digits from the right, the two blanks always
// there, digits beyond the ninth in front of the first group.
Text sFormatTaille(std::int64_t iTaille);

}  // namespace trovex
