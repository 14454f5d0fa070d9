#pragma once

#include <functional>
#include <string>

#include "host/springboard/parts/surface_action.h"
#include "objc/ref.h"
#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"

namespace host::springboard {

/// One card of the switcher: a small screen with an icon and a name below. A tap chooses it; a
/// finger can throw it up and away.
class SwitcherCard {
 public:
  struct Content {
    std::string bundle;  // empty for the home screen, which cannot be thrown away
    NSString name;
    UIImage icon;
    UIImage picture;
  };
  struct Callbacks {
    std::function<void()> chosen;
    /// The card has begun to leave.
    std::function<void()> thrown;
  };

  /// `frame` is the small screen's frame in the row.
  SwitcherCard(UIView row, CGRect frame, const Content& content, Callbacks callbacks);
  ~SwitcherCard();
  SwitcherCard(const SwitcherCard&) = delete;
  SwitcherCard& operator=(const SwitcherCard&) = delete;

  const std::string& bundle() const { return bundle_; }
  UIView screen() const { return screen_.get(); }
  CGPoint centre() const { return screen_->center(); }
  void set_centre_x(CGFloat x) const;
  void set_label_alpha(CGFloat alpha) const;
  /// Flies out over the top of the row and no longer accepts touches.
  void fly_away(const std::function<void()>& flown) const;

 private:
  void add_label(UIView row, CGRect frame, const Content& content);
  void panned(UIPanGestureRecognizer pan);
  bool is_thrown(CGFloat way, CGFloat velocity) const;
  void lift(CGFloat way) const;
  void fall_back() const;

  std::string bundle_;
  Callbacks callbacks_;
  CGFloat home_y_;
  objc::Ref<UIImageView> screen_;
  objc::Ref<UIView> label_;
  SurfaceActions actions_;
};

}  // namespace host::springboard
