#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace host::media {

// An ordered list of song identifiers. Shared, so queueing a whole library copies nothing.
using SongList = std::shared_ptr<const std::vector<std::uint64_t>>;
SongList make_song_list(std::vector<std::uint64_t> ids);

// The songs to play, in order, and the one that is playing. The queue does not repeat: after the
// last song nothing is selected, and going back from the first song stays at the first.
class PlayQueue {
 public:
  // Replaces the songs. The playing song stays selected if the new list contains it, since the
  // queue may be replaced while a song keeps playing.
  void set_tracks(SongList ids);

  // Selects the first occurrence of the song; returns false and changes nothing when it is not
  // queued.
  bool select(std::uint64_t id);
  bool select_first();
  void clear_selection() { index_.reset(); }

  // Return the newly selected song; empty at the end, or when nothing was selected.
  std::optional<std::uint64_t> next();
  std::optional<std::uint64_t> previous();

  std::optional<std::uint64_t> current() const;
  std::optional<std::size_t> index() const { return index_; }
  std::span<const std::uint64_t> tracks() const { return *ids_; }
  const SongList& list() const { return ids_; }

 private:
  SongList ids_ = make_song_list({});
  std::optional<std::size_t> index_;
};

}  // namespace host::media
