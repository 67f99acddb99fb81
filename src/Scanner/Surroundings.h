// What lies beside the programs of one directory and may tell what they are called. Each thing is
// read when it is first asked for, and once.
#pragma once

#include <array>
#include <bitset>
#include <optional>

#include "Lib/LIB_INI.h"
#include "Scanner/TextLines.h"

namespace trovex {

// The files that tell of a program.
enum class Source {
  kSetupLst,
  kSetupIni,
  kInstallInf,
  kFileIdDiz,
  kLisezMoi,
  kReadme,
  kInstallTxt,
  kLogiciel,
  kCount
};

// "SETUP.LST", "file_id.diz"; the text lives for ever.
TextView NameOf(Source source);

class Surroundings {
 public:
  // `first` is the first name that the list of the directory's programs shows. Both must outlive
  // this object.
  Surroundings(const Folder& folder, const Text& first);

  const Folder& Directory() const { return folder_; }
  bool Has(Source source) const { return there_[Number(source)]; }
  // True if any source but logiciel.txt is there.
  bool HasDescription() const;

  // Values of an INI file, lines of a text file; see IniEnMain and TextLines.
  IniEnMain& Ini(Source source);
  TextLines& Lines(Source source);

  // The product of the first file listed, whichever is being analysed. Its record is taken from
  // whoever has read it, if it was read.
  const Text& FirstProduct();
  const Text& First() const { return first_; }
  bool IsFirst(TextView file) const { return file == first_; }
  void PutFirstRecord(const std::string& record) { first_record_ = record; }

 private:
  static constexpr std::size_t kSources = static_cast<std::size_t>(Source::kCount);
  static std::size_t Number(Source source) { return static_cast<std::size_t>(source); }
  FileInHand File(Source source) const;

  const Folder& folder_;
  const Text& first_;
  std::bitset<kSources> there_;
  std::array<std::optional<IniEnMain>, kSources> ini_;
  std::array<std::optional<TextLines>, kSources> lines_;
  std::optional<std::string> first_record_;
  std::optional<Text> first_product_;
};

}  // namespace trovex
