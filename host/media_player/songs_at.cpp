#include "host/media_player/songs_at.h"

#include <algorithm>
#include <string_view>

#include "host/media/scan.h"

namespace host::media_player {
namespace {

using media::Track;

std::vector<const Track*> by_path(const media::Library& library) {
  std::vector<const Track*> tracks;
  tracks.reserve(library.tracks().size());
  for (const Track& track : library.tracks())
    tracks.push_back(&track);
  std::ranges::sort(tracks, {}, &Track::path);
  return tracks;
}

}  // namespace

SongsAt songs_at(const std::vector<std::string>& paths, const media::Library& library) {
  const std::vector<const Track*> tracks = by_path(library);
  SongsAt found;
  for (const std::string& path : paths) {
    const std::size_t before = found.songs.size();
    auto track = std::ranges::lower_bound(tracks, std::string_view{path}, {}, &Track::path);
    // Other names may sort between a folder's own and those in it.
    for (; track != tracks.end() && (*track)->path.starts_with(path); ++track) {
      if (media::is_within((*track)->path, {&path, 1})) found.songs.push_back((*track)->id);
    }
    if (found.songs.size() == before) found.unknown.push_back(path);
  }
  return found;
}

}  // namespace host::media_player
