#pragma once

#include <atomic>
#include <mutex>
#include <string>

#include "host/quartzcore/drawing/image_decoder.h"

namespace host::quartzcore {

/// A picture as it is in a file. It has a size from the start; its pixels are decoded when they are
/// first needed, in whichever thread that is, and replace the bytes.
class EncodedImage final : public PixelSource {
 public:
  /// Returns null for what is no picture. The log calls it by the name.
  static std::shared_ptr<EncodedImage> read(std::string bytes, std::string name);
  EncodedImage(std::string bytes, std::string name, const ImageHeader& header);

  int width() const { return header_.width; }
  int height() const { return header_.height; }
  /// Of the decoded pixels.
  std::size_t byte_count() const {
    return 4 * static_cast<std::size_t>(width()) * static_cast<std::size_t>(height());
  }

  /// Null if the bytes turn out to be damaged.
  Surface pixels() override;
  Surface pixels_for_frame() override { return pixels(); }
  Opacity opacity() const override { return opacity_; }
  std::uint64_t revision() const override { return 0; }

 private:
  void decode();

  std::string bytes_;
  const std::string name_;
  const ImageHeader header_;
  std::once_flag decoded_;
  Surface pixels_;
  std::atomic<Opacity> opacity_ = Opacity::Translucent;
};

/// Returns a new image (+1) of the picture.
CGImageRef promise_image(const std::shared_ptr<EncodedImage>& picture);

}  // namespace host::quartzcore
