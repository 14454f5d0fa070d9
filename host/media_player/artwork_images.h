#pragma once

#include <list>
#include <map>
#include <memory>

#include "host/media_player/cover_store.h"
#include "objc/ref.h"
#include "platform/UIKit/UIImage.h"

namespace host::media_player {

/// Covers as images whose size is known at once and whose pixels are decoded when they are first
/// drawn. While cached, the same cover at the same size is the same object, so anything that the
/// screen has computed from it stays valid. Main thread only.
class ArtworkImages {
 public:
  explicit ArtworkImages(CoverStore::Pace pace) : store_(std::make_shared<CoverStore>(pace)) {}
  ~ArtworkImages() { store_->stop(); }
  ArtworkImages(const ArtworkImages&) = delete;
  ArtworkImages& operator=(const ArtworkImages&) = delete;

  /// Returns the cover with its longer side at most `longest_side` pixels, at `scale` pixels per
  /// point. It lives at least until the end of the turn. Returns nil when there is no cover, or it
  /// is known not to be decodable.
  UIImage image(const media::Track& track, int longest_side, double scale);
  /// The same, for the cover that fills the screen: requests its pixels at once, and keeps them
  /// until another is shown.
  UIImage shown_image(const media::Track& track, int longest_side, double scale);

  std::size_t decode_count() const { return store_->cache().decode_count(); }
  std::size_t bytes_kept() const { return store_->cache().bytes_kept(); }

 private:
  /// Enough for the tiles of a large library and its most recently shown rows.
  static constexpr std::size_t kMostImages = 8'000;

  struct Key {
    std::uint64_t artwork;
    int longest_side;
    double scale;
    auto operator<=>(const Key&) const = default;
  };
  struct Entry {
    Key key;
    objc::Ref<UIImage> image;
    std::shared_ptr<PromisedCover> cover;
  };

  /// Returns null when the track has no cover.
  const Entry* entry(const media::Track& track, int longest_side, double scale);
  const Entry& make(const media::Track& track, const Key& key);
  void make_room();

  std::shared_ptr<CoverStore> store_;
  std::list<Entry> entries_;  // Most recently requested first.
  std::map<Key, std::list<Entry>::iterator> by_key_;
};

}  // namespace host::media_player
