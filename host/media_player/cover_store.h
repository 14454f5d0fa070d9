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

/// The pixels of covers: the latest used within a fixed number of bytes, the others decoded when
/// they are needed. Main thread only.
class CoverStore : public std::enable_shared_from_this<CoverStore> {
 public:
  using PicturePtr = media::ArtworkCache::PicturePtr;

  enum class Pace {
    Waits,       // A frame has all pictures, whatever that takes: a stepped clock stands meanwhile.
    NeverWaits,  // They are decoded beside the screen and shown when they are there.
  };
  static constexpr std::size_t kMostBytes = 8 << 20;

  explicit CoverStore(Pace pace) : pace_(pace) {}
  ~CoverStore();
  CoverStore(const CoverStore&) = delete;
  CoverStore& operator=(const CoverStore&) = delete;

  Pace pace() const { return pace_; }
  /// From here on everything is decoded when it is asked for. Before the run loop goes.
  void stop();

  PicturePtr picture_now(const PromisedCover& cover);
  PicturePtr picture_if_kept(const PromisedCover& cover);
  bool keeps(const PromisedCover& cover) const;
  bool is_broken(std::uint64_t key) const { return cache_.is_broken(key); }
  /// The cover hears when its pixels are there.
  void request(const std::shared_ptr<PromisedCover>& cover);
  /// This cover's pixels, once made, stay until another is pinned.
  void pin(const PromisedCover& cover);

  const media::ArtworkCache& cache() const { return cache_; }

 private:
  using Key = std::pair<std::uint64_t, int>;

  void hear();
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
