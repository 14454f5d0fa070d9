#include "host/springboard/home/wallpaper_ahead.h"

#include "host/quartzcore/drawing/image.h"
#include "host/springboard/common/pictures.h"
#include "host/springboard/common/wallpaper.h"

namespace host::springboard {

WallpaperAhead::WallpaperAhead() {
  picture_.reset(picture(chosen_wallpaper()));
  if (!picture_) return;
  const auto* image = quartzcore::image_of(picture_->CGImage());
  decoding_ = std::jthread{[image] { static_cast<void>(image->surface()); }};
}

}  // namespace host::springboard
