#include "Scanner/zFileInfo.h"

#include "Lib/FichesUnicode.h"
#include "Lib/LIB_FILE.h"
#include "Platform/Encoding.h"
#include "Scanner/VersionRecord.h"

namespace trovex {
namespace {

constexpr std::size_t kDateLength = 10;
constexpr std::size_t kTimeLength = 8;
constexpr std::size_t kKoCut = 4;  // the last group and its blank

}  // namespace

void zFileInfo::PutFileName(const FileInHand& oFichier, Parts parts) {
  ViderChamps();
  if (oFichier.IsBlank()) return;
  try {
    FileStatus status;
    const bool found = parts == Parts::kAll
                           ? oFichier.GetFileProperties(status, record_) != Reading::kNothing
                           : oFichier.GetFileStatus(status);
    if (found) status_ = status;
  } catch (const RuntimeError&) {
    // What was filled so far stays.
  }
}

void zFileInfo::ViderChamps() {
  status_.reset();
  record_.clear();
  wide_table_.reset();
  put_ = {};
}

Text zFileInfo::Get(Field field) const {
  if (put_[field]) return *put_[field];
  if (field >= kVersion) return FromRecord(field);
  return status_ ? FromStatus(field) : Text();
}

Text zFileInfo::FromStatus(Field field) const {
  const Text sTaille = field == kSize || field == kSizeKo ? sFormatTaille(status_->length) : Text();
  if (field == kSize) return sTaille;
  if (field == kSizeKo) {
    return sTaille.size() > kKoCut ? sTaille.substr(0, sTaille.size() - kKoCut) : Text();
  }
  const Text sDate = sFormatDate(status_->modified);
  return field == kDate ? sDate.substr(0, kDateLength) : sDate.substr(sDate.size() - kTimeLength);
}

Text zFileInfo::FromRecord(Field field) const {
  // A key of the record, and where its value stands behind the key's start: the key, a NUL and the
  // padding to a four-byte boundary, as in the 8-bit layout of a version record.
  struct Key {
    Field field;
    const char* name;
    std::size_t offset;
  };
  static constexpr Key kKeys[] = {
      {kVersion, "FileVersion", 12},           {kCopyright, "LegalCopyright", 16},
      {kDescription, "FileDescription", 16},   {kInternalName, "InternalName", 16},
      {kOriginalName, "OriginalFilename", 20}, {kProductName, "ProductName", 12},
      {kProductVersion, "ProductVersion", 16}, {kCompanyName, "CompanyName", 12},
  };
  for (const Key& key : kKeys) {
    if (key.field != field) continue;
    const auto value = BehindKey(record_, key.name, key.offset);
    if (value) return FromCp1252(value->substr(0, value->find('\0')));
    if (bFichesUnicode()) return FromWideRecord(key.name);
  }
  return {};
}

Text zFileInfo::FromWideRecord(std::string_view key) const {
  if (!wide_table_) wide_table_ = FindWideTable(record_);
  return ValueInWideTable(record_, *wide_table_, key).value_or(Text());
}

Text sFormatTaille(std::int64_t iTaille) {
  // The picture places no digit for a zero.
  const Text digits = iTaille == 0 ? Text() : Decimal(iTaille);
  const std::size_t n = digits.size();
  const auto group = [&](std::size_t from_right, std::size_t width) {
    if (n <= from_right) return Text();
    const std::size_t end = n - from_right;
    const std::size_t begin = end > width ? end - width : 0;
    return digits.substr(begin, end - begin);
  };
  return group(6, n) + u" " + group(3, 3) + u" " + group(0, 3);
}

}  // namespace trovex
