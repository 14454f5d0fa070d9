#pragma once

#include <string>

namespace host::springboard {

/// A day as the calendar's icon shows it: "Tuesday", 9.
struct CalendarDay {
  std::string weekday;
  int number;
};

/// The time of day that the status bar shows. Independent of the run loop's clock, which only
/// measures intervals.
class WallClock {
 public:
  virtual ~WallClock() = default;
  /// "9:41".
  virtual std::string time_text() const = 0;
  /// The seconds until the text changes; 0 when it never does.
  virtual double seconds_to_next_minute() const = 0;
  virtual CalendarDay day() const = 0;
  /// "Tuesday, September 9".
  virtual std::string date_text() const = 0;
};

/// The machine's local time.
class SystemWallClock final : public WallClock {
 public:
  std::string time_text() const override;
  double seconds_to_next_minute() const override;
  CalendarDay day() const override;
  std::string date_text() const override;
};

/// Always shows the same time, which makes pictures of the screen comparable.
class FixedWallClock final : public WallClock {
 public:
  std::string time_text() const override { return "9:41"; }
  double seconds_to_next_minute() const override { return 0; }
  CalendarDay day() const override { return {"Tuesday", 9}; }
  std::string date_text() const override { return "Tuesday, September 9"; }
};

inline const FixedWallClock fixed_wall_clock;

}  // namespace host::springboard
