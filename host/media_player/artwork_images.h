#pragma once

#include <list>
#include <map>

#include "host/media/artwork_cache.h"
#include "objc/ref.h"
#include "platform/UIKit/UIImage.h"

namespace host::media_player {

/// Covers as images: the same cover at the same size is the same object while it is kept, so that
/// whatever the screen has computed from it stays good. Main thread only.
class ArtworkImages {
 public:
  /// The cover with its longer side at most `longest_side` pixels, at `scale` pixels a point. Lives
  /// at least to the end of the turn; nil when there is none.
  UIImage image(const media::Track& track, int longest_side, double scale);

  std::size_t decode_count() const { return decoder_.decode_count(); }

 private:
  static constexpr std::size_t kMostBytes = 32 << 20;
  // The images keep the pixels themselves; this is enough for the covers that turned out to be
  // none.
  static constexpr std::size_t kDecoderBytes = 64 << 10;

  struct Key {
    std::uint64_t artwork;
    int longest_side;
    double scale;
    auto operator<=>(const Key&) const = default;
  };
  struct Entry {
    Key key;
    objc::Ref<UIImage> image;
    std::size_t bytes;
  };

  void keep(Entry entry);

  media::ArtworkCache decoder_{kDecoderBytes};
  std::size_t bytes_kept_ = 0;
  std::list<Entry> entries_;  // The latest used first.
  std::map<Key, std::list<Entry>::iterator> by_key_;
};

}  // namespace host::media_player
