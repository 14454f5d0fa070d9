#pragma once

#include <functional>
#include <memory>

#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::springboard {

enum class Rest { kOpen, kClosed };

/// Moves a panel that a finger pulls up and down between two places. When released, the panel
/// springs to one of them. Places are positions of the panel's top edge in its superview.
class SheetMotion {
 public:
  struct Places {
    CGFloat open;
    CGFloat closed;
  };
  /// Called when the panel has come to rest.
  using Rested = std::function<void(Rest)>;

  SheetMotion(UIView panel, Places places, Rested rested);
  SheetMotion(const SheetMotion&) = delete;
  SheetMotion& operator=(const SheetMotion&) = delete;

  /// The finger grabs the panel, which may be moving.
  void grab();
  /// The finger has moved this far since, in points downwards.
  void follow(CGFloat way);
  /// Returns where a panel released with this velocity (points per second, downwards) goes.
  Rest rest_after(CGFloat velocity) const;
  void go_to(Rest rest, CGFloat velocity);
  void put(Rest rest);

 private:
  CGFloat place_of(Rest rest) const { return rest == Rest::kOpen ? places_.open : places_.closed; }
  CGFloat top() const { return CGRect(panel_->frame()).min_y(); }
  void set_top(CGFloat top) const;
  void notify(Rest rest) const;

  objc::Ref<UIView> panel_;
  Places places_;
  Rested rested_;
  CGFloat grabbed_at_ = 0;
  int travels_ = 0;
  /// Expires with this object, which an animation may outlive.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::springboard
