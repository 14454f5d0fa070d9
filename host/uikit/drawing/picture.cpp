#include "host/uikit/drawing/picture.h"

#include "host/quartzcore/drawing/image.h"
#include "host/runtime/log.h"

namespace host::uikit {

Picture::~Picture() {
  CGImageRelease(pixels_);
}

CGImageRef Picture::pixels() {
  if (!path_.empty()) {
    pixels_ = quartzcore::decode_image_file(path_.c_str());
    if (!pixels_) spdlog::warn("{} cannot be decoded", path_);
    path_.clear();
  }
  return pixels_;
}

}  // namespace host::uikit
