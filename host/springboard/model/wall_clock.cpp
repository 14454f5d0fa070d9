#include "host/springboard/model/wall_clock.h"

#include <fmt/format.h>
#include <time.h>

namespace host::springboard {
namespace {

constexpr long kSecondsInMinute = 60;

}  // namespace

std::string SystemWallClock::time_text() const {
  const time_t now = time(nullptr);
  tm local{};
  localtime_r(&now, &local);
  return fmt::format("{}:{:02}", local.tm_hour, local.tm_min);
}

double SystemWallClock::seconds_to_next_minute() const {
  return static_cast<double>(kSecondsInMinute - time(nullptr) % kSecondsInMinute);
}

}  // namespace host::springboard
