#include "host/media_player/cover_store.h"

#include <utility>

#include "host/media_player/promised_cover.h"

namespace host::media_player {
namespace {

std::pair<std::uint64_t, int> key_of(const PromisedCover& cover) {
  return {cover.cover().key, cover.longest_side()};
}

}  // namespace

CoverStore::~CoverStore() {
  stop();
}

void CoverStore::stop() {
  pace_ = Pace::Waits;
  if (watch_) RunLoop::main().unwatch(std::exchange(watch_, 0));
  decoder_.reset();
  for (const auto& [key, covers] : std::exchange(waiting_, {})) {
    for (const auto& cover : covers) {
      if (const auto waiting = cover.lock()) waiting->arrived();
    }
  }
}

CoverStore::PicturePtr CoverStore::picture_now(const PromisedCover& cover) {
  if (PicturePtr kept = picture_if_kept(cover)) return kept;
  const PicturePtr picture = cache_.picture(cover.cover(), cover.longest_side());
  if (key_of(cover) == pinned_key_) pinned_ = picture;
  return picture;
}

CoverStore::PicturePtr CoverStore::picture_if_kept(const PromisedCover& cover) {
  if (pinned_ && key_of(cover) == pinned_key_) return pinned_;
  return cache_.kept(cover.cover().key, cover.longest_side());
}

bool CoverStore::keeps(const PromisedCover& cover) const {
  return (pinned_ && key_of(cover) == pinned_key_) ||
         cache_.keeps(cover.cover().key, cover.longest_side());
}

void CoverStore::request(const std::shared_ptr<PromisedCover>& cover) {
  if (!decoder_) {
    decoder_ = std::make_unique<media::CoverDecoder>();
    watch_ = RunLoop::main().watch(decoder_->descriptor(), [this] { receive_decoded(); });
  }
  auto& covers = waiting_[key_of(*cover)];
  if (covers.empty()) decoder_->request({cover->cover(), cover->longest_side()});
  covers.push_back(cover);
}

void CoverStore::pin(const PromisedCover& cover) {
  const Key key = key_of(cover);
  if (key == pinned_key_) return;
  pinned_ = cache_.kept(key.first, key.second);
  pinned_key_ = key;
}

void CoverStore::receive_decoded() {
  // A cover that arrives may hold the last reference to the store.
  const auto self = shared_from_this();
  while (decoder_) {
    auto decoded = decoder_->take();
    if (!decoded) return;
    take(std::move(*decoded));
  }
}

void CoverStore::take(media::CoverDecoder::Decoded decoded) {
  const auto& [cover, longest_side] = decoded.request;
  const Key key{cover.key, longest_side};
  if (key == pinned_key_) pinned_ = decoded.picture;
  cache_.put(cover, longest_side, std::move(decoded.picture));
  const auto waiting = waiting_.extract(key);
  if (waiting.empty()) return;
  for (const auto& promised : waiting.mapped()) {
    if (const auto there = promised.lock()) there->arrived();
  }
}

}  // namespace host::media_player
