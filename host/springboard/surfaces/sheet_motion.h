#pragma once

#include <functional>
#include <memory>

#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::springboard {

enum class Rest { kOpen, kClosed };

/// A panel that a finger pulls along the screen's height between two places, and that swings into
/// one of them when it is let go. Places are of the panel's top edge, in its superview.
class SheetMotion {
 public:
  struct Places {
    CGFloat open;
    CGFloat closed;
  };
  /// Told when the panel has come to rest.
  using Rested = std::function<void(Rest)>;

  SheetMotion(UIView panel, Places places, Rested rested);
  SheetMotion(const SheetMotion&) = delete;
  SheetMotion& operator=(const SheetMotion&) = delete;

  /// The finger takes hold, of a panel on its way too.
  void grab();
  /// The finger has gone this far since, downwards.
  void follow(CGFloat way);
  /// Where a panel let go with this velocity belongs, in points a second downwards.
  Rest rest_after(CGFloat velocity) const;
  void go_to(Rest rest, CGFloat velocity);
  void put(Rest rest);

 private:
  CGFloat place_of(Rest rest) const { return rest == Rest::kOpen ? places_.open : places_.closed; }
  CGFloat top() const { return CGRect(panel_->frame()).min_y(); }
  void set_top(CGFloat top) const;
  void tell(Rest rest) const;

  objc::Ref<UIView> panel_;
  Places places_;
  Rested rested_;
  CGFloat grabbed_at_ = 0;
  int travels_ = 0;
  /// Ends with this object: an animation may outlast it.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::springboard
