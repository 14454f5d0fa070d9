#pragma once

#include <memory>
#include <optional>

#include "objc/ref.h"
#include "platform/SpringBoard/SBApplication.h"
#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

/// What a launched application shows of itself until applications run as processes of their own: a
/// screen with its icon that says so, zooming out of the icon and back into it.
class LaunchScreen {
 public:
  explicit LaunchScreen(UIWindow window);
  ~LaunchScreen();
  LaunchScreen(const LaunchScreen&) = delete;
  LaunchScreen& operator=(const LaunchScreen&) = delete;

  /// `from` is the icon's image on the screen.
  void open(SBApplication application, UIImage image, CGRect from);
  void close();
  bool is_open() const { return static_cast<bool>(screen_) && !closing_; }

 private:
  void build(SBApplication application, UIImage image);
  CGAffineTransform transform_onto_icon() const;
  void take_down();

  UIWindow window_;
  objc::Ref<UIView> screen_;
  CGRect from_;
  bool closing_ = false;
  /// Ends with this object: an animation may outlast it.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::springboard
