#pragma once

#include <list>
#include <map>
#include <memory>

#include "host/media_player/cover_store.h"
#include "objc/ref.h"
#include "platform/UIKit/UIImage.h"

namespace host::media_player {

/// Covers as images that know their size at once and have their pixels decoded when they are first
/// drawn. The same cover at the same size is the same object while it is kept, so that whatever the
/// screen has computed from it stays good. Main thread only.
class ArtworkImages {
 public:
  explicit ArtworkImages(CoverStore::Pace pace) : store_(std::make_shared<CoverStore>(pace)) {}
  ~ArtworkImages() { store_->stop(); }
  ArtworkImages(const ArtworkImages&) = delete;
  ArtworkImages& operator=(const ArtworkImages&) = delete;

  /// The cover with its longer side at most `longest_side` pixels, at `scale` pixels a point. Lives
  /// at least to the end of the turn; nil when there is none, or it is known that it cannot be
  /// decoded.
  UIImage image(const media::Track& track, int longest_side, double scale);
  /// The same for the cover that the whole screen shows: its pixels are asked for at once, and stay
  /// until another is shown.
  UIImage shown_image(const media::Track& track, int longest_side, double scale);

  std::size_t decode_count() const { return store_->cache().decode_count(); }
  std::size_t bytes_kept() const { return store_->cache().bytes_kept(); }

 private:
  /// The tiles of a large library, and the rows of it that were seen last.
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

  /// Null when there is none.
  const Entry* entry(const media::Track& track, int longest_side, double scale);
  const Entry& make(const media::Track& track, const Key& key);
  void make_room();

  std::shared_ptr<CoverStore> store_;
  std::list<Entry> entries_;  // The latest asked for first.
  std::map<Key, std::list<Entry>::iterator> by_key_;
};

}  // namespace host::media_player
