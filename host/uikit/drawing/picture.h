#pragma once

#include <string>

#include "platform/CoreGraphics/CGImage.h"

namespace host::uikit {

/// The pixels behind an image: those of a file are decoded when they are first asked for.
class Picture {
 public:
  explicit Picture(std::string path) : path_(std::move(path)) {}
  /// Shares `pixels`.
  explicit Picture(CGImageRef pixels) : pixels_(CGImageRetain(pixels)) {}
  ~Picture();
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;

  /// Null when the file turned out to be no picture.
  CGImageRef pixels();

 private:
  std::string path_;
  CGImageRef pixels_ = nullptr;
};

}  // namespace host::uikit
