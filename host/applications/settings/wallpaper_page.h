#pragma once

#include <vector>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "platform/UIKit/UIViewController.h"

namespace host::settings {

struct PrefsWallpaperController
    : objc::Bound<PrefsWallpaperController, "PrefsWallpaperController", UIViewController> {};

/// The phone's wallpapers side by side; a tap chooses one.
class WallpaperPage : public objc::Implementation<WallpaperPage, PrefsWallpaperController> {
 public:
  using Implementation::Implementation;

  void view_did_load();
  void tapped(UITapGestureRecognizer tap);

 private:
  void add_tile(std::size_t index, NSString name);
  void show_choice() const;

  objc::Ref<UIScrollView> scroll_;
  std::vector<objc::Ref<NSString>> names_;
  std::vector<objc::Ref<UIView>> tiles_;
};

void export_wallpaper_page();

}  // namespace host::settings
