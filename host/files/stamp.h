#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <ctime>

namespace host::files {

/// Identifies a version of a file without reading it. It is as coarse as the file system's clock.
struct Stamp {
  std::uint64_t device = 0;
  std::uint64_t file = 0;
  std::uint64_t size = 0;
  std::int64_t modified = 0;  // nanoseconds since 1970, like the next
  std::int64_t changed = 0;   // its contents, name or permissions

  friend bool operator==(const Stamp&, const Stamp&) = default;
};

inline std::int64_t nanoseconds_of(const timespec& time) {
  constexpr std::int64_t kSecond = 1'000'000'000;
  return time.tv_sec * kSecond + time.tv_nsec;
}

inline Stamp stamp_of(const struct stat& status) {
  return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
          nanoseconds_of(status.st_mtim), nanoseconds_of(status.st_ctim)};
}

/// Whether a change of the file from now on would change its stamp.
inline bool has_settled(const Stamp& stamp) {
  constexpr std::int64_t kCoarsestClock = 2'000'000'000;  // nanoseconds
  // The time of files, which no stepped clock sets.
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  return nanoseconds_of(now) > stamp.changed + kCoarsestClock;
}

}  // namespace host::files
