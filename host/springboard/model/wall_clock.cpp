#include "host/springboard/model/wall_clock.h"

#include <fmt/format.h>
#include <time.h>

namespace host::springboard {
namespace {

constexpr long kSecondsInMinute = 60;
constexpr const char* kWeekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                     "Thursday", "Friday", "Saturday"};
constexpr const char* kMonths[] = {"January",   "February", "March",    "April",
                                   "May",       "June",     "July",     "August",
                                   "September", "October",  "November", "December"};

tm local_time() {
  const time_t now = time(nullptr);
  tm local{};
  localtime_r(&now, &local);
  return local;
}

}  // namespace

std::string SystemWallClock::time_text() const {
  const tm local = local_time();
  return fmt::format("{}:{:02}", local.tm_hour, local.tm_min);
}

double SystemWallClock::seconds_to_next_minute() const {
  return static_cast<double>(kSecondsInMinute - time(nullptr) % kSecondsInMinute);
}

CalendarDay SystemWallClock::day() const {
  const tm local = local_time();
  return {kWeekdays[local.tm_wday], local.tm_mday};
}

std::string SystemWallClock::date_text() const {
  const tm local = local_time();
  return fmt::format("{}, {} {}", kWeekdays[local.tm_wday], kMonths[local.tm_mon], local.tm_mday);
}

}  // namespace host::springboard
