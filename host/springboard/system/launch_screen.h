#pragma once

#include <memory>
#include <optional>

#include "host/springboard/processes/application_view.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBApplication.h"
#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

/// The screen of the application in front, which zooms out of its icon and back into it. It shows
/// the icon until the application has drawn its first picture, or a notice if it has no program.
class LaunchScreen {
 public:
  using Process = std::shared_ptr<ApplicationProcess>;

  explicit LaunchScreen(UIWindow window);
  ~LaunchScreen();
  LaunchScreen(const LaunchScreen&) = delete;
  LaunchScreen& operator=(const LaunchScreen&) = delete;

  /// `from` is the frame of the icon's image on the screen; `process` is null for an application
  /// without a program.
  void open(SBApplication application, UIImage image, CGRect from, const Process& process);
  void close();
  /// The application has ended: its last picture fades out.
  void fade();
  bool is_open() const { return static_cast<bool>(screen_) && !closing_; }

  /// The application in front has drawn a frame.
  void frame_came();

 private:
  void build(SBApplication application, UIImage image, const Process& process);
  void add_texts(NSString name, CGFloat top) const;
  CGAffineTransform transform_onto_icon() const;
  void leave(CGAffineTransform transform, double duration);
  void take_down();

  UIWindow window_;
  objc::Ref<UIView> screen_;
  objc::Ref<SBHostedApplicationView> hosted_;
  CGRect from_;
  bool closing_ = false;
  /// Expires with this object, which an animation may outlive.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::springboard
