#include "Scanner/zFileInfo.h"

#include "Lib/LIB_FILE.h"
#include "Platform/Encoding.h"
#include "Scanner/VersionRecord.h"

namespace trovex {
namespace {

constexpr std::size_t kDateLength = 10;
constexpr std::size_t kTimeLength = 8;
constexpr std::size_t kKoCut = 4;  // the last group and its blank

// A key of the record and where its value stands behind the key's start: the key, a NUL and the
// padding to a four-byte boundary, as in the 8-bit layout of a version record.
struct Key {
  const char* name;
  std::size_t offset;
  void (zFileInfo::*put)(Text);
};

constexpr Key kKeys[] = {
    {"CompanyName", 12, &zFileInfo::zCompanyName},
    {"FileDescription", 16, &zFileInfo::zDescription},
    {"FileVersion", 12, &zFileInfo::zVersion},
    {"InternalName", 16, &zFileInfo::zInternalName},
    {"LegalCopyright", 16, &zFileInfo::zCopyright},
    {"OriginalFilename", 20, &zFileInfo::zOriginalName},
    {"ProductName", 12, &zFileInfo::zProductName},
    {"ProductVersion", 16, &zFileInfo::zProductVersion},
};

}  // namespace

void zFileInfo::PutFileName(const Text& sFileName) {
  ViderChamps();
  if (Trimmed(sFileName).empty()) return;
  try {
    FileStatus status;
    if (!CurrentPlatform().GetFileStatus(sFileName, status)) return;
    TakeStatus(status);
    TakeRecord(ReadVersionRecord(sFileName));
  } catch (const RuntimeError&) {
    // What was filled so far stays.
  }
}

void zFileInfo::ViderChamps() {
  *this = zFileInfo();
}

void zFileInfo::TakeStatus(const FileStatus& status) {
  zSize_ = sFormatTaille(status.length);
  if (zSize_.size() > kKoCut) zSizeKo_ = zSize_.substr(0, zSize_.size() - kKoCut);
  const Text sDate = sFormatDate(status.modified);
  zDate_ = sDate.substr(0, kDateLength);
  zTime_ = sDate.substr(sDate.size() - kTimeLength);
}

void zFileInfo::TakeRecord(const std::string& record) {
  for (const Key& key : kKeys) {
    const auto value = BehindKey(record, key.name, key.offset);
    if (value) (this->*key.put)(FromCp1252(value->substr(0, value->find('\0'))));
  }
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
