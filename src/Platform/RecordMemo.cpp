#include "Platform/RecordMemo.h"

#include <utility>

namespace trovex {
namespace {

TextView DirectoryOf(TextView name) {
  return name.substr(0, name.rfind(u'\\') + 1);
}

}  // namespace

const std::string* RecordMemo::Find(TextView name) {
  std::size_t i = 0;
  while (i < count_ && !EqualsNoCase(known_[i].name, name)) ++i;
  if (i == count_) return nullptr;
  // Asked for again behind later ones, it is the one that the directory comes back to.
  if (i > 0 && i != latest_) {
    std::swap(known_[0], known_[i]);
    if (latest_ == 0) latest_ = i;
    i = 0;
  }
  return &known_[i].record;
}

const std::string& RecordMemo::Put(TextView name, std::string_view record) {
  if (count_ > 0 && !EqualsNoCase(DirectoryOf(known_[0].name), DirectoryOf(name))) Clear();
  if (count_ < kRecords) {
    latest_ = count_++;
  } else {
    latest_ = latest_ + 1 < kRecords ? latest_ + 1 : 1;
  }
  known_[latest_].name = name;
  known_[latest_].record = record;
  return known_[latest_].record;
}

}  // namespace trovex
