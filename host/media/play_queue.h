#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace host::media {

// Songs by their identifiers, in an order. Shared, so that a queue of a whole library costs
// nothing.
using SongList = std::shared_ptr<const std::vector<std::uint64_t>>;
SongList make_song_list(std::vector<std::uint64_t> ids);

// The songs to play, in order, and the one that is now playing. Nothing repeats: after the last
// song nothing is selected, and the song before the first is the first.
class PlayQueue {
 public:
  // Replaces the songs. The song that plays now stays selected when the new songs hold it, as the
  // queue may be replaced under a song that goes on playing.
  void set_tracks(SongList ids);

  // Selects the first occurrence of the song; false, changing nothing, when it is not queued.
  bool select(std::uint64_t id);
  bool select_first();
  void clear_selection() { index_.reset(); }

  // The song that is selected afterwards; empty at the end, or when nothing was selected.
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
