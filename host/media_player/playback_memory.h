#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace host::media_player {

/// What one process leaves to the next.
struct RememberedPlayback {
  std::optional<std::vector<std::uint64_t>> queue;  // Nothing means the whole library.
  std::uint64_t song = 0;                           // 0 when none was loaded.
  double position_seconds = 0;
  std::optional<double> volume;
};

/// A property list at a path of this machine. What is missing or malformed is as if nothing had
/// been remembered.
RememberedPlayback read_playback(const std::string& path);
/// False when it cannot be written.
bool write_playback(const std::string& path, const RememberedPlayback& playback);

}  // namespace host::media_player
