#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/foundation/property_list_file.h"

namespace host::media_player {

/// The playback state that one process leaves to the next.
struct RememberedPlayback {
  std::optional<std::vector<std::uint64_t>> queue;  // Nothing means the whole library.
  std::uint64_t song = 0;                           // 0 when none was loaded.
  double position_seconds = 0;
  std::optional<double> volume;
};

/// Missing or malformed entries are treated as if nothing had been stored.
RememberedPlayback read_playback(foundation::PropertyListFile& file);
/// Returns false when it cannot be written.
bool write_playback(const foundation::PropertyListFile& file, const RememberedPlayback& playback);

}  // namespace host::media_player
