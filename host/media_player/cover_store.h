#pragma once

#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "host/media/artwork_cache.h"
#include "host/media/cover_decoder.h"
#include "host/runtime/run_loop.h"

namespace host::media_player {

class PromisedCover;

/// The pixels of covers: the most recently used are kept within a fixed number of bytes, others are
/// decoded when they are needed. Main thread only.
class CoverStore : public std::enable_shared_from_this<CoverStore> {
 public:
  using PicturePtr = media::ArtworkCache::PicturePtr;

  enum class Pace {
    Waits,       // A frame waits for all its pictures, however long; a stepped clock does not
                 // advance meanwhile.
    NeverWaits,  // Decoded in the background and shown when ready.
  };
  static constexpr std::size_t kMostBytes = 8 << 20;

  explicit CoverStore(Pace pace) : pace_(pace) {}
  ~CoverStore();
  CoverStore(const CoverStore&) = delete;
  CoverStore& operator=(const CoverStore&) = delete;

  Pace pace() const { return pace_; }
  /// From now on every picture is decoded on demand. Call before the run loop is destroyed.
  void stop();

  PicturePtr picture_now(const PromisedCover& cover);
  PicturePtr picture_if_kept(const PromisedCover& cover);
  bool keeps(const PromisedCover& cover) const;
  bool is_broken(std::uint64_t key) const { return cache_.is_broken(key); }
  /// Decodes in the background, and tells the cover when its pixels are ready.
  void request(const std::shared_ptr<PromisedCover>& cover);
  /// Keeps this cover's pixels, once decoded, until another cover is pinned.
  void pin(const PromisedCover& cover);

  const media::ArtworkCache& cache() const { return cache_; }

 private:
  using Key = std::pair<std::uint64_t, int>;

  void receive_decoded();
  void take(media::CoverDecoder::Decoded decoded);

  Pace pace_;
  media::ArtworkCache cache_{kMostBytes};
  std::map<Key, std::vector<std::weak_ptr<PromisedCover>>> waiting_;
  Key pinned_key_;
  PicturePtr pinned_;
  RunLoop::Id watch_ = 0;
  std::unique_ptr<media::CoverDecoder> decoder_;
};

}  // namespace host::media_player
