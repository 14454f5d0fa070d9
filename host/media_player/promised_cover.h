#pragma once

#include <memory>

#include "host/media/cover_file.h"
#include "host/quartzcore/drawing/image.h"

namespace host::media_player {

class CoverStore;

/// A cover at one size. The size is known from the start; the pixels are made when they are drawn.
class PromisedCover final : public quartzcore::PixelSource,
                            public std::enable_shared_from_this<PromisedCover> {
 public:
  /// `size` is the cover's size with its longer side at most `longest_side` pixels.
  PromisedCover(std::shared_ptr<CoverStore> store, media::CoverFile cover, int longest_side,
                media::PictureSize size, quartzcore::Opacity opacity);

  quartzcore::Surface pixels() override;
  quartzcore::Surface pixels_for_frame() override;
  bool is_awaited() const override;
  quartzcore::Opacity opacity() const override;
  std::uint64_t revision() const override { return revision_; }

  const media::CoverFile& cover() const { return cover_; }
  int longest_side() const { return longest_side_; }

  /// Requests the pixels before anything is drawn.
  void prefetch();
  /// The pixels are ready, or are known not to be decodable.
  void arrived();

 private:
  quartzcore::Surface surface_of(const std::shared_ptr<const media::Picture>& picture) const;

  std::shared_ptr<CoverStore> store_;
  media::CoverFile cover_;
  int longest_side_;
  media::PictureSize size_;
  quartzcore::Opacity opacity_;
  std::uint64_t revision_ = 0;
  bool is_on_its_way_ = false;
};

}  // namespace host::media_player
