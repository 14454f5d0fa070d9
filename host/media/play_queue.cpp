#include "host/media/play_queue.h"

#include <algorithm>

namespace host::media {

SongList make_song_list(std::vector<std::uint64_t> ids) {
  return std::make_shared<const std::vector<std::uint64_t>>(std::move(ids));
}

void PlayQueue::set_tracks(SongList ids) {
  if (ids == ids_) return;
  const auto playing = current();
  ids_ = std::move(ids);
  index_.reset();
  if (playing) select(*playing);
}

bool PlayQueue::select(std::uint64_t id) {
  const auto found = std::ranges::find(*ids_, id);
  if (found == ids_->end()) return false;
  index_ = static_cast<std::size_t>(found - ids_->begin());
  return true;
}

bool PlayQueue::select_first() {
  if (ids_->empty()) return false;
  index_ = 0;
  return true;
}

std::optional<std::uint64_t> PlayQueue::next() {
  if (!index_) return std::nullopt;
  if (*index_ + 1 < ids_->size()) {
    ++*index_;
  } else {
    index_.reset();
  }
  return current();
}

std::optional<std::uint64_t> PlayQueue::previous() {
  if (index_ && *index_ > 0) --*index_;
  return current();
}

std::optional<std::uint64_t> PlayQueue::current() const {
  if (!index_) return std::nullopt;
  return (*ids_)[*index_];
}

}  // namespace host::media
