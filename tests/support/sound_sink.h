#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/media_fixtures.h"

namespace media_tests {

// A sound server with one device, which keeps everything that is played. While an instance lives,
// this process's players use it.
class SoundSink {
 public:
  // `rate` is the device's, in samples a second.
  explicit SoundSink(int rate);
  ~SoundSink();
  SoundSink(const SoundSink&) = delete;
  SoundSink& operator=(const SoundSink&) = delete;

  // The left channel from the first sound to the last, without the silence before and after it.
  std::vector<std::int16_t> heard() const;
  // Waits until the device has been silent for `milliseconds` after some sound.
  void wait_for_silence(int milliseconds) const;
  // What the server tells the mixer of those who play.
  std::string players() const;
  // The device is no longer there.
  void disappear();

 private:
  std::string server() const { return "unix:" + (folder_ / "native"); }

  TemporaryFolder folder_;
  pid_t server_process_ = 0;
  pid_t recorder_process_ = 0;
};

}  // namespace media_tests
