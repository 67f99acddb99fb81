#include "Platform/Posix/LocalDate.h"

#include <algorithm>

namespace trovex::posix {
namespace {

// 1601-01-02 and 9999-12-30 in UTC: a day inside, so that no time zone leaves the range.
constexpr std::time_t kFirst = -11644387200;
constexpr std::time_t kLast = 253402128000;

}  // namespace

LocalTime LocalDate(std::time_t seconds) {
  seconds = std::clamp(seconds, kFirst, kLast);
  std::tm fields = {};
  localtime_r(&seconds, &fields);
  return {fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday,
          fields.tm_hour,        fields.tm_min,     fields.tm_sec};
}

}  // namespace trovex::posix
