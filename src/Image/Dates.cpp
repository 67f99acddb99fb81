#include "Image/Dates.h"

#include <algorithm>
#include <chrono>

namespace trovex::image {
namespace {

constexpr int kSecondsAQuarter = 15 * 60;
constexpr int kWestmost = -48, kEastmost = 52;  // quarters of an hour

}  // namespace

LocalTime RecordedTime(const RecordDate& date) {
  using namespace std::chrono;
  const int year = 1900 + static_cast<std::uint8_t>(date[0]);
  const int month = std::clamp<int>(date[1], 1, 12);
  const auto last = std::chrono::year(year) / std::chrono::month(static_cast<unsigned>(month)) /
                    std::chrono::last;
  const int days = static_cast<int>(static_cast<unsigned>(last.day()));
  return {year,
          month,
          std::clamp<int>(date[2], 1, days),
          std::clamp<int>(date[3], 0, 23),
          std::clamp<int>(date[4], 0, 59),
          std::clamp<int>(date[5], 0, 59)};
}

std::int64_t RecordedMoment(const RecordDate& date) {
  using namespace std::chrono;
  const LocalTime time = RecordedTime(date);
  const auto day = sys_days(year(time.year) / month(static_cast<unsigned>(time.month)) /
                            std::chrono::day(static_cast<unsigned>(time.day)));
  const bool known = date[6] >= kWestmost && date[6] <= kEastmost;
  const std::int64_t zone = known ? date[6] * kSecondsAQuarter : 0;
  return sys_seconds(day).time_since_epoch().count() + time.hour * 3600 + time.minute * 60 +
         time.second - zone;
}

}  // namespace trovex::image
