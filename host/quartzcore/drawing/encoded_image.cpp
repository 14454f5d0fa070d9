#include "host/quartzcore/drawing/encoded_image.h"

#include <utility>

#include "host/runtime/log.h"

namespace host::quartzcore {
namespace {

std::span<const unsigned char> span_of(const std::string& bytes) {
  return {reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()};
}

}  // namespace

std::shared_ptr<EncodedImage> EncodedImage::read(std::string bytes, std::string name) {
  const auto header = read_image_header(span_of(bytes));
  if (!header) return nullptr;
  return std::make_shared<EncodedImage>(std::move(bytes), std::move(name), *header);
}

EncodedImage::EncodedImage(std::string bytes, std::string name, const ImageHeader& header)
    : bytes_(std::move(bytes)), name_(std::move(name)), header_(header) {}

Surface EncodedImage::pixels() {
  std::call_once(decoded_, [this] { decode(); });
  return pixels_;
}

void EncodedImage::decode() {
  const DecodedImage decoded = decode_image(span_of(std::exchange(bytes_, std::string())));
  if (!decoded.pixels) return spdlog::warn("{} cannot be decoded", name_);
  pixels_ = decoded.pixels;
  opacity_ = decoded.opacity;
}

CGImageRef promise_image(const std::shared_ptr<EncodedImage>& picture) {
  return promise_image(picture->width(), picture->height(), picture, ByteOrder::RedFirst);
}

}  // namespace host::quartzcore
