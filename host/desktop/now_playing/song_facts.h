#pragma once

#include <cstdint>
#include <string>

#include "host/media/track.h"

namespace host::desktop {

/// A song as other programs are told of it. The texts are `bus_text`, the addresses ASCII; what is
/// unknown is empty or 0.
struct SongFacts {
  std::uint64_t id = 0;
  std::string title;
  std::string artist;
  std::string album_artist;
  std::string album;
  std::string genre;
  std::string composer;
  std::string address;
  std::string cover_address;
  std::int64_t microseconds = 0;
  int track_number = 0;
  int disc_number = 0;

  bool operator==(const SongFacts&) const = default;
};

/// All but the cover's address.
SongFacts facts_of(const media::Track& track);

inline std::int64_t in_microseconds(double seconds) {
  return static_cast<std::int64_t>(seconds * 1e6);
}

}  // namespace host::desktop
