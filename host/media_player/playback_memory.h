#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace host::media_player {

/// The playback state that one process leaves to the next.
struct RememberedPlayback {
  std::optional<std::vector<std::uint64_t>> queue;  // Nothing means the whole library.
  std::uint64_t song = 0;                           // 0 when none was loaded.
  double position_seconds = 0;
  std::optional<double> volume;
};

/// Reads a property list at a path of this machine. Missing or malformed entries are treated as if
/// nothing had been stored.
RememberedPlayback read_playback(const std::string& path);
/// Returns false when it cannot be written.
bool write_playback(const std::string& path, const RememberedPlayback& playback);

}  // namespace host::media_player
