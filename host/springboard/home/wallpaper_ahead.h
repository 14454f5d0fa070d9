#pragma once

#include <thread>

#include "objc/ref.h"
#include "platform/UIKit/UIImage.h"

namespace host::springboard {

/// Decodes the chosen wallpaper in a thread of its own while the rest of the phone starts: it is
/// the largest picture of the first screen. Keep it until the home screen shows the wallpaper.
class WallpaperAhead {
 public:
  WallpaperAhead();

 private:
  objc::Ref<UIImage> picture_;
  std::jthread decoding_;  // Last, so that it ends before its picture goes.
};

}  // namespace host::springboard
