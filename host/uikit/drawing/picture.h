#pragma once

#include <string>

#include "platform/CoreGraphics/CGImage.h"

namespace host::uikit {

/// The pixels of an image. Those of a file are decoded on first use.
class Picture {
 public:
  explicit Picture(std::string path) : path_(std::move(path)) {}
  /// Retains `pixels`.
  explicit Picture(CGImageRef pixels) : pixels_(CGImageRetain(pixels)) {}
  ~Picture();
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;

  /// Returns null when the file is not a picture.
  CGImageRef pixels();

 private:
  std::string path_;
  CGImageRef pixels_ = nullptr;
};

}  // namespace host::uikit
