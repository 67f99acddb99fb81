// The version records read last, for a scan that comes back to them.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "Platform/Text.h"

namespace trovex {

// Holds records of files of one directory: the one that is come back to, at first the first one of
// the directory, and the latest others.
class RecordMemo {
 public:
  // Null if the file's record is not held; good until the next call.
  const std::string* Find(TextView name);
  const std::string& Put(TextView name, std::string_view record);
  void Clear() { count_ = 0; }

 private:
  static constexpr std::size_t kRecords = 8;

  struct Known {
    Text name;
    std::string record;
  };

  std::array<Known, kRecords> known_;  // the protected one first
  std::size_t count_ = 0;
  std::size_t latest_ = 0;
};

}  // namespace trovex
