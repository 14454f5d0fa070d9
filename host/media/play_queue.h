#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <random>
#include <span>
#include <vector>

namespace host::media {

// An ordered list of song identifiers. Shared, so queueing a whole library copies nothing.
using SongList = std::shared_ptr<const std::vector<std::uint64_t>>;
SongList make_song_list(std::vector<std::uint64_t> ids);

enum class Repeat { none, one, all };

// The songs to play, in order, and the one that is playing. A queue that does not repeat ends:
// after the last song nothing is selected, and going back from the first song stays at the first.
class PlayQueue {
 public:
  // The order of shuffled songs depends on the seed only.
  explicit PlayQueue(std::uint32_t seed = 1) : random_(seed) {}

  // Replaces the songs. The playing song stays selected if the new list contains it, since the
  // queue may be replaced while a song keeps playing.
  void set_tracks(SongList ids);

  void set_repeat(Repeat repeat) { repeat_ = repeat; }
  Repeat repeat() const { return repeat_; }
  bool repeats() const { return repeat_ != Repeat::none; }

  // Shuffled, the selected song is the first. Otherwise the songs are in their own order.
  void set_shuffles(bool shuffles);
  bool shuffles() const { return shuffles_; }

  // Selects the first occurrence of the song; returns false and changes nothing when it is not
  // queued. Shuffled, all others come after it in a new order.
  bool select(std::uint64_t id);
  bool select_first();
  void clear_selection() { index_.reset(); }

  // Return the newly selected song; empty at the end, or when nothing was selected. Repeating one
  // song and repeating all are the same here: the first comes after the last.
  std::optional<std::uint64_t> next();
  std::optional<std::uint64_t> previous();
  // The same for a song that has ended, which one that is repeated follows itself.
  std::optional<std::uint64_t> follow();

  std::optional<std::uint64_t> current() const;
  std::optional<std::size_t> index() const { return index_; }
  // In the order in which they are played.
  std::span<const std::uint64_t> tracks() const { return *order_; }
  // In their own order.
  const SongList& list() const { return list_; }

 private:
  std::optional<std::size_t> place_of(std::uint64_t id) const;
  void arrange(std::optional<std::size_t> selected);

  SongList list_ = make_song_list({});
  SongList order_ = list_;
  std::optional<std::size_t> index_;  // in `order_`
  Repeat repeat_ = Repeat::none;
  bool shuffles_ = false;
  std::minstd_rand random_;
};

}  // namespace host::media
