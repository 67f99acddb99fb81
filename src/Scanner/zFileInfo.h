// What the program knows of one file, as display texts: size, date and version record.
#pragma once

#include <string>

#include "Platform/Platform.h"

namespace trovex {

class zFileInfo {
 public:
  // Fills the object from the file. Every failure is silent: what could not be read stays empty.
  void PutFileName(const Text& sFileName);

  // Each field has a getter and a setter of its own name; all are empty texts at first.
  const Text& zSize() const { return zSize_; }  // bytes in the picture "### ### ###"
  void zSize(Text value) { zSize_ = std::move(value); }
  const Text& zSizeKo() const { return zSizeKo_; }  // the same without its last four characters
  void zSizeKo(Text value) { zSizeKo_ = std::move(value); }
  const Text& zDate() const { return zDate_; }  // dd/mm/yyyy
  void zDate(Text value) { zDate_ = std::move(value); }
  const Text& zTime() const { return zTime_; }  // hh:mm:ss
  void zTime(Text value) { zTime_ = std::move(value); }
  const Text& zVersion() const { return zVersion_; }
  void zVersion(Text value) { zVersion_ = std::move(value); }
  const Text& zCopyright() const { return zCopyright_; }
  void zCopyright(Text value) { zCopyright_ = std::move(value); }
  const Text& zDescription() const { return zDescription_; }
  void zDescription(Text value) { zDescription_ = std::move(value); }
  const Text& zInternalName() const { return zInternalName_; }
  void zInternalName(Text value) { zInternalName_ = std::move(value); }
  const Text& zOriginalName() const { return zOriginalName_; }
  void zOriginalName(Text value) { zOriginalName_ = std::move(value); }
  const Text& zProductName() const { return zProductName_; }
  void zProductName(Text value) { zProductName_ = std::move(value); }
  const Text& zProductVersion() const { return zProductVersion_; }
  void zProductVersion(Text value) { zProductVersion_ = std::move(value); }
  const Text& zCompanyName() const { return zCompanyName_; }
  void zCompanyName(Text value) { zCompanyName_ = std::move(value); }

 private:
  void ViderChamps();
  void TakeStatus(const FileStatus& status);
  void TakeRecord(const std::string& record);

  Text zSize_, zSizeKo_, zDate_, zTime_;
  Text zVersion_, zCopyright_, zDescription_, zInternalName_, zOriginalName_;
  Text zProductName_, zProductVersion_, zCompanyName_;
};

// A number of bytes in the picture "### ### ###": digits from the right, the two blanks always
// there, digits beyond the ninth in front of the first group.
Text sFormatTaille(std::int64_t iTaille);

}  // namespace trovex
