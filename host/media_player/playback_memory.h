#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/foundation/background_file.h"
#include "host/foundation/property_list_file.h"

namespace host::media_player {

/// The playback state that one process leaves to the next.
struct RememberedPlayback {
  std::optional<std::vector<std::uint64_t>> queue;  // Nothing means the whole library.
  std::uint64_t song = 0;                           // 0 when none was loaded.
  double position_seconds = 0;
  std::optional<double> volume;
};

/// The file that keeps it.
class PlaybackFile {
 public:
  using Pace = foundation::BackgroundFile::Pace;

  /// A path of the device or of this machine.
  PlaybackFile(const std::string& path, Pace pace);

  const std::string& path() const { return list_.path(); }
  /// Missing or malformed entries are treated as if nothing had been stored.
  RememberedPlayback read();
  /// Returns false when it cannot be written; without waiting, one call later.
  bool write(const RememberedPlayback& playback);

 private:
  foundation::PropertyListFile list_;
  foundation::BackgroundFile bytes_;
};

}  // namespace host::media_player
