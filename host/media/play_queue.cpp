#include "host/media/play_queue.h"

#include <algorithm>
#include <utility>

namespace host::media {

SongList make_song_list(std::vector<std::uint64_t> ids) {
  return std::make_shared<const std::vector<std::uint64_t>>(std::move(ids));
}

void PlayQueue::set_tracks(SongList ids) {
  if (ids == list_) return;
  const auto playing = current();
  list_ = std::move(ids);
  arrange(playing ? place_of(*playing) : std::nullopt);
}

void PlayQueue::set_shuffles(bool shuffles) {
  if (std::exchange(shuffles_, shuffles) == shuffles) return;
  const auto playing = current();
  arrange(playing ? place_of(*playing) : std::nullopt);
}

bool PlayQueue::select(std::uint64_t id) {
  const auto place = place_of(id);
  if (place) arrange(place);
  return place.has_value();
}

std::optional<std::size_t> PlayQueue::place_of(std::uint64_t id) const {
  const auto found = std::ranges::find(*list_, id);
  if (found == list_->end()) return std::nullopt;
  return static_cast<std::size_t>(found - list_->begin());
}

// Puts the songs in order and selects one, given by its place in the list.
void PlayQueue::arrange(std::optional<std::size_t> selected) {
  order_ = list_;
  index_ = selected;
  if (!shuffles_) return;
  std::vector<std::uint64_t> order = *list_;
  auto rest = order.begin();
  if (index_) {
    std::swap(order[*index_], *rest++);
    index_ = 0;
  }
  std::shuffle(rest, order.end(), random_);
  order_ = make_song_list(std::move(order));
}

bool PlayQueue::select_first() {
  if (order_->empty()) return false;
  index_ = 0;
  return true;
}

std::optional<std::uint64_t> PlayQueue::next() {
  if (!index_) return std::nullopt;
  if (*index_ + 1 < order_->size()) {
    ++*index_;
  } else if (repeats()) {
    index_ = 0;
  } else {
    index_.reset();
  }
  return current();
}

std::optional<std::uint64_t> PlayQueue::previous() {
  if (!index_) return std::nullopt;
  if (*index_ > 0) {
    --*index_;
  } else if (repeats()) {
    index_ = order_->size() - 1;
  }
  return current();
}

std::optional<std::uint64_t> PlayQueue::follow() {
  return repeat_ == Repeat::one ? current() : next();
}

std::optional<std::uint64_t> PlayQueue::current() const {
  if (!index_) return std::nullopt;
  return (*order_)[*index_];
}

}  // namespace host::media
