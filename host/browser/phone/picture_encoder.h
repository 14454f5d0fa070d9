#pragma once

#include <string>

#include "host/screen/screen.h"

namespace host::browser {

/// Encodes parts of pictures for a browser.
class PictureEncoder {
 public:
  PictureEncoder();
  ~PictureEncoder();
  PictureEncoder(const PictureEncoder&) = delete;
  PictureEncoder& operator=(const PictureEncoder&) = delete;

  /// Small and fast, but not exact. The part must be within the picture; empty when memory is
  /// short.
  std::string jpeg(const screen::Picture& picture, const screen::PixelRect& part) const;

 private:
  void* const compressor_;
};

/// Exact, for parts at rest. Empty when memory is short.
std::string png(const screen::Picture& picture, const screen::PixelRect& part);

}  // namespace host::browser
